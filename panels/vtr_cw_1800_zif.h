#pragma once

#include "cw_driver_base.h"

#include <memory>

namespace Ui {
class vtr_cw_1800_zif;
}

// Panel of the precision CW driver (device type 15): the CW driver panel with finer resolution.
// The current is written in 0.01 mA and reported in 0.0001 mA, the temperature travels in
// 0.0001 °C, values are shown with 2 decimals, and there is no alarm display.
class vtr_cw_1800_zif : public cw_driver_base {
    Q_OBJECT
public:
    explicit vtr_cw_1800_zif(QWidget *parent = nullptr);
    ~vtr_cw_1800_zif() override;

    static QString model_name() { return QStringLiteral("VTR-CW-1800H precision"); }
    static parameter_list parameter_table();

private:
    std::unique_ptr<Ui::vtr_cw_1800_zif> ui;
};
