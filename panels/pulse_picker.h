#pragma once

#include "panel_base.h"

#include <memory>

namespace Ui {
class pulse_picker;
}

// Panel of the pulse picker accessory (device type 5), which passes, blocks or thins out a pulse
// train: its modes close or open the gate, divide the repetition rate or cut bursts. It has no
// emission switch, no alarm display and no configuration dialog; its CAN ID is read all the same.
class pulse_picker : public panel_base {
    Q_OBJECT
public:
    explicit pulse_picker(QWidget *parent = nullptr);
    ~pulse_picker() override;

    static QString model_name() { return QStringLiteral("Pulse Picker"); }

public slots:
    void on_mode_activated(int index);

protected:
    void refresh_display() override;
    bool load_setpoints() override;
    QString header_summary() const override;

private:
    // The device numbers "Open" 0 and "Close" 1, the combo the other way round: the combo item
    // of a device mode and the device mode of an item are the same exchange.
    static int swap_open_close(int mode);
    QString mode_text(int mode) const;

    std::unique_ptr<Ui::pulse_picker> ui;
    double level_ = -1.0;      // output level, % (the device reports 8192 for 0 % and 0 for 100 %)
    double divider_ = -1.0;    // divide ratio
    double gated_ = -1.0;      // pulses passed per burst
    double cut_ = -1.0;        // pulses skipped per burst
    double frequency_ = -1.0;  // output repetition rate, kHz
    int mode_ = -1;            // as the device numbers it
    QString level_text_ = QStringLiteral("n/a");
    QString divider_text_ = QStringLiteral("n/a");
};
