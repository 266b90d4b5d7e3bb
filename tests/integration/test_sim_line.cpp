// The simulator's side of the cable: the SLCAN adapter, the pseudo-terminal, the stable link, the
// command line, and the lumivox-sim program itself (started as a process).
#include "device_profiles.h"
#include "frame_codec.h"
#include "sim_bus.h"
#include "sim_options.h"
#include "sim_pty.h"
#include "slcan_adapter.h"

#include <QFile>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>
#include <csignal>

namespace {

QByteArray request(int id, int code, long value = 0) {
    return frame_codec::compose(id, code, frame_codec::to_wire(value)).toLatin1();
}

// The program's end of a line: the slave side of the pseudo-terminal, opened like a serial port.
class port_end {
public:
    explicit port_end(const QString &path) {
        fd_ = ::open(QFile::encodeName(path).constData(), O_RDWR | O_NOCTTY | O_NONBLOCK);
        if (fd_ >= 0) {
            termios raw{};
            ::tcgetattr(fd_, &raw);
            ::cfmakeraw(&raw);
            ::tcsetattr(fd_, TCSANOW, &raw);
        }
    }
    ~port_end() {
        if (fd_ >= 0) {
            ::close(fd_);
        }
    }
    bool ok() const { return fd_ >= 0; }
    bool write(const QByteArray &bytes) {
        return ::write(fd_, bytes.constData(), static_cast<size_t>(bytes.size())) == bytes.size();
    }
    // Writes what the line takes now; returns how many bytes that was.
    int write_some(const QByteArray &bytes) {
        const ssize_t n = ::write(fd_, bytes.constData(), static_cast<size_t>(bytes.size()));
        return n > 0 ? static_cast<int>(n) : 0;
    }
    // Takes what has arrived so far (non-blocking).
    QByteArray take() {
        QByteArray out;
        char buf[1024];
        ssize_t n;
        while ((n = ::read(fd_, buf, sizeof buf)) > 0) {
            out.append(buf, static_cast<int>(n));
        }
        received_ += out;
        return out;
    }
    QByteArray &received() { return received_; }
    // Whether the other end has gone.
    bool hung_up() const {
        pollfd p{fd_, POLLIN, 0};
        return ::poll(&p, 1, 0) >= 0 && (p.revents & (POLLHUP | POLLERR)) != 0;
    }

private:
    int fd_ = -1;
    QByteArray received_;
};

// Collects a process's standard output lines as they come.
QString next_line(QProcess &process, int timeout_ms = 5000) {
    QElapsedTimer clock;
    clock.start();
    while (!process.canReadLine() && clock.elapsed() < timeout_ms) {
        if (!process.waitForReadyRead(static_cast<int>(timeout_ms - clock.elapsed()))) {
            break;
        }
    }
    return process.canReadLine() ? QString::fromLocal8Bit(process.readLine()).trimmed() : QString();
}

const QString sim_exe = QStringLiteral(LUMIVOX_SIM_EXE);

}  // namespace

class test_sim_line : public QObject {
    Q_OBJECT

private slots:
    void adapter_answers_like_slcan_data() {
        QTest::addColumn<QList<QByteArray>>("chunks");
        QTest::addColumn<QByteArray>("expected");
        QTest::addColumn<int>("frames");
        using c = QList<QByteArray>;
        const QByteArray type_req = request(1, 0xD0);
        QTest::newRow("the program's start, three pairs")
            << c{QByteArray("O\r\r\nS6\r\r\n").repeated(3)} << QByteArray("\r\r\r\r\r\r") << 0;
        QTest::newRow("close") << c{"C\r"} << QByteArray("\r") << 0;
        QTest::newRow("unknown command") << c{"V\r\r\n"} << QByteArray("\a") << 0;
        QTest::newRow("bit rate out of range") << c{"S9\r"} << QByteArray("\a") << 0;
        QTest::newRow("TTL tester text") << c{"Start_TTL\r\r\n"} << QByteArray("\a") << 0;
        QTest::newRow("frame before the channel is open")
            << c{type_req + "\r\n"} << QByteArray("\a") << 0;
        QTest::newRow("frame after open, extra line ends ignored")
            << c{"O\r\r\n", type_req + "\r\n"} << QByteArray("\r") << 1;
        QTest::newRow("frame split across reads")
            << c{"O\r", type_req.left(10), type_req.mid(10) + "\r\n"} << QByteArray("\r") << 1;
        QByteArray bad_crc = type_req.left(25);
        bad_crc[24] = bad_crc.at(24) == '0' ? '1' : '0';
        QTest::newRow("bad checksum") << c{"O\r", bad_crc + "\r"} << QByteArray("\r\a") << 0;
        QTest::newRow("short frame")
            << c{"O\r", type_req.left(20) + "\r"} << QByteArray("\r\a") << 0;
        QTest::newRow("closed again") << c{"O\rC\r", type_req + "\r"} << QByteArray("\r\r\a") << 0;
        QTest::newRow("overlong line") << c{QByteArray(200, 'x') + "\r"} << QByteArray("\a") << 0;
        QByteArray upper = "t" + type_req.mid(1, 20).toUpper();
        upper += QByteArray::number(frame_codec::crc16_modbus(upper.constData(), 21), 16)
                     .rightJustified(4, '0')
                     .toUpper();
        QTest::newRow("upper-case hex") << c{"O\r", upper + "\r"} << QByteArray("\r") << 1;
    }
    void adapter_answers_like_slcan() {
        QFETCH(QList<QByteArray>, chunks);
        QFETCH(QByteArray, expected);
        QFETCH(int, frames);
        sim_bus bus;
        QVERIFY(bus.add_device(1, 14));
        slcan_adapter adapter(bus);
        QByteArray out;
        for (const QByteArray &chunk : chunks) {
            out += adapter.feed(chunk);
        }
        // A frame that reached the device brings its answer, in lower case, after the adapter's
        // replies.
        if (frames > 0) {
            QVERIFY(out.startsWith(expected));
            QCOMPARE(out, out.toLower());
            const frame_codec::parsed_line answer =
                frame_codec::parse(QString::fromLatin1(out.mid(expected.size()).chopped(1)));
            QVERIFY(answer.is_frame);
            QCOMPARE(answer.code, 0xD0);
            QCOMPARE(answer.value, 14);
        } else {
            QCOMPARE(out, expected);
        }
        QCOMPARE(adapter.frames_passed(), frames);
        QCOMPARE(bus.frames(), frames);
    }

    void line_carries_requests_and_answers() {
        sim_bus bus;
        QVERIFY(bus.add_device(3, 23));
        sim_pty pty(bus);
        QVERIFY2(pty.open(), qPrintable(pty.error_string()));
        port_end port(pty.slave_path());
        QVERIFY(port.ok());
        QSignalSpy received(&pty, &sim_pty::sig_received);
        QVERIFY(
            port.write("O\r\r\nS6\r\r\n" + request(3, 0xD0) + "\r\n" + request(3, 0xD1) + "\r\n"));
        QTRY_COMPARE((port.take(), port.received().count('\r')), 4);
        const QList<QByteArray> lines = port.received().split('\r');
        QCOMPARE(frame_codec::parse(QString::fromLatin1(lines.at(2))).value, 23);
        QCOMPARE(frame_codec::parse(QString::fromLatin1(lines.at(3))).value, 3);
        QVERIFY(received.count() > 0);
        QCOMPARE(pty.bytes_received(), qint64(9 + 2 * 29));  // as the program writes them
        QCOMPARE(pty.bytes_sent(), qint64(2 + 2 * 26));
    }

    void line_keeps_answers_the_program_does_not_read_yet() {
        // Far more answers than the terminal buffers: they wait in the simulator, none is lost.
        sim_bus bus;
        QVERIFY(bus.add_device(3, 14));
        sim_pty pty(bus);
        QVERIFY(pty.open());
        port_end port(pty.slave_path());
        QVERIFY(port.write("O\r"));
        QTRY_COMPARE((port.take(), port.received()), QByteArray("\r"));
        const int count = 3000;  // 78 kB of answers
        QByteArray burst;
        for (int i = 0; i < count; ++i) {
            burst += request(3, 0xD1) + "\r\n";
        }
        // Nothing is read while the requests go out.
        QByteArray rest = burst;
        QTRY_VERIFY_WITH_TIMEOUT((rest.remove(0, port.write_some(rest)), rest.isEmpty()), 20000);
        QTRY_COMPARE_WITH_TIMEOUT((port.take(), port.received().count('\r')), 1 + count, 20000);
    }

    void hang_up_closes_the_line() {
        sim_bus bus;
        sim_pty pty(bus);
        QVERIFY(pty.open());
        const QString path = pty.slave_path();
        port_end port(path);
        QVERIFY(port.ok());
        QVERIFY(!port.hung_up());
        QSignalSpy hung(&pty, &sim_pty::sig_hung_up);
        pty.hang_up();
        QCOMPARE(hung.count(), 1);
        QVERIFY(!pty.is_open());
        QTRY_VERIFY(port.hung_up());
        pty.hang_up();  // once only
        QCOMPARE(hung.count(), 1);
    }

    void link_points_at_the_line() {
        QTemporaryDir dir;
        const QString link = dir.filePath(QStringLiteral("port"));
        QString error;
        QVERIFY(sim_pty::point_link(link, QStringLiteral("/dev/pts/998"), &error));
        QVERIFY(sim_pty::point_link(link, QStringLiteral("/dev/pts/999"), &error));  // replaced
        QCOMPARE(QFile::symLinkTarget(link), QStringLiteral("/dev/pts/999"));
        sim_pty::remove_link(link, QStringLiteral("/dev/pts/998"));  // not ours: stays
        QVERIFY(QFileInfo(link).isSymLink());
        sim_pty::remove_link(link, QStringLiteral("/dev/pts/999"));
        QVERIFY(!QFileInfo(link).isSymLink());

        const QString file = dir.filePath(QStringLiteral("file"));
        QFile f(file);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.close();
        QVERIFY(!sim_pty::point_link(file, QStringLiteral("/dev/pts/999"), &error));
        QVERIFY(error.contains(QLatin1String("not a symbolic link")));
        QVERIFY(QFileInfo(file).isFile());
    }

    void command_line_is_read_data() {
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<QString>("devices");  // "id:type ..." as read
        QTest::addColumn<QString>("faults");   // the faults as read
        QTest::newRow("devices") << QStringList{"--device", "1:14", "--device", "0x20:20"}
                                 << "1:14 32:20"
                                 << "";
        QTest::newRow("windows with defaults")
            << QStringList{"--device",  "2:23",  "--silent", "2",
                           "--garbage", "2:100", "--silent", "2:0x10:300"}
            << "2:23"
            << "silent 2@0+-1 silent 2@16+300 garbage 2@100+-1";
        QTest::newRow("type change, alarm, hang-up")
            << QStringList{"--device", "3:14",    "--change-type",  "3:20:500",
                           "--alarm",  "3:0x102", "--hangup-after", "900:50"}
            << "3:14"
            << "type 3->20@500 alarm 3=258@0 hangup 900+50";
        QTest::newRow("every type after a given one")
            << QStringList{"--device", "2:4", "--every-type"} << ""
            << "every";
    }
    void command_line_is_read() {
        QFETCH(QStringList, args);
        QFETCH(QString, devices);
        QFETCH(QString, faults);
        sim_options o;
        QString error;
        QVERIFY2(parse_sim_options(QStringList{"lumivox-sim"} + args, &o, &error),
                 qPrintable(error));
        QStringList seen;
        for (const auto &d : o.devices) {
            seen << QStringLiteral("%1:%2").arg(d.can_id).arg(d.type_id);
        }
        if (faults == QLatin1String("every")) {
            // 2 is taken by the given device; the others fill 1, 3, 4, ... in type order.
            const std::vector<int> types = sim::modelled_types();
            QCOMPARE(o.devices.size(), types.size() + 1);
            QCOMPARE(seen.at(0), QStringLiteral("2:4"));
            QCOMPARE(seen.at(1), QStringLiteral("1:%1").arg(types.at(0)));
            QCOMPARE(seen.at(2), QStringLiteral("3:%1").arg(types.at(1)));
            QCOMPARE(seen.last(), QStringLiteral("%1:%2").arg(types.size() + 1).arg(types.back()));
            return;
        }
        QCOMPARE(seen.join(QLatin1Char(' ')), devices);
        QStringList f;
        for (const auto &w : o.silent) {
            f << QStringLiteral("silent %1@%2+%3").arg(w.can_id).arg(w.after_ms).arg(w.length_ms);
        }
        for (const auto &w : o.garbage) {
            f << QStringLiteral("garbage %1@%2+%3").arg(w.can_id).arg(w.after_ms).arg(w.length_ms);
        }
        for (const auto &c : o.type_changes) {
            f << QStringLiteral("type %1->%2@%3").arg(c.can_id).arg(c.type_id).arg(c.after_ms);
        }
        for (const auto &a : o.alarms) {
            f << QStringLiteral("alarm %1=%2@%3").arg(a.can_id).arg(a.bits).arg(a.after_ms);
        }
        if (o.hangup_after_ms >= 0) {
            f << QStringLiteral("hangup %1+%2").arg(o.hangup_after_ms).arg(o.replug_after_ms);
        }
        QCOMPARE(f.join(QLatin1Char(' ')), faults);
        sim_bus bus;
        QVERIFY2(populate_bus(o, bus, &error), qPrintable(error));
        QCOMPARE(int(bus.devices().size()), int(o.devices.size()));
    }

    void command_line_errors_data() {
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<QString>("message");  // part of the error, "" when parsing passes
        QTest::addColumn<QString>("populate_message");
        const auto row = [](const char *name, const QStringList &args, const char *message,
                            const char *populate_message = "") {
            QTest::newRow(name) << args << QString(message) << QString(populate_message);
        };
        row("type not modelled", {"--device", "1:24"}, "not modelled");
        row("id twice", {"--device", "1:14", "--device", "1:20"}, "twice");
        row("id too large", {"--device", "0x800:14"}, "0x7FF");
        row("not a number", {"--silent", "two"}, "ID[:AFTER_MS");
        row("negative time", {"--silent", "1:-5"}, "ID[:AFTER_MS");
        row("unknown option", {"--bogus"}, "bogus");
        row("stray argument", {"14"}, "unexpected");
        row("alarm without bits", {"--alarm", "1:0"}, "BITS");
        row("fault on an empty address", {"--device", "1:14", "--garbage", "2"}, "",
            "no device at CAN ID 2");
        row("alarm on a type without alarm word", {"--device", "1:20", "--alarm", "1:1"}, "",
            "alarm word");
    }
    void command_line_errors() {
        QFETCH(QStringList, args);
        QFETCH(QString, message);
        QFETCH(QString, populate_message);
        sim_options o;
        QString error;
        const bool parsed = parse_sim_options(QStringList{"lumivox-sim"} + args, &o, &error);
        QCOMPARE(parsed, message.isEmpty());
        if (!parsed) {
            QVERIFY2(error.contains(message), qPrintable(error));
            return;
        }
        sim_bus bus;
        QVERIFY(!populate_bus(o, bus, &error));
        QVERIFY2(error.contains(populate_message), qPrintable(error));
    }

    void program_serves_a_link_and_stops_on_a_signal_data() {
        QTest::addColumn<int>("signal_number");
        QTest::newRow("Ctrl-C") << int(SIGINT);
        QTest::newRow("SIGTERM") << int(SIGTERM);
    }
    void program_serves_a_link_and_stops_on_a_signal() {
        QFETCH(int, signal_number);
        QTemporaryDir dir;
        const QString link = dir.filePath(QStringLiteral("lumivox-port"));
        QProcess sim;
        sim.start(sim_exe, {"--device", "1:14", "--device", "2:20", "--link", link});
        QVERIFY(sim.waitForStarted());
        const QString path = next_line(sim);
        QVERIFY2(path.startsWith(QLatin1String("/dev/")), qPrintable(path));
        QTRY_COMPARE(QFile::symLinkTarget(link), path);

        port_end port(link);
        QVERIFY(port.ok());
        QVERIFY(port.write("O\r\r\nS6\r\r\n" + request(2, 0xD0) + "\r\n"));
        QTRY_COMPARE((port.take(), port.received().count('\r')), 3);
        QCOMPARE(frame_codec::parse(QString::fromLatin1(port.received().split('\r').at(2))).value,
                 20);

        ::kill(static_cast<pid_t>(sim.processId()), signal_number);
        QVERIFY(sim.waitForFinished(5000));
        QCOMPARE(sim.exitStatus(), QProcess::NormalExit);
        QCOMPARE(sim.exitCode(), 0);
        QVERIFY(!QFileInfo(link).isSymLink());  // cleaned up
    }

    void program_hangs_up_and_comes_back() {
        QTemporaryDir dir;
        const QString link = dir.filePath(QStringLiteral("port"));
        QProcess sim;
        sim.start(sim_exe, {"--device", "5:18", "--link", link, "--hangup-after", "1000:300"});
        QVERIFY(sim.waitForStarted());
        const QString first = next_line(sim);
        QVERIFY(!first.isEmpty());
        {
            // On a machine slow enough to miss the first second, the line is already gone.
            port_end port(first);
            if (port.ok()) {
                QTRY_VERIFY(port.hung_up());
            }
        }
        const QString second = next_line(sim);
        QVERIFY(!second.isEmpty());
        QTRY_COMPARE(QFile::symLinkTarget(link), second);
        port_end port(link);
        QVERIFY(port.ok());
        QVERIFY(port.write("O\r" + request(5, 0xD1) + "\r\n"));
        QTRY_COMPARE((port.take(), port.received().count('\r')), 2);
        sim.terminate();
        QVERIFY(sim.waitForFinished(5000));
        QCOMPARE(sim.exitCode(), 0);
    }

    void program_ends_after_a_final_hang_up() {
        QProcess sim;
        sim.start(sim_exe, {"--device", "1:4", "--hangup-after", "100"});
        QVERIFY(sim.waitForStarted());
        QVERIFY(!next_line(sim).isEmpty());
        QVERIFY(sim.waitForFinished(5000));
        QCOMPARE(sim.exitCode(), 0);
    }

    void program_help_and_bad_arguments() {
        QProcess help;
        help.start(sim_exe, {"--help"});
        QVERIFY(help.waitForFinished(5000));
        QCOMPARE(help.exitCode(), 0);
        const QString text = QString::fromLocal8Bit(help.readAllStandardOutput());
        for (const char *option : {"--device", "--link", "--silent", "--garbage", "--change-type",
                                   "--alarm", "--hangup-after", "--every-type", "--steady"}) {
            QVERIFY2(text.contains(QLatin1String(option)), option);
        }
        QProcess bad;
        bad.start(sim_exe, {"--device", "1:99"});
        QVERIFY(bad.waitForFinished(5000));
        QCOMPARE(bad.exitCode(), 2);
        QVERIFY(bad.readAllStandardError().contains("not modelled"));
        QVERIFY(bad.readAllStandardOutput().isEmpty());
    }
};

QTEST_GUILESS_MAIN(test_sim_line)
#include "test_sim_line.moc"
