#include "Oberflaeche.h"

#include "Briefkopfwahl.h"
#include "Dateihueter.h"
#include "Einstellungen.h"
#include "Einstellungsfenster.h"
#include "Einstellungsgruppen.h"
#include "Rollbereich.h"
#include "Textwechsel.h"
#include "Zeichenkettentabelle.h"

#include <QActionGroup>
#include <QApplication>
#include <QLocale>
#include <QTabBar>

namespace {

/// Lets the Tab key go through a page behind this widget. Pages that were made for themselves would
/// else come last, behind what stands below them.
void reiheEin(QWidget *davor, const QWidget &seite)
{
    QWidgetList halte;
    for (QWidget *feld = davor->nextInFocusChain(); feld != davor;
         feld = feld->nextInFocusChain()) {
        if (seite.isAncestorOf(feld) && (feld->focusPolicy() & Qt::TabFocus) != 0 &&
            feld->focusProxy() == nullptr) {
            halte << feld;
        }
    }
    for (QWidget *halt : std::as_const(halte)) {
        QWidget::setTabOrder(davor, halt);
        davor = halt;
    }
}

Anthrotueren anthrotueren(const Tueren &tueren)
{
    return {
        .einstellungen = tueren.einstellungen,
        .protokolliere = tueren.protokolliere,
        .neuerPlan =
            [tueren] {
                return std::make_unique<Planmodul>(Plantueren{
                    .eingebauteTabelle = tueren.eingebauteTabelle,
                    .datenordner = tueren.datenordner,
                    .melde = tueren.melde,
                    .drucke = tueren.drucke,
                    .alsPdf = tueren.alsPdf,
                    .dateien = tueren.dateien,
                    .einstellungen = tueren.einstellungen,
                });
            },
    };
}

Tueren mitDateien(Tueren tueren, const std::shared_ptr<Dateihueter> &dateien)
{
    tueren.dateien = dateien;
    return tueren;
}

} // namespace

Oberflaeche::Oberflaeche(const Tueren &tueren, const Klientenanschluss::Kopfzeile &kopfzeile)
    : dateien(tueren.dateien != nullptr ? tueren.dateien : std::make_shared<Dateihueter>())
    , hauptfenster(Klientenanschluss::mitKopfzeile(mitDateien(tueren, dateien), kopfzeile))
    , rechner(anthrotueren(Klientenanschluss::mitKopfzeile(mitDateien(tueren, dateien), kopfzeile)))
    , ansage(hauptfenster, tueren.datenordner, dateien)
    , empfang(hauptfenster, tueren.datenordner, dateien, tueren.melde, tueren.waehleDatei)
    , gedaechtnis(hauptfenster, *tueren.einstellungen)
    , verlauf(hauptfenster)
    , austausch(hauptfenster, mitDateien(tueren, dateien))
    , klienten(hauptfenster, rechner, tueren, kopfzeile)
    , tage(hauptfenster, rechner, klienten, tueren)
    , einblick(hauptfenster, rechner, klienten, tage, tueren)
    , m_sprich(tueren.sprich)
    , m_einstellungen(*tueren.einstellungen)
    , m_datenordner(tueren.datenordner)
    , m_waehleDatei(tueren.waehleDatei)
{
    QObject::connect(&hauptfenster, &AppController::spracheGewaehlt, &hauptfenster,
                     [this](const QString &kuerzel) { sprich(kuerzel); });
    QObject::connect(&hauptfenster, &AppController::hilfeGewuenscht, &hilfe,
                     [this](const QWidget *fenster) { hilfe.zeige(*fenster); });
    QObject::connect(&klienten, &Klientenanschluss::hilfeGewuenscht, &hilfe,
                     [this](const QWidget *fenster) { hilfe.zeige(*fenster); });
    QObject::connect(&tage, &Tageanschluss::hilfeGewuenscht, &hilfe,
                     [this](const QWidget *fenster) { hilfe.zeige(*fenster); });
    QObject::connect(&verlauf, &Verlauf::gestellt, &einblick, &Einblickanschluss::folgeVerlauf);
    QObject::connect(&abwurf, &Dateiabwurf::abgeworfen, &empfang, &Dateiempfang::oeffneAdressen);
    QObject::connect(&hauptfenster, &AppController::einstellungenGewuenscht, &hauptfenster,
                     [this] { zeigeEinstellungen(); });
    ansage.beachte(*tueren.einstellungen);
    Rollbereich::fuelle(*hauptfenster.tabVier, rechner.koerperseite);
    Rollbereich::fuelle(*hauptfenster.tabFuenf, rechner.lebensweiseseite);
    QWidget *reiter = hauptfenster.DatenAnsicht->tabBar();
    reiheEin(reiter, *hauptfenster.tabVier);
    reiheEin(reiter, *hauptfenster.tabFuenf);
}

void Oberflaeche::awakeFromNib()
{
    hauptfenster.awakeFromNib();
    rechner.awakeFromNib();
    ansage.beginne();
    gedaechtnis.beginne();
    verlauf.beginne();
    klienten.beginne();
    tage.beginne();
    einblick.beginne();
}

void Oberflaeche::zeigeEinstellungen()
{
    QMainWindow *haupt = hauptfenster.Hauptfenster;
    if (auto *offen = haupt->findChild<Einstellungsfenster *>()) {
        offen->activateWindow();
        return;
    }
    const auto eintraege = [haupt](const char *name) -> QWidget * {
        return menuewahl(*haupt->findChild<QActionGroup *>(QLatin1String(name)));
    };
    auto *fenster = new Einstellungsfenster(haupt);
    fenster->nimmAuf(localizedString(QStringLiteral("Sprache")), eintraege("sprachen"));
    fenster->nimmAuf(localizedString(QStringLiteral("Erscheinungsbild")),
                     eintraege("erscheinungsbilder"));
    fenster->nimmAuf(localizedString(QStringLiteral("Ordner für PDF")),
                     new Pdfordnerwahl(m_einstellungen, m_waehleDatei));
    fenster->nimmAuf(localizedString(QStringLiteral("Briefkopf der Ausdrucke")),
                     new Briefkopfwahl({m_einstellungen, m_datenordner}, m_waehleDatei));
    fenster->nimmAuf(localizedString(QStringLiteral("Klienten")), klienten.einstellung());
    fenster->setAttribute(Qt::WA_DeleteOnClose);
    fenster->open();
}

void Oberflaeche::sprich(const QString &kuerzel)
{
    const bool englisch = kuerzel == QLatin1String("en");
    if (!m_sprich || englisch == (QLocale().language() == QLocale::English)) {
        return;
    }
    const QString name = hauptfenster.feldA->stringValue();
    const Textwechsel wechsel(englisch);
    m_sprich(kuerzel);
    for (QWidget *fenster : QApplication::topLevelWidgets()) {
        fenster->setLocale(QLocale());
        wechsel.beschrifte(*fenster);
    }
    hauptfenster.feldA->setStringValue(name); // a food's name is nobody's caption
    hauptfenster.folgeSprache();
    rechner.folgeSprache();
    folgeSprache(hauptfenster.planmodul);
    folgeSprache(rechner.plan);
    klienten.folgeSprache();
    tage.folgeSprache();
    einblick.folgeSprache();
    hilfe.folgeSprache();
}

/// The sentences below the plan's pictures are made of several, with figures in them.
void Oberflaeche::folgeSprache(Planmodul *plan)
{
    if (plan == nullptr || plan->PlanTabelle == nullptr) {
        return; // it has no window yet
    }
    plan->kreisworte->setText(plan->kreisansicht->beschreibung());
    plan->anthrouebergabegewicht(Planmodul::klient.gewicht);
    plan->PlanTabelle->viewport()->update();
}
