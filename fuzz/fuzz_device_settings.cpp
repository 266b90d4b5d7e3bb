// The settings file reader (a file handed to "Load from file..." or --restore may be anything),
// fed arbitrary bytes. Besides not crashing: a refusal always says why, and a file it accepts
// reads back the same once written again.
#include "device_settings.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<int>(size));
    const device_settings::read_result read = device_settings::from_text(bytes);
    if (!read.settings) {
        if (read.error.isEmpty()) {
            std::abort();
        }
        return 0;
    }
    const device_settings::read_result again =
        device_settings::from_text(device_settings::to_text(*read.settings));
    if (!again.settings) {
        std::abort();
    }
    const device_settings::snapshot &a = *read.settings;
    const device_settings::snapshot &b = *again.settings;
    if (a.type_id != b.type_id || a.can_id != b.can_id || a.model != b.model ||
        a.name != b.name || a.program != b.program || a.rows.size() != b.rows.size()) {
        std::abort();
    }
    for (int i = 0; i < a.rows.size(); ++i) {
        if (a.rows[i].code != b.rows[i].code || a.rows[i].label != b.rows[i].label ||
            a.rows[i].decimals != b.rows[i].decimals || a.rows[i].wire != b.rows[i].wire) {
            std::abort();
        }
    }
    return 0;
}
