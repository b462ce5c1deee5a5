#pragma once

#include "Mass.h"
#include "Merkablage.h"
#include "Namenswechsel.h"

#include <QMap>

/// The household measures that the user gave foods: own foods, which have no others, and built-in
/// ones, for the practice's own cup. Measures of a food that is gone stay, since it may come back,
/// and nobody sees them meanwhile.
class EigeneMasse : public Merkablage
{
    Q_OBJECT

public:
    /// `wechsel` leads from the former names of built-in foods to those of today. A name that an
    /// own food has must not be among the former ones: that food would lose its measures.
    explicit EigeneMasse(const QString &path, Namenswechsel wechsel = {});

    /// The measures of the food with that key in the order in which they were entered; none for a
    /// food that was given none.
    QList<Mass> masseFuer(const QString &schluessel) const;

    /// Gives the food these measures in place of those that it had; none take it out. False: it
    /// could not be written, or the file is locked and nothing has changed.
    bool setze(const QString &schluessel, const QList<Mass> &masse);

private:
    bool nimmAuf(const QJsonArray &eintraege) const override;
    QJsonArray eintraege() const override;
    Saetze saetze() const override;

    Namenswechsel m_wechsel;
    mutable QMap<QString, QList<Mass>> m_masse; ///< by the keys of the foods
};
