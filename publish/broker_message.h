#pragma once

#include "device_sample.h"
#include "record_format.h"

#include <QByteArray>
#include <QString>

// The topics and payloads the publisher sends, all under "lumivox/<station>/":
//
//     status                           online / offline (retained; the last will says offline)
//     bus                              CONNECTED / DISCONNECTED (retained)
//     device/<can id>/info             {"name": ..., "model": ..., "type": 14, "state": "found"}
//     device/<can id>/alarm            ["Over temperature", "Interlock open"] (retained)
//     device/<can id>/<kind>/<key>     {"t": "2025-03-14T09:26:53.589+01:00", "v": 812.4,
//                                       "unit": "mA", "text": "ON"}
//
// <kind> is reading, state, setpoint or parameter; <key> the quantity's stable, untranslated
// identifier (a parameter's write code). "text" is there for states (as the panel shows them),
// "unit" when the quantity has one. Times are local, with milliseconds and the offset from UTC.
namespace broker_message {

// Longest station name taken; a topic level holds no '/', '+', '#' or control characters.
constexpr int max_station_length = 64;

// True for a station name that can be a topic level as it is.
bool valid_station(const QString &name);
// A station name made from a host name: characters a topic level cannot hold become '_'.
QString station_from_host(const QString &host_name);

QByteArray root(const QString &station);  // "lumivox/<station>"
QByteArray status_topic(const QByteArray &root);
QByteArray bus_topic(const QByteArray &root);
QByteArray device_topic(const QByteArray &root, int can_id);  // ".../device/<can id>"
QByteArray info_topic(const QByteArray &root, int can_id);
QByteArray alarm_topic(const QByteArray &root, int can_id);
QByteArray sample_topic(const QByteArray &root, const device_sample &sample);

QByteArray kind_name(panel_observation::kind_t kind);

QByteArray sample_payload(const device_sample &sample, record_format::time_writer &times);
// `type_id` -1 when the device's type is not known.
QByteArray info_payload(const QString &name, const QString &model, int type_id, bool found);
// The alarm state's text (the alarm texts joined by "; ") as a JSON list; empty: [].
QByteArray alarm_payload(const QString &alarm_text);

// `text` as a JSON string, quotes included.
void append_json_string(QByteArray &out, const QString &text);

}  // namespace broker_message
