#pragma once

#include "Aufzeichnung.h"
#include "Merkdatei.h"

#include <QList>

/// The file of this desk with the records of days that belong to no client. It is written with each
/// change, and its states of ten days are kept.
class Tagebuchdatei
{
public:
    explicit Tagebuchdatei(QString path);

    /// The records in their order. One that can't be understood is left out, and then the file is
    /// kept in a copy, see `beiseite`. A file of a newer version is read as far as this one knows
    /// it, and not written.
    QList<Aufzeichnung> lies(const QDateTime &jetzt);
    /// Keeps these in place of those that stood there; for none the file goes. False: they could
    /// not be kept, and what stood there still stands.
    bool schreibe(const QList<Aufzeichnung> &aufzeichnungen);

    /// Where a file that was not understood whole is kept now; null: there was none.
    const QString &beiseite() const { return m_datei.beiseite(); }
    /// Whether there is a file that can't be read, or is newer: it stays as it is.
    bool istGesperrt() const { return m_datei.istGesperrt(); }

private:
    Merkdatei m_datei;
};
