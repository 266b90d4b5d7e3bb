#pragma once

#include "device_sample.h"
#include "record_format.h"
#include "repeat_filter.h"

#include <QByteArray>
#include <QFile>
#include <QObject>
#include <QString>
#include <QVector>

#include <mutex>

// What the recorder hands to its writer. Guarded by a lock of the standard library rather than
// passed along with the queued calls, so that the hand-over is visible to the thread sanitizer.
struct record_queue {
    std::mutex lock;
    QString directory;
    qint64 start_ms = 0;
    QVector<device_sample> samples;
};

// The recorder's other half, living in the recorder's thread: decides which samples go into the
// file (see recorder.h), formats them and writes the files, starting a new one at local midnight.
class record_writer : public QObject {
    Q_OBJECT
public:
    record_writer(record_queue &queue, qint64 steady_repeat_ms);

    // Makes the queue's directory and starts the run's first file, named after its start time.
    void open();
    // Writes what the queue holds (in time order) and flushes the file.
    void drain();
    // Writes what was held back and closes the file.
    void close();
    // The end of a run: opens if that was not done yet, writes what the queue holds and closes.
    void finish();

signals:
    void sig_failed(const QString &why);
    void sig_file_started(const QString &path);

private:
    void write(const QVector<device_sample> &batch);
    bool start_file(qint64 start_ms);
    void write_held();
    void fail(const QString &why);

    record_queue &queue_;
    QString directory_;
    QFile file_;
    qint64 next_midnight_ms_ = 0;
    QByteArray out_;
    record_format::time_writer times_;
    repeat_filter steady_;
    bool opened_ = false;
    bool failed_ = false;
};
