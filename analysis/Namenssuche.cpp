#include "Namenssuche.h"

#include <QStringMatcher>

Namenssuchergebnis namenSuchen(const QStringList &eigene, const QStringList &schluessel,
                               const QStringList &uebersetzungen, const QString &text)
{
    Namenssuchergebnis ergebnis;
    if (text.isEmpty()) {
        ergebnis.nichtGefunden = schluessel.size();
        return ergebnis;
    }
    // Prepared once for all names.
    const QStringMatcher suche(text, Qt::CaseInsensitive);
    for (const QString &name : eigene) {
        if (suche.indexIn(name) >= 0) {
            ergebnis.treffer.append({name, name});
        }
    }
    ergebnis.eigeneTreffer = ergebnis.treffer.size();
    for (qsizetype i = 0; i < schluessel.size(); ++i) {
        const QString &name = i < uebersetzungen.size() ? uebersetzungen.at(i) : schluessel.at(i);
        if (suche.indexIn(name) >= 0) {
            ergebnis.treffer.append({name, schluessel.at(i)});
        } else {
            ++ergebnis.nichtGefunden;
        }
    }
    return ergebnis;
}
