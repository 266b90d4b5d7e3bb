#include "sim_program.h"

sim_program::sim_program(const sim_options &options, std::FILE *out, std::FILE *err,
                         QObject *parent)
    : QObject(parent), options_(options), out_(out), err_(err) {
    clock_.setTimerType(Qt::PreciseTimer);
    clock_.setInterval(tick_ms);
    connect(&clock_, &QTimer::timeout, this, &sim_program::tick);
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
