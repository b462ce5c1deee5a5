#include "Dateihueter.h"

#include "Dateireste.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>

#include <algorithm>

using Archivdatei::Ausgang;
using Archivdatei::Zustand;
using Sicherungen::Beiseitegelegtes;

namespace {

/// Lines for those who look after the user's files.
Q_LOGGING_CATEGORY(protokoll, "mahlberg.dateien", QtWarningMsg)

/// A failed write of a large store takes a while, and a table asks for one with every cell that it
/// paints: so many seconds go by before it is tried again.
constexpr qint64 wartezeit = 5;

/// So many seconds a report that something was put aside outlives the writes that follow: a saved
/// food is written twice, and then the plan may ask for its own copy.
constexpr qint64 lesezeit = 60;

/// Whether less than so many seconds went by since. A clock that was set back starts them anew.
bool geradeErst(const QDateTime &moment, const QDateTime &jetzt, qint64 sekunden)
{
    return moment.isValid() && moment <= jetzt && moment.secsTo(jetzt) < sekunden;
}

QByteArray fingerabdruck(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Blake2b_256);
}

/// What happened, for the log.
const char *worte(Dateimeldung::Art art)
{
    switch (art) {
    case Dateimeldung::Art::NichtLesbar:
        return "could not be read";
    case Dateimeldung::Art::Beschaedigt:
        return "holds no store of foods";
    case Dateimeldung::Art::Beiseitegelegt:
        return "was put aside";
    case Dateimeldung::Art::NichtGeschrieben:
        break;
    }
    return "could not be written";
}

} // namespace

Archivdatei::Inhalt Dateihueter::lesen(const QString &path)
{
    const bool erstesMal = !m_akten.contains(path);
    if (erstesMal) {
        Dateireste::raeumeAuf(path, m_uhr());
        Sicherungen::verengeAlle(path);
    }
    const Archivdatei::Rohdaten daten = Archivdatei::leseBytes(path);
    Archivdatei::Inhalt inhalt = Archivdatei::deute(daten);
    const QByteArray gelesenes =
        inhalt.zustand == Zustand::Gelesen ? fingerabdruck(daten.bytes) : QByteArray();
    QByteArray &bekannt = m_akten[path].bekannt;
    bekannt = erstesMal || gelesenes == bekannt ? gelesenes : QByteArray();
    if (inhalt.zustand == Zustand::Unlesbar) {
        melde({Dateimeldung::Art::NichtLesbar, path, {}, inhalt.grund});
    } else if (inhalt.zustand == Zustand::Beschaedigt) {
        melde({Dateimeldung::Art::Beschaedigt, path, {}, inhalt.archiv.grund});
    }
    return inhalt;
}

bool Dateihueter::schreiben(const QString &path, const Lebensmittelverzeichnis &verzeichnis)
{
    const Versuch versuch = versuche(path, verzeichnis);
    berichte(path, versuch);
    if (versuch.ausgang) {
        Q_EMIT geschrieben(path, verzeichnis);
    }
    return static_cast<bool>(versuch.ausgang);
}

void Dateihueter::halte(const QString &path, const Lebensmittelverzeichnis &verzeichnis)
{
    if (!mussGehaltenWerden(path, verzeichnis)) {
        return;
    }
    const Versuch versuch = versuche(path, verzeichnis);
    merkeGehaltenes(path, verzeichnis, static_cast<bool>(versuch.ausgang));
    berichte(path, versuch);
    if (versuch.ausgang.art == Ausgang::Art::Geschrieben) {
        Q_EMIT geschrieben(path, verzeichnis);
    }
}

void Dateihueter::hebeAuf(const QString &path) const
{
    const Archivdatei::Rohdaten jetzt = Archivdatei::leseBytes(path);
    if (jetzt.zustand == Zustand::Gelesen) {
        Sicherungen::begrenze(path, Sicherungen::legeBeiseite(path, jetzt, m_uhr()));
    }
}

bool Dateihueter::mussGehaltenWerden(const QString &path,
                                     const Lebensmittelverzeichnis &verzeichnis) const
{
    const QList<Gehaltenes> alle = m_akten.value(path).gehaltenes;
    const auto eines = std::find_if(alle.begin(), alle.end(), [&](const Gehaltenes &gehaltenes) {
        return gehaltenes.verzeichnis.isSharedWith(verzeichnis);
    });
    if (eines == alle.end() || eines->stempel != Dateistempel::von(path)) {
        return true;
    }
    return eines->misslungen.isValid() ? !geradeErst(eines->misslungen, m_uhr(), wartezeit)
                                       : !eines->stempel.has_value();
}

/// A store that nobody else has any more was changed since, or its plan is gone.
void Dateihueter::merkeGehaltenes(const QString &path, const Lebensmittelverzeichnis &verzeichnis,
                                  bool gelungen)
{
    QList<Gehaltenes> &alle = m_akten[path].gehaltenes;
    alle.removeIf([&](const Gehaltenes &eines) {
        return eines.verzeichnis.isDetached() || eines.verzeichnis.isSharedWith(verzeichnis);
    });
    alle.append({verzeichnis, Dateistempel::von(path), gelungen ? QDateTime() : m_uhr()});
}

Dateihueter::Versuch Dateihueter::versuche(const QString &path,
                                           const Lebensmittelverzeichnis &verzeichnis)
{
    Versuch versuch;
    versuch.ausgang =
        Archivdatei::schreiben(path, verzeichnis, [&](const Archivdatei::Rohdaten &vorher) {
            return bewahre(path, vorher, versuch.beiseite);
        });
    if (!versuch.ausgang) {
        Sicherungen::nimmZurueck(path, versuch.beiseite);
        return versuch;
    }
    Akte &akte = m_akten[path];
    akte.bekannt = fingerabdruck(versuch.ausgang.bytes);
    if (versuch.beiseite.wie != Beiseitegelegtes::Wie::Garnicht) {
        Sicherungen::begrenze(path, versuch.beiseite);
        akte.beiseitegelegt = m_uhr();
    }
    return versuch;
}

/// Sees to it that nothing is lost with the file that is about to be replaced. False when it must
/// stay.
bool Dateihueter::bewahre(const QString &path, const Archivdatei::Rohdaten &vorher,
                          Beiseitegelegtes &beiseite) const
{
    if (vorher.zustand == Zustand::Fehlt) {
        return true;
    }
    const QByteArray bekannt = m_akten.value(path).bekannt;
    if (vorher.zustand == Zustand::Gelesen && fingerabdruck(vorher.bytes) == bekannt) {
        sichereTag(path, vorher.bytes);
        return true;
    }
    beiseite = Sicherungen::legeBeiseite(path, vorher, m_uhr());
    return beiseite.wie != Beiseitegelegtes::Wie::Garnicht;
}

/// Today's state may still change; the one of an earlier day is kept. Today's change is worth more
/// than its copy, so it is saved whether or not there is room for one.
void Dateihueter::sichereTag(const QString &path, const QByteArray &bytes) const
{
    const QDateTime geaendert = QFileInfo(path).lastModified();
    if (geaendert.date() != m_uhr().date() && !Sicherungen::sichereTag(path, bytes, geaendert)) {
        qCWarning(protokoll, "%s could not be copied before it was changed", qUtf8Printable(path));
    }
}

void Dateihueter::berichte(const QString &path, const Versuch &versuch)
{
    if (!versuch.ausgang) {
        melde({Dateimeldung::Art::NichtGeschrieben, path, {}, versuch.ausgang.grund});
        return;
    }
    erledige(path);
    if (versuch.beiseite.wie != Beiseitegelegtes::Wie::Garnicht) {
        melde({Dateimeldung::Art::Beiseitegelegt, path, versuch.beiseite.path, {}});
    }
}

void Dateihueter::melde(const Dateimeldung &meldung)
{
    const auto offen =
        std::find_if(m_meldungen.begin(), m_meldungen.end(), [&](const Dateimeldung &eine) {
            return eine.path == meldung.path && eine.art == meldung.art;
        });
    if (offen != m_meldungen.end()) {
        if (offen->kopie == meldung.kopie) {
            return;
        }
        m_meldungen.erase(offen);
    }
    m_meldungen.append(meldung);
    qCWarning(protokoll).noquote()
        << meldung.path << worte(meldung.art) << meldung.grund + meldung.kopie;
    Q_EMIT gemeldet(meldung);
}

void Dateihueter::erledige(const QString &path)
{
    const bool ebenBeiseite = geradeErst(m_akten.value(path).beiseitegelegt, m_uhr(), lesezeit);
    const qsizetype erledigte = m_meldungen.removeIf([&](const Dateimeldung &eine) {
        const bool bleibt = eine.art == Dateimeldung::Art::Beiseitegelegt && ebenBeiseite;
        return eine.path == path && !bleibt;
    });
    if (erledigte > 0) {
        Q_EMIT erledigt(path);
    }
}
