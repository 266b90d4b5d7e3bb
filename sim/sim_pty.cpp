#include "sim_pty.h"

#include <QFile>
#include <QFileInfo>
#include <QSocketNotifier>

#include <fcntl.h>
#include <pty.h>
#include <termios.h>
#include <unistd.h>
#include <cerrno>
#include <cstring>

sim_pty::sim_pty(sim_bus &bus, QObject *parent) : QObject(parent), adapter_(bus) {}

sim_pty::~sim_pty() {
    // No signal from a half-destroyed object.
    blockSignals(true);
    hang_up();
}

bool sim_pty::open() {
    if (is_open()) {
        return true;
    }
    char name[256] = {};
    termios raw{};
    ::cfmakeraw(&raw);
    if (::openpty(&master_, &slave_, name, &raw, nullptr) != 0) {
        error_ = QStringLiteral("openpty: %1").arg(QString::fromLocal8Bit(std::strerror(errno)));
        master_ = slave_ = -1;
        return false;
    }
    ::fcntl(master_, F_SETFL, ::fcntl(master_, F_GETFL) | O_NONBLOCK);
    ::fcntl(master_, F_SETFD, FD_CLOEXEC);
    ::fcntl(slave_, F_SETFD, FD_CLOEXEC);
    slave_path_ = QString::fromLocal8Bit(name);
    reader_ = new QSocketNotifier(master_, QSocketNotifier::Read, this);
    connect(reader_, &QSocketNotifier::activated, this, [this] { read_master(); });
    writer_ = new QSocketNotifier(master_, QSocketNotifier::Write, this);
    writer_->setEnabled(false);
    connect(writer_, &QSocketNotifier::activated, this, [this] { write_pending(); });
    return true;
}

void sim_pty::hang_up() {
    if (!is_open()) {
        return;
    }
    delete reader_;
    delete writer_;
    reader_ = writer_ = nullptr;
    ::close(master_);
    ::close(slave_);
    master_ = slave_ = -1;
    outgoing_.clear();
    emit sig_hung_up();
}

void sim_pty::read_master() {
    char buf[4096];
    int taken = 0;
    for (;;) {
        const ssize_t n = ::read(master_, buf, sizeof buf);
        if (n > 0) {
            taken += static_cast<int>(n);
            bytes_in_ += n;
            send(adapter_.feed(QByteArray::fromRawData(buf, static_cast<int>(n))));
            if (!is_open()) {
                return;  // an answer's side effect may have hung the line up
            }
            continue;
        }
        if (n < 0 && errno == EINTR) {
            continue;
        }
        if (n < 0 && errno != EAGAIN && errno != EWOULDBLOCK && reader_) {
            // The line is unusable (it should not be while the slave end is held open).
            reader_->setEnabled(false);
        }
        break;
    }
    if (taken > 0) {
        emit sig_received(taken);
    }
}

void sim_pty::send(const QByteArray &bytes) {
    if (bytes.isEmpty() || !is_open()) {
        return;
    }
    outgoing_.append(bytes);
    write_pending();
}

void sim_pty::write_pending() {
    while (!outgoing_.isEmpty()) {
        const ssize_t n =
            ::write(master_, outgoing_.constData(), static_cast<size_t>(outgoing_.size()));
        if (n > 0) {
            bytes_out_ += n;
            outgoing_.remove(0, static_cast<int>(n));
            continue;
        }
        if (n < 0 && errno == EINTR) {
            continue;
        }
        break;  // full: the write notifier says when there is room again
    }
    if (writer_) {
        writer_->setEnabled(!outgoing_.isEmpty());
    }
}

bool sim_pty::point_link(const QString &link, const QString &target, QString *error) {
    const QFileInfo info(link);
    if (info.exists() || info.isSymLink()) {
        if (!info.isSymLink()) {
            if (error) {
                *error = QStringLiteral("%1 exists and is not a symbolic link").arg(link);
            }
            return false;
        }
        QFile::remove(link);
    }
    if (::symlink(QFile::encodeName(target).constData(), QFile::encodeName(link).constData()) !=
        0) {
        if (error) {
            *error = QStringLiteral("cannot link %1: %2")
                         .arg(link, QString::fromLocal8Bit(std::strerror(errno)));
        }
        return false;
    }
    return true;
}

void sim_pty::remove_link(const QString &link, const QString &target) {
    // readlink rather than QFileInfo: after a hang-up the target no longer exists.
    char buf[4096];
    const ssize_t n = ::readlink(QFile::encodeName(link).constData(), buf, sizeof buf - 1);
    if (n > 0 && QFile::decodeName(QByteArray(buf, static_cast<int>(n))) == target) {
        QFile::remove(link);
    }
}
