#include "Balkenmaler.h"

#include "Zellengrund.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr double balkenhoehe = 0.6;  // part of the height of the letters
constexpr int kuerzesterBalken = 14; // letters
constexpr int abstand = 6;

/// How wide the widest figure is.
int zahlbreite(const QFontMetrics &schrift)
{
    return schrift.horizontalAdvance(QStringLiteral("100 %"));
}

} // namespace

void Balkenmaler::paint(QPainter *painter, const QStyleOptionViewItem &option,
                        const QModelIndex &index) const
{
    const QVariant anteil = index.data(anteilrolle);
    if (!anteil.isValid()) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem grund = option;
    initStyleOption(&grund, index);
    Zellengrund::male(grund, *painter);

    const QColor schrift = Zellengrund::schrift(option);
    const QRect platz = option.rect.adjusted(abstand, 0, -abstand, 0);
    const int breite = zahlbreite(option.fontMetrics);
    painter->save();
    painter->setPen(schrift);
    painter->drawText(QRect(platz.right() - breite + 1, platz.top(), breite, platz.height()),
                      Qt::AlignRight | Qt::AlignVCenter, grund.text);
    const double voll = std::max(0, platz.width() - breite - abstand);
    const double hoehe = balkenhoehe * option.fontMetrics.height();
    QColor balken = schrift;
    balken.setAlphaF(0.5F);
    painter->fillRect(QRectF(platz.left(), platz.center().y() - hoehe / 2 + 1,
                             voll * std::clamp(anteil.toDouble(), 0.0, 1.0), hoehe),
                      balken);
    painter->restore();
}

QSize Balkenmaler::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QSize sonst = QStyledItemDelegate::sizeHint(option, index);
    const int balken = kuerzesterBalken * option.fontMetrics.averageCharWidth();
    return {std::max(sonst.width(), zahlbreite(option.fontMetrics) + balken + 3 * abstand),
            sonst.height()};
}
