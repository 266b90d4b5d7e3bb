#include "sim_bus.h"

#include <algorithm>

sim_device *sim_bus::add_device(int can_id, int type_id) {
    const sim::device_profile *profile = sim::find_profile(type_id);
    if (!profile || find(can_id)) {
        return nullptr;
    }
    devices_.push_back(std::make_unique<sim_device>(can_id, *profile));
    return devices_.back().get();
}

sim_device *sim_bus::find(int can_id) const {
    for (const auto &d : devices_) {
        if (d->address() == can_id) {
            return d.get();
        }
    }
    return nullptr;
}

QByteArray sim_bus::deliver(const sim_frame::request &frame) {
    ++frames_;
    if (trace) {
        trace(QStringLiteral("%1 -> %2: code %3 value %4")
                  .arg(now_ms_, 8)
                  .arg(frame.can_id)
                  .arg(frame.code)
                  .arg(frame.value));
    }
    QByteArray answers;
    for (const auto &d : devices_) {
        if (d->listens_to(frame.can_id)) {
            const QByteArray answer = d->handle(frame.code, frame.value);
            if (trace && !answer.isEmpty()) {
                trace(QStringLiteral("%1 <- %2: %3")
                          .arg(now_ms_, 8)
                          .arg(d->address())
                          .arg(QString::fromLatin1(answer.trimmed())));
            }
            answers.append(answer);
        }
    }
    return answers;
}

void sim_bus::advance(qint64 ms) {
    const qint64 end = now_ms_ + qMax<qint64>(0, ms);
    for (;;) {
        if (events_.empty() || events_.front().at_ms > end) {
            break;
        }
        event next = std::move(events_.front());
        events_.erase(events_.begin());
        const qint64 until = qMax(now_ms_, next.at_ms);
        for (const auto &d : devices_) {
            d->advance(static_cast<int>(until - now_ms_));
        }
        now_ms_ = until;
        next.run();
    }
    for (const auto &d : devices_) {
        d->advance(static_cast<int>(end - now_ms_));
    }
    now_ms_ = end;
}

void sim_bus::schedule(qint64 at_ms, std::function<void()> event_fn) {
    event e{at_ms, next_order_++, std::move(event_fn)};
    const auto pos =
        std::upper_bound(events_.begin(), events_.end(), e, [](const event &a, const event &b) {
            return a.at_ms < b.at_ms || (a.at_ms == b.at_ms && a.order < b.order);
        });
    events_.insert(pos, std::move(e));
}

bool sim_bus::schedule_window(int can_id, qint64 after_ms, qint64 length_ms,
                              void (sim_device::*set)(bool)) {
    sim_device *d = find(can_id);
    if (!d) {
        return false;
    }
    schedule(now_ms_ + after_ms, [d, set] { (d->*set)(true); });
    if (length_ms >= 0) {
        schedule(now_ms_ + after_ms + length_ms, [d, set] { (d->*set)(false); });
    }
    return true;
}

bool sim_bus::schedule_silence(int can_id, qint64 after_ms, qint64 length_ms) {
    return schedule_window(can_id, after_ms, length_ms, &sim_device::set_silent);
}

bool sim_bus::schedule_garbage(int can_id, qint64 after_ms, qint64 length_ms) {
    return schedule_window(can_id, after_ms, length_ms, &sim_device::set_garbage);
}

bool sim_bus::schedule_type_change(int can_id, int type_id, qint64 after_ms) {
    sim_device *d = find(can_id);
    if (!d || !sim::find_profile(type_id)) {
        return false;
    }
    schedule(now_ms_ + after_ms, [d, type_id] { d->change_type(type_id); });
    return true;
}

bool sim_bus::schedule_alarm(int can_id, quint32 bits, qint64 after_ms) {
    sim_device *d = find(can_id);
    if (!d || d->profile().alarm_code < 0) {
        return false;
    }
    schedule(now_ms_ + after_ms, [d, bits] { d->raise_alarm(bits); });
    return true;
}
