#include "Massquelle.h"

#include "Masspruefung.h"

#include <algorithm>

QList<Mass> Massquelle::masseFuer(const QString &schluessel) const
{
    const QList<Mass> eigene = m_eigene.masseFuer(schluessel);
    QList<Mass> masse = eigene;
    for (const Mass &eingebautes : m_eingebaute.masseFuer(schluessel)) {
        if (std::none_of(eigene.begin(), eigene.end(), [&](const Mass &eigenes) {
                return gleichBenannt(eigenes, eingebautes);
            })) {
            masse << eingebautes;
        }
    }
    return masse;
}
