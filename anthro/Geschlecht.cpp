#include "Geschlecht.h"

namespace {

constexpr float faktorMann = 1.2F;
constexpr float faktorFrau = 1.0F;

} // namespace

std::optional<float> geschlechtsfaktor(int tag)
{
    switch (tag) {
    case 0:
        return faktorMann;
    case 1:
        return faktorFrau;
    default:
        return std::nullopt;
    }
}

QString geschlechtswort(float faktor)
{
    if (faktor > faktorFrau) {
        return Geschlecht::mann.toString();
    }
    return faktor == faktorFrau ? Geschlecht::frau.toString() : QString();
}
