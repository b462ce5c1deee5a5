#include "Klientenstand.h"

#include "Dateidatenbank.h"
#include "EngeRechte.h"
#include "Klientenspeicher.h"
#include "Sicherungen.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTemporaryDir>

#include <memory>

namespace {

/// What SQLite keeps beside a store that was not closed in good order.
const QString nebendateien[] = {QString(), QStringLiteral("-wal"), QStringLiteral("-shm"),
                                QStringLiteral("-journal")};

bool verschiebe(const QString &von, const QString &nach)
{
    for (const QString &endung : nebendateien) {
        if (QFileInfo::exists(von + endung) && !QFile::rename(von + endung, nach + endung)) {
            return false;
        }
    }
    return true;
}

/// Copies it as it is, readable by the user alone.
Ausgang schreibeAb(const QString &von, const QString &nach)
{
    QFile quelle(von);
    QSaveFile ziel(nach);
    if (!quelle.open(QIODevice::ReadOnly)) {
        return {Hindernis::Verwehrt, quelle.errorString()};
    }
    if (!ziel.open(QIODevice::WriteOnly) ||
        !ziel.setPermissions(QFile::ReadOwner | QFile::WriteOwner)) {
        return {Hindernis::Verwehrt, ziel.errorString()};
    }
    while (!quelle.atEnd()) {
        const QByteArray stueck = quelle.read(1 << 20);
        if (stueck.isEmpty() || ziel.write(stueck) != stueck.size()) {
            return {Hindernis::Sonstiges,
                    stueck.isEmpty() ? quelle.errorString() : ziel.errorString()};
        }
    }
    return ziel.commit() ? Ausgang{} : Ausgang{Hindernis::Sonstiges, ziel.errorString()};
}

} // namespace

/// A copy of an older form would be changed by looking at it, so that a copy of it is looked at.
std::optional<int> klientenIn(const QString &kopie)
{
    const QTemporaryDir ordner;
    const QString hier = ordner.filePath(QStringLiteral("stand.sqlite"));
    if (!ordner.isValid() || !schreibeAb(kopie, hier)) {
        return std::nullopt;
    }
    Klientenspeicher speicher(std::make_unique<Dateidatenbank>(hier));
    QList<Personenzeile> personen;
    if (!speicher.oeffne() || !speicher.personen(personen)) {
        return std::nullopt;
    }
    return static_cast<int>(personen.size());
}

Ausgang holeStand(const QString &datei, const QString &kopie, const QDateTime &jetzt,
                  QString &beiseite)
{
    beiseite = QString();
    const QString neue = datei + QStringLiteral(".zurueck");
    QFile::remove(neue);
    if (Ausgang geschrieben = schreibeAb(kopie, neue); !geschrieben) {
        return geschrieben;
    }
    if (QFileInfo::exists(datei)) {
        beiseite = Sicherungen::freierPlatz(datei, jetzt);
        if (!verschiebe(datei, beiseite)) {
            verschiebe(beiseite, datei);
            QFile::remove(neue);
            beiseite = QString();
            return {Hindernis::Verwehrt, datei};
        }
    }
    if (!QFile::rename(neue, datei)) {
        if (!beiseite.isNull()) {
            verschiebe(beiseite, datei);
            beiseite = QString();
        }
        QFile::remove(neue);
        return {Hindernis::Verwehrt, datei};
    }
    return {};
}
