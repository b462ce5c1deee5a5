#include "Einstellungsdatei.h"

#include "Dateisperre.h"
#include "EngeRechte.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStringDecoder>

#include <algorithm>

#include <sys/stat.h>
#include <unistd.h>

namespace Einstellungsdatei {

namespace {

constexpr qsizetype meisteKopien = 10;

QByteArray bytes(const QString &datei)
{
    QFile gelesen(datei);
    return gelesen.open(QIODevice::ReadOnly) ? gelesen.readAll() : QByteArray();
}

/// Settings are text without control characters; a machine that went down may leave zeros.
bool istText(const QByteArray &inhalt)
{
    QStringDecoder leser(QStringDecoder::Utf8);
    const QString text = leser(inhalt);
    return !leser.hasError() && std::none_of(text.begin(), text.end(), [](QChar zeichen) {
        return zeichen < u' ' && zeichen != u'\n' && zeichen != u'\r' && zeichen != u'\t';
    });
}

bool istBeschaedigt(const QString &datei, const QByteArray &inhalt, QSettings::Format format)
{
    if (!istText(inhalt)) {
        return true;
    }
    const QSettings probe(datei, format);
    probe.allKeys(); // reads to the end
    return probe.status() == QSettings::FormatError;
}

/// The dated copies beside a file, the oldest first.
QStringList kopien(const QFileInfo &datei)
{
    const QString muster =
        QStringLiteral("%1 %2%2%2%2-%2%2-%2%2 %2%2.%2%2.%2%2*.%3")
            .arg(datei.completeBaseName(), QStringLiteral("[0-9]"), datei.suffix());
    QStringList pfade;
    for (const QString &name : datei.dir().entryList({muster}, QDir::Files, QDir::Name)) {
        pfade << datei.dir().filePath(name);
    }
    return pfade;
}

/// "Mahlberg.conf" becomes "Mahlberg 2026-11-20 14.03.05.conf", and where that is taken
/// "Mahlberg 2026-11-20 14.03.05 (2).conf".
QString freierKopiename(const QFileInfo &datei)
{
    const QString datum =
        QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH.mm.ss"));
    const QString stamm = datei.dir().filePath(datei.completeBaseName() + QLatin1Char(' ') + datum);
    QString name = QStringLiteral("%1.%2").arg(stamm, datei.suffix());
    for (int nummer = 2; QFileInfo::exists(name); ++nummer) {
        name = QStringLiteral("%1 (%2).%3").arg(stamm).arg(nummer).arg(datei.suffix());
    }
    return name;
}

bool lege(const QString &kopie, const QByteArray &inhalt)
{
    QFile neu(kopie);
    // Without a buffer, which would still be full after a failure and keep the file from going.
    if (!neu.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered)) {
        return false;
    }
    const bool gelungen = neu.write(inhalt) == inhalt.size() && fsync(neu.handle()) == 0;
    if (!gelungen) {
        neu.remove();
    }
    return gelungen;
}

/// Keeps what a damaged file holds. Where there is no room for a copy, the file itself moves away.
void bewahreAuf(const QString &datei, const QByteArray &inhalt)
{
    const QStringList bisher = kopien(QFileInfo(datei));
    if (!bisher.isEmpty() && bytes(bisher.last()) == inhalt) {
        return; // it was seen at the last start, and nothing has been written since
    }
    const QString kopie = freierKopiename(QFileInfo(datei));
    if (!lege(kopie, inhalt)) {
        QFile::rename(datei, kopie);
    }
    const QStringList alle = kopien(QFileInfo(datei));
    for (qsizetype i = 0; i < alle.size() - meisteKopien; ++i) {
        QFile::remove(alle[i]);
    }
}

} // namespace

QString imSystem()
{
    return QStringLiteral("%1/%2/%3.conf")
        .arg(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation),
             QCoreApplication::organizationName(), QCoreApplication::applicationName());
}

void schuetze(const QString &datei)
{
    Dateisperre::raeumeVerwaiste(datei + QStringLiteral(".lock"));
    const QByteArray pfad = QFile::encodeName(datei);
    struct stat zustand = {};
    if (stat(pfad.constData(), &zustand) == 0 && S_ISREG(zustand.st_mode) &&
        (zustand.st_mode & (S_IRWXG | S_IRWXO)) != 0) {
        chmod(pfad.constData(), zustand.st_mode & S_IRWXU);
    }
}

void bereiteVor(const QString &datei, QSettings::Format format)
{
    const EngeRechte eng;
    schuetze(datei);
    const QFileInfo info(datei);
    const QByteArray inhalt = info.isFile() ? bytes(datei) : QByteArray();
    if (!inhalt.isEmpty() && istBeschaedigt(datei, inhalt, format)) {
        bewahreAuf(datei, inhalt);
    }
    // Made by the first write, the file would be open to others.
    if (!QFileInfo::exists(datei) && info.dir().mkpath(QStringLiteral("."))) {
        QFile(datei).open(QIODevice::WriteOnly | QIODevice::NewOnly);
    }
}

} // namespace Einstellungsdatei
