#include "Zellenmaler.h"

#include "Fokusstil.h"
#include "Tabellenansicht.h"

#include <QHelpEvent>
#include <QLineEdit>
#include <QPainter>
#include <QToolTip>

namespace {

constexpr int zellenrand = 6;
constexpr int zeilenmarke = 4;

bool istBearbeitbar(const QModelIndex &index)
{
    return (index.flags() & Qt::ItemIsEditable) != 0;
}

Qt::Alignment ausrichtung(const QModelIndex &index)
{
    return index.data(Qt::TextAlignmentRole).value<Qt::Alignment>();
}

void maleRand(QPainter &painter, const QStyleOptionViewItem &option)
{
    painter.setPen(QPen(option.palette.color(QPalette::Highlight), 2));
    painter.drawRect(QRectF(option.rect).adjusted(1.5, 1.5, -2.5, -2.5));
}

void maleEingabefeld(QPainter &painter, const QStyleOptionViewItem &option)
{
    painter.setPen(QPen(option.palette.color(QPalette::Mid), 1));
    painter.setBrush(option.palette.base());
    painter.drawRect(QRectF(option.rect).adjusted(1.5, 1.5, -2.5, -2.5));
    painter.setBrush(Qt::NoBrush);
}

} // namespace

Zellenmaler::Zellenmaler(Tabellenansicht *tabelle)
    : QStyledItemDelegate(tabelle)
    , m_tabelle(tabelle)
{
}

void Zellenmaler::paint(QPainter *painter, const QStyleOptionViewItem &option,
                        const QModelIndex &index) const
{
    const Zellenbild bild = m_tabelle->modell()->bild(index);
    painter->save();
    maleGrund(*painter, option);
    if (m_tabelle->gitter()) {
        maleGitter(*painter, option);
    }
    if (istBearbeitbar(index)) {
        maleEingabefeld(*painter, option);
    }
    if (bild.umrandet) {
        maleRand(*painter, option);
    } else if (istZeilenanfang(index)) {
        painter->fillRect(QRect(option.rect.topLeft(), QSize(zeilenmarke, option.rect.height())),
                          option.palette.highlight());
    }
    maleText(*painter, option, bild, index);
    if ((option.state & QStyle::State_HasFocus) != 0) {
        // Around the border of the chosen cell, which stays when the keyboard goes.
        const QRect platz = bild.umrandet ? option.rect : option.rect.adjusted(1, 1, -2, -2);
        maleFokus(*painter, platz, option.palette, istGewaehlt(option) && !istBearbeitbar(index));
    }
    painter->restore();
}

QSize Zellenmaler::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    return {textbreite(m_tabelle->modell()->bild(index).text, option.fontMetrics),
            m_tabelle->rowHeight()};
}

int Zellenmaler::textbreite(const QString &text, const QFontMetrics &schrift)
{
    const int grosserAnfang = schrift.averageCharWidth();
    return schrift.horizontalAdvance(text) + grosserAnfang + 2 * zellenrand;
}

QWidget *Zellenmaler::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                   const QModelIndex &index) const
{
    QWidget *feld = QStyledItemDelegate::createEditor(parent, option, index);
    if (auto *zeile = qobject_cast<QLineEdit *>(feld)) {
        zeile->setAlignment(ausrichtung(index));
        zeile->setAccessibleName(
            index.model()->headerData(index.column(), Qt::Horizontal).toString());
    }
    return feld;
}

bool Zellenmaler::eventFilter(QObject *feld, QEvent *event)
{
    auto *zeile = qobject_cast<QLineEdit *>(feld);
    if (zeile != nullptr && event->type() == QEvent::MouseButtonDblClick) {
        m_gehalten = true;
        zeile->selectAll();
        return true;
    }
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonRelease) {
        m_gehalten = false;
    } else if (m_gehalten && event->type() == QEvent::MouseMove) {
        return true;
    }
    return QStyledItemDelegate::eventFilter(feld, event);
}

bool Zellenmaler::helpEvent(QHelpEvent *event, QAbstractItemView *view,
                            const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const Zellenbild bild = index.isValid() ? m_tabelle->modell()->bild(index) : Zellenbild();
    const QString text = bild.erklaerung.isNull() ? bild.text : bild.erklaerung;
    const int grosserAnfang = bild.anfang ? view->fontMetrics().averageCharWidth() : 0;
    const int platz = option.rect.width() - 2 * zellenrand - grosserAnfang;
    const bool ganz =
        bild.erklaerung.isNull() && view->fontMetrics().horizontalAdvance(text) <= platz;
    QToolTip::showText(event->globalPos(),
                       ganz ? QString() : QStringLiteral("<qt>%1</qt>").arg(text.toHtmlEscaped()),
                       view);
    return true;
}

bool Zellenmaler::istGewaehlt(const QStyleOptionViewItem &option) const
{
    return (option.state & QStyle::State_Selected) != 0 &&
           m_tabelle->selectionBehavior() == QAbstractItemView::SelectRows;
}

/// Where single cells are chosen, the border tells which one; but what was found by a search stands
/// in another row than its result, and a mark at that row's beginning tells where.
bool Zellenmaler::istZeilenanfang(const QModelIndex &index) const
{
    return m_tabelle->selectionBehavior() != QAbstractItemView::SelectRows && index.column() == 0 &&
           index.row() == m_tabelle->selectedRow();
}

void Zellenmaler::maleGrund(QPainter &painter, const QStyleOptionViewItem &option) const
{
    const bool gerade = (option.features & QStyleOptionViewItem::Alternate) != 0;
    painter.fillRect(option.rect, istGewaehlt(option) ? option.palette.highlight()
                                  : gerade            ? option.palette.alternateBase()
                                                      : option.palette.base());
}

void Zellenmaler::maleGitter(QPainter &painter, const QStyleOptionViewItem &option) const
{
    const QRect &zelle = option.rect;
    painter.setPen(QPen(option.palette.color(QPalette::Midlight), 0));
    painter.drawLine(zelle.topRight(), zelle.bottomRight());
    painter.setPen(QPen(option.palette.color(QPalette::Midlight), 0, Qt::DashLine));
    painter.drawLine(zelle.bottomLeft(), zelle.bottomRight());
}

void Zellenmaler::maleText(QPainter &painter, const QStyleOptionViewItem &option,
                           const Zellenbild &bild, const QModelIndex &index) const
{
    const bool aufFarbe = istGewaehlt(option) && !istBearbeitbar(index);
    const QColor farbe =
        option.palette.color(aufFarbe ? QPalette::HighlightedText : QPalette::Text);
    QRect platz = option.rect.adjusted(zellenrand, 0, -zellenrand, 0);
    painter.setPen(farbe);
    painter.setFont(option.font);
    QString rest = bild.text;
    if (bild.anfang && !bild.text.isEmpty()) {
        const qsizetype zeichen = bild.text.at(0).isHighSurrogate() ? 2 : 1;
        const QString anfang = bild.text.left(zeichen);
        rest = bild.text.mid(zeichen);
        QFont schrift = option.font;
        if (bild.anfangspunkte > 0) {
            schrift.setPointSize(bild.anfangspunkte);
        }
        painter.setFont(schrift);
        painter.setPen(farbeFuer(*bild.anfang, option.palette));
        painter.drawText(platz, Qt::AlignLeft | Qt::AlignVCenter, anfang);
        platz.setLeft(platz.left() + painter.fontMetrics().horizontalAdvance(anfang));
        painter.setFont(option.font);
        painter.setPen(farbe);
    }
    painter.drawText(platz, static_cast<int>(ausrichtung(index)),
                     option.fontMetrics.elidedText(rest, Qt::ElideRight, platz.width()));
}
