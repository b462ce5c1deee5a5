#include "Bedenkenworte.h"

#include "Zahlenform.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>

namespace {

struct Zweifelzeile
{
    Zweifel zweifel;
    const char *text;
    int stellenAngegeben;
    int stellenErrechnet;
};

constexpr Zweifelzeile zweifelworte[] = {
    {Zweifel::EnergieZuKlein,
     QT_TRANSLATE_NOOP("Mahlberg",
                       "Energie prüfen: angegeben %1 kcal, aus den Nährstoffen %2 kcal."),
     0, 0},
    {Zweifel::EnergieZuGross,
     QT_TRANSLATE_NOOP("Mahlberg", "Energie prüfen: angegeben %1 kcal, aus den Nährstoffen %2 "
                                   "kcal. Fehlt ein Nährstoff, oder ist Alkohol darin?"),
     0, 0},
    {Zweifel::Ueber100Gramm,
     QT_TRANSLATE_NOOP("Mahlberg", "Mengen prüfen: Protein, Fett, Kohlenhydrate und "
                                   "Ballaststoffe ergeben %1 g in %2 g."),
     1, 0},
    {Zweifel::NatriumZuGross,
     QT_TRANSLATE_NOOP("Mahlberg", "Natrium prüfen: %1 mg sind %2 g Salz, mehr als neben den "
                                   "anderen Nährstoffen Platz hat."),
     0, 1},
    {Zweifel::SalzStattNatrium,
     QT_TRANSLATE_NOOP("Mahlberg", "Ist bei Natrium Salz gemeint? %1 g Salz sind %2 mg Natrium."),
     2, 0},
};

} // namespace

QString inWorten(const Bedenken &bedenken)
{
    for (const Zweifelzeile &zeile : zweifelworte) {
        if (zeile.zweifel == bedenken.zweifel) {
            return localizedString(QString::fromUtf8(zeile.text))
                .arg(wertText(bedenken.angegeben, zeile.stellenAngegeben),
                     wertText(bedenken.errechnet, zeile.stellenErrechnet));
        }
    }
    return {};
}
