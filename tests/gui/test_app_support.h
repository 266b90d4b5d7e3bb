#pragma once

// Helpers shared by the main window tests: a scratch working directory with a configuration file,
// widget look-up by object name, and answer lines as a device sends them.

#include "frame_codec.h"
#include "main_window.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QSpinBox>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>

#include <utility>

// Makes a fresh temporary directory the working directory for the life of the object.
class scratch_dir {
public:
    scratch_dir() : previous_(QDir::currentPath()) { QDir::setCurrent(dir_.path()); }
    ~scratch_dir() { QDir::setCurrent(previous_); }
    scratch_dir(const scratch_dir &) = delete;
    scratch_dir &operator=(const scratch_dir &) = delete;

    bool ok() const { return dir_.isValid(); }
    QString path() const { return dir_.path(); }

    // Writes "configs/config.ini" with exactly these lines.
    static void write_config(const QByteArray &ini) {
        QDir().mkpath(QStringLiteral("configs"));
        QFile file(QStringLiteral("configs/config.ini"));
        file.open(QIODevice::WriteOnly | QIODevice::Truncate);
        file.write(ini);
    }

    static bool config_exists() { return QFile::exists(QStringLiteral("configs/config.ini")); }

private:
    QTemporaryDir dir_;
    QString previous_;
};

template <typename W>
W *widget(const main_window &window, const char *name) {
    W *w = window.findChild<W *>(QString::fromLatin1(name));
    if (!w) {
        qWarning("no widget named %s", name);
    }
    return w;
}

inline QTableWidget *device_table(const main_window &window) {
    return widget<QTableWidget>(window, "device_table");
}

inline QSpinBox *can_id_spin(const main_window &window, int row) {
    return qobject_cast<QSpinBox *>(device_table(window)->cellWidget(row, 0));
}

inline QList<int> device_can_ids(const main_window &window) {
    QList<int> ids;
    for (const device *dev : window.devices()) {
        ids << dev->can_id();
    }
    return ids;
}

inline QStringList device_names(const main_window &window) {
    QStringList names;
    for (const device *dev : window.devices()) {
        names << dev->name();
    }
    return names;
}

inline QList<int> table_can_ids(const main_window &window) {
    QList<int> ids;
    for (int row = 0; row < device_table(window)->rowCount(); ++row) {
        ids << can_id_spin(window, row)->value();
    }
    return ids;
}

inline QStringList table_names(const main_window &window) {
    QStringList names;
    QTableWidget *table = device_table(window);
    for (int row = 0; row < table->rowCount(); ++row) {
        names << (table->item(row, 1) ? table->item(row, 1)->text() : QString());
    }
    return names;
}

// An answer line from the device at `sender`: the frame layout with the sender in byte 1.
inline QString answer_line(int sender, int code, long value) {
    return frame_codec::compose(sender, code, frame_codec::to_wire(value))
        .left(25)
        .replace(7, 2, QStringLiteral("%1").arg(sender, 2, 16, QLatin1Char('0')));
}

// A port list made of fixed entries, in this order.
inline main_window::port_lister fixed_ports(QList<main_window::port_entry> ports) {
    return [ports = std::move(ports)] { return ports; };
}
