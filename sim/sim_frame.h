#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <optional>

// The frame text as the devices' side of the cable sees it: requests from the program come in
// through the adapter, answers go out with the answering device's own address in byte 1.
namespace sim_frame {

// Characters of a frame text before its line end: "t", id (3), length (1), 8 data bytes (16),
// checksum (4).
inline constexpr int frame_length = 25;

// One request as it arrives from the program.
struct request {
    int can_id = 0;        // the addressed device (the frame's own identifier)
    int code = 0;          // byte 0: bit 7 clear writes, bit 7 set reads (code & 0x7F)
    int sender = 0;        // byte 1: the host's address
    quint16 reserved = 0;  // bytes 2-3
    qint32 value = 0;      // bytes 4-7, two's complement
};

// Answer text for a device at `can_id` reporting (code, value), with `sender` in byte 1, the
// CRC-16/MODBUS of the first 21 characters, and the adapter's "\r" at the end. Hex digits are lower
// case, as the program writes them.
QByteArray compose_answer(int can_id, int sender, int code, quint32 value);

// Reads one request line (without its line end). Empty when the line is not a well-formed
// eight-byte frame text or its checksum does not match.
std::optional<request> parse_request(const QByteArray &line);

}  // namespace sim_frame
