#pragma once

#include "Merkablage.h"
#include "Namenswechsel.h"
#include "Rezept.h"

#include <optional>

/// The recipes of the user's own foods. The states of ten days are kept of their file. The recipe
/// of a food that is gone stays, since the food may come back, and nobody sees it meanwhile.
class Rezeptablage : public Merkablage
{
    Q_OBJECT

public:
    /// `wechsel` leads from the former names of built-in foods to those of today, for those among
    /// the ingredients. A name that an own food has must not be among the former ones.
    explicit Rezeptablage(const QString &path, Namenswechsel wechsel = {});

    /// All recipes, those of foods that are gone among them.
    const Rezepte &alle() const
    {
        lies();
        return m_rezepte;
    }
    /// The recipes of these own foods.
    Rezepte rezepteFuer(const Lebensmittelverzeichnis &eigene) const;
    /// How the food with that key was cooked; absent for one without a recipe.
    std::optional<Rezept> rezept(const QString &schluessel) const;

    /// Keeps these recipes in place of those that their foods had. False: it could not be written;
    /// or the file is locked, or one of them can't be reckoned or leads in a circle, and nothing
    /// has changed.
    bool setze(const QList<Rezept> &rezepte);
    bool setze(const Rezept &rezept) { return setze(QList{rezept}); }
    /// Takes the recipe of a food out; the food is none of its business. False: as above.
    bool nimmHeraus(const QString &schluessel);

private:
    bool nimmAuf(const QJsonArray &eintraege) const override;
    QJsonArray eintraege() const override;
    Saetze saetze() const override;

    bool stelleEin(const Rezepte &rezepte);

    Namenswechsel m_wechsel;
    mutable Rezepte m_rezepte;
};
