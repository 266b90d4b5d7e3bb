#pragma once

#include "bus_line.h"
#include "serial_connector.h"

#include <QAbstractTableModel>
#include <QByteArray>
#include <QColor>
#include <QList>
#include <QSet>
#include <QTimer>

#include <deque>
#include <functional>

// Which lines the monitor's list shows.
struct monitor_filter {
    int address = -1;  // the device (bus_line::address()); -1: every device and every other line
    QSet<int> codes;   // empty: every code; a write code also stands for its read (code + 0x80)
    int dir = -1;      // -1: both directions, else a monitor::direction

    bool matches(const monitor::bus_line &line) const;
    bool operator==(const monitor_filter &other) const {
        return address == other.address && codes == other.codes && dir == other.dir;
    }
};

// Reads codes written in hex ("12 92, d0", "0x12") for the filter. False with the word that is
// no code (0 to 0xFF) in `bad`.
bool read_codes(const QString &text, QSet<int> *codes, QString *bad);

// The bus monitor's history and its list, without widgets: every line the link passed is kept (up
// to the capacity; when full, the oldest hundredth goes at once), and the lines that pass the
// filter are shown in order, newest at the bottom. New lines reach the list in batches: a batch
// from the link at once, single lines on the next publication (publish_ms after the first), so a
// view is told of a batch at a time and repaints at most a few times a second. While paused, lines are still kept but the list does not move, except that lines
// dropped from a full history leave it at the top.
class monitor_model : public QAbstractTableModel {
    Q_OBJECT
public:
    enum column {
        time_column,
        direction_column,
        id_column,
        device_column,
        code_column,
        name_column,
        raw_column,
        value_column,
        column_count
    };
    static constexpr int default_capacity = 100000;
    static constexpr int publish_ms = serial_connector::traffic_batch_ms;

    // Names the device at an address and its codes (null: nothing known).
    using lookup = std::function<const monitor::device_words *(int address)>;

    explicit monitor_model(int capacity = default_capacity, QObject *parent = nullptr);

    void set_lookup(lookup words) { words_ = std::move(words); }

    // Keeps a line; it reaches the list on the next publication.
    void take(const monitor::bus_line &line);
    // A batch of the serial link's traffic (sig_wire_traffic()), published at once.
    void take_batch(const wire_batch &lines);
    // Publishes what came since the last publication now.
    void publish();

    bool paused() const { return paused_; }
    void set_paused(bool paused);
    const monitor_filter &filter() const { return filter_; }
    void set_filter(const monitor_filter &filter);
    // Forgets every line.
    void clear();

    int capacity() const { return capacity_; }
    int kept() const { return static_cast<int>(history_.size()); }
    // Lines dropped from the full history since the start (or the last clear()).
    qint64 dropped() const { return dropped_; }
    // Lines kept that the list has not looked at yet (while paused: what came since).
    int waiting() const;
    // Line of a row of the list.
    const monitor::bus_line &line_at(int row) const;
    // Every device address seen in a frame, in ascending order.
    QList<int> addresses() const;
    // The frames shown, as a candump log.
    QByteArray candump_text() const;

    // The text a cell shows (what data() gives for Qt::DisplayRole).
    QString cell_text(int row, int col) const;
    // The colour of a line's text (invalid: the view's own), and whether a column's texts are
    // aligned to the right.
    static QColor line_colour(const monitor::bus_line &line);
    static bool right_aligned(int col) { return col == raw_column || col == value_column; }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

signals:
    // Rows were added to or removed from the list.
    void sig_published();
    // A frame from or to an address not seen before was kept.
    void sig_new_address(int address);

private:
    const monitor::bus_line &line_of(qint64 seq) const {
        return history_[static_cast<std::size_t>(seq - first_seq_)];
    }
    qint64 end_seq() const { return first_seq_ + static_cast<qint64>(history_.size()); }
    void drop_oldest(int count);
    void rebuild();

    int capacity_;
    lookup words_;
    std::deque<monitor::bus_line> history_;
    qint64 first_seq_ = 0;      // sequence number of history_.front()
    qint64 dropped_ = 0;
    std::deque<qint64> shown_;  // sequence numbers of the rows, ascending
    qint64 looked_ = 0;         // lines before this one have been looked at for the list
    QSet<int> addresses_;
    // The local time of the last second shown ("12:34:56"): the lines of one second share it,
    // and working out the local time asks the system about its time zone every time.
    mutable qint64 shown_second_ = -1;
    mutable QString shown_second_text_;
    monitor_filter filter_;
    bool paused_ = false;
    QTimer publisher_;
};
