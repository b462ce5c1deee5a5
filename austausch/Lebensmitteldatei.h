#pragma once

#include "Datenmodul.h"

#include <QList>
#include <QString>
#include <QStringList>

/// Why nothing of a file can be shown.
enum class Dateihindernis {
    Keines,
    Fehlt,       ///< there is no such file
    Ordner,      ///< a folder
    KeineDatei,  ///< a device, a pipe or the like
    ZuGross,     ///< larger than a file of foods gets
    NichtLesbar, ///< it can't be opened or read
    Leer,        ///< no byte is in it
    Fremd,       ///< it is of another kind
    Beschaedigt, ///< it begins as a file of foods, and makes no sense further on
    EigeneDatei, ///< the program itself keeps the own foods in it
    EigenerPlan, ///< the program itself keeps the plan in it
};

/// What opening a ".daten" file showed. The file is only ever read.
struct Lebensmitteldatei
{
    QString path;
    Dateihindernis hindernis = Dateihindernis::Keines;
    qsizetype stelle = 0; ///< of `Beschaedigt`: the byte from which on it makes no sense

    bool bigEndian = false; ///< written on a machine that puts the highest byte first
    /// Only names and amounts: the amount in grams stands where a food has its energy.
    bool istPlan = false;
    /// What it holds, in the order of the names, each food under the one that it goes by. A name
    /// that stands only in the record, and is another one, counts for nothing.
    QList<Datenmodul> lebensmittel;

    // What is odd about it
    qsizetype doppelte = 0;       ///< entries left out because a later one has the same name
    qsizetype rest = 0;           ///< bytes that follow the end of the data
    qsizetype ohneNamen = 0;      ///< foods without a name
    QStringList andererName = {}; ///< foods whose record bears another name than they go by

    bool lesbar() const { return hindernis == Dateihindernis::Keines; }
};

/// Opens a file. `eigene` and `plan` are the paths of the program's own files, which are told by
/// what they lead to, also through links.
Lebensmitteldatei oeffneLebensmitteldatei(const QString &path, const QString &eigene,
                                          const QString &plan);
