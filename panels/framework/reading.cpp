#include "reading.h"

double reading_spec::value(long reported) const {
    return (static_cast<double>(reported) - offset) / divisor;
}

QString reading_spec::text(double value) const {
    QString shown = QString::number(value, 'f', decimals);
    if (!unit.isEmpty()) {
        shown += QLatin1Char(' ') + unit;
    }
    return shown;
}

QString reading_spec::widest_text() const {
    // '8' is the widest digit in the panels' fonts.
    QString digits = QStringLiteral("-") + QString(qMax(int_digits, 1), QLatin1Char('8'));
    if (decimals > 0) {
        digits += QLatin1Char('.') + QString(decimals, QLatin1Char('8'));
    }
    return unit.isEmpty() ? digits : digits + QLatin1Char(' ') + unit;
}
