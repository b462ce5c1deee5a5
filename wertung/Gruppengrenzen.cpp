#include "Gruppengrenzen.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace {

/// Salt itself stands in the group: nothing holds more sodium.
constexpr double salz = std::numeric_limits<double>::infinity();

/// A group that was forgotten here may hold nothing, so that its first food tells.
constexpr Gruppengrenzen vergessen = {"", 0, {}};

/// What the richest unfortified foods of the group hold in the source, rounded up. Foods that are
/// richer by their nature carry an exception in their line.
const std::vector<Gruppengrenzen> &alleGrenzen()
{
    static const std::vector<Gruppengrenzen> grenzen = {
        {"Brot und Brötchen", 0, {80, 800, 450, 120, 400, 130, 4.5, 250, 0.6, 0.5, 0.6, 5}},
        {"Flocken und Müsli", 0, {1, 500, 1400, 70, 1200, 500, 16, 30, 2.5, 0.6, 1.2, 15}},
        {"Mehl und Teig", 0, {110, 800, 450, 50, 450, 200, 5, 300, 1, 0.5, 1, 2}},
        {"Getreide, Reis und Nudeln", 0, {90, 650, 800, 160, 600, 250, 9, 120, 0.8, 0.5, 0.8, 6}},
        {"Kartoffeln", 0, {130, 400, 600, 60, 90, 35, 0.7, 120, 0.3, 0.5, 0.8, 30}},
        {"Hülsenfrüchte", 0, {0, 10, 1800, 200, 550, 220, 8, 70, 1.2, 0.6, 1.2, 40}},
        {"Gemüse", 0, {0, 1100, 1600, 250, 150, 120, 3, 1500, 0.7, 0.5, 1.3, 170}},
        {"Pilze", 0, {0, 350, 550, 25, 160, 20, 7, 120, 0.4, 1.1, 0.2, 10}},
        {"Kräuter, Gewürze und Zutaten",
         0.1,
         {0, salz, 4100, 1300, 800, 600, 55, 1000, 0.7, 0.6, 2, 200}},
        {"Hefe", 0, {0, 80, 1500, 50, 1900, 250, 18, 5, 12.5, 5, 5, 1}},
        {"Obst", 0, {0, 30, 400, 130, 60, 30, 2, 500, 0.15, 0.15, 0.4, 220}},
        {"Obstkonserven und Kompott", 0, {0, 10, 200, 110, 20, 15, 0.3, 200, 0.1, 0.1, 0.15, 30}},
        {"Trockenobst", 0, {0, 120, 1400, 200, 110, 90, 2.5, 550, 0.25, 0.3, 1, 40}},
        {"Nüsse und Samen", 0, {0, 1300, 1000, 950, 1100, 550, 8.5, 50, 1.6, 1.3, 1, 10}},
        {"Eier", 0, {1300, 200, 150, 150, 600, 15, 5.5, 500, 0.25, 0.6, 0.4, 0}},
        {"Milch und Sahne", 0, {150, 600, 1600, 1300, 1100, 110, 1, 480, 0.4, 2.3, 0.4, 12}},
        {"Joghurt und Quark", 0, {60, 60, 220, 160, 150, 20, 0.3, 180, 0.1, 0.5, 0.2, 15}},
        {"Käse", 0, {130, 1800, 200, 1400, 1200, 45, 1, 550, 0.15, 1, 0.5, 1}},
        {"Fette und Öle", 0, {300, 120, 200, 120, 90, 15, 0.1, 1000, 0.1, 0.1, 0.1, 0}},
        {"Suppen und Soßen", 0, {190, 1200, 1100, 170, 160, 80, 2.5, 320, 0.3, 0.3, 0.4, 100}},
        {"Rind- und Kalbfleisch", 0, {130, 400, 400, 30, 300, 35, 4, 60, 0.4, 0.5, 1, 1}},
        {"Schweinefleisch", 0, {110, 350, 450, 15, 300, 30, 3, 60, 1.2, 0.5, 1, 1}},
        {"Lamm, Pferd und Wild", 0, {100, 100, 400, 20, 250, 35, 5, 40, 0.3, 0.7, 1.1, 1}},
        {"Geflügel und Kaninchen", 0, {110, 80, 400, 20, 250, 35, 2.5, 40, 0.2, 0.4, 1, 3}},
        {"Innereien", 0, {450, 200, 450, 15, 600, 25, 18, 20000, 0.5, 3.5, 1.2, 60}},
        {"Wurst und Schinken", 0.3, {120, 2800, 650, 70, 350, 60, 4.5, 40, 1, 0.7, 0.7, 75}},
        {"Fisch", 0, {90, 1700, 500, 600, 450, 40, 3, 80, 0.3, 0.5, 1, 5}},
        {"Krusten- und Weichtiere", 0, {250, 350, 350, 90, 250, 70, 6, 120, 0.2, 0.4, 0.4, 7}},
        {"Pflanzendrinks und Pflanzenjoghurt",
         0,
         {0, 40, 220, 40, 100, 50, 3.5, 10, 0.1, 0.3, 0.2, 2}},
        {"Tofu und Fleischersatz", 0, {1, 750, 700, 180, 300, 110, 3.5, 30, 0.4, 0.5, 0.4, 1}},
        {"Käseersatz", 0, {0, 750, 350, 50, 350, 150, 4, 20, 0.4, 0.1, 0.3, 1}},
        {"Gerichte mit Fleisch oder Fisch",
         2,
         {300, 1000, 350, 300, 400, 40, 3, 250, 0.5, 0.4, 0.5, 25}},
        {"Gerichte ohne Fleisch", 5, {350, 600, 400, 650, 450, 60, 2, 430, 0.3, 0.4, 0.3, 40}},
        {"Kuchen und Gebäck", 1, {300, 600, 600, 150, 350, 140, 4, 350, 0.5, 0.6, 0.4, 25}},
        {"Süßspeisen und Eis", 2, {150, 400, 300, 160, 200, 40, 2, 150, 0.2, 0.4, 0.4, 15}},
        {"Zucker und Süßwaren", 2.5, {30, 350, 1500, 500, 250, 160, 13, 160, 0.4, 0.8, 0.4, 30}},
        {"Knabbergebäck", 0, {50, 1800, 1100, 140, 300, 120, 3, 180, 0.5, 0.3, 1.3, 40}},
        {"Wasser, Kaffee und Tee", 0, {5, 10, 40, 15, 10, 5, 0.1, 50, 0.02, 0.05, 0.05, 1}},
        {"Saft und Erfrischungsgetränke",
         0,
         {0, 200, 250, 25, 40, 15, 0.5, 1000, 0.1, 0.1, 0.25, 60}},
        {"Bier", 4, {0, 5, 60, 5, 20, 15, 0.1, 1, 0.05, 0.1, 0.15, 1}},
        {"Wein und Spirituosen", 36, {0, 20, 120, 15, 15, 15, 1, 5, 0.05, 0.05, 0.1, 1}},
    };
    return grenzen;
}

} // namespace

const Gruppengrenzen &gruppengrenzen(const Lebensmittelgruppe &gruppe)
{
    const auto &alle = alleGrenzen();
    const auto gefunden = std::find_if(alle.begin(), alle.end(), [&](const Gruppengrenzen &eine) {
        return qstrcmp(eine.gruppe, gruppe.name) == 0;
    });
    return gefunden == alle.end() ? vergessen : *gefunden;
}
