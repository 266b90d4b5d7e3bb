// The CW driver panels: `cw_panel` for device types 14, 34 and 38 and the precision panel
// `vtr_cw_1800_zif` for type 15. Each row runs a script of reports and operator actions, then
// checks what is sent and shown (see check_script() and run_script()).
#include "test_panel_support.h"

#include <QDoubleSpinBox>

using namespace panel_test;

namespace {

// Parameters as a device would report them (raw wire values by parameter code), chosen so that
// both panels end up with the same physical limits: current 100 to 1000 mA, power 1 to 50 mW,
// temperature 15 to 30 °C.
const QMap<int, long> cw_raw{{81, 5},   {37, 10000}, {38, 1000},  {66, 500},  {67, 10},
                             {55, 300}, {54, 150},   {22, 10000}, {21, 3950}, {51, 15},
                             {23, 200}, {68, 1000},  {69, 200},   {70, 0}};
const QMap<int, long> precision_raw{{81, 5},    {37, 100000}, {38, 10000}, {66, 500},  {67, 10},
                                    {55, 3000}, {54, 1500},   {22, 10000}, {21, 3950}, {51, 15},
                                    {23, 200},  {68, 1000},   {69, 200},   {70, 0}};

const QString cw_fixed = "(144,0) (145,0) (146,0) (148,0) (164,0) (161,0) (176,0)";
const QString precision_fixed = "(144,0) (145,0) (146,0) - (148,0) (164,0) (161,0)";
// The reads of every row, then the next cycle's first tick.
const QString row_reads =
    " (209,0) (165,0) (166,0) (194,0) (195,0) (183,0) (182,0) (150,0) (149,0) (179,0) (151,0)"
    " (196,0) (197,0) (198,0) (144,0)";
const QString bit8 =
    "Output voltage is higher than 80% of input voltage, \nSOLUTION: increase the input voltage\n";

}  // namespace

class test_panel_cw : public boxed_test {
    Q_OBJECT

private slots:
    void behaviour_data() {
        script_columns();
        const auto row = script_row;
        // Models, mode widgets, poll cycles with every row known and with none.
        row("14 known", 14, "rows",
            "laser_name_label.text=VTR-CW-1800;mode.hidden=false;mode_label.hidden=false;"
            "step_size_combo.currentText=0.1;spin.singleStep=0.1;sent=" +
                cw_fixed + " (144,0)");
        row("15 known, idle tick at 3", 15, "rows",
            "laser_name_label.text=VTR-CW-1800H precision;sent=" + precision_fixed + " (144,0)");
        row("14 unknown", 14, "", "sent=" + cw_fixed + row_reads);
        row("15 unknown", 15, "", "sent=" + precision_fixed + row_reads);
        row("34 unknown, no power limits, no mode", 34, "",
            "laser_name_label.text=VTR-CW-250-9V;mode.hidden=true;mode_title.hidden=true;"
            "mode_label.hidden=true;sent=" +
                cw_fixed + QString(row_reads).remove(" (194,0) (195,0)"));
        row("38 unknown, no tec current", 38, "",
            "laser_name_label.text=VTR-CW-450-DIL;mode.hidden=false;mode_title.hidden=false;sent=" +
                cw_fixed + QString(row_reads).remove(" (179,0)"));
        // Set-points by Enter and Yes, with their scales.
        row("0.29 mA is 2, not 3", 14, "164=0 type:spin=0.29 yes ret:spin", "sent=(17,2)");
        row("current", 14, "rows 164=1 type:spin=512.7 yes ret:spin", "sent=(17,5127)");
        row("power in mode 3", 14, "rows 164=3 type:spin=12.3 yes ret:spin", "sent=(65,1230)");
        row("temperature", 14, "rows 164=0 type:spin_temp=20.5 yes ret:spin_temp", "sent=(18,205)");
        row("34 current", 34, "rows 164=0 type:spin=100.1 yes ret:spin", "sent=(17,1001)");
        row("precision current", 15, "164=0 type:spin=12.34 yes ret:spin", "sent=(17,1234)");
        row("precision power", 15, "rows 164=3 type:spin=1.23 yes ret:spin", "sent=(65,123)");
        row("precision 25.50 °C", 15, "rows 164=0 type:spin_temp=25.50 yes ret:spin_temp",
            "sent=(18,255000)");
        // Reports shown with their scales.
        row("readings", 14, "145=123 146=-15 148=57 164=2",
            "current_ld_label.text=12.3 mA;temp_label.text=-1.5 °C;power_label.text=5.7 mW;"
            "mode_label.text=External TTL");
        row("precision readings", 15, "145=123456 146=255000 148=123 164=3",
            "current_ld_label.text=12.35 mA;temp_label.text=25.50 °C;power_label.text=12.30 mW;"
            "mode_label.text=Const.Power");
        // Mode 3 makes the main set-point the optical power; a reported mode is never sent back.
        row("current mode", 14, "rows 164=3 164=0",
            "spin_label.text=Drive Current;spin.suffix= mA;spin.maximum=1000;spin.minimum=100;"
            "curr_max_label.text=1000.0;curr_min_label.text=100.0");
        row("constant power", 14, "rows 164=0 164=3",
            "spin_label.text=Optical Power;spin.suffix= mW;spin.maximum=50;spin.minimum=1;"
            "curr_max_label.text=50.00;curr_min_label.text=1.00");
        row("back to current", 14, "rows 164=3 164=1",
            "spin_label.text=Drive Current;spin.suffix= mA;spin.maximum=1000");
        row("precision current mode", 15, "rows 164=0",
            "spin.maximum=1000;spin.minimum=100;curr_max_label.text=1000.00;"
            "curr_min_label.text=100.00");
        row("precision constant power", 15, "rows 164=3",
            "spin_label.text=Optical Power;spin.maximum=50;spin.minimum=1;"
            "curr_max_label.text=50.00;curr_min_label.text=1.00");
        // Type 34 has lost the two power limits, and its limits are still read by position:
        // positions 5 and 6 hold the thermistor's rows, in mode 3 positions 3 and 4 the
        // temperature limits.
        row("34 limits by position", 34, "rows",
            "labels=CAN ID|Max current, mA|Min current, mA|Max temperature, °C|"
            "Min temperature, °C|Resistance at 25°C, Ohm|Thermistor beta|Max tec current, A|"
            "Monitor responsivity, uA/mW|coef. P|coef. I|coef. D;"
            "spin.maximum=1000;spin.minimum=100;spin_temp.maximum=10000;spin_temp.minimum=3950;"
            "temp_max_label.text=10000.0;temp_min_label.text=3950.0");
        row("34 in mode 3", 34, "rows 164=3", "spin.maximum=30;spin.minimum=15");
        // The alarm word: shown, never acted on; its details box.
        row("no alarm yet", 14, "", "l_alarm.hidden=true;pb_alarm.hidden=true");
        row("alarm bit 8 alone, its own line break", 14, "176=256 ok click:pb_alarm",
            "l_alarm.text=Alarm!!!;pb_alarm.hidden=false;box=" + bit8);
        row("alarm bits 0 and 8", 14, "176=257 ok click:pb_alarm", "box=flag_Rebooted\n" + bit8);
        row("alarm bits 1, 3, 9", 14, "176=522 ok click:pb_alarm",
            "box=flag_ALARM_INTERLOCK\nflag_OverCurrent\nOutput power is close to MAX\n");
        row("alarm bit 12 has no text", 14, "176=4097 ok click:pb_alarm", "box=flag_Rebooted\n");
        row("alarm bits above 15 ignored", 14, "176=65540 ok click:pb_alarm",
            "box=flag_Overtemp\n");
        row("alarm word 0 hides it", 14, "176=1 176=0", "l_alarm.hidden=true;pb_alarm.hidden=true");
        row("precision has no alarm display", 15, "", "l_alarm.exists=false;pb_alarm.exists=false");
        // The configuration button: every row known, emission and TEC reported off.
        row("configuration, everything right", 14, "rows 144=0 161=0", "toolButton.enabled=true");
        row("configuration, a row unknown", 14, "rows 209=-1 144=0 161=0",
            "toolButton.enabled=false");
        row("configuration, emission on", 14, "rows 144=1 161=0", "toolButton.enabled=false");
        row("configuration, tec on", 14, "rows 144=0 161=1", "toolButton.enabled=false");
        row("configuration, tec not reported", 14, "rows 144=0", "toolButton.enabled=false");
        row("precision configuration", 15, "rows 161=0", "toolButton.enabled=true");
        row("precision configuration, tec on", 15, "rows 161=1", "toolButton.enabled=false");
        // Switches: a report sets both, the operator's clicks queue their pairs.
        row("emission on", 14, "144=1",
            "on_off_button.checked=true;start_stop_button_alt.checked=true;"
            "power_state_label.text=ON");
        row("emission off", 14, "144=1 144=0",
            "on_off_button.checked=false;start_stop_button_alt.checked=false;"
            "power_state_label.text=OFF");
        row("operator controls", 14,
            "click:on_off_button click:start_stop_button_alt click:chb_tec mode=1",
            "sent=(16,1) (16,1) (33,1) (36,1) (144,0)");
        row("step size", 14, "step_size_combo=2", "spin.singleStep=10");
        // Bars over the limits.
        row("bars in the middle", 14, "rows 145=5500 146=225",
            "indicator.value=50;tem_indicator.value=50");
        row("bars truncated", 14, "rows 145=1089 146=157",
            "indicator.value=0;tem_indicator.value=4");
        row("precision bars", 15, "rows 145=5500000 146=225000",
            "indicator.value=50;tem_indicator.value=50");
        row("bars above the range", 14, "rows 145=20000 146=400",
            "indicator.value=100;tem_indicator.value=100");
        // The set-points are loaded from the first complete set of reports, then left alone; an
        // unknown temperature stays at its minimum until reported.
        row("no load before the rows", 14, "145=5000 148=300 164=0", "spin.value=0");
        row("first load, current mode", 14, "145=5000 148=300 164=0 rows",
            "spin.value=500;mode.currentIndex=0;spin_temp.value=15");
        row("first load, constant power", 14, "145=5000 148=300 164=3 rows 146=200",
            "spin.value=30;mode.currentIndex=3;spin_temp.value=20");
        row("later reports leave them", 14,
            "145=5000 148=300 164=0 rows 146=200 145=6000 148=400 146=250",
            "spin.value=500;spin_temp.value=20");
        // The collapsed header: set-point/reading of the current and the temperature.
        row("header", 14,
            "rows 164=0 145=4995 146=201 spin=500 yes ret:spin spin_temp=20 yes ret:spin_temp "
            "click:laser_tab_button",
            "sent=(17,5000) (18,200);laser_tab_button.text=Seed (500.0/499.5 mA 20.0/20.1 °C)");
        row("precision header", 15,
            "rows 164=0 145=4995000 146=201000 spin=500 yes ret:spin spin_temp=20 yes "
            "ret:spin_temp click:laser_tab_button",
            "sent=(17,50000) (18,200000);"
            "laser_tab_button.text=Seed (500.00/499.50 mA 20.00/20.10 °C)");
    }
    void behaviour() {
        QFETCH(int, type);
        check_script(*boxes, type == 15 ? precision_raw : cw_raw);
    }

    void dialog_changes_are_sent_at_once_data() {
        QTest::addColumn<QString>("row");
        QTest::addColumn<int>("steps");
        QTest::addColumn<QString>("sent");
        QTest::newRow("coef. P 0.1 -> 0.2") << "coef. P" << 1 << "(68,2000) (196,0) (144,0)";
        QTest::newRow("CAN ID 5 -> 6, no question") << "CAN ID" << 1 << "(81,6) (209,0) (144,0)";
        QTest::newRow("two steps, two pairs")
            << "Max temperature, °C" << 2 << "(55,301) (183,0) (55,302) (183,0) (144,0)";
    }
    void dialog_changes_are_sent_at_once() {
        QFETCH(QString, row);
        QFETCH(int, steps);
        QFETCH(QString, sent);
        auto panel = make_panel(14);
        run_script(*panel, *boxes, "rows", cw_raw);
        panel->on_toolButton_clicked();
        auto *spin = panel->configuration_dialog()->findChild<QDoubleSpinBox *>(row);
        QVERIFY(spin);
        for (int i = 0; i < steps; ++i) {
            QTest::keyClick(spin, Qt::Key_Up);
        }
        QCOMPARE(text_of(run_ticks(*panel, sent.count(' ') + 1)), sent);
        QVERIFY(boxes->shown.isEmpty());
    }
};

QTEST_MAIN(test_panel_cw)
#include "test_panel_cw.moc"
