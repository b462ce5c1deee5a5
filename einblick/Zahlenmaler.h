#pragma once

#include "Tageszahlen.h"

#include <QStyledItemDelegate>

/// Paints the lines of a figure one below another: its name, each limit with the verdict's sign
/// before it (✓ green, ✗ red, a question mark where it is open), and what is unknown. A line that
/// is too long goes on below; nothing is cut off.
class Zahlenmaler : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// The verdict in one character; empty where nothing is measured.
    static QString zeichen(Grenzurteil urteil);

    /// How wide a column must be for text of so much width.
    static int breiteFuer(int text);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    /// As wide as the longest line would be, and as high as the lines are in the width of their
    /// column.
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};
