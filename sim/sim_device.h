#pragma once

#include "device_profiles.h"

#include <QByteArray>
#include <QtGlobal>

#include <map>
#include <random>
#include <vector>

// One simulated device on the bus: the generic model that runs any device profile. It answers
// read requests from its registers, takes writes, moves its quantities as time passes, keeps its
// configuration rows in a flash image, and can misbehave on purpose.
class sim_device {
public:
    // A device of a modelled type at `can_id`. `profile` must outlive the device.
    sim_device(int can_id, const sim::device_profile &profile);

    // The address the device listens and answers at: the CAN ID row stored in flash when it was
    // last reset (a new CAN ID takes effect only after a reset, as on the hardware).
    int address() const { return address_; }
    int type_id() const { return profile_->type_id; }
    const sim::device_profile &profile() const { return *profile_; }

    // Whether a frame sent to `can_id` reaches this device (its address, or 0xFA for the family
    // with the permanent address).
    bool listens_to(int can_id) const;

    // Takes one request addressed to this device: a read (code with bit 7 set) is answered with
    // the register's value, a write is applied. Returns the answer text ("\r" at the end), or
    // nothing: for writes, reads of codes the device does not have, and while silent.
    QByteArray handle(int code, qint32 written);

    bool has(int code) const { return ram_.count(code) != 0; }
    // What a read of `code` answers (0 for a code the device does not have).
    qint32 value(int code) const;
    // The set point written for a follower (its target before limits); 0 for other codes.
    qint32 set_point(int code) const;
    // The value kept in flash for a configuration row.
    qint32 stored(int code) const;
    // For the profile hooks: sets a measured (read-only) register.
    void set_measured(int code, qint32 reading);

    // Lets `ms` milliseconds of device time pass.
    void advance(int ms);
    // Power cycle: configuration rows back from flash, everything else to its initial value,
    // the address from the stored CAN ID.
    void reset();

    // Real readings never stand quite still. While lively, every measured value (a quantity that
    // follows a set point, or one computed from another) is answered with a little noise, the
    // device's temperature wanders slowly around where it settles, and the values computed from
    // the drive (optical power and the like) drift with that temperature. Deterministic: the
    // movement is seeded by the CAN ID. Off unless asked for, so that tests see exact values.
    void set_lively(bool on) { lively_ = on; }
    bool lively() const { return lively_; }

    // Faults on purpose.
    void set_silent(bool silent) { silent_ = silent; }
    bool silent() const { return silent_; }
    // Answers are replaced by as many characters of noise (never starting with "t").
    void set_garbage(bool garbage) { garbage_ = garbage; }
    bool garbage() const { return garbage_; }
    // Becomes a device of another modelled type at the same address (fresh registers of that
    // type). False, and nothing changes, for a type that is not modelled.
    bool change_type(int type_id);
    // Sets alarm bits (latched until cleared). The bits of sim::emission_stop_alarms switch
    // emission off and keep it off. False when the type has no alarm word.
    bool raise_alarm(quint32 bits);
    void clear_alarm();

    // Requests taken and answers given since creation.
    int requests() const { return requests_; }
    int answers() const { return answers_; }

private:
    void load_profile(const sim::device_profile &profile);
    void write(int code, qint32 written);
    qint64 target_of(const sim::follower_def &f) const;
    void update_readings();
    QByteArray noise();
    void wander(double seconds);
    qint32 measured_answer(int code, qint32 stored);

    const sim::device_profile *profile_;
    int address_;
    std::map<int, qint32> ram_;
    std::map<int, qint32> flash_;
    std::map<int, qint32> set_points_;
    std::vector<double> positions_;  // where each follower is, in report units
    bool silent_ = false;
    bool garbage_ = false;
    int requests_ = 0;
    int answers_ = 0;
    std::minstd_rand noise_source_;
    bool lively_ = false;
    std::mt19937 lively_source_;
    double temperature_wander_ = 0;  // relative offset of the temperature from where it settles
};
