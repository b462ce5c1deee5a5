#include "Speise.h"

#include <cmath>

double zaehlendeGramm(const Speise &speise)
{
    return std::isfinite(speise.gramm) && speise.gramm > 0 ? speise.gramm : 0;
}

Stoffangabe stoffangabe(const Speise &speise, Kenngroesse groesse, const Stoffwissen &wissen)
{
    if (!speise.lebensmittel) {
        return {.wert = 0, .unbekannt = 1};
    }
    const Stoffangabe je100g = wissen.je100g(speise.schluessel, *speise.lebensmittel, groesse);
    return {je100g.wert * zaehlendeGramm(speise) / 100, je100g.unbekannt};
}

Stoffsumme summiere(const Speisen &speisen, Kenngroesse groesse, const Stoffwissen &wissen)
{
    return summiere(speisen, [groesse, &wissen](const Speise &eine) {
        return stoffangabe(eine, groesse, wissen);
    });
}

Stoffsumme summiere(const Speisen &speisen,
                    const std::function<Stoffangabe(const Speise &)> &angabeVon)
{
    Stoffsumme summe;
    double alle = 0;
    double ungewusst = 0;
    for (const Speise &eine : speisen) {
        const double gramm = zaehlendeGramm(eine);
        if (gramm == 0) {
            continue;
        }
        const Stoffangabe angabe = angabeVon(eine);
        summe.wert += angabe.wert;
        alle += gramm;
        ungewusst += gramm * angabe.unbekannt;
        if (angabe.unbekannt > 0 && !summe.unbekannte.contains(eine.schluessel)) {
            summe.unbekannte << eine.schluessel;
        }
    }
    summe.unbekannt = alle > 0 ? ungewusst / alle : 0;
    return summe;
}
