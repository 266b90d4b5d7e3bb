#pragma once

#include "ns_driver_base.h"

#include <memory>

namespace Ui {
class ns_gss_triangle_panel;
}

// Panel of the triangle-pulse nanosecond driver (device type 31): a nanosecond driver set by
// pulse voltage rather than current, with a DC bias current, a triangle rise factor and a pulse
// delay.
class ns_gss_triangle_panel : public ns_driver_base {
    Q_OBJECT
public:
    explicit ns_gss_triangle_panel(QWidget *parent = nullptr);
    ~ns_gss_triangle_panel() override;

    static QString model_name() { return QStringLiteral("VTR-NS-GSS-TR"); }
    static parameter_list parameter_table();

    enum triangle_code : int {
        bias_code = 56,         // 0.1 mA
        rise_code = 71,         // 0.01
        pulse_delay_code = 72,  // 0.1 ns
    };

protected:
    void refresh_display() override;
    bool load_setpoints() override;

private:
    std::unique_ptr<Ui::ns_gss_triangle_panel> ui;
    double rise_ = -1.0;
    double pulse_delay_ = -1.0;  // ns
};
