#include "main_window.h"

#include "device_panel.h"
#include "frame_codec.h"
#include "monitor_window.h"
#include "observation_hub.h"
#include "panel_registry.h"
#include "port_report.h"
#include "serial_connector.h"
#include "settings_file.h"
#include "trend_window.h"
#include "ui_main_window.h"

#include <QCloseEvent>
#include <QDebug>
#include <QDir>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPixmap>
#include <QSerialPortInfo>
#include <QSettings>
#include <QShortcut>
#include <QSpinBox>
#include <QStyle>
#include <QThread>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

const QString main_window::config_file = QStringLiteral("configs/config.ini");

namespace {

const char *const menu_selected_style =
    "QPushButton{color: rgb(200, 0, 0);text-align: center;border: 0px solid gray;vertical-align: "
    "bottom;} QPushButton:hover{text-align: center;color: rgb(120, 0, 0);border: 0px solid "
    "gray;vertical-align: bottom;}";
const char *const menu_plain_style =
    "QPushButton{color: rgb(0, 0, 0);text-align: center;border: 0px solid gray;vertical-align: "
    "bottom;} QPushButton:hover{text-align: center;color: rgb(120, 0, 0);border: 0px solid "
    "gray;vertical-align: bottom;}";

// Header colour, logo and logo size of each brand; the last row is every other brand.
struct brand_look {
    const char *brand;
    const char *header_style;
    const char *logo;
    int logo_width;
    int logo_height;
};
const brand_look brand_looks[] = {
    {"Skarnova", "QWidget {\n\tbackground-color: rgb(67, 55, 121);\n}",
     ":/interface/SkarN_logo.png", 273, 60},
    {"Quibrel", "QWidget {\n\tbackground-color: rgb(60, 145, 136);\n}",
     ":/interface/quibrel_logo_PNG.png", 215, 60},
    {"Veltrano", "QWidget {\n\tbackground-color: rgb(35, 39, 215);\n}", ":/interface/veltrano.png",
     273, 35},
    {nullptr, "QWidget {\n\tbackground-color: rgb(76, 109, 128);\n}",
     ":/interface/power_version.png", 128, 95},
};
// The generic build's header grows to hold its taller logo.
constexpr int generic_header_max_height = 107;

// The device table's CAN ID range.
constexpr int min_can_id = settings_file::table_min_can_id;
constexpr int max_can_id = settings_file::table_max_can_id;

QString key(const char *prefix, int n) {
    return QLatin1String(prefix) + QString::number(n);
}

}  // namespace

main_window::main_window(const QString &brand, const panel_registry *registry, QWidget *parent)
    : QMainWindow(parent),
      ui(new Ui::main_window),
      brand_(brand),
      registry_(registry),
      list_ports_(&main_window::system_ports) {
    ui->setupUi(this);
    ui->serial_refresh_button->setIcon(style()->standardIcon(QStyle::SP_BrowserReload));

    const QString commit = QString::fromLatin1(build_info::commit);
    ui->help_text->clear();
    ui->help_text->appendPlainText(brand_ + QStringLiteral("\rLumivox\r\rVersion ") +
                                   QStringLiteral("\rSHA1 = ") + commit + QStringLiteral("\r"));

    // The link has no parent: it lives in a thread of its own and is deleted by the destructor.
    serial_ = new serial_connector;
    connect(this, &main_window::sig_init_connection, serial_,
            &serial_connector::sl_init_connection);
    connect(this, &main_window::sig_disconnect, serial_, &serial_connector::sl_serial_disconnect);
    connect(serial_, &serial_connector::sig_connected, this, &main_window::sl_serial_connected);
    connect(serial_, &serial_connector::sig_disconnected, this,
            &main_window::sl_serial_disconnected);
    connect(serial_, &serial_connector::sig_tearing, this, &main_window::sl_tearing);
    connect(this, &main_window::sig_send_command, serial_, &serial_connector::sl_send_string);

    apply_brand();

    ui->device_table->installEventFilter(this);
    show_emission(false);

    // The polling cycle runs while the port is open, as the link's send-now pulse (sl_sender())
    // would run it; the state is read directly, so a tick costs no round trip through the link's
    // thread.
    poll_timer_ = new QTimer(this);
    connect(poll_timer_, &QTimer::timeout, this, [this] {
        if (serial_->polling_ready()) {
            sl_tearing();
        }
    });
    poll_timer_->start(poll_interval_ms);

    installEventFilter(this);

    reconnect_timer_ = new QTimer(this);
    reconnect_timer_->setSingleShot(true);
    reconnect_timer_->setTimerType(Qt::PreciseTimer);
    connect(reconnect_timer_, &QTimer::timeout, this, &main_window::reconnect_due);

    observations_ = new observation_hub(system_clock(), this);
    auto *trends = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_T), this);
    connect(trends, &QShortcut::activated, this, &main_window::open_trends);

    port_report_ = new port_report(this);
    auto *monitor = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_M), this);
    connect(monitor, &QShortcut::activated, this, &main_window::open_monitor);
}

main_window::~main_window() {
    delete trends_;
    delete monitor_;
    poll_timer_->stop();
    reconnect_timer_->stop();
    // Both stop their threads and wait for them: the link first, so that no line reaches a
    // device being deleted.
    delete serial_;
    serial_ = nullptr;
    delete_devices();
    delete ui;
}

void main_window::apply_brand() {
    const brand_look *look = std::begin(brand_looks);
    while (look->brand && brand_ != QLatin1String(look->brand)) {
        ++look;
    }
    ui->header_widget->setStyleSheet(QString::fromUtf8(look->header_style));
    ui->logo_label->setPixmap(QPixmap(QString::fromUtf8(look->logo)));
    const QSize logo_size(look->logo_width, look->logo_height);
    ui->logo_label->setMinimumSize(logo_size);
    ui->logo_label->setMaximumSize(logo_size);
    if (look->brand) {
        // The TTL tester is a workshop tool; the named brands ship without it.
        ui->ttl_tester->hide();
    } else {
        ui->header_widget->setMaximumHeight(generic_header_max_height);
    }
}

void main_window::set_port_lister(port_lister lister) {
    list_ports_ = std::move(lister);
}

QList<main_window::port_entry> main_window::system_ports() {
    QList<port_entry> ports;
    const QList<QSerialPortInfo> infos = QSerialPortInfo::availablePorts();
    for (const QSerialPortInfo &info : infos) {
        ports.append({info.portName(), info.description()});
    }
    return ports;
}

// ---- Configuration file and device table --------------------------------------------------------

void main_window::initialise_from_config() {
    const settings_file::contents stored = settings_file::read(config_file);
    if (!stored.problems.isEmpty()) {
        keep_unusable_file(stored.problems);
    }

    ui->device_table->setColumnCount(2);
    ui->device_table->setHorizontalHeaderLabels({tr("CAN ID"), tr("Device name")});
    ui->device_table->horizontalHeader()->setStretchLastSection(true);

    if (!stored.prev_port.isEmpty()) {
        qDebug() << "saved writed" << stored.prev_port;
        serial_->set_port_name(stored.prev_port);
    }

    if (!stored.devices.isEmpty()) {
        ui->mini_usb_mode_checkbox->setChecked(stored.mini_usb_mode);
        for (int n = 0; n < stored.devices.size(); ++n) {
            create_device(stored.devices.at(n).can_id, stored.devices.at(n).name, n);
        }
    } else {
        // First run (or an unusable file): one device at CAN ID 1, reached through mini USB.
        ui->mini_usb_mode_checkbox->setChecked(true);
        create_device(1, QStringLiteral("name"), 0);
    }
    for (const device *dev : qAsConst(devices_)) {
        add_table_row(dev->can_id(), dev->name());
    }

    if (stored.autoconnection_mode) {
        ui->autoconnection_checkbox->setChecked(true);
        on_connect_button_clicked();
    }

    QThread::msleep(startup_pause_ms);
    on_serial_refresh_button_clicked();
    ui->version_label->setText(QStringLiteral("v5.") +
                               QString::fromLatin1(build_info::commit).left(6) +
                               QStringLiteral(" "));
}

void main_window::keep_unusable_file(const QStringList &problems) {
    const QString path = QFileInfo(config_file).absoluteFilePath();
    QString error;
    const QString copy = settings_file::keep_copy(config_file, &error);
    QString kept;
    if (copy.isEmpty()) {
        // Without a copy the file as written exists nowhere else: closing leaves it alone.
        keep_file_ = true;
        kept = QStringLiteral("no copy could be made (%1), so closing will not overwrite it")
                   .arg(error);
    } else {
        kept = QStringLiteral("it is kept as it was in \"%1\"").arg(copy);
    }
    qWarning().noquote() << QStringLiteral(
                                "configuration file \"%1\" cannot be used as written: %2; %3")
                                .arg(path, problems.join(QStringLiteral("; ")), kept);
}

void main_window::save_config() const {
    const QString path = QFileInfo(config_file).absoluteFilePath();
    if (keep_file_) {
        qWarning().noquote() << QStringLiteral(
                                    "configuration file \"%1\" not saved: it could not be read "
                                    "as written and no copy of it could be made")
                                    .arg(path);
        return;
    }
    QDir().mkpath(QFileInfo(config_file).path());
    QSettings settings(config_file, QSettings::IniFormat);
    settings.clear();
    settings.setValue(QStringLiteral("prev_port"), serial_->port_name());
    settings.setValue(QStringLiteral("mini_usb_mode"), ui->mini_usb_mode_checkbox->isChecked());
    settings.setValue(QStringLiteral("autoconnection_mode"),
                      ui->autoconnection_checkbox->isChecked());
    settings.setValue(QStringLiteral("device_count"), devices_.size());
    for (int n = 0; n < devices_.size(); ++n) {
        settings.setValue(key("device_", n), devices_.at(n)->can_id());
        settings.setValue(key("name_device_", n), devices_.at(n)->name());
    }
    settings.sync();
    if (settings.status() != QSettings::NoError) {
        qWarning().noquote() << QStringLiteral("configuration file \"%1\" could not be saved: %2")
                                    .arg(path, settings_file::write_failure_reason(config_file));
    }
}

void main_window::create_device(int can_id, const QString &name, int slot) {
    auto *dev = new device(this, registry_);
    dev->set_can_id(can_id);
    dev->set_name(name);
    // The mode counts when the device is created; ticking the box later changes nothing here.
    dev->set_accept_any_sender(ui->mini_usb_mode_checkbox->isChecked());
    dev->set_slot(slot);
    if (frame_codec::carries_can_id(can_id)) {
        connect(dev, &device::sig_send_command, serial_, &serial_connector::sl_send_string);
    } else {
        // Its frames would be malformed: the device stays in the table and the file, never
        // reaches the link and is never ticked.
        qWarning().noquote() << QStringLiteral(
                                    "device \"%1\" (table row %2) has CAN ID %3, which no frame "
                                    "can carry (0 to 0x%4): it sends nothing")
                                    .arg(name)
                                    .arg(slot + 1)
                                    .arg(can_id)
                                    .arg(frame_codec::max_can_id, 0, 16);
    }
    connect(dev, &device::sig_change_ui_widget, this, &main_window::sl_change_ui_widget);
    connect(dev, &device::sig_type_changed, this, [this](device *changed, int type_id) {
        const panel_registry::entry *entry =
            (registry_ ? registry_ : &panel_registry::instance())->find(type_id);
        emit sig_device_type(changed->can_id(), changed->name(), type_id,
                             entry ? entry->model : QString());
    });
    dev->listen_to(serial_);

    auto *container = new QWidget;
    auto *layout = new QVBoxLayout(container);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    container->setContentsMargins(0, 0, 0, 0);
    ui->devices_layout->addWidget(container);

    devices_.append(dev);
    containers_.append(container);
}

void main_window::delete_devices() {
    for (int i = 0; i < devices_.size(); ++i) {
        // Deleting a device deletes its panel and stops its thread.
        delete devices_.at(i);
        delete containers_.at(i);
    }
    devices_.clear();
    containers_.clear();
}

void main_window::add_table_row(int can_id, const QString &name) {
    const int row = ui->device_table->rowCount();
    ui->device_table->insertRow(row);
    auto *spin = new QSpinBox;
    spin->setRange(min_can_id, max_can_id);
    spin->setValue(can_id);
    // The CAN ID must not change when the table is scrolled with the wheel over it.
    spin->installEventFilter(this);
    ui->device_table->setCellWidget(row, 0, spin);
    ui->device_table->setItem(row, 1, new QTableWidgetItem(name));
}

void main_window::on_add_pb_clicked() {
    const int rows = ui->device_table->rowCount();
    int value = min_can_id;
    if (rows > 0) {
        const auto *last = qobject_cast<QSpinBox *>(ui->device_table->cellWidget(rows - 1, 0));
        value = std::min(max_can_id, (last ? last->value() : 0) + 1);
    }
    add_table_row(value, QStringLiteral("Laser ") + QString::number(value));
}

void main_window::on_delete_row_pb_clicked() {
    QItemSelectionModel *selection = ui->device_table->selectionModel();
    while (selection->hasSelection()) {
        const QModelIndexList cells = selection->selectedIndexes();
        if (cells.isEmpty()) {
            break;
        }
        ui->device_table->removeRow(cells.first().row());
    }
}

void main_window::on_apply_pb_clicked() {
    poll_timer_->stop();
    delete_devices();
    for (int row = 0; row < ui->device_table->rowCount(); ++row) {
        const QTableWidgetItem *item = ui->device_table->item(row, 1);
        const QString name = item ? item->text() : QString();
        const auto *spin = qobject_cast<QSpinBox *>(ui->device_table->cellWidget(row, 0));
        create_device(spin ? spin->value() : 0, name, row);
        if (ui->mini_usb_mode_checkbox->isChecked()) {
            // Through the mini USB cable there is only the one device.
            break;
        }
    }
    poll_timer_->start(poll_interval_ms);
}

void main_window::on_mini_usb_mode_checkbox_stateChanged(int arg1) {
    const bool on = arg1 != Qt::Unchecked;
    QTableWidget *table = ui->device_table;
    if (table->rowCount() > 0) {
        if (QWidget *first = table->cellWidget(0, 0)) {
            first->setEnabled(!on);
        }
    }
    for (int row = 1; row < table->rowCount(); ++row) {
        table->setRowHidden(row, on);
    }
    ui->add_pb->setEnabled(!on);
    ui->delete_row_pb->setEnabled(!on);
}

// ---- Pages --------------------------------------------------------------------------------------

void main_window::show_page(int index) {
    ui->stackedWidget->setCurrentIndex(index);
    QPushButton *const buttons[] = {ui->main_menu_butt, ui->main_menu_butt_2, ui->main_menu_butt_3};
    for (int i = 0; i < 3; ++i) {
        buttons[i]->setStyleSheet(
            QString::fromLatin1(i == index ? menu_selected_style : menu_plain_style));
    }
}

void main_window::on_main_menu_butt_clicked() {
    show_page(0);
}
void main_window::on_main_menu_butt_2_clicked() {
    show_page(1);
}
void main_window::on_main_menu_butt_3_clicked() {
    show_page(2);
}

// ---- Serial port --------------------------------------------------------------------------------

void main_window::on_serial_refresh_button_clicked() {
    QComboBox *combo = ui->serial_combo_box;
    combo->clear();
    const QList<port_entry> ports = list_ports_ ? list_ports_() : QList<port_entry>();
    for (const port_entry &port : ports) {
        combo->addItem(QStringLiteral("\"") + port.description + QStringLiteral("\" ") + port.name,
                       port.name);
    }
    combo->setCurrentIndex(combo->findData(serial_->port_name(), Qt::UserRole,
                                           Qt::MatchExactly | Qt::MatchCaseSensitive));
}

void main_window::on_serial_combo_box_activated(int index) {
    serial_->set_port_name(ui->serial_combo_box->itemData(index).toString());
}

void main_window::on_connect_button_clicked() {
    if (ui->connect_button->text() == tr("Connect")) {
        last_attempt_.start();
        emit sig_init_connection(serial_->port_name());
    } else {
        emit sig_disconnect();
    }
}

void main_window::sl_serial_connected() {
    reconnect_timer_->stop();
    ui->connect_button->setCheckable(true);
    ui->connect_button->setChecked(true);
    ui->connect_button->setText(tr("Disconnect"));
    ui->devices_widget->setEnabled(true);
    ui->connection_status_label->setText(tr("Connection status: CONNECTED"));
    ui->serial_combo_box->setEnabled(false);
    port_report_->connected();
}

void main_window::sl_serial_disconnected() {
    // Taken before a retry is asked for, which records its own.
    const port_failure failure = serial_->take_open_failure();
    ui->connect_button->setChecked(false);
    ui->connect_button->setCheckable(false);
    ui->connect_button->setText(tr("Connect"));
    ui->devices_widget->setEnabled(false);
    ui->connection_status_label->setText(tr("Connection status: DISCONNECTED"));
    if (ui->autoconnection_checkbox->isChecked()) {
        ui->serial_combo_box->setEnabled(false);
        reconnect_later();
    } else {
        ui->serial_combo_box->setEnabled(true);
    }
    // A failed open says why; a closed or lost port has nothing to add.
    port_report_->failed(failure);
}

void main_window::reconnect_later() {
    // Every disconnection starts the next attempt, but never sooner than the gap after the last
    // one: a port that fails at once would otherwise be retried in a tight loop.
    const qint64 since = last_attempt_.isValid() ? last_attempt_.elapsed() : reconnect_gap_ms;
    if (since >= reconnect_gap_ms) {
        on_connect_button_clicked();
    } else {
        reconnect_timer_->start(static_cast<int>(reconnect_gap_ms - since));
    }
}

void main_window::reconnect_due() {
    if (ui->connect_button->text() != tr("Connect")) {
        return;  // connected meanwhile (the operator clicked Connect)
    }
    if (ui->autoconnection_checkbox->isChecked()) {
        on_connect_button_clicked();
    } else {
        // Automatic connection was switched off while waiting: the port may be chosen again.
        ui->serial_combo_box->setEnabled(true);
    }
}

// ---- Polling cycle ------------------------------------------------------------------------------

void main_window::sl_tearing() {
    // The next device in round-robin order that can send; one whose CAN ID no frame carries is
    // passed over, so the others keep their pace.
    for (int tried = 0; tried < devices_.size(); ++tried) {
        if (tearing_index_ > devices_.size() - 1) {
            tearing_index_ = 0;
        }
        device *dev = devices_.at(tearing_index_++);
        if (frame_codec::carries_can_id(dev->can_id())) {
            dev->tick();
            break;
        }
    }
    int emission_sum = 0;
    for (const device *dev : qAsConst(devices_)) {
        emission_sum += dev->emission_state();
    }
    show_emission(emission_sum >= 1);
}

void main_window::show_emission(bool on) {
    if (emission_shown_ == static_cast<int>(on)) {
        return;
    }
    emission_shown_ = static_cast<int>(on);
    ui->emit_on->setVisible(on);
    ui->emit_off->setVisible(!on);
    ui->emission_label->setText(on ? tr("Emission: ON") : tr("Emission: OFF"));
}

void main_window::sl_change_ui_widget(device *dev, int slot) {
    qDebug().noquote() << QStringLiteral("popped ") + QString::number(dev->can_id());
    device_panel *panel = dev->current_panel();
    if (!panel || slot < 0 || slot >= containers_.size()) {
        return;
    }
    containers_.at(slot)->layout()->addWidget(panel);
    connect(dev, &device::sig_refresh_state, panel, &device_panel::sl_refresh_state);
    observations_->watch(dev->can_id(), dev->name(), panel);
    emit sig_panel_placed(dev);
}

trend_window *main_window::open_trends() {
    if (!trends_) {
        trends_ = new trend_window;
        // The program ends with the main window, whether the trends are open or not.
        trends_->setAttribute(Qt::WA_QuitOnClose, false);
        connect(observations_, &observation_hub::sig_sample, trends_, &trend_window::take);
    }
    trends_->show();
    trends_->raise();
    trends_->activateWindow();
    return trends_;
}

monitor_window *main_window::open_monitor() {
    if (!monitor_) {
        monitor_ = new monitor_window(serial_, [this] { return devices_; });
        // The program ends with the main window, whether the monitor is open or not.
        monitor_->setAttribute(Qt::WA_QuitOnClose, false);
    }
    monitor_->show();
    monitor_->raise();
    monitor_->activateWindow();
    return monitor_;
}

// ---- TTL tester ---------------------------------------------------------------------------------

void main_window::on_pushButton_clicked() {
    emit sig_send_command(QStringLiteral("FREQ_TTL ") +
                          QString::number(ui->freq_spin->value(), 'f', 0) + QStringLiteral("\r"));
}

void main_window::on_pushButton_2_clicked() {
    emit sig_send_command(QStringLiteral("PW_TTL ") +
                          QString::number(ui->pw_spin->value(), 'f', 0) + QStringLiteral("\r"));
}

void main_window::on_pushButton_3_clicked() {
    // The click toggles the button before this runs, so the first press sends the stop command and
    // leaves "START", the second starts the pulse train. This pairing is deliberate.
    if (!ui->pushButton_3->isChecked()) {
        emit sig_send_command(QStringLiteral("Start_TTL\r"));
        ui->pushButton_3->setText(tr("STOP"));
    } else {
        emit sig_send_command(QStringLiteral("Stop_TTL\r"));
        ui->pushButton_3->setText(tr("START"));
    }
}

// ---- Events -------------------------------------------------------------------------------------

bool main_window::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::Wheel) {
        qDebug() << "Wheel event blocked";
        return true;
    }
    if (watched == ui->device_table && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Delete) {
        on_delete_row_pb_clicked();
    }
    return QMainWindow::eventFilter(watched, event);
}

void main_window::closeEvent(QCloseEvent *event) {
    save_config();
    QMainWindow::closeEvent(event);
}
