#pragma once

#include "cw_driver_base.h"

#include <QStringList>

#include <memory>

namespace Ui {
class cw_panel;
}

// Panel of the continuous-wave laser-diode drivers (device types 14, 34 and 38): drive current or
// optical power, TEC temperature and switch, operating mode, emission, alarms, and the driver's
// stored parameters.
class cw_panel : public cw_driver_base {
    Q_OBJECT
public:
    explicit cw_panel(QWidget *parent = nullptr);
    ~cw_panel() override;

    // Model strings of the device types this panel serves, picked by position.
    static QStringList model_list();
    // The full parameter list; some device types lose entries after construction.
    static parameter_list parameter_table();

    // Shows or hides the operating mode selector with its captions (drivers without modes).
    void set_mode_widgets_visible(bool visible);

public slots:
    void on_pb_alarm_clicked();

private:
    std::unique_ptr<Ui::cw_panel> ui;
};
