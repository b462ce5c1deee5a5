#include "Klientenumzug.h"

Umzugsausgang nimmAlleAuf(Klientenspeicher &von, Klientenspeicher &nach,
                          const std::function<bool(qsizetype fertig, qsizetype alle)> &weiter)
{
    Umzugsausgang ausgang;
    QList<Personenzeile> personen;
    ausgang.hindernis = von.personen(personen);
    qsizetype fertig = 0;
    for (const Personenzeile &person : personen) {
        if (!weiter(fertig, personen.size())) {
            return ausgang;
        }
        std::optional<Klientenakte> akte;
        ausgang.hindernis = von.akte(person.kennung, akte);
        if (!ausgang.hindernis) {
            return ausgang;
        }
        if (akte) { // nobody has deleted them meanwhile
            const Schreibausgang geschrieben = nach.nimmAuf(*akte);
            ausgang.hindernis = geschrieben.hindernis;
            if (geschrieben.art == Schreibausgang::Art::Nichtgelungen) {
                return ausgang;
            }
            ++(geschrieben ? ausgang.aufgenommen : ausgang.schonDa);
        }
        ++fertig;
    }
    ausgang.ganz = static_cast<bool>(ausgang.hindernis);
    return ausgang;
}
