#include "Dateisperre.h"

#include <QFile>

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// Opens the sign and makes it where there is none. What can't be written may still be held.
int oeffne(const QByteArray &pfad)
{
    const int griff = open(pfad.constData(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
    return griff >= 0 ? griff : open(pfad.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
}

} // namespace

Dateisperre::Dateisperre(const QString &pfad) : m_pfad(QFile::encodeName(pfad)) {}

Dateisperre::~Dateisperre()
{
    if (m_griff < 0) {
        return;
    }
    if (liegtDa(m_griff)) { // else it is another program's by now
        std::remove(m_pfad.constData());
    }
    close(m_griff);
}

bool Dateisperre::nimm()
{
    while (m_griff < 0) {
        const int griff = oeffne(m_pfad);
        if (griff < 0) {
            return true;
        }
        if (flock(griff, LOCK_EX | LOCK_NB) != 0) {
            const bool vergeben = errno == EWOULDBLOCK;
            close(griff);
            return !vergeben;
        }
        if (liegtDa(griff)) {
            m_griff = griff;
        } else { // its holder took it away in this very moment
            close(griff);
        }
    }
    return true;
}

void Dateisperre::raeumeVerwaiste(const QString &pfad)
{
    if (QFile::exists(pfad)) {
        Dateisperre(pfad).nimm();
    }
}

/// Whether the open file is the one that has the name.
bool Dateisperre::liegtDa(int griff) const
{
    struct stat offen = {};
    struct stat benannt = {};
    return fstat(griff, &offen) == 0 && stat(m_pfad.constData(), &benannt) == 0 &&
           offen.st_dev == benannt.st_dev && offen.st_ino == benannt.st_ino;
}
