#include "publisher.h"

#include "broker_message.h"
#include "worker_thread.h"

#include <mosquitto.h>

#include <mutex>
#include <utility>

publisher::publisher(QObject *parent) : QObject(parent) {
    qRegisterMetaType<device_sample>();
    static std::once_flag library;
    std::call_once(library, [] { mosquitto_lib_init(); });
}

publisher::~publisher() {
    stop();
}

void publisher::start(const broker_options &options) {
    stop();
    root_ = options.root;
    broker_ = broker_url::text(options.address);
    queue_ = std::make_unique<publish_queue>();
    {
        std::lock_guard<std::mutex> hold(queue_->lock);
        queue_->options = options;
    }
    thread_ = std::make_unique<worker_thread>(QStringLiteral("publisher"));
    link_ = new broker_link(*queue_);
    link_->moveToThread(thread_->thread());
    connect(link_, &broker_link::sig_connected, this, [this] {
        if (sender() == link_) {
            emit sig_connected(broker_);
        }
    });
    connect(link_, &broker_link::sig_disconnected, this, [this](const QString &why, int retry_ms) {
        if (sender() == link_) {
            emit sig_disconnected(why, retry_ms);
        }
    });
    QMetaObject::invokeMethod(link_, &broker_link::start, Qt::QueuedConnection);
    // Whatever was learned before (a restart of publishing) is said again.
    for (auto d = devices_.cbegin(); d != devices_.cend(); ++d) {
        set_device(d.key(), d->name, d->type_id, d->model);
    }
}

void publisher::stop() {
    if (!link_) {
        return;
    }
    broker_link *link = link_;
    link_ = nullptr;
    thread_->stop([link] {
        link->finish();
        delete link;
    });
    thread_.reset();
    queue_.reset();
    steady_.clear();
    alarms_.clear();
}

quint64 publisher::dropped() const {
    return queue_ ? queue_->dropped.load() : 0;
}

quint64 publisher::published() const {
    return queue_ ? queue_->published.load() : 0;
}

std::size_t publisher::waiting() const {
    if (!queue_) {
        return 0;
    }
    std::lock_guard<std::mutex> hold(queue_->lock);
    return queue_->samples.size();
}

void publisher::take(const device_sample &sample) {
    if (!link_) {
        return;
    }
    if (sample.kind == panel_observation::state && sample.key == QLatin1String("alarm")) {
        auto known = alarms_.find(sample.can_id);
        if (known == alarms_.end() || *known != sample.text) {
            alarms_.insert(sample.can_id, sample.text);
            retain(broker_message::alarm_topic(root_, sample.can_id),
                   broker_message::alarm_payload(sample.text));
        }
    }
    steady_.take(sample, [this](const device_sample &passed) { push(passed); });
}

void publisher::set_bus(bool connected) {
    if (link_) {
        retain(broker_message::bus_topic(root_),
               connected ? QByteArrayLiteral("CONNECTED") : QByteArrayLiteral("DISCONNECTED"));
    }
}

void publisher::set_device(int can_id, const QString &name, int type_id, const QString &model) {
    device_info &info = devices_[can_id];
    info.name = name;
    if (type_id >= 0) {
        // A lost device keeps the identity it had when it was last found.
        info.type_id = type_id;
        info.model = model;
    }
    if (link_) {
        retain(broker_message::info_topic(root_, can_id),
               broker_message::info_payload(info.name, info.model, info.type_id, type_id >= 0));
    }
}

void publisher::retain(const QByteArray &topic, const QByteArray &payload) {
    bool post = false;
    {
        std::lock_guard<std::mutex> hold(queue_->lock);
        queue_->retained[topic] = payload;
        queue_->changed.insert(topic);
        post = !std::exchange(queue_->wake_posted, true);
    }
    if (post) {
        QMetaObject::invokeMethod(link_, &broker_link::wake, Qt::QueuedConnection);
    }
}

void publisher::push(const device_sample &sample) {
    bool post = false;
    {
        std::lock_guard<std::mutex> hold(queue_->lock);
        if (queue_->samples.size() >= queue_capacity) {
            queue_->samples.pop_front();
            queue_->dropped.fetch_add(1);
        }
        queue_->samples.push_back(sample);
        post = !std::exchange(queue_->wake_posted, true);
    }
    // One wake-up at a time: the link takes everything queued when it comes.
    if (post) {
        QMetaObject::invokeMethod(link_, &broker_link::wake, Qt::QueuedConnection);
    }
}
