// The main window against a real pseudo-terminal: port list, connect and disconnect, automatic
// connection and the TTL tester's texts on the wire.
#include "message_route.h"
#include "port_report.h"
#include "pty_pair.h"
#include "test_app_support.h"

// The adapter start-up: "O" and "S6" three times, each closed by the writer's CR LF.
const QByteArray adapter_start = QByteArray("O\r\r\nS6\r\r\n").repeated(3);

static QByteArray config_naming(const QString &port, const QByteArray &rest) {
    return "[General]\nprev_port=" + port.toUtf8() + "\n" + rest;
}

// Collects the text of every box the program asks while it lives.
struct box_log {
    QStringList texts;
    message_answerer previous = set_message_answerer([this](const message_request &request) {
        texts << request.text;
        return QMessageBox::Ok;
    });
    ~box_log() { set_message_answerer(previous); }
};

class test_main_window_serial : public QObject {
    Q_OBJECT

private slots:
    void port_list_selects_the_saved_port_data() {
        QTest::addColumn<QString>("saved");
        QTest::addColumn<int>("selected");
        QTest::newRow("second port saved") << "/dev/pts/b2" << 1;
        QTest::newRow("case differs: nothing selected") << "/DEV/PTS/B2" << -1;
    }
    void port_list_selects_the_saved_port() {
        QFETCH(QString, saved);
        QFETCH(int, selected);
        scratch_dir dir(config_naming(saved, ""));
        auto window =
            loaded_window("Veltrano", {{"/dev/pts/a1", "Adapter A"}, {"/dev/pts/b2", "B"}});
        auto *combo = widget<QComboBox>(*window, "serial_combo_box");
        QCOMPARE(combo->itemText(0), QStringLiteral("\"Adapter A\" /dev/pts/a1"));
        QCOMPARE(combo->currentIndex(), selected);
        // Choosing a port only names it; nothing opens.
        QSignalSpy connects(window.get(), &main_window::sig_init_connection);
        emit combo->activated(0);
        QCOMPARE(window->serial_link()->port_name(), QStringLiteral("/dev/pts/a1"));
        QCOMPARE(connects.count(), 0);
    }

    void connect_and_disconnect() {
        pty_pair pty;
        QVERIFY(pty.ok());
        scratch_dir dir(config_naming(pty.slave_path(), ""));
        auto window = loaded_window("Veltrano", {{pty.slave_path(), "Test adapter"}});
        auto *button = widget<QPushButton>(*window, "connect_button");
        const auto check = [&](bool on) {
            QTRY_COMPARE(button->text(), on ? QString("Disconnect") : QString("Connect"));
            QCOMPARE(button->isCheckable(), on);
            QCOMPARE(button->isChecked(), on);
            QCOMPARE(widget<QLabel>(*window, "connection_status_label")->text(),
                     QString("Connection status: ") + (on ? "CONNECTED" : "DISCONNECTED"));
            QCOMPARE(widget(*window, "serial_combo_box")->isEnabled(), !on);
            QCOMPARE(widget(*window, "devices_widget")->isEnabled(), on);
        };
        check(false);
        button->click();
        check(true);
        QCOMPARE(pty.read_exactly(adapter_start.size()), adapter_start);
        button->click();
        check(false);
        // Closed, the polling cycle stands still: after the frames under way the line is silent.
        pty.read_until_quiet(200, 2000);
        QCOMPARE(pty.read_until_quiet(200, 1000), QByteArray());
    }

    // A missing adapter is retried, never more often than the reconnect gap, until switched off.
    // Each retry says in the status bar that the adapter is unplugged; the box comes once.
    void automatic_connection_retries_without_spinning() {
        scratch_dir dir(config_naming("/nonexistent/port", "autoconnection_mode=true\n"));
        box_log boxes;
        auto window = loaded_window();
        QElapsedTimer clock;
        clock.start();
        QList<qint64> gaps_ms;  // the first is from the start of the clock
        connect(window.get(), &main_window::sig_init_connection, this,
                [&] { gaps_ms << clock.restart(); });
        QTRY_VERIFY_WITH_TIMEOUT(gaps_ms.size() >= 3, 5000);
        for (qint64 gap : gaps_ms.mid(1)) {
            QVERIFY(gap >= main_window::reconnect_gap_ms - 1);  // 1 ms for truncation
        }
        QCOMPARE(boxes.texts.size(), 1);
        QVERIFY2(boxes.texts.first().contains("/nonexistent/port") &&
                     boxes.texts.first().contains("unplugged"),
                 qPrintable(boxes.texts.first()));
        QVERIFY2(window->statusBar()->currentMessage().contains("unplugged"),
                 qPrintable(window->statusBar()->currentMessage()));
        widget<QCheckBox>(*window, "autoconnection_checkbox")->setChecked(false);
        QTRY_VERIFY(widget(*window, "serial_combo_box")->isEnabled());
        QSignalSpy more(window.get(), &main_window::sig_init_connection);
        QVERIFY(!more.wait(2 * main_window::reconnect_gap_ms));
    }

    // Why a port could not be opened, in words the operator can act on: in the status bar every
    // time, in a box once until the port opens or the reason changes.
    void port_failures_are_told_once_data() {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QStringList>("words");
        QTest::newRow("permission: join dialout")
            << int(port_failure::permission)
            << QStringList{"/dev/ttyUSB7", "permission denied", "\"dialout\" group",
                           "sudo adduser $USER dialout", "log in again"};
        QTest::newRow("busy: another program") << int(port_failure::busy)
                                               << QStringList{"/dev/ttyUSB7", "another program"};
        QTest::newRow("missing: unplugged") << int(port_failure::missing)
                                            << QStringList{"/dev/ttyUSB7", "unplugged"};
        QTest::newRow("no port chosen") << int(port_failure::no_port)
                                        << QStringList{"No serial port", "Settings page"};
        QTest::newRow("anything else: the system's words")
            << int(port_failure::other) << QStringList{"/dev/ttyUSB7", "Input/output error"};
    }
    void port_failures_are_told_once() {
        QFETCH(int, kind);
        QFETCH(QStringList, words);
        scratch_dir dir(config_naming("", ""));
        box_log boxes;
        auto window = loaded_window();
        const port_failure failure{port_failure::kind(kind), "/dev/ttyUSB7", "Input/output error"};
        const auto told = [&] { return window->statusBar()->currentMessage(); };
        window->port_failures()->failed(failure);
        window->port_failures()->failed(failure);  // a retry
        QTRY_COMPARE(boxes.texts.size(), 1);
        // The box has it in full, the status bar in short; both have the words that matter.
        for (const QString &word : words) {
            QVERIFY2(told().contains(word), qPrintable(told()));
            QVERIFY2(boxes.texts.first().contains(word), qPrintable(boxes.texts.first()));
        }
        // The short form fits the status bar of the window at its first size.
        QVERIFY(window->statusBar()->fontMetrics().horizontalAdvance(told()) <
                window->width());
        QVERIFY(!QTest::qWaitFor([&] { return boxes.texts.size() > 1; }, 100));

        // Once the port has opened, the message goes and the next failure has its box again.
        window->port_failures()->connected();
        QCOMPARE(told(), QString());
        window->port_failures()->failed(failure);
        QTRY_COMPARE(boxes.texts.size(), 2);
        // Nothing to tell: a port closed on request.
        const QString before = told();
        window->port_failures()->failed(port_failure());
        QCOMPARE(told(), before);
    }

    // Devices at CAN IDs no frame can carry are named in a warning and send nothing; the others
    // poll as usual, and every frame on the wire is well formed.
    void impossible_can_ids_send_nothing_data() {
        QTest::addColumn<QList<int>>("ids");
        QTest::addColumn<QList<int>>("sending");
        QTest::newRow("beyond 0x7ff, negative, beyond 32 bits")
            << QList<int>{4096, 7, -1, 2147483647, 9} << QList<int>{7, 9};
        QTest::newRow("0 and 0x7ff are the edges")
            << QList<int>{0x800, 0, 0x7ff} << QList<int>{0, 0x7ff};
        QTest::newRow("none can send") << QList<int>{4096} << QList<int>{};
    }
    void impossible_can_ids_send_nothing() {
        QFETCH(QList<int>, ids);
        QFETCH(QList<int>, sending);
        pty_pair pty;
        QVERIFY(pty.ok());
        QByteArray rest = "mini_usb_mode=false\ndevice_count=" + QByteArray::number(ids.size());
        for (int i = 0; i < ids.size(); ++i) {
            rest += "\ndevice_" + QByteArray::number(i) + "=" + QByteArray::number(ids.at(i));
        }
        scratch_dir dir(config_naming(pty.slave_path(), rest + "\n"));
        warning_log warnings;
        auto window = loaded_window("Veltrano", {{pty.slave_path(), "Test adapter"}});
        QStringList named;  // the devices the warnings say send nothing
        for (const QString &line : warnings.lines()) {
            const auto match = QRegularExpression(R"(^device .* has CAN ID (-?\d+), which no )"
                                                  R"(frame can carry.*sends nothing$)")
                                   .match(line);
            if (match.hasMatch()) {
                named << match.captured(1);
            }
        }
        QStringList silent;
        for (int id : ids) {
            if (!sending.contains(id)) {
                silent << QString::number(id);
            }
        }
        QCOMPARE(named, silent);

        widget<QPushButton>(*window, "connect_button")->click();
        QCOMPARE(pty.read_exactly(adapter_start.size()), adapter_start);
        if (sending.isEmpty()) {
            QTest::qWait(200);  // ticks that would poll
            QCOMPARE(pty.read_until_quiet(100, 500), QByteArray());
            return;
        }
        // Type requests in round-robin order: three rounds of the devices that can send.
        constexpr int frame_bytes = 29;  // 25 characters and the two line ends
        const int count = 3 * sending.size();
        QByteArray wire;  // read in short turns: the window's event loop drives the polling
        QTRY_VERIFY((wire += pty.read_exactly(count * frame_bytes - wire.size(), 20)).size() ==
                    count * frame_bytes);
        // A type request: code d0, host 22, reserved 0000, value 00000000, checksum.
        const QRegularExpression well_formed(
            R"(^t([0-9a-f]{3})8d022000000000000[0-9a-f]{4}\r\n\r\n$)");
        QList<int> polled;
        for (int i = 0; i < count; ++i) {
            const QString frame = QString::fromLatin1(wire.mid(i * frame_bytes, frame_bytes));
            const auto match = well_formed.match(frame);
            QVERIFY2(match.hasMatch(), qPrintable(frame));
            polled << match.captured(1).toInt(nullptr, 16);
        }
        QCOMPARE(polled, sending + sending + sending);
    }

    // The TTL tester's texts as the adapter gets them (the writer adds CR LF).
    void ttl_commands_on_the_wire_data() {
        QTest::addColumn<QString>("button");
        QTest::addColumn<double>("value");  // of the button's spin box
        QTest::addColumn<int>("clicks");
        QTest::addColumn<QString>("wire");
        QTest::addColumn<QString>("start_text");
        const auto row = [](const char *name, const char *button, double value, int clicks,
                            const char *wire, const char *start_text) {
            QTest::newRow(name) << QString(button) << value << clicks << QString(wire)
                                << QString(start_text);
        };
        row("0.4 Hz", "pushButton", 0.4, 1, "FREQ_TTL 0\r\r\n", "START");
        row("no separators", "pushButton", 2.5e6, 1, "FREQ_TTL 2500000\r\r\n", "START");
        row("width rounds", "pushButton_2", 12345.6, 1, "PW_TTL 12346\r\r\n", "START");
        row("first click stops", "pushButton_3", 0.0, 1, "Stop_TTL\r\r\n", "START");
        row("second click starts", "pushButton_3", 0.0, 2, "Stop_TTL\r\r\nStart_TTL\r\r\n", "STOP");
    }
    void ttl_commands_on_the_wire() {
        QFETCH(QString, button);
        QFETCH(double, value);
        QFETCH(int, clicks);
        QFETCH(QString, wire);
        QFETCH(QString, start_text);
        pty_pair pty;
        QVERIFY(pty.ok());
        // No devices, so that only the tester's texts travel.
        scratch_dir dir(config_naming(pty.slave_path(), "device_count=0\n"));
        auto window = loaded_window("Bench", {{pty.slave_path(), "Test adapter"}});
        widget<QTableWidget>(*window, "device_table")->setRowCount(0);
        widget<QPushButton>(*window, "apply_pb")->click();
        widget<QPushButton>(*window, "connect_button")->click();
        QCOMPARE(pty.read_exactly(adapter_start.size()), adapter_start);
        widget<QDoubleSpinBox>(*window, "freq_spin")->setValue(value);
        widget<QDoubleSpinBox>(*window, "pw_spin")->setValue(value);
        for (int i = 0; i < clicks; ++i) {
            window->findChild<QPushButton *>(button)->click();
        }
        QCOMPARE(pty.read_exactly(wire.size()), wire.toLatin1());
        QCOMPARE(pty.read_until_quiet(100, 1000), QByteArray());
        QCOMPARE(widget<QPushButton>(*window, "pushButton_3")->text(), start_text);
    }
};

QTEST_MAIN(test_main_window_serial)
#include "test_main_window_serial.moc"
