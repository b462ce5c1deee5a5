#include "Uebernahme.h"

#include "Bestandsvergleich.h"

#include <QSet>

namespace {

/// "Brot (2)" or the next number that neither an own food nor one that comes in has.
QString freierName(const QString &name, const Lebensmittelverzeichnis &eigene,
                   const QSet<QString> &kommende)
{
    QString neuer;
    int zahl = 2;
    do {
        neuer = QStringLiteral("%1 (%2)").arg(name, QString::number(zahl++));
    } while (eigene.contains(neuer) || kommende.contains(neuer));
    return neuer;
}

QSet<QString> namenVon(const QList<Datenmodul> &neue)
{
    QSet<QString> namen;
    for (const Datenmodul &eines : neue) {
        namen.insert(eines.name());
    }
    return namen;
}

void fuegeAn(Uebernahme &ziel, const Datenmodul &neues)
{
    ziel.bestand.verzeichnis.insert(neues.name(), neues);
    ziel.bestand.namen << neues.name();
    ziel.neu << neues.name();
}

} // namespace

Uebernahme uebernimm(const Lebensmittelbestand &eigene, const QList<Datenmodul> &neue,
                     const Namenswahl &wahl)
{
    Uebernahme ziel;
    ziel.bestand = eigene;
    const QSet<QString> kommende = namenVon(neue);
    for (Datenmodul neues : neue) {
        const QString name = neues.name();
        const auto vorhanden = ziel.bestand.verzeichnis.find(name);
        if (vorhanden == ziel.bestand.verzeichnis.end()) {
            fuegeAn(ziel, neues);
        } else if (gleich(*vorhanden, neues)) {
            ziel.gleich << name;
        } else if (wahl.fuer(name) == Namensgleich::Ersetzen) {
            *vorhanden = neues;
            ziel.ersetzt << name;
        } else if (wahl.fuer(name) == Namensgleich::NeuerName) {
            neues.setName(freierName(name, ziel.bestand.verzeichnis, kommende));
            fuegeAn(ziel, neues);
            ziel.umbenannt << neues.name();
        } else {
            ziel.uebersprungen << name;
        }
    }
    return ziel;
}

QStringList vergebeneNamen(const Lebensmittelverzeichnis &eigene, const QList<Datenmodul> &neue)
{
    QStringList namen;
    for (const Datenmodul &eines : neue) {
        const auto vorhanden = eigene.constFind(eines.name());
        if (vorhanden != eigene.constEnd() && !gleich(*vorhanden, eines)) {
            namen << eines.name();
        }
    }
    return namen;
}
