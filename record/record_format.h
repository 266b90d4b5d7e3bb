#pragma once

#include "device_sample.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <functional>

// The recording file: UTF-8 CSV (RFC 4180 quoting), one line per sample under a fixed header:
//
//     time,can_id,device,model,kind,quantity,value,unit,text
//     2025-03-14T09:26:53.589+01:00,3,Bench 3,VTR-CW-1800,reading,Current,812.4,mA,
//
// `time` is ISO 8601 local time with milliseconds and the offset from UTC (so a file stays exact
// across a change of daylight saving time); `kind` is "reading", "state", "set-point" or
// "parameter"; `value` is a plain decimal number in `unit`; `text` is what the panel shows for a
// state ("ON", a mode's name, the alarm texts).
namespace record_format {

QByteArray header();

QString kind_name(panel_observation::kind_t kind);
// False for a name that is not one of the four.
bool kind_from_name(const QString &name, panel_observation::kind_t *kind);

// Local time text of an instant, "2025-03-14T09:26:53.589+01:00". Keeps the text of the last
// second it converted, because the samples of a run come in time order.
class time_writer {
public:
    QByteArray text(qint64 ms);

private:
    qint64 second_ = -1;
    QByteArray date_time_;  // "2025-03-14T09:26:53"
    QByteArray offset_;     // "+01:00"
};

// Milliseconds since the epoch from an ISO 8601 time with milliseconds: with an offset or "Z",
// or without one (read as local time). False when the text is no such time, or one before 1970 or
// in the last days of the year 9999.
bool read_time(const QByteArray &text, qint64 *ms);

// Appends the sample's line, newline included.
void append_line(QByteArray &out, const device_sample &sample, time_writer &times);

// Splits `data` into CSV records (a quoted field may hold commas, quotes and line breaks) and calls
// `take` with the fields of each non-empty record and the number of the line it starts on (1 for
// the first). Stops early when `take` returns false.
void read_records(const QByteArray &data,
                  const std::function<bool(const QList<QByteArray> &fields, int line)> &take);

// The sample a record's fields describe; false when they are not a recording's line (the header,
// a wrong number of fields, a time or value that cannot be read).
bool read_sample(const QList<QByteArray> &fields, device_sample *sample);

}  // namespace record_format
