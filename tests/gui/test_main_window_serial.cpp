// The main window against a real pseudo-terminal: port list, connect and disconnect, automatic
// connection, the TTL tester's texts on the wire, and a clean shutdown of every thread.
#include "main_window.h"
#include "pty_pair.h"
#include "serial_connector.h"
#include "test_app_support.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QThread>
#include <QToolButton>
#include <QtTest>

#include <memory>

namespace {

// The adapter start-up: "O" and "S6" three times, each closed by the writer's CR LF.
const QByteArray adapter_start = QByteArray("O\r\r\nS6\r\r\n").repeated(3);

QStringList captured_messages;
void capture_message(QtMsgType, const QMessageLogContext &, const QString &text) {
    captured_messages << text;
}

QByteArray ini_with_port(const QString &port, const QByteArray &rest) {
    return "[General]\nprev_port=" + port.toUtf8() + "\n" + rest;
}

}  // namespace

class test_main_window_serial : public QObject {
    Q_OBJECT

    // A window whose configuration names the pseudo-terminal, listed by the port enumeration.
    static std::unique_ptr<main_window> window_on(const pty_pair &pty, const QString &brand,
                                                  const QByteArray &rest) {
        scratch_dir::write_config(ini_with_port(pty.slave_path(), rest));
        auto window = std::make_unique<main_window>(brand);
        window->set_port_lister(fixed_ports({{pty.slave_path(), QStringLiteral("Test adapter")}}));
        window->initialise_from_config();
        return window;
    }

    // A window whose device table is empty and applied, so that only the TTL tester's texts travel.
    static std::unique_ptr<main_window> tester_window(const pty_pair &pty) {
        auto window = window_on(pty, QStringLiteral("Bench"), "device_count=0\n");
        device_table(*window)->setRowCount(0);
        widget<QPushButton>(*window, "apply_pb")->click();
        return window;
    }

    static bool connect_window(main_window &window, pty_pair &pty) {
        widget<QPushButton>(window, "connect_button")->click();
        if (!QTest::qWaitFor([&window] {
                return widget<QPushButton>(window, "connect_button")->text() ==
                       QLatin1String("Disconnect");
            })) {
            return false;
        }
        return pty.read_exactly(adapter_start.size()) == adapter_start;
    }

private slots:
    void port_list_selects_the_saved_port_data() {
        QTest::addColumn<QString>("saved");
        QTest::addColumn<int>("selected");
        QTest::newRow("second port saved") << QStringLiteral("b") << 1;
        QTest::newRow("first port saved") << QStringLiteral("a") << 0;
        QTest::newRow("case differs: nothing selected") << QStringLiteral("B") << -1;
        QTest::newRow("nothing saved") << QString() << -1;
    }
    void port_list_selects_the_saved_port() {
        QFETCH(QString, saved);
        QFETCH(int, selected);
        pty_pair a;
        pty_pair b;
        QVERIFY(a.ok() && b.ok());
        QString saved_name;
        if (saved == QLatin1String("a")) {
            saved_name = a.slave_path();
        } else if (saved == QLatin1String("b")) {
            saved_name = b.slave_path();
        } else if (saved == QLatin1String("B")) {
            saved_name = b.slave_path().toUpper();
        }
        scratch_dir dir;
        dir.write_config(ini_with_port(saved_name, "device_count=1\ndevice_0=1\n"));
        main_window window(QStringLiteral("Veltrano"));
        QList<main_window::port_entry> ports{{a.slave_path(), QStringLiteral("Adapter A")},
                                             {b.slave_path(), QStringLiteral("Adapter B")}};
        window.set_port_lister([&ports] { return ports; });
        window.initialise_from_config();

        QComboBox *combo = widget<QComboBox>(window, "serial_combo_box");
        QCOMPARE(combo->count(), 2);
        QCOMPARE(combo->itemText(0), QStringLiteral("\"Adapter A\" ") + a.slave_path());
        QCOMPARE(combo->itemText(1), QStringLiteral("\"Adapter B\" ") + b.slave_path());
        QCOMPARE(combo->itemData(1).toString(), b.slave_path());
        QCOMPARE(combo->currentIndex(), selected);

        // Choosing a port only names it; nothing opens.
        QSignalSpy connects(&window, &main_window::sig_init_connection);
        emit combo->activated(0);
        QCOMPARE(window.serial_link()->port_name(), a.slave_path());
        QCOMPARE(connects.count(), 0);

        // Refreshing lists the ports anew and keeps the chosen one selected.
        ports.prepend({QStringLiteral("ttyS0"), QStringLiteral("Built-in")});
        widget<QToolButton>(window, "serial_refresh_button")->click();
        QCOMPARE(combo->count(), 3);
        QCOMPARE(combo->currentIndex(), 1);
    }

    void connect_and_disconnect() {
        pty_pair pty;
        QVERIFY(pty.ok());
        scratch_dir dir;
        auto window = window_on(pty, QStringLiteral("Veltrano"),
                                "mini_usb_mode=false\ndevice_count=1\ndevice_0=3\n");
        QPushButton *button = widget<QPushButton>(*window, "connect_button");
        QLabel *status = widget<QLabel>(*window, "connection_status_label");
        QComboBox *combo = widget<QComboBox>(*window, "serial_combo_box");
        QWidget *devices_area = widget<QWidget>(*window, "devices_widget");
        QCOMPARE(button->text(), QStringLiteral("Connect"));
        QVERIFY(!button->isCheckable());
        QCOMPARE(status->text(), QStringLiteral("Connection status: DISCONNECTED"));
        QVERIFY(combo->isEnabled());
        QVERIFY(!devices_area->isEnabled());

        button->click();
        QTRY_COMPARE(button->text(), QStringLiteral("Disconnect"));
        QVERIFY(button->isCheckable());
        QVERIFY(button->isChecked());
        QCOMPARE(status->text(), QStringLiteral("Connection status: CONNECTED"));
        QVERIFY(!combo->isEnabled());
        QVERIFY(devices_area->isEnabled());
        QCOMPARE(pty.read_exactly(adapter_start.size()), adapter_start);

        // With the port open the polling cycle runs: the device asks for its type.
        const QByteArray type_request = (frame_codec::compose(3, 0xD0, 0) + "\r\n").toUtf8();
        QCOMPARE(pty.read_exactly(type_request.size()), type_request);

        button->click();
        QTRY_COMPARE(button->text(), QStringLiteral("Connect"));
        QVERIFY(!button->isCheckable());
        QVERIFY(!button->isChecked());
        QCOMPARE(status->text(), QStringLiteral("Connection status: DISCONNECTED"));
        QVERIFY(combo->isEnabled());
        QVERIFY(!devices_area->isEnabled());
        // Closed: the polling cycle stands still. Frames written just before the close may still
        // be on their way through the terminal; after they are through, the line stays silent.
        pty.read_until_quiet(200, 2000);
        QCOMPARE(pty.read_until_quiet(200, 1000), QByteArray());
    }

    void automatic_connection_retries_without_spinning() {
        scratch_dir dir;
        dir.write_config("[General]\nprev_port=/nonexistent/lumivox-port\n"
                         "autoconnection_mode=true\ndevice_count=1\ndevice_0=1\n");
        main_window window(QStringLiteral("Veltrano"));
        window.set_port_lister(fixed_ports({}));
        QElapsedTimer clock;
        QList<qint64> attempts_ns;
        connect(&window, &main_window::sig_init_connection, this,
                [&](const QString &port) {
                    QCOMPARE(port, QStringLiteral("/nonexistent/lumivox-port"));
                    attempts_ns << clock.nsecsElapsed();
                });
        clock.start();
        window.initialise_from_config();
        QCOMPARE(attempts_ns.size(), 1);
        QVERIFY(widget<QCheckBox>(window, "autoconnection_checkbox")->isChecked());

        QTRY_VERIFY_WITH_TIMEOUT(attempts_ns.size() >= 4, 5000);
        for (int i = 1; i < attempts_ns.size(); ++i) {
            const qint64 gap_ms = (attempts_ns.at(i) - attempts_ns.at(i - 1)) / 1000000;
            // 1 ms of slack for where in its millisecond each attempt was stamped.
            QVERIFY2(gap_ms >= main_window::reconnect_gap_ms - 1,
                     qPrintable(QStringLiteral("attempts %1 ms apart").arg(gap_ms)));
        }
        QComboBox *combo = widget<QComboBox>(window, "serial_combo_box");
        QVERIFY(!combo->isEnabled());
        QCOMPARE(widget<QPushButton>(window, "connect_button")->text(), QStringLiteral("Connect"));

        // Switching automatic connection off ends the retries and gives the port choice back.
        widget<QCheckBox>(window, "autoconnection_checkbox")->setChecked(false);
        QTRY_VERIFY_WITH_TIMEOUT(combo->isEnabled(), 2000);
        QSignalSpy more(&window, &main_window::sig_init_connection);
        QVERIFY(!more.wait(2 * main_window::reconnect_gap_ms));
    }

    void ttl_commands_on_the_wire_data() {
        QTest::addColumn<QString>("spin");
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("button");
        QTest::addColumn<QByteArray>("wire");
        QTest::newRow("frequency 0.4") << "freq_spin" << 0.4 << "pushButton"
                                       << QByteArray("FREQ_TTL 0\r\r\n");
        QTest::newRow("frequency 1500.4") << "freq_spin" << 1500.4 << "pushButton"
                                          << QByteArray("FREQ_TTL 1500\r\r\n");
        QTest::newRow("frequency 2.6 rounds up") << "freq_spin" << 2.6 << "pushButton"
                                                 << QByteArray("FREQ_TTL 3\r\r\n");
        QTest::newRow("frequency without separators") << "freq_spin" << 2500000.0 << "pushButton"
                                                       << QByteArray("FREQ_TTL 2500000\r\r\n");
        QTest::newRow("pulse width 1500.4") << "pw_spin" << 1500.4 << "pushButton_2"
                                            << QByteArray("PW_TTL 1500\r\r\n");
        QTest::newRow("pulse width 12345.6") << "pw_spin" << 12345.6 << "pushButton_2"
                                             << QByteArray("PW_TTL 12346\r\r\n");
    }
    void ttl_commands_on_the_wire() {
        QFETCH(QString, spin);
        QFETCH(double, value);
        QFETCH(QString, button);
        QFETCH(QByteArray, wire);
        pty_pair pty;
        QVERIFY(pty.ok());
        scratch_dir dir;
        auto window = tester_window(pty);
        QVERIFY(window->devices().isEmpty());
        QVERIFY(connect_window(*window, pty));

        window->findChild<QDoubleSpinBox *>(spin)->setValue(value);
        window->findChild<QPushButton *>(button)->click();
        QCOMPARE(pty.read_exactly(wire.size()), wire);
        QCOMPARE(pty.read_until_quiet(100, 1000), QByteArray());
    }

    void ttl_start_stop_pairing() {
        pty_pair pty;
        QVERIFY(pty.ok());
        scratch_dir dir;
        auto window = tester_window(pty);
        QVERIFY(connect_window(*window, pty));

        QPushButton *start_stop = widget<QPushButton>(*window, "pushButton_3");
        QCOMPARE(start_stop->text(), QStringLiteral("START"));
        const QList<QByteArray> wire{"Stop_TTL\r\r\n", "Start_TTL\r\r\n", "Stop_TTL\r\r\n"};
        const QStringList texts{"START", "STOP", "START"};
        for (int i = 0; i < wire.size(); ++i) {
            start_stop->click();
            QCOMPARE(pty.read_exactly(wire.at(i).size()), wire.at(i));
            QCOMPARE(start_stop->text(), texts.at(i));
        }
    }

    void ttl_with_the_port_closed_changes_only_the_button() {
        pty_pair pty;
        QVERIFY(pty.ok());
        scratch_dir dir;
        auto window = window_on(pty, QStringLiteral("Bench"), "device_count=0\n");
        QSignalSpy sent(window.get(), &main_window::sig_send_command);
        widget<QPushButton>(*window, "pushButton")->click();
        widget<QPushButton>(*window, "pushButton_2")->click();
        widget<QPushButton>(*window, "pushButton_3")->click();
        widget<QPushButton>(*window, "pushButton_3")->click();
        // The texts are handed to the link, which drops them: nothing is open.
        QCOMPARE(sent.count(), 4);
        QCOMPARE(widget<QPushButton>(*window, "pushButton_3")->text(), QStringLiteral("STOP"));
        QCOMPARE(pty.read_until_quiet(150, 1000), QByteArray());
    }

    void closing_stops_every_thread_data() {
        QTest::addColumn<bool>("port_open");
        QTest::newRow("port open") << true;
        QTest::newRow("port closed") << false;
    }
    void closing_stops_every_thread() {
        QFETCH(bool, port_open);
        pty_pair pty;
        QVERIFY(pty.ok());
        scratch_dir dir;
        auto window = window_on(pty, QStringLiteral("Veltrano"),
                                "mini_usb_mode=false\ndevice_count=3\n"
                                "device_0=1\ndevice_1=2\ndevice_2=3\n");
        if (port_open) {
            QVERIFY(connect_window(*window, pty));
        }
        QList<QThread *> threads{window->serial_link()->thread()};
        for (const device *dev : window->devices()) {
            threads << dev->thread();
        }
        std::vector<std::unique_ptr<QSignalSpy>> finished;
        for (QThread *thread : threads) {
            QVERIFY(thread->isRunning());
            finished.push_back(std::make_unique<QSignalSpy>(thread, &QThread::finished));
        }

        captured_messages.clear();
        const QtMessageHandler previous = qInstallMessageHandler(capture_message);
        window->close();
        window.reset();
        qInstallMessageHandler(previous);

        for (const auto &spy : finished) {
            QCOMPARE(spy->count(), 1);
        }
        for (const QString &message : qAsConst(captured_messages)) {
            QVERIFY2(!message.contains(QLatin1String("QThread")), qPrintable(message));
        }
        QVERIFY(scratch_dir::config_exists());
    }
};

QTEST_MAIN(test_main_window_serial)
#include "test_main_window_serial.moc"
