#include "Portionspruefung.h"

#include "Quellenseite.h"

#include <QSet>

#include <algorithm>

namespace {

using namespace Qt::StringLiterals;

/// The row of the list that stands for no food.
constexpr auto platzhalter = "-"_L1;

QString gruppenname(const Tabellenzeile &lebensmittel)
{
    return QString::fromUtf8(lebensmittel.gruppe->name);
}

/// Of the lines for one food: those whose measure has, in either language, the name of another's.
Beanstandungen doppelte(const QList<Portionszeile> &zeilen, const QString &name)
{
    Beanstandungen liste;
    for (auto zweite = zeilen.begin(); zweite != zeilen.end(); ++zweite) {
        const auto gleiche = std::find_if(zeilen.begin(), zweite, [&](const Portionszeile &erste) {
            return erste.mass.eines == zweite->mass.eines ||
                   erste.mass.einesEn == zweite->mass.einesEn;
        });
        if (gleiche != zweite) {
            liste.append({zweite->zeile, u"twice"_s,
                          u"%1: line %2 has a measure of this name (%3, %4) as well"_s.arg(name)
                              .arg(gleiche->zeile)
                              .arg(zweite->mass.eines, zweite->mass.einesEn)});
        }
    }
    return liste;
}

} // namespace

Beanstandungen Portionspruefung::zeilenPruefen(const QList<Portionszeile> &zeilen,
                                               const Tabelle &lebensmittel, const QString &seite)
{
    const QStringList bekannte = Quellenseite::schluessel(seite);
    QSet<int> gebraucht;
    Beanstandungen liste;
    for (const Tabellenzeile &eines : lebensmittel) {
        const auto seine = Portionendatei::zeilenFuer(zeilen, gruppenname(eines), eines.nameDe);
        for (const Portionszeile &zeile : seine) {
            gebraucht.insert(zeile.zeile);
        }
        liste += doppelte(seine, eines.nameDe);
    }
    for (const Portionszeile &zeile : zeilen) {
        liste += Quellenseite::pruefen(zeile.zeile, u"measure"_s, zeile.mass.quellen, bekannte);
        if (!gebraucht.contains(zeile.zeile)) {
            liste.append({zeile.zeile, u"food"_s, u"No food has this measure"_s});
        }
    }
    return liste;
}

Beanstandungen Portionspruefung::lebensmittelPruefen(const QList<Portionszeile> &zeilen,
                                                     const Tabelle &lebensmittel)
{
    Beanstandungen liste;
    for (const Tabellenzeile &eines : lebensmittel) {
        if (eines.nameDe != platzhalter &&
            Portionendatei::zeilenFuer(zeilen, gruppenname(eines), eines.nameDe).isEmpty()) {
            liste.append({eines.zeile, u"measure"_s, u"%1 has no measure"_s.arg(eines.nameDe)});
        }
    }
    return liste;
}
