#pragma once

#include "device_directory.h"
#include "monitor_model.h"
#include "serial_connector.h"

#include <QPointer>
#include <QString>
#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableView;
class QTimer;

// The bus monitor: a window of its own listing every frame the serial link sends and every line
// it receives, newest at the bottom, with the time, the direction, the CAN ID, the device's name,
// the code (and what the device's panel calls it), the value raw and in the panel's unit. Lines
// the program ignores are listed too, marked, with their text. Filters by device, code and
// direction; Pause holds the list still while lines are still kept; the history is bounded.
// "Export log..." writes the frames shown as a candump log, "Open log..." shows such a log in a
// window of its own.
//
// A live window takes the link's traffic only while it is open: closing it (it is only hidden)
// disconnects it from the link, so a closed monitor costs the link one atomic load a line, and
// what it kept stays for when it is opened again.
class monitor_window : public QWidget {
    Q_OBJECT
public:
    // A live window follows `link` while open; with no link the window shows a log (open_log()).
    // `devices` names the frames.
    monitor_window(serial_connector *link, device_directory::device_source devices,
                   QWidget *parent = nullptr, int capacity = monitor_model::default_capacity);
    ~monitor_window() override;

    bool is_live() const { return link_ != nullptr; }
    // Whether the window takes the link's traffic now.
    bool capturing() const { return capturing_; }
    monitor_model *model() const { return model_; }
    QTableView *view() const { return view_; }

    // Shows the candump log at `path` (replacing what the window holds). False, with the reason
    // in the status line, when it cannot be read.
    bool open_log(const QString &path);
    // Writes the frames shown to `path` as a candump log. False (reason in the status line) on
    // failure.
    bool export_log(const QString &path);

    void set_paused(bool paused);
    // The filters, as their widgets set them: a device address (-1: all), codes in hex, a
    // direction (-1: both). False when the codes are unreadable (the filter then stays).
    void set_device_filter(int address);
    bool set_code_filter(const QString &codes);
    void set_direction_filter(int dir);

    QString status_text() const;

protected:
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void attach();
    void detach();
    void add_address(int address);
    void refresh_device_names();
    void apply_filter();
    void after_publication();
    void update_status();
    void say(const QString &text, bool trouble = false);
    void ask_open();
    void ask_export();

    QPointer<serial_connector> link_;
    device_directory::device_source devices_;
    device_directory directory_;
    monitor_model *model_ = nullptr;
    bool capturing_ = false;
    bool following_ = true;  // the list was at its bottom before new rows came
    QString file_;
    QString message_;
    bool message_trouble_ = false;

    QTableView *view_ = nullptr;
    QPushButton *pause_ = nullptr;
    QPushButton *clear_ = nullptr;
    QComboBox *device_ = nullptr;
    QLineEdit *codes_ = nullptr;
    QComboBox *direction_ = nullptr;
    QLabel *status_ = nullptr;
    QTimer *status_timer_ = nullptr;
};
