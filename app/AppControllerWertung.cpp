// Why the food on display is rated as it is: told where the mouse or the keyboard rests on a
// rating.

#include "AppController.h"

#include "Zahlenform.h"
#include "Zeichenkettentabelle.h"

void AppController::verbindeWertungen()
{
    for (const auto &zeile : wertungen) {
        const Wertung wertung = zeile.wertung;
        m_wertungsauskuenfte[stelle(wertung)] = new Feldauskunft(
            m_wertungsfelder[stelle(wertung)], [this, wertung] { return wertungsgrund(wertung); });
    }
    connect(einfenster, &QDialog::finished, this, &AppController::veralteWertungsgruende);
}

/// What is on display comes from this record from now on.
void AppController::zeigeAnderes(const Datenmodul *lebensmittel)
{
    m_gezeigtes = lebensmittel;
    veralteWertungsgruende();
}

void AppController::veralteWertungsgruende()
{
    for (Feldauskunft *auskunft : m_wertungsauskuenfte) {
        auskunft->veralte();
    }
}

/// The built-in records never move, so no own one can have come to lie where one of them is.
bool AppController::zeigtEingebautes() const
{
    const auto eingebaut = Dictionary.constFind(unuebersetztername);
    return eingebaut != Dictionary.constEnd() && &*eingebaut == m_gezeigtes;
}

/// Nothing while a food is being typed in: what is on display is then about to become another one.
QStringList AppController::wertungsgrund(Wertung wertung) const
{
    const QString urteil = m_wertungsfelder[stelle(wertung)]->stringValue();
    if (m_gezeigtes == nullptr || urteil.isEmpty() || einfenster->isVisible() || BoxAufZu != 0) {
        return {};
    }
    if (zeigtEingebautes()) {
        const bool englisch = QLocale().language() == QLocale::English;
        return m_auskunft.erklaerung(unuebersetztername, wertung, urteil,
                                     englisch ? Regelsprache::Englisch : Regelsprache::Deutsch,
                                     zahlenform());
    }
    const QString bezeichnung = QString::fromUtf8(beschreibung(wertung).bezeichnung);
    return {localizedString(QStringLiteral("%1: „%2“")).arg(localizedString(bezeichnung), urteil),
            localizedString(QStringLiteral("Diese Wertung haben Sie selbst vergeben."))};
}
