#include "serial_connector.h"

#include "line_cutter.h"

#include <QDebug>
#include <QMetaMethod>
#include <QMutexLocker>
#include <QTimer>

#include <chrono>

#include <utility>

#include <poll.h>
#include <unistd.h>

// Deliberately off by default (debug and below), unlike the link's other debug lines: with them,
// every frame written and every line received would go to the debug log, two lines per request
// at full polling rate.
Q_LOGGING_CATEGORY(wire_log, "lumivox.wire", QtInfoMsg)

void serial_connector::enable_wire_log() {
    QLoggingCategory::setFilterRules(QLatin1String(wire_log().categoryName()) +
                                     QLatin1String(".debug=true"));
}

serial_connector::serial_connector(QObject *parent) : QObject(parent) {
    qRegisterMetaType<wire_batch>();
    moveToThread(worker_.thread());
}

serial_connector::~serial_connector() {
    // The port was created in the link's thread and is closed and freed there, as is the timer.
    worker_.stop([this] {
        release_port();
        delete traffic_timer_;
        traffic_timer_ = nullptr;
    });
}

void serial_connector::release_port() {
    if (port_) {
        port_->close();
        delete port_;
        port_ = nullptr;
    }
    publish_state();
}

QString serial_connector::port_name() const {
    QMutexLocker lock(&name_lock_);
    return port_name_;
}

void serial_connector::set_port_name(const QString &name) {
    QMutexLocker lock(&name_lock_);
    port_name_ = name;
}

port_failure serial_connector::take_open_failure() {
    QMutexLocker lock(&name_lock_);
    return std::exchange(open_failure_, port_failure());
}

void serial_connector::apply_settings(QSerialPort *port, const QString &name) {
    port->setPortName(name);
    port->setBaudRate(QSerialPort::Baud57600, QSerialPort::AllDirections);
    port->setDataBits(QSerialPort::Data8);
    port->setFlowControl(QSerialPort::NoFlowControl);
    port->setStopBits(QSerialPort::OneStop);
    port->setParity(QSerialPort::NoParity);
}

void serial_connector::replace_port(QSerialPort *port) {
    // The previous port is closed by the caller; it is freed here rather than left allocated.
    // deleteLater: this may run inside one of the old port's own signals.
    if (port_) {
        port_->disconnect(this);
        port_->close();
        port_->deleteLater();
    }
    port_ = port;
    buffer_.clear();
    publish_state();
}

bool serial_connector::port_ready() const {
    return port_ && port_->isOpen() && port_->isWritable();
}

void serial_connector::publish_state() {
    polling_ready_.store(port_ready());
}

void serial_connector::sl_serial_connect(QString name) {
    set_port_name(name);
    replace_port(new QSerialPort);
    apply_settings(port_, name);
    connect(port_, &QSerialPort::readyRead, this, &serial_connector::sl_data_received);
    connect(port_, &QSerialPort::errorOccurred, this, &serial_connector::sl_serial_handle_error);

    // A new port object has nothing to flush before it is open.
    if (!port_->open(QIODevice::ReadWrite)) {
        const port_failure why = port_failure::classify(name, port_->error(), port_->errorString());
        {
            QMutexLocker lock(&name_lock_);
            open_failure_ = why;
        }
        emit sig_disconnected();
        return;
    }
    {
        QMutexLocker lock(&name_lock_);
        open_failure_ = port_failure();
    }
    publish_state();
    port_->flush();
    port_->clear(QSerialPort::AllDirections);

    // Switch the CAN channel on at 500 kbit/s; three times, so an adapter that missed the first
    // pair after power-up still starts.
    for (int i = 0; i < 3; ++i) {
        sl_send_string(QStringLiteral("O\r"));
        sl_send_string(QStringLiteral("S6\r"));
    }
    emit sig_connected();
    qDebug() << "serial port is opened SUCCESSFULLY";
}

void serial_connector::sl_serial_set_prefs(QString name) {
    if (port_) {
        apply_settings(port_, name);
    }
}

void serial_connector::sl_serial_reconnect() {
    if (port_) {
        port_->close();
    }
    publish_state();
    qDebug() << "serial port DISONNECTED by soft";
}

bool serial_connector::port_hung_up() const {
    // A pseudo-terminal whose other end closed (and some USB adapters after unplugging) keep
    // reporting read errors; poll() tells such a port from a passing error by its hang-up flag.
    const int fd = static_cast<int>(port_->handle());
    if (fd < 0) {
        return true;
    }
    pollfd p{fd, POLLIN, 0};
    if (::poll(&p, 1, 0) < 0) {
        return true;
    }
    return (p.revents & (POLLHUP | POLLERR | POLLNVAL)) != 0;
}

void serial_connector::sl_serial_handle_error(QSerialPort::SerialPortError error) {
    if (!port_ || !port_->isOpen()) {
        return;
    }
    const bool lost =
        error == QSerialPort::ResourceError || (error == QSerialPort::ReadError && port_hung_up());
    if (!lost) {
        return;
    }
    port_->close();
    publish_state();
    buffer_.clear();
    emit sig_disconnected();
    qDebug() << "serial port DISONNECTED by error";
}

void serial_connector::sl_serial_disconnect() {
    if (port_) {
        port_->close();
    }
    publish_state();
    buffer_.clear();
    emit sig_disconnected();
}

void serial_connector::sl_update_serial_socket() {
    // A fresh, unopened port object wired for reading; nothing in the program calls this.
    replace_port(new QSerialPort);
    apply_settings(port_, port_name());
    connect(port_, &QSerialPort::readyRead, this, &serial_connector::sl_data_received);
    connect(port_, &QSerialPort::errorOccurred, this, &serial_connector::sl_serial_handle_error);
}

void serial_connector::sl_init_connection(QString name) {
    if (port_ && port_->isOpen()) {
        port_->close();
    }
    sl_serial_connect(name);
}

void serial_connector::sl_sender() {
    if (port_ready()) {
        emit sig_tearing();
    }
}

void serial_connector::sl_data_received() {
    if (!port_) {
        return;
    }
    while (port_->isOpen() && port_->bytesAvailable() > 0) {
        const QByteArray chunk = port_->readLine();
        bytes_received_.fetch_add(chunk.size());
        const QList<QByteArray> lines = line_cutter::append(buffer_, chunk);
        for (const QByteArray &piece : lines) {
            const QString line = QString::fromUtf8(piece);
            qCDebug(wire_log).noquote() << line;
            tell_traffic(false, line);
            emit sig_parse_received_message(line);
        }
    }
    line_cutter::bound(buffer_, max_buffered_bytes);
}

void serial_connector::sl_send_string(QString text) {
    if (!port_ready()) {
        return;
    }
    qCDebug(wire_log).noquote() << text;
    QByteArray bytes = text.toUtf8();
    bytes.append("\r\n", 2);
    // Straight to the port's descriptor when nothing of an earlier string waits to go out: the
    // port's own write() would arm its write notifier and take another turn of the event loop to
    // disarm it, for every frame. What the descriptor does not take at once (the line is backed
    // up, or an error) is queued in the port, whose write notifier sends it when the line takes
    // it again and reports real errors as usual. No flush() there: writing to a full line fails
    // with EAGAIN, which the port reports as a resource error, the same as an unplugged adapter.
    qint64 done = 0;
    if (port_->bytesToWrite() == 0) {
        const ssize_t n = ::write(static_cast<int>(port_->handle()), bytes.constData(),
                                  static_cast<size_t>(bytes.size()));
        done = n > 0 ? n : 0;
    }
    if (done < bytes.size()) {
        port_->write(bytes.constData() + done, bytes.size() - done);
    }
    tell_traffic(true, text);
}

void serial_connector::tell_traffic(bool sent, const QString &text) {
    // A change counted after this load is seen on the next line; one counted before it is
    // already visible to isSignalConnected(), as Qt tells of a connection once it is made.
    const unsigned changes = traffic_changes_.load();
    if (changes != traffic_checked_) {
        static const QMetaMethod signal =
            QMetaMethod::fromSignal(&serial_connector::sig_wire_traffic);
        traffic_watched_ = isSignalConnected(signal);
        traffic_checked_ = changes;
        if (!traffic_watched_) {
            traffic_.clear();
        }
    }
    if (!traffic_watched_) {
        return;
    }
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    traffic_.append(
        {std::chrono::duration_cast<std::chrono::microseconds>(now).count(), sent, text});
    if (!traffic_timer_) {
        traffic_timer_ = new QTimer(this);
        traffic_timer_->setSingleShot(true);
        traffic_timer_->setInterval(traffic_batch_ms);
        connect(traffic_timer_, &QTimer::timeout, this, &serial_connector::flush_traffic);
    }
    if (!traffic_timer_->isActive()) {
        traffic_timer_->start();
    }
}

void serial_connector::flush_traffic() {
    if (traffic_.isEmpty()) {
        return;
    }
    wire_batch lines;
    lines.swap(traffic_);
    emit sig_wire_traffic(lines);
}

void serial_connector::connectNotify(const QMetaMethod &signal) {
    if (signal == QMetaMethod::fromSignal(&serial_connector::sig_wire_traffic)) {
        traffic_changes_.fetch_add(1);
    }
}

void serial_connector::disconnectNotify(const QMetaMethod &signal) {
    // An invalid method: every signal was disconnected at once.
    if (!signal.isValid() ||
        signal == QMetaMethod::fromSignal(&serial_connector::sig_wire_traffic)) {
        traffic_changes_.fetch_add(1);
    }
}
