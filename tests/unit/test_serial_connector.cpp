// The serial link over a real pseudo-terminal: the test holds the master end of the line.
#include "cross_thread.h"
#include "frame_codec.h"
#include "pty_pair.h"
#include "serial_connector.h"

#include <QDir>
#include <QFileInfo>
#include <QScopeGuard>
#include <QtTest>

#include <pthread.h>
#include <time.h>
#include <algorithm>
#include <mutex>

namespace {

const QByteArray adapter_start = QByteArray("O\r\r\nS6\r\r\n").repeated(3);

// Calls a slot of the connector in its own thread, as the window's queued signals do.
template <typename F>
void in_link_thread(serial_connector &link, F fn) {
    post_to(&link, std::move(fn));
}

// CPU time the connector's thread has used so far, in milliseconds.
double thread_cpu_ms(serial_connector &link) {
    pthread_t handle{};
    run_in(&link, [&handle] { handle = pthread_self(); });
    clockid_t clock{};
    timespec ts{};
    if (pthread_getcpuclockid(handle, &clock) != 0 || clock_gettime(clock, &ts) != 0) {
        return -1;
    }
    return ts.tv_sec * 1e3 + ts.tv_nsec / 1e6;
}

// Every message of the process while a test captures them, as "category: text" (the link logs
// from its own thread).
std::mutex captured_lock;
QStringList captured;
void capture(QtMsgType, const QMessageLogContext &context, const QString &text) {
    std::lock_guard<std::mutex> hold(captured_lock);
    captured << QLatin1String(context.category) + QStringLiteral(": ") + text;
}

// How many descriptors of this process refer to `path`.
int descriptors_open_on(const QString &path) {
    int count = 0;
    const QDir fds(QStringLiteral("/proc/self/fd"));
    for (const QFileInfo &fd : fds.entryInfoList(QDir::System | QDir::NoDotAndDotDot)) {
        if (fd.symLinkTarget() == path) {
            ++count;
        }
    }
    return count;
}

}  // namespace

class test_serial_connector : public QObject {
    Q_OBJECT

    // A connector opened on a fresh pseudo-terminal (named as its port), with the adapter start
    // bytes consumed.
    struct open_link {
        pty_pair pty;
        serial_connector link;
        signal_log connected{&link, &serial_connector::sig_connected};
        signal_log disconnected{&link, &serial_connector::sig_disconnected};
        signal_log lines{&link, &serial_connector::sig_parse_received_message};

        bool open() {
            const QString path = pty.slave_path();
            in_link_thread(link, [this, path] { link.sl_init_connection(path); });
            const int before = connected.count();
            return connected.wait_for(before + 1) && link.port_name() == path &&
                   pty.read_exactly(adapter_start.size()) == adapter_start;
        }
        QStringList received() const {
            QStringList out;
            for (int i = 0; i < lines.count(); ++i) {
                out << lines.first_arg(i).toString();
            }
            return out;
        }
    };

private slots:
    // A failed open is a disconnection, with the reason kept for the window to tell.
    void open_failure_reports_disconnected_data() {
        QTest::addColumn<QString>("port");  // "pty": the test's pseudo-terminal
        QTest::addColumn<bool>("held");     // by another program (here: a port of the test's own)
        QTest::addColumn<int>("kind");
        QTest::newRow("missing") << "/dev/lumivox-no-such-port" << false
                                 << int(port_failure::missing);
        QTest::newRow("missing, named without /dev") << "lumivox-no-such-port" << false
                                                     << int(port_failure::missing);
        QTest::newRow("none chosen") << "" << false << int(port_failure::no_port);
        QTest::newRow("held by another program") << "pty" << true << int(port_failure::busy);
    }
    void open_failure_reports_disconnected() {
        QFETCH(QString, port);
        QFETCH(bool, held);
        QFETCH(int, kind);
        open_link l;
        if (port == "pty") {
            port = l.pty.slave_path();
        }
        QSerialPort holder(port);
        QVERIFY(!held || holder.open(QIODevice::ReadWrite));
        in_link_thread(l.link, [&l, port] { l.link.sl_init_connection(port); });
        QVERIFY(l.disconnected.wait_for(1));
        QCOMPARE(l.connected.count(), 0);
        QCOMPARE(l.link.port_name(), port);
        const port_failure failure = l.link.take_open_failure();
        QCOMPARE(int(failure.what), kind);
        QCOMPARE(failure.port, port);
        QCOMPARE(int(l.link.take_open_failure().what), int(port_failure::none));  // told once

        // The next open that succeeds leaves nothing to tell.
        holder.close();
        if (held) {
            QVERIFY(l.open());
            QCOMPARE(int(l.link.take_open_failure().what), int(port_failure::none));
        }
    }

    void a_backed_up_line_delays_frames_without_losing_them() {
        // More than the line holds while nobody reads: writing to a full line must not read as
        // an unplugged adapter; every frame follows in order once the line takes bytes again.
        open_link l;
        QVERIFY(l.open());
        QStringList texts;
        QByteArray expected;
        for (int i = 0; i < 5000; ++i) {
            texts << frame_codec::compose(5, 0x12, frame_codec::to_wire(i));
            expected += texts.last().toLatin1() + "\r\n";
        }
        in_link_thread(l.link, [&l, texts] {
            for (const QString &text : texts) {
                l.link.sl_send_string(text);
            }
        });
        const QByteArray wire = l.pty.read_exactly(expected.size(), 20000);
        QCOMPARE(l.disconnected.count(), 0);
        QCOMPARE(wire.size(), expected.size());
        const auto differs = std::mismatch(wire.begin(), wire.end(), expected.begin());
        QCOMPARE(static_cast<int>(differs.first - wire.begin()), expected.size());
    }

    void lines_are_cut_at_carriage_returns_data() {
        QTest::addColumn<QList<QByteArray>>("chunks");
        QTest::addColumn<QStringList>("expected");
        const QByteArray a = "t0058910500000000000a1111";
        const QByteArray b = "t00689106000000000014222";
        QTest::newRow("two frames in one read")
            << QList<QByteArray>{a + "\r" + b + "\r"} << QStringList{a, b};
        QTest::newRow("line split across reads")
            << QList<QByteArray>{a.left(9), a.mid(9) + "\r"} << QStringList{a};
        QTest::newRow("line feed of the next read starts the next piece")
            << QList<QByteArray>{a + "\r", "\n" + b + "\r"} << QStringList{a, "\n" + b};
        QTest::newRow("text after the last carriage return is discarded")
            << QList<QByteArray>{a + "\r\n", b + "\r"} << QStringList{a, b};
        QTest::newRow("partial frame after the last carriage return is discarded")
            << QList<QByteArray>{a + "\r" + b.left(10), b.mid(10) + "\r"}
            << QStringList{a, b.mid(10)};
        QTest::newRow("empty pieces skipped")
            << QList<QByteArray>{"\r\r" + a + "\r\r"} << QStringList{a};
    }
    void lines_are_cut_at_carriage_returns() {
        QFETCH(QList<QByteArray>, chunks);
        QFETCH(QStringList, expected);
        open_link l;
        QVERIFY(l.open());
        qint64 sent = l.link.bytes_received();
        for (const QByteArray &chunk : chunks) {
            QVERIFY(l.pty.write(chunk));
            // Each chunk is read by the program before the next one is written.
            sent += chunk.size();
            QTRY_COMPARE(l.link.bytes_received(), sent);
        }
        QTRY_COMPARE(l.received(), expected);
    }

    // Text before a carriage return is kept up to the guard; a flood beyond it is dropped.
    void text_before_a_carriage_return_data() {
        QTest::addColumn<int>("size");
        QTest::addColumn<bool>("kept");
        QTest::newRow("below the guard") << 4000 << true;
        QTest::newRow("flood") << int(serial_connector::max_buffered_bytes) + 1000 << false;
    }
    void text_before_a_carriage_return() {
        QFETCH(int, size);
        QFETCH(bool, kept);
        open_link l;
        QVERIFY(l.open());
        const QByteArray text(size, 'x');
        const QByteArray line = "t0058910500000000000a1111";
        const qint64 before = l.link.bytes_received();
        QVERIFY(l.pty.write(text));
        QTRY_COMPARE(l.link.bytes_received(), before + text.size());
        QVERIFY(l.pty.write(line + "\r"));
        QTRY_COMPARE(l.lines.count(), 1);
        QCOMPARE(l.received(), QStringList{QString::fromLatin1(kept ? text + line : line)});
    }

    void frames_are_logged_only_when_switched_on_data() {
        QTest::addColumn<QString>("rules");
        QTest::addColumn<bool>("option");  // the program's --log-wire
        QTest::addColumn<bool>("logged");
        QTest::newRow("off by default") << QString() << false << false;
        QTest::newRow("logging rule") << QStringLiteral("lumivox.wire.debug=true") << false << true;
        QTest::newRow("program option") << QString() << true << true;
        QTest::newRow("every debug line on") << QStringLiteral("*.debug=true") << false << true;
    }
    void frames_are_logged_only_when_switched_on() {
        QFETCH(QString, rules);
        QFETCH(bool, option);
        QFETCH(bool, logged);
        if (qEnvironmentVariableIsSet("QT_LOGGING_RULES")) {
            QSKIP("logging rules from the environment take precedence over the ones tried here");
        }
        const QtMessageHandler previous = qInstallMessageHandler(capture);
        const auto restore = qScopeGuard([previous] {
            qInstallMessageHandler(previous);
            QLoggingCategory::setFilterRules(QString());
            captured.clear();
        });
        QLoggingCategory::setFilterRules(rules);
        if (option) {
            serial_connector::enable_wire_log();
        }
        open_link l;
        QVERIFY(l.open());
        const QString frame = frame_codec::compose(5, 0x92, 0);
        in_link_thread(l.link, [&l, frame] { l.link.sl_send_string(frame); });
        QCOMPARE(l.pty.read_exactly(29), frame.toLatin1() + "\r\n");
        const QString answer = QStringLiteral("t0058910500000000000a1111");
        QVERIFY(l.pty.write(answer.toLatin1() + "\r"));
        QVERIFY(l.lines.wait_for(1));

        std::lock_guard<std::mutex> hold(captured_lock);
        QStringList wire;
        for (const QString &m : qAsConst(captured)) {
            if (m.startsWith(QLatin1String("lumivox.wire: "))) {
                wire << m.mid(14);
            }
        }
        QStringList expected;
        if (logged) {
            for (int i = 0; i < 3; ++i) {
                expected << QStringLiteral("O\r") << QStringLiteral("S6\r");
            }
            expected << frame << answer;
        }
        QCOMPARE(wire, expected);
    }

    void connect_while_open_reopens() {
        open_link l;
        QVERIFY(l.open());
        const QString path = l.pty.slave_path();
        in_link_thread(l.link, [&l, path] { l.link.sl_init_connection(path); });
        QTRY_COMPARE(l.connected.count(), 2);
        QCOMPARE(l.pty.read_exactly(adapter_start.size()), adapter_start);
        QCOMPARE(l.disconnected.count(), 0);
    }

    void writes_while_closed_are_dropped() {
        open_link l;
        // No port yet, then a closed port: neither write may reach the line.
        in_link_thread(l.link, [&l] { l.link.sl_send_string("before"); });
        QVERIFY(l.open());
        in_link_thread(l.link, [&l] { l.link.sl_serial_disconnect(); });
        QVERIFY(l.disconnected.wait_for(1));
        in_link_thread(l.link, [&l] { l.link.sl_send_string("while closed"); });
        QVERIFY(l.open());
        in_link_thread(l.link, [&l] { l.link.sl_send_string("after"); });
        QCOMPARE(l.pty.read_exactly(7), QByteArray("after\r\n"));
    }

    void tick_pulses_only_while_open() {
        open_link l;
        signal_log tearing(&l.link, &serial_connector::sig_tearing);
        in_link_thread(l.link, [&l] { l.link.sl_sender(); });
        QVERIFY(l.open());  // runs after the tick above, in the same thread
        QCOMPARE(tearing.count(), 0);
        in_link_thread(l.link, [&l] { l.link.sl_sender(); });
        QVERIFY(tearing.wait_for(1));
        in_link_thread(l.link, [&l] { l.link.sl_serial_disconnect(); });
        in_link_thread(l.link, [&l] { l.link.sl_sender(); });
        QVERIFY(l.disconnected.wait_for(1));
        run_in(&l.link, [] {});
        QCoreApplication::processEvents();
        QCOMPARE(tearing.count(), 1);
    }

    void hang_up_is_one_disconnection_and_the_thread_idles() {
        open_link l;
        QVERIFY(l.open());
        l.pty.hang_up();
        QVERIFY(l.disconnected.wait_for(1));
        const double before = thread_cpu_ms(l.link);
        QTest::qWait(400);  // a window in which a spinning thread would burn CPU
        const double used = thread_cpu_ms(l.link) - before;
        QCOMPARE(l.disconnected.count(), 1);
        QVERIFY2(used < 100, qPrintable(QStringLiteral("thread used %1 ms of CPU").arg(used)));
        signal_log tearing(&l.link, &serial_connector::sig_tearing);
        in_link_thread(l.link, [&l] { l.link.sl_sender(); });
        run_in(&l.link, [] {});
        QCoreApplication::processEvents();
        QCOMPARE(tearing.count(), 0);
    }

    void reopening_and_destroying_release_the_port() {
        auto *link = new serial_connector;
        pty_pair pty;
        signal_log connected(link, &serial_connector::sig_connected);
        const QString path = pty.slave_path();
        for (int i = 1; i <= 3; ++i) {
            post_to(link, [link, path] { link->sl_init_connection(path); });
            QVERIFY(connected.wait_for(i));
        }
        // The test's own descriptor plus the link's one: replaced ports were closed.
        QCOMPARE(descriptors_open_on(path), 2);
        delete link;  // aborts with "destroyed while running" unless the thread was stopped
        QCOMPARE(descriptors_open_on(path), 1);
    }
};

QTEST_GUILESS_MAIN(test_serial_connector)
#include "test_serial_connector.moc"
