#include "bus_instrument.h"

#include "build_info.h"
#include "device.h"
#include "observation_hub.h"
#include "panel_base.h"
#include "serial_connector.h"

#include <QDateTime>
#include <QSysInfo>

namespace {

instrument::outcome outcome_of(panel_base::setpoint_result result) {
    switch (result) {
        case panel_base::setpoint_result::queued:
            return instrument::outcome::queued;
        case panel_base::setpoint_result::unknown_key:
            return instrument::outcome::unknown_key;
        case panel_base::setpoint_result::out_of_range:
            return instrument::outcome::out_of_range;
        case panel_base::setpoint_result::not_allowed:
            return instrument::outcome::not_allowed;
    }
    return instrument::outcome::unknown_key;
}

}  // namespace

bus_instrument::bus_instrument(device_list devices, const serial_connector *link,
                               observation_hub *hub, const QString &brand, QObject *parent)
    : QObject(parent), devices_(std::move(devices)), link_(link), brand_(brand) {
    connect(hub, &observation_hub::sig_sample, this, &bus_instrument::take);
}

void bus_instrument::set_writes_allowed(bool allowed) {
    if (allowed != writes_allowed_) {
        writes_allowed_ = allowed;
        emit sig_writes_allowed_changed(allowed);
    }
}

QString bus_instrument::identity() const {
    return QStringLiteral("Lumivox,%1,%2,v5.%3")
        .arg(brand_, QSysInfo::machineHostName(), QString::fromLatin1(build_info::commit).left(6));
}

bool bus_instrument::bus_connected() const {
    return link_->polling_ready();
}

QVector<int> bus_instrument::device_ids() const {
    QVector<int> ids;
    for (const ::device *dev : devices_()) {
        ids.append(dev->can_id());
    }
    return ids;
}

::device *bus_instrument::find(int can_id) const {
    for (::device *dev : devices_()) {
        if (dev->can_id() == can_id) {
            return dev;
        }
    }
    return nullptr;
}

panel_base *bus_instrument::panel(int can_id) const {
    const ::device *dev = find(can_id);
    return dev ? qobject_cast<panel_base *>(dev->current_panel()) : nullptr;
}

std::optional<instrument::device_info> bus_instrument::device(int can_id) const {
    const ::device *dev = find(can_id);
    if (!dev) {
        return std::nullopt;
    }
    device_info info;
    info.name = dev->name();
    const auto seen = placed_.constFind(dev);
    const bool was_placed = seen != placed_.constEnd() && seen->dev == dev;
    if (const device_panel *shown = dev->current_panel()) {
        info.state = presence::found;
        info.model = shown->type_name();
        info.type_id = dev->type_id();
    } else if (was_placed) {
        info.state = presence::lost;
        info.model = seen->model;
        info.type_id = seen->type_id;
    }
    return info;
}

QVector<instrument::quantity> bus_instrument::readings(int can_id) const {
    QVector<quantity> list;
    if (const panel_base *p = panel(can_id)) {
        for (const reading_spec &r : p->readings()) {
            list.append({r.key, r.unit});
        }
    }
    return list;
}

std::optional<instrument::sample> bus_instrument::reading(int can_id, const QString &key) const {
    const auto last = last_.constFind(qMakePair(can_id, key));
    if (last == last_.constEnd()) {
        return std::nullopt;
    }
    const qint64 age_ms = QDateTime::currentMSecsSinceEpoch() - last->ms;
    return sample{last->value, static_cast<double>(age_ms) / 1000.0};
}

QVector<instrument::setpoint_info> bus_instrument::setpoints(int can_id) const {
    QVector<setpoint_info> list;
    if (const panel_base *p = panel(can_id)) {
        for (const panel_base::setpoint_entry &s : p->setpoints()) {
            list.append({s.key, s.unit, s.minimum, s.maximum});
        }
    }
    return list;
}

std::optional<double> bus_instrument::setpoint_value(int can_id, const QString &key) const {
    const panel_base *p = panel(can_id);
    return p ? p->setpoint_value(key) : std::nullopt;
}

instrument::outcome bus_instrument::write_setpoint(int can_id, const QString &key, double value) {
    panel_base *p = panel(can_id);
    return p ? outcome_of(p->write_setpoint(key, value)) : outcome::unknown_key;
}

std::optional<bool> bus_instrument::output(int can_id) const {
    const panel_base *p = panel(can_id);
    if (!p || !p->has_emission()) {
        return std::nullopt;
    }
    return p->emission_on();
}

bool bus_instrument::set_output(int can_id, bool on) {
    panel_base *p = panel(can_id);
    return p && p->request_emission(on);
}

QVector<instrument::parameter_info> bus_instrument::parameters(int can_id) const {
    QVector<parameter_info> list;
    if (const panel_base *p = panel(can_id)) {
        for (const parameter_record &r : p->parameters()) {
            parameter_info info{r.code, r.label, std::nullopt};
            if (!p->plan().is_unknown(r.value)) {
                info.value = r.value;
            }
            list.append(info);
        }
    }
    return list;
}

instrument::outcome bus_instrument::write_parameter(int can_id, int code, double value) {
    panel_base *p = panel(can_id);
    return p ? outcome_of(p->write_parameter(code, value)) : outcome::unknown_key;
}

bool bus_instrument::store_parameters(int can_id) {
    panel_base *p = panel(can_id);
    return p && p->store_parameters();
}

void bus_instrument::note_placed(::device *dev) {
    if (dev && dev->current_panel()) {
        placed_.insert(dev, placed{dev, dev->type_id(), dev->current_panel()->type_name()});
    }
}

void bus_instrument::take(const device_sample &observed) {
    if (observed.kind == panel_observation::reading) {
        last_.insert(qMakePair(observed.can_id, observed.key),
                     stamped{observed.value, observed.ms});
    }
}
