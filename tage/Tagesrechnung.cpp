#include "Tagesrechnung.h"

#include <algorithm>

namespace {

/// The counting rows of several days, meal by meal, with the part of the grams that falls on one.
using Mahlzeitenzeilen = std::vector<std::vector<Planzeile>>;

void fuegeHinzu(Mahlzeitenzeilen &alle, const Tag &tag, float teiler)
{
    for (std::size_t i = 0; i < alle.size(); ++i) {
        for (Planzeile zeile : planzeilen(tag.mahlzeiten[static_cast<qsizetype>(i)])) {
            zeile.menge /= teiler;
            alle[i].push_back(zeile);
        }
    }
}

Tagesrechnung rechne(const Aufzeichnung &aufzeichnung, const QList<int> &tage,
                     const Energiebedarf &bedarf)
{
    Tagesrechnung rechnung;
    Mahlzeitenzeilen mahlzeiten(static_cast<std::size_t>(aufzeichnung.mahlzeiten.size()));
    for (const int tag : tage) {
        fuegeHinzu(mahlzeiten, aufzeichnung.tage[tag], static_cast<float>(tage.size()));
        rechnung.unverstanden += unverstandene(aufzeichnung.tage[tag]);
    }
    std::vector<Planzeile> alle;
    for (const std::vector<Planzeile> &zeilen : mahlzeiten) {
        rechnung.mahlzeiten.push_back(plansummen(zeilen, bedarf.bedarf));
        alle.insert(alle.end(), zeilen.begin(), zeilen.end());
    }
    rechnung.summen = plansummen(alle, bedarf.bedarf);
    rechnung.auswertung = planAuswerten(alle, bedarf.bedarf, bedarf.unbereinigt);
    rechnung.tage = static_cast<int>(tage.size());
    return rechnung;
}

} // namespace

std::optional<std::array<float, anzahlNaehrwerte>> zeilenwerte(const Mahlzeitzeile &zeile)
{
    if (!zaehlt(zeile)) {
        return std::nullopt;
    }
    std::array<float, anzahlNaehrwerte> werte = {};
    for (const Naehrwertbeschreibung &eine : naehrwerte) {
        werte[stelle(eine.wert)] = zeile.eintrag->wert(eine.wert) * *zeile.gramm / 100.0F;
    }
    return werte;
}

std::vector<Planzeile> planzeilen(const Mahlzeit &mahlzeit)
{
    std::vector<Planzeile> zeilen;
    for (const Mahlzeitzeile &zeile : mahlzeit.zeilen) {
        if (zaehlt(zeile)) {
            zeilen.push_back({&*zeile.eintrag, *zeile.gramm});
        }
    }
    return zeilen;
}

std::vector<Planzeile> planzeilen(const Tag &tag)
{
    std::vector<Planzeile> alle;
    for (const Mahlzeit &mahlzeit : tag.mahlzeiten) {
        const std::vector<Planzeile> zeilen = planzeilen(mahlzeit);
        alle.insert(alle.end(), zeilen.begin(), zeilen.end());
    }
    return alle;
}

int unverstandene(const Mahlzeit &mahlzeit)
{
    return static_cast<int>(
        std::count_if(mahlzeit.zeilen.begin(), mahlzeit.zeilen.end(),
                      [](const Mahlzeitzeile &zeile) { return !zeile.oder && !zaehlt(zeile); }));
}

int unverstandene(const Tag &tag)
{
    int anzahl = 0;
    for (const Mahlzeit &mahlzeit : tag.mahlzeiten) {
        anzahl += unverstandene(mahlzeit);
    }
    return anzahl;
}

bool istErfasst(const Tag &tag)
{
    return std::any_of(tag.mahlzeiten.begin(), tag.mahlzeiten.end(), [](const Mahlzeit &mahlzeit) {
        return std::any_of(mahlzeit.zeilen.begin(), mahlzeit.zeilen.end(), zaehlt);
    });
}

Tagesrechnung rechneTag(const Aufzeichnung &aufzeichnung, int tag, const Energiebedarf &bedarf)
{
    const bool da = tag >= 0 && tag < aufzeichnung.tage.size();
    const bool erfasst = da && istErfasst(aufzeichnung.tage[tag]);
    Tagesrechnung rechnung = rechne(aufzeichnung, erfasst ? QList<int>{tag} : QList<int>(), bedarf);
    rechnung.unverstanden = da ? unverstandene(aufzeichnung.tage[tag]) : 0;
    return rechnung;
}

Tagesrechnung rechneMittel(const Aufzeichnung &aufzeichnung, const Energiebedarf &bedarf)
{
    QList<int> tage;
    for (int tag = 0; tag < aufzeichnung.tage.size(); ++tag) {
        if (aufzeichnung.tage[tag].imMittel && istErfasst(aufzeichnung.tage[tag])) {
            tage << tag;
        }
    }
    return rechne(aufzeichnung, tage, bedarf);
}

std::vector<double> energieanteile(const Tagesrechnung &rechnung)
{
    double gesamt = 0;
    for (const Plansummen &mahlzeit : rechnung.mahlzeiten) {
        gesamt += static_cast<double>(mahlzeit.summe[stelle(Naehrwert::kal)]);
    }
    std::vector<double> anteile;
    for (const Plansummen &mahlzeit : rechnung.mahlzeiten) {
        const auto energie = static_cast<double>(mahlzeit.summe[stelle(Naehrwert::kal)]);
        anteile.push_back(gesamt > 0 ? 100 * energie / gesamt : 0);
    }
    return anteile;
}
