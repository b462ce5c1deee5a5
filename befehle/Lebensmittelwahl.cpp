#include "Lebensmittelwahl.h"

#include "Lebensmittelbestand.h"
#include "Namenssuche.h"
#include "Zeichenkettentabelle.h"

#include <algorithm>

namespace {

/// The keys of the store's foods that have this name. A built-in food's German name is its key.
QStringList gleichnamige(const Lebensmittelverzeichnis &verzeichnis,
                         const QHash<QString, QString> &englisch, const QString &name,
                         Qt::CaseSensitivity schreibung)
{
    QStringList gefunden;
    for (auto eines = verzeichnis.keyBegin(); eines != verzeichnis.keyEnd(); ++eines) {
        if (eines->compare(name, schreibung) == 0) {
            gefunden << *eines;
        }
    }
    for (auto eines = englisch.begin(); gefunden.isEmpty() && eines != englisch.end(); ++eines) {
        if (eines->compare(name, schreibung) == 0) {
            gefunden << eines.key();
        }
    }
    return gefunden;
}

} // namespace

Lebensmittelwahl waehleLebensmittel(const Bestaende &bestaende, const QString &name, bool nurEigene)
{
    Lebensmittelwahl wahl;
    for (const Qt::CaseSensitivity schreibung : {Qt::CaseSensitive, Qt::CaseInsensitive}) {
        const QStringList eigene = gleichnamige(bestaende.eigene, {}, name, schreibung);
        const QStringList eingebaute =
            nurEigene ? QStringList()
                      : gleichnamige(bestaende.eingebaute, bestaende.englisch, name, schreibung);
        wahl.eigenes = eingebaute.isEmpty();
        const QStringList &gefunden = wahl.eigenes ? eigene : eingebaute;
        if (gefunden.size() > 1) {
            wahl.mehrdeutig = gefunden;
            return wahl;
        }
        if (!gefunden.isEmpty()) {
            wahl.schluessel = gefunden.constFirst();
            wahl.auchEigenes =
                !wahl.eigenes &&
                !gleichnamige(bestaende.eigene, {}, name, Qt::CaseInsensitive).isEmpty();
            const auto &verzeichnis = wahl.eigenes ? bestaende.eigene : bestaende.eingebaute;
            wahl.lebensmittel = &*verzeichnis.constFind(wahl.schluessel);
            return wahl;
        }
    }
    return wahl;
}

QStringList aehnlicheNamen(const Bestaende &bestaende, const QString &name)
{
    constexpr qsizetype hoechstens = 5;
    constexpr qsizetype kuerzester = 3; // what is shorter is in too many names
    const QStringList eigene = sortiertNachName(bestaende.eigene.keys());
    const QStringList eingebaute = sortiertNachUebersetzung(bestaende.eingebaute.keys());
    QStringList gelesen;
    std::transform(eingebaute.begin(), eingebaute.end(), std::back_inserter(gelesen),
                   localizedString);
    QStringList namen;
    for (QString text = name.trimmed(); namen.isEmpty() && text.size() >= kuerzester;
         text.chop(1)) {
        const auto treffer = namenSuchen(eigene, eingebaute, gelesen, text).treffer;
        for (const Suchtreffer &einer : treffer.first(std::min(hoechstens, treffer.size()))) {
            namen << einer.anzeige;
        }
    }
    return namen;
}
