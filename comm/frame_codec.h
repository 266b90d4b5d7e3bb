#pragma once

#include <QString>
#include <QtGlobal>

#include <array>
#include <cstddef>

// The text form of one CAN frame on the serial line and its checksum, as pure functions.
// `can_command_factory` and `device` call these; tests and benchmarks use them alone.
namespace frame_codec {

// Address the program puts into byte 1 of every frame it sends.
inline constexpr int host_address = 0x22;
// Number of leading characters of a frame text that the checksum covers ("t" to the last value digit).
inline constexpr int checksum_span = 21;

// The highest identifier a standard frame carries (11 bits, three hex digits in the text). A device
// at any other id would send malformed frames, so it sends none.
inline constexpr int max_can_id = 0x7FF;
inline constexpr bool carries_can_id(int can_id) {
    return can_id >= 0 && can_id <= max_can_id;
}

using crc_table_t = std::array<quint16, 256>;

// Builds the CRC-16/MODBUS lookup table: each index is bit-reversed, run through sixteen steps of
// the plain shift-and-XOR with 0x8005, and the 16-bit result bit-reversed again.
crc_table_t build_crc_table();

// The table, built once for the whole process on first use.
const crc_table_t &crc_table();

// CRC-16/MODBUS (init 0xFFFF, reflected, no final XOR) of `len` bytes.
quint16 crc16_modbus(const char *data, std::size_t len);

// Frame text for (CAN id, code, value), ending in "\r\n": "t", id (3 hex), "8", code (2 hex), "22",
// "0000", value (8 hex, unsigned 32 bits), checksum (4 hex). Hex digits are lower case.
QString compose(int can_id, int code, quint32 value);

// Two's complement conversion of a signed value for the wire (a negative value goes out as
// its unsigned 32-bit pattern).
inline quint32 to_wire(long value) { return static_cast<quint32>(static_cast<qint64>(value)); }

// The one place where a received 32-bit word becomes a signed value: 0xFFFFFF06 is -250.
inline qint32 from_wire(quint32 word) { return static_cast<qint32>(word); }

// One received line (without its carriage return) cut into the fields the program uses.
struct parsed_line {
    bool is_frame = false;  // false: the first field is not "t", the line is to be ignored
    int sender = 0;         // byte 1, the answering device's address (0 when not hexadecimal)
    int code = 0;           // byte 0 (0 when not hexadecimal)
    qint32 value = 0;       // bytes 4-7; 0 when the reserved bytes are not zero or not hexadecimal
};

// Cuts a received line into fields. The checksum, the frame's own id and the length digit are not
// checked: an answer is recognised by its sender byte alone.
parsed_line parse(const QString &line);

// Whether a device at `own_can_id` takes an answer from `sender`: its own answers always; every
// answer when it was created in mini USB mode or when it is addressed as 0xFA.
inline bool accepts(int sender, int own_can_id, bool accept_any_sender) {
    return sender == own_can_id || accept_any_sender || own_can_id == 0xFA;
}

}  // namespace frame_codec
