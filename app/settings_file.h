#pragma once

#include <QList>
#include <QString>
#include <QStringList>

// The configuration file as loading finds it. The file rules are plain: keys that are missing take
// their defaults and values that are not numbers read as 0. On top of them, read() notes everything
// it could not use as written (a count that is not a number, keys under a section, a count that
// disagrees with the device keys, a count beyond the device table, a CAN ID no frame can carry), so
// that the window keeps the file as it was before its first save overwrites it.
namespace settings_file {

// The device table's CAN IDs run 1 to 255, so it never holds more rows than that.
inline constexpr int table_min_can_id = 1;
inline constexpr int table_max_can_id = 255;
inline constexpr int max_devices = table_max_can_id - table_min_can_id + 1;

struct device_entry {
    int can_id = 0;
    QString name;
};

struct contents {
    QString prev_port;
    bool mini_usb_mode = false;  // read only when devices are stored
    bool autoconnection_mode = false;
    QList<device_entry> devices;  // empty: no devices stored (a count of 0 or less)
    QStringList problems;         // empty: the file was used exactly as written
};

contents read(const QString &path);

// Keeps the file as it is now beside itself, as "<file>.unreadable-<yyyyMMdd-HHmmss>" (with "-2",
// "-3", ... added when that name is taken); nothing ever writes to that copy again. A copy with the
// same bytes that is already there is reused, so a file that stays odd does not pile up copies.
// Returns the copy's path, or an empty string with `error` saying why none could be made.
QString keep_copy(const QString &path, QString *error);

// Why writing the file failed, asked of the file system once the write has failed.
QString write_failure_reason(const QString &path);

}  // namespace settings_file
