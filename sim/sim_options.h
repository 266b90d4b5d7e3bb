#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <vector>

class sim_bus;

// What the lumivox-sim command line asks for.
struct sim_options {
    struct device_spec {
        int can_id;
        int type_id;
    };
    // A fault that starts `after_ms` after start and lasts `length_ms` (below 0: for good).
    struct window {
        int can_id;
        qint64 after_ms;
        qint64 length_ms;
    };
    struct type_change {
        int can_id;
        int type_id;
        qint64 after_ms;
    };
    struct alarm {
        int can_id;
        quint32 bits;
        qint64 after_ms;
    };

    std::vector<device_spec> devices;
    std::vector<window> silent;
    std::vector<window> garbage;
    std::vector<type_change> type_changes;
    std::vector<alarm> alarms;
    qint64 hangup_after_ms = -1;  // below 0: never
    qint64 replug_after_ms = -1;  // after a hang-up, a new line this much later (below 0: never)
    QString link;                 // stable symbolic link to the slave path, if wanted
    bool trace = false;           // every request and answer on standard error
    bool steady = false;          // readings without noise or drift (see sim_device::set_lively)
    QString replay;               // a candump log to play onto the line instead of devices
    bool help = false;
};

// Reads the arguments (the program name first, as QCoreApplication::arguments() gives them).
// False with a message for the user when an option or its value is wrong.
bool parse_sim_options(const QStringList &arguments, sim_options *options, QString *error);

// The text of --help.
QString sim_help_text();

// Puts the devices on the bus and schedules the device faults (the hang-up belongs to the line and
// is the program's). False with a message when a fault names an address without a device, or a
// fault the device cannot have.
bool populate_bus(const sim_options &options, sim_bus &bus, QString *error);
