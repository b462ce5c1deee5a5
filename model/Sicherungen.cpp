#include "Sicherungen.h"

#include "Dateiwechsel.h"
#include "EngeRechte.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <cstdio>
#include <tuple>
#include <utility>

namespace Sicherungen {

namespace {

constexpr int meisteKopien = 10;

const QString tagesform = QStringLiteral("yyyy-MM-dd");
const QString momentform = QStringLiteral("yyyy-MM-dd HH.mm.ss");

/// A file's name in two parts, between which its copies have a date. The second one is empty or
/// begins with the last point.
struct Name
{
    QDir ordner;
    QString rumpf;
    QString endung;

    explicit Name(const QString &path)
    {
        const QFileInfo original(Dateiwechsel::ziel(path));
        ordner.setPath(original.path());
        rumpf = original.completeBaseName();
        endung = original.fileName().mid(rumpf.size());
    }
    QString mit(const QString &zusatz) const { return rumpf + QLatin1Char(' ') + zusatz + endung; }
    QDir tagesordner() const { return QDir(ordner.filePath(ordnername)); }
};

/// The files in a folder that are named like copies of this one, and what stands in the groups of
/// the pattern.
QList<std::pair<QString, QStringList>> kopien(const Name &name, const QDir &ordner,
                                              const QString &muster)
{
    const QRegularExpression regel(QRegularExpression::anchoredPattern(
        QRegularExpression::escape(name.rumpf) + muster + QRegularExpression::escape(name.endung)));
    QList<std::pair<QString, QStringList>> gefunden;
    for (const QString &datei : ordner.entryList(QDir::Files | QDir::Hidden)) {
        const QRegularExpressionMatch treffer = regel.match(datei);
        if (treffer.hasMatch()) {
            gefunden.append({ordner.filePath(datei), treffer.capturedTexts()});
        }
    }
    return gefunden;
}

/// A file that was put beside another one. Those of one second are told apart by a number.
struct Beiseiteliegendes
{
    QString path;
    QString moment;
    int nummer;
};

/// What was put beside the file, oldest first.
QList<Beiseiteliegendes> beiseiteliegende(const Name &name)
{
    QList<Beiseiteliegendes> alle;
    for (const auto &[path, teile] :
         kopien(name, name.ordner,
                QStringLiteral(R"( (\d{4}-\d\d-\d\d \d\d\.\d\d\.\d\d)(?: \((\d{1,4})\))?)"))) {
        alle.append({path, teile.value(1), std::max(1, teile.value(2).toInt())});
    }
    std::sort(alle.begin(), alle.end(), [](const auto &a, const auto &b) {
        return std::tie(a.moment, a.nummer) < std::tie(b.moment, b.nummer);
    });
    return alle;
}

bool enthaelt(const QString &path, const QByteArray &bytes)
{
    QFile datei(path);
    return datei.size() == bytes.size() && datei.open(QIODevice::ReadOnly) &&
           datei.readAll() == bytes;
}

/// A name for a copy that nothing has yet. Its number is higher than those of the same second, also
/// when the first of them are gone already, so that it counts as the newest.
QString freierName(const Name &name, const QDateTime &jetzt)
{
    const QString moment = jetzt.toString(momentform);
    int nummer = 1;
    for (const Beiseiteliegendes &eines : beiseiteliegende(name)) {
        nummer = eines.moment == moment ? eines.nummer + 1 : nummer;
    }
    const QString zusatz = nummer > 1 ? QStringLiteral(" (%1)").arg(nummer) : QString();
    return name.ordner.filePath(name.mit(moment + zusatz));
}

bool benenneUm(const QString &von, const QString &nach)
{
    return std::rename(QFile::encodeName(von).constData(), QFile::encodeName(nach).constData()) ==
           0;
}

/// What is put aside once more counts as new: under its old date it would soon be the oldest copy
/// and go, and no other one has what is replaced now. Returns where it is then.
QString erneuere(const Beiseiteliegendes &frueheres, const QString &kopie, const QDateTime &jetzt)
{
    const bool aelter = frueheres.moment < jetzt.toString(momentform);
    const bool erneuert = aelter && !QFileInfo::exists(kopie) && benenneUm(frueheres.path, kopie);
    return erneuert ? kopie : frueheres.path;
}

/// The largest store among what was put aside. What can't be read counts only when there is none:
/// it may be as large as it likes and hold nothing.
QString groesstes(const QList<Beiseiteliegendes> &alle)
{
    QStringList pfade;
    for (const Beiseiteliegendes &eines : alle) {
        pfade << eines.path;
    }
    std::stable_sort(pfade.begin(), pfade.end(), [](const QString &a, const QString &b) {
        return QFileInfo(a).size() > QFileInfo(b).size();
    });
    const auto bestand = std::find_if(pfade.begin(), pfade.end(), [](const QString &path) {
        return Archivdatei::lesen(path).zustand == Archivdatei::Zustand::Gelesen;
    });
    return bestand != pfade.end() ? *bestand : pfade.value(0);
}

} // namespace

QList<Sicherung> tage(const QString &path)
{
    const Name name(path);
    QList<Sicherung> alle;
    for (const auto &[kopie, teile] :
         kopien(name, name.tagesordner(), QStringLiteral(R"( (\d{4}-\d\d-\d\d))"))) {
        const QDate tag = QDate::fromString(teile.value(1), tagesform);
        if (tag.isValid()) {
            alle.append({.path = kopie, .tag = tag});
        }
    }
    std::sort(alle.begin(), alle.end(),
              [](const Sicherung &a, const Sicherung &b) { return a.tag > b.tag; });
    return alle;
}

QList<Sicherung> alle(const QString &path)
{
    QList<Sicherung> kopien = tage(path);
    for (const Beiseiteliegendes &eines : beiseiteliegende(Name(path))) {
        const QDateTime moment = QDateTime::fromString(eines.moment, momentform);
        if (moment.isValid()) {
            kopien.prepend({.path = eines.path, .tag = moment.date(), .moment = moment});
        }
    }
    const auto wann = [](const Sicherung &eine) {
        return eine.moment.isValid() ? eine.moment : eine.tag.endOfDay();
    };
    std::stable_sort(kopien.begin(), kopien.end(),
                     [&](const Sicherung &a, const Sicherung &b) { return wann(a) > wann(b); });
    return kopien;
}

void verengeAlle(const QString &path)
{
    verenge(Dateiwechsel::ziel(path));
    for (const Sicherung &eine : alle(path)) {
        verenge(eine.path);
    }
}

bool sichereTag(const QString &path, const QByteArray &bytes, const QDateTime &geaendert)
{
    return sichereTag(path, geaendert, [&](const QString &kopie) {
        Dateiwechsel neu(kopie);
        return neu.bereite(bytes, geaendert) && neu.vollziehe();
    });
}

bool sichereTag(const QString &path, const QDateTime &geaendert,
                const std::function<bool(const QString &kopie)> &schreibe)
{
    const Name name(path);
    const QDir ordner = name.tagesordner();
    constexpr auto nurDerNutzer = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    if (!ordner.exists() && !QDir().mkdir(ordner.path(), nurDerNutzer)) {
        return false;
    }
    const QString kopie = ordner.filePath(name.mit(geaendert.date().toString(tagesform)));
    const QFileInfo bisher(kopie);
    if (bisher.exists() && bisher.lastModified() > geaendert) {
        return true;
    }
    if (!schreibe(kopie)) {
        return false;
    }
    // A clock that goes wrong gives wrong days: the copy just made stays even as the oldest one.
    QList<Sicherung> alle = tage(path);
    alle.removeIf([&kopie](const Sicherung &eine) { return eine.path == kopie; });
    for (; alle.size() >= meisteKopien; alle.removeLast()) {
        QFile::remove(alle.constLast().path);
    }
    return true;
}

QString freierPlatz(const QString &path, const QDateTime &jetzt)
{
    return freierName(Name(path), jetzt);
}

Beiseitegelegtes legeBeiseite(const QString &path, const Archivdatei::Rohdaten &vorher,
                              const QDateTime &jetzt)
{
    using Wie = Beiseitegelegtes::Wie;
    const Name name(path);
    const QString kopie = freierName(name, jetzt);
    if (vorher.zustand == Archivdatei::Zustand::Unlesbar) {
        if (QFileInfo::exists(kopie) || !benenneUm(Dateiwechsel::ziel(path), kopie)) {
            return {};
        }
        verenge(kopie);
        return {Wie::Verschoben, kopie};
    }
    for (const Beiseiteliegendes &frueheres : beiseiteliegende(name)) {
        if (enthaelt(frueheres.path, vorher.bytes)) {
            return {Wie::Frueher, erneuere(frueheres, kopie, jetzt)};
        }
    }
    Dateiwechsel neu(kopie);
    const bool gelungen = neu.bereite(vorher.bytes) && neu.vollziehe();
    return gelungen ? Beiseitegelegtes{Wie::Kopiert, kopie} : Beiseitegelegtes();
}

void nimmZurueck(const QString &path, const Beiseitegelegtes &beiseite)
{
    const QString ziel = Dateiwechsel::ziel(path);
    if (beiseite.wie == Beiseitegelegtes::Wie::Verschoben) {
        if (!QFileInfo::exists(ziel)) {
            benenneUm(beiseite.path, ziel);
        }
    } else if (beiseite.wie == Beiseitegelegtes::Wie::Kopiert) {
        const Archivdatei::Rohdaten kopie = Archivdatei::leseBytes(beiseite.path);
        if (kopie.zustand == Archivdatei::Zustand::Gelesen && enthaelt(ziel, kopie.bytes)) {
            QFile::remove(beiseite.path);
        }
    }
}

/// The oldest ones go, but never the largest: what was put aside first often has the work of years
/// in it, and what trouble with the disk leaves afterwards little.
void begrenze(const QString &path, const Beiseitegelegtes &beiseite)
{
    const QList<Beiseiteliegendes> alle = beiseiteliegende(Name(path));
    qsizetype zuViele = alle.size() - meisteKopien;
    if (zuViele <= 0) {
        return;
    }
    const QString bleibendes = groesstes(alle);
    for (auto eines = alle.begin(); eines != alle.end() && zuViele > 0; ++eines) {
        if (eines->path != bleibendes && eines->path != beiseite.path) {
            QFile::remove(eines->path);
            --zuViele;
        }
    }
}

} // namespace Sicherungen
