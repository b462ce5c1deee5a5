#include "Archivdatei.h"

#include "Dateistempel.h"
#include "Dateiwechsel.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <optional>

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

/// So often a file is read anew that another program has written in the meantime.
constexpr int meisteVersuche = 5;

/// Whether at a path is still what was read there, or nothing where that was moved away since it
/// could not be read.
bool unveraendert(const QString &path, const std::optional<Dateistempel> &stempel,
                  const Rohdaten &alt)
{
    const std::optional<Dateistempel> jetzt = Dateistempel::von(path);
    return jetzt == stempel || (!jetzt && alt.zustand == Zustand::Unlesbar);
}

/// One try to write a file; nothing when it was changed by others meanwhile.
std::optional<Ausgang> versuche(const QString &path, const QByteArray &bytes,
                                const Bewahrer &bewahre)
{
    const std::optional<Dateistempel> stempel = Dateistempel::von(path);
    const Rohdaten alt = leseBytes(path);
    if (alt.zustand == Zustand::Gelesen && alt.bytes == bytes) {
        return Ausgang{Ausgang::Art::Unveraendert, bytes, {}};
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
    if (!unveraendert(path, stempel, alt)) {
        return std::nullopt;
    }
    if (!neu.vollziehe()) {
        return misslungen(neu.grund());
    }
    return Ausgang{Ausgang::Art::Geschrieben, bytes, {}};
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
    const QByteArray bytes = Archiver::write(verzeichnis);
    for (int versuch = 0; versuch < meisteVersuche; ++versuch) {
        if (const auto ausgang = versuche(path, bytes, bewahre)) {
            return *ausgang;
        }
    }
    return misslungen(QStringLiteral("another program is writing it again and again"));
}

} // namespace Archivdatei
