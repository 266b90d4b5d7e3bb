#include "sim_device.h"

#include "sim_frame.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

using sim::device_profile;
using sim::follower_def;
using sim::reg_kind;

namespace {

// Address every member of the high-power family also listens at.
constexpr int permanent_address = 0xFA;
// Bit 7 of a code marks a read request.
constexpr int read_flag = 0x80;
// Dynamics are integrated in steps of at most this many milliseconds.
constexpr int max_step_ms = 10;

// A lively device: each measured answer carries noise of this share of its value, at least a third
// of a unit of its last digit; the temperature wanders by this share of its value with this time
// constant; a computed reading moves by `drift_per_share` times the temperature's relative
// offset (warmer diodes give less light), by no more than `max_drift`.
constexpr double noise_share = 0.0004;
constexpr double noise_floor_units = 0.3;
constexpr double wander_share = 0.002;
constexpr double wander_time_s = 30.0;
constexpr double drift_per_share = -0.5;
constexpr double max_drift = 0.1;

}  // namespace

sim_device::sim_device(int can_id, const device_profile &profile)
    : profile_(&profile), address_(can_id), noise_source_(static_cast<unsigned>(can_id) + 1) {
    lively_source_.seed(static_cast<unsigned>(can_id) * 2654435761u + 7u);
    load_profile(profile);
}

void sim_device::load_profile(const device_profile &profile) {
    profile_ = &profile;
    ram_.clear();
    flash_.clear();
    for (const sim::reg_def &r : profile.registers) {
        ram_[r.code] = r.initial;
        if (r.kind == reg_kind::config) {
            flash_[r.code] = r.initial;
        }
    }
    ram_[sim::can_id_code] = address_;
    flash_[sim::can_id_code] = address_;
    reset();
}

void sim_device::reset() {
    for (const sim::reg_def &r : profile_->registers) {
        ram_[r.code] = r.kind == reg_kind::config ? flash_[r.code] : r.initial;
    }
    address_ = flash_[sim::can_id_code];
    set_points_.clear();
    positions_.clear();
    for (const follower_def &f : profile_->followers) {
        set_points_[f.code] = f.rest;
        positions_.push_back(double(f.rest) * f.scale);
    }
    update_readings();
}

bool sim_device::listens_to(int can_id) const {
    return can_id == address_ || (profile_->answers_fa && can_id == permanent_address);
}

qint32 sim_device::value(int code) const {
    const auto it = ram_.find(code);
    return it == ram_.end() ? 0 : it->second;
}

qint32 sim_device::set_point(int code) const {
    const auto it = set_points_.find(code);
    return it == set_points_.end() ? 0 : it->second;
}

qint32 sim_device::stored(int code) const {
    const auto it = flash_.find(code);
    return it == flash_.end() ? 0 : it->second;
}

void sim_device::set_measured(int code, qint32 reading) {
    ram_[code] = reading;
}

QByteArray sim_device::handle(int code, qint32 written) {
    ++requests_;
    if (silent_) {
        return {};
    }
    if ((code & read_flag) == 0) {
        write(code, written);
        return {};
    }
    const int quantity = code & ~read_flag;
    if (!has(quantity)) {
        return {};
    }
    ++answers_;
    if (garbage_) {
        return noise();
    }
    return sim_frame::compose_answer(
        address_, address_, code, static_cast<quint32>(measured_answer(quantity, value(quantity))));
}

void sim_device::write(int code, qint32 written) {
    if (code == profile_->store_code) {
        for (const sim::reg_def &r : profile_->registers) {
            if (r.kind == reg_kind::config) {
                flash_[r.code] = ram_[r.code];
            }
        }
        return;
    }
    if (code == profile_->alarm_clear_code) {
        clear_alarm();
        return;
    }
    if (code == profile_->emission_code && written != 0 &&
        (quint32(value(profile_->alarm_code)) & sim::emission_stop_alarms) != 0) {
        return;  // an interlock or fault alarm keeps the output off until it is cleared
    }
    if (profile_->find_follower(code)) {
        set_points_[code] = written;
        return;
    }
    const sim::reg_def *r = profile_->find(code);
    if (!r || r->kind == reg_kind::read_only) {
        return;
    }
    ram_[code] = written;
    if (r->kind == reg_kind::config && profile_->store_code < 0) {
        flash_[code] = written;
    }
    update_readings();
}

qint64 sim_device::target_of(const follower_def &f) const {
    if (f.gate >= 0 && value(f.gate) == 0) {
        return qint64(f.rest) * f.scale;
    }
    qint64 target = set_point(f.code);
    if (f.alt_when >= 0 && value(f.alt_when) == f.alt_value) {
        target = qint64(value(f.alt_source)) * f.alt_num / f.alt_den;
    }
    if (f.max_code >= 0) {
        target = qMin(target, qint64(value(f.max_code)) * f.limit_scale);
    }
    if (f.min_code >= 0) {
        target = qMax(target, qint64(value(f.min_code)) * f.limit_scale);
    }
    return target * f.scale;
}

void sim_device::advance(int ms) {
    while (ms > 0) {
        const int step = qMin(ms, max_step_ms);
        ms -= step;
        const double seconds = step / 1000.0;
        if (lively_) {
            wander(seconds);
        }
        bool first_settle = true;
        for (std::size_t i = 0; i < profile_->followers.size(); ++i) {
            const follower_def &f = profile_->followers[i];
            const double target = double(target_of(f));
            double &position = positions_[i];
            if (f.kind == follower_def::ramp) {
                const double reach = f.rate * seconds;
                position = qAbs(target - position) <= reach
                               ? target
                               : position + (target > position ? reach : -reach);
            } else {
                position += (target - position) * (1.0 - std::exp(-seconds / f.rate));
                if (qAbs(target - position) < 0.5) {
                    position = target;
                }
            }
            double reported = position;
            if (lively_ && f.kind == follower_def::settle && first_settle) {
                reported *= 1.0 + temperature_wander_;  // the device's own temperature
            }
            first_settle = first_settle && f.kind != follower_def::settle;
            ram_[f.code] = static_cast<qint32>(std::lround(reported));
        }
        update_readings();
    }
}

void sim_device::wander(double seconds) {
    // A slow random walk pulled back to zero (Ornstein-Uhlenbeck), stepped exactly.
    const double keep = std::exp(-seconds / wander_time_s);
    std::normal_distribution<double> step(0.0, wander_share * std::sqrt(1.0 - keep * keep));
    temperature_wander_ = temperature_wander_ * keep + step(lively_source_);
}

qint32 sim_device::measured_answer(int code, qint32 stored) {
    // A switched-off output reads a clean zero; only measured quantities move.
    if (!lively_ || stored == 0) {
        return stored;
    }
    const auto derived = std::find_if(profile_->derived.begin(), profile_->derived.end(),
                                      [code](const sim::derived_def &d) { return d.code == code; });
    const bool computed = derived != profile_->derived.end();
    if (!computed && !profile_->find_follower(code)) {
        return stored;
    }
    double reading = stored;
    if (computed) {
        // The temperature's offset from where it is set, as a share of it.
        for (const follower_def &f : profile_->followers) {
            if (f.kind == follower_def::settle) {
                const double target = double(target_of(f));
                if (target != 0) {
                    const double offset = (double(value(f.code)) - target) / std::abs(target);
                    reading *= 1.0 + qBound(-max_drift, drift_per_share * offset, max_drift);
                }
                break;
            }
        }
    }
    std::normal_distribution<double> noise(
        0.0, std::max(noise_floor_units, std::abs(reading) * noise_share));
    return static_cast<qint32>(std::lround(reading + noise(lively_source_)));
}

void sim_device::update_readings() {
    for (const sim::derived_def &d : profile_->derived) {
        const bool on = d.gate < 0 || value(d.gate) != 0;
        ram_[d.code] =
            on ? static_cast<qint32>(d.offset + qint64(value(d.source)) * d.num / d.den) : d.idle;
    }
    if (profile_->update) {
        profile_->update(*this);
    }
}

bool sim_device::change_type(int type_id) {
    const device_profile *profile = sim::find_profile(type_id);
    if (!profile) {
        return false;
    }
    load_profile(*profile);
    return true;
}

bool sim_device::raise_alarm(quint32 bits) {
    if (profile_->alarm_code < 0) {
        return false;
    }
    const quint32 word = quint32(value(profile_->alarm_code)) | bits;
    ram_[profile_->alarm_code] = static_cast<qint32>(word);
    if ((word & sim::emission_stop_alarms) != 0 && profile_->emission_code >= 0) {
        ram_[profile_->emission_code] = 0;
    }
    update_readings();
    return true;
}

void sim_device::clear_alarm() {
    if (profile_->alarm_code >= 0) {
        ram_[profile_->alarm_code] = 0;
    }
}

QByteArray sim_device::noise() {
    // Printable characters other than "t", so the text is never taken for a frame.
    std::uniform_int_distribution<int> pick(0x21, 0x7E);
    QByteArray out;
    while (out.size() < sim_frame::frame_length) {
        const char c = static_cast<char>(pick(noise_source_));
        if (c != 't') {
            out.append(c);
        }
    }
    out.append('\r');
    return out;
}
