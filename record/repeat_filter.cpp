#include "repeat_filter.h"

#include <algorithm>

QString repeat_filter::series_key(const device_sample &s) {
    const QChar gap(0x1f);
    return QString::number(s.can_id) + gap + s.device + gap + QString::number(s.kind) + gap +
           s.quantity + gap + s.unit;
}

QVector<device_sample> repeat_filter::take_held() {
    QVector<device_sample> held;
    for (series_state &s : series_) {
        if (s.holding) {
            held.append(s.held);
            s.holding = false;
        }
    }
    std::stable_sort(held.begin(), held.end(),
                     [](const device_sample &a, const device_sample &b) { return a.ms < b.ms; });
    return held;
}
