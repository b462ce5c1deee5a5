#pragma once

#include <QApplication>
#include <QColor>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionViewItem>

/// What a painter of cells begins with.
namespace Zellengrund {

/// Paints the cell as any other, with its marks of selection and keyboard, but without its text.
inline void male(QStyleOptionViewItem zelle, QPainter &painter)
{
    zelle.text.clear();
    const QWidget *ansicht = zelle.widget;
    const QStyle *stil = ansicht != nullptr ? ansicht->style() : QApplication::style();
    stil->drawControl(QStyle::CE_ItemViewItem, &zelle, &painter, ansicht);
}

/// The colour of text on it.
inline QColor schrift(const QStyleOptionViewItem &zelle)
{
    const bool gewaehlt = (zelle.state & QStyle::State_Selected) != 0;
    return zelle.palette.color(gewaehlt ? QPalette::HighlightedText : QPalette::Text);
}

} // namespace Zellengrund
