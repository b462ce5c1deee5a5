#pragma once

#include "Tabellenprobe.h"
#include "Tabellenpruefung.h"

/// What the tests compare the food table with.
namespace Vergleichsprobe {

/// The source's figures and the published purines as they ship.
inline const Tabellenpruefung::Vergleichswerte &ausgeliefert()
{
    static const Tabellenpruefung::Vergleichswerte vergleich = {
        Quellenvergleich::lesen(Tabellenprobe::dateiinhalt(QUELLWERTE)).werte,
        Purinpruefung::lesen(Tabellenprobe::dateiinhalt(PURINE)).purine};
    return vergleich;
}

/// The same, but with a source that agrees with these lines, so that what the lines say of
/// themselves can be tested alone.
inline Tabellenpruefung::Vergleichswerte einigMit(const Tabelle &tabelle)
{
    Tabellenpruefung::Vergleichswerte vergleich = ausgeliefert();
    for (const Tabellenzeile &zeile : tabelle) {
        Quelleintrag &eintrag = vergleich.quelle[zeile.quelle];
        eintrag.werte = zeile.werte;
        eintrag.zucker = zeile.zucker;
        eintrag.gesaettigt = zeile.gesaettigt;
        eintrag.alkohol = zeile.alkohol;
    }
    return vergleich;
}

/// The checks that object, each once.
inline QStringList regeln(const Beanstandungen &beanstandungen)
{
    QStringList liste;
    for (const Beanstandung &eine : beanstandungen) {
        liste.append(eine.regel);
    }
    liste.removeDuplicates();
    return liste;
}

} // namespace Vergleichsprobe
