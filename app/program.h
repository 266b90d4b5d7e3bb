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
