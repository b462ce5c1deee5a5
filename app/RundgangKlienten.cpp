// The part of the tour with a client: from the first visit to the third.

#include "Rundgang.h"

#include "Oberflaeche.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

namespace {

struct Tourbesuch
{
    int wochen; ///< before today
    const char *gewicht;
    const char *taille;
    const char *huefte;
};

/// The visits before today's.
constexpr Tourbesuch fruehere[] = {{12, "88,6", "98", "112"}, {6, "86,2", "96", "111"}};

constexpr double heutigesGewicht = 84.9; // kg

/// Types into a field, and leaves it.
void tippe(QLineEdit &feld, const QString &text)
{
    feld.setText(text);
    Q_EMIT feld.editingFinished();
}

void nimm(QComboBox &feld, int stelle)
{
    feld.setCurrentIndex(stelle);
    Q_EMIT feld.activated(stelle);
}

void lege(Besuchsblatt &blatt, const Tourbesuch &besuch, const QDate &heute)
{
    blatt.neuerBesuch->click();
    tippe(*blatt.datum, heute.addDays(besuch.wochen * -7LL).toString(Qt::ISODate));
    tippe(*blatt.gewicht, QString::fromLatin1(besuch.gewicht));
    tippe(*blatt.groesse, QStringLiteral("1,68"));
    tippe(*blatt.taille, QString::fromLatin1(besuch.taille));
    tippe(*blatt.huefte, QString::fromLatin1(besuch.huefte));
    nimm(*blatt.aktivitaet, 1);
}

} // namespace

/// A client comes for the third time: what was kept of them is taken to the desk, what is measured
/// there becomes today's visit, and the plan goes home with them.
void Rundgang::berate()
{
    Klientenfenster &fenster = m_oberflaeche.klienten.fenster();
    fenster.zeige();
    fenster.resize(m_controller.Hauptfenster->size());
    fenster.neuknopf->click();
    Personenblatt &person = *fenster.personenblatt;
    tippe(*person.name, QStringLiteral("Erika Beispiel"));
    tippe(*person.nummer, QStringLiteral("K-017"));
    tippe(*person.geburt, QStringLiteral("1979-03-14"));
    nimm(*person.geschlecht, 2);
    person.uebergewicht->click();
    haltBeimKlienten(QStringLiteral("client-person"), QStringLiteral("Entered a client: %1."));

    const QDate heute = QDate::currentDate();
    fenster.seiten->setCurrentIndex(1);
    for (const Tourbesuch &besuch : fruehere) {
        lege(*fenster.besuchsblatt, besuch, heute);
        haltBeimKlienten(QStringLiteral("client-visit"), QStringLiteral("A visit: %1."));
    }
    fenster.tischknopf->click();
    m_rechner.gewichtn->setDoubleValue(heutigesGewicht);
    Q_EMIT m_rechner.gewichtn->betaetigt();
    m_oberflaeche.klienten.tisch.sichere();
    haltBeimKlienten(QStringLiteral("client-today"),
                     QStringLiteral("Measured again at the desk: %1."));
    fenster.seiten->setCurrentIndex(2);
    fenster.planblatt->ablegen->click();
    haltBeimKlienten(QStringLiteral("client-plan"), QStringLiteral("Kept the plan: %1."));
    fenster.seiten->setCurrentIndex(3);
    haltBeimKlienten(QStringLiteral("client-progress"), QStringLiteral("What has become: %1."));
    zeichneAuf();
    blickeHinein();
    fenster.tischknopf->click();
    fenster.close();
}

void Rundgang::haltBeimKlienten(const QString &name, const QString &worte)
{
    const Klientenfenster &fenster = m_oberflaeche.klienten.fenster();
    ++m_halt;
    m_bericht << QStringLiteral("%1. %2").arg(m_halt).arg(
        worte.arg(fenster.kopf->text() + QStringLiteral(", ") + fenster.kopfzeile->text()));
    const QTableWidget &besuche = *fenster.besuchsblatt->besuche;
    for (int zeile = 0; zeile < besuche.rowCount(); ++zeile) {
        m_bericht << QStringLiteral("   %1 %2")
                         .arg(besuche.item(zeile, 0)->text(), besuche.item(zeile, 1)->text());
    }
    m_bericht << neueMeldungen() << QString();
    bild(m_oberflaeche.klienten.fenster(), bildname(name));
}
