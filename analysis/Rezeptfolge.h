#pragma once

#include "Rezept.h"

#include <QStringList>

/// A dish that changes because one of its ingredients has. Where the own food holds already what it
/// should, only the recipe is to be kept.
struct Nachzug
{
    Rezept rezept;      ///< with the ingredients of today, and what it gives now
    Datenmodul vorher;  ///< the own food as it stands in its store
    Datenmodul nachher; ///< as it should stand there
};

/// What follows from the foods of today.
struct Nachzuege
{
    QList<Nachzug> folgende; ///< each after those that it is cooked from
    /// The dishes that would follow, but are not any more what their recipe gave: somebody has
    /// changed them by hand. In the same order, as the next.
    QStringList vonHandGeaenderte;
    /// The dishes that can't be reckoned from the ingredients of today.
    QStringList unmoegliche;

    bool istLeer() const
    {
        return folgende.isEmpty() && vonHandGeaenderte.isEmpty() && unmoegliche.isEmpty();
    }
};

/// Which dishes change when the foods are what these stores hold; a name is looked up among the
/// built-in foods first, as everywhere. Only recipes that are to follow are reckoned, with the
/// grams that they had, and only for an ingredient that is not what it was. An ingredient that is
/// gone stays as it was; a dish that is gone is nobody's to change. Nothing is changed here.
Nachzuege nachgezogen(const Rezepte &rezepte, const Lebensmittelverzeichnis &eingebaute,
                      const Lebensmittelverzeichnis &eigene, Stoffwissen wissen);

/// The recipe with its ingredients as they are today; one that is gone stays as it was.
Rezept mitHeutigen(Rezept rezept, const Lebensmittelverzeichnis &eingebaute,
                   const Lebensmittelverzeichnis &eigene);
