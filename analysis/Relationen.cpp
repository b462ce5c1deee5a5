#include "Relationen.h"

#include "Ampel.h"
#include "Ganzzahl.h"

namespace {

constexpr double grenzeMineralstoffe = 0.5;
constexpr double grenzeBroteinheiten = 5.4;
constexpr float grammJeBroteinheit = 12.0F;
constexpr float grammJeKohlenhydrateinheit = 10.0F;

Relation mitBalken(float wert, double grenze)
{
    Relation relation;
    relation.wert = wert;
    if (static_cast<double>(wert) > grenze) {
        relation.code = Balkencode::rot;
    } else if (static_cast<double>(wert) < grenze) {
        relation.code = Balkencode::gruen;
    }
    relation.laenge = ganzzahl(static_cast<double>(10.0F * wert));
    return relation;
}

Relation verhaeltnis(float zaehler, float nenner)
{
    if (nenner != 0.0F) {
        return mitBalken(zaehler / nenner, grenzeMineralstoffe);
    }
    Relation relation = mitBalken(0.0F, grenzeMineralstoffe);
    relation.text = QStringLiteral("   - ");
    return relation;
}

} // namespace

Relationen relationenRechnen(const Naehrwertreihe &anzeige)
{
    const auto wert = [&anzeige](Naehrwert naehrwert) {
        return anzeige[stelle(naehrwert)];
    };
    const float kh = wert(Naehrwert::kh);
    return {
        .natriumKalium = verhaeltnis(wert(Naehrwert::na), wert(Naehrwert::ka)),
        .magnesiumCalcium = verhaeltnis(wert(Naehrwert::ma), wert(Naehrwert::ca)),
        .broteinheiten = mitBalken(kh / grammJeBroteinheit, grenzeBroteinheiten),
        .kohlenhydrateinheiten = kh / grammJeKohlenhydrateinheit,
    };
}
