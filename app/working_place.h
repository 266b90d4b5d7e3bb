#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

#include <memory>

struct program_options;

// Where a run of the program works, that is, where "configs/config.ini" lives: the current
// directory when started from a terminal; the per-user directory when started from the menu
// (--user-dir, entered while the command line is read); a scratch directory next to a simulator of
// its own for the demo (--demo).

// The per-user working directory: "work" in Lumivox's directory under the user's configuration
// location ($XDG_CONFIG_HOME/lumivox/work, by default ~/.config/lumivox/work), beside the
// program's own settings file (lumivox.ini).
QString user_working_dir();

// The demo without hardware: lumivox-sim (the one beside the program) plays the adapter with one
// device of every modelled type on a pseudo-terminal, and a scratch directory holds a
// configuration that connects to it automatically. The simulator is stopped and the directory
// removed when the object goes.
class demo_run {
public:
    demo_run() = default;
    ~demo_run();
    demo_run(const demo_run &) = delete;
    demo_run &operator=(const demo_run &) = delete;

    // Starts the simulator, writes the configuration and makes the directory current; false with
    // the reason.
    bool start(QString *error);
    QString dir() const { return dir_ ? dir_->path() : QString(); }

    // The simulator program: beside this one when installed, in the build tree's sim/ otherwise.
    static QString simulator_program();

private:
    std::unique_ptr<QTemporaryDir> dir_;
    std::unique_ptr<QProcess> simulator_;
};

// Makes the per-user working directory (on first run) and the current directory; false with the
// reason.
bool enter_user_working_dir(QString *error);

// Says why the program cannot start on standard error and, with a window system, in a box: a run
// from the menu has no terminal.
void tell_start_failure(const QString &why);

// Starts the demo when `options` asks for it. Returns -1 to go on, else the exit code after
// telling what went wrong.
int start_demo(const program_options &options, demo_run &demo);
