#pragma once

// Helpers for tests that talk to objects living in other threads.
//
// Qt 5 from Debian is not built with the thread sanitizer: the hand-off of a posted event (its
// mutex waits on futexes directly) is invisible to it. Tests therefore hand work to other threads
// through post_to() and run_in(), which add a std::mutex hand-off the sanitizer can see, and watch
// signals from other threads with signal_log, which records in the test's own thread.

#include <QList>
#include <QObject>
#include <QTest>
#include <QVariant>

#include <condition_variable>
#include <mutex>
#include <utility>

// Held by the posting thread until the event is queued, and taken by the receiving thread before
// it touches anything the poster wrote: a hand-off the thread sanitizer can see.
inline std::mutex &hand_off_lock() {
    static std::mutex lock;
    return lock;
}

// Posts `fn` to the thread of `context` without waiting (as a queued signal from the window does).
template <typename F>
void post_to(QObject *context, F fn) {
    std::lock_guard<std::mutex> posting(hand_off_lock());
    QMetaObject::invokeMethod(
        context,
        [fn = std::move(fn)]() mutable {
            { std::lock_guard<std::mutex> received(hand_off_lock()); }
            fn();
        },
        Qt::QueuedConnection);
}

// Runs `fn` in the thread of `context` and waits until it has run.
template <typename F>
void run_in(QObject *context, F &&fn) {
    std::mutex lock;
    std::condition_variable done_signal;
    bool done = false;
    post_to(context, [&] {
        fn();
        std::lock_guard<std::mutex> guard(lock);
        done = true;
        done_signal.notify_one();
    });
    std::unique_lock<std::mutex> guard(lock);
    done_signal.wait(guard, [&done] { return done; });
}

// Records the emissions of one signal, in the thread that owns the log.
class signal_log : public QObject {
public:
    template <typename Sender, typename Signal>
    signal_log(const Sender *sender, Signal signal) {
        connect(
            sender, signal, this,
            [this](auto... args) { entries_.append(QVariantList{QVariant::fromValue(args)...}); },
            Qt::QueuedConnection);
    }

    int count() const { return entries_.size(); }
    QVariantList at(int i) const { return entries_.at(i); }
    QVariant first_arg(int i) const { return entries_.at(i).value(0); }
    void clear() { entries_.clear(); }
    // Processes events until at least `n` emissions were recorded or the time is up.
    bool wait_for(int n, int timeout_ms = 3000) {
        return QTest::qWaitFor([this, n] { return entries_.size() >= n; }, timeout_ms);
    }

private:
    QList<QVariantList> entries_;
};
