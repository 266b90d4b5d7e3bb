// Grabs the bus monitor to PNG files, for a look by eye: the program's main window runs against
// simulated devices in this process (a CW driver, a picosecond driver and a heater; the heater
// answers with noise for a moment), the monitor is open from the start, and after a few seconds
// the window is saved as it follows the bus, then at the heater's noise, then with a filter on the CW driver's current codes,
// then paused, then a file window showing the exported log.
//
//     lumivox_monitor_shot <output directory> [seconds, 4 by default]
//
// Runs in a scratch working directory of its own; needs no display with QT_QPA_PLATFORM=offscreen.
#include "main_window.h"
#include "monitor_window.h"
#include "program.h"
#include "sim_bus.h"
#include "sim_pty.h"

#include <QApplication>
#include <QDir>
#include <QSettings>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTranslator>

#include <cstdio>

int main(int argc, char *argv[]) {
    QApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() < 2) {
        std::fputs("usage: lumivox_monitor_shot <output directory> [seconds]\n", stderr);
        return 2;
    }
    const QDir out(QFileInfo(args.at(1)).absoluteFilePath());
    QDir().mkpath(out.path());
    const int run_ms = (args.size() > 2 ? args.at(2).toInt() : 4) * 1000;

    QTemporaryDir scratch;
    QDir::setCurrent(scratch.path());
    sim_bus bus;
    bus.add_device(1, 14);
    bus.add_device(2, 20);
    bus.add_device(3, 4);
    bus.schedule_garbage(3, 1500, 200);
    sim_pty line(bus);
    if (!line.open()) {
        std::fprintf(stderr, "lumivox_monitor_shot: %s\n", qPrintable(line.error_string()));
        return 1;
    }
    QTimer clock;
    QObject::connect(&clock, &QTimer::timeout, [&bus] { bus.advance(10); });
    clock.start(10);
    QDir().mkpath(QStringLiteral("configs"));
    {
        QSettings ini(QStringLiteral("configs/config.ini"), QSettings::IniFormat);
        ini.setValue("prev_port", line.slave_path());
        ini.setValue("mini_usb_mode", false);
        ini.setValue("autoconnection_mode", true);
        ini.setValue("device_count", 3);
        const char *const names[] = {"Seed laser", "Amplifier", "Crystal oven"};
        for (int n = 0; n < 3; ++n) {
            ini.setValue(QStringLiteral("device_%1").arg(n), n + 1);
            ini.setValue(QStringLiteral("name_device_%1").arg(n), QString::fromLatin1(names[n]));
        }
    }

    QTranslator translator;
    prepare_program(app, translator);
    main_window window;
    window.initialise_from_config();
    window.show();
    monitor_window *monitor = window.open_monitor();
    QTest::qWait(run_ms);

    bool saved = monitor->grab().save(out.filePath(QStringLiteral("monitor_live.png")));
    // The heater's noise, marked, in the middle of the list.
    monitor->set_paused(true);
    for (int row = monitor->model()->rowCount() - 1; row >= 0; --row) {
        const monitor::line_kind kind = monitor->model()->line_at(row).kind;
        if (kind == monitor::line_kind::ignored || kind == monitor::line_kind::malformed) {
            monitor->view()->scrollTo(monitor->model()->index(row, 0),
                                      QAbstractItemView::PositionAtCenter);
            break;
        }
    }
    QTest::qWait(100);
    saved = monitor->grab().save(out.filePath(QStringLiteral("monitor_marked.png"))) && saved;
    monitor->set_paused(false);
    monitor->set_device_filter(1);
    monitor->set_code_filter(QStringLiteral("12"));
    QTest::qWait(200);
    saved = monitor->grab().save(out.filePath(QStringLiteral("monitor_filtered.png"))) && saved;
    monitor->set_code_filter(QString());
    monitor->set_device_filter(-1);
    monitor->set_paused(true);
    QTest::qWait(1000);
    saved = monitor->grab().save(out.filePath(QStringLiteral("monitor_paused.png"))) && saved;
    const QString log = out.filePath(QStringLiteral("monitor.log"));
    saved = monitor->export_log(log) && saved;

    monitor_window file(nullptr, [&window] { return window.devices(); });
    file.open_log(log);
    file.show();
    QTest::qWait(100);
    saved = file.grab().save(out.filePath(QStringLiteral("monitor_file.png"))) && saved;
    file.close();
    window.hide();  // no close: the scratch configuration needs no saving
    for (const char *name : {"monitor_live", "monitor_marked", "monitor_filtered", "monitor_paused", "monitor_file"}) {
        std::printf("%s\n", qPrintable(out.filePath(QLatin1String(name) + QLatin1String(".png"))));
    }
    return saved ? 0 : 1;
}
