#pragma once

#include "candump_log.h"

#include <QByteArray>
#include <QFile>
#include <QString>

#include <optional>

// A candump log played back as the devices' side of the line: the frames the log recorded as
// received by the program, each as the frame text the devices write (with its checksum and the
// adapter's "\r"), at the pace the log recorded. The frames the program sent are passed over:
// the program sends its own. The file is read as the replay goes, so its length costs no memory.
class log_replay {
public:
    // Opens the log. False with the reason in `error`.
    bool open(const QString &path, QString *error);

    struct step {
        qint64 delay_us = 0;  // after the previous frame (the first: 0; never negative)
        QByteArray text;      // the frame text to write
    };
    // The next frame to play, or nothing at the end of the log.
    std::optional<step> next();

    qint64 played() const { return played_; }
    qint64 skipped_lines() const { return reader_.skipped(); }

    // The text of a frame as the devices write it: "t", id, length, data, checksum, "\r".
    static QByteArray frame_text(const monitor::bus_line &frame);

private:
    QFile file_;
    candump_log::reader reader_{1};
    qint64 last_us_ = -1;
    qint64 played_ = 0;
};
