// What the command server costs and how fast it answers, measured from outside: the real
// `lumivox` polls simulated CW drivers (in this process, over a pseudo-terminal) and clients of
// this process talk to its server on loopback. Not a test: nothing is asserted.
//
//     bench_remote [lumivox program] [measured ms per phase, 10000] [devices, 8]
//
// Printed: the program's CPU (share of one core, all threads, from /proc) windowed (offscreen, and
// on Xvfb with the X server's CPU added when Xvfb is installed) and --headless without the server; with the server idle, with 8 idle clients connected, and with one client
// asking 1000 queries a second; and the time from a query's first byte out to its answer's last
// byte in, for one client asking one query after the other.
#include "bench_support.h"
#include "sim_bus.h"
#include "sim_pty.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <functional>
#include <memory>
#include <vector>

namespace {

// CPU time of every thread of `pid` so far, in milliseconds (the scheduler's nanoseconds).
double process_cpu_ms(qint64 pid) {
    double total = 0;
    const QString base = QStringLiteral("/proc/%1/task").arg(pid);
    for (const QString &tid : QDir(base).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile schedstat(base + QLatin1Char('/') + tid + QStringLiteral("/schedstat"));
        if (schedstat.open(QIODevice::ReadOnly)) {
            total += schedstat.readAll().split(' ').value(0).toDouble() / 1e6;
        }
    }
    return total;
}

// The program against `devices` simulated CW drivers, in a scratch directory with its own HOME.
class program_run {
public:
    program_run(const QString &program, int devices, const QStringList &arguments,
                bool lively = false, const QString &display = {}) {
        for (int i = 0; i < devices; ++i) {
            bus_.add_device(i + 1, 14)->set_lively(lively);
        }
        line_ = std::make_unique<sim_pty>(bus_);
        if (!line_->open()) {
            return;
        }
        QObject::connect(&clock_, &QTimer::timeout, [this] { bus_.advance(10); });
        clock_.start(10);
        write_device_table(dir_.path(), line_->slave_path(), devices);
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        if (display.isEmpty()) {
            env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        } else {
            env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
            env.insert(QStringLiteral("DISPLAY"), display);
        }
        env.insert(QStringLiteral("HOME"), dir_.path());
        env.insert(QStringLiteral("XDG_CONFIG_HOME"), dir_.filePath(QStringLiteral("config")));
        env.remove(QStringLiteral("QT_LOGGING_RULES"));
        process_.setProcessEnvironment(env);
        process_.setWorkingDirectory(dir_.path());
        process_.setStandardOutputFile(QProcess::nullDevice());
        // The debug log is read and dropped as it comes; the server's address is taken from it.
        QObject::connect(&process_, &QProcess::readyReadStandardError, [this] {
            const QString text = QString::fromLocal8Bit(process_.readAllStandardError());
            const QRegularExpressionMatch found =
                QRegularExpression(QStringLiteral("listening at 127\\.0\\.0\\.1:(\\d+)"))
                    .match(text);
            if (found.hasMatch()) {
                port_ = static_cast<quint16>(found.captured(1).toUInt());
            }
        });
        process_.start(program, arguments);
        if (!process_.waitForStarted(10000)) {
            return;
        }
        run_for(20000, [this] { return bus_.frames() > 0; });
        // Every device found and its panel through its configuration rows.
        run_for(3000 + 400 * devices);
        started_ = bus_.frames() > 0;
    }

    ~program_run() {
        if (process_.state() != QProcess::NotRunning) {
            ::kill(static_cast<pid_t>(process_.processId()), SIGTERM);
            if (!process_.waitForFinished(10000)) {
                process_.kill();
                process_.waitForFinished(3000);
            }
        }
    }

    bool started() const { return started_; }
    quint16 port() const { return port_; }

    // The program's CPU share of one core, in percent, while `ms` pass; with `also`, that
    // process's share over the same time is added (the X server that draws the window).
    double cpu_percent(int ms, qint64 also = 0) {
        const auto cpu = [this, also] {
            return process_cpu_ms(process_.processId()) + (also ? process_cpu_ms(also) : 0.0);
        };
        const double before = cpu();
        QElapsedTimer wall;
        wall.start();
        run_for(ms);
        return 100.0 * (cpu() - before) / static_cast<double>(wall.elapsed());
    }

private:
    QTemporaryDir dir_;
    sim_bus bus_;
    std::unique_ptr<sim_pty> line_;
    QTimer clock_;
    QProcess process_;
    quint16 port_ = 0;
    bool started_ = false;
};

std::unique_ptr<QTcpSocket> connect_client(quint16 port) {
    auto socket = std::make_unique<QTcpSocket>();
    socket->connectToHost(QStringLiteral("127.0.0.1"), port);
    if (!socket->waitForConnected(5000)) {
        return nullptr;
    }
    socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    return socket;
}

const QByteArray query = "DEV1:READ? temperature\n";

}  // namespace

int main(int argc, char *argv[]) {
    QCoreApplication app(argc, argv);
    const QString given = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString();
    const QString program = given.isEmpty() ? QStringLiteral(LUMIVOX_EXE) : given;
    const int measure_ms = argc > 2 ? QString::fromLocal8Bit(argv[2]).toInt() : 10000;
    const int devices = argc > 3 ? QString::fromLocal8Bit(argv[3]).toInt() : 8;
    std::printf("remote: lumivox polling %d CW drivers, %.0f s per figure, CPU of all "
                "its threads from /proc\n",
                devices, measure_ms / 1000.0);

    // Steady readings change no label; lively ones (noise, drift) change some on most reports,
    // and only the window then has something to draw.
    for (const bool lively : {false, true}) {
        double windowed = 0;
        double headless = 0;
        {
            program_run run(program, devices, {}, lively);
            if (!run.started()) {
                std::fprintf(stderr, "bench_remote: the program did not start polling\n");
                return 1;
            }
            windowed = run.cpu_percent(measure_ms);
        }
        {
            program_run run(program, devices, {QStringLiteral("--headless")}, lively);
            headless = run.cpu_percent(measure_ms);
        }
        // On an X server (Xvfb, when installed) the drawing is done there too: its CPU counts.
        double on_x = -1;
        const QString xvfb = QStandardPaths::findExecutable(QStringLiteral("Xvfb"));
        if (!xvfb.isEmpty()) {
            int number = 90;
            while (number < 199 && QFile::exists(QStringLiteral("/tmp/.X11-unix/X%1").arg(number))) {
                ++number;
            }
            const QString display = QStringLiteral(":%1").arg(number);
            QProcess server;
            server.setProcessChannelMode(QProcess::ForwardedErrorChannel);
            server.setStandardOutputFile(QProcess::nullDevice());
            server.start(xvfb, {display, QStringLiteral("-nolisten"), QStringLiteral("tcp"),
                                QStringLiteral("-screen"), QStringLiteral("0"),
                                QStringLiteral("1280x1024x24")});
            run_for(5000, [&display] {
                return QFile::exists(QStringLiteral("/tmp/.X11-unix/X") + display.mid(1));
            });
            {
                program_run run(program, devices, {}, lively, display);
                on_x = run.cpu_percent(measure_ms, server.processId());
            }
            server.terminate();
            server.waitForFinished(5000);
        }
        const char *readings = lively ? "lively" : "steady";
        if (on_x >= 0) {
            std::printf("  %s, windowed on Xvfb:        %6.2f %% of one core, with the X server\n",
                        readings, on_x);
        }
        std::printf("  %s, windowed, no server:     %6.2f %% of one core\n", readings, windowed);
        std::printf("  %s, --headless, no server:   %6.2f %% of one core (%.0f %% of windowed)\n",
                    readings, headless, windowed > 0 ? 100.0 * headless / windowed : 0.0);
    }

    program_run run(program, devices,
                    {QStringLiteral("--headless"), QStringLiteral("--listen"),
                     QStringLiteral("127.0.0.1:0")});
    if (run.port() == 0) {
        std::fprintf(stderr, "bench_remote: the server did not say where it listens\n");
        return 1;
    }
    const double idle = run.cpu_percent(measure_ms);
    std::vector<std::unique_ptr<QTcpSocket>> idle_clients;
    for (int i = 0; i < 8; ++i) {
        idle_clients.push_back(connect_client(run.port()));
    }
    const double eight_idle = run.cpu_percent(measure_ms);
    // The first of them asks from now on (a client more than 8 would be closed at once).
    std::unique_ptr<QTcpSocket> client = std::move(idle_clients.front());
    idle_clients.clear();
    std::printf("  steady, --headless, server idle:      %6.2f %% of one core\n", idle);
    std::printf("  steady, --headless, 8 idle clients:   %6.2f %% of one core (%+.2f)\n", eight_idle,
                eight_idle - idle);

    // One client, 1000 queries a second: one every millisecond, answers read as they come.
    if (!client) {
        std::fprintf(stderr, "bench_remote: cannot connect\n");
        return 1;
    }
    qint64 answers = 0;
    QObject::connect(client.get(), &QTcpSocket::readyRead, [&] {
        while (client->canReadLine()) {
            client->readLine();
            ++answers;
        }
    });
    QTimer pace;
    pace.setTimerType(Qt::PreciseTimer);
    qint64 sent = 0;
    QObject::connect(&pace, &QTimer::timeout, [&] {
        client->write(query);
        ++sent;
    });
    pace.start(1);
    const double loaded = run.cpu_percent(measure_ms);
    pace.stop();
    run_for(1000, [&] { return answers >= sent; });
    QObject::disconnect(client.get(), &QTcpSocket::readyRead, nullptr, nullptr);
    const double rate = static_cast<double>(sent) * 1000.0 / measure_ms;
    std::printf("  steady, --headless, %4.0f queries/s:   %6.2f %% of one core (%+.2f, %.1f us CPU per "
                "query; %lld of %lld answered)\n",
                rate, loaded, loaded - idle, (loaded - idle) * 1e4 / (rate > 0 ? rate : 1),
                static_cast<long long>(answers), static_cast<long long>(sent));

    // Latency: one query after the other on loopback.
    std::vector<double> us;
    QElapsedTimer clock;
    for (int i = 0; i < 3000; ++i) {
        clock.start();
        client->write(query);
        client->flush();
        while (!client->canReadLine()) {
            if (!client->waitForReadyRead(2000)) {
                break;
            }
        }
        client->readLine();
        us.push_back(static_cast<double>(clock.nsecsElapsed()) / 1000.0);
    }
    std::sort(us.begin(), us.end());
    const auto at = [&us](double share) {
        return us[std::min(us.size() - 1, static_cast<size_t>(share * us.size()))];
    };
    std::printf("  query latency (%zu, loopback): median %.0f us, 99 %% %.0f us, max %.0f us\n",
                us.size(), at(0.5), at(0.99), us.back());
    return 0;
}
