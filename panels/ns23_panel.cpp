#include "ns23_panel.h"

#include "ui_ns23_panel.h"

ns23_panel::ns23_panel(QWidget *parent)
    : ns_driver_base(parent, current_drive(10000000, 30)), ui(new Ui::ns23_panel) {
    ui->setupUi(this);
    setup_driver(current_widgets_of(ui.get()), {}, current_driver_parameters());
    finish_setup(ui->device_widget);
}

ns23_panel::~ns23_panel() = default;
