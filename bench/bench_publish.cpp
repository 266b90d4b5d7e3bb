// What publishing to an MQTT broker costs, and whether a station survives its broker restarting.
// Not a test: nothing is asserted, figures are printed. Needs Debian's mosquitto and
// mosquitto-clients: the broker is started on a free loopback port with its own configuration.
//
// Cost: eight CW panels take their poll replies at the program's full rate (100 a second in all,
// every value a little different from the last, so nearly every sample is published). The CPU
// time of the whole process (the publisher's thread included) is compared with and without the
// publisher, over a minute of replies taken as fast as they come, and over seconds of real time
// driven by a 10 ms timer as in the program. A mosquitto_sub counts what arrives.
//
// Soak: the real `lumivox` polls eight simulated devices and publishes; the broker is stopped
// (SIGTERM and SIGKILL in turn) and started again, a hundred times; after each start a subscriber
// waits for a fresh reading. The program's resident memory is printed every ten restarts. Then the
// broker stays away for a while, and publishing must resume. In between, the queue's bound: a
// publisher whose broker cannot be reached takes replies back to back until it drops the oldest,
// and the process's memory stops growing.
//
//     bench_publish [seconds of real time, 10] [restarts, 100] [seconds away, 90] [lumivox program]
#include "bench_panels.h"
#include "publisher.h"
#include "broker_message.h"
#include "free_port.h"
#include "sim_bus.h"
#include "sim_device.h"
#include "sim_pty.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <vector>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

// True once something accepts connections on the loopback `port`.
bool listening(int port) {
    const int s = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<quint16>(port));
    const bool up = ::connect(s, reinterpret_cast<sockaddr *>(&address), sizeof address) == 0;
    ::close(s);
    return up;
}

// Runs the event loop for at most `ms`, until `done` holds (checked every 10 ms).
void run_until(int ms, const std::function<bool()> &done) {
    QElapsedTimer waited;
    waited.start();
    while (!done() && waited.elapsed() < ms) {
        QEventLoop loop;
        QTimer::singleShot(10, &loop, &QEventLoop::quit);
        loop.exec();
    }
}

// CPU time of this process's threads named `name`, in milliseconds (the scheduler's run time).
double thread_cpu_ms(const QString &name) {
    double ms = 0;
    const QDir tasks(QStringLiteral("/proc/self/task"));
    for (const QString &tid : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile comm(tasks.filePath(tid + QStringLiteral("/comm")));
        QFile schedstat(tasks.filePath(tid + QStringLiteral("/schedstat")));
        if (comm.open(QIODevice::ReadOnly) && comm.readAll().trimmed() == name.toUtf8() &&
            schedstat.open(QIODevice::ReadOnly)) {
            ms += schedstat.readAll().split(' ').value(0).toDouble() / 1e6;
        }
    }
    return ms;
}

// VmRSS or VmHWM of a process, in kB.
long memory_kb(qint64 pid, const char *key) {
    QFile status(QStringLiteral("/proc/%1/status").arg(pid));
    if (!status.open(QIODevice::ReadOnly)) {
        return -1;
    }
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith(QByteArray(key) + ':')) {
            return line.mid(int(qstrlen(key)) + 1).simplified().split(' ').value(0).toLong();
        }
    }
    return -1;
}

struct broker_process {
    QString conf;
    QProcess process;

    int port;

    broker_process(const QString &dir, int listen_port)
        : conf(dir + QStringLiteral("/broker.conf")), port(listen_port) {
        QFile file(conf);
        if (file.open(QIODevice::WriteOnly)) {
            file.write(QStringLiteral("listener %1 127.0.0.1\nallow_anonymous true\n"
                                      "persistence false\nuser root\nlog_dest none\n")
                           .arg(port)
                           .toUtf8());
        }
        process.setStandardOutputFile(QProcess::nullDevice());
        process.setStandardErrorFile(QProcess::nullDevice());
    }
    ~broker_process() { stop(SIGTERM); }
    bool start() {
        process.start(QStringLiteral("mosquitto"), {QStringLiteral("-c"), conf});
        if (!process.waitForStarted(5000)) {
            return false;
        }
        run_until(5000, [this] { return listening(port); });
        return listening(port);
    }
    void stop(int signal_number) {
        if (process.state() != QProcess::NotRunning) {
            ::kill(static_cast<pid_t>(process.processId()), signal_number);
            process.waitForFinished(5000);
        }
    }
};

// CPU milliseconds for a burst of `replies` replies (back to back) or for `seconds` of replies
// at the program's rate, with the publisher on `port` (0: none) until it has sent everything.
double cost_ms(int replies, int seconds, int port, quint64 *published, double *thread_ms) {
    bench_bus bus;
    observation_hub hub;
    bus.watch(hub);
    publisher pub;
    if (port > 0) {
        broker_options options;
        options.address = broker_address{false, QStringLiteral("127.0.0.1"), port};
        options.root = broker_message::root(QStringLiteral("bench"));
        options.client_id = QStringLiteral("lumivox-bench");
        QObject::connect(&hub, &observation_hub::sig_sample, &pub, &publisher::take);
        bool connected = false;
        QObject::connect(&pub, &publisher::sig_connected, [&connected] { connected = true; });
        pub.start(options);
        run_until(10000, [&connected] { return connected; });
    }
    const double start = cpu_ms();
    const double thread_start = thread_cpu_ms(QStringLiteral("publisher"));
    if (seconds > 0) {
        QTimer tick;
        tick.setTimerType(Qt::PreciseTimer);
        QObject::connect(&tick, &QTimer::timeout, [&bus] { bus.reply(); });
        tick.start(tick_ms);
        QEventLoop loop;
        QTimer::singleShot(seconds * 1000, &loop, &QEventLoop::quit);
        loop.exec();
    } else {
        for (int i = 0; i < replies; ++i) {
            bus.reply();
        }
    }
    // Until the queue is empty and the count stands still: everything was handed over.
    quint64 last = ~quint64(0);
    run_until(30000, [&] {
        const quint64 now = pub.published();
        const bool done = pub.waiting() == 0 && now == last;
        last = now;
        return done;
    });
    const double used = cpu_ms() - start;
    if (thread_ms) {
        *thread_ms = thread_cpu_ms(QStringLiteral("publisher")) - thread_start;
    }
    if (published) {
        *published += pub.published();
    }
    return used;
}

void measure_cost(int seconds, int port, const QString &dir) {
    QProcess sub;
    sub.setStandardOutputFile(dir + QStringLiteral("/received"));
    sub.start(QStringLiteral("mosquitto_sub"),
              {QStringLiteral("-p"), QString::number(port), QStringLiteral("-t"),
               QStringLiteral("lumivox/bench/device/#")});
    sub.waitForStarted(5000);
    run_until(500, [] { return false; });

    // A minute of replies; the best of five runs each way.
    const int replies = 60 * replies_per_second;
    quint64 published = 0;
    double without = 1e9, with = 1e9;
    for (int run = 0; run < 5; ++run) {
        without = std::min(without, cost_ms(replies, 0, 0, nullptr, nullptr));
        with = std::min(with, cost_ms(replies, 0, port, &published, nullptr));
    }
    const double per_reply_us = (with - without) * 1000.0 / replies;
    std::printf("publishing, %d devices at full rate (%d replies/s), a minute back to back:\n",
                devices, replies_per_second);
    std::printf(
        "  %.1f ms CPU without, %.1f ms with the publisher: %.2f us a reply, %.3f %% of a core "
        "(target below 0.3 %%)\n",
        without, with, per_reply_us, per_reply_us * replies_per_second / 1e4);

    // The best of three runs each way; the publisher's own thread is measured apart, since the
    // machine's other work moves the whole process's figure by more than publishing costs.
    double base = 1e9, publishing = 1e9, thread = 1e9;
    for (int run = 0; run < 3; ++run) {
        double thread_ms = 0;
        base = std::min(base, cost_ms(0, seconds, 0, nullptr, nullptr));
        publishing = std::min(publishing, cost_ms(0, seconds, port, &published, &thread_ms));
        thread = std::min(thread, thread_ms);
    }
    std::printf(
        "publishing in real time, %d s each way: %.1f ms CPU without, %.1f ms with: %.3f %% of "
        "a core more; the publisher's thread %.1f ms, %.3f %% of a core\n",
        seconds, base, publishing, (publishing - base) / (seconds * 10.0), thread,
        thread / (seconds * 10.0));

    run_until(2000, [] { return false; });
    sub.terminate();
    sub.waitForFinished(5000);
    QFile received(dir + QStringLiteral("/received"));
    received.open(QIODevice::ReadOnly);
    std::printf("  samples handed to the connection: %llu; messages a subscriber received (the "
                "retained alarm lists too): %d\n",
                static_cast<unsigned long long>(published), int(received.readAll().count('\n')));
}

// The queue's bound: replies taken back to back while the broker cannot be reached, and the
// process's resident memory after each round.
void queue_bound() {
    bench_bus bus;
    observation_hub hub;
    bus.watch(hub);
    publisher pub;
    broker_options options;
    options.address = broker_address{false, QStringLiteral("127.0.0.1"), free_port()};
    options.root = broker_message::root(QStringLiteral("bench"));
    options.client_id = QStringLiteral("lumivox-bench");
    QObject::connect(&hub, &observation_hub::sig_sample, &pub, &publisher::take);
    pub.start(options);
    const qint64 self = QCoreApplication::applicationPid();
    std::printf("the broker away, replies taken back to back (queue of %d samples):\n",
                int(publisher::queue_capacity));
    std::printf("  before: RSS %.1f MB\n", memory_kb(self, "VmRSS") / 1024.0);
    int replies = 0;
    for (const int round : {5000, 20000, 100000, 400000}) {
        for (int i = 0; i < round; ++i) {
            bus.reply();
        }
        replies += round;
        run_until(100, [] { return false; });
        std::printf("  after %6d replies: %5zu samples waiting, %6llu dropped, RSS %.1f MB\n",
                    replies, pub.waiting(), static_cast<unsigned long long>(pub.dropped()),
                    memory_kb(self, "VmRSS") / 1024.0);
    }
    std::fflush(stdout);
}

void soak(const QString &program, int restarts, int outage_s, int port, const QString &dir) {
    sim_bus bus;
    for (int i = 0; i < devices; ++i) {
        // Readings that move as real ones do, as lumivox-sim plays them.
        if (sim_device *d = bus.add_device(i + 1, QList<int>{14, 15, 34, 38}.at(i % 4))) {
            d->set_lively(true);
        }
    }
    sim_pty line(bus);
    if (!line.open()) {
        std::fprintf(stderr, "bench_publish: %s\n", qPrintable(line.error_string()));
        return;
    }
    QTimer clock;
    QObject::connect(&clock, &QTimer::timeout, [&bus] { bus.advance(10); });
    clock.start(10);
    QDir(dir).mkpath(QStringLiteral("run/configs"));
    QDir(dir).mkpath(QStringLiteral("home"));
    {
        QSettings ini(dir + QStringLiteral("/run/configs/config.ini"), QSettings::IniFormat);
        ini.setValue("prev_port", line.slave_path());
        ini.setValue("mini_usb_mode", false);
        ini.setValue("autoconnection_mode", true);
        ini.setValue("device_count", devices);
        for (int i = 0; i < devices; ++i) {
            ini.setValue(QStringLiteral("device_%1").arg(i), i + 1);
            ini.setValue(QStringLiteral("name_device_%1").arg(i), QStringLiteral("Laser %1").arg(i));
        }
    }
    broker_process broker(dir, port);
    broker.start();
    QProcess lumivox;
    lumivox.setWorkingDirectory(dir + QStringLiteral("/run"));
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    env.insert(QStringLiteral("HOME"), dir + QStringLiteral("/home"));
    env.insert(QStringLiteral("XDG_CONFIG_HOME"), dir + QStringLiteral("/home/.config"));
    lumivox.setProcessEnvironment(env);
    lumivox.setStandardOutputFile(QProcess::nullDevice());
    lumivox.setStandardErrorFile(dir + QStringLiteral("/lumivox.log"));
    lumivox.start(program, {QStringLiteral("--mqtt"),
                            QStringLiteral("mqtt://127.0.0.1:%1").arg(port),
                            QStringLiteral("--station"), QStringLiteral("soak")});
    lumivox.waitForStarted(10000);
    const qint64 pid = lumivox.processId();

    // The first message on `topic` from the broker now running, within `ms`.
    const auto first_on = [&](const QString &topic, int ms) {
        QProcess sub;
        sub.start(QStringLiteral("mosquitto_sub"),
                  {QStringLiteral("-p"), QString::number(port), QStringLiteral("-C"),
                   QStringLiteral("1"), QStringLiteral("-t"), topic});
        sub.waitForStarted(5000);
        run_until(ms, [&sub] { return sub.state() == QProcess::NotRunning; });
        const bool got = sub.state() == QProcess::NotRunning && sub.exitCode() == 0 &&
                         !sub.readAllStandardOutput().isEmpty();
        sub.kill();
        sub.waitForFinished(1000);
        return got;
    };
    const QString status = QStringLiteral("lumivox/soak/status");
    const QString readings = QStringLiteral("lumivox/soak/device/+/reading/+");
    const auto fresh_reading = [&](int ms) { return first_on(readings, ms); };
    const bool first = fresh_reading(30000);
    run_until(5000, [] { return false; });  // every panel through its configuration rows
    std::printf("\nsoak: lumivox polling %d simulated devices, the broker restarted %d times%s\n",
                devices, restarts, first ? "" : " (NO FIRST READING)");
    std::printf("  RSS %.1f MB before the first restart\n", memory_kb(pid, "VmRSS") / 1024.0);
    std::fflush(stdout);

    int resumed = 0;
    std::vector<double> resume_s;
    std::vector<double> online_s_all;
    for (int n = 1; n <= restarts && lumivox.state() == QProcess::Running; ++n) {
        broker.stop(n % 2 ? SIGKILL : SIGTERM);
        run_until(200, [] { return false; });
        broker.start();
        QElapsedTimer since;
        since.start();
        const bool online = first_on(status, 60000);
        const double online_s = since.elapsed() / 1000.0;
        if (online && fresh_reading(60000)) {
            ++resumed;
            resume_s.push_back(since.elapsed() / 1000.0);
            online_s_all.push_back(online_s);
        }
        if (n % 10 == 0) {
            std::printf("  after %3d restarts: RSS %.1f MB, %d resumed\n", n,
                        memory_kb(pid, "VmRSS") / 1024.0, resumed);
            std::fflush(stdout);
        }
    }
    // One long outage: the retries back off to their longest, the samples wait in the queue.
    if (outage_s > 0 && lumivox.state() == QProcess::Running) {
        broker.stop(SIGKILL);
        long most = 0;
        for (int s = 0; s < outage_s; s += 10) {
            run_until(10000, [] { return false; });
            most = std::max(most, memory_kb(pid, "VmRSS"));
        }
        broker.start();
        const bool back = first_on(status, 60000) && fresh_reading(60000);
        run_until(1000, [] { return false; });
        QFile log(dir + QStringLiteral("/lumivox.log"));
        log.open(QIODevice::ReadOnly);
        const QByteArray text = log.readAll();
        const int said = text.lastIndexOf("samples dropped so far");
        const QByteArray dropped =
            said < 0 ? QByteArray("no") : text.mid(text.lastIndexOf('\n', said) + 1, -1)
                                             .split('\n')
                                             .value(0)
                                             .split(' ')
                                             .value(1);
        std::printf("  the broker away for %d s: RSS at most %.1f MB meanwhile, %s samples "
                    "dropped, publishing %s\n",
                    outage_s, most / 1024.0, dropped.constData(),
                    back ? "resumed" : "DID NOT RESUME");
    }
    const long peak = memory_kb(pid, "VmHWM");
    std::sort(resume_s.begin(), resume_s.end());
    std::sort(online_s_all.begin(), online_s_all.end());
    const bool alive = lumivox.state() == QProcess::Running;
    std::printf("  %s; publishing resumed after %d of %d restarts", alive ? "running" : "DIED",
                resumed, restarts);
    if (!resume_s.empty()) {
        std::printf(
            ": online again within %.1f s (median), %.1f s (longest), a fresh reading within "
            "%.1f s (median), %.1f s (longest)",
            online_s_all[online_s_all.size() / 2], online_s_all.back(),
            resume_s[resume_s.size() / 2], resume_s.back());
    }
    std::printf("; peak RSS %.1f MB\n", peak / 1024.0);
    ::kill(static_cast<pid_t>(pid), SIGTERM);
    run_until(10000, [&lumivox] { return lumivox.state() == QProcess::NotRunning; });
    std::printf("  SIGTERM at the end: %s\n",
                lumivox.state() == QProcess::NotRunning && lumivox.exitCode() == 0
                    ? "exit code 0"
                    : "DID NOT END CLEANLY");
}

}  // namespace

int main(int argc, char *argv[]) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication app(argc, argv);
    const int seconds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 10;
    const int restarts = argc > 2 ? std::max(0, std::atoi(argv[2])) : 100;
    const int outage_s = argc > 3 ? std::max(0, std::atoi(argv[3])) : 90;
    const QString program =
        argc > 4 ? QString::fromLocal8Bit(argv[4]) : QStringLiteral(LUMIVOX_EXE);
    QTemporaryDir dir;
    const int port = free_port();
    {
        broker_process broker(dir.path(), port);
        if (!broker.start()) {
            std::fprintf(stderr, "bench_publish: cannot start mosquitto (Debian package)\n");
            return 1;
        }
        run_until(500, [] { return false; });
        measure_cost(seconds, port, dir.path());
    }
    queue_bound();
    if (restarts > 0) {
        soak(program, restarts, outage_s, port, dir.path());
    }
    return 0;
}
