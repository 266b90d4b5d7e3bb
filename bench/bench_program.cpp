// What the program costs while it polls eight devices at full rate, measured from outside: the
// real `lumivox` runs (offscreen) against the simulator in this process, and the figures are read
// from /proc. Prints the time from start to the first frame on the wire, the CPU share of one core,
// the CPU time per exchanged frame and the resident memory. Not a test: nothing is asserted.
#include "sim_bus.h"
#include "sim_pty.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

#include <csignal>
#include <cstdio>
#include <unistd.h>

namespace {

// User plus system CPU time of a process, in milliseconds.
double cpu_ms(qint64 pid) {
    QFile stat(QStringLiteral("/proc/%1/stat").arg(pid));
    if (!stat.open(QIODevice::ReadOnly)) {
        return -1;
    }
    const QByteArray text = stat.readAll();
    // Fields after the command name (which may hold spaces) start behind the last ')'.
    const QList<QByteArray> fields = text.mid(text.lastIndexOf(')') + 2).split(' ');
    const double ticks = fields.value(11).toDouble() + fields.value(12).toDouble();
    return ticks * 1000.0 / static_cast<double>(sysconf(_SC_CLK_TCK));
}

// A field of /proc/<pid>/status in kB (VmRSS, VmHWM).
long status_kb(qint64 pid, const char *key) {
    QFile status(QStringLiteral("/proc/%1/status").arg(pid));
    if (!status.open(QIODevice::ReadOnly)) {
        return -1;
    }
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith(key)) {
            return line.mid(static_cast<int>(qstrlen(key)) + 1).simplified().split(' ').value(0).toLong();
        }
    }
    return -1;
}

void wait_until(const std::function<bool()> &done, int timeout_ms) {
    QElapsedTimer clock;
    clock.start();
    while (!done() && clock.elapsed() < timeout_ms) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    }
}

}  // namespace

int main(int argc, char *argv[]) {
    QCoreApplication app(argc, argv);
    const QString given = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString();
    const QString program = given.isEmpty() ? QStringLiteral(LUMIVOX_EXE) : given;
    const int measure_ms = argc > 2 ? QString::fromLocal8Bit(argv[2]).toInt() : 10000;

    // Eight devices of the two types whose panels poll the longest lists.
    sim_bus bus;
    const int types[] = {14, 15, 14, 15, 14, 15, 14, 15};
    for (int i = 0; i < 8; ++i) {
        bus.add_device(i + 1, types[i]);
    }
    sim_pty line(bus);
    if (!line.open()) {
        std::fprintf(stderr, "bench_program: %s\n", qPrintable(line.error_string()));
        return 1;
    }
    QTimer clock;
    QObject::connect(&clock, &QTimer::timeout, [&bus] { bus.advance(10); });
    clock.start(10);

    QTemporaryDir dir;
    QDir(dir.path()).mkpath(QStringLiteral("configs"));
    {
        QSettings ini(dir.filePath(QStringLiteral("configs/config.ini")), QSettings::IniFormat);
        ini.setValue("prev_port", line.slave_path());
        ini.setValue("mini_usb_mode", false);
        ini.setValue("autoconnection_mode", true);
        ini.setValue("device_count", 8);
        for (int i = 0; i < 8; ++i) {
            ini.setValue(QStringLiteral("device_%1").arg(i), i + 1);
            ini.setValue(QStringLiteral("name_device_%1").arg(i), QStringLiteral("Laser %1").arg(i + 1));
        }
    }

    QProcess lumivox;
    lumivox.setWorkingDirectory(dir.path());
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    env.insert(QStringLiteral("QT_LOGGING_RULES"), QStringLiteral("*.debug=false"));
    lumivox.setProcessEnvironment(env);
    lumivox.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    lumivox.setStandardOutputFile(QProcess::nullDevice());

    QElapsedTimer since_start;
    since_start.start();
    lumivox.start(program, QStringList());
    if (!lumivox.waitForStarted(10000)) {
        std::fprintf(stderr, "bench_program: cannot start %s\n", qPrintable(program));
        return 1;
    }
    const qint64 pid = lumivox.processId();

    wait_until([&bus] { return bus.frames() > 0; }, 20000);
    const qint64 first_frame_ms = since_start.elapsed();
    // Let every device be found and every panel fill its configuration rows.
    wait_until([] { return false; }, 3000);

    const double cpu_before = cpu_ms(pid);
    const int frames_before = bus.frames();
    int answers_before = 0;
    for (const auto &d : bus.devices()) {
        answers_before += d->answers();
    }
    QElapsedTimer window;
    window.start();
    wait_until([] { return false; }, measure_ms);
    const double wall = static_cast<double>(window.elapsed());
    const double cpu = cpu_ms(pid) - cpu_before;
    const int requests = bus.frames() - frames_before;
    int answers = -answers_before;
    for (const auto &d : bus.devices()) {
        answers += d->answers();
    }
    const long rss = status_kb(pid, "VmRSS");
    const long peak = status_kb(pid, "VmHWM");

    ::kill(static_cast<pid_t>(pid), SIGTERM);
    const bool ended = lumivox.waitForFinished(10000);

    std::printf("program: 8 devices, %.1f s measured\n", wall / 1000.0);
    std::printf("program: first frame on the wire %lld ms after start\n",
                static_cast<long long>(first_frame_ms));
    std::printf("program: %d requests + %d answers = %.1f frames/s\n", requests, answers,
                (requests + answers) * 1000.0 / wall);
    std::printf("program: CPU %.1f %% of one core, %.1f us CPU per exchanged frame\n",
                100.0 * cpu / wall, requests + answers > 0 ? 1000.0 * cpu / (requests + answers) : 0.0);
    std::printf("program: resident memory %ld kB (peak %ld kB)\n", rss, peak);
    std::printf("program: %s, exit code %d\n",
                ended ? "ended on SIGTERM" : "did not end on SIGTERM", lumivox.exitCode());
    if (!ended) {
        lumivox.kill();
        lumivox.waitForFinished(3000);
    }
    return 0;
}
