#include "zema240_panel.h"

#include "ui_zema240_panel.h"
#include "widget_update.h"

zema240_panel::zema240_panel(QWidget *parent)
    : zema_driver_base(parent, 1000), ui(new Ui::zema240_panel) {
    ui->setupUi(this);

    poll_plan plan;
    plan.read_codes = {144, 145, 146, 164, 176, 148, 166, 168};
    widgets form = widgets_of(ui.get());
    form.mode = ui->mode;
    form.mode_label = ui->mode_label;
    setup_driver(form, plan);
    bind_reading({"outlet_temperature", 168, tr("Outlet temperature"), tr("°C"), 10, 1, 3},
                 &outlet_temperature_, ui->l_temp_out);
    bind_setpoint(ui->dsb_temp, temperature_code, 10);
    finish_setup(ui->zema_widget);
}

zema240_panel::~zema240_panel() = default;

bool zema240_panel::load_setpoints() {
    const bool rest = zema_driver_base::load_setpoints();
    if (temperature() == -1.0) {
        return false;
    }
    widget_update::set_value(ui->dsb_temp, temperature());
    return rest;
}
