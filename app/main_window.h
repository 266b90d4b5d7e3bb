#pragma once

#include "build_info.h"
#include "device.h"
#include "device_panel.h"  // device.h hands out device_panel pointers through a QPointer

#include <QElapsedTimer>
#include <QList>
#include <QMainWindow>
#include <QPointer>
#include <QString>

#include <functional>

class QCloseEvent;
class QTimer;
class monitor_window;
class observation_hub;
class panel_registry;
class port_report;
class serial_connector;
class trend_window;

namespace Ui {
class main_window;
}

// The one window of the program: the Main page with a panel per configured device, the Settings
// page with the serial port and the device table, the Help page with the version text. It owns the
// serial link, the device objects and the 10 ms timer that drives the polling cycle.
class main_window : public QMainWindow {
    Q_OBJECT
public:
    // A serial port as the port list shows it.
    struct port_entry {
        QString name;
        QString description;
    };
    // Lists the serial ports on offer; the system's by default (tests list pseudo-terminals).
    using port_lister = std::function<QList<port_entry>()>;

    static constexpr int poll_interval_ms = 10;
    // Automatic connection attempts are at least this far apart, so a missing adapter costs
    // nothing.
    static constexpr int reconnect_gap_ms = 500;
    // Pause between a possible automatic connection at start-up and filling the port list.
    static constexpr int startup_pause_ms = 100;
    // Relative to the working directory.
    static const QString config_file;

    // `brand` picks the header colour, logo and whether the TTL tester shows; `registry` decides
    // which panel each device type gets (the program's own when null).
    explicit main_window(const QString &brand = QString::fromUtf8(build_info::brand),
                         const panel_registry *registry = nullptr, QWidget *parent = nullptr);
    // Stops the serial link's thread and every device's thread before the widgets go.
    ~main_window() override;

    // Reads the configuration file, creates the devices, fills the device table, starts the
    // automatic connection if it is on, fills the port list and sets the version label. A file it
    // cannot use as written is first kept beside itself, and a warning says why and where.
    void initialise_from_config();
    // Writes the configuration file (done on every close); a failure is reported as a warning.
    void save_config() const;

    void set_port_lister(port_lister lister);
    static QList<port_entry> system_ports();

    QString brand() const { return brand_; }
    serial_connector *serial_link() const { return serial_; }
    const QList<device *> &devices() const { return devices_; }
    const QList<QWidget *> &containers() const { return containers_; }

    // What every placed panel reports, for the recorder and the trend window.
    observation_hub *observations() const { return observations_; }
    // Shows the live trend window (Ctrl+T), made on first use; closing it only hides it, so it
    // keeps collecting until the program ends.
    trend_window *open_trends();
    // Shows the bus monitor (Ctrl+M), made on first use. It takes the link's traffic while it is
    // open; closing it only hides it and stops that, keeping what it holds.
    monitor_window *open_monitor();

    // Says why the serial port could not be opened (status bar, and once in a box).
    port_report *port_failures() const { return port_report_; }

signals:
    void sig_init_connection(QString port_name);
    void sig_disconnect();
    void key_event();
    void sig_send_command(QString text);
    // A device answered with its type (`model` from the registry, empty for an unknown type), or
    // fell silent and was forgotten (`type_id` -1).
    void sig_device_type(int can_id, const QString &name, int type_id, const QString &model);
    // A panel was placed for `dev` (its type was learnt, or learnt again after a loss).
    void sig_panel_placed(device *dev);

public slots:
    void on_main_menu_butt_clicked();
    void on_main_menu_butt_2_clicked();
    void on_main_menu_butt_3_clicked();
    void on_serial_refresh_button_clicked();
    void on_connect_button_clicked();
    void sl_serial_connected();
    void sl_serial_disconnected();
    void on_serial_combo_box_activated(int index);
    void sl_tearing();
    void sl_change_ui_widget(device *dev, int slot);
    void on_apply_pb_clicked();
    void on_add_pb_clicked();
    void on_delete_row_pb_clicked();
    void on_mini_usb_mode_checkbox_stateChanged(int arg1);
    void on_pushButton_clicked();
    void on_pushButton_2_clicked();
    void on_pushButton_3_clicked();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void apply_brand();
    void keep_unusable_file(const QStringList &problems);
    void show_page(int index);
    void create_device(int can_id, const QString &name, int slot);
    void delete_devices();
    void add_table_row(int can_id, const QString &name);
    void show_emission(bool on);
    void reconnect_later();
    void reconnect_due();

    Ui::main_window *ui;
    const QString brand_;
    const panel_registry *registry_;
    serial_connector *serial_ = nullptr;
    QList<device *> devices_;
    QList<QWidget *> containers_;
    QTimer *poll_timer_ = nullptr;
    // Position of the polling cycle in the device list. The program has one window, so this is
    // the one index of the whole program.
    int tearing_index_ = 0;
    // What the emission indicators show now: -1 before the first showing, else 0 (off) or 1 (on).
    // The tick sums the devices' emission states every 10 ms; the widgets change only with it.
    int emission_shown_ = -1;
    port_lister list_ports_;
    QTimer *reconnect_timer_ = nullptr;
    QElapsedTimer last_attempt_;
    // Set when the file could not be used as written and no copy of it could be made: closing must
    // not overwrite the only record of the operator's devices.
    bool keep_file_ = false;
    observation_hub *observations_ = nullptr;
    QPointer<trend_window> trends_;
    port_report *port_report_ = nullptr;
    QPointer<monitor_window> monitor_;
};
