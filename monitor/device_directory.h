#pragma once

#include "bus_line.h"
#include "device_panel.h"

#include <QCoreApplication>
#include <QHash>
#include <QList>
#include <QPointer>
#include <QString>

#include <functional>

class device;
class panel_base;

// Names the frames of the program's devices for the bus monitor: for an address, the device that
// takes its frames (the one at that CAN ID, else one that takes every sender) with its name and
// what its panel says its codes mean. What a panel says is worked out once per panel.
class device_directory {
    Q_DECLARE_TR_FUNCTIONS(device_directory)
public:
    // The devices of the program as they are now.
    using device_source = std::function<QList<device *>()>;

    explicit device_directory(device_source devices);

    // The device at `address` with its codes; for an address without a device, only the codes
    // every device answers (no name). Null never.
    const monitor::device_words *find(int address);

    // The names of the device type request and the identity request, which every device answers.
    static QHash<int, monitor::code_meaning> common_codes();
    // What `panel` describes: its readings (read codes), its set-points and parameters (write
    // codes, and their reads where no reading names them), its store commands, and the common
    // codes.
    static monitor::device_words words_for(const QString &name, const panel_base *panel);

private:
    struct entry {
        const device *dev = nullptr;
        const device_panel *panel_seen = nullptr;
        QPointer<device_panel> panel;
        QString name;
        monitor::device_words words;
    };

    device_source devices_;
    QHash<int, entry> cache_;
    monitor::device_words common_;
};
