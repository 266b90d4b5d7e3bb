// What the tests that run the whole main window against the device simulator hold: a scratch
// working directory (the window reads configs/config.ini from there), the panels, the simulator
// on its line and clock, and the window. Mixed into the test class after QObject.
#pragma once

#include "main_window.h"
#include "message_route.h"
#include "panel_registry.h"
#include "panels.h"
#include "sim_session.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTimer>

struct sim_window_fixture {
    QTemporaryDir dir;
    QString previous_dir;
    panel_registry registry;
    sim_bus bus;
    sim_pty *line = nullptr;
    QTimer clock;
    main_window *window = nullptr;

    // Works in the scratch directory from now on, with every panel registered; false when the
    // directory could not be made.
    bool enter_scratch_dir() {
        if (!dir.isValid()) {
            return false;
        }
        previous_dir = QDir::currentPath();
        QDir::setCurrent(dir.path());
        register_panels(registry);
        return true;
    }
    // Closes the window (which stops every thread; the test would abort if one were left
    // running), forgets the box answers and returns to the directory the test started in.
    void leave_scratch_dir() {
        delete window;
        window = nullptr;
        set_message_answerer({});
        QDir::setCurrent(previous_dir);
    }
};
