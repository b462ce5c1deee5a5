#pragma once

#include "Mass.h"
#include "Zweisprachig.h"

#include <QList>

#include <optional>

/// A household measure as somebody types it, before anybody has looked at it.
struct Masseingabe
{
    QString eines = {};
    QString viele = {};
    QString einesEn = {};
    QString vieleEn = {};
    QString gramm = {}; ///< of one, as any amount in grams is typed: "125", "62,5 g"

    /// Whether nothing was typed at all.
    bool leer() const;
};

/// Either the measure or why there is none, as a sentence in the language of the windows.
struct Massbefund
{
    std::optional<Mass> mass = {};
    QString einwand = {};

    bool operator==(const Massbefund &) const = default;
};

/// Longer names leave no room for anything beside them in the table of a day.
constexpr qsizetype meisteZeichen = 40;

/// How a measure stands in the fields into which it is typed.
Masseingabe alsEingabe(const Mass &mass);

/// Looks at what was typed for a food whose other own measures are `andere`. Only the German name
/// of one and the grams are needed: several are called as one is, and in English as in German. A
/// name must be read as this measure and nothing else wherever an amount is typed, alone and behind
/// a number.
Massbefund pruefeMass(const Masseingabe &eingabe, const QList<Mass> &andere);

/// Whether two measures have a name in common, in either language and however it is written.
bool gleichBenannt(const Mass &eines, const Mass &anderes);

/// Shows with two of them how a measure is read: "2 Gläser = 400 g".
QString massbeispiel(const Mass &mass, Regelsprache sprache);
