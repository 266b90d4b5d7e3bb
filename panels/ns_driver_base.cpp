#include "ns_driver_base.h"

#include "scaling.h"
#include "widget_update.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

#include <algorithm>
#include <cmath>
#include <map>

namespace {

// Hz per unit of each item of `cb_freq_range`.
constexpr double range_multiplier[] = {1, 1000, 1000000};

// What each item of `cb_mode` writes, in order: trigger source, cut count (burst while
// non-zero) and, for pulse on demand, the gated count.
const QVector<panel_command> mode_commands[] = {
    {{ns_driver_base::source_code, ns_driver_base::internal}, {ns_driver_base::cut_code, 0}},
    {{ns_driver_base::source_code, ns_driver_base::internal}, {ns_driver_base::cut_code, 1}},
    {{ns_driver_base::source_code, ns_driver_base::external}, {ns_driver_base::cut_code, 0}},
    {{ns_driver_base::source_code, ns_driver_base::external}, {ns_driver_base::cut_code, 1}},
    {{ns_driver_base::source_code, ns_driver_base::on_demand},
     {ns_driver_base::cut_code, 0},
     {ns_driver_base::gated_code, 1}},
};

}  // namespace

ns_driver_base::ns_driver_base(QWidget *parent, const model &m) : panel_base(parent), m_(m) {}

ns_driver_base::model ns_driver_base::current_drive(double rate_cap, double mhz_maximum) {
    return {QStringLiteral("current"), tr("Current"), tr("A"), 100, 2, rate_cap, mhz_maximum};
}

QStringList ns_driver_base::mode_names() {
    return {tr("Int: Normal"), tr("Int: Burst"), tr("Ext: Normal"), tr("Ext: Burst"),
            tr("Pulse on Demand")};
}

parameter_list ns_driver_base::current_driver_parameters() {
    return {
        {81, tr("CAN ID"), 0, -1.0, 1},
        {37, tr("Max current, A"), 2, -1.0, 0.1},
        {38, tr("Min current, A"), 2, -1.0, 0.1},
        {55, tr("Max temperature, °C"), 1, -1.0, 0.1},
        {54, tr("Min temperature, °C"), 1, -1.0, 0.1},
        {22, tr("Resistance at 25°C, Ohm"), 0, -1.0, 1},
        {21, tr("Thermistor beta"), 0, -1.0, 1},
        {56, tr("Nominal diode voltage, V"), 2, -1.0, 0.1},
        {68, tr("coef. P"), 4, -1.0, 0.1},
        {69, tr("coef. I"), 4, -1.0, 0.1},
        {70, tr("coef. D"), 4, -1.0, 0.1},
    };
}

void ns_driver_base::setup_driver(const widgets &form, const QVector<int> &extra_reads,
                                  const parameter_list &parameters) {
    w_ = form;
    poll_plan plan;
    plan.read_codes = {emission_code + 128, drive_code + 128,    temperature_code + 128,
                       rate_code + 128,     duration_code + 128, gated_code + 128,
                       cut_code + 128,      source_code + 128,   tec_code + 128};
    plan.read_codes += extra_reads;
    set_poll_plan(plan);
    set_parameters(parameters);

    bind_emission(emission_code + 128, w_.l_emission_state,
                  {w_.pb_on_off, w_.start_stop_button_alt},
                  {emission_code, emission_companion_code});
    bind_tec(tec_code, tec_code + 128, w_.chb_tec);
    bind_reading({m_.drive_key, drive_code + 128, m_.drive_quantity, m_.drive_unit, m_.drive_scale,
                  m_.drive_decimals, 3},
                 &drive_, w_.l_drive);
    bind_reading({"temperature", temperature_code + 128, tr("Temperature"), tr("°C"), 10, 1, 3},
                 &temperature_, w_.l_temp);
    bind_reading({"frequency", rate_code + 128, tr("Frequency"), tr("Hz"), 1, 0, 8}, &rate_);
    reserve_text(w_.l_freq, frequency_text(888888));
    // The rate and the duration bound each other: their maximum labels change with the readings
    // (the minimum ones with the range).
    reserve_text(w_.l_freq_min, QStringLiteral("0.1"));
    reserve_text(w_.l_freq_max, QStringLiteral("88888888"));
    reserve_text(w_.l_dura_min, QStringLiteral("88.8"));
    reserve_text(w_.l_dura_max, QStringLiteral("88888.8"));
    bind_reading({"duration", duration_code + 128, tr("Pulse duration"), tr("ns"), 10, 1},
                 &duration_, w_.l_dura);
    bind_reading({"gated_count", gated_code + 128, tr("Gated count"), {}, 1, 0}, &gated_,
                 w_.l_gated_count);
    bind_reading({"cut_count", cut_code + 128, tr("Cut count"), {}, 1, 0}, &cut_,
                 w_.l_cutted_count);
    bind_state(source_code + 128, &source_, "trigger_source", tr("Trigger source"), [](int source) {
        switch (source) {
            case internal:
                return tr("Internal");
            case on_demand:
                return tr("Pulse on Demand");
            case external:
                return tr("External");
            default:
                return QString::number(source);
        }
    });
    describe_command(source_code, "trigger_source", tr("Trigger source"), {}, 1);
    describe_command(rate_code, "frequency", tr("Frequency"), tr("Hz"), 1);

    bind_setpoint(w_.dsb_drive, drive_code, m_.drive_scale, &drive_text_, m_.drive_decimals);
    bind_setpoint(w_.dsb_temp, temperature_code, 10, &temperature_text_, 1);
    bind_setpoint(
        w_.dsb_freq, [this] { confirm_rate(); }, QStringLiteral("frequency"), tr("Frequency"),
        [this] { return w_.cb_freq_range->currentText(); });
    bind_setpoint(w_.dsb_dura, duration_code, 10);
    bind_setpoint(w_.dsb_gated_count, gated_code, 1);
    bind_setpoint(w_.dsb_cutted_count, cut_code, 1);
    // Enter on the combo boxes asks, as on the spin boxes, but sends nothing: they send when an
    // item is chosen.
    bind_setpoint(w_.cb_freq_range, {});
    bind_setpoint(w_.cb_mode, {});
}

void ns_driver_base::setup_bias(const bias_widgets &bias) {
    bias_ = bias;
    bind_reading({"bias", bias.report_code, tr("Bias"), tr("mA"), 10, 1, 3}, &bias_reading_,
                 bias.value_label);
    bind_setpoint(bias.spin, bias.write_code, 10);
}

// --- Operator actions -------------------------------------------------------------------------

void ns_driver_base::on_pb_on_off_clicked(bool checked) {
    emission_switch_clicked(checked);
}

void ns_driver_base::on_chb_tec_clicked(bool checked) {
    queue_tec(checked);
}

void ns_driver_base::on_cb_mode_activated(int index) {
    if (index < 0 || index >= int(std::size(mode_commands))) {
        return;
    }
    for (const panel_command &command : mode_commands[index]) {
        queue_command(command.code, command.value);
    }
}

void ns_driver_base::on_cb_freq_range_activated(int index) {
    if (index < range_hz || index > range_mhz || !w_.dsb_freq) {
        return;
    }
    if (w_.cb_freq_range->currentIndex() != index) {
        w_.cb_freq_range->setCurrentIndex(index);
    }
    QDoubleSpinBox *spin = w_.dsb_freq;
    const bool mhz = index == range_mhz;
    if (spin->decimals() != (mhz ? 1 : 0)) {
        spin->setDecimals(mhz ? 1 : 0);
    }
    spin->setSingleStep(mhz ? 0.1 : 1);
    widget_update::set_minimum(spin, mhz ? 0.1 : 1);
    widget_update::set_maximum(spin, mhz ? m_.mhz_maximum : 1000);
}

void ns_driver_base::activate_range(int index) {
    on_cb_freq_range_activated(index);
}

void ns_driver_base::on_dsb_dura_valueChanged(double value) {
    if (w_.dsb_dura) {
        keep_on_grid(w_.dsb_dura, value, remembered_duration());
    }
}

double &ns_driver_base::remembered_duration() const {
    // One value for all panels of a class, as the drivers' own panels have always kept it.
    static std::map<QByteArray, double> by_class;
    return by_class[QByteArray(metaObject()->className())];
}

void ns_driver_base::keep_on_grid(QDoubleSpinBox *spin, double value, double &previous) {
    double kept = value;
    if (scaling::to_wire(value, 10) % 2 != 0) {
        kept += value > previous ? 0.1 : -0.1;
    }
    previous = kept;
    // Re-enters through valueChanged() with a value on the grid, which is then kept as it is.
    widget_update::set_value(spin, kept);
}

void ns_driver_base::confirm_rate() {
    const int range = std::clamp(w_.cb_freq_range->currentIndex(), int(range_hz), int(range_mhz));
    const double value = w_.dsb_freq->value();
    queue_command(rate_code, scaling::to_wire(value, range_multiplier[range]));
    switch (range) {
        case range_khz:
            frequency_text_ = QString::number(value, 'f', 0) + tr("kHz");
            break;
        case range_mhz:
            frequency_text_ = QString::number(value, 'f', 1) + tr("MHz");
            break;
        default:
            frequency_text_ = QString::number(value, 'f', 0);
            break;
    }
}

// --- Display ----------------------------------------------------------------------------------

QString ns_driver_base::frequency_text(double hz) {
    // Whole Hz and whole kHz are the integer part, not the nearest: 999 999 Hz is "999 kHz".
    if (hz < 1000) {
        return QString::number(std::trunc(hz), 'f', 0) + tr(" Hz");
    }
    if (hz < 1000000) {
        return QString::number(std::trunc(hz / 1000), 'f', 0) + tr(" kHz");
    }
    return QString::number(hz / 1000000, 'f', 1) + tr(" MHz");
}

int ns_driver_base::reported_mode() const {
    const bool burst = in_burst();
    switch (source_) {
        case internal:
            return burst ? int_burst : int_normal;
        case external:
            return burst ? ext_burst : ext_normal;
        case on_demand:
            return pulse_on_demand;
        default:
            return -1;
    }
}

void ns_driver_base::apply_limits(QDoubleSpinBox *spin, QLabel *max_label, QLabel *min_label,
                                  int max_row, int min_row, double reading) {
    const auto row = [this](int position) {
        const double value = parameter_value(position);
        return value >= 0 ? value : plan().unknown_mark;
    };
    const double maximum = spin->maximum();
    const double minimum = spin->minimum();
    show_limits(spin, max_label, min_label, row(max_row), row(min_row), 2);
    if ((spin->maximum() != maximum || spin->minimum() != minimum) && reading != -1.0) {
        widget_update::set_value(spin, reading);
    }
}

void ns_driver_base::limit_duration() {
    double limit = -1;
    if (source_ == external) {
        limit = external_duration_limit;
    } else if (rate_ > 0) {
        // 0.1 ns resolution, truncated.
        limit = scaling::to_wire(duty_limit / (rate_ * 1e-9), 10) / 10.0;
    }
    if (limit > 0) {
        widget_update::set_maximum(w_.dsb_dura, limit);
    }
}

void ns_driver_base::limit_rate() {
    if (duration_ <= 0) {
        return;
    }
    const double limit = std::min(duty_limit / (duration_ * 1e-9), m_.rate_cap);
    double maximum = 0;
    if (limit < 1000) {
        if (w_.cb_freq_range->currentIndex() > range_hz) {
            activate_range(range_hz);
        }
        maximum = limit;
    } else if (limit < 1000000) {
        if (w_.cb_freq_range->currentIndex() > range_khz) {
            activate_range(range_khz);
        }
        maximum = w_.cb_freq_range->currentIndex() == range_hz ? 1000 : limit / 1000;
    } else {
        switch (w_.cb_freq_range->currentIndex()) {
            case range_mhz:
                maximum = limit / 1000000;
                break;
            case range_khz:
                maximum = 1000000;  // the drivers' own cap of this range, kept
                break;
            default:
                maximum = 1000;
                break;
        }
    }
    widget_update::set_maximum(w_.dsb_freq, maximum);
}

void ns_driver_base::refresh_display() {
    apply_limits(w_.dsb_drive, w_.l_drive_max, w_.l_drive_min, drive_max, drive_min, drive_);
    apply_limits(w_.dsb_temp, w_.l_temp_max, w_.l_temp_min, temperature_max, temperature_min,
                 temperature_);
    limit_duration();
    limit_rate();
    for (QDoubleSpinBox *spin : {w_.dsb_freq, w_.dsb_dura}) {
        QLabel *low = spin == w_.dsb_freq ? w_.l_freq_min : w_.l_dura_min;
        QLabel *high = spin == w_.dsb_freq ? w_.l_freq_max : w_.l_dura_max;
        show_text(low, QString::number(spin->minimum(), 'f', spin->decimals()));
        show_text(high, QString::number(spin->maximum(), 'f', spin->decimals()));
    }

    show_indicator(w_.i_drive, drive_, parameter_value(drive_min), parameter_value(drive_max));
    show_indicator(w_.i_temp, temperature_, parameter_value(temperature_min),
                   parameter_value(temperature_max));
    show_indicator(w_.i_freq, w_.dsb_freq->value(), 0, w_.dsb_freq->maximum());
    show_indicator(w_.i_dura, w_.dsb_dura->value(), 0, w_.dsb_dura->maximum());
    if (bias_.bar) {
        // The bar spans what its two limit labels show.
        const double span = bias_.max_label->text().toDouble() - bias_.min_label->text().toDouble();
        show_indicator(bias_.bar, bias_reading_, 0, span);
    }

    if (rate_ != -1.0) {
        show_text(w_.l_freq, frequency_text(rate_));
    }
    // A trigger source without a mode of its own has no text: the label keeps what it shows.
    const int mode = reported_mode();
    if (mode >= 0) {
        show_text(w_.l_mode, mode_names().at(mode));
    }
    w_.cb_mode->setEnabled(!emission_on());
    const bool burst = in_burst();
    w_.dsb_gated_count->setEnabled(burst);
    w_.dsb_cutted_count->setEnabled(burst);
    const bool triggered = source_ != on_demand;
    w_.cb_freq_range->setEnabled(triggered);
    w_.dsb_freq->setEnabled(triggered);
}

bool ns_driver_base::load(QDoubleSpinBox *spin, double reading) {
    if (reading == -1.0) {
        return false;
    }
    widget_update::set_value(spin, reading);
    return true;
}

bool ns_driver_base::load_setpoints() {
    bool complete = load(w_.dsb_drive, drive_);
    complete &= load(w_.dsb_temp, temperature_);
    complete &= load(w_.dsb_cutted_count, cut_);
    complete &= load(w_.dsb_gated_count, gated_);
    // The duration is not loaded: through its 0.2 ns grid a reported 10.5 ns would become 10.6,
    // and Enter would then send what the device never had.
    if (bias_.spin) {
        complete &= load(bias_.spin, bias_reading_);
    }
    // A trigger source without a mode of its own is known all the same; the combo then keeps the
    // item it shows.
    const int mode = reported_mode();
    if (mode >= 0) {
        w_.cb_mode->setCurrentIndex(mode);
    } else if (source_ == -1) {
        complete = false;
    }
    if (rate_ != -1.0) {
        const int range = rate_ < 1000 ? range_hz : rate_ < 1000000 ? range_khz : range_mhz;
        activate_range(range);
        widget_update::set_value(w_.dsb_freq, rate_ / range_multiplier[range]);
    } else {
        complete = false;
    }
    return complete;
}

QString ns_driver_base::header_summary() const {
    const QChar slash = QLatin1Char('/');
    const QChar space = QLatin1Char(' ');
    return drive_text_ + slash + w_.l_drive->text() + space + temperature_text_ + slash +
           w_.l_temp->text() + space + frequency_text_ + slash + w_.l_freq->text() + space +
           w_.l_mode->text();
}
