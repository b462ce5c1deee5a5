#pragma once

#include "Datenmodul.h"

#include <QString>

#include <ctime>
#include <optional>

/// A file in which a store of foods is kept, for a caller that wants it to hold the store at every
/// moment and asks for that again and again, far more often than anything changes. While neither
/// the store nor the file was touched since it was written, asking costs one look at the file's
/// date; when another part of the program has written the file in between, it is written anew.
class Bestandsdatei
{
public:
    /// Sees to it that the file holds the store. When it could not be written, it is tried again
    /// the next time.
    void halte(const QString &path, const Lebensmittelverzeichnis &verzeichnis);

private:
    /// What tells one state of a file from another without reading it.
    struct Stempel
    {
        quint64 geraet;
        quint64 nummer; ///< every rewriting gives the file another one
        qint64 groesse;
        timespec geaendert;

        bool operator==(const Stempel &anderer) const;
    };

    static std::optional<Stempel> stempelVon(const QString &path);

    QString m_path;
    Lebensmittelverzeichnis m_geschrieben; ///< shares its data with the store until that changes
    std::optional<Stempel> m_stempel;      ///< absent: not written yet
};
