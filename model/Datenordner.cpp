#include "Datenordner.h"

#include "EngeRechte.h"

#include <QFile>
#include <QFileInfo>

#include <array>

#include <pwd.h>
#include <unistd.h>

namespace {

struct Datendatei
{
    QLatin1String name;
    QLatin1String dateiname;
};

constexpr std::array<Datendatei, 2> datendateien = {{
    {QLatin1String("customdaten"), QLatin1String("MahlbergCustomnutr.daten")},
    {QLatin1String("plandaten"), QLatin1String("MahlbergPlanmod.daten")},
}};

} // namespace

QString heimatordner()
{
    if (!QDir::isAbsolutePath(qEnvironmentVariable("HOME"))) {
        const passwd *konto = getpwuid(getuid());
        if (konto != nullptr && QDir::isAbsolutePath(QFile::decodeName(konto->pw_dir))) {
            return QFile::decodeName(konto->pw_dir);
        }
    }
    return QDir::homePath();
}

Datenordner::Datenordner(const QString &home)
    : m_ordner(QDir(home).filePath(QStringLiteral("Library/Application Support/Mahlberg")))
{
}

Datenordner Datenordner::unmittelbar(const QString &ordner)
{
    Datenordner benannter;
    benannter.m_ordner = QDir(QFileInfo(ordner).absoluteFilePath());
    return benannter;
}

bool Datenordner::lege() const
{
    if (!QFileInfo::exists(m_ordner.path())) {
        const EngeRechte eng;
        m_ordner.mkpath(QStringLiteral("."));
    }
    return QFileInfo(m_ordner.path()).isDir();
}

QString Datenordner::datei(const QString &name) const
{
    for (const Datendatei &zeile : datendateien) {
        if (name == zeile.name) {
            return m_ordner.filePath(zeile.dateiname);
        }
    }
    return {};
}

QString Datenordner::pathForDataFile(const QString &name) const
{
    lege(); // without a folder, reading finds nothing and writing tells of it
    return datei(name);
}
