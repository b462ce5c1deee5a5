// What the main window does when the language changes while it is open.

#include "AppController.h"

#include "Zeichenkettentabelle.h"

const QString AppController::hinweisSprache = QStringLiteral("sprache");

void AppController::folgeSprache()
{
    const QStringList bisher = m_uebersetzt;
    for (qsizetype i = 0; i < Array.size(); ++i) {
        m_uebersetzt[i] = localizedString(Array[i]);
    }
    const auto bisherigerName = [this, &bisher](const QString &schluessel) {
        return bisher.value(Array.indexOf(schluessel), schluessel);
    };
    // A search keeps the names as they were shown. A key is translated wherever it is shown.
    for (qsizetype i = 0; i < suchArray.size() && i < suchArray2.size(); ++i) {
        if (suchArray[i] == bisherigerName(suchArray2[i])) {
            suchArray[i] = localizedString(suchArray2[i]);
        }
    }
    if (!feldA->isEditable() && feldA->stringValue() == bisherigerName(unuebersetztername)) {
        zeigeName(localizedString(unuebersetztername));
    }
    toolbar->beschrifteNeu();
    // A toolbar gives its own name to the entry that shows it.
    toolbar->toggleViewAction()->setText(localizedString(QStringLiteral("Sy&mbolleiste zeigen")));
    veralteWertungsgruende();
    zeigeTrefferleiste();
    Tabelle->viewport()->update();
    hinweise->zeige(
        {.kennung = hinweisSprache,
         .text = localizedString(QStringLiteral(
             "Die Lebensmittel stehen bis zum nächsten Start in der bisherigen Reihenfolge."))});
}
