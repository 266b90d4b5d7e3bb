#include "observation_hub.h"

#include "panel_base.h"

#include <QDateTime>
#include <QMetaMethod>

#include <algorithm>

wall_clock system_clock() {
    return [] { return QDateTime::currentMSecsSinceEpoch(); };
}

observation_hub::observation_hub(wall_clock now, QObject *parent)
    : QObject(parent), now_(std::move(now)) {
    qRegisterMetaType<device_sample>();
}

void observation_hub::watch(int can_id, const QString &name, device_panel *panel) {
    auto *framed = qobject_cast<panel_base *>(panel);
    if (!framed) {
        return;
    }
    // Panels already deleted (their device relearned its type, or was removed) drop out here.
    sources_.erase(std::remove_if(sources_.begin(), sources_.end(),
                                  [](const source &s) { return s.panel.isNull(); }),
                   sources_.end());
    source s;
    s.panel = framed;
    s.can_id = can_id;
    s.device = name;
    s.model = framed->type_name();
    if (attached_) {
        attach(s);
    }
    sources_.append(s);
}

int observation_hub::watched() const {
    return static_cast<int>(std::count_if(sources_.begin(), sources_.end(),
                                          [](const source &s) { return !s.panel.isNull(); }));
}

void observation_hub::attach(source &s) {
    if (!s.panel) {
        return;
    }
    // Name, CAN ID and model are fixed for the life of the panel: they are copied once.
    s.link = connect(
        s.panel.data(), &panel_base::sig_observed, this,
        [this, can_id = s.can_id, name = s.device, model = s.model](const panel_observation &o) {
            emit sig_sample(device_sample{now_(), can_id, name, model, o.kind, o.quantity, o.value,
                                          o.unit, o.text, o.key});
        });
}

bool observation_hub::listened() const {
    static const QMetaMethod signal = QMetaMethod::fromSignal(&observation_hub::sig_sample);
    return isSignalConnected(signal);
}

void observation_hub::follow_listeners() {
    const bool wanted = listened();
    if (wanted == attached_) {
        return;
    }
    attached_ = wanted;
    for (source &s : sources_) {
        if (wanted) {
            attach(s);
        } else {
            disconnect(s.link);
        }
    }
}

void observation_hub::connectNotify(const QMetaMethod &signal) {
    if (signal == QMetaMethod::fromSignal(&observation_hub::sig_sample)) {
        follow_listeners();
    }
}

void observation_hub::disconnectNotify(const QMetaMethod &signal) {
    // Also called with an invalid method when everything is disconnected at once.
    // A listener being destroyed disconnects while Qt holds its connection lock, and asking
    // isSignalConnected() then could wait on that same lock: look again once the call is over.
    if (!signal.isValid() || signal == QMetaMethod::fromSignal(&observation_hub::sig_sample)) {
        QMetaObject::invokeMethod(this, &observation_hub::follow_listeners, Qt::QueuedConnection);
    }
}
