#include "Bezugswert.h"

#include <array>
#include <cmath>

using enum Kenngroesse;
using enum Richtung;

namespace {

struct Richtungszeile
{
    Kenngroesse groesse;
    Richtung richtung;
};

/// What grown-ups are told to eat more or less of; docs/ranking.md names who says so. Where a
/// figure is good for one and bad for another, or good up to a point that foods pass, there is
/// none.
constexpr std::array<Richtungszeile, anzahlKenngroessen> richtungen = {{
    {kal, Keine},                   // wanted by who is too thin, not by who is too heavy
    {protein, Keine},               // more for the old, less for some with weak kidneys
    {fett, Keine},                  // its kind matters, not how much it is
    {kh, Keine},                    // what comes with it matters
    {bs, MehrIstBesser},            // most people eat less than is adequate
    {chol, WenigerIstBesser},       // the body makes its own; no amount is needed
    {na, WenigerIstBesser},         // raises blood pressure; most people eat too much
    {ka, MehrIstBesser},            // lowers blood pressure
    {ca, MehrIstBesser},            // for the bones; no usual food holds too much
    {ph, Keine},                    // nobody lacks it, and weak kidneys can't get rid of it
    {ma, MehrIstBesser},            // no usual food holds too much
    {fe, MehrIstBesser},            // women often lack it
    {vita, Keine},                  // liver holds more than is safe, above all in pregnancy
    {b1, MehrIstBesser},            // what is too much leaves the body
    {b2, MehrIstBesser},            // the same
    {b6, MehrIstBesser},            // foods alone don't come near the upper level
    {vitc, MehrIstBesser},          // what is too much leaves the body
    {zucker, WenigerIstBesser},     // rated so on packages, whatever kind of sugar it is
    {gesaettigt, WenigerIstBesser}, // rated so on packages
    {alkohol, WenigerIstBesser},    // no amount is without risk
    {wasser, Keine},                // dry foods are no worse for it, they are eaten by less
    {harnsaeure, WenigerIstBesser}, // only ever limited, never recommended
    {salz, WenigerIstBesser},       // it is sodium, told in another way
    {broteinheiten, Keine},         // it is carbohydrate, told in another way
}};

bool istPortion(const std::optional<double> &portion)
{
    return portion && std::isfinite(*portion) && *portion > 0;
}

/// How many times 100 g that is; absent where it can't be told.
std::optional<double> hundertgramm(const Kandidat &kandidat, Bezug bezug, const Stoffwissen &wissen)
{
    if (bezug == Bezug::JePortion) {
        return *kandidat.portion / 100;
    }
    if (bezug == Bezug::Je100g) {
        return 1;
    }
    const Stoffangabe energie = wissen.je100g(kandidat.schluessel, kandidat.satz, kal);
    return energie.unbekannt > 0 || energie.wert <= 0 ? std::nullopt
                                                      : std::optional(100 / energie.wert);
}

} // namespace

Bezugswert bezugswert(const Kandidat &kandidat, Kenngroesse groesse, Bezug bezug,
                      const Stoffwissen &wissen)
{
    using enum Bezugswert::Stand;
    const Stoffangabe je100g = wissen.je100g(kandidat.schluessel, kandidat.satz, groesse);
    if (je100g.istUnbekannt()) {
        return {};
    }
    if (bezug == Bezug::JePortion && !istPortion(kandidat.portion)) {
        return {OhnePortion, 0};
    }
    const std::optional<double> faktor = hundertgramm(kandidat, bezug, wissen);
    const double wert = faktor ? sechsstellig(je100g.wert * *faktor) : NAN;
    if (!std::isfinite(wert)) {
        return {};
    }
    return {je100g.unbekannt > 0 ? Mindestens : Bekannt, wert};
}

double sechsstellig(double zahl)
{
    constexpr double hintereErster = 5;
    const double stufe = std::pow(10, hintereErster - std::floor(std::log10(std::fabs(zahl))));
    // There is none of 0, of what is endless, and of numbers too small to be written so.
    return std::isfinite(stufe) && stufe > 0 ? std::round(zahl * stufe) / stufe : zahl;
}

Richtung richtung(Kenngroesse groesse)
{
    return richtungen[stelle(groesse)].richtung;
}
