#include "listen_address.h"

#include <QAbstractSocket>
#include <QRegularExpression>

std::optional<listen_address> listen_address::parse(const QString &text, QString *error) {
    listen_address where;
    QString port = text.trimmed();
    const int colon = port.lastIndexOf(QLatin1Char(':'));
    if (colon >= 0) {
        QString host = port.left(colon);
        port = port.mid(colon + 1);
        if (host.startsWith(QLatin1Char('[')) && host.endsWith(QLatin1Char(']'))) {
            host = host.mid(1, host.size() - 2);
            if (!host.contains(QLatin1Char(':'))) {
                host.clear();  // brackets are for IPv6 addresses only
            }
        } else if (host.contains(QLatin1Char(':'))) {
            host.clear();  // an IPv6 address needs its brackets
        } else if (!QRegularExpression(QStringLiteral("^\\d{1,3}(\\.\\d{1,3}){3}$"))
                        .match(host)
                        .hasMatch()) {
            host.clear();  // four numbers: "1.2.3" is not read as 1.2.0.3
        }
        if (host.isEmpty() || !where.address.setAddress(host)) {
            *error = QStringLiteral("\"%1\" is not an IP address (IPv6 in brackets)")
                         .arg(text.left(colon));
            return std::nullopt;
        }
    }
    bool ok = false;
    const uint number = port.toUInt(&ok);
    if (!ok || number > 65535 || port.startsWith(QLatin1Char('+'))) {
        *error = QStringLiteral("\"%1\" is not a port number (0 to 65535)").arg(port);
        return std::nullopt;
    }
    where.port = static_cast<quint16>(number);
    return where;
}

QString listen_address::text() const {
    const QString host = address.protocol() == QAbstractSocket::IPv6Protocol
                             ? QLatin1Char('[') + address.toString() + QLatin1Char(']')
                             : address.toString();
    return host + QLatin1Char(':') + QString::number(port);
}
