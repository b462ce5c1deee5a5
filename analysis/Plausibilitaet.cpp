#include "Plausibilitaet.h"

#include "Skalierung.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace {

constexpr double kcalJeProtein = 4;
constexpr double kcalJeFett = 9;
constexpr double kcalJeKohlenhydrat = 4;
constexpr double kcalJeBallaststoff = 2;
constexpr double kcalJeAlkohol = 7;

/// A label gives whole grams from 10 g on: three of them half a gram wrong make about 9 kcal.
constexpr double energieSpielraum = 10;
constexpr double energieSpielraumAnteil = 0.05;

/// The parts of 100 g, each rounded, may add up to a little more.
constexpr double groessteSumme = 102;

/// Wine, beer and spirits have hardly any protein and fat, in g; what has more is something to eat.
constexpr double naehrstoffeImGetraenk = 2;

/// Below this many mg a fraction is more than a scale for sodium shows, but common for g of salt.
constexpr double kleinesNatrium = 10;

double wert(const Datenmodul &lebensmittel, Naehrwert naehrwert)
{
    return static_cast<double>(lebensmittel.wert(naehrwert));
}

double gewicht(const Datenmodul &lebensmittel)
{
    return wert(lebensmittel, Naehrwert::protein) + wert(lebensmittel, Naehrwert::fett) +
           wert(lebensmittel, Naehrwert::kh) + wert(lebensmittel, Naehrwert::bs);
}

double energieAusNaehrstoffen(const Datenmodul &lebensmittel)
{
    return kcalJeProtein * wert(lebensmittel, Naehrwert::protein) +
           kcalJeFett * wert(lebensmittel, Naehrwert::fett) +
           kcalJeKohlenhydrat * wert(lebensmittel, Naehrwert::kh) +
           kcalJeBallaststoff * wert(lebensmittel, Naehrwert::bs);
}

/// Whether alcohol can be what this much energy comes from: there is room for it, in a drink.
bool kannAlkoholSein(const Datenmodul &lebensmittel, double kilokalorien)
{
    return wert(lebensmittel, Naehrwert::protein) + wert(lebensmittel, Naehrwert::fett) <=
               naehrstoffeImGetraenk &&
           kilokalorien / kcalJeAlkohol <= 100 - gewicht(lebensmittel);
}

std::optional<Bedenken> zurEnergie(const Datenmodul &lebensmittel)
{
    if (gewicht(lebensmittel) == 0) {
        return std::nullopt;
    }
    const double angegeben = wert(lebensmittel, Naehrwert::kal);
    const double errechnet = energieAusNaehrstoffen(lebensmittel);
    const double zuviel = angegeben - errechnet;
    const bool einig = std::abs(zuviel) <=
                       energieSpielraum + energieSpielraumAnteil * std::max(angegeben, errechnet);
    if (einig || (zuviel > 0 && kannAlkoholSein(lebensmittel, zuviel))) {
        return std::nullopt;
    }
    return Bedenken{zuviel > 0 ? Zweifel::EnergieZuGross : Zweifel::EnergieZuKlein, angegeben,
                    errechnet};
}

/// A label names salt as its only mineral; who knows sodium from an analysis knows others too.
bool nenntMineralstoffe(const Datenmodul &lebensmittel)
{
    constexpr std::array mineralstoffe = {Naehrwert::ka, Naehrwert::ca, Naehrwert::ph,
                                          Naehrwert::ma, Naehrwert::fe};
    return std::any_of(mineralstoffe.begin(), mineralstoffe.end(), [&](Naehrwert mineralstoff) {
        return wert(lebensmittel, mineralstoff) != 0;
    });
}

std::optional<Bedenken> zumNatrium(const Datenmodul &lebensmittel)
{
    const double natrium = wert(lebensmittel, Naehrwert::na);
    const double salz = salzAusNatrium(natrium);
    const double rest = gewicht(lebensmittel);
    if (rest <= groessteSumme && rest + salz > groessteSumme) {
        return Bedenken{Zweifel::NatriumZuGross, natrium, salz};
    }
    const bool bruch = natrium < kleinesNatrium && natrium != std::floor(natrium);
    if (bruch && !nenntMineralstoffe(lebensmittel)) {
        return Bedenken{Zweifel::SalzStattNatrium, natrium, natriumAusSalz(natrium)};
    }
    return std::nullopt;
}

} // namespace

QList<Bedenken> bezweifeln(const Datenmodul &lebensmittel)
{
    QList<Bedenken> alle;
    if (const auto energie = zurEnergie(lebensmittel)) {
        alle << *energie;
    }
    if (const double summe = gewicht(lebensmittel); summe > groessteSumme) {
        alle << Bedenken{Zweifel::Ueber100Gramm, summe, 100};
    }
    if (const auto natrium = zumNatrium(lebensmittel)) {
        alle << *natrium;
    }
    return alle;
}
