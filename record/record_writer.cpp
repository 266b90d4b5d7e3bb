#include "record_writer.h"

#include <QDate>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QTime>

namespace {

// Taken at the end of the constructor (in the recorder's GUI thread) and at the start of every call
// in the writer's thread: what the constructor wrote is seen to happen before, also by the thread
// sanitizer, which cannot see the hand-over inside Qt's event queue.
std::mutex construction;

// Start of the local day `days` after the one holding `ms`.
qint64 local_midnight(qint64 ms, int days) {
    const QDate day = QDateTime::fromMSecsSinceEpoch(ms, Qt::LocalTime).date();
    return QDateTime(day.addDays(days), QTime(0, 0), Qt::LocalTime).toMSecsSinceEpoch();
}

}  // namespace

record_writer::record_writer(record_queue &queue, qint64 steady_repeat_ms)
    : queue_(queue), steady_(steady_repeat_ms) {
    std::lock_guard<std::mutex> published(construction);
}

void record_writer::open() {
    { std::lock_guard<std::mutex> seen(construction); }
    if (opened_) {
        return;
    }
    opened_ = true;
    qint64 now_ms = 0;
    {
        std::lock_guard<std::mutex> hold(queue_.lock);
        directory_ = queue_.directory;
        now_ms = queue_.start_ms;
    }
    if (!QDir().mkpath(directory_) || !QFileInfo(directory_).isDir()) {
        fail(tr("Recording stopped: cannot create the directory %1.")
                 .arg(QDir::toNativeSeparators(directory_)));
        return;
    }
    start_file(now_ms);
}

bool record_writer::start_file(qint64 start_ms) {
    const QString stamp = QDateTime::fromMSecsSinceEpoch(start_ms, Qt::LocalTime)
                              .toString(QStringLiteral("yyyyMMdd-HHmmss"));
    const QDir dir(directory_);
    QString path = dir.filePath(QStringLiteral("lumivox-%1.csv").arg(stamp));
    // Two runs started within a second (or a file left by another program) get their own name.
    for (int n = 2; QFileInfo::exists(path); ++n) {
        path = dir.filePath(QStringLiteral("lumivox-%1-%2.csv").arg(stamp).arg(n));
    }
    file_.setFileName(path);
    if (!file_.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        fail(tr("Recording stopped: cannot write to %1 (%2).")
                 .arg(QDir::toNativeSeparators(path), file_.errorString()));
        return false;
    }
    next_midnight_ms_ = local_midnight(start_ms, 1);
    steady_.clear();
    out_ = record_format::header() + '\n';
    emit sig_file_started(path);
    return true;
}

void record_writer::drain() {
    { std::lock_guard<std::mutex> seen(construction); }
    QVector<device_sample> batch;
    {
        std::lock_guard<std::mutex> hold(queue_.lock);
        batch.swap(queue_.samples);
    }
    if (!batch.isEmpty()) {
        write(batch);
    }
}

void record_writer::write(const QVector<device_sample> &batch) {
    if (failed_ || !file_.isOpen()) {
        return;
    }
    for (const device_sample &sample : batch) {
        if (sample.ms >= next_midnight_ms_) {
            // A new day, a new file: the old one ends with the values held back, the new one
            // starts with every value as it is reported next.
            close();
            if (failed_ || !start_file(local_midnight(sample.ms, 0))) {
                return;
            }
        }
        steady_.take(sample, [this](const device_sample &passed) {
            record_format::append_line(out_, passed, times_);
        });
    }
    if (file_.write(out_) != out_.size() || !file_.flush()) {
        fail(tr("Recording stopped: cannot write to %1 (%2).")
                 .arg(QDir::toNativeSeparators(file_.fileName()), file_.errorString()));
    }
    out_.clear();
}

void record_writer::write_held() {
    for (const device_sample &sample : steady_.take_held()) {
        record_format::append_line(out_, sample, times_);
    }
}

void record_writer::close() {
    if (failed_ || !file_.isOpen()) {
        return;
    }
    write_held();
    const bool written = file_.write(out_) == out_.size() && file_.flush();
    out_.clear();
    if (!written) {
        fail(tr("Recording stopped: cannot write to %1 (%2).")
                 .arg(QDir::toNativeSeparators(file_.fileName()), file_.errorString()));
        return;
    }
    file_.close();
}

void record_writer::finish() {
    open();
    drain();
    close();
}

void record_writer::fail(const QString &why) {
    failed_ = true;
    out_.clear();
    steady_.clear();
    if (file_.isOpen()) {
        file_.close();
    }
    emit sig_failed(why);
}
