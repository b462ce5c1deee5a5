#pragma once

#include <QStyledItemDelegate>

/// Paints a cell as a bar with its figure beside it. The bar is as long as the cell's share says
/// and carries no verdict; a cell without a share is painted as any other.
class Balkenmaler : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// Under which the cell keeps its share, 0 to 1.
    static constexpr int anteilrolle = Qt::UserRole + 1;

    explicit Balkenmaler(QObject *parent) : QStyledItemDelegate(parent) {}

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};
