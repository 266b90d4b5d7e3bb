// The command server's session fed arbitrary lines, as clients send them, over an instrument with
// one device of every kind of answer. Besides not crashing: every answer is one line ending in a
// line feed, the error queue never outgrows its bound, and a write reaches the instrument only
// while writes are allowed and only with a value inside the set-point's limits.
#include "command_session.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <cstdint>
#include <cstdlib>

namespace {

class fixed_instrument : public instrument {
public:
    bool allowed = false;

    QString identity() const override { return QStringLiteral("Lumivox,Fuzz,host,v5.0"); }
    bool writes_allowed() const override { return allowed; }
    bool bus_connected() const override { return false; }
    QVector<int> device_ids() const override { return {1, 2, 3}; }
    std::optional<device_info> device(int id) const override {
        if (id < 1 || id > 3) {
            return std::nullopt;
        }
        return device_info{"dev", "model", 14, static_cast<presence>(id - 1)};
    }
    QVector<quantity> readings(int) const override { return {{"current", "mA"}}; }
    std::optional<sample> reading(int, const QString &) const override {
        return sample{1.5, 0.5};
    }
    QVector<setpoint_info> setpoints(int) const override { return {{"current", "mA", 0, 100}}; }
    std::optional<double> setpoint_value(int, const QString &key) const override {
        return key == QLatin1String("current") ? std::optional<double>(5) : std::nullopt;
    }
    outcome write_setpoint(int, const QString &key, double value) override {
        if (!allowed || key != QLatin1String("current")) {
            std::abort();  // the session must not get here
        }
        return value >= 0 && value <= 100 ? outcome::queued : outcome::out_of_range;
    }
    std::optional<bool> output(int) const override { return false; }
    bool set_output(int, bool) override {
        if (!allowed) {
            std::abort();
        }
        return true;
    }
    QVector<parameter_info> parameters(int) const override { return {{81, "CAN ID", 1.0}}; }
    outcome write_parameter(int, int code, double) override {
        if (!allowed) {
            std::abort();
        }
        return code == 81 ? outcome::queued : outcome::unknown_key;
    }
    bool store_parameters(int) override {
        if (!allowed) {
            std::abort();
        }
        return true;
    }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    FuzzedDataProvider input(data, size);
    fixed_instrument target;
    target.allowed = input.ConsumeBool();
    command_session session(target);
    while (input.remaining_bytes() > 0) {
        const std::string text = input.ConsumeRandomLengthString(4096);
        const QByteArray line(text.data(), static_cast<int>(text.size()));
        const QByteArray answer = session.run(line);
        if (!answer.isEmpty() && (!answer.endsWith('\n') || answer.count('\n') != 1)) {
            std::abort();
        }
        if (session.errors_queued() > command_session::error_queue_size) {
            std::abort();
        }
    }
    return 0;
}
