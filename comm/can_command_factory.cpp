#include "can_command_factory.h"

#include "frame_codec.h"

can_command_factory::can_command_factory(QObject *parent) : QObject(parent) {
    frame_codec::crc_table();
}

QString can_command_factory::compose_write_frame(int can_id, int code, quint32 value) const {
    return frame_codec::compose(can_id, code, value);
}

QString can_command_factory::compose_read_request(int can_id, int code) const {
    return frame_codec::compose(can_id, code + 0x80, 0);
}
