// Foods of the user's own: the save box, in which the values on display become one.

#include "AppController.h"

void AppController::SichernFensterAuf()
{
    const bool oeffnen = BoxAufZu == 0;
    sichernBox->setVisible(oeffnen);
    sichernaufzu->setChecked(oeffnen);
    if (oeffnen) {
        if (welcheTabelleAktiv != 0) {
            loeschenknopf->setEnabled(welcheTabelleAktiv == 2);
        }
        // What is 0 is hidden while one only looks; who saves wants to see every value.
        for (std::size_t i = 0; i < m_wertfelder.size(); ++i) {
            m_wertfelder[i]->show();
            m_wertbeschriftungen[i]->show();
        }
        joulefeld->show();
        joulefeldeinaus->show();
    }
    BoxAufZu = oeffnen ? 1 : 0;
}
