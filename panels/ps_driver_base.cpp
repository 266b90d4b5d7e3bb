#include "ps_driver_base.h"

#include "scaling.h"
#include "widget_update.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

#include <cmath>

ps_driver_base::ps_driver_base(QWidget *parent) : panel_base(parent) {}

QVector<ps_driver_base::mode_entry> ps_driver_base::burst_modes() {
    return {
        {tr("Int: Normal"), 0, 0}, {tr("Int: Burst"), 0, 1},      {tr("Ext: Normal"), 2, 0},
        {tr("Ext: Burst"), 2, 1},  {tr("Pulse on Demand"), 1, 0},
    };
}

parameter_list ps_driver_base::driver_rows() {
    // "Thermistor beta" has no decimals but a step of 0.1 on these devices.
    return {
        {81, tr("CAN ID"), 0, -1.0, 1},
        {37, tr("Max voltage, V"), 1, -1.0, 0.1},
        {38, tr("Min voltage, V"), 1, -1.0, 0.1},
        {55, tr("Max temperature, °C"), 1, -1.0, 0.1},
        {54, tr("Min temperature, °C"), 1, -1.0, 0.1},
        {22, tr("Resistance at 25°C, Ohm"), 0, -1.0, 1},
        {21, tr("Thermistor beta"), 0, -1.0, 0.1},
        {68, tr("coef. P"), 4, -1.0, 0.1},
        {69, tr("coef. I"), 4, -1.0, 0.1},
        {70, tr("coef. D"), 4, -1.0, 0.1},
    };
}

void ps_driver_base::setup_driver(const widgets &form, const traits &member, const poll_plan &plan,
                                  const parameter_list &parameters) {
    w_ = form;
    t_ = member;
    set_poll_plan(plan);
    set_parameters(parameters);
    set_dialog_unknown_text(tr("n/a"));

    bind_emission(t_.emission_report, w_.l_emission_state, {w_.start_stop_button_alt, w_.pb_on_off},
                  t_.emission_writes);
    bind_tec(tec_code, tec_code + 128, w_.chb_tec);
    const reading_spec voltage_spec{"voltage", voltage_code + 128, tr("Voltage"), tr("V"), 10, 1,
                                    3};
    bind_reading(voltage_spec, &voltage_, w_.l_volt);
    bind_reading({"temperature", temperature_code + 128, tr("Temperature"), tr("°C"), 10, 1, 3},
                 &temperature_, w_.l_temp);
    // The rate label changes its unit with the magnitude; it is shown by the refresh.
    bind_reading({"frequency", frequency_report, tr("Frequency"), tr("Hz"), 1, 0, 8}, &frequency_);
    reserve_text(w_.l_freq, QStringLiteral("888 kHz"));
    bind_state(source_code + 128, &source_, "mode", tr("Mode"),
               [this](int) { return mode_name(); });
    describe_command(source_code, "mode", tr("Mode"), {}, 1);
    describe_command(frequency_code, "frequency", tr("Frequency"), tr("Hz"), 1);
    if (w_.dsb_gated_count) {
        bind_reading({"burst_pulses", gated_count_code + 128, tr("Burst pulses"), {}, 1, 0, 5},
                     &gated_count_, w_.l_gated_count);
        bind_reading({"burst_cut", cut_count_code + 128, tr("Burst cut"), {}, 1, 0, 5}, &cut_count_,
                     w_.l_cutted_count);
    }

    bind_setpoint(w_.dsb_volt, voltage_code, 10, &voltage_text_, 1);
    bind_setpoint(w_.dsb_temp, temperature_code, 10, &temperature_text_, 1);
    bind_setpoint(
        w_.dsb_freq, [this] { confirm_frequency(); }, QStringLiteral("frequency"), tr("Frequency"),
        [this] { return w_.cb_freq_range->currentText(); });
    if (w_.dsb_gated_count) {
        bind_setpoint(w_.dsb_gated_count, gated_count_code, 1);
        bind_setpoint(w_.dsb_cutted_count, cut_count_code, 1);
    }
    block_wheel(w_.cb_freq_range);
    block_wheel(w_.cb_mode);

    QStringList names;
    for (const mode_entry &mode : qAsConst(t_.modes)) {
        names.append(mode.name);
    }
    w_.cb_mode->addItems(names);
    reserve_widest(w_.l_mode, names);
    on_cb_freq_range_activated(w_.cb_freq_range->currentIndex());
    // The form's placeholder under "Voltage:" is not a voltage; show the reading's own form.
    show_text(w_.l_volt, voltage_spec.text(0.0));
}

// --- Operator actions -------------------------------------------------------------------------

void ps_driver_base::on_pb_on_off_clicked(bool checked) {
    emission_switch_clicked(checked);
}

void ps_driver_base::on_chb_tec_clicked(bool checked) {
    queue_tec(checked);
}

void ps_driver_base::on_cb_mode_activated(int index) {
    if (index < 0 || index >= t_.modes.size()) {
        return;
    }
    const mode_entry &mode = t_.modes[index];
    queue_command(source_code, mode.source);
    if (mode.cut >= 0) {
        queue_command(cut_count_code, mode.cut);
    }
}

void ps_driver_base::on_cb_freq_range_activated(int index) {
    w_.cb_freq_range->setCurrentIndex(index);
    QDoubleSpinBox *spin = w_.dsb_freq;
    if (index == hz_range || index == khz_range) {
        spin->setDecimals(0);
        spin->setRange(1, 1000);
        spin->setSingleStep(1);
    } else if (index == mhz_range) {
        spin->setDecimals(1);
        spin->setRange(0.1, t_.mhz_maximum);
        spin->setSingleStep(0.1);
    } else {
        return;
    }
    show_text(w_.l_freq_min, QString::number(spin->minimum(), 'f', spin->decimals()));
    show_text(w_.l_freq_max, QString::number(spin->maximum(), 'f', spin->decimals()));
}

void ps_driver_base::confirm_frequency() {
    const int range = w_.cb_freq_range->currentIndex();
    const double value = w_.dsb_freq->value();
    float factor = 1.0f;
    if (range == khz_range) {
        factor = 1000.0f;
        frequency_text_ = QString::number(value, 'f', 0) + QStringLiteral("kHz");
    } else if (range == mhz_range) {
        factor = 1000000.0f;
        frequency_text_ = QString::number(value, 'f', 1) + QStringLiteral("MHz");
    } else {
        frequency_text_ = QString::number(value, 'f', 0);
    }
    // The product is formed in single precision before it is truncated, so 16.7 MHz goes out as
    // 16700001 Hz; this is deliberate and kept.
    const float hz = static_cast<float>(value) * factor;
    queue_command(frequency_code, static_cast<long>(std::trunc(hz)));
}

// --- Display ----------------------------------------------------------------------------------

double ps_driver_base::limit(limit_row row) const {
    return t_.rows_by_code ? parameter_by_code(driver_rows()[row].code) : parameter_value(row);
}

void ps_driver_base::apply_limits(QDoubleSpinBox *spin, QLabel *max_label, QLabel *min_label,
                                  double high, double low, int decimals, double reading) const {
    const double unknown = plan().unknown_mark;
    const double old_max = spin->maximum();
    const double old_min = spin->minimum();
    show_limits(spin, max_label, min_label, high >= 0 ? high : unknown, low >= 0 ? low : unknown,
                decimals);
    if ((spin->maximum() != old_max || spin->minimum() != old_min) && reading != -1.0) {
        widget_update::set_value(spin, reading);
    }
}

void ps_driver_base::show_share(QProgressBar *bar, double reading, double low, double high,
                                bool from_minimum) const {
    if (from_minimum) {
        show_indicator(bar, reading, low, high);
        return;
    }
    std::optional<int> share;
    if (reading != -1.0 && is_known(low) && is_known(high)) {
        share = scaling::percent(reading, 0.0, high - low);
    }
    widget_update::set_bar(bar, share);
}

QString ps_driver_base::frequency_text(double hz) {
    if (hz < 1000) {
        return QString::number(std::trunc(hz), 'f', 0) + QStringLiteral(" Hz");
    }
    if (hz < 1000000) {
        return QString::number(std::trunc(hz / 1000), 'f', 0) + QStringLiteral(" kHz");
    }
    return QString::number(hz / 1000000, 'f', 1) + QStringLiteral(" MHz");
}

QString ps_driver_base::mode_name() const {
    // The cut count decides between normal and burst; a source with a single entry (pulse on
    // demand, the module's triggers) is named whatever the count.
    const bool burst = cut_count_ != 0;
    QString any_count;
    for (const mode_entry &mode : t_.modes) {
        if (mode.source != source_) {
            continue;
        }
        if (mode.cut < 0 || (mode.cut != 0) == burst) {
            return mode.name;
        }
        if (any_count.isEmpty()) {
            any_count = mode.name;
        }
    }
    return any_count;
}

void ps_driver_base::refresh_display() {
    const double volt_max = limit(voltage_max);
    const double volt_min = limit(voltage_min);
    const double temp_max = limit(temperature_max);
    const double temp_min = limit(temperature_min);
    apply_limits(w_.dsb_temp, w_.l_temp_max, w_.l_temp_min, temp_max, temp_min, 2, temperature_);
    apply_limits(w_.dsb_volt, w_.l_volt_max, w_.l_volt_min, volt_max, volt_min, 1, voltage_);

    show_share(w_.i_voltage, voltage_, volt_min, volt_max, t_.voltage_bar_from_minimum);
    show_share(w_.i_temp, temperature_, temp_min, temp_max, t_.temperature_bar_from_minimum);
    widget_update::set_bar(w_.i_freq,
                           scaling::percent(w_.dsb_freq->value(), 0.0, w_.dsb_freq->maximum()));

    if (frequency_ != -1.0) {
        show_text(w_.l_freq, frequency_text(frequency_));
    }
    const QString mode = mode_name();
    if (!mode.isEmpty()) {
        show_text(w_.l_mode, mode);
    }

    w_.cb_mode->setEnabled(!emission_on());
    if (w_.dsb_gated_count) {
        const bool burst = cut_count_ != 0;
        w_.dsb_gated_count->setEnabled(burst);
        w_.dsb_cutted_count->setEnabled(burst);
    }
    const bool rate_settable = source_ != source_without_rate;
    w_.cb_freq_range->setEnabled(rate_settable);
    w_.dsb_freq->setEnabled(rate_settable);
}

void ps_driver_base::reserve_widest(QLabel *label, const QStringList &texts) {
    QString widest;
    for (const QString &text : texts) {
        if (label->fontMetrics().horizontalAdvance(text) >
            label->fontMetrics().horizontalAdvance(widest)) {
            widest = text;
        }
    }
    reserve_text(label, widest);
}

bool ps_driver_base::load(QDoubleSpinBox *spin, double reading) {
    if (reading == -1.0) {
        return false;
    }
    widget_update::set_value(spin, reading);
    return true;
}

bool ps_driver_base::load_setpoints() {
    bool complete = load(w_.dsb_volt, voltage_);
    complete = load(w_.dsb_temp, temperature_) && complete;
    const QString mode = mode_name();
    if (source_ >= 0 && !mode.isEmpty()) {
        w_.cb_mode->setCurrentText(mode);
    } else {
        complete = false;
    }
    if (w_.dsb_gated_count) {
        complete = load(w_.dsb_cutted_count, cut_count_) && complete;
        complete = load(w_.dsb_gated_count, gated_count_) && complete;
    }
    if (frequency_ == -1.0) {
        return false;
    }
    // The "MHz" range is filled with the rate over 100 000, not over 1 000 000: 1 MHz shows as 10.0
    // and anything from 3 MHz up (4 MHz on the module) as the range's top. Deliberate, and kept.
    if (frequency_ < 1000) {
        on_cb_freq_range_activated(hz_range);
        widget_update::set_value(w_.dsb_freq, frequency_);
    } else if (frequency_ < 1000000) {
        on_cb_freq_range_activated(khz_range);
        widget_update::set_value(w_.dsb_freq, frequency_ / 1000);
    } else {
        on_cb_freq_range_activated(mhz_range);
        widget_update::set_value(w_.dsb_freq, frequency_ / 100000);
    }
    return complete;
}

QString ps_driver_base::header_summary() const {
    const QString gap = QStringLiteral(" ");
    const QChar slash = QLatin1Char('/');
    return voltage_text_ + slash + w_.l_volt->text() + gap + temperature_text_ + slash +
           w_.l_temp->text() + gap + frequency_text_ + slash + w_.l_freq->text() + gap +
           w_.l_mode->text();
}
