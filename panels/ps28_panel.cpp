#include "ps28_panel.h"

#include "message_route.h"
#include "ui_ps28_panel.h"

#include <QSignalBlocker>
#include <QStandardItemModel>

ps28_panel::ps28_panel(QWidget *parent) : ps_driver_base(parent), ui(new Ui::ps28_panel) {
    ui->setupUi(this);

    poll_plan plan;
    plan.read_codes = {160,
                       152,
                       146,
                       153,
                       poll_plan::silent,
                       180,
                       181,
                       164,
                       161,
                       sync_mode_code + 128,
                       sync_delay_code + 128,
                       pulse_delay_code + 128};
    setup_driver(burst_widgets_of(ui.get()), traits{}, plan, driver_rows());

    // The delays are plain numbers, in the device's own unit.
    bind_state(sync_mode_code + 128, &sync_mode_, "sync_mode", tr("Sync mode"),
               [](int mode) { return sync_mode_names().value(mode, QString::number(mode)); });
    describe_command(sync_mode_code, "sync_mode", tr("Sync mode"), {}, 1);
    bind_reading({"sync_delay", sync_delay_code + 128, tr("Sync delay"), {}, 10, 1}, &sync_delay_,
                 ui->l_sync_delay);
    bind_reading({"pulse_delay", pulse_delay_code + 128, tr("Pulse delay"), {}, 10, 1},
                 &pulse_delay_, ui->l_pulse_delay);
    bind_setpoint(ui->dsb_pulse_delay, pulse_delay_code, 10);
    bind_setpoint(ui->dsb_sync_delay, sync_delay_code, 10);
    // Turning the wheel over the sync mode would ask to make this driver a master or a slave.
    block_wheel(ui->cb_sync_mode);
    ui->cb_sync_mode->addItems(sync_mode_names());
    reserve_widest(ui->l_sync_mode, sync_mode_names());

    finish_setup(ui->device_widget);
}

ps28_panel::~ps28_panel() = default;

QStringList ps28_panel::sync_mode_names() {
    return {QStringLiteral("NORMAL"), QStringLiteral("MASTER"), QStringLiteral("SLAVE")};
}

void ps28_panel::on_cb_sync_mode_activated(int index) {
    // A master clocks its slaves, and a slave waits for a clock: both halt a driver that is set up
    // wrongly until it is rebooted, so they are asked for.
    QString warning;
    if (index == master) {
        warning =
            tr("Make sure your slave device is set to SLAVE mode, otherwise it may cause the "
               "slave device to be halted until hardware reboot. Continue?");
    } else if (index == slave) {
        warning =
            tr("Slave mode could cause device halt until MASTER device clock signal be "
               "applied. Continue?");
    }
    if (!warning.isEmpty() && !confirm(this, tr("Conformation"), warning)) {
        return;
    }
    queue_command(sync_mode_code, index);
}

void ps28_panel::on_pb_save_clicked() {
    if (confirm(this, tr("Conformation"),
                tr("Store SYNC parameters with all config data to FLASH?"))) {
        queue_command(store_code, 0);
    }
}

void ps28_panel::on_dsb_sync_delay_valueChanged(double arg1) {
    snap_to_grid(ui->dsb_sync_delay, remembered_sync_delay_, arg1);
}

void ps28_panel::on_dsb_pulse_delay_valueChanged(double arg1) {
    snap_to_grid(ui->dsb_pulse_delay, remembered_pulse_delay_, arg1);
}

void ps28_panel::snap_to_grid(QDoubleSpinBox *spin, double &remembered, double value) {
    if (static_cast<long long>(value * 10) % 2 != 0) {
        value += value > remembered ? 0.1 : -0.1;
    }
    remembered = value;
    // Re-enters once with the value on the grid, which stays.
    spin->setValue(value);
}

void ps28_panel::refresh_display() {
    ps_driver_base::refresh_display();
    if (sync_mode_ >= 0) {
        show_text(ui->l_sync_mode,
                  sync_mode_names().value(sync_mode_, QString::number(sync_mode_)));
    }
    // A slave fires on its master's clock, which reaches it as an external trigger: only the
    // external modes can be chosen then.
    auto *items = qobject_cast<QStandardItemModel *>(ui->cb_mode->model());
    const QVector<mode_entry> modes = burst_modes();
    for (int i = 0; items && i < modes.size(); ++i) {
        const bool allowed = sync_mode_ != slave || modes[i].source == external_trigger;
        QStandardItem *item = items->item(i);
        if (item && item->isEnabled() != allowed) {
            item->setEnabled(allowed);
        }
    }
}

bool ps28_panel::load_setpoints() {
    const bool driver = ps_driver_base::load_setpoints();
    // Loaded as the device has them, off the grid if need be: nothing moves them before the
    // operator does.
    const QSignalBlocker sync_blocker(ui->dsb_sync_delay);
    const QSignalBlocker pulse_blocker(ui->dsb_pulse_delay);
    bool complete = load(ui->dsb_sync_delay, sync_delay_) && driver;
    complete = load(ui->dsb_pulse_delay, pulse_delay_) && complete;
    if (sync_mode_ >= 0 && sync_mode_ < ui->cb_sync_mode->count()) {
        ui->cb_sync_mode->setCurrentIndex(sync_mode_);
    } else {
        complete = false;
    }
    return complete;
}
