#pragma once

#include "slcan_adapter.h"

#include <QByteArray>
#include <QObject>
#include <QString>

class QSocketNotifier;
class sim_bus;

// The cable: a pseudo-terminal whose slave end the program opens as its serial port, while the
// simulator holds the master end with the adapter behind it. Bytes are served from the event loop
// of the thread the object lives in (socket notifiers), so a test or the lumivox-sim program only
// needs to run that loop.
class sim_pty : public QObject {
    Q_OBJECT
public:
    explicit sim_pty(sim_bus &bus, QObject *parent = nullptr);
    ~sim_pty() override;

    // Creates the pseudo-terminal in raw mode. False (see error_string()) when the system has
    // none to give.
    bool open();
    bool is_open() const { return master_ >= 0; }
    QString slave_path() const { return slave_path_; }
    QString error_string() const { return error_; }

    // The adapter unplugged: the master end is closed, the program's port sees a hang-up and the
    // slave path goes away. Emits sig_hung_up() once.
    void hang_up();

    slcan_adapter &adapter() { return adapter_; }
    // Writes `bytes` to the program unasked, as the adapter passes on frames from the bus (a
    // replayed log).
    void write_unasked(const QByteArray &bytes) { send(bytes); }
    qint64 bytes_received() const { return bytes_in_; }
    qint64 bytes_sent() const { return bytes_out_; }

    // Makes `link` a symbolic link to `target`, replacing an older link there (never a file that
    // is not a link).
    static bool point_link(const QString &link, const QString &target, QString *error);
    // Removes `link` if it is a symbolic link to `target`.
    static void remove_link(const QString &link, const QString &target);

signals:
    // Bytes from the program were taken (after the adapter answered them).
    void sig_received(int count);
    void sig_hung_up();

private:
    void read_master();
    void write_pending();
    void send(const QByteArray &bytes);

    slcan_adapter adapter_;
    int master_ = -1;
    int slave_ = -1;  // held open so the line stays up while the program (re)opens its port
    QString slave_path_;
    QString error_;
    QSocketNotifier *reader_ = nullptr;
    QSocketNotifier *writer_ = nullptr;
    QByteArray outgoing_;
    qint64 bytes_in_ = 0;
    qint64 bytes_out_ = 0;
};
