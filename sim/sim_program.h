#pragma once

#include "log_replay.h"
#include "sim_bus.h"
#include "sim_options.h"
#include "sim_pty.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <cstdio>
#include <memory>

// The lumivox-sim program without its main(): the bus from the options, the pseudo-terminal, the
// optional link, a real-time clock that advances the bus, and the hang-up (and re-plug) of the
// line.
class sim_program : public QObject {
    Q_OBJECT
public:
    // `out` receives the slave path(s), `err` the messages.
    sim_program(const sim_options &options, std::FILE *out, std::FILE *err,
                QObject *parent = nullptr);
    ~sim_program() override;

    // Builds the bus, opens the line and starts the clock. False (message written) on failure.
    bool start();
    sim_bus &bus() { return bus_; }

    // Clock period: the bus is advanced by the real time passed, this often.
    static constexpr int tick_ms = 10;

signals:
    // The simulator has nothing more to do (the line hung up with no re-plug to come).
    void sig_finished();

private:
    bool open_line();
    void tick();
    // Writes the replayed frames that are due and waits for the next.
    void replay_step();
    void hang_up();
    void say(const QString &text);

    sim_options options_;
    std::FILE *out_;
    std::FILE *err_;
    sim_bus bus_;
    std::unique_ptr<sim_pty> pty_;
    QString linked_path_;  // the slave path the link points to
    QTimer clock_;
    QElapsedTimer elapsed_;

    // --replay: the log, the frame it plays next and when (microseconds after the replay began,
    // which is when the program first opened the CAN channel).
    std::unique_ptr<log_replay> replay_;
    std::optional<log_replay::step> replay_next_;
    bool replay_started_ = false;
    qint64 replay_due_us_ = 0;
    QElapsedTimer replay_clock_;
    QTimer replay_timer_;
};
