#include "Fenstergedaechtnis.h"

#include "AppController.h"
#include "Einstellungen.h"
#include "Platzgedaechtnis.h"

#include <QScreen>

#include <algorithm>

namespace {

const QString teilung = QStringLiteral("Hauptfenster/rechteSeite"); // its width
const QString profilsuche = QStringLiteral("Hauptfenster/Profilsuche");
const QString ansicht = QStringLiteral("Hauptfenster/Ansicht");
const QString auswertung = QStringLiteral("Planfenster/untereSeite"); // its height
const QString planzeile = QStringLiteral("Planfenster/Zeilenhoehe");

constexpr int schmalsteSpalte = 30;

void teile(Teiler &teiler, int ganz, int zweiter)
{
    if (zweiter > 0) {
        teiler.teileWieder(ganz, zweiter);
    }
}

QString spaltenschluessel(const AppController &controller, int spalte)
{
    return QStringLiteral("Hauptfenster/Spalte_") + controller.Tabelle->modell()->kennung(spalte);
}

} // namespace

Fenstergedaechtnis::Fenstergedaechtnis(AppController &controller, Einstellungen &einstellungen)
    : m_controller(controller)
    , m_einstellungen(einstellungen)
{
}

void Fenstergedaechtnis::beginne()
{
    using enum Platzgedaechtnis::Umfang;
    auto *haupt = new Platzgedaechtnis(*m_controller.Hauptfenster, m_einstellungen,
                                       QStringLiteral("Hauptfenster"), Platz, this);
    auto *blatt = new Platzgedaechtnis(*m_controller.einfenster, m_einstellungen,
                                       QStringLiteral("Eingabefenster"), Groesse, this);
    haupt->stelleWiederHer();
    blatt->stelleWiederHer();
    stelleWiederHer();
    beachteAenderungen();
}

/// The screen may have become smaller since, and the file may hold anything: the halves keep their
/// smallest sizes by themselves, and no column takes more than half of the screen.
void Fenstergedaechtnis::stelleWiederHer()
{
    AppController &c = m_controller;
    const int schirmbreite = c.Hauptfenster->screen()->availableGeometry().width();
    teile(*c.teiler, c.Hauptfenster->width(), m_einstellungen.value(teilung).toInt());
    for (int spalte = 0; spalte < c.Tabelle->modell()->columnCount(); ++spalte) {
        const int breite = m_einstellungen.value(spaltenschluessel(c, spalte)).toInt();
        if (breite > 0) {
            const int breiteste = std::max(schmalsteSpalte, schirmbreite / 2);
            c.Tabelle->setColumnWidth(spalte, std::clamp(breite, schmalsteSpalte, breiteste));
        }
    }
    c.profilaufzu->setChecked(m_einstellungen.value(profilsuche, false).toBool());
    c.zeigeAnsicht(m_einstellungen.value(ansicht).toString());
}

void Fenstergedaechtnis::beachteAenderungen()
{
    AppController &c = m_controller;
    connect(c.teiler, &QSplitter::splitterMoved, this,
            [this, &c] { m_einstellungen.setValue(teilung, c.teiler->sizes().last()); });
    connect(c.Tabelle, &Tabellenansicht::spalteGezogen, this, [this, &c](int spalte, int breite) {
        m_einstellungen.setValue(spaltenschluessel(c, spalte), breite);
    });
    connect(c.Tabelle, &Tabellenansicht::breitenVergessen, this, [this, &c] {
        for (int spalte = 0; spalte < c.Tabelle->modell()->columnCount(); ++spalte) {
            m_einstellungen.remove(spaltenschluessel(c, spalte));
        }
    });
    connect(c.profilaufzu, &QAbstractButton::toggled, this,
            [this](bool offen) { m_einstellungen.setValue(profilsuche, offen); });
    connect(c.DatenAnsicht, &QTabWidget::currentChanged, this, [this, &c] {
        m_einstellungen.setValue(ansicht, c.DatenAnsicht->currentWidget()->property("kennung"));
    });
    connect(&c, &AppController::planBereit, this, &Fenstergedaechtnis::bereitePlan);
}

/// The plan's window is made when it is first asked for.
void Fenstergedaechtnis::bereitePlan()
{
    Planmodul &plan = *m_controller.planmodul;
    QWidget &fenster = *plan.window();
    auto *platz = new Platzgedaechtnis(fenster, m_einstellungen, QStringLiteral("Planfenster"),
                                       Platzgedaechtnis::Umfang::Platz, this);
    platz->stelleWiederHer();
    teile(*plan.teiler, fenster.height(), m_einstellungen.value(auswertung).toInt());
    const int hoehe = m_einstellungen.value(planzeile).toInt();
    if (hoehe >= plan.tabellengroesse->minimumValue() &&
        hoehe <= plan.tabellengroesse->maximumValue()) {
        plan.tabellengroesse->setIntValue(hoehe);
        plan.PlanTabelle->setRowHeight(hoehe);
    }
    connect(plan.teiler, &QSplitter::splitterMoved, this,
            [this, &plan] { m_einstellungen.setValue(auswertung, plan.teiler->sizes().last()); });
    connect(plan.tabellengroesse, &Schieber::betaetigt, this,
            [this, &plan] { m_einstellungen.setValue(planzeile, plan.PlanTabelle->rowHeight()); });
}
