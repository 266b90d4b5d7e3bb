#include "remote_status.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>

remote_status::remote_status(const QString &address, QWidget *parent)
    : QWidget(parent), address_(address) {
    setObjectName(QStringLiteral("remote_status"));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(6, 0, 6, 0);
    label_ = new QLabel(this);
    label_->setObjectName(QStringLiteral("remote_clients_label"));
    writes_ = new QCheckBox(tr("Allow remote writes"), this);
    writes_->setObjectName(QStringLiteral("remote_writes_box"));
    writes_->setToolTip(tr("Let clients of the command server change set-points, emission and "
                           "parameters. Queries are always answered."));
    layout->addWidget(label_);
    layout->addWidget(writes_);
    setAttribute(Qt::WA_StyledBackground);
    connect(writes_, &QCheckBox::toggled, this, &remote_status::sig_writes_toggled);
    refresh();
}

void remote_status::show_clients(int count) {
    clients_ = count;
    refresh();
}

void remote_status::show_writes_allowed(bool allowed) {
    writes_allowed_ = allowed;
    const QSignalBlocker quiet(writes_);
    writes_->setChecked(allowed);
    refresh();
}

QString remote_status::text() const {
    return label_->text();
}

void remote_status::refresh() {
    QString text = clients_ == 0   ? tr("Remote: listening on %1").arg(address_)
                   : clients_ == 1 ? tr("Remote: 1 client")
                                   : tr("Remote: %1 clients").arg(clients_);
    if (writes_allowed_) {
        text += tr(", WRITES ALLOWED");
    }
    label_->setText(text);
    setStyleSheet(writes_allowed_ ? QStringLiteral("QWidget#remote_status { background: #ffb300; }"
                                                   " QLabel, QCheckBox { font-weight: bold; }")
                                  : QString());
}
