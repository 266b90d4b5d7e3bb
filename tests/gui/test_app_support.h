#pragma once

// Helpers of the main window tests: a scratch working directory holding the configuration file,
// widget look-up by object name, the CAN ids of the devices and of the device table, and the
// warnings the program writes.

#include "main_window.h"
#include "serial_connector.h"

#include <QtTest>
#include <QtWidgets>

#include <atomic>

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

template <typename W = QWidget>
W *widget(const main_window &window, const char *name) {
    return window.findChild<W *>(QString::fromLatin1(name));
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

// Collects the warnings written (from any thread) while it lives; other messages go on to the
// test's own handler.
class warning_log {
public:
    warning_log() {
        current_.store(this);
        previous_.store(qInstallMessageHandler(&handle));
    }
    ~warning_log() {
        qInstallMessageHandler(previous_.load());
        current_.store(nullptr);
    }
    warning_log(const warning_log &) = delete;
    warning_log &operator=(const warning_log &) = delete;

    QStringList lines() const {
        QMutexLocker lock(&lock_);
        return lines_;
    }
    // Empty when every pattern matches exactly one warning and every warning one pattern;
    // otherwise what differs.
    QString differences(const QStringList &patterns) const {
        QStringList left = lines();
        QStringList report;
        for (const QString &pattern : patterns) {
            const int at = left.indexOf(QRegularExpression(QLatin1Char('^') + pattern + '$'));
            if (at < 0) {
                report << QStringLiteral("missing: ") + pattern;
            } else {
                left.removeAt(at);
            }
        }
        for (const QString &line : qAsConst(left)) {
            report << QStringLiteral("unexpected: ") + line;
        }
        return report.join(QLatin1Char('\n'));
    }

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &text) {
        warning_log *log = current_.load();
        if (type == QtWarningMsg && log) {
            QMutexLocker lock(&log->lock_);
            log->lines_ << text;
        } else if (const QtMessageHandler previous = previous_.load()) {
            previous(type, context, text);
        }
    }

    static inline std::atomic<warning_log *> current_{nullptr};
    static inline std::atomic<QtMessageHandler> previous_{nullptr};
    mutable QMutex lock_;
    QStringList lines_;
};
