#pragma once

#include "ps_driver_base.h"

#include <QStringList>

#include <memory>

namespace Ui {
class ps28_panel;
}

// Panel of the synchronised picosecond driver (device type 28, "VTR-PS-SYNC"): the picosecond
// driver with a synchronisation block, by which several drivers share one clock (one master, the
// others slaves), a sync delay and a pulse delay, and a command that stores the settings in flash.
class ps28_panel : public ps_driver_base {
    Q_OBJECT
public:
    explicit ps28_panel(QWidget *parent = nullptr);
    ~ps28_panel() override;

    static QString model_name() { return QStringLiteral("VTR-PS-SYNC"); }

    // Codes (c writes, c + 128 reports).
    static constexpr int pulse_delay_code = 71;
    static constexpr int sync_delay_code = 72;
    static constexpr int sync_mode_code = 73;
    static constexpr int store_code = 82;
    enum sync_mode : int { normal = 0, master = 1, slave = 2 };
    // The trigger source of the external modes.
    static constexpr int external_trigger = 2;

    // "NORMAL", "MASTER", "SLAVE".
    static QStringList sync_mode_names();

public slots:
    void on_cb_sync_mode_activated(int index);
    void on_pb_save_clicked();
    void on_dsb_sync_delay_valueChanged(double arg1);
    void on_dsb_pulse_delay_valueChanged(double arg1);

protected:
    void refresh_display() override;
    bool load_setpoints() override;

private:
    // Moves a delay onto the 0.2 grid in the direction it was changed; `remembered` is the
    // delay's last value on the grid.
    static void snap_to_grid(QDoubleSpinBox *spin, double &remembered, double value);

    // Last grid value of each delay spin box, one for all panels of this type: a delay typed on
    // one driver steers the direction of the next change on any of them.
    static inline double remembered_sync_delay_ = 0;
    static inline double remembered_pulse_delay_ = 0;

    std::unique_ptr<Ui::ps28_panel> ui;
    double sync_delay_ = -1.0;
    double pulse_delay_ = -1.0;
    int sync_mode_ = -1;
};
