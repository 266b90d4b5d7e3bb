#include "config_dialog.h"

#include "panel_style.h"

#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

config_dialog::config_dialog(const QString &display_name, const parameter_list &parameters,
                             double unknown_mark, const QString &unknown_text, const QString &hint)
    : QDialog(nullptr), unknown_mark_(unknown_mark), unknown_text_(unknown_text) {
    setWindowTitle(display_name + tr(" configuration"));
    setWindowIcon(QIcon(QStringLiteral(":/interface/conf_icon.ico")));
    setMinimumWidth(500);
    setMaximumWidth(500);
    setModal(true);

    auto *outer = new QVBoxLayout(this);
    auto *group = new QGroupBox(this);
    group->setObjectName(QStringLiteral("config_group"));
    group->setStyleSheet(panel_style::dialog_group());
    outer->addWidget(group);

    auto *rows = new QVBoxLayout(group);
    auto *note = new QLabel(tr("Device reset is nessesary after CAN ID change"), group);
    note->setObjectName(QStringLiteral("reset_note"));
    rows->addWidget(note);
    if (!hint.isEmpty()) {
        auto *hint_label = new QLabel(hint, group);
        hint_label->setObjectName(QStringLiteral("hint_label"));
        hint_label->setWordWrap(true);
        // The dialog's width is fixed: reserve the wrapped text's height.
        hint_label->setMinimumHeight(hint_label->heightForWidth(440));
        rows->addWidget(hint_label);
    }

    // One width for every value label, so that the rows line up into columns, wide enough for
    // the row with the most decimals (rows with many decimals hold small coefficients).
    int value_width = 70;
    for (const parameter_record &record : parameters) {
        const QString widest =
            QStringLiteral("-88.") + QString(qMax(record.decimals, 1), QLatin1Char('8'));
        value_width = qMax(value_width, fontMetrics().horizontalAdvance(widest) + 6);
    }

    for (const parameter_record &record : parameters) {
        auto *row = new QHBoxLayout;
        auto *label = new QLabel(record.label, group);
        auto *value = new QLabel(value_text(record), group);
        value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        auto *spin = new QDoubleSpinBox(group);
        spin->setMaximum(maximum_value);
        spin->setDecimals(record.decimals);
        spin->setSingleStep(record.step);
        // A row not yet reported starts at the minimum, whatever mark the panel keeps for it.
        spin->setValue(record.value == unknown_mark ? spin->minimum() : record.value);
        spin->setObjectName(record.label);
        // Fixed widths line the rows up into columns.
        value->setFixedWidth(value_width);
        spin->setFixedWidth(130);
        row->addWidget(label, 1);
        row->addWidget(value);
        row->addWidget(spin);
        rows->addLayout(row);
        value_labels_.append(value);
        spin_boxes_.append(spin);
    }

    auto *buttons = new QHBoxLayout;
    save_button_ = new QPushButton(tr("Save to file..."), this);
    save_button_->setObjectName(QStringLiteral("save_file_button"));
    save_button_->setAutoDefault(false);
    load_button_ = new QPushButton(tr("Load from file..."), this);
    load_button_->setObjectName(QStringLiteral("load_file_button"));
    load_button_->setAutoDefault(false);
    buttons->addWidget(save_button_);
    buttons->addWidget(load_button_);
    close_button_ = new QPushButton(tr("Close"), this);
    close_button_->setObjectName(QStringLiteral("close_button"));
    write_button_ = new QPushButton(tr("Write"), this);
    write_button_->setObjectName(QStringLiteral("write_button"));
    write_button_->setAutoDefault(false);
    close_button_->setAutoDefault(false);
    buttons->addStretch();
    buttons->addWidget(close_button_);
    buttons->addWidget(write_button_);
    outer->addLayout(buttons);
    file_status_ = new QLabel(this);
    file_status_->setObjectName(QStringLiteral("file_status"));
    file_status_->hide();
    outer->addWidget(file_status_);
    show_values(parameters);

    connect(close_button_, &QPushButton::clicked, this, &QDialog::close);
}

void config_dialog::show_values(const parameter_list &parameters) {
    for (int i = 0; i < value_labels_.size() && i < parameters.size(); ++i) {
        value_labels_[i]->setText(value_text(parameters[i]));
    }
    bool all_known = !parameters.isEmpty();
    for (const parameter_record &record : parameters) {
        all_known = all_known && record.value != unknown_mark_;
    }
    save_button_->setEnabled(all_known);
}

QString config_dialog::value_text(const parameter_record &record) const {
    if (record.value == unknown_mark_) {
        return unknown_text_;
    }
    return QString::number(record.value, 'f', record.decimals);
}
