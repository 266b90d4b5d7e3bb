#pragma once

#include "panel_base.h"

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QProgressBar;
class QPushButton;

// What the continuous-wave driver panels (`cw_panel`, the precision `vtr_cw_1800_zif` and the
// comb laser driver `comb_laser`) have in common: drive current or optical power by mode, TEC
// temperature, emission, TEC switch, step size, limits read by position from the parameter list.
// They differ in their forms, their resolutions, their limit positions and their poll lists.
class cw_driver_base : public panel_base {
    Q_OBJECT
public:
    // Operating mode in which `spin` sets the optical power instead of the drive current.
    static constexpr int constant_power_mode = 3;

    // Codes (c writes, c + 128 reports).
    enum code : int {
        emission_code = 16,
        current_code = 17,
        temperature_code = 18,
        tec_code = 33,
        mode_code = 36,
        power_code = 65,
        power_report = 148,
        alarm_report = 176,
    };

    // Parameter positions that bound the set-points; read by position, not by code, so that a
    // shortened list (type 34) shifts them. The defaults are the CW driver's list.
    struct limit_positions {
        int current_max = 1;
        int current_min = 2;
        int power_max = 3;  // -1: the driver has no constant-power mode
        int power_min = 4;
        int temperature_max = 5;
        int temperature_min = 6;
    };

    // The widgets of the form, by role.
    struct widgets {
        QWidget *body = nullptr;
        QPushButton *on_off_button = nullptr;
        QPushButton *start_stop_button_alt = nullptr;
        QComboBox *mode = nullptr;
        QComboBox *step_size_combo = nullptr;
        QDoubleSpinBox *spin = nullptr;
        QDoubleSpinBox *spin_temp = nullptr;
        QCheckBox *chb_tec = nullptr;
        QProgressBar *indicator = nullptr;
        QProgressBar *tem_indicator = nullptr;
        QLabel *spin_label = nullptr;
        QLabel *curr_min_label = nullptr;
        QLabel *curr_max_label = nullptr;
        QLabel *temp_min_label = nullptr;
        QLabel *temp_max_label = nullptr;
        QLabel *current_ld_label = nullptr;
        QLabel *temp_label = nullptr;
        QLabel *power_label = nullptr;
        QLabel *mode_label = nullptr;
        QLabel *power_state_label = nullptr;
    };

    // How finely each quantity travels and is shown.
    // The defaults are the CW driver's: set-points in 0.1 mA, 0.01 mW and 0.1 °C, every report in
    // tenths, texts with 1 decimal (power 2).
    struct resolution {
        double current_scale = 10;  // set-point write factors
        double power_scale = 100;
        double temperature_scale = 10;
        double current_divisor = 10;  // report divisors
        double power_divisor = 10;
        double temperature_divisor = 10;
        int current_decimals = 1;  // kept set-point texts and limit labels
        int power_decimals = 2;
        int temperature_decimals = 1;
        int value_decimals = 1;  // "State values:" labels
    };

    // The widgets of a form that uses the family's object names.
    template <class Form>
    static widgets widgets_of(Form *ui) {
        widgets form;
        form.body = ui->device_widget;
        form.on_off_button = ui->on_off_button;
        form.start_stop_button_alt = ui->start_stop_button_alt;
        form.mode = ui->mode;
        form.step_size_combo = ui->step_size_combo;
        form.spin = ui->spin;
        form.spin_temp = ui->spin_temp;
        form.chb_tec = ui->chb_tec;
        form.indicator = ui->indicator;
        form.tem_indicator = ui->tem_indicator;
        form.spin_label = ui->spin_label;
        form.curr_min_label = ui->curr_min_label;
        form.curr_max_label = ui->curr_max_label;
        form.temp_min_label = ui->temp_min_label;
        form.temp_max_label = ui->temp_max_label;
        form.current_ld_label = ui->current_ld_label;
        form.temp_label = ui->temp_label;
        form.power_label = ui->power_label;
        form.mode_label = ui->mode_label;
        form.power_state_label = ui->power_state_label;
        return form;
    }

    double current() const { return current_; }
    double power() const { return power_; }
    double temperature() const { return temperature_; }
    int mode() const { return mode_; }

public slots:
    void on_on_off_button_clicked(bool checked);
    void on_mode_activated(int index);
    void on_step_size_combo_activated(int index);
    void on_chb_tec_clicked(bool checked);

protected:
    cw_driver_base(QWidget *parent, const resolution &res);
    cw_driver_base(QWidget *parent, const resolution &res, const limit_positions &limits);

    // Binds the form's widgets and the codes common to the family; `parameters` is the panel's
    // list, `plan` its poll list.
    void setup_driver(const widgets &form, const poll_plan &plan, const parameter_list &parameters);

    void refresh_display() override;
    bool load_setpoints() override;
    QString header_summary() const override;

private:
    bool has_power_mode() const { return limits_.power_max >= 0; }
    bool power_mode() const { return has_power_mode() && mode_ == constant_power_mode; }
    // The mode combo's item text for `mode`.
    QString mode_text(int mode) const;
    void confirm_main_setpoint();

    widgets w_;
    resolution res_;
    limit_positions limits_;
    double current_ = -1.0;      // mA
    double power_ = -1.0;        // mW
    double temperature_ = -1.0;  // °C
    int mode_ = -1;
    QString current_text_ = QStringLiteral("n/a");
    QString power_text_ = QStringLiteral("n/a");
    QString temperature_text_ = QStringLiteral("n/a");
};
