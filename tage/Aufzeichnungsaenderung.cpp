#include "Aufzeichnungsaenderung.h"

#include <algorithm>

namespace Aufzeichnungsaenderung {

namespace {

bool gibt(qsizetype anzahl, int stelle)
{
    return stelle >= 0 && stelle < anzahl;
}

/// The meal at that place; null where there is none.
Mahlzeit *mahlzeitVon(Aufzeichnung &aufzeichnung, int tag, int mahlzeit)
{
    return gibt(aufzeichnung.tage.size(), tag) && gibt(aufzeichnung.mahlzeiten.size(), mahlzeit)
               ? &aufzeichnung.tage[tag].mahlzeiten[mahlzeit]
               : nullptr;
}

/// The row at that place; null where there is none.
Mahlzeitzeile *zeileVon(Aufzeichnung &aufzeichnung, const Stelle &stelle)
{
    Mahlzeit *mahlzeit = mahlzeitVon(aufzeichnung, stelle.tag, stelle.mahlzeit);
    return mahlzeit != nullptr && gibt(mahlzeit->zeilen.size(), stelle.zeile)
               ? &mahlzeit->zeilen[stelle.zeile]
               : nullptr;
}

/// Where the row before an alternative is gone, the alternative is what is eaten.
void berichtige(Mahlzeit &mahlzeit)
{
    if (!mahlzeit.zeilen.isEmpty()) {
        mahlzeit.zeilen.first().oder = false;
    }
}

} // namespace

bool fuegeEin(Aufzeichnung &aufzeichnung, const Stelle &stelle, const QList<Mahlzeitzeile> &zeilen)
{
    Mahlzeit *mahlzeit = mahlzeitVon(aufzeichnung, stelle.tag, stelle.mahlzeit);
    if (mahlzeit == nullptr || !gibt(mahlzeit->zeilen.size() + 1, stelle.zeile)) {
        return false;
    }
    for (qsizetype i = 0; i < zeilen.size(); ++i) {
        mahlzeit->zeilen.insert(stelle.zeile + i, zeilen[i]);
    }
    berichtige(*mahlzeit);
    return true;
}

bool ersetze(Aufzeichnung &aufzeichnung, const Stelle &stelle, const Mahlzeitzeile &zeile)
{
    Mahlzeitzeile *alte = zeileVon(aufzeichnung, stelle);
    if (alte == nullptr) {
        return false;
    }
    *alte = zeile;
    berichtige(*mahlzeitVon(aufzeichnung, stelle.tag, stelle.mahlzeit));
    return true;
}

bool setzeOder(Aufzeichnung &aufzeichnung, const Stelle &stelle, bool oder)
{
    Mahlzeitzeile *zeile = zeileVon(aufzeichnung, stelle);
    if (zeile == nullptr || (oder && stelle.zeile == 0)) {
        return false;
    }
    zeile->oder = oder;
    return true;
}

bool fuegeMahlzeitEin(Aufzeichnung &aufzeichnung, int stelle, const QString &name)
{
    if (!gibt(aufzeichnung.mahlzeiten.size() + 1, stelle) || name.trimmed().isEmpty() ||
        aufzeichnung.mahlzeiten.size() >= meisteMahlzeiten) {
        return false;
    }
    aufzeichnung.mahlzeiten.insert(stelle, name.trimmed());
    for (Tag &tag : aufzeichnung.tage) {
        tag.mahlzeiten.insert(stelle, Mahlzeit());
    }
    return true;
}

bool nimmMahlzeitHeraus(Aufzeichnung &aufzeichnung, int mahlzeit)
{
    if (!gibt(aufzeichnung.mahlzeiten.size(), mahlzeit) || aufzeichnung.mahlzeiten.size() == 1) {
        return false;
    }
    aufzeichnung.mahlzeiten.removeAt(mahlzeit);
    for (Tag &tag : aufzeichnung.tage) {
        tag.mahlzeiten.removeAt(mahlzeit);
    }
    return true;
}

bool verschiebeMahlzeit(Aufzeichnung &aufzeichnung, int von, int nach)
{
    if (!gibt(aufzeichnung.mahlzeiten.size(), von) || !gibt(aufzeichnung.mahlzeiten.size(), nach) ||
        von == nach) {
        return false;
    }
    aufzeichnung.mahlzeiten.move(von, nach);
    for (Tag &tag : aufzeichnung.tage) {
        tag.mahlzeiten.move(von, nach);
    }
    return true;
}

bool benenneMahlzeit(Aufzeichnung &aufzeichnung, int mahlzeit, const QString &name)
{
    if (!gibt(aufzeichnung.mahlzeiten.size(), mahlzeit) || name.trimmed().isEmpty()) {
        return false;
    }
    aufzeichnung.mahlzeiten[mahlzeit] = name.trimmed();
    return true;
}

bool setzeTagezahl(Aufzeichnung &aufzeichnung, int tage)
{
    if (tage < 1 || tage > meisteTage) {
        return false;
    }
    Tag leerer;
    leerer.mahlzeiten.resize(aufzeichnung.mahlzeiten.size());
    while (aufzeichnung.tage.size() < tage) {
        aufzeichnung.tage << leerer;
    }
    aufzeichnung.tage.resize(tage);
    return true;
}

bool fuelle(Aufzeichnung &aufzeichnung, int von, const QList<int> &nach)
{
    const auto istTag = [&](int tag) {
        return gibt(aufzeichnung.tage.size(), tag);
    };
    if (!istTag(von) || nach.isEmpty() || !std::all_of(nach.begin(), nach.end(), istTag)) {
        return false;
    }
    const Tag vorlage = aufzeichnung.tage[von];
    for (const int tag : nach) {
        aufzeichnung.tage[tag].mahlzeiten = vorlage.mahlzeiten;
        aufzeichnung.tage[tag].notiz = vorlage.notiz;
    }
    return true;
}

bool leere(Aufzeichnung &aufzeichnung, int tag)
{
    if (!gibt(aufzeichnung.tage.size(), tag)) {
        return false;
    }
    aufzeichnung.tage[tag].mahlzeiten.fill(Mahlzeit());
    aufzeichnung.tage[tag].notiz = QString();
    return true;
}

} // namespace Aufzeichnungsaenderung
