#include "port_failure.h"

#include <QFile>

#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>

QString port_failure::device_path(const QString &port) {
    return port.startsWith(QLatin1Char('/')) ? port : QStringLiteral("/dev/") + port;
}

port_failure port_failure::classify(const QString &port, QSerialPort::SerialPortError error,
                                    const QString &detail) {
    port_failure f;
    f.port = port;
    f.detail = detail;
    if (port.trimmed().isEmpty()) {
        f.what = no_port;
        return f;
    }
    const QByteArray path = QFile::encodeName(device_path(port));
    struct stat info {};
    if (::stat(path.constData(), &info) != 0 && (errno == ENOENT || errno == ENOTDIR)) {
        f.what = missing;
        return f;
    }
    switch (error) {
    case QSerialPort::DeviceNotFoundError:
        f.what = missing;
        break;
    case QSerialPort::PermissionError:
        // The same check the open made, by the real user: refused means the file's permissions;
        // allowed means the refusal came from whoever holds the port.
        f.what = ::access(path.constData(), R_OK | W_OK) != 0 && errno == EACCES ? permission
                                                                                  : busy;
        break;
    default:
        f.what = other;
        break;
    }
    return f;
}
