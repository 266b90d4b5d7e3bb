#include "cw_panel.h"

#include "ui_cw_panel.h"

cw_panel::cw_panel(QWidget *parent) : cw_driver_base(parent, resolution{}), ui(new Ui::cw_panel) {
    ui->setupUi(this);

    poll_plan plan;
    plan.read_codes = {144, 145, 146, 148, 164, 161, alarm_report};
    setup_driver(widgets_of(ui.get()), plan, parameter_table());
    bind_alarm(alarm_report, driver_alarm_texts(), {ui->l_alarm, ui->pb_alarm});
    finish_setup(ui->device_widget);
}

cw_panel::~cw_panel() = default;

QStringList cw_panel::model_list() {
    return {QStringLiteral("VTR-CW-1800"), QStringLiteral("VTR-CW-250-9V"),
            QStringLiteral("VTR-CW-450-DIL")};
}

parameter_list cw_panel::parameter_table() {
    return {
        {81, tr("CAN ID"), 0, -1.0, 1},
        {37, tr("Max current, mA"), 1, -1.0, 1},
        {38, tr("Min current, mA"), 1, -1.0, 1},
        {66, tr("Max power, mW"), 1, -1.0, 1},
        {67, tr("Min power, mW"), 1, -1.0, 1},
        {55, tr("Max temperature, °C"), 1, -1.0, 0.1},
        {54, tr("Min temperature, °C"), 1, -1.0, 0.1},
        {22, tr("Resistance at 25°C, Ohm"), 0, -1.0, 1},
        {21, tr("Thermistor beta"), 0, -1.0, 1},
        {51, tr("Max tec current, A"), 1, -1.0, 0.1},
        {23, tr("Monitor responsivity, uA/mW"), 2, -1.0, 0.1},
        {68, tr("coef. P"), 4, -1.0, 0.1},
        {69, tr("coef. I"), 4, -1.0, 0.1},
        {70, tr("coef. D"), 4, -1.0, 0.1},
    };
}

void cw_panel::set_mode_widgets_visible(bool visible) {
    ui->mode->setVisible(visible);
    ui->mode_title->setVisible(visible);
    ui->mode_label->setVisible(visible);
    ui->mode_state_title->setVisible(visible);
}

void cw_panel::on_pb_alarm_clicked() {
    show_alarm_details();
}
