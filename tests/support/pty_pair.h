#pragma once

#include <QByteArray>
#include <QString>

// A pseudo-terminal for tests: the program opens the slave path as its serial port, the test
// holds the master end and sees (and sends) the exact bytes.
class pty_pair {
public:
    pty_pair();
    ~pty_pair();
    pty_pair(const pty_pair &) = delete;
    pty_pair &operator=(const pty_pair &) = delete;

    bool ok() const { return master_ >= 0; }
    QString slave_path() const { return slave_path_; }
    int master_fd() const { return master_; }

    // Writes all bytes to the master end.
    bool write(const QByteArray &bytes);
    // Reads until `count` bytes arrived or `timeout_ms` passed; returns what arrived.
    QByteArray read_exactly(int count, int timeout_ms = 3000);
    // Reads whatever arrives until the line is quiet for `quiet_ms` (or `timeout_ms` in all).
    QByteArray read_until_quiet(int quiet_ms = 150, int timeout_ms = 3000);
    // Discards what is waiting on the master end.
    void drain();
    // Closes the master end: the slave side sees a hang-up.
    void hang_up();

private:
    int master_ = -1;
    int slave_ = -1;  // kept open so the slave stays configured until the program opens it
    QString slave_path_;
};
