#pragma once

#include "zema_driver_base.h"

#include <memory>

namespace Ui {
class zema120_panel;
}

// Panel of the compact high-power driver (device type 27): the high-power driver without operating
// modes, whose configuration rows are written only by the dialog's "Write".
class zema120_panel : public zema_driver_base {
    Q_OBJECT
public:
    explicit zema120_panel(QWidget *parent = nullptr);
    ~zema120_panel() override;

    static QString model_name() { return QStringLiteral("ZEMA-120 driver"); }

private:
    std::unique_ptr<Ui::zema120_panel> ui;
};
