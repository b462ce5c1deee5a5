// What is typed into the table of a day.

#include "Tagefenster.h"

#include "Aufzeichnungsaenderung.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>

using Art = Tagesmodell::Art;
using Platz = Tagesmodell::Platz;

namespace {

Aufzeichnungsaenderung::Stelle stelleVon(int tag, const Platz &platz)
{
    return {tag, platz.mahlzeit, platz.zeile};
}

} // namespace

void Tagefenster::nimmAn(const Platz &platz, int spalte, const QString &text,
                         const QString &schluessel, bool weiter)
{
    if (platz.art == Art::Mahlzeit) {
        aendere(QT_TRANSLATE_NOOP("Mahlberg", "Mahlzeit umbenennen"), [&](Aufzeichnung &eine) {
            return mahlzeitname(eine.mahlzeiten[platz.mahlzeit]) != text &&
                   Aufzeichnungsaenderung::benenneMahlzeit(eine, platz.mahlzeit, text);
        });
    } else if (spalte == Tagesmodell::Name) {
        nimmNamen(platz, text, schluessel, weiter);
    } else {
        nimmAngabe(platz, text, weiter);
    }
}

/// A food that is known comes as it is today; what is not known stays as it was typed.
Mahlzeitzeile Tagefenster::zeileFuer(const QString &text, const QString &schluessel) const
{
    const Namenssuchergebnis gefunden = m_tueren.suche(text);
    Mahlzeitzeile zeile;
    zeile.schluessel = schluessel;
    for (const Suchtreffer &treffer : gefunden.treffer) {
        if (zeile.schluessel.isNull() && treffer.anzeige.compare(text, Qt::CaseInsensitive) == 0) {
            zeile.schluessel = treffer.schluessel;
        }
    }
    if (zeile.schluessel.isNull()) {
        zeile.text = text;
    } else if (const Datenmodul *speise = m_tueren.lebensmittel(zeile.schluessel)) {
        zeile.eintrag = *speise;
    }
    return zeile;
}

void Tagefenster::nimmNamen(const Platz &platz, const QString &text, const QString &schluessel,
                            bool weiter)
{
    if (text.isEmpty()) {
        if (weiter && platz.art == Art::Eingabe) {
            geheZuMahlzeit(platz.mahlzeit + 1);
        }
        return;
    }
    Mahlzeitzeile neue = zeileFuer(text, schluessel);
    const Mahlzeitzeile *bisher = ansicht->tagesmodell().zeile(ansicht->tagesmodell().reihe(platz));
    if (bisher == nullptr) {
        aendere(QT_TRANSLATE_NOOP("Mahlberg", "Lebensmittel eintragen"), [&](Aufzeichnung &eine) {
            return Aufzeichnungsaenderung::fuegeEin(eine, stelleVon(buch.tag(), platz), {neue});
        });
    } else if (ansicht->tagesmodell().eingabetext(ansicht->tagesmodell().reihe(platz),
                                                  Tagesmodell::Name) != text ||
               !schluessel.isNull()) {
        neue.angabe = bisher->angabe;
        neue.oder = bisher->oder;
        neue.gramm = m_tueren.gramm(neue.schluessel, neue.angabe);
        aendere(QT_TRANSLATE_NOOP("Mahlberg", "Lebensmittel ändern"), [&](Aufzeichnung &eine) {
            return Aufzeichnungsaenderung::ersetze(eine, stelleVon(buch.tag(), platz), neue);
        });
    }
    if (weiter) {
        ansicht->geheZu({Art::Speise, platz.mahlzeit, platz.zeile}, Tagesmodell::Angabe);
        ansicht->beginne();
    }
}

void Tagefenster::nimmAngabe(const Platz &platz, const QString &text, bool weiter)
{
    const Mahlzeitzeile *bisher = ansicht->tagesmodell().zeile(ansicht->tagesmodell().reihe(platz));
    if (bisher != nullptr && bisher->angabe != text) {
        Mahlzeitzeile neue = *bisher;
        neue.angabe = text;
        neue.gramm = m_tueren.gramm(neue.schluessel, text);
        aendere(QT_TRANSLATE_NOOP("Mahlberg", "Menge ändern"), [&](Aufzeichnung &eine) {
            return Aufzeichnungsaenderung::ersetze(eine, stelleVon(buch.tag(), platz), neue);
        });
    }
    if (weiter) {
        geheZuNaechster(platz);
    }
}

/// The row below; where that is the empty one, the next food is typed at once.
void Tagefenster::geheZuNaechster(const Platz &platz)
{
    const Tagesmodell &modell = ansicht->tagesmodell();
    if (const auto naechster = modell.platz(modell.reihe(platz) + 1)) {
        ansicht->geheZu(*naechster, Tagesmodell::Name);
        if (naechster->art == Art::Eingabe) {
            ansicht->beginne();
        }
    }
}

/// To where the next food of a meal is typed; behind the last meal there is none.
void Tagefenster::geheZuMahlzeit(int mahlzeit)
{
    const std::optional<Aufzeichnung> eine = buch.jetzige();
    if (eine && mahlzeit < eine->mahlzeiten.size()) {
        const qsizetype zeilen = eine->tage[buch.tag()].mahlzeiten[mahlzeit].zeilen.size();
        ansicht->geheZu({Art::Eingabe, mahlzeit, static_cast<int>(zeilen)}, Tagesmodell::Name);
    }
}
