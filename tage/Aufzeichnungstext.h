#pragma once

#include "Aufzeichnung.h"

#include <QByteArray>
#include <QString>

/// A record of days as a text: JSON, in which it is kept and handed over. Foods stand there once
/// each with their values, and the rows name them.
QByteArray alsText(const Aufzeichnung &aufzeichnung);

/// What was read of such a text.
struct Aufzeichnungslesung
{
    enum class Zustand {
        Gelesen,
        Neuer,       ///< from a newer version: what this one knows of it; it must not be written
        Fremd,       ///< no record of days
        Beschaedigt, ///< something in it can't be understood; see `stelle`
    };
    Zustand zustand = Zustand::Fremd;
    /// Only when it was read, or is newer and all that this version needs was understood; without
    /// days otherwise.
    Aufzeichnung aufzeichnung = {};
    QString stelle = {}; ///< which field, as in "days[2].meals[0].rows[1].grams"
};

/// Reads it back as it was written, to the last bit of each number. The key and the count of writes
/// are not in the text; they belong to where it is kept.
Aufzeichnungslesung leseAufzeichnung(const QByteArray &text);
