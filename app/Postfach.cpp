#include "Postfach.h"

#include "EngeRechte.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QThread>

namespace {

const QString vorne = QStringLiteral("Mahlberg-oeffnen-");
/// While a note is written, its name goes on behind this.
const QString hinten = QStringLiteral(".zettel");

/// So many seconds nobody waits for an answer.
constexpr qint64 verjaehrt = 60;

/// No path holds this sign.
constexpr char trennung = '\0';

/// How long between two looks whether a note was taken, in milliseconds.
constexpr unsigned long abstand = 20;

/// As large as a command line gets, and more; what is larger is none of ours.
constexpr qint64 groessterZettel = qint64(4) << 20;

QStringList zettelIn(const QString &ordner)
{
    QStringList pfade;
    const QDir dort(ordner);
    for (const QString &name : dort.entryList({vorne + u'*' + hinten}, QDir::Files, QDir::Time)) {
        pfade.prepend(dort.filePath(name)); // the oldest first
    }
    return pfade;
}

/// Unbuffered: else a disk that is full goes unnoticed, and the note would name no file.
bool lege(const QString &pfad, const QByteArray &inhalt)
{
    const EngeRechte eng;
    QSaveFile zettel(pfad);
    return zettel.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
           zettel.write(inhalt) == inhalt.size() && zettel.commit();
}

} // namespace

Postfach::Postfach(const QString &ordner) : m_ordner(ordner)
{
    m_waechter.addPath(ordner);
    connect(&m_waechter, &QFileSystemWatcher::directoryChanged, this, &Postfach::sieNach);
    QMetaObject::invokeMethod(this, &Postfach::sieNach, Qt::QueuedConnection);
}

/// Who removes a note has it: the one who wrote it may take it back.
void Postfach::sieNach()
{
    for (const QString &pfad : zettelIn(m_ordner)) {
        const bool alt =
            QFileInfo(pfad).lastModified().secsTo(QDateTime::currentDateTime()) > verjaehrt;
        QFile zettel(pfad);
        if (!zettel.open(QIODevice::ReadOnly)) {
            continue;
        }
        const bool zuGross = zettel.size() > groessterZettel;
        const QByteArray inhalt = zettel.read(groessterZettel);
        if (!zettel.remove() || alt || zuGross) {
            continue;
        }
        QStringList pfade;
        for (const QByteArray &einer : inhalt.split(trennung)) {
            pfade << QFile::decodeName(einer);
        }
        Q_EMIT eingetroffen(pfade);
    }
}

bool Postfach::gibAb(const QString &ordner, const QStringList &pfade, int wartezeit)
{
    QByteArrayList namen;
    for (const QString &einer : pfade) {
        namen << QFile::encodeName(einer);
    }
    const QString pfad =
        QDir(ordner).filePath(vorne + QString::number(QCoreApplication::applicationPid()) + hinten);
    const QByteArray inhalt = namen.join(trennung);
    if (inhalt.size() > groessterZettel || !lege(pfad, inhalt)) {
        return false;
    }
    QElapsedTimer uhr;
    uhr.start();
    while (QFile::exists(pfad)) {
        if (uhr.hasExpired(wartezeit)) {
            return !QFile::remove(pfad);
        }
        QThread::msleep(abstand);
    }
    return true;
}
