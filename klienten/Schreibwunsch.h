#pragma once

#include "Klientendaten.h"

#include <optional>
#include <variant>

/// A record of any kind.
using Satz = std::variant<Person, Besuch, Planablage, Aufzeichnung>;

/// The key of a record.
QString kennung(const Satz &satz);

/// A record as it is to be written, and what it was made from.
struct Schreibwunsch
{
    QString person;               ///< key of the person to whom it belongs, or who it is
    Satz neu;                     ///< as it is wanted
    std::optional<Satz> alt = {}; ///< as it was read; absent for a new one

    bool operator==(const Schreibwunsch &) const = default;
};
