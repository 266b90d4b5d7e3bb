// The picosecond panels: `ps20_panel` (type 20), the energy-calibrated `ps26_panel` (26), the
// synchronised `ps28_panel` (28) and the module panel `kso_ps_640_panel` (35). Each row feeds
// reports, acts as an operator would, and checks what is sent and shown.
//
// Reports: "code=value" in order; "rows": every configuration row; "fill": every polled code not
// yet reported (value 0), then the rows, so that the first fill runs. Actions: "yes", "no", "ok"
// answer the next box; "ret:w" presses Return on w; "click:w"; "dialog" opens the configuration;
// "w=v" sets a spin box, or picks item v of a combo box as the operator does. Shown: "key=text"
// separated by ";": a widget's text, value or checked state ("1"/"0"); "w.max", "w.min" its limits;
// "!w" enabled ("on"/"off"); "?w" "shown" or "hidden"; "w[i]" the state of combo item i; "box" the
// last box's text; "rows" the parameters as code/decimals/step.
#include "config_dialog.h"
#include "test_panel_support.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QProgressBar>
#include <QStandardItemModel>

using namespace panel_test;

namespace {

// Configuration rows as the devices report them (raw wire values by code): voltage 10 to 30 V,
// temperature 20 to 40 °C, max energy 50.0.
const QMap<int, long> raw_rows{{81, 5},     {37, 300},   {38, 100},    {55, 400}, {54, 200},
                               {22, 10000}, {21, 3950},  {68, 1000},   {69, 200}, {70, 0},
                               {56, 1000},  {57, -2000}, {58, 150000}, {59, 0},   {61, 500}};

void report(panel_base &panel, const QString &script) {
    QSet<int> reported;
    for (const QString &step : script.split(' ', Qt::SkipEmptyParts)) {
        if (step == QLatin1String("fill")) {
            for (int code : panel.plan().read_codes) {
                if (code != poll_plan::silent && !reported.contains(code)) {
                    panel.sl_parsed_data_received(code, 0);
                }
            }
        }
        if (step == QLatin1String("rows") || step == QLatin1String("fill")) {
            const parameter_list rows = panel.parameters();
            report_parameters(panel, [&rows](int i) { return raw_rows.value(rows[i].code); });
        } else {
            const int code = step.section('=', 0, 0).toInt();
            reported.insert(code);
            panel.sl_parsed_data_received(code, step.section('=', 1).toLong());
        }
    }
}

QWidget *find(panel_base &panel, const QString &name) {
    QWidget *found = panel.findChild<QWidget *>(name);
    if (!found && panel.configuration_dialog()) {
        found = panel.configuration_dialog()->findChild<QWidget *>(name);
    }
    if (!found) {
        qFatal("no %s", qPrintable(name));
    }
    return found;
}

void act(panel_base &panel, box_answerer &boxes, const QString &script) {
    const QMap<QString, QMessageBox::StandardButton> answers{
        {"yes", QMessageBox::Yes}, {"no", QMessageBox::No}, {"ok", QMessageBox::Ok}};
    for (const QString &step : script.split(' ', Qt::SkipEmptyParts)) {
        if (answers.contains(step)) {
            boxes.expect(step == "ok" ? "WARNING" : "Conformation", answers[step]);
        } else if (step == QLatin1String("dialog")) {
            panel.on_toolButton_clicked();
        } else if (step.startsWith(QLatin1String("ret:"))) {
            QTest::keyClick(find(panel, step.mid(4)), Qt::Key_Return);
        } else if (step.startsWith(QLatin1String("click:"))) {
            static_cast<QAbstractButton *>(find(panel, step.mid(6)))->click();
        } else if (auto *spin =
                       qobject_cast<QDoubleSpinBox *>(find(panel, step.section('=', 0, 0)))) {
            spin->setValue(step.section('=', 1).toDouble());
        } else if (auto *combo = qobject_cast<QComboBox *>(find(panel, step.section('=', 0, 0)))) {
            combo->setCurrentIndex(step.section('=', 1).toInt());
            emit combo->activated(combo->currentIndex());
        }
    }
}

QString state_of(panel_base &panel, const box_answerer &boxes, QString key) {
    if (key == QLatin1String("box")) {
        return boxes.shown.isEmpty() ? QString() : boxes.shown.last().text;
    }
    if (key == QLatin1String("rows")) {
        QStringList rows;
        for (const parameter_record &r : panel.parameters()) {
            rows << QStringLiteral("%1/%2/%3").arg(r.code).arg(r.decimals).arg(r.step);
        }
        return rows.join(' ');
    }
    if (key == QLatin1String("unknown_text")) {
        return panel.dialog_unknown_text();
    }
    const QChar kind = key.at(0);
    if (kind == '!' || kind == '?') {
        QWidget *w = find(panel, key.mid(1));
        return kind == '!' ? (w->isEnabled() ? "on" : "off") : (w->isHidden() ? "hidden" : "shown");
    }
    if (key.endsWith(']')) {
        auto *combo = static_cast<QComboBox *>(find(panel, key.section('[', 0, 0)));
        auto *items = static_cast<QStandardItemModel *>(combo->model());
        return items->item(key.section('[', 1).chopped(1).toInt())->isEnabled() ? "on" : "off";
    }
    if (key.endsWith(QLatin1String(".max")) || key.endsWith(QLatin1String(".min"))) {
        auto *spin = static_cast<QDoubleSpinBox *>(find(panel, key.chopped(4)));
        return QString::number(key.endsWith(QLatin1String("max")) ? spin->maximum()
                                                                  : spin->minimum());
    }
    QWidget *w = find(panel, key);
    if (auto *label = qobject_cast<QLabel *>(w)) {
        return label->text();
    }
    if (auto *spin = qobject_cast<QDoubleSpinBox *>(w)) {
        return QString::number(spin->value());
    }
    if (auto *combo = qobject_cast<QComboBox *>(w)) {
        return combo->currentText();
    }
    if (auto *bar = qobject_cast<QProgressBar *>(w)) {
        return QString::number(bar->value());
    }
    auto *button = static_cast<QAbstractButton *>(w);
    return button->isCheckable() ? QString::number(button->isChecked()) : button->text();
}

const QString ps_rows =
    "81/0/1 37/1/0.1 38/1/0.1 55/1/0.1 54/1/0.1 22/0/1 21/0/0.1 68/4/0.1 "
    "69/4/0.1 70/4/0.1";
const QString ps_fixed = "(160,0) (152,0) (146,0) (153,0) - (180,0) (181,0) (164,0) (161,0)";
const QString alarm_80 =
    "Output voltage is higher than 80% of input voltage, \nSOLUTION: "
    "increase the input voltage\n";

}  // namespace

class test_panel_picosecond : public QObject {
    Q_OBJECT

    std::unique_ptr<box_answerer> boxes;

private slots:
    void init() { boxes = std::make_unique<box_answerer>(); }
    void cleanup() {
        boxes->verify_all_answered();
        boxes.reset();
    }

    void behaviour_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("reports");
        QTest::addColumn<QString>("actions");
        QTest::addColumn<QString>("sent");
        QTest::addColumn<QString>("shown");
        const auto row = [](const char *name, int type, const QString &reports,
                            const QString &actions, const QString &sent, const QString &shown) {
            QTest::newRow(name) << type << reports << actions << sent << shown;
        };
        // Poll cycles once every row is known, and the rows.
        row("20 cycle, silent tick 4", 20, "rows", "", ps_fixed + " (160,0)", "rows=" + ps_rows);
        row("26 cycle; a row reported as -1 is known", 26, "rows 209=-1", "",
            ps_fixed + " (188,0) (160,0)",
            "rows=" + QString(ps_rows).replace("21/0/0.1", "21/0/1") +
                " 56/6/0.1 57/6/0.1 58/6/0.1 59/6/0.1 61/1/0.1;unknown_text=n/a");
        row("28 cycle of twelve", 28, "rows", "", ps_fixed + " (201,0) (200,0) (199,0) (160,0)",
            "rows=" + ps_rows);
        row("35 cycle without silent tick", 35, "rows", "",
            "(162,0) (152,0) (146,0) (153,0) (164,0) (161,0) (176,0) (160,0) (162,0)",
            "rows=" + ps_rows + ";unknown_text=n/a");
        row("35 hint", 35, "", "dialog", "",
            "hint_label=Please check all parameters before saving");
        // Modes: the pairs sent, and the name shown for a source and cut count.
        row("20 pulse on demand, int burst", 20, "", "cb_mode=4 cb_mode=1",
            "(36,1) (53,0) (36,0) (53,1)", "");
        row("35 external, internal", 35, "", "cb_mode=1 cb_mode=0", "(36,1) (36,0)", "");
        row("20 ext burst", 20, "181=3 164=2", "", "",
            "l_mode=Ext: Burst;!dsb_gated_count=on;!dsb_freq=on");
        row("20 pulse on demand stops the rate", 20, "181=2 164=1", "", "",
            "l_mode=Pulse on Demand;!dsb_freq=off;!cb_freq_range=off");
        row("20 normal disables counts; unknown source keeps the name", 20, "181=0 164=0 164=7", "",
            "", "l_mode=Int: Normal;!dsb_cutted_count=off;!dsb_gated_count=off");
        row("35 external stops the rate", 35, "164=1", "", "", "l_mode=External;!dsb_freq=off");
        // Emission.
        row("20 switch", 20, "", "click:pb_on_off", "(32,1) (34,1)", "");
        row("35 switch sends its pair twice", 35, "", "click:start_stop_button_alt",
            "(34,1) (32,1) (34,1) (32,1)", "");
        row("35 reports under 162, not 160", 35, "162=1 160=0", "", "",
            "l_emission_state=ON;pb_on_off=1;start_stop_button_alt=1;!cb_mode=off");
        row("20 emission on locks the mode", 20, "160=1", "", "", "!cb_mode=off");
        row("combo boxes ask nothing on Return", 20, "", "ret:cb_mode ret:cb_freq_range", "", "");
        // Frequency: the code and scale of each range, and how a rate is shown.
        row("Hz as is", 20, "", "dsb_freq=999 yes ret:dsb_freq", "(25,999)", "");
        row("kHz", 28, "", "cb_freq_range=1 dsb_freq=999 yes ret:dsb_freq", "(25,999000)", "");
        row("MHz in single precision", 20, "", "cb_freq_range=2 dsb_freq=16.7 yes ret:dsb_freq",
            "(25,16700001)", "dsb_freq.max=30;dsb_freq.min=0.1;l_freq_max=30.0");
        row("35 MHz up to 40", 35, "", "cb_freq_range=2 dsb_freq=45 yes ret:dsb_freq",
            "(25,40000000)", "l_freq_max=40.0");
        row("back to Hz", 26, "", "cb_freq_range=2 cb_freq_range=0", "",
            "dsb_freq.max=1000;dsb_freq.min=1;l_freq_min=1");
        row("999 Hz", 20, "153=999", "", "", "l_freq=999 Hz");
        row("1000 Hz", 20, "153=1000", "", "", "l_freq=1 kHz");
        row("1999 Hz", 35, "153=1999", "", "", "l_freq=1 kHz");
        row("2.5 MHz", 20, "153=2500000", "", "", "l_freq=2.5 MHz");
        // First fill: the "MHz" spin box is loaded with the rate over 100 000.
        row("fill 2.5 MHz as 25.0", 20, "153=2500000 152=150 146=300 164=2 181=1 180=4 fill", "",
            "",
            "cb_freq_range=MHz;dsb_freq=25;dsb_volt=15;dsb_temp=30;cb_mode=Ext: Burst;"
            "dsb_gated_count=4;dsb_cutted_count=1");
        row("fill 5 MHz clamped", 20, "153=5000000 fill", "", "", "dsb_freq=30");
        row("fill 35: 3.9 MHz as 39.0", 35, "153=3900000 164=1 fill", "", "",
            "dsb_freq=39;cb_mode=External");
        row("fill kHz", 28, "153=100000 200=13 201=1 fill", "", "",
            "cb_freq_range=kHz;dsb_freq=100;dsb_sync_delay=1.3;cb_sync_mode=MASTER");
        row("fill waits for the rows", 20, "152=150 153=999 164=0 181=0", "", "",
            "dsb_volt=0;dsb_freq=1;cb_freq_range=Hz");
        row("fill once", 20, "fill 153=999 152=250", "", "", "dsb_freq=1;dsb_volt=10");
        row("fill energy", 26, "188=57 fill", "", "", "dsb_energy=5.7");
        // Limits, bars, configuration access.
        row("20 limits; voltage bar without minimum", 20, "152=200 146=300 rows", "", "",
            "dsb_volt.max=30;dsb_volt.min=10;l_volt_max=30.0;l_volt_min=10.0;l_temp_max=40.00;"
            "l_temp_min=20.00;dsb_volt=20;dsb_temp=30;i_voltage=100;i_temp=50");
        row("35 both bars from the minimum", 35, "rows 152=200 146=300", "", "",
            "i_voltage=50;i_temp=50");
        row("26 neither bar from the minimum; energy", 26, "rows 152=200 146=300 188=250", "", "",
            "i_voltage=100;i_temp=100;i_energy=50;dsb_energy.max=50;l_energy_max=50.0;"
            "?volt_widget=hidden;?energy_widget=shown");
        row("26 energy above its maximum", 26, "rows 188=600", "", "", "i_energy=100");
        row("26 zero max energy", 26, "rows 189=0 188=10", "", "", "i_energy=-1;dsb_energy.max=0");
        row("TEC on keeps the configuration closed", 20, "rows 160=0 161=1", "", "",
            "!toolButton=off;chb_tec=1");
        row("TEC off opens it", 35, "rows 162=0 161=0", "", "", "!toolButton=on");
        // Set-points of the family and the collapsed header.
        row("set-points and header", 20, "152=150 146=300 153=2000 164=0 181=0",
            "dsb_volt=12.5 yes ret:dsb_volt dsb_temp=25 yes ret:dsb_temp cb_freq_range=1 "
            "dsb_freq=100 yes ret:dsb_freq click:laser_tab_button",
            "(24,125) (18,250) (25,100000)",
            "laser_tab_button=Seed (12.5/15.0 V 25.0/30.0 °C 100kHz/2 kHz Int: Normal)");
        row("counts", 26, "",
            "dsb_gated_count=7 yes ret:dsb_gated_count dsb_cutted_count=3 yes "
            "ret:dsb_cutted_count dsb_energy=5.5 yes ret:dsb_energy click:chb_tec",
            "(52,7) (53,3) (60,55) (33,1)", "");
        // Synchronisation.
        row("normal asks nothing", 28, "", "cb_sync_mode=0", "(73,0)", "");
        row("master refused", 28, "", "no cb_sync_mode=1", "",
            "box=Make sure your slave device is set to SLAVE mode, otherwise it may cause the "
            "slave device to be halted until hardware reboot. Continue?");
        row("slave", 28, "", "yes cb_sync_mode=2", "(73,2)",
            "box=Slave mode could cause device halt until MASTER device clock signal be "
            "applied. Continue?");
        row("save", 28, "", "yes click:pb_save", "(82,0)",
            "box=Store SYNC parameters with all config data to FLASH?");
        row("delays on a 0.2 grid", 28, "",
            "dsb_sync_delay=1.0 dsb_sync_delay=1.3 dsb_pulse_delay=1.6 dsb_pulse_delay=1.3", "",
            "dsb_sync_delay=1.4;dsb_pulse_delay=1.2");
        row("delays sent", 28, "",
            "dsb_sync_delay=2.4 yes ret:dsb_sync_delay dsb_pulse_delay=-1.2 yes "
            "ret:dsb_pulse_delay",
            "(72,24) (71,-12)", "");
        row("slave takes external modes only", 28, "201=2 200=12 199=-35", "", "",
            "l_sync_mode=SLAVE;l_sync_delay=1.2;l_pulse_delay=-3.5;cb_mode[0]=off;"
            "cb_mode[4]=off;cb_mode[2]=on;cb_mode[3]=on");
        row("back to normal", 28, "201=2 201=0", "", "", "l_sync_mode=NORMAL;cb_mode[0]=on");
        // The module's alarm word.
        row("alarm shown until the first word", 35, "", "", "", "?l_alarm=shown;?pb_alarm=shown");
        row("alarm word 0 hides it", 35, "176=0", "", "", "?l_alarm=hidden;?pb_alarm=hidden");
        row("alarm 257", 35, "176=257", "ok click:pb_alarm", "",
            "box=flag_Rebooted\n" + alarm_80 + ";?l_alarm=shown");
        row("alarm bits without a name", 35, "176=4608", "ok click:pb_alarm", "",
            "box=Output power is close to MAX\n");
    }
    void behaviour() {
        QFETCH(int, type);
        QFETCH(QString, reports);
        QFETCH(QString, actions);
        QFETCH(QString, sent);
        QFETCH(QString, shown);
        auto panel = make_panel(type);
        report(*panel, reports);
        act(*panel, *boxes, actions);
        if (!sent.isEmpty()) {
            QCOMPARE(text_of(run_ticks(*panel, sent.count(' ') + 1)), sent);
        }
        QCOMPARE(panel->queued_commands(), 0);
        for (const QString &check : shown.split(';', Qt::SkipEmptyParts)) {
            const QString key = check.section('=', 0, 0);
            QCOMPARE(key + '=' + state_of(*panel, *boxes, key), check);
        }
    }
};

QTEST_MAIN(test_panel_picosecond)
#include "test_panel_picosecond.moc"
