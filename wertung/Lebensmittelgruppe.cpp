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
        {QT_TRANSLATE_NOOP("Mahlberg", "Brot und Brötchen"), {}, 0},
        {QT_TRANSLATE_NOOP("Mahlberg", "Flocken und Müsli"), Pflanzlich, 0},
        {QT_TRANSLATE_NOOP("Mahlberg", "Mehl und Teig"), {}, 0},
        {QT_TRANSLATE_NOOP("Mahlberg", "Getreide, Reis und Nudeln"), Beilage, 0},
        {QT_TRANSLATE_NOOP("Mahlberg", "Kartoffeln"), Beilage, aller},
        {QT_TRANSLATE_NOOP("Mahlberg", "Hülsenfrüchte"), Beilage | Pflanzlich, aller},
        {QT_TRANSLATE_NOOP("Mahlberg", "Gemüse"), Pflanzlich, aller},
        {QT_TRANSLATE_NOOP("Mahlberg", "Pilze"), Pflanzlich, aller},
        {QT_TRANSLATE_NOOP("Mahlberg", "Kräuter, Gewürze und Zutaten"), Gewuerz, aller},
        {QT_TRANSLATE_NOOP("Mahlberg", "Hefe"), {}, 0},
        {QT_TRANSLATE_NOOP("Mahlberg", "Obst"), Pflanzlich, aller},
        {QT_TRANSLATE_NOOP("Mahlberg", "Obstkonserven und Kompott"), {}, 0},
        {QT_TRANSLATE_NOOP("Mahlberg", "Trockenobst"), Pflanzlich, 0},
        {QT_TRANSLATE_NOOP("Mahlberg", "Nüsse und Samen"), Fettquelle | Pflanzlich, aller},
        {QT_TRANSLATE_NOOP("Mahlberg", "Eier"), {}, 0},
        {QT_TRANSLATE_NOOP("Mahlberg", "Milch und Sahne"), Fluessig | Milchzucker, inMilch},
        {QT_TRANSLATE_NOOP("Mahlberg", "Joghurt und Quark"), Milchzucker, inQuark},
        {QT_TRANSLATE_NOOP("Mahlberg", "Käse"), Milchzucker, inQuark},
        {QT_TRANSLATE_NOOP("Mahlberg", "Fette und Öle"), Fettquelle, 0},
        {QT_TRANSLATE_NOOP("Mahlberg", "Suppen und Soßen"), {}, 0},
        {QT_TRANSLATE_NOOP("Mahlberg", "Rind- und Kalbfleisch"), RotesFleisch, 0},
        {QT_TRANSLATE_NOOP("Mahlberg", "Schweinefleisch"), RotesFleisch, 0},
        {QT_TRANSLATE_NOOP("Mahlberg", "Lamm, Pferd und Wild"), RotesFleisch, 0},
        {QT_TRANSLATE_NOOP("Mahlberg", "Geflügel und Kaninchen"), {}, 0},
        {QT_TRANSLATE_NOOP("Mahlberg", "Innereien"), {}, 0},
        {QT_TRANSLATE_NOOP("Mahlberg", "Wurst und Schinken"), RotesFleisch, 0},
        {QT_TRANSLATE_NOOP("Mahlberg", "Fisch"), Fettquelle, 0},
        {QT_TRANSLATE_NOOP("Mahlberg", "Krusten- und Weichtiere"), {}, 0},
        {QT_TRANSLATE_NOOP("Mahlberg", "Pflanzendrinks und Pflanzenjoghurt"), Fluessig, 0},
        {QT_TRANSLATE_NOOP("Mahlberg", "Tofu und Fleischersatz"), Pflanzlich, 0},
        {QT_TRANSLATE_NOOP("Mahlberg", "Käseersatz"), {}, 0},
        {QT_TRANSLATE_NOOP("Mahlberg", "Gerichte mit Fleisch oder Fisch"), {}, 0},
        {QT_TRANSLATE_NOOP("Mahlberg", "Gerichte ohne Fleisch"), {}, 0},
        {QT_TRANSLATE_NOOP("Mahlberg", "Kuchen und Gebäck"), {}, 0},
        {QT_TRANSLATE_NOOP("Mahlberg", "Süßspeisen und Eis"), {}, 0},
        {QT_TRANSLATE_NOOP("Mahlberg", "Zucker und Süßwaren"), {}, 0},
        {QT_TRANSLATE_NOOP("Mahlberg", "Knabbergebäck"), {}, 0},
        {QT_TRANSLATE_NOOP("Mahlberg", "Wasser, Kaffee und Tee"), trank, 0},
        {QT_TRANSLATE_NOOP("Mahlberg", "Saft und Erfrischungsgetränke"), trank, 0},
        {QT_TRANSLATE_NOOP("Mahlberg", "Bier"), trank, 0},
        {QT_TRANSLATE_NOOP("Mahlberg", "Wein und Spirituosen"), trank, 0},
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
