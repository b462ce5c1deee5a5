#pragma once

#include "Datenmodul.h"

#include <QLocale>
#include <QString>
#include <QStringList>

class Dateihueter;

/// A store of foods as it is loaded: the records by name, and the names in the order in which they
/// are shown. Every name is a key of the dictionary and stands in the list once.
struct Lebensmittelbestand
{
    Lebensmittelverzeichnis verzeichnis;
    QStringList namen;
};

/// The names by plain comparison that takes upper and lower case as one, without any regard to
/// translation or country: "Äpfel" stands behind "Zucker". Names that differ only in case keep the
/// order that they had.
QStringList sortiertNachName(QStringList namen);

/// The names in the order of what the user reads: by their translations as the locale sorts them,
/// case taken as one. Names that read alike stand as `sortiertNachName` has them. Where the machine
/// has no language set (the "C" locale), German rules hold.
QStringList sortiertNachUebersetzung(const QStringList &namen, const QLocale &locale = QLocale());

/// The built-in foods, in the order of what the user reads. Empty when the file is missing,
/// unreadable or damaged.
Lebensmittelbestand ladeBestand(const QString &path, const QLocale &locale = QLocale());

/// The user's own foods, in the plain order of their names. Empty when the file is missing, as on
/// the first start, unreadable or damaged.
Lebensmittelbestand ladeEigenenBestand(Dateihueter &dateien, const QString &path);
