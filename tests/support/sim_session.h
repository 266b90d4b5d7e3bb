// Set-up shared by the tests that run the program, or its main window, against the device
// simulator: the simulator served on a pseudo-terminal and moving in real time, and a working
// directory whose configs/config.ini reaches that line with a device table.
#pragma once

#include "sim_bus.h"
#include "sim_pty.h"

#include <QDir>
#include <QList>
#include <QObject>
#include <QSettings>
#include <QString>
#include <QStringList>
#include <QTimer>

// Serves `bus` on a new pseudo-terminal owned by `owner` and advances the bus by 10 ms every
// 10 ms of `clock`, as hardware moves on its own. The opened line, or null when it did not open.
inline sim_pty *start_sim_line(sim_bus &bus, QTimer &clock, QObject *owner) {
    auto *line = new sim_pty(bus, owner);
    if (!line->open()) {
        return nullptr;
    }
    QObject::connect(&clock, &QTimer::timeout, owner, [&bus] { bus.advance(10); });
    clock.start(10);
    return line;
}

// Writes `dir`/configs/config.ini (replacing what was there): the serial port, whether the program
// connects by itself, and the device table by CAN ID, named `names` by slot ("Bench N" where
// `names` has no entry).
inline void write_device_table(const QString &dir, const QString &port, const QList<int> &ids,
                               bool autoconnect = true, const QStringList &names = {}) {
    QDir(dir).mkpath(QStringLiteral("configs"));
    QSettings ini(QDir(dir).filePath(QStringLiteral("configs/config.ini")), QSettings::IniFormat);
    ini.clear();
    ini.setValue("prev_port", port);
    ini.setValue("mini_usb_mode", false);
    ini.setValue("autoconnection_mode", autoconnect);
    ini.setValue("device_count", ids.size());
    for (int n = 0; n < ids.size(); ++n) {
        ini.setValue(QStringLiteral("device_%1").arg(n), ids[n]);
        ini.setValue(QStringLiteral("name_device_%1").arg(n),
                     n < names.size() ? names[n] : QStringLiteral("Bench %1").arg(n));
    }
    ini.sync();
}
