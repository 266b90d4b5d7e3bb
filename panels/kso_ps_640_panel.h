#pragma once

#include "ps_driver_base.h"

#include <memory>

namespace Ui {
class kso_ps_640_panel;
}

// Panel of the picosecond laser module (device type 35, "KSO-PS-640"): drive voltage, TEC
// temperature, repetition rate, internal or external trigger, emission, and an alarm word with
// named fault flags. It has no burst counts.
class kso_ps_640_panel : public ps_driver_base {
    Q_OBJECT
public:
    explicit kso_ps_640_panel(QWidget *parent = nullptr);
    ~kso_ps_640_panel() override;

    static QString model_name() { return QStringLiteral("KSO-PS-640"); }

    static constexpr int alarm_report = 176;

public slots:
    void on_pb_alarm_clicked();

private:
    std::unique_ptr<Ui::kso_ps_640_panel> ui;
};
