// The meal plan: opening it beside the main window, and handing the food on display to it.

#include "AppController.h"

#include <QScreen>

void AppController::Planmoduloeffnen()
{
    if (planmodul == nullptr) {
        planmodul = new Planmodul({.eingebauteTabelle = m_tueren.eingebauteTabelle,
                                   .datenordner = m_tueren.datenordner,
                                   .melde = m_tueren.melde,
                                   .drucke = m_tueren.drucke,
                                   .dateien = m_tueren.dateien});
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

/// Foods are dragged from window to window, so the plan covers as little of the main window as the
/// screen allows: it stands beside it where there is room, else over its lower corner.
void AppController::stellePlanDaneben()
{
    constexpr int titelleiste = 32; // of the desktop, about
    QWidget &plan = *planmodul->window();
    const QRect haupt = Hauptfenster->frameGeometry();
    const QRect schirm = Hauptfenster->screen()->availableGeometry();
    plan.resize(plan.size().boundedTo(schirm.size() - QSize(0, titelleiste)));
    const int rechts = qMin(haupt.right() + 1, schirm.right() + 1 - plan.width());
    const int links = qMax(schirm.left(), haupt.left() - plan.width());
    const bool rechtsMehrPlatz = schirm.right() - haupt.right() >= haupt.left() - schirm.left();
    const int x = rechtsMehrPlatz ? rechts : links;
    const bool daneben = x > haupt.right() || x + plan.width() <= haupt.left();
    const int unten = schirm.bottom() + 1 - plan.height() - titelleiste;
    plan.move(x, daneben ? qMin(haupt.top(), unten) : unten);
}
