#include "Fortschrittsanzeige.h"

#include <QCoreApplication>

#include <utility>

Fortschrittsanzeige::Fortschrittsanzeige(const QString &titel, QString stand, QWidget *worueber)
    : m_fenster(QString(), QCoreApplication::translate("Mahlberg", "Abbrechen"), 0, 0, worueber)
    , m_stand(std::move(stand))
{
    constexpr int geduld = 500; // milliseconds
    m_fenster.setWindowTitle(titel);
    m_fenster.setWindowModality(Qt::ApplicationModal);
    m_fenster.setMinimumDuration(geduld);
}

QString Fortschrittsanzeige::seiten()
{
    return QCoreApplication::translate("Mahlberg", "Seite %1 von %2");
}

bool Fortschrittsanzeige::zeige(int fertig, int gesamt)
{
    m_fenster.setMaximum(gesamt);
    m_fenster.setLabelText(m_stand.arg(qMin(fertig + 1, gesamt)).arg(gesamt));
    m_fenster.setValue(fertig); // lets the user cancel
    return !abgebrochen();
}
