#include "widget_update.h"

#include <QDoubleSpinBox>
#include <QFontMetrics>
#include <QLabel>
#include <QProgressBar>

namespace widget_update {

namespace {

// Width a label needs for `text` on one line: the text plus the frame, margins and indent.
int width_for(const QLabel *label, const QString &text) {
    const int margins = label->contentsMargins().left() + label->contentsMargins().right() +
                        2 * qMax(label->margin(), 0) + 2 * label->frameWidth() +
                        qMax(label->indent(), 0);
    return label->fontMetrics().horizontalAdvance(text) + margins + 2;
}

bool fixed_size(const QLabel *label) {
    return label->minimumWidth() == label->maximumWidth() &&
           label->minimumHeight() == label->maximumHeight();
}

// What QDoubleSpinBox keeps of a bound: the value rounded to its decimals.
double rounded(const QDoubleSpinBox *spin, double value) {
    return QString::number(value, 'f', spin->decimals()).toDouble();
}

// Whether `kept` (a bound or value the spin box holds, so already rounded) is what setting
// `value` would keep. A steady reading usually equals it exactly, which spares the text round
// trip of rounded() on every report.
bool keeps(const QDoubleSpinBox *spin, double kept, double value) {
    return kept == value || kept == rounded(spin, value);
}

}  // namespace

void reserve_width(QLabel *label, const QString &widest) {
    const int width = qMax(width_for(label, widest), label->minimumWidth());
    label->setFixedSize(width, label->sizeHint().height());
}

void set_text(QLabel *label, const QString &text) {
    if (label->text() == text) {
        return;
    }
    if (fixed_size(label)) {
        const int needed = width_for(label, text);
        if (needed > label->maximumWidth()) {
            label->setFixedWidth(needed);
        }
    }
    label->setText(text);
}

void set_maximum(QDoubleSpinBox *spin, double value) {
    if (!keeps(spin, spin->maximum(), value)) {
        spin->setMaximum(value);
    }
}

void set_minimum(QDoubleSpinBox *spin, double value) {
    if (!keeps(spin, spin->minimum(), value)) {
        spin->setMinimum(value);
    }
}

void set_value(QDoubleSpinBox *spin, double value) {
    if (!keeps(spin, spin->value(), value)) {
        spin->setValue(value);
    }
}

void set_suffix(QDoubleSpinBox *spin, const QString &suffix) {
    if (spin->suffix() != suffix) {
        spin->setSuffix(suffix);
    }
}

void set_bar(QProgressBar *bar, std::optional<int> value) {
    if (!value) {
        // reset() repaints even when the bar is already empty.
        if (bar->value() != bar->minimum() - 1) {
            bar->reset();
        }
        return;
    }
    bar->setValue(qBound(bar->minimum(), *value, bar->maximum()));
}

}  // namespace widget_update
