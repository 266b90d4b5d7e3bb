#include "sim_program.h"

sim_program::sim_program(const sim_options &options, std::FILE *out, std::FILE *err,
                         QObject *parent)
    : QObject(parent), options_(options), out_(out), err_(err) {
    clock_.setTimerType(Qt::PreciseTimer);
    clock_.setInterval(tick_ms);
    connect(&clock_, &QTimer::timeout, this, &sim_program::tick);
    replay_timer_.setTimerType(Qt::PreciseTimer);
    replay_timer_.setSingleShot(true);
    connect(&replay_timer_, &QTimer::timeout, this, &sim_program::replay_step);
}

sim_program::~sim_program() {
    if (!options_.link.isEmpty() && !linked_path_.isEmpty()) {
        sim_pty::remove_link(options_.link, linked_path_);
    }
}

void sim_program::say(const QString &text) {
    std::fprintf(err_, "lumivox-sim: %s\n", text.toLocal8Bit().constData());
    std::fflush(err_);
}

bool sim_program::start() {
    QString error;
    if (!populate_bus(options_, bus_, &error)) {
        say(error);
        return false;
    }
    for (const auto &d : bus_.devices()) {
        d->set_lively(!options_.steady);
    }
    if (options_.trace) {
        bus_.trace = [this](const QString &line) { say(line); };
    }
    for (const auto &d : bus_.devices()) {
        say(QStringLiteral("device %1: type %2 (%3)")
                .arg(d->address())
                .arg(d->type_id())
                .arg(d->profile().model));
    }
    if (!options_.replay.isEmpty()) {
        replay_ = std::make_unique<log_replay>();
        if (!replay_->open(options_.replay, &error)) {
            say(error);
            return false;
        }
        replay_next_ = replay_->next();
        say(QStringLiteral("replaying %1 once Lumivox opens the CAN channel").arg(options_.replay));
    }
    if (!open_line()) {
        return false;
    }
    if (options_.hangup_after_ms >= 0) {
        bus_.schedule(options_.hangup_after_ms, [this] { hang_up(); });
    }
    elapsed_.start();
    clock_.start();
    return true;
}

bool sim_program::open_line() {
    auto pty = std::make_unique<sim_pty>(bus_);
    if (!pty->open()) {
        say(pty->error_string());
        return false;
    }
    std::fprintf(out_, "%s\n", pty->slave_path().toLocal8Bit().constData());
    std::fflush(out_);
    if (!options_.link.isEmpty()) {
        QString error;
        if (!sim_pty::point_link(options_.link, pty->slave_path(), &error)) {
            say(error);
            return false;
        }
        linked_path_ = pty->slave_path();
        say(QStringLiteral("%1 -> %2").arg(options_.link, linked_path_));
    }
    pty_ = std::move(pty);
    return true;
}

void sim_program::tick() {
    const qint64 behind = elapsed_.elapsed() - bus_.now_ms();
    if (behind > 0) {
        bus_.advance(behind);
    }
    if (replay_ && !replay_started_ && pty_ && pty_->adapter().channel_open()) {
        replay_started_ = true;
        replay_clock_.start();
        replay_step();
    }
}

void sim_program::replay_step() {
    const qint64 now_us = replay_clock_.nsecsElapsed() / 1000;
    while (replay_next_ && now_us >= replay_due_us_) {
        // As the adapter: nothing reaches the program while its channel is closed.
        if (pty_ && pty_->is_open() && pty_->adapter().channel_open()) {
            pty_->write_unasked(replay_next_->text);
        }
        replay_next_ = replay_->next();
        if (replay_next_) {
            replay_due_us_ += replay_next_->delay_us;
        } else {
            say(QStringLiteral("replay finished: %1 frames played, %2 lines skipped")
                    .arg(replay_->played())
                    .arg(replay_->skipped_lines()));
        }
    }
    if (replay_next_) {
        replay_timer_.start(static_cast<int>(qMin<qint64>((replay_due_us_ - now_us + 999) / 1000,
                                                          24 * 3600 * 1000)));
    }
}

void sim_program::hang_up() {
    say(QStringLiteral("adapter hangs up"));
    pty_->hang_up();
    if (options_.replug_after_ms < 0) {
        clock_.stop();
        emit sig_finished();
        return;
    }
    bus_.schedule(bus_.now_ms() + options_.replug_after_ms, [this] {
        say(QStringLiteral("adapter plugged in again"));
        if (!open_line()) {
            clock_.stop();
            emit sig_finished();
        }
    });
}
