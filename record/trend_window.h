#pragma once

#include "device_sample.h"
#include "observation_hub.h"
#include "trend_store.h"

#include <QHash>
#include <QString>
#include <QWidget>

#include <memory>
#include <mutex>
#include <thread>
#include <vector>

class QComboBox;
class QLabel;
class QPushButton;
class QScrollArea;
class QTimer;
class QTreeWidget;
class QTreeWidgetItem;
class QVBoxLayout;
class QwtPlot;
class QwtPlotCurve;

// A window of its own that plots chosen readings of chosen devices against time: one chart per
// quantity and unit, a line per device, set-points as dashed steps in the chart of their reading.
// A live window follows what the devices report (take(), fed by the observation hub) and scrolls
// over the chosen span; a file window shows a recording. Both can pause, zoom (drag a range, turn
// the wheel; double-click or "Reset zoom" goes back), export the charts to PNG and the shown
// samples to CSV (a recording again, so it opens here too), and open a recording.
class trend_window : public QWidget {
    Q_OBJECT
public:
    // A live window keeps this much history.
    static constexpr qint64 live_history_ms = 4 * 3600 * 1000 + 10 * 60 * 1000;
    // How often a live window redraws (only when something new came and it is not paused).
    static constexpr int redraw_ms = 500;

    // `now` is the wall clock a live window follows and trims its history by (tests drive hours
    // of it in moments).
    explicit trend_window(QWidget *parent = nullptr, wall_clock now = system_clock());
    ~trend_window() override;

    // Shows the recording at `path` (loaded in a thread of its own; sig_loaded() tells when).
    void open_file(const QString &path);
    bool is_live() const { return file_.isEmpty(); }
    // Where "Open recording..." starts looking: the recording directory of the run, if any.
    static void set_default_directory(const QString &dir);
    bool loading() const { return loader_.joinable(); }

    const trend_store &store() const { return store_; }
    // The time span shown, in milliseconds (0: everything held).
    void set_span(qint64 span_ms);
    // The range shown by the last redraw.
    double shown_from() const { return shown_from_; }
    double shown_to() const { return shown_to_; }
    // Titles of the charts on show, top to bottom.
    QStringList chart_titles() const;
    // Shows or hides one series (as its box in the list does).
    void show_series(int index, bool shown);
    bool paused() const;
    void set_paused(bool paused);
    // Shows [from, to] and pauses, as a drag over a chart does.
    void zoom_to(double from, double to);
    void reset_zoom();

    // Draws every chart now.
    void redraw();
    bool export_png(const QString &path);
    // The samples of the series on show within the range shown, as a recording.
    bool export_csv(const QString &path) const;

public slots:
    void take(const device_sample &sample);

signals:
    void sig_loaded(bool ok);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct chart {
        QString title;
        QwtPlot *plot = nullptr;
        std::vector<std::pair<int, QwtPlotCurve *>> curves;  // (series index, curve)
    };

    void add_series_view(int index);
    int chart_for(const trend_series &series);
    QColor colour_of(const QString &device_key);
    void live_tick();
    void take_loaded();
    void ask_open();
    void ask_export_png();
    void ask_export_csv();
    void say(const QString &text, bool trouble = false);
    QString range_text() const;

    wall_clock now_;
    trend_store store_;
    QString file_;
    bool dirty_ = false;
    bool zoomed_ = false;
    double zoom_from_ = 0;
    double zoom_to_ = 0;
    double paused_at_ = 0;
    double shown_from_ = 0;
    double shown_to_ = 0;
    qint64 last_trim_ms_ = 0;

    std::vector<std::unique_ptr<chart>> charts_;
    std::vector<int> series_chart_;                // series index -> chart index
    std::vector<QTreeWidgetItem *> series_items_;  // series index -> its box in the list
    QHash<QString, QTreeWidgetItem *> device_items_;
    QHash<QString, QColor> colours_;

    QComboBox *span_ = nullptr;
    QPushButton *pause_ = nullptr;
    QTreeWidget *tree_ = nullptr;
    QScrollArea *scroll_ = nullptr;
    QWidget *charts_widget_ = nullptr;
    QVBoxLayout *charts_layout_ = nullptr;
    QLabel *empty_ = nullptr;
    QLabel *status_ = nullptr;
    QTimer *timer_ = nullptr;

    // Loading a recording: the thread reads into `loaded_`, the window takes it when told.
    std::thread loader_;
    std::mutex loaded_lock_;
    std::unique_ptr<trend_store> loaded_;
    QString load_error_;
    int load_skipped_ = 0;
};
