#pragma once

#include "Datenmodul.h"

#include <QString>

/// What a meal plan is told about the user's own foods.
class Plantuer
{
public:
    virtual ~Plantuer() = default;

    /// An own food was saved, with these values and ratings under this name.
    virtual void umschreibungMitName(const Datenmodul &lebensmittel) = 0;

    /// The own food of this name was deleted.
    virtual void loeschenvonkundeneintraegen(const QString &name) = 0;

protected:
    Plantuer() = default;
    Plantuer(const Plantuer &) = default;
    Plantuer &operator=(const Plantuer &) = default;
};
