#include "kso_ps_640_panel.h"

#include "ui_kso_ps_640_panel.h"

kso_ps_640_panel::kso_ps_640_panel(QWidget *parent)
    : ps_driver_base(parent), ui(new Ui::kso_ps_640_panel) {
    ui->setupUi(this);

    // No silent tick. The module is also asked for code 160, whose answer it leaves alone.
    poll_plan plan;
    plan.read_codes = {162, 152, 146, 153, 164, 161, alarm_report, 160};

    // Emission is reported under 162, and each switch sends its pair twice, as the module wants.
    traits member;
    member.emission_report = 162;
    member.emission_writes = {34, 32, 34, 32};
    member.modes = {{tr("Internal"), 0, -1}, {tr("External"), 1, -1}};
    member.mhz_maximum = 40.0;
    member.voltage_bar_from_minimum = true;
    member.rows_by_code = true;
    setup_driver(widgets_of(ui.get()), member, plan, driver_rows());
    set_dialog_hint(tr("Please check all parameters before saving"));
    // Unknown until the first report, and shown as an alarm until then.
    bind_alarm(alarm_report, driver_alarm_texts(), {ui->l_alarm, ui->pb_alarm}, -1);
    finish_setup(ui->device_widget);
}

kso_ps_640_panel::~kso_ps_640_panel() = default;

void kso_ps_640_panel::on_pb_alarm_clicked() {
    show_alarm_details();
}
