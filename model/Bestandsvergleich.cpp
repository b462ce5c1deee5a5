#include "Bestandsvergleich.h"

#include <algorithm>
#include <bit>

namespace {

bool gleicherText(const QString &einer, const QString &anderer)
{
    return einer == anderer && einer.isNull() == anderer.isNull();
}

} // namespace

bool gleich(const Datenmodul &eines, const Datenmodul &anderes)
{
    const bool werte = std::all_of(naehrwerte.begin(), naehrwerte.end(), [&](const auto &zeile) {
        return std::bit_cast<quint32>(eines.wert(zeile.wert)) ==
               std::bit_cast<quint32>(anderes.wert(zeile.wert));
    });
    return werte && gleicherText(eines.name(), anderes.name()) &&
           std::all_of(wertungen.begin(), wertungen.end(), [&](const auto &zeile) {
               return gleicherText(eines.wertung(zeile.wertung), anderes.wertung(zeile.wertung));
           });
}

Bestandsunterschied vergleiche(const Lebensmittelverzeichnis &erster,
                               const Lebensmittelverzeichnis &zweiter)
{
    Bestandsunterschied unterschied;
    if (erster.isSharedWith(zweiter)) {
        return unterschied;
    }
    // Both are walked by name, side by side.
    auto hier = erster.cbegin();
    auto dort = zweiter.cbegin();
    while (hier != erster.cend() || dort != zweiter.cend()) {
        const bool nurHier =
            dort == zweiter.cend() || (hier != erster.cend() && hier.key() < dort.key());
        const bool nurDort =
            hier == erster.cend() || (dort != zweiter.cend() && dort.key() < hier.key());
        if (nurHier) {
            unterschied.fehlend << (hier++).key();
        } else if (nurDort) {
            unterschied.zusaetzlich << (dort++).key();
        } else {
            if (!gleich(*hier, *dort)) {
                unterschied.anders << hier.key();
            }
            ++hier;
            ++dort;
        }
    }
    return unterschied;
}
