#include "Plansummen.h"

#include "Planregeln.h"

#include <cmath>

std::optional<double> Plansummen::rest(Naehrwert wert) const
{
    constexpr double genauigkeit = 1e-6;
    const std::optional<double> &gewollt = bedarf[stelle(wert)];
    if (!gewollt) {
        return std::nullopt;
    }
    const double uebrig = *gewollt - static_cast<double>(summe[stelle(wert)]);
    return std::abs(uebrig) < genauigkeit * *gewollt ? 0.0 : uebrig;
}

Plansummen plansummen(std::span<const Planzeile> zeilen, std::int32_t energiebedarf)
{
    Plansummen summen;
    for (const Planzeile &zeile : zeilen) {
        if (zeile.lebensmittel == nullptr) {
            ++summen.ohneWerte;
            continue;
        }
        summen.menge += zeile.menge;
        for (const auto &eine : naehrwerte) {
            summen.summe[stelle(eine.wert)] +=
                zeile.lebensmittel->wert(eine.wert) * zeile.menge / 100.0F;
        }
    }
    for (const Planregel &regel : planregeln) {
        summen.bedarf[stelle(regel.wert)] = planbedarf(regel.bezug, energiebedarf);
    }
    return summen;
}
