#include "Zahlworte.h"

#include "Zahlenform.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

struct Stellen
{
    int nachkomma;
    int bedeutsam; ///< small numbers get more digits until so many that matter are seen
};

/// As in the fields of the main window.
Stellen stellenFuer(Einheit einheit)
{
    switch (einheit) {
    case Einheit::Kilokalorie:
        return {0, 0};
    case Einheit::Gramm:
        return {1, 0};
    case Einheit::Milligramm:
    case Einheit::Mikrogramm:
        break;
    }
    return {0, 2};
}

struct Verdikt
{
    int code;
    const char *wort;
};

constexpr std::array<Verdikt, 3> verdikte = {{
    {Balkencode::gruen, QT_TRANSLATE_NOOP("Mahlberg", "im Ziel")},
    {Balkencode::blau, QT_TRANSLATE_NOOP("Mahlberg", "knapp daneben")},
    {Balkencode::rot, QT_TRANSLATE_NOOP("Mahlberg", "verfehlt")},
}};

struct Wertungszeichen
{
    char16_t zeichen;
    const char *wort;
};

constexpr std::array<Wertungszeichen, 3> wertungszeichen = {{
    {u'+', QT_TRANSLATE_NOOP("Mahlberg", "geeignet")},
    {u'0', QT_TRANSLATE_NOOP("Mahlberg", "neutral")},
    {u'-', QT_TRANSLATE_NOOP("Mahlberg", "ungeeignet")},
}};

} // namespace

QString wertMitEinheit(Naehrwert wert, double zahl)
{
    const Einheit einheit = beschreibung(wert).einheit;
    const Stellen stellen = stellenFuer(einheit);
    const QString text = std::isfinite(zahl) ? wertText(zahl, stellen.nachkomma, stellen.bedeutsam)
                                             : QStringLiteral("-");
    return text + u' ' + einheitszeichen(einheit);
}

QString prozentMitZeichen(double zahl, int nachkommastellen)
{
    return (std::isfinite(zahl) ? wertText(zahl, nachkommastellen) : QStringLiteral("-")) +
           QStringLiteral(" %");
}

QString verdiktwort(std::optional<int> code)
{
    const auto *verdikt = std::find_if(verdikte.begin(), verdikte.end(),
                                       [code](const Verdikt &eines) { return eines.code == code; });
    return verdikt != verdikte.end() ? uebersetzt(verdikt->wort) : QString();
}

QString verdiktwort(Ampel farbe)
{
    return verdiktwort(farbe == Ampel::Gruen ? Balkencode::gruen : Balkencode::rot);
}

QString wertungswort(const QString &zeichen)
{
    for (const Wertungszeichen &zeile : wertungszeichen) {
        if (zeichen == QChar(zeile.zeichen)) {
            return uebersetzt(zeile.wort);
        }
    }
    return {};
}

QString uebersetzt(const char *schluessel)
{
    return localizedString(QString::fromUtf8(schluessel));
}
