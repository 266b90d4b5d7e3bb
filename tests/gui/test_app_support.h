#pragma once

// Helpers of the main window tests: a scratch working directory holding the configuration file,
// widget look-up by object name, and the CAN ids of the devices and of the device table.

#include "main_window.h"
#include "serial_connector.h"
#include "warning_log.h"

#include <QtTest>
#include <QtWidgets>

// Makes a fresh temporary directory the working directory for the life of the object and writes
// "configs/config.ini" there with exactly these lines (no file when `ini` is null).
class scratch_dir {
public:
    explicit scratch_dir(const QByteArray &ini = QByteArray()) : previous_(QDir::currentPath()) {
        QDir::setCurrent(dir_.path());
        if (!ini.isNull()) {
            write_config(ini);
        }
    }
    ~scratch_dir() { QDir::setCurrent(previous_); }

    // Writes "configs/config.ini" of the working directory with exactly these bytes.
    static void write_config(const QByteArray &ini) {
        QDir().mkpath(QStringLiteral("configs"));
        QFile file(QStringLiteral("configs/config.ini"));
        if (file.open(QIODevice::WriteOnly)) {
            file.write(ini);
        }
    }

private:
    QTemporaryDir dir_;
    QString previous_;
};

template <typename W = QWidget>
W *widget(const main_window &window, const char *name) {
    return window.findChild<W *>(QString::fromLatin1(name));
}

inline QSpinBox *can_id_spin(const main_window &w, int row) {
    return qobject_cast<QSpinBox *>(widget<QTableWidget>(w, "device_table")->cellWidget(row, 0));
}

inline QList<int> device_can_ids(const main_window &w) {
    QList<int> ids;
    for (const device *dev : w.devices()) {
        ids << dev->can_id();
    }
    return ids;
}

// A window that has read the configuration file of the working directory; the port list offers
// `ports`.
inline std::unique_ptr<main_window> loaded_window(const QString &brand = QStringLiteral("Veltrano"),
                                                  QList<main_window::port_entry> ports = {}) {
    auto window = std::make_unique<main_window>(brand);
    window->set_port_lister([ports = std::move(ports)] { return ports; });
    window->initialise_from_config();
    return window;
}
