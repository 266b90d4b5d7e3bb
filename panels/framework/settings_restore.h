#pragma once

#include "device_settings.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QString>
#include <QVector>

#include <optional>

class QTimer;
class panel_base;

// Collects configuration rows as a device reports them after they were asked for: a row counts
// once its read request has left the panel's queue and the device has answered it, so an answer
// to an older request is never taken for the new value.
class row_read_back : public QObject {
    Q_OBJECT
public:
    explicit row_read_back(panel_base *panel, QObject *parent = nullptr);

    // Asks for the row (code + 128, 0) and waits for it.
    void ask(int code);
    // Waits for the row whose read the caller has queued itself (after a write, for instance).
    void expect(int code) { pending_.insert(code); }

    bool complete() const { return pending_.isEmpty(); }
    const QSet<int> &pending() const { return pending_; }
    // The rows reported so far, by code.
    const QHash<int, qint64> &values() const { return values_; }

signals:
    // The last row expected has been reported.
    void sig_complete();
    // Any row expected has been reported.
    void sig_progress();

private:
    void sent(int code, long value);
    void reported(int code, qint64 wire);

    QPointer<panel_base> panel_;
    QSet<int> pending_;
    QSet<int> asked_;
    QHash<int, qint64> values_;
};

// Puts a settings file's rows back on a device through its panel, the way the operator's own
// changes go: each row that differs is written (and asked back), every other row the file holds is
// asked for again, and once each has been reported after its request, the device's values are
// checked against the file. Then the store command(s) go out, followed by one more read whose
// answer shows that they have left the program.
//
// The CAN ID row is written and checked only when asked for (`with_can_id`). The store command
// follows the check whatever it found, so that the device keeps what it runs with; the rows that
// did not take are named in the outcome.
class settings_restore : public QObject {
    Q_OBJECT
public:
    // A device that answers none of the requests for this long has stopped answering.
    static constexpr int silence_ms = 5000;

    struct mismatch {
        device_settings::compared_row row;
        std::optional<qint64> held;  // what the device reported back; none: never reported
        bool written = false;        // the restore wrote the row (else it only asked for it)
    };
    struct outcome {
        bool complete = false;  // every row was read back; otherwise `failure` says why not
        QString failure;
        int written = 0;       // rows written
        int checked = 0;       // rows read back and compared
        bool stored = false;   // the store command(s) have been sent
        QVector<mismatch> not_taken;
        QStringList left_alone;  // rows the file lacks, and the CAN ID row when not asked for

        bool ok() const { return complete && not_taken.isEmpty(); }
    };

    settings_restore(panel_base *panel, const device_settings::comparison &plan, bool with_can_id,
                     QObject *parent = nullptr);

    // Queues the writes and reads; sig_finished() follows (at once when nothing differs).
    void start();
    bool running() const { return stage_ != stage::idle && stage_ != stage::done; }

    // What happened, in sentences for the operator: what was written and stored, which rows did
    // not take (one line each, with the device's and the file's values), which were left alone.
    static QString describe(const outcome &result);

signals:
    void sig_finished(const settings_restore::outcome &result);

private:
    enum class stage { idle, reading, storing, done };

    void all_read_back();
    void finish(bool complete, const QString &failure);

    QPointer<panel_base> panel_;
    QVector<device_settings::compared_row> write_;
    QVector<device_settings::compared_row> check_;
    row_read_back *reading_ = nullptr;
    row_read_back *fence_ = nullptr;
    stage stage_ = stage::idle;
    outcome result_;
    QTimer *silence_ = nullptr;
};
