// The simulator's adapter fed arbitrary bytes in arbitrary chunks, with devices of modelled types
// on the bus behind it and time passing between chunks: adapter commands, frames and the device
// models' handling of any code and value. Besides not crashing: the replies are made of "\r", the
// bell and answer frames only.
#include "device_profiles.h"
#include "sim_bus.h"
#include "sim_frame.h"
#include "slcan_adapter.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <cstdint>
#include <cstdlib>
#include <vector>

namespace {

// A reply is what the adapter answered to each command of the chunk, in order: "\r" (done), the
// bell (refused), or answer frames closed by "\r" (a device set to answer with noise sends that
// many characters instead, never starting with "t").
bool well_formed_reply(const QByteArray &reply) {
    int at = 0;
    while (at < reply.size()) {
        if (reply.at(at) == '\a') {
            ++at;
            continue;
        }
        const int end = reply.indexOf('\r', at);
        if (end < 0 || end - at > sim_frame::frame_length) {
            return false;
        }
        at = end + 1;
    }
    return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    static const std::vector<int> types = sim::modelled_types();
    FuzzedDataProvider input(data, size);
    // Two devices of modelled types picked by the input, at CAN IDs 1 and 2 (a bus of every type
    // at once costs more to build than the rest of a run; over the runs every type is met).
    sim_bus bus;
    for (int can_id = 1; can_id <= 2; ++can_id) {
        bus.add_device(can_id, types.at(input.ConsumeIntegralInRange<size_t>(0, types.size() - 1)));
    }
    slcan_adapter adapter(bus);
    while (input.remaining_bytes() > 0) {
        const size_t length = input.ConsumeIntegralInRange<size_t>(1, 96);
        const std::string bytes = input.ConsumeBytesAsString(length);
        const QByteArray reply = adapter.feed(QByteArray(bytes.data(), int(bytes.size())));
        if (!well_formed_reply(reply)) {
            std::abort();
        }
        bus.advance(input.ConsumeIntegralInRange<int>(0, 200));
    }
    return 0;
}
