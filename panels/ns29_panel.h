#pragma once

#include "ns_driver_base.h"

#include <memory>

namespace Ui {
class ns29_panel;
}

// Panel of the synchronised nanosecond driver (device type 29): the nanosecond driver panel with a
// synchronisation port. Two drivers can be coupled, one as MASTER supplying the clock and one as
// SLAVE following it, with a synchronisation delay and a pulse delay; the synchronisation settings
// are stored to the device's flash on request.
class ns29_panel : public ns_driver_base {
    Q_OBJECT
public:
    explicit ns29_panel(QWidget *parent = nullptr);
    ~ns29_panel() override;

    static QString model_name() { return QStringLiteral("VTR-NS-SYNC"); }

    enum sync_code : int {
        pulse_delay_code = 71,  // 0.1 ns, may be negative
        sync_delay_code = 72,   // 0.1 ns, may be negative
        sync_mode_code = 73,
        store_code = 82,  // stores every configuration value in flash
    };
    enum sync_mode : int { normal, master, slave };

    // Items of `cb_sync_mode`.
    static QStringList sync_mode_names();

public slots:
    void on_cb_sync_mode_activated(int index);
    void on_pb_save_clicked();
    void on_dsb_sync_delay_valueChanged(double value);
    void on_dsb_pulse_delay_valueChanged(double value);

protected:
    void refresh_display() override;
    bool load_setpoints() override;

private:
    std::unique_ptr<Ui::ns29_panel> ui;
    double sync_delay_ = -1.0;   // ns
    double pulse_delay_ = -1.0;  // ns
    int sync_mode_ = -1;
    // The last value kept on the 0.2 ns grid, per delay.
    double previous_sync_delay_ = 0;
    double previous_pulse_delay_ = 0;
};
