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

QString Datenordner::pathForDataFile(const QString &name) const
{
    const QDir ordner(m_home.filePath(QStringLiteral("Library/Application Support/Mahlberg")));
    if (!QFileInfo::exists(ordner.path())) {
        const EngeRechte eng;
        ordner.mkpath(QStringLiteral("."));
    }
    for (const Datendatei &zeile : datendateien) {
        if (name == zeile.name) {
            return ordner.filePath(zeile.dateiname);
        }
    }
    return {};
}
