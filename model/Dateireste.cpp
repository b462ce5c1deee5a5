#include "Dateireste.h"

#include "Dateiwechsel.h"
#include "Sicherungen.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace Dateireste {

namespace {

/// Earlier versions locked nothing, and Qt doesn't when it writes the settings: one of theirs that
/// was changed so many seconds ago is perhaps still being written.
constexpr qint64 nochInArbeit = 60;

QFileInfoList dateien(const QDir &ordner)
{
    return ordner.entryInfoList(QDir::Files | QDir::Hidden | QDir::System | QDir::NoSymLinks);
}

/// Whether a writer has its hand on the file.
bool gesperrt(const QString &path)
{
    const int datei =
        open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
    if (datei < 0) {
        return false;
    }
    const bool frei = flock(datei, LOCK_EX | LOCK_NB) == 0;
    close(datei);
    return !frei;
}

/// Whether a rest may go. A whole store is somebody's work, unless the file holds the same: it is
/// put beside it first.
bool entbehrlich(const QFileInfo &rest, const QFileInfo &original)
{
    const Archivdatei::Rohdaten daten = Archivdatei::leseBytes(rest.filePath());
    const auto zustand = Archivdatei::deute(daten).zustand;
    if (zustand != Archivdatei::Zustand::Gelesen ||
        daten.bytes == Archivdatei::leseBytes(original.filePath()).bytes) {
        return zustand != Archivdatei::Zustand::Unlesbar;
    }
    const auto kopie = Sicherungen::legeBeiseite(original.filePath(), daten, rest.lastModified());
    if (kopie.wie == Sicherungen::Beiseitegelegtes::Wie::Garnicht) {
        return false;
    }
    Sicherungen::begrenze(original.filePath(), kopie);
    return true;
}

/// Of the file and of all copies, whose names begin like its own.
void raeumeOrdnerAuf(const QDir &ordner, const QFileInfo &original)
{
    const QRegularExpression muster(
        QStringLiteral("^((%1.*)%2[A-Za-z0-9]{6})(%3)?$")
            .arg(QRegularExpression::escape(original.completeBaseName()),
                 QRegularExpression::escape(QLatin1String(Dateiwechsel::endungNeues)),
                 QRegularExpression::escape(QLatin1String(Dateiwechsel::endungVorher))));
    for (const QFileInfo &datei : dateien(ordner)) {
        const QRegularExpressionMatch teile = muster.match(datei.fileName());
        // The new file stays locked when it has taken the old one's place.
        if (!teile.hasMatch() || gesperrt(ordner.filePath(teile.captured(1))) ||
            gesperrt(ordner.filePath(teile.captured(2)))) {
            continue;
        }
        const bool derDatei = teile.captured(2) == original.fileName();
        if (!derDatei || entbehrlich(datei, original)) { // of a copy, the file itself is there
            QFile::remove(datei.filePath());
        }
    }
}

/// A rest of an earlier version, or of Qt, has six letters behind the name, by chance. One without
/// a large letter behind a small one, like "backup", is left alone.
void raeumeFruehereAuf(const QFileInfo &original, const QDateTime &jetzt)
{
    const QRegularExpression muster(QStringLiteral("^%1\\.(?=.*[a-z].*[A-Z])[A-Za-z]{6}$")
                                        .arg(QRegularExpression::escape(original.fileName())));
    for (const QFileInfo &datei : dateien(original.dir())) {
        const bool jung = datei.lastModified().secsTo(jetzt) < nochInArbeit;
        if (!jung && muster.match(datei.fileName()).hasMatch() && entbehrlich(datei, original)) {
            QFile::remove(datei.filePath());
        }
    }
}

} // namespace

void raeumeAuf(const QString &path, const QDateTime &jetzt)
{
    const QFileInfo original(Dateiwechsel::ziel(path));
    raeumeOrdnerAuf(original.dir(), original);
    raeumeOrdnerAuf(QDir(original.dir().filePath(Sicherungen::ordnername)), original);
    raeumeFruehereAuf(original, jetzt);
}

} // namespace Dateireste
