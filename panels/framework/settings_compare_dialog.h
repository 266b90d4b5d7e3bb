#pragma once

#include "device_settings.h"
#include "settings_restore.h"

#include <QDialog>
#include <QPointer>

class QCheckBox;
class QLabel;
class QPushButton;
class QTableWidget;
class panel_base;

// A settings file beside what the device holds now: one line per configuration row with the value
// in the device and the value in the file, the rows that differ marked. Opening it asks the device
// for every row again, so that the comparison is with what the device holds, not with what it
// held when it was first read. "Write changed rows" asks
// once, then writes only those rows, reads every row back, checks and stores (settings_restore),
// and says plainly what took and what did not. The CAN ID row is written only when its box is
// ticked, so that copying one device's rows onto another does not take its address.
class settings_compare_dialog : public QDialog {
    Q_OBJECT
public:
    settings_compare_dialog(panel_base *panel, const QString &path,
                            const device_settings::snapshot &file, QWidget *parent = nullptr);

    // The comparison with the device's values as last reported.
    device_settings::comparison current() const;
    // Every row has been read again since the window opened (writing waits for it).
    bool device_read() const;

    QTableWidget *table() const { return table_; }
    QCheckBox *can_id_box() const { return can_id_box_; }
    QPushButton *write_button() const { return write_button_; }
    QLabel *summary() const { return summary_; }
    QLabel *result() const { return result_; }

public slots:
    // Asks "Write N changed rows ...?" and on Yes restores.
    void write_changed_rows();

signals:
    void sig_finished(const settings_restore::outcome &result);

private:
    void show_comparison();
    void restored(const settings_restore::outcome &outcome);

    QPointer<panel_base> panel_;
    device_settings::snapshot file_;
    QTableWidget *table_ = nullptr;
    QLabel *summary_ = nullptr;
    QCheckBox *can_id_box_ = nullptr;
    QPushButton *write_button_ = nullptr;
    QLabel *result_ = nullptr;
    QPointer<settings_restore> restore_;
    row_read_back *fresh_ = nullptr;
};
