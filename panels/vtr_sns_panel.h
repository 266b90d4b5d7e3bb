#pragma once

#include "panel_base.h"

#include <memory>

namespace Ui {
class vtr_sns_panel;
}

// Panel of the SNS and bias pulse driver (device type 36). The device drives two pulse channels,
// the "SNS" channel and the bias channel, each with its own voltage and pulse width (the bias
// channel also with a delay), plus a TEC temperature and a repetition rate. Widths and delays are
// in the device's own time unit "t". The channels' settings are also configuration rows, so a
// report updates both the reading and the row.
class vtr_sns_panel : public panel_base {
    Q_OBJECT
public:
    explicit vtr_sns_panel(QWidget *parent = nullptr);
    ~vtr_sns_panel() override;

    static QString model_name() { return QStringLiteral("VTR_SNS"); }
    static parameter_list parameter_table();

    enum code : int {
        emission_code = 16,
        temperature_code = 18,
        rate_code = 19,  // 0.001 Hz
        delay_bias_code = 21,
        width_bias_code = 23,
        bias_voltage_code = 24,  // 0.001 V
        width_sns_code = 25,
        sns_voltage_code = 32,  // 0.01 V
        tec_code = 33,
        monitor_code = 34,
        alarm_report = 176,  // the drivers' alarm word, when the device reports it
    };
    // Items of `cb_freq_range`: the unit `dsb_freq` is in.
    enum frequency_range : int { range_hz, range_khz };

    // Span of the voltage bars (both channels) and of the temperature bar.
    static constexpr double voltage_full_scale = 5;
    static constexpr double temperature_low = 15;
    static constexpr double temperature_high = 50;

public slots:
    void on_pb_on_off_clicked(bool checked);
    void on_chb_tec_clicked(bool checked);
    void on_cb_freq_range_activated(int index);
    void on_pb_alarm_clicked();

protected:
    void refresh_display() override;
    bool load_setpoints() override;
    QString header_summary() const override;

private:
    void confirm_rate();
    double range_hz_per_unit() const;

    std::unique_ptr<Ui::vtr_sns_panel> ui;
    double temperature_ = -1.0;   // °C
    double rate_ = -1.0;          // Hz
    double delay_bias_ = -1.0;    // t
    double width_bias_ = -1.0;    // t
    double bias_voltage_ = -1.0;  // V
    double width_sns_ = -1.0;     // t
    double sns_voltage_ = -1.0;   // V
    double monitor_ = -1.0;
    QString voltage_text_ = QStringLiteral("n/a");
    QString temperature_text_ = QStringLiteral("n/a");
    QString frequency_text_ = QStringLiteral("n/a");
};
