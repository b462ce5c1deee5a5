// What the main window tells without asking: what was saved, and what is not on display.

#include "AppController.h"

#include "Zeichenkettentabelle.h"

const QString AppController::hinweisGesichert = QStringLiteral("gesichert");

namespace {

QString wasGeschah(const QString &name, bool gesichert, bool neu)
{
    const QString was =
        !gesichert
            ? localizedString(QStringLiteral("„%1“ steht in der Liste, ist aber nicht gesichert."))
        : neu ? localizedString(QStringLiteral("„%1“ ist gesichert."))
              : localizedString(QStringLiteral("„%1“ ist geändert."));
    return was.arg(kurzerName(name));
}

} // namespace

/// What was typed into the sheet stands in the fields at once. Circle, bars and colours are those
/// of the food before, and a value that was hidden with it stays hidden, until a food is chosen.
void AppController::meldeUebernommenes(const QString &name, bool gesichert, bool neu)
{
    Hinweis hinweis = {.kennung = hinweisGesichert,
                       .text =
                           wasGeschah(name, gesichert, neu) + u' ' +
                           localizedString(QStringLiteral(
                               "Kreis, Balken und Farben zeigen noch das Lebensmittel davor."))};
    if (KundenArray.indexOf(name) < Tabelle->modell()->rowCount()) {
        hinweis.knopf = localizedString(QStringLiteral("Zeigen"));
        hinweis.aktion = [this, name] {
            zeigeEigenes(name);
        };
    }
    hinweise->zeige(hinweis);
}

/// A notice about a change of the own foods, with the way back.
Hinweis AppController::mitRueckweg(const QString &text)
{
    return {.kennung = hinweisGesichert,
            .text = text,
            .knopf = localizedString(QStringLiteral("Zurücknehmen")),
            .aktion = [this] {
                Q_EMIT zuruecknehmenGewuenscht();
            }};
}

/// What was saved from the display stands there already. A file that could not be written is told
/// of by itself, with what can be done about it.
void AppController::meldeGesichertes(const QString &name, bool gesichert, bool neu)
{
    nimmGesichertesZurueck();
    if (gesichert) {
        hinweise->zeige(mitRueckweg(wasGeschah(name, gesichert, neu)));
    }
}

void AppController::meldeGeloeschtes(const QString &name, bool gesichert)
{
    nimmGesichertesZurueck();
    if (gesichert) {
        hinweise->zeige(mitRueckweg(
            localizedString(QStringLiteral("„%1“ ist gelöscht.")).arg(kurzerName(name))));
    }
}

void AppController::nimmGesichertesZurueck()
{
    hinweise->nimmZurueck(hinweisGesichert);
}

/// Chooses an own food as a click on its cell does. Some rows stand for the food of another row,
/// and then it is shown directly.
void AppController::zeigeEigenes(const QString &name)
{
    const auto zeile = static_cast<int>(KundenArray.indexOf(name));
    Tabelle->waehle(zeile, QStringLiteral("eigen"));
    if (zeile >= 0 && unuebersetztername != name && Tabelle->selectedRow() == zeile) {
        LadeneigeneLM();
    }
}
