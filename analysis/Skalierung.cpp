#include "Skalierung.h"

namespace {

constexpr double kilojouleJeKilokalorie = 4.17910447761194;
constexpr double salzJeNatrium = 2.5; // Regulation (EU) No 1169/2011, Annex I, 11
constexpr double milligrammJeGramm = 1000;

} // namespace

Naehrwertreihe skalieren(const Datenmodul &lebensmittel, std::int32_t menge)
{
    return skalieren(lebensmittel, static_cast<float>(menge));
}

Naehrwertreihe skalieren(const Datenmodul &lebensmittel, float menge)
{
    Naehrwertreihe reihe = {};
    for (const auto &zeile : naehrwerte) {
        reihe[stelle(zeile.wert)] = lebensmittel.wert(zeile.wert) * menge / 100.0F;
    }
    return reihe;
}

std::optional<bool> sichtbarkeit(float wert)
{
    if (wert > 0.0F) {
        return true;
    }
    if (wert == 0.0F) {
        return false;
    }
    return std::nullopt;
}

float kilojoule(float kilokalorien)
{
    return static_cast<float>(static_cast<double>(kilokalorien) * kilojouleJeKilokalorie);
}

double kilokalorien(double kilojoule)
{
    return kilojoule / kilojouleJeKilokalorie;
}

double salzAusNatrium(double milligramm)
{
    return milligramm * salzJeNatrium / milligrammJeGramm;
}

double natriumAusSalz(double gramm)
{
    return gramm * milligrammJeGramm / salzJeNatrium;
}

float jeGramm(float wert, std::int32_t menge)
{
    return menge != 0 ? wert / static_cast<float>(menge) : 0.0F;
}
