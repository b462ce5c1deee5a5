#pragma once

#include "Einblickstand.h"

#include <QTranslator>

/// Days and people for the tests of the reference values on screen.
namespace Referenzprobe {

/// Knows a few words of English.
class Woerterbuch : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char * /*kontext*/, const char *text, const char * /*unterscheidung*/,
                      int /*anzahl*/) const override
    {
        static const QHash<QByteArray, QString> worte = {
            {"zu wenig", QStringLiteral("too little")},
            {"Allgemeiner Tagesbedarf", QStringLiteral("General daily needs")},
            {"Frau", QStringLiteral("Woman")},
            {"Schätzwert", QStringLiteral("Adequate")}};
        return worte.value(text);
    }
};

inline const Referenzzeilen &tabelle()
{
    static const Referenzzeilen zeilen =
        Referenzdatei::ausDatei(QStringLiteral(REFERENZTABELLE)).zeilen;
    return zeilen;
}

/// A man of 67, 95 kg, who moves little.
inline Referenzperson mann()
{
    return {.geschlecht = Referenzgeschlecht::Mann, .alter = 67, .pal = 1.4, .gewicht = 95};
}

/// A woman of 28 in her second trimester.
inline Referenzperson schwangere()
{
    return {.geschlecht = Referenzgeschlecht::Frau,
            .alter = 28,
            .zustand = Referenzzustand::Schwanger,
            .trimester = 2,
            .pal = 1.6,
            .gewicht = 64};
}

/// The stand of a day by a set.
inline Einblickstand stand(const Speisen &speisen, std::optional<Referenzsatz> satz,
                           const Referenzperson &person)
{
    Einblickstand einer;
    einer.gegenstand = Gegenstand::Tag;
    einer.speisen = speisen;
    einer.person = person;
    if (satz) {
        einer.referenz = referenzwerte(tabelle(), *satz, person);
        einer.ziele = zielbereiche(einer.referenz);
    }
    return einer;
}

} // namespace Referenzprobe
