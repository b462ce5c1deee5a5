#include "Tabellenansicht.h"

#include "Tabellenkopf.h"
#include "Zellenmaler.h"

#include <QDrag>
#include <QDragMoveEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>

#include <utility>

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
    setTabKeyNavigation(false);
    setWordWrap(false);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(8);
}

void Tabellenansicht::setQuelle(Tabellenquelle *quelle, const QList<Spalte> &spalten)
{
    m_modell->setQuelle(quelle, spalten);
}

void Tabellenansicht::reloadData()
{
    m_modell->reloadData();
    viewport()->update();
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

/// Arrow keys leave the selection alone where only Return chooses.
QItemSelectionModel::SelectionFlags Tabellenansicht::selectionCommand(const QModelIndex &index,
                                                                      const QEvent *event) const
{
    if (event != nullptr && event->type() == QEvent::KeyPress && nurMitReturn(index.column())) {
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
    const QModelIndex index = sichtbar ? QModelIndex() : m_modell->index(zeile, 0);
    if (index.isValid()) {
        scrollTo(index.siblingAtColumn(qMax(0, currentIndex().column())));
    }
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
    m_vorDruck = selectionModel()->selectedIndexes().value(0);
    QTableView::mousePressEvent(event);
    if (!indexAt(m_mausort).isValid()) {
        clearSelection();
    }
}

void Tabellenansicht::mouseMoveEvent(QMouseEvent *event)
{
    m_mausort = event->position().toPoint();
    QTableView::mouseMoveEvent(event);
}

/// The press has chosen a cell, or none, and pulling the mouse may have moved on to another one:
/// the action runs for what is chosen in the end. A drag away has chosen nothing.
void Tabellenansicht::mouseReleaseEvent(QMouseEvent *event)
{
    QTableView::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && std::exchange(m_gedrueckt, false)) {
        melde(selectionModel()->selectedIndexes().value(0).column());
    }
}

void Tabellenansicht::keyPressEvent(QKeyEvent *event)
{
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

QMimeData *Tabellenansicht::ziehdaten(int zeile, const QPoint &mausort) const
{
    const int spalte = columnAt(mausort.x());
    const QString text = m_modell->ziehtext(spalte, zeile);
    if (text.isNull()) {
        return nullptr;
    }
    auto *daten = new QMimeData;
    daten->setText(text);
    return daten;
}

void Tabellenansicht::startDrag(Qt::DropActions supportedActions)
{
    QMimeData *daten = ziehdaten(m_gedrueckteZeile, m_mausort);
    if (daten == nullptr) {
        return;
    }
    // The press has selected what is being dragged. The food on display stays chosen.
    m_gedrueckt = false;
    selectionModel()->setCurrentIndex(m_vorDruck, neueAuswahl());
    viewport()->update();
    auto *zug = new QDrag(this);
    zug->setMimeData(daten);
    zug->exec(supportedActions | Qt::CopyAction, Qt::CopyAction);
}

std::optional<int> Tabellenansicht::abwurfzeile(const QPoint &ort) const
{
    if (m_modell->quelle() == nullptr) {
        return std::nullopt;
    }
    const int unter = rowAt(ort.y());
    if (unter < 0) {
        return m_modell->quelle()->validateDrop(m_modell->rowCount(), false);
    }
    // The edges of a row are meant where the mouse is near them, else the row itself.
    const int oben = rowViewportPosition(unter);
    const int rand = rowHeight() / 4;
    const bool obererRand = ort.y() < oben + rand;
    const bool untererRand = ort.y() >= oben + rowHeight() - rand;
    return m_modell->quelle()->validateDrop(untererRand ? unter + 1 : unter,
                                            !obererRand && !untererRand);
}

/// Answers a drag over the table, and remembers where it would go. Only texts are taken, and they
/// are always copied: what is dragged stays where it comes from.
bool Tabellenansicht::pruefeAbwurf(QDropEvent &event)
{
    const bool text = event.mimeData()->hasFormat(m_modell->mimeTypes().constFirst());
    m_abwurfzeile = text ? abwurfzeile(event.position().toPoint()) : std::nullopt;
    viewport()->update();
    if (!m_abwurfzeile) {
        event.ignore();
        return false;
    }
    event.setDropAction(Qt::CopyAction);
    event.accept();
    return true;
}

void Tabellenansicht::dragEnterEvent(QDragEnterEvent *event)
{
    QTableView::dragEnterEvent(event);
    pruefeAbwurf(*event);
}

void Tabellenansicht::dragMoveEvent(QDragMoveEvent *event)
{
    QTableView::dragMoveEvent(event); // scrolls near the edges
    pruefeAbwurf(*event);
}

void Tabellenansicht::dragLeaveEvent(QDragLeaveEvent *event)
{
    m_abwurfzeile.reset();
    QTableView::dragLeaveEvent(event);
}

void Tabellenansicht::dropEvent(QDropEvent *event)
{
    const bool angenommen = pruefeAbwurf(*event);
    const int zeile = m_abwurfzeile.value_or(0);
    const QString text = event->mimeData()->text(); // what is dragged may be gone afterwards
    QDragLeaveEvent ende;
    dragLeaveEvent(&ende); // stops the scrolling and takes the line away
    if (angenommen) {
        m_modell->quelle()->acceptDrop(zeile, text);
    }
}

/// The upper edge of a row, or the lower edge of the last one.
int Tabellenansicht::oberkante(int zeile) const
{
    const int zeilen = m_modell->rowCount();
    return zeile < zeilen ? rowViewportPosition(zeile)
           : zeilen > 0   ? rowViewportPosition(zeilen - 1) + rowHeight()
                          : 0;
}

void Tabellenansicht::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    QPainter painter(viewport());
    if (m_modell->rowCount() == 0 && !m_hinweis.isEmpty()) {
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap, m_hinweis);
    }
    if (m_abwurfzeile) {
        constexpr int strich = 3;
        const int y = qMax(1, oberkante(*m_abwurfzeile));
        painter.fillRect(0, y - strich / 2, viewport()->width(), strich,
                         palette().color(QPalette::Highlight));
    }
}
