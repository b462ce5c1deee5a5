#include "Verlauf.h"

#include "AppController.h"
#include "Bestandsvergleich.h"
#include "Zeichenkettentabelle.h"

#include <QAction>
#include <QScopedValueRollback>

#include <utility>

namespace {

const QString kennung = QStringLiteral("verlauf");

/// A notice about what was taken back is read and done with.
constexpr int lesezeit = 8000; // milliseconds

} // namespace

/// One change, with what was there before and after it.
class Verlauf::Schritt : public QUndoCommand
{
public:
    Schritt(Verlauf &verlauf, Stand vorher, Stand nachher, Aenderung was)
        : m_verlauf(verlauf)
        , m_vorher(std::move(vorher))
        , m_nachher(std::move(nachher))
        , m_was(std::move(was))
    {
    }

    void undo() override { m_verlauf.stelle(m_nachher, m_vorher); }

    /// The first time it was the user who did it.
    void redo() override
    {
        if (std::exchange(m_getan, true)) {
            m_verlauf.stelle(m_vorher, m_nachher);
        }
    }

    const Aenderung &was() const { return m_was; }

private:
    Verlauf &m_verlauf;
    Stand m_vorher;
    Stand m_nachher;
    Aenderung m_was;
    bool m_getan = false;
};

Verlauf::Verlauf(AppController &controller) : m_controller(controller) {}

void Verlauf::beginne()
{
    m_stand = jetzt();
    connect(&m_controller, &AppController::eigeneGeaendert, this, &Verlauf::merke);
    connect(&m_controller, &AppController::planBereit, this, &Verlauf::hoerePlan);
    connect(&m_controller, &AppController::zuruecknehmenGewuenscht, this, &Verlauf::nimmZurueck);
    connect(&m_controller, &AppController::wiederholenGewuenscht, this, &Verlauf::wiederhole);
    connect(&m_schritte, &QUndoStack::indexChanged, this, &Verlauf::beschrifte);
    if (m_controller.planmodul != nullptr) {
        hoerePlan();
    }
}

void Verlauf::hoerePlan()
{
    const Planmodul &plan = *m_controller.planmodul;
    m_stand.plan = plan;
    connect(&plan, &Planmodul::geaendert, this, &Verlauf::merke);
    connect(&plan, &Planmodul::zuruecknehmenGewuenscht, this, &Verlauf::nimmZurueck);
    connect(&plan, &Planmodul::wiederholenGewuenscht, this, &Verlauf::wiederhole);
    beschrifte();
}

Verlauf::Stand Verlauf::jetzt() const
{
    return {.eigene = m_controller.KundenDictionary,
            .namen = m_controller.KundenArray,
            .plan = m_controller.planmodul != nullptr
                        ? std::optional<Planliste>(*m_controller.planmodul)
                        : std::nullopt};
}

/// What was done before the plan was opened has nothing to do with it.
bool Verlauf::planGleich(const Stand &einer, const Stand &anderer)
{
    return !einer.plan || !anderer.plan ||
           (einer.plan->PlanArray == anderer.plan->PlanArray &&
            einer.plan->mengenarray == anderer.plan->mengenarray);
}

bool Verlauf::eigeneGleich(const Stand &einer, const Stand &anderer)
{
    return einer.namen == anderer.namen && vergleiche(einer.eigene, anderer.eigene).leer();
}

void Verlauf::merke(const Aenderung &was)
{
    if (m_stellt) {
        return;
    }
    const Stand nachher = jetzt();
    if (planGleich(m_stand, nachher) && eigeneGleich(m_stand, nachher)) {
        return; // an amount typed as it was, for instance
    }
    nimmHinweiseZurueck();
    auto *schritt = new Schritt(*this, m_stand, nachher, was);
    m_stand = nachher;
    m_schritte.push(schritt);
}

/// Brings back what one step has changed. The own foods come first: rows of the plan may be theirs.
void Verlauf::stelle(const Stand &von, const Stand &nach)
{
    const QScopedValueRollback stellt(m_stellt, true);
    if (!eigeneGleich(von, nach)) {
        m_controller.uebernimmEigene(nach.eigene, nach.namen);
        zeigeGeaenderte(von, nach);
    }
    if (!planGleich(von, nach)) {
        m_controller.planmodul->setzePlan(*nach.plan);
    }
    m_stand = jetzt();
}

/// An own food on display is shown with the values that it has again.
void Verlauf::zeigeGeaenderte(const Stand &von, const Stand &nach)
{
    const QString gezeigt = m_controller.feldA->stringValue();
    const QStringList andere = vergleiche(von.eigene, nach.eigene).anders;
    if (andere.contains(gezeigt)) {
        m_controller.zeigeEigenes(gezeigt);
    }
}

void Verlauf::nimmZurueck()
{
    nimmHinweiseZurueck();
    if (!m_schritte.canUndo()) {
        sage(localizedString(QStringLiteral("Es gibt nichts zurückzunehmen.")), QString(), {});
        return;
    }
    const auto *schritt = dynamic_cast<const Schritt *>(m_schritte.command(m_schritte.index() - 1));
    const QString satz = localizedString(QStringLiteral("Zurückgenommen: %1."));
    m_schritte.undo();
    sage(satz.arg(inWorten(schritt->was())), localizedString(QStringLiteral("Wiederholen")),
         [this] { wiederhole(); });
    Q_EMIT gestellt();
}

void Verlauf::wiederhole()
{
    nimmHinweiseZurueck();
    if (!m_schritte.canRedo()) {
        sage(localizedString(QStringLiteral("Es gibt nichts zu wiederholen.")), QString(), {});
        return;
    }
    const auto *schritt = dynamic_cast<const Schritt *>(m_schritte.command(m_schritte.index()));
    const QString satz = localizedString(QStringLiteral("Wiederholt: %1."));
    m_schritte.redo();
    sage(satz.arg(inWorten(schritt->was())), localizedString(QStringLiteral("Zurücknehmen")),
         [this] { nimmZurueck(); });
    Q_EMIT gestellt();
}

/// In the window in which the user works.
void Verlauf::sage(const QString &text, const QString &knopf, const std::function<void()> &aktion)
{
    Planmodul *plan = m_controller.planmodul;
    const bool imPlan =
        plan != nullptr && plan->hinweise != nullptr && plan->window()->isActiveWindow();
    Hinweisstreifen &streifen = imPlan ? *plan->hinweise : *m_controller.hinweise;
    streifen.zeige(
        {.kennung = kennung, .text = text, .knopf = knopf, .aktion = aktion, .dauer = lesezeit});
}

/// The way back that a notice offers is that of the last change, so it goes with the next one.
void Verlauf::nimmHinweiseZurueck()
{
    for (const QString &eine :
         {kennung, AppController::hinweisGesichert, AppController::hinweisZugabe}) {
        m_controller.hinweise->nimmZurueck(eine);
    }
    const Planmodul *plan = m_controller.planmodul;
    if (plan != nullptr && plan->hinweise != nullptr) {
        plan->hinweise->nimmZurueck(kennung);
    }
}

/// The menus say what would be taken back or repeated.
void Verlauf::beschrifte()
{
    const auto worte = [this](const QString &befehl, int stelle) {
        const auto *schritt = dynamic_cast<const Schritt *>(m_schritte.command(stelle));
        return schritt == nullptr ? befehl
                                  : localizedString(QStringLiteral("%1: %2"))
                                        .arg(befehl, inWorten(schritt->was()));
    };
    const auto setze = [&](QAction &zurueck, QAction &wieder) {
        zurueck.setText(
            worte(localizedString(QStringLiteral("&Rückgängig")), m_schritte.index() - 1));
        wieder.setText(worte(localizedString(QStringLiteral("&Wiederholen")), m_schritte.index()));
    };
    setze(*m_controller.Hauptfenster->findChild<QAction *>(QStringLiteral("aktionRueckgaengig")),
          *m_controller.Hauptfenster->findChild<QAction *>(QStringLiteral("aktionWiederholen")));
    const Planmodul *plan = m_controller.planmodul;
    if (plan != nullptr && plan->hinweise != nullptr) {
        setze(*plan->aktionRueckgaengig, *plan->aktionWiederholen);
    }
}
