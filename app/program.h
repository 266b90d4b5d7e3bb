#pragma once

class QApplication;
class QObject;
class QTranslator;

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

// Reads the program's own command-line options. "--log-wire" writes every frame sent and every line
// received to the debug log (off by default); "--help" lists the options. An unknown option ends
// the program with a message, as does --help after printing the list. Call after the application
// object exists.
void read_command_line(const QApplication &app);
