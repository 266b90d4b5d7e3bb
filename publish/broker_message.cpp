#include "broker_message.h"

#include <QLocale>
#include <QStringList>

#include <cmath>

namespace {

bool fits_topic_level(QChar c) {
    return c != QLatin1Char('/') && c != QLatin1Char('+') && c != QLatin1Char('#') &&
           c.unicode() >= 0x20 && c.unicode() != 0x7f && !c.isSurrogate();
}

// A topic level from text that may hold anything: what cannot stand in one becomes '_'.
QByteArray topic_level(const QString &text) {
    if (text.isEmpty()) {
        return QByteArrayLiteral("_");
    }
    QString level = text;
    for (QChar &c : level) {
        if (!fits_topic_level(c)) {
            c = QLatin1Char('_');
        }
    }
    return level.toUtf8();
}

void append_number(QByteArray &out, double value) {
    if (std::isfinite(value)) {
        out += QByteArray::number(value, 'g', QLocale::FloatingPointShortest);
    } else {
        out += "null";  // JSON has no infinities or NaN
    }
}

}  // namespace

bool broker_message::valid_station(const QString &name) {
    if (name.isEmpty() || name.size() > max_station_length) {
        return false;
    }
    for (const QChar c : name) {
        if (!fits_topic_level(c)) {
            return false;
        }
    }
    return true;
}

QString broker_message::station_from_host(const QString &host_name) {
    QString name = host_name.left(max_station_length);
    for (QChar &c : name) {
        if (!fits_topic_level(c)) {
            c = QLatin1Char('_');
        }
    }
    return name.isEmpty() ? QStringLiteral("station") : name;
}

QByteArray broker_message::root(const QString &station) {
    return QByteArrayLiteral("lumivox/") + topic_level(station);
}

QByteArray broker_message::status_topic(const QByteArray &root) {
    return root + "/status";
}

QByteArray broker_message::bus_topic(const QByteArray &root) {
    return root + "/bus";
}

QByteArray broker_message::device_topic(const QByteArray &root, int can_id) {
    return root + "/device/" + QByteArray::number(can_id);
}

QByteArray broker_message::info_topic(const QByteArray &root, int can_id) {
    return device_topic(root, can_id) + "/info";
}

QByteArray broker_message::alarm_topic(const QByteArray &root, int can_id) {
    return device_topic(root, can_id) + "/alarm";
}

QByteArray broker_message::kind_name(panel_observation::kind_t kind) {
    switch (kind) {
    case panel_observation::reading:
        return QByteArrayLiteral("reading");
    case panel_observation::state:
        return QByteArrayLiteral("state");
    case panel_observation::setpoint:
        return QByteArrayLiteral("setpoint");
    case panel_observation::parameter:
        return QByteArrayLiteral("parameter");
    }
    return QByteArrayLiteral("reading");
}

QByteArray broker_message::sample_topic(const QByteArray &root, const device_sample &sample) {
    QByteArray topic = device_topic(root, sample.can_id);
    topic += '/';
    topic += kind_name(sample.kind);
    topic += '/';
    topic += topic_level(sample.key);
    return topic;
}

void broker_message::append_json_string(QByteArray &out, const QString &text) {
    static const char hex[] = "0123456789abcdef";
    out += '"';
    for (const char c : text.toUtf8()) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            out += '\\';
            out += c;
        } else if (c == '\n') {
            out += "\\n";
        } else if (c == '\t') {
            out += "\\t";
        } else if (c == '\r') {
            out += "\\r";
        } else if (byte < 0x20) {
            out += "\\u00";
            out += hex[byte >> 4];
            out += hex[byte & 0xf];
        } else {
            out += c;
        }
    }
    out += '"';
}

QByteArray broker_message::sample_payload(const device_sample &sample,
                                          record_format::time_writer &times) {
    QByteArray out;
    out.reserve(96);
    out += "{\"t\": \"";
    out += times.text(sample.ms);
    out += "\", \"v\": ";
    append_number(out, sample.value);
    if (!sample.unit.isEmpty()) {
        out += ", \"unit\": ";
        append_json_string(out, sample.unit);
    }
    if (sample.kind == panel_observation::state || !sample.text.isEmpty()) {
        out += ", \"text\": ";
        append_json_string(out, sample.text);
    }
    out += '}';
    return out;
}

QByteArray broker_message::info_payload(const QString &name, const QString &model, int type_id,
                                        bool found) {
    QByteArray out = "{\"name\": ";
    append_json_string(out, name);
    out += ", \"model\": ";
    append_json_string(out, model);
    out += ", \"type\": ";
    out += type_id < 0 ? QByteArray("null") : QByteArray::number(type_id);
    out += ", \"state\": ";
    out += found ? "\"found\"" : "\"lost\"";
    out += '}';
    return out;
}

QByteArray broker_message::alarm_payload(const QString &alarm_text) {
    QByteArray out = "[";
    if (!alarm_text.isEmpty()) {
        const QStringList texts = alarm_text.split(QStringLiteral("; "));
        for (int n = 0; n < texts.size(); ++n) {
            if (n > 0) {
                out += ", ";
            }
            append_json_string(out, texts.at(n));
        }
    }
    out += ']';
    return out;
}
