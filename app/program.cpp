#include "program.h"

#include "build_info.h"
#include "bus_instrument.h"
#include "command_server.h"
#include "listen_address.h"
#include "remote_status.h"
#include "main_window.h"
#include "observation_hub.h"
#include "panel_registry.h"
#include "panels.h"
#include "serial_connector.h"
#include "recorder.h"
#include "translation.h"
#include "trend_window.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDebug>
#include <QFileInfo>
#include <QLocale>
#include <QMessageBox>
#include <QSettings>
#include <QSocketNotifier>
#include <QStatusBar>

#include <cstdio>

#include <fcntl.h>
#include <unistd.h>
#include <csignal>

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

namespace {
const QString record_key = QStringLiteral("record/directory");
const QString listen_key = QStringLiteral("remote/listen");
const QString remote_writes_key = QStringLiteral("remote/writes_allowed");

// "--remote-control" alone means "on": the option's value is given only to switch it off.
QStringList with_remote_control_value(QStringList arguments) {
    for (int i = 1; i < arguments.size(); ++i) {
        const QString next = arguments.value(i + 1);
        if (arguments.at(i) == QLatin1String("--remote-control") &&
            next != QLatin1String("on") && next != QLatin1String("off")) {
            arguments[i] = QStringLiteral("--remote-control=on");
        }
    }
    return arguments;
}
}  // namespace

bool headless_requested(int argc, char *argv[]) {
    for (int i = 1; i < argc; ++i) {
        if (QByteArray(argv[i]) == "--headless") {
            return true;
        }
    }
    return false;
}

int take_command_line(const QStringList &arguments, QSettings &remembered,
                      program_options *options) {
    QCommandLineParser parser;
    parser.setApplicationDescription(QCoreApplication::translate(
        "program", "Controls laser-diode drivers, laser modules and accessories on a CAN bus."));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    const QCommandLineOption record(
        QStringLiteral("record"),
        QCoreApplication::translate("program",
                                    "Record what the devices report into CSV files in <dir>; "
                                    "remembered for the next runs until \"--record off\"."),
        QStringLiteral("dir|off"));
    const QCommandLineOption trends(
        QStringLiteral("trends"),
        QCoreApplication::translate("program",
                                    "Open the trend window with the main window; with <file>, "
                                    "show that recording alone."));
    // Frames on the wire go to the debug log only when asked: at full rate they are most of it.
    const QCommandLineOption log_wire(
        QStringLiteral("log-wire"),
        QCoreApplication::translate(
            "program", "Write every frame sent and every line received to the debug log."));
    const QCommandLineOption listen(
        QStringLiteral("listen"),
        QCoreApplication::translate(
            "program",
            "Serve instrument commands over TCP at [<address>:]<port> (usually 5025; the address "
            "defaults to 127.0.0.1); remembered for the next runs until \"--listen off\"."),
        QStringLiteral("[address:]port|off"));
    const QCommandLineOption remote_control(
        QStringLiteral("remote-control"),
        QCoreApplication::translate(
            "program",
            "Let command-server clients change set-points, emission and parameters (the option "
            "alone means on); remembered for the next runs until \"--remote-control off\"."),
        QStringLiteral("on|off"));
    const QCommandLineOption headless(
        QStringLiteral("headless"),
        QCoreApplication::translate(
            "program",
            "Run without a window and without a display: the devices of configs/config.ini, "
            "recording and the command server as configured, until SIGINT, SIGTERM or SIGHUP."));
    parser.addOptions({record, trends, log_wire, listen, remote_control, headless});
    parser.addPositionalArgument(
        QStringLiteral("file"), QCoreApplication::translate("program", "A recording for --trends."),
        QStringLiteral("[file]"));
    if (!parser.parse(with_remote_control_value(arguments))) {
        std::fprintf(stderr, "%s\n", qPrintable(parser.errorText()));
        return 2;
    }
    if (parser.isSet(help) || parser.isSet(version)) {
        const QString text = parser.isSet(help)
                                 ? parser.helpText()
                                 : QStringLiteral("lumivox v5.%1\n")
                                       .arg(QString::fromLatin1(build_info::commit).left(6));
        std::fputs(qPrintable(text), stdout);
        return 0;
    }
    const QStringList files = parser.positionalArguments();
    if (files.size() > 1 || (!files.isEmpty() && !parser.isSet(trends))) {
        std::fprintf(
            stderr, "%s\n",
            qPrintable(QCoreApplication::translate(
                           "program", "Unexpected argument: %1 (a recording goes after --trends).")
                           .arg(files.last())));
        return 2;
    }
    const auto refuse = [](const QString &why) {
        std::fprintf(stderr, "%s\n", qPrintable(why));
        return 2;
    };
    if (parser.isSet(headless) && parser.isSet(trends)) {
        return refuse(QCoreApplication::translate("program", "--trends needs the window: it "
                                                             "cannot go with --headless."));
    }
    if (parser.isSet(record)) {
        const QString dir = parser.value(record);
        if (dir == QLatin1String("off")) {
            remembered.remove(record_key);
        } else {
            remembered.setValue(record_key, QFileInfo(dir).absoluteFilePath());
        }
        remembered.sync();
    }
    if (parser.isSet(listen)) {
        const QString where = parser.value(listen);
        QString error;
        if (where == QLatin1String("off")) {
            remembered.remove(listen_key);
        } else if (listen_address::parse(where, &error)) {
            remembered.setValue(listen_key, where);
        } else {
            return refuse(QStringLiteral("--listen %1: %2").arg(where, error));
        }
    }
    if (parser.isSet(remote_control)) {
        const QString value = parser.value(remote_control);
        if (value != QLatin1String("on") && value != QLatin1String("off")) {
            return refuse(QStringLiteral("--remote-control %1: on or off").arg(value));
        }
        remembered.setValue(remote_writes_key, value == QLatin1String("on"));
    }
    remembered.sync();
    options->listen = remembered.value(listen_key).toString();
    options->remote_writes = remembered.value(remote_writes_key, false).toBool();
    options->headless = parser.isSet(headless);
    if (parser.isSet(log_wire)) {
        serial_connector::enable_wire_log();
    }
    options->record_dir = remembered.value(record_key).toString();
    options->trends = parser.isSet(trends);
    options->trends_file = files.value(0);
    return -1;
}

int answer_help(int argc, char *argv[]) {
    for (int i = 1; i < argc; ++i) {
        const QByteArray arg(argv[i]);
        if (arg == "-h" || arg == "--help" || arg == "--help-all" || arg == "-v" ||
            arg == "--version") {
            QCoreApplication core(argc, argv);
            QSettings untouched;
            program_options unused;
            return take_command_line(core.arguments(), untouched, &unused);
        }
    }
    return -1;
}

QSettings *open_program_settings() {
    return new QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("lumivox"),
                         QStringLiteral("lumivox"));
}

void record_window(main_window &window, recorder &rec, const QString &dir) {
    QObject::connect(window.observations(), &observation_hub::sig_sample, &rec, &recorder::take);
    QObject::connect(&rec, &recorder::sig_file_started, &window,
                     [](const QString &path) { qInfo().noquote() << "recording to" << path; });
    QObject::connect(&rec, &recorder::sig_failed, &window, [&window](const QString &why) {
        qWarning().noquote() << why;
        window.statusBar()->showMessage(why);
        auto *box = new QMessageBox(QMessageBox::Warning,
                                    QCoreApplication::translate("program", "Recording"), why,
                                    QMessageBox::Ok, &window);
        box->setAttribute(Qt::WA_DeleteOnClose);
        box->setWindowModality(Qt::NonModal);
        box->show();
    });
    trend_window::set_default_directory(dir);
    rec.start(dir);
}

remote_service::~remote_service() = default;

std::unique_ptr<remote_service> serve_window(main_window &window, const program_options &options,
                                             QSettings &remembered) {
    QString error;
    const std::optional<listen_address> where = listen_address::parse(options.listen, &error);
    if (!where) {
        std::fprintf(stderr, "lumivox: --listen %s: %s\n", qPrintable(options.listen),
                     qPrintable(error));
        return nullptr;
    }
    auto service = std::make_unique<remote_service>();
    service->instrument = std::make_unique<bus_instrument>(
        [&window] { return window.devices(); }, window.serial_link(), window.observations(),
        window.brand());
    bus_instrument *instrument = service->instrument.get();
    instrument->set_writes_allowed(options.remote_writes);
    QObject::connect(&window, &main_window::sig_panel_placed, instrument,
                     &bus_instrument::note_placed);
    for (device *dev : window.devices()) {
        instrument->note_placed(dev);
    }
    service->server = std::make_unique<command_server>(*instrument);
    command_server *server = service->server.get();
    if (!server->listen(*where, &error)) {
        std::fprintf(stderr, "lumivox: the command server cannot listen at %s: %s\n",
                     qPrintable(where->text()), qPrintable(error));
        return nullptr;
    }
    const QString bound = server->address().text();
    std::fprintf(stderr, "lumivox: command server listening at %s%s, remote writes %s\n",
                 qPrintable(bound),
                 where->loopback() ? "" : " (reachable from other computers)",
                 options.remote_writes ? "allowed" : "not allowed");
    if (options.headless) {
        return service;
    }
    auto *status = new remote_status(bound);
    status->show_writes_allowed(instrument->writes_allowed());
    window.statusBar()->addPermanentWidget(status);
    QObject::connect(server, &command_server::sig_clients_changed, status,
                     &remote_status::show_clients);
    QObject::connect(instrument, &bus_instrument::sig_writes_allowed_changed, status,
                     &remote_status::show_writes_allowed);
    QObject::connect(status, &remote_status::sig_writes_toggled, instrument,
                     [instrument, &remembered](bool allowed) {
                         instrument->set_writes_allowed(allowed);
                         remembered.setValue(remote_writes_key, allowed);
                         remembered.sync();
                     });
    return service;
}
