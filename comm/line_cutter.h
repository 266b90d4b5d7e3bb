#pragma once

#include <QByteArray>
#include <QList>

// Cuts the byte stream from the adapter into lines, as the serial link delivers them: the bytes of
// each read are appended to a buffer; once the buffer holds a carriage return, every non-empty
// piece closed by one is a line (a line feed after a carriage return starts the next piece) and the
// buffer is emptied, text after the last carriage return included. Pure functions over a buffer
// the caller owns, so that the link and the fuzz target run exactly the same code.
namespace line_cutter {

// Appends `chunk` to `buffer` and returns the lines it completes, in order (none while the buffer
// holds no carriage return).
QList<QByteArray> append(QByteArray &buffer, const QByteArray &chunk);

// After a read: a buffer that has grown beyond `limit` bytes without a carriage return is dropped,
// so a stream without line ends cannot grow without bound.
void bound(QByteArray &buffer, int limit);

}  // namespace line_cutter
