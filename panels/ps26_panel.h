#pragma once

#include "ps_driver_base.h"

#include <memory>

namespace Ui {
class ps26_panel;
}

// Panel of the energy-calibrated picosecond driver (device type 26, "VTR-PS-BOX"): the picosecond
// driver whose operator sets the pulse energy. The device keeps its energy calibration (a cubic
// polynomial and the maximum energy) among its configuration rows; the drive voltage is set by
// hand only in the tuning role.
class ps26_panel : public ps_driver_base {
    Q_OBJECT
public:
    explicit ps26_panel(QWidget *parent = nullptr);
    ~ps26_panel() override;

    static QString model_name() { return QStringLiteral("VTR-PS-BOX"); }
    static parameter_list parameter_table();
    // The role this build is made for; only "tuner" shows the drive voltage set point.
    static QString role() { return QStringLiteral("Veltrano"); }

    static constexpr int energy_code = 60;
    static constexpr int max_energy_code = 61;
    // A configuration row holds this until the device reports it; -1 is a value like any other.
    static constexpr double unknown_row = 4294967295.0;

protected:
    void refresh_display() override;
    bool load_setpoints() override;

private:
    std::unique_ptr<Ui::ps26_panel> ui;
    double energy_ = -1.0;
};
