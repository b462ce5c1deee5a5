#include "Tageanschluss.h"

#include "AnthroController.h"
#include "AppController.h"
#include "Druckworte.h"
#include "Einstellungen.h"
#include "Fensterplatz.h"
#include "Klientenanschluss.h"
#include "Massfenster.h"
#include "Namenswechsel.h"
#include "Planzeilen.h"
#include "Zeichenkettentabelle.h"

#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QMenuBar>

#include <algorithm>

namespace {

constexpr auto tagesdatei = "MahlbergTage.json";
constexpr auto massdatei = "MahlbergMasse.json";

const QString hinweisDatei = QStringLiteral("tagesdatei");
const QString hinweisSicherung = QStringLiteral("tagesicherung");
const QString hinweisMasse = QStringLiteral("haushaltsmasse");
const QString hinweisZugabe = QStringLiteral("tagezugabe");

constexpr int lesezeit = 8000; // ms that a notice stays which needs no answer

} // namespace

Tageanschluss::Tageanschluss(AppController &hauptfenster, AnthroController &rechner,
                             Klientenanschluss &klienten, Tueren tueren)
    : m_hauptfenster(hauptfenster)
    , m_rechner(rechner)
    , m_klienten(klienten)
    , m_tueren(std::move(tueren))
    , m_portionen(QStringLiteral(":/Portionen.csv"), QStringLiteral(":/Lebensmittel.csv"))
    , m_ohneKlient(pfad(tagesdatei))
{
}

Tageanschluss::~Tageanschluss() = default;

QString Tageanschluss::pfad(const char *datei) const
{
    const QString eigene = m_tueren.datenordner.datei(QStringLiteral("customdaten"));
    return QFileInfo(eigene).dir().filePath(QLatin1String(datei));
}

void Tageanschluss::beginne()
{
    const QList<QAction *> menues = m_hauptfenster.Hauptfenster->menuBar()->actions();
    if (menues.size() >= 2) { // that of the windows stands before that of the help
        QMenu *fenstermenue = menues[menues.size() - 2]->menu();
        fenstermenue->addAction(eintrag(fenstermenue));
    }
    beginneMasse();
    m_hauptfenster.Hauptfenster->installEventFilter(this);
    m_hauptfenster.zugabeziel = [this](const QString &schluessel) {
        return nimmSpeise(schluessel);
    };
    connect(&m_hauptfenster, &AppController::planBereit, this, &Tageanschluss::bereitePlan);
    if (m_hauptfenster.planmodul != nullptr) {
        bereitePlan();
    }
    connect(&m_klienten.tisch, &Tischklient::gewechselt, this, &Tageanschluss::folgeKlient);
    // What the calculator says comes to the plan with the same action, but maybe after this.
    connect(
        &m_rechner, &AnthroController::angabeGeaendert, this,
        [this] {
            if (m_fenster != nullptr) {
                m_fenster->frischeAuf();
            }
        },
        Qt::QueuedConnection);
}

/// An own food that is called as a built-in one once was keeps its measures to itself.
void Tageanschluss::beginneMasse()
{
    Namenswechsel wechsel =
        leseNamenswechsel(QStringLiteral(":/Umbenannt.csv"), m_hauptfenster.Dictionary);
    for (const QString &eigenes : std::as_const(m_hauptfenster.KundenArray)) {
        wechsel.remove(eigenes);
    }
    m_eigeneMasse = std::make_unique<EigeneMasse>(pfad(massdatei), wechsel);
    m_masse = std::make_unique<Massquelle>(m_portionen, *m_eigeneMasse);
    connect(m_eigeneMasse.get(), &EigeneMasse::sicherungGewechselt, this, [this] {
        const QString hindernis = m_eigeneMasse->hindernis();
        if (hindernis.isEmpty()) {
            m_hauptfenster.hinweise->nimmZurueck(hinweisMasse);
        } else {
            m_hauptfenster.hinweise->zeige(
                {.kennung = hinweisMasse, .text = hindernis, .warnung = true});
        }
    });
    QMenu *ablage = m_hauptfenster.Hauptfenster->menuBar()->actions().constFirst()->menu();
    auto *masse = new QAction(localizedString(QStringLiteral("Haushalts&maße …")), ablage);
    masse->setObjectName(QStringLiteral("aktionMasse"));
    connect(masse, &QAction::triggered, this,
            [this] { zeigeMasse(m_hauptfenster.Hauptfenster, m_hauptfenster.unuebersetztername); });
    const QList<QAction *> eintraege = ablage->actions();
    ablage->insertAction(*std::find_if(eintraege.begin(), eintraege.end() - 1,
                                       [](const QAction *einer) { return einer->isSeparator(); }),
                         masse);
}

QAction *Tageanschluss::eintrag(QObject *menue)
{
    auto *tage = new QAction(localizedString(QStringLiteral("Ta&ge und Mahlzeiten")), menue);
    tage->setObjectName(QStringLiteral("aktionTage"));
    tage->setShortcut(QKeySequence(QStringLiteral("Ctrl+D")));
    connect(tage, &QAction::triggered, this, [this] { fenster().zeige(); });
    return tage;
}

void Tageanschluss::bereitePlan()
{
    // Beside the clients, above the line that parts the end from all else.
    const Planmodul &plan = *m_hauptfenster.planmodul;
    const QList<QAction *> eintraege = plan.menueAblage->actions();
    QAction *ende = plan.aktionSchliessen;
    QAction *linie = eintraege.value(eintraege.indexOf(ende) - 1);
    plan.menueAblage->insertAction(linie != nullptr && linie->isSeparator() ? linie : ende,
                                   eintrag(plan.menueAblage));
    m_hauptfenster.planmodul->window()->installEventFilter(this);
}

/// Lines that stand for no food, as the one that the built-in table begins with, are none to eat.
const Datenmodul *Tageanschluss::speise(const QString &schluessel) const
{
    const Datenmodul *eine =
        lebensmittelVon(schluessel, m_hauptfenster.Dictionary, m_hauptfenster.KundenDictionary);
    const bool leer = eine != nullptr && AppController::istLeer(*eine) &&
                      m_hauptfenster.Dictionary.contains(schluessel);
    return leer ? nullptr : eine;
}

Namenssuchergebnis Tageanschluss::suche(const QString &text) const
{
    Namenssuchergebnis ergebnis = m_hauptfenster.sucheNamen(text);
    ergebnis.treffer.removeIf(
        [this](const Suchtreffer &treffer) { return speise(treffer.schluessel) == nullptr; });
    return ergebnis;
}

/// What comes from a spreadsheet is called as people call it, in either language.
QString Tageanschluss::schluesselVon(const QString &name)
{
    if (m_schluessel.isEmpty()) {
        const Druckworte englisch(Regelsprache::Englisch);
        for (const QString &schluessel : std::as_const(m_hauptfenster.Array)) {
            m_schluessel.insert(englisch(schluessel).toLower(), schluessel);
        }
        for (const QString &schluessel : std::as_const(m_hauptfenster.Array)) {
            m_schluessel.insert(schluessel.toLower(), schluessel);
        }
    }
    for (const QString &eigenes : std::as_const(m_hauptfenster.KundenArray)) {
        if (eigenes.compare(name, Qt::CaseInsensitive) == 0) {
            return eigenes;
        }
    }
    return m_schluessel.value(name.toLower());
}

/// The plan's own way back leads to what stood there before.
bool Tageanschluss::legeAufTisch(const QList<Planmenge> &posten)
{
    m_hauptfenster.Planmoduloeffnen();
    Planliste liste;
    for (const Planmenge &einer : posten) {
        liste.anhaengen(einer.schluessel);
        liste.mengeAendern(liste.PlanArray.size() - 1, einer.gramm);
    }
    m_hauptfenster.planmodul->uebernimmPlan(liste);
    return true;
}

QList<Planmenge> Tageanschluss::planVomTisch()
{
    const Planliste &plan = m_hauptfenster.holePlan();
    QList<Planmenge> posten;
    for (qsizetype zeile = 0; zeile < plan.PlanArray.size(); ++zeile) {
        posten << Planmenge{plan.PlanArray[zeile], plan.mengenarray[zeile], {}};
    }
    return posten;
}

QList<Vorratsplan> Tageanschluss::abgelegtePlaene() const
{
    QList<Vorratsplan> plaene;
    if (const std::optional<Klientenakte> &akte = m_klienten.tisch.akte()) {
        for (const Planablage &ablage : akte->plaene) {
            Vorratsplan plan{ablage.titel, ablage.datum, {}};
            for (const Planposten &posten : ablage.posten) {
                plan.posten << Planmenge{posten.schluessel, posten.gramm, posten.eintrag};
            }
            plaene << plan;
        }
    }
    return plaene;
}

void Tageanschluss::zeigeMasse(QWidget *fenster, const QString &schluessel)
{
    if (speise(schluessel) == nullptr) {
        m_hauptfenster.hinweise->zeige(
            {.kennung = hinweisMasse,
             .text = localizedString(
                 QStringLiteral("Wählen Sie zuerst ein Lebensmittel in der Tabelle aus.")),
             .dauer = lesezeit});
    } else {
        Massfenster::oeffne(m_portionen, *m_eigeneMasse, schluessel, fenster);
    }
}

Tagetueren Tageanschluss::fenstertueren()
{
    Tagetueren tueren;
    tueren.melde = m_tueren.melde;
    tueren.suche = [this](const QString &text) {
        return suche(text);
    };
    tueren.lebensmittel = [this](const QString &schluessel) {
        return speise(schluessel);
    };
    tueren.masse = [this](const QString &schluessel) {
        return masse(schluessel);
    };
    tueren.massfenster = [this](QWidget *fenster, const QString &schluessel) {
        zeigeMasse(fenster, schluessel);
    };
    tueren.bedarf = [] {
        return Energiebedarf{Planmodul::klient.bedarf, Planmodul::klient.unbereinigt};
    };
    tueren.schluessel = [this](const QString &name) {
        return schluesselVon(name);
    };
    tueren.legeAufTisch = [this](const QList<Planmenge> &posten) {
        return legeAufTisch(posten);
    };
    tueren.planVomTisch = [this] {
        return planVomTisch();
    };
    tueren.abgelegtePlaene = [this] {
        return abgelegtePlaene();
    };
    tueren.drucke = m_tueren.drucke;
    tueren.alsPdf = m_tueren.alsPdf;
    tueren.briefkopf = [this] {
        return Briefkopfablage(*m_tueren.einstellungen, m_tueren.datenordner).lies();
    };
    tueren.klient = [this] {
        return klient();
    };
    tueren.einstellungen = m_tueren.einstellungen;
    return tueren;
}

Tagefenster &Tageanschluss::fenster()
{
    if (m_fenster == nullptr) {
        m_fenster = std::make_unique<Tagefenster>(m_ohneKlient, fenstertueren());
        m_fenster->installEventFilter(this);
        connect(m_fenster.get(), &Tagefenster::hilfeGewuenscht, this,
                [this] { Q_EMIT hilfeGewuenscht(m_fenster.get()); });
        connect(&m_ohneKlient, &Tagesdatei::sicherungGewechselt, this, &Tageanschluss::sageZustand);
        Fensterplatz::lasseRollen(*m_fenster->anordnung1, *m_fenster->inhalt);
        m_platz = std::make_unique<Platzgedaechtnis>(*m_fenster, *m_tueren.einstellungen,
                                                     QStringLiteral("Tagefenster"),
                                                     Platzgedaechtnis::Umfang::Platz, nullptr);
        m_platz->stelleWiederHer();
        folgeKlient();
        sageZustand();
        Q_EMIT fensterBereit();
    }
    return *m_fenster;
}

/// The records of whoever sits at the desk. What is being typed belongs to those before.
void Tageanschluss::folgeKlient()
{
    if (m_fenster == nullptr) {
        return;
    }
    const std::optional<Klientenakte> &akte = m_klienten.tisch.akte();
    const QString kennung = akte ? akte->person.kennung : QString();
    const QString bisher = m_desKlienten != nullptr ? m_desKlienten->person() : QString();
    if (kennung != bisher) {
        std::unique_ptr<Klientenaufzeichnungen> neue;
        if (!kennung.isNull()) {
            neue = std::make_unique<Klientenaufzeichnungen>(m_klienten.kartei, kennung);
        }
        m_fenster->setzeAblage(neue != nullptr ? static_cast<Aufzeichnungsablage &>(*neue)
                                               : m_ohneKlient);
        m_desKlienten = std::move(neue);
    }
    betitle();
    m_fenster->frischeAuf();
}

void Tageanschluss::betitle()
{
    const QString name = localizedString(QStringLiteral("Tage und Mahlzeiten"));
    const QString wer = m_desKlienten != nullptr ? m_desKlienten->wessen() : QString();
    m_fenster->setWindowTitle(wer.isEmpty() ? name : wer + QStringLiteral(" – ") + name);
}

/// What became of the file of the days, where that is not as it should be.
void Tageanschluss::sageZustand()
{
    const Tagebuchdatei &datei = m_ohneKlient.datei();
    if (datei.istGesperrt()) {
        m_fenster->hinweise->zeige(
            {.kennung = hinweisDatei,
             .text = localizedString(
                 QStringLiteral("Die Aufzeichnungen ohne Klienten sind nicht zu lesen oder von "
                                "einer neueren Version; sie bleiben, wie sie sind.")),
             .warnung = true});
    } else if (!datei.beiseite().isNull()) {
        m_fenster->hinweise->zeige(
            {.kennung = hinweisDatei,
             .text = localizedString(QStringLiteral("Die Aufzeichnungen ohne Klienten waren nicht "
                                                    "ganz zu lesen; aufgehoben sind sie als „%1“."))
                         .arg(QFileInfo(datei.beiseite()).fileName()),
             .warnung = true});
    }
    if (m_ohneKlient.istGesichert()) {
        m_fenster->hinweise->nimmZurueck(hinweisSicherung);
    } else {
        m_fenster->hinweise->zeige(
            {.kennung = hinweisSicherung,
             .text = localizedString(
                 QStringLiteral("Die Aufzeichnungen lassen sich gerade nicht sichern; mit der "
                                "nächsten Änderung wird es wieder versucht.")),
             .warnung = true});
    }
}

/// The window that the user was in last, of this and the plan's, is the one they have in mind.
bool Tageanschluss::nimmSpeise(const QString &schluessel)
{
    if (m_fenster == nullptr || !m_fenster->isVisible() || m_fenster->isMinimized() ||
        !m_zuletztVorn) {
        return false;
    }
    const QString wo = m_fenster->gibHinein(schluessel);
    if (wo.isNull()) {
        return false;
    }
    m_hauptfenster.hinweise->zeige(
        {.kennung = hinweisZugabe,
         .text = localizedString(QStringLiteral("„%1“ steht jetzt bei den Tagen: %2."))
                     .arg(kurzerName(localizedString(schluessel)), wo),
         .dauer = lesezeit});
    return true;
}

void Tageanschluss::folgeSprache()
{
    if (m_fenster != nullptr) {
        m_fenster->folgeSprache();
        betitle();
    }
}

bool Tageanschluss::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::WindowActivate && watched != m_hauptfenster.Hauptfenster) {
        m_zuletztVorn = watched == m_fenster.get();
    }
    if (event->type() == QEvent::Close && m_fenster != nullptr) {
        m_fenster->sichere(); // what is still being typed
    }
    return QObject::eventFilter(watched, event);
}
