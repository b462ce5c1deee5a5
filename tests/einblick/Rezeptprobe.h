#pragma once

#include "Rezept.h"

/// A recipe with everything in it.
namespace Rezeptprobe {

inline Datenmodul satz(const QString &name, float kal, float kh = 0)
{
    Datenmodul eines;
    eines.setName(name);
    eines.setkal(kal);
    eines.setkh(kh);
    return eines;
}

/// 100 g of bread at 250 kcal and 300 g of milk at 66 kcal.
inline Rezept brotsuppe(const QString &name = QStringLiteral("Omas \"Brotsuppe\""))
{
    Rezept rezept;
    rezept.schluessel = name;
    rezept.zutaten = {{QStringLiteral("Brot"), 100, satz(QStringLiteral("Brot"), 250, 48)},
                      {QStringLiteral("Milch"), 300, satz(QStringLiteral("Milch"), 66, 5)}};
    return rezept;
}

inline Rezept volle()
{
    Rezept rezept = brotsuppe();
    rezept.zutaten[0].gramm = 0.1 + 0.2;
    rezept.zutaten[0].satz.setvitc(0.1F);
    rezept.zutaten[0].satz.sethkk(QStringLiteral("0"));
    rezept.fertiggewicht = 299.5;
    rezept.portionen = 2.5;
    rezept.folgt = false;
    rezept.gruppe = QStringLiteral("Suppen und Soßen");
    rezept.wertungen[stelle(Wertung::gicht)] = QStringLiteral("-");
    rezept.notiz = QStringLiteral("mit Brotrinde;\nlange ziehen lassen");
    rezept.gegeben = satz(rezept.schluessel, 66.1F, 5);
    rezept.gegeben.setuebergewicht(QStringLiteral("+"));
    return rezept;
}

} // namespace Rezeptprobe
