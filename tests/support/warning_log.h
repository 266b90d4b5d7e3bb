#pragma once

#include <QMutex>
#include <QRegularExpression>
#include <QStringList>
#include <QtGlobal>

#include <atomic>

// Collects the warnings (and worse) written from any thread while it lives; other messages go on
// to the test's own handler.
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
        if (log && type != QtDebugMsg && type != QtInfoMsg) {
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
