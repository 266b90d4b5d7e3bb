#pragma once

#include "device_sample.h"

#include <QMetaObject>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QVector>

#include <functional>

class device_panel;
class panel_base;

// Wall-clock time in milliseconds since the epoch; tests set it to test runs across midnight.
using wall_clock = std::function<qint64()>;
wall_clock system_clock();

// Where the recorder and the trend windows get what the devices report. The main window hands it
// every panel it places; the hub passes on each of the panel's observations as a sample stamped
// with the time and the device's CAN ID, name and model. A panel built on the panel framework
// describes its readings once, so every such panel is covered without code of its own.
//
// Panels are listened to only while something listens to the hub: with recording off and no
// trend window, the panels observe nothing at all.
class observation_hub : public QObject {
    Q_OBJECT
public:
    explicit observation_hub(wall_clock now = system_clock(), QObject *parent = nullptr);

    // Passes on what `panel`, just placed for the device at `can_id` named `name`, observes from
    // now on (until it is deleted). Panels that are not built on the framework have nothing to
    // tell and are skipped.
    void watch(int can_id, const QString &name, device_panel *panel);

    // The panels being watched (deleted ones drop out).
    int watched() const;

signals:
    void sig_sample(const device_sample &sample);

protected:
    void connectNotify(const QMetaMethod &signal) override;
    void disconnectNotify(const QMetaMethod &signal) override;

private:
    struct source {
        QPointer<panel_base> panel;
        int can_id = -1;
        QString device;
        QString model;
        QMetaObject::Connection link;
    };

    bool listened() const;
    void follow_listeners();
    void attach(source &s);

    wall_clock now_;
    QVector<source> sources_;
    bool attached_ = false;
};
