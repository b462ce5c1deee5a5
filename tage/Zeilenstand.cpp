#include "Zeilenstand.h"

Zeilenstand zeilenstand(const Mahlzeitzeile &zeile, const Speisenachschlag &heute)
{
    if (zeile.schluessel.isNull()) {
        return Zeilenstand::WieHeute;
    }
    const Datenmodul *speise = heute(zeile.schluessel);
    if (speise == nullptr) {
        return zeile.eintrag ? Zeilenstand::Fort : Zeilenstand::WieHeute;
    }
    return zeile.eintrag && gleicherInhalt(*zeile.eintrag, *speise) ? Zeilenstand::WieHeute
                                                                    : Zeilenstand::Veraendert;
}

Werteabgleich uebernimmHeutigeWerte(Aufzeichnung &aufzeichnung, const Speisenachschlag &heute)
{
    Werteabgleich abgleich;
    for (Tag &tag : aufzeichnung.tage) {
        for (Mahlzeit &mahlzeit : tag.mahlzeiten) {
            for (Mahlzeitzeile &zeile : mahlzeit.zeilen) {
                const Zeilenstand stand = zeilenstand(zeile, heute);
                if (stand == Zeilenstand::Veraendert) {
                    zeile.eintrag = *heute(zeile.schluessel);
                    ++abgleich.uebernommen;
                } else if (stand == Zeilenstand::Fort &&
                           !abgleich.fort.contains(zeile.schluessel)) {
                    abgleich.fort << zeile.schluessel;
                }
            }
        }
    }
    return abgleich;
}
