#include "Tabellenkopf.h"

#include "Tabellenmodell.h"

#include <QStyleOptionHeader>

Tabellenkopf::Tabellenkopf(QWidget *parent) : QHeaderView(Qt::Horizontal, parent)
{
    setSectionsClickable(true);
    setHighlightSections(false);
}

void Tabellenkopf::initStyleOptionForIndex(QStyleOptionHeader *option, int logicalIndex) const
{
    QHeaderView::initStyleOptionForIndex(option, logicalIndex);
    const QFontMetrics &schrift = option->fontMetrics;
    const int rand = style()->pixelMetric(QStyle::PM_HeaderMargin, option, this);
    const int breite = sectionSize(logicalIndex) - 2 * rand;
    QString titel = model()->headerData(logicalIndex, Qt::Horizontal).toString();
    if (schrift.size(0, titel).width() > breite) {
        const QVariant kurz =
            model()->headerData(logicalIndex, Qt::Horizontal, Tabellenmodell::kurztitelrolle);
        titel = kurz.isValid() ? kurz.toString() : titel;
    }
    QStringList zeilen = titel.split(u'\n');
    for (QString &zeile : zeilen) {
        zeile = schrift.elidedText(zeile, Qt::ElideRight, breite);
    }
    option->text = zeilen.join(u'\n');
}
