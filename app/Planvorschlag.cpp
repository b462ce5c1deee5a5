#include "Planvorschlag.h"

#include <algorithm>
#include <cmath>

bool nimmInPlan(Planliste &liste, const Speisenaenderung &aenderung)
{
    const qsizetype statt = aenderung.ort;
    if (statt >= liste.PlanArray.size()) {
        return false;
    }
    float gramm = static_cast<float>(std::max(1.0, std::round(aenderung.gramm)));
    if (const std::optional<qsizetype> bisher = liste.zeileVon(aenderung.schluessel)) {
        if (*bisher != statt) {
            gramm += liste.mengenarray[*bisher];
        }
        liste.mengeAendern(*bisher, gramm);
        return statt < 0 || *bisher == statt || liste.zeileEntfernen(statt);
    }
    liste.anhaengen(aenderung.schluessel);
    liste.mengeAendern(liste.PlanArray.size() - 1, gramm);
    return statt < 0 ||
           (liste.zeileEntfernen(statt) && liste.verschieben(liste.PlanArray.size() - 1, statt));
}
