#include "Dateiwechsel.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr mode_t rechteDesNutzers = 0600;

QByteArray ordnerVon(const QByteArray &path)
{
    return QFile::encodeName(QFileInfo(QFile::decodeName(path)).path());
}

/// The rights of the new file: those of the user in the old one. A file that not even the user may
/// read is no example.
mode_t rechteWie(const QByteArray &path)
{
    struct stat alt = {};
    const bool vorbild = stat(path.constData(), &alt) == 0 && (alt.st_mode & S_IRUSR) != 0;
    return vorbild ? alt.st_mode & rechteDesNutzers : rechteDesNutzers;
}

bool schreibeAlles(int datei, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t geschrieben = write(datei, bytes.data(), static_cast<size_t>(bytes.size()));
        if (geschrieben < 0 && errno != EINTR) {
            return false;
        }
        bytes = bytes.sliced(std::max<qsizetype>(geschrieben, 0));
    }
    return true;
}

/// Without it a power cut could undo the change of a name. What knows no such thing (some network
/// disks) is as safe as it gets.
bool sichereOrdner(int ordner)
{
    return ordner < 0 || fsync(ordner) == 0 || errno == EINVAL || errno == ENOTSUP;
}

/// Whether two files changed their names with each other. What is no file keeps its own.
bool tausche(const QByteArray &neues, const QByteArray &ziel)
{
    struct stat alt = {};
    return lstat(ziel.constData(), &alt) == 0 && S_ISREG(alt.st_mode) &&
           renameat2(AT_FDCWD, neues.constData(), AT_FDCWD, ziel.constData(), RENAME_EXCHANGE) == 0;
}

} // namespace

Dateiwechsel::Dateiwechsel(const QString &path) : m_ziel(QFile::encodeName(ziel(path))) {}

Dateiwechsel::~Dateiwechsel()
{
    if (!m_neues.isEmpty()) {
        unlink(m_neues.constData());
    }
    if (m_datei >= 0) {
        close(m_datei);
    }
}

QString Dateiwechsel::ziel(const QString &path)
{
    const QFileInfo info(path);
    if (!info.isSymLink()) {
        return path;
    }
    const QString ende = info.canonicalFilePath();
    return ende.isEmpty() ? info.symLinkTarget() : ende; // it may lead to what is not there yet
}

bool Dateiwechsel::misslungen()
{
    m_grund = qt_error_string(errno);
    return false;
}

bool Dateiwechsel::bereite(QByteArrayView bytes, const QDateTime &geaendert)
{
    if (m_ziel.isEmpty()) {
        errno = ENOENT;
        return misslungen();
    }
    // mkostemp puts six letters of its own there, so that no two programs write to one file.
    QByteArray name = m_ziel + endungNeues + QByteArray(6, 'X');
    m_datei = mkostemp(name.data(), O_CLOEXEC); // readable by the user alone
    if (m_datei < 0) {
        return misslungen();
    }
    m_neues = name;
    flock(m_datei, LOCK_EX | LOCK_NB); // where there are no locks, nobody looks for one
    return schreibe(bytes, geaendert) || misslungen();
}

bool Dateiwechsel::schreibe(QByteArrayView bytes, const QDateTime &geaendert)
{
    if (!schreibeAlles(m_datei, bytes) || fchmod(m_datei, rechteWie(m_ziel)) != 0) {
        return false;
    }
    if (geaendert.isValid()) {
        const qint64 seitAnfang = geaendert.toMSecsSinceEpoch();
        const timespec moment = {seitAnfang / 1000, (seitAnfang % 1000) * 1'000'000};
        const timespec zeiten[] = {moment, moment};
        futimens(m_datei, zeiten); // it would only be told a wrong day
    }
    return fsync(m_datei) == 0;
}

bool Dateiwechsel::vollziehe()
{
    const int ordner = open(ordnerVon(m_ziel).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (ordner < 0 && errno != EACCES) { // a folder may be one to write into without looking
        return misslungen();
    }
    bool gelungen = setzeEin();
    if (gelungen && !sichereOrdner(ordner)) {
        gelungen = misslungen();
        stelleZurueck();
    } else if (gelungen && !m_altes.isEmpty()) {
        unlink(m_altes.constData());
    }
    if (ordner >= 0) {
        close(ordner);
    }
    return gelungen;
}

/// Until the new file is safe, the old one has a name too. Some disks know no second name for a
/// file, and the system refuses one for what is another user's: there the two change names.
bool Dateiwechsel::setzeEin()
{
    const QByteArray vorher = m_neues + endungVorher;
    const bool verknuepft = link(m_ziel.constData(), vorher.constData()) == 0;
    m_gabKeines = !verknuepft && errno == ENOENT;
    if (!verknuepft && !m_gabKeines && tausche(m_neues, m_ziel)) {
        m_altes = std::exchange(m_neues, {});
        return true;
    }
    if (rename(m_neues.constData(), m_ziel.constData()) != 0) {
        misslungen();
        unlink(vorher.constData());
        return false;
    }
    m_neues.clear();
    m_altes = verknuepft ? vorher : QByteArray();
    return true;
}

/// What fails here leaves the new file in its place and the old one under its other name. On a disk
/// on which it could have none there is no way back.
void Dateiwechsel::stelleZurueck()
{
    if (m_gabKeines) {
        unlink(m_ziel.constData());
    } else if (!m_altes.isEmpty()) {
        rename(m_altes.constData(), m_ziel.constData());
    }
}
