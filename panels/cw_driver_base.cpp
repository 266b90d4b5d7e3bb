#include "cw_driver_base.h"

#include "scaling.h"
#include "widget_update.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

cw_driver_base::cw_driver_base(QWidget *parent, const resolution &res)
    : cw_driver_base(parent, res, limit_positions{}) {}

cw_driver_base::cw_driver_base(QWidget *parent, const resolution &res,
                               const limit_positions &limits)
    : panel_base(parent), res_(res), limits_(limits) {}

void cw_driver_base::setup_driver(const widgets &form, const poll_plan &plan,
                                  const parameter_list &parameters) {
    w_ = form;
    set_poll_plan(plan);
    set_parameters(parameters);

    bind_emission(emission_code + 128, w_.power_state_label,
                  {w_.on_off_button, w_.start_stop_button_alt}, {emission_code});
    bind_tec(tec_code, tec_code + 128, w_.chb_tec);
    const int decimals = res_.value_decimals;
    bind_reading(
        {"current", current_code + 128, tr("Current"), tr("mA"), res_.current_divisor, decimals},
        &current_, w_.current_ld_label);
    bind_reading({"temperature", temperature_code + 128, tr("Temperature"), tr("°C"),
                  res_.temperature_divisor, decimals},
                 &temperature_, w_.temp_label);
    bind_reading({"power", power_report, tr("Power"), tr("mW"), res_.power_divisor, decimals},
                 &power_, w_.power_label);
    bind_state(mode_code + 128, &mode_, "mode", tr("Mode"),
               [this](int mode) { return mode_text(mode); });
    describe_command(current_code, "current", tr("Current"), tr("mA"), res_.current_scale);
    describe_command(power_code, "power", tr("Power"), tr("mW"), res_.power_scale);
    describe_command(mode_code, "mode", tr("Mode"), {}, 1);

    // The main set-point is the current, or the power in the constant-power mode.
    bind_setpoint(
        w_.spin, [this] { confirm_main_setpoint(); }, QStringLiteral("drive"),
        tr("Current or power"), [this] { return power_mode() ? tr("mW") : tr("mA"); });
    bind_setpoint(w_.spin_temp, temperature_code, res_.temperature_scale, &temperature_text_,
                  res_.temperature_decimals);
    block_wheel(w_.mode);
    block_wheel(w_.step_size_combo);

    // The initial step is the first item, 0.1.
    w_.step_size_combo->setCurrentIndex(0);
    on_step_size_combo_activated(0);
}

void cw_driver_base::confirm_main_setpoint() {
    const double value = w_.spin->value();
    if (power_mode()) {
        power_text_ = QString::number(value, 'f', res_.power_decimals);
        queue_command(power_code, scaling::to_wire(value, res_.power_scale));
    } else {
        current_text_ = QString::number(value, 'f', res_.current_decimals);
        queue_command(current_code, scaling::to_wire(value, res_.current_scale));
    }
}

void cw_driver_base::on_on_off_button_clicked(bool checked) {
    emission_switch_clicked(checked);
}

void cw_driver_base::on_mode_activated(int index) {
    queue_command(mode_code, index);
}

void cw_driver_base::on_step_size_combo_activated(int /*index*/) {
    w_.spin->setSingleStep(w_.step_size_combo->currentText().toDouble());
}

void cw_driver_base::on_chb_tec_clicked(bool checked) {
    queue_tec(checked);
}

void cw_driver_base::refresh_display() {
    if (power_mode()) {
        show_text(w_.spin_label, tr("Optical Power"));
        show_limits(w_.spin, w_.curr_max_label, w_.curr_min_label,
                    parameter_value(limits_.power_max), parameter_value(limits_.power_min),
                    res_.power_decimals);
    } else {
        // A driver without a power mode keeps its form's caption.
        if (has_power_mode()) {
            show_text(w_.spin_label, tr("Drive Current"));
        }
        show_limits(w_.spin, w_.curr_max_label, w_.curr_min_label,
                    parameter_value(limits_.current_max), parameter_value(limits_.current_min),
                    res_.current_decimals);
    }
    widget_update::set_suffix(w_.spin,
                              power_mode() ? QStringLiteral(" mW") : QStringLiteral(" mA"));
    show_limits(w_.spin_temp, w_.temp_max_label, w_.temp_min_label,
                parameter_value(limits_.temperature_max), parameter_value(limits_.temperature_min),
                res_.temperature_decimals);

    // The current bar follows the current limits in every mode.
    show_indicator(w_.indicator, current_, parameter_value(limits_.current_min),
                   parameter_value(limits_.current_max));
    show_indicator(w_.tem_indicator, temperature_, parameter_value(limits_.temperature_min),
                   parameter_value(limits_.temperature_max));

    if (mode_ != -1) {
        show_text(w_.mode_label, mode_text(mode_));
    }
}

QString cw_driver_base::mode_text(int mode) const {
    return mode >= 0 && mode < w_.mode->count() ? w_.mode->itemText(mode) : QString::number(mode);
}

bool cw_driver_base::load_setpoints() {
    bool complete = true;
    const double main = power_mode() ? power_ : current_;
    if (main != -1.0) {
        widget_update::set_value(w_.spin, main);
    } else {
        complete = false;
    }
    if (temperature_ != -1.0) {
        widget_update::set_value(w_.spin_temp, temperature_);
    } else {
        complete = false;
    }
    // A reported mode that the combo has no item for is known all the same (the label shows its
    // number); the combo then keeps the item it shows.
    if (mode_ == -1) {
        complete = false;
    } else if (mode_ >= 0 && mode_ < w_.mode->count()) {
        w_.mode->setCurrentIndex(mode_);
    }
    return complete;
}

QString cw_driver_base::header_summary() const {
    const QString main = power_mode()
                             ? power_text_ + QLatin1Char('/') + w_.power_label->text()
                             : current_text_ + QLatin1Char('/') + w_.current_ld_label->text();
    return main + QLatin1Char(' ') + temperature_text_ + QLatin1Char('/') + w_.temp_label->text();
}
