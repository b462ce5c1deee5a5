#pragma once

#include "Klientendaten.h"

#include <QDate>
#include <QList>
#include <QString>

#include <optional>

/// What of a person's body is followed over time.
enum class Messgroesse { Gewicht, Bmi, Taille };

/// How a measure is called and written.
struct Messart
{
    Messgroesse was;
    std::optional<double> Besuch::*mass; ///< where a visit keeps it; null: it is worked out
    const char *name;                    ///< key into the string table
    const char *einheit;                 ///< the same in every language
    int nachkommastellen;
    const char *leer; ///< what is said while there is none; key into the string table
};

const Messart &messart(Messgroesse was);

/// What a measure is called in the user's language.
QString messgroessenname(Messgroesse was);

/// A measure rounded to the digits that are shown of it.
double gerundet(Messgroesse was, double wert);

/// A measure with its digits and without its unit, as in "72,4".
QString messzahl(Messgroesse was, double wert);

/// A measure with its unit, as in "72,4 kg"; no line ends between the two.
QString messwert(Messgroesse was, double wert);

/// One measure of a day: in kg, kg/m² or cm.
struct Messpunkt
{
    QDate tag;
    double wert = 0;

    bool operator==(const Messpunkt &) const = default;
};

/// All of one measure, in the order of their days; those of one day stay in the order of the
/// visits. A visit without the measure or without a day has no point, and neither has a number that
/// nobody measures: one below 0, beyond a million, infinite or undefined.
///
/// The body mass index takes the weight of the visit and the height of the same visit, or else the
/// latest that was known on that day. Where the height was asked for later only, the first one
/// after that day will do: that of adults hardly changes.
QList<Messpunkt> messreihe(const QList<Besuch> &besuche, Messgroesse was);

/// The height that counts for a visit, in m: its own, else the latest that was measured until that
/// day, else the first one after it. `besuche` has the oldest first. Absent where none was taken.
std::optional<double> groesseBei(const Besuch &besuch, const QList<Besuch> &besuche);

/// The measures that are aimed at; a limit that is absent is none.
struct Zielband
{
    std::optional<double> von; ///< the least that is in it
    std::optional<double> bis; ///< the most that is in it, or with `unterBis` the first beyond
    bool unterBis = false;

    bool operator==(const Zielband &) const = default;
};

/// Why there is no band for somebody.
enum class Bandmangel {
    Jugend,          ///< below 19 years the limits of adults don't hold
    Schwangerschaft, ///< weight and waist grow as they should
    OhneGeschlecht,  ///< the limits of the waist are those of men and of women
    OhneGroesse,     ///< a healthy weight goes by the height
};

/// What keeps a person from having a band on that day; absent when there is one. Somebody whose
/// birth is not known counts as grown up.
std::optional<Bandmangel> bandmangel(Messgroesse was, const Person &person,
                                     const QList<Besuch> &besuche, const QDate &heute);

/// The same in a sentence of the user's language.
QString ohneZielband(Bandmangel mangel);

/// What a person should measure; absent where `bandmangel` has a reason. The body mass index has
/// the normal range of adults; the weight has that range for the height that is known today; the
/// waist has the limit above which the risk of diseases of metabolism is increased.
std::optional<Zielband> zielband(Messgroesse was, const Person &person,
                                 const QList<Besuch> &besuche, const QDate &heute);

/// The first day on which a person's band holds, their 19th birthday; null when the birth is not
/// known.
QDate zielbandAb(const Person &person);

/// Where the limits come from: title, publisher and year, as they were published.
QString zielbandquelle(Messgroesse was);

/// The limits without a unit: "18,5–25", "bis 94" or "ab 18,5".
QString bandworte(Messgroesse was, const Zielband &band);

/// Where a measure lies.
enum class Bandlage { Darunter, Darin, Darueber };

/// Where a measure lies, by the digits that are shown of it and of the limits: what reads "25,0" is
/// not below 25.
Bandlage bandlage(Messgroesse was, double wert, const Zielband &band);
