#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <functional>

/// A file of this desk in which the program keeps something of its own, and which it reads once and
/// then writes whole with each change: at any moment either the old or the new state is there. It
/// is readable by the user alone. What in it is not the program's own is never lost: it is kept in
/// a copy, or the file is left alone.
class Merkdatei
{
public:
    /// How much of a file was understood.
    enum class Verstaendnis {
        Ganz,
        Teilweise, ///< the file is kept in a copy before anything is written
        Neuer,     ///< it is from a newer version, and nothing is written in its place
    };
    using Deutung = std::function<Verstaendnis(const QByteArray &bytes)>;

    /// Whether the state of each day on which it was changed is kept too.
    enum class Tageskopien { Keine, Zehn };

    explicit Merkdatei(QString path, Tageskopien kopien = Tageskopien::Keine);

    /// Reads the file and lets `deute` say what it made of it. Where there is no file, or one that
    /// can't be read, it is not asked.
    void lies(const Deutung &deute, const QDateTime &jetzt);
    /// Keeps these bytes in place of what stood there; for none the file goes. False: they could
    /// not be kept, and what stood there still stands.
    bool schreibe(const QByteArray &bytes);

    /// Where a file that was not understood whole is kept now; null: there was none.
    const QString &beiseite() const { return m_beiseite; }
    /// Whether there is a file that can't be read, or is newer: it stays as it is.
    bool istGesperrt() const { return m_gesperrt; }

private:
    bool ersetze(const QByteArray &bytes);

    QString m_path;
    Tageskopien m_kopien;
    QByteArray m_bytes; ///< what the file holds; null while there is none
    QString m_beiseite;
    bool m_gesperrt = false;
};
