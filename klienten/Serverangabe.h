#pragma once

#include <QList>
#include <QString>

#include <optional>
#include <utility>

/// How the user names the practice's server, read.
struct Serverangabe
{
    /// What is wrong with it.
    enum class Fehler {
        Leer,
        Kennwort, ///< a password has no place in the settings, where others might read it
        Unlesbar, ///< neither a name, nor pairs like "host=praxis", nor an address
    };
    QList<std::pair<QString, QString>> paare = {}; ///< words of libpq and their values
    std::optional<Fehler> fehler = {};

    bool operator==(const Serverangabe &) const = default;
};

/// Reads it: the name of a service that libpq knows ("praxis"), its pairs of word and value
/// ("host=praxis dbname=klienten"), or an address like
/// "postgresql://user@host:port/database?sslmode=require".
Serverangabe leseServerangabe(const QString &text);

/// The pairs as libpq reads them, and these further ones whose words are not among them.
QString verbindungstext(const QList<std::pair<QString, QString>> &paare,
                        const QList<std::pair<QString, QString>> &sonst = {});
