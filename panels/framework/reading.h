#pragma once

#include <QMetaType>
#include <QString>

// A quantity that a panel shows, described once: how the device reports it and how the operator
// reads it. The same description drives the panel's value label, the recorder and the trend window.
struct reading_spec {
    // Stable, untranslated, lower-case identifier of the quantity ("current", "temperature"):
    // what scripts, the broker and settings files name it by, whatever the interface language.
    QString key;
    int code = 0;        // report code (the quantity's write code + 128)
    QString quantity;    // what it is, e.g. "Current"
    QString unit;        // unit shown after the value, e.g. "mA"; empty for plain numbers
    double divisor = 1;  // (reported integer - offset) / divisor = value in `unit`
    int decimals = 1;    // decimals shown
    int int_digits = 4;  // integer digits the value label is sized for (it grows if needed)
    double offset = 0;   // reported integer that means zero (a device that reports with an offset)

    // The value in `unit` of a reported integer: (reported - offset) / divisor.
    double value(long reported) const;

    // "12.3 mA": the value with the reading's decimals and unit.
    QString text(double value) const;
    // The widest text the value label is sized for at first.
    QString widest_text() const;
};

// What a panel tells listeners (recorder, trend window): a reported reading or state, a set-point
// or parameter the operator sent, or a parameter the device reported.
struct panel_observation {
    enum kind_t { reading, state, setpoint, parameter };

    kind_t kind = reading;
    QString quantity;
    double value = 0;
    QString unit;
    QString text;         // as the panel shows it ("ON", a mode's name); empty for plain numbers
    bool changed = true;  // differs from the previous observation of the same quantity
    QString key;          // stable identifier (reading_spec::key); a parameter's is its write code
};

Q_DECLARE_METATYPE(panel_observation)
