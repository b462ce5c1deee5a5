#include "Oberflaeche.h"

#include "Dateihueter.h"
#include "Einstellungen.h"
#include "Rollbereich.h"

namespace {

Anthrotueren anthrotueren(const Tueren &tueren)
{
    return {
        .einstellungen = tueren.einstellungen,
        .protokolliere = tueren.protokolliere,
        .neuerPlan =
            [tueren] {
                return std::make_unique<Planmodul>(Plantueren{
                    .eingebauteTabelle = tueren.eingebauteTabelle,
                    .datenordner = tueren.datenordner,
                    .melde = tueren.melde,
                    .drucke = tueren.drucke,
                    .dateien = tueren.dateien,
                    .einstellungen = tueren.einstellungen,
                });
            },
    };
}

Tueren mitDateien(Tueren tueren, const std::shared_ptr<Dateihueter> &dateien)
{
    tueren.dateien = dateien;
    return tueren;
}

} // namespace

Oberflaeche::Oberflaeche(const Tueren &tueren)
    : dateien(tueren.dateien != nullptr ? tueren.dateien : std::make_shared<Dateihueter>())
    , hauptfenster(mitDateien(tueren, dateien))
    , rechner(anthrotueren(mitDateien(tueren, dateien)))
    , ansage(hauptfenster, tueren.datenordner, dateien)
    , gedaechtnis(hauptfenster, *tueren.einstellungen)
{
    ansage.beachte(*tueren.einstellungen);
    Rollbereich::fuelle(*hauptfenster.tabVier, rechner.koerperseite);
    Rollbereich::fuelle(*hauptfenster.tabFuenf, rechner.lebensweiseseite);
}

void Oberflaeche::awakeFromNib()
{
    hauptfenster.awakeFromNib();
    rechner.awakeFromNib();
    ansage.beginne();
    gedaechtnis.beginne();
}
