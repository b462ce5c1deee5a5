#pragma once

#include "Tabellendatei.h"

/// Objections as a test writes them: "3: text [check]", behind the number of the line.
inline QStringList inWorten(const Beanstandungen &beanstandungen)
{
    QStringList liste;
    for (const Beanstandung &eine : beanstandungen) {
        liste.append(QStringLiteral("%1: %2 [%3]").arg(eine.zeile).arg(eine.meldung, eine.regel));
    }
    return liste;
}
