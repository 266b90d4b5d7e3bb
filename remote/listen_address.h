#pragma once

#include <QHostAddress>
#include <QString>

#include <optional>

// Where the command server listens: "[ADDR:]PORT" as the operator gives it. ADDR is an IPv4
// address or an IPv6 address in brackets ("[::1]:5025") and defaults to 127.0.0.1, so the server
// is reachable from other computers only when an address says so. Port 0 takes any free port.
struct listen_address {
    QHostAddress address{QHostAddress::LocalHost};
    quint16 port = 0;

    static constexpr quint16 usual_port = 5025;

    // None, with the reason in `error`, when `text` is not of that form.
    static std::optional<listen_address> parse(const QString &text, QString *error);
    // "127.0.0.1:5025", "[::1]:5025".
    QString text() const;
    bool loopback() const { return address.isLoopback(); }
};
