#include "Rezepttext.h"

#include <QJsonArray>

#include <cmath>
#include <limits>

namespace {

const QString speisenfeld = QStringLiteral("food");
const QString zutatenfeld = QStringLiteral("ingredients");
const QString grammfeld = QStringLiteral("grams");
const QString satzfeld = QStringLiteral("record");
const QString gegebenesfeld = QStringLiteral("given");
const QString namensfeld = QStringLiteral("name");
const QString wertefeld = QStringLiteral("values");
const QString wertungsfeld = QStringLiteral("ratings");
const QString gewichtsfeld = QStringLiteral("finished");
const QString portionsfeld = QStringLiteral("portions");
const QString folgefeld = QStringLiteral("follows");
const QString gruppenfeld = QStringLiteral("group");
const QString notizfeld = QStringLiteral("note");

QString kennung(const Naehrwertbeschreibung &eine)
{
    return QString::fromUtf8(eine.kennung);
}

QString kennung(const Wertungsbeschreibung &eine)
{
    return QString::fromUtf8(eine.kennung);
}

/// Some text: null, which is no text, stays null.
void schreibe(QJsonObject &ziel, const QString &feld, const QString &text)
{
    if (!text.isNull()) {
        ziel.insert(feld, text);
    }
}

QString text(const QJsonObject &eintrag, const QString &feld)
{
    return eintrag.contains(feld) ? eintrag.value(feld).toString() : QString();
}

QJsonObject satzAlsJson(const Datenmodul &satz)
{
    QJsonObject werte;
    for (const Naehrwertbeschreibung &eine : naehrwerte) {
        const double zahl = static_cast<double>(satz.wert(eine.wert));
        werte.insert(kennung(eine), std::isfinite(zahl) ? QJsonValue(zahl) : QJsonValue());
    }
    QJsonObject urteile;
    for (const Wertungsbeschreibung &eine : wertungen) {
        schreibe(urteile, kennung(eine), satz.wertung(eine.wertung));
    }
    QJsonObject alles{{wertefeld, werte}, {wertungsfeld, urteile}};
    schreibe(alles, namensfeld, satz.name());
    return alles;
}

/// Absent when one of the values is missing, or is neither a number nor null.
std::optional<Datenmodul> satzAus(const QJsonObject &eintrag)
{
    Datenmodul satz;
    satz.setName(text(eintrag, namensfeld));
    const QJsonObject werte = eintrag.value(wertefeld).toObject();
    for (const Naehrwertbeschreibung &eine : naehrwerte) {
        const QJsonValue wert = werte.value(kennung(eine));
        if (!wert.isDouble() && !wert.isNull()) {
            return std::nullopt;
        }
        satz.setWert(eine.wert,
                     static_cast<float>(wert.toDouble(std::numeric_limits<double>::quiet_NaN())));
    }
    const QJsonObject urteile = eintrag.value(wertungsfeld).toObject();
    for (const Wertungsbeschreibung &eine : wertungen) {
        satz.setWertung(eine.wertung, text(urteile, kennung(eine)));
    }
    return satz;
}

std::optional<Rezeptzutat> zutatAus(const QJsonObject &eintrag)
{
    const std::optional<Datenmodul> satz = satzAus(eintrag.value(satzfeld).toObject());
    if (!satz) {
        return std::nullopt;
    }
    return Rezeptzutat{eintrag.value(speisenfeld).toString(), eintrag.value(grammfeld).toDouble(),
                       *satz};
}

/// Takes up a number that may be missing. False when there is something else.
bool nimmZahl(const QJsonValue &wert, std::optional<double> &ziel)
{
    if (wert.isDouble()) {
        ziel = wert.toDouble();
    }
    return wert.isDouble() || wert.isUndefined();
}

} // namespace

QJsonObject alsJson(const Rezept &rezept)
{
    QJsonArray zutaten;
    for (const Rezeptzutat &zutat : rezept.zutaten) {
        zutaten.append(QJsonObject{{speisenfeld, zutat.schluessel},
                                   {grammfeld, zutat.gramm},
                                   {satzfeld, satzAlsJson(zutat.satz)}});
    }
    QJsonObject urteile;
    for (const Wertungsbeschreibung &eine : wertungen) {
        schreibe(urteile, kennung(eine), rezept.wertungen[stelle(eine.wertung)]);
    }
    QJsonObject alles{{speisenfeld, rezept.schluessel},
                      {zutatenfeld, zutaten},
                      {folgefeld, rezept.folgt},
                      {wertungsfeld, urteile},
                      {gegebenesfeld, satzAlsJson(rezept.gegeben)}};
    if (rezept.fertiggewicht) {
        alles.insert(gewichtsfeld, *rezept.fertiggewicht);
    }
    if (rezept.portionen) {
        alles.insert(portionsfeld, *rezept.portionen);
    }
    schreibe(alles, gruppenfeld, rezept.gruppe);
    schreibe(alles, notizfeld, rezept.notiz);
    return alles;
}

std::optional<Rezept> rezeptAus(const QJsonObject &eintrag)
{
    Rezept rezept;
    rezept.schluessel = eintrag.value(speisenfeld).toString();
    const QJsonArray zutaten = eintrag.value(zutatenfeld).toArray();
    for (const auto &eine : zutaten) {
        const std::optional<Rezeptzutat> zutat = zutatAus(eine.toObject());
        if (!zutat) {
            return std::nullopt;
        }
        rezept.zutaten << *zutat;
    }
    const std::optional<Datenmodul> gegeben = satzAus(eintrag.value(gegebenesfeld).toObject());
    const bool zahlen = nimmZahl(eintrag.value(gewichtsfeld), rezept.fertiggewicht) &&
                        nimmZahl(eintrag.value(portionsfeld), rezept.portionen);
    if (!gegeben || !zahlen || !eintrag.value(folgefeld).isBool()) {
        return std::nullopt;
    }
    rezept.gegeben = *gegeben;
    rezept.folgt = eintrag.value(folgefeld).toBool();
    rezept.gruppe = text(eintrag, gruppenfeld);
    rezept.notiz = text(eintrag, notizfeld);
    const QJsonObject urteile = eintrag.value(wertungsfeld).toObject();
    for (const Wertungsbeschreibung &eine : wertungen) {
        rezept.wertungen[stelle(eine.wertung)] = text(urteile, kennung(eine));
    }
    const bool heil = rezeptmangel(rezept, Stoffwissen()) == Rezeptmangel::Keiner;
    return heil ? std::optional(rezept) : std::nullopt;
}
