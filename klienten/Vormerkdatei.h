#pragma once

#include "Merkdatei.h"
#include "Schreibwunsch.h"

#include <QDateTime>
#include <QList>
#include <QString>

#include <utility>

/// The file of this desk in which stands what waits to be written to a store, so that neither the
/// end of the program nor a power cut takes along what was typed while a server was away. There is
/// one only as long as something waits, readable by the user alone.
class Vormerkdatei
{
public:
    explicit Vormerkdatei(QString path) : m_datei(std::move(path)) {}

    /// What waited when the program ended, in its order. What can't be understood is kept in a copy
    /// beside the file, see `beiseite`, and the rest is read. A file that can't be read at all
    /// stays, and nothing is written in its place.
    QList<Schreibwunsch> lies(const QDateTime &jetzt);
    /// Keeps this in place of what stood there; for nothing the file goes. False: it could not be
    /// kept, and what stood there still stands.
    bool schreibe(const QList<Schreibwunsch> &wuensche);

    /// Where a file that was not understood whole is kept now; null: there was none.
    const QString &beiseite() const { return m_datei.beiseite(); }
    /// Whether there is a file that can't be read.
    bool istGesperrt() const { return m_datei.istGesperrt(); }

private:
    Merkdatei m_datei;
};
