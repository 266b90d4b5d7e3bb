#pragma once

#include "ps_driver_base.h"

#include <memory>

namespace Ui {
class ps20_panel;
}

// Panel of the picosecond pulsed laser-diode driver (device type 20, "VTR-PS"): drive voltage,
// TEC temperature, repetition rate, trigger mode with burst counts, emission and the driver's
// stored parameters.
class ps20_panel : public ps_driver_base {
    Q_OBJECT
public:
    explicit ps20_panel(QWidget *parent = nullptr);
    ~ps20_panel() override;

    static QString model_name() { return QStringLiteral("VTR-PS"); }

private:
    std::unique_ptr<Ui::ps20_panel> ui;
};
