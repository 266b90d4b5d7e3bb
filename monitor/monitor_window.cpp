#include "monitor_window.h"

#include "candump_log.h"
#include "device.h"
#include "frame_codec.h"
#include "line_delegate.h"
#include "serial_connector.h"

#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSaveFile>
#include <QScrollBar>
#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>

namespace {

// How often the status line is brought up to date while the window is open.
constexpr int status_ms = 500;

}  // namespace

monitor_window::monitor_window(serial_connector *link, device_directory::device_source devices,
                               QWidget *parent, int capacity)
    : QWidget(parent, Qt::Window),
      link_(link),
      devices_(devices),
      directory_(std::move(devices)),
      model_(new monitor_model(capacity, this)) {
    setWindowTitle(tr("Bus monitor"));
    model_->set_lookup([this](int address) { return directory_.find(address); });

    pause_ = new QPushButton(tr("Pause"));
    pause_->setCheckable(true);
    pause_->setToolTip(tr("Hold the list still; lines are still kept meanwhile"));
    connect(pause_, &QPushButton::toggled, this, &monitor_window::set_paused);
    clear_ = new QPushButton(tr("Clear"));
    connect(clear_, &QPushButton::clicked, this, [this] {
        model_->clear();
        refresh_device_names();
        update_status();
    });

    device_ = new QComboBox;
    device_->addItem(tr("All devices"), -1);
    device_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    connect(device_, QOverload<int>::of(&QComboBox::activated), this,
            [this] { apply_filter(); });
    codes_ = new QLineEdit;
    codes_->setPlaceholderText(tr("all codes"));
    codes_->setToolTip(
        tr("Codes in hex, e.g. \"12 92\"; a write code also shows its reads and reports"));
    codes_->setClearButtonEnabled(true);
    codes_->setMaximumWidth(fontMetrics().horizontalAdvance(QStringLiteral("M")) * 14);
    connect(codes_, &QLineEdit::textChanged, this, &monitor_window::set_code_filter);
    direction_ = new QComboBox;
    direction_->addItem(tr("Both directions"), -1);
    direction_->addItem(tr("Sent"), static_cast<int>(monitor::direction::sent));
    direction_->addItem(tr("Received"), static_cast<int>(monitor::direction::received));
    connect(direction_, QOverload<int>::of(&QComboBox::activated), this,
            [this] { apply_filter(); });

    auto *open = new QPushButton(tr("Open log..."));
    open->setToolTip(tr("Show a candump log in a window of its own"));
    connect(open, &QPushButton::clicked, this, &monitor_window::ask_open);
    auto *save = new QPushButton(tr("Export log..."));
    save->setToolTip(tr("Write the frames shown as a candump log"));
    connect(save, &QPushButton::clicked, this, &monitor_window::ask_export);

    auto *bar = new QHBoxLayout;
    bar->addWidget(pause_);
    bar->addWidget(clear_);
    bar->addSpacing(12);
    bar->addWidget(new QLabel(tr("Device:")));
    bar->addWidget(device_);
    bar->addWidget(new QLabel(tr("Codes:")));
    bar->addWidget(codes_);
    bar->addWidget(direction_);
    bar->addStretch(1);
    bar->addWidget(open);
    bar->addWidget(save);

    view_ = new QTableView;
    view_->setModel(model_);
    view_->setItemDelegate(new line_delegate(model_, view_));
    view_->setSelectionBehavior(QAbstractItemView::SelectRows);
    view_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view_->setShowGrid(false);
    view_->setWordWrap(false);
    view_->setAlternatingRowColors(true);
    // Rows of one height, never measured: a list of a hundred thousand rows stays cheap.
    QHeaderView *rows = view_->verticalHeader();
    rows->hide();
    rows->setSectionResizeMode(QHeaderView::Fixed);
    rows->setDefaultSectionSize(fontMetrics().height() + 4);
    QHeaderView *columns = view_->horizontalHeader();
    columns->setHighlightSections(false);
    // Each column as wide as its widest usual text; the meaning takes what is left over.
    const char *const widest[] = {"00:00:00.000", "received", "0x000", "Device name 12",
                                  "0x00", "", "-2147483648", "-12345.678 mA"};
    for (int c = 0; c < monitor_model::column_count; ++c) {
        const QString header = model_->headerData(c, Qt::Horizontal).toString();
        const int text = fontMetrics().horizontalAdvance(QString::fromLatin1(widest[c]));
        columns->resizeSection(c, std::max(text, fontMetrics().horizontalAdvance(header)) + 16);
    }
    columns->setSectionResizeMode(monitor_model::name_column, QHeaderView::Stretch);
    connect(model_, &QAbstractItemModel::rowsAboutToBeInserted, this, [this] {
        const QScrollBar *scroll = view_->verticalScrollBar();
        following_ = scroll->value() >= scroll->maximum();
    });
    connect(model_, &monitor_model::sig_published, this, &monitor_window::after_publication);
    connect(model_, &monitor_model::sig_new_address, this, &monitor_window::add_address);

    status_ = new QLabel;
    status_->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(bar);
    layout->addWidget(view_, 1);
    layout->addWidget(status_);

    status_timer_ = new QTimer(this);
    status_timer_->setInterval(status_ms);
    connect(status_timer_, &QTimer::timeout, this, &monitor_window::update_status);

    if (!is_live()) {
        pause_->hide();
        clear_->hide();
    }
    resize(1250, 640);
    update_status();
}

monitor_window::~monitor_window() {
    detach();
}

void monitor_window::attach() {
    if (capturing_ || !link_) {
        return;
    }
    // Queued: the link stamps and emits in its own thread; the model takes the lines here.
    connect(link_.data(), &serial_connector::sig_wire_traffic, model_,
            &monitor_model::take_batch, Qt::QueuedConnection);
    capturing_ = true;
}

void monitor_window::detach() {
    if (!capturing_) {
        return;
    }
    if (link_) {
        disconnect(link_.data(), &serial_connector::sig_wire_traffic, model_,
                   &monitor_model::take_batch);
    }
    capturing_ = false;
}

void monitor_window::showEvent(QShowEvent *event) {
    attach();
    refresh_device_names();
    update_status();
    status_timer_->start();
    QWidget::showEvent(event);
}

void monitor_window::closeEvent(QCloseEvent *event) {
    detach();
    status_timer_->stop();
    update_status();
    QWidget::closeEvent(event);
}

void monitor_window::set_paused(bool paused) {
    if (pause_->isChecked() != paused) {
        pause_->setChecked(paused);  // comes back here through toggled()
        return;
    }
    pause_->setText(paused ? tr("Resume") : tr("Pause"));
    model_->set_paused(paused);
    update_status();
}

void monitor_window::set_device_filter(int address) {
    int index = device_->findData(address);
    if (index < 0) {
        add_address(address);
        index = device_->findData(address);
    }
    device_->setCurrentIndex(index);
    apply_filter();
}

bool monitor_window::set_code_filter(const QString &codes) {
    if (codes_->text() != codes) {
        codes_->setText(codes);  // comes back here through textChanged()
        return codes_->property("bad").toString().isEmpty();
    }
    QSet<int> read;
    QString bad;
    const bool ok = read_codes(codes, &read, &bad);
    codes_->setProperty("bad", bad);
    codes_->setStyleSheet(ok ? QString() : QStringLiteral("QLineEdit { background: #ffd8d8; }"));
    if (ok) {
        apply_filter();
    } else {
        say(tr("\"%1\" is no code: codes are written in hex, 0 to ff").arg(bad), true);
    }
    return ok;
}

void monitor_window::set_direction_filter(int dir) {
    direction_->setCurrentIndex(std::max(0, direction_->findData(dir)));
    apply_filter();
}

void monitor_window::apply_filter() {
    monitor_filter filter;
    filter.address = device_->currentData().toInt();
    filter.dir = direction_->currentData().toInt();
    QSet<int> codes;
    if (read_codes(codes_->text(), &codes, nullptr)) {
        filter.codes = codes;
    } else {
        filter.codes = model_->filter().codes;
    }
    model_->set_filter(filter);
    if (!model_->paused()) {
        view_->scrollToBottom();
    }
    message_.clear();
    update_status();
}

void monitor_window::add_address(int address) {
    if (device_->findData(address) >= 0) {
        return;
    }
    // In ascending order after "All devices".
    int at = 1;
    while (at < device_->count() && device_->itemData(at).toInt() < address) {
        ++at;
    }
    device_->insertItem(at, monitor::hex_text(address, 3), address);
    const monitor::device_words *words = directory_.find(address);
    if (!words->name.isEmpty()) {
        device_->setItemText(at, QStringLiteral("%1 (%2)").arg(words->name,
                                                              monitor::hex_text(address, 3)));
    }
}

void monitor_window::refresh_device_names() {
    for (int i = 1; i < device_->count(); ++i) {
        const int address = device_->itemData(i).toInt();
        const monitor::device_words *words = directory_.find(address);
        device_->setItemText(i, words->name.isEmpty()
                                    ? monitor::hex_text(address, 3)
                                    : QStringLiteral("%1 (%2)").arg(
                                          words->name, monitor::hex_text(address, 3)));
    }
    // The devices of the program, whether they have said anything yet or not.
    if (devices_) {
        for (const device *dev : devices_()) {
            if (frame_codec::carries_can_id(dev->can_id())) {
                add_address(dev->can_id());
            }
        }
    }
}

void monitor_window::after_publication() {
    if (following_ && !model_->paused()) {
        view_->scrollToBottom();
    }
    if (!status_timer_->isActive()) {
        update_status();
    }
}

void monitor_window::say(const QString &text, bool trouble) {
    message_ = text;
    message_trouble_ = trouble;
    update_status();
}

QString monitor_window::status_text() const {
    QStringList parts;
    if (!file_.isEmpty()) {
        parts << QFileInfo(file_).fileName();
    } else if (!capturing_) {
        parts << tr("not capturing while closed");
    }
    parts << tr("%1 lines kept (at most %2)").arg(model_->kept()).arg(model_->capacity());
    if (model_->dropped() > 0) {
        parts << tr("%1 oldest dropped").arg(model_->dropped());
    }
    parts << tr("%1 shown").arg(model_->rowCount());
    if (model_->paused()) {
        parts << tr("paused, %1 new lines held back").arg(model_->waiting());
    }
    if (!message_.isEmpty()) {
        parts << message_;
    }
    return parts.join(QStringLiteral("; "));
}

void monitor_window::update_status() {
    status_->setText(status_text());
    status_->setStyleSheet(message_trouble_ && !message_.isEmpty()
                               ? QStringLiteral("color: rgb(170, 20, 20);")
                               : QString());
}

bool monitor_window::open_log(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        say(tr("Cannot open %1: %2").arg(path, file.errorString()), true);
        return false;
    }
    candump_log::reader reader(model_->capacity());
    if (!reader.take_all(file)) {
        say(tr("Cannot read %1: %2").arg(path, file.errorString()), true);
        return false;
    }
    file_ = path;
    setWindowTitle(tr("Bus monitor - %1").arg(QFileInfo(path).fileName()));
    model_->clear();
    for (const monitor::bus_line &line : reader.frames()) {
        model_->take(line);
    }
    model_->publish();
    refresh_device_names();
    view_->scrollToTop();
    QString text = tr("%1 frames read").arg(reader.frames_read());
    if (reader.frames_read() > static_cast<qint64>(reader.frames().size())) {
        text += tr(", the newest %1 kept").arg(reader.frames().size());
    }
    if (reader.skipped() > 0) {
        text += tr(", %1 lines skipped (the first is line %2)")
                    .arg(reader.skipped())
                    .arg(reader.first_skipped_line());
    }
    say(text, reader.frames_read() == 0);
    return reader.frames_read() > 0 || reader.skipped() == 0;
}

bool monitor_window::export_log(const QString &path) {
    const QByteArray text = model_->candump_text();
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit()) {
        say(tr("Cannot write %1: %2").arg(path, file.errorString()), true);
        return false;
    }
    say(tr("%1 frames written to %2").arg(text.count('\n')).arg(path));
    return true;
}

void monitor_window::ask_open() {
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Open log"), QFileInfo(file_).path(),
        tr("candump logs (*.log);;All files (*)"));
    if (path.isEmpty()) {
        return;
    }
    auto *window = new monitor_window(nullptr, devices_);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setAttribute(Qt::WA_QuitOnClose, false);
    window->open_log(path);
    window->show();
}

void monitor_window::ask_export() {
    const QString name = QStringLiteral("lumivox-%1.log")
                             .arg(QDateTime::currentDateTime().toString(
                                 QStringLiteral("yyyyMMdd-HHmmss")));
    const QString path = QFileDialog::getSaveFileName(
        this, tr("Export log"), QDir(QFileInfo(file_).path()).filePath(name),
        tr("candump logs (*.log);;All files (*)"));
    if (!path.isEmpty()) {
        export_log(path);
    }
}
