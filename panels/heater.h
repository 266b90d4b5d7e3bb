#pragma once

#include "panel_base.h"

#include <memory>

namespace Ui {
class heater;
}

// Panel of the heater accessory (device type 4): the heater switched on and off, one temperature
// set-point and the reported temperature. Both switches send the opposite of the state the heater
// last reported, whatever they show when clicked. The configuration dialog sends only on "Write",
// which is not followed by a store command.
class heater : public panel_base {
    Q_OBJECT
public:
    explicit heater(QWidget *parent = nullptr);
    ~heater() override;

    static QString model_name() { return QStringLiteral("Heater"); }

public slots:
    void on_on_off_button_clicked(bool checked);

protected:
    bool load_setpoints() override;
    QString header_summary() const override;
    void emission_switch_clicked(bool checked) override;

private:
    std::unique_ptr<Ui::heater> ui;
    bool heater_on_ = false;
    double temperature_ = -1.0;  // °C
};
