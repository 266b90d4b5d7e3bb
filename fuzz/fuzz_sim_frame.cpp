// The simulator's reading of one request line, fed arbitrary bytes. Besides not crashing: what it
// accepts has its fields in range, and a lower-case line is written back the same by the
// simulator's own composer (the checksum covers the text, so upper-case digits give another one).
#include "sim_frame.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    const QByteArray line(reinterpret_cast<const char *>(data), static_cast<int>(size));
    const std::optional<sim_frame::request> request = sim_frame::parse_request(line);
    if (!request) {
        return 0;
    }
    if (request->can_id < 0 || request->can_id > 0xFFF || request->code < 0 ||
        request->code > 0xFF || request->sender < 0 || request->sender > 0xFF) {
        std::abort();
    }
    if (request->reserved == 0 && line == line.toLower()) {
        QByteArray again = sim_frame::compose_answer(
            request->can_id, request->sender, request->code, static_cast<quint32>(request->value));
        again.chop(1);  // the adapter's "\r"
        if (again != line) {
            std::abort();
        }
    }
    return 0;
}
