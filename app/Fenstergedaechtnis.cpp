#include "Fenstergedaechtnis.h"

#include "AppController.h"
#include "Einstellungen.h"

#include <QScreen>

#include <algorithm>

namespace {

const QString teilung = QStringLiteral("Hauptfenster/rechteSeite"); // its width
const QString profilsuche = QStringLiteral("Hauptfenster/Profilsuche");
const QString ansicht = QStringLiteral("Hauptfenster/Ansicht");

constexpr int schmalsteSpalte = 30;

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
    stelleWiederHer();
    beachteAenderungen();
}

/// The screen may have become smaller since, and the file may hold anything: the halves keep their
/// smallest sizes by themselves, and no column takes more than half of the screen.
void Fenstergedaechtnis::stelleWiederHer()
{
    AppController &c = m_controller;
    const int schirmbreite = c.Hauptfenster->screen()->availableGeometry().width();
    const int rechts = m_einstellungen.value(teilung).toInt();
    if (rechts > 0) {
        const int ganz = c.Hauptfenster->width();
        c.teiler->setSizes({std::max(1, ganz - rechts), std::min(rechts, ganz)});
    }
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
}
