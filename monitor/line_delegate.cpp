#include "line_delegate.h"

#include "monitor_model.h"

#include <QPainter>

line_delegate::line_delegate(const monitor_model *model, QObject *parent)
    : QStyledItemDelegate(parent), model_(model) {}

const QStaticText &line_delegate::laid_out(const QString &text, const QFont &font) const {
    QHash<QString, QStaticText> &store = font.italic() ? italic_ : plain_;
    auto found = store.find(text);
    if (found == store.end()) {
        if (store.size() >= max_kept) {
            store.clear();
        }
        QStaticText prepared(text);
        prepared.setTextFormat(Qt::PlainText);
        prepared.setPerformanceHint(QStaticText::AggressiveCaching);
        prepared.prepare(QTransform(), font);
        found = store.insert(text, prepared);
    }
    return *found;
}

void line_delegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const {
    const bool selected = option.state & QStyle::State_Selected;
    const QPalette::ColorGroup group =
        option.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
    if (selected) {
        painter->fillRect(option.rect, option.palette.brush(group, QPalette::Highlight));
    }
    QString text = model_->cell_text(index.row(), index.column());
    if (text.isEmpty()) {
        return;
    }
    const monitor::bus_line &line = model_->line_at(index.row());
    const QColor colour = monitor_model::line_colour(line);
    const bool italic = !line.is_frame();
    QFont font = option.font;
    font.setItalic(italic);
    const QFontMetrics metrics(font);  // only asked when a text is too wide
    const QRect room = option.rect.adjusted(4, 0, -4, 0);
    const QStaticText *prepared = &laid_out(text, font);
    if (prepared->size().width() > room.width()) {
        text = metrics.elidedText(text, Qt::ElideRight, room.width());
        prepared = &laid_out(text, font);
    }
    // The view sets what it needs itself before it draws anything else: no save and restore.
    painter->setFont(font);
    painter->setPen(selected          ? option.palette.color(group, QPalette::HighlightedText)
                    : colour.isValid() ? colour
                                       : option.palette.color(group, QPalette::Text));
    const qreal x = monitor_model::right_aligned(index.column())
                        ? room.right() + 1 - prepared->size().width()
                        : room.left();
    const qreal y = room.top() + (room.height() - prepared->size().height()) / 2;
    painter->drawStaticText(QPointF(x, y), *prepared);
}
