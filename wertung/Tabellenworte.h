#pragma once

#include "Tabellenzeile.h"

#include <algorithm>
#include <utility>

/// The words by which the files of the foods say what is no number; no word stands for the usual.
namespace Tabellenworte {

template <typename Wert>
using Worte = QList<std::pair<QString, Wert>>;

const Worte<std::optional<Purinklasse>> &purinklassen();
const Worte<Merkmale> &merkmale();
const Worte<Zuckerart> &zuckerarten();

/// What a word stands for; absent when it is none of these.
template <typename Wert>
std::optional<Wert> wert(const Worte<Wert> &worte, const QString &wort)
{
    const auto gefunden = std::ranges::find(worte, wort, &std::pair<QString, Wert>::first);
    // What a word stands for may itself be an absent value, which is not the same as no word.
    return gefunden != worte.end() ? std::make_optional<Wert>(gefunden->second) : std::nullopt;
}

/// The word that stands for a value; empty when none does.
template <typename Wert>
QString wort(const Worte<Wert> &worte, const Wert &wert)
{
    const auto gefunden = std::ranges::find(worte, wert, &std::pair<QString, Wert>::second);
    return gefunden != worte.end() ? gefunden->first : QString();
}

} // namespace Tabellenworte
