// What the main window tells without asking: what was saved, and what is not on display.

#include "AppController.h"

#include "Zeichenkettentabelle.h"

namespace {

const QString gesichert = QStringLiteral("gesichert");

} // namespace

/// What was typed into the sheet stands in the fields at once. Circle, bars and colours are those
/// of the food before, and a value that was hidden with it stays hidden, until a food is chosen.
void AppController::meldeGesichertesVomBlatt(const QString &name)
{
    Hinweis hinweis = {
        .kennung = gesichert,
        .text = localizedString(
                    QStringLiteral("„%1“ ist gesichert. Kreis, Balken und Farben zeigen noch "
                                   "das Lebensmittel davor."))
                    .arg(name)};
    if (KundenArray.indexOf(name) < Tabelle->modell()->rowCount()) {
        hinweis.knopf = localizedString(QStringLiteral("Zeigen"));
        hinweis.aktion = [this, name] {
            zeigeEigenes(name);
        };
    }
    hinweise->zeige(hinweis);
}

void AppController::nimmGesichertesZurueck()
{
    hinweise->nimmZurueck(gesichert);
}

/// Chooses an own food as a click on its cell does. Some rows stand for the food of another row,
/// and then it is shown directly.
void AppController::zeigeEigenes(const QString &name)
{
    const auto zeile = static_cast<int>(KundenArray.indexOf(name));
    Tabelle->waehle(zeile, QStringLiteral("eigen"));
    if (unuebersetztername != name && Tabelle->selectedRow() == zeile) {
        LadeneigeneLM();
    }
}
