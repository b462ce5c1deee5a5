// What is dragged out of the table of a day and dropped into it, and the line that shows where it
// goes.

#include "Tagesansicht.h"

#include <QDrag>
#include <QDragMoveEvent>
#include <QMimeData>
#include <QPainter>

#include <algorithm>
#include <utility>

using Art = Tagesmodell::Art;
using Platz = Tagesmodell::Platz;

void Tagesansicht::startDrag(Qt::DropActions /*supportedActions*/)
{
    QMimeData *daten = m_ziehquelle ? m_ziehquelle() : nullptr;
    if (daten != nullptr) {
        auto *zug = new QDrag(this);
        zug->setMimeData(daten);
        zug->exec(Qt::CopyAction | Qt::MoveAction, Qt::MoveAction);
    }
}

/// On the name of a meal and below its rows it is the end of the meal; on a row, the nearer one of
/// its edges. Nothing comes between a row and its alternatives.
std::optional<Platz> Tagesansicht::platzBei(const QPoint &ort) const
{
    const int unter = rowAt(ort.y());
    const std::optional<Platz> dort = m_modell.platz(unter < 0 ? m_modell.rowCount() - 1 : unter);
    if (!dort) {
        return std::nullopt;
    }
    Platz platz{Art::Speise, dort->mahlzeit, dort->zeile};
    if (dort->art == Art::Mahlzeit) {
        while (m_modell.reihe(platz) >= 0) {
            ++platz.zeile;
        }
    } else if (dort->art == Art::Speise) {
        const int mitte = rowViewportPosition(unter) + rowHeight(unter) / 2;
        platz.zeile += ort.y() >= mitte ? 1 : 0;
        for (const Mahlzeitzeile *zeile = m_modell.zeile(m_modell.reihe(platz));
             zeile != nullptr && zeile->oder; zeile = m_modell.zeile(m_modell.reihe(platz))) {
            ++platz.zeile;
        }
    }
    return platz;
}

/// Answers a drag over the table, and remembers where it would go. Rows of this table are moved,
/// and copied with the key for that; all else stays where it comes from.
bool Tagesansicht::pruefeAbwurf(QDropEvent &event)
{
    const bool aenderbar = m_modell.beschreibbar(0, Tagesmodell::Name);
    const bool nimmt = aenderbar && m_pruefung && m_pruefung(*event.mimeData());
    m_abwurf = nimmt ? platzBei(event.position().toPoint()) : std::nullopt;
    viewport()->update();
    if (!m_abwurf) {
        event.ignore();
        return false;
    }
    const bool ziehen = event.possibleActions().testFlag(Qt::MoveAction) &&
                        !event.modifiers().testFlag(Qt::ControlModifier);
    event.setDropAction(ziehen ? Qt::MoveAction : Qt::CopyAction);
    event.accept();
    return true;
}

void Tagesansicht::dragEnterEvent(QDragEnterEvent *event)
{
    QTableView::dragEnterEvent(event);
    pruefeAbwurf(*event);
}

void Tagesansicht::dragMoveEvent(QDragMoveEvent *event)
{
    QTableView::dragMoveEvent(event); // scrolls near the edges
    pruefeAbwurf(*event);
}

void Tagesansicht::dragLeaveEvent(QDragLeaveEvent *event)
{
    m_abwurf.reset();
    viewport()->update();
    QTableView::dragLeaveEvent(event);
}

void Tagesansicht::dropEvent(QDropEvent *event)
{
    pruefeAbwurf(*event);
    const std::optional<Platz> vor = m_abwurf;
    QDragLeaveEvent ende;
    dragLeaveEvent(&ende); // stops the scrolling and takes the line away
    if (vor) {
        Q_EMIT abgeworfen(event->mimeData(), *vor, event->dropAction() == Qt::CopyAction);
    }
}

/// The line stands above the row before which it would come; that of a meal's end above the one
/// into which the next food is typed.
void Tagesansicht::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    if (!m_abwurf) {
        return;
    }
    constexpr int strich = 3;
    const int stelle = m_modell.reihe(*m_abwurf);
    const int reihe =
        stelle >= 0 ? stelle : m_modell.reihe({Art::Eingabe, m_abwurf->mahlzeit, m_abwurf->zeile});
    QPainter painter(viewport());
    painter.fillRect(0, std::max(0, rowViewportPosition(reihe) - strich / 2), viewport()->width(),
                     strich, palette().color(QPalette::Highlight));
}
