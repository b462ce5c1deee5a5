#pragma once

#include <QStringView>

#include <array>

/// One drink.
struct Getraenk
{
    QStringView deutsch;
    QStringView englisch; ///< null: the German name serves both languages
    float alkohol = 0;    ///< grams in 100 ml
    /// The English name under which the drink is known when the quantity is set, where that differs
    /// from the one under which it is chosen; null otherwise.
    QStringView englischBeiMenge = {};
    /// Line for the system log when the drink is recognised; null: none.
    QStringView protokollzeile = {};
};

/// All drinks. The last two are placeholders without alcohol.
extern const std::array<Getraenk, 100> getraenke;

/// The two occasions on which a drink is looked up.
enum class Alkoholanlass { Wahl, Menge };

/// The drink of this name, compared exactly, in either language; null when there is none. The light
/// dry red wine is spelled "red wine lightbodiedt" when chosen and "red wine lightbodied" when its
/// quantity is set.
const Getraenk *getraenk(QStringView name, Alkoholanlass anlass);
