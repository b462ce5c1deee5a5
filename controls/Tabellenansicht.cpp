#include "Tabellenansicht.h"

#include <QDrag>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>

#include <utility>

namespace {

constexpr int zellenrand = 6;

/// Paints a cell as its controller pictured it. The chosen food is marked by a border, not by a
/// coloured row: a row holds three foods, and only one of them is on display.
class Zellenmaler : public QStyledItemDelegate
{
public:
    explicit Zellenmaler(Tabellenansicht *tabelle)
        : QStyledItemDelegate(tabelle)
        , m_tabelle(tabelle)
    {
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override
    {
        const Zellenbild bild = m_tabelle->modell()->bild(index);
        painter->save();
        const bool gerade = (option.features & QStyleOptionViewItem::Alternate) != 0;
        painter->fillRect(option.rect,
                          gerade ? option.palette.alternateBase() : option.palette.base());
        if (m_tabelle->gitter()) {
            maleGitter(*painter, option);
        }
        if (bild.umrandet) {
            maleRand(*painter, option);
        }
        maleText(*painter, option, bild);
        if ((option.state & QStyle::State_HasFocus) != 0 && !bild.umrandet) {
            maleTastaturmarke(*painter, option);
        }
        painter->restore();
    }

private:
    static void maleGitter(QPainter &painter, const QStyleOptionViewItem &option)
    {
        const QRect &zelle = option.rect;
        painter.setPen(QPen(option.palette.color(QPalette::Mid), 0));
        painter.drawLine(zelle.topRight(), zelle.bottomRight());
        painter.setPen(QPen(option.palette.color(QPalette::Mid), 0, Qt::DashLine));
        painter.drawLine(zelle.bottomLeft(), zelle.bottomRight());
    }

    static void maleRand(QPainter &painter, const QStyleOptionViewItem &option)
    {
        painter.setPen(QPen(option.palette.color(QPalette::Highlight), 2));
        painter.drawRect(QRectF(option.rect).adjusted(1.5, 1.5, -2.5, -2.5));
    }

    static void maleTastaturmarke(QPainter &painter, const QStyleOptionViewItem &option)
    {
        painter.setPen(QPen(option.palette.color(QPalette::Highlight), 1, Qt::DotLine));
        painter.drawRect(option.rect.adjusted(1, 1, -3, -3));
    }

    static void maleText(QPainter &painter, const QStyleOptionViewItem &option,
                         const Zellenbild &bild)
    {
        QRect platz = option.rect.adjusted(zellenrand, 0, -zellenrand, 0);
        painter.setPen(option.palette.color(QPalette::Text));
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
            painter.setPen(option.palette.color(QPalette::Text));
        }
        painter.drawText(platz, Qt::AlignLeft | Qt::AlignVCenter,
                         option.fontMetrics.elidedText(rest, Qt::ElideRight, platz.width()));
    }

    Tabellenansicht *m_tabelle;
};

} // namespace

Tabellenansicht::Tabellenansicht(QWidget *parent)
    : QTableView(parent)
    , m_modell(new Tabellenmodell(this))
{
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
    horizontalHeader()->setHighlightSections(false);
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

void Tabellenansicht::setzeSchreibmarke(int zeile, const QString &kennung)
{
    const QModelIndex index = m_modell->index(zeile, m_modell->spaltenstelle(kennung));
    if (index.isValid()) {
        selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
        scrollTo(index);
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
        selectionModel()->select(index, QItemSelectionModel::ClearAndSelect);
    } else {
        selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
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

void Tabellenansicht::setGitter(bool gitter)
{
    m_gitter = gitter;
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
    if (bestaetigt) {
        selectionModel()->select(jetzt, QItemSelectionModel::ClearAndSelect);
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
    selectionModel()->setCurrentIndex(m_vorDruck, QItemSelectionModel::ClearAndSelect);
    viewport()->update();
    auto *zug = new QDrag(this);
    zug->setMimeData(daten);
    zug->exec(supportedActions | Qt::CopyAction, Qt::CopyAction);
}
