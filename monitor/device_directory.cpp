#include "device_directory.h"

#include "device.h"
#include "device_panel.h"
#include "frame_codec.h"
#include "panel_base.h"
#include "scaling.h"

#include <cmath>

namespace {

// "Temperature" reads "temperature" inside a name; "TEC" stays as it is.
QString in_sentence(const QString &quantity) {
    if (quantity.size() > 1 && quantity.at(1).isUpper()) {
        return quantity;
    }
    QString text = quantity;
    if (!text.isEmpty()) {
        text[0] = text.at(0).toLower();
    }
    return text;
}

// Decimals that show a value written with `scale` (10 for tenths) without losing a digit.
int decimals_for(double scale) {
    const double a = std::fabs(scale);
    if (a <= 1) {
        return 0;
    }
    return std::min(6, static_cast<int>(std::ceil(std::log10(a) - 1e-9)));
}

}  // namespace

device_directory::device_directory(device_source devices) : devices_(std::move(devices)) {
    common_.codes = common_codes();
}

QHash<int, monitor::code_meaning> device_directory::common_codes() {
    QHash<int, monitor::code_meaning> codes;
    codes.insert(device::type_answer_code, {tr("read device type"), {}, 1, 0, 0, true});
    codes.insert(device::identity_answer_code, {tr("read CAN ID"), {}, 1, 0, 0, true});
    return codes;
}

monitor::device_words device_directory::words_for(const QString &name, const panel_base *panel) {
    monitor::device_words words;
    words.name = name;
    words.codes = common_codes();
    if (!panel) {
        return words;
    }
    // Parameters: "Max current, mA" is the quantity "max current" in mA.
    for (const parameter_record &record : panel->parameters()) {
        QString quantity = record.label;
        QString unit;
        const int comma = quantity.lastIndexOf(QLatin1String(", "));
        if (comma > 0) {
            unit = quantity.mid(comma + 2);
            quantity.truncate(comma);
        }
        const monitor::code_meaning meaning{{}, unit, scaling::pow10(record.decimals), 0,
                                            record.decimals, true};
        monitor::code_meaning write = meaning;
        write.name = tr("write %1").arg(in_sentence(quantity));
        words.codes.insert(record.code, write);
        monitor::code_meaning read = meaning;
        read.name = tr("read %1").arg(in_sentence(quantity));
        words.codes.insert(record.code + 128, read);
    }
    // Set-points: what a write command sets, and its read where no reading is described.
    for (int code = 0; code < 128; ++code) {
        QString quantity;
        QString unit;
        double scale = 1;
        double offset = 0;
        if (!panel->command_description(code, &quantity, &unit, &scale, &offset)) {
            continue;
        }
        const monitor::code_meaning meaning{
            {}, unit, scale == 0 ? 1 : scale, offset, decimals_for(scale), true};
        monitor::code_meaning write = meaning;
        write.name = tr("write %1 set-point").arg(in_sentence(quantity));
        words.codes.insert(code, write);
        if (!words.codes.contains(code + 128)) {
            monitor::code_meaning read = meaning;
            read.name = tr("read %1").arg(in_sentence(quantity));
            words.codes.insert(code + 128, read);
        }
    }
    // Readings: how the panel shows what the device reports.
    for (const reading_spec &reading : panel->readings()) {
        words.codes.insert(reading.code,
                           {tr("read %1").arg(in_sentence(reading.quantity)), reading.unit,
                            reading.divisor == 0 ? 1 : reading.divisor, reading.offset,
                            reading.decimals, true});
    }
    for (const panel_command &store : panel->store_commands()) {
        if (!words.codes.contains(store.code)) {
            words.codes.insert(store.code, {tr("store parameters"), {}, 1, 0, 0, false});
        }
    }
    return words;
}

const monitor::device_words *device_directory::find(int address) {
    const QList<device *> devices = devices_ ? devices_() : QList<device *>();
    const device *match = nullptr;
    for (const device *dev : devices) {
        if (dev->can_id() == address) {
            match = dev;
            break;
        }
    }
    if (!match) {
        for (const device *dev : devices) {
            if (frame_codec::accepts(address, dev->can_id(), dev->accept_any_sender())) {
                match = dev;
                break;
            }
        }
    }
    if (!match) {
        return &common_;
    }
    entry &e = cache_[address];
    const device_panel *panel = match->current_panel();
    // A panel seen before and deleted since reads null through the QPointer: built anew.
    const bool same_panel = e.panel_seen == panel && e.panel.data() == panel;
    if (e.dev != match || !same_panel || e.name != match->name()) {
        e.dev = match;
        e.panel_seen = panel;
        e.panel = const_cast<device_panel *>(panel);
        e.name = match->name();
        e.words = words_for(e.name, qobject_cast<const panel_base *>(panel));
    }
    return &e.words;
}
