#include "Wertungsregeln.h"

#include <algorithm>

namespace {

using namespace Qt::StringLiterals;

bool haelt(const Bedingung &bedingung, double zahl)
{
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

} // namespace

bool gilt(const Wertungsregel &regel, const Wertungsgroessen &food)
{
    return (food.merkmale & regel.verlangt) == regel.verlangt &&
           (food.merkmale & regel.verboten) == Merkmale() &&
           std::all_of(regel.bedingungen.begin(), regel.bedingungen.end(),
                       [&](const Bedingung &bedingung) {
                           return haelt(bedingung, food.zahl(bedingung.groesse));
                       });
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

QStringList begruendung(const Wertungsregel &regel, const Wertungsgroessen &food)
{
    QStringList teile;
    for (const Bedingung &bedingung : regel.bedingungen) {
        const auto &groesse = groessen[static_cast<std::size_t>(bedingung.groesse)];
        teile.append(u"%1 %2 %3 (%4 %5)"_s.arg(QLatin1String(groesse.name))
                         .arg(food.zahl(bedingung.groesse), 0, 'g', 4)
                         .arg(QLatin1String(groesse.einheit), vergleichswort(bedingung.vergleich))
                         .arg(bedingung.grenze));
    }
    return teile;
}

QString vergleichswort(Vergleich vergleich)
{
    switch (vergleich) {
    case Vergleich::Unter:
        return u"less than"_s;
    case Vergleich::Hoechstens:
        return u"at most"_s;
    case Vergleich::Mindestens:
        return u"at least"_s;
    case Vergleich::Ueber:
        return u"over"_s;
    }
    return {};
}
