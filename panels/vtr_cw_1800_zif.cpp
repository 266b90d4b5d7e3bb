#include "vtr_cw_1800_zif.h"

#include "ui_vtr_cw_1800_zif.h"

namespace {

// The current is written in 0.01 mA but reported in 0.0001 mA: each direction keeps its own scale.
// The temperature travels in 0.0001 °C both ways, the power is written in 0.01 mW and reported in
// 0.1 mW. Everything is shown with 2 decimals.
cw_driver_base::resolution precision_resolution() {
    cw_driver_base::resolution r;
    r.current_scale = 100;
    r.temperature_scale = 10000;
    r.current_divisor = 10000;
    r.temperature_divisor = 10000;
    r.current_decimals = 2;
    r.temperature_decimals = 2;
    r.value_decimals = 2;
    return r;
}

}  // namespace

vtr_cw_1800_zif::vtr_cw_1800_zif(QWidget *parent)
    : cw_driver_base(parent, precision_resolution()), ui(new Ui::vtr_cw_1800_zif) {
    ui->setupUi(this);

    // Position 3 is an idle tick; the device has no alarm word.
    poll_plan plan;
    plan.read_codes = {144, 145, 146, poll_plan::silent, power_report, 164, 161};
    setup_driver(widgets_of(ui.get()), plan, parameter_table());
    finish_setup(ui->device_widget);
}

vtr_cw_1800_zif::~vtr_cw_1800_zif() = default;

parameter_list vtr_cw_1800_zif::parameter_table() {
    return {
        {81, tr("CAN ID"), 0, -1.0, 1},
        {37, tr("Max current, mA"), 2, -1.0, 0.1},
        {38, tr("Min current, mA"), 2, -1.0, 0.1},
        {66, tr("Max power, mW"), 1, -1.0, 0.1},
        {67, tr("Min power, mW"), 1, -1.0, 0.1},
        {55, tr("Max temperature, °C"), 2, -1.0, 0.1},
        {54, tr("Min temperature, °C"), 2, -1.0, 0.1},
        {22, tr("Resistance at 25°C, Ohm"), 0, -1.0, 1},
        {21, tr("Thermistor beta"), 0, -1.0, 1},
        {51, tr("Max tec current, A"), 1, -1.0, 0.1},
        {23, tr("Monitor responsivity, uA/mW"), 2, -1.0, 0.1},
        {68, tr("coef. P"), 4, -1.0, 0.1},
        {69, tr("coef. I"), 4, -1.0, 0.1},
        {70, tr("coef. D"), 4, -1.0, 0.1},
    };
}
