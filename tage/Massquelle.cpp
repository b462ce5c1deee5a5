#include "Massquelle.h"

#include "Masspruefung.h"

#include <algorithm>

QList<Mass> Massquelle::masseFuer(const QString &schluessel) const
{
    QList<Mass> masse = m_eigene.masseFuer(schluessel);
    const qsizetype eigene = masse.size();
    for (const Mass &eingebautes : m_eingebaute.masseFuer(schluessel)) {
        if (std::none_of(masse.cbegin(), masse.cbegin() + eigene, [&](const Mass &eigenes) {
                return gleichBenannt(eigenes, eingebautes);
            })) {
            masse << eingebautes;
        }
    }
    return masse;
}
