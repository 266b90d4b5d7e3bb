#pragma once

// Helpers of the main window tests: a scratch working directory holding the configuration file,
// widget look-up by object name, and the CAN ids of the devices and of the device table.

#include "main_window.h"
#include "serial_connector.h"
#include "warning_log.h"

#include <QtTest>
#include <QtWidgets>

#include <sys/resource.h>
#include <csignal>

// Makes a fresh temporary directory the working directory for the life of the object and writes
// "configs/config.ini" there with exactly these lines (no file when `ini` is null).
class scratch_dir {
public:
    explicit scratch_dir(const QByteArray &ini = QByteArray()) : previous_(QDir::currentPath()) {
        QDir::setCurrent(dir_.path());
        if (!ini.isNull()) {
            write_config(ini);
        }
    }
    ~scratch_dir() { QDir::setCurrent(previous_); }

    // Writes "configs/config.ini" of the working directory with exactly these bytes.
    static void write_config(const QByteArray &ini) {
        QDir().mkpath(QStringLiteral("configs"));
        QFile file(QStringLiteral("configs/config.ini"));
        if (file.open(QIODevice::WriteOnly)) {
            file.write(ini);
        }
    }

private:
    QTemporaryDir dir_;
    QString previous_;
};

// Holds the process's file size limit at `bytes` while it lives: writes beyond it fail as they do
// on a full disk (SIGXFSZ is ignored, so they fail instead of ending the process).
class file_size_limit {
public:
    explicit file_size_limit(rlim_t bytes) {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &saved_);
        rlimit small = saved_;
        small.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~file_size_limit() { setrlimit(RLIMIT_FSIZE, &saved_); }
    file_size_limit(const file_size_limit &) = delete;
    file_size_limit &operator=(const file_size_limit &) = delete;

private:
    rlimit saved_{};
};

// The window's widget called `name`. A missing one (renamed in the form) fails the test row that
// asks for it and stands in as a hidden widget of its own, so the rows that follow still run.
template <typename W = QWidget>
W *widget(const main_window &window, const char *name) {
    if (W *found = window.findChild<W *>(QString::fromLatin1(name))) {
        return found;
    }
    QTest::qFail(
        qPrintable(QStringLiteral("the window has no %1 called %2")
                       .arg(QLatin1String(W::staticMetaObject.className()), QLatin1String(name))),
        __FILE__, __LINE__);
    auto *stand_in = new W(const_cast<main_window *>(&window));
    stand_in->setObjectName(QString::fromLatin1(name));
    stand_in->hide();
    return stand_in;
}

inline QSpinBox *can_id_spin(const main_window &w, int row) {
    return qobject_cast<QSpinBox *>(widget<QTableWidget>(w, "device_table")->cellWidget(row, 0));
}

inline QList<int> device_can_ids(const main_window &w) {
    QList<int> ids;
    for (const device *dev : w.devices()) {
        ids << dev->can_id();
    }
    return ids;
}

// A window that has read the configuration file of the working directory; the port list offers
// `ports`.
inline std::unique_ptr<main_window> loaded_window(const QString &brand = QStringLiteral("Veltrano"),
                                                  QList<main_window::port_entry> ports = {}) {
    auto window = std::make_unique<main_window>(brand);
    window->set_port_lister([ports = std::move(ports)] { return ports; });
    window->initialise_from_config();
    return window;
}
