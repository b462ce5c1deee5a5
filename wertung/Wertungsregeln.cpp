#include "Wertungsregeln.h"

#include <algorithm>

bool haelt(const Bedingung &bedingung, const Wertungsgroessen &food)
{
    const double zahl = food.zahl(bedingung.groesse);
    switch (bedingung.vergleich) {
    case Vergleich::Unter:
        return zahl < bedingung.grenze;
    case Vergleich::Hoechstens:
        return zahl <= bedingung.grenze;
    case Vergleich::Mindestens:
        return zahl >= bedingung.grenze;
    case Vergleich::Ueber:
        return zahl > bedingung.grenze;
    }
    return false;
}

bool gilt(const Wertungsregel &regel, const Wertungsgroessen &food)
{
    return (food.merkmale & regel.verlangt) == regel.verlangt &&
           (food.merkmale & regel.verboten) == Merkmale() &&
           std::all_of(regel.bedingungen.begin(), regel.bedingungen.end(),
                       [&](const Bedingung &bedingung) { return haelt(bedingung, food); });
}

const Wertungsregel *entscheidendeRegel(Wertung wertung, const Wertungsgroessen &food,
                                        const Regelwerk &regeln)
{
    const auto gefunden =
        std::find_if(regeln.begin(), regeln.end(), [&](const Wertungsregel &regel) {
            return regel.wertung == wertung && gilt(regel, food);
        });
    return gefunden == regeln.end() ? nullptr : &*gefunden;
}

QString vergleichswort(Vergleich vergleich, Regelsprache sprache)
{
    static constexpr std::array<Zweisprachig, 4> worte = {{{"unter", "less than"},
                                                           {"höchstens", "at most"},
                                                           {"mindestens", "at least"},
                                                           {"über", "over"}}};
    return worte[static_cast<std::size_t>(vergleich)].in(sprache);
}
