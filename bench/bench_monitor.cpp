// What the bus monitor costs. Not a test: nothing is asserted, figures are printed.
//
// In real time: the program's main window polls 19 simulated devices at full rate (one request
// every 10 ms tick and its answer: 200 lines a second on the link), the simulator running in a
// thread of its own so that its work is not counted. The CPU time of every other thread of the
// process is taken from /proc while the monitor is closed and while it is open (shown, following
// the bus, its history already full with 100 000 lines so that every line also drops an old one),
// in alternating rounds; the difference is the monitor's cost, per line and as a share of a core.
//
// In pieces, on the GUI thread alone: the cost of taking one line into a full history, and of one
// publication (the lines of one batch from the link added to the list, the list repainted).
//
//     bench_monitor [seconds per round and state, 5 by default] [rounds, 4 by default (0: only
//                   the pieces)] [publications timed, 100 by default]
#include "device.h"
#include "frame_codec.h"
#include "main_window.h"
#include "monitor_window.h"
#include "panel_base.h"
#include "panel_registry.h"
#include "panels.h"
#include "sim_bus.h"
#include "sim_frame.h"
#include "sim_pty.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QSettings>
#include <QTableView>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <vector>

#include <sys/syscall.h>
#include <unistd.h>

namespace {

constexpr int device_count = 19;
const int types[] = {14, 15, 34, 38};

// CPU milliseconds of one thread of this process, from the scheduler's run time.
double thread_cpu_ms(const QString &tid) {
    QFile schedstat(QStringLiteral("/proc/self/task/%1/schedstat").arg(tid));
    if (!schedstat.open(QIODevice::ReadOnly)) {
        return 0;
    }
    return schedstat.readAll().split(' ').value(0).toDouble() / 1e6;
}

// CPU milliseconds of every thread but `excluded`, and of the GUI thread alone.
struct cpu_sample {
    double all_ms = 0;
    double gui_ms = 0;
};
cpu_sample sample_cpu(const QString &excluded) {
    cpu_sample s;
    const QString gui = QString::number(::getpid());
    for (const QString &tid : QDir(QStringLiteral("/proc/self/task"))
                                  .entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        if (tid == excluded) {
            continue;
        }
        const double ms = thread_cpu_ms(tid);
        s.all_ms += ms;
        if (tid == gui) {
            s.gui_ms += ms;
        }
    }
    return s;
}

double thread_cpu_now_ms() {
    timespec t{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
    return t.tv_sec * 1e3 + t.tv_nsec / 1e6;
}

void run_for(int ms) {
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
}

// The simulated devices, in a thread of their own.
struct sim_side {
    QThread thread;
    QObject context;
    sim_bus *bus = nullptr;
    sim_pty *pty = nullptr;
    QTimer *clock = nullptr;
    QString port;
    QString tid;

    bool start() {
        thread.setObjectName(QStringLiteral("simulator"));
        thread.start();
        context.moveToThread(&thread);
        QMetaObject::invokeMethod(
            &context,
            [this] {
                bus = new sim_bus;
                for (int i = 0; i < device_count; ++i) {
                    if (sim_device *d = bus->add_device(i + 1, types[i % 4])) {
                        d->set_lively(false);
                    }
                }
                pty = new sim_pty(*bus);
                if (pty->open()) {
                    port = pty->slave_path();
                }
                clock = new QTimer;
                QObject::connect(clock, &QTimer::timeout, [this] { bus->advance(10); });
                clock->start(10);
                tid = QString::number(static_cast<long>(::syscall(SYS_gettid)));
            },
            Qt::BlockingQueuedConnection);
        return !port.isEmpty();
    }
    void stop() {
        QMetaObject::invokeMethod(
            &context,
            [this] {
                delete clock;
                delete pty;
                delete bus;
            },
            Qt::BlockingQueuedConnection);
        thread.quit();
        thread.wait();
    }
};

bool every_panel_filled(const main_window &window) {
    const QList<device *> &devices = window.devices();
    return std::all_of(devices.begin(), devices.end(), [](const device *dev) {
        const auto *panel = qobject_cast<const panel_base *>(dev->current_panel());
        return panel && panel->all_parameters_known();
    });
}

// Lines of a polling session, to fill a history with: a temperature request to each device and
// its answer.
QStringList session_lines() {
    QStringList lines;
    for (int id = 1; id <= device_count; ++id) {
        lines << frame_codec::compose(id, 0x92, 0)
              << QString::fromLatin1(sim_frame::compose_answer(id, id, 0x92, 230)).trimmed();
    }
    return lines;
}

void fill(monitor_model &model, int count) {
    const QStringList lines = session_lines();
    for (int i = 0; i < count; ++i) {
        model.take(monitor::read_wire(1690000000000000LL + i * 5000LL,
                                      i % 2 == 0 ? monitor::direction::sent
                                                 : monitor::direction::received,
                                      lines.at(i % lines.size())));
    }
    model.publish();
}

}  // namespace

int main(int argc, char *argv[]) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication app(argc, argv);
    const int round_ms = (argc > 1 ? std::max(1, std::atoi(argv[1])) : 5) * 1000;
    const int rounds = argc > 2 ? std::max(0, std::atoi(argv[2])) : 4;
    const int publications = argc > 3 ? std::max(1, std::atoi(argv[3])) : 100;
    register_panels(panel_registry::instance());

    sim_side sim;
    if (!sim.start()) {
        std::fprintf(stderr, "bench_monitor: no pseudo-terminal\n");
        return 1;
    }
    QTemporaryDir dir;
    QDir::setCurrent(dir.path());
    QDir().mkpath(QStringLiteral("configs"));
    {
        QSettings ini(QStringLiteral("configs/config.ini"), QSettings::IniFormat);
        ini.setValue("prev_port", sim.port);
        ini.setValue("mini_usb_mode", false);
        ini.setValue("autoconnection_mode", true);
        ini.setValue("device_count", device_count);
        for (int i = 0; i < device_count; ++i) {
            ini.setValue(QStringLiteral("device_%1").arg(i), i + 1);
            ini.setValue(QStringLiteral("name_device_%1").arg(i),
                         QStringLiteral("Laser %1").arg(i + 1));
        }
    }
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});

    {
        main_window window;
        window.initialise_from_config();
        window.show();
        QElapsedTimer waited;
        waited.start();
        while (!every_panel_filled(window) && waited.elapsed() < 60000) {
            run_for(200);
        }
        if (!every_panel_filled(window)) {
            std::fprintf(stderr, "bench_monitor: not every panel filled in a minute\n");
        }
        monitor_window *monitor = window.open_monitor();
        fill(*monitor->model(), monitor_model::default_capacity);
        monitor->close();
        run_for(1000);

        const auto median = [](std::vector<double> v) {
            std::sort(v.begin(), v.end());
            return v[v.size() / 2];
        };
        std::vector<double> closed_share, open_share, open_gui_share, closed_gui_share, per_line;
        double lines_per_second = 0;
        for (int r = 0; r < rounds; ++r) {
            for (const bool open : {false, true}) {
                if (open) {
                    window.open_monitor();
                } else {
                    monitor->close();
                }
                run_for(200);  // the change settles
                const qint64 lines_before = monitor->model()->kept() + monitor->model()->dropped();
                const cpu_sample before = sample_cpu(sim.tid);
                QElapsedTimer wall;
                wall.start();
                run_for(round_ms);
                const cpu_sample after = sample_cpu(sim.tid);
                const double ms = static_cast<double>(wall.elapsed());
                const double share = 100.0 * (after.all_ms - before.all_ms) / ms;
                const double gui = 100.0 * (after.gui_ms - before.gui_ms) / ms;
                (open ? open_share : closed_share).push_back(share);
                (open ? open_gui_share : closed_gui_share).push_back(gui);
                if (open) {
                    const qint64 lines =
                        monitor->model()->kept() + monitor->model()->dropped() - lines_before;
                    lines_per_second = lines * 1000.0 / ms;
                    per_line.push_back(
                        (share - closed_share.back()) * 10.0 * ms / std::max<qint64>(1, lines));
                }
            }
        }
        if (rounds > 0) {
            const double closed = median(closed_share);
            const double opened = median(open_share);
            std::printf(
                "monitor, %d devices polled at full rate (%.0f lines/s on the link), %d rounds "
                "of %d s closed and %d s open, history full:\n",
                device_count, lines_per_second, rounds, round_ms / 1000, round_ms / 1000);
            std::printf("  program without the simulator: %.2f %% of a core closed, %.2f %% open "
                        "(GUI thread %.2f %% and %.2f %%)\n",
                        closed, opened, median(closed_gui_share), median(open_gui_share));
            std::printf("  the open monitor: %.2f %% of a core more (median of rounds), %.1f us "
                        "a line (target below 1 %%)\n",
                        opened - closed, median(per_line));
            std::printf("  the closed monitor: one atomic load a line in the link's thread\n");
        }

        // In pieces, on the GUI thread.
        monitor_model model;
        model.set_lookup([&](int address) {
            static device_directory directory([&window] { return window.devices(); });
            return directory.find(address);
        });
        fill(model, monitor_model::default_capacity);
        const QStringList lines = session_lines();
        constexpr int takes = 200000;
        double start = thread_cpu_now_ms();
        for (int i = 0; i < takes; ++i) {
            model.take(monitor::read_wire(1700000000000000LL + i,
                                          i % 2 == 0 ? monitor::direction::sent
                                                     : monitor::direction::received,
                                          lines.at(i % lines.size())));
        }
        const double take_us = (thread_cpu_now_ms() - start) * 1000.0 / takes;

        // A list window of its own (not fed by the link), full, shown and following.
        monitor->close();
        monitor_window lone(nullptr, [&window] { return window.devices(); });
        lone.show();
        fill(*lone.model(), monitor_model::default_capacity);
        run_for(300);
        // The lines of one publication at full rate (200 lines a second).
        constexpr int batch = 200 * monitor_model::publish_ms / 1000;
        std::vector<double> publication_ms;
        for (int p = 0; p < publications; ++p) {
            start = thread_cpu_now_ms();
            for (int i = 0; i < batch; ++i) {
                lone.model()->take(monitor::read_wire(
                    1800000000000000LL + p * batch + i,
                    i % 2 == 0 ? monitor::direction::sent : monitor::direction::received,
                    lines.at(i % lines.size())));
            }
            lone.model()->publish();
            lone.view()->viewport()->repaint();
            publication_ms.push_back(thread_cpu_now_ms() - start);
        }
        const double publication = median(publication_ms);
        const double per_second_ms = publication * (1000.0 / monitor_model::publish_ms);
        std::printf("  in pieces (GUI thread): %.2f us to take a line into a full history; %.2f ms "
                    "a publication of %d lines with the list repainted; %.2f %% of a core at %d "
                    "publications a second\n",
                    take_us, publication - batch * take_us / 1000.0, batch, per_second_ms / 10.0,
                    1000 / monitor_model::publish_ms);
        lone.close();
    }
    sim.stop();
    return 0;
}
