#include "Rezeptanschluss.h"

#include "AppController.h"
#include "Einblickworte.h"
#include "Masspruefung.h"
#include "Namenswechsel.h"
#include "Tageanschluss.h"
#include "Zeichenkettentabelle.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QMenuBar>
#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace {

constexpr auto rezeptdatei = "MahlbergRezepte.json";

const QString hinweisRezept = QStringLiteral("rezept");
const QString hinweisAblage = QStringLiteral("rezeptablage");
const QString hinweisMasse = QStringLiteral("haushaltsmasse"); // as the days say it
constexpr int lesezeit = 8000; // ms that a notice stays which needs no answer

QString pfad(const Tueren &tueren)
{
    const QString eigene = tueren.datenordner.datei(QStringLiteral("customdaten"));
    return QFileInfo(eigene).dir().filePath(QLatin1String(rezeptdatei));
}

/// An own food that is called as a built-in one once was is meant by its name.
Namenswechsel zutatenwechsel(const AppController &hauptfenster)
{
    Namenswechsel wechsel =
        leseNamenswechsel(QStringLiteral(":/Umbenannt.csv"), hauptfenster.Dictionary);
    for (const QString &eigenes : hauptfenster.KundenArray) {
        wechsel.remove(eigenes);
    }
    return wechsel;
}

/// A portion of a dish, as one says it in both languages.
Mass portionsmass(double gramm)
{
    return {QStringLiteral("Portion"), QStringLiteral("Portionen"), QStringLiteral("portion"),
            QStringLiteral("portions"), gramm};
}

QAction *neuerEintrag(QMenu &menue, const QString &text)
{
    auto *aktion = new QAction(text, &menue);
    aktion->setObjectName(QStringLiteral("aktionRezept"));
    return aktion;
}

} // namespace

Rezeptanschluss::Rezeptanschluss(AppController &hauptfenster, Tageanschluss &tage, Tueren tueren,
                                 std::function<const Stoffwissen &()> wissen)
    : ablage(pfad(tueren), zutatenwechsel(hauptfenster))
    , m_hauptfenster(hauptfenster)
    , m_tage(tage)
    , m_tueren(std::move(tueren))
    , m_wissen(std::move(wissen))
{
}

void Rezeptanschluss::beginne()
{
    QMenu &menue = *m_hauptfenster.Hauptfenster->menuBar()->actions().constFirst()->menu();
    QAction *eintrag = neuerEintrag(menue, localizedString(QStringLiteral("Re&zept …")));
    connect(eintrag, &QAction::triggered, this, &Rezeptanschluss::zeigeRezept);
    m_hauptfenster.Hauptfenster->installEventFilter(this);
    const QList<QAction *> eintraege = menue.actions();
    menue.insertAction(*std::find_if(eintraege.begin(), eintraege.end() - 1,
                                     [](const QAction *einer) { return einer->isSeparator(); }),
                       eintrag);
    connect(&m_hauptfenster, &AppController::planBereit, this, &Rezeptanschluss::bereitePlan);
    if (m_hauptfenster.planmodul != nullptr) {
        bereitePlan();
    }
    connect(&m_tage, &Tageanschluss::fensterBereit, this, &Rezeptanschluss::bereiteTage);
    connect(&m_hauptfenster, &AppController::eigeneGeaendert, this, &Rezeptanschluss::zieheNach);
    connect(&m_hauptfenster, &AppController::eigeneGeaendert, this, &Rezeptanschluss::zeigeHeutige);
    connect(&ablage, &Rezeptablage::geaendert, this, &Rezeptanschluss::geaendert);
    connect(&ablage, &Rezeptablage::sicherungGewechselt, this, &Rezeptanschluss::sageZustand);
}

bool Rezeptanschluss::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Close && m_fenster != nullptr && !m_fenster->close()) {
        event->ignore();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

void Rezeptanschluss::bereitePlan()
{
    Planmodul &plan = *m_hauptfenster.planmodul;
    plan.window();
    QAction *eintrag = neuerEintrag(*plan.menueBearbeiten,
                                    localizedString(QStringLiteral("Re&zept aus dem Plan …")));
    connect(eintrag, &QAction::triggered, this, &Rezeptanschluss::ausDemPlan);
    plan.menueBearbeiten->addSeparator();
    plan.menueBearbeiten->addAction(eintrag);
}

void Rezeptanschluss::bereiteTage()
{
    constexpr int mahlzeitmenue = 2; // behind those of the record and of editing
    QMenu *menue = m_tage.fenster().menuBar()->actions().value(mahlzeitmenue)->menu();
    QAction *eintrag =
        neuerEintrag(*menue, localizedString(QStringLiteral("Re&zept aus dieser Mahlzeit …")));
    connect(eintrag, &QAction::triggered, this, &Rezeptanschluss::ausDerMahlzeit);
    menue->addSeparator();
    menue->addAction(eintrag);
}

Rezepte Rezeptanschluss::rezepte()
{
    if (!std::exchange(m_gefragt, true)) {
        sageZustand();
    }
    return ablage.rezepteFuer(m_hauptfenster.KundenDictionary);
}

void Rezeptanschluss::ausDemPlan()
{
    m_hauptfenster.planmodul->PlanTabelle->beendeEingabe();
    QList<Rezeptzutat> zutaten;
    QStringList fehlende;
    for (const Planmenge &eine : m_tage.planVomTisch()) {
        if (const Datenmodul *satz = m_tage.speise(eine.schluessel)) {
            zutaten << Rezeptzutat{eine.schluessel, static_cast<double>(eine.gramm), *satz};
        } else {
            fehlende << eine.schluessel;
        }
    }
    if (beginneRezept(zutaten, m_hauptfenster.planmodul->window())) {
        sageFehlende(fehlende);
    }
}

/// The meal with the cursor; what does not count there is no ingredient.
void Rezeptanschluss::ausDerMahlzeit()
{
    Tagefenster &tage = m_tage.fenster();
    tage.ansicht->beende();
    QList<Rezeptzutat> zutaten;
    QStringList fehlende;
    if (const std::optional<Aufzeichnung> eine = tage.buch.jetzige()) {
        const int mahlzeit = tage.ansicht->platz().value_or(Tagesmodell::Platz{}).mahlzeit;
        for (const Mahlzeitzeile &zeile :
             eine->tage[tage.buch.tag()].mahlzeiten.value(mahlzeit).zeilen) {
            if (zaehlt(zeile)) {
                zutaten << Rezeptzutat{zeile.schluessel,
                                       static_cast<double>(zeile.gramm.value_or(0)),
                                       zeile.eintrag.value_or(Datenmodul())};
            } else if (!zeile.oder) {
                fehlende << (zeile.text.isNull() ? zeile.schluessel : zeile.text);
            }
        }
    }
    if (beginneRezept(zutaten, &tage)) {
        sageFehlende(fehlende);
    }
}

/// A dish that lacks what stands there would have too little of everything.
void Rezeptanschluss::sageFehlende(const QStringList &namen)
{
    if (!namen.isEmpty()) {
        m_tueren.melde(m_fenster,
                       {.text = localizedString(QStringLiteral(
                            "Zeilen, deren Lebensmittel oder Menge unbekannt ist, kamen nicht ins "
                            "Rezept.")),
                        .erklaerung = Einblickworte::namen(namen),
                        .knoepfe = {localizedString(QStringLiteral("ok"))}});
    }
}

bool Rezeptanschluss::beginneRezept(const QList<Rezeptzutat> &zutaten, QWidget *davor)
{
    return oeffne(Rezept{.schluessel = {}, .zutaten = zutaten}, davor);
}

void Rezeptanschluss::zeigeRezept()
{
    const std::optional<Rezept> eines = ablage.rezept(m_hauptfenster.unuebersetztername);
    const bool eigenes =
        m_hauptfenster.KundenDictionary.contains(m_hauptfenster.unuebersetztername);
    oeffne(eines && eigenes ? *eines : Rezept(), m_hauptfenster.Hauptfenster);
}

/// What the window of a recipe asks of the program.
Rezepttueren Rezeptanschluss::fenstertueren()
{
    Rezepttueren tueren;
    tueren.zutaten.suche = [this](const QString &text) {
        QList<Zutatenvorschlag> alle;
        for (const Suchtreffer &treffer : m_tage.suche(text).treffer) {
            if (const Datenmodul *satz = m_tage.speise(treffer.schluessel)) {
                alle << Zutatenvorschlag{treffer.anzeige, treffer.schluessel, *satz};
            }
        }
        return alle;
    };
    tueren.zutaten.masse = [this](const QString &schluessel) {
        return m_tage.masse(schluessel);
    };
    tueren.istEingebaut = [this](const QString &name) {
        return m_hauptfenster.Dictionary.contains(name);
    };
    tueren.eigenes = [this](const QString &name) {
        const auto eines = m_hauptfenster.KundenDictionary.constFind(name);
        return eines != m_hauptfenster.KundenDictionary.cend() ? std::optional(*eines)
                                                               : std::nullopt;
    };
    tueren.sichere = [this](const Rezept &eines, const Datenmodul &satz) {
        return sichere(eines, satz);
    };
    tueren.portion = [this](const QString &schluessel, std::optional<double> gramm,
                            std::optional<double> bisher) {
        setzePortion(schluessel, gramm, bisher);
    };
    tueren.melde = m_tueren.melde;
    return tueren;
}

/// A portion that the user has weighed by hand since stays when nobody counts them any more.
void Rezeptanschluss::setzePortion(const QString &schluessel, std::optional<double> gramm,
                                   std::optional<double> bisher)
{
    EigeneMasse &eigene = m_tage.eigeneMasse();
    QList<Mass> masse = eigene.masseFuer(schluessel);
    masse.removeIf([&](const Mass &eines) {
        return eines.eines == QStringLiteral("Portion") && (gramm || eines.gramm == bisher);
    });
    if (gramm) {
        masse.prepend(portionsmass(*gramm));
    }
    if (!eigene.setze(schluessel, masse)) {
        m_hauptfenster.hinweise->zeige(
            {.kennung = hinweisMasse, .text = eigene.hindernis(), .warnung = true});
    }
}

/// One recipe at a time: two windows could each take the place of the other's dish.
bool Rezeptanschluss::oeffne(const Rezept &rezept, QWidget *davor)
{
    if (m_fenster != nullptr) {
        m_fenster->raise();
        m_fenster->activateWindow();
        const bool leer = rezept.schluessel.isEmpty() && rezept.zutaten.isEmpty();
        const bool dasOffene = !rezept.schluessel.isEmpty() && rezept.schluessel == m_offenes;
        if (!leer && !dasOffene) {
            m_tueren.melde(m_fenster,
                           {.text = localizedString(QStringLiteral("Ein Rezept ist noch offen.")),
                            .erklaerung = localizedString(
                                QStringLiteral("Sichern oder schließen Sie es, dann lässt sich ein "
                                               "anderes öffnen.")),
                            .knoepfe = {localizedString(QStringLiteral("ok"))}});
        }
        return false;
    }
    m_offenes = rezept.schluessel;
    m_fenster = new Rezeptfenster(rezept, m_wissen(), rezepte(), fenstertueren(), davor);
    m_fenster->setAttribute(Qt::WA_DeleteOnClose);
    m_fenster->show();
    return true;
}

/// The window that is open shows foods as they are now.
void Rezeptanschluss::zeigeHeutige()
{
    if (m_fenster != nullptr) {
        m_fenster->folgeSpeisen(m_wissen(), rezepte(), m_hauptfenster.Dictionary,
                                m_hauptfenster.KundenDictionary);
    }
}

/// The recipe goes to the disk first: a dish without it would be known by nobody, while a recipe
/// whose food is not there only waits for it. One that can't be kept is let go, for the dish is
/// still that of the recipe before.
bool Rezeptanschluss::sichere(const Rezept &rezept, const Datenmodul &satz)
{
    const std::optional<Rezept> bisher = ablage.rezept(rezept.schluessel);
    if (!ablage.setze(rezept)) {
        bisher ? ablage.setze(*bisher) : ablage.nimmHeraus(rezept.schluessel);
        sageZustand();
        return false;
    }
    m_gesicherte[rezept.schluessel] << (bisher ? QList{*bisher, rezept} : QList{rezept});
    Lebensmittelverzeichnis eigene = m_hauptfenster.KundenDictionary;
    QStringList namen = m_hauptfenster.KundenArray;
    const bool neu = !eigene.contains(rezept.schluessel);
    eigene[rezept.schluessel] = satz;
    if (neu) {
        namen << rezept.schluessel;
    }
    m_hauptfenster.uebernimmEigene(eigene, namen);
    Q_EMIT m_hauptfenster.eigeneGeaendert(
        {neu ? Aenderungsart::Gesichert : Aenderungsart::Geaendert, rezept.schluessel});
    m_hauptfenster.zeigeEigenes(rezept.schluessel);
    sage(localizedString(
             QStringLiteral("„%1“ steht mit seinem Rezept bei den eigenen Lebensmitteln."))
             .arg(kurzerName(rezept.schluessel)));
    return true;
}

Nachzuege Rezeptanschluss::nachzuege(const Rezepte &alle)
{
    return nachgezogen(alle, m_hauptfenster.Dictionary, m_hauptfenster.KundenDictionary,
                       m_wissen());
}

void Rezeptanschluss::folgeVerlauf()
{
    QList<Rezept> neue;
    for (const Rezept &eines : rezepte()) {
        const Datenmodul gericht = m_hauptfenster.KundenDictionary.value(eines.schluessel);
        const QList<Rezept> fruehere = m_gesicherte.value(eines.schluessel);
        const auto seines =
            std::find_if(fruehere.crbegin(), fruehere.crend(), [&](const Rezept &frueheres) {
                return gleicherInhalt(frueheres.gegeben, gericht);
            });
        if (!gleicherInhalt(eines.gegeben, gericht) && seines != fruehere.crend()) {
            neue << *seines;
        }
    }
    if (!neue.isEmpty()) {
        ablage.setze(neue);
        neue.clear();
    }
    for (const Nachzug &einer : nachzuege(rezepte()).folgende) {
        if (gleicherInhalt(einer.vorher, einer.nachher)) {
            neue << einer.rezept;
        }
    }
    if (!neue.isEmpty()) {
        ablage.setze(neue);
    }
    zeigeHeutige();
}

/// Dishes follow their ingredients. A dish that was changed by hand is not touched, but told.
void Rezeptanschluss::zieheNach()
{
    const Rezepte alle = rezepte();
    if (m_zieht || alle.isEmpty()) {
        return;
    }
    const QScopedValueRollback zieht(m_zieht, true);
    const Nachzuege zuege = nachzuege(alle);
    QStringList gefolgt;
    QList<Rezept> neue;
    Lebensmittelverzeichnis eigene = m_hauptfenster.KundenDictionary;
    for (const Nachzug &einer : zuege.folgende) {
        neue << einer.rezept;
        if (!gleicherInhalt(einer.vorher, einer.nachher)) { // else it was so before
            gefolgt << einer.rezept.schluessel;
            eigene[einer.rezept.schluessel] = einer.nachher;
        }
    }
    // Recipes that can't be written hold all the same: dishes without them would be told as changed
    // by hand from then on.
    const bool gelten = !neue.isEmpty() && (ablage.setze(neue) || !ablage.istGesperrt());
    if (gelten && !gefolgt.isEmpty()) {
        m_hauptfenster.uebernimmEigene(eigene, m_hauptfenster.KundenArray);
        Q_EMIT m_hauptfenster.eigeneGeaendert({Aenderungsart::Geaendert, gefolgt.constFirst()});
        sage(localizedString(QStringLiteral("Gerichte, die ihren Zutaten gefolgt sind: %1."))
                 .arg(Einblickworte::namen(gefolgt)));
    }
    // A notice that was read does not come again with each change of something else.
    const QStringList gesagte = zuege.vonHandGeaenderte + zuege.unmoegliche;
    if (std::exchange(m_gesagte, gesagte) == gesagte) {
        return;
    }
    if (!zuege.vonHandGeaenderte.isEmpty()) {
        sage(
            localizedString(QStringLiteral("Gerichte, die ihren Zutaten nicht folgen, weil sie von "
                                           "Hand geändert sind: %1."))
                .arg(Einblickworte::namen(zuege.vonHandGeaenderte)));
    }
    if (!zuege.unmoegliche.isEmpty()) {
        sage(localizedString(QStringLiteral("Gerichte, die mit den neuen Zutaten nicht zu rechnen "
                                            "sind und bleiben, wie sie waren: %1."))
                 .arg(Einblickworte::namen(zuege.unmoegliche)));
    }
}

void Rezeptanschluss::sageZustand()
{
    const QString hindernis = ablage.hindernis();
    if (hindernis.isEmpty()) {
        m_hauptfenster.hinweise->nimmZurueck(hinweisAblage);
    } else {
        m_hauptfenster.hinweise->zeige(
            {.kennung = hinweisAblage, .text = hindernis, .warnung = true});
    }
}

void Rezeptanschluss::sage(const QString &text)
{
    streifen().zeige({.kennung = hinweisRezept + text, .text = text, .dauer = lesezeit});
}

/// Where the user works: in the window that the recipe came from, or in the one with the keyboard.
Hinweisstreifen &Rezeptanschluss::streifen() const
{
    const QWidget *hier =
        m_fenster != nullptr ? m_fenster->parentWidget() : QApplication::activeWindow();
    const Planmodul *plan = m_hauptfenster.planmodul;
    if (plan != nullptr && plan->hinweise != nullptr && hier == plan->hinweise->window()) {
        return *plan->hinweise;
    }
    const Tagefenster *tage = m_tage.offenes();
    return tage != nullptr && hier == tage ? *tage->hinweise : *m_hauptfenster.hinweise;
}

void Rezeptanschluss::folgeSprache()
{
    if (m_fenster != nullptr) {
        m_fenster->folgeSprache();
    }
}
