#include "Seitenanzeige.h"

#include <QCoreApplication>

namespace {

QString uebersetzt(const char *text)
{
    return QCoreApplication::translate("Mahlberg", text);
}

} // namespace

Seitenanzeige::Seitenanzeige(const QString &titel, QWidget *worueber)
    : m_fenster(QString(), uebersetzt(QT_TRANSLATE_NOOP("Mahlberg", "Abbrechen")), 0, 0, worueber)
{
    constexpr int geduld = 500; // milliseconds
    m_fenster.setWindowTitle(titel);
    m_fenster.setWindowModality(Qt::ApplicationModal);
    m_fenster.setMinimumDuration(geduld);
}

bool Seitenanzeige::zeige(int fertig, int gesamt)
{
    m_fenster.setMaximum(gesamt);
    m_fenster.setLabelText(uebersetzt(QT_TRANSLATE_NOOP("Mahlberg", "Seite %1 von %2"))
                               .arg(qMin(fertig + 1, gesamt))
                               .arg(gesamt));
    m_fenster.setValue(fertig); // lets the user cancel
    return !abgebrochen();
}
