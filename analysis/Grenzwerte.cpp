#include "Grenzwerte.h"

#include <QCoreApplication>

#include <algorithm>
#include <string_view>

namespace {

using enum Tagesgroesse;
using enum Grenzart;
using enum Referenzgeschlecht;
using enum Referenzzustand;

/// Who counts as a grown-up.
constexpr int volljaehrig = 18;
/// From here on the World Health Organization speaks of adults where it speaks of salt.
constexpr int erwachsenBeiSalz = 16;
constexpr int ende = Grenzwert::ohneEnde;

constexpr const char *purinarm = QT_TRANSLATE_NOOP("Mahlberg", "purinarm");
constexpr const char *streng = QT_TRANSLATE_NOOP("Mahlberg", "streng purinarm");
constexpr const char *jugend = QT_TRANSLATE_NOOP("Mahlberg", "unter 18 Jahren");
constexpr const char *wenigRisiko = QT_TRANSLATE_NOOP("Mahlberg", "geringes Risiko");
constexpr const char *schwanger = QT_TRANSLATE_NOOP("Mahlberg", "in der Schwangerschaft");
constexpr const char *stillend = QT_TRANSLATE_NOOP("Mahlberg", "in der Stillzeit");
constexpr const char *angemessen = QT_TRANSLATE_NOOP("Mahlberg", "angemessene Zufuhr");
constexpr const char *sicher = QT_TRANSLATE_NOOP("Mahlberg", "angemessen und sicher");
constexpr const char *who = "WHO";
constexpr const char *dge = "DGE";
constexpr const char *wcrf = "WCRF";

constexpr const char *alkohol = "DGE-Alkohol-2024";
constexpr const char *trinken = "EFSA-2010-Wasser";
constexpr const char *natrium = "EFSA-NA";

/// The publications that the ratings of the foods do not need.
const std::vector<Quelle> &eigeneQuellen()
{
    static const std::vector<Quelle> liste = {
        {"LIFE", "Lifeline. Purine (low in purines, strictly low in purines). "
                 "https://lifeline.de/ernaehrung-fitness/gesund-essen/purin-id156283.html"},
        {"GES", "gesundheit.de. Purinhaltige Lebensmittel. https://www.gesundheit.de/ernaehrung/"
                "rund-ums-lebensmittel/galerie-purinhaltige-lebensmittel"},
        {"EFSA-2010-Wasser", "EFSA Panel on Dietetic Products, Nutrition, and Allergies. "
                             "Scientific opinion on dietary reference values for water. EFSA "
                             "Journal 2010; 8(3): 1459."},
        {"EFSA-NA", "EFSA NDA Panel. Dietary reference values for sodium. EFSA Journal 2019; "
                    "17: 5778."},
        {"DGE-Salz-2016", "Strohm D et al. Speisesalzzufuhr in Deutschland, gesundheitliche "
                          "Folgen und resultierende Handlungsempfehlung. Position of the Deutsche "
                          "Gesellschaft für Ernährung. Ernährungs Umschau 2016; 63."},
        {"WHO-2023", "WHO. Saturated fatty acid and trans-fatty acid intake for adults and "
                     "children: WHO guideline. Geneva: World Health Organization, 2023."},
    };
    return liste;
}

bool giltImAlter(const Grenzwert &grenze, int alter)
{
    return alter >= grenze.von && alter <= grenze.bis;
}

bool giltImZustand(const Grenzwert &grenze, const Referenzperson &person)
{
    return !grenze.zustand || grenze.zustand == person.zustand;
}

} // namespace

const std::vector<Grenzwert> &alleGrenzwerte()
{
    static const std::vector<Grenzwert> liste = {
        {Purine, Hoechstens, 500, "LIFE", purinarm},
        {Purine, Hoechstens, 300, "GES", streng},
        {AlkoholJeWoche, Hoechstens, 0, alkohol, jugend, 0, volljaehrig - 1},
        {AlkoholJeWoche, Unter, 27, alkohol, wenigRisiko, volljaehrig, ende, {}, Keiner},
        {AlkoholJeWoche, Hoechstens, 0, alkohol, schwanger, volljaehrig, ende, {}, Schwanger},
        {AlkoholJeWoche, Hoechstens, 0, alkohol, stillend, volljaehrig, ende, {}, Stillend},
        {Wasser, Mindestens, 1100, trinken, angemessen, 1, 1},
        {Wasser, Mindestens, 1300, trinken, angemessen, 2, 3},
        {Wasser, Mindestens, 1600, trinken, angemessen, 4, 8},
        {Wasser, Mindestens, 2100, trinken, angemessen, 9, 13, Mann, Keiner},
        {Wasser, Mindestens, 1900, trinken, angemessen, 9, 13, Frau, Keiner},
        {Wasser, Mindestens, 2500, trinken, angemessen, 14, ende, Mann, Keiner},
        {Wasser, Mindestens, 2000, trinken, angemessen, 14, ende, Frau, Keiner},
        {Wasser, Mindestens, 2300, trinken, schwanger, 14, ende, {}, Schwanger},
        {Wasser, Mindestens, 2700, trinken, stillend, 14, ende, {}, Stillend},
        {Salz, Hoechstens, 2.75, natrium, sicher, 1, 3},
        {Salz, Hoechstens, 3.25, natrium, sicher, 4, 6},
        {Salz, Hoechstens, 4.25, natrium, sicher, 7, 10},
        {Salz, Hoechstens, 5, natrium, sicher, 11, erwachsenBeiSalz - 1},
        {Salz, Unter, 5, "WHO-2012", who, erwachsenBeiSalz},
        {Salz, Hoechstens, 6, "DGE-Salz-2016", dge, volljaehrig},
        {Energiedichte, Hoechstens, 125, "WCRF-2007", wcrf, volljaehrig},
        {Gesaettigt, Hoechstens, 10, "WHO-2023", who, 2},
        {FreierZucker, Unter, 10, "WHO-2015", who},
    };
    return liste;
}

Grenzen grenzenFuer(Tagesgroesse groesse, const Referenzperson &person)
{
    Grenzen grenzen = {{}, Grenzmangel::NichtVeroeffentlicht};
    const int alter = person.alter.value_or(volljaehrig);
    for (const Grenzwert &eine : alleGrenzwerte()) {
        if (eine.groesse != groesse) {
            continue;
        }
        if (!giltImAlter(eine, alter) || !giltImZustand(eine, person)) {
            if (grenzen.mangel == Grenzmangel::NichtVeroeffentlicht) {
                grenzen.mangel = Grenzmangel::AlterAusserhalb;
            }
        } else if (eine.geschlecht && !person.geschlecht) {
            grenzen.mangel = Grenzmangel::GeschlechtFehlt;
        } else if (!eine.geschlecht || eine.geschlecht == person.geschlecht) {
            grenzen.werte << &eine;
        }
    }
    if (!grenzen.werte.isEmpty()) {
        grenzen.mangel = Grenzmangel::Keiner;
    }
    return grenzen;
}

const Quelle *grenzquelle(const char *schluessel)
{
    const auto &eigene = eigeneQuellen();
    const auto gefunden = std::ranges::find_if(eigene, [schluessel](const Quelle &eine) {
        return std::string_view(eine.schluessel) == schluessel;
    });
    return gefunden != eigene.end() ? &*gefunden : quelle(schluessel);
}

std::vector<const Quelle *> grenzquellen()
{
    std::vector<const Quelle *> liste;
    for (const Grenzwert &eine : alleGrenzwerte()) {
        const Quelle *const quelle = grenzquelle(eine.schluessel);
        if (quelle != nullptr && std::ranges::find(liste, quelle) == liste.end()) {
            liste.push_back(quelle);
        }
    }
    return liste;
}
