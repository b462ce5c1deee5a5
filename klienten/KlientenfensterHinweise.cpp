// What the clients' window tells of the store and of other desks.

#include "Klientenfenster.h"

#include "Angabenworte.h"
#include "Kollisionsfenster.h"
#include "Zeichenkettentabelle.h"

#include <algorithm>

namespace {

/// The count of writes that a record has in there; absent when it is not in it.
template <typename Art>
std::optional<int> fassungUnter(const QList<Art> &saetze, const Art &satz)
{
    const auto stelle = std::find_if(saetze.begin(), saetze.end(), [&](const Art &einer) {
        return einer.kennung == satz.kennung;
    });
    return stelle != saetze.end() ? std::optional(stelle->fassung) : std::nullopt;
}

std::optional<int> fassungIn(const std::optional<Klientenakte> & /*akte*/, const Person & /*wer*/)
{
    return std::nullopt;
}
std::optional<int> fassungIn(const std::optional<Klientenakte> &akte, const Besuch &besuch)
{
    return akte ? fassungUnter(akte->besuche, besuch) : std::nullopt;
}
std::optional<int> fassungIn(const std::optional<Klientenakte> &akte, const Planablage &plan)
{
    return akte ? fassungUnter(akte->plaene, plan) : std::nullopt;
}
std::optional<int> fassungIn(const std::optional<Klientenakte> &akte, const Aufzeichnung &tage)
{
    return akte ? fassungUnter(akte->aufzeichnungen, tage) : std::nullopt;
}

} // namespace

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

/// What this desk still has of a client: on display or at the desk. Absent when it has nothing.
std::optional<Klientenakte> Klientenfenster::hiesigeAkte(const QString &kennung) const
{
    for (const std::optional<Klientenakte> &akte : {m_akte, m_tisch.akte()}) {
        if (akte && akte->person.kennung == kennung) {
            return akte;
        }
    }
    return std::nullopt;
}

/// Brings back what another desk has deleted: the client whole where they are gone, and the record.
void Klientenfenster::nimmWiederAuf(const Schreibwunsch &wunsch)
{
    const bool personFehlt = !m_kartei.akte(wunsch.person);
    if (personFehlt) {
        std::optional<Klientenakte> akte = hiesigeAkte(wunsch.person);
        if (akte && std::holds_alternative<Person>(wunsch.neu)) {
            akte->person = std::get<Person>(wunsch.neu);
        }
        if (!akte) {
            m_kartei.verzichte(wunsch);
            return;
        }
        if (!m_kartei.nimmAuf(*akte)) {
            m_kartei.merkeVor(wunsch); // and is asked about again as soon as the store is back
            return;
        }
    }
    if (!std::holds_alternative<Person>(wunsch.neu)) {
        const std::optional<Klientenakte> akte = m_kartei.akte(wunsch.person);
        Schreibwunsch neuer = wunsch;
        std::visit(
            [&](auto &satz) {
                const std::optional<int> fassung = fassungIn(akte, satz);
                satz.fassung = fassung.value_or(0);
            },
            neuer.neu);
        m_kartei.sichere(neuer);
    }
}
