#pragma once

#include "zema_driver_base.h"

#include <memory>

namespace Ui {
class zema_panel;
}

// Panel of the high-power driver (device type 18): drive current in 0.01 A, four operating modes,
// input and output voltage, heat-sink temperature and the alarm word.
class zema_panel : public zema_driver_base {
    Q_OBJECT
public:
    explicit zema_panel(QWidget *parent = nullptr);
    ~zema_panel() override;

    static QString model_name() { return QStringLiteral("ZEMA-1200"); }

private:
    std::unique_ptr<Ui::zema_panel> ui;
};
