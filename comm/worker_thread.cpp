#include "worker_thread.h"

#include <QThread>

#include <mutex>

namespace {
// Held while a stop request is set up and taken by the thread before it runs the request's last
// words: makes the hand-over visible to the thread sanitizer, which cannot see Qt's own locks.
std::mutex stop_hand_over;
}  // namespace

worker_thread::worker_thread(const QString &name) : thread_(new QThread) {
    thread_->setObjectName(name);
    thread_->start(QThread::InheritPriority);
}

worker_thread::~worker_thread() {
    stop();
    delete thread_;
}

void worker_thread::stop(const std::function<void()> &last_words) {
    if (!thread_->isRunning()) {
        if (last_words) {
            last_words();
        }
        return;
    }
    std::unique_lock<std::mutex> setting_up(stop_hand_over);
    QObject::connect(
        thread_, &QThread::finished, thread_,
        [this, last_words] {
            { std::lock_guard<std::mutex> handed_over(stop_hand_over); }
            if (last_words) {
                last_words();
            }
            ended_.store(true, std::memory_order_release);
        },
        Qt::DirectConnection);
    thread_->quit();
    setting_up.unlock();
    thread_->wait();
    ended_.load(std::memory_order_acquire);
}
