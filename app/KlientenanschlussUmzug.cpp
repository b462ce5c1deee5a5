// How the clients get from the file of a desk to the server of the practice.

#include "Klientenanschluss.h"

#include "Angabenworte.h"
#include "AppController.h"
#include "Dateidatenbank.h"
#include "Einstellungen.h"
#include "Fortschrittsanzeige.h"
#include "Klientenumzug.h"
#include "Speicherwahl.h"
#include "Zeichenkettentabelle.h"

namespace {

const QString hinweisUmzug = QStringLiteral("klientenumzug");

} // namespace

std::optional<QString> Klientenanschluss::wechsle()
{
    tisch.verlasse();
    if (!kartei.beginneNeu()) {
        return std::nullopt;
    }
    if (m_fenster != nullptr) {
        m_fenster->setDatei(fenstertueren().datei);
        m_fenster->frischeAuf();
    }
    const QString hindernis = inWorten(kartei.hindernis());
    if (stehtAufServer() && hindernis.isEmpty()) {
        bieteUmzugAn();
    }
    return hindernis;
}

bool Klientenanschluss::stehtAufServer() const
{
    return !klientenserver(*m_tueren.einstellungen).isEmpty();
}

void Klientenanschluss::beginneUmzug()
{
    if (stehtAufServer()) {
        bieteUmzugAn();
        return;
    }
    sage({.kennung = hinweisUmzug,
          .text = localizedString(QStringLiteral(
              "Die Klienten stehen in der Datei dieses Platzes; ein Server ist nicht gewählt."))});
}

/// A desk that has kept its clients in its file so far brings them along.
void Klientenanschluss::bieteUmzugAn()
{
    Klientenspeicher hier(std::make_unique<Dateidatenbank>(datei()));
    QList<Personenzeile> personen;
    const Ausgang gelesen = hier.personen(personen);
    if (!gelesen) {
        sage({.kennung = hinweisUmzug, .text = inWorten(gelesen), .warnung = true});
        return;
    }
    const QString frage = localizedString(
        QStringLiteral("Sollen die Klienten aus der Datei dieses Platzes auf den Server?"));
    const QString folge =
        localizedString(QStringLiteral("Es sind %1. Wer dort schon steht, bleibt, wie er ist. Die "
                                       "Datei bleibt liegen, wie sie ist."));
    if (!personen.isEmpty() &&
        m_tueren.melde(m_fenster != nullptr && m_fenster->isVisible() ? m_fenster.get()
                                                                      : m_hauptfenster.Hauptfenster,
                       {.text = frage,
                        .erklaerung = folge.arg(personen.size()),
                        .knoepfe = {localizedString(QStringLiteral("Nicht jetzt")),
                                    localizedString(QStringLiteral("Auf den Server"))}}) == 1) {
        zieheUm(hier);
    }
}

void Klientenanschluss::zieheUm(Klientenspeicher &von)
{
    Umzugsausgang ausgang;
    {
        Fortschrittsanzeige anzeige(localizedString(QStringLiteral("Auf den Server")),
                                    localizedString(QStringLiteral("Klient %1 von %2")),
                                    m_hauptfenster.Hauptfenster);
        ausgang = nimmAlleAuf(von, kartei.speicher(), [&](qsizetype fertig, qsizetype alle) {
            return anzeige.zeige(static_cast<int>(fertig), static_cast<int>(alle));
        });
    }
    kartei.lade();
    if (m_fenster != nullptr) {
        m_fenster->frischeAuf();
    }
    const QString grund = ausgang.ganz        ? QString()
                          : ausgang.hindernis ? localizedString(QStringLiteral("Abgebrochen."))
                                              : inWorten(ausgang.hindernis);
    sage({.kennung = hinweisUmzug,
          .text = localizedString(QStringLiteral("Auf den Server gebracht: %1. Dort schon "
                                                 "vorhanden: %2. %3"))
                      .arg(QString::number(ausgang.aufgenommen), QString::number(ausgang.schonDa),
                           grund)
                      .trimmed(),
          .warnung = !ausgang.ganz});
}

QWidget *Klientenanschluss::einstellung()
{
    return new Speicherwahl(*m_tueren.einstellungen, [this] { return wechsle(); });
}
