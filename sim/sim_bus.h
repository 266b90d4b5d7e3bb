#pragma once

#include "sim_device.h"
#include "sim_frame.h"

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <functional>
#include <memory>
#include <vector>

// The CAN bus behind the adapter: the simulated devices, the simulation clock and the faults
// scheduled on it. Time only moves through advance(), so a test decides exactly what happens when.
// Not thread-safe: use it from one thread (the one its pseudo-terminal lives in).
class sim_bus {
public:
    // Puts a device of `type_id` at `can_id` on the bus. Null when the type is not modelled or
    // another device already answers at that address.
    sim_device *add_device(int can_id, int type_id);
    // The device that answers at `can_id` now, or null.
    sim_device *find(int can_id) const;
    const std::vector<std::unique_ptr<sim_device>> &devices() const { return devices_; }

    // One request from the adapter; every device it reaches takes it. Returns the answers'
    // text, in the order of the devices on the bus (nothing when no device answers).
    QByteArray deliver(const sim_frame::request &frame);

    // Lets `ms` milliseconds pass: devices move, scheduled events run at their time.
    void advance(qint64 ms);
    qint64 now_ms() const { return now_ms_; }

    // Runs `event` when the clock reaches `at_ms` (at once on the next advance if it has passed).
    // Events at the same time run in the order they were scheduled.
    void schedule(qint64 at_ms, std::function<void()> event);
    std::size_t pending_events() const { return events_.size(); }

    // Faults on one device, by the address it had when the fault was scheduled. A `length_ms`
    // below 0 means for good. False when no device answers at `can_id` (or the type or alarm
    // word does not exist).
    bool schedule_silence(int can_id, qint64 after_ms, qint64 length_ms = -1);
    bool schedule_garbage(int can_id, qint64 after_ms, qint64 length_ms = -1);
    bool schedule_type_change(int can_id, int type_id, qint64 after_ms);
    bool schedule_alarm(int can_id, quint32 bits, qint64 after_ms);

    // Requests delivered since creation.
    int frames() const { return frames_; }

    // Called with a line of text for every request and answer, when set (for the program's trace).
    std::function<void(const QString &)> trace;

private:
    bool schedule_window(int can_id, qint64 after_ms, qint64 length_ms,
                         void (sim_device::*set)(bool));

    struct event {
        qint64 at_ms;
        quint64 order;
        std::function<void()> run;
    };

    std::vector<std::unique_ptr<sim_device>> devices_;
    std::vector<event> events_;  // sorted by (at_ms, order)
    quint64 next_order_ = 0;
    qint64 now_ms_ = 0;
    int frames_ = 0;
};
