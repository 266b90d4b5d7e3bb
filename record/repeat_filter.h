#pragma once

#include "device_sample.h"

#include <QHash>
#include <QString>
#include <QVector>

// Which samples of a steady stream are worth passing on, shared by the recorder and the broker
// publisher. Set-points and parameters always pass. A reading or state passes when its value
// changes; a value that stays the same passes again every `repeat_ms`, and the last unchanged
// sample before a change passes too (just before the change), so a line drawn from sample to
// sample is the trend the device reported.
class repeat_filter {
public:
    explicit repeat_filter(qint64 repeat_ms) : repeat_ms_(repeat_ms) {}

    // Calls `pass(const device_sample &)` for each sample to pass on because `sample` came: none,
    // the sample, or the held one and then the sample.
    template <typename Pass>
    void take(const device_sample &sample, Pass &&pass);

    // The samples held back (taken but not passed on), oldest first; nothing is held afterwards.
    QVector<device_sample> take_held();

    // Forgets every series (a new file starts with every value as it is reported next).
    void clear() { series_.clear(); }

private:
    struct series_state {
        bool seen = false;
        double value = 0;
        qint64 passed_ms = 0;
        bool holding = false;  // `held` was taken but not passed on
        device_sample held;
    };

    static QString series_key(const device_sample &s);

    const qint64 repeat_ms_;
    QHash<QString, series_state> series_;
};

template <typename Pass>
void repeat_filter::take(const device_sample &sample, Pass &&pass) {
    if (sample.kind == panel_observation::setpoint || sample.kind == panel_observation::parameter) {
        pass(sample);
        return;
    }
    series_state &s = series_[series_key(sample)];
    if (!s.seen || sample.value != s.value) {
        if (s.holding) {
            pass(s.held);
        }
        pass(sample);
        s.seen = true;
        s.value = sample.value;
        s.passed_ms = sample.ms;
        s.holding = false;
    } else if (sample.ms - s.passed_ms >= repeat_ms_) {
        pass(sample);
        s.passed_ms = sample.ms;
        s.holding = false;
    } else {
        s.held = sample;
        s.holding = true;
    }
}
