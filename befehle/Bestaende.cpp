#include "Bestaende.h"

#include "Archivdatei.h"
#include "Dateigrund.h"

#include <QTranslator>

Bestaende ladeBestaende(const Befehlstueren &tueren, const Datenordner &datenordner)
{
    Bestaende bestaende;
    bestaende.eingebaute = Archivdatei::lesen(tueren.eingebauteTabelle).archiv.verzeichnis;
    const QString eigenePath = datenordner.datei(QStringLiteral("customdaten"));
    const Archivdatei::Inhalt eigene = Archivdatei::lesen(eigenePath);
    bestaende.eigene = eigene.archiv.verzeichnis;
    if (eigene.zustand != Archivdatei::Zustand::Fehlt) {
        bestaende.eigeneUngelesen = dateigrund(eigenePath, eigene);
    }
    // Asked here and not spoken: the names count in every language.
    QTranslator englisch;
    if (englisch.load(tueren.englischeNamen)) {
        for (auto eines = bestaende.eingebaute.keyBegin(); eines != bestaende.eingebaute.keyEnd();
             ++eines) {
            const QString name = englisch.translate("Mahlberg", eines->toUtf8().constData());
            if (!name.isEmpty()) {
                bestaende.englisch.insert(*eines, name);
            }
        }
    }
    return bestaende;
}
