#pragma once

#include "device_sample.h"
#include "instrument.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QPair>
#include <QPointer>
#include <QString>

#include <functional>

class device;
class observation_hub;
class panel_base;
class serial_connector;

// The program's devices as the command server sees them: the device table (through `devices`),
// the serial link's state, the placed panels' framework services for set-points, emission and
// parameters, and the last reported readings from the observation hub. Nothing here touches a
// panel's widgets: a write goes through the same services as the operator's Enter and Yes.
// GUI thread only.
class bus_instrument : public QObject, public instrument {
    Q_OBJECT
public:
    using device_list = std::function<QList<::device *>()>;

    // `link` and `hub` must outlive this object. Listens to `hub` from now on: its readings are
    // kept from the start, so a client's first question finds them.
    bus_instrument(device_list devices, const serial_connector *link, observation_hub *hub,
                   const QString &brand, QObject *parent = nullptr);

    void set_writes_allowed(bool allowed);

    QString identity() const override;
    bool writes_allowed() const override { return writes_allowed_; }
    bool bus_connected() const override;
    QVector<int> device_ids() const override;
    std::optional<device_info> device(int can_id) const override;
    QVector<quantity> readings(int can_id) const override;
    std::optional<sample> reading(int can_id, const QString &key) const override;
    QVector<setpoint_info> setpoints(int can_id) const override;
    std::optional<double> setpoint_value(int can_id, const QString &key) const override;
    outcome write_setpoint(int can_id, const QString &key, double value) override;
    std::optional<bool> output(int can_id) const override;
    bool set_output(int can_id, bool on) override;
    QVector<parameter_info> parameters(int can_id) const override;
    outcome write_parameter(int can_id, int code, double value) override;
    bool store_parameters(int can_id) override;

public slots:
    // A panel was placed for `dev`: remembered, so that a device gone silent answers as lost
    // with the model it had.
    void note_placed(::device *dev);
    void take(const device_sample &observed);

signals:
    void sig_writes_allowed_changed(bool allowed);

private:
    struct placed {
        QPointer<::device> dev;
        int type_id = -1;
        QString model;
    };
    struct stamped {
        double value = 0;
        qint64 ms = 0;
    };

    ::device *find(int can_id) const;
    panel_base *panel(int can_id) const;

    device_list devices_;
    const serial_connector *link_;
    QString brand_;
    bool writes_allowed_ = false;
    QHash<const ::device *, placed> placed_;
    QHash<QPair<int, QString>, stamped> last_;  // by CAN id and reading key
};
