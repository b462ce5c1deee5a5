#pragma once

#include "Speise.h"
#include "Weglassgruppen.h"
#include "Wertungswunsch.h"
#include "Zielbereich.h"

#include <QSet>

#include <array>
#include <optional>

/// A food that may be suggested.
struct Vorschlagskandidat
{
    QString schluessel;
    Datenmodul lebensmittel;
    /// Of its usual portion; 0 when it has none, and then it is suggested in place of others alone.
    double gramm = 0;
    QString angabe = {}; ///< the portion as it is said, such as "1 Scheibe"
};
using Kandidaten = QList<Vorschlagskandidat>;

/// What may be suggested.
struct Vorschlagsbedingungen
{
    std::array<Wertungswunsch, anzahlWertungen> wertungen = {}; ///< in the order of `Wertung`
    Weglassgruppen ohne = {};
    QSet<QString> gestrichen = {}; ///< keys of foods that are not to be named

    bool operator==(const Vorschlagsbedingungen &) const = default;
};

/// What is eaten and what it should come to. It refers to what outlives the call.
struct Vorschlagsgrundlage
{
    const Speisen &speisen;
    const Zielbereiche &ziele;
    const Stoffwissen &wissen;
};

/// How much of something is eaten, and how far that is from its range.
struct Abweichung
{
    Zielbereich ziel;
    double wert = 0;      ///< what is eaten, so far as it is known
    double unbekannt = 0; ///< the part of the grams of which it is not known, 0 to 1
    Lage lage = Lage::Richtig;
    double fehlt = 0;  ///< up to the lower end; below 0: so much is too much
    double anteil = 0; ///< the same as a part of that end, over 0

    bool operator==(const Abweichung &) const = default;
};

/// A food that would help.
struct Vorschlag
{
    /// The food and how much of it. `ort` is that of the row whose place it takes.
    Speise speise;
    QString angabe = {}; ///< as it is said, such as "1 Scheibe"; empty: in grams
    /// Which of the foods that are eaten gives up its place, counted from 0; -1: none does.
    int zeile = -1;
    double aenderung = 0; ///< by how much it changes the aim, in its unit; below 0: less
    /// How much of the gap it closes, 0 to 1; without an aim 0.
    double geschlossen = 0;
    double unbekannt = 0; ///< the part of its grams of which the aim is not known, 0 to 1
    double punkte = 0;    ///< what the order goes by, see `docs/suggestions.md`
};

struct Vorschlagsliste
{
    QList<Vorschlag> vorschlaege; ///< the best first
    int ohneAngabe = 0;           ///< foods left out for want of a figure for the aim
    /// Own foods left out because nobody knows whether they hold what is left out.
    int unbeurteilt = 0;
};

/// What a suggestion changes of one aim.
struct Wirkung
{
    enum class Richtung { Gleich, Besser, Schlechter };

    Zielbereich ziel;
    double vorher = 0;
    double nachher = 0;
    /// The part of the suggested food's grams of which it is not known, 0 to 1.
    double unbekannt = 0;
    Richtung richtung = Richtung::Gleich;
    /// The part of the grams of what is eaten of which it is not known, 0 to 1.
    double vorherUnbekannt = 0;
};

/// More than these of one food group would leave no room for others.
inline constexpr int hoechstensJeGruppe = 3;
/// More than these nobody reads.
inline constexpr int hoechstensVorschlaege = 20;
/// A suggestion closes this part of the gap at least, or is worth as much without an aim; less is
/// none.
inline constexpr double mindestensGeschlossen = 0.05;
/// What changes an aim by less than this part of its end is called neither better nor worse.
inline constexpr double mindestensSpuerbar = 0.005;

/// How far an amount is from its range, as a part of the end that it misses; 0 within. Of energy
/// more than enough is too much, whether the range has an upper end or not. Nobody is short of
/// sodium, salt, cholesterol, sugars, saturated fat, alcohol or uric acid. Where the end is 0, each
/// unit counts as a whole.
double abstand(const Zielbereich &ziel, double wert);

/// What is short or too much, the farthest from its range first, as a part of it.
QList<Abweichung> abweichungen(const Vorschlagsgrundlage &grundlage);

/// What would help with one of the aims. When it is short, foods in their usual portion that come
/// in besides; when it is too much, foods that take the place of one of their kind, gram for gram.
/// Nothing helps where the aim has no range or is within it. No suggestion makes the aim worse, nor
/// brings anything above an upper level that was not. The same input gives the same list.
Vorschlagsliste vorschlaege(const Vorschlagsgrundlage &grundlage, Kenngroesse ziel,
                            const Kandidaten &kandidaten, const Vorschlagsbedingungen &bedingungen);

/// What could take the place of one of the foods that are eaten, counted from 0, gram for gram:
/// foods of its kind that do better for the aim, or, without an aim, for all of them together.
/// Nothing takes the place of a food that is in no store, has no kind, or weighs nothing.
Vorschlagsliste stattZeile(const Vorschlagsgrundlage &grundlage, int zeile,
                           std::optional<Kenngroesse> ziel, const Kandidaten &kandidaten,
                           const Vorschlagsbedingungen &bedingungen);

/// What a suggestion does to each of the aims, in their order.
QList<Wirkung> wirkung(const Vorschlagsgrundlage &grundlage, const Vorschlag &vorschlag);
