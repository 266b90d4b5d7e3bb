#include "ps26_panel.h"

#include "ui_ps26_panel.h"

ps26_panel::ps26_panel(QWidget *parent) : ps_driver_base(parent), ui(new Ui::ps26_panel) {
    ui->setupUi(this);

    poll_plan plan;
    plan.read_codes = {160, 152, 146, 153, poll_plan::silent,
                       180, 181, 164, 161, energy_code + 128};
    plan.unknown_mark = unknown_row;
    // The pulse energy is a plain number: the device gives it no unit.
    bind_reading({"pulse_energy", energy_code + 128, tr("Pulse energy"), {}, 10, 1, 3}, &energy_,
                 ui->l_energy);
    bind_setpoint(ui->dsb_energy, energy_code, 10);

    // Neither bar subtracts its minimum here.
    traits member;
    member.temperature_bar_from_minimum = false;
    member.rows_by_code = true;
    setup_driver(burst_widgets_of(ui.get()), member, plan, parameter_table());
    ui->volt_widget->setHidden(role() != QLatin1String("tuner"));
    finish_setup(ui->device_widget);
}

ps26_panel::~ps26_panel() = default;

parameter_list ps26_panel::parameter_table() {
    parameter_list rows = driver_rows();
    rows[6].step = 1;  // "Thermistor beta"
    // The energy calibration: energy to drive voltage as a3·E³ + a2·E² + a1·E + a0.
    rows += {
        {56, tr("poly. a3"), 6, -1.0, 0.1},
        {57, tr("poly. a2"), 6, -1.0, 0.1},
        {58, tr("poly. a1"), 6, -1.0, 0.1},
        {59, tr("poly. a0"), 6, -1.0, 0.1},
        {max_energy_code, tr("max energy"), 1, -1.0, 0.1},
    };
    return rows;
}

void ps26_panel::refresh_display() {
    ps_driver_base::refresh_display();
    const double max_energy = parameter_by_code(max_energy_code);
    apply_limits(ui->dsb_energy, ui->l_energy_max, ui->l_energy_min, max_energy, 0.0, 1, energy_);
    show_share(ui->i_energy, energy_, 0.0, max_energy, false);
}

bool ps26_panel::load_setpoints() {
    const bool driver = ps_driver_base::load_setpoints();
    return load(ui->dsb_energy, energy_) && driver;
}
