#pragma once

#include "Wertungsregeln.h"

#include <QTest>

#include <algorithm>

/// What the tests of the rating rules share: foods with nothing but the figures that matter.
namespace Wertungsprobe {

using namespace Qt::StringLiterals;

/// Figures by the names of the table's columns.
using Werte = QList<std::pair<QString, double>>;

inline const QString saft = u"Saft und Erfrischungsgetränke"_s;
inline const QString gewuerz = u"Kräuter, Gewürze und Zutaten"_s;
inline const QString kuchen = u"Kuchen und Gebäck"_s;
inline const QString milch = u"Milch und Sahne"_s;
inline const QString sojadrink = u"Pflanzendrinks und Pflanzenjoghurt"_s;
inline const QString rind = u"Rind- und Kalbfleisch"_s;
inline const QString gefluegel = u"Geflügel und Kaninchen"_s;
inline const QString reis = u"Getreide, Reis und Nudeln"_s;
inline const QString gemuese = u"Gemüse"_s;
inline const QString obst = u"Obst"_s;
inline const QString nuesse = u"Nüsse und Samen"_s;
inline const QString oel = u"Fette und Öle"_s;

/// Where a figure of this column stands in a line; null for a column that holds none.
inline double *feld(Tabellenzeile &zeile, const QString &spalte)
{
    const std::pair<QString, double *> uebrige[] = {{u"sugars"_s, &zeile.zucker},
                                                    {u"saturated"_s, &zeile.gesaettigt},
                                                    {u"alcohol"_s, &zeile.alkohol},
                                                    {u"ready_g"_s, &zeile.verzehrfertig}};
    for (const auto &[name, ziel] : uebrige) {
        if (spalte == name) {
            return ziel;
        }
    }
    for (const auto &wert : naehrwerte) {
        if (spalte == QLatin1String(wert.kennung)) {
            return &zeile.werte[stelle(wert.wert)];
        }
    }
    return nullptr;
}

/// A food of a group with only these figures.
inline Tabellenzeile food(const QString &gruppe, const Werte &werte = {})
{
    Tabellenzeile zeile;
    zeile.gruppe = lebensmittelgruppe(gruppe);
    for (const auto &[spalte, zahl] : werte) {
        if (spalte == u"uric_acid") {
            zeile.harnsaeure = zahl;
        } else {
            *feld(zeile, spalte) = zahl;
        }
    }
    return zeile;
}

inline Tabellenzeile markiert(Tabellenzeile zeile, Merkmale merkmale)
{
    zeile.merkmale = merkmale;
    return zeile;
}

inline Tabellenzeile mitKlasse(Tabellenzeile zeile, Purinklasse klasse)
{
    zeile.purinklasse = klasse;
    return zeile;
}

inline Tabellenzeile ohneFruktose(Tabellenzeile zeile)
{
    zeile.zuckerart = Zuckerart::OhneFruktose;
    return zeile;
}

inline void spalten()
{
    QTest::addColumn<Tabellenzeile>("zeile");
    QTest::addColumn<QString>("regel");
}

/// A data row: a food, and the rule that must decide for it.
inline void fall(const char *name, const Tabellenzeile &zeile, const QString &regel)
{
    QTest::newRow(name) << zeile << regel;
}

inline void fall(const char *name, const QString &gruppe, const Werte &werte, const QString &regel)
{
    fall(name, food(gruppe, werte), regel);
}

/// Checks the row's rule, and that the food gets its rating.
inline void pruefen(Wertung wertung)
{
    QFETCH(Tabellenzeile, zeile);
    QFETCH(QString, regel);
    const auto *const entschieden = entscheidendeRegel(wertung, wertungsgroessen(zeile));
    QVERIFY(entschieden != nullptr);
    QCOMPARE(QString::fromLatin1(entschieden->kennung), regel);
}

} // namespace Wertungsprobe
