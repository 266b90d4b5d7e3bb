#include "candump_log.h"

#include "frame_codec.h"

#include <QIODevice>

namespace candump_log {
namespace {

int hex_digit(char c) {
    if (c >= '0' && c <= '9') {
        return c - '0';
    }
    if (c >= 'a' && c <= 'f') {
        return c - 'a' + 10;
    }
    if (c >= 'A' && c <= 'F') {
        return c - 'A' + 10;
    }
    return -1;
}

bool is_space(char c) {
    return c == ' ' || c == '\t';
}

// Reads decimal digits at `pos` (at most `max_digits`, at least one) into `value`.
bool digits(const QByteArray &s, int &pos, int max_digits, qint64 *value, int *count) {
    qint64 v = 0;
    int n = 0;
    while (pos < s.size() && s.at(pos) >= '0' && s.at(pos) <= '9') {
        if (++n > max_digits) {
            return false;
        }
        v = v * 10 + (s.at(pos) - '0');
        ++pos;
    }
    *value = v;
    *count = n;
    return n > 0;
}

}  // namespace

QByteArray format(const monitor::bus_line &line) {
    if (!line.is_frame()) {
        return {};
    }
    static constexpr char upper[] = "0123456789ABCDEF";
    const qint64 us = qMax<qint64>(0, line.time_us);
    QByteArray out = '(' + QByteArray::number(us / 1000000).rightJustified(10, '0') + '.' +
                     QByteArray::number(us % 1000000).rightJustified(6, '0') + ") " +
                     interface_name + ' ';
    for (int shift = 8; shift >= 0; shift -= 4) {
        out += upper[(line.can_id >> shift) & 0xF];
    }
    out += '#';
    for (int i = 0; i < line.length; ++i) {
        out += upper[line.data[std::size_t(i)] >> 4];
        out += upper[line.data[std::size_t(i)] & 0xF];
    }
    out += line.dir == monitor::direction::sent ? " T\n" : " R\n";
    return out;
}

void reader::take(const QByteArray &raw) {
    ++lines_;
    QByteArray line = raw;
    while (!line.isEmpty() && (line.endsWith('\n') || line.endsWith('\r'))) {
        line.chop(1);
    }
    const QByteArray trimmed = line.trimmed();
    if (trimmed.isEmpty() || trimmed.startsWith('#')) {
        return;
    }
    monitor::bus_line frame;
    if (line.size() > max_line_length || !parse(trimmed, &frame)) {
        count_skipped();
        return;
    }
    ++read_;
    frames_.push_back(frame);
    while (frames_.size() > static_cast<std::size_t>(capacity_)) {
        frames_.pop_front();
    }
}

void reader::take_all(const QByteArray &bytes) {
    int start = 0;
    while (start < bytes.size()) {
        int end = bytes.indexOf('\n', start);
        if (end < 0) {
            end = bytes.size();
        }
        take(bytes.mid(start, end - start));
        start = end + 1;
    }
}

void reader::count_skipped() {
    ++skipped_;
    if (first_skipped_ == 0) {
        first_skipped_ = lines_;
    }
}

bool reader::take_all(QIODevice &device) {
    // A line too long for a candump line is read in bounded pieces: it counts as one skipped line
    // and the rest of it up to its end is passed over.
    bool in_long_line = false;
    while (!device.atEnd()) {
        const QByteArray piece = device.readLine(max_line_length + 2);
        if (piece.isEmpty()) {
            return device.atEnd();
        }
        const bool complete = piece.endsWith('\n') || device.atEnd();
        if (!in_long_line) {
            if (complete) {
                take(piece);
            } else {
                ++lines_;
                count_skipped();
            }
        }
        in_long_line = !complete;
    }
    return true;
}

bool reader::parse(const QByteArray &s, monitor::bus_line *frame) const {
    // "(" seconds "." fraction ")"
    int pos = 0;
    if (s.isEmpty() || s.at(pos++) != '(') {
        return false;
    }
    qint64 seconds = 0;
    qint64 fraction = 0;
    int n = 0;
    int fraction_digits = 0;
    if (!digits(s, pos, 12, &seconds, &n) || pos >= s.size() || s.at(pos++) != '.' ||
        !digits(s, pos, 9, &fraction, &fraction_digits) || pos >= s.size() ||
        s.at(pos++) != ')') {
        return false;
    }
    for (int i = fraction_digits; i < 6; ++i) {
        fraction *= 10;
    }
    for (int i = 6; i < fraction_digits; ++i) {
        fraction /= 10;
    }
    frame->time_us = seconds * 1000000 + fraction;

    // The interface, any name.
    if (pos >= s.size() || !is_space(s.at(pos))) {
        return false;
    }
    while (pos < s.size() && is_space(s.at(pos))) {
        ++pos;
    }
    const int name_start = pos;
    while (pos < s.size() && !is_space(s.at(pos))) {
        ++pos;
    }
    if (pos == name_start || pos >= s.size()) {
        return false;
    }
    while (pos < s.size() && is_space(s.at(pos))) {
        ++pos;
    }

    // Identifier "#" data: a standard identifier has three digits.
    const int frame_start = pos;
    while (pos < s.size() && !is_space(s.at(pos))) {
        ++pos;
    }
    const QByteArray text = s.mid(frame_start, pos - frame_start);
    const int hash = text.indexOf('#');
    if (hash != 3) {
        return false;
    }
    int id = 0;
    for (int i = 0; i < 3; ++i) {
        const int d = hex_digit(text.at(i));
        if (d < 0) {
            return false;
        }
        id = id * 16 + d;
    }
    const QByteArray data = text.mid(hash + 1);
    if (id > frame_codec::max_can_id || data.size() % 2 != 0 || data.size() > 16) {
        return false;  // also remote ("R") and CAN FD ("#" after "#") frames
    }
    frame->can_id = static_cast<quint16>(id);
    frame->length = static_cast<quint8>(data.size() / 2);
    for (int i = 0; i < frame->length; ++i) {
        const int high = hex_digit(data.at(2 * i));
        const int low = hex_digit(data.at(2 * i + 1));
        if (high < 0 || low < 0) {
            return false;
        }
        frame->data[std::size_t(i)] = static_cast<quint8>(high * 16 + low);
    }
    frame->kind = monitor::line_kind::frame;

    // The direction, when given; else the program's own frames carry its address in byte 1.
    while (pos < s.size() && is_space(s.at(pos))) {
        ++pos;
    }
    const QByteArray flag = s.mid(pos);
    if (flag == "T") {
        frame->dir = monitor::direction::sent;
    } else if (flag == "R") {
        frame->dir = monitor::direction::received;
    } else if (flag.isEmpty()) {
        frame->dir = frame->length > 1 && frame->data[1] == frame_codec::host_address
                         ? monitor::direction::sent
                         : monitor::direction::received;
    } else {
        return false;
    }
    return true;
}

}  // namespace candump_log
