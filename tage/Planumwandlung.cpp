#include "Planumwandlung.h"

#include "Planzahlen.h"
#include "Zeichenkettentabelle.h"

#include <QHash>

#include <utility>

Tagesplan alsPlan(const Tag &tag, const Speisenachschlag &heute)
{
    Tagesplan plan;
    QHash<QString, qsizetype> stellen;
    QList<double> gramm; // added up as precisely as can be, and rounded once
    for (const Mahlzeit &mahlzeit : tag.mahlzeiten) {
        for (const Mahlzeitzeile &zeile : mahlzeit.zeilen) {
            if (!zaehlt(zeile) || heute(zeile.schluessel) == nullptr) {
                plan.ausgelassen << (zeile.schluessel.isNull() ? zeile.text
                                                               : localizedString(zeile.schluessel));
                continue;
            }
            const auto menge = static_cast<double>(*zeile.gramm);
            const auto bisher = stellen.constFind(zeile.schluessel);
            if (bisher == stellen.constEnd()) {
                stellen.insert(zeile.schluessel, plan.posten.size());
                plan.posten << Planmenge{.schluessel = zeile.schluessel};
                gramm << menge;
            } else {
                gramm[*bisher] += menge;
                if (!plan.zusammengezaehlt.contains(zeile.schluessel)) {
                    plan.zusammengezaehlt << zeile.schluessel;
                }
            }
        }
    }
    for (qsizetype i = 0; i < gramm.size(); ++i) {
        plan.posten[i].gramm = static_cast<float>(gramm[i]);
    }
    return plan;
}

QList<Mahlzeitzeile> alsZeilen(const QList<Planmenge> &posten, const Speisenachschlag &heute)
{
    QList<Mahlzeitzeile> zeilen;
    for (const Planmenge &eine : posten) {
        Mahlzeitzeile zeile;
        zeile.schluessel = eine.schluessel;
        zeile.angabe = mengentext(eine.gramm) + QStringLiteral(" g");
        zeile.gramm = eine.gramm;
        const Datenmodul *speise = heute(eine.schluessel);
        zeile.eintrag = speise != nullptr ? std::optional(*speise) : eine.eintrag;
        zeilen << zeile;
    }
    return zeilen;
}
