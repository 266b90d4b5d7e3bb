#pragma once

#include "panel_base.h"
#include "pulse_form.h"

#include <QStringList>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QProgressBar;
class QPushButton;

// What the nanosecond driver panels have in common (`ns23_panel`, the synchronised `ns29_panel`,
// `ns_gss_id19` with its DC bias and the voltage-driven `ns_gss_triangle_panel`): the drive
// set-point bounded by configuration rows 1 and 2, the TEC temperature bounded by rows 3 and 4,
// the repetition rate in three ranges, the pulse duration on a 0.2 ns grid, the five pulse modes,
// the gated and cut counts of the burst mode, and the 2 % duty cycle that bounds the duration by
// the rate and the rate by the duration. They differ in their drive (current in A or pulse voltage
// in V), their rate caps, and what they add.
class ns_driver_base : public panel_base {
    Q_OBJECT
public:
    // Codes (c writes, c + 128 reports).
    enum code : int {
        temperature_code = 18,
        drive_code = 24,
        rate_code = 25,
        emission_code = 32,
        tec_code = 33,
        emission_companion_code = 34,  // always sent right after emission_code, same value
        duration_code = 35,
        source_code = 36,
        gated_code = 52,
        cut_code = 53,  // burst while non-zero
    };

    // Trigger source (code 36).
    enum trigger_source : int { internal = 0, on_demand = 1, external = 2 };
    // Items of `cb_mode`, as the mode table orders them.
    enum pulse_mode : int { int_normal, int_burst, ext_normal, ext_burst, pulse_on_demand };
    // Items of `cb_freq_range`.
    enum frequency_range : int { range_hz, range_khz, range_mhz };
    // Configuration rows that bound the set-points, by position.
    enum limit_position : int {
        drive_max = 1,
        drive_min = 2,
        temperature_max = 3,
        temperature_min = 4,
    };

    // The pulse is on for at most this share of the period.
    static constexpr double duty_limit = 0.02;
    // Longest pulse, in ns, under an external trigger.
    static constexpr double external_duration_limit = 100;

    // How a member of the family drives its diode and how fast it may pulse.
    struct model {
        QString drive_key;        // "current" or "voltage"
        QString drive_quantity;   // "Current" or "Voltage"
        QString drive_unit;       // "A" or "V"
        double drive_scale = 1;   // wire units per drive unit, both ways
        int drive_decimals = 1;   // value label, kept set-point text
        double rate_cap = 1e7;    // Hz; the rate bound by the duty cycle never exceeds it
        double mhz_maximum = 30;  // top of the "MHz" range
    };
    // The current-driven members: 0.01 A on the wire, shown with 2 decimals.
    static model current_drive(double rate_cap, double mhz_maximum);

    // The widgets of the form, by role; the drive widgets are `dsb_curr`, `i_current`, ... or
    // `dsb_volt`, `i_volt`, ...
    struct widgets : pulse_form {
        QDoubleSpinBox *dsb_drive = nullptr;
        QDoubleSpinBox *dsb_dura = nullptr;
        QProgressBar *i_drive = nullptr;
        QProgressBar *i_dura = nullptr;
        QLabel *l_drive_min = nullptr;
        QLabel *l_drive_max = nullptr;
        QLabel *l_dura_min = nullptr;
        QLabel *l_dura_max = nullptr;
        QLabel *l_drive = nullptr;
        QLabel *l_dura = nullptr;
    };

    // The DC bias of the members that have one: set-point, bar, limit labels (whose numbers span
    // the bar) and value label, with its codes; the bias travels in 0.1 mA.
    struct bias_widgets {
        QDoubleSpinBox *spin = nullptr;
        QProgressBar *bar = nullptr;
        QLabel *max_label = nullptr;
        QLabel *min_label = nullptr;
        QLabel *value_label = nullptr;
        int write_code = 0;
        int report_code = 0;
    };

    // The family's widgets except the drive ones.
    template <class Form>
    static widgets widgets_of(Form *ui) {
        widgets w;
        w.take(ui);
        w.take_burst(ui);
        w.dsb_dura = ui->dsb_dura;
        w.i_dura = ui->i_dura;
        w.l_dura_min = ui->l_dura_min;
        w.l_dura_max = ui->l_dura_max;
        w.l_dura = ui->l_dura;
        return w;
    }
    // The widgets of a current-driven member's form.
    template <class Form>
    static widgets current_widgets_of(Form *ui) {
        widgets w = widgets_of(ui);
        w.dsb_drive = ui->dsb_curr;
        w.i_drive = ui->i_current;
        w.l_drive_min = ui->l_curr_min;
        w.l_drive_max = ui->l_curr_max;
        w.l_drive = ui->l_curr;
        return w;
    }
    template <class Form>
    static bias_widgets bias_of(Form *ui, int write_code, int report_code) {
        return {ui->dsb_bias, ui->i_bias, ui->l_bias_max, ui->l_bias_min,
                ui->l_bias,   write_code, report_code};
    }

    // Items of `cb_mode`.
    static QStringList mode_names();
    // The eleven rows of the current-driven members, in the order of their dialog.
    static parameter_list current_driver_parameters();
    // The mode the device is in, from its trigger source and cut count; -1 while the source is
    // unknown or names no mode.
    int reported_mode() const;
    // Burst while the cut count is non-zero; a count not yet reported (-1) counts as burst too.
    bool in_burst() const { return cut_ != 0; }
    // Frequency as the state block shows it: Hz, kHz or MHz by magnitude.
    static QString frequency_text(double hz);

public slots:
    void on_pb_on_off_clicked(bool checked);
    void on_chb_tec_clicked(bool checked);
    void on_cb_mode_activated(int index);
    void on_cb_freq_range_activated(int index);
    void on_dsb_dura_valueChanged(double value);

protected:
    ns_driver_base(QWidget *parent, const model &m);

    // Binds the family's widgets and codes; `extra_reads` follow the family's nine reads in the
    // poll list.
    void setup_driver(const widgets &form, const QVector<int> &extra_reads,
                      const parameter_list &parameters);
    void setup_bias(const bias_widgets &bias);

    void refresh_display() override;
    bool load_setpoints() override;
    QString header_summary() const override;

    // Keeps `spin` on a 0.2 grid: a value with an odd tenth moves on by 0.1 in the direction it
    // came from (`previous`, the last value kept).
    static void keep_on_grid(QDoubleSpinBox *spin, double value, double &previous);
    // Loads `spin` with a reading; false while the reading is unknown.
    static bool load(QDoubleSpinBox *spin, double reading);

private:
    // Sets `spin`'s limits from two rows (rows below zero are not applied) and, when they
    // change, sets the spin box back to the reading.
    void apply_limits(QDoubleSpinBox *spin, QLabel *max_label, QLabel *min_label, int max_row,
                      int min_row, double reading);
    void limit_duration();
    void limit_rate();
    // Selects the range as the operator would.
    void activate_range(int index);
    void confirm_rate();
    double &remembered_duration() const;

    widgets w_;
    model m_;
    bias_widgets bias_;
    double drive_ = -1.0;        // A or V
    double temperature_ = -1.0;  // °C
    double rate_ = -1.0;         // Hz
    double duration_ = -1.0;     // ns
    double gated_ = -1.0;
    double cut_ = -1.0;
    double bias_reading_ = -1.0;  // mA
    int source_ = -1;
    QString drive_text_ = QStringLiteral("n/a");
    QString temperature_text_ = QStringLiteral("n/a");
    QString frequency_text_ = QStringLiteral("n/a");
};
