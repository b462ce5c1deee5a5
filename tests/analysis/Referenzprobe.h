#pragma once

#include "Referenzwerte.h"

#include <QTest>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(Referenzperson)

// The table, three people, and what is said of them in a few words.

inline constexpr auto mann = Referenzgeschlecht::Mann;
inline constexpr auto frau = Referenzgeschlecht::Frau;

inline const Referenzzeilen &tabelle()
{
    static const Referenzzeilen zeilen =
        Referenzdatei::ausDatei(QStringLiteral(REFERENZTABELLE)).zeilen;
    return zeilen;
}

/// Pregnant, in the second trimester.
inline Referenzperson schwangere()
{
    return {.geschlecht = frau,
            .alter = 28,
            .zustand = Referenzzustand::Schwanger,
            .trimester = 2,
            .pal = 1.6,
            .gewicht = 64};
}

inline Referenzperson aeltererMann()
{
    return {.geschlecht = mann, .alter = 67, .pal = 1.4, .gewicht = 95};
}

inline Referenzperson junge()
{
    return {.geschlecht = mann, .alter = 12, .pal = 1.6, .gewicht = 42};
}

/// A woman who is neither pregnant nor lactating.
inline Referenzperson frauVon(int alter)
{
    return {.geschlecht = frau, .alter = alter, .pal = 1.6, .gewicht = 60};
}

inline Referenzperson stillende(int monat)
{
    Referenzperson person = frauVon(30);
    person.zustand = Referenzzustand::Stillend;
    person.stillmonat = monat;
    return person;
}

inline QString zahl(double wert)
{
    return QString::number(wert, 'g', 6);
}

inline const char *wortFuer(Referenzart art)
{
    constexpr std::array worte = {"PRI", "AI", "AR", "RI", "UL", "SAFE", "no value", "no UL"};
    return worte[static_cast<std::size_t>(art)];
}

inline const char *wortFuer(Referenzmangel mangel)
{
    constexpr std::array worte = {"",       "not set",      "no age",    "age",      "no sex",
                                  "state",  "no trimester", "no month",  "month",    "no menopause",
                                  "no pal", "pal",          "no weight", "no energy"};
    return worte[static_cast<std::size_t>(mangel)];
}

/// "RI 53.6..93.8", "RI 30+" for more than this, "- state" for what is lacking, and behind it what
/// is said of the most, "UL 2500" or "no UL".
inline QString text(const Referenzwert &wert)
{
    QString text = u"- "_s + QString::fromUtf8(wortFuer(wert.mangel));
    if (wert.art) {
        text = QString::fromUtf8(wortFuer(*wert.art)) + u' ' + zahl(wert.unten.value_or(-1));
        if (!wert.oben) {
            text += u'+';
        } else if (*wert.oben != *wert.unten) {
            text += u".."_s + zahl(*wert.oben);
        }
    }
    if (wert.grenzart) {
        text += u", "_s + QString::fromUtf8(wortFuer(*wert.grenzart));
    }
    if (wert.grenze) {
        text += u' ' + zahl(*wert.grenze);
    }
    return text;
}

inline Referenzwert nachgeschlagen(Referenzsatz satz, const Referenzperson &person,
                                   Naehrwert welcher)
{
    return referenzwerte(tabelle(), satz, person).wert(welcher);
}

inline QString efsa(const Referenzperson &person, Naehrwert welcher)
{
    return text(nachgeschlagen(Referenzsatz::Efsa, person, welcher));
}

inline QString dach(const Referenzperson &person, Naehrwert welcher)
{
    return text(nachgeschlagen(Referenzsatz::Dach, person, welcher));
}

/// "ca 950.. ! 2500": the lower end, the upper end, the upper level.
inline QString text(const Zielbereich &ziel)
{
    const auto ende = [](const std::optional<double> &eines) {
        return eines ? zahl(*eines) : QString();
    };
    QString text = QString::fromUtf8(beschreibung(ziel.groesse).kennung) + u' ' + ende(ziel.unten) +
                   u".."_s + ende(ziel.oben);
    return ziel.obergrenze ? text + u" !"_s + ende(ziel.obergrenze) : text;
}

inline QStringList ziele(Referenzsatz satz, const Referenzperson &person)
{
    QStringList liste;
    for (const Zielbereich &ziel : zielbereiche(referenzwerte(tabelle(), satz, person))) {
        liste << text(ziel);
    }
    return liste;
}
