#pragma once

#include "Aufzeichnungsprobe.h"
#include "Mass.h"

#include <QList>

/// A week as a dietitian plans it: six meals a day, three foods in the large ones and one or two in
/// the others, with alternatives and notes. All names are those of built-in foods.
namespace Wochenprobe {

/// A slice of 50 g, a spoon of 10 g, a piece of 150 g, a cup of 200 g.
inline QList<Mass> masse()
{
    const auto mass = [](const char *eines, const char *viele, const char *einesEn,
                         const char *vieleEn, double gramm) {
        return Mass{QString::fromUtf8(eines),
                    QString::fromUtf8(viele),
                    QString::fromUtf8(einesEn),
                    QString::fromUtf8(vieleEn),
                    gramm,
                    {}};
    };
    return {mass("Scheibe", "Scheiben", "slice", "slices", 50),
            mass("EL", "EL", "tbsp", "tbsp", 10), mass("Stück", "Stück", "piece", "pieces", 150),
            mass("Tasse", "Tassen", "cup", "cups", 200)};
}

/// A row with 200 kcal, 10 g of protein, 4 g of fat and 30 g of carbohydrate in 100 g.
inline Mahlzeitzeile zeile(const char *name, const char *angabe, float gramm)
{
    Mahlzeitzeile eine = Aufzeichnungsprobe::zeile(QString::fromUtf8(name), gramm);
    eine.angabe = QString::fromUtf8(angabe);
    eine.eintrag = Aufzeichnungsprobe::speise(QString::fromUtf8(name), 200, 10, 4, 30);
    return eine;
}

inline QList<Mahlzeit> mahlzeiten()
{
    const auto oder = Aufzeichnungsprobe::oder;
    return {
        {{zeile("Roggenbrote, Vollkorn", "2 Scheiben", 100), zeile("Butter", "1 EL", 10),
          zeile("Kaffee", "1 Tasse", 200)},
         {}},
        {{zeile("Äpfel (Apfel), roh", "1 Stück", 150), oder(zeile("Birnen, roh", "150", 150))}, {}},
        {{zeile("Kartoffeln (Erdäpfel), Pellkartoffeln, neu", "200", 200),
          zeile("Blumenkohl (Karfiol), gedämpft", "150 g", 150), zeile("Rapsöl", "1 EL", 10)},
         QStringLiteral("Langsam essen")},
        {{zeile("Joghurt (Vanillejoghurt)", "½ Tasse", 100)}, {}},
        {{zeile("Roggenbrote, Vollkorn", "1 Scheibe", 50), zeile("Tomaten, roh", "1 Stück", 150),
          zeile("Leitungswasser (Trinkwasser)", "2 Tassen", 400)},
         {}},
        {{zeile("Pfefferminztee", "1 Tasse", 200)}, {}}};
}

inline Aufzeichnung woche()
{
    Aufzeichnung eine = neueAufzeichnung(Aufzeichnungsart::Wochenplan, QDate(2026, 11, 23), 7);
    for (Tag &tag : eine.tage) {
        tag.mahlzeiten = mahlzeiten();
    }
    eine.tage[1].notiz = QStringLiteral("Schwimmen am Abend");
    return eine;
}

} // namespace Wochenprobe
