#pragma once

#include <QString>
#include <QWidget>

class QCheckBox;
class QLabel;

// The command server in the main window's status bar: where it listens or how many clients are
// connected ("Remote: 2 clients"), and the operator's switch for remote writes. While writes are
// allowed the whole field is marked in amber and says so.
class remote_status : public QWidget {
    Q_OBJECT
public:
    explicit remote_status(const QString &address, QWidget *parent = nullptr);

    void show_clients(int count);
    void show_writes_allowed(bool allowed);
    QString text() const;

signals:
    // The operator ticked or cleared "Allow remote writes".
    void sig_writes_toggled(bool allowed);

private:
    void refresh();

    QString address_;
    int clients_ = 0;
    bool writes_allowed_ = false;
    QLabel *label_;
    QCheckBox *writes_;
};
