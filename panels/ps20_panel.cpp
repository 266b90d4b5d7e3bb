#include "ps20_panel.h"

#include "ui_ps20_panel.h"

ps20_panel::ps20_panel(QWidget *parent) : ps_driver_base(parent), ui(new Ui::ps20_panel) {
    ui->setupUi(this);

    // Position 4 is a silent tick.
    poll_plan plan;
    plan.read_codes = {160, 152, 146, 153, poll_plan::silent, 180, 181, 164, 161};
    setup_driver(burst_widgets_of(ui.get()), traits{}, plan, driver_rows());
    finish_setup(ui->device_widget);
}

ps20_panel::~ps20_panel() = default;
