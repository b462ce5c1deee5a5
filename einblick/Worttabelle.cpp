#include "Worttabelle.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>

#include <algorithm>

namespace {

/// Beside the text of a cell, so that columns stand apart.
constexpr int luft = 16;

/// The widest word of a column, which can't be broken.
int breitestesWort(const QTableView &tabelle, int spalte)
{
    const QAbstractItemModel &modell = *tabelle.model();
    const QFontMetrics schrift = tabelle.fontMetrics();
    int breite = tabelle.horizontalHeader()->sectionSizeHint(spalte) - luft;
    for (int zeile = 0; zeile < modell.rowCount(); ++zeile) {
        QString text = modell.index(zeile, spalte).data().toString();
        text.replace(u'\n', u' ');
        for (const QString &wort : text.split(u' ')) {
            breite = std::max(breite, schrift.horizontalAdvance(wort));
        }
    }
    return breite + luft;
}

} // namespace

QTableView *Worttabelle::neue(const char *name, QAbstractItemModel &modell)
{
    auto *eine = new QTableView;
    eine->setObjectName(QLatin1String(name));
    eine->setModel(&modell);
    eine->setSelectionBehavior(QAbstractItemView::SelectRows);
    eine->setSelectionMode(QAbstractItemView::SingleSelection);
    eine->setShowGrid(false);
    eine->setAlternatingRowColors(true);
    eine->setTabKeyNavigation(false);
    eine->setWordWrap(true);
    eine->setTextElideMode(Qt::ElideNone);
    eine->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Rows would grow higher when it comes, and it would come when they do.
    eine->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    eine->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    eine->verticalHeader()->hide();
    eine->horizontalHeader()->setHighlightSections(false);
    eine->horizontalHeader()->setSectionsClickable(false);
    eine->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    return eine;
}

void Worttabelle::verteile(QTableView &tabelle)
{
    QList<int> spalten; // behind the first
    int mindestens = breitestesWort(tabelle, 0);
    for (int spalte = 1; spalte < tabelle.model()->columnCount(); ++spalte) {
        if (!tabelle.isColumnHidden(spalte)) {
            spalten << spalte;
            mindestens += breitestesWort(tabelle, spalte);
        }
    }
    tabelle.setMinimumWidth(mindestens + tabelle.verticalScrollBar()->sizeHint().width() +
                            2 * tabelle.frameWidth());
    const int breite = tabelle.viewport()->width();
    // What is left of the room is for all columns alike.
    const int rest = std::max<int>(0, breite - mindestens) / std::max<int>(1, int(spalten.size()));
    int erste = breite;
    for (const int spalte : std::as_const(spalten)) {
        tabelle.resizeColumnToContents(spalte);
        tabelle.setColumnWidth(spalte, std::min(tabelle.columnWidth(spalte) + luft,
                                                breitestesWort(tabelle, spalte) + rest));
        erste -= tabelle.columnWidth(spalte);
    }
    tabelle.setColumnWidth(0, erste);
    tabelle.resizeRowsToContents();
}
