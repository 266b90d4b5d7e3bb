#include "frame_codec.h"

#include <QStringList>

namespace frame_codec {
namespace {

quint16 reflect(quint16 value, int bits) {
    quint16 result = 0;
    for (int i = 0; i < bits; ++i) {
        if (value & (1u << i)) {
            result = static_cast<quint16>(result | (1u << (bits - 1 - i)));
        }
    }
    return result;
}

// Lower-case hex, zero-padded to at least `width` digits, written into `out` at `pos`.
int put_hex(char *out, int pos, quint32 value, int width) {
    static constexpr char digits[] = "0123456789abcdef";
    char tmp[8];
    int n = 0;
    do {
        tmp[n++] = digits[value & 0xF];
        value >>= 4;
    } while (value != 0 && n < 8);
    for (int i = n; i < width; ++i) {
        out[pos++] = '0';
    }
    while (n > 0) {
        out[pos++] = tmp[--n];
    }
    return pos;
}

}  // namespace

crc_table_t build_crc_table() {
    crc_table_t table{};
    for (int i = 0; i < 256; ++i) {
        quint16 crc = reflect(static_cast<quint16>(i), 8);
        for (int step = 0; step < 16; ++step) {
            crc = static_cast<quint16>((crc & 0x8000) ? (crc << 1) ^ 0x8005 : (crc << 1));
        }
        table[static_cast<std::size_t>(i)] = reflect(crc, 16);
    }
    return table;
}

const crc_table_t &crc_table() {
    static const crc_table_t table = build_crc_table();
    return table;
}

quint16 crc16_modbus(const char *data, std::size_t len) {
    const crc_table_t &table = crc_table();
    quint16 crc = 0xFFFF;
    for (std::size_t i = 0; i < len; ++i) {
        crc = static_cast<quint16>((crc >> 8) ^
                                   table[(crc ^ static_cast<quint8>(data[i])) & 0xFF]);
    }
    return crc;
}

QString compose(int can_id, int code, quint32 value) {
    // Widths are minimum widths: an id above 0xFFF or a code above 0xFF makes a longer field,
    // and the checksum still covers only the first 21 characters.
    char text[48];
    int pos = 0;
    text[pos++] = 't';
    pos = put_hex(text, pos, static_cast<quint32>(can_id), 3);
    text[pos++] = '8';
    pos = put_hex(text, pos, static_cast<quint32>(code), 2);
    pos = put_hex(text, pos, static_cast<quint32>(host_address), 2);
    for (int i = 0; i < 4; ++i) {
        text[pos++] = '0';
    }
    pos = put_hex(text, pos, value, 8);
    const quint16 crc = crc16_modbus(text, static_cast<std::size_t>(qMin(pos, checksum_span)));
    pos = put_hex(text, pos, crc, 4);
    text[pos++] = '\r';
    text[pos++] = '\n';
    return QString::fromLatin1(text, pos);
}

parsed_line parse(const QString &line) {
    // Spaces go in after "t", the id, the length digit, the code, the sender and the value; each
    // index counts in the string as it stands after the previous insertion. A short line is
    // padded with blanks by the insertion and so yields empty fields, which read as 0.
    QString spaced = line;
    for (int index : {1, 5, 7, 10, 13, 26}) {
        spaced.insert(index, QLatin1Char(' '));
    }
    const QStringList fields = spaced.split(QLatin1Char(' '));

    parsed_line result;
    if (fields.value(0) != QLatin1String("t")) {
        return result;
    }
    result.is_frame = true;
    result.sender = fields.value(4).toInt(nullptr, 16);
    result.code = fields.value(3).toInt(nullptr, 16);
    bool ok = false;
    const uint word = fields.value(5).toUInt(&ok, 16);
    result.value = ok ? from_wire(word) : 0;
    return result;
}

}  // namespace frame_codec
