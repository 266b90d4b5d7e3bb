#pragma once

#include "device_sample.h"
#include "observation_hub.h"

#include <QObject>
#include <QString>
#include <QTimer>
#include <QVector>

#include <memory>

class record_writer;
struct record_queue;
class worker_thread;

// Writes every sample it takes to CSV files (see record_format.h) in a directory the operator
// chooses: a new file for each run and another at each local midnight, named after the local
// time the file starts ("lumivox-20250314-092653.csv").
//
// Readings and states are written when they change; a value that stays the same is written again
// every `steady_repeat_ms`, and the last unchanged sample before a change is written too, so a
// line drawn from sample to sample in the file is the trend the devices reported. Set-points and
// parameters are written every time.
//
// Nothing is written on the GUI thread: samples are collected there and handed to a writer in a
// thread of its own every `hand_over_ms`; the writer flushes the file after each hand-over. When
// the directory cannot be made or written, or the disk is full, recording stops and
// sig_failed() says why; the program goes on.
class recorder : public QObject {
    Q_OBJECT
public:
    static constexpr int hand_over_ms = 500;
    static constexpr qint64 steady_repeat_ms = 10000;

    explicit recorder(wall_clock now = system_clock(), QObject *parent = nullptr);
    // Hands over what is still collected, closes the file and stops the writer's thread.
    ~recorder() override;

    // Starts a run in `directory` (made if missing). Whether it can be written is found out by the
    // writer's thread: a failure arrives as sig_failed() shortly after.
    void start(const QString &directory);
    // Writes what is collected, closes the file and ends the run.
    void stop();
    bool recording() const { return writer_ != nullptr; }
    QString directory() const { return directory_; }

public slots:
    void take(const device_sample &sample);

signals:
    // Recording has stopped: `why` names the directory or file and the system's reason.
    void sig_failed(const QString &why);
    // A file was started (the run's first, or the next day's).
    void sig_file_started(const QString &path);

private:
    void hand_over();
    void writer_failed(const QString &why);

    wall_clock now_;
    QString directory_;
    QVector<device_sample> collected_;
    QTimer hand_over_timer_;
    std::unique_ptr<record_queue> queue_;
    std::unique_ptr<worker_thread> thread_;
    record_writer *writer_ = nullptr;  // lives in thread_
};
