#include "Lebensmitteltabelle.h"

#include "Spaltensinn.h"
#include "Zeichenkettentabelle.h"

#include <algorithm>

using Art = Spaltensinn::Art;

namespace {

QString spaltenname(const char *text)
{
    return localizedString(QString::fromUtf8(text));
}

} // namespace

QStringList wertekoepfe()
{
    QStringList spalten;
    for (const auto &zeile : naehrwerte) {
        spalten << QStringLiteral("%1 (%2)").arg(spaltenname(zeile.bezeichnung),
                                                 einheitszeichen(zeile.einheit));
    }
    for (const auto &zeile : wertungen) {
        spalten << spaltenname(zeile.bezeichnung);
    }
    return spalten;
}

QList<Csv::Zelle> wertezellen(const Datenmodul &lebensmittel, float anteil)
{
    QList<Csv::Zelle> zellen;
    for (const auto &zeile : naehrwerte) {
        zellen.emplaceBack(lebensmittel.wert(zeile.wert) * anteil);
    }
    for (const auto &zeile : wertungen) {
        zellen.emplaceBack(lebensmittel.wertung(zeile.wertung));
    }
    return zellen;
}

Csv::Tabelle lebensmitteltabelle(const QList<Datenmodul> &lebensmittel)
{
    const bool andersGezeigt =
        std::any_of(lebensmittel.begin(), lebensmittel.end(), [](const Datenmodul &eines) {
            return localizedString(eines.name()) != eines.name();
        });
    Csv::Tabelle tabelle;
    tabelle.spalten << inWorten(Spaltensinn{.art = Art::Name});
    if (andersGezeigt) {
        tabelle.spalten << localizedString(QStringLiteral("Angezeigt als"));
    }
    tabelle.spalten << wertekoepfe();
    for (const Datenmodul &eines : lebensmittel) {
        QList<Csv::Zelle> zellen = {eines.name()};
        if (andersGezeigt) {
            zellen << localizedString(eines.name());
        }
        tabelle.zeilen << zellen + wertezellen(eines, 1);
    }
    return tabelle;
}

Csv::Tabelle plantabelle(const QList<Plantabellenzeile> &posten)
{
    const QStringList werte = wertekoepfe();
    Csv::Tabelle tabelle;
    tabelle.spalten << inWorten(Spaltensinn{.art = Art::Name})
                    << QStringLiteral("%1 (g)").arg(localizedString(QStringLiteral("Menge")))
                    << werte;
    for (const Plantabellenzeile &eine : posten) {
        QList<Csv::Zelle> zellen = {localizedString(eine.name), eine.gramm};
        zellen += eine.lebensmittel != nullptr
                      ? wertezellen(*eine.lebensmittel, eine.gramm / 100.0F)
                      : QList<Csv::Zelle>(werte.size());
        tabelle.zeilen << zellen;
    }
    return tabelle;
}
