#pragma once

#include "Portionendatei.h"

#include <QHash>

#include <optional>

/// Tells the household measures of the built-in foods. The tables are read when the first measure
/// is asked for, so that nobody waits for them who asks for none.
class Portionentabelle
{
public:
    /// `portionen` and `lebensmittel` are the paths of the two tables, files or resources.
    Portionentabelle(QString portionen, QString lebensmittel)
        : m_portionen(std::move(portionen))
        , m_lebensmittel(std::move(lebensmittel))
    {
    }

    /// The measures of the built-in food of that key, its German name; the most specific first.
    /// Empty for a food that the table lacks, and for all foods while a table is missing or
    /// damaged: half a table might give a food the measure of its group where it has one of its
    /// own.
    QList<Mass> masseFuer(const QString &schluessel) const;

    /// Why there are no measures at all, in English: "Portionen.csv:12: 9 fields instead of 10";
    /// absent when all is well.
    QString hindernis() const;

private:
    struct Gelesenes
    {
        QHash<QString, QString> gruppen;                ///< of the foods, by their keys
        QHash<QString, QList<Portionszeile>> portionen; ///< by the names of their groups
        QString hindernis;
    };

    const Gelesenes &gelesen() const;

    QString m_portionen;
    QString m_lebensmittel;
    mutable std::optional<Gelesenes> m_gelesen; ///< absent until asked for
};
