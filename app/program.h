#pragma once

#include <QString>
#include <QStringList>

#include <memory>

class QApplication;
class QObject;
class QSettings;
class QTranslator;
class bus_instrument;
class command_server;
class main_window;
class recorder;

// Sets up what the program needs before its window: the translation for the user's languages
// (installed into `translator`, which must outlive the window), every panel class in the registry,
// and quitting on signals (below).
void prepare_program(QApplication &app, QTranslator &translator);

// Makes SIGINT, SIGTERM and SIGHUP (terminal closed, session ended) close the program as the
// window's close button does: every top-level window is closed (the main window saves the
// configuration file), then the event loop ends and the worker threads are stopped on the way out,
// so the exit code is 0. The signal handler only writes one byte to a pipe; the closing happens in
// the GUI thread, which watches the pipe. Call once, after the application object exists; `parent`
// owns the watcher.
void quit_on_signal(QObject *parent);

// What the command line asks of this run.
struct program_options {
    QString record_dir;   // where this run records what the devices report; empty: nowhere
    bool trends = false;  // open the live trend window with the main window
    QString trends_file;  // show this recording in a trend window instead of the main window
    bool user_dir = false;  // work in the per-user directory (the menu entry's way)
    bool demo = false;      // work with a simulator of its own, in a scratch directory
    // Window-less runs (device_service.h): save every device's rows, or put a file's back.
    QString backup_dir;    // --backup DIR
    QString restore_file;  // --restore FILE
    int can_id = -1;       // --can-id N: the device a restore is for
    bool yes = false;      // --yes: a restore writes without asking
    int timeout_s = 30;    // --timeout S: how long to wait for the devices
    bool monitor = false;  // open the bus monitor with the main window
    QString mqtt_url;     // the broker this run publishes to (as given); empty: none
    QString station;      // the station's name in the broker's topics; empty: the host name
    QString listen;       // where the command server listens, "[ADDR:]PORT"; empty: no server
    bool remote_writes = false;  // remote clients may change set-points, emission, parameters
    bool headless = false;       // no window and no display: devices, recording, server
};

// Answers --help and --version before the window system is opened (they need no display): the
// exit code, or -1 when neither is asked for.
int answer_help(int argc, char *argv[]);
// Whether the command line asks for --headless; read before the application object exists, which
// then has to be built on the offscreen platform.
bool headless_requested(int argc, char *argv[]);
// Reads the command line (`arguments` as QCoreApplication::arguments() gives them). `remembered`
// keeps the recording directory between runs: "--record DIR" sets it, "--record off" clears it;
// so are the broker ("--mqtt URL", "--mqtt off"; a URL that cannot be read is used for this run
// only, which reports it) and the station name ("--station NAME", "--station ''" for the host name).
// "--listen [ADDR:]PORT" and "--remote-control" are remembered the same way until "off".
// Returns -1 when the program should run, else the exit code after printing the help text, the
// version or what is wrong with the arguments.
int take_command_line(const QStringList &arguments, QSettings &remembered,
                      program_options *options);
// The program's own settings, kept apart from configs/config.ini (whose keys are fixed):
// lumivox/lumivox.ini in the user's configuration directory.
QSettings *open_program_settings();

// Records what the window's panels report into `dir`. If the directory cannot be written or the
// disk fills up, recording stops and the window says why in its status bar and in a box that
// does not wait for an answer: polling goes on.
void record_window(main_window &window, recorder &rec, const QString &dir);

// The command server for the window's devices and the instrument it serves them through.
struct remote_service {
    ~remote_service();
    std::unique_ptr<bus_instrument> instrument;
    std::unique_ptr<command_server> server;  // deleted first: it closes every connection
};
// Starts the command server at options.listen, writes allowed as options.remote_writes says, and
// says on standard error where it listens (and plainly when that is not this computer alone).
// With the window shown, its status bar shows the clients and the switch for remote writes,
// which `remembered` keeps. Null when the address cannot be bound (said on standard error): the
// program runs on without the server.
std::unique_ptr<remote_service> serve_window(main_window &window, const program_options &options,
                                             QSettings &remembered);
