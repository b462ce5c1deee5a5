#include "Oberflaeche.h"

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
                });
            },
    };
}

} // namespace

Oberflaeche::Oberflaeche(const Tueren &tueren) : hauptfenster(tueren), rechner(anthrotueren(tueren))
{
    Rollbereich::fuelle(*hauptfenster.tabVier, rechner.koerperseite);
    Rollbereich::fuelle(*hauptfenster.tabFuenf, rechner.lebensweiseseite);
}

void Oberflaeche::awakeFromNib()
{
    hauptfenster.awakeFromNib();
    rechner.awakeFromNib();
}
