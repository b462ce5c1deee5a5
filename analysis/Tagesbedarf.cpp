#include "Tagesbedarf.h"

double bedarfsprozent(float menge, const Tagesbedarf &bedarf)
{
    const float hundertfach = menge * 100.0F;
    if (bedarf.teilung == Teilung::Doppelt) {
        return static_cast<double>(hundertfach) / bedarf.bedarf;
    }
    return static_cast<double>(hundertfach / static_cast<float>(bedarf.bedarf));
}
