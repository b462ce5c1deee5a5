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
    static const std::vector<Lebensmittelgruppe> gruppen = {
        {"Brot und Brötchen", {}, 0},
        {"Flocken und Müsli", Pflanzlich, 0},
        {"Mehl und Teig", {}, 0},
        {"Getreide, Reis und Nudeln", Beilage, 0},
        {"Kartoffeln", Beilage, aller},
        {"Hülsenfrüchte", Beilage | Pflanzlich, aller},
        {"Gemüse", Pflanzlich, aller},
        {"Pilze", Pflanzlich, aller},
        {"Kräuter, Gewürze und Zutaten", Gewuerz, aller},
        {"Hefe", {}, 0},
        {"Obst", Pflanzlich, aller},
        {"Obstkonserven und Kompott", {}, 0},
        {"Trockenobst", Pflanzlich, 0},
        {"Nüsse und Samen", Fettquelle | Pflanzlich, aller},
        {"Eier", {}, 0},
        {"Milch und Sahne", Fluessig | Milchzucker, inMilch},
        {"Joghurt und Quark", Milchzucker, inQuark},
        {"Käse", Milchzucker, inQuark},
        {"Fette und Öle", Fettquelle, 0},
        {"Suppen und Soßen", {}, 0},
        {"Rind- und Kalbfleisch", RotesFleisch, 0},
        {"Schweinefleisch", RotesFleisch, 0},
        {"Lamm, Pferd und Wild", RotesFleisch, 0},
        {"Geflügel und Kaninchen", {}, 0},
        {"Innereien", {}, 0},
        {"Wurst und Schinken", RotesFleisch, 0},
        {"Fisch", Fettquelle, 0},
        {"Krusten- und Weichtiere", {}, 0},
        {"Pflanzendrinks und Pflanzenjoghurt", Fluessig, 0},
        {"Tofu und Fleischersatz", Pflanzlich, 0},
        {"Käseersatz", {}, 0},
        {"Gerichte mit Fleisch oder Fisch", {}, 0},
        {"Gerichte ohne Fleisch", {}, 0},
        {"Kuchen und Gebäck", {}, 0},
        {"Süßspeisen und Eis", {}, 0},
        {"Zucker und Süßwaren", {}, 0},
        {"Knabbergebäck", {}, 0},
        {"Wasser, Kaffee und Tee", trank, 0},
        {"Saft und Erfrischungsgetränke", trank, 0},
        {"Bier", trank, 0},
        {"Wein und Spirituosen", trank, 0},
    };
    return gruppen;
}

const Lebensmittelgruppe *lebensmittelgruppe(const QString &name)
{
    const QByteArray gesucht = name.toUtf8();
    for (const Lebensmittelgruppe &gruppe : lebensmittelgruppen()) {
        if (gesucht == gruppe.name) {
            return &gruppe;
        }
    }
    return nullptr;
}
