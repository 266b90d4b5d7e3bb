#include "trend_window.h"

#include "record_format.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <qwt_date.h>
#include <qwt_date_scale_draw.h>
#include <qwt_date_scale_engine.h>
#include <qwt_legend.h>
#include <qwt_picker_machine.h>
#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_plot_curve.h>
#include <qwt_plot_grid.h>
#include <qwt_plot_picker.h>
#include <qwt_scale_widget.h>
#include <qwt_text.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr qint64 minute_ms = 60 * 1000;
constexpr qint64 hour_ms = 60 * minute_ms;
// Zooming in further than this shows nothing useful between two reports.
constexpr double narrowest_ms = 200;
// Each wheel notch shows this much less (or more) time.
constexpr double wheel_factor = 0.8;

// Distinct colours that stay apart on white, one per device in the order they appear.
const QColor line_colours[] = {{31, 119, 180},  {255, 127, 14}, {44, 160, 44},   {214, 39, 40},
                               {148, 103, 189}, {140, 86, 75},  {227, 119, 194}, {127, 127, 127},
                               {188, 189, 34},  {23, 190, 207}};

// Times on the axis as the clock on the wall shows them, one line each.
class time_scale_draw : public QwtDateScaleDraw {
public:
    time_scale_draw() : QwtDateScaleDraw(Qt::LocalTime) {
        setDateFormat(QwtDate::Millisecond, QStringLiteral("hh:mm:ss.zzz"));
        setDateFormat(QwtDate::Second, QStringLiteral("hh:mm:ss"));
        setDateFormat(QwtDate::Minute, QStringLiteral("hh:mm"));
        setDateFormat(QwtDate::Hour, QStringLiteral("hh:mm"));
        setDateFormat(QwtDate::Day, QStringLiteral("dd MMM"));
        setDateFormat(QwtDate::Week, QStringLiteral("dd MMM"));
    }
};

// Dragging over a chart picks a time range; the text beside the cursor tells time and value.
class range_picker : public QwtPlotPicker {
public:
    explicit range_picker(QWidget *canvas)
        : QwtPlotPicker(QwtPlot::xBottom, QwtPlot::yLeft, QwtPicker::RectRubberBand,
                        QwtPicker::ActiveOnly, canvas) {
        setStateMachine(new QwtPickerDragRectMachine);
        setRubberBandPen(QPen(Qt::darkGray, 1, Qt::DashLine));
    }

protected:
    QwtText trackerTextF(const QPointF &pos) const override {
        return QwtText(
            QwtDate::toDateTime(pos.x(), Qt::LocalTime).toString(QStringLiteral("HH:mm:ss")) +
            QStringLiteral("  ") + QString::number(pos.y(), 'g', 6));
    }
};

QString series_entry(const trend_series &s) {
    return s.kind == panel_observation::setpoint
               ? s.quantity + QLatin1Char(' ') + trend_window::tr("set-point")
               : s.chart_title();
}

// A short stretch of the series' line: the list of series is the charts' legend.
QIcon line_icon(const QPen &pen) {
    QPixmap picture(28, 12);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    QPen wide = pen;
    wide.setWidth(2);
    painter.setPen(wide);
    painter.drawLine(1, 6, 27, 6);
    return QIcon(picture);
}

QString device_key(const trend_series &s) {
    return QString::number(s.can_id) + QLatin1Char('\x1f') + s.device;
}

QString default_directory;  // GUI thread only

QString clock_text(double ms) {
    return QDateTime::fromMSecsSinceEpoch(qint64(ms), Qt::LocalTime)
        .toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

}  // namespace

trend_window::trend_window(QWidget *parent, wall_clock now)
    : QWidget(parent, Qt::Window), now_(std::move(now)) {
    setWindowTitle(tr("Lumivox trends"));
    resize(1100, 760);

    span_ = new QComboBox;
    span_->addItem(tr("1 min"), qint64(minute_ms));
    span_->addItem(tr("10 min"), qint64(10 * minute_ms));
    span_->addItem(tr("1 h"), qint64(hour_ms));
    span_->addItem(tr("4 h"), qint64(4 * hour_ms));
    span_->addItem(tr("All"), qint64(0));
    span_->setCurrentIndex(1);
    pause_ = new QPushButton(tr("Pause"));
    pause_->setCheckable(true);
    auto *reset = new QPushButton(tr("Reset zoom"));
    auto *png = new QPushButton(tr("Export PNG..."));
    auto *csv = new QPushButton(tr("Export CSV..."));
    auto *open = new QPushButton(tr("Open recording..."));

    auto *bar = new QHBoxLayout;
    bar->addWidget(new QLabel(tr("Span:")));
    bar->addWidget(span_);
    bar->addWidget(pause_);
    bar->addWidget(reset);
    bar->addStretch(1);
    bar->addWidget(png);
    bar->addWidget(csv);
    bar->addWidget(open);

    tree_ = new QTreeWidget;
    tree_->setHeaderLabel(tr("Devices and readings"));
    tree_->setMinimumWidth(240);

    charts_widget_ = new QWidget;
    charts_widget_->setAutoFillBackground(true);
    charts_layout_ = new QVBoxLayout(charts_widget_);
    empty_ = new QLabel(tr("Waiting for readings from the devices..."));
    empty_->setAlignment(Qt::AlignCenter);
    charts_layout_->addWidget(empty_);
    charts_layout_->addStretch(1);
    scroll_ = new QScrollArea;
    scroll_->setWidgetResizable(true);
    scroll_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll_->setWidget(charts_widget_);

    auto *split = new QSplitter;
    split->addWidget(tree_);
    split->addWidget(scroll_);
    split->setStretchFactor(1, 1);
    split->setSizes({300, 800});

    status_ = new QLabel;
    status_->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto *top = new QVBoxLayout(this);
    top->addLayout(bar);
    top->addWidget(split, 1);
    top->addWidget(status_);

    connect(span_, QOverload<int>::of(&QComboBox::activated), this, [this] {
        zoomed_ = false;
        set_paused(false);
        redraw();
    });
    connect(pause_, &QPushButton::toggled, this, [this](bool on) {
        paused_at_ = shown_to_;
        if (!on) {
            zoomed_ = false;
        }
        redraw();
    });
    connect(reset, &QPushButton::clicked, this, &trend_window::reset_zoom);
    connect(png, &QPushButton::clicked, this, &trend_window::ask_export_png);
    connect(csv, &QPushButton::clicked, this, &trend_window::ask_export_csv);
    connect(open, &QPushButton::clicked, this, &trend_window::ask_open);
    connect(tree_, &QTreeWidget::itemChanged, this, [this] {
        // A device's box changes every box below it: one redraw for all of them.
        if (!dirty_) {
            dirty_ = true;
            QTimer::singleShot(0, this, [this] { redraw(); });
        }
    });

    timer_ = new QTimer(this);
    timer_->setInterval(redraw_ms);
    connect(timer_, &QTimer::timeout, this, &trend_window::live_tick);
    timer_->start();
    say(tr("Live: the charts follow what the devices report."));
}

void trend_window::set_default_directory(const QString &dir) {
    default_directory = dir;
}

trend_window::~trend_window() {
    if (loader_.joinable()) {
        loader_.join();
    }
}

// ---- Series and charts ------------------------------------------------------------------------

void trend_window::take(const device_sample &sample) {
    if (!is_live()) {
        return;
    }
    // Trimmed as samples come, not by the redraw timer: the history stays bounded also while the
    // window is hidden or the event loop is busy.
    const qint64 now = now_();
    if (now - last_trim_ms_ >= minute_ms) {
        store_.drop_before(double(now - live_history_ms));
        last_trim_ms_ = now;
    }
    const int index = store_.add(sample);
    if (index < 0) {
        return;
    }
    if (index >= int(series_chart_.size())) {
        add_series_view(index);
    }
    dirty_ = true;
}

QColor trend_window::colour_of(const QString &key) {
    auto it = colours_.constFind(key);
    if (it == colours_.constEnd()) {
        const int n = colours_.size();
        it = colours_.insert(key, line_colours[n % int(std::size(line_colours))]);
    }
    return *it;
}

int trend_window::chart_for(const trend_series &series) {
    const QString title = series.chart_title();
    for (std::size_t i = 0; i < charts_.size(); ++i) {
        if (charts_[i]->title == title) {
            return int(i);
        }
    }
    auto c = std::make_unique<chart>();
    c->title = title;
    auto *plot = new QwtPlot(charts_widget_);
    c->plot = plot;
    QwtText heading(title);
    QFont font = plot->font();
    font.setBold(true);
    heading.setFont(font);
    plot->setTitle(heading);
    // Set, not hinted: a time axis asks for room for every label it could show.
    plot->setMinimumSize(300, 200);
    plot->setCanvasBackground(Qt::white);
    plot->setAxisScaleDraw(QwtPlot::xBottom, new time_scale_draw);
    plot->setAxisScaleEngine(QwtPlot::xBottom, new QwtDateScaleEngine(Qt::LocalTime));
    plot->setAxisMaxMinor(QwtPlot::xBottom, 0);
    // Wide enough for the longest value labels, so the charts' time axes line up.
    plot->axisWidget(QwtPlot::yLeft)->setMinBorderDist(0, 0);
    plot->axisScaleDraw(QwtPlot::yLeft)->setMinimumExtent(60);
    auto *grid = new QwtPlotGrid;
    grid->setMajorPen(QColor(225, 225, 225), 0, Qt::SolidLine);
    grid->attach(plot);
    plot->canvas()->installEventFilter(this);
    auto *picker = new range_picker(plot->canvas());
    connect(picker, QOverload<const QRectF &>::of(&QwtPlotPicker::selected), this,
            [this](const QRectF &range) { zoom_to(range.left(), range.right()); });
    // Above the stretch that keeps the charts at the top.
    charts_layout_->insertWidget(charts_layout_->count() - 1, plot);
    plot->hide();
    charts_.push_back(std::move(c));
    return int(charts_.size()) - 1;
}

void trend_window::add_series_view(int index) {
    const trend_series &s = store_.series()[std::size_t(index)];
    const int chart_index = chart_for(s);
    series_chart_.push_back(chart_index);

    auto *curve = new QwtPlotCurve(s.label());
    QPen pen(colour_of(device_key(s)));
    pen.setWidthF(1.5);
    if (s.kind == panel_observation::setpoint) {
        pen.setStyle(Qt::DashLine);
    }
    curve->setPen(pen);
    // Set-points and states hold their value until the next one: steps, not slopes.
    curve->setStyle(s.kind == panel_observation::reading ? QwtPlotCurve::Lines
                                                         : QwtPlotCurve::Steps);
    curve->setRenderHint(QwtPlotItem::RenderAntialiased, true);
    curve->attach(charts_[std::size_t(chart_index)]->plot);
    charts_[std::size_t(chart_index)]->curves.emplace_back(index, curve);

    const QString key = device_key(s);
    QTreeWidgetItem *device_item = device_items_.value(key);
    if (!device_item) {
        device_item = new QTreeWidgetItem(tree_);
        device_item->setText(0, s.device.isEmpty() ? tr("CAN ID %1").arg(s.can_id) : s.device);
        device_item->setToolTip(0, tr("CAN ID %1, %2").arg(s.can_id).arg(s.model));
        device_item->setFlags(device_item->flags() | Qt::ItemIsUserCheckable |
                              Qt::ItemIsAutoTristate);
        device_item->setExpanded(true);
        device_items_.insert(key, device_item);
    }
    QSignalBlocker quiet(tree_);
    auto *item = new QTreeWidgetItem(device_item);
    item->setText(0, series_entry(s));
    item->setData(0, Qt::UserRole, index);
    item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
    item->setIcon(0, line_icon(pen));
    // Readings and their set-points on show at first; states (emission, alarms, modes) and their
    // set-points, which have no unit, on request.
    const bool at_first = s.kind == panel_observation::reading ||
                          (s.kind == panel_observation::setpoint && !s.unit.isEmpty());
    item->setCheckState(0, at_first ? Qt::Checked : Qt::Unchecked);
    series_items_.push_back(item);
    device_item->setExpanded(true);
}

void trend_window::show_series(int index, bool shown) {
    if (index >= 0 && index < int(series_items_.size())) {
        series_items_[std::size_t(index)]->setCheckState(0, shown ? Qt::Checked : Qt::Unchecked);
        redraw();
    }
}

QStringList trend_window::chart_titles() const {
    QStringList titles;
    for (const auto &c : charts_) {
        if (!c->plot->isHidden()) {
            titles.append(c->title);
        }
    }
    return titles;
}

// ---- Time range -------------------------------------------------------------------------------

bool trend_window::paused() const {
    return pause_->isChecked();
}

void trend_window::set_paused(bool on) {
    pause_->setChecked(on);
}

void trend_window::set_span(qint64 span_ms) {
    const int index = span_->findData(span_ms);
    if (index >= 0) {
        span_->setCurrentIndex(index);
        zoomed_ = false;
        redraw();
    }
}

void trend_window::zoom_to(double from, double to) {
    if (to - from < narrowest_ms) {
        return;  // a click, not a drag
    }
    zoom_from_ = from;
    zoom_to_ = to;
    zoomed_ = true;
    {
        QSignalBlocker quiet(pause_);
        pause_->setChecked(true);
    }
    redraw();
}

void trend_window::reset_zoom() {
    zoomed_ = false;
    {
        QSignalBlocker quiet(pause_);
        pause_->setChecked(false);
    }
    redraw();
}

void trend_window::live_tick() {
    if (!is_live()) {
        return;
    }
    if (dirty_ && !paused() && isVisible()) {
        redraw();
    }
}

QString trend_window::range_text() const {
    return tr("%1 to %2").arg(clock_text(shown_from_), clock_text(shown_to_));
}

void trend_window::redraw() {
    dirty_ = false;
    double from = 0;
    double to = 0;
    if (zoomed_) {
        from = zoom_from_;
        to = zoom_to_;
    } else if (paused()) {
        to = paused_at_;
    } else if (is_live()) {
        to = std::max(double(now_()), store_.last_time());
    } else {
        to = store_.last_time();
    }
    if (!zoomed_) {
        const qint64 span = span_->currentData().toLongLong();
        from = span > 0 ? to - double(span) : store_.first_time();
        if (to - from < narrowest_ms) {
            from = to - minute_ms;
        }
    }
    shown_from_ = from;
    shown_to_ = to;

    bool any_chart = false;
    for (const auto &c : charts_) {
        double low = std::numeric_limits<double>::max();
        double high = std::numeric_limits<double>::lowest();
        bool any = false;
        const int columns = std::max(200, c->plot->canvas()->contentsRect().width());
        for (const auto &[index, curve] : c->curves) {
            const bool shown = index < int(store_.series().size()) &&
                               series_items_[std::size_t(index)]->checkState(0) == Qt::Checked;
            curve->setVisible(shown);
            if (!shown) {
                continue;
            }
            const trend_series &s = store_.series()[std::size_t(index)];
            QVector<QPointF> points = trend_store::visible_points(s, from, to, columns);
            if (s.kind == panel_observation::setpoint && !points.isEmpty() &&
                points.last().x() < to) {
                points.append({to, points.last().y()});  // a set-point holds until the next
            }
            for (const QPointF &p : qAsConst(points)) {
                low = std::min(low, p.y());
                high = std::max(high, p.y());
            }
            curve->setSamples(points);
            any = true;
        }
        c->plot->setVisible(any);
        if (!any) {
            continue;
        }
        any_chart = true;
        if (low > high) {
            low = 0;
            high = 1;
        }
        const double pad = high > low ? (high - low) * 0.08 : std::max(std::abs(low) * 0.05, 0.5);
        c->plot->setAxisScale(QwtPlot::xBottom, from, to);
        c->plot->setAxisScale(QwtPlot::yLeft, low - pad, high + pad);
        c->plot->replot();
    }
    empty_->setVisible(!any_chart);
    if (!store_.empty() && !any_chart) {
        empty_->setText(tr("Tick a reading in the list to see its chart."));
    }

    if (!is_live() && !loading()) {
        return;  // the file's status line stays
    }
    if (zoomed_ || paused()) {
        say(tr("Paused: %1. Un-pause or reset the zoom to follow the devices again.")
                .arg(range_text()));
    } else if (is_live()) {
        say(tr("Live: the charts follow what the devices report."));
    }
}

// ---- Mouse --------------------------------------------------------------------------------------

bool trend_window::eventFilter(QObject *watched, QEvent *event) {
    auto *canvas = qobject_cast<QWidget *>(watched);
    auto *plot = canvas ? qobject_cast<QwtPlot *>(canvas->parent()) : nullptr;
    if (!plot) {
        return QWidget::eventFilter(watched, event);
    }
    if (event->type() == QEvent::Wheel) {
        const auto *wheel = static_cast<QWheelEvent *>(event);
        const double at = plot->invTransform(QwtPlot::xBottom, wheel->position().x());
        const double factor = wheel->angleDelta().y() > 0 ? wheel_factor : 1 / wheel_factor;
        zoom_to(at - (at - shown_from_) * factor, at + (shown_to_ - at) * factor);
        return true;
    }
    if (event->type() == QEvent::MouseButtonDblClick) {
        reset_zoom();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

// ---- Files --------------------------------------------------------------------------------------

void trend_window::say(const QString &text, bool trouble) {
    status_->setText(text);
    status_->setStyleSheet(trouble ? QStringLiteral("color: rgb(200, 0, 0);") : QString());
}

void trend_window::open_file(const QString &path) {
    if (loader_.joinable()) {
        loader_.join();
    }
    file_ = path;
    timer_->stop();
    setWindowTitle(tr("Lumivox trends: %1").arg(QFileInfo(path).fileName()));
    say(tr("Loading %1...").arg(QDir::toNativeSeparators(path)));
    loader_ = std::thread([this, path] {
        auto loaded = std::make_unique<trend_store>();
        QString error;
        int skipped = 0;
        if (!loaded->load(path, &error, &skipped)) {
            loaded.reset();
        }
        {
            std::lock_guard<std::mutex> hold(loaded_lock_);
            loaded_ = std::move(loaded);
            load_error_ = error;
            load_skipped_ = skipped;
        }
        QMetaObject::invokeMethod(this, &trend_window::take_loaded, Qt::QueuedConnection);
    });
}

void trend_window::take_loaded() {
    loader_.join();
    std::unique_ptr<trend_store> loaded;
    QString error;
    int skipped = 0;
    {
        std::lock_guard<std::mutex> hold(loaded_lock_);
        loaded = std::move(loaded_);
        error = load_error_;
        skipped = load_skipped_;
    }
    if (!loaded) {
        say(tr("Cannot show %1: %2.").arg(QDir::toNativeSeparators(file_), error), true);
        empty_->setText(tr("Nothing to show."));
        emit sig_loaded(false);
        return;
    }
    for (auto &c : charts_) {
        delete c->plot;
    }
    charts_.clear();
    series_chart_.clear();
    series_items_.clear();
    device_items_.clear();
    colours_.clear();
    tree_->clear();
    store_ = std::move(*loaded);
    for (int i = 0; i < int(store_.series().size()); ++i) {
        add_series_view(i);
    }
    std::size_t samples = 0;
    for (const trend_series &s : store_.series()) {
        samples += std::size_t(s.times.size());
    }
    span_->setCurrentIndex(span_->findData(qint64(0)));
    reset_zoom();
    QString text =
        tr("%1: %2 samples in %3 series, %4.")
            .arg(QFileInfo(file_).fileName())
            .arg(samples)
            .arg(store_.series().size())
            .arg(tr("%1 to %2")
                     .arg(clock_text(store_.first_time()), clock_text(store_.last_time())));
    if (skipped > 0) {
        text +=
            QLatin1Char(' ') + tr("%n line(s) that are not a recording's skipped.", "", skipped);
    }
    say(text, skipped > 0);
    emit sig_loaded(true);
}

bool trend_window::export_png(const QString &path) {
    // On screen the list of series is the legend; the picture gets one under each chart.
    for (const auto &c : charts_) {
        for (const auto &[index, curve] : c->curves) {
            curve->setItemAttribute(QwtPlotItem::Legend, curve->isVisible());
        }
        c->plot->insertLegend(new QwtLegend, QwtPlot::BottomLegend);
    }
    redraw();
    // Charts shown or hidden by the redraw take their place before the picture is taken.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    const bool saved = charts_widget_->grab().save(path, "PNG");
    for (const auto &c : charts_) {
        c->plot->insertLegend(nullptr);
    }
    redraw();
    return saved;
}

bool trend_window::export_csv(const QString &path) const {
    struct point {
        double time;
        int series;
        double value;
    };
    std::vector<point> points;
    for (std::size_t i = 0; i < store_.series().size(); ++i) {
        if (series_items_[i]->checkState(0) != Qt::Checked) {
            continue;
        }
        const trend_series &s = store_.series()[i];
        for (int k = 0; k < s.times.size(); ++k) {
            if (s.times[k] >= shown_from_ && s.times[k] <= shown_to_) {
                points.push_back({s.times[k], int(i), s.values[k]});
            }
        }
    }
    std::stable_sort(points.begin(), points.end(),
                     [](const point &a, const point &b) { return a.time < b.time; });
    QByteArray out = record_format::header() + '\n';
    record_format::time_writer times;
    for (const point &p : points) {
        const trend_series &s = store_.series()[std::size_t(p.series)];
        record_format::append_line(out,
                                   device_sample{qint64(p.time),
                                                 s.can_id,
                                                 s.device,
                                                 s.model,
                                                 s.kind,
                                                 s.quantity,
                                                 p.value,
                                                 s.unit,
                                                 {},
                                                 {}},
                                   times);
    }
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(out) == out.size() &&
           file.flush();
}

void trend_window::ask_open() {
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Open recording"), file_.isEmpty() ? default_directory : QFileInfo(file_).path(),
        tr("Recordings (*.csv);;All files (*)"));
    if (path.isEmpty()) {
        return;
    }
    if (!is_live()) {
        open_file(path);
        return;
    }
    // A live window keeps following the devices; the recording gets a window of its own.
    auto *window = new trend_window(nullptr, now_);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setAttribute(Qt::WA_QuitOnClose, testAttribute(Qt::WA_QuitOnClose));
    window->resize(size());
    window->show();
    window->open_file(path);
}

void trend_window::ask_export_png() {
    const QString path = QFileDialog::getSaveFileName(this, tr("Export the charts"), QString(),
                                                      tr("PNG pictures (*.png)"));
    if (!path.isEmpty() && !export_png(path)) {
        say(tr("Cannot write %1.").arg(QDir::toNativeSeparators(path)), true);
    }
}

void trend_window::ask_export_csv() {
    const QString path = QFileDialog::getSaveFileName(this, tr("Export the samples shown"),
                                                      QString(), tr("Recordings (*.csv)"));
    if (!path.isEmpty() && !export_csv(path)) {
        say(tr("Cannot write %1.").arg(QDir::toNativeSeparators(path)), true);
    }
}
