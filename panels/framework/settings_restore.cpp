#include "settings_restore.h"

#include "panel_base.h"

#include <QTimer>

using device_settings::compared_row;
using device_settings::shown_value;

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
    connect(panel_, &panel_base::sig_w_send_command, this, &settings_restore::sent);
    connect(panel_, &panel_base::sig_parameter_reported, this, &settings_restore::reported);
    // A device that changes type or goes silent loses its panel.
    connect(panel_, &QObject::destroyed, this, [this] {
        finish(false, tr("the device was lost (it stopped answering or changed its type)"));
    });
    QSet<int> writing;
    for (const compared_row &row : qAsConst(write_)) {
        panel_->write_parameter(row.code, *row.file_wire);
        writing.insert(row.code);
    }
    for (const compared_row &row : qAsConst(check_)) {
        if (!writing.contains(row.code)) {
            panel_->read_parameter(row.code);
        }
        pending_.insert(row.code);
    }
    result_.written = write_.size();
    silence_->start();
}

void settings_restore::sent(int code, long value) {
    if (code < 128 || value != 0) {
        return;
    }
    const int row = code - 128;
    if (stage_ == stage::reading && pending_.contains(row)) {
        asked_.insert(row);
    } else if (stage_ == stage::storing && row == fence_code_) {
        fence_asked_ = true;
    }
}

void settings_restore::reported(int code, qint64 wire) {
    if (stage_ == stage::reading && pending_.contains(code) && asked_.contains(code)) {
        read_back_.insert(code, wire);
        pending_.remove(code);
        silence_->start();
        if (pending_.isEmpty()) {
            all_read_back();
        }
    } else if (stage_ == stage::storing && code == fence_code_ && fence_asked_) {
        result_.stored = true;
        finish(true, {});
    }
}

void settings_restore::all_read_back() {
    for (const compared_row &row : qAsConst(check_)) {
        const qint64 held = read_back_.value(row.code);
        if (held != *row.file_wire) {
            result_.not_taken.append(mismatch{row, held});
        }
    }
    result_.checked = check_.size();
    // The store commands leave the queue before the read behind them; its answer proves that they
    // went out.
    stage_ = stage::storing;
    fence_code_ = check_.first().code;
    panel_->store_parameters();
    panel_->read_parameter(fence_code_);
    silence_->start();
}

void settings_restore::finish(bool complete, const QString &failure) {
    if (stage_ == stage::done) {
        return;
    }
    if (stage_ == stage::reading) {
        // Rows never read back are not known to have taken.
        for (const compared_row &row : qAsConst(check_)) {
            if (pending_.contains(row.code)) {
                result_.not_taken.append(mismatch{row, std::nullopt});
            }
        }
    }
    stage_ = stage::done;
    silence_->stop();
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
        QStringList rows;
        for (const mismatch &m : result.not_taken) {
            const QString file = shown_value(*m.row.file_wire, m.row.decimals);
            rows << (m.held ? tr("%1 (the device holds %2, the file %3)")
                                  .arg(m.row.label, shown_value(*m.held, m.row.decimals), file)
                            : tr("%1 (not read back; the file holds %2)").arg(m.row.label, file));
        }
        lines << tr("These rows did not take: %1.").arg(rows.join(QStringLiteral("; ")));
    }
    if (!result.left_alone.isEmpty()) {
        lines << tr("Left as they are: %1.").arg(result.left_alone.join(QStringLiteral(", ")));
    }
    return lines.join(QLatin1Char('\n'));
}
