#include "comb_laser.h"

#include "panel_style.h"
#include "ui_comb_laser.h"
#include "widget_update.h"

namespace {

// Codes (c writes, c + 128 reports).
constexpr int bias_voltage_code = 24;
constexpr int bias_current_report = 153;
constexpr int bias_switch_code = 32;
constexpr int tec_current_report = 180;

// The comb's list has no power limits: the temperature limits follow the current's.
cw_driver_base::limit_positions comb_limits() {
    cw_driver_base::limit_positions limits;
    limits.power_max = -1;
    limits.power_min = -1;
    limits.temperature_max = 3;
    limits.temperature_min = 4;
    return limits;
}

}  // namespace

comb_laser::comb_laser(QWidget *parent)
    : cw_driver_base(parent, resolution{}, comb_limits()), ui(new Ui::comb_laser) {
    ui->setupUi(this);

    poll_plan plan;
    // Emission, current, temperature, power, mode, TEC, bias current, bias state, bias voltage,
    // TEC current.
    plan.read_codes = {144, 145, 146, 148, 164, 161, 153, 160, 152, 180};
    setup_driver(widgets_of(ui.get()), plan, parameter_table());

    // Negative on the wire, a positive magnitude on screen.
    bind_reading({"bias_voltage", bias_voltage_code + 128, tr("Bias voltage"), tr("V"), -100, 2, 1},
                 &bias_voltage_, ui->l_bias_voltage);
    bind_reading({"bias_current", bias_current_report, tr("Bias current"), tr("mA"), 10, 1, 3},
                 &bias_current_, ui->l_bias_current);
    // Milliamperes offset by 2500: 2500 is no current.
    bind_reading({"tec_current", tec_current_report, tr("TEC current"), tr("A"), 1000, 2, 1, 2500},
                 &tec_current_, ui->l_tec_current);
    bind_switch(bias_switch_code + 128, &bias_on_, ui->l_bias_state, {ui->pb_on_off_bias}, "bias",
                tr("Bias"), tr("On"), tr("Off"));
    describe_command(bias_switch_code, "bias", tr("Bias"), {}, 1);
    bind_setpoint(ui->dsb_bias, bias_voltage_code, -100);
    // A value changed in the configuration dialog is sent by "Write" only.
    set_live_change(false);

    apply_style(ui->pb_on_off_bias, panel_style::body_switch());
    finish_setup(ui->device_widget);
}

comb_laser::~comb_laser() = default;

parameter_list comb_laser::parameter_table() {
    return {
        {81, tr("CAN ID"), 0},
        {37, tr("Max current, mA"), 1},
        {38, tr("Min current, mA"), 1},
        {55, tr("Max temperature, °C"), 1},
        {54, tr("Min temperature, °C"), 1},
        {22, tr("Resistance at 25°C, Ohm"), 0},
        {21, tr("Thermistor beta"), 0},
        {51, tr("Max tec current, A"), 1},
        {23, tr("Monitor responsivity, uA/mW"), 2},
        {68, tr("coef. P"), 4},
        {69, tr("coef. I"), 4},
        {70, tr("coef. D"), 4},
    };
}

void comb_laser::on_pb_on_off_bias_clicked(bool checked) {
    queue_command(bias_switch_code, checked ? 1 : 0);
}

bool comb_laser::load_setpoints() {
    const bool driver_loaded = cw_driver_base::load_setpoints();
    if (bias_voltage_ == -1.0) {
        return false;
    }
    widget_update::set_value(ui->dsb_bias, bias_voltage_);
    return driver_loaded;
}
