#pragma once

#include "Datenmodul.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

/// The rows of a meal plan and the store from which its file is written. Both lists always have the
/// same length and are changed together. Where an operation is asked for a row that does not exist,
/// it ends there: what it changed before stays changed, and the answer is false, so that the caller
/// neither saves nor shows it.
class Planliste
{
public:
    /// Grams of a food that comes into the plan.
    static constexpr float mengenzahl = 100.0F;

    QStringList PlanArray;    ///< the foods' names, row by row
    QList<float> mengenarray; ///< the grams of each row

    /// From a food's name to a record of that name that carries the grams in `kal` and nothing
    /// else: the form of the plan file. A food that has left the rows without being saved may still
    /// stand here, and one that stands in the rows may be missing.
    Lebensmittelverzeichnis plansavedictionary;

    const QStringList &Arrayrausgeben() const { return PlanArray; }

    /// Takes over what was read from a plan file. The file knows no order, so the rows come in the
    /// plain order of their names; the digits of the grams behind the point fall away.
    void laden(const Lebensmittelverzeichnis &gesichert);

    /// Puts a food into the plan above this row and takes it out where it stood. Only when it stood
    /// nowhere or last does this run through; otherwise the list ends before all its former places
    /// were looked at, and the answer is false.
    bool einsetzen(const QString &name, qsizetype zeile);

    /// Puts a food at the end of the plan, with 100 g; where it stood before, it is taken away.
    void anhaengen(const QString &name);

    bool mengeAendern(qsizetype zeile, float gramm);
    bool zeileEntfernen(qsizetype zeile);

    /// Moves a row to another place; the rows between move up or down. All keep their grams.
    bool verschieben(qsizetype von, qsizetype nach);

    /// Gives a food another name in all its rows. They keep their places and their grams; what the
    /// store holds of it stands there under the new name.
    void umbenennen(const QString &alt, const QString &neu);

    /// The first row of a food; absent when it stands in none.
    std::optional<qsizetype> zeileVon(const QString &name) const;

private:
    bool enthaelt(qsizetype zeile) const { return zeile >= 0 && zeile < PlanArray.size(); }
    void streiche(qsizetype zeile);
    void eintragenzumplansaven(const QString &name, float gramm);
};
