#pragma once

#include "parameter_record.h"

#include <QDialog>
#include <QList>

class QDoubleSpinBox;
class QLabel;
class QPushButton;

// The device configuration window, built at run time from a panel's parameter list: one row per
// parameter with its label, the value last reported and a spin box for the new value, then
// "Close" and "Write". It holds no logic of its own: the panel connects the spin boxes' value
// changes and the "Write" button, and refreshes the value labels after every report.
class config_dialog : public QDialog {
    Q_OBJECT
public:
    // The largest value a row's spin box takes (its least is 0): the largest 32-bit word.
    static constexpr double maximum_value = 4294967295.0;

    // `unknown_mark`: the value a parameter holds until reported; such a row shows `unknown_text`
    // and its spin box its minimum. `hint`: an extra note under the CAN id warning (may be empty).
    config_dialog(const QString &display_name, const parameter_list &parameters,
                  double unknown_mark, const QString &unknown_text, const QString &hint);

    // In parameter order.
    const QList<QDoubleSpinBox *> &spin_boxes() const { return spin_boxes_; }
    const QList<QLabel *> &value_labels() const { return value_labels_; }
    QPushButton *write_button() const { return write_button_; }
    QPushButton *close_button() const { return close_button_; }
    // Beside them: the rows to a settings file (enabled once every row is known) and a settings
    // file compared with the device; and a line that says what the last of them did.
    QPushButton *save_button() const { return save_button_; }
    QPushButton *load_button() const { return load_button_; }
    QLabel *file_status() const { return file_status_; }

    // Rewrites each value label from the parameter list (and enables "Save to file..." once every
    // row is known).
    void show_values(const parameter_list &parameters);

private:
    QString value_text(const parameter_record &record) const;

    double unknown_mark_;
    QString unknown_text_;
    QList<QDoubleSpinBox *> spin_boxes_;
    QList<QLabel *> value_labels_;
    QPushButton *write_button_ = nullptr;
    QPushButton *close_button_ = nullptr;
    QPushButton *save_button_ = nullptr;
    QPushButton *load_button_ = nullptr;
    QLabel *file_status_ = nullptr;
};
