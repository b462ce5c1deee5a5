#include "Dateidatenbank.h"

#include "Dateiwechsel.h"
#include "EngeRechte.h"
#include "Klientenschema.h"
#include "Sicherungen.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>
#include <QtEndian>

#include <algorithm>
#include <array>

#include <fcntl.h>
#include <unistd.h>

namespace {

/// So long another program may hold the store before that is a hindrance, in milliseconds.
constexpr int wartezeit = 2000;

constexpr int kopflaenge = 100;
constexpr int erkennungsort = 68;
const QByteArray dateianfang = QByteArrayLiteral("SQLite format 3\0");

/// File systems on which programs of several machines may have the file open. The write-ahead log
/// needs memory that all of them share, and there is none.
constexpr std::array netze = {"nfs",        "nfs4",   "cifs", "smb3",       "smbfs",
                              "9p",         "vboxsf", "afs",  "fuse.sshfs", "fuse.gvfsd-fuse",
                              "fuse.davfs2"};

bool liegtImNetz(const QString &path)
{
    const QByteArray art = QStorageInfo(QFileInfo(path).path()).fileSystemType();
    return std::any_of(netze.begin(), netze.end(), [&](const char *netz) { return art == netz; });
}

/// What stands at a path, before SQLite may see it: it would mend what another program left there.
Ausgang pruefeKopf(const QString &path)
{
    if (!QFileInfo(path).isFile()) {
        return {Hindernis::Fremd, QStringLiteral("Not a file")};
    }
    QFile datei(path);
    if (!datei.open(QIODevice::ReadOnly)) {
        return {Hindernis::Verwehrt, datei.errorString()};
    }
    const QByteArray kopf = datei.read(kopflaenge);
    if (kopf.isEmpty() && datei.error() == QFileDevice::NoError) {
        return {}; // made, and never written
    }
    if (kopf.size() < kopflaenge || !kopf.startsWith(dateianfang)) {
        return {Hindernis::Beschaedigt, QStringLiteral("Not a database")};
    }
    const auto erkennung = qFromBigEndian<qint32>(kopf.constData() + erkennungsort);
    return erkennung == Dateidatenbank::erkennung
               ? Ausgang{}
               : Ausgang{Hindernis::Fremd, QStringLiteral("A database of another program")};
}

/// Makes the file before SQLite does, so that nobody else can read it at any time. Its log takes
/// the same rights.
Ausgang machLeere(const QString &path)
{
    const int datei = open(QFile::encodeName(path).constData(),
                           O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (datei < 0) {
        return {Hindernis::Verwehrt, qt_error_string()};
    }
    close(datei);
    return {};
}

} // namespace

Dateidatenbank::Dateidatenbank(const QString &path)
    : Datenbank(QStringLiteral("QSQLITE"))
    , m_path(Dateiwechsel::ziel(path))
{
}

bool Dateidatenbank::vorhanden() const
{
    return QFileInfo::exists(m_path);
}

Ausgang Dateidatenbank::verbinde()
{
    Ausgang datei = vorhanden() ? pruefeKopf(m_path) : machLeere(m_path);
    if (!datei) {
        return datei;
    }
    verenge(m_path);
    m_geoeffnet = Dateistempel::von(m_path);
    // Whoever may write also tidies up when they close the file. What is damaged or newer shall
    // stay as it is, and so it is only read at first. A journal is different: it must be played
    // back.
    const bool leer = QFileInfo(m_path).size() == 0;
    const bool unterbrochen = QFileInfo(m_path + QStringLiteral("-journal")).size() > 0;
    if (!leer && !unterbrochen) {
        Ausgang gelesen = oeffneDatei(true);
        if (!gelesen || istNeuer()) {
            return gelesen;
        }
        verbindung().close();
    }
    const Ausgang geoeffnet = oeffneDatei(false);
    return geoeffnet && unterbrochen ? pruefeGanzes() : geoeffnet;
}

Ausgang Dateidatenbank::oeffneDatei(bool nurLesen)
{
    QSqlDatabase datenbank = verbindung();
    datenbank.setDatabaseName(m_path);
    datenbank.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1").arg(wartezeit) +
                                (nurLesen ? QStringLiteral(";QSQLITE_OPEN_READONLY") : QString()));
    if (!datenbank.open()) {
        return misslungen(datenbank.lastError());
    }
    // Everything is on the disk when a write is told as done, what is deleted is overwritten, and
    // nothing of it gets into files elsewhere.
    const Ausgang eingestellt = fuehreEinzeln(
        {QStringLiteral("PRAGMA foreign_keys = ON"), QStringLiteral("PRAGMA synchronous = FULL"),
         QStringLiteral("PRAGMA secure_delete = ON"), QStringLiteral("PRAGMA temp_store = MEMORY"),
         QStringLiteral("PRAGMA trusted_schema = OFF")});
    return eingestellt && nurLesen ? pruefeGanzes() : eingestellt;
}

/// Looks through all pages: what is damaged somewhere would be found out when somebody needs it.
Ausgang Dateidatenbank::pruefeGanzes()
{
    Gespraech gespraech(verbindung());
    if (!gespraech.fuehre(QStringLiteral("PRAGMA quick_check(1)")) || !gespraech.naechste()) {
        return misslungen(gespraech.fehler());
    }
    const QString befund = gespraech.wert(0).toString();
    return befund == QLatin1String("ok") ? Ausgang{} : Ausgang{Hindernis::Beschaedigt, befund};
}

bool Dateidatenbank::istNeuer() const
{
    Gespraech gespraech(verbindung());
    return gespraech.fuehre(QStringLiteral("SELECT fassung FROM bestand")) &&
           gespraech.naechste() && gespraech.wert(0).toInt() > Klientenschema::fassung;
}

/// A file that cannot be shared with the log keeps the journal that it has. A copy that was brought
/// back has the journal of the copies.
Ausgang Dateidatenbank::richteEin()
{
    const QString art = liegtImNetz(m_path) ? QStringLiteral("DELETE") : QStringLiteral("WAL");
    return fuehreEinzeln({QStringLiteral("PRAGMA journal_mode = ") + art});
}

bool Dateidatenbank::nochDasselbe() const
{
    const std::optional<Dateistempel> jetzt = Dateistempel::von(m_path);
    return jetzt && m_geoeffnet && jetzt->geraet == m_geoeffnet->geraet &&
           jetzt->nummer == m_geoeffnet->nummer;
}

bool Dateidatenbank::lege(Gespraech &gespraech)
{
    return gespraech.fuehre(QStringLiteral("PRAGMA application_id = %1").arg(erkennung));
}

QString Dateidatenbank::fragtNachTabelle() const
{
    return QStringLiteral("SELECT count(*) FROM sqlite_master WHERE type = 'table' AND "
                          "name = 'bestand'");
}

Hindernis Dateidatenbank::deute(const QSqlError &fehler) const
{
    // The lower eight bits are the kind of the error.
    switch (fehler.nativeErrorCode().toInt() & 0xFF) {
    case 3:  // SQLITE_PERM
    case 8:  // SQLITE_READONLY
    case 14: // SQLITE_CANTOPEN
    case 23: // SQLITE_AUTH
        return Hindernis::Verwehrt;
    case 5: // SQLITE_BUSY
    case 6: // SQLITE_LOCKED
        return Hindernis::Gesperrt;
    case 11: // SQLITE_CORRUPT
    case 26: // SQLITE_NOTADB
        return Hindernis::Beschaedigt;
    default:
        return Hindernis::Sonstiges;
    }
}

Ausgang Dateidatenbank::raeumeAuf()
{
    Gespraech gespraech(verbindung());
    if (!gespraech.fuehre(QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)")) ||
        !gespraech.naechste()) {
        return misslungen(gespraech.fehler());
    }
    // The first figure tells that others were reading, so that something is left in the log.
    return gespraech.wert(0).toInt() == 0 ? Ausgang{} : Ausgang{Hindernis::Gesperrt};
}

Ausgang Dateidatenbank::kopiere(const QString &nach)
{
    const QString neues = nach + QStringLiteral(".neu");
    QFile::remove(neues);
    Ausgang ausgang = oeffne();
    if (ausgang) {
        ausgang = schreibeKopie(neues);
    }
    if (ausgang && std::rename(QFile::encodeName(neues).constData(),
                               QFile::encodeName(nach).constData()) != 0) {
        ausgang = {Hindernis::Sonstiges, qt_error_string()};
    }
    if (!ausgang) {
        QFile::remove(neues);
    }
    return ausgang;
}

Ausgang Dateidatenbank::schreibeKopie(const QString &nach)
{
    if (Ausgang leere = machLeere(nach); !leere) {
        return leere;
    }
    Gespraech gespraech(verbindung());
    if (!gespraech.fuehre(QStringLiteral("VACUUM INTO ?"), {nach})) {
        return misslungen(gespraech.fehler());
    }
    QFile kopie(nach);
    if (!kopie.open(QIODevice::ReadWrite) || fsync(kopie.handle()) != 0) {
        return {Hindernis::Sonstiges, qt_error_string()};
    }
    return {};
}

void Dateidatenbank::vorSchreiben()
{
    const QDateTime jetzt = m_uhr();
    if (m_gesichert == jetzt.date()) {
        return;
    }
    m_gesichert = jetzt.date();
    const QDateTime geaendert = std::max(QFileInfo(m_path).lastModified(),
                                         QFileInfo(m_path + QStringLiteral("-wal")).lastModified());
    if (geaendert.isValid() && geaendert.date() < jetzt.date()) {
        Sicherungen::sichereTag(m_path, geaendert,
                                [this](const QString &kopie) { return bool(kopiere(kopie)); });
    }
}

/// Without a copy the file keeps its form, and is not used.
Ausgang Dateidatenbank::vorUmbau()
{
    return schreibeKopie(Sicherungen::freierPlatz(m_path, m_uhr()));
}
