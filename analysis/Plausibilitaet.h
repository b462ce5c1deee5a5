#pragma once

#include "Datenmodul.h"

#include <QList>

/// What may be wrong with the figures of a food that somebody has typed in.
enum class Zweifel {
    EnergieZuKlein,  ///< less energy than its nutrients have
    EnergieZuGross,  ///< more energy than its nutrients have, and no drink with alcohol
    Ueber100Gramm,   ///< its parts weigh more than the food
    NatriumZuGross,  ///< so much salt has no room beside the other parts
    SalzStattNatrium ///< a label's grams of salt seem to stand where milligrams of sodium belong
};

/// One doubt with its figures.
struct Bedenken
{
    Zweifel zweifel;
    /// Energy: kcal. Parts: their sum in g. Sodium: mg; where salt seems to be meant, its g.
    double angegeben;
    /// Energy: kcal from the nutrients. Parts: 100 g. Sodium: g of salt; where salt seems to be
    /// meant, the mg of sodium in it.
    double errechnet;
};

/// What a dietitian would question about a food, values per 100 g; empty when its figures agree.
/// Nothing is refused for it: a source may know better. Protein and carbohydrate have 4 kcal per g,
/// fat 9, fibre 2. Labels round each figure, so small differences are passed over, and so is energy
/// that alcohol may give, in a drink. Energy alone is not questioned: then the rest is not known.
QList<Bedenken> bezweifeln(const Datenmodul &lebensmittel);
