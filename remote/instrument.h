#pragma once

#include <QString>
#include <QVector>

#include <optional>

// What the command server can ask of and do to the devices on the bus, without sockets and
// without widgets. The program's implementation (bus_instrument) reaches the device table and the
// panels' framework services; tests and the fuzz target give one of their own.
//
// Every call taking a CAN id is made only for a device that device() reports as found.
class instrument {
public:
    virtual ~instrument() = default;

    enum class presence { found, lost, unknown };
    struct device_info {
        QString name;   // as in the device table
        QString model;  // the panel's model string; the last one known while lost
        int type_id = -1;
        presence state = presence::unknown;
    };
    struct quantity {
        QString key;  // stable lower-case identifier
        QString unit;
    };
    struct setpoint_info {
        QString key;
        QString unit;  // the unit the value is given in at the moment
        double minimum = 0;
        double maximum = 0;
    };
    struct parameter_info {
        int code = 0;
        QString label;
        std::optional<double> value;  // none until the device reported it
    };
    struct sample {
        double value = 0;
        double age_seconds = 0;
    };
    enum class outcome { queued, unknown_key, out_of_range, not_allowed };

    // "Lumivox,<brand>,<host name>,<version>".
    virtual QString identity() const = 0;
    // Whether the operator allows writes (set-points, output, parameters) from remote clients.
    virtual bool writes_allowed() const = 0;
    virtual bool bus_connected() const = 0;
    // The configured CAN ids in table order.
    virtual QVector<int> device_ids() const = 0;
    // None when no device of the table has `can_id`.
    virtual std::optional<device_info> device(int can_id) const = 0;

    virtual QVector<quantity> readings(int can_id) const = 0;
    // The last reported value of reading `key` and its age; none before the first report.
    virtual std::optional<sample> reading(int can_id, const QString &key) const = 0;
    virtual QVector<setpoint_info> setpoints(int can_id) const = 0;
    virtual std::optional<double> setpoint_value(int can_id, const QString &key) const = 0;
    virtual outcome write_setpoint(int can_id, const QString &key, double value) = 0;
    // None when the device has no emission switch.
    virtual std::optional<bool> output(int can_id) const = 0;
    // False when the device has no emission switch.
    virtual bool set_output(int can_id, bool on) = 0;
    virtual QVector<parameter_info> parameters(int can_id) const = 0;
    virtual outcome write_parameter(int can_id, int code, double value) = 0;
    // False when the parameters may not be written now.
    virtual bool store_parameters(int can_id) = 0;
};
