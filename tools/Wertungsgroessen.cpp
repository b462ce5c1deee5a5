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

Merkmale purinmerkmal(Purinklasse klasse)
{
    switch (klasse) {
    case Purinklasse::Niedrig:
        break;
    case Purinklasse::Mittel:
        return Merkmal::PurinMittel;
    case Purinklasse::Hoch:
        return Merkmal::PurinHoch;
    }
    return {};
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
    {Groesse::Energie, "energy", "kcal"},
    {Groesse::Protein, "protein", "g"},
    {Groesse::Fett, "fat", "g"},
    {Groesse::Gesaettigt, "saturated fat", "g"},
    {Groesse::GesaettigtAnteil, "saturated part of the fat", "%"},
    {Groesse::Kohlenhydrate, "available carbohydrate", "g"},
    {Groesse::KohlenhydrateJeBallaststoff, "carbohydrate for each gram of fibre", "g"},
    {Groesse::Ballaststoffe, "fibre", "g"},
    {Groesse::Zucker, "sugars", "g"},
    {Groesse::FreierZucker, "free sugars", "g"},
    {Groesse::FreierZuckerAnteil, "energy from free sugars", "%"},
    {Groesse::Fruktosezucker, "sugars with fructose", "g"},
    {Groesse::Cholesterin, "cholesterol", "mg"},
    {Groesse::Natrium, "sodium", "mg"},
    {Groesse::Alkohol, "alcohol", "g"},
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
    const double zucker =
        zeile.zuckerart == Zuckerart::AlleKohlenhydrate ? kohlenhydrate : zeile.zucker * anteil;
    const double frei = std::max(0.0, zucker - zeile.gruppe->eigenerZucker);

    Wertungsgroessen ergebnis;
    const auto setzen = [&](Groesse groesse, double zahl) {
        ergebnis.zahlen[static_cast<std::size_t>(groesse)] = zahl;
    };
    setzen(Groesse::Energie, energie);
    setzen(Groesse::Protein, wert(Naehrwert::protein));
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

    ergebnis.merkmale =
        zeile.gruppe->merkmale | purinmerkmal(zeile.purin.value_or(zeile.gruppe->purin));
    const bool fluessig = ergebnis.merkmale.testFlag(Merkmal::Fluessig);
    ergebnis.merkmale.setFlag(Merkmal::Zuckerarm,
                              frei <= (fluessig ? zuckerarmFluessig : zuckerarmFest));
    return ergebnis;
}
