#include "Eigenuebernahme.h"

#include "AppController.h"

void uebernimmInEigene(AppController &controller, const Uebernahme &uebernahme)
{
    constexpr int eigene = 2;
    const QString gezeigt = controller.feldA->stringValue();
    controller.uebernimmEigene(uebernahme.bestand.verzeichnis, uebernahme.bestand.namen);
    Q_EMIT controller.eigeneGeaendert({Aenderungsart::Eingelesen});
    if (uebernahme.ersetzt.contains(gezeigt) && controller.welcheTabelleAktiv == eigene) {
        controller.zeigeEigenes(gezeigt);
    }
}
