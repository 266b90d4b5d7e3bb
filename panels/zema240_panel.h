#pragma once

#include "zema_driver_base.h"

#include <memory>

namespace Ui {
class zema240_panel;
}

// Panel of the high-power driver with temperature control (device type 25): drive current in mA,
// a temperature set point, and the outlet temperature beside the regulated one.
class zema240_panel : public zema_driver_base {
    Q_OBJECT
public:
    explicit zema240_panel(QWidget *parent = nullptr);
    ~zema240_panel() override;

    static QString model_name() { return QStringLiteral("ZEMA-240"); }

protected:
    bool load_setpoints() override;

private:
    std::unique_ptr<Ui::zema240_panel> ui;
    double outlet_temperature_ = -1.0;  // °C
};
