#include "Planregeln.h"

#include "Ampel.h"
#include "Energieanteile.h"
#include "Ganzzahl.h"

#include <cmath>

namespace {

constexpr int ziel = Balkencode::gruen;
constexpr int mittel = Balkencode::blau;
constexpr int verfehlt = Balkencode::rot;

constexpr std::array<Stufe, 5> energieBaender = {{
    {{ab(70), unter(110)}, ziel},
    {{ab(30), unter(70)}, mittel},
    {{ab(110), unter(120)}, mittel},
    {{vonUnten, unter(30)}, verfehlt},
    {{ab(120), nachOben}, verfehlt},
}};

constexpr std::array<Stufe, 3> ballaststoffBaender = {{
    {{ab(70), nachOben}, ziel},
    {{ab(30), unter(70)}, mittel},
    {{vonUnten, unter(30)}, verfehlt},
}};

constexpr std::array<Stufe, 4> cholesterinBaender = {{
    {{ab(70), bis(100)}, ziel},
    {{ab(30), unter(70)}, mittel},
    {{vonUnten, unter(30)}, verfehlt},
    {{ueber(100), nachOben}, verfehlt},
}};

// Exactly 120 lies in none of these, nor in those of iron: the bar then stays as it was.
constexpr std::array<Stufe, 5> mineralstoffBaender = {{
    {{ab(70), bis(100)}, ziel},
    {{ab(40), unter(70)}, mittel},
    {{ueber(100), unter(120)}, mittel},
    {{vonUnten, unter(40)}, verfehlt},
    {{ueber(120), nachOben}, verfehlt},
}};

constexpr std::array<Stufe, 5> eisenBaender = {{
    {{ab(70), bis(100)}, ziel},
    {{ab(40), unter(70)}, mittel},
    {{vonUnten, unter(40)}, verfehlt},
    {{ueber(100), unter(120)}, verfehlt},
    {{ueber(120), nachOben}, verfehlt},
}};

constexpr std::array<Stufe, 5> vitaminBaender = {{
    {{ab(70), bis(120)}, ziel},
    {{ab(40), unter(70)}, mittel},
    {{ueber(120), bis(140)}, mittel},
    {{vonUnten, unter(40)}, verfehlt},
    {{ueber(140), nachOben}, verfehlt},
}};

constexpr Bereich ueblich = {ab(70), unter(110)};
constexpr Bereich ballaststoffe = {ab(70), nachOben};
constexpr Bereich wenigCholesterin = {ab(30), bis(70)}; // less than its bar's target
constexpr Bereich vitaminA = {ab(70), unter(100)};      // narrower than the other vitamins

constexpr Tagesbedarf cholesterinJeTag = {Naehrwert::chol, 200};

constexpr Planregel anteil(Naehrwert wert, float kilokalorienJeGramm, double vomBedarf)
{
    return {wert, Anteilsbezug{kilokalorienJeGramm, vomBedarf}, energieBaender, ueblich};
}

/// A nutrient with an amount per day. One that has none does not compile.
consteval Planregel menge(Naehrwert wert, std::span<const Stufe> baender, Bereich punkt = ueblich)
{
    for (const Tagesbedarf &bedarf : tagesbedarfe) {
        if (bedarf.wert == wert) {
            return {wert, bedarf, baender, punkt};
        }
    }
    throw "no amount per day";
}

double prozent(Energiebezug /*bezug*/, float summe, std::int32_t energiebedarf)
{
    if (energiebedarf == 0) {
        return 0;
    }
    return static_cast<double>(100.0F * summe / static_cast<float>(energiebedarf));
}

double prozent(const Anteilsbezug &bezug, float summe, std::int32_t energiebedarf)
{
    const std::int64_t kilokalorien =
        ganzzahl(static_cast<double>(bezug.kilokalorienJeGramm * summe));
    const std::int64_t gewollt = ganzzahl(energiebedarf * bezug.anteil);
    return gewollt != 0 ? ganzzahl(kilokalorien * 100 / gewollt) : 0;
}

double prozent(const Tagesbedarf &bezug, float summe, std::int32_t /*energiebedarf*/)
{
    return static_cast<double>(static_cast<float>(bedarfsprozent(summe, bezug)));
}

/// 0 when there is no requirement.
double bedarf(Energiebezug /*bezug*/, std::int32_t energiebedarf)
{
    return energiebedarf;
}

double bedarf(const Anteilsbezug &bezug, std::int32_t energiebedarf)
{
    return ganzzahl(energiebedarf * bezug.anteil) / static_cast<double>(bezug.kilokalorienJeGramm);
}

double bedarf(const Tagesbedarf &bezug, std::int32_t /*energiebedarf*/)
{
    return bezug.bedarf;
}

} // namespace

constexpr std::array<Planregel, anzahlNaehrwerte> planregeln = {{
    {Naehrwert::kal, Energiebezug{}, energieBaender, ueblich},
    anteil(Naehrwert::protein, KilokalorienJeGramm::protein, 0.2),
    anteil(Naehrwert::fett, KilokalorienJeGramm::fett, 0.3),
    anteil(Naehrwert::kh, KilokalorienJeGramm::kh, 0.5),
    menge(Naehrwert::bs, ballaststoffBaender, ballaststoffe),
    {Naehrwert::chol, cholesterinJeTag, cholesterinBaender, wenigCholesterin},
    menge(Naehrwert::na, mineralstoffBaender),
    menge(Naehrwert::ka, mineralstoffBaender),
    menge(Naehrwert::ca, mineralstoffBaender),
    menge(Naehrwert::ph, mineralstoffBaender),
    menge(Naehrwert::ma, mineralstoffBaender),
    menge(Naehrwert::fe, eisenBaender),
    menge(Naehrwert::vita, vitaminBaender, vitaminA),
    menge(Naehrwert::b1, vitaminBaender),
    menge(Naehrwert::b2, vitaminBaender),
    menge(Naehrwert::b6, vitaminBaender),
    menge(Naehrwert::vitc, vitaminBaender),
}};

double gezeigterProzentsatz(double prozent)
{
    constexpr double zehntel = 10;
    return std::round(prozent * zehntel) / zehntel;
}

double planprozent(const Planbezug &bezug, float summe, std::int32_t energiebedarf)
{
    return std::visit(
        [summe, energiebedarf](const auto &art) { return prozent(art, summe, energiebedarf); },
        bezug);
}

std::optional<double> planbedarf(const Planbezug &bezug, std::int32_t energiebedarf)
{
    const double gewollt =
        std::visit([energiebedarf](const auto &art) { return bedarf(art, energiebedarf); }, bezug);
    return gewollt != 0 ? std::optional(gewollt) : std::nullopt;
}
