#include "ns_gss_id19.h"

#include "ui_ns_gss_id19.h"

ns_gss_id19::ns_gss_id19(QWidget *parent)
    : ns_driver_base(parent, current_drive(10000000, 30)), ui(new Ui::ns_gss_id19) {
    ui->setupUi(this);
    setup_driver(current_widgets_of(ui.get()), {bias_code + 128}, current_driver_parameters());
    setup_bias(bias_of(ui.get(), bias_code, bias_code + 128));
    finish_setup(ui->device_widget);
}

ns_gss_id19::~ns_gss_id19() = default;
