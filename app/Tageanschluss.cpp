#include "Tageanschluss.h"

#include "AnthroController.h"
#include "AppController.h"
#include "Fensterplatz.h"
#include "Klientenanschluss.h"
#include "Planzeilen.h"
#include "Zeichenkettentabelle.h"

#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QMenuBar>

namespace {

constexpr auto tagesdatei = "MahlbergTage.json";

const QString hinweisDatei = QStringLiteral("tagesdatei");
const QString hinweisSicherung = QStringLiteral("tagesicherung");
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
    const Planmodul &plan = *m_hauptfenster.planmodul;
    plan.menueAblage->insertAction(plan.aktionSchliessen, eintrag(plan.menueAblage));
    m_hauptfenster.planmodul->window()->installEventFilter(this);
}

Tagetueren Tageanschluss::fenstertueren()
{
    return {
        .melde = m_tueren.melde,
        .suche = [this](const QString &text) { return m_hauptfenster.sucheNamen(text); },
        .lebensmittel =
            [this](const QString &schluessel) {
                return lebensmittelVon(schluessel, m_hauptfenster.Dictionary,
                                       m_hauptfenster.KundenDictionary);
            },
        .masse = [this](const QString &schluessel) { return m_portionen.masseFuer(schluessel); },
        .bedarf =
            [] {
                return Energiebedarf{Planmodul::klient.bedarf, Planmodul::klient.unbereinigt};
            }};
}

Tagefenster &Tageanschluss::fenster()
{
    if (m_fenster == nullptr) {
        m_fenster = std::make_unique<Tagefenster>(m_ohneKlient, fenstertueren());
        m_fenster->installEventFilter(this);
        connect(m_fenster.get(), &Tagefenster::hilfeGewuenscht, this,
                [this] { Q_EMIT hilfeGewuenscht(m_fenster.get()); });
        connect(&m_ohneKlient, &Tagesdatei::sicherungGewechselt, this, &Tageanschluss::sageZustand);
        Fensterplatz::lasseRollen(*m_fenster->anordnung1, *m_fenster->seiten);
        m_platz = std::make_unique<Platzgedaechtnis>(*m_fenster, *m_tueren.einstellungen,
                                                     QStringLiteral("Tagefenster"),
                                                     Platzgedaechtnis::Umfang::Platz, nullptr);
        m_platz->stelleWiederHer();
        folgeKlient();
        sageZustand();
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
