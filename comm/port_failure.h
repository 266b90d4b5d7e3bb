#pragma once

#include <QSerialPort>
#include <QString>

// Why a serial port could not be opened, in the terms an operator can act on. The link records it
// when an open fails; the window turns it into words.
struct port_failure {
    enum kind {
        none,        // the last open succeeded, or nothing was tried
        no_port,     // no port was chosen
        missing,     // the device file is not there: the adapter is unplugged
        permission,  // the user may not open it: not in the group that owns serial ports
        busy,        // another program holds it
        other,       // anything else; `detail` says what the system said
    };
    kind what = none;
    QString port;    // the name the open was asked for
    QString detail;  // the serial port module's own description of the error

    // Classifies a failed open of `port` from the module's error code, looking at the device file
    // itself: the module reports a file that the user may not open and one that another program
    // holds (its lock file, or an exclusive open) alike, as a permission error.
    static port_failure classify(const QString &port, QSerialPort::SerialPortError error,
                                 const QString &detail);
    // The file the module opens for `port`: the name itself when it is a path, else under /dev.
    static QString device_path(const QString &port);
};
