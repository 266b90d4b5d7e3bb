#include "recorder.h"

#include "record_writer.h"
#include "worker_thread.h"

recorder::recorder(wall_clock now, QObject *parent) : QObject(parent), now_(std::move(now)) {
    hand_over_timer_.setInterval(hand_over_ms);
    connect(&hand_over_timer_, &QTimer::timeout, this, &recorder::hand_over);
}

recorder::~recorder() {
    stop();
}

void recorder::start(const QString &directory) {
    stop();
    directory_ = directory;
    queue_ = std::make_unique<record_queue>();
    {
        std::lock_guard<std::mutex> hold(queue_->lock);
        queue_->directory = directory;
        queue_->start_ms = now_();
    }
    thread_ = std::make_unique<worker_thread>(QStringLiteral("recorder"));
    writer_ = new record_writer(*queue_, steady_repeat_ms);
    writer_->moveToThread(thread_->thread());
    connect(writer_, &record_writer::sig_failed, this, &recorder::writer_failed);
    connect(writer_, &record_writer::sig_file_started, this, &recorder::sig_file_started);
    QMetaObject::invokeMethod(writer_, &record_writer::open, Qt::QueuedConnection);
    hand_over_timer_.start();
}

void recorder::stop() {
    if (!writer_) {
        return;
    }
    hand_over_timer_.stop();
    hand_over();
    record_writer *writer = writer_;
    writer_ = nullptr;
    // The last words run in the writer's thread after every call handed over before them: the
    // file is complete when the program ends.
    thread_->stop([writer] {
        writer->finish();
        delete writer;
    });
    thread_.reset();
    queue_.reset();
}

void recorder::take(const device_sample &sample) {
    if (writer_) {
        collected_.append(sample);
    }
}

void recorder::hand_over() {
    if (collected_.isEmpty() || !writer_) {
        return;
    }
    {
        std::lock_guard<std::mutex> hold(queue_->lock);
        queue_->samples += collected_;
    }
    collected_.clear();
    QMetaObject::invokeMethod(writer_, &record_writer::drain, Qt::QueuedConnection);
}

void recorder::writer_failed(const QString &why) {
    if (sender() != writer_) {
        return;  // from a run already stopped
    }
    stop();
    emit sig_failed(why);
}
