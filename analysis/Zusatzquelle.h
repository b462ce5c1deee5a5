#pragma once

#include "Stoffwissen.h"

#include <optional>

/// Gives what is known of the built-in foods beside their records. The table is read when it is
/// asked for the first time, so that nobody waits for it who asks for none.
class Zusatzquelle
{
public:
    /// `pfad` is the path of the table, a file or a resource.
    explicit Zusatzquelle(QString pfad) : m_pfad(std::move(pfad)) {}

    /// What the table tells. With a missing or damaged table nothing beside the records is known of
    /// any food: half a table would call unknown what was published.
    const Stoffwissen &wissen() const { return gelesen().wissen; }

    /// Why nothing is known, in English: "Zusatzwerte.csv:12: 9 fields instead of 13"; absent when
    /// all is well.
    QString hindernis() const { return gelesen().hindernis; }

private:
    struct Gelesenes
    {
        Stoffwissen wissen;
        QString hindernis;
    };

    const Gelesenes &gelesen() const;

    QString m_pfad;
    mutable std::optional<Gelesenes> m_gelesen; ///< absent until asked for
};
