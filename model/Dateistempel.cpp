#include "Dateistempel.h"

#include <QFile>

#include <sys/stat.h>

std::optional<Dateistempel> Dateistempel::von(const QString &path)
{
    struct stat angaben = {};
    if (stat(QFile::encodeName(path).constData(), &angaben) != 0) {
        return std::nullopt;
    }
    return Dateistempel{angaben.st_dev, angaben.st_ino, angaben.st_size, angaben.st_mtim};
}

bool Dateistempel::operator==(const Dateistempel &anderer) const
{
    return geraet == anderer.geraet && nummer == anderer.nummer && groesse == anderer.groesse &&
           geaendert.tv_sec == anderer.geaendert.tv_sec &&
           geaendert.tv_nsec == anderer.geaendert.tv_nsec;
}
