#include "sim_frame.h"

#include "frame_codec.h"

namespace sim_frame {
namespace {

void append_hex(QByteArray &out, quint32 value, int width) {
    out.append(QByteArray::number(value, 16).rightJustified(width, '0'));
}

// Value of `count` hex digits at `pos`, or -1 when one of them is not a hex digit.
qint64 hex_field(const QByteArray &line, int pos, int count) {
    qint64 result = 0;
    for (int i = pos; i < pos + count; ++i) {
        const char c = line.at(i);
        int digit = -1;
        if (c >= '0' && c <= '9') {
            digit = c - '0';
        } else if (c >= 'a' && c <= 'f') {
            digit = c - 'a' + 10;
        } else if (c >= 'A' && c <= 'F') {
            digit = c - 'A' + 10;
        }
        if (digit < 0) {
            return -1;
        }
        result = result * 16 + digit;
    }
    return result;
}

}  // namespace

QByteArray compose_answer(int can_id, int sender, int code, quint32 value) {
    QByteArray out;
    out.reserve(frame_length + 1);
    out.append('t');
    append_hex(out, static_cast<quint32>(can_id), 3);
    out.append('8');
    append_hex(out, static_cast<quint32>(code), 2);
    append_hex(out, static_cast<quint32>(sender), 2);
    out.append("0000");
    append_hex(out, value, 8);
    const quint16 crc = frame_codec::crc16_modbus(
        out.constData(), static_cast<std::size_t>(qMin(out.size(), frame_codec::checksum_span)));
    append_hex(out, crc, 4);
    out.append('\r');
    return out;
}

std::optional<request> parse_request(const QByteArray &line) {
    if (line.size() != frame_length || line.at(0) != 't' || line.at(4) != '8') {
        return std::nullopt;
    }
    const qint64 id = hex_field(line, 1, 3);
    const qint64 code = hex_field(line, 5, 2);
    const qint64 sender = hex_field(line, 7, 2);
    const qint64 reserved = hex_field(line, 9, 4);
    const qint64 value = hex_field(line, 13, 8);
    const qint64 crc = hex_field(line, 21, 4);
    if (id < 0 || code < 0 || sender < 0 || reserved < 0 || value < 0 || crc < 0) {
        return std::nullopt;
    }
    if (crc != frame_codec::crc16_modbus(line.constData(), frame_codec::checksum_span)) {
        return std::nullopt;
    }
    request r;
    r.can_id = static_cast<int>(id);
    r.code = static_cast<int>(code);
    r.sender = static_cast<int>(sender);
    r.reserved = static_cast<quint16>(reserved);
    r.value = frame_codec::from_wire(static_cast<quint32>(value));
    return r;
}

}  // namespace sim_frame
