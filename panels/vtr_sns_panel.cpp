#include "vtr_sns_panel.h"

#include "scaling.h"
#include "ui_vtr_sns_panel.h"
#include "widget_update.h"

#include <QComboBox>
#include <QDoubleSpinBox>

namespace {

// The rate travels in 0.001 Hz.
constexpr double rate_scale = 1000;

}  // namespace

vtr_sns_panel::vtr_sns_panel(QWidget *parent) : panel_base(parent), ui(new Ui::vtr_sns_panel) {
    ui->setupUi(this);

    poll_plan plan;
    plan.read_codes = {emission_code + 128,     temperature_code + 128, rate_code + 128,
                       delay_bias_code + 128,   width_bias_code + 128,  tec_code + 128,
                       bias_voltage_code + 128, width_sns_code + 128,   monitor_code + 128,
                       sns_voltage_code + 128};
    set_poll_plan(plan);
    set_parameters(parameter_table());

    bind_emission(emission_code + 128, ui->l_emission_state,
                  {ui->pb_on_off, ui->start_stop_button_alt}, {emission_code});
    bind_tec(tec_code, tec_code + 128, ui->chb_tec);
    bind_reading({"temperature", temperature_code + 128, tr("Temperature"), tr("°C"), 10, 1, 3},
                 &temperature_, ui->l_temp);
    bind_reading({"frequency", rate_code + 128, tr("Frequency"), tr("Hz"), rate_scale, 0, 7},
                 &rate_, ui->l_freq);
    bind_reading({"delay_bias", delay_bias_code + 128, tr("Delay bias"), tr("t"), 10, 1, 3},
                 &delay_bias_, ui->l_delay_bias);
    bind_reading({"width_bias", width_bias_code + 128, tr("Width bias"), tr("t"), 10, 1, 3},
                 &width_bias_, ui->l_width_bias);
    bind_reading({"voltage_bias", bias_voltage_code + 128, tr("Voltage bias"), tr("V"), 1000, 3, 1},
                 &bias_voltage_, ui->l_volt_bias);
    bind_reading({"width_sns", width_sns_code + 128, tr("Width SNS"), tr("t"), 100, 2, 2},
                 &width_sns_, ui->l_width_sns);
    bind_reading({"voltage_sns", sns_voltage_code + 128, tr("Voltage SNS"), tr("V"), 100, 2, 1},
                 &sns_voltage_, ui->l_volt);
    // What the device reports under 162 is kept and observed, not shown.
    bind_reading({"monitor", monitor_code + 128, tr("Monitor"), {}, 10, 1}, &monitor_);
    reserve_text(ui->l_tec_state, tr("OFF"));
    // The poll cycle does not ask for the alarm word; a word the device reports is shown.
    bind_alarm(alarm_report, driver_alarm_texts(), {ui->l_alarm, ui->pb_alarm});

    bind_setpoint(ui->dsb_volt, sns_voltage_code, 100, &voltage_text_, 2);
    bind_setpoint(ui->dsb_volt_bias, bias_voltage_code, 1000);
    bind_setpoint(ui->dsb_temp, temperature_code, 10, &temperature_text_, 1);
    bind_setpoint(ui->dsb_width_bias, width_bias_code, 10);
    bind_setpoint(ui->dsb_delay_bias, delay_bias_code, 10);
    bind_setpoint(ui->dsb_pulse_width, width_sns_code, 100);
    bind_setpoint(
        ui->dsb_freq, [this] { confirm_rate(); }, QStringLiteral("frequency"), tr("Frequency"),
        [this] { return ui->cb_freq_range->currentText(); });
    block_wheel(ui->cb_freq_range);
    finish_setup(ui->sns_widget);
}

vtr_sns_panel::~vtr_sns_panel() = default;

parameter_list vtr_sns_panel::parameter_table() {
    return {
        {81, tr("CAN ID"), 0, -1.0, 1},
        {37, tr("Resistance at 25°C, Ohm"), 0, -1.0, 1},
        {36, tr("Thermistor beta"), 0, -1.0, 1},
        {sns_voltage_code, tr("Voltage SNS, V"), 2, -1.0, 0.01},
        {bias_voltage_code, tr("Voltage bias, V"), 3, -1.0, 0.001},
        {width_bias_code, tr("Width bias, t"), 1, -1.0, 0.1},
        {delay_bias_code, tr("Delay bias, t"), 1, -1.0, 0.1},
        {width_sns_code, tr("Width SNS, t"), 2, -1.0, 0.01},
    };
}

void vtr_sns_panel::on_pb_on_off_clicked(bool checked) {
    emission_switch_clicked(checked);
}

void vtr_sns_panel::on_chb_tec_clicked(bool checked) {
    queue_tec(checked);
}

void vtr_sns_panel::on_pb_alarm_clicked() {
    show_alarm_details();
}

double vtr_sns_panel::range_hz_per_unit() const {
    return ui->cb_freq_range->currentIndex() == range_khz ? 1000 : 1;
}

void vtr_sns_panel::on_cb_freq_range_activated(int index) {
    if (index != range_hz && index != range_khz) {
        return;
    }
    if (ui->cb_freq_range->currentIndex() != index) {
        ui->cb_freq_range->setCurrentIndex(index);
    }
    // The 32-bit wire word, in 0.001 Hz, ends above 2 MHz.
    widget_update::set_maximum(ui->dsb_freq, index == range_khz ? 2000 : 1000);
}

void vtr_sns_panel::confirm_rate() {
    const double value = ui->dsb_freq->value();
    queue_command(rate_code, scaling::to_wire(value * range_hz_per_unit(), rate_scale));
    frequency_text_ = QString::number(value) + ui->cb_freq_range->currentText();
}

void vtr_sns_panel::refresh_display() {
    show_indicator(ui->i_voltage, sns_voltage_, 0, voltage_full_scale);
    show_indicator(ui->i_volt_bias, bias_voltage_, 0, voltage_full_scale);
    show_indicator(ui->i_temp, temperature_, temperature_low, temperature_high);
    show_indicator(ui->i_freq, rate_, 0, ui->dsb_freq->maximum() * range_hz_per_unit());
    show_text(ui->l_freq_min, QString::number(ui->dsb_freq->minimum()));
    show_text(ui->l_freq_max, QString::number(ui->dsb_freq->maximum()));
    if (tec_state() >= 0) {
        show_text(ui->l_tec_state, tec_state() != 0 ? tr("ON") : tr("OFF"));
    }
}

bool vtr_sns_panel::load_setpoints() {
    const struct {
        QDoubleSpinBox *spin;
        double reading;
    } setpoints[] = {{ui->dsb_volt, sns_voltage_},      {ui->dsb_volt_bias, bias_voltage_},
                     {ui->dsb_temp, temperature_},      {ui->dsb_width_bias, width_bias_},
                     {ui->dsb_delay_bias, delay_bias_}, {ui->dsb_pulse_width, width_sns_}};
    bool complete = true;
    for (const auto &setpoint : setpoints) {
        if (setpoint.reading == -1.0) {
            complete = false;
        } else {
            widget_update::set_value(setpoint.spin, setpoint.reading);
        }
    }
    if (rate_ == -1.0) {
        return false;
    }
    on_cb_freq_range_activated(rate_ < 1000 ? range_hz : range_khz);
    widget_update::set_value(ui->dsb_freq, rate_ / range_hz_per_unit());
    return complete;
}

QString vtr_sns_panel::header_summary() const {
    const QChar slash = QLatin1Char('/');
    const QChar space = QLatin1Char(' ');
    return voltage_text_ + slash + ui->l_volt->text() + space + temperature_text_ + slash +
           ui->l_temp->text() + space + frequency_text_ + slash + ui->l_freq->text();
}
