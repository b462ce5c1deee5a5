#pragma once

#include <QDir>
#include <QString>

/// Where the user's own files are: "Library/Application Support/Mahlberg" below a home folder.
class Datenordner
{
public:
    explicit Datenordner(const QString &home = QDir::homePath()) : m_home(home) {}

    /// The path of the file of the own foods ("customdaten") or of the meal plan ("plandaten"); an
    /// absent (null) text for any other name. Every call, whatever the name, makes the folder with
    /// those above it, open to the user alone, when nothing is in its place; that this failed shows
    /// only in what is read and written there.
    QString pathForDataFile(const QString &name) const;

private:
    QDir m_home;
};
