#pragma once

#include "ns_driver_base.h"

#include <memory>

namespace Ui {
class ns23_panel;
}

// Panel of the nanosecond pulsed laser-diode driver (device type 23): drive current, TEC
// temperature, repetition rate, pulse duration and the five pulse modes.
class ns23_panel : public ns_driver_base {
    Q_OBJECT
public:
    explicit ns23_panel(QWidget *parent = nullptr);
    ~ns23_panel() override;

    static QString model_name() { return QStringLiteral("VTR-NS"); }

private:
    std::unique_ptr<Ui::ns23_panel> ui;
};
