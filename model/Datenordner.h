#pragma once

#include <QDir>
#include <QString>

/// The user's home folder: the one that the environment names, and without one there, or with one
/// that depends on where the program was started, the one that the system knows for the user.
QString heimatordner();

/// Where the user's own files are: "Library/Application Support/Mahlberg" below a home folder, or
/// right in a folder that the user has named.
class Datenordner
{
public:
    explicit Datenordner(const QString &home = heimatordner());

    /// This folder itself holds the files. A path that depends on where the program was started
    /// means the same folder as long as the program runs.
    static Datenordner unmittelbar(const QString &ordner);

    /// Makes the folder with those above it where there is none, all of them for the user alone.
    /// False when there is none afterwards: something else is in its place, or it can't be made.
    bool lege() const;

    /// The path that `pathForDataFile` gives, without making a folder: for who only looks.
    QString datei(const QString &name) const;

    /// The path of the file of the own foods ("customdaten") or of the meal plan ("plandaten"); an
    /// absent (null) text for any other name. Every call, whatever the name, makes the folder with
    /// those above it when nothing is in its place, all of them for the user alone; that this
    /// failed shows only in what is read and written there.
    QString pathForDataFile(const QString &name) const;

private:
    QDir m_ordner;
};
