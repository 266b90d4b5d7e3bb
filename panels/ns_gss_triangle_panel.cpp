#include "ns_gss_triangle_panel.h"

#include "ui_ns_gss_triangle_panel.h"

#include <QLabel>

namespace {

// The pulse voltage travels in 0.1 V and is shown with 1 decimal; the duty cycle bounds the rate
// at 2 MHz.
ns_driver_base::model voltage_drive() {
    return {QStringLiteral("voltage"),
            ns_driver_base::tr("Voltage"),
            ns_driver_base::tr("V"),
            10,
            1,
            2000000,
            30};
}

}  // namespace

ns_gss_triangle_panel::ns_gss_triangle_panel(QWidget *parent)
    : ns_driver_base(parent, voltage_drive()), ui(new Ui::ns_gss_triangle_panel) {
    ui->setupUi(this);
    widgets form = widgets_of(ui.get());
    form.dsb_drive = ui->dsb_volt;
    form.i_drive = ui->i_volt;
    form.l_drive_min = ui->l_volt_min;
    form.l_drive_max = ui->l_volt_max;
    form.l_drive = ui->l_volt;
    setup_driver(form, {bias_code + 128, rise_code + 128, pulse_delay_code + 128},
                 parameter_table());
    setup_bias(bias_of(ui.get(), bias_code, bias_code + 128));
    // The factor is shown with a volt sign after it, as the drivers' own panels show it.
    bind_reading({"triangle_rise_factor", rise_code + 128, tr("Triangle rise factor"), {}, 100, 2},
                 &rise_);
    reserve_text(ui->l_triangle_rise, QStringLiteral("88.88 V"));
    bind_reading({"pulse_delay", pulse_delay_code + 128, tr("Pulse delay"), tr("ns"), 10, 1, 3},
                 &pulse_delay_, ui->l_pulse_delay);
    bind_setpoint(ui->dsb_triangle_rise, rise_code, 100);
    bind_setpoint(ui->dsb_pulse_delay, pulse_delay_code, 10);
    finish_setup(ui->device_widget);
}

ns_gss_triangle_panel::~ns_gss_triangle_panel() = default;

parameter_list ns_gss_triangle_panel::parameter_table() {
    return {
        {81, tr("CAN ID"), 0, -1.0, 1},
        {37, tr("Max voltage, V"), 1, -1.0, 0.1},
        {38, tr("Min voltage, V"), 1, -1.0, 0.1},
        {55, tr("Max temperature, °C"), 1, -1.0, 0.1},
        {54, tr("Min temperature, °C"), 1, -1.0, 0.1},
        {22, tr("Resistance at 25°C, Ohm"), 0, -1.0, 1},
        {21, tr("Thermistor beta"), 0, -1.0, 1},
    };
}

void ns_gss_triangle_panel::refresh_display() {
    ns_driver_base::refresh_display();
    if (rise_ != -1.0) {
        show_text(ui->l_triangle_rise, QString::number(rise_, 'f', 2) + tr(" V"));
    }
}

bool ns_gss_triangle_panel::load_setpoints() {
    bool complete = ns_driver_base::load_setpoints();
    complete &= load(ui->dsb_triangle_rise, rise_);
    complete &= load(ui->dsb_pulse_delay, pulse_delay_);
    return complete;
}
