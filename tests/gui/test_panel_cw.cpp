// The CW driver panels: `cw_panel` for device types 14, 34 and 38 and the precision panel
// `vtr_cw_1800_zif` for type 15, driven through their public contract (reports in, ticks out).
#include "config_dialog.h"
#include "cw_panel.h"
#include "test_panel_support.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QToolButton>

using namespace panel_test;

namespace {

using raw_table = QMap<int, long>;

// Parameters as a device would report them (raw wire values by parameter code), chosen so that
// both panels end up with the same physical limits: current 100 to 1000 mA, power 1 to 50 mW,
// temperature 15 to 30 °C.
raw_table cw_raw() {
    return {{81, 5},     {37, 10000}, {38, 1000}, {66, 500}, {67, 10},   {55, 300}, {54, 150},
            {22, 10000}, {21, 3950},  {51, 15},   {23, 200}, {68, 1000}, {69, 200}, {70, 0}};
}
raw_table precision_raw() {
    return {{81, 5},     {37, 100000}, {38, 10000}, {66, 500}, {67, 10},   {55, 3000}, {54, 1500},
            {22, 10000}, {21, 3950},   {51, 15},    {23, 200}, {68, 1000}, {69, 200},  {70, 0}};
}
raw_table raw_for(int type) {
    return type == 15 ? precision_raw() : cw_raw();
}

// Reports every parameter the panel has, from `table`.
void report_known(panel_base &panel, const raw_table &table) {
    const parameter_list parameters = panel.parameters();
    for (const parameter_record &record : parameters) {
        panel.sl_parsed_data_received(record.code + 128, table.value(record.code));
    }
}

QString label_text(panel_base &panel, const char *name) {
    return child<QLabel>(panel, name)->text();
}

// Types the value into the spin box as an operator would.
void type_into(QDoubleSpinBox *spin, const QString &text) {
    spin->clear();
    QTest::keyClicks(spin, text);
}

QStringList labels_of(const parameter_list &parameters) {
    QStringList labels;
    for (const parameter_record &record : parameters) {
        labels.append(record.label);
    }
    return labels;
}

const QStringList full_labels{"CAN ID",
                              "Max current, mA",
                              "Min current, mA",
                              "Max power, mW",
                              "Min power, mW",
                              "Max temperature, °C",
                              "Min temperature, °C",
                              "Resistance at 25°C, Ohm",
                              "Thermistor beta",
                              "Max tec current, A",
                              "Monitor responsivity, uA/mW",
                              "coef. P",
                              "coef. I",
                              "coef. D"};

}  // namespace

class test_panel_cw : public boxed_test {
    Q_OBJECT

private slots:
    void model_strings_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("model");
        QTest::newRow("14") << 14 << "VTR-CW-1800";
        QTest::newRow("34") << 34 << "VTR-CW-250-9V";
        QTest::newRow("38") << 38 << "VTR-CW-450-DIL";
        QTest::newRow("15") << 15 << "VTR-CW-1800H precision";
    }
    void model_strings() {
        QFETCH(int, type);
        QFETCH(QString, model);
        QCOMPARE(registry().find(type)->model, model);
        auto panel = make_panel(type);
        QCOMPARE(label_text(*panel, "laser_name_label"), model);
        if (type != 15) {
            QVERIFY(dynamic_cast<cw_panel *>(panel.get()));
        }
    }

    // One cycle and the first tick of the next.
    void poll_cycle_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("known");
        QTest::addColumn<QString>("cycle");
        const QString cw_fixed = "(144,0) (145,0) (146,0) (148,0) (164,0) (161,0) (176,0)";
        const QString precision_fixed = "(144,0) (145,0) (146,0) - (148,0) (164,0) (161,0)";
        QTest::newRow("14 known") << 14 << true << cw_fixed + " (144,0)";
        QTest::newRow("15 known, idle tick at 3") << 15 << true << precision_fixed + " (144,0)";
        QTest::newRow("14 unknown")
            << 14 << false
            << cw_fixed +
                   " (209,0) (165,0) (166,0) (194,0) (195,0) (183,0) (182,0) (150,0) (149,0)"
                   " (179,0) (151,0) (196,0) (197,0) (198,0) (144,0)";
        QTest::newRow("34 unknown, no power limits")
            << 34 << false
            << cw_fixed +
                   " (209,0) (165,0) (166,0) (183,0) (182,0) (150,0) (149,0)"
                   " (179,0) (151,0) (196,0) (197,0) (198,0) (144,0)";
        QTest::newRow("38 unknown, no tec current")
            << 38 << false
            << cw_fixed +
                   " (209,0) (165,0) (166,0) (194,0) (195,0) (183,0) (182,0) (150,0) (149,0)"
                   " (151,0) (196,0) (197,0) (198,0) (144,0)";
        QTest::newRow("15 unknown")
            << 15 << false
            << precision_fixed +
                   " (209,0) (165,0) (166,0) (194,0) (195,0) (183,0) (182,0) (150,0) (149,0)"
                   " (179,0) (151,0) (196,0) (197,0) (198,0) (144,0)";
    }
    void poll_cycle() {
        QFETCH(int, type);
        QFETCH(bool, known);
        QFETCH(QString, cycle);
        auto panel = make_panel(type);
        if (known) {
            report_known(*panel, raw_for(type));
        }
        QCOMPARE(text_of(run_ticks(*panel, cycle.count(' ') + 1)), cycle);
    }

    void setpoint_sends_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("widget");
        QTest::addColumn<bool>("limits_known");  // else the form's initial limits
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("sent");
        QTest::newRow("0.29 mA is 2, not 3") << 14 << 0 << "spin" << false << "0.29"
                                             << "(17,2)";
        QTest::newRow("current") << 14 << 1 << "spin" << true << "512.7"
                                 << "(17,5127)";
        QTest::newRow("power in mode 3") << 14 << 3 << "spin" << true << "12.3"
                                         << "(65,1230)";
        QTest::newRow("temperature") << 14 << 0 << "spin_temp" << true << "20.5"
                                     << "(18,205)";
        QTest::newRow("34 current") << 34 << 0 << "spin" << true << "100.1"
                                    << "(17,1001)";
        QTest::newRow("precision current") << 15 << 0 << "spin" << false << "12.34"
                                           << "(17,1234)";
        QTest::newRow("precision power") << 15 << 3 << "spin" << true << "1.23"
                                         << "(65,123)";
        QTest::newRow("precision 25.50 °C") << 15 << 0 << "spin_temp" << true << "25.50"
                                            << "(18,255000)";
    }
    void setpoint_sends() {
        QFETCH(int, type);
        QFETCH(int, mode);
        QFETCH(QString, widget);
        QFETCH(bool, limits_known);
        QFETCH(QString, typed);
        QFETCH(QString, sent);
        auto panel = make_panel(type, QStringLiteral("Pump 2"));
        if (limits_known) {
            report_known(*panel, raw_for(type));
        }
        panel->sl_parsed_data_received(164, mode);
        auto *spin = child<QDoubleSpinBox>(*panel, qPrintable(widget));
        type_into(spin, typed);
        boxes->expect(QStringLiteral("Conformation"), QMessageBox::Yes);
        QTest::keyClick(spin, Qt::Key_Return);
        QCOMPARE(boxes->shown.size(), 1);
        QCOMPARE(boxes->shown.first().text, QStringLiteral("Send command on Pump 2?"));
        QCOMPARE(text_of(run_ticks(*panel, 1)), sent);
    }

    void reports_are_scaled_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("code");
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("text");
        QTest::newRow("current") << 14 << 145 << 123 << "current_ld_label"
                                 << "12.3 mA";
        QTest::newRow("negative temperature") << 14 << 146 << -15 << "temp_label"
                                              << "-1.5 °C";
        QTest::newRow("power") << 14 << 148 << 57 << "power_label"
                               << "5.7 mW";
        QTest::newRow("mode") << 14 << 164 << 2 << "mode_label"
                              << "External TTL";
        QTest::newRow("emission") << 14 << 144 << 1 << "power_state_label"
                                  << "ON";
        QTest::newRow("precision current /10000") << 15 << 145 << 123456 << "current_ld_label"
                                                  << "12.35 mA";
        QTest::newRow("precision temperature") << 15 << 146 << 255000 << "temp_label"
                                               << "25.50 °C";
        QTest::newRow("precision power /10") << 15 << 148 << 123 << "power_label"
                                             << "12.30 mW";
        QTest::newRow("precision mode") << 15 << 164 << 3 << "mode_label"
                                        << "Const.Power";
    }
    void reports_are_scaled() {
        QFETCH(int, type);
        QFETCH(int, code);
        QFETCH(int, value);
        QFETCH(QString, label);
        QFETCH(QString, text);
        auto panel = make_panel(type);
        panel->sl_parsed_data_received(code, value);
        QCOMPARE(label_text(*panel, qPrintable(label)), text);
    }

    void mode_3_switches_the_main_setpoint_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<QStringList>("current_limits");  // max, min labels
        QTest::addColumn<QStringList>("power_limits");
        QTest::newRow("cw") << 14 << QStringList{"1000.0", "100.0"} << QStringList{"50.00", "1.00"};
        QTest::newRow("precision")
            << 15 << QStringList{"1000.00", "100.00"} << QStringList{"50.00", "1.00"};
    }
    void mode_3_switches_the_main_setpoint() {
        QFETCH(int, type);
        QFETCH(QStringList, current_limits);
        QFETCH(QStringList, power_limits);
        auto panel = make_panel(type);
        report_known(*panel, raw_for(type));
        panel->sl_parsed_data_received(164, 0);
        auto *spin = child<QDoubleSpinBox>(*panel, "spin");
        QCOMPARE(label_text(*panel, "spin_label"), QStringLiteral("Drive Current"));
        QCOMPARE(spin->suffix(), QStringLiteral(" mA"));
        QCOMPARE(spin->maximum(), 1000.0);
        QCOMPARE(spin->minimum(), 100.0);
        QCOMPARE(label_text(*panel, "curr_max_label"), current_limits[0]);
        QCOMPARE(label_text(*panel, "curr_min_label"), current_limits[1]);

        panel->sl_parsed_data_received(164, 3);
        QCOMPARE(label_text(*panel, "spin_label"), QStringLiteral("Optical Power"));
        QCOMPARE(spin->suffix(), QStringLiteral(" mW"));
        QCOMPARE(spin->maximum(), 50.0);
        QCOMPARE(spin->minimum(), 1.0);
        QCOMPARE(label_text(*panel, "curr_max_label"), power_limits[0]);
        QCOMPARE(label_text(*panel, "curr_min_label"), power_limits[1]);
        // A reported mode is shown, never sent back.
        QCOMPARE(panel->queued_commands(), 0);

        panel->sl_parsed_data_received(164, 1);
        QCOMPARE(label_text(*panel, "spin_label"), QStringLiteral("Drive Current"));
        QCOMPARE(spin->suffix(), QStringLiteral(" mA"));
        QCOMPARE(spin->maximum(), 1000.0);
    }

    // Type 34 has lost the two power limits, and its limits are still read by position.
    void type_34_reads_limits_by_position() {
        auto panel = make_panel(34);
        QStringList expected = full_labels;
        expected.removeAt(3);
        expected.removeAt(3);
        QCOMPARE(labels_of(panel->parameters()), expected);

        report_known(*panel, cw_raw());
        auto *spin = child<QDoubleSpinBox>(*panel, "spin");
        auto *spin_temp = child<QDoubleSpinBox>(*panel, "spin_temp");
        QCOMPARE(spin->maximum(), 1000.0);
        QCOMPARE(spin->minimum(), 100.0);
        // Positions 5 and 6 now hold "Resistance at 25°C, Ohm" and "Thermistor beta".
        QCOMPARE(spin_temp->maximum(), 10000.0);
        QCOMPARE(spin_temp->minimum(), 3950.0);
        QCOMPARE(label_text(*panel, "temp_max_label"), QStringLiteral("10000.0"));
        QCOMPARE(label_text(*panel, "temp_min_label"), QStringLiteral("3950.0"));
        // In mode 3, positions 3 and 4: the temperature limits.
        panel->sl_parsed_data_received(164, 3);
        QCOMPARE(spin->maximum(), 30.0);
        QCOMPARE(spin->minimum(), 15.0);
    }

    void mode_widgets_by_type_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("shown");
        QTest::newRow("14") << 14 << true;
        QTest::newRow("34") << 34 << false;
        QTest::newRow("38") << 38 << true;
    }
    void mode_widgets_by_type() {
        QFETCH(int, type);
        QFETCH(bool, shown);
        auto panel = make_panel(type);
        for (const char *name : {"mode", "mode_title", "mode_label"}) {
            QCOMPARE(child<QWidget>(*panel, name)->isHidden(), !shown);
        }
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
        report_known(*panel, cw_raw());
        panel->on_toolButton_clicked();
        auto *spin = panel->configuration_dialog()->findChild<QDoubleSpinBox *>(row);
        QVERIFY(spin);
        for (int i = 0; i < steps; ++i) {
            QTest::keyClick(spin, Qt::Key_Up);
        }
        QCOMPARE(text_of(run_ticks(*panel, sent.count(' ') + 1)), sent);
        QVERIFY(boxes->shown.isEmpty());
    }

    void alarm_details_data() {
        QTest::addColumn<int>("word");
        QTest::addColumn<QString>("text");
        const QString bit8 =
            "Output voltage is higher than 80% of input voltage, \nSOLUTION: increase the input "
            "voltage\n";
        QTest::newRow("bit 8 alone, its own line break") << 0x100 << bit8;
        QTest::newRow("bits 0 and 8") << 0x101 << "flag_Rebooted\n" + bit8;
        QTest::newRow("bits 1, 3, 9")
            << 0x20A << "flag_ALARM_INTERLOCK\nflag_OverCurrent\nOutput power is close to MAX\n";
        QTest::newRow("bit 12 has no text") << 0x1001 << "flag_Rebooted\n";
        QTest::newRow("bits above 15 ignored") << 0x10004 << "flag_Overtemp\n";
    }
    void alarm_details() {
        QFETCH(int, word);
        QFETCH(QString, text);
        auto panel = make_panel(14);
        auto *alarm = child<QLabel>(*panel, "l_alarm");
        auto *details = child<QPushButton>(*panel, "pb_alarm");
        QVERIFY(alarm->isHidden());
        QVERIFY(details->isHidden());

        panel->sl_parsed_data_received(176, word);
        QVERIFY(!alarm->isHidden());
        QVERIFY(!details->isHidden());
        QCOMPARE(alarm->text(), QStringLiteral("Alarm!!!"));
        boxes->expect(QStringLiteral("WARNING"), QMessageBox::Ok);
        details->click();
        QCOMPARE(boxes->shown.size(), 1);
        QCOMPARE(boxes->shown.first().text, text);
        QCOMPARE(boxes->shown.first().buttons, QMessageBox::Ok);
        // Alarms are shown, not acted on.
        QCOMPARE(panel->queued_commands(), 0);

        panel->sl_parsed_data_received(176, 0);
        QVERIFY(alarm->isHidden());
        QVERIFY(details->isHidden());
    }

    void precision_panel_has_no_alarm_display() {
        auto panel = make_panel(15);
        QVERIFY(!panel->findChild<QWidget *>(QStringLiteral("l_alarm")));
        QVERIFY(!panel->findChild<QWidget *>(QStringLiteral("pb_alarm")));
    }

    void configuration_button_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("all_known");
        QTest::addColumn<int>("emission");  // -1: not reported
        QTest::addColumn<int>("tec");
        QTest::addColumn<bool>("enabled");
        QTest::newRow("everything right") << 14 << true << 0 << 0 << true;
        QTest::newRow("a parameter unknown") << 14 << false << 0 << 0 << false;
        QTest::newRow("emission on") << 14 << true << 1 << 0 << false;
        QTest::newRow("tec on") << 14 << true << 0 << 1 << false;
        QTest::newRow("tec not reported") << 14 << true << 0 << -1 << false;
        QTest::newRow("precision, everything right") << 15 << true << 0 << 0 << true;
        QTest::newRow("precision, tec on") << 15 << true << -1 << 1 << false;
    }
    void configuration_button() {
        QFETCH(int, type);
        QFETCH(bool, all_known);
        QFETCH(int, emission);
        QFETCH(int, tec);
        QFETCH(bool, enabled);
        auto panel = make_panel(type);
        raw_table table = raw_for(type);
        if (all_known) {
            report_known(*panel, table);
        } else {
            const parameter_list parameters = panel->parameters();
            for (int i = 1; i < parameters.size(); ++i) {
                panel->sl_parsed_data_received(parameters[i].code + 128, table[parameters[i].code]);
            }
        }
        if (emission >= 0) {
            panel->sl_parsed_data_received(144, emission);
        }
        if (tec >= 0) {
            panel->sl_parsed_data_received(161, tec);
        }
        QCOMPARE(child<QToolButton>(*panel, "toolButton")->isEnabled(), enabled);
    }

    void emission_report_sets_both_switches() {
        auto panel = make_panel(14);
        QSignalSpy emission(panel.get(), &device_panel::send_emission);
        auto *body = child<QPushButton>(*panel, "on_off_button");
        auto *header = child<QPushButton>(*panel, "start_stop_button_alt");
        panel->sl_parsed_data_received(144, 1);
        QVERIFY(body->isChecked());
        QVERIFY(header->isChecked());
        QCOMPARE(label_text(*panel, "power_state_label"), QStringLiteral("ON"));
        panel->sl_parsed_data_received(144, 0);
        QVERIFY(!body->isChecked());
        QVERIFY(!header->isChecked());
        QCOMPARE(label_text(*panel, "power_state_label"), QStringLiteral("OFF"));
        QCOMPARE(emission.size(), 2);
        QCOMPARE(emission[0][0].toInt(), 1);
        QCOMPARE(emission[1][0].toInt(), 0);
        // Reflecting a report sends nothing.
        QCOMPARE(panel->queued_commands(), 0);
    }

    void operator_controls_queue_commands() {
        auto panel = make_panel(14);
        child<QPushButton>(*panel, "on_off_button")->click();
        child<QPushButton>(*panel, "start_stop_button_alt")->click();
        child<QCheckBox>(*panel, "chb_tec")->click();
        QTest::keyClick(child<QComboBox>(*panel, "mode"), Qt::Key_Down);
        QCOMPARE(text_of(run_ticks(*panel, 5)),
                 QStringLiteral("(16,1) (16,1) (33,1) (36,1) (144,0)"));
        QVERIFY(boxes->shown.isEmpty());
    }

    void step_size_sets_the_main_step() {
        auto panel = make_panel(14);
        auto *spin = child<QDoubleSpinBox>(*panel, "spin");
        auto *steps = child<QComboBox>(*panel, "step_size_combo");
        QCOMPARE(steps->currentText(), QStringLiteral("0.1"));
        QCOMPARE(spin->singleStep(), 0.1);
        QTest::keyClick(steps, Qt::Key_Down);
        QTest::keyClick(steps, Qt::Key_Down);
        QCOMPARE(spin->singleStep(), 10.0);
        QCOMPARE(panel->queued_commands(), 0);
    }

    void indicators_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("current");
        QTest::addColumn<int>("temperature");
        QTest::addColumn<int>("current_bar");
        QTest::addColumn<int>("temperature_bar");
        QTest::newRow("cw middle") << 14 << 5500 << 225 << 50 << 50;
        QTest::newRow("cw truncated") << 14 << 1089 << 157 << 0 << 4;
        QTest::newRow("precision middle") << 15 << 5500000 << 225000 << 50 << 50;
        QTest::newRow("above the range") << 14 << 20000 << 400 << 100 << 100;
    }
    void indicators() {
        QFETCH(int, type);
        QFETCH(int, current);
        QFETCH(int, temperature);
        QFETCH(int, current_bar);
        QFETCH(int, temperature_bar);
        auto panel = make_panel(type);
        report_known(*panel, raw_for(type));
        panel->sl_parsed_data_received(145, current);
        panel->sl_parsed_data_received(146, temperature);
        QCOMPARE(child<QProgressBar>(*panel, "indicator")->value(), current_bar);
        QCOMPARE(child<QProgressBar>(*panel, "tem_indicator")->value(), temperature_bar);
    }

    // The set-points are loaded from the first complete set of reports, then left alone.
    void first_sync_data() {
        QTest::addColumn<int>("mode");
        QTest::addColumn<double>("main");
        QTest::newRow("current mode") << 0 << 500.0;
        QTest::newRow("constant power") << 3 << 30.0;
    }
    void first_sync() {
        QFETCH(int, mode);
        QFETCH(double, main);
        auto panel = make_panel(14);
        auto *spin = child<QDoubleSpinBox>(*panel, "spin");
        auto *spin_temp = child<QDoubleSpinBox>(*panel, "spin_temp");
        auto *modes = child<QComboBox>(*panel, "mode");
        panel->sl_parsed_data_received(145, 5000);
        panel->sl_parsed_data_received(148, 300);
        panel->sl_parsed_data_received(164, mode);
        QCOMPARE(spin->value(), 0.0);  // parameters not known yet

        report_known(*panel, cw_raw());
        QCOMPARE(spin->value(), main);
        QCOMPARE(modes->currentIndex(), mode);
        // The temperature is still unknown: it stays at its (new) minimum, and the load is
        // repeated on the next report.
        QCOMPARE(spin_temp->value(), spin_temp->minimum());

        panel->sl_parsed_data_received(146, 200);
        QCOMPARE(spin_temp->value(), 20.0);
        // Complete: later reports leave the set-points alone.
        panel->sl_parsed_data_received(145, 6000);
        panel->sl_parsed_data_received(148, 400);
        panel->sl_parsed_data_received(146, 250);
        QCOMPARE(spin->value(), main);
        QCOMPARE(spin_temp->value(), 20.0);
    }

    void collapsed_header_summary_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("summary");
        QTest::newRow("cw") << 14 << "Seed (500.0/499.5 mA 20.0/20.1 °C)";
        QTest::newRow("precision") << 15 << "Seed (500.00/499.50 mA 20.00/20.10 °C)";
    }
    void collapsed_header_summary() {
        QFETCH(int, type);
        QFETCH(QString, summary);
        auto panel = make_panel(type);
        report_known(*panel, raw_for(type));
        panel->sl_parsed_data_received(164, 0);
        const bool precise = type == 15;
        panel->sl_parsed_data_received(145, precise ? 4995000 : 4995);
        panel->sl_parsed_data_received(146, precise ? 201000 : 201);
        auto *spin = child<QDoubleSpinBox>(*panel, "spin");
        auto *spin_temp = child<QDoubleSpinBox>(*panel, "spin_temp");
        spin->setValue(500.0);
        spin_temp->setValue(20.0);
        boxes->expect(QStringLiteral("Conformation"), QMessageBox::Yes);
        boxes->expect(QStringLiteral("Conformation"), QMessageBox::Yes);
        QTest::keyClick(spin, Qt::Key_Return);
        QTest::keyClick(spin_temp, Qt::Key_Return);

        auto *tab = child<QPushButton>(*panel, "laser_tab_button");
        tab->click();
        QCOMPARE(tab->text(), summary);
        tab->click();
        QCOMPARE(tab->text(), QStringLiteral("Seed"));
    }
};

QTEST_MAIN(test_panel_cw)
#include "test_panel_cw.moc"
