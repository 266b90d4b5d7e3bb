#pragma once

// What the benchmarks that run the program against the simulator share.
#include <QDir>
#include <QEventLoop>
#include <QSettings>
#include <QString>
#include <QTimer>

#include <functional>

// Runs the event loop for `ms` milliseconds, or until `done` holds (checked every 5 ms).
inline void run_for(int ms, const std::function<bool()> &done = {}) {
    QEventLoop loop;
    QTimer end;
    end.setSingleShot(true);
    QObject::connect(&end, &QTimer::timeout, &loop, &QEventLoop::quit);
    QTimer check;
    if (done) {
        QObject::connect(&check, &QTimer::timeout, &loop, [&] {
            if (done()) {
                loop.quit();
            }
        });
        check.start(5);
    }
    end.start(ms);
    if (!done || !done()) {
        loop.exec();
    }
}

// Writes `dir`/configs/config.ini as an operator would have saved it: automatic connection to
// `port`, devices "Laser 1" to "Laser <count>" at CAN ids 1 to `count`.
inline void write_device_table(const QString &dir, const QString &port, int count) {
    QDir(dir).mkpath(QStringLiteral("configs"));
    QSettings ini(dir + QStringLiteral("/configs/config.ini"), QSettings::IniFormat);
    ini.setValue("prev_port", port);
    ini.setValue("mini_usb_mode", false);
    ini.setValue("autoconnection_mode", true);
    ini.setValue("device_count", count);
    for (int i = 0; i < count; ++i) {
        ini.setValue(QStringLiteral("device_%1").arg(i), i + 1);
        ini.setValue(QStringLiteral("name_device_%1").arg(i), QStringLiteral("Laser %1").arg(i + 1));
    }
}
