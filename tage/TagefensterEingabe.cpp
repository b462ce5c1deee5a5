// What is typed into the table of a day.

#include "Tagefenster.h"

#include "Aufzeichnungsaenderung.h"
#include "Mengenvorschlag.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>

#include <algorithm>

using Art = Tagesmodell::Art;
using Platz = Tagesmodell::Platz;

namespace {

const QString hinweisEingabe = QStringLiteral("eingabe");

Regelsprache sprache()
{
    return QLocale().language() == QLocale::English ? Regelsprache::Englisch
                                                    : Regelsprache::Deutsch;
}

/// 0 for a name that is the text, 1 for one that begins with it, 2 for others.
int naehe(const QString &name, const QString &text)
{
    return name.compare(text, Qt::CaseInsensitive) == 0 ? 0
           : name.startsWith(text, Qt::CaseInsensitive) ? 1
                                                        : 2;
}

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
        nimmAngabe(platz, schluessel.isNull() ? text : schluessel, weiter);
    }
}

/// Foods as the search by name finds them, those first that are called so or begin so: they need
/// the fewest letters. Amounts with the measures of the row's food.
QList<Vorschlagsfeld::Vorschlag> Tagefenster::vorschlaege(int reihe, int spalte,
                                                          const QString &text) const
{
    QList<Vorschlagsfeld::Vorschlag> alle;
    const Mahlzeitzeile *zeile = ansicht->tagesmodell().zeile(reihe);
    const auto platz = ansicht->tagesmodell().platz(reihe);
    if (spalte == Tagesmodell::Angabe && zeile != nullptr && !zeile->schluessel.isNull()) {
        for (const Mengenvorschlag &einer :
             mengenvorschlaege(text, m_tueren.masse(zeile->schluessel), sprache())) {
            alle << Vorschlagsfeld::Vorschlag{einer.anzeige, einer.angabe};
        }
    } else if (spalte == Tagesmodell::Name && platz && platz->art != Art::Mahlzeit) {
        for (const Suchtreffer &treffer : m_tueren.suche(text).treffer) {
            alle << Vorschlagsfeld::Vorschlag{treffer.anzeige, treffer.schluessel};
        }
        std::stable_sort(alle.begin(), alle.end(), [&](const auto &einer, const auto &anderer) {
            return naehe(einer.anzeige, text) < naehe(anderer.anzeige, text);
        });
    }
    return alle;
}

/// What is not understood stays as it was typed, and counts nothing.
void Tagefenster::setzeAngabe(Mahlzeitzeile &zeile, const QString &text) const
{
    const QList<Mass> masse =
        zeile.schluessel.isNull() ? QList<Mass>() : m_tueren.masse(zeile.schluessel);
    const Mengenergebnis ergebnis = leseMenge(text, masse);
    zeile.angabe = behalteneAngabe(text, masse, sprache());
    zeile.gramm = ergebnis.angabe ? std::optional(ergebnis.angabe->gramm) : std::nullopt;
}

/// Says at once why a row will not count; a mark in the table alone is soon overlooked.
void Tagefenster::sageUnverstandenes(const Mahlzeitzeile &zeile)
{
    QString text;
    if (!zeile.eintrag) {
        text = localizedString(
                   QStringLiteral("Ein Lebensmittel „%1“ gibt es nicht. Die Zeile zählt nicht."))
                   .arg(kurzerName(zeile.text));
    } else if (!zeile.gramm && !zeile.angabe.isEmpty()) {
        const Mengenergebnis ergebnis = leseMenge(zeile.angabe, m_tueren.masse(zeile.schluessel));
        text = localizedString(QStringLiteral("„%1“: %2 Die Zeile zählt nicht."))
                   .arg(kurzerName(zeile.angabe),
                        fehlertext(ergebnis.fehler.value_or(Mengenangabe::Fehler::KeineZahl)));
    }
    if (text.isEmpty()) {
        hinweise->nimmZurueck(hinweisEingabe);
    } else {
        hinweise->zeige({.kennung = hinweisEingabe, .text = text});
    }
}

/// A food that is known comes as it is today; what is not known stays as it was typed.
Mahlzeitzeile Tagefenster::zeileFuer(const QString &text, const QString &schluessel) const
{
    Mahlzeitzeile zeile;
    zeile.schluessel = schluessel;
    const Namenssuchergebnis gefunden =
        schluessel.isNull() ? m_tueren.suche(text) : Namenssuchergebnis();
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
        setzeAngabe(neue, bisher->angabe);
        neue.oder = bisher->oder;
        aendere(QT_TRANSLATE_NOOP("Mahlberg", "Lebensmittel ändern"), [&](Aufzeichnung &eine) {
            return Aufzeichnungsaenderung::ersetze(eine, stelleVon(buch.tag(), platz), neue);
        });
    }
    sageUnverstandenes(neue);
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
        setzeAngabe(neue, text);
        aendere(QT_TRANSLATE_NOOP("Mahlberg", "Menge ändern"), [&](Aufzeichnung &eine) {
            return Aufzeichnungsaenderung::ersetze(eine, stelleVon(buch.tag(), platz), neue);
        });
        sageUnverstandenes(neue);
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

/// To where the next food of a meal is typed; behind the last meal comes the next day.
void Tagefenster::geheZuMahlzeit(int mahlzeit)
{
    const std::optional<Aufzeichnung> eine = buch.jetzige();
    if (eine && mahlzeit < eine->mahlzeiten.size()) {
        const qsizetype zeilen = eine->tage[buch.tag()].mahlzeiten[mahlzeit].zeilen.size();
        ansicht->geheZu({Art::Eingabe, mahlzeit, static_cast<int>(zeilen)}, Tagesmodell::Name);
    } else if (eine && buch.tag() + 1 < eine->tage.size()) {
        naechsterTag();
        geheZuMahlzeit(0);
    }
}

/// A food with the amount that one has of it as a rule.
Mahlzeitzeile Tagefenster::uebliche(const QString &schluessel) const
{
    Mahlzeitzeile zeile;
    zeile.schluessel = schluessel;
    if (const Datenmodul *speise = m_tueren.lebensmittel(schluessel)) {
        zeile.eintrag = *speise;
    }
    const QList<Mass> masse = m_tueren.masse(schluessel);
    setzeAngabe(zeile, masse.isEmpty() ? QStringLiteral("100 g") : u'1' + (u' ' + masse[0].eines));
    return zeile;
}

QString Tagefenster::gibHinein(const QString &schluessel)
{
    ansicht->beende();
    const std::optional<Aufzeichnung> eine = buch.jetzige();
    if (!eine || m_tueren.lebensmittel(schluessel) == nullptr) {
        return {};
    }
    const int mahlzeit = ansicht->platz().value_or(Platz{}).mahlzeit;
    const auto ende = static_cast<int>(eine->tage[buch.tag()].mahlzeiten[mahlzeit].zeilen.size());
    const Mahlzeitzeile neue = uebliche(schluessel);
    if (!aendere(QT_TRANSLATE_NOOP("Mahlberg", "Lebensmittel eintragen"), [&](Aufzeichnung &was) {
            return Aufzeichnungsaenderung::fuegeEin(was, {buch.tag(), mahlzeit, ende}, {neue});
        })) {
        return {};
    }
    ansicht->geheZu({Art::Speise, mahlzeit, ende}, Tagesmodell::Angabe);
    return QStringLiteral("%1, %2, %3")
        .arg(tagesname(*eine, buch.tag()), mahlzeitname(eine->mahlzeiten[mahlzeit]), neue.angabe);
}
