// What the panel framework promises every panel, checked on every registered panel type, plus the
// framework's scaling.
#include "config_dialog.h"
#include "scaling.h"
#include "test_panel_support.h"
#include "warning_log.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QSet>

#include <cmath>

using namespace panel_test;

namespace {

// A distinct, plausible raw value for the parameter at `position`.
long raw_value(int position) {
    return 1000 + 37 * position;
}

// What one full cycle of `panel` should send, built from its plan: each fixed position (silent
// ones and positions past the end of the list send nothing), then, when `with_unknown`, a read of
// each parameter in list order.
QVector<panel_command> expected_cycle(const panel_base &panel, bool with_unknown) {
    const poll_plan &plan = panel.plan();
    QVector<panel_command> cycle;
    for (int position = 0; position < plan.first_unknown_position(); ++position) {
        const int code =
            position < plan.read_codes.size() ? plan.read_codes[position] : poll_plan::silent;
        cycle.append(code == poll_plan::silent ? nothing : panel_command{code, 0});
    }
    if (with_unknown) {
        for (const parameter_record &record : panel.parameters()) {
            cycle.append({record.code + 128, 0});
        }
    }
    return cycle;
}

// Counts the paints and layout requests of a window and everything in it.
class event_counter : public QObject {
public:
    explicit event_counter(QWidget *window) : window_(window) {
        QCoreApplication::instance()->installEventFilter(this);
    }
    ~event_counter() override { QCoreApplication::instance()->removeEventFilter(this); }

    QStringList paints;
    QStringList layouts;
    QString text() const { return (paints + layouts).join(QLatin1Char(' ')); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override {
        auto *widget = qobject_cast<QWidget *>(watched);
        if (widget && (widget == window_ || window_->isAncestorOf(widget))) {
            const QString name = QString::fromLatin1(widget->metaObject()->className()) +
                                 QLatin1Char(':') + widget->objectName();
            if (event->type() == QEvent::Paint) {
                paints.append(QStringLiteral("paint ") + name);
            } else if (event->type() == QEvent::LayoutRequest) {
                layouts.append(QStringLiteral("layout ") + name);
            }
        }
        return false;
    }

private:
    QWidget *window_;
};

}  // namespace

class test_panel_framework : public boxed_test {
    Q_OBJECT

    void add_panel_types() {
        QTest::addColumn<int>("type");
        for (int type : panel_types()) {
            QTest::newRow(qPrintable(QStringLiteral("type %1").arg(type))) << type;
        }
    }

private slots:
    // --- Construction ---------------------------------------------------------------------------

    void building_prints_no_warning_data() { add_panel_types(); }
    void building_prints_no_warning() {
        QFETCH(int, type);
        // Placed in a window as the program places it (a top-level window of its own would make
        // the offscreen platform itself warn).
        QWidget host;
        warning_log warnings;
        {
            auto panel = make_panel(type, QStringLiteral("Seed"), &host);
            QVERIFY(panel);
            panel->on_laser_tab_button_clicked();
            panel->on_laser_tab_button_clicked();
        }
        const QString differ = warnings.differences({});
        QVERIFY2(differ.isEmpty(), qPrintable(differ));
    }

    // --- Poll cycle
    // -------------------------------------------------------------------------------

    void unknown_rows_are_read_once_per_cycle_data() { add_panel_types(); }
    void unknown_rows_are_read_once_per_cycle() {
        QFETCH(int, type);
        auto panel = make_panel(type);
        const QVector<panel_command> with_unknown = expected_cycle(*panel, true);
        QCOMPARE(text_of(run_ticks(*panel, with_unknown.size())), text_of(with_unknown));
        QCOMPARE(text_of(run_ticks(*panel, with_unknown.size())), text_of(with_unknown));

        report_parameters(*panel, raw_value);
        const QVector<panel_command> fixed = expected_cycle(*panel, false);
        QCOMPARE(text_of(run_ticks(*panel, 2 * fixed.size())), text_of(fixed + fixed));
    }

    // A row reported while the index points at the last unknown row leaves the index past the
    // end: that tick sends nothing and the cycle starts again.
    void index_past_the_unknown_rows_wraps_data() { add_panel_types(); }
    void index_past_the_unknown_rows_wraps() {
        QFETCH(int, type);
        auto panel = make_panel(type);
        const QVector<panel_command> fixed = expected_cycle(*panel, false);
        const int rows = panel->parameters().size();
        if (rows == 0) {
            QSKIP("no parameters");
        }
        run_ticks(*panel, fixed.size() + rows - 1);
        const parameter_list parameters = panel->parameters();
        for (int i = 0; i < qMin(2, rows); ++i) {
            panel->sl_parsed_data_received(parameters[i].code + 128, raw_value(i));
        }
        QCOMPARE(text_of(run_ticks(*panel, 2)), text_of({nothing, fixed.first()}));
    }

    // --- Queue and confirmation -----------------------------------------------------------------

    void confirmed_setpoints_go_before_polling_data() { add_panel_types(); }
    void confirmed_setpoints_go_before_polling() {
        QFETCH(int, type);
        auto panel = make_panel(type, QStringLiteral("Seed laser"));
        auto twin = make_panel(type, QStringLiteral("Seed laser"));
        const QList<QWidget *> setpoints = panel->setpoint_widgets();
        if (setpoints.isEmpty()) {
            QSKIP("no set-points");
        }
        run_ticks(*panel, 2);
        run_ticks(*twin, 2);

        boxes->expect(QStringLiteral("Conformation"), QMessageBox::Yes);
        boxes->expect(QStringLiteral("Conformation"), QMessageBox::Yes);
        QTest::keyClick(setpoints.first(), Qt::Key_Return);
        QTest::keyClick(setpoints.first(), Qt::Key_Enter);
        QCOMPARE(boxes->shown.size(), 2);
        QCOMPARE(boxes->shown.first().text, QStringLiteral("Send command on Seed laser?"));
        QCOMPARE(boxes->shown.first().buttons, QMessageBox::Yes | QMessageBox::No);
        QCOMPARE(boxes->shown.first().icon, QMessageBox::Information);

        const QVector<panel_command> sent = run_ticks(*panel, 5);
        QVERIFY2(sent[0].code >= 0 && sent[0].code < 128, qPrintable(text_of(sent)));
        QCOMPARE(sent[1], sent[0]);
        // Polling resumes where it was.
        QCOMPARE(text_of(sent.mid(2)), text_of(run_ticks(*twin, 3)));
    }

    // A set-point written by key (scripts, restores) queues exactly what the operator's Enter and
    // Yes on the same widget queue; a value outside the widget's limits or an unknown key queues
    // nothing. Keys are stable identifiers, unique within the panel.
    void keyed_setpoints_send_as_the_operator_does_data() { add_panel_types(); }
    void keyed_setpoints_send_as_the_operator_does() {
        QFETCH(int, type);
        auto panel = make_panel(type);
        auto twin = make_panel(type);
        const QRegularExpression key_form(QStringLiteral("^[a-z][a-z0-9_]*$"));
        QSet<QString> keys;
        for (const reading_spec &reading : panel->readings()) {
            QVERIFY2(key_form.match(reading.key).hasMatch(), qPrintable(reading.quantity));
        }
        for (const panel_base::setpoint_entry &entry : panel->setpoints()) {
            QVERIFY2(key_form.match(entry.key).hasMatch(), qPrintable(entry.widget));
            QVERIFY2(!keys.contains(entry.key), qPrintable(entry.key));
            keys.insert(entry.key);
            auto *spin = twin->findChild<QDoubleSpinBox *>(entry.widget);
            QVERIFY2(
                spin && spin->isEnabled() == panel->findChild<QWidget *>(entry.widget)->isEnabled(),
                qPrintable(entry.widget));
            if (!spin->isEnabled()) {
                QCOMPARE(panel->write_setpoint(entry.key, entry.minimum),
                         panel_base::setpoint_result::not_allowed);
                continue;
            }
            QCOMPARE(panel->write_setpoint(entry.key, entry.maximum + 1),
                     panel_base::setpoint_result::out_of_range);
            QCOMPARE(panel->queued_commands(), 0);
            // A value with more decimals than the widget shows, inside its limits.
            const double value = entry.minimum + (entry.maximum - entry.minimum) * 0.3719;
            QCOMPARE(panel->write_setpoint(entry.key, value), panel_base::setpoint_result::queued);
            // The widget took the value as typed text would be taken (its decimals, its grid).
            const double taken = *panel->setpoint_value(entry.key);
            QVERIFY2(std::abs(taken - value) <= 0.1 + std::pow(10, -entry.decimals),
                     qPrintable(entry.key));
            spin->setValue(taken);
            boxes->expect(QStringLiteral("Conformation"), QMessageBox::Yes);
            QTest::keyClick(spin, Qt::Key_Return);
            QCOMPARE(text_of(run_ticks(*panel, 1)), text_of(run_ticks(*twin, 1)));
        }
        QCOMPARE(panel->write_setpoint(QStringLiteral("no_such_key"), 1),
                 panel_base::setpoint_result::unknown_key);
        QCOMPARE(panel->queued_commands(), 0);
    }

    void answering_no_sends_nothing_data() { add_panel_types(); }
    void answering_no_sends_nothing() {
        QFETCH(int, type);
        auto panel = make_panel(type);
        auto twin = make_panel(type);
        const QList<QWidget *> setpoints = panel->setpoint_widgets();
        for (QWidget *setpoint : setpoints) {
            boxes->expect(QStringLiteral("Conformation"), QMessageBox::No);
            QTest::keyClick(setpoint, Qt::Key_Return);
        }
        QCOMPARE(panel->queued_commands(), 0);
        const int ticks = expected_cycle(*panel, true).size();
        QCOMPARE(text_of(run_ticks(*panel, ticks)), text_of(run_ticks(*twin, ticks)));
    }

    // Other keys on a set-point ask nothing.
    void typing_asks_nothing_data() { add_panel_types(); }
    void typing_asks_nothing() {
        QFETCH(int, type);
        auto panel = make_panel(type);
        for (QWidget *setpoint : panel->setpoint_widgets()) {
            QTest::keyClicks(setpoint, QStringLiteral("12"));
            QTest::keyClick(setpoint, Qt::Key_Up);
        }
        QVERIFY(boxes->shown.isEmpty());
        QCOMPARE(panel->queued_commands(), 0);
    }

    // --- Wheel
    // ------------------------------------------------------------------------------------

    void wheel_changes_nothing_data() { add_panel_types(); }
    void wheel_changes_nothing() {
        QFETCH(int, type);
        auto panel = make_panel(type);
        const QList<QWidget *> watched = panel->wheel_blocked_widgets();
        QVERIFY(!watched.isEmpty());
        for (QWidget *widget : watched) {
            if (auto *spin = qobject_cast<QDoubleSpinBox *>(widget)) {
                spin->setValue(spin->minimum());
                turn_wheel(spin, 1);
                QCOMPARE(spin->value(), spin->minimum());
            } else if (auto *combo = qobject_cast<QComboBox *>(widget)) {
                combo->setCurrentIndex(0);
                turn_wheel(combo, -1);
                QCOMPARE(combo->currentIndex(), 0);
            } else {
                turn_wheel(widget, 1);
            }
        }
        QCOMPARE(panel->queued_commands(), 0);
    }

    // --- Indicators
    // -------------------------------------------------------------------------------

    // Limits not yet apart (maximum equal to minimum) leave every bar within its range.
    void zero_span_keeps_the_bars_in_range_data() { add_panel_types(); }
    void zero_span_keeps_the_bars_in_range() {
        QFETCH(int, type);
        auto panel = make_panel(type);
        report_parameters(*panel, [](int) { return 500L; });
        for (int code : panel->plan().read_codes) {
            if (code != poll_plan::silent) {
                panel->sl_parsed_data_received(code, 250);
            }
        }
        const QList<QProgressBar *> bars = panel->findChildren<QProgressBar *>();
        QVERIFY(!bars.isEmpty());
        for (QProgressBar *bar : bars) {
            QVERIFY2(bar->value() >= bar->minimum() - 1 && bar->value() <= bar->maximum(),
                     qPrintable(bar->objectName() + QStringLiteral(" = ") +
                                QString::number(bar->value())));
        }
    }

    // --- Cheap updates and observers -------------------------------------------------------------

    // Reports that repeat what the panel shows repaint and relayout nothing; a changed reading
    // repaints but never relayouts the panel.
    void steady_reports_change_nothing_data() { add_panel_types(); }
    void steady_reports_change_nothing() {
        QFETCH(int, type);
        QWidget host;
        auto panel = make_panel(type, QStringLiteral("Seed"), &host);
        host.resize(900, 600);
        host.show();
        QVERIFY(QTest::qWaitForWindowExposed(&host));
        // 1: a valid mode, index or switch state for every panel. Each code once, as a device
        // reports it: a polled code that also reports a parameter keeps the parameter's value.
        QSet<int> parameter_reports;
        for (const parameter_record &record : panel->parameters()) {
            parameter_reports.insert(record.code + 128);
        }
        const auto report_all = [&panel, &parameter_reports] {
            report_parameters(*panel, raw_value);
            for (int code : panel->plan().read_codes) {
                if (code != poll_plan::silent && !parameter_reports.contains(code)) {
                    panel->sl_parsed_data_received(code, 1);
                }
            }
        };
        const auto report_readings = [&panel](long raw) {
            for (const reading_spec &reading : panel->readings()) {
                panel->sl_parsed_data_received(reading.code, raw);
            }
        };
        const auto settle = [] {
            for (int i = 0; i < 3; ++i) {
                QCoreApplication::sendPostedEvents();
                QCoreApplication::processEvents();
            }
        };
        report_all();
        report_all();  // first sync done
        settle();

        event_counter events(&host);
        report_all();
        settle();
        QCOMPARE(events.text(), QString());

        report_readings(300);
        settle();
        report_readings(301);
        settle();
        QCOMPARE(events.layouts, QStringList());
    }

    // --- Configuration dialog
    // ---------------------------------------------------------------------

    void dialog_rows_follow_the_parameters_data() { add_panel_types(); }
    void dialog_rows_follow_the_parameters() {
        QFETCH(int, type);
        auto panel = make_panel(type, QStringLiteral("Pump"));
        if (!panel->has_configuration_dialog()) {
            QSKIP("no configuration dialog");
        }
        // Every row but the last reported.
        const parameter_list parameters = panel->parameters();
        const int last = parameters.size() - 1;
        for (int i = 0; i < last; ++i) {
            panel->sl_parsed_data_received(parameters[i].code + 128, raw_value(i));
        }
        panel->on_toolButton_clicked();
        config_dialog *dialog = panel->configuration_dialog();
        QVERIFY(dialog);
        QCOMPARE(dialog->windowTitle(), QStringLiteral("Pump configuration"));
        QVERIFY(dialog->isModal());
        QCOMPARE(dialog->spin_boxes().size(), parameters.size());
        for (int i = 0; i < parameters.size(); ++i) {
            QCOMPARE(dialog->spin_boxes()[i]->objectName(), parameters[i].label);
            QCOMPARE(dialog->spin_boxes()[i]->decimals(), parameters[i].decimals);
            QCOMPARE(dialog->spin_boxes()[i]->singleStep(), parameters[i].step);
            const int decimals = parameters[i].decimals;
            QCOMPARE(dialog->value_labels()[i]->text(),
                     i < last
                         ? QString::number(raw_value(i) / scaling::pow10(decimals), 'f', decimals)
                         : panel->dialog_unknown_text());
        }
        // Building sends nothing.
        QCOMPARE(panel->queued_commands(), 0);

        // A later report reaches the open dialog's labels.
        panel->sl_parsed_data_received(parameters.last().code + 128, raw_value(last));
        QVERIFY(dialog->value_labels().last()->text() != panel->dialog_unknown_text());

        // Opening again builds a new dialog; closing deletes it.
        panel->on_toolButton_clicked();
        QVERIFY(panel->configuration_dialog() != nullptr);
        panel->configuration_dialog()->close_button()->click();
        QTRY_VERIFY(panel->configuration_dialog() == nullptr);
    }

    void write_sends_rows_reads_and_store_data() { add_panel_types(); }
    void write_sends_rows_reads_and_store() {
        QFETCH(int, type);
        auto panel = make_panel(type);
        if (!panel->has_configuration_dialog()) {
            QSKIP("no configuration dialog");
        }
        report_parameters(*panel, raw_value);
        panel->on_toolButton_clicked();
        QVERIFY(panel->configuration_dialog());
        panel->configuration_dialog()->write_button()->click();

        const parameter_list parameters = panel->parameters();
        QVector<panel_command> expected;
        for (int i = 0; i < parameters.size(); ++i) {
            expected.append({parameters[i].code, raw_value(i)});
        }
        for (const parameter_record &record : parameters) {
            expected.append({record.code + 128, 0});
        }
        expected += panel->store_commands();
        QCOMPARE(panel->queued_commands(), expected.size());
        QCOMPARE(text_of(run_ticks(*panel, expected.size())), text_of(expected));
        // Then polling again.
        QCOMPARE(text_of(run_ticks(*panel, 1)), text_of({expected_cycle(*panel, false).first()}));
    }

    // --- Header
    // -----------------------------------------------------------------------------------

    void header_collapses_with_a_summary_data() { add_panel_types(); }
    void header_collapses_with_a_summary() {
        QFETCH(int, type);
        auto panel = make_panel(type, QStringLiteral("Seed"));
        auto *tab = panel->findChild<QPushButton *>(QStringLiteral("laser_tab_button"));
        QVERIFY(tab);
        QCOMPARE(tab->text(), QStringLiteral("Seed"));
        QVERIFY(panel->body_shown());
        tab->click();
        QVERIFY(!panel->body_shown());
        QVERIFY2(tab->text().startsWith(QStringLiteral("Seed (")) && tab->text().endsWith(')'),
                 qPrintable(tab->text()));
        tab->click();
        QVERIFY(panel->body_shown());
        QCOMPARE(tab->text(), QStringLiteral("Seed"));
    }

    void name_label_shows_the_model_data() { add_panel_types(); }
    void name_label_shows_the_model() {
        QFETCH(int, type);
        auto panel = make_panel(type);
        auto *name = panel->findChild<QLabel *>(QStringLiteral("laser_name_label"));
        QVERIFY(name);
        QCOMPARE(name->text(), registry().find(type)->model);
        QCOMPARE(panel->type_name(), registry().find(type)->model);
    }

    // --- Pure parts
    // ---------------------------------------------------------------------------------

    void scaling_truncates_data() {
        QTest::addColumn<double>("value");
        QTest::addColumn<double>("scale");
        QTest::addColumn<int>("wire");
        QTest::newRow("0.29 mA in 0.1 mA") << 0.29 << 10.0 << 2;
        QTest::newRow("negative toward zero") << -0.29 << 10.0 << -2;
        QTest::newRow("4.35 shown is 435") << 4.35 << 100.0 << 435;
        QTest::newRow("coef 0.2 at 4 decimals") << 0.2 << 10000.0 << 2000;
        QTest::newRow("25.50 in 0.0001") << 25.5 << 10000.0 << 255000;
        QTest::newRow("0.0125 V in mV") << 0.0125 << 1000.0 << 12;
        QTest::newRow("32-bit word") << 4294967295.0 << 1.0 << -1;
    }
    void scaling_truncates() {
        QFETCH(double, value);
        QFETCH(double, scale);
        QFETCH(int, wire);
        QCOMPARE(scaling::to_wire(value, scale), wire);
    }

    void percent_data() {
        QTest::addColumn<double>("value");
        QTest::addColumn<double>("low");
        QTest::addColumn<double>("high");
        QTest::addColumn<int>("share");  // -1000: none
        QTest::newRow("middle") << 20.0 << 10.0 << 30.0 << 50;
        QTest::newRow("truncated") << 12.99 << 10.0 << 20.0 << 29;
        QTest::newRow("below") << 5.0 << 10.0 << 20.0 << -50;
        QTest::newRow("zero span") << 5.0 << 10.0 << 10.0 << -1000;
        QTest::newRow("huge") << 1e300 << 0.0 << 1e-300 << -1000;
    }
    void percent() {
        QFETCH(double, value);
        QFETCH(double, low);
        QFETCH(double, high);
        QFETCH(int, share);
        const std::optional<int> result = scaling::percent(value, low, high);
        QCOMPARE(result.value_or(-1000), share);
    }
};

QTEST_MAIN(test_panel_framework)
#include "test_panel_framework.moc"
