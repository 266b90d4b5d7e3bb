#pragma once

#include <QString>
#include <QtGlobal>

#include <vector>

class sim_device;

// What each modelled device type keeps in its registers and how its quantities move, written from
// the device's side: a register is set with its code c and reported under c + 128. One generic
// model (sim_device) runs every profile.
namespace sim {

// Register of the device type (answered to the type request 0xD0) and of its CAN ID (0xD1).
inline constexpr int type_code = 0x50;
inline constexpr int can_id_code = 0x51;

// How a register takes writes from the bus.
enum class reg_kind {
    plain,      // written and read back as it stands (switches, modes, counts, rates)
    read_only,  // measured or fixed by the hardware; writes are ignored
    config,     // a configuration row kept in flash: survives a reset once stored
};

struct reg_def {
    int code;
    qint32 initial;
    reg_kind kind;
};

// A quantity that moves towards a set point like hardware does: a drive value ramps linearly, a
// temperature settles exponentially. The set point is written under the quantity's own code and
// the quantity is reported under code + 128; writes do not show until the quantity got there.
struct follower_def {
    enum kind_t { ramp, settle };

    int code = 0;
    kind_t kind = ramp;
    double rate = 1;    // ramp: report units per second; settle: time constant in seconds
    int gate = -1;      // register that must be non-zero for the set point to apply; -1: always
    qint32 rest = 0;    // approached while the gate is off; also the set point after a reset
    int scale = 1;      // report units per set-point unit
    int max_code = -1;  // configuration rows that bound the set point (-1: unbounded)
    int min_code = -1;
    int limit_scale = 1;  // set-point units per unit of the limit rows
    // Alternative set point: while register `alt_when` holds `alt_value`, the target is register
    // `alt_source` × alt_num / alt_den (a CW driver regulating its current for a power set point).
    int alt_when = -1;
    qint32 alt_value = 0;
    int alt_source = -1;
    int alt_num = 1;
    int alt_den = 1;

    static follower_def ramp_of(int code, double units_per_s, int gate);
    static follower_def settle_of(int code, double time_constant_s, int gate, qint32 rest);
    follower_def limited(int max, int min, int per_limit_unit = 1) const;
    follower_def reported_times(int factor) const;
    follower_def alternative(int when, qint32 when_value, int source, int num, int den) const;
};

// A read-only register computed from another one: offset + source × num / den, or `idle` while
// the gate register is zero.
struct derived_def {
    int code;
    int source;
    qint32 num;
    qint32 den;
    qint32 offset;
    int gate = -1;
    qint32 idle = 0;
};

struct device_profile {
    int type_id = 0;
    QString model;
    std::vector<reg_def> registers;
    std::vector<follower_def> followers;
    std::vector<derived_def> derived;
    int emission_code = -1;     // register that switches emission (drive followers gate on it)
    int alarm_code = -1;        // alarm word register
    int alarm_clear_code = -1;  // a write to it clears the alarm word
    int store_code = -1;      // makes the device store its configuration rows; -1: stored on write
    bool answers_fa = false;  // also reachable at the fixed address 0xFA
    // Behaviour that is not a straight line of another register; run after every change.
    void (*update)(sim_device &) = nullptr;

    const reg_def *find(int code) const;
    const follower_def *find_follower(int code) const;
};

// The profile of a modelled type, or null.
const device_profile *find_profile(int type_id);
// Every modelled type id, ascending.
std::vector<int> modelled_types();

// Alarm bits that stop emission while they are set: interlock, over-temperature, over-current.
inline constexpr quint32 emission_stop_alarms = 0x000E;

}  // namespace sim
