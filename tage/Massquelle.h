#pragma once

#include "EigeneMasse.h"
#include "Portionentabelle.h"

/// All household measures of a food, whoever gave them to it: those that the user entered before
/// the built-in ones. Both sources outlive this.
class Massquelle
{
public:
    Massquelle(const Portionentabelle &eingebaute, const EigeneMasse &eigene)
        : m_eingebaute(eingebaute)
        , m_eigene(eigene)
    {
    }

    /// An own measure takes the place of a built-in one that has one of its names, in either
    /// language: "1 Tasse" must have one meaning.
    QList<Mass> masseFuer(const QString &schluessel) const;

private:
    const Portionentabelle &m_eingebaute;
    const EigeneMasse &m_eigene;
};
