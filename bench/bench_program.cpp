// What the program costs while it polls simulated devices at full rate, measured from outside: the
// real `lumivox` runs (offscreen) against the simulator in this process, once with 1, once with 8
// and once with 19 devices, every one answering every request. The figures are read from /proc:
// the CPU share of one core, the CPU time per request, each thread's CPU time and context switches
// per request, and the resident memory. Not a test: nothing is asserted.
//
//     bench_program [lumivox program] [measured ms per run, 10000] [device counts, "1,8,19"]
//                   [device types, "14,15,34,38"]
//
// The devices take the given types in turn over CAN ids 1 to n. By default these are the CW types
// (14, 15, 34, 38), the ones that had panels when the benchmark was written; a program build from
// before another type had its panel only asks such a device for its type, so compare builds with
// types both have panels for.
#include "bench_support.h"
#include "sim_bus.h"
#include "sim_pty.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

#include <unistd.h>
#include <csignal>
#include <cstdio>
#include <functional>

namespace {

// What /proc tells of one thread at one moment.
struct thread_sample {
    QString name;
    double cpu_ms = 0;
    long switches = 0;  // voluntary + nonvoluntary
    long waits = 0;     // voluntary only: the thread went to sleep (a wake-up follows each)
};

// CPU time of a process or thread whose /proc directory is `dir`, in milliseconds: the scheduler's
// run time in nanoseconds (schedstat) where the kernel keeps it, else user plus system time from
// stat, which counts in clock ticks (10 ms) and so is coarse for a thread that runs little.
double cpu_ms(const QString &dir) {
    QFile schedstat(dir + QStringLiteral("/schedstat"));
    if (schedstat.open(QIODevice::ReadOnly)) {
        bool ok = false;
        const double ns = schedstat.readAll().split(' ').value(0).toDouble(&ok);
        if (ok) {
            return ns / 1e6;
        }
    }
    QFile stat(dir + QStringLiteral("/stat"));
    if (!stat.open(QIODevice::ReadOnly)) {
        return -1;
    }
    const QByteArray text = stat.readAll();
    // Fields after the command name (which may hold spaces) start behind the last ')'.
    const QList<QByteArray> fields = text.mid(text.lastIndexOf(')') + 2).split(' ');
    const double ticks = fields.value(11).toDouble() + fields.value(12).toDouble();
    return ticks * 1000.0 / static_cast<double>(sysconf(_SC_CLK_TCK));
}

// A numeric field of a status file ("VmRSS", "voluntary_ctxt_switches"); kB for memory.
long status_field(const QString &path, const char *key) {
    QFile status(path);
    if (!status.open(QIODevice::ReadOnly)) {
        return -1;
    }
    const QByteArray prefix = QByteArray(key) + ':';
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith(prefix)) {
            return line.mid(prefix.size()).simplified().split(' ').value(0).toLong();
        }
    }
    return -1;
}

// Every thread of `pid`, by thread id.
QMap<QString, thread_sample> sample_threads(qint64 pid) {
    QMap<QString, thread_sample> threads;
    const QString base = QStringLiteral("/proc/%1/task").arg(pid);
    const QStringList tids = QDir(base).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &tid : tids) {
        const QString dir = base + QLatin1Char('/') + tid;
        QFile comm(dir + QStringLiteral("/comm"));
        thread_sample s;
        if (comm.open(QIODevice::ReadOnly)) {
            s.name = QString::fromUtf8(comm.readAll()).trimmed();
        }
        s.cpu_ms = cpu_ms(dir);
        const QString status = dir + QStringLiteral("/status");
        s.waits = status_field(status, "voluntary_ctxt_switches");
        s.switches = s.waits + status_field(status, "nonvoluntary_ctxt_switches");
        threads.insert(tid, s);
    }
    return threads;
}

// The threads grouped as the program names them: the GUI thread (the process's first thread), the
// serial link's, the devices' (summed), and whatever else Qt started.
struct thread_group {
    QString label;
    int threads = 0;
    double cpu_ms = 0;
    long switches = 0;
    long waits = 0;
};

QList<thread_group> group_threads(qint64 pid, const QMap<QString, thread_sample> &before,
                                  const QMap<QString, thread_sample> &after) {
    QList<thread_group> groups{{QStringLiteral("GUI thread"), 0, 0, 0, 0},
                               {QStringLiteral("serial thread"), 0, 0, 0, 0},
                               {QStringLiteral("device threads"), 0, 0, 0, 0},
                               {QStringLiteral("other threads"), 0, 0, 0, 0}};
    for (auto it = after.cbegin(); it != after.cend(); ++it) {
        const thread_sample start = before.value(it.key());  // zero for a thread started since
        int g = 3;
        if (it.key() == QString::number(pid)) {
            g = 0;
        } else if (it->name.startsWith(QLatin1String("serial_conn"))) {
            g = 1;
        } else if (it->name == QLatin1String("device")) {
            g = 2;
        }
        groups[g].threads += 1;
        groups[g].cpu_ms += it->cpu_ms - start.cpu_ms;
        groups[g].switches += it->switches - start.switches;
        groups[g].waits += it->waits - start.waits;
    }
    return groups;
}

int answers_so_far(const sim_bus &bus) {
    int answers = 0;
    for (const auto &d : bus.devices()) {
        answers += d->answers();
    }
    return answers;
}

struct case_result {
    int devices = 0;
    bool ok = false;
    double cpu_per_request_us = 0;
};

// One run of the program against `count` simulated devices of `types` in turn.
case_result measure(const QString &program, int count, const QList<int> &types, int measure_ms) {
    case_result result;
    result.devices = count;

    sim_bus bus;
    for (int i = 0; i < count; ++i) {
        // Steady readings, the case polling must make cheap: every answer the same as the last
        // (a lively device's noise would change value labels on every report).
        if (sim_device *d = bus.add_device(i + 1, types.at(i % types.size()))) {
            d->set_lively(false);
        }
    }
    sim_pty line(bus);
    if (!line.open()) {
        std::fprintf(stderr, "bench_program: %s\n", qPrintable(line.error_string()));
        return result;
    }
    QTimer clock;
    QObject::connect(&clock, &QTimer::timeout, [&bus] { bus.advance(10); });
    clock.start(10);

    QTemporaryDir dir;
    write_device_table(dir.path(), line.slave_path(), count);

    QProcess lumivox;
    lumivox.setWorkingDirectory(dir.path());
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    // The debug log goes to a file, as an operator's would: writing it is part of the cost.
    env.remove(QStringLiteral("QT_LOGGING_RULES"));
    // A home of its own: a recording directory remembered in the user's settings would record.
    env.insert(QStringLiteral("HOME"), dir.filePath(QStringLiteral("home")));
    env.insert(QStringLiteral("XDG_CONFIG_HOME"), dir.filePath(QStringLiteral("home/config")));
    lumivox.setProcessEnvironment(env);
    const QString log_path = dir.filePath(QStringLiteral("lumivox.log"));
    lumivox.setStandardOutputFile(QProcess::nullDevice());
    lumivox.setStandardErrorFile(log_path);

    QElapsedTimer since_start;
    since_start.start();
    lumivox.start(program, QStringList());
    if (!lumivox.waitForStarted(10000)) {
        std::fprintf(stderr, "bench_program: cannot start %s\n", qPrintable(program));
        return result;
    }
    const qint64 pid = lumivox.processId();

    run_for(20000, [&bus] { return bus.frames() > 0; });
    const qint64 first_frame_ms = since_start.elapsed();
    // Every device found and every panel through its configuration rows: a few of each device's
    // polling cycles, which grow with the number of devices.
    run_for(3000 + 400 * count);

    const QMap<QString, thread_sample> threads_before = sample_threads(pid);
    const int requests_before = bus.frames();
    const int answers_before = answers_so_far(bus);
    const qint64 log_before = QFileInfo(log_path).size();
    QElapsedTimer window;
    window.start();
    run_for(measure_ms);
    const double wall = static_cast<double>(window.elapsed());
    const QMap<QString, thread_sample> threads_after = sample_threads(pid);
    const QList<thread_group> groups = group_threads(pid, threads_before, threads_after);
    double cpu = 0;
    for (const thread_group &g : groups) {
        cpu += g.cpu_ms;
    }
    const int requests = bus.frames() - requests_before;
    const int answers = answers_so_far(bus) - answers_before;
    const qint64 log_bytes = QFileInfo(log_path).size() - log_before;
    const QString status = QStringLiteral("/proc/%1/status").arg(pid);
    const long rss = status_field(status, "VmRSS");
    const long peak = status_field(status, "VmHWM");

    ::kill(static_cast<pid_t>(pid), SIGTERM);
    const bool ended = lumivox.waitForFinished(10000);
    if (!ended) {
        lumivox.kill();
        lumivox.waitForFinished(3000);
    }

    const double per_request = requests > 0 ? 1000.0 / requests : 0.0;  // us per ms of CPU
    std::printf("\n%d device%s, %.1f s measured, first frame %lld ms after start%s\n", count,
                count == 1 ? "" : "s", wall / 1000.0, static_cast<long long>(first_frame_ms),
                ended ? "" : ", DID NOT END ON SIGTERM");
    std::printf("  %d requests (%.1f/s), %d answers; debug log %.1f MB an hour\n", requests,
                requests * 1000.0 / wall, answers, log_bytes * 3600.0 / wall / 1000.0);
    std::printf(
        "  program: %.2f %% of one core, %.0f us CPU per request, RSS %.1f MB (peak %.1f MB)\n",
        100.0 * cpu / wall, cpu * per_request, rss / 1024.0, peak / 1024.0);
    for (const thread_group &g : groups) {
        if (g.threads == 0) {
            continue;
        }
        // Waits are the thread's own sleeps, each ended by a wake-up; the other switches are
        // preemptions, which depend on what else the machine runs.
        std::printf("  %-15s (%2d): %6.0f us CPU, %5.2f switches per request (%.2f waits)\n",
                    qPrintable(g.label), g.threads, g.cpu_ms * per_request,
                    requests > 0 ? static_cast<double>(g.switches) / requests : 0.0,
                    requests > 0 ? static_cast<double>(g.waits) / requests : 0.0);
    }
    std::fflush(stdout);

    result.ok = requests > 0;
    result.cpu_per_request_us = cpu * per_request;
    return result;
}

}  // namespace

int main(int argc, char *argv[]) {
    QCoreApplication app(argc, argv);
    const QString given = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString();
    const QString program = given.isEmpty() ? QStringLiteral(LUMIVOX_EXE) : given;
    const int measure_ms = argc > 2 ? QString::fromLocal8Bit(argv[2]).toInt() : 10000;
    const auto numbers = [&](int index, const char *fallback) {
        QList<int> list;
        for (const QString &n : QString::fromLocal8Bit(argc > index ? argv[index] : fallback)
                                    .split(QLatin1Char(','))) {
            if (n.toInt() > 0) {
                list.append(n.toInt());
            }
        }
        return list;
    };
    const QList<int> counts = numbers(3, "1,8,19");
    const QList<int> types = numbers(4, "14,15,34,38");
    if (counts.isEmpty() || types.isEmpty()) {
        std::fprintf(stderr, "bench_program: no device counts or types given\n");
        return 2;
    }
    QStringList type_names;
    for (int type : types) {
        type_names << QString::number(type);
    }
    std::printf(
        "program: lumivox polling devices of types %s in turn over CAN ids 1..n, every "
        "request answered; CPU and switches from /proc\n",
        qPrintable(type_names.join(QStringLiteral(", "))));
    QList<case_result> results;
    for (int count : qAsConst(counts)) {
        results.append(measure(program, count, types, measure_ms));
    }
    if (results.size() > 1 && results.first().ok && results.last().ok) {
        const double added =
            (results.last().cpu_per_request_us - results.first().cpu_per_request_us) /
            (results.last().devices - results.first().devices);
        std::printf("\neach added device: %.1f us CPU per request (1 to %d devices)\n", added,
                    results.last().devices);
    }
    return 0;
}
