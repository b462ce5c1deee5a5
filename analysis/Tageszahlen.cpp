#include "Tageszahlen.h"

#include "Bezugswert.h"
#include "Energieanteile.h"

#include <algorithm>

namespace {

using enum Tagesgroesse;

constexpr double tageDerWoche = 7;
constexpr Stoffangabe ungewusst = {.wert = 0, .unbekannt = 1};
constexpr Stoffangabe nichts = {};

/// The most that a class allows, mg of uric acid in 100 g ready to eat; absent where it has no end.
std::optional<double> meisteHarnsaeure(Purinklasse klasse)
{
    switch (klasse) {
    case Purinklasse::Niedrig:
        return 50;
    case Purinklasse::Mittel:
        return 150;
    case Purinklasse::Hoch:
        break;
    }
    return std::nullopt;
}

/// Whether a food is drunk; absent for what is not in the table.
std::optional<bool> istGetraenk(const Speise &speise, const Stoffwissen &wissen)
{
    const Zusatzwerte *const zusatz = wissen.zusatz(speise.schluessel);
    if (zusatz == nullptr) {
        return std::nullopt;
    }
    return (zusatz->gruppe->merkmale | zusatz->merkmale).testFlag(Merkmal::Getraenk);
}

/// The free sugars of a row, g.
Stoffangabe freierZucker(const Speise &speise, const Stoffwissen &wissen)
{
    const Zusatzwerte *const zusatz = wissen.zusatz(speise.schluessel);
    if (zusatz == nullptr || !zusatz->zucker) {
        return ungewusst;
    }
    const double eigener = zusatz->gruppe->eigenerZucker * zusatz->verzehrfertig / 100;
    return {std::max(0.0, *zusatz->zucker - eigener) * zaehlendeGramm(speise) / 100, 0};
}

Tageszahl leereZahl(Tagesgroesse groesse, const Stoffsumme &summe)
{
    return {.groesse = groesse, .unbekannt = summe.unbekannt, .unbekannte = summe.unbekannte};
}

/// A sum as a figure: the known part is the least that it can be.
Tageszahl alsZahl(Tagesgroesse groesse, const Stoffsumme &summe, double faktor = 1)
{
    Tageszahl zahl = leereZahl(groesse, summe);
    zahl.mindestens = summe.wert * faktor;
    if (summe.unbekannt < 1) {
        zahl.wert = zahl.mindestens;
    }
    if (summe.unbekannt == 0) {
        zahl.hoechstens = zahl.mindestens;
    }
    return zahl;
}

/// A part of the energy, in percent, of so many kcal a gram. While some energy is unknown, the true
/// part may be less as well as more.
Tageszahl alsAnteil(Tagesgroesse groesse, const Stoffsumme &summe, double kalorienJeGramm,
                    const Stoffsumme &energie)
{
    Tageszahl zahl = leereZahl(groesse, summe);
    if (energie.wert <= 0) {
        return zahl;
    }
    const double anteil = 100 * summe.wert * kalorienJeGramm / energie.wert;
    if (summe.unbekannt < 1) {
        zahl.wert = anteil;
    }
    if (energie.unbekannt == 0) {
        zahl.mindestens = anteil;
        zahl.hoechstens = summe.unbekannt == 0 ? std::optional(anteil) : std::nullopt;
    }
    return zahl;
}

/// Works the figures out, one after another.
class Tagesrechner
{
public:
    Tagesrechner(const Tagesangaben &angaben, const Stoffwissen &wissen)
        : m_angaben(angaben)
        , m_wissen(wissen)
        , m_energie(summe(Kenngroesse::kal))
    {
    }

    QList<Tageszahl> zahlen() const;

private:
    Stoffsumme summe(Kenngroesse groesse) const
    {
        return summiere(m_angaben.speisen, groesse, m_wissen);
    }
    /// Of the drinks or of the foods only.
    Stoffsumme summe(Kenngroesse groesse, bool getraenke) const;
    Stoffsumme grammMitEnergie() const;
    Tageszahl purine() const;
    QList<Tageszahl> broteinheiten() const;
    Tageszahl alkohol() const;
    Tageszahl energiedichte() const;
    Tageszahl freierZuckerAnteil() const;
    void vergleiche(Tageszahl &zahl) const;

    const Tagesangaben &m_angaben;
    const Stoffwissen &m_wissen;
    Stoffsumme m_energie;
};

Stoffsumme Tagesrechner::summe(Kenngroesse groesse, bool getraenke) const
{
    return summiere(m_angaben.speisen, [&](const Speise &eine) {
        const auto getraenk = istGetraenk(eine, m_wissen);
        if (!getraenk) {
            return ungewusst;
        }
        return *getraenk == getraenke ? stoffangabe(eine, groesse, m_wissen) : nichts;
    });
}

/// The grams of the foods, drinks left out, whose energy is known.
Stoffsumme Tagesrechner::grammMitEnergie() const
{
    return summiere(m_angaben.speisen, [&](const Speise &eine) {
        const auto getraenk = istGetraenk(eine, m_wissen);
        if (!getraenk) {
            return ungewusst;
        }
        const double unbekannt = stoffangabe(eine, Kenngroesse::kal, m_wissen).unbekannt;
        return *getraenk ? nichts : Stoffangabe{zaehlendeGramm(eine) * (1 - unbekannt), unbekannt};
    });
}

Tageszahl Tagesrechner::purine() const
{
    Tageszahl zahl = alsZahl(Purine, summe(Kenngroesse::harnsaeure));
    double rest = 0;
    for (const Speise &eine : m_angaben.speisen) {
        if (zaehlendeGramm(eine) == 0 ||
            stoffangabe(eine, Kenngroesse::harnsaeure, m_wissen).unbekannt == 0) {
            continue;
        }
        const Zusatzwerte *const zusatz = m_wissen.zusatz(eine.schluessel);
        const auto meiste = zusatz != nullptr && zusatz->purinklasse
                                ? meisteHarnsaeure(*zusatz->purinklasse)
                                : std::nullopt;
        if (!meiste) {
            return zahl;
        }
        rest += *meiste * zusatz->verzehrfertig / 100 * zaehlendeGramm(eine) / 100;
    }
    zahl.hoechstens = *zahl.mindestens + rest;
    return zahl;
}

QList<Tageszahl> Tagesrechner::broteinheiten() const
{
    QList<Tageszahl> zahlen = {alsZahl(Broteinheiten, summe(Kenngroesse::broteinheiten))};
    for (const Speisenmahlzeit &eine : m_angaben.mahlzeiten) {
        zahlen << alsZahl(Broteinheiten,
                          summiere(eine.speisen, Kenngroesse::broteinheiten, m_wissen));
        zahlen.last().mahlzeit = eine.name;
    }
    return zahlen;
}

Tageszahl Tagesrechner::alkohol() const
{
    const Stoffsumme alkohol = summe(Kenngroesse::alkohol);
    return m_angaben.ganzerTag ? alsZahl(AlkoholJeWoche, alkohol, tageDerWoche)
                               : alsZahl(Alkohol, alkohol);
}

Tageszahl Tagesrechner::energiedichte() const
{
    const Stoffsumme energie = summe(Kenngroesse::kal, false);
    Tageszahl zahl = leereZahl(Energiedichte, energie);
    const double menge = grammMitEnergie().wert;
    if (menge > 0) {
        zahl.wert = 100 * energie.wert / menge;
    }
    if (energie.unbekannt == 0) {
        zahl.mindestens = zahl.wert;
        zahl.hoechstens = zahl.wert;
    }
    return zahl;
}

Tageszahl Tagesrechner::freierZuckerAnteil() const
{
    const Stoffsumme zucker = summiere(
        m_angaben.speisen, [this](const Speise &eine) { return freierZucker(eine, m_wissen); });
    return alsAnteil(FreierZucker, zucker, KilokalorienJeGramm::kh, m_energie);
}

QList<Tageszahl> Tagesrechner::zahlen() const
{
    QList<Tageszahl> alle = {purine()};
    alle += broteinheiten();
    alle << alkohol() << alsZahl(Wasser, summe(Kenngroesse::wasser))
         << alsZahl(WasserGetraenke, summe(Kenngroesse::wasser, true))
         << alsZahl(WasserSpeisen, summe(Kenngroesse::wasser, false))
         << alsZahl(Salz, summe(Kenngroesse::salz)) << energiedichte()
         << alsAnteil(Gesaettigt, summe(Kenngroesse::gesaettigt), KilokalorienJeGramm::fett,
                      m_energie)
         << alsAnteil(Zucker, summe(Kenngroesse::zucker), KilokalorienJeGramm::kh, m_energie)
         << freierZuckerAnteil();
    for (Tageszahl &eine : alle) {
        vergleiche(eine);
    }
    return alle;
}

/// The limit is compared to six digits that count, as the records have no more.
Grenzurteil urteil(const Grenzwert &grenze, const Tageszahl &zahl)
{
    const auto kleinste =
        zahl.mindestens ? std::optional(sechsstellig(*zahl.mindestens)) : std::nullopt;
    const auto groesste =
        zahl.hoechstens ? std::optional(sechsstellig(*zahl.hoechstens)) : std::nullopt;
    const bool untergrenze = grenze.art == Grenzart::Mindestens;
    const auto haelt = [&grenze](double wert) {
        switch (grenze.art) {
        case Grenzart::Hoechstens:
            return wert <= grenze.wert;
        case Grenzart::Unter:
            return wert < grenze.wert;
        case Grenzart::Mindestens:
            break;
        }
        return wert >= grenze.wert;
    };
    const auto &schlimmste = untergrenze ? kleinste : groesste;
    const auto &beste = untergrenze ? groesste : kleinste;
    if (schlimmste && haelt(*schlimmste)) {
        return Grenzurteil::Gehalten;
    }
    return beste && !haelt(*beste) ? Grenzurteil::Verfehlt : Grenzurteil::Offen;
}

void Tagesrechner::vergleiche(Tageszahl &zahl) const
{
    const Grenzen grenzen = grenzenFuer(zahl.groesse, m_angaben.person);
    zahl.mangel = grenzen.mangel;
    const bool gemessen =
        m_angaben.ganzerTag && zahl.wert && (zahl.groesse != Purine || m_angaben.gicht);
    for (const Grenzwert *eine : grenzen.werte) {
        zahl.grenzen << Grenzvergleich{eine, gemessen ? urteil(*eine, zahl) : Grenzurteil::Keines};
    }
}

} // namespace

QList<Tageszahl> tageszahlen(const Tagesangaben &angaben, const Stoffwissen &wissen)
{
    return Tagesrechner(angaben, wissen).zahlen();
}
