#pragma once

#include <QtGlobal>

#include <optional>

// Conversions between physical values and the integers on the wire. Values travel scaled by a
// power of ten; the scaling truncates toward zero and never rounds (0.29 mA at 0.1 mA units is 2).
namespace scaling {

// 10 to the power `decimals`.
double pow10(int decimals);

// value × scale, truncated toward zero, as the 32-bit word the device stores (larger products
// wrap as the device's register would). A product lying within floating-point noise of an integer
// is taken as that integer first, so that a spin box showing 4.35 sends 435 at × 100 and not 434.
qint32 to_wire(double value, double scale);

// Truncated percentage of `value` between `low` and `high` for an indicator bar; none when the
// span is zero or the quotient is not a finite number (no bar can show it).
std::optional<int> percent(double value, double low, double high);

}  // namespace scaling
