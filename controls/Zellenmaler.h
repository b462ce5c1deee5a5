#pragma once

#include <QStyledItemDelegate>

class Tabellenansicht;
struct Zellenbild;

/// Paints a cell as its controller pictured it. Where single cells are selected, the chosen one is
/// marked by a border, not by a coloured row: a row then holds several foods, and only one of them
/// is on display. Where whole rows are selected, the row is coloured. A cell that can be edited
/// looks like a field to type into.
class Zellenmaler : public QStyledItemDelegate
{
public:
    explicit Zellenmaler(Tabellenansicht *tabelle);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    /// Room for the whole text, also when its first letter is a large one.
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    /// What a text needs in a cell, in pixels.
    static int textbreite(const QString &text, const QFontMetrics &schrift);
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    /// A double click takes the whole of what stands in a cell that is being edited, and not the
    /// part of a number before or behind the comma, nor less than all when the hand shakes.
    bool eventFilter(QObject *feld, QEvent *event) override;
    /// The cell's tool tip explains what stands there; where there is nothing to explain, a text
    /// that is cut off stands whole in it.
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

private:
    bool istGewaehlt(const QStyleOptionViewItem &option) const;
    bool istZeilenanfang(const QModelIndex &index) const;
    void maleGrund(QPainter &painter, const QStyleOptionViewItem &option) const;
    void maleGitter(QPainter &painter, const QStyleOptionViewItem &option) const;
    void maleText(QPainter &painter, const QStyleOptionViewItem &option, const Zellenbild &bild,
                  const QModelIndex &index) const;

    Tabellenansicht *m_tabelle;
    bool m_gehalten = false; ///< the mouse button of a double click is still down
};
