#include "bus_line.h"

#include "frame_codec.h"

#include <cmath>

namespace monitor {
namespace {

int hex_digit(QChar c) {
    const ushort u = c.unicode();
    if (u >= '0' && u <= '9') {
        return u - '0';
    }
    if (u >= 'a' && u <= 'f') {
        return u - 'a' + 10;
    }
    if (u >= 'A' && u <= 'F') {
        return u - 'A' + 10;
    }
    return -1;
}

// Value of `count` hex digits at `pos`, or -1 when one of them is not a hex digit.
int hex_field(const QString &text, int pos, int count) {
    int result = 0;
    for (int i = pos; i < pos + count; ++i) {
        const int digit = hex_digit(text.at(i));
        if (digit < 0) {
            return -1;
        }
        result = result * 16 + digit;
    }
    return result;
}

// A frame text: "t", id (3 hex), length (0 to 8), the data bytes (2 hex each), then the checksum
// (4 hex) or nothing. The checksum covers what the program's composer covers.
bool read_frame(const QString &text, bus_line *line) {
    if (text.size() < 5 || text.at(0) != QLatin1Char('t')) {
        return false;
    }
    const int id = hex_field(text, 1, 3);
    const int length = text.at(4).unicode() - '0';
    if (id < 0 || length < 0 || length > 8) {
        return false;
    }
    const int data_end = 5 + 2 * length;
    const int rest = text.size() - data_end;
    if (rest != 0 && rest != 4) {
        return false;
    }
    for (int i = 0; i < length; ++i) {
        const int byte = hex_field(text, 5 + 2 * i, 2);
        if (byte < 0) {
            return false;
        }
        line->data[static_cast<std::size_t>(i)] = static_cast<quint8>(byte);
    }
    bool checksum_ok = true;
    if (rest == 4) {
        const int crc = hex_field(text, data_end, 4);
        if (crc < 0) {
            return false;
        }
        const QByteArray covered = text.left(qMin(data_end, frame_codec::checksum_span)).toLatin1();
        checksum_ok = crc == frame_codec::crc16_modbus(covered.constData(),
                                                       static_cast<std::size_t>(covered.size()));
    }
    line->can_id = static_cast<quint16>(id);
    line->length = static_cast<quint8>(length);
    line->kind = checksum_ok ? line_kind::frame : line_kind::bad_checksum;
    return true;
}

}  // namespace

qint32 bus_line::value() const {
    if (!has_value()) {
        return 0;
    }
    const quint32 word = (quint32(data[4]) << 24) | (quint32(data[5]) << 16) |
                         (quint32(data[6]) << 8) | quint32(data[7]);
    return frame_codec::from_wire(word);
}

int bus_line::address() const {
    if (!is_frame()) {
        return -1;
    }
    if (dir == direction::received && length > 1) {
        return data[1];
    }
    return can_id;
}

bool bus_line::operator==(const bus_line &other) const {
    return time_us == other.time_us && dir == other.dir && kind == other.kind &&
           length == other.length && can_id == other.can_id && data == other.data &&
           text == other.text;
}

bus_line read_wire(qint64 time_us, direction dir, const QString &text) {
    bus_line line;
    line.time_us = time_us;
    line.dir = dir;
    QString body = text;
    if (dir == direction::sent) {
        int end = body.size();
        while (end > 0 && (body.at(end - 1) == QLatin1Char('\r') ||
                           body.at(end - 1) == QLatin1Char('\n'))) {
            --end;
        }
        body.truncate(end);
    }
    if (body.startsWith(QLatin1Char('t'))) {
        if (read_frame(body, &line)) {
            return line;
        }
        line.kind = line_kind::malformed;
    } else {
        line.kind = dir == direction::sent ? line_kind::text : line_kind::ignored;
    }
    line.data = {};
    line.length = 0;
    line.can_id = 0;
    if (body.size() > max_kept_text) {
        line.text = body.left(max_kept_text) +
                    QStringLiteral("... (%1 more characters)").arg(body.size() - max_kept_text);
    } else {
        line.text = body;
    }
    return line;
}

QString value_text(const code_meaning &meaning, qint32 raw) {
    const double value = (static_cast<double>(raw) - meaning.offset) / meaning.divisor;
    QString text = QString::number(value, 'f', meaning.decimals);
    if (!meaning.unit.isEmpty()) {
        text += QLatin1Char(' ') + meaning.unit;
    }
    return text;
}

QString hex_text(int number, int digits) {
    return QStringLiteral("0x") + QString::number(number, 16).rightJustified(digits, QLatin1Char('0'));
}

QString printable(const QString &text) {
    QString out;
    out.reserve(text.size());
    for (const QChar c : text) {
        const ushort u = c.unicode();
        if (u == '\r') {
            out += QLatin1String("\\r");
        } else if (u == '\n') {
            out += QLatin1String("\\n");
        } else if (u < 0x20 || u == 0x7F) {
            out += QStringLiteral("\\x%1").arg(u, 2, 16, QLatin1Char('0'));
        } else {
            out += c;
        }
    }
    return out;
}

}  // namespace monitor
