#pragma once

#include "broker_link.h"
#include "device_sample.h"
#include "repeat_filter.h"

#include <QHash>
#include <QObject>
#include <QString>

#include <memory>

class worker_thread;

// Publishes what the devices report to an MQTT broker (topics and payloads: broker_message.h).
// Readings and states follow the recorder's policy: published on change, and again every
// `steady_repeat_ms` while unchanged. The bus state, each device's identity and its alarms are
// retained messages, sent again on every connection.
//
// Nothing here waits for the network: samples are filtered on the GUI thread and go into a
// bounded queue (the oldest are dropped, and counted, when the broker is slow or away); the
// connection lives in a thread of its own (broker_link) that reconnects by itself. Nothing the
// broker sends reaches a device: the link subscribes to nothing.
class publisher : public QObject {
    Q_OBJECT
public:
    static constexpr qint64 steady_repeat_ms = 10000;
    static constexpr std::size_t queue_capacity = 10000;

    explicit publisher(QObject *parent = nullptr);
    // Says "offline", closes the connection and stops the link's thread.
    ~publisher() override;

    // Connects to the broker and publishes from now on; the outcome arrives as sig_connected()
    // or sig_disconnected().
    void start(const broker_options &options);
    void stop();
    bool running() const { return link_ != nullptr; }
    // Samples dropped so far because the queue was full, handed to the connection, and waiting.
    quint64 dropped() const;
    quint64 published() const;
    std::size_t waiting() const;

public slots:
    void take(const device_sample &sample);
    void set_bus(bool connected);
    // A device's type was learned (`type_id` >= 0, its model `model`) or the device fell silent
    // (`type_id` -1).
    void set_device(int can_id, const QString &name, int type_id, const QString &model);

signals:
    void sig_connected(const QString &broker);
    // `why` the broker is not connected; `retry_ms` until the next attempt, 0 for none.
    void sig_disconnected(const QString &why, int retry_ms);

private:
    struct device_info {
        QString name;
        QString model;
        int type_id = -1;
    };

    void retain(const QByteArray &topic, const QByteArray &payload);
    void push(const device_sample &sample);

    QByteArray root_;
    QString broker_;
    repeat_filter steady_{steady_repeat_ms};
    QHash<int, QString> alarms_;  // the alarm text last published, per CAN ID
    QHash<int, device_info> devices_;
    std::unique_ptr<publish_queue> queue_;
    std::unique_ptr<worker_thread> thread_;
    broker_link *link_ = nullptr;  // lives in thread_
};
