#include "device.h"

#include "device_panel.h"
#include "frame_codec.h"
#include "panel_registry.h"
#include "serial_connector.h"

#include <QDebug>
#include <QFrame>
#include <QLayout>

#include <mutex>

// The device as the link's thread sees it: null once the device is being deleted.
struct device::line_gate {
    device *owner = nullptr;
};

namespace {

// Held by the link's thread while it hands a line to a device, and by the GUI thread while it
// creates a device, makes it listen or withdraws it. So the link never touches a device being
// deleted, and what the GUI thread set up is visible to the link's thread, also to the thread
// sanitizer, which cannot see Qt's own locks. One lock for all devices: only the link's thread
// takes it while the program polls.
std::mutex gates_lock;

// Every device listening to the link is handed the same line in turn, in the link's thread; the
// fields of the last line parsed in this thread serve the next device, so a line is cut once
// however many devices there are.
const frame_codec::parsed_line &parse_once(const QString &line) {
    thread_local bool cached = false;
    thread_local QString last_line;
    thread_local frame_codec::parsed_line last;
    if (!cached || line != last_line) {
        last = frame_codec::parse(line);
        last_line = line;
        cached = true;
    }
    return last;
}

}  // namespace

device::device(QWidget *host, const panel_registry *registry)
    : host_(host),
      registry_(registry ? registry : &panel_registry::instance()),
      gate_(std::make_shared<line_gate>()) {
    {
        std::lock_guard<std::mutex> publishing(gates_lock);
        gate_->owner = this;
    }
    moveToThread(worker_.thread());
}

device::~device() {
    {
        std::lock_guard<std::mutex> withdrawing(gates_lock);
        gate_->owner = nullptr;
        for (const QMetaObject::Connection &c : qAsConst(listening_)) {
            disconnect(c);
        }
    }
    // The panel belongs to the GUI thread, as does the caller.
    delete current_panel_.data();
    worker_.stop();
}

void device::listen_to(serial_connector *link) {
    // A direct connection, so the line is handled in the link's thread as it is emitted: a queued
    // one would wake every device's thread for every line. The connection holds the gate, not the
    // device, so it outlives a deleted device harmlessly.
    std::lock_guard<std::mutex> setting_up(gates_lock);
    const std::shared_ptr<line_gate> gate = gate_;
    listening_.append(connect(
        link, &serial_connector::sig_parse_received_message, link,
        [gate](const QString &line) {
            std::lock_guard<std::mutex> handling(gates_lock);
            if (gate->owner) {
                gate->owner->sl_d_data_received(line);
            }
        },
        Qt::DirectConnection));
}

void device::tick() {
    const int id = can_id_.load();
    if (type_id_.load() == -1) {
        emit sig_send_command(compose_read_request(id, type_request_code));
    }
    if (identity_value_.load() == -1) {
        emit sig_send_command(compose_read_request(id, identity_request_code));
    } else {
        emit sig_refresh_state();
    }

    // The counter is not changed once past the limit; any accepted answer sets it back to 0.
    if (no_answer_counter_.load() > silence_limit) {
        type_id_.store(-1);
    } else {
        no_answer_counter_.fetch_add(1);
    }

    const int type = type_id_.load();
    if (type != previous_type_id_) {
        previous_type_id_ = type;
        rebuild_panel();
        emit sig_type_changed(this, type);
    }
}

void device::rebuild_panel() {
    delete current_panel_.data();
    current_panel_ = nullptr;

    device_panel *panel = registry_->create(previous_type_id_, host_);
    if (!panel) {
        return;
    }
    current_panel_ = panel;
    panel->set_can_id_source(&can_id_);
    panel->set_display_name(name_);

    connect(this, &device::sig_parsed_data_received, panel, &device_panel::sl_parsed_data_received);
    // Direct: the panel's frame is composed in the GUI thread, where the panel sends it, and goes
    // to the serial link in one queued hop instead of two; the emission state is an atomic store.
    // Neither touches anything of the device's thread.
    connect(panel, &device_panel::sig_w_send_command, this, &device::sl_w_send_command,
            Qt::DirectConnection);
    connect(panel, &device_panel::send_emission, this, &device::upd_emission_state,
            Qt::DirectConnection);
    emit sig_change_ui_widget(this, slot_);

    if (panel->layout()) {
        auto *line = new QFrame(panel);
        line->setFrameShape(QFrame::HLine);
        line->setFrameShadow(QFrame::Sunken);
        panel->layout()->addWidget(line);
    }
    panel->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void device::sl_d_data_received(QString line) {
    const frame_codec::parsed_line frame = parse_once(line);
    if (!frame.is_frame ||
        !frame_codec::accepts(frame.sender, can_id_.load(), accept_any_sender_.load())) {
        return;
    }
    no_answer_counter_.store(0);
    if (frame.code == type_answer_code) {
        if (frame.value != 0) {
            type_id_.store(frame.value);
        } else {
            qDebug() << "dev_type = 0";
        }
    } else if (frame.code == identity_answer_code) {
        identity_value_.store(frame.value);
    }
    emit sig_parsed_data_received(frame.code, frame.value);
}

void device::sl_w_send_command(int code, long value) {
    emit sig_send_command(compose_write_frame(can_id_.load(), code, frame_codec::to_wire(value)));
}

void device::upd_emission_state(int state) {
    emission_state_.store(state);
}
