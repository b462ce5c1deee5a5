#pragma once

#include <QString>

/// What a rating of a food must be, so that it is named.
enum class Wertungswunsch {
    Egal,
    Geeignet,        ///< "+"
    NichtUngeeignet, ///< "+" or "0"; a food without a rating, or with another text, is neither
};

/// Whether a rating is such.
inline bool istErfuellt(Wertungswunsch wunsch, const QString &wertung)
{
    const bool plus = wertung == QLatin1String("+");
    return wunsch == Wertungswunsch::Egal || plus ||
           (wunsch == Wertungswunsch::NichtUngeeignet && wertung == QLatin1String("0"));
}
