// Foods into the plan without leaving the main window: by a double click, a key or the table's
// menu, and with the amount that is on display.

#include "AppController.h"

#include "Planzahlen.h"
#include "Zeichenkettentabelle.h"

#include <QDoubleSpinBox>

#include <algorithm>

const QString AppController::hinweisZugabe = QStringLiteral("zugabe");

namespace {

/// A notice that needs no answer goes after so many milliseconds.
constexpr int lesezeit = 8000;

} // namespace

void AppController::verbindeZugabe()
{
    connect(Tabelle, &Tabellenansicht::doppeltGeklickt, this, [this](const QModelIndex &zelle) {
        const QString schluessel = schluesselVon(zelle);
        if (!hindernis(schluessel).isEmpty() || !zugabeziel || !zugabeziel(schluessel)) {
            gibHinein(schluessel);
        }
    });
    connect(Tabelle, &Tabellenansicht::menueGewuenscht, this, &AppController::zeigeTabellenmenue);
}

/// The key of the food of a cell, as a drag of the cell carries it; null where there is none.
QString AppController::schluesselVon(const QModelIndex &zelle) const
{
    return Tabelle->modell()->ziehtext(zelle.column(), zelle.row());
}

/// Puts the food into the plan that the user has in mind. An amount that is still being typed
/// counts.
void AppController::gibInPlan()
{
    for (Schieber *regler : m_mengenregler) {
        if (regler->eingabe()->hasFocus()) {
            regler->eingabe()->interpretText();
        }
    }
    gibHinein(gemeinterSchluessel());
}

/// Takes the keyboard to the amount of the view on display, or of the first view where that has
/// none. A result's amount can be set in the column of its list alone, so it is chosen there first.
void AppController::gehZurMenge()
{
    if (!lebensmittelmenge->isEnabled() && m_treffer >= 0) {
        zeigeTrefferInListe();
    }
    const auto sichtbar = [](const Schieber *regler) {
        return regler->isVisible();
    };
    auto regler = std::find_if(m_mengenregler.begin(), m_mengenregler.end(), sichtbar);
    if (regler == m_mengenregler.end()) {
        zeigeAnsicht(ansichten[0]);
        regler = m_mengenregler.begin();
    }
    (*regler)->eingabe()->setFocus(Qt::ShortcutFocusReason);
    (*regler)->eingabe()->selectAll();
}

/// In the table it is the food where the keyboard is, a result that is not chosen yet included, and
/// elsewhere the one on display. An own food that was called up by its row is meant itself.
QString AppController::gemeinterSchluessel() const
{
    const bool inTabelle = Tabelle->hasFocus() || DatenAnsicht->isHidden();
    const QModelIndex zelle = Tabelle->currentIndex();
    const bool eigenesDerZeile =
        zelle.row() == Tabelle->selectedRow() && !zeigtEingebautes() &&
        Tabelle->modell()->kennung(zelle.column()) == QLatin1String("name") &&
        KundenArray.value(zelle.row()) == unuebersetztername;
    return inTabelle && !eigenesDerZeile ? schluesselVon(zelle) : unuebersetztername;
}

/// Why this food can't go into the plan; empty when it can.
QString AppController::hindernis(const QString &schluessel) const
{
    if (schluessel.isNull()) {
        return localizedString(
            QStringLiteral("Wählen Sie zuerst ein Lebensmittel in der Tabelle aus."));
    }
    const auto eingebautes = Dictionary.constFind(schluessel);
    const bool eingebaut = eingebautes != Dictionary.constEnd();
    const bool platzhalter = schluessel == QLatin1String("-");
    if (eingebaut ? !istLeer(*eingebautes) : KundenDictionary.contains(schluessel)) {
        return {};
    }
    const QString satz =
        eingebaut || platzhalter
            ? localizedString(QStringLiteral(
                  "Die Zeile „%1“ steht für kein Lebensmittel und kommt nicht in den Plan."))
            : localizedString(
                  QStringLiteral("„%1“ steht in keiner Liste mehr und kommt nicht in den Plan."));
    return satz.arg(kurzerName(localizedString(schluessel)));
}

void AppController::gibHinein(const QString &schluessel)
{
    const QString grund = hindernis(schluessel);
    if (!grund.isEmpty()) {
        hinweise->zeige({.kennung = hinweisZugabe, .text = grund, .dauer = lesezeit});
        return;
    }
    const Planliste vorher = holePlan();
    planmodul->gibHinein(schluessel, static_cast<float>(lebensmittelmenge->intValue()));
    meldeZugabe(schluessel, vorher);
}

/// Where nothing was changed there is nothing to take back.
void AppController::meldeZugabe(const QString &schluessel, const Planliste &vorher)
{
    const std::optional<qsizetype> stand = vorher.zeileVon(schluessel);
    const bool gleich =
        vorher.PlanArray == planmodul->PlanArray && vorher.mengenarray == planmodul->mengenarray;
    const QString name = kurzerName(localizedString(schluessel));
    const QString menge = mengentext(planmodul->mengenarray.constLast());
    const QString text =
        gleich ? localizedString(QStringLiteral("„%1“ steht schon mit %2 g am Ende des Plans."))
                     .arg(name, menge)
        : stand ? localizedString(QStringLiteral("„%1“ stand schon im Plan: Es steht jetzt am Ende "
                                                 "und hat %2 g (vorher: %3 g)."))
                      .arg(name, menge, mengentext(vorher.mengenarray[*stand]))
                : localizedString(QStringLiteral("„%1“ ist mit %2 g im Plan.")).arg(name, menge);
    Hinweis hinweis = mitRueckweg(text);
    hinweis.kennung = hinweisZugabe;
    hinweis.dauer = lesezeit;
    if (gleich) {
        hinweis.knopf.clear();
    }
    hinweise->zeige(hinweis);
}
