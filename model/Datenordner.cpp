#include "Datenordner.h"

#include <QFileInfo>

#include <array>

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

QString Datenordner::pathForDataFile(const QString &name) const
{
    const QDir ordner(m_home.filePath(QStringLiteral("Library/Application Support/Mahlberg")));
    if (!QFileInfo::exists(ordner.path())) {
        ordner.mkpath(QStringLiteral("."));
    }
    for (const Datendatei &zeile : datendateien) {
        if (name == zeile.name) {
            return ordner.filePath(zeile.dateiname);
        }
    }
    return {};
}
