#include "Angabenpruefung.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int hoechstesAlter = 130; // years; the oldest person known became 122

/// What people measure, with room for the rare: outside of it a point or a unit was forgotten.
constexpr double kleinstesGewicht = 20; // kg; the calculator asks nobody below ten years of age
constexpr double groesstesGewicht = 350;
constexpr double kleinsteGroesse = 0.9; // m
constexpr double groessteGroesse = 2.3;
constexpr double kleinsterUmfang = 40; // cm
constexpr double groessterUmfang = 250;

/// From one visit to the next: so much at once, and so much more for each week that lies between.
constexpr double gewichtssprung = 8;    // kg
constexpr double gewichtJeWoche = 2;    // kg
constexpr double groessensprung = 0.05; // m; in grown-ups the tape, in children a year
constexpr double groesseJeWoche = 0.002;

struct Grenzen
{
    Zweifel::Art art;
    std::optional<double> Besuch::*mass;
    double von;
    double bis;
};

constexpr Grenzen grenzen[] = {
    {Zweifel::Art::Gewicht, &Besuch::gewicht, kleinstesGewicht, groesstesGewicht},
    {Zweifel::Art::Groesse, &Besuch::groesse, kleinsteGroesse, groessteGroesse},
    {Zweifel::Art::Taille, &Besuch::taille, kleinsterUmfang, groessterUmfang},
    {Zweifel::Art::Huefte, &Besuch::huefte, kleinsterUmfang, groessterUmfang},
};

struct Sprung
{
    Zweifel::Art art;
    std::optional<double> Besuch::*mass;
    double sofort;
    double jeWoche;
};

constexpr Sprung spruenge[] = {
    {Zweifel::Art::Gewichtssprung, &Besuch::gewicht, gewichtssprung, gewichtJeWoche},
    {Zweifel::Art::Groessensprung, &Besuch::groesse, groessensprung, groesseJeWoche},
};

/// The latest visit before a day at which something was measured; null for none.
const Besuch *letzterMit(std::optional<double> Besuch::*mass, const Besuch &besuch,
                         const QList<Besuch> &andere)
{
    const Besuch *letzter = nullptr;
    for (const Besuch &anderer : andere) {
        const bool davor = anderer.datum <= besuch.datum && anderer.kennung != besuch.kennung;
        if (davor && (anderer.*mass) && (letzter == nullptr || letzter->datum <= anderer.datum)) {
            letzter = &anderer;
        }
    }
    return letzter;
}

std::optional<Zweifel> zweifelAm(const Sprung &sprung, const Besuch &besuch,
                                 const QList<Besuch> &andere)
{
    const std::optional<double> &jetzt = besuch.*sprung.mass;
    const Besuch *letzter = letzterMit(sprung.mass, besuch, andere);
    if (!jetzt || letzter == nullptr) {
        return std::nullopt;
    }
    const double vorher = *(letzter->*sprung.mass);
    const double wochen = static_cast<double>(letzter->datum.daysTo(besuch.datum)) / 7;
    if (std::abs(*jetzt - vorher) <= sprung.sofort + wochen * sprung.jeWoche) {
        return std::nullopt;
    }
    return Zweifel{sprung.art, *jetzt, vorher, letzter->datum};
}

} // namespace

QList<Personenmangel> maengel(const Person &person, const QDate &heute)
{
    QList<Personenmangel> alle;
    if (person.name.trimmed().isEmpty()) {
        alle << Personenmangel::NameFehlt;
    }
    if (person.geburt.isValid() && person.geburt > heute) {
        alle << Personenmangel::GeburtInZukunft;
    } else if (person.geburt.isValid() && person.geburt.addYears(hoechstesAlter) < heute) {
        alle << Personenmangel::GeburtUnmoeglich;
    }
    return alle;
}

QList<Zweifel> zweifel(const Besuch &besuch, const QList<Besuch> &andere, const QDate &geburt,
                       const QDate &heute)
{
    QList<Zweifel> alle;
    if (besuch.datum > heute) {
        alle.append({.art = Zweifel::Art::InZukunft});
    }
    if (geburt.isValid() && besuch.datum < geburt) {
        alle.append({.art = Zweifel::Art::VorGeburt});
    }
    for (const Grenzen &grenze : grenzen) {
        const std::optional<double> &mass = besuch.*grenze.mass;
        if (mass && (*mass < grenze.von || *mass > grenze.bis)) {
            alle.append({.art = grenze.art, .wert = *mass});
        }
    }
    for (const Sprung &sprung : spruenge) {
        if (const std::optional<Zweifel> einer = zweifelAm(sprung, besuch, andere)) {
            alle << *einer;
        }
    }
    return alle;
}

std::optional<int> alterAm(const QDate &tag, const QDate &geburt)
{
    if (!geburt.isValid() || geburt > tag) {
        return std::nullopt;
    }
    const bool vorDemTag =
        std::pair(tag.month(), tag.day()) < std::pair(geburt.month(), geburt.day());
    return tag.year() - geburt.year() - (vorDemTag ? 1 : 0);
}
