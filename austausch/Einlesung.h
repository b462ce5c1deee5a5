#pragma once

#include "Csvleser.h"
#include "Datenmodul.h"
#include "Spaltensinn.h"
#include "Spaltenzahlen.h"

#include <QList>
#include <QSet>
#include <QString>

#include <optional>

/// How the rows of a file are to be understood.
struct Leseauftrag
{
    bool ueberschriften = true;           ///< the first row holds no food
    QList<Spaltensinn> spalten;           ///< what the columns mean; missing ones mean nothing
    std::optional<Zahlenschrift> schrift; ///< of all columns; absent: found out for each
    Zahlenschrift sonst = Zahlenschrift::Komma; ///< of columns that leave it open
    bool jePortion = false;                     ///< the values are for a portion, not for 100 g
    double portion = 0;    ///< its weight in g where no column tells it; 0 and below: not known
    QSet<int> ausgelassen; ///< lines of the file that are not wanted
};

/// How grave an objection is.
enum class Schwere {
    Fehler,  ///< nothing is taken over as long as it is there
    Warnung, ///< worth a look
    Hinweis  ///< how something was understood
};

/// What is to be said about a file, in the language of the windows.
struct Einwand
{
    Schwere schwere = Schwere::Fehler;
    int zeile = 0; ///< line in the file, from 1; 0: the whole file or a column
    QString text;
};

/// A row as a food.
struct Lesezeile
{
    int zeile = 0;           ///< line in the file, from 1
    Datenmodul lebensmittel; ///< values per 100 g; what could not be read is 0 or absent
    bool fehlerhaft = false;
    bool ausgelassen = false;
};

/// A file as foods, and what is wrong with it.
struct Einlesung
{
    QList<Lesezeile> zeilen;
    QList<Einwand> einwaende;       ///< those about the whole file first, then line by line
    QList<Zahlenschrift> schriften; ///< of each column

    /// The foods of all rows that are wanted.
    QList<Datenmodul> lebensmittel() const;
    /// How many objections forbid to take anything over.
    qsizetype fehler() const;
};

/// Understands the rows as own foods. Numbers of a column in the record's unit come back to the
/// last bit. An empty cell is 0, as in the sheet for own foods; a rating that is not given is
/// absent. Rows in which nothing stands are passed over. `eingebaute` are the names of the built-in
/// foods.
Einlesung liesEin(const QList<Csv::Satz> &saetze, const Leseauftrag &auftrag,
                  const QSet<QString> &eingebaute);
