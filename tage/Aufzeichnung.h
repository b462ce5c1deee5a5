#pragma once

#include "Datenmodul.h"

#include <QByteArray>
#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>

/// What a record of days tells: what a client ate, or what they are to eat.
enum class Aufzeichnungsart { Protokoll, Wochenplan };

/// A row of a meal: a food and how much of it, as it was said.
struct Mahlzeitzeile
{
    QString schluessel = {}; ///< the food's key in its store; null: no food was found for `text`
    QString text = {};       ///< what was typed in place of a food; null where one was found
    QString angabe = {};     ///< the amount as it was said, such as "2 Scheiben"
    /// What the amount counts, in grams; absent where it was not understood, and then the row
    /// counts nothing.
    std::optional<float> gramm = {};
    /// What the food was like when it was entered, so that an old record reads the same years
    /// later. Absent: it was in no store.
    std::optional<Datenmodul> eintrag = {};
    bool oder = false; ///< may be taken in place of the row before it, and counts nothing

    bool operator==(const Mahlzeitzeile &andere) const;
};

/// What is eaten at one time of a day.
struct Mahlzeit
{
    QList<Mahlzeitzeile> zeilen;
    QString notiz;

    bool operator==(const Mahlzeit &) const = default;
};

/// One day of a record. It has as many meals as the record has names for them.
struct Tag
{
    QList<Mahlzeit> mahlzeiten;
    QString notiz;
    bool imMittel = true; ///< counts in the mean of the days

    bool operator==(const Tag &) const = default;
};

/// A record of days. All its days have the same meals, each with rows of its own. `kennung` and
/// `fassung` are those of any record that is kept under a client.
struct Aufzeichnung
{
    QString kennung;
    int fassung = 0;
    QString titel;
    Aufzeichnungsart art = Aufzeichnungsart::Protokoll;
    QDate datum;            ///< date of the first day; null: days of no certain date
    QStringList mahlzeiten; ///< their names, see `mahlzeitname`
    QList<Tag> tage;        ///< 1 to `meisteTage`
    /// What a newer version has written, with what this one does not know: it is handed on as it
    /// was, and the record can't be changed. Empty for all that this version may write.
    QByteArray neuererText;

    bool operator==(const Aufzeichnung &) const = default;
};

/// Two weeks fit side by side, and no dietitian asks for more.
inline constexpr int meisteTage = 14;

/// No day has more meals than hours one is awake.
inline constexpr int meisteMahlzeiten = 16;

/// The meals that a new record has, in German.
extern const std::array<const char *, 6> ueblicheMahlzeiten;

/// A name for a record that no other has, at no desk.
QString neueKennung();

/// A new record with the usual meals, and nothing in them. Fewer days than 1 are 1, more than
/// `meisteTage` are so many.
Aufzeichnung neueAufzeichnung(Aufzeichnungsart art, const QDate &datum, int tage);

/// How a meal is called on screen: the usual ones in its language, any other as the user named it.
QString mahlzeitname(const QString &name);

/// The date of a day, counted from 0; null where the record has none.
QDate datumVon(const Aufzeichnung &aufzeichnung, int tag);

/// How a day is called: "Mo 23.11.2026", or "Tag 1" without a date.
QString tagesname(const Aufzeichnung &aufzeichnung, int tag);

/// Whether a row counts: it is no alternative, its amount was understood and its food is known.
bool zaehlt(const Mahlzeitzeile &zeile);

/// Whether there is anything on this day, or in this meal, that would be missed: a row or a note.
bool hatInhalt(const Mahlzeit &mahlzeit);
bool hatInhalt(const Tag &tag);
