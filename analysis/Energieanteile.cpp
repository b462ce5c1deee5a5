#include "Energieanteile.h"

float energieAusNaehrstoffen(float protein, float kh, float fett)
{
    return protein * KilokalorienJeGramm::protein + kh * KilokalorienJeGramm::kh +
           fett * KilokalorienJeGramm::fett;
}

float energieanteil(float gramm, float kilokalorienJeGramm, float gesamt)
{
    return gesamt != 0.0F ? gramm * kilokalorienJeGramm * 100.0F / gesamt : 0.0F;
}

Energieanteile energieanteile(float protein, float kh, float fett)
{
    const float gesamt = energieAusNaehrstoffen(protein, kh, fett);
    return {
        .gesamtkal = gesamt,
        .kalumrprot = energieanteil(protein, KilokalorienJeGramm::protein, gesamt),
        .kalumrkh = energieanteil(kh, KilokalorienJeGramm::kh, gesamt),
        .kalumrfett = energieanteil(fett, KilokalorienJeGramm::fett, gesamt),
    };
}

Energieanteile energieanteileGanzzahlig(std::int32_t protein, std::int32_t kh, std::int32_t fett)
{
    const std::int64_t p = protein;
    const std::int64_t k = kh;
    const std::int64_t f = fett;
    const auto gesamt = static_cast<float>((p + k) * 4 + f * 9);
    if (gesamt == 0.0F) {
        return {};
    }
    return {
        .gesamtkal = gesamt,
        .kalumrprot = static_cast<float>(p * 400) / gesamt,
        .kalumrkh = static_cast<float>(k * 400) / gesamt,
        .kalumrfett = static_cast<float>(f * 900) / gesamt,
    };
}
