#include "pty_pair.h"

#include <QElapsedTimer>

#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <termios.h>
#include <unistd.h>

pty_pair::pty_pair() {
    char name[256] = {};
    termios raw{};
    cfmakeraw(&raw);
    if (::openpty(&master_, &slave_, name, &raw, nullptr) != 0) {
        master_ = slave_ = -1;
        return;
    }
    slave_path_ = QString::fromLocal8Bit(name);
    ::fcntl(master_, F_SETFL, ::fcntl(master_, F_GETFL) | O_NONBLOCK);
}

pty_pair::~pty_pair() {
    hang_up();
    if (slave_ >= 0) {
        ::close(slave_);
    }
}

bool pty_pair::write(const QByteArray &bytes) {
    qsizetype done = 0;
    while (done < bytes.size()) {
        const ssize_t n = ::write(master_, bytes.constData() + done,
                                  static_cast<size_t>(bytes.size() - done));
        if (n < 0) {
            if (errno == EAGAIN || errno == EINTR) {
                pollfd p{master_, POLLOUT, 0};
                ::poll(&p, 1, 100);
                continue;
            }
            return false;
        }
        done += n;
    }
    return true;
}

QByteArray pty_pair::read_exactly(int count, int timeout_ms) {
    QByteArray out;
    QElapsedTimer clock;
    clock.start();
    while (out.size() < count && clock.elapsed() < timeout_ms) {
        pollfd p{master_, POLLIN, 0};
        if (::poll(&p, 1, 20) > 0 && (p.revents & POLLIN)) {
            char buf[4096];
            const ssize_t n = ::read(master_, buf, static_cast<size_t>(qMin(4096, count - out.size())));
            if (n > 0) {
                out.append(buf, static_cast<int>(n));
            }
        }
    }
    return out;
}

QByteArray pty_pair::read_until_quiet(int quiet_ms, int timeout_ms) {
    QByteArray out;
    QElapsedTimer clock;
    clock.start();
    QElapsedTimer quiet;
    quiet.start();
    while (clock.elapsed() < timeout_ms && quiet.elapsed() < quiet_ms) {
        pollfd p{master_, POLLIN, 0};
        if (::poll(&p, 1, 10) > 0 && (p.revents & POLLIN)) {
            char buf[4096];
            const ssize_t n = ::read(master_, buf, sizeof buf);
            if (n > 0) {
                out.append(buf, static_cast<int>(n));
                quiet.restart();
            }
        }
    }
    return out;
}

void pty_pair::drain() { read_until_quiet(50, 500); }

void pty_pair::hang_up() {
    if (master_ >= 0) {
        ::close(master_);
        master_ = -1;
    }
}
