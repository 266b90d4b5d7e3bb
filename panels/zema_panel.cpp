#include "zema_panel.h"

#include "ui_zema_panel.h"

zema_panel::zema_panel(QWidget *parent) : zema_driver_base(parent, 100), ui(new Ui::zema_panel) {
    ui->setupUi(this);

    poll_plan plan;
    plan.read_codes = {144, 145, 146, 164, 176, 148, 166};
    widgets form = widgets_of(ui.get());
    form.mode = ui->mode;
    form.mode_label = ui->mode_label;
    setup_driver(form, plan);
    finish_setup(ui->zema_widget);
}

zema_panel::~zema_panel() = default;
