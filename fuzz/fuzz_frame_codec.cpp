// The frame parse of a received line (every device runs it on every line from the bus), fed
// arbitrary text. Besides not crashing: a line taken as a frame starts with "t", and a frame the
// program composes from the input's first bytes reads back as the same code and value.
#include "frame_codec.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<int>(size));
    const QString line = QString::fromUtf8(bytes);
    const frame_codec::parsed_line parsed = frame_codec::parse(line);
    if (parsed.is_frame && !line.startsWith(QLatin1Char('t'))) {
        std::abort();
    }

    if (size >= 7) {
        quint16 id = 0;
        quint32 value = 0;
        std::memcpy(&id, data, sizeof id);
        std::memcpy(&value, data + 3, sizeof value);
        const int can_id = id % (frame_codec::max_can_id + 1);
        const int code = data[2];
        QString frame = frame_codec::compose(can_id, code, value);
        frame.chop(2);  // the line end, which the serial link cuts off
        const frame_codec::parsed_line back = frame_codec::parse(frame);
        if (!back.is_frame || back.code != code || back.sender != frame_codec::host_address ||
            back.value != frame_codec::from_wire(value)) {
            std::abort();
        }
    }
    return 0;
}
