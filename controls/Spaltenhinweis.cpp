#include "Spaltenhinweis.h"

#include "Tabellenansicht.h"

#include <QEvent>
#include <QHeaderView>
#include <QScrollBar>

#include <algorithm>

namespace {

constexpr int innenrand = 8;

} // namespace

Spaltenhinweis::Spaltenhinweis(Tabellenansicht &tabelle, const QString &kennung)
    : QLabel(tabelle.viewport())
    , m_tabelle(tabelle)
    , m_spalte(tabelle.modell()->spaltenstelle(kennung))
{
    setTextFormat(Qt::PlainText); // what was searched for may hold anything
    setWordWrap(true);
    setMargin(innenrand);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true); // no line of the table runs through the words
    setAttribute(Qt::WA_TransparentForMouseEvents);
    tabelle.viewport()->installEventFilter(this);
    connect(tabelle.horizontalHeader(), &QHeaderView::sectionResized, this, &Spaltenhinweis::ordne);
    for (const QScrollBar *balken : {tabelle.horizontalScrollBar(), tabelle.verticalScrollBar()}) {
        connect(balken, &QScrollBar::valueChanged, this, &Spaltenhinweis::ordne);
    }
    hide();
}

void Spaltenhinweis::zeige(const QString &text, int abZeile)
{
    if (text == this->text() && abZeile == m_abZeile) {
        return;
    }
    m_abZeile = abZeile;
    setText(text);
    ordne();
    setVisible(!text.isEmpty());
}

bool Spaltenhinweis::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize) {
        ordne();
    }
    return QLabel::eventFilter(watched, event);
}

void Spaltenhinweis::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        ordne();
    }
}

void Spaltenhinweis::ordne()
{
    const int breite = m_tabelle.columnWidth(m_spalte) - 1; // the column's line stays
    const int oben = std::max(0, m_tabelle.rowViewportPosition(m_abZeile));
    const int frei = m_tabelle.viewport()->height() - oben;
    const int hoehe = std::min(heightForWidth(breite), frei);
    setGeometry(m_tabelle.columnViewportPosition(m_spalte), oben + (frei - hoehe) / 2, breite,
                hoehe);
}
