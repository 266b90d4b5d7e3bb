#pragma once

#include "ns_driver_base.h"

#include <memory>

namespace Ui {
class ns_gss_id19;
}

// Panel of the nanosecond driver with a DC bias current on the diode (device type 19): the
// nanosecond driver panel plus the bias set-point, bar and reading.
class ns_gss_id19 : public ns_driver_base {
    Q_OBJECT
public:
    explicit ns_gss_id19(QWidget *parent = nullptr);
    ~ns_gss_id19() override;

    static QString model_name() { return QStringLiteral("VTR-NS-GSS"); }

    // The bias is written under 57 and reported under 185, in 0.1 mA.
    static constexpr int bias_code = 57;

private:
    std::unique_ptr<Ui::ns_gss_id19> ui;
};
