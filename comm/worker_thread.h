#pragma once

#include <QString>

#include <atomic>
#include <functional>

class QThread;

// The thread a comm object lives in: started on construction, stopped and waited for by stop() or
// on destruction. The end of the thread is published through an atomic, so that everything the
// thread did is visible to the stopping thread (also to the thread sanitizer, which cannot see
// inside Qt's own wait).
class worker_thread {
public:
    explicit worker_thread(const QString &name);
    ~worker_thread();
    worker_thread(const worker_thread &) = delete;
    worker_thread &operator=(const worker_thread &) = delete;

    QThread *thread() const { return thread_; }

    // Asks the thread to quit and waits for it. `last_words` runs in the thread just before it
    // ends, while the objects living there are still usable (in the caller if the thread is
    // already stopped).
    void stop(const std::function<void()> &last_words = {});

private:
    QThread *thread_ = nullptr;
    std::atomic<bool> ended_{false};
};
