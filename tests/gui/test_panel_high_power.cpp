// The high-power driver panels: `zema_panel` (type 18), the compact `zema120_panel` (27) and
// `zema240_panel` (25). Rows run a script of reports and operator actions, then check what is
// sent and shown (see check_script() and run_script()).
#include "test_panel_support.h"

#include <QLabel>

using namespace panel_test;

namespace {

// The five rows as a device reports them: "Max current, A" at 100.1 A (0.01 A), the rest 1000.
const QMap<int, long> raw_rows{{81, 1000}, {37, 10010}, {24, 1000}, {19, 1000}, {25, 1000}};

// Current, temperature, input and output voltage, mode, output temperature, emission and alarm
// word as a device reports them.
QString reports(int current, int temperature, int mode, int output_temperature, int emission,
                int alarm) {
    return QStringLiteral("145=%1 146=%2 148=480 166=%3 164=%4 168=%5 144=%6 176=%7 rows")
        .arg(current)
        .arg(temperature)
        .arg(output_temperature ? 312 : 100)
        .arg(mode)
        .arg(output_temperature)
        .arg(emission)
        .arg(alarm);
}

// Limits, the main set-point's range and its caption, the same for every type here.
const QString limits =
    "curr_max_label.text=100.1;curr_min_label.text=0.1;spin_label.text=Drive Current;"
    "spin.minimum=0.1;spin.maximum=100.1;spin.suffix= A;";

}  // namespace

class test_panel_high_power : public boxed_test {
    Q_OBJECT

private slots:
    void behaviour_data() {
        script_columns();
        const auto row = script_row;
        // Models; poll cycles with every row known, the compact driver idles at 6; step sizes.
        const QString in = "sent=(144,0) (145,0) (146,0) ";
        row("18 cycle", 18, "rows",
            "laser_name_label.text=ZEMA-1200;toolButton.enabled=true;spin.singleStep=0.01;" + in +
                "(164,0) (176,0) (148,0) (166,0) (144,0)");
        row("27 cycle", 27, "rows",
            "laser_name_label.text=ZEMA-120 driver;" + in + "(176,0) (148,0) (166,0) - (144,0)");
        row("25 cycle", 25, "rows",
            "laser_name_label.text=ZEMA-240;" + in +
                "(164,0) (176,0) (148,0) (166,0) (168,0) (144,0)");
        row("step 0.1", 27, "step_size_combo=1", "spin.singleStep=0.1");
        row("step 1", 18, "step_size_combo=2", "spin.singleStep=1");
        // Enter and Yes after typing: the tick after, and the collapsed header.
        const QString header = "laser_tab_button.text=Seed (";
        const QString none = "n/a/12.34 A 25.1 °C)";
        row("18 drive", 18, "145=1234 146=251 type:spin=512.37 yes ret:spin click:laser_tab_button",
            "sent=(17,51237);" + header + "512.4/12.34 A 25.1 °C)");
        row("27 drive", 27, "145=1234 146=251 type:spin=0.29 yes ret:spin click:laser_tab_button",
            "sent=(17,29);" + header + "0.3/12.34 A 25.1 °C)");
        row("25 drive in mA", 25,
            "145=12340 146=251 type:spin=1.234 yes ret:spin click:laser_tab_button",
            "sent=(17,1234);" + header + "1.2/12.34 A 25.1 °C)");
        row("25 temperature truncated", 25,
            "145=12340 146=251 type:dsb_temp=20.55 yes ret:dsb_temp click:laser_tab_button",
            "sent=(18,205);" + header + none);
        row("18 mode asks only", 18, "145=1234 146=251 yes ret:mode click:laser_tab_button",
            "sent=(144,0);" + header + none);
        row("27 step asks only", 27,
            "145=1234 146=251 yes ret:step_size_combo click:laser_tab_button",
            "sent=(144,0);" + header + none);
        // Value labels, limits, bars and the set points loaded once every row is known: the set
        // point runs from 0.1 A to the maximum row, the current bar from 0 to the maximum less
        // 0.1 A, the temperature bar to 35 °C; the power label keeps the form's text (no power is
        // reported). The alarm widgets show while the word is non-zero.
        row("18 display", 18, reports(5000, 175, 3, 0, 1, 0x0101) + " ok click:pb_alarm",
            "power_state_label.text=ON;current_ld_label.text=50.00 A;temp_label.text=17.5 °C;"
            "l_input_volt.text=48.0 V;l_output_volt.text=10.0 V;power_label.text=0.0 V;"
            "mode_label.text=Ext. TTL+ Analog;" +
                limits +
                "indicator.value=50;tem_indicator.value=50;spin.value=50;mode.currentIndex=3;"
                "l_alarm.hidden=false;pb_alarm.hidden=false;pb_alarm_clear.hidden=false;"
                "box=flag_Rebooted\nOutput voltage is higher than 80% of input voltage, "
                "\nSOLUTION: increase the input voltage\n");
        row("25 display, mA, bar truncated", 25, reports(50000, 349, 0, 291, 0, 0),
            "power_state_label.text=OFF;current_ld_label.text=50.00 A;temp_label.text=34.9 °C;"
            "l_input_volt.text=48.0 V;l_output_volt.text=31.2 V;power_label.text=0.0 V;"
            "mode_label.text=Const.Current;l_temp_out.text=29.1 °C;" +
                limits +
                "indicator.value=50;tem_indicator.value=99;spin.value=50;mode.currentIndex=0;"
                "dsb_temp.value=34.9;l_alarm.hidden=true;pb_alarm.hidden=true;"
                "pb_alarm_clear.hidden=true");
        row("27 display below the scale, bit 12 unnamed", 27,
            reports(1201, -15, 0, 0, 1, 0x1200) + " ok click:pb_alarm",
            "power_state_label.text=ON;current_ld_label.text=12.01 A;temp_label.text=-1.5 °C;"
            "power_label.text=0.0 V;" +
                limits +
                "indicator.value=12;tem_indicator.value=0;spin.value=12.01;mode.exists=false;"
                "dsb_temp.exists=false;l_alarm.hidden=false;box=Output power is close to MAX\n");
        row("18 set point loaded once", 18, reports(5000, 175, 3, 0, 1, 0) + " 145=7",
            "spin.value=50");
        row("18 mode without an item: typed set point kept", 18,
            reports(5000, 175, 7, 0, 0, 0) + " type:spin=20 145=6000 yes ret:spin",
            "sent=(17,2000);mode_label.text=7;mode.currentIndex=0");
        row("18 Clear sends its pair twice", 18,
            reports(5000, 175, 3, 0, 1, 1) + " click:pb_alarm_clear", "sent=(41,1) (41,1)");
    }
    void behaviour() { check_script(*boxes, raw_rows); }

    // The dialog names the address 0xFA; a changed row is written at once except on the compact
    // driver, which writes only on "Write"; "Write" ends with (51, 1) twice. A new mode makes
    // every row unknown: they are read again before the dialog may open.
    void configured_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("cycle");  // ticks of a poll cycle
        QTest::newRow("18") << 18 << 7;
        QTest::newRow("27") << 27 << 7;
        QTest::newRow("25") << 25 << 8;
    }
    void configured() {
        QFETCH(int, type);
        QFETCH(int, cycle);
        auto panel = make_panel(type);
        auto *configure = child<QWidget>(*panel, "toolButton");
        run_script(*panel, *boxes, "rows", raw_rows);
        run_ticks(*panel, cycle + 1);  // a cycle and the next one's first tick
        panel->on_toolButton_clicked();
        config_dialog *dialog = panel->configuration_dialog();
        QVERIFY(dialog->findChild<QLabel *>("hint_label")
                    ->text()
                    .contains("has permanent CAN address 0xFA."));
        QTest::keyClick(dialog->findChild<QWidget *>("coef. P"), Qt::Key_Up);
        QCOMPARE(text_of(run_ticks(*panel, panel->queued_commands())),
                 QString(type == 27 ? "" : "(24,2000) (152,0)"));
        dialog->write_button()->click();
        const QString written = text_of(run_ticks(*panel, panel->queued_commands()));
        QVERIFY2(written.startsWith("(81,1000) (37,10010) (24,2000) ") &&
                     written.endsWith(" (153,0) (51,1) (51,1)"),
                 qPrintable(written));
        if (type == 27) {
            return;  // no modes
        }
        QTest::keyClick(child<QWidget>(*panel, "mode"), Qt::Key_Down);
        QVERIFY(!configure->isEnabled());
        const QString sent = text_of(run_ticks(*panel, cycle + 6));
        QVERIFY2(sent.startsWith("(36,1) (145,0)") &&
                     sent.endsWith(" (209,0) (165,0) (152,0) (147,0) (153,0) (144,0)"),
                 qPrintable(sent));
        run_script(*panel, *boxes, "rows", raw_rows);
        QVERIFY(configure->isEnabled());
    }
};

QTEST_MAIN(test_panel_high_power)
#include "test_panel_high_power.moc"
