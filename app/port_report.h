#pragma once

#include "port_failure.h"

#include <QObject>
#include <QString>

class QMainWindow;

// Tells the operator why the serial port could not be opened: in the main window's status bar on
// every failed attempt, and in a box (through the program's message route) and a warning line on
// standard error once. Automatic connection retries a failing port every half second, so the same
// failure again brings no second box until the port has opened or the reason has changed.
class port_report : public QObject {
    Q_OBJECT
public:
    explicit port_report(QMainWindow *window);

    // The words for a failure, in full for the box and the warning; empty for `none`.
    static QString text(const port_failure &failure);
    // The same in short, to fit the status bar.
    static QString status_text(const port_failure &failure);

    // A connect request failed (`none`: it did not, nothing to say).
    void failed(const port_failure &failure);
    // The port opened: the failure's status message goes and the next failure gets its box.
    void connected();

private:
    QMainWindow *window_;
    QString shown_;  // the status message last shown
    QString boxed_;  // the text last shown in a box, until the port opens
};
