#pragma once

#include "Archivdatei.h"

#include <QDate>
#include <QDateTime>
#include <QList>
#include <QString>

#include <functional>

/// The copies that are kept of a user's file, ten of each kind at most. They lie where the file
/// lies, which is where its link leads to, and are readable by the user alone.
namespace Sicherungen {

/// A copy of the file: as it stood at the end of a day on which it was changed, or as it was put
/// aside at some moment.
struct Sicherung
{
    QString path;
    QDate tag;
    QDateTime moment = {}; ///< when it was put aside; null for the copy of a day
};

/// The folder of the day copies, below that of the file.
inline const QString ordnername = QStringLiteral("Sicherungen");

/// The day copies of a file, newest first.
QList<Sicherung> tage(const QString &path);

/// All copies of a file, the newest first; that of a day comes before what was put aside on it.
QList<Sicherung> alle(const QString &path);

/// Makes sure that a file and its copies are readable by the user alone: earlier versions left them
/// as open as they were.
void verengeAlle(const QString &path);

/// Keeps the content of a file under the day of its last change, in a copy like
/// "Sicherungen/Foods 2026-11-20.daten". Of two states of one day the later one stays. False when
/// that could not be done.
bool sichereTag(const QString &path, const QByteArray &bytes, const QDateTime &geaendert);

/// Does the same for a file that somebody else writes whole at the path that `schreibe` is given,
/// and answers whether that worked.
bool sichereTag(const QString &path, const QDateTime &geaendert,
                const std::function<bool(const QString &kopie)> &schreibe);

/// A name that nothing has yet for a copy of the file beside it, made at this moment.
QString freierPlatz(const QString &path, const QDateTime &jetzt);

/// How something was kept that a new file is about to replace.
struct Beiseitegelegtes
{
    enum class Wie {
        Garnicht, ///< it could not be kept
        Frueher,  ///< there was a copy of the same bytes already; it counts as new now
        Kopiert,
        Verschoben, ///< it could not be read; the path is free now
    };
    Wie wie = Wie::Garnicht;
    QString path; ///< of the copy; null when there is none
};

/// Keeps a file beside itself, in a copy like "Foods 2026-11-20 14.03.05.daten" or, if there is one
/// already, "Foods 2026-11-20 14.03.05 (2).daten". A file that can't be read is moved there.
Beiseitegelegtes legeBeiseite(const QString &path, const Archivdatei::Rohdaten &vorher,
                              const QDateTime &jetzt);
/// Undoes that, when nothing took the file's place. What is not there as it was keeps its copy.
void nimmZurueck(const QString &path, const Beiseitegelegtes &beiseite);
/// Leaves ten of the files that lie beside this one, among them the one that came last.
void begrenze(const QString &path, const Beiseitegelegtes &beiseite);

} // namespace Sicherungen
