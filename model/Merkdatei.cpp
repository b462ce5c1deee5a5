#include "Merkdatei.h"

#include "Archivdatei.h"
#include "Dateireste.h"
#include "Dateiwechsel.h"
#include "Sicherungen.h"

#include <QFile>
#include <QFileInfo>

#include <utility>

Merkdatei::Merkdatei(QString path, Tageskopien kopien) : m_path(std::move(path)), m_kopien(kopien)
{
}

void Merkdatei::lies(const Deutung &deute, const QDateTime &jetzt)
{
    Dateireste::raeumeAuf(m_path, jetzt);
    const Archivdatei::Rohdaten daten = Archivdatei::leseBytes(m_path);
    m_gesperrt = daten.zustand == Archivdatei::Zustand::Unlesbar;
    if (daten.zustand != Archivdatei::Zustand::Gelesen) {
        return;
    }
    m_bytes = daten.bytes;
    const Verstaendnis verstanden = deute(daten.bytes);
    m_gesperrt = verstanden == Verstaendnis::Neuer;
    if (verstanden == Verstaendnis::Teilweise) {
        const Sicherungen::Beiseitegelegtes kopie = Sicherungen::legeBeiseite(m_path, daten, jetzt);
        Sicherungen::begrenze(m_path, kopie);
        m_beiseite = kopie.path;
        m_gesperrt = kopie.wie == Sicherungen::Beiseitegelegtes::Wie::Garnicht;
    }
}

bool Merkdatei::schreibe(const QByteArray &bytes)
{
    if (bytes == m_bytes && bytes.isNull() == m_bytes.isNull()) {
        return true;
    }
    if (m_gesperrt) {
        return false;
    }
    if (!ersetze(bytes)) {
        return false;
    }
    m_bytes = bytes;
    return true;
}

/// A day's last state is kept when the first one of another day takes its place.
bool Merkdatei::ersetze(const QByteArray &bytes)
{
    const QDateTime geaendert = QFileInfo(m_path).lastModified();
    if (m_kopien == Tageskopien::Zehn && !m_bytes.isNull() &&
        geaendert.date() != QDate::currentDate()) {
        Sicherungen::sichereTag(m_path, m_bytes, geaendert);
    }
    if (bytes.isNull()) {
        return QFile::remove(m_path) || !QFile::exists(m_path);
    }
    Dateiwechsel wechsel(m_path);
    return wechsel.bereite(bytes) && wechsel.vollziehe();
}
