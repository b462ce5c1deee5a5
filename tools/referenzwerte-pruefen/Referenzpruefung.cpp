#include "Referenzpruefung.h"

#include "Quellenseite.h"

#include <QHash>

#include <limits>

namespace {

using namespace Qt::StringLiterals;

bool istGrenze(const Referenzzeile &zeile)
{
    return zeile.art == Referenzart::Obergrenze || zeile.art == Referenzart::SichereZufuhr ||
           zeile.art == Referenzart::KeineObergrenze;
}

/// The same for all lines that differ in their ages and figures only. What is counted for each
/// kilogram stands beside what is not.
QString gruppe(const Referenzzeile &zeile)
{
    const auto zahl = [](auto wert) {
        return QString::number(static_cast<int>(wert));
    };
    const QStringList teile = {
        zahl(zeile.satz),       zahl(zeile.wert),
        zahl(zeile.geschlecht), zahl(zeile.zustand),
        zahl(zeile.phase),      zahl(zeile.einheit == Referenzeinheit::JeKilogramm),
        zahl(istGrenze(zeile)), zeile.pal ? QString::number(*zeile.pal) : QString()};
    return teile.join(u' ');
}

/// Of a line behind another one of its group.
Beanstandungen verrutschte(const Referenzzeile &vorige, const Referenzzeile &zeile)
{
    const int ende = vorige.bis.value_or(std::numeric_limits<int>::max());
    if (zeile.von > ende) {
        return {};
    }
    if (zeile.bis.value_or(std::numeric_limits<int>::max()) < vorige.von) {
        return {
            {zeile.zeile, u"ages"_s,
             u"The ages from %1 stand behind those of line %2"_s.arg(zeile.von).arg(vorige.zeile)}};
    }
    return {{zeile.zeile, u"twice"_s,
             u"Line %1 is for people of these ages as well"_s.arg(vorige.zeile)}};
}

} // namespace

Beanstandungen Referenzpruefung::pruefen(const Referenzzeilen &zeilen, const QString &seite)
{
    const QStringList bekannte = Quellenseite::schluessel(seite);
    QHash<QString, const Referenzzeile *> vorige;
    Beanstandungen liste;
    for (const Referenzzeile &zeile : zeilen) {
        liste += Quellenseite::pruefen(zeile.zeile, u"value"_s, zeile.quellen, bekannte);
        if (zeile.notizDe.isEmpty() != zeile.notizEn.isEmpty()) {
            liste.append({zeile.zeile, u"note"_s, u"The remark stands in one language only"_s});
        }
        const Referenzzeile *&letzte = vorige[gruppe(zeile)];
        if (letzte != nullptr) {
            liste += verrutschte(*letzte, zeile);
        }
        letzte = &zeile;
    }
    return liste;
}
