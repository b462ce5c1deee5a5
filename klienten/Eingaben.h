#pragma once

#include <QDate>
#include <QString>

#include <optional>

/// What somebody typed, read: nothing, something that can be read, or something that can't.
template <typename Wert>
struct Eingelesenes
{
    bool lesbar = true;
    std::optional<Wert> wert = {}; ///< absent for an empty text

    bool operator==(const Eingelesenes &) const = default;
};

/// Reads a measure: a number that is not negative, with a comma or a point, with its unit behind it
/// or without. Nothing else may stand there: what is half a number is a slip.
Eingelesenes<double> leseMass(const QString &text, const QString &einheit);

/// Reads a day as people type it: as the language of the windows writes it, as "23.11.2026",
/// "23.11.26" or "2026-11-23". A year of two digits is the latest one that is not after `heute`.
Eingelesenes<QDate> leseTag(const QString &text, const QDate &heute);
