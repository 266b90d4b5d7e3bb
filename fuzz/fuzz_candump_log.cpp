// The candump log reader (logs come from customers and other CAN tools) and the monitor's reading
// of the link's lines, fed arbitrary bytes. Besides not crashing: the reader keeps no more frames
// than asked, each of 0 to 8 bytes at a standard id; a frame read, written again and read back is
// the same frame; the simulator's replay text of a frame reads as that frame from the link; and a
// line that is no frame keeps a bounded text.
#include "bus_line.h"
#include "candump_log.h"
#include "log_replay.h"

#include <cstdint>
#include <cstdlib>

namespace {

constexpr int capacity = 16;

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<int>(size));
    candump_log::reader reader(capacity);
    reader.take_all(bytes);
    if (reader.frames().size() > static_cast<std::size_t>(capacity) ||
        reader.frames_read() < static_cast<qint64>(reader.frames().size())) {
        std::abort();
    }
    for (const monitor::bus_line &frame : reader.frames()) {
        if (frame.length > 8 || frame.can_id > 0x7FF || !frame.is_frame()) {
            std::abort();
        }
        candump_log::reader again(1);
        again.take(candump_log::format(frame));
        if (again.frames().size() != 1 || again.frames().front() != frame) {
            std::abort();
        }
        const QString text = QString::fromLatin1(log_replay::frame_text(frame)).chopped(1);
        const monitor::bus_line wire =
            monitor::read_wire(frame.time_us, monitor::direction::received, text);
        if (wire.kind != monitor::line_kind::frame || wire.can_id != frame.can_id ||
            wire.length != frame.length || wire.data != frame.data) {
            std::abort();
        }
    }

    for (const monitor::direction dir : {monitor::direction::sent, monitor::direction::received}) {
        const monitor::bus_line line = monitor::read_wire(0, dir, QString::fromUtf8(bytes));
        if ((line.is_frame() && line.length > 8) ||
            line.text.size() > monitor::max_kept_text + 40) {
            std::abort();
        }
        (void)line.value();
        (void)line.address();
    }
    return 0;
}
