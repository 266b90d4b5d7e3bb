#include "program.h"

#include "panel_registry.h"
#include "panels.h"
#include "serial_connector.h"
#include "translation.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QLocale>
#include <QSocketNotifier>

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

int signal_pipe[2] = {-1, -1};

extern "C" void on_quit_signal(int) {
    const char byte = 1;
    // Async-signal-safe; if the pipe is full a close is already on its way.
    [[maybe_unused]] const ssize_t written = ::write(signal_pipe[1], &byte, 1);
}

}  // namespace

void quit_on_signal(QObject *parent) {
    if (signal_pipe[0] >= 0 || ::pipe2(signal_pipe, O_CLOEXEC | O_NONBLOCK) != 0) {
        return;
    }
    auto *notifier = new QSocketNotifier(signal_pipe[0], QSocketNotifier::Read, parent);
    QObject::connect(notifier, &QSocketNotifier::activated, notifier, [] {
        char bytes[16];
        while (::read(signal_pipe[0], bytes, sizeof bytes) > 0) {
        }
        QApplication::closeAllWindows();
        QApplication::quit();
    });
    struct sigaction action {};
    action.sa_handler = on_quit_signal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    // SIGHUP too: a closed terminal or an ended session must not lose the device table.
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        sigaction(number, &action, nullptr);
    }
}

void prepare_program(QApplication &app, QTranslator &translator) {
    install_translation(app, translator, QLocale().uiLanguages());
    // Every device created from now on finds its panel class here.
    register_panels(panel_registry::instance());
    quit_on_signal(&app);
}

void read_command_line(const QApplication &app) {
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Lumivox: laser drivers on a CAN bus."));
    parser.addHelpOption();
    const QCommandLineOption log_wire(
        QStringLiteral("log-wire"),
        QStringLiteral("Write every frame sent and every line received to the debug log."));
    parser.addOption(log_wire);
    parser.process(app);
    if (parser.isSet(log_wire)) {
        serial_connector::enable_wire_log();
    }
}
