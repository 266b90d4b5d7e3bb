#pragma once

#include <QString>

#include <optional>

class QAbstractSpinBox;
class QDoubleSpinBox;
class QLabel;
class QProgressBar;

// Changing a widget only when what it shows changes. Devices report the same values many times a
// second; a setter that relayouts or repaints on every report costs far more than the polling
// itself. Value labels get a fixed size, reserved for their widest text, so that a changed reading
// repaints the label alone and never relayouts the panel.
namespace widget_update {

// Fixes `label`'s size to what `widest` needs (keeping a larger size it already has).
void reserve_width(QLabel *label, const QString &widest);
// Sets the text if it differs; a label of fixed size grows (once) if the text does not fit.
void set_text(QLabel *label, const QString &text);
// Sets the maximum or minimum only where it differs from the spin box's own (rounded) bound.
void set_maximum(QDoubleSpinBox *spin, double value);
void set_minimum(QDoubleSpinBox *spin, double value);
// Sets the value where it differs from the spin box's own (rounded) value.
void set_value(QDoubleSpinBox *spin, double value);
void set_suffix(QDoubleSpinBox *spin, const QString &suffix);
// Sets the bar to `value` clamped into its range, or empties it for none.
void set_bar(QProgressBar *bar, std::optional<int> value);

}  // namespace widget_update
