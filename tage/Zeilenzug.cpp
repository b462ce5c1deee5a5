#include "Zeilenzug.h"

#include <QSet>

#include <algorithm>
#include <tuple>

namespace Zeilenzug {

namespace {

bool davor(const Stelle &eine, const Stelle &andere)
{
    return std::tie(eine.tag, eine.mahlzeit, eine.zeile) <
           std::tie(andere.tag, andere.mahlzeit, andere.zeile);
}

bool gibtMahlzeit(const Aufzeichnung &aufzeichnung, const Stelle &stelle)
{
    return stelle.tag >= 0 && stelle.tag < aufzeichnung.tage.size() && stelle.mahlzeit >= 0 &&
           stelle.mahlzeit < aufzeichnung.mahlzeiten.size();
}

const QList<Mahlzeitzeile> &zeilenVon(const Aufzeichnung &aufzeichnung, const Stelle &stelle)
{
    return aufzeichnung.tage[stelle.tag].mahlzeiten[stelle.mahlzeit].zeilen;
}

const Mahlzeitzeile &zeileVon(const Aufzeichnung &aufzeichnung, const Stelle &stelle)
{
    return zeilenVon(aufzeichnung, stelle)[stelle.zeile];
}

bool gibtZeile(const Aufzeichnung &aufzeichnung, const Stelle &stelle)
{
    return gibtMahlzeit(aufzeichnung, stelle) && stelle.zeile >= 0 &&
           stelle.zeile < zeilenVon(aufzeichnung, stelle).size();
}

/// Those that are there, each once and in the order of the record, with the alternatives to them.
QList<Stelle> mitWahl(const Aufzeichnung &aufzeichnung, const QList<Stelle> &zeilen)
{
    QList<Stelle> alle;
    for (const Stelle &eine : zeilen) {
        if (!gibtZeile(aufzeichnung, eine)) {
            continue;
        }
        const bool istWahl = zeileVon(aufzeichnung, eine).oder;
        const int ende = istWahl
                             ? eine.zeile + 1
                             : freierPlatz(aufzeichnung.tage[eine.tag].mahlzeiten[eine.mahlzeit],
                                           eine.zeile + 1);
        for (int zeile = eine.zeile; zeile < ende; ++zeile) {
            alle << Stelle{eine.tag, eine.mahlzeit, zeile};
        }
    }
    std::sort(alle.begin(), alle.end(), davor);
    alle.erase(std::unique(alle.begin(), alle.end()), alle.end());
    return alle;
}

QList<Stelle> hintereinander(const Stelle &erste, qsizetype anzahl)
{
    QList<Stelle> alle;
    for (int i = 0; i < anzahl; ++i) {
        alle << Stelle{erste.tag, erste.mahlzeit, erste.zeile + i};
    }
    return alle;
}

/// The meal of this name, one that is not taken yet; made where there is none and room for one.
int mahlzeitFuer(Aufzeichnung &aufzeichnung, const QString &name, QSet<int> &vergebene)
{
    for (int i = 0; i < aufzeichnung.mahlzeiten.size(); ++i) {
        const bool gleich =
            aufzeichnung.mahlzeiten[i].compare(name, Qt::CaseInsensitive) == 0 ||
            mahlzeitname(aufzeichnung.mahlzeiten[i]).compare(name, Qt::CaseInsensitive) == 0;
        if (gleich && !vergebene.contains(i)) {
            vergebene << i;
            return i;
        }
    }
    const auto neue = static_cast<int>(aufzeichnung.mahlzeiten.size());
    if (!Aufzeichnungsaenderung::fuegeMahlzeitEin(aufzeichnung, neue, name)) {
        return neue - 1;
    }
    vergebene << neue;
    return neue;
}

/// Nothing of what is noted is lost.
void fuegeNotizHinzu(QString &notiz, const QString &weitere)
{
    if (notiz.isEmpty()) {
        notiz = weitere;
    } else if (!weitere.isEmpty() && !notiz.contains(weitere)) {
        notiz += QStringLiteral("; ") + weitere;
    }
}

/// Rows come to a place that no row is parted from its alternatives at.
QList<Stelle> fuegeZeilenEin(Aufzeichnung &aufzeichnung, const QList<Mahlzeitzeile> &zeilen,
                             Stelle hier)
{
    hier.zeile = freierPlatz(aufzeichnung.tage[hier.tag].mahlzeiten[hier.mahlzeit], hier.zeile);
    return Aufzeichnungsaenderung::fuegeEin(aufzeichnung, hier, zeilen)
               ? hintereinander(hier, zeilen.size())
               : QList<Stelle>();
}

QList<Stelle> verteile(Aufzeichnung &aufzeichnung, const Zeilenablage &ablage, int tag)
{
    QList<Stelle> alle;
    QSet<int> vergebene;
    for (qsizetype i = 0; i < ablage.mahlzeiten.size(); ++i) {
        const Mahlzeit &quelle = ablage.inhalt.mahlzeiten[i];
        if (quelle.zeilen.isEmpty() && quelle.notiz.isEmpty()) {
            continue;
        }
        const int ziel = mahlzeitFuer(aufzeichnung, ablage.mahlzeiten[i], vergebene);
        Mahlzeit &mahlzeit = aufzeichnung.tage[tag].mahlzeiten[ziel];
        alle << hintereinander({tag, ziel, static_cast<int>(mahlzeit.zeilen.size())},
                               quelle.zeilen.size());
        mahlzeit.zeilen << quelle.zeilen;
        fuegeNotizHinzu(mahlzeit.notiz, quelle.notiz);
    }
    return alle;
}

} // namespace

int freierPlatz(const Mahlzeit &mahlzeit, int zeile)
{
    while (zeile > 0 && zeile < mahlzeit.zeilen.size() && mahlzeit.zeilen[zeile].oder) {
        ++zeile;
    }
    return zeile;
}

QList<Stelle> ziehe(Aufzeichnung &aufzeichnung, const QList<Stelle> &zeilen, const Stelle &nach,
                    bool kopie)
{
    const QList<Stelle> gezogene = mitWahl(aufzeichnung, zeilen);
    if (gezogene.isEmpty() || !gibtMahlzeit(aufzeichnung, nach) || nach.zeile < 0 ||
        nach.zeile > zeilenVon(aufzeichnung, nach).size()) {
        return {};
    }
    QList<Mahlzeitzeile> inhalt;
    for (const Stelle &eine : gezogene) {
        inhalt << zeileVon(aufzeichnung, eine);
    }
    Stelle ziel = nach;
    if (!inhalt.constFirst().oder) { // an alternative may come among the others
        ziel.zeile = freierPlatz(aufzeichnung.tage[nach.tag].mahlzeiten[nach.mahlzeit], nach.zeile);
    }
    Aufzeichnung neue = aufzeichnung;
    if (!kopie) {
        ziel.zeile -= static_cast<int>(
            std::count_if(gezogene.begin(), gezogene.end(), [&](const Stelle &eine) {
                return eine.tag == ziel.tag && eine.mahlzeit == ziel.mahlzeit &&
                       eine.zeile < ziel.zeile;
            }));
        for (auto eine = gezogene.rbegin(); eine != gezogene.rend(); ++eine) {
            neue.tage[eine->tag].mahlzeiten[eine->mahlzeit].zeilen.removeAt(eine->zeile);
        }
    }
    Aufzeichnungsaenderung::fuegeEin(neue, ziel, inhalt);
    if (neue == aufzeichnung) {
        return {};
    }
    aufzeichnung = neue;
    return hintereinander(ziel, inhalt.size());
}

QList<Stelle> rueckeHinauf(Aufzeichnung &aufzeichnung, const QList<Stelle> &zeilen)
{
    const QList<Stelle> gerueckte = mitWahl(aufzeichnung, zeilen);
    if (gerueckte.isEmpty()) {
        return {};
    }
    Stelle nach = gerueckte.constFirst();
    const QList<Mahlzeitzeile> &hier = zeilenVon(aufzeichnung, nach);
    if (hier[nach.zeile].oder) {
        return hier[nach.zeile - 1].oder ? ziehe(aufzeichnung, gerueckte,
                                                 {nach.tag, nach.mahlzeit, nach.zeile - 1}, false)
                                         : QList<Stelle>();
    }
    if (nach.zeile == 0) {
        --nach.mahlzeit;
        if (nach.mahlzeit < 0) {
            return {};
        }
        nach.zeile = static_cast<int>(zeilenVon(aufzeichnung, nach).size());
    } else {
        do {
            --nach.zeile;
        } while (hier[nach.zeile].oder);
    }
    return ziehe(aufzeichnung, gerueckte, nach, false);
}

QList<Stelle> rueckeHinunter(Aufzeichnung &aufzeichnung, const QList<Stelle> &zeilen)
{
    const QList<Stelle> gerueckte = mitWahl(aufzeichnung, zeilen);
    if (gerueckte.isEmpty()) {
        return {};
    }
    Stelle nach = gerueckte.constLast();
    const Mahlzeit &hier = aufzeichnung.tage[nach.tag].mahlzeiten[nach.mahlzeit];
    const int naechste = nach.zeile + 1;
    if (zeileVon(aufzeichnung, gerueckte.constFirst()).oder) {
        const bool dahinterWahl = naechste < hier.zeilen.size() && hier.zeilen[naechste].oder;
        return dahinterWahl
                   ? ziehe(aufzeichnung, gerueckte, {nach.tag, nach.mahlzeit, naechste + 1}, false)
                   : QList<Stelle>();
    }
    if (naechste < hier.zeilen.size()) {
        nach.zeile = naechste + 1;
    } else {
        nach = {nach.tag, nach.mahlzeit + 1, 0};
    }
    return ziehe(aufzeichnung, gerueckte, nach, false);
}

bool nimmHeraus(Aufzeichnung &aufzeichnung, const QList<Stelle> &zeilen)
{
    QList<Stelle> vorhandene = zeilen;
    vorhandene.removeIf([&](const Stelle &eine) { return !gibtZeile(aufzeichnung, eine); });
    std::sort(vorhandene.begin(), vorhandene.end(), davor);
    vorhandene.erase(std::unique(vorhandene.begin(), vorhandene.end()), vorhandene.end());
    for (auto eine = vorhandene.rbegin(); eine != vorhandene.rend(); ++eine) {
        QList<Mahlzeitzeile> &hier = aufzeichnung.tage[eine->tag].mahlzeiten[eine->mahlzeit].zeilen;
        const bool warWahl = hier[eine->zeile].oder;
        hier.removeAt(eine->zeile);
        if (!warWahl && eine->zeile < hier.size()) {
            hier[eine->zeile].oder = false;
        }
    }
    return !vorhandene.isEmpty();
}

QList<Stelle> fuegeEin(Aufzeichnung &aufzeichnung, const Zeilenablage &ablage, const Stelle &hier)
{
    if (!gibtMahlzeit(aufzeichnung, hier) || ablage.mahlzeiten.isEmpty() || hier.zeile < 0 ||
        hier.zeile > zeilenVon(aufzeichnung, hier).size()) {
        return {};
    }
    if (ablage.art == Zeilenablage::Art::Tag) {
        Aufzeichnungsaenderung::leere(aufzeichnung, hier.tag);
        aufzeichnung.tage[hier.tag].notiz = ablage.inhalt.notiz;
        return verteile(aufzeichnung, ablage, hier.tag);
    }
    if (ablage.mahlzeiten.size() > 1) {
        return verteile(aufzeichnung, ablage, hier.tag);
    }
    const Mahlzeit &quelle = ablage.inhalt.mahlzeiten.constFirst();
    fuegeNotizHinzu(aufzeichnung.tage[hier.tag].mahlzeiten[hier.mahlzeit].notiz, quelle.notiz);
    return fuegeZeilenEin(aufzeichnung, quelle.zeilen, hier);
}

} // namespace Zeilenzug
