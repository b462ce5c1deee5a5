#include "Verlaufsskala.h"

#include "Zahlenform.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double kleinsteSpanne = 4; // kg, kg/m² or cm

/// What is left of a whole number after it was divided counts as none of the next one.
constexpr double rechenrest = 1e-9;

/// From one mark to the next: so many days, or so many months.
struct Zeitschritt
{
    int tage;
    int monate;
};

constexpr int monateImJahr = 12;

constexpr std::array zeitschritte = {
    Zeitschritt{1, 0},
    Zeitschritt{2, 0},
    Zeitschritt{7, 0},
    Zeitschritt{14, 0},
    Zeitschritt{0, 1},
    Zeitschritt{0, 2},
    Zeitschritt{0, 3},
    Zeitschritt{0, 6},
    Zeitschritt{0, monateImJahr},
    Zeitschritt{0, 2 * monateImJahr},
    Zeitschritt{0, 5 * monateImJahr},
    Zeitschritt{0, 10 * monateImJahr},
    Zeitschritt{0, 20 * monateImJahr},
    Zeitschritt{0, 50 * monateImJahr},
    Zeitschritt{0, 100 * monateImJahr},
};

constexpr int meisteStriche = 50; // no axis has room for more

QString tagestext(const QDate &tag)
{
    return QLocale().toString(tag, QLocale::ShortFormat);
}

/// The days in steps from the first one on.
QList<Zeitstrich> tage(const QDate &von, const QDate &bis, int schritt)
{
    QList<Zeitstrich> striche;
    for (QDate tag = von; tag <= bis; tag = tag.addDays(schritt)) {
        striche.append({tag, tagestext(tag)});
    }
    return striche;
}

/// The first days of months, or with whole years those of January. They stand where the step has
/// them, whatever day comes first: a step of three months begins with a quarter of the year.
QList<Zeitstrich> monate(const QDate &von, const QDate &bis, int schritt)
{
    const QString form =
        schritt % monateImJahr == 0 ? QStringLiteral("yyyy") : QStringLiteral("MMM yyyy");
    QList<Zeitstrich> striche;
    const int erster = von.year() * monateImJahr + von.month() - 1;
    for (int monat = erster - erster % schritt;; monat += schritt) {
        const QDate tag(monat / monateImJahr, monat % monateImJahr + 1, 1);
        if (!tag.isValid() || tag > bis) {
            return striche;
        }
        if (tag >= von) {
            striche.append({tag, QLocale().toString(tag, form)});
        }
    }
}

QList<Zeitstrich> striche(const QDate &von, const QDate &bis, const Zeitschritt &schritt)
{
    return schritt.tage > 0 ? tage(von, bis, schritt.tage) : monate(von, bis, schritt.monate);
}

} // namespace

QList<double> Werteskala::stufen() const
{
    QList<double> alle;
    const auto anzahl = std::lround((bis - von) / schritt);
    for (long i = 0; i <= anzahl; ++i) {
        alle << von + static_cast<double>(i) * schritt;
    }
    return alle;
}

QString Werteskala::beschriftung(double stufe) const
{
    const int stellen =
        std::max(0, static_cast<int>(-std::floor(std::log10(schritt) + rechenrest)));
    return zahlenform().toString(stufe, 'f', stellen);
}

Werteskala werteskala(double von, double bis, int hoechstens)
{
    const double zugabe = std::max(0.0, kleinsteSpanne - (bis - von)) / 2;
    const double unten = std::max(0.0, von - zugabe);
    const double oben = bis + zugabe;
    const int meiste = std::max(2, hoechstens);
    for (double zehner = std::pow(10, std::floor(std::log10((oben - unten) / meiste)));;
         zehner *= 10) {
        for (const double faktor : {1.0, 2.0, 5.0}) {
            const double schritt = zehner * faktor;
            const double erste = std::floor(unten / schritt + rechenrest);
            const double letzte = std::ceil(oben / schritt - rechenrest);
            if (letzte - erste <= meiste) {
                return {erste * schritt, letzte * schritt, schritt};
            }
        }
    }
}

QList<Zeitstrich> zeitstriche(const QDate &von, const QDate &bis,
                              const std::function<bool(const QList<Zeitstrich> &)> &passen)
{
    constexpr double tageImMonat = 30.4;
    const auto spanne = static_cast<double>(von.daysTo(bis));
    for (const Zeitschritt &schritt : zeitschritte) {
        const double schrittTage = schritt.tage + schritt.monate * tageImMonat;
        if (spanne / schrittTage > meisteStriche) {
            continue;
        }
        QList<Zeitstrich> alle = striche(von, bis, schritt);
        if (alle.size() > 1 && passen(alle)) {
            return alle;
        }
    }
    const QList<Zeitstrich> enden = {{von, tagestext(von)}, {bis, tagestext(bis)}};
    return von < bis && passen(enden) ? enden : QList<Zeitstrich>{enden.last()};
}
