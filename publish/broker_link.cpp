#include "broker_link.h"

#include "broker_message.h"

#include <QElapsedTimer>
#include <QFile>
#include <QSocketNotifier>
#include <QTimer>

#include <mosquitto.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <vector>

namespace {

constexpr int qos_samples = 0;  // a lost sample is followed by the next one
constexpr int qos_retained = 1;

// Taken at the end of the constructor (in the publisher's GUI thread) and at the start of start()
// in the link's thread: what the constructor wrote is seen to happen before, also by the thread
// sanitizer, which cannot see the hand-over inside Qt's event queue.
std::mutex construction;

}  // namespace

broker_link::broker_link(publish_queue &queue) : queue_(queue) {
    std::lock_guard<std::mutex> published(construction);
}

broker_link::~broker_link() {
    if (client_) {
        forget_socket();
        mosquitto_destroy(client_);
    }
}

void broker_link::start() {
    { std::lock_guard<std::mutex> seen(construction); }
    {
        std::lock_guard<std::mutex> hold(queue_.lock);
        options_ = queue_.options;
    }
    misc_timer_ = new QTimer(this);
    misc_timer_->setInterval(1000);
    connect(misc_timer_, &QTimer::timeout, this, [this] { after_io(mosquitto_loop(client_, 0, 1)); });
    retry_timer_ = new QTimer(this);
    retry_timer_->setSingleShot(true);
    connect(retry_timer_, &QTimer::timeout, this, &broker_link::attempt);
    connect_timer_ = new QTimer(this);
    connect_timer_->setSingleShot(true);
    connect_timer_->setInterval(connect_timeout_ms);
    connect(connect_timer_, &QTimer::timeout, this, [this] {
        lost(tr("no answer from the broker at %1 within %2 s")
                 .arg(broker_url::text(options_.address))
                 .arg(connect_timeout_ms / 1000));
    });

    gather_timer_ = new QTimer(this);
    gather_timer_->setSingleShot(true);
    gather_timer_->setInterval(gather_ms);
    connect(gather_timer_, &QTimer::timeout, this, &broker_link::drain);

    client_ = mosquitto_new(options_.client_id.toUtf8().constData(), true, this);
    if (!client_) {
        emit sig_disconnected(tr("cannot set up the broker connection (%1)")
                                  .arg(QString::fromLocal8Bit(std::strerror(errno))),
                              0);
        return;
    }
    mosquitto_int_option(client_, MOSQ_OPT_PROTOCOL_VERSION, MQTT_PROTOCOL_V311);
    mosquitto_connect_callback_set(client_, &broker_link::on_connect);
    mosquitto_log_callback_set(client_, &broker_link::on_log);
    const QByteArray status = broker_message::status_topic(options_.root);
    mosquitto_will_set(client_, status.constData(), 7, "offline", qos_retained, true);
    if (!options_.user.isEmpty()) {
        mosquitto_username_pw_set(client_, options_.user.toUtf8().constData(),
                                  options_.password.isEmpty()
                                      ? nullptr
                                      : options_.password.toUtf8().constData());
    }
    if (options_.address.tls) {
        const QByteArray ca_file = QFile::encodeName(options_.ca_file);
        const int code = ca_file.isEmpty()
                             ? mosquitto_tls_set(client_, nullptr, "/etc/ssl/certs", nullptr,
                                                 nullptr, nullptr)
                             : mosquitto_tls_set(client_, ca_file.constData(), nullptr, nullptr,
                                                 nullptr, nullptr);
        if (code != MOSQ_ERR_SUCCESS) {
            emit sig_disconnected(
                tr("cannot use the certificate authority file \"%1\" for the broker (%2)")
                    .arg(options_.ca_file, QString::fromUtf8(mosquitto_strerror(code))),
                0);
            mosquitto_destroy(client_);
            client_ = nullptr;
            return;
        }
    }
    attempt();
}

void broker_link::attempt() {
    forget_socket();
    connected_ = false;
    accepted_ = false;
    refused_code_ = 0;
    last_error_.clear();
    const QByteArray host = options_.address.host.toUtf8();
    // Closes what is left of the previous connection first. The name is looked up here (in this
    // thread); the connection itself completes while the event loop runs.
    const int code =
        mosquitto_connect_async(client_, host.constData(), options_.address.port,
                                options_.keepalive_s);
    const int error = errno;
    if (code != MOSQ_ERR_SUCCESS) {
        errno = error;
        lost(tr("cannot reach the broker at %1: %2")
                 .arg(broker_url::text(options_.address), describe(code)));
        return;
    }
    watch_socket();
    connect_timer_->start();
}

void broker_link::watch_socket() {
    const int socket = mosquitto_socket(client_);
    if (socket < 0) {
        return;
    }
    // Every event goes through the library's own loop with a zero wait: it knows whether the
    // socket is still connecting, in a TLS handshake, or carrying packets.
    const auto step = [this] { after_io(mosquitto_loop(client_, 0, 1)); };
    reader_ = new QSocketNotifier(socket, QSocketNotifier::Read, this);
    connect(reader_, &QSocketNotifier::activated, this, step);
    writer_ = new QSocketNotifier(socket, QSocketNotifier::Write, this);
    writer_->setEnabled(mosquitto_want_write(client_));
    connect(writer_, &QSocketNotifier::activated, this, step);
    misc_timer_->start();
}

void broker_link::forget_socket() {
    // The library closes the socket itself; the notifiers must not outlive it in the event loop.
    for (QSocketNotifier *notifier : {reader_, writer_}) {
        if (notifier) {
            notifier->setEnabled(false);
            notifier->deleteLater();
        }
    }
    reader_ = nullptr;
    writer_ = nullptr;
    if (misc_timer_) {
        misc_timer_->stop();
    }
}

void broker_link::after_io(int code) {
    const int error = errno;
    if (!reader_) {
        return;  // between attempts
    }
    if (accepted_ && !connected_) {
        connection_up();
        if (!reader_) {
            return;  // lost again while saying hello
        }
    }
    if (code != MOSQ_ERR_SUCCESS || mosquitto_socket(client_) < 0) {
        errno = error;
        const QString url = broker_url::text(options_.address);
        if (refused_code_ != 0) {
            lost(tr("the broker at %1 refused the connection: %2")
                     .arg(url, QString::fromUtf8(mosquitto_connack_string(refused_code_))));
        } else if (connected_) {
            lost(tr("lost the connection to the broker at %1: %2").arg(url, describe(code)));
        } else {
            lost(tr("cannot reach the broker at %1: %2").arg(url, describe(code)));
        }
        return;
    }
    if (writer_) {
        const bool backed_up = mosquitto_want_write(client_);
        writer_->setEnabled(backed_up);
        if (connected_ && !backed_up) {
            bool waiting = false;
            {
                std::lock_guard<std::mutex> hold(queue_.lock);
                waiting = !queue_.samples.empty() || !queue_.changed.empty();
            }
            if (waiting) {
                drain();
            }
        }
    }
}

void broker_link::connection_up() {
    connected_ = true;
    connect_timer_->stop();
    retry_ms_ = first_retry_ms;
    {
        // A broker that restarted may have forgotten what was retained: say everything again.
        std::lock_guard<std::mutex> hold(queue_.lock);
        for (const auto &message : queue_.retained) {
            queue_.changed.insert(message.first);
        }
    }
    emit sig_connected();
    if (publish(broker_message::status_topic(options_.root), QByteArrayLiteral("online"),
                qos_retained, true)) {
        drain();
    }
}

void broker_link::lost(const QString &why) {
    const bool was_connected = connected_;
    connected_ = false;
    accepted_ = false;
    forget_socket();
    connect_timer_->stop();
    if (was_connected) {
        retry_ms_ = first_retry_ms;
    }
    emit sig_disconnected(why, retry_ms_);
    retry_timer_->start(retry_ms_);
    retry_ms_ = std::min(retry_ms_ * 2, last_retry_ms);
}

bool broker_link::publish(const QByteArray &topic, const QByteArray &payload, int qos,
                          bool retain) {
    const int code = mosquitto_publish(client_, nullptr, topic.constData(), payload.size(),
                                       payload.constData(), qos, retain);
    switch (code) {
    case MOSQ_ERR_SUCCESS:
        return true;
    case MOSQ_ERR_INVAL:
    case MOSQ_ERR_MALFORMED_UTF8:
    case MOSQ_ERR_PAYLOAD_SIZE:
    case MOSQ_ERR_OVERSIZE_PACKET:
        // This one message cannot be sent; the connection is fine.
        queue_.dropped.fetch_add(1);
        return true;
    default:
        after_io(code);
        return false;
    }
}

void broker_link::wake() {
    if (!gather_timer_->isActive()) {
        gather_timer_->start();
    }
}

void broker_link::drain() {
    std::vector<std::pair<QByteArray, QByteArray>> retained;
    {
        std::lock_guard<std::mutex> hold(queue_.lock);
        if (!connected_) {
            return;  // the connection drains the queue when it is made; no wake-up until then
        }
        queue_.wake_posted = false;
        for (const QByteArray &topic : queue_.changed) {
            retained.emplace_back(topic, queue_.retained[topic]);
        }
        queue_.changed.clear();
    }
    for (const auto &message : retained) {
        if (!publish(message.first, message.second, qos_retained, true)) {
            return;  // the connection is gone; everything retained is said again on the next
        }
    }
    // Samples are taken while the socket keeps up: when it backs up, they wait in the bounded
    // queue, not in the library. The socket is corked meanwhile, so the batch leaves in as few
    // segments as the kernel can make of it: one wake-up of the broker, not one a message.
    const int socket = mosquitto_socket(client_);
    const int on = 1, off = 0;
    setsockopt(socket, IPPROTO_TCP, TCP_CORK, &on, sizeof on);
    std::vector<device_sample> batch;
    while (connected_ && !mosquitto_want_write(client_)) {
        batch.clear();
        {
            std::lock_guard<std::mutex> hold(queue_.lock);
            const std::size_t count = std::min<std::size_t>(queue_.samples.size(), 64);
            batch.assign(queue_.samples.begin(), queue_.samples.begin() + count);
            queue_.samples.erase(queue_.samples.begin(), queue_.samples.begin() + count);
        }
        if (batch.empty()) {
            break;
        }
        for (std::size_t n = 0; n < batch.size(); ++n) {
            if (!publish(broker_message::sample_topic(options_.root, batch[n]),
                         broker_message::sample_payload(batch[n], times_), qos_samples, false)) {
                queue_.dropped.fetch_add(batch.size() - n);
                return;
            }
        }
        queue_.published.fetch_add(batch.size());
    }
    if (connected_) {
        setsockopt(socket, IPPROTO_TCP, TCP_CORK, &off, sizeof off);
    }
    if (writer_) {
        writer_->setEnabled(mosquitto_want_write(client_));
    }
}

void broker_link::finish() {
    if (!client_) {
        return;
    }
    retry_timer_->stop();
    connect_timer_->stop();
    if (connected_) {
        forget_socket();
        // "offline" first, so the broker keeps it and does not send the will. Its receipt is
        // awaited before the goodbye: the socket is then closed with nothing unread in it, which
        // would otherwise make the system reset the connection and lose the goodbye.
        mosquitto_publish_callback_set(client_, &broker_link::on_publish);
        int mid = 0;
        if (mosquitto_publish(client_, &mid,
                              broker_message::status_topic(options_.root).constData(), 7,
                              "offline", qos_retained, true) == MOSQ_ERR_SUCCESS) {
            goodbye_mid_ = mid;
            QElapsedTimer waited;
            waited.start();
            while (!goodbye_acked_ && waited.elapsed() < goodbye_ms &&
                   mosquitto_loop(client_, 50, 1) == MOSQ_ERR_SUCCESS) {
            }
        }
        // Written at once; the library closes the socket behind it.
        mosquitto_disconnect(client_);
        QElapsedTimer waited;
        waited.start();
        while (mosquitto_socket(client_) >= 0 && mosquitto_want_write(client_) &&
               waited.elapsed() < goodbye_ms &&
               mosquitto_loop(client_, 50, 1) == MOSQ_ERR_SUCCESS) {
        }
        connected_ = false;
    }
    forget_socket();
    mosquitto_destroy(client_);
    client_ = nullptr;
}

void broker_link::on_connect(mosquitto *, void *self, int code) {
    auto *link = static_cast<broker_link *>(self);
    if (code == 0) {
        link->accepted_ = true;
    } else {
        link->refused_code_ = code;
    }
}

void broker_link::on_publish(mosquitto *, void *self, int mid) {
    auto *link = static_cast<broker_link *>(self);
    if (mid == link->goodbye_mid_) {
        link->goodbye_acked_ = true;
    }
}

void broker_link::on_log(mosquitto *, void *self, int level, const char *text) {
    if (level == MOSQ_LOG_ERR && text) {
        static_cast<broker_link *>(self)->last_error_ = QString::fromUtf8(text).left(300);
    }
}

QString broker_link::describe(int code) const {
    QString text;
    switch (code) {
    case MOSQ_ERR_ERRNO:
        text = QString::fromLocal8Bit(std::strerror(errno));
        break;
    case MOSQ_ERR_EAI:
        text = tr("no such host");
        break;
    default:
        text = QString::fromUtf8(mosquitto_strerror(code));
        break;
    }
    if (!last_error_.isEmpty()) {
        text += QStringLiteral(" (%1)").arg(last_error_);
    }
    return text;
}
