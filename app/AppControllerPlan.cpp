// The meal plan: opening it beside the main window, and handing the food on display to it.

#include "AppController.h"

#include "Einstellungen.h"
#include "Fensterplatz.h"

#include <QScreen>

Planmodul &AppController::holePlan()
{
    if (planmodul == nullptr) {
        planmodul = new Planmodul({.eingebauteTabelle = m_tueren.eingebauteTabelle,
                                   .datenordner = m_tueren.datenordner,
                                   .melde = m_tueren.melde,
                                   .drucke = m_tueren.drucke,
                                   .alsPdf = m_tueren.alsPdf,
                                   .dateien = m_tueren.dateien,
                                   .einstellungen = m_tueren.einstellungen});
        connect(planmodul, &Planmodul::hilfeGewuenscht, this,
                [this] { Q_EMIT hilfeGewuenscht(planmodul->window()); });
        planmodul->window();
        Q_EMIT planBereit();
    }
    return *planmodul;
}

void AppController::Planmoduloeffnen()
{
    if (!holePlan().window()->testAttribute(Qt::WA_Moved)) { // it was never shown
        stellePlanDaneben();
    }
    planmodul->showWindow();
}

/// A name that stands in several lists is sent once for each of them.
void AppController::toolbarlebensmittelweitergabe()
{
    Planmoduloeffnen();
    if (unuebersetztername.isNull()) {
        return;
    }
    for (const QStringList *liste : {&Array, &KundenArray, &suchArray}) {
        for (qsizetype i = liste->count(unuebersetztername); i > 0; --i) {
            planmodul->nameimportvontoolbar(unuebersetztername);
        }
    }
}

/// Foods are dragged from window to window.
void AppController::stellePlanDaneben()
{
    QWidget &plan = *planmodul->window();
    const QRect tabelle(Tabelle->mapToGlobal(QPoint(0, 0)), Tabelle->size());
    const QRect platz = Fensterplatz::planplatz({
        .schirm = Hauptfenster->screen()->availableGeometry(),
        .haupt = Hauptfenster->frameGeometry(),
        .tabelle = tabelle,
        .wunsch = plan.size(),
        .mindestens = plan.minimumSizeHint(),
    });
    plan.setGeometry(platz);
}

/// The press that a drag begins with brings this window to the front. On a small screen the plan
/// lies behind it then, and what is dragged could not be dropped there.
void AppController::holePlanNachVorn()
{
    if (planmodul != nullptr && planmodul->window()->isVisible()) {
        planmodul->window()->raise();
    }
}
