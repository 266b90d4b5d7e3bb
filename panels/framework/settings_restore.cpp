#include "settings_restore.h"

#include "panel_base.h"

#include <QTimer>

using device_settings::compared_row;
using device_settings::shown_value;

row_read_back::row_read_back(panel_base *panel, QObject *parent)
    : QObject(parent), panel_(panel) {
    if (panel_) {
        connect(panel_, &panel_base::sig_w_send_command, this, &row_read_back::sent);
        connect(panel_, &panel_base::sig_parameter_reported, this, &row_read_back::reported);
    }
}

void row_read_back::ask(int code) {
    pending_.insert(code);
    if (panel_) {
        panel_->read_parameter(code);
    }
}

void row_read_back::sent(int code, long value) {
    if (code >= 128 && value == 0 && pending_.contains(code - 128)) {
        asked_.insert(code - 128);
    }
}

void row_read_back::reported(int code, qint64 wire) {
    if (!pending_.contains(code) || !asked_.contains(code)) {
        return;
    }
    values_.insert(code, wire);
    pending_.remove(code);
    asked_.remove(code);
    emit sig_progress();
    if (pending_.isEmpty()) {
        emit sig_complete();
    }
}

settings_restore::settings_restore(panel_base *panel, const device_settings::comparison &plan,
                                   bool with_can_id, QObject *parent)
    : QObject(parent),
      panel_(panel),
      write_(plan.to_write(with_can_id)),
      check_(plan.to_check(with_can_id)) {
    for (const compared_row &row : plan.rows) {
        if (!row.in_file() || (row.is_can_id() && !with_can_id && row.differs())) {
            result_.left_alone.append(row.label);
        }
    }
    silence_ = new QTimer(this);
    silence_->setSingleShot(true);
    silence_->setInterval(silence_ms);
    connect(silence_, &QTimer::timeout, this, [this] {
        finish(false, tr("the device stopped answering"));
    });
}

void settings_restore::start() {
    if (stage_ != stage::idle) {
        return;
    }
    if (!panel_) {
        finish(false, tr("the device is gone"));
        return;
    }
    if (write_.isEmpty()) {
        result_.checked = check_.size();
        finish(true, {});
        return;
    }
    stage_ = stage::reading;
    // A device that changes type or goes silent loses its panel.
    connect(panel_, &QObject::destroyed, this, [this] {
        // The panel is being destroyed (no longer a panel): forget it before anything looks.
        panel_.clear();
        finish(false, tr("the device was lost (it stopped answering or changed its type)"));
    });
    reading_ = new row_read_back(panel_, this);
    connect(reading_, &row_read_back::sig_progress, silence_, qOverload<>(&QTimer::start));
    connect(reading_, &row_read_back::sig_complete, this, &settings_restore::all_read_back);
    QSet<int> writing;
    for (const compared_row &row : qAsConst(write_)) {
        panel_->write_parameter_wire(row.code, *row.file_wire);
        reading_->expect(row.code);
        writing.insert(row.code);
    }
    for (const compared_row &row : qAsConst(check_)) {
        if (!writing.contains(row.code)) {
            reading_->ask(row.code);
        }
    }
    result_.written = write_.size();
    silence_->start();
}

void settings_restore::all_read_back() {
    for (const compared_row &row : qAsConst(check_)) {
        const qint64 held = reading_->values().value(row.code);
        if (held != *row.file_wire) {
            result_.not_taken.append(mismatch{row, held, row.differs()});
        }
    }
    result_.checked = check_.size();
    // The store commands leave the queue before the read behind them; its answer shows that they
    // went out.
    stage_ = stage::storing;
    panel_->queue_store_commands();
    fence_ = new row_read_back(panel_, this);
    connect(fence_, &row_read_back::sig_complete, this, [this] {
        result_.stored = true;
        finish(true, {});
    });
    fence_->ask(check_.first().code);
    silence_->start();
}

void settings_restore::finish(bool complete, const QString &failure) {
    if (stage_ == stage::done) {
        return;
    }
    if (stage_ == stage::reading) {
        // Rows never read back are not known to have taken.
        for (const compared_row &row : qAsConst(check_)) {
            if (reading_->pending().contains(row.code)) {
                result_.not_taken.append(mismatch{row, std::nullopt, row.differs()});
            }
        }
    }
    stage_ = stage::done;
    silence_->stop();
    // Either may be the sender of the signal that ended the restore.
    for (row_read_back *reader : {reading_, fence_}) {
        if (reader) {
            reader->disconnect(this);
            reader->deleteLater();
        }
    }
    reading_ = nullptr;
    fence_ = nullptr;
    if (panel_) {
        disconnect(panel_, nullptr, this, nullptr);
    }
    result_.complete = complete;
    result_.failure = failure;
    emit sig_finished(result_);
}

QString settings_restore::describe(const outcome &result) {
    QStringList lines;
    if (!result.complete) {
        lines << tr("The restore stopped: %1.").arg(result.failure);
    }
    if (result.written == 0 && result.complete) {
        lines << tr("The device already holds the file's values: nothing was written.");
    } else if (result.ok()) {
        lines << tr("%1 written; every row read back holds the file's value")
                         .arg(device_settings::row_count(result.written)) +
                     (result.stored ? tr("; stored in the device.") : QStringLiteral("."));
    } else {
        lines << tr("%1 written").arg(device_settings::row_count(result.written)) +
                     (result.stored ? tr(", then stored in the device.") : tr(", not stored."));
        QStringList differing;
        QStringList unconfirmed;
        int unanswered = 0;
        for (const mismatch &m : result.not_taken) {
            const QString file = shown_value(*m.row.file_wire, m.row.decimals);
            if (m.held) {
                differing << tr("  %1: the device holds %2, the file %3")
                                 .arg(m.row.label, shown_value(*m.held, m.row.decimals), file);
            } else if (m.written) {
                unconfirmed << tr("  %1: the file holds %2").arg(m.row.label, file);
            } else {
                ++unanswered;
            }
        }
        if (!differing.isEmpty()) {
            lines << tr("These rows did not take:") << differing;
        }
        if (!unconfirmed.isEmpty()) {
            lines << tr("Written, but not read back, so not known to have taken:") << unconfirmed;
        }
        if (unanswered > 0) {
            lines << tr("%1 not read back.")
                         .arg(unanswered == 1 ? tr("1 other row")
                                              : tr("%1 other rows").arg(unanswered));
        }
    }
    if (!result.left_alone.isEmpty()) {
        lines << tr("Left as they are: %1.").arg(result.left_alone.join(QStringLiteral(", ")));
    }
    return lines.join(QLatin1Char('\n'));
}
