// The reading of the broker URL (from the command line or the settings file), fed arbitrary text.
// Besides not crashing: a URL taken has a host and a port in range, and the address as the program
// shows it reads back as the same address.
#include "broker_url.h"

#include <QByteArray>

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    const QString text =
        QString::fromUtf8(QByteArray(reinterpret_cast<const char *>(data), static_cast<int>(size)));
    broker_address address;
    if (!broker_url::read(text, &address).isEmpty()) {
        return 0;
    }
    if (address.host.isEmpty() || address.host.size() > broker_url::max_host_length ||
        address.port < 1 || address.port > 65535) {
        std::abort();
    }
    broker_address again;
    if (!broker_url::read(broker_url::text(address), &again).isEmpty() ||
        again.host != address.host || again.port != address.port || again.tls != address.tls) {
        std::abort();
    }
    return 0;
}
