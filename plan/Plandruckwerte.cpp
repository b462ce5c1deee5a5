#include "Plandruckwerte.h"

#include "Ganzzahl.h"

std::int32_t druckwert(const Planzeile &zeile, Naehrwert wert)
{
    if (zeile.lebensmittel == nullptr) {
        return 0;
    }
    const float menge = zeile.lebensmittel->wert(wert) * (zeile.menge / 100.0F);
    return ganzzahl(static_cast<double>(menge));
}

QList<std::int32_t> druckwerte(std::span<const Planzeile> zeilen, Naehrwert wert)
{
    QList<std::int32_t> werte;
    for (const Planzeile &zeile : zeilen) {
        werte << druckwert(zeile, wert);
    }
    return werte;
}

QStringList druckwertungen(std::span<const Planzeile> zeilen, Wertung wertung)
{
    QStringList texte;
    for (const Planzeile &zeile : zeilen) {
        texte << (zeile.lebensmittel == nullptr ? QString() : zeile.lebensmittel->wertung(wertung));
    }
    return texte;
}
