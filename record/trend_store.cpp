#include "trend_store.h"

#include "record_format.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>

#include <algorithm>
#include <cmath>
#include <limits>

QString trend_series::chart_title() const {
    return unit.isEmpty() ? quantity : quantity + QStringLiteral(", ") + unit;
}

QString trend_series::label() const {
    QString name = device.isEmpty() ? QString::number(can_id) : device;
    if (kind == panel_observation::setpoint) {
        name += QLatin1Char(' ') + QCoreApplication::translate("trend_store", "set-point");
    }
    return name;
}

bool trend_series::holds(const device_sample &s) const {
    return s.can_id == can_id && s.kind == kind && s.quantity == quantity && s.unit == unit &&
           s.device == device;
}

int trend_store::add(const device_sample &sample) {
    if (sample.kind == panel_observation::parameter) {
        return -1;
    }
    int index = last_hit_;
    if (index < 0 || !series_[std::size_t(index)].holds(sample)) {
        const QChar gap(0x1f);
        const QString key = QString::number(sample.can_id) + gap + sample.device + gap +
                            QString::number(sample.kind) + gap + sample.quantity + gap +
                            sample.unit;
        index = index_.value(key, -1);
        if (index < 0) {
            trend_series s;
            s.can_id = sample.can_id;
            s.device = sample.device;
            s.model = sample.model;
            s.kind = sample.kind;
            s.quantity = sample.quantity;
            s.unit = sample.unit;
            series_.push_back(s);
            index = int(series_.size()) - 1;
            index_.insert(key, index);
        }
    }
    trend_series &s = series_[std::size_t(index)];
    const double t = double(sample.ms);
    if (!s.times.isEmpty() && t < s.times.last()) {
        // Out of order (a clock set back): keep the series sorted.
        const auto at = std::upper_bound(s.times.begin(), s.times.end(), t) - s.times.begin();
        s.times.insert(int(at), t);
        s.values.insert(int(at), sample.value);
    } else {
        s.times.append(t);
        s.values.append(sample.value);
    }
    last_hit_ = index;
    return index;
}

double trend_store::first_time() const {
    double first = std::numeric_limits<double>::max();
    for (const trend_series &s : series_) {
        if (!s.times.isEmpty()) {
            first = std::min(first, s.times.first());
        }
    }
    return first == std::numeric_limits<double>::max() ? 0 : first;
}

double trend_store::last_time() const {
    double last = 0;
    for (const trend_series &s : series_) {
        if (!s.times.isEmpty()) {
            last = std::max(last, s.times.last());
        }
    }
    return last;
}

void trend_store::clear() {
    series_.clear();
    index_.clear();
    last_hit_ = -1;
}

void trend_store::drop_before(double time) {
    for (trend_series &s : series_) {
        const int n = int(std::lower_bound(s.times.begin(), s.times.end(), time) - s.times.begin());
        if (n > 0) {
            s.times.remove(0, n);
            s.values.remove(0, n);
        }
    }
}

bool trend_store::load(const QString &path, QString *error, int *skipped) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = file.errorString();
        return false;
    }
    // A day's recording can be large: read it in place where the system allows.
    const qint64 size = file.size();
    uchar *mapped =
        size > 0 && size < std::numeric_limits<int>::max() ? file.map(0, size) : nullptr;
    const QByteArray data = mapped ? QByteArray::fromRawData(reinterpret_cast<const char *>(mapped),
                                                             static_cast<int>(size))
                                   : file.readAll();
    return load_data(data, error, skipped);
}

bool trend_store::load_data(const QByteArray &data, QString *error, int *skipped) {
    clear();
    int bad = 0;
    int good = 0;
    device_sample sample;
    record_format::read_records(data, [&](const QList<QByteArray> &fields, int line) {
        if (record_format::read_sample(fields, &sample)) {
            add(sample);
            ++good;
        } else if (line > 1 || fields.join(',') != record_format::header()) {
            ++bad;
        }
        return true;
    });
    *skipped = bad;
    if (good == 0) {
        *error = QCoreApplication::translate("trend_store", "no recorded readings in the file");
        return false;
    }
    return true;
}

QVector<QPointF> trend_store::visible_points(const trend_series &series, double t0, double t1,
                                             int columns) {
    const QVector<double> &t = series.times;
    const QVector<double> &v = series.values;
    // One point before the range and one after it, so the line runs to the chart's edges.
    int begin = int(std::lower_bound(t.begin(), t.end(), t0) - t.begin());
    int end = int(std::upper_bound(t.begin(), t.end(), t1) - t.begin());
    begin = std::max(0, begin - 1);
    end = std::min(int(t.size()), end + 1);
    QVector<QPointF> points;
    const int count = end - begin;
    if (count <= 0) {
        return points;
    }
    columns = std::max(columns, 1);
    if (count <= 4 * columns) {
        points.reserve(count);
        for (int i = begin; i < end; ++i) {
            points.append({t[i], v[i]});
        }
        return points;
    }
    points.reserve(4 * columns + 2);
    const double width = (t1 - t0) / columns;
    int i = begin;
    while (i < end) {
        const double column_end =
            t[i] < t0 || t[i] >= t1 ? t[i] : t0 + (std::floor((t[i] - t0) / width) + 1) * width;
        int low = i, high = i, last = i;
        int j = i + 1;
        while (j < end && t[j] < column_end) {
            if (v[j] < v[low]) {
                low = j;
            }
            if (v[j] > v[high]) {
                high = j;
            }
            last = j;
            ++j;
        }
        // First, the extremes in their own order, last: the line through them looks the same as
        // through every point of the column.
        int picks[] = {i, std::min(low, high), std::max(low, high), last};
        int previous = -1;
        for (int pick : picks) {
            if (pick != previous) {
                points.append({t[pick], v[pick]});
                previous = pick;
            }
        }
        i = j;
    }
    return points;
}
