#include "Standaufbau.h"

#include "Planregeln.h"
#include "Tagesrechnung.h"

#include <algorithm>
#include <cmath>

namespace {

// A place in one number: rows in the units, then meals, then days.
constexpr int jeMahlzeit = 100000;
constexpr int jeTag = 100 * jeMahlzeit;
static_assert(meisteMahlzeiten <= 100 && meisteTage <= 100);

/// The rows of a day that count, meal by meal, each with a part of its grams.
Speisen speisen(const Mahlzeit &mahlzeit, int tag, int welche, double teil)
{
    Speisen alle;
    for (int zeile = 0; zeile < mahlzeit.zeilen.size(); ++zeile) {
        const Mahlzeitzeile &eine = mahlzeit.zeilen[zeile];
        if (zaehlt(eine)) {
            alle << Speise{eine.schluessel, eine.eintrag,
                           static_cast<double>(eine.gramm.value_or(0)) * teil,
                           Standaufbau::ortVon({tag, welche, zeile})};
        }
    }
    return alle;
}

Einblickstand vonTagen(const Aufzeichnung &aufzeichnung, const QList<int> &tage)
{
    Einblickstand stand;
    stand.tage = static_cast<int>(tage.size());
    const double teil = tage.isEmpty() ? 0 : 1.0 / static_cast<double>(tage.size());
    for (int mahlzeit = 0; mahlzeit < aufzeichnung.mahlzeiten.size(); ++mahlzeit) {
        Speisen alle;
        for (const int tag : tage) {
            alle << speisen(aufzeichnung.tage[tag].mahlzeiten[mahlzeit], tag, mahlzeit, teil);
        }
        stand.mahlzeiten << Speisenmahlzeit{mahlzeitname(aufzeichnung.mahlzeiten[mahlzeit]), alle};
        stand.speisen << alle;
    }
    for (const int tag : tage) {
        stand.ungezaehlt += unverstandene(aufzeichnung.tage[tag]);
    }
    return stand;
}

bool hatUntereGrenze(Naehrwert wert)
{
    return wert != Naehrwert::na && wert != Naehrwert::chol;
}

std::optional<double> ende(const Grenze &grenze, double bedarf)
{
    return std::isfinite(grenze.wert) ? std::optional(grenze.wert / 100 * bedarf) : std::nullopt;
}

} // namespace

Einblickstand Standaufbau::vomLebensmittel(const QString &schluessel,
                                           const Datenmodul *lebensmittel, double gramm)
{
    Einblickstand stand;
    if (lebensmittel != nullptr) {
        stand.speisen << Speise{schluessel, *lebensmittel, gramm, -1};
    }
    return stand;
}

Einblickstand Standaufbau::vomPlan(const QList<Planmenge> &posten,
                                   const Speisenachschlag &lebensmittel)
{
    Einblickstand stand;
    stand.gegenstand = Gegenstand::Plan;
    for (int zeile = 0; zeile < posten.size(); ++zeile) {
        const Planmenge &einer = posten[zeile];
        Speise eine{einer.schluessel, einer.eintrag, static_cast<double>(einer.gramm), zeile};
        if (const Datenmodul *satz = lebensmittel(einer.schluessel);
            !eine.lebensmittel && satz != nullptr) {
            eine.lebensmittel = *satz;
        }
        stand.speisen << eine;
    }
    return stand;
}

Einblickstand Standaufbau::vomTag(const Aufzeichnung &aufzeichnung, int tag)
{
    const bool da = tag >= 0 && tag < aufzeichnung.tage.size();
    Einblickstand stand = vonTagen(aufzeichnung, da ? QList<int>{tag} : QList<int>());
    stand.gegenstand = Gegenstand::Tag;
    return stand;
}

Einblickstand Standaufbau::vomMittel(const Aufzeichnung &aufzeichnung)
{
    QList<int> tage;
    for (int tag = 0; tag < aufzeichnung.tage.size(); ++tag) {
        if (aufzeichnung.tage[tag].imMittel && istErfasst(aufzeichnung.tage[tag])) {
            tage << tag;
        }
    }
    Einblickstand stand = vonTagen(aufzeichnung, tage);
    stand.gegenstand = Gegenstand::Mittel;
    return stand;
}

int Standaufbau::ortVon(const Aufzeichnungsaenderung::Stelle &stelle)
{
    return stelle.tag * jeTag + stelle.mahlzeit * jeMahlzeit +
           std::min(stelle.zeile, jeMahlzeit - 1);
}

Aufzeichnungsaenderung::Stelle Standaufbau::stelleVon(int ort)
{
    return {ort / jeTag, ort % jeTag / jeMahlzeit, ort % jeMahlzeit};
}

Zielbereiche Standaufbau::allgemeineZiele(std::int32_t energiebedarf)
{
    Zielbereiche ziele;
    for (const Planregel &regel : planregeln) {
        if (const std::optional<double> bedarf = planbedarf(regel.bezug, energiebedarf)) {
            const bool mitUnterem = hatUntereGrenze(regel.wert);
            ziele << Zielbereich{.groesse = kenngroesse(regel.wert),
                                 .unten =
                                     mitUnterem ? ende(regel.punkt.von, *bedarf) : std::nullopt,
                                 .oben = ende(regel.punkt.bis, *bedarf),
                                 .obergrenze = {}};
        }
    }
    return ziele;
}
