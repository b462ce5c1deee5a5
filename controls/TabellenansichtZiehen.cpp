// What is dragged out of the table and dropped into it, and the line that shows where it goes.

#include "Tabellenansicht.h"

#include "Zellenmaler.h"

#include <QCoreApplication>
#include <QDrag>
#include <QDragMoveEvent>
#include <QMimeData>
#include <QPainter>

namespace {

constexpr int ziehbildbreite = 320;
constexpr int ziehbildrand = 8;

/// The picture of a drag stands beside the pointer, so that one sees where it points to.
constexpr int zeigerabstand = 12;

} // namespace

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

QPixmap Tabellenansicht::ziehbild(const QString &text) const
{
    const QString name =
        fontMetrics().elidedText(QCoreApplication::translate("Mahlberg", text.toUtf8().constData()),
                                 Qt::ElideRight, ziehbildbreite);
    const QRect flaeche(0, 0, fontMetrics().horizontalAdvance(name) + 2 * ziehbildrand,
                        fontMetrics().height() + ziehbildrand);
    QPixmap bild(flaeche.size() * devicePixelRatio());
    bild.setDevicePixelRatio(devicePixelRatio());
    bild.fill(Qt::transparent);
    QPainter painter(&bild);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(font());
    painter.setPen(palette().color(QPalette::Highlight));
    painter.setBrush(palette().base());
    painter.drawRoundedRect(QRectF(flaeche).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(flaeche, Qt::AlignCenter, name);
    return bild;
}

void Tabellenansicht::startDrag(Qt::DropActions supportedActions)
{
    // What was pressed is dragged now, or pulling goes on to what is chosen where it ends.
    m_angefasst = QModelIndex();
    QMimeData *daten = ziehdaten(m_gedrueckteZeile, m_mausort);
    if (daten == nullptr) {
        const QModelIndex ziel = indexAt(m_mausort);
        if (ziel.isValid()) {
            setzeUngerollt(ziel, neueAuswahl());
        }
        return;
    }
    m_gedrueckt = false;
    auto *zug = new QDrag(this);
    zug->setMimeData(daten);
    zug->setPixmap(ziehbild(daten->text()));
    zug->setHotSpot({-zeigerabstand, 0});
    Q_EMIT ziehenBeginnt();
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
    maleAbwurfstrich(painter);
}

void Tabellenansicht::maleAbwurfstrich(QPainter &painter) const
{
    if (m_abwurfzeile) {
        constexpr int strich = 3;
        const int y = qMax(1, oberkante(*m_abwurfzeile));
        painter.fillRect(0, y - strich / 2, viewport()->width(), strich,
                         palette().color(QPalette::Highlight));
    }
}
