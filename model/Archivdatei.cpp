#include "Archivdatei.h"

#include "Dateiwechsel.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>

#include <sys/stat.h>

namespace Archivdatei {

namespace {

Rohdaten unlesbar(const QString &grund)
{
    return {Zustand::Unlesbar, {}, grund};
}

/// Whether nothing is at a path, so far as that can be seen.
bool fehlt(const QString &path)
{
    struct stat angaben = {};
    return stat(QFile::encodeName(path).constData(), &angaben) != 0 &&
           (errno == ENOENT || errno == ENOTDIR);
}

Ausgang misslungen(const QString &grund)
{
    return {Ausgang::Art::Misslungen, {}, grund};
}

} // namespace

Rohdaten leseBytes(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists()) {
        return fehlt(path) ? Rohdaten() : unlesbar(qt_error_string(errno));
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

Inhalt deute(const Rohdaten &daten)
{
    Inhalt inhalt;
    inhalt.zustand = daten.zustand;
    inhalt.grund = daten.grund;
    if (daten.zustand == Zustand::Gelesen) {
        inhalt.archiv = Archiver::read(daten.bytes);
        inhalt.zustand = inhalt.archiv.gelesen() ? Zustand::Gelesen : Zustand::Beschaedigt;
    }
    return inhalt;
}

Inhalt lesen(const QString &path)
{
    return deute(leseBytes(path));
}

Ausgang schreiben(const QString &path, const Lebensmittelverzeichnis &verzeichnis,
                  const Bewahrer &bewahre)
{
    const Rohdaten alt = leseBytes(path);
    const QByteArray bytes = Archiver::write(verzeichnis);
    if (alt.zustand == Zustand::Gelesen && alt.bytes == bytes) {
        return {Ausgang::Art::Unveraendert, bytes, {}};
    }
    if (alt.zustand == Zustand::Unlesbar && !QFileInfo(path).isFile()) {
        return misslungen(alt.grund);
    }
    if (bytes.size() > groessteDatei) {
        return misslungen(QStringLiteral("it would be too large to be read again"));
    }
    Dateiwechsel neu(path);
    if (!neu.bereite(bytes)) {
        return misslungen(neu.grund());
    }
    if (bewahre && !bewahre(alt)) {
        return misslungen(QStringLiteral("what is there could not be kept"));
    }
    if (!neu.vollziehe()) {
        return misslungen(neu.grund());
    }
    return {Ausgang::Art::Geschrieben, bytes, {}};
}

} // namespace Archivdatei
