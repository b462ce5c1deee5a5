#pragma once

#include "Klientendaten.h"

#include <QByteArray>

/// Everything that is kept of one client as a text that another desk takes in: JSON, with the names
/// of the store's columns.
QByteArray akteAlsText(const Klientenakte &akte);

/// What was read of such a text.
struct Uebergabe
{
    enum class Zustand {
        Gelesen,
        Fremd,       ///< no client of this program's
        Neuer,       ///< from a newer version, with what this one does not know
        Beschaedigt, ///< something in it can't be understood; see `stelle`
    };
    Zustand zustand = Zustand::Fremd;
    Klientenakte akte = {}; ///< only when it was read
    QString stelle = {};    ///< which field of which record, as in "besuche[2].gewicht"
};

/// Reads it back as it was written, keys and counts included.
Uebergabe leseAkte(const QByteArray &text);
