#include "Weglassgruppen.h"

#include "Gruppenregeln.h"
#include "Namensstuecke.h"

#include <QCoreApplication>

using enum Weglassgruppe;

const std::array<Weglassgruppenbeschreibung, 7> weglassgruppen = {{
    {Fleisch, "fleisch", QT_TRANSLATE_NOOP("Mahlberg", "Fleisch und Wurst")},
    {Schwein, "schwein", QT_TRANSLATE_NOOP("Mahlberg", "Schweinefleisch")},
    {Milch, "milch", QT_TRANSLATE_NOOP("Mahlberg", "Milch und Milchprodukte")},
    {Fisch, "fisch", QT_TRANSLATE_NOOP("Mahlberg", "Fisch und Meeresfrüchte")},
    {Gluten, "gluten", QT_TRANSLATE_NOOP("Mahlberg", "Getreide mit Gluten")},
    {Nuesse, "nuesse", QT_TRANSLATE_NOOP("Mahlberg", "Nüsse und Erdnüsse")},
    {Alkohol, "alkohol", QT_TRANSLATE_NOOP("Mahlberg", "Alkohol")},
}};

namespace {

constexpr Weglassgruppen nichts = {};
/// Gelatine, lard and broth may be of any animal.
constexpr Weglassgruppen vomTier = Fleisch | Schwein;
constexpr Weglassgruppen alles = Fleisch | Schwein | Milch | Fisch | Gluten | Nuesse | Alkohol;

/// What foods hold. The lines of a food group are read from top to bottom, and each line that meets
/// the name takes out and puts in; so the first line, for the whole group, says what must be
/// thought of a food that no other line names.
struct Zeile
{
    const char *gruppe;
    const char *stuecke; ///< pieces of names, parted by "|"; null: all foods of the group
    Weglassgruppen dazu;
    Weglassgruppen frei = {}; ///< what these are known to be free of, whatever was said above
};

constexpr Zeile zeilen[] = {
    // Rolls, toast and cakelike bread are often baked with milk; pretzels with lard.
    {"Brot und Brötchen", nullptr, Gluten | Milch},
    {"Brot und Brötchen", "Bauernbrote|Roggen|Weizenvollkorn|Baguettes|Knäcke", nichts, Milch},
    {"Brot und Brötchen", "Reiswaffeln, Vollkorn", nichts, Gluten | Milch},
    {"Brot und Brötchen", "Walnuss", Nuesse},
    {"Brot und Brötchen", "Laugen", vomTier},

    // What is flavoured may be set with gelatine.
    {"Joghurt und Quark", nullptr, alles, Fisch | Alkohol},
    {"Joghurt und Quark",
     "Naturjoghurts|Quark (Topfen), 27|Quark (Topfen), 57|Quark (Topfen), mager", nichts,
     vomTier | Gluten | Nuesse},
    {"Joghurt und Quark", "Frischkäse", nichts, vomTier | Gluten | Nuesse},
    {"Joghurt und Quark", "Birchermüslis", nichts, vomTier},

    // Corn flakes and puffed rice are flavoured with barley malt.
    {"Flocken und Müsli", nullptr, Gluten | Milch | Nuesse},
    {"Flocken und Müsli",
     "Cornflakes|Gerstenflocken|Getreideflocken|Haferflocken|Haferkleie|Hirseflocken|"
     "Weizenflocken|Weizenkeime|Weizenkleie|Puffreis|Puffweizen",
     nichts, Milch | Nuesse},
    {"Flocken und Müsli", "Hirseflocken, Vollkorn", nichts, Gluten},

    {"Mehl und Teig", nullptr, Gluten | Milch},
    {"Mehl und Teig", "Dinkelmehl|Roggenmehl|Weizenmehl|Weizenstärke", nichts, Milch},
    {"Mehl und Teig", "Buchweizenmehl|Kartoffelstärke|Maisstärke|Sojamehl", nichts, Gluten | Milch},

    {"Getreide, Reis und Nudeln", nullptr, Gluten},
    {"Getreide, Reis und Nudeln", "Amaranth|Buchweizen|Hirse|Polenta|Quinoa|Reis (", nichts,
     Gluten},
    {"Getreide, Reis und Nudeln", "Spätzle", Milch},
    {"Getreide, Reis und Nudeln", "Tortellini", Milch | Nuesse | Alkohol},
    {"Getreide, Reis und Nudeln", "mit Fleisch", vomTier},

    // Chips for the oven may have a coat of flour.
    {"Kartoffeln", nullptr, nichts},
    {"Kartoffeln", "Gnocchi", Gluten | Milch},
    {"Kartoffeln", "püree", Milch},
    {"Kartoffeln", "Pommes", Gluten},
    {"Kartoffeln", "Fertigrösti", vomTier | Milch | Gluten},

    {"Hülsenfrüchte", nullptr, nichts},

    {"Gemüse", nullptr, nichts},
    {"Gemüse", "Rahmspinat", Milch | Gluten},
    {"Gemüse", "Sauerkraut", Alkohol},

    {"Pilze", nullptr, nichts},

    {"Kräuter, Gewürze und Zutaten", nullptr, nichts},
    {"Kräuter, Gewürze und Zutaten", "essig (|Essig (|Senf", Alkohol},
    {"Kräuter, Gewürze und Zutaten", "Sojasoße", Gluten | Alkohol},
    {"Kräuter, Gewürze und Zutaten", "Worcester", Gluten | Fisch | Alkohol},

    {"Hefe", nullptr, nichts},
    {"Hefe", "Bierhefe", Gluten},

    {"Obst", nullptr, nichts},
    {"Obstkonserven und Kompott", nullptr, nichts},
    {"Trockenobst", nullptr, nichts},

    {"Nüsse und Samen", nullptr, Nuesse},
    {"Nüsse und Samen", "Chiasamen|Kürbiskerne|Leinsamen|Oliven|Sesam|Sonnenblumenkerne", nichts,
     Nuesse},

    {"Eier", nullptr, nichts},

    {"Milch und Sahne", nullptr, Milch},
    {"Milch und Sahne", "Malz|Kakao", Gluten},

    {"Käse", nullptr, Milch},

    // Half-fat spreads may hold gelatine.
    {"Fette und Öle", nullptr, nichts},
    {"Fette und Öle", "Butter|Halbfett|Margarine", Milch},
    {"Fette und Öle", "Halbfett|Schweineschmalz", vomTier},
    {"Fette und Öle", "Erdnuss|Haselnuss|Walnuss|Kokos", Nuesse},
    {"Fette und Öle", "Weizenkeim", Gluten},

    {"Suppen und Soßen", nullptr, alles},
    {"Suppen und Soßen", "Ketchup|Guacamole|Hummus|Mayonnaise, hausgemacht", nichts, alles},
    {"Suppen und Soßen", "Guacamole", Milch},
    {"Suppen und Soßen", "Gazpacho", nichts, vomTier | Milch | Fisch | Nuesse},
    {"Suppen und Soßen", "Gemüsebrühe", nichts, vomTier | Fisch | Nuesse | Alkohol},
    {"Suppen und Soßen", "Tzatziki", nichts, vomTier | Fisch | Gluten | Nuesse | Alkohol},
    {"Suppen und Soßen", "Tomatensoße", nichts, vomTier | Fisch | Nuesse},
    {"Suppen und Soßen", "Tomatensuppe|Pilzsuppe", nichts, Fisch | Nuesse},
    {"Suppen und Soßen", "Pesto", nichts, vomTier | Fisch | Alkohol},
    {"Suppen und Soßen", "Essig und Öl|Vinaigrette", nichts, Milch | Fisch | Nuesse},

    {"Rind- und Kalbfleisch", nullptr, Fleisch},
    {"Rind- und Kalbfleisch", "Fleisch, Durchschnitt|Faschiertes", Schwein},
    {"Rind- und Kalbfleisch", "geschmort", Alkohol},
    {"Rind- und Kalbfleisch", "Cordon bleu", Schwein | Milch | Gluten},
    {"Schweinefleisch", nullptr, vomTier},
    {"Schweinefleisch", "geschmort", Alkohol},
    {"Schweinefleisch", "Cordon bleu", Milch | Gluten},
    {"Lamm, Pferd und Wild", nullptr, Fleisch},
    {"Lamm, Pferd und Wild", "Wildschwein|Wildfleisch", Schwein},
    {"Geflügel und Kaninchen", nullptr, Fleisch},
    {"Innereien", nullptr, Fleisch},
    {"Innereien", "Schwein|Durchschnitt", Schwein},

    // Sausage may be bound with milk powder or wheat, hold pistachios and be spiced with wine.
    {"Wurst und Schinken", nullptr, vomTier | Milch | Gluten | Nuesse | Alkohol},
    {"Wurst und Schinken", "Rohschinken|Speck|Coppa|Bresaola|Bündnerfleisch|Mostbröckli", nichts,
     Milch | Gluten | Nuesse},
    {"Wurst und Schinken", "Bresaola|Bündnerfleisch|Mostbröckli", nichts, Schwein},

    {"Fisch", nullptr, Fisch},
    {"Fisch", "Fischstäbchen", Gluten | Milch},
    {"Fisch", "Surimi", Gluten | Milch | Alkohol},
    {"Fisch", "Tomatensoße", Gluten},
    {"Fisch", "paste", Milch},
    {"Krusten- und Weichtiere", nullptr, Fisch},

    {"Pflanzendrinks und Pflanzenjoghurt", nullptr, nichts},
    {"Pflanzendrinks und Pflanzenjoghurt", "Hafer", Gluten},
    {"Pflanzendrinks und Pflanzenjoghurt", "Mandel|Kokos", Nuesse},

    // Smoked tofu is often seasoned with soy sauce, which holds wheat.
    {"Tofu und Fleischersatz", nullptr, Gluten},
    {"Tofu und Fleischersatz", "Naturtofu|Seidentofu|Tempeh|Sojaschnetzel", nichts, Gluten},
    {"Tofu und Fleischersatz", "Mykoprotein", Milch},
    {"Tofu und Fleischersatz", "Nuggets", Nuesse},
    {"Käseersatz", nullptr, Nuesse},

    // Ragout may be cooked with wine and bacon, what is Asian with fish sauce and nuts.
    {"Gerichte mit Fleisch oder Fisch", nullptr, alles},
    {"Gerichte mit Fleisch oder Fisch",
     "mit Schinken|mit Speck|Schinken-Käse|Salami|Lasagne|Cannelloni|ragout|Gulaschsuppe|"
     "Frikadellen|Hamburger|Cheeseburger|Hotdogs|Hähnchenburger|Chili con|Hackbraten|wie Wiener|"
     "Quiche|Bolognese|Wurstsalat|Rindfleischsalat|Kalbspiccata|Schweinepiccata|Saltimbocca",
     nichts, Fisch | Nuesse},
    {"Gerichte mit Fleisch oder Fisch", "Salami|Hotdogs|Wurstsalat", Nuesse}, // as the sausage
    {"Gerichte mit Fleisch oder Fisch",
     "Hähnchen|Frikadellen|Fischburger|Garnelencocktail|Tonno|Thunfischsalat|Rindertatar|"
     "Rindfleischsalat|Vitello",
     nichts, Schwein},
    {"Gerichte mit Fleisch oder Fisch", "Fischburger|Garnelencocktail|Tonno|Thunfischsalat", nichts,
     Fleisch},
    {"Gerichte mit Fleisch oder Fisch", "Rindfleischsalat|Thunfischsalat", nichts, Milch},
    {"Gerichte mit Fleisch oder Fisch", "burger|Döner|Thunfischsalat", nichts, Alkohol},

    // Rice and potatoes may be cooked in meat broth, onion tart with bacon.
    {"Gerichte ohne Fleisch", nullptr, Milch | Gluten | Nuesse | Alkohol},
    {"Gerichte ohne Fleisch",
     "Pfannkuchen|Palatschinken|Crêpes|Margherita|mit Gemüse|Quattro|Sandwiches|Käsebrot|quiche|"
     "gratin|Kartoffelsalate|Älpler|Risotto|risotto|Cannelloni|Rühreier|Omelette|Taboulé|Falafel|"
     "paniert|Piccata|Käsefondue|Krautsalate|Russischer",
     nichts, Nuesse},
    {"Gerichte ohne Fleisch",
     "Palatschinken|Eierkuchen|Pizza|Sandwiches|Rühreier|Omelette|Taboulé|Falafel|"
     "Kartoffelsalate|paniert|Krautsalate|Russischer|Samosas",
     nichts, Alkohol},
    {"Gerichte ohne Fleisch", "Taboulé|Falafel|Essig und Öl", nichts, Milch},
    {"Gerichte ohne Fleisch", "Rühreier", nichts, Gluten},
    {"Gerichte ohne Fleisch",
     "Risotto|risotto|Graupen|mit Brühe|Kartoffelsalate|Nudelsalate|Zwiebelkuchen|Lasagne",
     vomTier},
    {"Gerichte ohne Fleisch", "Nudelsalate", Fisch},

    // Cream cakes and glazes are set with gelatine, other pastry is fried in lard.
    {"Kuchen und Gebäck", nullptr, alles, Fisch},
    {"Kuchen und Gebäck",
     "kekse|Buttergebäck|Butterplätzchen|makronen|Löffelbiskuits|Marmorkuchen|Rührkuchen|"
     "Zimtsterne|Waffeln|Madeleines|Mandelkuchen|Möhrenkuchen",
     nichts, vomTier},

    {"Süßspeisen und Eis", nullptr, alles, Fisch},
    {"Süßspeisen und Eis", "Milchreis|Grießbrei|Haferbrei", nichts, vomTier | Nuesse | Alkohol},
    {"Süßspeisen und Eis", "Milchreis", nichts, Gluten},
    {"Süßspeisen und Eis", "Crêpes|Pfannkuchen|Arme Ritter|Grießschnitten", nichts, vomTier},
    {"Süßspeisen und Eis", "Wassereis", nichts, Milch | Gluten | Nuesse | Alkohol},

    {"Zucker und Süßwaren", nullptr, alles, Fisch},
    {"Zucker und Süßwaren",
     "Ahornsirup|Honig (|Konfitüren|Melasse|Orangeat|Zitronat|Traubenzucker|Zucker (", nichts,
     alles},

    {"Knabbergebäck", nullptr, alles, Fisch | Alkohol},
    {"Knabbergebäck", "Popcorn, ungesalzen", nichts, alles},

    {"Wasser, Kaffee und Tee", nullptr, nichts},
    {"Wasser, Kaffee und Tee", "Kaffeesahne", Milch},
    {"Saft und Erfrischungsgetränke", nullptr, nichts},
    {"Bier", nullptr, Gluten | Alkohol},
    {"Wein und Spirituosen", nullptr, Alkohol},
    {"Wein und Spirituosen", "Whisky|Wodka|Eierlikör", Gluten},
    {"Wein und Spirituosen", "Eierlikör", Milch},
};

/// A line as it is asked.
struct Regel
{
    explicit Regel(const Zeile &zeile) : stuecke(zeile.stuecke), dazu(zeile.dazu), frei(zeile.frei)
    {
    }

    Namensstuecke stuecke;
    Weglassgruppen dazu;
    Weglassgruppen frei;
};

const QHash<const Lebensmittelgruppe *, QList<Regel>> &regeln()
{
    static const QHash<const Lebensmittelgruppe *, QList<Regel>> alle = nachGruppe<Regel>(zeilen);
    return alle;
}

} // namespace

Weglassgruppen alleWeglassgruppen()
{
    return alles;
}

Weglassgruppen kannEnthalten(const Lebensmittelgruppe *gruppe, const QString &name)
{
    const auto regelnDerGruppe = regeln().constFind(gruppe);
    if (gruppe == nullptr || regelnDerGruppe == regeln().cend()) {
        return alles;
    }
    Weglassgruppen enthaelt = nichts;
    for (const Regel &regel : *regelnDerGruppe) {
        if (regel.stuecke.kommtVorIn(name)) {
            enthaelt = (enthaelt | regel.dazu) & ~regel.frei;
        }
    }
    return enthaelt;
}
