#include "Tabellenansicht.h"

#include "Tabellenkopf.h"
#include "Zellenmaler.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <utility>

namespace {

constexpr int breitenschritt = 8; // px, two fields of the grid on which everything stands

} // namespace

Tabellenansicht::Tabellenansicht(QWidget *parent)
    : QTableView(parent)
    , m_modell(new Tabellenmodell(this))
{
    setHorizontalHeader(new Tabellenkopf(this));
    setModel(m_modell);
    setItemDelegate(new Zellenmaler(this));
    setSelectionMode(QAbstractItemView::SingleSelection);
    setSelectionBehavior(QAbstractItemView::SelectItems);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setShowGrid(false);
    setDragEnabled(true);
    setDragDropMode(QAbstractItemView::DragOnly);
    setDropIndicatorShown(false); // the table paints a line of its own
    setTabKeyNavigation(false);
    setWordWrap(false);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    horizontalHeader()->setResizeContentsPrecision(-1); // the longest entry may be the last one
    connect(horizontalHeader(), &QHeaderView::sectionResized, this,
            [this](int spalte, int /*vorher*/, int breite) {
                const bool letzte = spalte == m_modell->columnCount() - 1;
                m_breiteVonHand |= spalte == 0 && !m_verteilt;
                if (!m_verteilt && !letzte) {
                    Q_EMIT spalteGezogen(spalte, breite);
                }
            });
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(8);
}

void Tabellenansicht::setQuelle(Tabellenquelle *quelle, const QList<Spalte> &spalten)
{
    m_modell->setQuelle(quelle, spalten);
}

void Tabellenansicht::setSpaltenbreiten(const QList<int> &breiten)
{
    const QScopedValueRollback programm(m_verteilt, true);
    m_grundbreiten = breiten;
    horizontalHeader()->setStretchLastSection(true);
    for (int spalte = 0; spalte < breiten.size(); ++spalte) {
        setColumnWidth(spalte, breiten[spalte]);
    }
}

/// The first column takes what the others leave, but no more than it needs; the last one is then
/// as wide as what remains.
void Tabellenansicht::verteileBreiten()
{
    if (m_grundbreiten.isEmpty() || m_breiteVonHand) {
        return;
    }
    if (m_bedarf < 0) {
        m_bedarf = sizeHintForColumn(0);
    }
    int frei = viewport()->width() - m_grundbreiten.last();
    for (int spalte = 1; spalte < m_grundbreiten.size() - 1; ++spalte) {
        frei -= columnWidth(spalte);
    }
    const QScopedValueRollback programm(m_verteilt, true);
    setColumnWidth(0, qMax(m_grundbreiten.first(), qMin(frei, m_bedarf)));
}

void Tabellenansicht::vergissBreiten()
{
    m_breiteVonHand = false;
    setSpaltenbreiten(m_grundbreiten);
    verteileBreiten();
    Q_EMIT breitenVergessen();
}

void Tabellenansicht::resizeEvent(QResizeEvent *event)
{
    verteileBreiten();
    QTableView::resizeEvent(event);
    const int unten = rowViewportPosition(m_gewaehlt) + rowHeight();
    if (m_gewaehlt >= 0 && unten > viewport()->height() && unten <= event->oldSize().height()) {
        scrollRowToVisible(m_gewaehlt); // what appears below the table does not hide it
    }
}

void Tabellenansicht::changeEvent(QEvent *event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        m_bedarf = -1;
        verteileBreiten();
    }
}

void Tabellenansicht::reloadData()
{
    const int zeilen = m_modell->rowCount();
    m_modell->reloadData();
    if (m_modell->rowCount() != zeilen) {
        m_bedarf = -1;
        verteileBreiten();
    }
    viewport()->update();
    Q_EMIT neuGelesen();
}

void Tabellenansicht::selectionChanged(const QItemSelection &selected,
                                       const QItemSelection &deselected)
{
    QTableView::selectionChanged(selected, deselected);
    const QModelIndexList gewaehlt = selectionModel()->selectedIndexes();
    m_gewaehlt = gewaehlt.isEmpty() ? -1 : gewaehlt.first().row();
}

bool Tabellenansicht::nurMitReturn(int spalte) const
{
    return m_bestaetigt.contains(m_modell->kennung(spalte));
}

/// Arrow keys leave the selection alone where only Return chooses, and so does a press: it may be
/// the beginning of a drag.
QItemSelectionModel::SelectionFlags Tabellenansicht::selectionCommand(const QModelIndex &index,
                                                                      const QEvent *event) const
{
    const QEvent::Type art = event != nullptr ? event->type() : QEvent::None;
    if ((art == QEvent::KeyPress && nurMitReturn(index.column())) ||
        art == QEvent::MouseButtonPress) {
        return QItemSelectionModel::NoUpdate;
    }
    return QTableView::selectionCommand(index, event);
}

/// In place of what was selected; a whole row where rows are selected.
QItemSelectionModel::SelectionFlags Tabellenansicht::neueAuswahl() const
{
    const QItemSelectionModel::SelectionFlags neu = QItemSelectionModel::ClearAndSelect;
    return selectionBehavior() == SelectRows ? neu | QItemSelectionModel::Rows : neu;
}

/// Moves the keyboard's cursor to a cell that lies under the mouse: what is under the mouse stays
/// there.
void Tabellenansicht::setzeUngerollt(const QModelIndex &index,
                                     QItemSelectionModel::SelectionFlags auswahl)
{
    const bool rollt = hasAutoScroll();
    setAutoScroll(false);
    selectionModel()->setCurrentIndex(index, auswahl);
    setAutoScroll(rollt);
}

void Tabellenansicht::setzeSchreibmarke(int zeile, const QString &kennung)
{
    const QModelIndex index = m_modell->index(zeile, m_modell->spaltenstelle(kennung));
    if (index.isValid()) {
        selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
        scrollTo(index);
    }
}

void Tabellenansicht::waehle(int zeile, const QString &kennung)
{
    const QModelIndex index = m_modell->index(zeile, m_modell->spaltenstelle(kennung));
    if (index.isValid()) {
        selectionModel()->setCurrentIndex(index, neueAuswahl());
        scrollTo(index);
        melde(index.column());
    }
}

void Tabellenansicht::selectRow(int zeile)
{
    if (zeile == m_gewaehlt) {
        return;
    }
    const int spalte = qMax(0, currentIndex().column());
    const QModelIndex index = m_modell->index(zeile, spalte);
    if (!index.isValid()) {
        return;
    }
    const QScopedValueRollback senkrecht(m_nurSenkrecht, true);
    if (nurMitReturn(m_clickedColumn)) { // who walks through results finds the cursor there again
        selectionModel()->select(index, neueAuswahl());
    } else {
        selectionModel()->setCurrentIndex(index, neueAuswahl());
    }
    viewport()->update();
}

void Tabellenansicht::scrollRowToVisible(int zeile)
{
    const int oben = rowViewportPosition(zeile);
    const bool sichtbar = oben >= 0 && oben + rowHeight() <= viewport()->height();
    const QScopedValueRollback senkrecht(m_nurSenkrecht, true);
    if (!sichtbar) {
        scrollTo(m_modell->index(zeile, 0));
    }
}

void Tabellenansicht::scrollTo(const QModelIndex &index, ScrollHint hint)
{
    const int seitwaerts = horizontalScrollBar()->value();
    QTableView::scrollTo(index, hint);
    if (m_nurSenkrecht) {
        horizontalScrollBar()->setValue(seitwaerts);
    }
}

/// A while after a click the table rolls to the clicked cell, where only a part of it was seen.
/// Sideways that would pull the next cell away from under the mouse, and while the button is down
/// a drag may begin.
void Tabellenansicht::timerEvent(QTimerEvent *event)
{
    if (m_angefasst.isValid()) {
        return;
    }
    const QScopedValueRollback senkrecht(m_nurSenkrecht, true);
    QTableView::timerEvent(event);
}

void Tabellenansicht::beendeEingabe()
{
    // The state is no help: it is another one while something is dragged over the table.
    if (QWidget *feld = indexWidget(currentIndex())) {
        commitData(feld);
        closeEditor(feld, QAbstractItemDelegate::NoHint);
    }
}

void Tabellenansicht::setGitter(bool gitter)
{
    m_gitter = gitter;
    viewport()->update();
}

void Tabellenansicht::setHinweis(const QString &hinweis)
{
    m_hinweis = hinweis;
    viewport()->update();
}

int Tabellenansicht::rowHeight() const
{
    return verticalHeader()->defaultSectionSize();
}

void Tabellenansicht::setRowHeight(int hoehe)
{
    verticalHeader()->setDefaultSectionSize(hoehe);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
}

/// Runs the action with the column in which the user chose.
void Tabellenansicht::melde(int spalte)
{
    viewport()->update();
    m_clickedColumn = spalte;
    Q_EMIT betaetigt();
    m_clickedColumn = -1;
}

void Tabellenansicht::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        return; // only the left button chooses
    }
    m_mausort = event->position().toPoint();
    m_gedrueckteZeile = rowAt(m_mausort.y());
    m_gedrueckt = true;
    const QPersistentModelIndex schreibmarke = currentIndex();
    QTableView::mousePressEvent(event);
    m_angefasst = indexAt(m_mausort);
    m_gedrueckteZelle = m_angefasst;
    if (m_angefasst.isValid()) {
        setzeUngerollt(schreibmarke, QItemSelectionModel::NoUpdate);
    } else {
        clearSelection();
    }
}

/// Qt begins a drag only where something is selected, and the press has selected nothing.
void Tabellenansicht::mouseMoveEvent(QMouseEvent *event)
{
    m_mausort = event->position().toPoint();
    if (m_angefasst.isValid() && dragEnabled() && state() == NoState &&
        (event->buttons() & Qt::LeftButton) != 0) {
        setState(DraggingState);
    }
    QTableView::mouseMoveEvent(event);
}

/// What was pressed is chosen, or nothing, and where nothing can be dragged pulling the mouse may
/// have moved on to another cell: the action runs for what is chosen in the end. A drag away has
/// chosen nothing.
void Tabellenansicht::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && m_angefasst.isValid()) {
        setzeUngerollt(std::exchange(m_angefasst, {}), neueAuswahl());
    }
    QTableView::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && std::exchange(m_gedrueckt, false)) {
        melde(selectionModel()->selectedIndexes().value(0).column());
    }
}

/// Where the first click has rolled another row under the mouse, the second is no choice of it.
void Tabellenansicht::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QPoint ort = event->position().toPoint();
    const QPersistentModelIndex erste = m_gedrueckteZelle;
    const bool gerollt = rowAt(ort.y()) != m_gedrueckteZeile;
    const bool zweimal = gerollt || indexAt(ort) == erste;
    if (!gerollt) {
        QTableView::mouseDoubleClickEvent(event);
    }
    if (event->button() == Qt::LeftButton && zweimal && erste.isValid()) {
        Q_EMIT doppeltGeklickt(erste);
    }
}

void Tabellenansicht::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() == QContextMenuEvent::Mouse) {
        Q_EMIT menueGewuenscht(indexAt(event->pos()), event->globalPos());
    } else {
        wuenscheMenue();
    }
}

/// The menu of the cell where the keyboard is, beside it.
void Tabellenansicht::wuenscheMenue()
{
    const QRect zelle = visualRect(currentIndex()) & viewport()->rect();
    Q_EMIT menueGewuenscht(currentIndex(), viewport()->mapToGlobal(zelle.center()));
}

/// The last column only takes what the others leave, with the mouse as well.
bool Tabellenansicht::aendereBreite(const QKeyEvent &event)
{
    const bool breiter = event.key() == Qt::Key_Right;
    if (event.modifiers() != Qt::AltModifier || (!breiter && event.key() != Qt::Key_Left)) {
        return false;
    }
    const int spalte = currentIndex().column();
    if (spalte >= 0 && spalte < m_modell->columnCount() - 1) {
        const int breite = columnWidth(spalte) + (breiter ? breitenschritt : -breitenschritt);
        setColumnWidth(spalte, qMax(horizontalHeader()->minimumSectionSize(), breite));
    }
    return true;
}

void Tabellenansicht::keyPressEvent(QKeyEvent *event)
{
    if (aendereBreite(*event)) {
        return;
    }
    // Not every desktop turns this key into the wish for a menu, as all do the key made for it.
    if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier &&
        contextMenuPolicy() == Qt::DefaultContextMenu) {
        wuenscheMenue();
        return;
    }
    const QModelIndex vorher = currentIndex();
    QTableView::keyPressEvent(event);
    const QModelIndex jetzt = currentIndex();
    const bool bestaetigt = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!jetzt.isValid()) {
        return;
    }
    if (bestaetigt && state() != EditingState && editTriggers() != NoEditTriggers &&
        (m_modell->flags(jetzt) & Qt::ItemIsEditable) != 0) {
        edit(jetzt);
    } else if (bestaetigt) {
        selectionModel()->select(jetzt, neueAuswahl());
        melde(jetzt.column());
    } else if (jetzt != vorher && !nurMitReturn(jetzt.column())) {
        melde(jetzt.column());
    }
}
