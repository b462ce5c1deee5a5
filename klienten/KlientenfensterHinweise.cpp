// What the clients' window tells of the store and of other desks.

#include "Klientenfenster.h"

#include "Angabenworte.h"
#include "Kollisionsfenster.h"
#include "Zeichenkettentabelle.h"

/// What stands in the way is said as long as it does, and what that means for what was typed.
void Klientenfenster::zeigeHindernis()
{
    const Ausgang &hindernis = m_kartei.hindernis();
    zeigeKopf();
    if (hindernis) {
        hinweise->nimmZurueck(hinweisHindernis);
        return;
    }
    QString satz = inWorten(hindernis);
    if (m_kartei.vorgemerkt() > 0) {
        satz += u' ' + localizedString(QStringLiteral(
                           "Was Sie eingeben, ist vorgemerkt und wird gesichert, sobald es geht."));
    }
    const bool beschaedigt = hindernis.hindernis == Hindernis::Beschaedigt;
    hinweise->zeige({.kennung = hinweisHindernis,
                     .text = satz,
                     .knopf = beschaedigt ? localizedString(QStringLiteral("Frühere Stände …"))
                                          : localizedString(QStringLiteral("Erneut versuchen")),
                     .aktion =
                         [this, beschaedigt] {
                             if (beschaedigt) {
                                 Q_EMIT fruehereStaendeGewuenscht();
                             } else {
                                 m_kartei.versucheNochmals();
                             }
                             zeigeHindernis();
                         },
                     .warnung = true});
}

/// The other desk's state is taken as the ground for what is chosen. Without an answer one's own
/// entry waits with the window; it is not lost.
void Klientenfenster::zeigeKollision(const Kollision &kollision)
{
    const std::optional<Klientenakte> akte = m_kartei.akte(kollision.meines.person);
    auto *fenster =
        new Kollisionsfenster(kollision, akte ? kurzerName(akte->person.name) : QString(), this);
    fenster->setAttribute(Qt::WA_DeleteOnClose);
    connect(fenster, &QDialog::accepted, this,
            [this, kollision, fenster] { m_kartei.entscheide(kollision, fenster->entschieden()); });
    connect(fenster, &QDialog::rejected, this,
            [this, kollision] { m_kartei.verzichte(kollision.meines); });
    show();
    fenster->open();
}

void Klientenfenster::zeigeVerschwundenen(const Schreibwunsch &wunsch)
{
    const bool person = std::holds_alternative<Person>(wunsch.neu);
    const bool behalten =
        m_tueren.melde(this,
                       {.text = person ? localizedString(QStringLiteral(
                                             "Ein anderer Platz hat diesen Klienten gelöscht."))
                                       : localizedString(QStringLiteral(
                                             "Ein anderer Platz hat gelöscht, was Sie ändern.")),
                        .erklaerung = localizedString(
                            QStringLiteral("Was Sie hier sehen, kann wieder aufgenommen werden.")),
                        .knoepfe = {localizedString(QStringLiteral("Wieder aufnehmen")),
                                    localizedString(QStringLiteral("Gelöscht lassen"))}}) == 0;
    if (behalten) {
        nimmWiederAuf(wunsch);
    } else {
        m_kartei.verzichte(wunsch);
    }
}

/// Brings back what another desk has deleted: the client whole where they are gone, or one record.
void Klientenfenster::nimmWiederAuf(const Schreibwunsch &wunsch)
{
    const bool personDa = m_kartei.akte(wunsch.person).has_value();
    if (!personDa && m_akte && m_gewaehlt == wunsch.person) {
        Klientenakte akte = *m_akte;
        if (const auto *neue = std::get_if<Person>(&wunsch.neu)) {
            akte.person = *neue;
        }
        m_kartei.nimmAuf(akte);
    }
    if (personDa || !std::holds_alternative<Person>(wunsch.neu)) {
        Schreibwunsch neuer = wunsch;
        std::visit([](auto &satz) { satz.fassung = 0; }, neuer.neu);
        neuer.alt.reset();
        m_kartei.sichere(neuer);
    }
}
