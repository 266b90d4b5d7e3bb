#include "line_cutter.h"

namespace line_cutter {

QList<QByteArray> append(QByteArray &buffer, const QByteArray &chunk) {
    buffer.append(chunk);
    QList<QByteArray> lines;
    if (!buffer.contains('\r')) {
        return lines;
    }
    // Every piece closed by a carriage return is a line; text after the last one is discarded
    // with the buffer.
    QList<QByteArray> pieces = buffer.split('\r');
    pieces.removeLast();
    buffer.clear();
    for (QByteArray &piece : pieces) {
        if (!piece.isEmpty()) {
            lines.append(std::move(piece));
        }
    }
    return lines;
}

void bound(QByteArray &buffer, int limit) {
    if (buffer.size() > limit) {
        buffer.clear();
    }
}

}  // namespace line_cutter
