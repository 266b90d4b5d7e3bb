#pragma once

#include "can_command_factory.h"
#include "worker_thread.h"

#include <QPointer>
#include <QString>

#include <atomic>
#include <memory>

class QWidget;
class device_panel;
class panel_registry;
class serial_connector;

// One CAN address of the device table. Learns the device type, builds the panel that belongs to it,
// turns the panel's (code, value) commands into frames and the answers for its address back into
// (code, value) pairs, keeps the emission state for the main window and notices silence.
//
// The object lives in a thread of its own, where queued calls of its slots run. In the program
// nothing needs that thread per request: tick(), the panel rebuild and the composing of the
// panel's frames run in the GUI thread, and the lines of listen_to() are parsed in the serial
// link's thread. Fields read on one side and written on the other are atomic.
class device : public can_command_factory {
    Q_OBJECT
public:
    // Ticks without an accepted answer after which the next tick marks the device as lost.
    static constexpr int silence_limit = 50;
    // Request codes (sent as code + 0x80) for the device type and the second identity value.
    static constexpr int type_request_code = 0x50;
    static constexpr int identity_request_code = 0x51;
    static constexpr int type_answer_code = 0xD0;
    static constexpr int identity_answer_code = 0xD1;

    // `registry` decides which panel each type gets; the program's own by default.
    explicit device(QWidget *host, const panel_registry *registry = nullptr);
    // Deletes the panel, stops the device's thread and waits for it.
    ~device() override;

    // One step of the polling cycle for this device (GUI thread).
    void tick();

    // Takes the lines `link` receives: sl_d_data_received() runs in the link's thread as each line
    // is emitted, and passes the answers from the senders this device takes to the panel. A
    // received line thus wakes no device thread, only the GUI thread when it is an answer. The
    // device may be deleted at any time, lines arriving or not.
    void listen_to(serial_connector *link);

    int type_id() const { return type_id_.load(); }
    int previous_type_id() const { return previous_type_id_; }
    int can_id() const { return can_id_.load(); }
    void set_can_id(int id) { can_id_.store(id); }
    int identity_value() const { return identity_value_.load(); }
    void set_identity_value(int value) { identity_value_.store(value); }
    int no_answer_counter() const { return no_answer_counter_.load(); }
    int slot() const { return slot_; }
    void set_slot(int slot) { slot_ = slot; }
    int emission_state() const { return emission_state_.load(); }
    bool accept_any_sender() const { return accept_any_sender_.load(); }
    void set_accept_any_sender(bool on) { accept_any_sender_.store(on); }
    QString name() const { return name_; }
    void set_name(const QString &name) { name_ = name; }

    // The panel on show, or null (no type yet, a type without panel, or lost).
    device_panel *current_panel() const { return current_panel_.data(); }

signals:
    void sig_change_ui_widget(device *dev, int slot);
    void sig_refresh_state();
    void sig_send_command(QString frame);
    void sig_parsed_data_received(int code, long value);
    // The device's type was learned, changed, or forgotten after silence (-1); GUI thread.
    void sig_type_changed(device *dev, int type_id);

public slots:
    // Thread-safe: called in the device's thread (queued) or in the link's (listen_to()).
    void sl_d_data_received(QString line);
    void sl_w_send_command(int code, long value);
    void upd_emission_state(int state);

private:
    // What listen_to() holds of the device, shared with the link's thread.
    struct line_gate;

    void rebuild_panel();

    std::atomic<int> type_id_{-1};
    int previous_type_id_ = -1;  // GUI thread only
    std::atomic<int> can_id_{-1};
    std::atomic<int> identity_value_{8};
    std::atomic<int> no_answer_counter_{0};
    int slot_ = 0;
    std::atomic<int> emission_state_{0};
    std::atomic<bool> accept_any_sender_{false};
    QString name_;  // set by the main window before the first tick, read in the GUI thread
    QWidget *host_ = nullptr;
    QPointer<device_panel> current_panel_;
    const panel_registry *registry_ = nullptr;
    std::shared_ptr<line_gate> gate_;
    QList<QMetaObject::Connection> listening_;  // GUI thread only
    worker_thread worker_{QStringLiteral("device")};
};
