#include "heater.h"

#include "ui_heater.h"
#include "widget_update.h"

namespace {

// Codes (c writes, c + 128 reports).
constexpr int switch_code = 33;
constexpr int temperature_code = 18;

}  // namespace

heater::heater(QWidget *parent) : panel_base(parent), ui(new Ui::heater) {
    ui->setupUi(this);

    // State, temperature, then one idle tick: the first unknown row is read at position 3. The
    // gap paces the heater's traffic and is kept.
    poll_plan plan;
    plan.read_codes = {switch_code + 128, temperature_code + 128};
    plan.unknown_rows_from = 3;
    set_poll_plan(plan);
    set_parameters({{81, tr("CAN ID"), 0}});

    bind_switch(switch_code + 128, &heater_on_, ui->l_onoff,
                {ui->on_off_button, ui->start_stop_button_alt}, "heater", tr("Heater"), tr("ON"),
                tr("OFF"));
    describe_command(switch_code, "heater", tr("Heater"), {}, 1);
    bind_reading({"temperature", temperature_code + 128, tr("Temperature"), tr("°C"), 10, 1, 3},
                 &temperature_, ui->l_temp);
    bind_setpoint(ui->dsb_temp, temperature_code, 10);
    set_store_commands({});
    // A value changed in the configuration dialog is sent by "Write" only: a CAN ID written at
    // every arrow click would move the heater to another address on the way.
    set_live_change(false);

    finish_setup(ui->device_widget);
}

heater::~heater() = default;

void heater::on_on_off_button_clicked(bool checked) {
    emission_switch_clicked(checked);
}

void heater::emission_switch_clicked(bool /*checked*/) {
    // The last report decides, not the button: two clicks before the device answers ask twice
    // for the same change.
    queue_command(switch_code, heater_on_ ? 0 : 1);
}

bool heater::load_setpoints() {
    if (temperature_ == -1.0) {
        return false;
    }
    widget_update::set_value(ui->dsb_temp, temperature_);
    return true;
}

QString heater::header_summary() const {
    return ui->l_onoff->text() + QLatin1Char(' ') + ui->l_temp->text();
}
