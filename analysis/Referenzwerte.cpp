#include "Referenzwerte.h"

#include "Energieanteile.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace {

using Zeilenauswahl = QList<const Referenzzeile *>;

/// Printed activities lie 0.2 apart. What is farther from all of them than that is no longer near.
constexpr double palschritt = 0.2;
constexpr double palspiel = 1e-6; ///< 1.6 less 1.4 is not 0.2 to the last digit

constexpr double zielspiel = 0.1; ///< around a guiding value that is a single figure

constexpr int ersterMonatDanach = 7; ///< of lactation, after the first six

bool istGrenzart(Referenzart art)
{
    return art == Referenzart::Obergrenze || art == Referenzart::SichereZufuhr ||
           art == Referenzart::KeineObergrenze;
}

bool istZahl(const std::optional<double> &zahl)
{
    return zahl && std::isfinite(*zahl) && *zahl > 0;
}

bool giltImAlter(const Referenzzeile &zeile, int alter)
{
    return alter >= zeile.von && (!zeile.bis || alter <= *zeile.bis);
}

bool hatPhasen(const Zeilenauswahl &zeilen)
{
    return std::ranges::any_of(
        zeilen, [](const Referenzzeile *eine) { return eine->phase != Referenzphase::Immer; });
}

/// Whether a part of pregnancy or lactation is that of the person.
bool trifftZu(Referenzphase phase, const Referenzperson &person)
{
    const int trimester = person.trimester.value_or(0);
    const int monat = person.stillmonat.value_or(0);
    switch (phase) {
    case Referenzphase::Immer:
        return true;
    case Referenzphase::Trimester1:
        return trimester == 1;
    case Referenzphase::Trimester2:
        return trimester == 2;
    case Referenzphase::Trimester3:
        return trimester == 3;
    case Referenzphase::AbTrimester2:
        return trimester == 2 || trimester == 3;
    case Referenzphase::BisMonat6:
        return monat > 0 && monat < ersterMonatDanach;
    case Referenzphase::NachMonat6:
        return monat >= ersterMonatDanach;
    case Referenzphase::VorMenopause:
        return person.nachMenopause == false;
    case Referenzphase::NachMenopause:
        return person.nachMenopause == true;
    }
    return false;
}

Zeilenauswahl zutreffende(const Zeilenauswahl &zeilen, const Referenzperson &person)
{
    Zeilenauswahl auswahl;
    std::ranges::copy_if(zeilen, std::back_inserter(auswahl),
                         [&](const Referenzzeile *eine) { return trifftZu(eine->phase, person); });
    return auswahl;
}

/// The line of the activity next to the person's; of two that are as near the lesser one, so that
/// nobody is told to eat more than is printed. Null without lines.
const Referenzzeile *naechsteImPal(const Zeilenauswahl &zeilen, double pal)
{
    const Referenzzeile *naechste = nullptr;
    double abstand = std::numeric_limits<double>::infinity();
    for (const Referenzzeile *eine : zeilen) {
        const double seiner = std::abs(eine->pal.value_or(pal) - pal);
        const bool gleichNah = naechste != nullptr && std::abs(seiner - abstand) < palspiel;
        if (gleichNah ? eine->pal < naechste->pal : seiner < abstand) {
            naechste = eine;
            abstand = seiner;
        }
    }
    return naechste;
}

/// Looks values up for a person whose sex is settled.
class Nachschlag
{
public:
    Nachschlag(const Zeilenauswahl &zeilen, const Referenzperson &person,
               std::optional<double> energie)
        : m_zeilen(zeilen)
        , m_person(person)
        , m_energie(energie)
    {
    }

    Referenzwert wert() const;
    Referenzwert grenze() const;

private:
    Zeilenauswahl zeilenIm(Referenzzustand zustand, bool grenzen) const;
    Referenzwert ohneZustand() const;
    Referenzwert imZustand() const;
    Referenzwert ausEiner(const Zeilenauswahl &zeilen) const;
    const Referenzzeile *imPal(const Zeilenauswahl &zeilen, Referenzmangel &mangel) const;
    const Referenzzeile *imGewicht(const Zeilenauswahl &zeilen, Referenzmangel &mangel) const;
    std::optional<double> faktor(const Referenzzeile &zeile) const;
    Referenzwert aus(const Referenzzeile &zeile) const;
    Referenzwert mitZuschlag(const Referenzzeile &zeile) const;

    const Zeilenauswahl &m_zeilen; ///< of one set, one nutrient, and the person's sex
    const Referenzperson &m_person;
    std::optional<double> m_energie;
};

Referenzwert lueckenhaft(Referenzmangel mangel)
{
    Referenzwert wert;
    wert.mangel = mangel;
    return wert;
}

/// What the set remarks at a line.
void merke(const Referenzzeile &zeile, Referenzwert &wert)
{
    if (!zeile.notizDe.isEmpty()) {
        wert.notizenDe << zeile.notizDe;
        wert.notizenEn << zeile.notizEn;
    }
}

Zeilenauswahl Nachschlag::zeilenIm(Referenzzustand zustand, bool grenzen) const
{
    Zeilenauswahl auswahl;
    std::ranges::copy_if(m_zeilen, std::back_inserter(auswahl), [&](const Referenzzeile *eine) {
        return eine->zustand == zustand && istGrenzart(eine->art) == grenzen &&
               giltImAlter(*eine, *m_person.alter);
    });
    return auswahl;
}

Referenzwert Nachschlag::wert() const
{
    for (const Referenzzeile *eine : m_zeilen) {
        if (eine->art == Referenzart::KeinWert) {
            Referenzwert keiner = lueckenhaft(Referenzmangel::NichtFestgelegt);
            keiner.quellen = eine->quellen;
            return keiner;
        }
    }
    if (!m_person.alter) {
        return lueckenhaft(Referenzmangel::AlterFehlt);
    }
    return m_person.zustand == Referenzzustand::Keiner ? ohneZustand() : imZustand();
}

Referenzwert Nachschlag::ohneZustand() const
{
    const Zeilenauswahl zeilen = zeilenIm(Referenzzustand::Keiner, false);
    if (zeilen.isEmpty()) {
        return lueckenhaft(Referenzmangel::AlterAusserhalb);
    }
    Zeilenauswahl passende = zutreffende(zeilen, m_person);
    if (passende.isEmpty()) {
        return lueckenhaft(Referenzmangel::MenopauseFehlt);
    }
    // A line for the part of life goes before one for all of it.
    if (hatPhasen(passende)) {
        passende.removeIf(
            [](const Referenzzeile *eine) { return eine->phase == Referenzphase::Immer; });
    }
    return ausEiner(passende);
}

Referenzwert Nachschlag::imZustand() const
{
    const bool schwanger = m_person.zustand == Referenzzustand::Schwanger;
    const Zeilenauswahl zeilen = zeilenIm(m_person.zustand, false);
    if (zeilen.isEmpty()) {
        return lueckenhaft(Referenzmangel::ZustandOhneWert);
    }
    if (hatPhasen(zeilen) && !(schwanger ? m_person.trimester : m_person.stillmonat)) {
        return lueckenhaft(schwanger ? Referenzmangel::TrimesterFehlt
                                     : Referenzmangel::StillmonatFehlt);
    }
    const Zeilenauswahl passende = zutreffende(zeilen, m_person);
    if (passende.isEmpty() && !schwanger) {
        return lueckenhaft(Referenzmangel::StillmonatAusserhalb);
    }
    if (passende.isEmpty()) {
        Referenzwert wert = ohneZustand();
        wert.wieNichtSchwanger = wert.art.has_value();
        return wert;
    }
    if (passende.first()->einheit == Referenzeinheit::Zuschlag) {
        return mitZuschlag(*naechsteImPal(passende, m_person.pal.value_or(0)));
    }
    return ausEiner(passende);
}

/// The figures of that one of several lines which has the person's activity or weight.
Referenzwert Nachschlag::ausEiner(const Zeilenauswahl &zeilen) const
{
    Referenzmangel mangel = Referenzmangel::Keiner;
    const Referenzzeile *zeile =
        zeilen.first()->pal ? imPal(zeilen, mangel) : imGewicht(zeilen, mangel);
    return zeile != nullptr ? aus(*zeile) : lueckenhaft(mangel);
}

const Referenzzeile *Nachschlag::imPal(const Zeilenauswahl &zeilen, Referenzmangel &mangel) const
{
    if (!istZahl(m_person.pal)) {
        mangel = Referenzmangel::PalFehlt;
        return nullptr;
    }
    const Referenzzeile *zeile = naechsteImPal(zeilen, *m_person.pal);
    if (std::abs(zeile->pal.value_or(*m_person.pal) - *m_person.pal) > palschritt + palspiel) {
        mangel = Referenzmangel::PalAusserhalb;
        return nullptr;
    }
    return zeile;
}

/// What counts each kilogram goes before what the set has for a weight of its own.
const Referenzzeile *Nachschlag::imGewicht(const Zeilenauswahl &zeilen,
                                           Referenzmangel &mangel) const
{
    const bool gewogen = istZahl(m_person.gewicht);
    const auto jeKilogramm = [](const Referenzzeile *eine) {
        return eine->einheit == Referenzeinheit::JeKilogramm;
    };
    const auto gesuchte = std::ranges::find_if(
        zeilen, [&](const Referenzzeile *eine) { return jeKilogramm(eine) == gewogen; });
    if (gesuchte != zeilen.end()) {
        return *gesuchte;
    }
    if (gewogen) {
        return zeilen.first();
    }
    mangel = Referenzmangel::GewichtFehlt;
    return nullptr;
}

/// By what the figures of a line come to amounts of the person's day; absent where that is not
/// known.
std::optional<double> Nachschlag::faktor(const Referenzzeile &zeile) const
{
    switch (zeile.einheit) {
    case Referenzeinheit::JeKilogramm:
        return m_person.gewicht;
    case Referenzeinheit::JeMegajoule:
        return m_energie ? std::optional(*m_energie / kcalJeMegajoule) : std::nullopt;
    case Referenzeinheit::Energieanteil: {
        const double jeGramm =
            zeile.wert == Naehrwert::fett ? KilokalorienJeGramm::fett : KilokalorienJeGramm::kh;
        return m_energie ? std::optional(*m_energie / 100 / jeGramm) : std::nullopt;
    }
    default:
        return 1;
    }
}

/// The figures of a line, worked out for the person.
Referenzwert Nachschlag::aus(const Referenzzeile &zeile) const
{
    Referenzwert wert;
    wert.einheit = zeile.einheit;
    wert.gedrucktUnten = zeile.unten;
    wert.gedrucktOben = zeile.oben;
    wert.vorbehalt = zeile.vorbehalt;
    wert.quellen = zeile.quellen;
    merke(zeile, wert);
    wert.pal = zeile.pal;
    wert.palGenaehert = zeile.pal && std::abs(*zeile.pal - m_person.pal.value_or(0)) > palspiel;
    const std::optional<double> mal = faktor(zeile);
    if (!mal) {
        wert.mangel = Referenzmangel::EnergieFehlt;
        return wert;
    }
    wert.art = zeile.art;
    wert.unten = *zeile.unten * *mal;
    if (zeile.oben) {
        wert.oben = *zeile.oben * *mal;
    }
    if (zeile.einheit == Referenzeinheit::JeKilogramm) {
        wert.gewicht = mal;
    } else if (zeile.einheit == Referenzeinheit::Energieanteil ||
               zeile.einheit == Referenzeinheit::JeMegajoule) {
        wert.energie = m_energie;
        wert.eigeneEnergie = istZahl(m_person.energiebedarf);
    }
    return wert;
}

/// The value of a woman who is neither pregnant nor lactating, and what comes on top of it.
Referenzwert Nachschlag::mitZuschlag(const Referenzzeile &zeile) const
{
    Referenzwert wert = ohneZustand();
    if (!wert.art) {
        return wert;
    }
    wert.zuschlag = zeile.unten;
    *wert.unten += *zeile.unten;
    if (wert.oben) {
        *wert.oben += *zeile.unten;
    }
    if (zeile.pal != wert.pal) {
        wert.zuschlagspal = zeile.pal;
    }
    for (const QString &quelle : zeile.quellen) {
        if (!wert.quellen.contains(quelle)) {
            wert.quellen << quelle;
        }
    }
    merke(zeile, wert);
    return wert;
}

/// Only the limit is filled. That there is none is said of all women at once.
Referenzwert Nachschlag::grenze() const
{
    Referenzwert wert;
    if (!m_person.alter) {
        return wert;
    }
    Zeilenauswahl zeilen = zeilenIm(m_person.zustand, true);
    if (zeilen.isEmpty()) {
        zeilen = zeilenIm(Referenzzustand::Keiner, true);
        zeilen.removeIf(
            [](const Referenzzeile *eine) { return eine->art != Referenzart::KeineObergrenze; });
    }
    if (!zeilen.isEmpty()) {
        const Referenzzeile &zeile = *zeilen.first();
        wert.grenzart = zeile.art;
        wert.grenze = zeile.oben;
        wert.grenzvorbehalt = zeile.vorbehalt;
        wert.grenzquellen = zeile.quellen;
    }
    return wert;
}

/// Looks values up for a person; where the sex is not known, what is the same for both.
class Satznachschlag
{
public:
    Satznachschlag(const Referenzzeilen &zeilen, Referenzsatz satz, const Referenzperson &person)
        : m_zeilen(zeilen)
        , m_satz(satz)
        , m_person(person)
    {
        if (m_person.zustand != Referenzzustand::Keiner && !m_person.geschlecht) {
            m_person.geschlecht = Referenzgeschlecht::Frau;
        }
        if (m_person.trimester < 1 || m_person.trimester > 3) {
            m_person.trimester.reset();
        }
        if (m_person.stillmonat < 1) {
            m_person.stillmonat.reset();
        }
    }

    Referenzwert lies(Naehrwert welcher, std::optional<double> energie) const;

private:
    using Frage = Referenzwert (Nachschlag::*)() const;
    Referenzwert frage(Naehrwert welcher, std::optional<double> energie, Frage was,
                       Referenzmangel beiUnterschied) const;

    const Referenzzeilen &m_zeilen;
    Referenzsatz m_satz;
    Referenzperson m_person;
};

Referenzwert Satznachschlag::frage(Naehrwert welcher, std::optional<double> energie, Frage was,
                                   Referenzmangel beiUnterschied) const
{
    const auto fuer = [&](Referenzgeschlecht geschlecht) {
        Zeilenauswahl seine;
        for (const Referenzzeile &eine : m_zeilen) {
            if (eine.satz == m_satz && eine.wert == welcher && eine.geschlecht == geschlecht) {
                seine << &eine;
            }
        }
        return (Nachschlag(seine, m_person, energie).*was)();
    };
    if (m_person.geschlecht) {
        return fuer(*m_person.geschlecht);
    }
    Referenzwert wert = fuer(Referenzgeschlecht::Frau);
    return wert == fuer(Referenzgeschlecht::Mann) ? wert : lueckenhaft(beiUnterschied);
}

Referenzwert Satznachschlag::lies(Naehrwert welcher, std::optional<double> energie) const
{
    Referenzwert wert = frage(welcher, energie, &Nachschlag::wert, Referenzmangel::GeschlechtFehlt);
    const Referenzwert grenze =
        frage(welcher, energie, &Nachschlag::grenze, Referenzmangel::Keiner);
    wert.wert = welcher;
    wert.grenzart = grenze.grenzart;
    wert.grenze = grenze.grenze;
    wert.grenzvorbehalt = grenze.grenzvorbehalt;
    wert.grenzquellen = grenze.grenzquellen;
    return wert;
}

/// The ends that an amount of the food table is held against.
Zielbereich zielbereich(const Referenzwert &wert)
{
    Zielbereich ziel{kenngroesse(wert.wert), {}, {}, {}};
    if (wert.grenzeGiltFuerTabelle()) {
        ziel.obergrenze = wert.grenze;
    }
    if (wert.wert == Naehrwert::na) {
        // Nobody is told to eat more salt; what a set calls safe should not be passed.
        ziel.oben = wert.vorbehalt == Referenzvorbehalt::Sicher ? wert.oben : std::nullopt;
    } else if (wert.art == Referenzart::Mittelwert || wert.art == Referenzart::Richtwert) {
        const bool punkt = wert.unten == wert.oben;
        ziel.unten = punkt ? *wert.unten * (1 - zielspiel) : wert.unten;
        ziel.oben = punkt ? *wert.oben * (1 + zielspiel) : wert.oben;
    } else {
        ziel.unten = wert.unten;
    }
    return ziel;
}

} // namespace

Referenzwerte referenzwerte(const Referenzzeilen &zeilen, Referenzsatz satz,
                            const Referenzperson &person)
{
    const Satznachschlag nachschlag(zeilen, satz, person);
    Referenzwerte ergebnis = {.satz = satz, .person = person};
    std::optional<double> energie;
    if (istZahl(person.energiebedarf)) {
        energie = person.energiebedarf;
    } else {
        energie = nachschlag.lies(Naehrwert::kal, {}).unten;
    }
    for (const Naehrwertbeschreibung &eine : naehrwerte) {
        ergebnis.werte[stelle(eine.wert)] = nachschlag.lies(eine.wert, energie);
    }
    return ergebnis;
}

Zielbereiche zielbereiche(const Referenzwerte &werte)
{
    Zielbereiche ziele;
    for (const Referenzwert &wert : werte.werte) {
        const Zielbereich ziel = zielbereich(wert);
        if (ziel.unten || ziel.oben || ziel.obergrenze) {
            ziele << ziel;
        }
    }
    return ziele;
}
