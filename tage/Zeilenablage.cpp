#include "Zeilenablage.h"

#include "Aufzeichnungstext.h"
#include "Tagesrechnung.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>

namespace {

const QString teilfeld = QStringLiteral("part");
const QString kennungsfeld = QStringLiteral("record");
const QString stellenfeld = QStringLiteral("rows");

/// How the three kinds are called, in their order.
constexpr std::array<const char *, 3> teile = {"rows", "meal", "day"};

/// The columns of the table, in their order.
constexpr std::array<const char *, 5> spalten = {
    QT_TRANSLATE_NOOP("Mahlberg", "Mahlzeit"), QT_TRANSLATE_NOOP("Mahlberg", "Lebensmittel"),
    QT_TRANSLATE_NOOP("Mahlberg", "Menge"), QT_TRANSLATE_NOOP("Mahlberg", "Gramm"), "kcal"};

bool gibtTag(const Aufzeichnung &aufzeichnung, int tag)
{
    return tag >= 0 && tag < aufzeichnung.tage.size();
}

/// Rows that leave their meal leave the row behind that they were an alternative to.
void berichtige(Zeilenablage &ablage)
{
    for (Mahlzeit &mahlzeit : ablage.inhalt.mahlzeiten) {
        if (!mahlzeit.zeilen.isEmpty()) {
            mahlzeit.zeilen.first().oder = false;
        }
    }
}

QList<Csv::Zelle> zellen(const QString &mahlzeit, const Mahlzeitzeile &zeile)
{
    const QString name = zeile.schluessel.isNull() ? zeile.text : localizedString(zeile.schluessel);
    const auto werte = zeilenwerte(zeile);
    return {mahlzeitname(mahlzeit),
            zeile.oder ? localizedString(QStringLiteral("oder %1")).arg(name) : name, zeile.angabe,
            zeile.gramm ? Csv::Zelle(*zeile.gramm) : Csv::Zelle(),
            werte ? Csv::Zelle((*werte)[stelle(Naehrwert::kal)]) : Csv::Zelle()};
}

} // namespace

Zeilenablage ablageVon(const Aufzeichnung &aufzeichnung,
                       const QList<Aufzeichnungsaenderung::Stelle> &zeilen)
{
    Zeilenablage ablage;
    for (int mahlzeit = 0; mahlzeit < aufzeichnung.mahlzeiten.size(); ++mahlzeit) {
        Mahlzeit eine;
        for (int tag = 0; tag < aufzeichnung.tage.size(); ++tag) {
            const QList<Mahlzeitzeile> &alle = aufzeichnung.tage[tag].mahlzeiten[mahlzeit].zeilen;
            for (int zeile = 0; zeile < alle.size(); ++zeile) {
                if (zeilen.contains(Aufzeichnungsaenderung::Stelle{tag, mahlzeit, zeile})) {
                    eine.zeilen << alle[zeile];
                }
            }
        }
        if (!eine.zeilen.isEmpty()) {
            ablage.mahlzeiten << aufzeichnung.mahlzeiten[mahlzeit];
            ablage.inhalt.mahlzeiten << eine;
        }
    }
    berichtige(ablage);
    return ablage;
}

Zeilenablage ablageDerMahlzeit(const Aufzeichnung &aufzeichnung, int tag, int mahlzeit)
{
    Zeilenablage ablage{.art = Zeilenablage::Art::Mahlzeit, .mahlzeiten = {}, .inhalt = {}};
    if (gibtTag(aufzeichnung, tag) && mahlzeit >= 0 && mahlzeit < aufzeichnung.mahlzeiten.size()) {
        ablage.mahlzeiten << aufzeichnung.mahlzeiten[mahlzeit];
        ablage.inhalt.mahlzeiten << aufzeichnung.tage[tag].mahlzeiten[mahlzeit];
    }
    return ablage;
}

Zeilenablage ablageDesTages(const Aufzeichnung &aufzeichnung, int tag)
{
    return gibtTag(aufzeichnung, tag)
               ? Zeilenablage{Zeilenablage::Art::Tag, aufzeichnung.mahlzeiten,
                              aufzeichnung.tage[tag]}
               : Zeilenablage{.art = Zeilenablage::Art::Tag, .mahlzeiten = {}, .inhalt = {}};
}

int zeilenzahl(const Zeilenablage &ablage)
{
    qsizetype anzahl = 0;
    for (const Mahlzeit &mahlzeit : ablage.inhalt.mahlzeiten) {
        anzahl += mahlzeit.zeilen.size();
    }
    return static_cast<int>(anzahl);
}

int unverstandene(const Zeilenablage &ablage)
{
    return unverstandene(ablage.inhalt);
}

QByteArray alsText(const Zeilenablage &ablage)
{
    Aufzeichnung huelle;
    huelle.mahlzeiten = ablage.mahlzeiten;
    huelle.tage << ablage.inhalt;
    QJsonObject alles = QJsonDocument::fromJson(alsText(huelle)).object();
    alles.insert(teilfeld, QLatin1String(teile.at(static_cast<std::size_t>(ablage.art))));
    return QJsonDocument(alles).toJson(QJsonDocument::Compact);
}

Csv::Tabelle alsTabelle(const Zeilenablage &ablage)
{
    Csv::Tabelle tabelle;
    for (const char *spalte : spalten) {
        tabelle.spalten << localizedString(QString::fromUtf8(spalte));
    }
    for (qsizetype i = 0; i < ablage.mahlzeiten.size(); ++i) {
        for (const Mahlzeitzeile &zeile : ablage.inhalt.mahlzeiten[i].zeilen) {
            tabelle.zeilen << zellen(ablage.mahlzeiten[i], zeile);
        }
    }
    return tabelle;
}

Ablagelesung leseAblage(const QByteArray &text)
{
    using Zustand = Ablagelesung::Zustand;
    const Aufzeichnungslesung gelesen = leseAufzeichnung(text);
    if (gelesen.zustand == Aufzeichnungslesung::Zustand::Neuer) {
        return {Zustand::Neuer};
    }
    const QString teil = QJsonDocument::fromJson(text).object().value(teilfeld).toString();
    const auto art = std::find_if(teile.begin(), teile.end(),
                                  [&](const char *einer) { return teil == QLatin1String(einer); });
    if (gelesen.zustand != Aufzeichnungslesung::Zustand::Gelesen || art == teile.end() ||
        gelesen.aufzeichnung.tage.size() != 1) {
        return {Zustand::Beschaedigt};
    }
    const Zeilenablage ablage{static_cast<Zeilenablage::Art>(art - teile.begin()),
                              gelesen.aufzeichnung.mahlzeiten,
                              gelesen.aufzeichnung.tage.constFirst()};
    return zeilenzahl(ablage) > meisteAblagezeilen ? Ablagelesung{Zustand::ZuViel}
                                                   : Ablagelesung{Zustand::Gelesen, ablage};
}

QByteArray alsText(const Zeilenherkunft &herkunft)
{
    QJsonArray stellen;
    for (const Aufzeichnungsaenderung::Stelle &eine : herkunft.zeilen) {
        stellen.append(QJsonArray{eine.tag, eine.mahlzeit, eine.zeile});
    }
    return QJsonDocument(QJsonObject{{kennungsfeld, herkunft.kennung}, {stellenfeld, stellen}})
        .toJson(QJsonDocument::Compact);
}

std::optional<Zeilenherkunft> leseHerkunft(const QByteArray &text)
{
    const QJsonObject alles = QJsonDocument::fromJson(text).object();
    Zeilenherkunft herkunft{alles.value(kennungsfeld).toString(), {}};
    const QJsonArray stellen = alles.value(stellenfeld).toArray();
    for (const auto &eine : stellen) {
        herkunft.zeilen << Aufzeichnungsaenderung::Stelle{eine[0].toInt(-1), eine[1].toInt(-1),
                                                          eine[2].toInt(-1)};
    }
    const bool gut = !herkunft.kennung.isNull() && !stellen.isEmpty();
    return gut ? std::optional(herkunft) : std::nullopt;
}
