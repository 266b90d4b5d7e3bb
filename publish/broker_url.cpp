#include "broker_url.h"

#include <QCoreApplication>

namespace {

QString tr(const char *text) {
    return QCoreApplication::translate("broker_url", text);
}

bool is_name_char(QChar c) {
    return (c >= QLatin1Char('a') && c <= QLatin1Char('z')) ||
           (c >= QLatin1Char('A') && c <= QLatin1Char('Z')) ||
           (c >= QLatin1Char('0') && c <= QLatin1Char('9')) || c == QLatin1Char('-') ||
           c == QLatin1Char('.') || c == QLatin1Char('_');
}

bool is_v6_char(QChar c) {
    return (c >= QLatin1Char('a') && c <= QLatin1Char('f')) ||
           (c >= QLatin1Char('A') && c <= QLatin1Char('F')) ||
           (c >= QLatin1Char('0') && c <= QLatin1Char('9')) || c == QLatin1Char(':') ||
           c == QLatin1Char('.');
}

// A host name or IPv4 address: dot-separated labels of letters, digits, '-' and '_'.
bool is_host_name(const QString &host) {
    if (host.isEmpty() || host.size() > broker_url::max_host_length ||
        host.startsWith(QLatin1Char('.')) || host.startsWith(QLatin1Char('-')) ||
        host.contains(QLatin1String(".."))) {
        return false;
    }
    for (const QChar c : host) {
        if (!is_name_char(c)) {
            return false;
        }
    }
    return true;
}

bool is_v6_address(const QString &host) {
    if (host.size() < 2 || host.size() > 45 || !host.contains(QLatin1Char(':'))) {
        return false;
    }
    for (const QChar c : host) {
        if (!is_v6_char(c)) {
            return false;
        }
    }
    return true;
}

}  // namespace

QString broker_url::read(const QString &text, broker_address *address) {
    if (text.size() > max_length) {
        return tr("the broker URL is longer than %1 characters").arg(max_length);
    }
    broker_address read_address;
    QString rest;
    if (text.startsWith(QLatin1String("mqtt://"), Qt::CaseInsensitive)) {
        rest = text.mid(7);
        read_address.port = default_port;
    } else if (text.startsWith(QLatin1String("mqtts://"), Qt::CaseInsensitive)) {
        rest = text.mid(8);
        read_address.tls = true;
        read_address.port = default_tls_port;
    } else {
        return tr("\"%1\" is not a broker URL: it must start with mqtt:// or mqtts://").arg(text);
    }
    if (rest.endsWith(QLatin1Char('/'))) {
        rest.chop(1);
    }
    if (rest.contains(QLatin1Char('@'))) {
        return tr("a user name or password does not belong in the broker URL (anyone on this "
                  "machine can read the command line): put it in the settings file or the "
                  "environment");
    }
    if (rest.contains(QLatin1Char('/')) || rest.contains(QLatin1Char('?')) ||
        rest.contains(QLatin1Char('#'))) {
        return tr("\"%1\": a broker URL has no path, query or fragment").arg(text);
    }

    QString port_text;
    if (rest.startsWith(QLatin1Char('['))) {
        const int close = rest.indexOf(QLatin1Char(']'));
        if (close < 0) {
            return tr("\"%1\": the IPv6 address has no closing bracket").arg(text);
        }
        read_address.host = rest.mid(1, close - 1);
        if (!is_v6_address(read_address.host)) {
            return tr("\"%1\" is not an IPv6 address").arg(read_address.host);
        }
        const QString after = rest.mid(close + 1);
        if (!after.isEmpty()) {
            if (!after.startsWith(QLatin1Char(':'))) {
                return tr("\"%1\": unexpected text after the address").arg(text);
            }
            port_text = after.mid(1);
            if (port_text.isEmpty()) {
                return tr("\"%1\": the port is missing after the colon").arg(text);
            }
        }
    } else {
        const int colon = rest.indexOf(QLatin1Char(':'));
        read_address.host = colon < 0 ? rest : rest.left(colon);
        if (colon >= 0) {
            port_text = rest.mid(colon + 1);
            if (port_text.isEmpty()) {
                return tr("\"%1\": the port is missing after the colon").arg(text);
            }
        }
        if (read_address.host.isEmpty()) {
            return tr("\"%1\": the broker's host is missing").arg(text);
        }
        if (!is_host_name(read_address.host)) {
            return tr("\"%1\" is not a host name or address").arg(read_address.host);
        }
    }
    if (!port_text.isEmpty()) {
        bool number = port_text.size() <= 5;
        for (const QChar c : qAsConst(port_text)) {
            number = number && c >= QLatin1Char('0') && c <= QLatin1Char('9');
        }
        const int port = number ? port_text.toInt() : 0;
        if (port < 1 || port > 65535) {
            return tr("\"%1\": the port must be a number from 1 to 65535").arg(text);
        }
        read_address.port = port;
    }
    *address = read_address;
    return QString();
}

QString broker_url::text(const broker_address &address) {
    const QString host = address.host.contains(QLatin1Char(':'))
                             ? QLatin1Char('[') + address.host + QLatin1Char(']')
                             : address.host;
    return QStringLiteral("%1://%2:%3")
        .arg(address.tls ? QStringLiteral("mqtts") : QStringLiteral("mqtt"), host)
        .arg(address.port);
}
