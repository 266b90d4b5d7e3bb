#include "settings_compare_dialog.h"

#include "message_route.h"
#include "panel_base.h"
#include "settings_actions.h"

#include <QCheckBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

using device_settings::compared_row;
using device_settings::shown_value;

namespace {

enum column { row_column, device_column, file_column, mark_column, column_count };

// Rows that a restore would change stand out; rows it leaves alone are greyed.
const QColor changed_background(255, 236, 179);
const QColor left_alone_text(110, 110, 110);

}  // namespace

settings_compare_dialog::settings_compare_dialog(panel_base *panel, const QString &path,
                                                 const device_settings::snapshot &file,
                                                 QWidget *parent)
    : QDialog(parent), panel_(panel), file_(file) {
    setWindowTitle(panel->display_name() + tr(": settings from file"));
    setModal(true);

    auto *outer = new QVBoxLayout(this);
    auto *source = new QLabel(this);
    source->setObjectName(QStringLiteral("file_source"));
    source->setText(tr("<b>%1</b><br>saved %2 by %3<br>from %4 \"%5\" at CAN ID %6")
                        .arg(QFileInfo(path).fileName().toHtmlEscaped(),
                             file.saved.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")),
                             file.program.toHtmlEscaped(), file.model.toHtmlEscaped(),
                             file.name.toHtmlEscaped())
                        .arg(file.can_id));
    outer->addWidget(source);

    table_ = new QTableWidget(this);
    table_->setObjectName(QStringLiteral("comparison_table"));
    table_->setColumnCount(column_count);
    table_->setHorizontalHeaderLabels(
        {tr("Row"), tr("In the device"), tr("In the file"), tr("")});
    table_->verticalHeader()->hide();
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->setSelectionMode(QAbstractItemView::NoSelection);
    table_->setFocusPolicy(Qt::NoFocus);
    table_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table_->horizontalHeader()->setStretchLastSection(true);
    table_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    outer->addWidget(table_);

    summary_ = new QLabel(this);
    summary_->setObjectName(QStringLiteral("comparison_summary"));
    outer->addWidget(summary_);

    can_id_box_ = new QCheckBox(this);
    can_id_box_->setObjectName(QStringLiteral("write_can_id_box"));
    outer->addWidget(can_id_box_);

    result_ = new QLabel(this);
    result_->setObjectName(QStringLiteral("restore_result"));
    result_->hide();
    outer->addWidget(result_);

    auto *buttons = new QHBoxLayout;
    write_button_ = new QPushButton(tr("Write changed rows"), this);
    write_button_->setObjectName(QStringLiteral("write_changed_button"));
    write_button_->setAutoDefault(false);
    auto *close = new QPushButton(tr("Close"), this);
    close->setObjectName(QStringLiteral("close_button"));
    close->setAutoDefault(false);
    buttons->addStretch();
    buttons->addWidget(close);
    buttons->addWidget(write_button_);
    outer->addLayout(buttons);

    connect(close, &QPushButton::clicked, this, &QDialog::close);
    connect(write_button_, &QPushButton::clicked, this,
            &settings_compare_dialog::write_changed_rows);
    connect(can_id_box_, &QCheckBox::toggled, this, &settings_compare_dialog::show_comparison);
    // The device column follows the reports, during a restore too.
    connect(panel, &panel_base::sig_parameter_reported, this,
            &settings_compare_dialog::show_comparison);
    fresh_ = new row_read_back(panel, this);
    connect(fresh_, &row_read_back::sig_complete, this, &settings_compare_dialog::show_comparison);
    for (const parameter_record &record : panel->parameters()) {
        fresh_->ask(record.code);
    }
    show_comparison();

    // Tall enough for every row of the longest parameter list, so that nothing needs scrolling
    // (the width follows the texts, in show_comparison()).
    table_->resizeRowsToContents();
    const int height = table_->verticalHeader()->length() +
                       table_->horizontalHeader()->sizeHint().height() + 2 * table_->frameWidth();
    table_->setFixedHeight(qMin(height, 600));
    // The window never shrinks below what its texts and the table need.
    outer->setSizeConstraint(QLayout::SetMinimumSize);
}

bool settings_compare_dialog::device_read() const {
    return fresh_->complete();
}

device_settings::comparison settings_compare_dialog::current() const {
    if (!panel_) {
        return {};
    }
    return device_settings::compare(settings_actions::device_rows(*panel_), file_);
}

void settings_compare_dialog::show_comparison() {
    const device_settings::comparison now = current();
    const bool with_can_id = can_id_box_->isChecked();
    table_->setRowCount(now.rows.size());
    int differing = 0;
    const compared_row *can_id_row = nullptr;
    for (int i = 0; i < now.rows.size(); ++i) {
        const compared_row &row = now.rows[i];
        QString mark;
        bool left_alone = false;
        if (!row.in_file()) {
            mark = tr("not in the file");
            left_alone = true;
        } else if (row.differs() && row.is_can_id() && !with_can_id) {
            mark = tr("kept");
            left_alone = true;
        } else if (row.differs()) {
            mark = tr("changed");
        }
        if (row.is_can_id() && row.differs()) {
            can_id_row = &row;
        }
        differing += row.differs() ? 1 : 0;
        const QString texts[column_count] = {
            row.label, shown_value(row.device_wire, row.decimals),
            row.in_file() ? shown_value(*row.file_wire, row.decimals) : tr("(none)"), mark};
        for (int c = 0; c < column_count; ++c) {
            QTableWidgetItem *item = table_->item(i, c);
            if (!item) {
                item = new QTableWidgetItem;
                table_->setItem(i, c, item);
            }
            item->setText(texts[c]);
            item->setTextAlignment(c == device_column || c == file_column
                                       ? Qt::AlignRight | Qt::AlignVCenter
                                       : Qt::AlignLeft | Qt::AlignVCenter);
            QFont font = item->font();
            font.setBold(row.differs() && !left_alone);
            item->setFont(font);
            item->setBackground(row.differs() && !left_alone ? QBrush(changed_background)
                                                             : QBrush());
            item->setForeground(left_alone ? QBrush(left_alone_text) : QBrush());
        }
    }

    // Wide enough for every column as it reads now; the mark column for its widest mark, whatever
    // the rows show at the moment.
    table_->resizeColumnsToContents();
    const int mark_width = table_->fontMetrics().horizontalAdvance(tr("not in the file")) +
                           table_->fontMetrics().averageCharWidth() * 2;
    if (table_->horizontalHeader()->sectionSize(mark_column) < mark_width) {
        table_->horizontalHeader()->resizeSection(mark_column, mark_width);
    }
    int width = 2 * table_->frameWidth();
    for (int c = 0; c < column_count; ++c) {
        width += table_->horizontalHeader()->sectionSize(c);
    }
    table_->setMinimumWidth(width);

    const int to_write = now.to_write(with_can_id).size();
    QStringList lines;
    if (!device_read()) {
        lines << tr("Reading the device's rows...");
    } else if (differing == 0) {
        lines << tr("The device holds the file's values.");
    } else {
        lines << tr("Rows that differ: %1 of %2; to be written: %3.")
                     .arg(differing)
                     .arg(now.rows.size())
                     .arg(to_write);
    }
    const QStringList missing = now.missing_from_file();
    if (can_id_row && !with_can_id) {
        lines << tr("The CAN ID row is kept unless ticked below.");
    }
    if (!missing.isEmpty()) {
        lines << tr("Not in the file, left as in the device: %1.")
                     .arg(missing.join(QStringLiteral(", ")));
    }
    if (!now.only_in_file.isEmpty()) {
        lines << tr("In the file but not in this device, not written: %1.")
                     .arg(now.only_in_file.join(QStringLiteral(", ")));
    }
    summary_->setText(lines.join(QLatin1Char('\n')));

    can_id_box_->setVisible(can_id_row != nullptr);
    if (can_id_row) {
        can_id_box_->setText(
            tr("Also write the CAN ID row (%1 to %2, taken at the next device reset)")
                .arg(shown_value(can_id_row->device_wire, 0), shown_value(*can_id_row->file_wire, 0)));
    }
    const bool busy = restore_ && restore_->running();
    write_button_->setEnabled(!busy && device_read() && to_write > 0);
    can_id_box_->setEnabled(!busy);
}

void settings_compare_dialog::write_changed_rows() {
    if (!panel_ || !device_read() || (restore_ && restore_->running())) {
        return;
    }
    const device_settings::comparison now = current();
    const bool with_can_id = can_id_box_->isChecked();
    const int rows = now.to_write(with_can_id).size();
    if (rows == 0) {
        return;
    }
    if (!confirm(this, tr("Restore settings"),
                 tr("Write %1 from the file to %2?")
                     .arg(device_settings::row_count(rows), panel_->display_name()))) {
        return;
    }
    // The restore outlives this window (closed by the operator, or with the panel of a device that
    // was lost); what it found is then told in a box of its own.
    restore_ = new settings_restore(panel_, now, with_can_id);
    const QPointer<settings_compare_dialog> window(this);
    connect(restore_, &settings_restore::sig_finished, restore_,
            [window](const settings_restore::outcome &outcome) {
                if (window) {
                    window->restored(outcome);
                } else if (!outcome.ok()) {
                    inform(nullptr, tr("Restore settings"), settings_restore::describe(outcome));
                }
            });
    connect(restore_, &settings_restore::sig_finished, restore_, &QObject::deleteLater);
    result_->setText(tr("Writing %1, then reading every row back...")
                         .arg(device_settings::row_count(rows)));
    result_->show();
    restore_->start();
    show_comparison();
}

void settings_compare_dialog::restored(const settings_restore::outcome &outcome) {
    const QString text = settings_restore::describe(outcome);
    result_->setText(text);
    result_->show();
    show_comparison();
    if (!outcome.ok()) {
        inform(this, tr("Restore settings"), text);
    }
    emit sig_finished(outcome);
}
