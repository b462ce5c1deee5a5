#include "Portionendatei.h"

#include "Feldzeilen.h"

#include <algorithm>
#include <cmath>

namespace {

using namespace Qt::StringLiterals;

enum Spalte { Gruppe, Name, Ausser, Eines, Viele, EinesEn, VieleEn, Gramm, Quellen, Notiz };

const QStringList &spalten()
{
    static const QStringList namen = {u"group"_s,   u"name"_s, u"except"_s,  u"de"_s,
                                      u"de_many"_s, u"en"_s,   u"en_many"_s, u"grams"_s,
                                      u"keys"_s,    u"note"_s};
    return namen;
}

QStringList oder(const QString &feld)
{
    return feld.split(u'|', Qt::SkipEmptyParts);
}

QList<QStringList> namensteile(const QString &feld)
{
    QList<QStringList> teile;
    for (const QString &einer : oder(feld)) {
        teile.append(einer.split(u" + "_s));
    }
    return teile;
}

/// What is wrong with the fields of a line.
Beanstandungen einwaende(int zeile, const QStringList &felder)
{
    Beanstandungen liste;
    for (const Spalte spalte : {Eines, Viele, EinesEn, VieleEn}) {
        if (felder.at(spalte).trimmed().isEmpty()) {
            liste.append({zeile, Portionendatei::namensregel,
                          u"The measure has no name in the column %1"_s.arg(spalten().at(spalte))});
        }
    }
    for (const QString &gruppe : oder(felder.at(Gruppe))) {
        if (lebensmittelgruppe(gruppe) == nullptr) {
            liste.append(
                {zeile, Feldzeilen::formregel, u"\"%1\" is unknown (column group)"_s.arg(gruppe)});
        }
    }
    bool gelungen = false;
    const double gramm = felder.at(Gramm).toDouble(&gelungen);
    if (!gelungen || !std::isfinite(gramm)) {
        liste.append({zeile, Feldzeilen::formregel,
                      u"\"%1\" is no number (column grams)"_s.arg(felder.at(Gramm))});
    } else if (gramm <= 0 || gramm > Portionendatei::meisteGramm) {
        liste.append({zeile, Portionendatei::grammregel,
                      u"%1 g is not above 0 and at most %2"_s.arg(felder.at(Gramm))
                          .arg(Portionendatei::meisteGramm)});
    }
    return liste;
}

Portionszeile portionszeile(int zeile, const QStringList &felder)
{
    return {zeile,
            oder(felder.at(Gruppe)),
            namensteile(felder.at(Name)),
            oder(felder.at(Ausser)),
            {felder.at(Eines), felder.at(Viele), felder.at(EinesEn), felder.at(VieleEn),
             felder.at(Gramm).toDouble(), felder.at(Quellen).split(u' ', Qt::SkipEmptyParts)},
            felder.at(Notiz)};
}

} // namespace

bool Portionszeile::passt(const QString &gruppe, const QString &name) const
{
    const auto enthalten = [&name](const QString &teil) {
        return name.contains(teil);
    };
    const auto alleEnthalten = [&enthalten](const QStringList &teile) {
        return std::all_of(teile.begin(), teile.end(), enthalten);
    };
    return gruppen.contains(gruppe) && !std::any_of(ausser.begin(), ausser.end(), enthalten) &&
           (fuerGruppe() || std::any_of(namen.begin(), namen.end(), alleEnthalten));
}

Portionendatei::Ergebnis Portionendatei::lesen(QByteArrayView bytes)
{
    const auto [zeilen, formfehler] = Feldzeilen::lesen(bytes, spalten());
    Ergebnis ergebnis = {{}, formfehler};
    for (const auto &[nummer, felder] : zeilen) {
        const Beanstandungen fehler = einwaende(nummer, felder);
        ergebnis.beanstandungen += fehler;
        if (fehler.isEmpty()) {
            ergebnis.zeilen.append(portionszeile(nummer, felder));
        }
    }
    return ergebnis;
}

QList<Portionszeile> Portionendatei::zeilenFuer(const QList<Portionszeile> &zeilen,
                                                const QString &gruppe, const QString &name)
{
    QList<Portionszeile> passende;
    std::copy_if(zeilen.begin(), zeilen.end(), std::back_inserter(passende),
                 [&](const Portionszeile &zeile) { return zeile.passt(gruppe, name); });
    const auto gruppenzeilen =
        std::stable_partition(passende.begin(), passende.end(),
                              [](const Portionszeile &zeile) { return !zeile.fuerGruppe(); });
    const auto verdraengt = [&](const Portionszeile &zeile) {
        return std::any_of(passende.begin(), gruppenzeilen, [&](const Portionszeile &benannte) {
            return benannte.mass.eines == zeile.mass.eines;
        });
    };
    passende.erase(std::remove_if(gruppenzeilen, passende.end(), verdraengt), passende.end());
    return passende;
}
