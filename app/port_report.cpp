#include "port_report.h"

#include "message_route.h"

#include <QDebug>
#include <QMainWindow>
#include <QMetaObject>
#include <QStatusBar>

port_report::port_report(QMainWindow *window) : QObject(window), window_(window) {}

QString port_report::text(const port_failure &failure) {
    switch (failure.what) {
    case port_failure::none:
        return QString();
    case port_failure::no_port:
        return tr("No serial port is chosen: pick the adapter's port on the Settings page, then "
                  "connect.");
    case port_failure::missing:
        return tr("Cannot open the serial port %1: it is not there, so the USB adapter is "
                  "unplugged. Plug it in and connect again, or pick its port on the Settings page.")
            .arg(failure.port);
    case port_failure::permission:
        return tr("Cannot open the serial port %1: permission denied. Serial ports belong to the "
                  "\"dialout\" group: add yourself with \"sudo adduser $USER dialout\", then log "
                  "out and log in again.")
            .arg(failure.port);
    case port_failure::busy:
        return tr("Cannot open the serial port %1: another program holds it. Close that program "
                  "(or the other Lumivox) and connect again.")
            .arg(failure.port);
    case port_failure::other:
        break;
    }
    return tr("Cannot open the serial port %1: %2.").arg(failure.port, failure.detail);
}

QString port_report::status_text(const port_failure &failure) {
    switch (failure.what) {
    case port_failure::none:
        return QString();
    case port_failure::no_port:
        return tr("No serial port is chosen: pick one on the Settings page.");
    case port_failure::missing:
        return tr("%1 is not there: the USB adapter is unplugged.").arg(failure.port);
    case port_failure::permission:
        return tr("%1: permission denied; join the \"dialout\" group (sudo adduser $USER dialout, "
                  "log in again).")
            .arg(failure.port);
    case port_failure::busy:
        return tr("%1 is held by another program: close it and connect again.").arg(failure.port);
    case port_failure::other:
        break;
    }
    return tr("Cannot open %1: %2.").arg(failure.port, failure.detail);
}

void port_report::failed(const port_failure &failure) {
    const QString why = text(failure);
    if (why.isEmpty()) {
        return;
    }
    shown_ = status_text(failure);
    window_->statusBar()->showMessage(shown_);
    if (why == boxed_) {
        return;
    }
    boxed_ = why;
    qWarning().noquote() << why;
    // Shown once the disconnection has been handled: the box waits for its answer, and the
    // window's state (and a retry) must not wait with it.
    QMetaObject::invokeMethod(
        this,
        [this, why] {
            inform(window_, tr("Serial port"), why);
        },
        Qt::QueuedConnection);
}

void port_report::connected() {
    boxed_.clear();
    if (!shown_.isEmpty() && window_->statusBar()->currentMessage() == shown_) {
        window_->statusBar()->clearMessage();
    }
    shown_.clear();
}
