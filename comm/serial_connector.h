#pragma once

#include <QByteArray>
#include <QLoggingCategory>
#include <QMutex>
#include <QObject>
#include <QSerialPort>
#include <QString>
#include <QVector>

#include "port_failure.h"
#include "worker_thread.h"

#include <atomic>

// Every frame the link writes and every line it receives, one debug line each. Off by default:
// at full polling rate that is two lines per request, tens of megabytes of debug log an hour, and
// writing them costs more than the polling itself. The operator switches it on with the program's
// "--log-wire" option or with QT_LOGGING_RULES="lumivox.wire.debug=true".
Q_DECLARE_LOGGING_CATEGORY(wire_log)

// One string the link wrote or one line it received, as it tells the bus monitor.
struct wire_record {
    qint64 time_us = 0;  // microseconds since the epoch, taken in the link's thread as it passed
    bool sent = false;
    QString text;
};
using wire_batch = QVector<wire_record>;
Q_DECLARE_METATYPE(wire_batch)

class QTimer;

// Owns the serial port to the USB-to-CAN adapter, in a thread of its own. Opens and configures the
// port, switches the adapter's CAN channel on, writes strings, cuts the received stream into lines
// and turns the window's 10 ms timer tick into the send-now pulse of the polling cycle. It knows
// nothing of frames or devices: everything it moves is a QString.
class serial_connector : public QObject {
    Q_OBJECT
public:
    // A receive buffer that grows beyond this without a carriage return is discarded.
    static constexpr int max_buffered_bytes = 5000;
    // The longest a line waits in the link before sig_wire_traffic() tells of it.
    static constexpr int traffic_batch_ms = 200;

    explicit serial_connector(QObject *parent = nullptr);
    // Closes the port in the connector's thread, then stops the thread and waits for it.
    ~serial_connector() override;

    // The port name used by the next connect request. Read and written from the GUI thread while
    // the connector's thread also writes it, hence the lock.
    QString port_name() const;
    void set_port_name(const QString &name);

    // Bytes taken from the port since construction (diagnostics; lets tests know a read happened).
    qint64 bytes_received() const { return bytes_received_.load(); }

    // Whether the port is open and writable, as the link's thread last left it: what sl_sender()
    // checks, readable from any thread. The window's timer reads it to run the polling cycle
    // without a round trip through the link's thread.
    bool polling_ready() const { return polling_ready_.load(); }

    // Switches the frame log (wire_log) on for the whole process. Rules given in QT_LOGGING_RULES
    // still take precedence.
    static void enable_wire_log();

    // Why the last connect request could not open its port, handed over once: each failed open
    // records it before sig_disconnected(), and the window takes it when that arrives (queued, so
    // the record is there). `none` after a successful open and once taken.
    port_failure take_open_failure();

signals:
    void sig_tearing();
    void sig_connected();
    void sig_disconnected();
    void sig_parse_received_message(QString line);
    // Every string written to the port and every line received, stamped as it passed, in
    // batches at most traffic_batch_ms apart (for the bus monitor: one queued call per batch
    // rather than per line). Only while something is connected is anything stamped or kept.
    void sig_wire_traffic(const wire_batch &lines);

public slots:
    void sl_serial_connect(QString name);
    void sl_serial_set_prefs(QString name);
    void sl_serial_reconnect();
    void sl_serial_handle_error(QSerialPort::SerialPortError error);
    void sl_serial_disconnect();
    void sl_update_serial_socket();
    void sl_init_connection(QString name);
    void sl_sender();
    void sl_data_received();
    void sl_send_string(QString text);

protected:
    void connectNotify(const QMetaMethod &signal) override;
    void disconnectNotify(const QMetaMethod &signal) override;

private:
    // Keeps a line for the next sig_wire_traffic() when it has receivers; flush_traffic() emits.
    void tell_traffic(bool sent, const QString &text);
    void flush_traffic();

    void apply_settings(QSerialPort *port, const QString &name);
    void replace_port(QSerialPort *port);
    bool port_ready() const;
    bool port_hung_up() const;
    void release_port();
    // Mirrors port_ready() into polling_ready_; called after every change of the port's state.
    void publish_state();

    mutable QMutex name_lock_;
    QString port_name_;
    port_failure open_failure_;  // under name_lock_
    worker_thread worker_{QStringLiteral("serial_connector")};
    QSerialPort *port_ = nullptr;
    QByteArray buffer_;
    std::atomic<qint64> bytes_received_{0};
    std::atomic<bool> polling_ready_{false};
    // Whether sig_wire_traffic() has receivers, as Qt last told the link's thread; asked again
    // only after a connection of it changed (counted in any thread), so that a closed monitor
    // costs one atomic load a line.
    std::atomic<unsigned> traffic_changes_{0};
    unsigned traffic_checked_ = ~0u;  // link's thread only
    bool traffic_watched_ = false;    // link's thread only
    wire_batch traffic_;              // link's thread only
    QTimer *traffic_timer_ = nullptr;  // link's thread only, made on first use
};
