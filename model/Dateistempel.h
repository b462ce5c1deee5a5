#pragma once

#include <QString>

#include <ctime>
#include <optional>

/// What tells one state of a file from another without reading it.
struct Dateistempel
{
    quint64 geraet;
    quint64 nummer; ///< every rewriting by this program gives the file another one
    qint64 groesse;
    timespec geaendert;

    /// Of what is at a path; absent when nothing is.
    static std::optional<Dateistempel> von(const QString &path);

    bool operator==(const Dateistempel &anderer) const;
};
