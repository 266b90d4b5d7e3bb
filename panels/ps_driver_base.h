#pragma once

#include "panel_base.h"
#include "pulse_form.h"

#include <QStringList>
#include <QVector>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QProgressBar;
class QPushButton;

// What the picosecond driver panels have in common (`ps20_panel`, the energy-calibrated
// `ps26_panel`, the synchronised `ps28_panel` and the laser module `kso_ps_640_panel`): drive
// voltage, TEC temperature, a repetition rate set in one of three ranges, the trigger mode,
// emission, and the ten configuration rows that bound voltage and temperature. The members differ
// in their poll lists, mode tables and emission codes, in a few bars and limits, and in what they
// add: burst counts, pulse energy, synchronisation, an alarm word.
class ps_driver_base : public panel_base {
    Q_OBJECT
public:
    // Codes (c writes, c + 128 reports).
    enum code : int {
        temperature_code = 18,
        voltage_code = 24,
        frequency_code = 25,
        tec_code = 33,
        source_code = 36,  // trigger source
        gated_count_code = 52,
        cut_count_code = 53,  // the driver bursts while it is non-zero
        frequency_report = 153,
    };

    // Trigger source on which the rate is not the panel's to set: pulse on demand on the drivers,
    // the external trigger on the module.
    static constexpr int source_without_rate = 1;

    // Items of `cb_freq_range`, the unit of `dsb_freq`.
    enum freq_range : int { hz_range = 0, khz_range = 1, mhz_range = 2 };

    // Positions of the limit rows in the driver rows.
    enum limit_row : int {
        voltage_max = 1,
        voltage_min = 2,
        temperature_max = 3,
        temperature_min = 4,
    };

    // An item of the mode selector: the trigger source it sets and the cut count it sends after
    // it (1 enters burst, 0 leaves it; -1 sends none).
    struct mode_entry {
        QString name;
        int source;
        int cut;
    };

    // The widgets of the form, by role: the shared pulse form and the drive voltage.
    struct widgets : pulse_form {
        QDoubleSpinBox *dsb_volt = nullptr;
        QProgressBar *i_voltage = nullptr;
        QLabel *l_volt_min = nullptr;
        QLabel *l_volt_max = nullptr;
        QLabel *l_volt = nullptr;
    };

    // How a member behaves inside the shared parts.
    struct traits {
        int emission_report = 160;
        QVector<int> emission_writes{32, 34};  // queued in this order by either switch
        QVector<mode_entry> modes = burst_modes();
        double mhz_maximum = 30.0;  // top of the "MHz" range
        // A bar shows (reading - minimum) / span, or else the reading over the span alone.
        bool voltage_bar_from_minimum = false;
        bool temperature_bar_from_minimum = true;
        // Limit rows found by their codes instead of their positions.
        bool rows_by_code = false;
    };

    // The widgets of a form that uses the family's object names.
    template <class Form>
    static widgets widgets_of(Form *ui) {
        widgets form;
        form.take(ui);
        form.dsb_volt = ui->dsb_volt;
        form.i_voltage = ui->i_voltage;
        form.l_volt_min = ui->l_volt_min;
        form.l_volt_max = ui->l_volt_max;
        form.l_volt = ui->l_volt;
        return form;
    }
    // The same with the burst count widgets of the drivers that have them.
    template <class Form>
    static widgets burst_widgets_of(Form *ui) {
        widgets form = widgets_of(ui);
        form.take_burst(ui);
        return form;
    }

    // The drivers' five modes: internal or external trigger, each normal or burst, and pulse on
    // demand.
    static QVector<mode_entry> burst_modes();
    // The configuration rows every member has, in this order.
    static parameter_list driver_rows();

    double voltage() const { return voltage_; }
    double temperature() const { return temperature_; }
    double frequency() const { return frequency_; }
    int source() const { return source_; }

public slots:
    void on_pb_on_off_clicked(bool checked);
    void on_chb_tec_clicked(bool checked);
    void on_cb_mode_activated(int index);
    // Selects the range and fits `dsb_freq` to it; an index outside the three ranges changes
    // nothing else.
    void on_cb_freq_range_activated(int index);

protected:
    explicit ps_driver_base(QWidget *parent);

    // Binds the form's widgets and the codes common to the family.
    void setup_driver(const widgets &form, const traits &member, const poll_plan &plan,
                      const parameter_list &parameters);

    void refresh_display() override;
    bool load_setpoints() override;
    QString header_summary() const override;

    // Value of a limit row, by position or by code as the member finds its rows.
    double limit(limit_row row) const;
    // Sets `spin`'s limits from configuration rows that are known and not negative; when they
    // change, the spin box is set back to `reading` (if known).
    void apply_limits(QDoubleSpinBox *spin, QLabel *max_label, QLabel *min_label, double high,
                      double low, int decimals, double reading) const;
    // A bar of `reading` between the rows `low` and `high`: from the minimum, or the reading over
    // the span alone.
    void show_share(QProgressBar *bar, double reading, double low, double high,
                    bool from_minimum) const;
    // Sizes a label once for the widest of the names it shows.
    static void reserve_widest(QLabel *label, const QStringList &texts);
    // Loads a set-point spin box from a reading; false while the reading is unknown.
    static bool load(QDoubleSpinBox *spin, double reading);

private:
    // The mode name for the reported source and cut count; empty for a source without a name.
    QString mode_name() const;
    void confirm_frequency();
    // Text of the rate in the unit that suits it: "999 Hz", "1 kHz", "2.5 MHz".
    static QString frequency_text(double hz);

    widgets w_;
    traits t_;
    double voltage_ = -1.0;      // V
    double temperature_ = -1.0;  // °C
    double frequency_ = -1.0;    // Hz
    double gated_count_ = -1.0;  // N
    double cut_count_ = -1.0;    // M
    int source_ = -1;
    QString voltage_text_ = QStringLiteral("n/a");
    QString temperature_text_ = QStringLiteral("n/a");
    QString frequency_text_ = QStringLiteral("n/a");
};
