#pragma once

#include "Naehrwerte.h"

#include <QList>
#include <QString>
#include <QStringList>

/// What a column of numbers is given in.
enum class Lesemass { Kilokalorie, Kilojoule, Gramm, Milligramm, Mikrogramm, GrammSalz };

/// What a column of a table means.
struct Spaltensinn
{
    enum class Art {
        Nichts, ///< it is not taken over
        Name,
        Wert,
        Wertung,
        Portion ///< the weight in g of the portion that the values of the row are for
    };
    Art art = Art::Nichts;
    Naehrwert wert = Naehrwert::kal;
    Lesemass mass = Lesemass::Gramm;
    Wertung wertung = Wertung::uebergewicht;

    /// Whether both fill the same place of a record, in whatever unit.
    bool gleichesZiel(const Spaltensinn &anderer) const;
    bool operator==(const Spaltensinn &) const = default;
};

/// All that a column can mean, in the order in which it is offered: nothing first.
const QList<Spaltensinn> &alleSpaltensinne();

/// The meaning in the language of the windows, with its unit: "Natrium (mg)", "Salz (g)".
QString inWorten(const Spaltensinn &sinn);

/// A figure in the unit in which the record holds the value. Energy goes by the program's own
/// factor; 1 g of salt on a label stands for 400 mg of sodium.
double imEigenenMass(double zahl, const Spaltensinn &sinn);
/// Whether figures of this column are held as they stand.
bool istEigenesMass(const Spaltensinn &sinn);

/// What the headings tell.
struct Spaltendeutung
{
    QList<Spaltensinn> spalten;
    bool jePortion = false; ///< the values are for a portion
};

/// Guesses what the columns mean from their headings, German or English: the words in any case,
/// common short forms, units in brackets or behind the word, "je 100 g" and "per portion" as well.
/// Each place of a record is filled once: by the column in the unit of the record, else by the
/// first one; values per 100 g go before those per portion. What isn't understood to the last word
/// means nothing: "davon Zucker" is no carbohydrate.
Spaltendeutung deuteUeberschriften(const QStringList &ueberschriften);
