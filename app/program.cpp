#include "program.h"

#include "broker_message.h"
#include "broker_url.h"
#include "build_info.h"
#include "device_service.h"
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
#include "working_place.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDebug>
#include <QFileInfo>
#include <QIcon>
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
    // The menu entry's icon (the package installs it in every size of the icon theme).
    app.setWindowIcon(QIcon(QStringLiteral(":/interface/lumivox_64.png")));
    // Every device created from now on finds its panel class here.
    register_panels(panel_registry::instance());
    quit_on_signal(&app);
}

namespace {
const QString record_key = QStringLiteral("record/directory");
const QString mqtt_key = QStringLiteral("mqtt/url");
const QString station_key = QStringLiteral("mqtt/station");
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
    const QCommandLineOption mqtt(
        QStringLiteral("mqtt"),
        QCoreApplication::translate(
            "program",
            "Publish what the devices report to the MQTT broker at <url> (mqtt://host[:port], or "
            "mqtts://host[:port] for TLS); remembered for the next runs until \"--mqtt off\". "
            "User name, password and CA file come from the settings file or the environment."),
        QStringLiteral("url|off"));
    const QCommandLineOption station(
        QStringLiteral("station"),
        QCoreApplication::translate("program",
                                    "The station's name in the broker's topics (lumivox/<name>/); "
                                    "the host name by default. Remembered; \"\" forgets it."),
        QStringLiteral("name"));
    parser.addOptions({record, trends, log_wire, mqtt, station});
    // Where the run works (see working_place.h); from a terminal, the current directory.
    const QCommandLineOption user_dir(
        QStringLiteral("user-dir"),
        QCoreApplication::translate(
            "program",
            "Work in the per-user directory ($XDG_CONFIG_HOME/lumivox/work, by default "
            "~/.config/lumivox/work; made on first run) instead of the current directory. The "
            "menu entry starts the program this way."));
    const QCommandLineOption demo(
        QStringLiteral("demo"),
        QCoreApplication::translate(
            "program",
            "Try the program without hardware: start the device simulator (lumivox-sim) with one "
            "device of every modelled type and connect to it, in a scratch directory."));
    parser.addOption(user_dir);
    parser.addOption(demo);
    // Window-less backup and restore of the devices' configuration rows.
    const QCommandLineOption backup(
        QStringLiteral("backup"),
        QCoreApplication::translate("program",
                                    "Without a window: wait until every configured device has "
                                    "reported every configuration row, save them into <dir> (a "
                                    "file per device), print what was written and exit."),
        QStringLiteral("dir"));
    const QCommandLineOption restore(
        QStringLiteral("restore"),
        QCoreApplication::translate(
            "program",
            "Without a window: compare the settings <file> with the device at --can-id and print "
            "the rows that differ; with --yes write them (never the CAN ID row), read every row "
            "back, check and store."),
        QStringLiteral("file"));
    const QCommandLineOption can_id(
        QStringLiteral("can-id"),
        QCoreApplication::translate("program", "The CAN ID of the device for --restore."),
        QStringLiteral("n"));
    const QCommandLineOption yes(
        QStringLiteral("yes"),
        QCoreApplication::translate("program", "Let --restore write without asking."));
    const QCommandLineOption timeout(
        QStringLiteral("timeout"),
        QCoreApplication::translate("program",
                                    "How long --backup and --restore wait for the devices "
                                    "(seconds, default 30)."),
        QStringLiteral("s"), QStringLiteral("30"));
    parser.addOptions({backup, restore, can_id, yes, timeout});
    parser.setApplicationDescription(parser.applicationDescription() + QStringLiteral("\n\n") +
                                     QString::fromUtf8(device_service::exit_code_help()));
    // The bus monitor, open from the start so that it holds the whole run.
    const QCommandLineOption monitor(
        QStringLiteral("monitor"),
        QCoreApplication::translate("program",
                                    "Open the bus monitor with the main window: every frame "
                                    "sent and received, decoded."));
    parser.addOption(monitor);
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
    parser.addOptions({listen, remote_control, headless});
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
    QString mqtt_given;
    if (parser.isSet(mqtt)) {
        const QString url = parser.value(mqtt);
        broker_address address;
        if (url == QLatin1String("off")) {
            remembered.remove(mqtt_key);
        } else if (broker_url::read(url, &address).isEmpty()) {
            remembered.setValue(mqtt_key, url);
        } else {
            mqtt_given = url;  // reported by the window, and not remembered
        }
        remembered.sync();
    }
    if (parser.isSet(station)) {
        const QString name = parser.value(station);
        if (name.isEmpty()) {
            remembered.remove(station_key);
        } else if (!broker_message::valid_station(name)) {
            std::fprintf(stderr, "%s\n",
                         qPrintable(QCoreApplication::translate(
                                        "program",
                                        "Station name \"%1\" cannot be a topic level: at most %2 "
                                        "characters, none of them '/', '+', '#' or control "
                                        "characters.")
                                        .arg(name)
                                        .arg(broker_message::max_station_length)));
            return 2;
        } else {
            remembered.setValue(station_key, name);
        }
        remembered.sync();
    }
    options->mqtt_url = mqtt_given.isEmpty() ? remembered.value(mqtt_key).toString() : mqtt_given;
    options->station = remembered.value(station_key).toString();
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
    {
        const auto wrong = [](const QString &why) {
            std::fprintf(stderr, "%s\n", qPrintable(why));
            return 2;
        };
        bool number = false;
        options->timeout_s = parser.value(timeout).toInt(&number);
        if (!number || options->timeout_s < 1 || options->timeout_s > 24 * 3600) {
            return wrong(QCoreApplication::translate(
                "program", "--timeout takes a number of seconds (1 to 86400)."));
        }
        if (parser.isSet(backup) && parser.isSet(restore)) {
            return wrong(QCoreApplication::translate("program",
                                                     "--backup and --restore go one at a time."));
        }
        options->backup_dir = parser.value(backup);
        options->restore_file = parser.value(restore);
        if (parser.isSet(backup) && options->backup_dir.isEmpty()) {
            return wrong(QCoreApplication::translate("program", "--backup needs a directory."));
        }
        if (parser.isSet(can_id)) {
            options->can_id = parser.value(can_id).toInt(&number, 0);
            if (!number || options->can_id < 0 || options->can_id > 0x7FF) {
                return wrong(QCoreApplication::translate(
                    "program", "--can-id takes a CAN ID (0 to 2047, or 0x0 to 0x7FF)."));
            }
        }
        if (parser.isSet(restore) && (options->restore_file.isEmpty() || options->can_id < 0)) {
            return wrong(QCoreApplication::translate(
                "program", "--restore needs a settings file and --can-id N."));
        }
        if (!parser.isSet(restore) && (parser.isSet(can_id) || parser.isSet(yes))) {
            return wrong(QCoreApplication::translate(
                "program", "--can-id and --yes belong to --restore."));
        }
        options->yes = parser.isSet(yes);
    }
    options->record_dir = remembered.value(record_key).toString();
    options->trends = parser.isSet(trends);
    options->trends_file = files.value(0);
    options->user_dir = parser.isSet(user_dir);
    options->demo = parser.isSet(demo);
    // Entered here, before anything reads or writes the configuration, whatever runs next.
    if (options->user_dir && !options->demo) {
        QString error;
        if (!enter_user_working_dir(&error)) {
            tell_start_failure(error);
            return 1;
        }
    }
    options->monitor = parser.isSet(monitor);
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
