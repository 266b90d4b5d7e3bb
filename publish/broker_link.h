#pragma once

#include "broker_url.h"
#include "device_sample.h"
#include "record_format.h"

#include <QByteArray>
#include <QObject>
#include <QString>

#include <atomic>
#include <deque>
#include <map>
#include <mutex>
#include <set>

class QSocketNotifier;
class QTimer;
struct mosquitto;

// How the publisher reaches its broker.
struct broker_options {
    broker_address address;
    QByteArray root;  // "lumivox/<station>"
    QString client_id;
    QString user;      // empty: no login
    QString password;
    QString ca_file;   // TLS: the certificate authority to trust; empty: the system's
    int keepalive_s = 30;
};

// What the publisher hands to its link: samples to publish in order (bounded: when the broker is
// slow or away, the oldest go and are counted) and the retained messages, latest per topic. Guarded
// by a lock of the standard library rather than passed with queued calls, so that the hand-over is
// visible to the thread sanitizer.
struct publish_queue {
    std::mutex lock;
    broker_options options;
    std::deque<device_sample> samples;
    std::map<QByteArray, QByteArray> retained;  // topic -> payload
    std::set<QByteArray> changed;               // retained topics not yet published
    bool wake_posted = false;  // a wake() is on its way, or the link waits to drain
    std::atomic<quint64> dropped{0};
    std::atomic<quint64> published{0};  // samples handed to the connection
};

// The publisher's other half, living in a thread of its own: one connection to the broker through
// libmosquitto, driven by the thread's event loop (the socket is watched, nothing polls). Connects
// with a last will of "offline" on the status topic, says "online" and republishes every retained
// message on each connection, publishes the queued samples while the socket keeps up, and when
// the connection fails or drops tries again after 1, 2, 4 ... 30 s. Subscribes to nothing.
class broker_link : public QObject {
    Q_OBJECT
public:
    static constexpr int first_retry_ms = 1000;
    static constexpr int last_retry_ms = 30000;
    // A connection not accepted within this time is given up and tried again.
    static constexpr int connect_timeout_ms = 10000;
    // Waited at most at the end for "offline" and the goodbye to leave.
    static constexpr int goodbye_ms = 2000;
    // What the publisher queues is gathered this long before it is published: the thread wakes a
    // few times a second at full rate instead of once a sample.
    static constexpr int gather_ms = 250;

    explicit broker_link(publish_queue &queue);
    ~broker_link() override;

    // Reads the options from the queue and makes the first connection attempt.
    void start();
    // Something was queued: published within gather_ms.
    void wake();
    // Publishes what the queue holds, as far as the connection takes it now.
    void drain();
    // The clean end: "offline" on the status topic, then the connection is closed.
    void finish();

signals:
    void sig_connected();
    // Not connected (any more): `why` says why; `retry_ms` until the next attempt, 0 for none.
    void sig_disconnected(const QString &why, int retry_ms);

private:
    static void on_connect(mosquitto *client, void *self, int code);
    static void on_publish(mosquitto *client, void *self, int mid);
    static void on_log(mosquitto *client, void *self, int level, const char *text);

    void attempt();
    void watch_socket();
    void forget_socket();
    void after_io(int code);
    void lost(const QString &why);
    void connection_up();
    bool publish(const QByteArray &topic, const QByteArray &payload, int qos, bool retain);
    QString describe(int code) const;

    publish_queue &queue_;
    broker_options options_;
    mosquitto *client_ = nullptr;
    QSocketNotifier *reader_ = nullptr;
    QSocketNotifier *writer_ = nullptr;
    QTimer *misc_timer_ = nullptr;
    QTimer *retry_timer_ = nullptr;
    QTimer *connect_timer_ = nullptr;
    QTimer *gather_timer_ = nullptr;
    int retry_ms_ = first_retry_ms;
    bool connected_ = false;
    bool accepted_ = false;    // set by on_connect for the current attempt
    int refused_code_ = 0;     // the broker's refusal, 0 if none
    QString last_error_;       // the library's last error message
    int goodbye_mid_ = -1;     // the message id of the last "offline"
    bool goodbye_acked_ = false;
    record_format::time_writer times_;
};
