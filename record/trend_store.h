#pragma once

#include "device_sample.h"

#include <QHash>
#include <QPointF>
#include <QString>
#include <QVector>

#include <vector>

// One line of a trend: a quantity of one device (its readings, its set-points or its state) over
// time. Times are milliseconds since the epoch, in a double as the plot's axis takes them.
struct trend_series {
    int can_id = -1;
    QString device;
    QString model;
    panel_observation::kind_t kind = panel_observation::reading;
    QString quantity;
    QString unit;
    QVector<double> times;
    QVector<double> values;

    // The chart the series is drawn in: one per quantity and unit ("Current, mA"); a device's
    // set-points share the chart of its readings.
    QString chart_title() const;
    // "Bench 3" or "Bench 3 set-point" (the CAN ID for a device without a name): the line's
    // name in an exported chart's legend.
    QString label() const;
    // Whether a sample belongs to this series.
    bool holds(const device_sample &sample) const;
};

// The samples a trend window draws, in series. Parameters (configuration rows) are not drawn and
// not kept.
class trend_store {
public:
    // Adds a sample to its series (made when new); the series' index, or -1 for a sample that is
    // not drawn.
    int add(const device_sample &sample);
    const std::vector<trend_series> &series() const { return series_; }
    bool empty() const { return series_.empty(); }
    // Earliest and latest time held; both 0 when empty.
    double first_time() const;
    double last_time() const;
    // Forgets what is older than `time` (a live window keeps a few hours).
    void drop_before(double time);
    void clear();

    // Reads a recording (see record_format.h). False with `error` set when the file cannot be read
    // or holds no line of a recording; lines that are not a recording's are skipped and counted
    // in `skipped`.
    bool load(const QString &path, QString *error, int *skipped);
    // The same for the bytes of a recording.
    bool load_data(const QByteArray &data, QString *error, int *skipped);

    // The points of `series` to draw between t0 and t1 on a chart `columns` pixels wide: every
    // point when they are few, else the first, smallest, largest and last value of each column
    // (so peaks stay visible), plus one point on either side of the range so the line reaches
    // the edges.
    static QVector<QPointF> visible_points(const trend_series &series, double t0, double t1,
                                           int columns);

private:
    std::vector<trend_series> series_;
    QHash<QString, int> index_;  // series by device, kind, quantity and unit
    int last_hit_ = -1;          // the series the previous sample went to
};
