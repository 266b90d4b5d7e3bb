#pragma once

#include "instrument.h"

#include <QByteArray>
#include <QList>
#include <QVector>

// One client's conversation with the instrument: runs its lines of commands and keeps its own
// error queue. No sockets: the server hands it lines and sends back what it answers, and tests and
// the fuzz target call it directly.
//
// A line holds one command or several joined by ';'. The answers of its queries come back in one
// line, joined by ';'. A command after ';' continues from the nodes its predecessor's header went
// through, the deepest that names a command ("DEV1:READ:LIST?;SETP? current" asks DEV1:SETP?),
// else from the root; one that begins with ':' starts from the root. A command that fails ends its line: an error is queued and the commands after
// it are not run, so a failed set-point never lets a following "OUTP ON" through.
class command_session {
public:
    static constexpr int error_queue_size = 16;

    explicit command_session(instrument &target);

    // Runs one line, given without its terminator. Returns the answers with "\n" at the end, or
    // nothing when the line asked nothing (or failed before its first answer).
    QByteArray run(const QByteArray &line);

    // Queues an error; on a full queue the newest entry becomes -350 "Queue overflow" and later
    // errors are dropped until the queue is read.
    void push_error(int code, const QByteArray &detail = {});
    int errors_queued() const { return errors_.size(); }

    // A row of the command table and what running one command came to (defined with the table).
    struct command_def;
    struct result;

private:

    result execute(const command_def &def, int device_id, const QVector<QByteArray> &args,
                   const QVector<bool> &quoted);
    result device_query(const command_def &def, int id, const QVector<QByteArray> &args);
    result device_write(const command_def &def, int id, const QVector<QByteArray> &args);

    instrument &target_;
    QList<QByteArray> errors_;  // "<code>,\"<text>[;<detail>]\"", oldest first
};
