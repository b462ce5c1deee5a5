// The part of the tour with the days of a client: what they wrote down, and what it comes to.

#include "Rundgang.h"

#include "Handzettelfenster.h"
#include "Oberflaeche.h"
#include "Tagesauswertungsfenster.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>

namespace {

using Art = Tagesmodell::Art;

/// A row of the record as the client has it in their notes.
struct Tourzeile
{
    int tag;
    int mahlzeit; ///< counted as in a new record: from breakfast (0) to supper (4)
    const char *speise;
    const char *angabe;
    bool oder = false; ///< eaten in place of the row before it, on other days
};

constexpr auto vollkornbrot = "Weizenvollkornbrote";
constexpr auto milch = "Milch, 1,5 % Fett (fettarme Milch, H-Milch)";

constexpr Tourzeile aufgeschriebenes[] = {
    {0, 0, "Haferflocken", "5 EL"},
    {0, 0, milch, "1/2 Tasse"},
    {0, 0, "Äpfel (Apfel), roh", "1 Stück"},
    {0, 0, "Orangen (Apfelsinen), roh", "1 Stück", true},
    {0, 1, "Joghurt (Naturjoghurts), natur", "1 Becher"},
    {0, 2, "Nudeln (Pasta, Spaghetti), ohne Ei, gekocht", "200"},
    {0, 2, "Brokkoli (Broccoli), gedämpft", "150 g"},
    {0, 2, "Rapsöl (Speiseöle)", "1 EL"},
    {0, 4, vollkornbrot, "2 Scheiben"},
    {0, 4, "Butter", "2 TL"},
    {1, 0, vollkornbrot, "2 Scheiben"},
    {1, 0, "Konfitüren (Marmeladen)", "2 TL"},
    {1, 2, "Kartoffeln (Erdäpfel, Erdapfel), Salzkartoffeln", "250 g"},
    {1, 2, "Hähnchenbrustfilet (Hähnchenbrüste), gebraten", "125 g"},
    {1, 4, "Joghurt (Naturjoghurts), natur", "1 Becher"},
    {2, 0, "Haferflocken", "6 EL"},
    {2, 0, milch, "1 Tasse"},
    {2, 2, "Reis (weißer Reis), roh", "70 g"},
    {2, 2, "Möhren (Karotten, Mohrrüben, Rüebli), gedämpft", "200 g"},
    {2, 4, vollkornbrot, "3 Scheiben"},
};

/// Types into a cell, and leaves it. What was offered below it goes as soon as nothing else is
/// done.
void tippe(Tagesansicht &ansicht, const Tagesmodell::Platz &platz, int spalte, const QString &text)
{
    ansicht.geheZu(platz, spalte);
    ansicht.beginne(text);
    ansicht.beende();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

/// The client at the desk has written three days down; they are typed in, looked at, and go home on
/// paper.
void Rundgang::zeichneAuf()
{
    Tagefenster &fenster = m_oberflaeche.tage.fenster();
    fenster.resize(m_controller.Hauptfenster->size());
    fenster.zeige();
    fenster.neuesProtokoll();
    haltBeiTagen(fenster, QStringLiteral("days-new"), QStringLiteral("Began a record of days."));
    for (const Tourzeile &zeile : aufgeschriebenes) {
        fenster.buch.waehleTag(zeile.tag);
        const auto stelle = static_cast<int>(
            fenster.buch.jetzige()->tage[zeile.tag].mahlzeiten[zeile.mahlzeit].zeilen.size());
        tippe(*fenster.ansicht, {Art::Eingabe, zeile.mahlzeit, stelle}, Tagesmodell::Name,
              localizedString(QString::fromUtf8(zeile.speise)));
        tippe(*fenster.ansicht, {Art::Speise, zeile.mahlzeit, stelle}, Tagesmodell::Angabe,
              QString::fromUtf8(zeile.angabe));
        if (zeile.oder) {
            fenster.wechsleOder();
        }
    }
    fenster.buch.waehleTag(0);
    fenster.ansicht->geheZu({Art::Speise, 0, 0}, Tagesmodell::Name);
    fenster.mahlzeitnotiz->setText(QStringLiteral("7:30"));
    Q_EMIT fenster.mahlzeitnotiz->textEdited(fenster.mahlzeitnotiz->text());
    haltBeiTagen(fenster, QStringLiteral("days-record"),
                 QStringLiteral("Typed in three days of a client:"));

    Tagesauswertungsfenster &auswertung = fenster.auswertungsfenster();
    fenster.zeigeAuswertungsfenster();
    haltBeiTagen(auswertung, QStringLiteral("days-evaluation"),
                 QStringLiteral("The evaluation of the first day."));
    auswertung.close();
    fenster.handzettelDrucken();
    if (auto *frage = fenster.findChild<Handzettelfenster *>()) {
        haltBeiTagen(*frage, QStringLiteral("days-handout"),
                     QStringLiteral("How the handout is to be printed."));
        frage->close();
    }
    fenster.close();
}

/// The pictures tell of the window; the words of the day that is open.
void Rundgang::haltBeiTagen(QWidget &fenster, const QString &name, const QString &worte)
{
    ++m_halt;
    m_bericht << QStringLiteral("%1. %2").arg(m_halt).arg(worte);
    const Tagesmodell &tag = m_oberflaeche.tage.fenster().ansicht->tagesmodell();
    for (int reihe = 0; reihe < tag.rowCount(); ++reihe) {
        const auto text = [&](int spalte) {
            return tag.index(reihe, spalte).data().toString();
        };
        if (tag.zeile(reihe) != nullptr) {
            m_bericht << QStringLiteral("   %1 (%2 g) %3")
                             .arg(text(Tagesmodell::Angabe), text(Tagesmodell::Gramm),
                                  text(Tagesmodell::Name));
        }
    }
    m_bericht << neueMeldungen() << QString();
    bild(fenster, bildname(name));
}
