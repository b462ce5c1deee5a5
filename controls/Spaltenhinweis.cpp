#include "Spaltenhinweis.h"

#include "Karte.h"
#include "Tabellenansicht.h"

#include <QEvent>
#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace {

constexpr int innenrand = 8;
constexpr int kartenrand = 3; ///< the table is seen at both sides of the words' card

/// Narrower than this, in pixels, words are no lines any more.
constexpr int lesbareBreite = 160;

} // namespace

Spaltenhinweis::Spaltenhinweis(Tabellenansicht &tabelle, const QString &kennung)
    : QLabel(tabelle.viewport())
    , m_tabelle(tabelle)
    , m_spalte(tabelle.modell()->spaltenstelle(kennung))
{
    setTextFormat(Qt::PlainText); // what was searched for may hold anything
    setWordWrap(true);
    setMargin(innenrand);
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

/// The card keeps the table's lines from running through the words.
void Spaltenhinweis::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    maleKarte(painter, rect().adjusted(kartenrand, 0, -kartenrand, 0), palette());
    QLabel::paintEvent(event);
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
    const QSize flaeche = m_tabelle.viewport()->size();
    const int links = m_tabelle.columnViewportPosition(m_spalte);
    const int breit = m_tabelle.columnWidth(m_spalte) - 1; // the column's line stays
    const int sichtbar = flaeche.width() - links;
    const bool ganz = sichtbar >= breit;
    const int breite = ganz ? breit : std::min(breit, std::max(sichtbar, lesbareBreite));
    const int oben = std::max(0, m_tabelle.rowViewportPosition(m_abZeile));
    const int frei = flaeche.height() - oben;
    const int hoehe = std::min(heightForWidth(breite), frei);
    setGeometry(ganz ? links : flaeche.width() - breite,
                oben + (ganz ? (frei - hoehe) / 2 : frei - hoehe), breite, hoehe);
}
