#include "Rezeptwertung.h"

#include "Wertungserklaerung.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace {

using namespace Qt::StringLiterals;

const QString mitFleisch = u"Gerichte mit Fleisch oder Fisch"_s;
const QString ohneFleisch = u"Gerichte ohne Fleisch"_s;

/// The groups of meat and fish in the food table.
constexpr std::array fleischgruppen = {"Rind- und Kalbfleisch",
                                       "Schweinefleisch",
                                       "Lamm, Pferd und Wild",
                                       "Geflügel und Kaninchen",
                                       "Innereien",
                                       "Wurst und Schinken",
                                       "Fisch",
                                       "Krusten- und Weichtiere",
                                       "Gerichte mit Fleisch oder Fisch"};

constexpr Zweisprachig unsicher = {"Unsicher, weil nicht von allen Zutaten bekannt: %1",
                                   "Uncertain, as not known of all ingredients: %1"};
constexpr Zweisprachig fehlanteil = {"%1 (von %2\u00a0%)", "%1 (of %2\u00a0%)"};

constexpr double kcalJeZucker = 4; // as the rules reckon

/// From there on rule G1 tells plants from other foods, mg of uric acid.
constexpr double vielePurine = 150;

std::size_t ort(Groesse groesse)
{
    return static_cast<std::size_t>(groesse);
}

bool istFleischgruppe(const Lebensmittelgruppe &gruppe)
{
    return std::ranges::any_of(fleischgruppen, [&](const char *name) {
        return QByteArrayView(name) == QByteArrayView(gruppe.name);
    });
}

/// What of a food no record and no further table tells, per 100 g.
struct Anteile
{
    Stoffangabe freierZucker = {.wert = 0, .unbekannt = 1};
    Stoffangabe fruktosezucker = {.wert = 0, .unbekannt = 1};
    Stoffangabe harnsaeure = {.wert = 0, .unbekannt = 1};
    double anderePurine = 0; ///< of the uric acid what comes from other foods than plants
};

/// The line of the food table with what is known of it; what is unknown reads 0.
Tabellenzeile tabellenzeile(const Datenmodul &satz, const Zusatzwerte &zusatz)
{
    Tabellenzeile zeile;
    zeile.gruppe = zusatz.gruppe;
    for (const Naehrwertbeschreibung &eine : naehrwerte) {
        zeile.werte[stelle(eine.wert)] = static_cast<double>(satz.wert(eine.wert));
    }
    zeile.zucker = zusatz.zucker.value_or(0);
    zeile.verzehrfertig = zusatz.verzehrfertig;
    zeile.harnsaeure = zusatz.harnsaeure;
    zeile.purinklasse = zusatz.purinklasse;
    zeile.merkmale = zusatz.merkmale;
    zeile.zuckerart = zusatz.zuckerart;
    return zeile;
}

/// The rules speak of 100 g ready to eat, a recipe of 100 g as they go into the pot.
Anteile tabellenanteile(const Datenmodul &satz, const Zusatzwerte &zusatz)
{
    const Wertungsgroessen food = wertungsgroessen(tabellenzeile(satz, zusatz));
    const double verzehrfertig = zusatz.verzehrfertig / 100;
    Anteile anteile;
    if (zusatz.zucker) {
        anteile.freierZucker = {food.zahl(Groesse::FreierZucker) * verzehrfertig, 0};
        anteile.fruktosezucker = {food.zahl(Groesse::Fruktosezucker) * verzehrfertig, 0};
    }
    if (zusatz.harnsaeure || zusatz.purinklasse) {
        anteile.harnsaeure = {food.zahl(Groesse::Harnsaeure) * verzehrfertig, 0};
        anteile.anderePurine =
            food.merkmale.testFlag(Merkmal::Pflanzlich) ? 0 : anteile.harnsaeure.wert;
    }
    return anteile;
}

/// Adds up amounts in grams of which each part is more or less known.
void zaehleZu(Stoffangabe &summe, const Stoffangabe &je100g, double gramm)
{
    summe.wert += je100g.wert * gramm / 100;
    summe.unbekannt += je100g.unbekannt * gramm;
}

Stoffangabe je100g(const Stoffangabe &summe, double roh, double fertig)
{
    return {summe.wert / fertig * 100, summe.unbekannt / roh};
}

/// Adds up the parts. A dish that has come up already is not asked again, so that a circle ends.
Anteile gerichtsanteile(const Rezept &rezept, const Stoffwissen &wissen, Rezepte andere)
{
    andere.remove(rezept.schluessel);
    Anteile summe = {.freierZucker = {}, .fruktosezucker = {}, .harnsaeure = {}};
    for (const Rezeptzutat &zutat : rezept.zutaten) {
        Anteile anteile;
        const auto gericht = andere.constFind(zutat.schluessel);
        if (const Zusatzwerte *zusatz = wissen.zusatz(zutat.schluessel)) {
            anteile = tabellenanteile(zutat.satz, *zusatz);
        } else if (gericht != andere.cend() && wissen.istGericht(zutat.schluessel) &&
                   rezeptwerte(*gericht, wissen)) {
            anteile = gerichtsanteile(*gericht, wissen, andere);
        }
        zaehleZu(summe.freierZucker, anteile.freierZucker, zutat.gramm);
        zaehleZu(summe.fruktosezucker, anteile.fruktosezucker, zutat.gramm);
        zaehleZu(summe.harnsaeure, anteile.harnsaeure, zutat.gramm);
        summe.anderePurine += anteile.anderePurine * zutat.gramm / 100;
    }
    const double roh = rohgewicht(rezept);
    const double fertig = fertiggewicht(rezept);
    return {je100g(summe.freierZucker, roh, fertig), je100g(summe.fruktosezucker, roh, fertig),
            je100g(summe.harnsaeure, roh, fertig), summe.anderePurine / fertig * 100};
}

bool enthaeltFleisch(const Rezept &rezept, const Stoffwissen &wissen, Rezepte andere)
{
    andere.remove(rezept.schluessel);
    return std::ranges::any_of(rezept.zutaten, [&](const Rezeptzutat &zutat) {
        if (const Zusatzwerte *zusatz = wissen.zusatz(zutat.schluessel)) {
            return istFleischgruppe(*zusatz->gruppe);
        }
        const auto gericht = andere.constFind(zutat.schluessel);
        return gericht != andere.cend() && wissen.istGericht(zutat.schluessel) &&
               istFleischgruppe(gruppeVon(*gericht, wissen, andere));
    });
}

/// What a dish holds of what a rule asks for.
struct Herkunft
{
    Groesse groesse;
    Kenngroesse kenngroesse;
};
constexpr std::array direkte = {
    Herkunft{Groesse::Energie, Kenngroesse::kal},
    Herkunft{Groesse::Fett, Kenngroesse::fett},
    Herkunft{Groesse::Gesaettigt, Kenngroesse::gesaettigt},
    Herkunft{Groesse::Kohlenhydrate, Kenngroesse::kh},
    Herkunft{Groesse::Ballaststoffe, Kenngroesse::bs},
    Herkunft{Groesse::Zucker, Kenngroesse::zucker},
    Herkunft{Groesse::Cholesterin, Kenngroesse::chol},
    Herkunft{Groesse::Natrium, Kenngroesse::na},
    Herkunft{Groesse::Alkohol, Kenngroesse::alkohol},
};

/// What is worked out from two others, the first times a factor by the second.
struct Verhaeltnis
{
    Groesse groesse;
    Groesse zaehler;
    Groesse nenner;
    double faktor;
};
constexpr std::array verhaeltnisse = {
    Verhaeltnis{Groesse::GesaettigtAnteil, Groesse::Gesaettigt, Groesse::Fett, 100},
    Verhaeltnis{Groesse::KohlenhydrateJeBallaststoff, Groesse::Kohlenhydrate,
                Groesse::Ballaststoffe, 1},
    Verhaeltnis{Groesse::FreierZuckerAnteil, Groesse::FreierZucker, Groesse::Energie,
                100 * kcalJeZucker},
};

void setze(Gerichtsgroessen &gericht, Groesse groesse, const Stoffangabe &angabe)
{
    gericht.groessen.zahlen[ort(groesse)] = angabe.wert;
    gericht.unbekannt[ort(groesse)] = angabe.unbekannt;
    gericht.kannMehr[ort(groesse)] = angabe.unbekannt > 0;
}

/// A figure by another falls when there is more of that one.
void setze(Gerichtsgroessen &gericht, const Verhaeltnis &eines)
{
    const double zaehler = gericht.groessen.zahl(eines.zaehler);
    const double nenner = gericht.groessen.zahl(eines.nenner);
    const double ohneNenner = zaehler > 0 ? std::numeric_limits<double>::infinity() : 0;
    gericht.groessen.zahlen[ort(eines.groesse)] =
        nenner > 0 ? eines.faktor * zaehler / nenner : ohneNenner;
    gericht.unbekannt[ort(eines.groesse)] =
        std::max(gericht.unbekannt[ort(eines.zaehler)], gericht.unbekannt[ort(eines.nenner)]);
    gericht.kannMehr[ort(eines.groesse)] = gericht.kannMehr[ort(eines.zaehler)];
    gericht.kannWeniger[ort(eines.groesse)] = gericht.kannMehr[ort(eines.nenner)];
}

/// Whether something is so, is not, or hangs on what is unknown.
enum class Gewissheit { Nein, Offen, Ja };

Gewissheit gewissheit(const Bedingung &bedingung, const Gerichtsgroessen &gericht)
{
    const bool haeltJetzt = haelt(bedingung, gericht.groessen);
    const bool verlangtViel =
        bedingung.vergleich == Vergleich::Mindestens || bedingung.vergleich == Vergleich::Ueber;
    // More can break what holds by being little, and mend what fails for being little.
    const bool durchMehr = haeltJetzt != verlangtViel;
    const auto stelle = ort(bedingung.groesse);
    if (durchMehr ? gericht.kannMehr[stelle] : gericht.kannWeniger[stelle]) {
        return Gewissheit::Offen;
    }
    return haeltJetzt ? Gewissheit::Ja : Gewissheit::Nein;
}

/// The limits of a rule, with the one that the mark of few free sugars stands for.
std::vector<Bedingung> grenzen(const Wertungsregel &regel, const Gerichtsgroessen &gericht)
{
    std::vector<Bedingung> alle = regel.bedingungen;
    if (regel.verlangt.testFlag(Merkmal::Zuckerarm)) {
        alle.push_back({Groesse::FreierZucker, Vergleich::Hoechstens,
                        zuckerarmgrenze(gericht.groessen.merkmale)});
    }
    return alle;
}

Gewissheit gewissheit(const Wertungsregel &regel, const Gerichtsgroessen &gericht)
{
    const Merkmale merkmale = gericht.groessen.merkmale;
    const Merkmale verlangt = regel.verlangt & ~Merkmale(Merkmal::Zuckerarm);
    if ((merkmale & verlangt) != verlangt || (merkmale & regel.verboten & ~gericht.offen)) {
        return Gewissheit::Nein;
    }
    Gewissheit alle = merkmale & regel.verboten ? Gewissheit::Offen : Gewissheit::Ja;
    for (const Bedingung &bedingung : grenzen(regel, gericht)) {
        alle = std::min(alle, gewissheit(bedingung, gericht));
    }
    return alle;
}

/// Names what is unknown of a figure: of one by another these two, as far as they are.
void nenne(Groesse groesse, const Gerichtsgroessen &gericht, QList<Groesse> &offene)
{
    const auto *eines = std::ranges::find(verhaeltnisse, groesse, &Verhaeltnis::groesse);
    if (eines == verhaeltnisse.end()) {
        offene << groesse;
        return;
    }
    for (const Groesse teil : {eines->zaehler, eines->nenner}) {
        if (gericht.kannMehr[ort(teil)]) {
            offene << teil;
        }
    }
}

/// The figures on which it hangs whether a rule holds.
void nenneOffene(const Wertungsregel &regel, const Gerichtsgroessen &gericht,
                 QList<Groesse> &offene)
{
    if (gericht.groessen.merkmale & regel.verboten) {
        offene << Groesse::Harnsaeure; // the mark of plants goes by the purines
    }
    for (const Bedingung &bedingung : grenzen(regel, gericht)) {
        if (gewissheit(bedingung, gericht) == Gewissheit::Offen) {
            nenne(bedingung.groesse, gericht, offene);
        }
    }
}

/// A part of all in percent; a part that is there never reads 0, nor one that is not all 100.
QString prozent(double anteil, Regelsprache sprache)
{
    const double gerundet = std::clamp(std::round(anteil * 100), 0.0, 100.0);
    if (anteil > 0 && gerundet < 1) {
        return sprache == Regelsprache::Deutsch ? u"weniger als 1"_s : u"less than 1"_s;
    }
    return QString::number(anteil < 1 ? std::min(gerundet, 99.0) : gerundet);
}

} // namespace

Gerichtsgroessen gerichtsgroessen(const Rezept &rezept, const Stoffwissen &wissen,
                                  const Rezepte &andere)
{
    const Rezeptangaben angaben = rezeptwerte(rezept, wissen).angaben;
    const Anteile anteile = gerichtsanteile(rezept, wissen, andere);
    Gerichtsgroessen gericht;
    for (const Herkunft &eine : direkte) {
        setze(gericht, eine.groesse, angaben[stelle(eine.kenngroesse)]);
    }
    setze(gericht, Groesse::FreierZucker, anteile.freierZucker);
    setze(gericht, Groesse::Fruktosezucker, anteile.fruktosezucker);
    setze(gericht, Groesse::Harnsaeure, anteile.harnsaeure);
    for (const Verhaeltnis &eines : verhaeltnisse) {
        setze(gericht, eines);
    }
    Merkmale &merkmale = gericht.groessen.merkmale;
    merkmale = gruppeVon(rezept, wissen, andere).merkmale;
    if (anteile.harnsaeure.wert > vielePurine && anteile.anderePurine <= meisteAnderePurine) {
        gericht.offen.setFlag(Merkmal::Pflanzlich, !merkmale.testFlag(Merkmal::Pflanzlich) &&
                                                       anteile.harnsaeure.unbekannt > 0);
        merkmale.setFlag(Merkmal::Pflanzlich);
    }
    merkmale.setFlag(Merkmal::Zuckerarm, anteile.freierZucker.wert <= zuckerarmgrenze(merkmale));
    return gericht;
}

const Lebensmittelgruppe &gruppenvorschlag(const Rezept &rezept, const Stoffwissen &wissen,
                                           const Rezepte &andere)
{
    return *lebensmittelgruppe(enthaeltFleisch(rezept, wissen, andere) ? mitFleisch : ohneFleisch);
}

const Lebensmittelgruppe &gruppeVon(const Rezept &rezept, const Stoffwissen &wissen,
                                    const Rezepte &andere)
{
    const Lebensmittelgruppe *gewaehlte = lebensmittelgruppe(rezept.gruppe);
    return gewaehlte != nullptr ? *gewaehlte : gruppenvorschlag(rezept, wissen, andere);
}

Wertungsvorschlag wertungsvorschlag(Wertung wertung, const Gerichtsgroessen &gericht)
{
    const Wertungsregel *entscheidende = entscheidendeRegel(wertung, gericht.groessen);
    Wertungsvorschlag vorschlag = {QString::fromLatin1(entscheidende->urteil), {}};
    QList<Groesse> offene;
    bool anderes = false;
    for (const Wertungsregel &regel : wertungsregeln()) {
        const Gewissheit gilt =
            regel.wertung == wertung ? gewissheit(regel, gericht) : Gewissheit::Nein;
        if (gilt == Gewissheit::Nein) {
            continue;
        }
        const bool andersAls = *regel.urteil != *entscheidende->urteil;
        anderes = anderes || andersAls;
        if (gilt == Gewissheit::Ja) {
            break;
        }
        if (andersAls || &regel == entscheidende) {
            nenneOffene(regel, gericht, offene);
        }
    }
    if (anderes) {
        std::ranges::sort(offene);
        offene.erase(std::unique(offene.begin(), offene.end()), offene.end());
        vorschlag.ungewiss = offene;
    }
    return vorschlag;
}

QStringList begruendung(Wertung wertung, const Gerichtsgroessen &gericht, Regelsprache sprache,
                        const QLocale &zahlen)
{
    QStringList zeilen = Wertungserklaerung(wertung, gericht.groessen, sprache, zahlen).zeilen();
    QStringList fehlende;
    for (const Groesse groesse : wertungsvorschlag(wertung, gericht).ungewiss) {
        fehlende << fehlanteil.in(sprache).arg(groessen[ort(groesse)].name.in(sprache),
                                               prozent(gericht.unbekannt[ort(groesse)], sprache));
    }
    if (!fehlende.isEmpty()) {
        zeilen << unsicher.in(sprache).arg(fehlende.join(u", "));
    }
    return zeilen;
}

std::optional<Datenmodul> gerichtssatz(const Rezept &rezept, const Stoffwissen &wissen,
                                       const Rezepte &andere)
{
    const Rezeptergebnis ergebnis = rezeptwerte(rezept, wissen);
    if (!ergebnis) {
        return std::nullopt;
    }
    Datenmodul satz = ergebnis.satz;
    const Gerichtsgroessen gericht = gerichtsgroessen(rezept, wissen, andere);
    for (const Wertungsbeschreibung &eine : wertungen) {
        if (satz.wertung(eine.wertung).isNull()) {
            satz.setWertung(eine.wertung, wertungsvorschlag(eine.wertung, gericht).urteil);
        }
    }
    return satz;
}
