#include "publish_window.h"

#include "broker_message.h"
#include "broker_url.h"
#include "main_window.h"
#include "observation_hub.h"
#include "program.h"
#include "publisher.h"
#include "serial_connector.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QSet>
#include <QSettings>
#include <QStatusBar>
#include <QSysInfo>
#include <QTimer>

#include <memory>

namespace {

QString publish_tr(const char *text) {
    return QCoreApplication::translate("program", text);
}

}  // namespace

void publish_window(main_window &window, publisher &pub, const program_options &options,
                    const QSettings &remembered) {
    auto *label = new QLabel(&window);
    window.statusBar()->addPermanentWidget(label);
    // One box at a time, and each reason in a box once: a broker that comes and goes is followed
    // in the status bar.
    auto boxed = std::make_shared<QSet<QString>>();
    auto box = std::make_shared<QPointer<QMessageBox>>();
    const auto report = [&window, label, boxed, box](const QString &reason) {
        qWarning().noquote() << "broker:" << reason;
        const QString why = reason.left(1).toUpper() + reason.mid(1);
        label->setToolTip(why);
        window.statusBar()->showMessage(why);
        if (boxed->contains(why) || boxed->size() >= 32) {
            return;
        }
        boxed->insert(why);
        if (*box) {
            (*box)->setText(why);
            return;
        }
        *box = new QMessageBox(QMessageBox::Warning, publish_tr("Broker"), why, QMessageBox::Ok,
                               &window);
        (*box)->setAttribute(Qt::WA_DeleteOnClose);
        (*box)->setWindowModality(Qt::NonModal);
        (*box)->show();
    };

    broker_address address;
    const QString wrong = broker_url::read(options.mqtt_url, &address);
    if (!wrong.isEmpty()) {
        label->setText(publish_tr("Broker: off"));
        report(publish_tr("Not publishing to a broker: %1.").arg(wrong));
        return;
    }
    QString station = options.station;
    if (!broker_message::valid_station(station)) {
        if (!station.isEmpty()) {
            qWarning().noquote() << "broker: the station name" << station
                                 << "cannot be a topic level; the host name is used";
        }
        station = broker_message::station_from_host(QSysInfo::machineHostName());
    }
    broker_options broker;
    broker.address = address;
    broker.root = broker_message::root(station);
    broker.client_id = QStringLiteral("lumivox-") + station;
    const QString env_user = qEnvironmentVariable("LUMIVOX_MQTT_USER");
    const QString env_password = qEnvironmentVariable("LUMIVOX_MQTT_PASSWORD");
    broker.user = env_user.isEmpty() ? remembered.value(QStringLiteral("mqtt/user")).toString()
                                     : env_user;
    broker.password = env_password.isEmpty()
                          ? remembered.value(QStringLiteral("mqtt/password")).toString()
                          : env_password;
    broker.ca_file = remembered.value(QStringLiteral("mqtt/ca_file")).toString();
    if (env_password.isEmpty() && !broker.password.isEmpty() &&
        (QFileInfo(remembered.fileName()).permissions() &
         (QFileDevice::ReadGroup | QFileDevice::ReadOther))) {
        qWarning().noquote() << "broker: the settings file" << remembered.fileName()
                             << "holds the broker's password and other users can read it "
                                "(chmod 600 it)";
    }

    // The label names the state and, once some were lost, the samples dropped.
    auto state = std::make_shared<QString>(publish_tr("Broker: connecting to %1")
                                               .arg(broker_url::text(address)));
    const auto show = [label, state, &pub] {
        const quint64 dropped = pub.dropped();
        label->setText(dropped == 0 ? *state
                                    : publish_tr("%1 (%2 samples dropped)").arg(*state).arg(dropped));
    };
    show();
    auto *refresh = new QTimer(label);
    QObject::connect(refresh, &QTimer::timeout, label, show);
    refresh->start(2000);
    QObject::connect(&pub, &publisher::sig_connected, label,
                     [label, state, show, &window, &pub](const QString &url) {
                         *state = publish_tr("Broker: connected");
                         label->setToolTip(url);
                         window.statusBar()->clearMessage();
                         qInfo().noquote() << "broker: publishing to" << url;
                         if (const quint64 dropped = pub.dropped()) {
                             qInfo().noquote()
                                 << "broker:" << dropped
                                 << "samples dropped so far while the broker was away (the "
                                    "queue keeps the last"
                                 << publisher::queue_capacity << ")";
                         }
                         show();
                     });
    QObject::connect(&pub, &publisher::sig_disconnected, label,
                     [state, show, report](const QString &why, int retry_ms) {
                         *state = retry_ms > 0 ? publish_tr("Broker: not connected (retrying)")
                                               : publish_tr("Broker: not connected");
                         show();
                         report(why);
                     });

    QObject::connect(window.observations(), &observation_hub::sig_sample, &pub, &publisher::take);
    QObject::connect(window.serial_link(), &serial_connector::sig_connected, &pub,
                     [&pub] { pub.set_bus(true); });
    QObject::connect(window.serial_link(), &serial_connector::sig_disconnected, &pub,
                     [&pub] { pub.set_bus(false); });
    QObject::connect(&window, &main_window::sig_device_type, &pub, &publisher::set_device);
    pub.start(broker);
    // The port may have opened before the connections above: its state, set before each signal,
    // is read after them.
    pub.set_bus(window.serial_link()->polling_ready());
}
