// lumivox-sim: the device-bus simulator as a program of its own (see --help).
#include "sim_options.h"
#include "sim_program.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <fcntl.h>
#include <unistd.h>
#include <csignal>
#include <cstdio>

namespace {

int signal_pipe[2] = {-1, -1};

// Only async-signal-safe work here: one byte into the pipe, read by the event loop.
void on_signal(int) {
    const char byte = 1;
    const ssize_t ignored = ::write(signal_pipe[1], &byte, 1);
    (void)ignored;
}

bool catch_stop_signals() {
    if (::pipe2(signal_pipe, O_CLOEXEC | O_NONBLOCK) != 0) {
        return false;
    }
    struct sigaction action {};
    action.sa_handler = on_signal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    return ::sigaction(SIGINT, &action, nullptr) == 0 &&
           ::sigaction(SIGTERM, &action, nullptr) == 0;
}

}  // namespace

int main(int argc, char *argv[]) {
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("lumivox-sim"));

    sim_options options;
    QString error;
    if (!parse_sim_options(QCoreApplication::arguments(), &options, &error)) {
        std::fprintf(stderr, "lumivox-sim: %s\n(see lumivox-sim --help)\n",
                     error.toLocal8Bit().constData());
        return 2;
    }
    if (options.help) {
        std::fputs(sim_help_text().toLocal8Bit().constData(), stdout);
        return 0;
    }
    if (!catch_stop_signals()) {
        std::perror("lumivox-sim: signal set-up");
        return 1;
    }
    // A closed reader of our standard output must not end the simulator.
    std::signal(SIGPIPE, SIG_IGN);

    QSocketNotifier stop(signal_pipe[0], QSocketNotifier::Read);
    QObject::connect(&stop, &QSocketNotifier::activated, &app, [] {
        char byte;
        while (::read(signal_pipe[0], &byte, 1) > 0) {
        }
        QCoreApplication::quit();
    });

    sim_program program(options, stdout, stderr);
    QObject::connect(&program, &sim_program::sig_finished, &app, &QCoreApplication::quit,
                     Qt::QueuedConnection);
    if (!program.start()) {
        return 1;
    }
    return app.exec();
}
