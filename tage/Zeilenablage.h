#pragma once

#include "Aufzeichnung.h"
#include "Aufzeichnungsaenderung.h"
#include "Csv.h"

#include <QByteArray>

/// Rows of a record on their way to another place, by way of the clipboard or the mouse.
struct Zeilenablage
{
    enum class Art {
        Zeilen,   ///< rows, of one meal or of several
        Mahlzeit, ///< a meal with its note
        Tag,      ///< a day with its notes
    };
    Art art = Art::Zeilen;
    /// How the meals are called that the rows come from. A null name: the rows come from no meal.
    QStringList mahlzeiten;
    Tag inhalt; ///< has as many meals

    bool operator==(const Zeilenablage &) const = default;
};

/// More rows than a record of two weeks has at the very most; a text of more was copied by mistake.
inline constexpr int meisteAblagezeilen = 1000;

/// The kind of data under which the clipboard and the mouse carry rows as they are.
inline constexpr auto ablageformat = "application/x-mahlberg-tage+json";

/// These rows of the record, in the order of its days and meals. Of rows of several days the meals
/// of one name come together. Places where no row is are passed over.
Zeilenablage ablageVon(const Aufzeichnung &aufzeichnung,
                       const QList<Aufzeichnungsaenderung::Stelle> &zeilen);
/// A meal of a day with its rows and its note; nothing where there is none.
Zeilenablage ablageDerMahlzeit(const Aufzeichnung &aufzeichnung, int tag, int mahlzeit);
/// A day with all its meals; nothing where there is none.
Zeilenablage ablageDesTages(const Aufzeichnung &aufzeichnung, int tag);

/// How many rows there are.
int zeilenzahl(const Zeilenablage &ablage);
/// How many of them count nothing though they are meant to.
int unverstandene(const Zeilenablage &ablage);

/// The rows as a text from which they come back as they were.
QByteArray alsText(const Zeilenablage &ablage);
/// The rows for a spreadsheet: meal, food and amount as they are read on screen, grams and
/// kilocalories where they are known.
Csv::Tabelle alsTabelle(const Zeilenablage &ablage);

/// What was read of rows that were copied.
struct Ablagelesung
{
    enum class Zustand {
        Gelesen,
        Leer,        ///< no row stands there
        ZuViel,      ///< more than `meisteAblagezeilen`
        Neuer,       ///< copied in a newer version, whose rows this one may not understand whole
        Beschaedigt, ///< something in it can't be understood
    };
    Zustand zustand = Zustand::Leer;
    Zeilenablage ablage = {}; ///< without meals unless it was read
};

/// Reads what `alsText` has written.
Ablagelesung leseAblage(const QByteArray &text);

/// Where rows were in this record when the mouse took them. Other rows may stand there by now.
struct Zeilenherkunft
{
    QString kennung;
    QList<Aufzeichnungsaenderung::Stelle> zeilen;

    bool operator==(const Zeilenherkunft &) const = default;
};

/// The kind of data under which the mouse carries where rows come from.
inline constexpr auto herkunftsformat = "application/x-mahlberg-tage-herkunft+json";

QByteArray alsText(const Zeilenherkunft &herkunft);
/// Absent for any other text.
std::optional<Zeilenherkunft> leseHerkunft(const QByteArray &text);
