#include "zema120_panel.h"

#include "ui_zema120_panel.h"

zema120_panel::zema120_panel(QWidget *parent)
    : zema_driver_base(parent, 100), ui(new Ui::zema120_panel) {
    ui->setupUi(this);

    // Six reads, then an idle tick: the unknown configuration rows are asked from position 7.
    poll_plan plan;
    plan.read_codes = {144, 145, 146, 176, 148, 166};
    plan.unknown_rows_from = 7;
    setup_driver(widgets_of(ui.get()), plan);
    set_live_change(false);
    finish_setup(ui->zema_widget);
}

zema120_panel::~zema120_panel() = default;
