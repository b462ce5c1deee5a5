#pragma once

#include "Aufzeichnung.h"

/// Records of days for tests.
namespace Aufzeichnungsprobe {

/// A food of which these values are known, all others 0.
inline Datenmodul speise(const QString &name, float kal, float protein = 0, float fett = 0,
                         float kh = 0)
{
    Datenmodul eine;
    eine.setName(name);
    eine.setkal(kal);
    eine.setprotein(protein);
    eine.setfett(fett);
    eine.setkh(kh);
    return eine;
}

/// A row that counts.
inline Mahlzeitzeile zeile(const QString &name, float gramm, float kal = 100)
{
    Mahlzeitzeile eine;
    eine.schluessel = name;
    eine.angabe = QString::number(static_cast<double>(gramm));
    eine.gramm = gramm;
    eine.eintrag = speise(name, kal);
    return eine;
}

/// The same as an alternative.
inline Mahlzeitzeile oder(Mahlzeitzeile eine)
{
    eine.oder = true;
    return eine;
}

/// The names of the rows of a meal, with "|" before an alternative.
inline QString namen(const Aufzeichnung &aufzeichnung, int tag, int mahlzeit)
{
    QString alle;
    for (const Mahlzeitzeile &eine : aufzeichnung.tage[tag].mahlzeiten[mahlzeit].zeilen) {
        alle += (eine.oder ? QStringLiteral("|") : QString()) + eine.schluessel;
    }
    return alle;
}

} // namespace Aufzeichnungsprobe
