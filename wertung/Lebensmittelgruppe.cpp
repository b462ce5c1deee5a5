#include "Lebensmittelgruppe.h"

using enum Merkmal;

namespace {

/// Groups in which every sugar is the food's own.
constexpr double aller = 100;
/// Milk holds not quite 5 g of lactose in 100 g, soured and fresh-cheese products up to 6 g.
constexpr double inMilch = 5;
constexpr double inQuark = 6;

constexpr Merkmale trank = Getraenk | Fluessig;

} // namespace

const std::vector<Lebensmittelgruppe> &lebensmittelgruppen()
{
    // The limits of the vitamins: what the richest unfortified foods of the group hold in the
    // source, rounded up.
    static const std::vector<Lebensmittelgruppe> gruppen = {
        {"Brot und Brötchen", {}, 0, {250, 0.6, 0.5, 0.6, 5}},
        {"Flocken und Müsli", Pflanzlich, 0, {30, 2.5, 0.6, 1.2, 15}},
        {"Mehl und Teig", {}, 0, {300, 1, 0.5, 1, 2}},
        {"Getreide, Reis und Nudeln", Beilage, 0, {120, 0.8, 0.5, 0.8, 6}},
        {"Kartoffeln", Beilage, aller, {120, 0.3, 0.5, 0.8, 30}},
        {"Hülsenfrüchte", Beilage | Pflanzlich, aller, {70, 1.2, 0.6, 1.2, 40}},
        {"Gemüse", Pflanzlich, aller, {1500, 0.7, 0.5, 1.3, 170}},
        {"Pilze", Pflanzlich, aller, {120, 0.4, 1.1, 0.2, 10}},
        {"Kräuter, Gewürze und Zutaten", Gewuerz, aller, {1000, 0.7, 0.6, 2, 200}},
        {"Hefe", {}, 0, {5, 12.5, 5, 5, 1}},
        {"Obst", Pflanzlich, aller, {500, 0.15, 0.15, 0.4, 220}},
        {"Obstkonserven und Kompott", {}, 0, {200, 0.1, 0.1, 0.15, 30}},
        {"Trockenobst", Pflanzlich, 0, {550, 0.25, 0.3, 1, 40}},
        {"Nüsse und Samen", Fettquelle | Pflanzlich, aller, {50, 1.6, 1.3, 1, 10}},
        {"Eier", {}, 0, {500, 0.25, 0.6, 0.4, 0}},
        {"Milch und Sahne", Fluessig | Milchzucker, inMilch, {480, 0.4, 2.3, 0.4, 12}},
        {"Joghurt und Quark", Milchzucker, inQuark, {180, 0.1, 0.5, 0.2, 15}},
        {"Käse", Milchzucker, inQuark, {550, 0.15, 1, 0.5, 1}},
        {"Fette und Öle", Fettquelle, 0, {1000, 0.1, 0.1, 0.1, 0}},
        {"Suppen und Soßen", {}, 0, {320, 0.3, 0.3, 0.4, 100}},
        {"Rind- und Kalbfleisch", RotesFleisch, 0, {60, 0.4, 0.5, 1, 1}},
        {"Schweinefleisch", RotesFleisch, 0, {60, 1.2, 0.5, 1, 1}},
        {"Lamm, Pferd und Wild", RotesFleisch, 0, {40, 0.3, 0.7, 1.1, 1}},
        {"Geflügel und Kaninchen", {}, 0, {40, 0.2, 0.4, 1, 3}},
        {"Innereien", {}, 0, {20000, 0.5, 3.5, 1.2, 60}},
        {"Wurst und Schinken", RotesFleisch, 0, {40, 1, 0.7, 0.7, 75}},
        {"Fisch", Fettquelle, 0, {80, 0.3, 0.5, 1, 5}},
        {"Krusten- und Weichtiere", {}, 0, {120, 0.2, 0.4, 0.4, 7}},
        {"Pflanzendrinks und Pflanzenjoghurt", Fluessig, 0, {10, 0.1, 0.3, 0.2, 2}},
        {"Tofu und Fleischersatz", Pflanzlich, 0, {30, 0.4, 0.5, 0.4, 1}},
        {"Käseersatz", {}, 0, {20, 0.4, 0.1, 0.3, 1}},
        {"Gerichte mit Fleisch oder Fisch", {}, 0, {250, 0.5, 0.4, 0.5, 25}},
        {"Gerichte ohne Fleisch", {}, 0, {430, 0.3, 0.4, 0.3, 40}},
        {"Kuchen und Gebäck", {}, 0, {350, 0.5, 0.6, 0.4, 25}},
        {"Süßspeisen und Eis", {}, 0, {150, 0.2, 0.4, 0.4, 15}},
        {"Zucker und Süßwaren", {}, 0, {160, 0.4, 0.8, 0.4, 30}},
        {"Knabbergebäck", {}, 0, {180, 0.5, 0.3, 1.3, 40}},
        {"Wasser, Kaffee und Tee", trank, 0, {50, 0.02, 0.05, 0.05, 1}},
        {"Saft und Erfrischungsgetränke", trank, 0, {1000, 0.1, 0.1, 0.25, 60}},
        {"Bier", trank, 0, {1, 0.05, 0.1, 0.15, 1}},
        {"Wein und Spirituosen", trank, 0, {5, 0.05, 0.05, 0.1, 1}},
    };
    return gruppen;
}

const Lebensmittelgruppe *lebensmittelgruppe(const QString &name)
{
    for (const Lebensmittelgruppe &gruppe : lebensmittelgruppen()) {
        if (name == QString::fromUtf8(gruppe.name)) {
            return &gruppe;
        }
    }
    return nullptr;
}
