#include "Datenordner.h"

#include <QFile>
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

/// Makes a folder and those above it that are missing, for the user alone: what somebody advises on
/// is nobody else's business.
void legeAn(const QString &ordner)
{
    const QFileInfo info(ordner);
    if (info.exists() || info.path() == ordner) {
        return;
    }
    legeAn(info.path());
    QDir().mkdir(ordner, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

} // namespace

QString Datenordner::pathForDataFile(const QString &name) const
{
    const QDir ordner(m_home.filePath(QStringLiteral("Library/Application Support/Mahlberg")));
    legeAn(ordner.path());
    for (const Datendatei &zeile : datendateien) {
        if (name == zeile.name) {
            return ordner.filePath(zeile.dateiname);
        }
    }
    return {};
}
