#include "Wertungsgroessen.h"

#include <algorithm>
#include <limits>

namespace {

/// Low in sugars, Regulation (EC) No 1924/2006: g per 100 g of a solid, per 100 ml of a liquid.
constexpr double zuckerarmFest = 5;
constexpr double zuckerarmFluessig = 2.5;

constexpr double kcalJeZucker = 4;

double geteilt(double zaehler, double nenner)
{
    if (nenner > 0) {
        return zaehler / nenner;
    }
    return zaehler > 0 ? std::numeric_limits<double>::infinity() : 0;
}

/// A food without a figure stands in the middle of its class, or above the highest limit, so that
/// the rules on figures decide for it as well.
double harnsaeure(const Tabellenzeile &zeile)
{
    if (zeile.harnsaeure) {
        return *zeile.harnsaeure;
    }
    switch (zeile.purinklasse.value_or(Purinklasse::Niedrig)) {
    case Purinklasse::Niedrig:
        return 25;
    case Purinklasse::Mittel:
        return 100;
    case Purinklasse::Hoch:
        return 200;
    }
    return 0;
}

/// Dairy sugar is lactose, without fructose; whatever fruit and vegetables hold counts in full.
double fruktosezucker(const Tabellenzeile &zeile, double zucker)
{
    if (zeile.zuckerart == Zuckerart::OhneFruktose) {
        return 0;
    }
    const bool milch = zeile.gruppe->merkmale.testFlag(Merkmal::Milchzucker);
    return milch ? std::max(0.0, zucker - zeile.gruppe->eigenerZucker) : zucker;
}

} // namespace

const std::array<Groessenbeschreibung, anzahlGroessen> groessen = {{
    {Groesse::Energie, {"Energie", "energy"}, "kcal"},
    {Groesse::Fett, {"Fett", "fat"}, "g"},
    {Groesse::Gesaettigt, {"gesättigtes Fett", "saturated fat"}, "g"},
    {Groesse::GesaettigtAnteil, {"gesättigter Anteil am Fett", "saturated part of the fat"}, "%"},
    {Groesse::Kohlenhydrate, {"verwertbare Kohlenhydrate", "available carbohydrate"}, "g"},
    {Groesse::KohlenhydrateJeBallaststoff,
     {"Kohlenhydrate je Gramm Ballaststoffe", "carbohydrate for each gram of fibre"},
     "g"},
    {Groesse::Ballaststoffe, {"Ballaststoffe", "fibre"}, "g"},
    {Groesse::Zucker, {"Zucker", "sugars"}, "g"},
    {Groesse::FreierZucker, {"freier Zucker", "free sugars"}, "g"},
    {Groesse::FreierZuckerAnteil, {"Energie aus freiem Zucker", "energy from free sugars"}, "%"},
    {Groesse::Fruktosezucker, {"Zucker mit Fruktose", "sugars with fructose"}, "g"},
    {Groesse::Cholesterin, {"Cholesterin", "cholesterol"}, "mg"},
    {Groesse::Natrium, {"Natrium", "sodium"}, "mg"},
    {Groesse::Alkohol, {"Alkohol", "alcohol"}, "g"},
    {Groesse::Harnsaeure, {"Harnsäure aus Purinen", "uric acid from purines"}, "mg"},
}};

Wertungsgroessen wertungsgroessen(const Tabellenzeile &zeile)
{
    const double anteil = 100 / zeile.verzehrfertig;
    const auto wert = [&](Naehrwert naehrwert) {
        return zeile.wert(naehrwert) * anteil;
    };

    const double energie = wert(Naehrwert::kal);
    const double fett = wert(Naehrwert::fett);
    const double kohlenhydrate = wert(Naehrwert::kh);
    const double gesaettigt = zeile.gesaettigt * anteil;
    const double zucker = zeile.zucker * anteil;
    const double frei = std::max(0.0, zucker - zeile.gruppe->eigenerZucker);

    Wertungsgroessen ergebnis;
    const auto setzen = [&](Groesse groesse, double zahl) {
        ergebnis.zahlen[static_cast<std::size_t>(groesse)] = zahl;
    };
    setzen(Groesse::Energie, energie);
    setzen(Groesse::Fett, fett);
    setzen(Groesse::Gesaettigt, gesaettigt);
    setzen(Groesse::GesaettigtAnteil, 100 * geteilt(gesaettigt, fett));
    setzen(Groesse::Kohlenhydrate, kohlenhydrate);
    setzen(Groesse::KohlenhydrateJeBallaststoff, geteilt(kohlenhydrate, wert(Naehrwert::bs)));
    setzen(Groesse::Ballaststoffe, wert(Naehrwert::bs));
    setzen(Groesse::Zucker, zucker);
    setzen(Groesse::FreierZucker, frei);
    setzen(Groesse::FreierZuckerAnteil, 100 * geteilt(frei * kcalJeZucker, energie));
    setzen(Groesse::Fruktosezucker, fruktosezucker(zeile, zucker));
    setzen(Groesse::Cholesterin, wert(Naehrwert::chol));
    setzen(Groesse::Natrium, wert(Naehrwert::na));
    setzen(Groesse::Alkohol, zeile.alkohol * anteil);
    // A class speaks of the food as it is eaten already.
    setzen(Groesse::Harnsaeure, harnsaeure(zeile) * (zeile.harnsaeure ? anteil : 1));

    ergebnis.purinklasse = zeile.harnsaeure ? std::nullopt : zeile.purinklasse;
    ergebnis.merkmale = zeile.gruppe->merkmale | zeile.merkmale;
    ergebnis.merkmale.setFlag(Merkmal::Zuckerarm, frei <= zuckerarmgrenze(ergebnis.merkmale));
    return ergebnis;
}

double zuckerarmgrenze(Merkmale merkmale)
{
    return merkmale.testFlag(Merkmal::Fluessig) ? zuckerarmFluessig : zuckerarmFest;
}
