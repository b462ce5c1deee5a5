#include "Speiseart.h"

#include "Gruppenregeln.h"
#include "Namensstuecke.h"

using enum Eignung;

namespace {

/// Which foods stand for each other, and which are advised. The first line of a food group that
/// meets the name decides, and the last one meets all.
struct Zeile
{
    const char *gruppe;
    const char *stuecke; ///< pieces of names, parted by "|"; null: all foods of the group
    const char *art;
    Eignung eignung;
    const char *zugleich = nullptr; ///< other pieces, of which one must stand in the name as well
};

constexpr Zeile zeilen[] = {
    {"Brot und Brötchen", "mit Honig", "Knäckebrot", Ersatz},
    {"Brot und Brötchen", "Knäckebrote|Reiswaffeln|Zwieback", "Knäckebrot", Zugabe},
    {"Brot und Brötchen", "croissants|Hefezopf|Milchbrötchen", "Brot", Ersatz},
    {"Brot und Brötchen", nullptr, "Brot", Zugabe},
    {"Joghurt und Quark", "Birchermüslis", "Flocken, zubereitet", Zugabe},
    {"Joghurt und Quark", "Naturjoghurts|Quark (Topfen), 27|mager (Mager|Frischkäse", "Joghurt",
     Zugabe},
    {"Joghurt und Quark", nullptr, "Joghurt", Ersatz},
    {"Flocken und Müsli", "Frühstücksflocken|Maisflocken", "Flocken", Ersatz},
    {"Flocken und Müsli", "flocken|Hafer|ungezuckert|Weizenkeime|Weizenkleie", "Flocken", Zugabe},
    {"Flocken und Müsli", nullptr, "Flocken", Ersatz},
    {"Mehl und Teig", "Paniermehl", "", Nie},
    {"Mehl und Teig", "mehl", "Mehl", Ersatz},
    {"Mehl und Teig", "stärke", "Stärke", Ersatz},
    {"Mehl und Teig", nullptr, "Teig", Ersatz},

    // Most grain stands in the table cooked as well; of these three it is the raw one alone.
    {"Getreide, Reis und Nudeln", "Tortellini", "Gericht", Ersatz},
    {"Getreide, Reis und Nudeln", "Buchweizen|Hirse|Perlgraupen", "Beilage", Zugabe},
    {"Getreide, Reis und Nudeln", ", roh", "Beilage", Ersatz},
    {"Getreide, Reis und Nudeln", nullptr, "Beilage", Zugabe},
    {"Kartoffeln", "Pommes", "Beilage", Nie},
    {"Kartoffeln", "Rösti|roh|trocken", "Beilage", Ersatz},
    {"Kartoffeln", nullptr, "Beilage", Zugabe},
    {"Hülsenfrüchte", "gekocht|Edamame", "Beilage", Zugabe},
    {"Hülsenfrüchte", nullptr, "Beilage", Ersatz},

    // Who has such a vegetable raw in a plan means to cook it.
    {"Gemüse",
     "Auberginen|Bohnen|Rosenkohl|Schwarzwurzeln|Kürbis|Mais|Spargel|Mangold|Pastinaken|Grünkohl|"
     "Wirsing|Lauch|Rote Bete|Brokkoli|Blumenkohl|Erbsen|Topinambur",
     "Kochgemüse", Ersatz, ", roh"},
    {"Gemüse", "Tomatenmark|Knoblauch|Zwiebeln|zwiebeln|Schalotten|Gewürzgurken|Trockentomaten", "",
     Nie},
    {"Gemüse", "Konserve|Rahmspinat|tiefgekühlt", "Gemüse", Ersatz},
    {"Gemüse", nullptr, "Gemüse", Zugabe},
    // Mushrooms from the woods are for their season.
    {"Pilze", "Champignons, roh|Champignons, gedünstet", "Gemüse", Zugabe},
    {"Pilze", ", roh", "Kochgemüse", Ersatz},
    {"Pilze", nullptr, "Gemüse", Ersatz},
    {"Kräuter, Gewürze und Zutaten", "Salz|salz", "Salz", Ersatz},
    {"Kräuter, Gewürze und Zutaten", nullptr, "", Nie},
    {"Hefe", nullptr, "", Nie},

    {"Obst", "Holunderbeeren|Quitten|Rhabarber|Zitronen|Preiselbeeren", "", Nie},
    {"Obst", nullptr, "Obst", Zugabe},
    {"Obstkonserven und Kompott", "ungezuckert|in Saft", "Obstkonserven", Zugabe},
    {"Obstkonserven und Kompott", nullptr, "Obstkonserven", Ersatz},
    {"Trockenobst", nullptr, "Trockenobst", Zugabe},
    {"Nüsse und Samen", "Oliven|Kokos|Esskastanien|Erdnussbutter", "", Nie},
    {"Nüsse und Samen", ", gesalzen", "Nüsse", Ersatz},
    {"Nüsse und Samen", nullptr, "Nüsse", Zugabe},
    {"Eier", "roh", "Ei", Ersatz},
    {"Eier", nullptr, "Ei", Zugabe},

    {"Milch und Sahne", "milchpulver", "Milchpulver", Ersatz},
    {"Milch und Sahne", "Kondensmilch|Kaffeesahne", "Kaffeemilch", Ersatz},
    {"Milch und Sahne", "Milchkaffee|Cappuccino|Latte|getränk", "Milchgetränk", Ersatz},
    {"Milch und Sahne", "Sahne|Crème", "Sahne", Ersatz},
    {"Milch und Sahne", nullptr, "Milch", Zugabe},
    {"Käse", "Mascarpone", "Frischkäse", Nie},
    {"Käse", "Frischkäse|frischkäse|Hüttenkäse|Ricotta", "Frischkäse", Zugabe},
    {"Käse", "Schmelzkäse|Reibekäse", "Käse", Ersatz},
    {"Käse", nullptr, "Käse", Zugabe},
    {"Fette und Öle", "Butterschmalz|Schweineschmalz|Kokosfett|Palmöl", "Öl", Ersatz},
    {"Fette und Öle", "Kakaobutter", "", Nie},
    {"Fette und Öle", "Butter|butter|margarine|Margarine", "Streichfett", Ersatz},
    {"Fette und Öle", nullptr, "Öl", Zugabe},
    // What is cooked differs from kitchen to kitchen: no soup, sauce or dish is advised for what it
    // holds.
    {"Suppen und Soßen", "brühe", "Brühe", Ersatz},
    {"Suppen und Soßen", "suppe|Minestrone", "Suppe", Ersatz},
    {"Suppen und Soßen", "Hummus|Guacamole|Tzatziki", "Dip", Ersatz},
    {"Suppen und Soßen", "Salatsoßen|Vinaigrette", "Salatsoße", Ersatz},
    {"Suppen und Soßen", "Mayonnaise|Remoulade|Cocktail", "Mayonnaise", Ersatz},
    {"Suppen und Soßen", "Ketchup|Barbecue", "Ketchup", Ersatz},
    {"Suppen und Soßen", "Pesto", "Pesto", Ersatz},
    {"Suppen und Soßen", nullptr, "Soße", Ersatz},

    {"Rind- und Kalbfleisch", "Cordon bleu|, roh", "Fleisch", Ersatz},
    {"Rind- und Kalbfleisch", nullptr, "Fleisch", Zugabe},
    {"Schweinefleisch", "Cordon bleu|, roh", "Fleisch", Ersatz},
    {"Schweinefleisch", nullptr, "Fleisch", Zugabe},
    {"Lamm, Pferd und Wild", ", roh", "Fleisch", Ersatz},
    {"Lamm, Pferd und Wild", nullptr, "Fleisch", Zugabe},
    {"Geflügel und Kaninchen", ", roh", "Fleisch", Ersatz},
    {"Geflügel und Kaninchen", nullptr, "Fleisch", Zugabe},
    // A portion of liver holds many times the vitamin A that a day should.
    {"Innereien", nullptr, "Innereien", Ersatz},
    {"Wurst und Schinken", nullptr, "Wurst", Ersatz},
    {"Fisch", "paste|Sardellen|Rollmops|Surimi|Räucher", "Fischwaren", Ersatz},
    {"Fisch", "stäbchen|, roh", "Fleisch", Ersatz},
    {"Fisch", nullptr, "Fleisch", Zugabe},
    {"Krusten- und Weichtiere", ", roh", "Fleisch", Ersatz},
    {"Krusten- und Weichtiere", nullptr, "Fleisch", Zugabe},

    {"Pflanzendrinks und Pflanzenjoghurt", "gezuckert|Kokosjoghurt", "Joghurt", Ersatz},
    {"Pflanzendrinks und Pflanzenjoghurt", "joghurt", "Joghurt", Zugabe},
    {"Pflanzendrinks und Pflanzenjoghurt", "Kokosmilch", "Sahne", Ersatz},
    {"Pflanzendrinks und Pflanzenjoghurt", "Kokos", "Milch", Ersatz},
    {"Pflanzendrinks und Pflanzenjoghurt", nullptr, "Milch", Zugabe},
    {"Tofu und Fleischersatz", "Wurst", "Wurst", Ersatz},
    {"Tofu und Fleischersatz", ", roh|trocken", "Fleisch", Ersatz},
    {"Tofu und Fleischersatz", nullptr, "Fleisch", Zugabe},
    {"Käseersatz", nullptr, "Käse", Ersatz},

    {"Gerichte mit Fleisch oder Fisch",
     "Sandwiches|burger|Croque|Hotdogs|Döner|Schnitzelbrötchen|Brot", "Belegtes Brot", Ersatz},
    {"Gerichte mit Fleisch oder Fisch", "Pizza|Quiche|Flammkuchen", "Pizza", Ersatz},
    {"Gerichte mit Fleisch oder Fisch", "Pfannkuchen|Crêpes", "Pfannkuchen", Ersatz},
    {"Gerichte mit Fleisch oder Fisch", "Rühreier|Omelette", "Eierspeise", Ersatz},
    {"Gerichte mit Fleisch oder Fisch", "salat|cocktail", "Salat", Ersatz},
    {"Gerichte mit Fleisch oder Fisch", "suppe", "Suppe", Ersatz},
    {"Gerichte mit Fleisch oder Fisch", nullptr, "Gericht", Ersatz},
    {"Gerichte ohne Fleisch", "Sandwiches|Käsebrot", "Belegtes Brot", Ersatz},
    {"Gerichte ohne Fleisch", "Pizza|quiche|Zwiebelkuchen", "Pizza", Ersatz},
    {"Gerichte ohne Fleisch", "Pfannkuchen|Palatschinken|Crêpes", "Pfannkuchen", Ersatz},
    {"Gerichte ohne Fleisch", "Rühreier|Omelette", "Eierspeise", Ersatz},
    {"Gerichte ohne Fleisch", "salat|Salat|Taboulé", "Salat", Ersatz},
    {"Gerichte ohne Fleisch", nullptr, "Gericht", Ersatz},

    {"Kuchen und Gebäck", "kuchen|torte|Torte|tarte|Cremeschnitten|Panettone", "Kuchen", Ersatz},
    {"Kuchen und Gebäck", nullptr, "Gebäck", Ersatz},
    {"Süßspeisen und Eis", "Pfannkuchen|Crêpes", "Pfannkuchen", Ersatz},
    {"Süßspeisen und Eis", "brei|Milchreis", "Süßspeise", Zugabe},
    {"Süßspeisen und Eis", "Eis (|Eis am|Eis in|Wassereis|sorbets", "Eis", Ersatz},
    {"Süßspeisen und Eis", nullptr, "Süßspeise", Ersatz},
    {"Zucker und Süßwaren", ", Pulver", "Kakaopulver", Ersatz},
    {"Zucker und Süßwaren", "schokolade|Schokolade (|Schokoladenüberzug|riegel|Marzipan",
     "Schokolade", Ersatz},
    {"Zucker und Süßwaren", "Konfitüren|Honig (|Creme (|Curd|Ahornsirup|Milchkaramell", "Aufstrich",
     Ersatz},
    {"Zucker und Süßwaren", "bonbons|Bonbons|Gummibärchen", "Bonbons", Ersatz},
    {"Zucker und Süßwaren", nullptr, "", Nie},
    {"Knabbergebäck", nullptr, "Knabbergebäck", Ersatz},

    {"Wasser, Kaffee und Tee", "Pulver", "", Nie},
    {"Wasser, Kaffee und Tee", "Kaffee", "Getränk", Ersatz},
    {"Wasser, Kaffee und Tee", nullptr, "Getränk", Zugabe},
    // Water takes the place of lemonade, and never the other way round.
    {"Saft und Erfrischungsgetränke", "unverdünnt", "", Nie},
    {"Saft und Erfrischungsgetränke", "saft|Saft|Schorle|schorle", "Saft", Zugabe},
    {"Saft und Erfrischungsgetränke", "nektar", "Saft", Nie},
    {"Saft und Erfrischungsgetränke", nullptr, "Getränk", Nie},
    // Nobody is advised to drink alcohol.
    {"Bier", "alkoholfreies", "Bier", Ersatz},
    {"Bier", nullptr, "Bier", Nie},
    {"Wein und Spirituosen", nullptr, "", Nie},
};

/// A line as it is asked.
struct Regel
{
    explicit Regel(const Zeile &zeile)
        : stuecke(zeile.stuecke)
        , zugleich(zeile.zugleich)
        , speiseart{zeile.art, zeile.eignung}
    {
    }

    Namensstuecke stuecke;
    Namensstuecke zugleich;
    Speiseart speiseart;
};

const QHash<const Lebensmittelgruppe *, QList<Regel>> &regeln()
{
    static const QHash<const Lebensmittelgruppe *, QList<Regel>> alle = nachGruppe<Regel>(zeilen);
    return alle;
}

} // namespace

Speiseart speiseart(const Lebensmittelgruppe *gruppe, const QString &name)
{
    if (gruppe == nullptr) {
        return {{}, Zugabe};
    }
    for (const Regel &regel : regeln().value(gruppe)) {
        if (regel.stuecke.kommtVorIn(name) && regel.zugleich.kommtVorIn(name)) {
            static const Namensstuecke mittel("Durchschnitt");
            static const Namensstuecke oxalsaeure("Spinat|Mangold|Rhabarber");
            return {regel.speiseart.art, mittel.kommtVorIn(name) ? Nie : regel.speiseart.eignung,
                    oxalsaeure.kommtVorIn(name)};
        }
    }
    return {};
}
