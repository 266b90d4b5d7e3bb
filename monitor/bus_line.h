#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QtGlobal>

#include <array>

// What the bus monitor keeps of one string the serial link wrote or one line it received, and how
// it reads such a text into a CAN frame. Pure functions and plain values, without widgets: the
// monitor's list, its log files and the fuzz targets share them.
namespace monitor {

enum class direction : quint8 { sent, received };

enum class line_kind : quint8 {
    frame,         // a CAN frame text, with a matching checksum or none
    bad_checksum,  // a frame text whose checksum does not match (the program takes it all the same)
    malformed,     // begins with "t" but is no frame text: the program takes it with fields read as 0
    ignored,       // a received line the program ignores (adapter replies, noise)
    text,          // a string the program wrote that is no frame (adapter commands, TTL tester)
};

// The longest text kept of a line that is not a frame; the rest is counted, not kept (the link
// passes on up to 5000 bytes without a carriage return, a hundred thousand of them would not fit).
inline constexpr int max_kept_text = 200;

struct bus_line {
    qint64 time_us = 0;  // microseconds since the epoch, taken as the line passed the link
    direction dir = direction::received;
    line_kind kind = line_kind::frame;
    quint8 length = 0;  // data bytes (frames)
    quint16 can_id = 0;
    std::array<quint8, 8> data{};
    QString text;  // lines that are no frame: the text as it came, line ends removed, shortened

    bool is_frame() const { return kind == line_kind::frame || kind == line_kind::bad_checksum; }
    // Byte 0, the command code (-1 without it).
    int code() const { return is_frame() && length > 0 ? data[0] : -1; }
    // Byte 1, the sender's address (-1 without it).
    int sender() const { return is_frame() && length > 1 ? data[1] : -1; }
    // Bytes 4-7 as the program reads them (frames of eight bytes only).
    bool has_value() const { return is_frame() && length == 8; }
    qint32 value() const;
    // The device a frame belongs to: the addressed one for a frame sent, the sender for an answer
    // (-1 for lines that are no frame).
    int address() const;
    // A read request of the program: a code with bit 7 set, sent (its value means nothing).
    bool is_request() const { return dir == direction::sent && code() >= 0x80; }

    bool operator==(const bus_line &other) const;
    bool operator!=(const bus_line &other) const { return !(*this == other); }
};

// Reads one string as the link wrote it (`sent`) or one line as it cut it from the stream. Line
// ends are taken off the end of a string written; a received line is read as it came.
bus_line read_wire(qint64 time_us, direction dir, const QString &text);

// What one code means to a device, as its panel describes it.
struct code_meaning {
    QString name;        // "read temperature", "write current set-point"
    QString unit;        // of the value, empty for plain numbers
    double divisor = 1;  // value in `unit` = (raw - offset) / divisor
    double offset = 0;
    int decimals = 0;
    bool scaled = false;  // the value has a meaning of its own (else only the name is known)
};

// A device as the monitor names its frames: its name and what its codes mean.
struct device_words {
    QString name;
    QHash<int, code_meaning> codes;
};

// "12.3 mA": a raw value read through `meaning`.
QString value_text(const code_meaning &meaning, qint32 raw);

// "0x0fa": identifiers and codes as the monitor shows them.
QString hex_text(int number, int digits);

// A line that is no frame, readable: control characters as \r, \n, \xNN.
QString printable(const QString &text);

}  // namespace monitor
