#pragma once

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QWidget;

// The widgets that the pulsed drivers' forms (nanosecond and picosecond families) share under the
// same object names: emission switches, the trigger mode, TEC temperature, repetition rate in
// ranges, and the burst counts. A family's own widget set adds its drive and what else it has.
struct pulse_form {
    QWidget *body = nullptr;
    QPushButton *pb_on_off = nullptr;
    QPushButton *start_stop_button_alt = nullptr;
    QComboBox *cb_mode = nullptr;
    QComboBox *cb_freq_range = nullptr;
    QCheckBox *chb_tec = nullptr;
    QDoubleSpinBox *dsb_temp = nullptr;
    QDoubleSpinBox *dsb_freq = nullptr;
    QProgressBar *i_temp = nullptr;
    QProgressBar *i_freq = nullptr;
    QLabel *l_temp_min = nullptr;
    QLabel *l_temp_max = nullptr;
    QLabel *l_freq_min = nullptr;
    QLabel *l_freq_max = nullptr;
    QLabel *l_emission_state = nullptr;
    QLabel *l_temp = nullptr;
    QLabel *l_freq = nullptr;
    QLabel *l_mode = nullptr;
    // Null on the members without burst counts.
    QDoubleSpinBox *dsb_gated_count = nullptr;
    QDoubleSpinBox *dsb_cutted_count = nullptr;
    QLabel *l_gated_count = nullptr;
    QLabel *l_cutted_count = nullptr;

    // Fills the shared widgets from a form that has them (the body is `device_widget`).
    template <class Form>
    void take(Form *ui) {
        body = ui->device_widget;
        pb_on_off = ui->pb_on_off;
        start_stop_button_alt = ui->start_stop_button_alt;
        cb_mode = ui->cb_mode;
        cb_freq_range = ui->cb_freq_range;
        chb_tec = ui->chb_tec;
        dsb_temp = ui->dsb_temp;
        dsb_freq = ui->dsb_freq;
        i_temp = ui->i_temp;
        i_freq = ui->i_freq;
        l_temp_min = ui->l_temp_min;
        l_temp_max = ui->l_temp_max;
        l_freq_min = ui->l_freq_min;
        l_freq_max = ui->l_freq_max;
        l_emission_state = ui->l_emission_state;
        l_temp = ui->l_temp;
        l_freq = ui->l_freq;
        l_mode = ui->l_mode;
    }
    // The same for the burst counts, on the forms that have them.
    template <class Form>
    void take_burst(Form *ui) {
        dsb_gated_count = ui->dsb_gated_count;
        dsb_cutted_count = ui->dsb_cutted_count;
        l_gated_count = ui->l_gated_count;
        l_cutted_count = ui->l_cutted_count;
    }
};
