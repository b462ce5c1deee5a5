// What the days come to, as the window of the days shows it: the pictures below its sums, and the
// evaluation in a window of its own.

#include "Tagefenster.h"

#include "Tagesauswertungsfenster.h"

#include <QCloseEvent>

void Tagefenster::zeigeAuswertung(const Aufzeichnung &eine, const Summenmodell::Stand &stand)
{
    bilder->zeige(eine, buch.tag(), stand.tag, stand.mittel);
    if (m_auswertung != nullptr) {
        m_auswertung->zeige(
            {.tagesname = eine.tage.isEmpty() ? QString() : tagesname(eine, buch.tag()),
             .tag = stand.tag,
             .mittel = stand.mittel,
             .bedarf = m_tueren.bedarf()});
    }
}

Tagesauswertungsfenster &Tagefenster::auswertungsfenster()
{
    if (m_auswertung == nullptr) {
        m_auswertung = new Tagesauswertungsfenster(this);
        zeigeSummen();
    }
    return *m_auswertung;
}

void Tagefenster::zeigeAuswertungsfenster()
{
    Tagesauswertungsfenster &fenster = auswertungsfenster();
    fenster.show();
    fenster.raise();
    fenster.activateWindow();
}

/// Without its days an evaluation says nothing.
void Tagefenster::closeEvent(QCloseEvent *event)
{
    QMainWindow::closeEvent(event);
    if (event->isAccepted() && m_auswertung != nullptr) {
        m_auswertung->close();
    }
}
