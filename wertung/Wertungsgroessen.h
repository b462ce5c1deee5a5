#pragma once

#include "Tabellenzeile.h"
#include "Zweisprachig.h"

#include <array>

/// What a rating rule can ask for in figures, per 100 g ready to eat.
enum class Groesse {
    Energie,                     ///< kcal
    Fett,                        ///< g
    Gesaettigt,                  ///< saturated fat, g
    GesaettigtAnteil,            ///< saturated fat in percent of fat
    Kohlenhydrate,               ///< available carbohydrate, g
    KohlenhydrateJeBallaststoff, ///< g of available carbohydrate for each g of fibre
    Ballaststoffe,               ///< g
    Zucker,                      ///< all sugars, g
    FreierZucker,                ///< sugars that are not the food's own, g
    FreierZuckerAnteil,          ///< energy from free sugars in percent
    Fruktosezucker,              ///< sugars of which half is fructose, g
    Cholesterin,                 ///< mg
    Natrium,                     ///< mg
    Alkohol,                     ///< g
    Harnsaeure,                  ///< uric acid from purines, mg
};
inline constexpr std::size_t anzahlGroessen = static_cast<std::size_t>(Groesse::Harnsaeure) + 1;

/// How a figure is called and counted where a rating is explained.
struct Groessenbeschreibung
{
    Groesse groesse;
    Zweisprachig name;
    const char *einheit;
};

/// All of them, in the order of the enumeration.
extern const std::array<Groessenbeschreibung, anzahlGroessen> groessen;

/// A food as the rating rules see it.
struct Wertungsgroessen
{
    std::array<double, anzahlGroessen> zahlen = {};
    Merkmale merkmale;
    /// Stands for the uric acid where nobody published a figure; that then has no meaning of its
    /// own.
    std::optional<Purinklasse> purinklasse;

    double zahl(Groesse groesse) const { return zahlen[static_cast<std::size_t>(groesse)]; }
};

/// The most free sugars, in g per 100 g, of a food that is low in them: liquids may hold less.
double zuckerarmgrenze(Merkmale merkmale);

/// Works out what the rules ask for from a line of the table.
Wertungsgroessen wertungsgroessen(const Tabellenzeile &zeile);
