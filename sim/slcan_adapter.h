#pragma once

#include <QByteArray>

class sim_bus;

// The USB-to-CAN adapter's side of the serial line, speaking the SLCAN text commands the program
// uses. Commands end in a carriage return; the line feeds and empty lines the program's writer
// adds are skipped. "O" opens the CAN channel, "C" closes it, "S0" to "S8" pick the bit rate; each
// is answered with "\r". A frame "t..." is checked (length, hex digits, checksum) and handed to the
// bus while the channel is open; the devices' answers come back as text. Anything else, a bad
// frame, or a frame while the channel is closed, is answered with the bell "\a".
class slcan_adapter {
public:
    explicit slcan_adapter(sim_bus &bus) : bus_(bus) {}

    // Takes bytes from the program (a command may be split across calls); returns the bytes to
    // send back.
    QByteArray feed(const QByteArray &bytes);

    bool channel_open() const { return open_; }
    // The bit-rate code of the last "S" command (6 is 500 kbit/s), -1 before any.
    int bit_rate_code() const { return bit_rate_; }
    // Frames passed to the bus, and commands answered with the bell.
    int frames_passed() const { return frames_; }
    int refused() const { return refused_; }

    // A command line without its end grows no longer than this; beyond it the text is dropped.
    static constexpr int max_command_length = 64;

private:
    QByteArray command(const QByteArray &line);

    sim_bus &bus_;
    QByteArray pending_;
    bool overflow_ = false;
    bool open_ = false;
    int bit_rate_ = -1;
    int frames_ = 0;
    int refused_ = 0;
};
