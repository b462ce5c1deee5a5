#pragma once

#include "Lebensmittelgruppe.h"

#include <QHash>
#include <QList>

#include <cstddef>

/// The lines of a table that speaks of foods, by the food group that each of them names, and in
/// their order. A `Zeile` has the group's name in `gruppe`; a `Regel` is made of a `Zeile`, and is
/// the line as it is asked.
template <typename Regel, typename Zeile, std::size_t anzahl>
QHash<const Lebensmittelgruppe *, QList<Regel>> nachGruppe(const Zeile (&zeilen)[anzahl])
{
    QHash<const Lebensmittelgruppe *, QList<Regel>> alle;
    for (const Zeile &zeile : zeilen) {
        alle[lebensmittelgruppe(QString::fromUtf8(zeile.gruppe))].append(Regel(zeile));
    }
    return alle;
}
