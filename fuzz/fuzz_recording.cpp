// A recording opened in the trend window, fed arbitrary bytes: the CSV records, the samples read
// from them and the series they land in. Besides not crashing: every series stays in time order
// with a value per time, the points drawn from it stay few and within what it holds, and every
// sample read writes out as a line that reads back as the same sample.
#include "record_format.h"
#include "trend_store.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>

namespace {

bool same_sample(const device_sample &a, const device_sample &b) {
    // Values are written with 12 significant digits.
    const double tolerance = 1e-9 * std::max(1.0, std::abs(a.value));
    const bool same_value =
        std::isfinite(a.value) ? std::abs(a.value - b.value) <= tolerance : !std::isfinite(b.value);
    return a.ms == b.ms && a.can_id == b.can_id && a.kind == b.kind && a.device == b.device &&
           a.model == b.model && a.quantity == b.quantity && a.unit == b.unit && a.text == b.text &&
           same_value;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<int>(size));

    record_format::time_writer times;
    record_format::read_records(bytes, [&times](const QList<QByteArray> &fields, int line) {
        device_sample sample;
        if (line < 1) {
            std::abort();
        }
        if (!record_format::read_sample(fields, &sample)) {
            return true;
        }
        QByteArray out;
        record_format::append_line(out, sample, times);
        int records = 0;
        record_format::read_records(out, [&](const QList<QByteArray> &again, int) {
            device_sample back;
            if (++records > 1 || !record_format::read_sample(again, &back) ||
                !same_sample(sample, back)) {
                std::abort();
            }
            return true;
        });
        if (records != 1) {
            std::abort();
        }
        return true;
    });

    trend_store store;
    QString error;
    int skipped = 0;
    const bool loaded = store.load_data(bytes, &error, &skipped);
    // Parameters are read but not kept: a file of them alone loads into no series.
    if ((!loaded && !store.empty()) || skipped < 0) {
        std::abort();
    }
    for (const trend_series &s : store.series()) {
        if (s.times.size() != s.values.size() || s.times.isEmpty() ||
            !std::is_sorted(s.times.begin(), s.times.end())) {
            std::abort();
        }
        const double from = s.times.first(), to = s.times.last();
        for (const int columns : {1, 7}) {
            const QVector<QPointF> points = trend_store::visible_points(s, from, to, columns);
            if (points.isEmpty() || points.size() > 4 * columns + 2 || points.first().x() < from ||
                points.last().x() > to) {
                std::abort();
            }
        }
    }
    return 0;
}
