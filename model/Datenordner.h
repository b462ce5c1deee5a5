#pragma once

#include <QDir>
#include <QString>

/// The user's home folder: the one that the environment names, and without one there, or with one
/// that depends on where the program was started, the one that the system knows for the user.
QString heimatordner();

/// Where the user's own files are: "Library/Application Support/Mahlberg" below a home folder.
class Datenordner
{
public:
    explicit Datenordner(const QString &home = heimatordner()) : m_home(home) {}

    /// The path of the file of the own foods ("customdaten") or of the meal plan ("plandaten"); an
    /// absent (null) text for any other name. Every call, whatever the name, makes the folder with
    /// those above it when nothing is in its place, all of them for the user alone; that this
    /// failed shows only in what is read and written there.
    QString pathForDataFile(const QString &name) const;

private:
    QDir m_home;
};
