#pragma once

#include <QHash>
#include <QStaticText>
#include <QStyledItemDelegate>

class monitor_model;

// Paints the monitor's cells: the cell's text, elided to fit, in the line's colour and font, on
// the row's background. The text is laid out once per distinct text and kept (most cells repeat:
// directions, identifiers, device names, what the codes mean), so a list that moves ten times a
// second costs little more than drawing glyphs. The style's own item painting lays out every cell
// anew on every paint, which at full rate cost more than the rest of the monitor together.
class line_delegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    line_delegate(const monitor_model *model, QObject *parent);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

    // Texts laid out and kept at most; then the store starts again.
    static constexpr int max_kept = 4096;

private:
    // `text` laid out in `font` (italic or not: the two fonts a list uses), kept.
    const QStaticText &laid_out(const QString &text, const QFont &font) const;

    const monitor_model *model_;
    mutable QHash<QString, QStaticText> plain_;
    mutable QHash<QString, QStaticText> italic_;
};
