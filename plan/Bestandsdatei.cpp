#include "Bestandsdatei.h"

#include "Archivdatei.h"

#include <QFile>

#include <sys/stat.h>

bool Bestandsdatei::Stempel::operator==(const Stempel &anderer) const
{
    return geraet == anderer.geraet && nummer == anderer.nummer && groesse == anderer.groesse &&
           geaendert.tv_sec == anderer.geaendert.tv_sec &&
           geaendert.tv_nsec == anderer.geaendert.tv_nsec;
}

std::optional<Bestandsdatei::Stempel> Bestandsdatei::stempelVon(const QString &path)
{
    struct stat angaben = {};
    if (stat(QFile::encodeName(path).constData(), &angaben) != 0) {
        return std::nullopt;
    }
    return Stempel{angaben.st_dev, angaben.st_ino, angaben.st_size, angaben.st_mtim};
}

void Bestandsdatei::halte(const QString &path, const Lebensmittelverzeichnis &verzeichnis)
{
    const bool unveraendert = m_stempel.has_value() && path == m_path &&
                              verzeichnis.isSharedWith(m_geschrieben) &&
                              stempelVon(path) == m_stempel;
    if (unveraendert) {
        return;
    }
    m_path = path;
    m_geschrieben = verzeichnis;
    m_stempel =
        Archivdatei::schreiben(path, verzeichnis) ? stempelVon(path) : std::optional<Stempel>();
}
