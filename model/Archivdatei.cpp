#include "Archivdatei.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cstdio>

#include <unistd.h>

namespace Archivdatei {

namespace {

/// A file of 100,000 foods has about 30 MB. One beyond this is no store of foods, and reading it
/// would only use up the machine's memory.
constexpr qint64 groessteDatei = qint64(1) << 30;

/// A file's bytes, as far as there are any.
struct Rohdaten
{
    Zustand zustand = Zustand::Fehlt; ///< never `Beschaedigt`
    QByteArray bytes;
    QString grund;
};

Rohdaten unlesbar(const QString &grund)
{
    return {Zustand::Unlesbar, {}, grund};
}

Rohdaten leseBytes(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists()) {
        return {};
    }
    if (!info.isFile()) {
        return unlesbar(QStringLiteral("it is a folder or a device, not a file"));
    }
    if (info.size() > groessteDatei) {
        return unlesbar(QStringLiteral("it is too large"));
    }
    QFile datei(path);
    if (!datei.open(QIODevice::ReadOnly)) {
        return unlesbar(datei.errorString());
    }
    Rohdaten daten = {Zustand::Gelesen, datei.readAll(), {}};
    return datei.error() == QFile::NoError ? daten : unlesbar(datei.errorString());
}

/// "Foods.daten" becomes "Foods 2026-11-20 14.03.05.daten", and with a number above 1
/// "Foods 2026-11-20 14.03.05 (2).daten".
QString kopiename(const QFileInfo &original, const QDateTime &jetzt, int nummer)
{
    const QString zusatz = nummer > 1 ? QStringLiteral(" (%1)").arg(nummer) : QString();
    const QString endung =
        original.suffix().isEmpty() ? QString() : QLatin1Char('.') + original.suffix();
    return original.path() + QLatin1Char('/') + original.completeBaseName() + QLatin1Char(' ') +
           jetzt.toString(QStringLiteral("yyyy-MM-dd HH.mm.ss")) + zusatz + endung;
}

constexpr int meisteKopien = 100; // within one second

/// Moves a file that can't even be read out of the way of the new one, to a name of its own.
bool stelleBeiseite(const QString &path, const QDateTime &jetzt)
{
    const QFileInfo original(path);
    for (int nummer = 1; original.isFile() && nummer <= meisteKopien; ++nummer) {
        const QString name = kopiename(original, jetzt, nummer);
        if (!QFileInfo::exists(name)) {
            return std::rename(QFile::encodeName(path).constData(),
                               QFile::encodeName(name).constData()) == 0;
        }
    }
    return false;
}

/// Puts a copy of a file's bytes beside it, safely on the disk and never in the place of an earlier
/// copy.
bool bewahreAuf(const QString &path, const QByteArray &bytes, const QDateTime &jetzt)
{
    const QFileInfo original(path);
    for (int nummer = 1; nummer <= meisteKopien; ++nummer) {
        QFile kopie(kopiename(original, jetzt, nummer));
        if (kopie.open(QIODevice::WriteOnly | QIODevice::NewOnly, original.permissions())) {
            const bool gelungen =
                kopie.write(bytes) == bytes.size() && kopie.flush() && fsync(kopie.handle()) == 0;
            if (!gelungen) {
                kopie.remove();
            }
            return gelungen;
        }
        if (!QFileInfo::exists(kopie.fileName())) {
            return false;
        }
    }
    return false;
}

} // namespace

Inhalt lesen(const QString &path)
{
    const Rohdaten daten = leseBytes(path);
    Inhalt inhalt;
    inhalt.zustand = daten.zustand;
    inhalt.grund = daten.grund;
    if (daten.zustand == Zustand::Gelesen) {
        inhalt.archiv = Archiver::read(daten.bytes);
        inhalt.zustand = inhalt.archiv.gelesen() ? Zustand::Gelesen : Zustand::Beschaedigt;
    }
    return inhalt;
}

bool schreiben(const QString &path, const Lebensmittelverzeichnis &verzeichnis,
               const QDateTime &jetzt)
{
    const Rohdaten alt = leseBytes(path);
    if (path.isEmpty() || (alt.zustand == Zustand::Unlesbar && !stelleBeiseite(path, jetzt))) {
        return false;
    }
    const QByteArray bytes = Archiver::write(verzeichnis);
    if (alt.zustand == Zustand::Gelesen && alt.bytes == bytes) {
        return true;
    }

    // The new file is complete before the old one is looked at, so that a full disk leaves no copy.
    QSaveFile datei(path);
    if (!datei.open(QIODevice::WriteOnly) || datei.write(bytes) != bytes.size() || !datei.flush()) {
        return false;
    }
    const bool beschaedigt =
        alt.zustand == Zustand::Gelesen && !Archiver::read(alt.bytes).gelesen();
    if (beschaedigt && !bewahreAuf(path, alt.bytes, jetzt)) {
        return false;
    }
    return datei.commit();
}

} // namespace Archivdatei
