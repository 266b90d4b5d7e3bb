#pragma once

#include <QString>

// Where the publisher connects: read from the `--mqtt` option.
struct broker_address {
    bool tls = false;
    QString host;  // a name, an IPv4 address, or an IPv6 address without its brackets
    int port = 0;
};

namespace broker_url {

constexpr int default_port = 1883;
constexpr int default_tls_port = 8883;
// Longer text is refused before it is looked at.
constexpr int max_length = 300;
constexpr int max_host_length = 253;

// Reads "mqtt://host[:port]" or "mqtts://host[:port]" (TLS), with an optional "/" at the end;
// the port defaults to 1883 or 8883. IPv6 addresses go in brackets: "mqtt://[::1]:1884".
// Returns an empty string when `text` is such a URL and fills `address`; else says what is wrong
// (and leaves `address` alone). A user name or password in the URL is refused: the command line
// is visible to every user of the machine.
QString read(const QString &text, broker_address *address);

// "mqtts://host:8883": the address as the program shows it.
QString text(const broker_address &address);

}  // namespace broker_url
