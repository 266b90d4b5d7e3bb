#pragma once

#include <QObject>
#include <QString>

// Composes the frame texts a device object sends. The base class of `device`; it holds no data of
// its own and forwards to the pure functions of frame_codec.
class can_command_factory : public QObject {
    Q_OBJECT
public:
    // Makes sure the process-wide checksum table exists (it is built once, on first use).
    explicit can_command_factory(QObject *parent = nullptr);

    // Frame for (CAN id, code, value), value sent as unsigned 32 bits; ends in "\r\n".
    QString compose_write_frame(int can_id, int code, quint32 value) const;
    // The write frame for (CAN id, code + 0x80, 0): a read request for `code`.
    QString compose_read_request(int can_id, int code) const;
};
