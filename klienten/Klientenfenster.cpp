#include "Klientenfenster.h"

#include "Angabenpruefung.h"
#include "Feldworte.h"
#include "Rollbereich.h"
#include "Schriftplatz.h"
#include "Schriftstufe.h"
#include "Tabellenkopie.h"
#include "Zeichenkettentabelle.h"
#include "Zeilenhoehe.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLocale>
#include <QScopedValueRollback>

#include <array>

namespace {

constexpr int zeilenhoehe = 26;
constexpr int listenbreite = 300;
constexpr int nummernbreite = 11; // letters, with the heading's

const QString hinweisUnlesbar = QStringLiteral("unlesbar");

constexpr std::array<const char *, 4> seitentitel = {
    QT_TRANSLATE_NOOP("Mahlberg", "Person"),
    QT_TRANSLATE_NOOP("Mahlberg", "Besuche"),
    QT_TRANSLATE_NOOP("Mahlberg", "Pläne"),
    QT_TRANSLATE_NOOP("Mahlberg", "Fortschritt"),
};

/// What the line below the name says: number, age, visits.
QString kopfworte(const Klientenakte &akte, const QDate &heute)
{
    QStringList teile;
    if (!akte.person.nummer.isEmpty()) {
        teile << localizedString(QStringLiteral("Nr. %1")).arg(akte.person.nummer);
    }
    if (const std::optional<int> alter = alterAm(heute, akte.person.geburt)) {
        teile << localizedString(QStringLiteral("Alter: %1")).arg(*alter);
    }
    if (!akte.besuche.isEmpty()) {
        teile << localizedString(QStringLiteral("zuletzt hier am %1"))
                     .arg(tagesworte(akte.besuche.constLast().datum));
    }
    if (akte.person.archiviert) {
        teile << localizedString(QStringLiteral("archiviert"));
    }
    return teile.join(QStringLiteral("  ·  "));
}

} // namespace

Klientenfenster::Klientenfenster(Kartei &kartei, Tischklient &tisch, Klientenfenstertueren tueren)
    : KlientenfensterGestalt()
    , m_kartei(kartei)
    , m_tisch(tisch)
    , m_tueren(std::move(tueren))
{
    setupUi(this);
    baueSeiten();
    baueMenue();
    liste->setModel(&m_modell);
    liste->verticalHeader()->hide();
    liste->verticalHeader()->setDefaultSectionSize(zeilenhoeheFuer(*liste, zeilenhoehe));
    liste->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    liste->horizontalHeader()->resizeSection(1, nummernbreite *
                                                    liste->fontMetrics().averageCharWidth());
    liste->horizontalHeader()->setHighlightSections(false);
    Tabellenkopie::ermoegliche(*liste);
    teiler->setSizes({listenbreite, width() - listenbreite});
    teiler->setStretchFactor(1, 1);
    fusszeile->setMinimumHeight(hinweise->zweizeilig());
    hinweise->vertritt(fusszeile); // nothing moves when a notice comes or goes
    verbinde();
    Schriftstufe::kleide(*this);
    Schriftplatz::gib(*this);
    m_kartei.lade();
    fuelleListe();
    zeigeHindernis();
    zeigeOrt();
    zeigeAkte();
}

void Klientenfenster::baueSeiten()
{
    personenblatt = new Personenblatt(m_kartei);
    besuchsblatt = new Besuchsblatt(m_kartei, m_tueren.melde);
    planblatt = new Planblatt(m_kartei, m_tueren.lebensmittel);
    fortschrittsblatt = new Fortschrittsblatt;
    const std::array<QWidget *, 4> blaetter = {personenblatt, besuchsblatt, planblatt,
                                               fortschrittsblatt};
    for (std::size_t i = 0; i < blaetter.size(); ++i) {
        seiten->addTab(new Rollbereich(blaetter.at(i)),
                       localizedString(QString::fromUtf8(seitentitel.at(i))));
    }
}

void Klientenfenster::verbinde()
{
    connect(suchfeld, &QLineEdit::textChanged, this, &Klientenfenster::fuelleListe);
    connect(auchArchivierte, &QCheckBox::toggled, this, &Klientenfenster::fuelleListe);
    connect(liste->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex &zeile) {
                if (!m_waehlt && zeile.isValid()) {
                    waehle(m_modell.kennung(zeile.row()));
                }
            });
    connect(liste, &QAbstractItemView::activated, this, &Klientenfenster::anDenTisch);
    connect(neuknopf, &QPushButton::clicked, this, &Klientenfenster::neuerKlient);
    connect(tischknopf, &QPushButton::clicked, this, &Klientenfenster::anDenTisch);
    connect(&m_kartei, &Kartei::listeGeaendert, this, &Klientenfenster::fuelleListe);
    connect(&m_kartei, &Kartei::akteGeaendert, this, [this](const QString &kennung) {
        if (kennung == m_gewaehlt) {
            zeigeAkte();
        }
    });
    connect(&m_kartei, &Kartei::hindernisGeaendert, this, &Klientenfenster::zeigeHindernis);
    connect(&m_kartei, &Kartei::kollidiert, this, &Klientenfenster::zeigeKollision);
    connect(&m_kartei, &Kartei::verschwunden, this, &Klientenfenster::zeigeVerschwundenen);
    connect(&m_tisch, &Tischklient::gewechselt, this, &Klientenfenster::zeigeKopf);
    connect(personenblatt, &Personenblatt::angelegt, this, [this](const QString &kennung) {
        m_neuer = false;
        m_gewaehlt = kennung;
        fuelleListe();
        zeigeAkte();
    });
    connect(besuchsblatt, &Besuchsblatt::geloescht, this,
            [this] { sageGeloescht(localizedString(QStringLiteral("Der Besuch ist gelöscht."))); });
    connect(besuchsblatt, &Besuchsblatt::festgehalten, this, &Klientenfenster::sageFestgehalten);
    connect(planblatt, &Planblatt::geloescht, this,
            [this] { sageGeloescht(localizedString(QStringLiteral("Der Plan ist gelöscht."))); });
    connect(planblatt, &Planblatt::ablegenGewuenscht, &m_tisch, &Tischklient::legePlanAb);
    connect(planblatt, &Planblatt::holenGewuenscht, &m_tisch, &Tischklient::holePlan);
}

void Klientenfenster::zeige()
{
    show();
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
    suchfeld->setFocus();
}

/// Whoever is shown stays chosen where the search still finds them.
void Klientenfenster::fuelleListe()
{
    const QScopedValueRollback waehlt(m_waehlt, true);
    const QList<Personenzeile> treffer =
        m_kartei.liste().suche(suchfeld->text(), auchArchivierte->isChecked());
    m_modell.setze(treffer);
    const int zeile = m_modell.zeileVon(m_gewaehlt);
    if (zeile >= 0) {
        liste->setCurrentIndex(m_modell.index(zeile, 0));
        liste->scrollTo(m_modell.index(zeile, 0));
    }
    anzahl->setText(localizedString(QStringLiteral("%1 von %2 Klienten"))
                        .arg(treffer.size())
                        .arg(m_kartei.liste().anzahl()));
    zeigeLeeres();
}

/// Before somebody else is shown, what was typed is kept. What can't be kept holds the user here.
void Klientenfenster::waehle(const QString &kennung)
{
    if (kennung == m_gewaehlt && !m_neuer) {
        return;
    }
    if (!sichere()) {
        fuelleListe(); // chooses the one before again
        sageFestgehalten();
        return;
    }
    hinweise->nimmZurueck(hinweisUnlesbar);
    m_neuer = false;
    m_gewaehlt = kennung;
    zeigeAkte();
}

void Klientenfenster::sageFestgehalten()
{
    hinweise->zeige({.kennung = hinweisUnlesbar,
                     .text = localizedString(QStringLiteral(
                         "Eine Angabe ist noch nicht gesichert: Neben ihrem Feld steht, warum. "
                         "Bitte ändern oder leeren Sie sie.")),
                     .warnung = true});
}

bool Klientenfenster::sichere()
{
    if (m_neuer && personenblatt->leer()) {
        return true;
    }
    if (!m_neuer && !m_akte) {
        return true;
    }
    bool gut = personenblatt->sichere();
    if (m_akte) {
        gut = besuchsblatt->sichere() && gut;
        gut = planblatt->sichere() && gut;
    }
    return gut;
}

void Klientenfenster::zeigeAkte()
{
    m_akte = m_gewaehlt.isNull() ? std::nullopt : m_kartei.akte(m_gewaehlt);
    if (m_akte) {
        personenblatt->zeige(m_akte->person);
        besuchsblatt->zeige(*m_akte);
        planblatt->zeige(*m_akte);
        fortschrittsblatt->setze(*m_akte);
    } else if (!m_gewaehlt.isNull() && m_kartei.hindernis()) {
        m_gewaehlt = QString(); // deleted, here or at another desk
    }
    zeigeKopf();
}

void Klientenfenster::zeigeKopf()
{
    const bool jemand = m_neuer || m_akte.has_value();
    ansicht->setCurrentWidget(jemand ? aktenseite : leerseite);
    kopf->setText(m_akte ? m_akte->person.name : localizedString(QStringLiteral("Neuer Klient")));
    kopfzeile->setText(m_akte ? kopfworte(*m_akte, QDate::currentDate()) : QString());
    const bool amTisch = m_akte && m_tisch.ist(m_gewaehlt);
    tischknopf->setText(amTisch ? localizedString(QStringLiteral("Vom Schreib&tisch"))
                                : localizedString(QStringLiteral("An den Schreib&tisch")));
    tischknopf->setEnabled(m_akte.has_value());
    for (int seite = 1; seite < seiten->count(); ++seite) {
        seiten->setTabEnabled(seite, m_akte.has_value());
    }
    const bool aendern = m_kartei.beschreibbar();
    personenblatt->erlaube(aendern);
    besuchsblatt->erlaube(aendern);
    planblatt->erlaube(aendern, amTisch);
    neuknopf->setEnabled(aendern);
    for (QAction *aktion : std::as_const(m_zuKlient)) {
        aktion->setEnabled(m_akte.has_value());
    }
    zeigeLeeres();
}

/// Below everything stands where the clients are kept.
void Klientenfenster::zeigeOrt()
{
    fusszeile->setText(
        m_tueren.datei.isNull()
            ? localizedString(QStringLiteral("Die Klienten stehen auf dem Server der Praxis."))
            : localizedString(QStringLiteral("Die Klienten stehen in einer Datei an diesem Platz, "
                                             "die nur Sie lesen können.")));
}

/// Where nobody is shown, it says what can be done.
void Klientenfenster::zeigeLeeres()
{
    leerworte->setText(m_kartei.liste().anzahl() == 0
                           ? localizedString(QStringLiteral(
                                 "Noch keine Klienten. Mit „Neuer Klient“ legen Sie den "
                                 "ersten an."))
                       : m_modell.rowCount() == 0
                           ? localizedString(QStringLiteral("Niemand heißt so."))
                           : localizedString(QStringLiteral("Wählen Sie links einen Klienten.")));
}

void Klientenfenster::folgeSprache()
{
    for (int seite = 0; seite < seiten->count(); ++seite) {
        seiten->setTabText(seite, localizedString(QString::fromUtf8(
                                      seitentitel.at(static_cast<std::size_t>(seite)))));
    }
    personenblatt->folgeSprache();
    besuchsblatt->folgeSprache();
    planblatt->folgeSprache();
    fortschrittsblatt->folgeSprache();
    Q_EMIT m_modell.headerDataChanged(Qt::Horizontal, 0, m_modell.columnCount() - 1);
    fuelleListe();
    zeigeKopf();
    zeigeHindernis();
    zeigeOrt();
}

void Klientenfenster::setDatei(const QString &datei)
{
    m_tueren.datei = datei;
    zeigeOrt();
}

/// Another desk may have changed something since this window was looked at last.
bool Klientenfenster::event(QEvent *event)
{
    if (event->type() == QEvent::WindowActivate && isVisible()) {
        frischeAuf();
    }
    return QMainWindow::event(event);
}

void Klientenfenster::frischeAuf()
{
    m_kartei.lade();
    zeigeAkte();
}

/// What was taken away is gone once the window is closed.
void Klientenfenster::closeEvent(QCloseEvent *event)
{
    if (!sichere() &&
        m_tueren.melde(
            this,
            {.text = localizedString(QStringLiteral("Eine Angabe kann nicht gesichert werden.")),
             .erklaerung = localizedString(QStringLiteral(
                 "Neben ihrem Feld steht, warum. Beim Schließen geht sie verloren.")),
             .knoepfe = {localizedString(QStringLiteral("Zurück")),
                         localizedString(QStringLiteral("Schließen"))},
             .gefahr = true}) != 1) {
        event->ignore();
        return;
    }
    m_kartei.vergiss();
    hinweise->nimmZurueck(hinweisGeloescht);
    if (m_neuer) {
        m_neuer = false;
        zeigeAkte();
    }
    QMainWindow::closeEvent(event);
}
