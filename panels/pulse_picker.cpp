#include "pulse_picker.h"

#include "scaling.h"
#include "ui_pulse_picker.h"
#include "widget_update.h"

namespace {

// Codes (c writes, c + 128 reports).
constexpr int mode_code = 16;
constexpr int level_code = 17;
constexpr int divider_code = 18;
constexpr int gate_code = 19;
constexpr int cut_code = 20;
constexpr int frequency_report = 149;
// Polled, its answer not used.
constexpr int spare_report = 150;

constexpr int burst_mode = 3;
// The output level travels as attenuation steps: 0 is full output, 8192 none.
constexpr double level_steps = 8192;

}  // namespace

pulse_picker::pulse_picker(QWidget *parent) : panel_base(parent), ui(new Ui::pulse_picker) {
    ui->setupUi(this);

    poll_plan plan;
    plan.read_codes = {frequency_report, level_code + 128, divider_code + 128, gate_code + 128,
                       cut_code + 128,   mode_code + 128,  spare_report};
    set_poll_plan(plan);
    set_parameters({{81, tr("CAN ID"), 0}});

    bind_reading({"frequency", frequency_report, tr("Frequency"), tr("kHz"), 1000, 3, 4},
                 &frequency_, ui->l_freq);
    // (8192 - reported) / 8192 × 100 %.
    bind_reading({"output_level", level_code + 128, tr("Output level"), tr("%"), -level_steps / 100,
                  1, 3, level_steps},
                 &level_, ui->l_amp);
    bind_reading({"divider", divider_code + 128, tr("Divider"), {}, 1, 0, 5}, &divider_, ui->l_div);
    bind_reading({"output_pulses", gate_code + 128, tr("Output pulses"), {}, 1, 0, 5}, &gated_,
                 ui->l_gate);
    bind_reading({"skipped_pulses", cut_code + 128, tr("Skipped pulses"), {}, 1, 0, 5}, &cut_,
                 ui->l_cut);
    bind_state(mode_code + 128, &mode_, "mode", tr("Mode"),
               [this](int mode) { return mode_text(mode); });
    describe_command(mode_code, "mode", tr("Mode"), {}, 1);
    describe_command(level_code, "output_level", tr("Output level"), tr("%"), -level_steps / 100,
                     level_steps);

    bind_setpoint(
        ui->dsb_ampl,
        [this] {
            const double percent = ui->dsb_ampl->value();
            level_text_ = QString::number(percent, 'f', 1);
            queue_command(level_code,
                          scaling::to_wire(level_steps - percent / 100 * level_steps, 1));
        },
        QStringLiteral("output_level"), tr("Output level"), [] { return tr("%"); });
    bind_setpoint(ui->dsb_divider, divider_code, 1, &divider_text_, 0);
    bind_setpoint(ui->dsb_gate, gate_code, 1);
    bind_setpoint(ui->dsb_cut, cut_code, 1);
    block_wheel(ui->mode);

    ui->alt_but_widget->hide();
    set_dialog_available(false);
    finish_setup(ui->device_widget);
}

pulse_picker::~pulse_picker() = default;

int pulse_picker::swap_open_close(int mode) {
    return mode == 0 || mode == 1 ? 1 - mode : mode;
}

QString pulse_picker::mode_text(int mode) const {
    const int item = swap_open_close(mode);
    return item >= 0 && item < ui->mode->count() ? ui->mode->itemText(item) : QString::number(mode);
}

void pulse_picker::on_mode_activated(int index) {
    const int mode = swap_open_close(index);
    if (mode == 0 || mode == 1) {
        queue_command(divider_code, 0);
    }
    // Bursts start at one pulse passed, one skipped; every other mode clears them.
    const long burst = mode == burst_mode ? 1 : 0;
    queue_command(gate_code, burst);
    queue_command(cut_code, burst);
    queue_command(mode_code, mode);
}

void pulse_picker::refresh_display() {
    if (mode_ != -1) {
        show_text(ui->l_mode, mode_text(mode_));
    }
    show_indicator(ui->i_level, level_, 0, 100);
    // Share of each spin box's span; the minimum is not taken off the value.
    const auto share = [this](QProgressBar *bar, double value, const QDoubleSpinBox *spin) {
        show_indicator(bar, value, 0, spin->maximum() - spin->minimum());
    };
    share(ui->i_divider, divider_, ui->dsb_divider);
    share(ui->i_gated, gated_, ui->dsb_gate);
    share(ui->i_cut, cut_, ui->dsb_cut);
    // Burst sizes mean something only while the device cuts bursts.
    ui->dsb_gate->setEnabled(mode_ == burst_mode);
    ui->dsb_cut->setEnabled(mode_ == burst_mode);
}

bool pulse_picker::load_setpoints() {
    bool complete = true;
    const auto load = [&complete](QDoubleSpinBox *spin, double value) {
        if (value == -1.0) {
            complete = false;
        } else {
            widget_update::set_value(spin, value);
        }
    };
    load(ui->dsb_ampl, level_);
    load(ui->dsb_divider, divider_);
    load(ui->dsb_gate, gated_);
    load(ui->dsb_cut, cut_);
    // A reported mode that the combo has no item for is known all the same (the label shows its
    // number); the combo then keeps the item it shows.
    const int item = swap_open_close(mode_);
    if (mode_ == -1) {
        complete = false;
    } else if (item >= 0 && item < ui->mode->count()) {
        ui->mode->setCurrentIndex(item);
    }
    return complete;
}

QString pulse_picker::header_summary() const {
    return ui->l_mode->text() + QLatin1Char(' ') + level_text_ + QLatin1Char('/') +
           ui->l_amp->text() + QLatin1Char(' ') + divider_text_ + QLatin1Char('/') +
           ui->l_div->text() + QLatin1Char(' ') + ui->l_freq->text();
}
