#pragma once

#include "reading.h"

#include <QMetaType>
#include <QString>
#include <QtGlobal>

// One observation of a placed panel with the device it came from and the moment it was made: a
// line of a recording and a point of a trend.
struct device_sample {
    qint64 ms = 0;  // wall-clock time, milliseconds since 1970-01-01 UTC
    int can_id = -1;
    QString device;  // the name in the device table
    QString model;   // the model string the panel shows
    panel_observation::kind_t kind = panel_observation::reading;
    QString quantity;
    double value = 0;  // in `unit`, as the panel shows it
    QString unit;
    QString text;  // as the panel shows it ("ON", a mode's name); empty for plain numbers
    QString key;   // the quantity's stable identifier (panel_observation::key)
};

Q_DECLARE_METATYPE(device_sample)
