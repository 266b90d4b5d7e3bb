#pragma once

#include "cw_driver_base.h"

#include <memory>

namespace Ui {
class comb_laser;
}

// Panel of the comb laser driver (device type 17): a CW drive current with TEC, as the CW driver
// panels have it but without a constant-power mode, plus a reverse bias section (bias on/off, bias
// voltage, reported bias current) and the reported TEC current. The bias voltage is negative on
// the wire both ways and shown as a positive magnitude; the TEC current is reported in mA offset
// by 2500. The configuration dialog sends only on "Write".
class comb_laser : public cw_driver_base {
    Q_OBJECT
public:
    explicit comb_laser(QWidget *parent = nullptr);
    ~comb_laser() override;

    static QString model_name() { return QStringLiteral("COMB driver"); }
    static parameter_list parameter_table();

public slots:
    void on_pb_on_off_bias_clicked(bool checked);

protected:
    bool load_setpoints() override;

private:
    std::unique_ptr<Ui::comb_laser> ui;
    bool bias_on_ = false;
    double bias_voltage_ = -1.0;  // V, the magnitude
    double bias_current_ = -1.0;  // mA
    double tec_current_ = -1.0;   // A
};
