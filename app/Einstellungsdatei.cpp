#include "Einstellungsdatei.h"

#include "Archivdatei.h"
#include "Dateireste.h"
#include "Dateisperre.h"
#include "EngeRechte.h"
#include "Sicherungen.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStringDecoder>

#include <algorithm>

#include <sys/stat.h>

namespace Einstellungsdatei {

namespace {

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

/// Keeps what a damaged file holds. Where there is no room for a copy, the file itself moves away.
void bewahreAuf(const QString &datei, const Archivdatei::Rohdaten &inhalt)
{
    using Sicherungen::Beiseitegelegtes;
    const QDateTime jetzt = QDateTime::currentDateTime();
    Beiseitegelegtes kopie = Sicherungen::legeBeiseite(datei, inhalt, jetzt);
    if (kopie.wie == Beiseitegelegtes::Wie::Garnicht) {
        kopie = Sicherungen::legeBeiseite(datei, {Archivdatei::Zustand::Unlesbar, {}, {}}, jetzt);
    }
    Sicherungen::begrenze(datei, kopie);
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
    Dateireste::raeumeAuf(datei, QDateTime::currentDateTime());
    const Archivdatei::Rohdaten inhalt = Archivdatei::leseBytes(datei);
    if (!inhalt.bytes.isEmpty() && istBeschaedigt(datei, inhalt.bytes, format)) {
        bewahreAuf(datei, inhalt);
    }
    // Made by the first write, the file would be open to others.
    if (!QFileInfo::exists(datei) && QFileInfo(datei).dir().mkpath(QStringLiteral("."))) {
        QFile(datei).open(QIODevice::WriteOnly | QIODevice::NewOnly);
    }
}

} // namespace Einstellungsdatei
