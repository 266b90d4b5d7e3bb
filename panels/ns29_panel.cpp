#include "ns29_panel.h"

#include "message_route.h"
#include "ui_ns29_panel.h"

#include <QStandardItemModel>

ns29_panel::ns29_panel(QWidget *parent)
    : ns_driver_base(parent, current_drive(5000000, 5)), ui(new Ui::ns29_panel) {
    ui->setupUi(this);
    setup_driver(current_widgets_of(ui.get()),
                 {sync_mode_code + 128, sync_delay_code + 128, pulse_delay_code + 128},
                 current_driver_parameters());
    bind_reading({"sync_delay", sync_delay_code + 128, tr("Sync delay"), tr("ns"), 10, 1, 2},
                 &sync_delay_, ui->l_sync_delay);
    bind_reading({"pulse_delay", pulse_delay_code + 128, tr("Pulse delay"), tr("ns"), 10, 1, 2},
                 &pulse_delay_, ui->l_pulse_delay);
    bind_state(sync_mode_code + 128, &sync_mode_, "sync_mode", tr("Sync mode"),
               [](int mode) { return sync_mode_names().value(mode, QString::number(mode)); });
    describe_command(sync_mode_code, "sync_mode", tr("Sync mode"), {}, 1);
    bind_setpoint(ui->dsb_pulse_delay, pulse_delay_code, 10);
    bind_setpoint(ui->dsb_sync_delay, sync_delay_code, 10);
    block_wheel(ui->cb_sync_mode);
    finish_setup(ui->device_widget);
}

ns29_panel::~ns29_panel() = default;

QStringList ns29_panel::sync_mode_names() {
    return {tr("NORMAL"), tr("MASTER"), tr("SLAVE")};
}

void ns29_panel::on_cb_sync_mode_activated(int index) {
    QString question;
    if (index == master) {
        question =
            tr("Make sure your slave device is set to SLAVE mode, otherwise it may cause the slave "
               "device to be halted until hardware reboot. Continue?");
    } else if (index == slave) {
        question =
            tr("Slave mode could cause device halt until MASTER device clock signal be applied. "
               "Continue?");
    } else if (index != normal) {
        return;
    }
    if (!question.isEmpty() && !confirm(this, tr("Conformation"), question)) {
        // Nothing changes: show the mode the device is in again.
        if (sync_mode_ >= normal && sync_mode_ <= slave) {
            ui->cb_sync_mode->setCurrentIndex(sync_mode_);
        }
        return;
    }
    queue_command(sync_mode_code, index);
}

void ns29_panel::on_pb_save_clicked() {
    if (confirm(this, tr("Conformation"),
                tr("Store SYNC parameters with all config data to FLASH?"))) {
        queue_command(store_code, 0);
    }
}

void ns29_panel::on_dsb_sync_delay_valueChanged(double value) {
    keep_on_grid(ui->dsb_sync_delay, value, previous_sync_delay_);
}

void ns29_panel::on_dsb_pulse_delay_valueChanged(double value) {
    keep_on_grid(ui->dsb_pulse_delay, value, previous_pulse_delay_);
}

void ns29_panel::refresh_display() {
    ns_driver_base::refresh_display();
    if (sync_mode_ >= normal && sync_mode_ <= slave) {
        if (ui->cb_sync_mode->currentIndex() != sync_mode_) {
            ui->cb_sync_mode->setCurrentIndex(sync_mode_);
        }
        show_text(ui->l_sync_mode, sync_mode_names().at(sync_mode_));
        // Synchronised drivers pulse only in "Int: Normal" and "Pulse on Demand".
        if (auto *modes = qobject_cast<QStandardItemModel *>(ui->cb_mode->model())) {
            for (int item : {int_burst, ext_normal, ext_burst}) {
                QStandardItem *entry = modes->item(item);
                if (entry && entry->isEnabled() != (sync_mode_ == normal)) {
                    entry->setEnabled(sync_mode_ == normal);
                }
            }
        }
        ui->dsb_sync_delay->setEnabled(sync_mode_ != master);
        ui->dsb_pulse_delay->setEnabled(sync_mode_ == slave);
    }
    const int mode = reported_mode();
    const bool unsynchronisable = mode == int_burst || mode == ext_normal || mode == ext_burst;
    ui->cb_sync_mode->setEnabled(!unsynchronisable && !emission_on());
}

bool ns29_panel::load_setpoints() {
    bool complete = ns_driver_base::load_setpoints();
    complete &= load(ui->dsb_sync_delay, sync_delay_);
    complete &= load(ui->dsb_pulse_delay, pulse_delay_);
    return complete;
}
