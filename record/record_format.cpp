#include "record_format.h"

#include <QDate>
#include <QDateTime>
#include <QTime>

namespace record_format {

namespace {

constexpr qint64 ms_per_day = 86400000;
// Julian day of 1970-01-01.
constexpr qint64 epoch_julian_day = 2440588;
// Times are read from 1970 (no sample is older) up to 9999-12-29 UTC, two days short of the last
// one a local time of four-digit years can show: whatever is read can be written again.
constexpr qint64 latest_ms = (5373482 - epoch_julian_day) * ms_per_day;

struct kind_entry {
    panel_observation::kind_t kind;
    const char *name;
};
constexpr kind_entry kinds[] = {
    {panel_observation::reading, "reading"},
    {panel_observation::state, "state"},
    {panel_observation::setpoint, "set-point"},
    {panel_observation::parameter, "parameter"},
};

void append_field(QByteArray &out, const QString &text) {
    const QByteArray utf8 = text.toUtf8();
    bool quote = false;
    for (const char c : utf8) {
        if (c == ',' || c == '"' || c == '\n' || c == '\r') {
            quote = true;
            break;
        }
    }
    if (!quote) {
        out += utf8;
        return;
    }
    out += '"';
    for (const char c : utf8) {
        if (c == '"') {
            out += '"';
        }
        out += c;
    }
    out += '"';
}

// The number in text[at, at + count) when all are digits, else -1.
int digits(const QByteArray &text, int at, int count) {
    if (at + count > text.size()) {
        return -1;
    }
    int value = 0;
    for (int i = at; i < at + count; ++i) {
        const char c = text.at(i);
        if (c < '0' || c > '9') {
            return -1;
        }
        value = value * 10 + (c - '0');
    }
    return value;
}

}  // namespace

QByteArray header() {
    return QByteArrayLiteral("time,can_id,device,model,kind,quantity,value,unit,text");
}

QString kind_name(panel_observation::kind_t kind) {
    for (const kind_entry &entry : kinds) {
        if (entry.kind == kind) {
            return QString::fromLatin1(entry.name);
        }
    }
    return {};
}

bool kind_from_name(const QString &name, panel_observation::kind_t *kind) {
    for (const kind_entry &entry : kinds) {
        if (name == QLatin1String(entry.name)) {
            *kind = entry.kind;
            return true;
        }
    }
    return false;
}

QByteArray time_writer::text(qint64 ms) {
    const qint64 second = ms >= 0 ? ms / 1000 : (ms - 999) / 1000;
    if (second != second_) {
        // One conversion to local time per second of samples.
        const QDateTime local = QDateTime::fromSecsSinceEpoch(second, Qt::LocalTime);
        date_time_ = local.toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss")).toLatin1();
        const int offset_min = local.offsetFromUtc() / 60;
        const int size = qAbs(offset_min);
        offset_ = QByteArray(offset_min < 0 ? "-" : "+") +
                  QByteArray::number(size / 60).rightJustified(2, '0') + ':' +
                  QByteArray::number(size % 60).rightJustified(2, '0');
        second_ = second;
    }
    const int milli = static_cast<int>(ms - second * 1000);
    return date_time_ + '.' + QByteArray::number(milli).rightJustified(3, '0') + offset_;
}

bool read_time(const QByteArray &text, qint64 *ms) {
    // yyyy-MM-ddTHH:mm:ss.zzz, then nothing (local time), "Z" or +hh:mm / -hh:mm.
    const int year = digits(text, 0, 4), month = digits(text, 5, 2), day = digits(text, 8, 2);
    const int hour = digits(text, 11, 2), minute = digits(text, 14, 2), sec = digits(text, 17, 2);
    if (year < 0 || month < 0 || day < 0 || hour < 0 || minute < 0 || sec < 0 ||
        text.at(4) != '-' || text.at(7) != '-' || (text.at(10) != 'T' && text.at(10) != ' ') ||
        text.at(13) != ':' || text.at(16) != ':') {
        return false;
    }
    int at = 19;
    int milli = 0;
    if (at < text.size() && text.at(at) == '.') {
        int scale = 100;
        ++at;
        const int first = at;
        while (at < text.size() && text.at(at) >= '0' && text.at(at) <= '9') {
            milli += (text.at(at) - '0') * scale;
            scale /= 10;
            ++at;
        }
        if (at == first) {
            return false;
        }
    }
    const QDate date(year, month, day);
    const QTime time(hour, minute, sec, milli);
    if (!date.isValid() || !time.isValid()) {
        return false;
    }
    if (at == text.size()) {
        *ms = QDateTime(date, time, Qt::LocalTime).toMSecsSinceEpoch();
        return *ms >= 0 && *ms <= latest_ms;
    }
    int offset_min = 0;
    if (text.at(at) == 'Z' && at + 1 == text.size()) {
        offset_min = 0;
    } else if ((text.at(at) == '+' || text.at(at) == '-') && at + 6 == text.size() &&
               text.at(at + 3) == ':') {
        const int oh = digits(text, at + 1, 2), om = digits(text, at + 4, 2);
        if (oh < 0 || om < 0) {
            return false;
        }
        offset_min = (oh * 60 + om) * (text.at(at) == '-' ? -1 : 1);
    } else {
        return false;
    }
    *ms = (date.toJulianDay() - epoch_julian_day) * ms_per_day + time.msecsSinceStartOfDay() -
          qint64(offset_min) * 60000;
    return *ms >= 0 && *ms <= latest_ms;
}

void append_line(QByteArray &out, const device_sample &sample, time_writer &times) {
    out += times.text(sample.ms);
    out += ',';
    out += QByteArray::number(sample.can_id);
    out += ',';
    append_field(out, sample.device);
    out += ',';
    append_field(out, sample.model);
    out += ',';
    out += kind_name(sample.kind).toLatin1();
    out += ',';
    append_field(out, sample.quantity);
    out += ',';
    out += QByteArray::number(sample.value, 'g', 12);
    out += ',';
    append_field(out, sample.unit);
    out += ',';
    append_field(out, sample.text);
    out += '\n';
}

void read_records(const QByteArray &data,
                  const std::function<bool(const QList<QByteArray> &fields, int line)> &take) {
    const char *p = data.constData();
    const char *const end = p + data.size();
    if (data.startsWith("\xEF\xBB\xBF")) {
        p += 3;  // a byte order mark, as some spreadsheets write
    }
    int line = 1;
    QList<QByteArray> fields;
    QByteArray field;
    while (p < end) {
        const int start_line = line;
        fields.clear();
        bool record_end = false;
        while (!record_end) {
            field.clear();
            if (p < end && *p == '"') {
                ++p;
                while (p < end) {
                    if (*p == '"') {
                        if (p + 1 < end && p[1] == '"') {
                            field += '"';
                            p += 2;
                            continue;
                        }
                        ++p;
                        break;
                    }
                    if (*p == '\n') {
                        ++line;
                    }
                    field += *p++;
                }
            }
            const char *run = p;
            while (p < end && *p != ',' && *p != '\n' && *p != '\r') {
                ++p;
            }
            field.append(run, static_cast<int>(p - run));
            fields.append(field);
            if (p < end && *p == ',') {
                ++p;
                continue;
            }
            // End of the record: "\r\n", "\n", a lone "\r" or the end of the data.
            if (p < end && *p == '\r') {
                ++p;
            }
            if (p < end && *p == '\n') {
                ++p;
            }
            ++line;
            record_end = true;
        }
        if (fields.size() == 1 && fields.first().isEmpty()) {
            continue;  // an empty line
        }
        if (!take(fields, start_line)) {
            return;
        }
    }
}

bool read_sample(const QList<QByteArray> &fields, device_sample *sample) {
    if (fields.size() != 9) {
        return false;
    }
    device_sample s;
    bool ok = false;
    if (!read_time(fields.at(0), &s.ms)) {
        return false;
    }
    s.can_id = fields.at(1).toInt(&ok);
    if (!ok || !kind_from_name(QString::fromLatin1(fields.at(4)), &s.kind)) {
        return false;
    }
    s.value = fields.at(6).toDouble(&ok);
    if (!ok) {
        return false;
    }
    s.device = QString::fromUtf8(fields.at(2));
    s.model = QString::fromUtf8(fields.at(3));
    s.quantity = QString::fromUtf8(fields.at(5));
    s.unit = QString::fromUtf8(fields.at(7));
    s.text = QString::fromUtf8(fields.at(8));
    *sample = s;
    return true;
}

}  // namespace record_format
