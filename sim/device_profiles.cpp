#include "device_profiles.h"

#include "sim_device.h"

#include <QtGlobal>

#include <algorithm>
#include <cmath>
#include <map>

namespace sim {

follower_def follower_def::ramp_of(int code, double units_per_s, int gate) {
    follower_def f;
    f.code = code;
    f.kind = ramp;
    f.rate = units_per_s;
    f.gate = gate;
    return f;
}

follower_def follower_def::settle_of(int code, double time_constant_s, int gate, qint32 rest) {
    follower_def f = ramp_of(code, time_constant_s, gate);
    f.kind = settle;
    f.rest = rest;
    return f;
}

follower_def follower_def::limited(int max, int min, int per_limit_unit) const {
    follower_def f = *this;
    f.max_code = max;
    f.min_code = min;
    f.limit_scale = per_limit_unit;
    return f;
}

follower_def follower_def::reported_times(int factor) const {
    follower_def f = *this;
    f.scale = factor;
    return f;
}

follower_def follower_def::alternative(int when, qint32 when_value, int source, int num,
                                       int den) const {
    follower_def f = *this;
    f.alt_when = when;
    f.alt_value = when_value;
    f.alt_source = source;
    f.alt_num = num;
    f.alt_den = den;
    return f;
}

const reg_def *device_profile::find(int code) const {
    const auto it = std::find_if(registers.begin(), registers.end(),
                                 [code](const reg_def &r) { return r.code == code; });
    return it == registers.end() ? nullptr : &*it;
}

const follower_def *device_profile::find_follower(int code) const {
    const auto it = std::find_if(followers.begin(), followers.end(),
                                 [code](const follower_def &f) { return f.code == code; });
    return it == followers.end() ? nullptr : &*it;
}

namespace {

// Values below are in the units each device uses on the wire: a row with one decimal carries
// tenths, and so on.

reg_def plain(int code, qint32 initial = 0) {
    return {code, initial, reg_kind::plain};
}
reg_def fixed(int code, qint32 initial = 0) {
    return {code, initial, reg_kind::read_only};
}
reg_def config(int code, qint32 initial) {
    return {code, initial, reg_kind::config};
}

// Room temperature in tenths of a degree: where temperatures start and drift back to.
constexpr qint32 ambient_tenths = 230;
// A TEC loop settles with this time constant.
constexpr double tec_time_constant_s = 2.0;

// A profile under construction; every type starts with its type id and CAN ID registers (the
// CAN ID's value is the device's address, filled in when a device is created).
class builder {
public:
    builder(int type, const char *model) {
        p_.type_id = type;
        p_.model = QString::fromUtf8(model);
        add({fixed(type_code, type), config(can_id_code, 0)});
    }
    builder &add(std::initializer_list<reg_def> regs) {
        p_.registers.insert(p_.registers.end(), regs.begin(), regs.end());
        return *this;
    }
    // The follower's code becomes a register too: reads report where the quantity is.
    builder &follow(const follower_def &f) {
        p_.followers.push_back(f);
        return add({fixed(f.code, f.rest * f.scale)});
    }
    builder &derive(const derived_def &d) {
        p_.derived.push_back(d);
        return add({fixed(d.code, d.gate < 0 ? d.offset : d.idle)});
    }
    builder &emission(int code) {
        p_.emission_code = code;
        return add({plain(code)});
    }
    builder &alarm(int code, int clear_code = -1) {
        p_.alarm_code = code;
        p_.alarm_clear_code = clear_code;
        return add({fixed(code)});
    }
    builder &store(int code) {
        p_.store_code = code;
        return *this;
    }
    builder &fixed_address_fa() {
        p_.answers_fa = true;
        return *this;
    }
    builder &hook(void (*update)(sim_device &)) {
        p_.update = update;
        return *this;
    }
    // Thermistor data: resistance at 25 °C and beta.
    builder &thermistor(int r25_code = 22, int beta_code = 21) {
        return add({config(r25_code, 10000), config(beta_code, 3950)});
    }
    // Regulator coefficients with four decimals: P 0.1, I 0.01, D 0.005.
    builder &regulator(int p = 68, int i = 69, int d = 70) {
        return add({config(p, 1000), config(i, 100), config(d, 50)});
    }
    // Temperature limits in degrees, stored with `per_degree` units to the degree.
    builder &temperature_limits(int max_c, int min_c, int per_degree) {
        return add({config(55, max_c * per_degree), config(54, min_c * per_degree)});
    }
    // A TEC: switch 33, set point and reading 18 held between the temperature limits.
    builder &tec(int per_tenth = 1, int limit_scale = 1) {
        add({plain(33)});
        return follow(
            follower_def::settle_of(18, tec_time_constant_s, 33, ambient_tenths * per_tenth)
                .limited(55, 54, limit_scale));
    }
    device_profile done() { return p_; }

private:
    device_profile p_;
};

// CW driver: current ramps after emission; optical power follows the current (0.8 mW/mA); in
// mode 3 the current is regulated for the power set point (65, in 0.01 mW).
void cw_rows(builder &b, int max_ma) {
    b.emission(16).alarm(48).store(82);
    b.add({plain(36), plain(65), config(37, max_ma * 10), config(38, 0), config(23, 85)});
    b.temperature_limits(35, 15, 10).thermistor().regulator().tec();
    b.follow(follower_def::ramp_of(17, 5000, 16).limited(37, 38).alternative(36, 3, 65, 1, 8));
    b.derive({20, 17, 8, 10, 0});
}

device_profile cw(int type, const char *model, int max_ma, bool power_limits, bool tec_limit) {
    builder b(type, model);
    cw_rows(b, max_ma);
    if (power_limits) {
        b.add({config(66, max_ma * 8), config(67, 0)});
    }
    if (tec_limit) {
        b.add({config(51, 20)});
    }
    return b.done();
}

// Precision CW driver: current set in 0.01 mA and reported in 0.0001 mA; temperature set and
// reported in 0.0001 °C, its limits kept in 0.01 °C.
device_profile cw_precision() {
    builder b(15, "VTR-CW-1800H precision");
    b.emission(16).store(82);
    b.add({plain(36), plain(65), config(37, 180000), config(38, 0), config(66, 14400),
           config(67, 0), config(51, 20), config(23, 85)});
    b.temperature_limits(35, 15, 100).thermistor().regulator().tec(1000, 100);
    b.follow(follower_def::ramp_of(17, 5000000, 16)
                 .reported_times(100)
                 .limited(37, 38)
                 .alternative(36, 3, 65, 10, 8));
    b.derive({20, 17, 8, 10000, 0});
    return b.done();
}

// Heater accessory: heats towards its set point while switched on (33), cools to the room when off.
device_profile heater() {
    builder b(4, "Heater");
    b.add({plain(33)});
    b.follow(follower_def::settle_of(18, 6.0, 33, 220));
    return b.done();
}

// Pulse picker: output rate (149) from the seed rate (150) by mode 16 (0 open, 1 closed,
// 2 divide by 18, 3 bursts of 19 pulses then 20 skipped).
void picker_rate(sim_device &d) {
    const qint64 seed = d.value(22);
    qint64 rate = seed;
    switch (d.value(16)) {
        case 1:
            rate = 0;
            break;
        case 2:
            rate = seed / qMax<qint64>(1, d.value(18));
            break;
        case 3: {
            const qint64 pass = qMax<qint64>(0, d.value(19));
            const qint64 skip = qMax<qint64>(0, d.value(20));
            rate = pass + skip > 0 ? seed * pass / (pass + skip) : seed;
            break;
        }
        default:
            break;
    }
    d.set_measured(21, static_cast<qint32>(rate));
}

device_profile pulse_picker() {
    builder b(5, "Pulse Picker");
    b.add({plain(16), plain(17), plain(18, 1), plain(19), plain(20), fixed(21, 1000000),
           fixed(22, 1000000)});
    return b.hook(picker_rate).done();
}

// Comb laser: TEC current (180) in mA offset by 2500, pushed by the temperature error.
void comb_tec_current(sim_device &d) {
    qint64 current = 0;
    if (d.value(33) != 0) {
        current = qBound<qint64>(-2000, (qint64(d.set_point(18)) - d.value(18)) * 40, 2000);
    }
    d.set_measured(52, static_cast<qint32>(2500 + current));
}

device_profile comb_laser() {
    builder b(17, "COMB driver");
    b.emission(16).store(82);
    // Bias: on/off 32, voltage 24 (negative, 0.01 V), current 25 drawn while the bias is on.
    b.add({plain(36), plain(32), plain(24), fixed(52, 2500), config(37, 5000), config(38, 0),
           config(51, 20), config(23, 85)});
    b.temperature_limits(35, 15, 10).thermistor().regulator().tec();
    b.follow(follower_def::ramp_of(17, 5000, 16).limited(37, 38));
    b.derive({20, 17, 8, 10, 0});
    b.derive({25, 24, -2, 10, 0, 32, 0});
    return b.hook(comb_tec_current).done();
}

// Picosecond driver: repetition rate 25 in Hz, trigger source 36 (0 internal, 1 pulse on demand or
// the module's external trigger, 2 external), TEC 33/18, drive voltage limits 37/38 (0.1 V).
// `emission` and `companion` are the two switch codes the family uses (one of them switches the
// output, the other is kept as written).
builder ps_family(int type, const char *model, int emission, int companion) {
    builder b(type, model);
    b.emission(emission).store(82);
    b.add({plain(companion), plain(25, 100000), plain(36), config(37, 300), config(38, 0)});
    b.temperature_limits(40, 15, 10).thermistor().regulator().tec();
    return b;
}

// The drive voltage 24 (0.1 V) ramps to its set point after emission on.
void voltage_drive(builder &b, int emission) {
    b.follow(follower_def::ramp_of(24, 100, emission).limited(37, 38));
}

// Burst counts: pulses passed (52) and cut (53); the driver bursts while 53 is non-zero.
void burst_counts(builder &b) {
    b.add({plain(52, 1), plain(53, 0)});
}

// Synchronisation: pulse delay 71, sync delay 72 (0.1 ns, may be negative), sync mode 73.
void sync_block(builder &b) {
    b.add({plain(71), plain(72), plain(73)});
}

device_profile ps(int type, const char *model) {
    builder b = ps_family(type, model, 32, 34);
    voltage_drive(b, 32);
    burst_counts(b);
    if (type == 28) {
        sync_block(b);
    }
    return b.done();
}

// The energy-calibrated driver sets its drive voltage from the pulse energy through its
// calibration, V = a3·E³ + a2·E² + a1·E + a0 (E as reported, V in volts), held between the
// voltage limits; no voltage while emission is off.
void energy_to_voltage(sim_device &d) {
    qint64 tenths = 0;
    if (d.value(32) != 0) {
        const double e = d.value(60) / 10.0;
        double v = 0;
        for (int code = 56; code <= 59; ++code) {  // a3 .. a0, six decimals
            v = v * e + d.value(code) / 1e6;
        }
        tenths = qBound<qint64>(d.value(38), std::llround(v * 10), d.value(37));
    }
    d.set_measured(24, static_cast<qint32>(tenths));
}

// Energy-calibrated picosecond driver: energy set point 60 (0.1 units) ramps after emission up to
// the max energy row 61; calibration a3..a0 in rows 56..59 with six decimals (25 V at 10.0).
device_profile ps_energy() {
    builder b = ps_family(26, "VTR-PS-BOX", 32, 34);
    burst_counts(b);
    b.add({fixed(24), config(56, 1000), config(57, -20000), config(58, 2500000),
           config(59, 1000000), config(61, 100)});
    b.follow(follower_def::ramp_of(60, 50, 32).limited(61, -1));
    return b.hook(energy_to_voltage).done();
}

// The module warns (alarm bit 9) while its drive voltage is within 5 % of the maximum row.
void output_near_max(sim_device &d) {
    constexpr quint32 near_max = 1u << 9;
    const qint64 max = d.value(37);
    const bool near = max > 0 && qint64(d.value(24)) * 100 >= max * 95;
    const quint32 word = quint32(d.value(48));
    d.set_measured(48, static_cast<qint32>(near ? word | near_max : word & ~near_max));
}

// Picosecond module: emission on 34 (32 kept as written), alarm word 48, no burst counts.
device_profile ps_module() {
    builder b = ps_family(35, "KSO-PS-640", 34, 32);
    voltage_drive(b, 34);
    b.alarm(48);
    return b.hook(output_near_max).done();
}

// The driver keeps its pulse within 2 % of the period, and within 100 ns under an external
// trigger: a longer duration is cut to what the rate allows.
void ns_duty_cycle(sim_device &d) {
    qint64 limit = 0;  // 0.1 ns
    if (d.value(36) == 2) {
        limit = 1000;
    } else if (d.value(25) > 0) {
        limit = qMax<qint64>(1, 200000000 / qint64(d.value(25)));  // 0.02 of the period
    }
    if (limit > 0 && d.value(35) > limit) {
        d.set_measured(35, static_cast<qint32>(limit));
    }
}

// A synchronised driver (sync mode 73: 0 normal, 1 master, 2 slave) pulses only on its internal
// clock without bursts, or on demand, while it is master or slave.
void ns_sync_rules(sim_device &d) {
    ns_duty_cycle(d);
    if (d.value(73) != 0) {
        if (d.value(36) == 2) {
            d.set_measured(36, 0);
        }
        d.set_measured(53, 0);
    }
}

// Nanosecond driver: repetition rate 25 (Hz), pulse duration 35 (0.1 ns), burst counts, trigger
// source 36 (0 internal, 1 pulse on demand, 2 external), TEC; emission on 32 with its companion
// switch 34.
builder ns_family(int type, const char *model) {
    builder b(type, model);
    b.emission(32).store(82);
    b.add({plain(34), plain(25, 10000), plain(35, 100), plain(36)});
    burst_counts(b);
    b.temperature_limits(40, 15, 10).thermistor().tec();
    return b.hook(ns_duty_cycle);
}

// Current-driven members: current 24 in 0.01 A ramps after emission; nominal diode voltage 56.
device_profile ns_current(int type, const char *model) {
    builder b = ns_family(type, model);
    b.add({config(37, 5000), config(38, 50), config(56, 250)}).regulator();
    b.follow(follower_def::ramp_of(24, 2000, 32).limited(37, 38));
    if (type == 29) {
        // Pulse delay 71 and sync delay 72 (0.1 ns, may be negative), sync mode 73: kept in flash
        // with the configuration when it is stored.
        b.add({config(71, 0), config(72, 0), config(73, 0)}).hook(ns_sync_rules);
    }
    if (type == 19) {
        b.add({plain(57)});  // DC bias current, 0.1 mA
    }
    return b.done();
}

// Triangle-pulse member: pulse voltage 24 (0.1 V), bias 56 (0.1 mA), rise factor 71 (0.01),
// pulse delay 72 (0.1 ns); no regulator rows.
device_profile ns_triangle() {
    builder b = ns_family(31, "VTR-NS-GSS-TR");
    b.add({config(37, 300), config(38, 0), plain(56), plain(71, 300), plain(72)});
    b.follow(follower_def::ramp_of(24, 100, 32).limited(37, 38));
    return b.done();
}

// SNS and bias pulse driver: both channels' voltages, widths and the bias delay are
// configuration rows; rate 19 in 0.001 Hz; 34 a monitor reading; thermistor on 37/36.
device_profile sns() {
    builder b(36, "VTR_SNS");
    b.emission(16).store(82);
    b.add({plain(19, 1000000), fixed(34, 0), config(32, 250), config(24, 1200), config(23, 50),
           config(21, 20), config(25, 150)});
    b.thermistor(37, 36).add({plain(33)});
    b.follow(follower_def::settle_of(18, tec_time_constant_s, 33, ambient_tenths));
    return b.done();
}

// The high-power drivers warn that the output power is close to its maximum (alarm bit 9) once
// the current (17) reaches 95 % of its maximum row (37); the bit stays latched until cleared.
void high_power_warnings(sim_device &d) {
    const follower_def *current = d.profile().find_follower(17);
    const qint64 max = current ? qint64(d.value(37)) * current->limit_scale * current->scale : 0;
    if (max > 0 && qint64(d.value(17)) * 100 >= max * 95) {
        d.set_measured(48, static_cast<qint32>(quint32(d.value(48)) | 0x200));
    }
}

// High-power driver family: permanent address 0xFA, alarm word 48 cleared by 41, store 51,
// regulator on 24/19/25, input voltage 20 (0.1 V), output voltage 38 rising with the current.
builder high_power(int type, const char *model, int max_current_ca) {
    builder b(type, model);
    b.emission(16).alarm(48, 41).store(51).fixed_address_fa().hook(high_power_warnings);
    b.add({fixed(20, 480), config(37, max_current_ca)}).regulator(24, 19, 25);
    return b;
}

// `units_per_amp`: the wire unit of the current; heat sink warms 1 °C per `amps_per_degree` A.
void high_power_readings(builder &b, int units_per_amp, int amps_per_degree) {
    b.derive({38, 17, 1, 50 * units_per_amp, 15, 16, 0});
    b.derive({18, 17, 10, amps_per_degree * units_per_amp, 250});
}

device_profile zema() {
    builder b = high_power(18, "ZEMA-1200", 100000);
    b.add({plain(36)});
    b.follow(follower_def::ramp_of(17, 10000, 16).limited(37, -1));
    high_power_readings(b, 100, 100);
    return b.done();
}

device_profile zema_compact() {
    builder b = high_power(27, "ZEMA-120 driver", 12000);
    b.follow(follower_def::ramp_of(17, 2000, 16).limited(37, -1));
    high_power_readings(b, 100, 10);
    return b.done();
}

// The temperature-controlled member: current in mA (its limit row in 0.01 A), regulated
// temperature 18, outlet temperature 40 warming with the current.
device_profile zema_tec() {
    builder b = high_power(25, "ZEMA-240", 24000);
    b.add({plain(36)});
    b.follow(follower_def::ramp_of(17, 50000, 16).limited(37, -1, 10));
    b.follow(follower_def::settle_of(18, 3.0, -1, 250));
    b.derive({38, 17, 1, 50000, 15, 16, 0});
    b.derive({40, 17, 1, 10000, 260});
    return b.done();
}

const std::map<int, device_profile> &profiles() {
    static const std::map<int, device_profile> all = [] {
        std::map<int, device_profile> m;
        for (const device_profile &p :
             {heater(), pulse_picker(), cw(14, "VTR-CW-1800", 1800, true, true), cw_precision(),
              comb_laser(), zema(), ns_current(19, "VTR-NS-GSS"), ps(20, "VTR-PS"),
              ns_current(23, "VTR-NS"), zema_tec(), ps_energy(), zema_compact(),
              ps(28, "VTR-PS-SYNC"), ns_current(29, "VTR-NS-SYNC"), ns_triangle(),
              cw(34, "VTR-CW-250-9V", 250, false, true), ps_module(), sns(),
              cw(38, "VTR-CW-450-DIL", 450, true, false)}) {
            m.emplace(p.type_id, p);
        }
        return m;
    }();
    return all;
}

}  // namespace

const device_profile *find_profile(int type_id) {
    const auto it = profiles().find(type_id);
    return it == profiles().end() ? nullptr : &it->second;
}

std::vector<int> modelled_types() {
    std::vector<int> types;
    for (const auto &entry : profiles()) {
        types.push_back(entry.first);
    }
    return types;
}

}  // namespace sim
