#include "Dateigrund.h"

#include "Einzeilig.h"
#include "Zeichenkettentabelle.h"

QString dateigrund(const QString &path, const Archivdatei::Inhalt &inhalt)
{
    const QString name = einzeilig(path);
    switch (inhalt.zustand) {
    case Archivdatei::Zustand::Fehlt:
        return localizedString(QStringLiteral("Die Datei „%1“ gibt es nicht.")).arg(name);
    case Archivdatei::Zustand::Unlesbar:
        return localizedString(QStringLiteral("Die Datei „%1“ lässt sich nicht lesen (%2)."))
            .arg(name, einzeilig(inhalt.grund));
    case Archivdatei::Zustand::Beschaedigt:
        return localizedString(QStringLiteral("Die Datei „%1“ ist beschädigt oder keine von "
                                              "Mahlberg (Byte %2: %3)."))
            .arg(name, QString::number(inhalt.archiv.position), inhalt.archiv.grund);
    case Archivdatei::Zustand::Gelesen:
        break;
    }
    return {};
}
