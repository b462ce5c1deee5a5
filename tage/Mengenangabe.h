#pragma once

#include "Mass.h"
#include "Zahlenform.h"
#include "Zweisprachig.h"

#include <QList>

#include <optional>

/// How much of a food was eaten, as one says it: "2 Scheiben", "½ Tasse", "150 g".
struct Mengenangabe
{
    /// Why a text is no amount.
    enum class Fehler {
        KeineZahl,      ///< nothing, or what begins like a number and is none, such as "1,2,3"
        MassUnbekannt,  ///< the food has no such measure, or none was named
        MassMehrdeutig, ///< several of the food's measures begin so
        Negativ,
        Null,
        Unendlich, ///< a fraction over 0
        ZuViel,    ///< more than 100 kg
    };

    double anzahl = 0;             ///< of the measure; without one, grams
    std::optional<Mass> mass = {}; ///< absent: plain grams
    /// Count times the grams of one, worked out in double precision and rounded once.
    float gramm = 0;

    bool operator==(const Mengenangabe &) const = default;
};

/// Either the amount or why there is none.
struct Mengenergebnis
{
    std::optional<Mengenangabe> angabe = {};
    std::optional<Mengenangabe::Fehler> fehler = {};

    bool operator==(const Mengenergebnis &) const = default;
};

/// Understands an amount of a food that has these measures, in German or English, whatever the
/// language on screen: a count in digits ("1,5", "1 1/2", "½") or words ("zwei", "half a"), and a
/// measure by its name, a usual short form, or a beginning that only one of the measures has. A
/// measure alone means one of it, digits alone mean grams; a fraction or a word alone means
/// nothing. g and kg fit every food; cl, dl and l those that are measured in ml.
Mengenergebnis leseMenge(const QString &text, const QList<Mass> &masse);

/// The amount without its weight, as one tells a client: "2 Scheiben", "1½ EL". Numbers are written
/// as everywhere on screen, unless it is for people of another country.
QString mengentext(const Mengenangabe &angabe, Regelsprache sprache,
                   const QLocale &land = zahlenform());

/// The amount with its weight: "½ Tasse (62,5 g)"; for plain grams only these.
QString mengentextMitGramm(const Mengenangabe &angabe, Regelsprache sprache,
                           const QLocale &land = zahlenform());

/// What is said to the user about a text that is no amount.
QString fehlertext(Mengenangabe::Fehler fehler);
