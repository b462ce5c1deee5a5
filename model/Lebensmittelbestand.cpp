#include "Lebensmittelbestand.h"

#include "Archivdatei.h"
#include "Dateihueter.h"
#include "Zeichenkettentabelle.h"

#include <QCollator>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

struct Sortierzeile
{
    QCollatorSortKey schluessel;
    QString name;
};

QCollator sortierregel(const QLocale &locale)
{
    const bool ohneSprache = locale.language() == QLocale::C;
    QCollator regel(ohneSprache ? QLocale(QLocale::German, QLocale::Germany) : locale);
    regel.setCaseSensitivity(Qt::CaseInsensitive);
    return regel;
}

} // namespace

QStringList sortiertNachName(QStringList namen)
{
    std::stable_sort(namen.begin(), namen.end(), [](const QString &a, const QString &b) {
        return QString::compare(a, b, Qt::CaseInsensitive) < 0;
    });
    return namen;
}

QStringList sortiertNachUebersetzung(const QStringList &namen, const QLocale &locale)
{
    // Each name is translated and prepared for comparison once, not at every comparison.
    const QCollator regel = sortierregel(locale);
    std::vector<Sortierzeile> zeilen;
    zeilen.reserve(static_cast<std::size_t>(namen.size()));
    const QStringList vorsortiert = sortiertNachName(namen);
    for (const QString &name : vorsortiert) {
        zeilen.push_back({regel.sortKey(localizedString(name)), name});
    }
    std::stable_sort(zeilen.begin(), zeilen.end(),
                     [](const auto &a, const auto &b) { return a.schluessel < b.schluessel; });

    QStringList sortiert;
    sortiert.reserve(namen.size());
    for (const Sortierzeile &zeile : zeilen) {
        sortiert.append(zeile.name);
    }
    return sortiert;
}

Lebensmittelbestand ladeBestand(const QString &path, const QLocale &locale)
{
    Lebensmittelbestand bestand;
    bestand.verzeichnis = Archivdatei::lesen(path).archiv.verzeichnis;
    bestand.namen = sortiertNachUebersetzung(bestand.verzeichnis.keys(), locale);
    return bestand;
}

Lebensmittelbestand ladeEigenenBestand(Dateihueter &dateien, const QString &path)
{
    Lebensmittelbestand bestand;
    bestand.verzeichnis = dateien.lesen(path).archiv.verzeichnis;
    bestand.namen = sortiertNachName(bestand.verzeichnis.keys());
    return bestand;
}
