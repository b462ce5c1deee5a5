#pragma once

#include "Naehrwerte.h"
#include "Referenzperson.h"
#include "Tabellenzeile.h"

#include <QByteArrayView>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

/// The published sets: of the European Food Safety Authority, and of the nutrition societies of
/// Germany, Austria and Switzerland.
enum class Referenzsatz { Efsa, Dach };

/// How a value is meant.
enum class Referenzart {
    Empfehlung,      ///< covers nearly everybody (PRI; empfohlene Zufuhr)
    Schaetzwert,     ///< adequate as far as is known (AI)
    Mittelwert,      ///< the average need (AR)
    Richtwert,       ///< a range, or a value for orientation (RI)
    Obergrenze,      ///< should not be passed for long (UL)
    SichereZufuhr,   ///< safe up to here, and no upper level: too little is known for one
    KeinWert,        ///< the set says that it gives no value
    KeineObergrenze, ///< the set says that it gives no upper level
};

/// As what a figure is printed.
enum class Referenzeinheit {
    AmTag,          ///< kcal, g, mg or µg a day, as the nutrient is held
    Retinol,        ///< µg retinol equivalents a day: 6 µg beta-carotene count as 1
    Retinolwirkung, ///< µg retinol activity equivalents a day: 12 µg beta-carotene count as 1
    JeKilogramm,    ///< g a day for each kg of body weight
    Energieanteil,  ///< percent of the energy of the day
    JeMegajoule,    ///< mg for each MJ of the energy of the day
    Zuschlag,       ///< a day, on top of the value of a woman neither pregnant nor lactating
    Keine,          ///< where there is no figure
};

/// Within its state, for whom a value is.
enum class Referenzphase {
    Immer,
    Trimester1,
    Trimester2,
    Trimester3,
    AbTrimester2, ///< from the fourth month on
    BisMonat6,    ///< of lactation
    NachMonat6,   ///< of lactation
    VorMenopause,
    NachMenopause,
};

/// What a figure is limited to.
enum class Referenzvorbehalt {
    Keiner,
    Referenzgewicht, ///< for a body weight that the set has for the age
    NurRetinol,      ///< of the vitamin A only what is retinol already
    NurZusaetze,     ///< only salts in supplements, water or added to food
    Sicher,          ///< adequate, and safe as well: more than this is not better
};

/// One line of the reference values: a figure and for whom it is.
struct Referenzzeile
{
    int zeile = 0; ///< line in the file, from 1
    Referenzsatz satz = Referenzsatz::Efsa;
    Naehrwert wert = Naehrwert::kal;
    Referenzgeschlecht geschlecht = Referenzgeschlecht::Mann;
    int von = 0;            ///< whole years
    std::optional<int> bis; ///< included; absent: without end
    Referenzzustand zustand = Referenzzustand::Keiner;
    Referenzphase phase = Referenzphase::Immer;
    std::optional<double> pal; ///< the activity that it is printed for
    Referenzart art = Referenzart::Empfehlung;
    Referenzeinheit einheit = Referenzeinheit::AmTag;
    std::optional<double> unten; ///< absent where there is no figure
    std::optional<double> oben;  ///< the same unless it is a range; absent: more than `unten`
    Referenzvorbehalt vorbehalt = Referenzvorbehalt::Keiner;
    QStringList quellen; ///< keys of the publications
    QString notizDe;
    QString notizEn;
};

using Referenzzeilen = QList<Referenzzeile>;

/// Reads the published reference values: one line a figure.
namespace Referenzdatei {

struct Ergebnis
{
    Referenzzeilen zeilen;
    Beanstandungen beanstandungen;
};

/// The check that a line fails whose ages are missing or end before they begin.
inline const QString altersregel = QStringLiteral("ages");

/// The check that a line fails whose figures are missing or end before they begin.
inline const QString spannenregel = QStringLiteral("range");

/// All lines, or none and what is wrong with them: with half a table the value of another age or
/// state could be taken for the one that is missing.
Ergebnis lesen(QByteArrayView bytes);

/// The lines of a file or resource, as above; line 0 is blamed where it can't be read.
Ergebnis ausDatei(const QString &pfad);

} // namespace Referenzdatei
