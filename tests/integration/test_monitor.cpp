// The bus monitor on a simulated session: the whole program against simulated devices, the
// monitor open from the start. Frames appear decoded with the names and units of the devices'
// panels; filters, pause and the bounded history; the exported log is read by can-utils and read
// back identically; and the simulator's replay of that log gives a fresh program the readings the
// panels had.
#include "candump_log.h"
#include "device.h"
#include "monitor_window.h"
#include "observation_hub.h"
#include "sim_window.h"

#include <QAbstractButton>
#include <QDir>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QProcess>
#include <QScrollBar>
#include <QSettings>
#include <QStandardPaths>
#include <QTableView>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <functional>

using monitor::bus_line;
using monitor::direction;

namespace {

constexpr int cw_id = 1;      // type 14, the CW driver
constexpr int heater_id = 3;  // type 4, the heater, which answers with noise for a moment
const char *const cw_name = "Seed laser";
const char *const heater_name = "Crystal oven";

// A working directory whose configuration reaches `port` with the two devices.
void write_config(const QString &dir, const QString &port) {
    write_device_table(dir, port, {cw_id, heater_id}, true,
                       {QString::fromLatin1(cw_name), QString::fromLatin1(heater_name)});
}

// The last value of every reading the window's panels report, by device and quantity.
using readings = QMap<QString, double>;
void collect_readings(main_window *window, readings *into) {
    QObject::connect(window->observations(), &observation_hub::sig_sample, window,
                     [into](const device_sample &s) {
                         if (s.kind == panel_observation::reading) {
                             into->insert(QStringLiteral("%1 %2").arg(s.can_id).arg(s.quantity),
                                          s.value);
                         }
                     });
}

}  // namespace

class test_monitor : public QObject, sim_window_fixture {
    Q_OBJECT

    monitor_window *monitor = nullptr;
    readings seen;

    monitor_model *model() const { return monitor->model(); }
    device_panel *panel_of(int slot) const { return window->devices().at(slot)->current_panel(); }

    // The last row of the list whose line satisfies `wanted`, or -1 (after publishing).
    int last_row(const std::function<bool(const bus_line &)> &wanted) const {
        model()->publish();
        for (int row = model()->rowCount() - 1; row >= 0; --row) {
            if (wanted(model()->line_at(row))) {
                return row;
            }
        }
        return -1;
    }
    int last_frame(int address, direction way, int code) const {
        return last_row([=](const bus_line &l) {
            return l.address() == address && l.dir == way && l.code() == code;
        });
    }
    QString cell(int row, int column) const { return model()->cell_text(row, column); }

private slots:
    void initTestCase() {
        QVERIFY(enter_scratch_dir());
        QVERIFY(bus.add_device(cw_id, 14));
        QVERIFY(bus.add_device(heater_id, 4));
        QVERIFY(bus.schedule_garbage(heater_id, 1500, 200));
        line = start_sim_line(bus, clock, this);
        QVERIFY(line);
        write_config(dir.path(), line->slave_path());

        set_message_answerer([](const message_request &) { return QMessageBox::Yes; });
        window = new main_window(QStringLiteral("Veltrano"), &registry);
        collect_readings(window, &seen);
        // Open before the automatic connection, so that it sees the adapter commands too.
        monitor = window->open_monitor();
        QVERIFY(monitor->capturing());
        window->initialise_from_config();
        window->show();
        QTRY_VERIFY_WITH_TIMEOUT(panel_of(0) && panel_of(1), 10000);
        auto *configure = panel_of(0)->findChild<QAbstractButton *>("toolButton");
        QTRY_VERIFY_WITH_TIMEOUT(configure->isEnabled(), 15000);
    }

    void cleanupTestCase() { leave_scratch_dir(); }

    // Each row: the last frame of a device, direction and code is named as the panel describes
    // it, and its value reads as the panel's own label shows it.
    void frames_are_decoded_data() {
        QTest::addColumn<int>("slot");
        QTest::addColumn<int>("address");
        QTest::addColumn<bool>("sent");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("label");  // the panel's label showing the value; none: blank
        QTest::newRow("CW temperature report") << 0 << cw_id << false << 0x92
                                               << "read temperature" << "temp_label";
        QTest::newRow("CW temperature request") << 0 << cw_id << true << 0x92
                                                << "read temperature" << "";
        QTest::newRow("CW current report") << 0 << cw_id << false << 0x91 << "read current"
                                           << "current_ld_label";
        QTest::newRow("heater temperature report") << 1 << heater_id << false << 0x92
                                                   << "read temperature" << "l_temp";
        QTest::newRow("heater type request") << 1 << heater_id << true << 0xD0
                                             << "read device type" << "";
    }
    void frames_are_decoded() {
        QFETCH(int, slot);
        QFETCH(int, address);
        QFETCH(bool, sent);
        QFETCH(int, code);
        QFETCH(QString, name);
        QFETCH(QString, label);
        const int row = last_frame(address, sent ? direction::sent : direction::received, code);
        QVERIFY(row >= 0);
        QCOMPARE(cell(row, monitor_model::device_column),
                 QString::fromLatin1(slot == 0 ? cw_name : heater_name));
        QCOMPARE(cell(row, monitor_model::direction_column),
                 sent ? QStringLiteral("sent") : QStringLiteral("received"));
        QCOMPARE(cell(row, monitor_model::name_column), name);
        QCOMPARE(cell(row, monitor_model::code_column).toInt(nullptr, 16), code);
        if (label.isEmpty()) {
            QCOMPARE(cell(row, monitor_model::value_column), QString());
        } else {
            auto *shown = panel_of(slot)->findChild<QLabel *>(label);
            QVERIFY(shown);
            QCOMPARE(cell(row, monitor_model::value_column), shown->text());
        }
    }

    // What the operator confirms goes out named as the set-point, in the panel's unit.
    void set_point_is_named() {
        auto *current = panel_of(0)->findChild<QDoubleSpinBox *>("spin");
        QVERIFY(current);
        current->setFocus();
        current->setValue(120.0);
        QTest::keyClick(current, Qt::Key_Return);
        int row = -1;
        QTRY_VERIFY_WITH_TIMEOUT((row = last_row([](const bus_line &l) {
                                      return l.dir == direction::sent && l.code() == 0x11;
                                  })) >= 0,
                                 5000);
        QCOMPARE(cell(row, monitor_model::name_column), QStringLiteral("write current set-point"));
        const QStringList value = cell(row, monitor_model::value_column).split(QLatin1Char(' '));
        QCOMPARE(value.value(1), QStringLiteral("mA"));
        QCOMPARE(value.value(0).toDouble(), 120.0);
    }

    // The heater's noise and the adapter commands are listed, marked, with their text.
    void lines_the_parser_ignores_are_marked() {
        int row = -1;
        QTRY_VERIFY_WITH_TIMEOUT((row = last_row([](const bus_line &l) {
                                      return l.kind == monitor::line_kind::ignored;
                                  })) >= 0,
                                 5000);
        QVERIFY(cell(row, monitor_model::name_column).startsWith(QStringLiteral("ignored: ")));
        QVERIFY(cell(row, monitor_model::name_column).size() > 20);
        QCOMPARE(cell(row, monitor_model::device_column), QString());
        row = last_row([](const bus_line &l) { return l.kind == monitor::line_kind::text; });
        QVERIFY(row >= 0);
        QCOMPARE(cell(row, monitor_model::name_column), QStringLiteral("text: S6"));
    }

    void filters_data() {
        QTest::addColumn<int>("address");
        QTest::addColumn<QString>("codes");
        QTest::addColumn<int>("way");
        QTest::newRow("one device") << heater_id << "" << -1;
        QTest::newRow("a write code and its reads") << -1 << "11" << -1;
        QTest::newRow("sent only") << -1 << "" << int(direction::sent);
        QTest::newRow("device, code and direction")
            << cw_id << "0x92, d0" << int(direction::received);
    }
    void filters() {
        QFETCH(int, address);
        QFETCH(QString, codes);
        QFETCH(int, way);
        monitor->set_paused(true);  // the same lines for every filter
        monitor->set_device_filter(address);
        QVERIFY(monitor->set_code_filter(codes));
        QSet<int> wanted_codes;
        QVERIFY(read_codes(codes, &wanted_codes, nullptr));
        const int both_ways = [&] {
            monitor->set_direction_filter(-1);
            return model()->rowCount();
        }();
        int each_way = 0;
        for (const int d : {int(direction::sent), int(direction::received)}) {
            monitor->set_direction_filter(d);
            each_way += model()->rowCount();
        }
        monitor->set_direction_filter(way);
        QVERIFY(model()->rowCount() > 0);
        for (int row = 0; row < model()->rowCount(); ++row) {
            const bus_line &l = model()->line_at(row);
            if (address >= 0) {
                QCOMPARE(cell(row, monitor_model::id_column).toInt(nullptr, 16), address);
                QCOMPARE(cell(row, monitor_model::device_column), QString::fromLatin1(
                                                                     address == cw_id ? cw_name
                                                                                      : heater_name));
            }
            if (!wanted_codes.isEmpty()) {
                QVERIFY(wanted_codes.contains(l.code()) || wanted_codes.contains(l.code() - 0x80));
            }
            if (way >= 0) {
                QCOMPARE(int(l.dir), way);
            }
        }
        // A write code given shows its reads too.
        for (const int code : qAsConst(wanted_codes)) {
            if (code < 0x80 && way < 0) {
                QVERIFY(last_row([code](const bus_line &l) { return l.code() == code + 0x80; }) >= 0);
            }
        }
        // Sent and received together are what both directions show: no line lost between them.
        QCOMPARE(each_way, both_ways);
        monitor->set_device_filter(-1);
        QVERIFY(monitor->set_code_filter(QString()));
        monitor->set_direction_filter(-1);
        monitor->set_paused(false);
    }

    // Paused, the list stands still while lines are still kept; resumed, it takes them.
    void pause_holds_the_list() {
        model()->publish();
        monitor->set_paused(true);
        const int rows = model()->rowCount();
        const bus_line last = model()->line_at(rows - 1);
        const int kept = model()->kept();
        const int scrolled = monitor->view()->verticalScrollBar()->value();
        QTRY_VERIFY_WITH_TIMEOUT(model()->kept() > kept + 20, 5000);
        model()->publish();  // whatever asks for it
        QCOMPARE(model()->rowCount(), rows);
        QCOMPARE(model()->line_at(rows - 1), last);
        QCOMPARE(monitor->view()->verticalScrollBar()->value(), scrolled);
        QVERIFY(model()->waiting() >= model()->kept() - kept);
        monitor->set_paused(false);
        QCOMPARE(model()->waiting(), 0);
        QVERIFY(model()->rowCount() >= rows + model()->kept() - kept);
        QVERIFY(model()->line_at(model()->rowCount() - 1).time_us > last.time_us);
    }

    // A full history drops its oldest lines, from the list too, paused or not.
    void history_is_bounded_data() {
        QTest::addColumn<bool>("paused");
        QTest::newRow("following") << false;
        QTest::newRow("paused") << true;
    }
    void history_is_bounded() {
        QFETCH(bool, paused);
        monitor_model small(10);
        for (int i = 0; i < 8; ++i) {
            small.take(monitor::read_wire(i, direction::sent, QStringLiteral("O\r")));
        }
        small.publish();
        small.set_paused(paused);
        for (int i = 8; i < 25; ++i) {
            small.take(monitor::read_wire(i, direction::sent, QStringLiteral("O\r")));
        }
        small.set_paused(false);
        small.publish();
        QCOMPARE(small.kept(), 10);
        QCOMPARE(small.dropped(), 15);
        QCOMPARE(small.rowCount(), 10);
        QCOMPARE(small.line_at(0).time_us, 15);
        QCOMPARE(small.line_at(9).time_us, 24);
    }

    // Hostile or foreign lines of a log are skipped, counted, and the first one named.
    void log_lines_data() {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("frames");
        QTest::addColumn<int>("way");  // of the frame read, when one is
        QTest::newRow("the program's request") << QByteArray("(1690000000.123456) slcan0 0FA#D022000000000000") << 1 << int(direction::sent);
        QTest::newRow("an answer") << QByteArray("(1690000000.5) can1  001#9201000000001234") << 1 << int(direction::received);
        QTest::newRow("direction given") << QByteArray("(1690000000.123456) slcan0 022#9222000000000001 R") << 1 << int(direction::received);
        QTest::newRow("comment") << QByteArray("# made by hand") << 0 << -1;
        QTest::newRow("extended id") << QByteArray("(1690000000.123456) can0 12345678#00") << 0 << -1;
        QTest::newRow("remote frame") << QByteArray("(1690000000.123456) can0 001#R") << 0 << -1;
        QTest::newRow("CAN FD frame") << QByteArray("(1690000000.123456) can0 001##10011") << 0 << -1;
        QTest::newRow("odd data") << QByteArray("(1690000000.123456) can0 001#123") << 0 << -1;
        QTest::newRow("nine bytes") << QByteArray("(1690000000.123456) can0 001#112233445566778899") << 0 << -1;
        QTest::newRow("id above 7FF") << QByteArray("(1690000000.123456) can0 800#00") << 0 << -1;
        QTest::newRow("no time") << QByteArray("slcan0 001#00") << 0 << -1;
        QTest::newRow("long line") << QByteArray("(1690000000.123456) can0 001#00 ") + QByteArray(300, 'R') << 0 << -1;
    }
    void log_lines() {
        QFETCH(QByteArray, text);
        QFETCH(int, frames);
        QFETCH(int, way);
        candump_log::reader reader(4);
        reader.take_all(QByteArray("(1.000001) slcan0 001#00\n") + text + "\n\n");
        QCOMPARE(reader.frames_read(), qint64(1 + frames));
        const bool comment = text.startsWith('#');
        QCOMPARE(reader.skipped(), qint64(frames == 0 && !comment ? 1 : 0));
        QCOMPARE(reader.first_skipped_line(), qint64(reader.skipped() > 0 ? 2 : 0));
        if (frames > 0) {
            QCOMPARE(int(reader.frames().back().dir), way);
            QCOMPARE(QByteArray(candump_log::format(reader.frames().back())).chopped(3),
                     text.left(text.indexOf(" R") > 0 ? text.indexOf(" R") : text.size())
                         .replace("(1690000000.5)", "(1690000000.500000)")
                         .replace("can1  ", "slcan0 "));
        }
    }

    // The log can-utils reads: one ASC line per frame shown, each direction as it was; read back
    // it is the same frames, and written again the same bytes.
    void export_is_read_by_can_tools_and_back() {
        const QString log2asc = QStandardPaths::findExecutable(QStringLiteral("log2asc"));
        QVERIFY2(!log2asc.isEmpty(), "log2asc not found: scripts/bootstrap installs can-utils");
        model()->publish();
        const QString path = dir.filePath(QStringLiteral("session.log"));
        QVERIFY(monitor->export_log(path));
        int sent = 0;
        int received = 0;
        QVector<bus_line> frames;
        for (int row = 0; row < model()->rowCount(); ++row) {
            const bus_line &l = model()->line_at(row);
            if (l.is_frame()) {
                frames.append(l);
                (l.dir == direction::sent ? sent : received) += 1;
            }
        }
        QVERIFY(sent > 50 && received > 50);

        QProcess convert;
        convert.start(log2asc, {QStringLiteral("-I"), path, QStringLiteral("slcan0")});
        QVERIFY(convert.waitForFinished(10000));
        QCOMPARE(convert.exitCode(), 0);
        const QString asc = QString::fromLatin1(convert.readAllStandardOutput());
        QCOMPARE(asc.count(QStringLiteral(" Tx ")), sent);
        QCOMPARE(asc.count(QStringLiteral(" Rx ")), received);

        monitor_window file(nullptr, [this] { return window->devices(); });
        QVERIFY(file.open_log(path));
        QCOMPARE(file.model()->rowCount(), frames.size());
        for (int row = 0; row < frames.size(); ++row) {
            QCOMPARE(file.model()->line_at(row), frames.at(row));
        }
        const QString again = dir.filePath(QStringLiteral("again.log"));
        QVERIFY(file.export_log(again));
        QFile a(path);
        QFile b(again);
        QVERIFY(a.open(QIODevice::ReadOnly) && b.open(QIODevice::ReadOnly));
        QCOMPARE(b.readAll(), a.readAll());
    }

    // Closed, the monitor takes nothing from the link; opened again (Ctrl+M), it goes on.
    void closed_monitor_takes_nothing() {
        monitor->close();
        QVERIFY(!monitor->capturing());
        QCoreApplication::processEvents();  // lines already on their way
        model()->publish();
        const int kept = model()->kept();
        const int frames = bus.frames();
        QTRY_VERIFY_WITH_TIMEOUT(bus.frames() > frames + 20, 5000);
        model()->publish();
        QCOMPARE(model()->kept(), kept);
        // Ctrl+M in the main window opens it again, the same window.
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window));
        QTest::keyClick(window, Qt::Key_M, Qt::ControlModifier);
        QVERIFY(monitor->isVisible());
        QVERIFY(monitor->capturing());
        QTRY_VERIFY_WITH_TIMEOUT(model()->kept() > kept + 20, 5000);
    }

    // lumivox-sim --replay plays the session's log to a fresh program: its panels end with the
    // readings the session's panels had.
    void replay_reproduces_the_readings() {
        // The line hangs up: once the window knows, every line before it has reached the panels
        // and the monitor alike.
        line->hang_up();
        auto *status = window->findChild<QLabel *>(QStringLiteral("connection_status_label"));
        QTRY_COMPARE_WITH_TIMEOUT(status->text(), QStringLiteral("Connection status: DISCONNECTED"),
                                  5000);
        const readings expected = seen;
        QVERIFY(expected.size() >= 4);
        const QString log = dir.filePath(QStringLiteral("replayed.log"));
        model()->publish();
        QVERIFY(monitor->export_log(log));
        delete window;
        window = nullptr;

        QProcess sim;
        sim.start(QStringLiteral(LUMIVOX_SIM_EXE), {QStringLiteral("--replay"), log});
        QVERIFY(sim.waitForStarted());
        QTRY_VERIFY_WITH_TIMEOUT(sim.canReadLine(), 5000);
        const QString port = QString::fromLocal8Bit(sim.readLine()).trimmed();

        QTemporaryDir second;
        write_config(second.path(), port);
        QDir::setCurrent(second.path());
        readings replayed;
        window = new main_window(QStringLiteral("Veltrano"), &registry);
        collect_readings(window, &replayed);
        window->initialise_from_config();
        QTRY_COMPARE_WITH_TIMEOUT(replayed, expected, 20000);
        delete window;
        window = nullptr;
        QDir::setCurrent(dir.path());
        sim.terminate();
        QVERIFY(sim.waitForFinished(5000));
    }
};

QTEST_MAIN(test_monitor)
#include "test_monitor.moc"
