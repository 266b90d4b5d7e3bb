#include "zema_driver_base.h"

#include "widget_update.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace {

// Position of "Max current, A" in the configuration rows.
constexpr int max_current_row = 1;

}  // namespace

zema_driver_base::zema_driver_base(QWidget *parent, double current_units)
    : panel_base(parent), current_units_(current_units) {}

parameter_list zema_driver_base::parameter_table() {
    return {
        {81, tr("CAN ID"), 0, -1.0, 1},    {37, tr("Max current, A"), 2, -1.0, 1},
        {24, tr("coef. P"), 4, -1.0, 0.1}, {19, tr("coef. I"), 4, -1.0, 0.1},
        {25, tr("coef. D"), 4, -1.0, 0.1},
    };
}

QString zema_driver_base::can_id_hint() {
    return tr(
        "To be able to configure device CAN ID in the device parameters ZEMA driver has "
        "permanent CAN address 0xFA. Using this address you can connect to ZEMA and set new "
        "one in parameters window.");
}

void zema_driver_base::setup_driver(const widgets &form, const poll_plan &plan) {
    w_ = form;
    set_poll_plan(plan);
    set_parameters(parameter_table());
    set_store_commands({{store_code, 1}, {store_code, 1}});
    set_dialog_hint(can_id_hint());

    bind_emission(emission_code + 128, w_.power_state_label,
                  {w_.on_off_button, w_.start_stop_button_alt}, {emission_code});
    bind_reading({"current", current_code + 128, tr("Current"), tr("A"), current_units_, 2},
                 &current_, w_.current_ld_label);
    bind_reading({"temperature", temperature_code + 128, tr("Temperature"), tr("°C"), 10, 1, 3},
                 &temperature_, w_.temp_label);
    bind_reading(
        {"input_voltage", input_voltage_code + 128, tr("Input voltage"), tr("V"), 10, 1, 3},
        &input_voltage_, w_.l_input_volt);
    bind_reading(
        {"output_voltage", output_voltage_code + 128, tr("Output voltage"), tr("V"), 10, 1, 3},
        &output_voltage_, w_.l_output_volt);
    bind_alarm(alarm_code + 128, driver_alarm_texts(),
               {w_.l_alarm, w_.pb_alarm, w_.pb_alarm_clear});
    // `power_label` keeps the form's text: the devices report no power, and a figure worked out
    // from other readings is not shown where a reading would be.

    bind_setpoint(w_.spin, current_code, current_units_, &current_text_, 1);
    // Enter on the combo boxes asks, as on the set point, but sends nothing.
    bind_setpoint(w_.step_size_combo, std::function<void()>());
    if (w_.mode) {
        bind_state(mode_code + 128, &mode_, "mode", tr("Mode"),
                   [this](int mode) { return mode_text(mode); });
        describe_command(mode_code, "mode", tr("Mode"), {}, 1);
        QString widest;
        for (int i = 0; i < w_.mode->count(); ++i) {
            const QString text = w_.mode->itemText(i);
            widest = text.size() > widest.size() ? text : widest;
        }
        reserve_text(w_.mode_label, widest);
        bind_setpoint(w_.mode, std::function<void()>());
        connect(w_.mode, qOverload<int>(&QComboBox::activated), this,
                &zema_driver_base::on_mode_activated);
    }

    // The initial step is the first item, 0.01 A.
    w_.step_size_combo->setCurrentIndex(0);
    on_step_size_combo_activated(0);
}

void zema_driver_base::on_on_off_button_clicked(bool checked) {
    emission_switch_clicked(checked);
}

void zema_driver_base::on_mode_activated(int index) {
    mark_parameters_unknown();
    queue_command(mode_code, index);
    // The configuration closes at once, not with the next report.
    refresh();
}

void zema_driver_base::on_step_size_combo_activated(int /*index*/) {
    w_.spin->setSingleStep(w_.step_size_combo->currentText().toDouble());
}

void zema_driver_base::on_pb_alarm_clear_clicked() {
    queue_command(alarm_clear_code, 1);
    queue_command(alarm_clear_code, 1);
}

void zema_driver_base::on_pb_alarm_clicked() {
    show_alarm_details();
}

bool zema_driver_base::has_mode_item(int mode) const {
    return w_.mode && mode >= 0 && mode < w_.mode->count();
}

QString zema_driver_base::mode_text(int mode) const {
    return has_mode_item(mode) ? w_.mode->itemText(mode) : QString::number(mode);
}

void zema_driver_base::refresh_display() {
    show_text(w_.spin_label, tr("Drive Current"));
    // A negative maximum is no limit at all: the spin box keeps the one it has.
    const double reported_max = parameter_value(max_current_row);
    const double max = reported_max >= 0 ? reported_max : plan().unknown_mark;
    show_limits(w_.spin, w_.curr_max_label, w_.curr_min_label, max, min_current, 1);
    widget_update::set_suffix(w_.spin, QStringLiteral(" A"));

    // The current bar starts at zero but ends at the maximum less the minimum set point.
    show_indicator(w_.indicator, current_, 0.0, is_known(max) ? max - min_current : max);
    show_indicator(w_.tem_indicator, temperature_, 0.0, temperature_full_scale);

    if (w_.mode_label && mode_ != -1) {
        show_text(w_.mode_label, mode_text(mode_));
    }
}

bool zema_driver_base::load_setpoints() {
    bool complete = true;
    if (current_ != -1.0) {
        widget_update::set_value(w_.spin, current_);
    } else {
        complete = false;
    }
    // A reported mode that the combo has no item for is known all the same (the label shows its
    // number); the combo then keeps the item it shows.
    if (w_.mode) {
        if (mode_ == -1) {
            complete = false;
        } else if (has_mode_item(mode_)) {
            w_.mode->setCurrentIndex(mode_);
        }
    }
    return complete;
}

QString zema_driver_base::header_summary() const {
    return current_text_ + QLatin1Char('/') + w_.current_ld_label->text() + QLatin1Char(' ') +
           w_.temp_label->text();
}
