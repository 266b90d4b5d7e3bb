#pragma once

#include "bus_line.h"

#include <QByteArray>
#include <QString>
#include <QVector>

#include <deque>

class QIODevice;

// The candump log format that CAN tools exchange, one frame a line:
//
//     (1690000000.123456) slcan0 0FA#D022000000000000 T
//
// the time in seconds since the epoch with microseconds, the interface, the identifier (three hex
// digits for a standard frame), "#" and the data bytes in hex, then "T" for a frame the program
// sent or "R" for one it received, as candump writes the direction. The checksum of the serial
// text is no part of the CAN frame and is left out.
namespace candump_log {

inline constexpr const char *interface_name = "slcan0";
// A line longer than this is no candump line (the longest standard one is under 60 characters).
inline constexpr int max_line_length = 256;

// The line for a frame (lines that are no frame have none: empty), with its "\n".
QByteArray format(const monitor::bus_line &line);

// Reads a log line by line, keeping the newest `capacity` frames. Lines that are empty or begin
// with "#" are passed over; every other line that is no standard data frame of 0 to 8 bytes
// (extended identifiers, remote and CAN FD frames, anything unreadable) is counted as skipped.
// A line without the direction is taken as sent when its byte 1 is the program's own address.
class reader {
public:
    explicit reader(int capacity) : capacity_(capacity > 0 ? capacity : 1) {}

    // One line, with or without its line end.
    void take(const QByteArray &line);
    // Every line of `bytes`.
    void take_all(const QByteArray &bytes);
    // Every line of `device`, read in bounded pieces. False when reading failed.
    bool take_all(QIODevice &device);

    const std::deque<monitor::bus_line> &frames() const { return frames_; }
    // Frames read, including those dropped to keep the newest `capacity`.
    qint64 frames_read() const { return read_; }
    qint64 skipped() const { return skipped_; }
    // Number (from 1) of the first skipped line, 0 when none was.
    qint64 first_skipped_line() const { return first_skipped_; }

private:
    bool parse(const QByteArray &line, monitor::bus_line *frame) const;
    void count_skipped();

    int capacity_;
    std::deque<monitor::bus_line> frames_;
    qint64 lines_ = 0;
    qint64 read_ = 0;
    qint64 skipped_ = 0;
    qint64 first_skipped_ = 0;
};

}  // namespace candump_log
