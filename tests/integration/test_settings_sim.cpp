// Saving, comparing and restoring a device's configuration rows, with the whole program against
// simulated devices over a pseudo-terminal: the file holds what the simulator holds, the comparison
// marks exactly the rows changed on the device since, a restore puts the file's integers back and
// stores them, and every refusal writes nothing.
#include "config_dialog.h"
#include "device.h"
#include "panel_base.h"
#include "settings_actions.h"
#include "settings_compare_dialog.h"
#include "sim_window.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

using changes = QList<QPair<int, int>>;  // (code, new wire value) written on the simulated device
Q_DECLARE_METATYPE(changes)

namespace {

// Table order and CAN IDs: two CW drivers (one the clone target) and a picosecond box, whose
// calibration rows hold negative numbers with six decimals.
const int can_ids[] = {1, 2, 5};
const int types[] = {14, 26, 14};

}  // namespace

class test_settings_sim : public QObject, sim_window_fixture {
    Q_OBJECT

    QList<message_request> boxes;

    panel_base *panel_of(int slot) const {
        return dynamic_cast<panel_base *>(window->devices().at(slot)->current_panel());
    }
    sim_device *sim_of(int slot) const { return bus.find(can_ids[slot]); }

    // The panel's configuration dialog, open.
    config_dialog *open_dialog(panel_base *panel) {
        panel->on_toolButton_clicked();
        return panel->configuration_dialog();
    }

    QString save(int slot, const QString &name) {
        const QString path = dir.filePath(name);
        QString error;
        if (!settings_actions::save(*panel_of(slot), path, &error)) {
            qWarning() << error;
            return {};
        }
        return path;
    }

    // Restores through the comparison window; the outcome, once the restore has finished.
    std::optional<settings_restore::outcome> write_changed(settings_compare_dialog *compare) {
        std::optional<settings_restore::outcome> outcome;
        connect(compare, &settings_compare_dialog::sig_finished, this,
                [&outcome](const settings_restore::outcome &result) { outcome = result; });
        compare->write_button()->click();
        [[maybe_unused]] const bool finished =
            QTest::qWaitFor([&outcome] { return outcome.has_value(); }, 10000);
        return outcome;
    }

private slots:
    void initTestCase() {
        QVERIFY(enter_scratch_dir());
        for (int i = 0; i < 3; ++i) {
            QVERIFY(bus.add_device(can_ids[i], types[i]));
        }
        line = start_sim_line(bus, clock, this);
        QVERIFY(line);
        write_device_table(dir.path(), line->slave_path(), {can_ids[0], can_ids[1], can_ids[2]});

        // Every box is answered Yes (questions) or OK, and kept for the test to read.
        set_message_answerer([this](const message_request &request) {
            boxes << request;
            return request.buttons.testFlag(QMessageBox::Yes) ? QMessageBox::Yes
                                                              : QMessageBox::Ok;
        });
        window = new main_window(QStringLiteral("Veltrano"), &registry);
        window->initialise_from_config();
        for (int slot = 0; slot < 3; ++slot) {
            QTRY_VERIFY_WITH_TIMEOUT(panel_of(slot) && panel_of(slot)->all_parameters_known(),
                                     15000);
        }
    }

    void cleanupTestCase() { leave_scratch_dir(); }

    void init() { boxes.clear(); }

    void save_change_compare_restore_data() {
        QTest::addColumn<int>("slot");
        QTest::addColumn<changes>("changed");
        QTest::newRow("CW driver: current limit and a coefficient")
            << 0 << changes{{37, 15000}, {68, 2500}};
        QTest::newRow("picosecond box: voltage limit and a negative calibration row")
            << 1 << changes{{37, 250}, {57, -31000}, {59, 0}};
    }
    void save_change_compare_restore() {
        QFETCH(int, slot);
        QFETCH(changes, changed);
        panel_base *panel = panel_of(slot);
        sim_device *sim = sim_of(slot);

        // Saved: the simulator's own integers, row by row.
        const QString path = save(slot, QStringLiteral("slot%1.json").arg(slot));
        QVERIFY(!path.isEmpty());
        const device_settings::read_result saved = device_settings::read_file(path);
        QVERIFY2(saved.settings, qPrintable(saved.error));
        QCOMPARE(saved.settings->type_id, types[slot]);
        QCOMPARE(saved.settings->can_id, can_ids[slot]);
        QCOMPARE(saved.settings->rows.size(), panel->parameters().size());
        for (const device_settings::row &row : saved.settings->rows) {
            QCOMPARE(row.wire, qint64(sim->value(row.code)));
        }

        // Changed and stored on the device, and seen by the operator in the configuration window;
        // the comparison asks the device again and marks exactly those rows.
        QList<int> changed_codes;
        for (const auto &change : changed) {
            sim->handle(change.first, change.second);
            changed_codes << change.first;
            panel->read_parameter(change.first);
        }
        sim->handle(sim->profile().store_code, 1);
        const auto seen = [panel, &changed] {
            for (const auto &change : changed) {
                for (const parameter_record &record : panel->parameters()) {
                    if (record.code == change.first && record.wire != change.second) {
                        return false;
                    }
                }
            }
            return true;
        };
        QTRY_VERIFY_WITH_TIMEOUT(seen(), 5000);
        config_dialog *dialog = open_dialog(panel);
        QVERIFY(dialog->save_button()->isEnabled());
        settings_compare_dialog *compare = settings_actions::load(panel, path, dialog);
        QVERIFY(compare);
        QTRY_VERIFY_WITH_TIMEOUT(compare->device_read(), 5000);
        QList<int> marked;
        for (int row = 0; row < compare->table()->rowCount(); ++row) {
            if (compare->table()->item(row, 3)->text() == QStringLiteral("changed")) {
                marked << panel->parameters().at(row).code;
            }
        }
        std::sort(marked.begin(), marked.end());
        std::sort(changed_codes.begin(), changed_codes.end());
        QCOMPARE(marked, changed_codes);

        // One question, then the rows are written, read back, checked and stored.
        const auto outcome = write_changed(compare);
        QVERIFY(outcome);
        QCOMPARE(boxes.size(), 1);
        QCOMPARE(boxes.first().title, QStringLiteral("Restore settings"));
        QVERIFY2(outcome->ok(), qPrintable(settings_restore::describe(*outcome)));
        QCOMPARE(outcome->written, changed.size());
        QVERIFY(outcome->stored);
        for (const device_settings::row &row : saved.settings->rows) {
            QCOMPARE(sim->value(row.code), qint32(row.wire));
            QCOMPARE(sim->stored(row.code), qint32(row.wire));
        }
        QVERIFY(compare->current().to_write(false).isEmpty());
        // The configuration window's "Write" would now write what the device holds.
        for (int i = 0; i < panel->parameters().size(); ++i) {
            QCOMPARE(dialog->spin_boxes().at(i)->value(),
                     qMax(0.0, panel->parameters().at(i).value));
        }
        QCOMPARE(panel->queued_commands(), 0);
        dialog->close();
    }

    void refusals_write_nothing_data() {
        QTest::addColumn<int>("slot");
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("reason");
        QFile cw(save(0, QStringLiteral("cw.json")));
        QVERIFY(cw.open(QIODevice::ReadOnly));
        const QByteArray good = cw.readAll();
        QTest::newRow("another type's file") << 1 << good << "VTR-CW-1800 (device type 14)";
        QTest::newRow("damaged") << 0 << QByteArray(good).replace("\"wire\": ", "\"wire\" ")
                                 << "damaged at byte";
        QTest::newRow("truncated") << 0 << good.left(good.size() * 2 / 3) << "ends early";
        QTest::newRow("not a settings file") << 0 << QByteArray("[General]\nprev_port=x\n")
                                             << "not a settings file";
    }
    void refusals_write_nothing() {
        QFETCH(int, slot);
        QFETCH(QByteArray, text);
        QFETCH(QString, reason);
        const QString path = dir.filePath(QStringLiteral("refused.json"));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(text);
        file.close();

        panel_base *panel = panel_of(slot);
        config_dialog *dialog = open_dialog(panel);
        QCOMPARE(panel->queued_commands(), 0);
        QVERIFY(!settings_actions::load(panel, path, dialog));
        QCOMPARE(panel->queued_commands(), 0);  // nothing written, nothing even asked
        QCOMPARE(boxes.size(), 1);
        QCOMPARE(boxes.first().title, QStringLiteral("Load settings"));
        QVERIFY2(boxes.first().text.contains(reason), qPrintable(boxes.first().text));
        QVERIFY(boxes.first().text.contains(QStringLiteral("Nothing was written")));
        dialog->close();
    }

    // Rows copied from device 1 onto device 5: its own address stays unless the box is ticked.
    void can_id_row_left_alone_data() {
        QTest::addColumn<bool>("ticked");
        QTest::newRow("not ticked") << false;
        QTest::newRow("ticked") << true;
    }
    void can_id_row_left_alone() {
        QFETCH(bool, ticked);
        const QString path = save(0, QStringLiteral("clone.json"));
        sim_device *target = sim_of(2);
        target->handle(38, 500);  // so that there is a row to write besides the CAN ID
        config_dialog *dialog = open_dialog(panel_of(2));
        settings_compare_dialog *compare = settings_actions::load(panel_of(2), path, dialog);
        QVERIFY(compare);
        QTRY_VERIFY_WITH_TIMEOUT(compare->device_read(), 5000);
        QVERIFY(compare->can_id_box()->isVisible());
        QVERIFY(!compare->can_id_box()->isChecked());
        compare->can_id_box()->setChecked(ticked);

        const auto outcome = write_changed(compare);
        QVERIFY(outcome);
        QVERIFY2(outcome->ok(), qPrintable(settings_restore::describe(*outcome)));
        QCOMPARE(target->value(81), ticked ? can_ids[0] : can_ids[2]);
        QCOMPARE(target->value(38), sim_of(0)->value(38));
        QCOMPARE(outcome->left_alone.contains(QStringLiteral("CAN ID")), !ticked);
        dialog->close();
    }

    // A device that keeps another value than the one written (as one that clamps it would): the
    // restore still stores, and names the row with both values.
    void row_that_does_not_take_is_named() {
        const QString path = save(0, QStringLiteral("clamped.json"));
        sim_device *sim = sim_of(0);
        sim->handle(37, 9000);
        config_dialog *dialog = open_dialog(panel_of(0));
        settings_compare_dialog *compare = settings_actions::load(panel_of(0), path, dialog);
        QVERIFY(compare);
        QTRY_VERIFY_WITH_TIMEOUT(compare->device_read(), 5000);
        // Just before the device answers the read-back of row 37, it holds 1234.5 mA.
        bus.trace = [sim](const QString &traced) {
            if (traced.contains(QStringLiteral("-> 1: code 165 "))) {
                sim->handle(37, 12345);
            }
        };
        const auto outcome = write_changed(compare);
        bus.trace = nullptr;
        QVERIFY(outcome);
        QVERIFY(!outcome->ok());
        QVERIFY(outcome->complete);
        QVERIFY(outcome->stored);
        QCOMPARE(outcome->not_taken.size(), 1);
        QCOMPARE(outcome->not_taken.first().row.code, 37);
        QCOMPARE(boxes.last().title, QStringLiteral("Restore settings"));
        QVERIFY2(boxes.last().text.contains(QStringLiteral(
                     "did not take:\n  Max current, mA: the device holds 1234.5, the file 1800.0")),
                 qPrintable(boxes.last().text));
        QCOMPARE(sim->stored(37), 12345);
        dialog->close();
    }

    // A device that falls silent halfway: the restore stops and says which rows it could not
    // confirm, even though the device's panel (and with it the window) is gone.
    void silent_device_stops_the_restore() {
        const QString path = save(0, QStringLiteral("before.json"));
        sim_device *sim = sim_of(0);
        sim->handle(68, 3333);
        config_dialog *dialog = open_dialog(panel_of(0));
        settings_compare_dialog *compare = settings_actions::load(panel_of(0), path, dialog);
        QVERIFY(compare);
        QTRY_VERIFY_WITH_TIMEOUT(compare->device_read(), 5000);
        sim->set_silent(true);
        compare->write_button()->click();
        QTRY_COMPARE_WITH_TIMEOUT(boxes.size(), 2, 15000);
        QCOMPARE(boxes.last().title, QStringLiteral("Restore settings"));
        QVERIFY2(boxes.last().text.contains(
                     QStringLiteral("not known to have taken:\n  coef. P: the file holds")),
                 qPrintable(boxes.last().text));
        sim->set_silent(false);
        QTRY_VERIFY_WITH_TIMEOUT(panel_of(0) && panel_of(0)->all_parameters_known(), 15000);
    }
};

QTEST_MAIN(test_settings_sim)
#include "test_settings_sim.moc"
