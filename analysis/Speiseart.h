#pragma once

#include "Lebensmittelgruppe.h"

#include <QString>

#include <string_view>

/// What a food may be suggested for.
enum class Eignung {
    Nie,
    Ersatz, ///< in place of another food of its kind alone
    Zugabe, ///< in place of another, and as something that comes in besides
};

/// How a food is used, so far as suggestions ask.
struct Speiseart
{
    /// The kind; foods of one kind take each other's place, such as rice and potatoes. Empty: the
    /// food has none, and nothing takes its place.
    std::string_view art = {};
    Eignung eignung = Eignung::Nie;
    /// Its calcium and iron are bound to oxalic acid: it is advised for neither.
    bool oxalsaeure = false;

    bool operator==(const Speiseart &) const = default;
};

/// How a built-in food is used, by its group and its German name. An average of several foods can't
/// be bought and is never suggested. A food without a group, as own foods are, has no kind, but may
/// come in besides: whoever gave it a portion eats it so.
Speiseart speiseart(const Lebensmittelgruppe *gruppe, const QString &name);
