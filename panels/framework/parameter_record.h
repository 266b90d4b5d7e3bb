#pragma once

#include <QString>
#include <QVector>
#include <QtGlobal>

// One parameter that the device keeps in its own memory (limits, thermistor data, coefficients,
// its CAN id). The device reports it under code + 128; the wire value is the physical value times
// 10 to the power `decimals`.
struct parameter_record {
    int code = 0;
    QString label;  // row label in the configuration dialog and object name of its spin box
    int decimals = 0;
    double value = -1.0;  // physical value as last reported; the panel's unknown mark until then
    double step = 1.0;    // single step of the dialog's spin box
    qint64 wire = 0;      // the integer last reported, exactly as the device keeps it
};

using parameter_list = QVector<parameter_record>;
