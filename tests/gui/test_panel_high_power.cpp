// The high-power driver panels: `zema_panel` (type 18), the compact `zema120_panel` (27) and
// `zema240_panel` (25), driven through their public contract (reports in, ticks out).
#include "config_dialog.h"
#include "test_panel_support.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QToolButton>

using namespace panel_test;

namespace {

template <class W = QWidget>
W *child(QObject &parent, const QString &name) {
    W *widget = parent.findChild<W *>(name);
    if (!widget) {
        qFatal("no %s", qPrintable(name));
    }
    return widget;
}

// The texts of those of `names` that the panel has, separated by "|".
QString texts(QObject &panel, const QStringList &names) {
    QStringList shown;
    for (const QString &name : names) {
        if (auto *label = panel.findChild<QLabel *>(name)) {
            shown << label->text();
        }
    }
    return shown.join('|');
}

// The five rows as a device reports them, "Max current, A" at `max_raw` (0.01 A), the rest 1000.
void report_rows(panel_base &panel, long max_raw = 10000) {
    report_parameters(panel, [max_raw](int row) { return row == 1 ? max_raw : 1000L; });
}

}  // namespace

class test_panel_high_power : public boxed_test {
    Q_OBJECT

private slots:
    // Enter and Yes on a widget after typing: the first tick after, then the header once collapsed.
    void enter_sends_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("entry");  // "widget typed => sent header"
        const QString none = " => (144,0) S (n/a/12.34 A 25.1 °C)";
        QTest::newRow("18") << 18 << "spin 512.37 => (17,51237) S (512.4/12.34 A 25.1 °C)";
        QTest::newRow("27") << 27 << "spin 0.29 => (17,29) S (0.3/12.34 A 25.1 °C)";
        QTest::newRow("25 mA") << 25 << "spin 1.234 => (17,1234) S (1.2/12.34 A 25.1 °C)";
        QTest::newRow("25 truncated") << 25 << "dsb_temp 20.55 => (18,205) S (n/a/12.34 A 25.1 °C)";
        QTest::newRow("18 mode asks only") << 18 << "mode" + none;
        QTest::newRow("27 step asks only") << 27 << "step_size_combo" + none;
    }
    void enter_sends() {
        QFETCH(int, type);
        QFETCH(QString, entry);
        const QStringList input = entry.section(" => ", 0, 0).split(' ');
        auto panel = make_panel(type, "S");
        panel->sl_parsed_data_received(145, type == 25 ? 12340 : 1234);
        panel->sl_parsed_data_received(146, 251);
        QWidget *target = child(*panel, input.first());
        if (auto *spin = qobject_cast<QDoubleSpinBox *>(target)) {
            spin->clear();
            QTest::keyClicks(spin, input.last());
        }
        boxes->expect("Conformation", QMessageBox::Yes);
        QTest::keyClick(target, Qt::Key_Return);
        const QString sent = text_of(run_ticks(*panel, 1));
        panel->on_laser_tab_button_clicked();
        QCOMPARE(sent + ' ' + child<QPushButton>(*panel, "laser_tab_button")->text(),
                 entry.section(" => ", 1));
    }

    // Value labels, limits, bars and the set points loaded once every row is known (then left
    // alone): the set point runs from 0.1 A to the maximum row, the current bar from 0 to the
    // maximum less 0.1 A, the temperature bar to 35 °C; power = U out × I. The alarm widgets show
    // while the word is non-zero; "Clear" sends (41, 1) twice.
    void display_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<QVector<int>>("reports");  // 145, 146, 148, 166, 164, 168, 144, 176
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("alarm");
        QTest::newRow("18")
            << 18 << QVector<int>{5000, 175, 480, 100, 3, 0, 1, 0x0101}
            << "ON|50.00 A|17.5 °C|48.0 V|10.0 V|500.0 W|Ext. TTL+ Analog|100.1|0.1|"
               "Drive Current|0.1-100.1 A|bars 50 50|set 50 3 -1"
            << "flag_Rebooted\nOutput voltage is higher than 80% of input voltage, "
               "\nSOLUTION: increase the input voltage\n";
        QTest::newRow("25 mA, bar truncated")
            << 25 << QVector<int>{50000, 349, 240, 312, 0, 291, 0, 0}
            << "OFF|50.00 A|34.9 °C|24.0 V|31.2 V|1560.0 W|Const.Current|29.1 °C|100.1|0.1|"
               "Drive Current|0.1-100.1 A|bars 50 99|set 50 0 34.9"
            << "";
        QTest::newRow("27 below the scale, bit 12 unnamed")
            << 27 << QVector<int>{1201, -15, 480, 100, 0, 0, 1, 0x1200}
            << "ON|12.01 A|-1.5 °C|48.0 V|10.0 V|120.1 W|100.1|0.1|Drive Current|0.1-100.1 A|"
               "bars 12 0|set 12.01 -1 -1"
            << "Output power is close to MAX\n";
    }
    void display() {
        QFETCH(int, type);
        QFETCH(QVector<int>, reports);
        QFETCH(QString, alarm);
        auto panel = make_panel(type);
        const int codes[] = {145, 146, 148, 166, 164, 168, 144, 176};
        for (int i = 0; i < reports.size(); ++i) {
            panel->sl_parsed_data_received(codes[i], reports[i]);
        }
        report_rows(*panel, 10010);
        auto *spin = child<QDoubleSpinBox>(*panel, "spin");
        const auto *mode = panel->findChild<QComboBox *>("mode");
        const auto *temperature = panel->findChild<QDoubleSpinBox *>("dsb_temp");
        QTEST(texts(*panel, {"power_state_label", "current_ld_label", "temp_label", "l_input_volt",
                             "l_output_volt", "power_label", "mode_label", "l_temp_out",
                             "curr_max_label", "curr_min_label", "spin_label"}) +
                  QString("|%1-%2%3|bars %4 %5|set %6 %7 %8")
                      .arg(spin->minimum())
                      .arg(spin->maximum())
                      .arg(spin->suffix())
                      .arg(child<QProgressBar>(*panel, "indicator")->value())
                      .arg(child<QProgressBar>(*panel, "tem_indicator")->value())
                      .arg(spin->value())
                      .arg(mode ? mode->currentIndex() : -1)
                      .arg(temperature ? temperature->value() : -1),
              "shown");
        const double loaded = spin->value();
        panel->sl_parsed_data_received(145, 7);  // after the first load: not loaded again
        QCOMPARE(spin->value(), loaded);
        for (const char *name : {"l_alarm", "pb_alarm", "pb_alarm_clear"}) {
            QCOMPARE(child(*panel, name)->isHidden(), alarm.isEmpty());
        }
        if (!alarm.isEmpty()) {
            boxes->expect("WARNING", QMessageBox::Ok);
            child<QPushButton>(*panel, "pb_alarm")->click();
            QCOMPARE(boxes->shown.last().text, alarm);
            child<QPushButton>(*panel, "pb_alarm_clear")->click();
            QCOMPARE(text_of(run_ticks(*panel, 2)), QString("(41,1) (41,1)"));
        }
    }

    // Model; a poll cycle with every row known and the next cycle's first tick; step sizes. The
    // dialog names the address 0xFA; a changed row is written at once except on the compact
    // driver, which writes only on "Write"; "Write" ends with (51, 1) twice. A new mode makes
    // every row unknown: they are read again before the dialog may open.
    void described_and_configured_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("cycle");
        const QString in = "(144,0) (145,0) (146,0) ";
        QTest::newRow("18") << 18 << "ZEMA-1200" << in + "(164,0) (176,0) (148,0) (166,0) (144,0)";
        QTest::newRow("27 idles at 6")
            << 27 << "ZEMA-120 driver" << in + "(176,0) (148,0) (166,0) - (144,0)";
        QTest::newRow("25") << 25 << "ZEMA-240"
                            << in + "(164,0) (176,0) (148,0) (166,0) (168,0) (144,0)";
    }
    void described_and_configured() {
        QFETCH(int, type);
        QFETCH(QString, cycle);
        auto panel = make_panel(type);
        QTEST(panel->type_name(), "model");
        auto *configure = child<QToolButton>(*panel, "toolButton");
        report_rows(*panel);
        QVERIFY(configure->isEnabled());
        QCOMPARE(text_of(run_ticks(*panel, cycle.count(' ') + 1)), cycle);
        auto *spin = child<QDoubleSpinBox>(*panel, "spin");
        QCOMPARE(spin->singleStep(), 0.01);
        for (const double step : {0.1, 1.0}) {
            QTest::keyClick(child(*panel, "step_size_combo"), Qt::Key_Down);
            QCOMPARE(spin->singleStep(), step);
        }

        panel->on_toolButton_clicked();
        config_dialog *dialog = panel->configuration_dialog();
        QVERIFY(texts(*dialog, {"hint_label"}).contains("has permanent CAN address 0xFA."));
        QTest::keyClick(child(*dialog, "coef. P"), Qt::Key_Up);
        QCOMPARE(text_of(run_ticks(*panel, panel->queued_commands())),
                 QString(type == 27 ? "" : "(24,2000) (152,0)"));
        dialog->write_button()->click();
        const QString written = text_of(run_ticks(*panel, panel->queued_commands()));
        QVERIFY2(written.startsWith("(81,1000) (37,10000) (24,2000) ") &&
                     written.endsWith(" (153,0) (51,1) (51,1)"),
                 qPrintable(written));
        if (type == 27) {
            return;  // no modes
        }
        QTest::keyClick(child(*panel, "mode"), Qt::Key_Down);
        QVERIFY(!configure->isEnabled());
        const QString sent = text_of(run_ticks(*panel, cycle.count(' ') + 6));
        QVERIFY2(sent.startsWith("(36,1) (145,0)") &&
                     sent.endsWith(" (209,0) (165,0) (152,0) (147,0) (153,0) (144,0)"),
                 qPrintable(sent));
        report_rows(*panel);
        QVERIFY(configure->isEnabled());
    }
};

QTEST_MAIN(test_panel_high_power)
#include "test_panel_high_power.moc"
