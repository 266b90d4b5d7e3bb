#pragma once

#include "panel_base.h"

class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QProgressBar;
class QPushButton;

// What the three high-power driver panels have in common (`zema_panel`, the compact
// `zema120_panel` and `zema240_panel` with its temperature set point): one drive-current set point
// in amperes with a step-size choice, emission, input and output voltage, the heat-sink
// temperature on a fixed 0 to 35 °C bar, the alarm word with its "Clear" button, and the family's
// five configuration rows, stored with (51, 1) twice. The devices also answer at the permanent
// CAN address 0xFA, which the configuration dialog tells the operator.
class zema_driver_base : public panel_base {
    Q_OBJECT
public:
    // Codes (c writes, c + 128 reports).
    enum code : int {
        emission_code = 16,
        current_code = 17,
        temperature_code = 18,
        input_voltage_code = 20,
        mode_code = 36,
        output_voltage_code = 38,
        alarm_clear_code = 41,
        alarm_code = 48,
        store_code = 51,
    };

    // The drive current never goes below this set point; the bar runs from 0 to the maximum row
    // less this.
    static constexpr double min_current = 0.1;
    // The temperature bar's full scale, °C.
    static constexpr double temperature_full_scale = 35.0;

    // The widgets of the form, by role; `mode` and `mode_label` are null on drivers without modes.
    struct widgets {
        QWidget *body = nullptr;
        QPushButton *on_off_button = nullptr;
        QPushButton *start_stop_button_alt = nullptr;
        QComboBox *mode = nullptr;
        QComboBox *step_size_combo = nullptr;
        QDoubleSpinBox *spin = nullptr;
        QProgressBar *indicator = nullptr;
        QProgressBar *tem_indicator = nullptr;
        QLabel *spin_label = nullptr;
        QLabel *curr_min_label = nullptr;
        QLabel *curr_max_label = nullptr;
        QLabel *power_state_label = nullptr;
        QLabel *current_ld_label = nullptr;
        QLabel *l_input_volt = nullptr;
        QLabel *l_output_volt = nullptr;
        QLabel *temp_label = nullptr;
        QLabel *mode_label = nullptr;
        QLabel *l_alarm = nullptr;
        QPushButton *pb_alarm = nullptr;
        QPushButton *pb_alarm_clear = nullptr;
    };

    // The widgets every form of the family has.
    template <class Form>
    static widgets widgets_of(Form *ui) {
        widgets form;
        form.body = ui->zema_widget;
        form.on_off_button = ui->on_off_button;
        form.start_stop_button_alt = ui->start_stop_button_alt;
        form.step_size_combo = ui->step_size_combo;
        form.spin = ui->spin;
        form.indicator = ui->indicator;
        form.tem_indicator = ui->tem_indicator;
        form.spin_label = ui->spin_label;
        form.curr_min_label = ui->curr_min_label;
        form.curr_max_label = ui->curr_max_label;
        form.power_state_label = ui->power_state_label;
        form.current_ld_label = ui->current_ld_label;
        form.l_input_volt = ui->l_input_volt;
        form.l_output_volt = ui->l_output_volt;
        form.temp_label = ui->temp_label;
        form.l_alarm = ui->l_alarm;
        form.pb_alarm = ui->pb_alarm;
        form.pb_alarm_clear = ui->pb_alarm_clear;
        return form;
    }

    // The family's configuration rows: CAN ID, maximum current and the regulator coefficients.
    static parameter_list parameter_table();
    // The dialog's note: the family can always be reached at 0xFA.
    static QString can_id_hint();

    double current() const { return current_; }
    double temperature() const { return temperature_; }

    // A mode chosen: every configuration row depends on it, so all are read again, then the mode
    // is written. Connected to `mode` where the form has one.
    void on_mode_activated(int index);

public slots:
    void on_on_off_button_clicked(bool checked);
    void on_step_size_combo_activated(int index);
    void on_pb_alarm_clear_clicked();
    void on_pb_alarm_clicked();

protected:
    // `current_units`: wire units of the drive current to the ampere, both ways.
    zema_driver_base(QWidget *parent, double current_units);

    // Binds the form's widgets and the family's codes; `plan` is the panel's poll list.
    void setup_driver(const widgets &form, const poll_plan &plan);

    void refresh_display() override;
    bool load_setpoints() override;
    QString header_summary() const override;

private:
    // Whether the mode combo has an item for `mode`.
    bool has_mode_item(int mode) const;
    // What the mode label shows for `mode`: its item's text, or the number where there is none.
    QString mode_text(int mode) const;

    widgets w_;
    double current_units_;
    double current_ = -1.0;         // A
    double temperature_ = -1.0;     // °C
    double input_voltage_ = -1.0;   // V
    double output_voltage_ = -1.0;  // V
    int mode_ = -1;
    QString current_text_ = QStringLiteral("n/a");
};
