// The household measures of a food that stands in the table of a day.

#include "Tagefenster.h"

void Tagefenster::zeigeMasse()
{
    ansicht->beende();
    const Mahlzeitzeile *zeile = ansicht->tagesmodell().zeile(ansicht->currentIndex().row());
    if (m_tueren.massfenster && zeile != nullptr && !zeile->schluessel.isNull()) {
        m_tueren.massfenster(this, QString(zeile->schluessel));
    }
}
