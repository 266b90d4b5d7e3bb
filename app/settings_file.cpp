#include "settings_file.h"

#include "frame_codec.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>
#include <QSet>
#include <QSettings>
#include <QVariant>

#include <algorithm>
#include <climits>

namespace settings_file {
namespace {

const QString count_key = QStringLiteral("device_count");

QString key(const char *prefix, int n) {
    return QLatin1String(prefix) + QString::number(n);
}

// The value as it stands in the file (QSettings reads "1,2" as a list).
QString raw_text(const QVariant &value) {
    if (value.userType() == QMetaType::QStringList) {
        return value.toStringList().join(QLatin1Char(','));
    }
    return value.toString();
}

// An integer setting by the file rules (missing: 0, not a number: 0); `problem` says when the
// value is there but is not a number.
int read_int(const QSettings &settings, const QString &name, QString *problem) {
    const QVariant value = settings.value(name);
    if (!value.isValid()) {
        return 0;
    }
    bool ok = false;
    const int number = value.toInt(&ok);
    if (!ok) {
        *problem = QStringLiteral("\"%1\" is \"%2\", not a number").arg(name, raw_text(value));
    }
    return ok ? number : 0;
}

// "1, 2, 3" for short lists, the first few and how many in all for long ones.
QString index_list(const QList<int> &indices) {
    constexpr int shown = 5;
    QStringList parts;
    for (int i = 0; i < std::min(shown, int(indices.size())); ++i) {
        parts << QString::number(indices.at(i));
    }
    QString text = parts.join(QStringLiteral(", "));
    if (indices.size() > shown) {
        text += QStringLiteral(" ... (%1 in all)").arg(indices.size());
    }
    return text;
}

// Indices N of the top-level "device_N" and "name_device_N" keys, and of the "device_N" keys alone.
void device_key_indices(const QStringList &keys, QSet<int> *any, QSet<int> *ids) {
    static const QRegularExpression pattern(QStringLiteral("^(name_)?device_(\\d+)$"));
    for (const QString &k : keys) {
        const QRegularExpressionMatch match = pattern.match(k);
        if (!match.hasMatch()) {
            continue;
        }
        bool ok = false;
        const int n = match.captured(2).toInt(&ok);
        const int index = ok ? n : INT_MAX;  // too long to count: beyond any count
        any->insert(index);
        if (match.capturedRef(1).isEmpty()) {
            ids->insert(index);
        }
    }
}

}  // namespace

contents read(const QString &path) {
    const QSettings settings(path, QSettings::IniFormat);
    contents result;
    if (settings.status() != QSettings::NoError) {
        result.problems << (settings.status() == QSettings::FormatError
                                ? QStringLiteral("it is not in INI form")
                                : QStringLiteral("it could not be read"));
    }

    // Keys under a section are not read: the program keeps every key at the top level.
    const QStringList keys = settings.allKeys();
    QStringList sections;
    for (const QString &k : keys) {
        const int slash = k.indexOf(QLatin1Char('/'));
        if (slash >= 0) {
            const QString section = QLatin1Char('[') + k.left(slash) + QLatin1Char(']');
            if (!sections.contains(section)) {
                sections << section;
            }
        }
    }
    if (!sections.isEmpty()) {
        result.problems << QStringLiteral("keys under %1 are outside the top level and not read")
                               .arg(sections.join(QStringLiteral(", ")));
    }

    result.prev_port = settings.value(QStringLiteral("prev_port")).toString();
    result.autoconnection_mode = settings.value(QStringLiteral("autoconnection_mode")).toBool();

    QString problem;
    int count = read_int(settings, count_key, &problem);
    if (!problem.isEmpty()) {
        result.problems << problem;
    }
    if (count > max_devices) {
        result.problems << QStringLiteral(
                               "\"%1\" is %2, more than the device table holds: the first %3 "
                               "devices are used")
                               .arg(count_key)
                               .arg(count)
                               .arg(max_devices);
        count = max_devices;
    }

    // The count and the device keys must describe the same devices: keys beyond the count would
    // be dropped by the next save, a missing CAN ID reads as 0.
    QSet<int> indices;
    QSet<int> id_indices;
    device_key_indices(keys, &indices, &id_indices);
    QList<int> beyond;
    for (int index : qAsConst(indices)) {
        if (index >= std::max(count, 0)) {
            beyond << index;
        }
    }
    std::sort(beyond.begin(), beyond.end());
    QList<int> missing;
    for (int n = 0; n < count; ++n) {
        if (!id_indices.contains(n)) {
            missing << n;
        }
    }
    if (!beyond.isEmpty()) {
        result.problems << QStringLiteral(
                               "\"%1\" reads as %2, yet the file holds keys of devices beyond "
                               "it: %3")
                               .arg(count_key)
                               .arg(std::max(count, 0))
                               .arg(index_list(beyond));
    }
    if (!missing.isEmpty()) {
        result.problems << QStringLiteral(
                               "\"%1\" reads as %2, yet no CAN ID is stored for devices: %3")
                               .arg(count_key)
                               .arg(count)
                               .arg(index_list(missing));
    }

    if (count > 0) {
        result.mini_usb_mode = settings.value(QStringLiteral("mini_usb_mode")).toBool();
        for (int n = 0; n < count; ++n) {
            device_entry entry;
            entry.name = settings.value(key("name_device_", n)).toString();
            problem.clear();
            entry.can_id = read_int(settings, key("device_", n), &problem);
            if (!problem.isEmpty()) {
                result.problems << problem;
            } else if (!frame_codec::carries_can_id(entry.can_id)) {
                result.problems << QStringLiteral(
                                       "\"device_%1\" is %2, a CAN ID no frame can carry (0 to "
                                       "0x%3)")
                                       .arg(n)
                                       .arg(entry.can_id)
                                       .arg(frame_codec::max_can_id, 0, 16);
            }
            result.devices << entry;
        }
    }
    return result;
}

QString keep_copy(const QString &path, QString *error) {
    QFile original(path);
    if (!original.open(QIODevice::ReadOnly)) {
        *error = original.errorString();
        return QString();
    }
    const QByteArray bytes = original.readAll();
    original.close();

    const QFileInfo info(path);
    const QDir folder = info.absoluteDir();
    const QString prefix = info.fileName() + QStringLiteral(".unreadable-");
    const QStringList earlier =
        folder.entryList({prefix + QLatin1Char('*')}, QDir::Files, QDir::Name);
    for (const QString &name : earlier) {
        QFile copy(folder.filePath(name));
        if (copy.size() == bytes.size() && copy.open(QIODevice::ReadOnly) &&
            copy.readAll() == bytes) {
            return copy.fileName();
        }
    }

    const QString stamp = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    for (int n = 1;; ++n) {
        const QString name =
            folder.filePath(prefix + stamp + (n == 1 ? QString() : QStringLiteral("-%1").arg(n)));
        QFile copy(name);
        // NewOnly: an existing copy is never written over.
        if (copy.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
            if (copy.write(bytes) == bytes.size() && copy.flush()) {
                return name;
            }
            *error = copy.errorString();
            copy.close();
            copy.remove();
            return QString();
        }
        if (!copy.exists()) {
            *error = copy.errorString();
            return QString();
        }
    }
}

QString write_failure_reason(const QString &path) {
    const QFileInfo folder(QFileInfo(path).absolutePath());
    if (folder.exists() && !folder.isDir()) {
        return QStringLiteral("\"%1\" is a file, not a folder").arg(folder.filePath());
    }
    if (!folder.exists()) {
        return QStringLiteral("the folder \"%1\" could not be made").arg(folder.filePath());
    }
    QSaveFile probe(path);
    if (!probe.open(QIODevice::WriteOnly)) {
        return probe.errorString();
    }
    probe.cancelWriting();
    return QStringLiteral("the file could not be written in full (is the disk full?)");
}

}  // namespace settings_file
