// The configuration file's reader fed arbitrary bytes as configs/config.ini. Besides not crashing:
// it never gives more devices than the table holds, and a file it calls usable as written holds
// only CAN IDs a frame can carry.
#include "frame_codec.h"
#include "settings_file.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv) {
    static QCoreApplication app(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    // A new name each time: the settings machinery keeps files it has read and would not read a
    // same-sized file rewritten within the same moment again.
    static int run = 0;
    const QString path = QDir::temp().filePath(QStringLiteral("lumivox-fuzz-%1-%2.ini")
                                                   .arg(QCoreApplication::applicationPid())
                                                   .arg(++run));
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) ||
            file.write(reinterpret_cast<const char *>(data), qint64(size)) != qint64(size)) {
            std::abort();
        }
    }
    const settings_file::contents read = settings_file::read(path);
    QFile::remove(path);
    if (read.devices.size() > settings_file::max_devices) {
        std::abort();
    }
    if (read.problems.isEmpty()) {
        for (const settings_file::device_entry &entry : read.devices) {
            if (!frame_codec::carries_can_id(entry.can_id)) {
                std::abort();
            }
        }
    }
    return 0;
}
