// What is on display, on paper.

#include "AppController.h"

#include "Papierbild.h"
#include "Rollbereich.h"
#include "Zeichenkettentabelle.h"

/// Prints the view in front as it looks, with the name of the food above it. The calculator's views
/// are about no food.
void AppController::drucken()
{
    if (DatenAnsicht->isHidden()) {
        m_tueren.melde(Hauptfenster,
                       {localizedString(QStringLiteral("Es wird nichts angezeigt, das gedruckt "
                                                       "werden könnte.")),
                        {},
                        {localizedString(QStringLiteral("ok"))}});
        return;
    }
    QWidget *ansicht = DatenAnsicht->currentWidget();
    // Of a view that rolls only a part may be seen; it is printed whole.
    const auto *rollbereich = ansicht->findChild<Rollbereich *>();
    QWidget &seite = rollbereich != nullptr ? *rollbereich->widget() : *ansicht;
    QStringList ueberschriften = {DatenAnsicht->tabText(DatenAnsicht->currentIndex())};
    if (ansicht != tabVier && ansicht != tabFuenf) {
        ueberschriften.prepend(feldA->stringValue());
    }
    if (m_tueren.drucke) {
        m_tueren.drucke(Hauptfenster, bildauftrag(ueberschriften, seite));
    }
}
