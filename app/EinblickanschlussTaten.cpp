// What the user of the insight wants done: the way to a row or a food, and suggestions taken.

#include "Einblickanschluss.h"

#include "AppController.h"
#include "Einblickworte.h"
#include "Planvorschlag.h"
#include "Standaufbau.h"
#include "Tageanschluss.h"
#include "Zeichenkettentabelle.h"

namespace {

const QString hinweisTat = QStringLiteral("einblicktat");
constexpr int lesezeit = 8000; // ms that a notice stays which needs no answer

} // namespace

void Einblickanschluss::geheZuZeile(Gegenstand gegenstand, int ort)
{
    if (gegenstand == Gegenstand::Plan) {
        Planmodul &plan = m_hauptfenster.holePlan();
        plan.showWindow();
        plan.PlanTabelle->selectRow(ort);
        plan.PlanTabelle->scrollRowToVisible(ort);
        plan.PlanTabelle->setFocus();
    } else if (gegenstand != Gegenstand::Lebensmittel) {
        m_tage.fenster().zeigeZeile(Standaufbau::stelleVon(ort));
    }
}

void Einblickanschluss::zeigeLebensmittel(const QString &schluessel)
{
    QMainWindow *haupt = m_hauptfenster.Hauptfenster;
    haupt->setWindowState(haupt->windowState() & ~Qt::WindowMinimized);
    haupt->raise();
    haupt->activateWindow();
    if (m_hauptfenster.Dictionary.contains(schluessel)) {
        m_hauptfenster.Tabelle->waehle(static_cast<int>(m_hauptfenster.Array.indexOf(schluessel)),
                                       QStringLiteral("name"));
    } else {
        m_hauptfenster.zeigeEigenes(schluessel);
    }
}

void Einblickanschluss::sage(const QString &text, const std::function<void()> &zurueck)
{
    m_fenster->hinweise->zeige(
        {.kennung = hinweisTat,
         .text = text,
         .knopf = zurueck ? localizedString(QStringLiteral("Rückgängig")) : QString(),
         .aktion = zurueck,
         .dauer = lesezeit});
}

/// The way back that a notice offers is that of the last change, so it goes with the next one.
void Einblickanschluss::vergissRueckweg()
{
    if (m_fenster != nullptr) {
        m_fenster->hinweise->nimmZurueck(hinweisTat);
    }
}

/// What is wanted is meant for the rows that the window shows: the second of two quick keys finds
/// others in their places.
void Einblickanschluss::aendere(Gegenstand gegenstand, const Speisenaenderung &aenderung)
{
    const QString name = kurzerName(localizedString(aenderung.schluessel));
    if (gegenstand == Gegenstand::Lebensmittel) {
        zeigeLebensmittel(aenderung.schluessel);
        return;
    }
    if (m_veraltet) {
        return;
    }
    if (gegenstand == Gegenstand::Plan) {
        Planmodul &plan = m_hauptfenster.holePlan();
        plan.window();
        Planliste liste = plan;
        const bool gelungen = nimmInPlan(liste, aenderung);
        if (gelungen) {
            plan.uebernimmPlan(liste, {Aenderungsart::Hinein, aenderung.schluessel});
        }
        sage((gelungen ? localizedString(QStringLiteral("„%1“ steht jetzt im Plan."))
                       : localizedString(QStringLiteral("„%1“ kam nicht in den Plan.")))
                 .arg(name),
             gelungen ? [&plan] { Q_EMIT plan.zuruecknehmenGewuenscht(); }
                      : std::function<void()>());
        return;
    }
    Tagefenster &tage = m_tage.fenster();
    std::optional<Aufzeichnungsaenderung::Stelle> statt;
    if (aenderung.ort >= 0) {
        statt = Standaufbau::stelleVon(aenderung.ort);
    }
    const bool gelungen =
        tage.nimmVorschlag(aenderung.schluessel, aenderung.gramm, aenderung.angabe, statt);
    sage((gelungen ? localizedString(QStringLiteral("„%1“ steht jetzt bei den Tagen: %2."))
                         .arg(name, aenderung.angabe.isEmpty()
                                        ? Einblickworte::gramm(aenderung.gramm)
                                        : aenderung.angabe)
                   : localizedString(QStringLiteral("„%1“ kam nicht zu den Tagen: Die Aufzeichnung "
                                                    "lässt sich nicht ändern."))
                         .arg(name)),
         gelungen ? [&tage] { tage.buch.schritte.undo(); } : std::function<void()>());
}
