#include "log_replay.h"

#include "frame_codec.h"

bool log_replay::open(const QString &path, QString *error) {
    file_.setFileName(path);
    if (!file_.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("cannot open %1: %2").arg(path, file_.errorString());
        return false;
    }
    return true;
}

std::optional<log_replay::step> log_replay::next() {
    while (file_.isOpen() && !file_.atEnd()) {
        const qint64 before = reader_.frames_read();
        QByteArray line = file_.readLine(candump_log::max_line_length + 2);
        if (!line.endsWith('\n') && !file_.atEnd()) {
            // Longer than any candump line: passed over to its end, and skipped by the reader.
            while (!file_.atEnd()) {
                const QByteArray rest = file_.readLine(candump_log::max_line_length + 2);
                if (rest.isEmpty() || rest.endsWith('\n')) {
                    break;
                }
            }
            line = QByteArray(candump_log::max_line_length + 1, 'x');
        }
        reader_.take(line);
        if (reader_.frames_read() == before) {
            continue;
        }
        const monitor::bus_line &frame = reader_.frames().back();
        if (frame.dir != monitor::direction::received) {
            continue;
        }
        step s;
        s.delay_us = last_us_ < 0 ? 0 : qMax<qint64>(0, frame.time_us - last_us_);
        s.text = frame_text(frame);
        last_us_ = frame.time_us;
        ++played_;
        return s;
    }
    return std::nullopt;
}

QByteArray log_replay::frame_text(const monitor::bus_line &frame) {
    QByteArray out;
    out.append('t');
    out.append(QByteArray::number(frame.can_id, 16).rightJustified(3, '0'));
    out.append(static_cast<char>('0' + frame.length));
    for (int i = 0; i < frame.length; ++i) {
        out.append(QByteArray::number(frame.data[std::size_t(i)], 16).rightJustified(2, '0'));
    }
    const quint16 crc = frame_codec::crc16_modbus(
        out.constData(), static_cast<std::size_t>(qMin(out.size(), frame_codec::checksum_span)));
    out.append(QByteArray::number(crc, 16).rightJustified(4, '0'));
    out.append('\r');
    return out;
}
