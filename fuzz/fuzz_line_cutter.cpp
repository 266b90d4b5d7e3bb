// The serial link's line cutter fed arbitrary bytes in arbitrary chunks, as reads from the port
// deliver them. Besides not crashing: every line is non-empty, holds no carriage return and was
// sent as it stands; a buffer holds no carriage return after a cut and never outgrows the bound.
#include "line_cutter.h"
#include "serial_connector.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    FuzzedDataProvider input(data, size);
    QByteArray buffer;
    QByteArray sent;
    while (input.remaining_bytes() > 0) {
        // The chunk's length is taken from the end of the input, its bytes from the front.
        const size_t length = input.ConsumeIntegralInRange<size_t>(0, 64);
        const std::string bytes = input.ConsumeBytesAsString(length);
        const QByteArray chunk(bytes.data(), static_cast<int>(bytes.size()));
        sent.append(chunk);
        const QList<QByteArray> lines = line_cutter::append(buffer, chunk);
        for (const QByteArray &line : lines) {
            if (line.isEmpty() || line.contains('\r') || !sent.contains(line)) {
                std::abort();
            }
        }
        if (!lines.isEmpty() && !buffer.isEmpty()) {
            std::abort();  // a cut empties the buffer
        }
        line_cutter::bound(buffer, serial_connector::max_buffered_bytes);
        if (buffer.contains('\r') || buffer.size() > serial_connector::max_buffered_bytes) {
            std::abort();
        }
    }
    return 0;
}
