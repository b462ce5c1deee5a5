#pragma once

#include "Wertungsgroessen.h"

#include <QString>
#include <QStringList>

#include <vector>

/// How a figure is held against a limit.
enum class Vergleich { Unter, Hoechstens, Mindestens, Ueber };

/// One figure against one limit.
struct Bedingung
{
    Groesse groesse;
    Vergleich vergleich;
    double grenze;
};

/// One rule: what must be true of a food, the rating it then gets, and why. The page
/// docs/ratings.md says the same in the same words, so that a dietitian can check it.
struct Wertungsregel
{
    const char *kennung; ///< such as "G2"
    Wertung wertung;
    const char *urteil; ///< "+", "0" or "-"
    Zweisprachig satz;
    std::vector<const char *> quellen; ///< keys of `quellen()`
    Merkmale verlangt;
    Merkmale verboten;
    std::vector<Bedingung> bedingungen; ///< all of them must hold
};

/// A published recommendation from which a limit was taken.
struct Quelle
{
    const char *schluessel;
    const char *angabe; ///< authors, title, place and year
};

using Regelwerk = std::vector<Wertungsregel>;

/// All rules. Those of one rating stand together; the first that holds decides, and the last of
/// each rating always holds.
const Regelwerk &wertungsregeln();

/// All publications that the rules name.
const std::vector<Quelle> &quellen();

/// The publication of that key, or null when there is none.
const Quelle *quelle(const char *schluessel);

/// Whether a rule holds for a food.
bool gilt(const Wertungsregel &regel, const Wertungsgroessen &food);

/// The rule that decides a food's rating for one condition; null when none holds, which the build
/// rules out.
const Wertungsregel *entscheidendeRegel(Wertung wertung, const Wertungsgroessen &food,
                                        const Regelwerk &regeln = wertungsregeln());

/// How a comparison is said: "less than", "at most", "at least", "over".
QString vergleichswort(Vergleich vergleich, Regelsprache sprache = Regelsprache::Englisch);

/// Whether a figure keeps to a condition.
bool haelt(const Bedingung &bedingung, const Wertungsgroessen &food);
