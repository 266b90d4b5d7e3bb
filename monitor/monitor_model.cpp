#include "monitor_model.h"

#include "candump_log.h"

#include <QBrush>
#include <QColor>
#include <QCoreApplication>
#include <QDateTime>
#include <QFont>
#include <QRegularExpression>

#include <algorithm>

using monitor::bus_line;
using monitor::direction;
using monitor::line_kind;

bool monitor_filter::matches(const bus_line &line) const {
    if (dir >= 0 && static_cast<int>(line.dir) != dir) {
        return false;
    }
    if (address >= 0 && line.address() != address) {
        return false;
    }
    if (!codes.isEmpty()) {
        const int code = line.code();
        if (code < 0) {
            return false;
        }
        return codes.contains(code) || (code >= 0x80 && codes.contains(code - 0x80));
    }
    return true;
}

bool read_codes(const QString &text, QSet<int> *codes, QString *bad) {
    QSet<int> found;
    static const QRegularExpression separators(QStringLiteral("[\\s,;]+"));
    const QStringList words = text.split(separators, Qt::SkipEmptyParts);
    for (const QString &word : words) {
        QString digits = word;
        if (digits.startsWith(QLatin1String("0x"), Qt::CaseInsensitive)) {
            digits = digits.mid(2);
        }
        bool ok = false;
        const int code = digits.toInt(&ok, 16);
        if (!ok || digits.size() > 2 || code < 0 || code > 0xFF) {
            if (bad) {
                *bad = word;
            }
            return false;
        }
        found.insert(code);
    }
    *codes = found;
    return true;
}

monitor_model::monitor_model(int capacity, QObject *parent)
    : QAbstractTableModel(parent), capacity_(std::max(1, capacity)) {
    publisher_.setSingleShot(true);
    publisher_.setInterval(publish_ms);
    connect(&publisher_, &QTimer::timeout, this, &monitor_model::publish);
}

void monitor_model::take(const bus_line &line) {
    if (history_.size() >= static_cast<std::size_t>(capacity_)) {
        // A hundredth at a time, so that a view is told of a removal now and then rather than
        // with every line once the history is full.
        drop_oldest(std::max(1, capacity_ / 100));
    }
    history_.push_back(line);
    const int address = line.address();
    if (address >= 0 && !addresses_.contains(address)) {
        addresses_.insert(address);
        emit sig_new_address(address);
    }
    if (!paused_ && !publisher_.isActive()) {
        publisher_.start();
    }
}

void monitor_model::take_batch(const wire_batch &lines) {
    for (const wire_record &line : lines) {
        take(monitor::read_wire(line.time_us, line.sent ? direction::sent : direction::received,
                                line.text));
    }
    if (!paused_) {
        publish();
    }
}

void monitor_model::drop_oldest(int count) {
    count = std::min<int>(count, static_cast<int>(history_.size()));
    const qint64 new_first = first_seq_ + count;
    // Rows of dropped lines leave the list at once: a row never stands for a line not kept.
    int rows = 0;
    while (rows < static_cast<int>(shown_.size()) && shown_[std::size_t(rows)] < new_first) {
        ++rows;
    }
    if (rows > 0) {
        beginRemoveRows(QModelIndex(), 0, rows - 1);
        shown_.erase(shown_.begin(), shown_.begin() + rows);
        endRemoveRows();
    }
    history_.erase(history_.begin(), history_.begin() + count);
    first_seq_ = new_first;
    dropped_ += count;
    looked_ = std::max(looked_, first_seq_);
    if (rows > 0) {
        emit sig_published();
    }
}

void monitor_model::publish() {
    publisher_.stop();
    if (paused_) {
        return;
    }
    looked_ = std::max(looked_, first_seq_);
    std::vector<qint64> fresh;
    for (qint64 seq = looked_; seq < end_seq(); ++seq) {
        if (filter_.matches(line_of(seq))) {
            fresh.push_back(seq);
        }
    }
    looked_ = end_seq();
    if (fresh.empty()) {
        return;
    }
    const int first = static_cast<int>(shown_.size());
    beginInsertRows(QModelIndex(), first, first + static_cast<int>(fresh.size()) - 1);
    shown_.insert(shown_.end(), fresh.begin(), fresh.end());
    endInsertRows();
    emit sig_published();
}

void monitor_model::set_paused(bool paused) {
    if (paused == paused_) {
        return;
    }
    paused_ = paused;
    if (paused_) {
        publisher_.stop();
    } else {
        publish();
    }
}

void monitor_model::set_filter(const monitor_filter &filter) {
    if (filter == filter_) {
        return;
    }
    filter_ = filter;
    rebuild();
}

void monitor_model::rebuild() {
    // Paused, the list keeps to the lines it had looked at; else it takes everything kept.
    beginResetModel();
    shown_.clear();
    if (!paused_) {
        looked_ = end_seq();
    }
    for (qint64 seq = first_seq_; seq < looked_; ++seq) {
        if (filter_.matches(line_of(seq))) {
            shown_.push_back(seq);
        }
    }
    endResetModel();
    emit sig_published();
}

void monitor_model::clear() {
    beginResetModel();
    first_seq_ = end_seq();
    history_.clear();
    shown_.clear();
    looked_ = first_seq_;
    dropped_ = 0;
    addresses_.clear();
    endResetModel();
    emit sig_published();
}

int monitor_model::waiting() const {
    return static_cast<int>(end_seq() - std::max(looked_, first_seq_));
}

const bus_line &monitor_model::line_at(int row) const {
    return line_of(shown_[static_cast<std::size_t>(row)]);
}

QList<int> monitor_model::addresses() const {
    QList<int> list = addresses_.values();
    std::sort(list.begin(), list.end());
    return list;
}

QByteArray monitor_model::candump_text() const {
    QByteArray out;
    for (const qint64 seq : shown_) {
        out += candump_log::format(line_of(seq));
    }
    return out;
}

int monitor_model::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

int monitor_model::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : column_count;
}

QString monitor_model::cell_text(int row, int col) const {
    const bus_line &line = line_at(row);
    switch (col) {
    case time_column: {
        const qint64 ms = line.time_us / 1000;
        const qint64 second = ms / 1000;
        if (second != shown_second_) {
            shown_second_ = second;
            shown_second_text_ =
                QDateTime::fromMSecsSinceEpoch(second * 1000).toString(QStringLiteral("HH:mm:ss"));
        }
        return shown_second_text_ + QLatin1Char('.') +
               QString::number(ms % 1000).rightJustified(3, QLatin1Char('0'));
    }
    case direction_column:
        return line.dir == direction::sent ? tr("sent") : tr("received");
    default:
        break;
    }
    if (!line.is_frame()) {
        if (col != name_column) {
            return {};
        }
        const QString text = monitor::printable(line.text);
        switch (line.kind) {
        case line_kind::ignored:
            return tr("ignored: %1").arg(text);
        case line_kind::malformed:
            return tr("malformed frame: %1").arg(text);
        default:
            return tr("text: %1").arg(text);
        }
    }
    const monitor::device_words *words = words_ ? words_(line.address()) : nullptr;
    const monitor::code_meaning *meaning = nullptr;
    if (words && line.code() >= 0) {
        const auto found = words->codes.constFind(line.code());
        if (found != words->codes.constEnd()) {
            meaning = &*found;
        }
    }
    switch (col) {
    case id_column:
        return monitor::hex_text(line.can_id, 3);
    case device_column:
        return words ? words->name : QString();
    case code_column:
        return line.code() >= 0 ? monitor::hex_text(line.code(), 2) : QString();
    case name_column: {
        QString name = meaning ? meaning->name : QString();
        if (line.kind == line_kind::bad_checksum) {
            name = name.isEmpty() ? tr("bad checksum") : tr("%1 (bad checksum)").arg(name);
        }
        return name;
    }
    case raw_column:
        // A read request carries 0, which says nothing.
        return line.has_value() && !(line.is_request() && line.value() == 0)
                   ? QString::number(line.value())
                   : QString();
    case value_column:
        return meaning && meaning->scaled && line.has_value() && !line.is_request()
                   ? monitor::value_text(*meaning, line.value())
                   : QString();
    default:
        return {};
    }
}

QVariant monitor_model::data(const QModelIndex &index, int role) const {
    if (!index.isValid() || index.row() >= static_cast<int>(shown_.size())) {
        return {};
    }
    const bus_line &line = line_at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return cell_text(index.row(), index.column());
    case Qt::ToolTipRole:
        if (index.column() == time_column) {
            return QDateTime::fromMSecsSinceEpoch(line.time_us / 1000)
                       .toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz")) +
                   QString::number(line.time_us % 1000).rightJustified(3, QLatin1Char('0'));
        }
        if (index.column() == raw_column && line.has_value()) {
            return monitor::hex_text(static_cast<int>(static_cast<quint32>(line.value())), 8);
        }
        return cell_text(index.row(), index.column());
    case Qt::TextAlignmentRole:
        if (right_aligned(index.column())) {
            return QVariant(Qt::AlignRight | Qt::AlignVCenter);
        }
        return {};
    case Qt::ForegroundRole: {
        const QColor colour = line_colour(line);
        return colour.isValid() ? QVariant(QBrush(colour)) : QVariant();
    }
    case Qt::FontRole:
        if (!line.is_frame()) {
            QFont italic;
            italic.setItalic(true);
            return italic;
        }
        return {};
    default:
        return {};
    }
}

QColor monitor_model::line_colour(const bus_line &line) {
    switch (line.kind) {
    case line_kind::ignored:
    case line_kind::text:
        return QColor(110, 110, 110);
    case line_kind::malformed:
    case line_kind::bad_checksum:
        return QColor(170, 20, 20);
    default:
        return line.dir == direction::sent ? QColor(20, 60, 150) : QColor();
    }
}

QVariant monitor_model::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QAbstractTableModel::headerData(section, orientation, role);
    }
    switch (section) {
    case time_column:
        return tr("Time");
    case direction_column:
        return tr("Direction");
    case id_column:
        return tr("CAN ID");
    case device_column:
        return tr("Device");
    case code_column:
        return tr("Code");
    case name_column:
        return tr("Meaning");
    case raw_column:
        return tr("Raw value");
    case value_column:
        return tr("Value");
    default:
        return {};
    }
}
