#include "Sportworte.h"

#include "Sportarten.h"
#include "Zeichenkettentabelle.h"

#include <QLocale>

#include <algorithm>

QString sportworte(const QString &deutsch)
{
    if (deutsch.isEmpty()) {
        return localizedString(QStringLiteral("kein Sport"));
    }
    const auto zeile =
        std::find_if(sportarten.begin(), sportarten.end(),
                     [&deutsch](const Sportart &eine) { return eine.deutsch == deutsch; });
    const bool uebersetzt = zeile != sportarten.end() && !zeile->englisch.isNull() &&
                            QLocale().language() == QLocale::English;
    return uebersetzt ? zeile->englisch.toString() : deutsch;
}
