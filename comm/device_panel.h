#pragma once

#include <QString>
#include <QWidget>

#include <atomic>

// What a `device` object knows of a panel: the contract every panel class fulfils. The device sets
// the names and the CAN id source after construction and wires the signals below; the main window
// connects `sig_refresh_state()` to `sl_refresh_state()` when it places the panel.
class device_panel : public QWidget {
    Q_OBJECT
public:
    explicit device_panel(QWidget *parent = nullptr);

    // Name of the device in the device table; shown in the header and the confirmation box.
    virtual void set_display_name(const QString &name);
    QString display_name() const { return display_name_; }

    // Model string of the device type.
    virtual void set_type_name(const QString &name);
    QString type_name() const { return type_name_; }

    // The device type id the panel was made for (set by the registry that makes it; -1 before).
    void set_type_id(int type_id) { type_id_ = type_id; }
    int type_id() const { return type_id_; }

    // The owning device's live CAN id (read, for example, by the configuration dialog).
    void set_can_id_source(const std::atomic<int> *can_id) { can_id_source_ = can_id; }
    int live_can_id() const { return can_id_source_ ? can_id_source_->load() : -1; }

signals:
    void sig_dis_enabled(QWidget *widget, bool enabled);
    void send_message_window(QString title, QString text);
    void sig_w_send_command(int code, long value);
    void send_emission(int state);

public slots:
    // One tick of the polling cycle: send at most one pair.
    virtual void sl_refresh_state() = 0;
    // One accepted answer from the device: (code, value).
    virtual void sl_parsed_data_received(int code, long value) = 0;

private:
    QString display_name_;
    QString type_name_;
    int type_id_ = -1;
    const std::atomic<int> *can_id_source_ = nullptr;
};
