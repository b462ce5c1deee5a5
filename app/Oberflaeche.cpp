#include "Oberflaeche.h"

#include <QVBoxLayout>

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

void fuelle(QWidget *reiter, QWidget *seite)
{
    auto *anordnung = new QVBoxLayout(reiter);
    anordnung->setContentsMargins(0, 0, 0, 0);
    anordnung->addWidget(seite);
}

} // namespace

Oberflaeche::Oberflaeche(const Tueren &tueren) : hauptfenster(tueren), rechner(anthrotueren(tueren))
{
    fuelle(hauptfenster.tabVier, rechner.koerperseite);
    fuelle(hauptfenster.tabFuenf, rechner.lebensweiseseite);
}

void Oberflaeche::awakeFromNib()
{
    hauptfenster.awakeFromNib();
    rechner.awakeFromNib();
}
