#include "EngeRechte.h"

#include <QFile>

void verenge(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat angaben = {};
    if (lstat(name.constData(), &angaben) == 0 && S_ISREG(angaben.st_mode) &&
        (angaben.st_mode & (S_IRWXG | S_IRWXO)) != 0) {
        chmod(name.constData(), angaben.st_mode & S_IRWXU);
    }
}
