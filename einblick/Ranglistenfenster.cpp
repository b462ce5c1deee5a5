#include "Ranglistenfenster.h"

#include "Einblickworte.h"
#include "Rangansicht.h"
#include "Rangfilter.h"
#include "Rangworte.h"
#include "Rollbereich.h"
#include "Satzfeld.h"
#include "Sperrgrund.h"
#include "UeblichePortion.h"
#include "Umbruchzeile.h"
#include "Vergleichsblatt.h"
#include "Zeichenkettentabelle.h"

#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

constexpr QSize fenstergroesse(640, 640);
constexpr int mindesthoehe = 150; // of the list, whatever else is open

/// The entries of the chooser for the order.
enum Folge { HoechsteZuerst, NiedrigsteZuerst };

/// Parts that stay beside one another while a line is broken.
void gruppiere(const QList<QWidget *> &teile, Umbruchzeile &zeile)
{
    auto *anordnung = new QHBoxLayout(new QWidget(&zeile));
    anordnung->setContentsMargins(0, 0, 0, 0);
    for (QWidget *teil : teile) {
        anordnung->addWidget(teil);
    }
}

/// The entry shows a key that works in the table.
QString mitTaste(const QString &text, const char *taste)
{
    return text + u'\t' + QKeySequence(QLatin1String(taste)).toString(QKeySequence::NativeText);
}

/// How many foods there are: English has another word for one than for several.
QString zahlwort(qsizetype anzahl, const char *eines, const char *mehrere)
{
    return anzahl == 1 ? localizedString(QString::fromUtf8(eines))
                       : localizedString(QString::fromUtf8(mehrere)).arg(anzahl);
}

} // namespace

Ranglistenfenster::Ranglistenfenster(Ranglistentueren tueren, QWidget *parent)
    : QDialog(parent, Qt::Window)
    , m_tueren(std::move(tueren))
    , m_seiten(new QTabWidget)
    , m_frage(new QLabel)
    , m_groesse(new QComboBox)
    , m_bezug(new QComboBox)
    , m_folge(new QComboBox)
    , m_eingrenzen(new QToolButton)
    , m_aufheben(new QPushButton)
    , m_filter(new Rangfilter)
    , m_filterbereich(new Rollbereich(m_filter))
    , m_liste(new QStackedWidget)
    , m_tabelle(new Rangansicht)
    , m_leer(neuesSatzfeld("rangleer"))
    , m_worte(neuesSatzfeld("rangworte"))
    , m_wahl(neuesSatzfeld("wahl"))
    , m_vergleichen(new QPushButton)
    , m_leeren(new QPushButton)
    , m_vergleich(new Vergleichsblatt)
{
    benenneTeile();
    baue();
    beschrifte();
    m_groesse->setCurrentIndex(static_cast<int>(stelle(Kenngroesse::bs)));
    verbinde();
    resize(fenstergroesse);
}

void Ranglistenfenster::benenneTeile()
{
    setObjectName(QStringLiteral("ranglistenfenster"));
    m_seiten->setObjectName(QStringLiteral("rangseiten"));
    m_groesse->setObjectName(QStringLiteral("ranggroesse"));
    m_bezug->setObjectName(QStringLiteral("rangbezug"));
    m_folge->setObjectName(QStringLiteral("rangfolge"));
    m_eingrenzen->setObjectName(QStringLiteral("eingrenzen"));
    m_aufheben->setObjectName(QStringLiteral("aufheben"));
    m_tabelle->setObjectName(QStringLiteral("rangliste"));
    m_vergleichen->setObjectName(QStringLiteral("vergleichen"));
    m_leeren->setObjectName(QStringLiteral("allesabhaken"));
}

void Ranglistenfenster::baue()
{
    auto *anordnung = new QVBoxLayout(this);
    anordnung->addWidget(m_seiten);
    m_seiten->addTab(baueRangseite(), {});
    m_seiten->addTab(m_vergleich, {});
    m_eingrenzen->setCheckable(true);
    m_eingrenzen->setArrowType(Qt::RightArrow);
    m_eingrenzen->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_eingrenzen->setFocusPolicy(Qt::StrongFocus);
    m_filterbereich->hide();
    new Sperrgrund(m_vergleichen, localizedString(QStringLiteral(
                                      "Zwei bis fünf Lebensmittel müssen angehakt sein.")));
    new Sperrgrund(m_aufheben, localizedString(QStringLiteral("Nichts ist eingegrenzt.")));
    for (QComboBox *wahl : {m_groesse, m_bezug, m_folge}) {
        wahl->setSizeAdjustPolicy(QComboBox::AdjustToContents); // also to those of another language
    }
    for (QPushButton *knopf : {m_aufheben, m_vergleichen, m_leeren}) {
        knopf->setAutoDefault(false); // Return in the list belongs to the food there
    }
}

QWidget *Ranglistenfenster::baueRangseite()
{
    auto *wahl = new Umbruchzeile;
    gruppiere({m_frage, m_groesse}, *wahl);
    gruppiere({m_bezug, m_folge}, *wahl);
    m_frage->setBuddy(m_groesse);
    auto *grenzen = new QHBoxLayout;
    grenzen->addWidget(m_eingrenzen);
    grenzen->addStretch(1);
    grenzen->addWidget(m_aufheben);
    m_liste->addWidget(m_tabelle);
    m_liste->addWidget(m_leer);
    m_liste->setMinimumHeight(mindesthoehe);
    m_leer->setAlignment(Qt::AlignCenter);
    auto *seite = new QWidget;
    auto *anordnung = new QVBoxLayout(seite);
    anordnung->addWidget(wahl);
    anordnung->addLayout(grenzen);
    anordnung->addWidget(m_filterbereich);
    anordnung->addWidget(m_liste, 1);
    anordnung->addWidget(m_worte);
    anordnung->addLayout(baueVergleichszeile());
    return seite;
}

QLayout *Ranglistenfenster::baueVergleichszeile()
{
    auto *zeile = new QHBoxLayout;
    zeile->addWidget(m_wahl, 1);
    zeile->addWidget(m_leeren);
    zeile->addWidget(m_vergleichen);
    return zeile;
}

void Ranglistenfenster::verbinde()
{
    for (QComboBox *wahl : {m_groesse, m_bezug, m_folge}) {
        connect(wahl, &QComboBox::currentIndexChanged, this, &Ranglistenfenster::ordne);
    }
    connect(m_filter, &Rangfilter::geaendert, this, &Ranglistenfenster::ordne);
    connect(m_eingrenzen, &QToolButton::toggled, this, [this](bool offen) {
        m_filterbereich->setVisible(offen);
        m_eingrenzen->setArrowType(offen ? Qt::DownArrow : Qt::RightArrow);
    });
    connect(m_aufheben, &QPushButton::clicked, m_filter, &Rangfilter::leere);
    connect(m_vergleichen, &QPushButton::clicked, this, &Ranglistenfenster::vergleiche);
    connect(m_leeren, &QPushButton::clicked, this, &Ranglistenfenster::leereWahl);
    connect(&m_tabelle->rangmodell(), &Rangmodell::wahlGewuenscht, this,
            &Ranglistenfenster::waehle);
    connect(m_tabelle, &Rangansicht::anzeigeGewuenscht, this,
            [this](qsizetype stelle) { Q_EMIT lebensmittelGewuenscht(schluessel(stelle)); });
    connect(m_tabelle, &Rangansicht::planGewuenscht, this,
            [this](qsizetype stelle) { Q_EMIT planGewuenscht(schluessel(stelle)); });
    connect(m_tabelle, &Rangansicht::menueGewuenscht, this, &Ranglistenfenster::zeigeMenue);
}

void Ranglistenfenster::beschrifte()
{
    setWindowTitle(localizedString(QStringLiteral("Rangliste der Lebensmittel")));
    m_seiten->setTabText(0, localizedString(QStringLiteral("&Rangliste")));
    m_frage->setText(localizedString(QStringLiteral("&Wonach:")));
    Rangworte::fuelleGroessen(*m_groesse);
    Rangworte::fuelleBezuege(*m_bezug);
    m_bezug->setAccessibleName(localizedString(QStringLiteral("Bezug")));
    m_folge->setAccessibleName(localizedString(QStringLiteral("Reihenfolge")));
    Rangworte::fuelle(*m_folge, {localizedString(QStringLiteral("Höchste zuerst")),
                                 localizedString(QStringLiteral("Niedrigste zuerst"))});
    m_aufheben->setText(localizedString(QStringLiteral("Eingrenzung auf&heben")));
    m_tabelle->setAccessibleName(localizedString(QStringLiteral("Rangliste")));
    m_tabelle->setAccessibleDescription(localizedString(QStringLiteral(
        "Die Eingabetaste zeigt das Lebensmittel im Hauptfenster, die Leertaste hakt es zum "
        "Vergleich an, mit Strg und Eingabetaste kommt es in den Plan.")));
    m_vergleichen->setText(localizedString(QStringLiteral("&Nebeneinander stellen")));
    m_leeren->setText(localizedString(QStringLiteral("&Alle abhaken")));
    zeigeFilterzahl();
    zeigeWahl();
}

void Ranglistenfenster::folgeSprache()
{
    beschrifte();
    m_filter->folgeSprache();
    m_vergleich->folgeSprache();
    m_tabelle->rangmodell().folgeSprache();
    frischeAuf(); // the order of the names is another one
}

void Ranglistenfenster::zeige(std::optional<Kenngroesse> groesse)
{
    if (groesse) {
        const QSignalBlocker still(m_groesse);
        m_groesse->setCurrentIndex(static_cast<int>(stelle(*groesse)));
        m_seiten->setCurrentIndex(0);
    }
    if (!isVisible()) {
        m_groesse->setFocus();
    }
    lies();
    show();
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
}

void Ranglistenfenster::frischeAuf()
{
    if (isVisible()) { // else the next `zeige` does
        lies();
    }
}

/// Reads the foods anew; those that are taken for comparing stay so while they are there.
void Ranglistenfenster::lies()
{
    QList<std::pair<QString, bool>> gewaehlte;
    for (const qsizetype stelle : std::as_const(m_gewaehlte)) {
        gewaehlte << std::pair(m_kandidaten[stelle].schluessel, m_kandidaten[stelle].eigen);
    }
    m_wissen = m_tueren.wissen();
    m_kandidaten = nachNamen(m_tueren.lebensmittel());
    m_portionen.clear();
    for (Kandidat &einer : m_kandidaten) {
        const std::optional<Mass> portion = ueblichePortion(m_tueren.masse(einer.schluessel));
        einer.portion = portion ? std::optional(portion->gramm) : std::nullopt;
        m_portionen << portion;
    }
    m_gewaehlte.clear();
    for (const auto &[schluessel, eigen] : std::as_const(gewaehlte)) {
        for (qsizetype i = 0; i < m_kandidaten.size(); ++i) {
            if (m_kandidaten[i].schluessel == schluessel && m_kandidaten[i].eigen == eigen) {
                m_gewaehlte << i;
            }
        }
    }
    ordne();
    zeigeWahl();
}

Rangfrage Ranglistenfenster::frage() const
{
    Rangfrage frage = {.groesse = Rangworte::gewaehlteGroesse(*m_groesse),
                       .bezug = Rangworte::gewaehlterBezug(*m_bezug),
                       .absteigend = m_folge->currentIndex() == HoechsteZuerst};
    m_filter->trageEin(frage);
    return frage;
}

void Ranglistenfenster::ordne()
{
    const Rangfrage gefragt = frage();
    const Rangliste liste = rangliste(m_kandidaten, gefragt, m_wissen);
    m_tabelle->zeige({m_kandidaten, m_portionen, gefragt, liste, m_wissen});
    m_filter->setzeVorgabe(gefragt.groesse);
    zeigeFilterzahl();
    zeigeWorte(liste, gefragt);
}

void Ranglistenfenster::zeigeWorte(const Rangliste &liste, const Rangfrage &frage)
{
    const bool leer = m_tabelle->rangmodell().rowCount() == 0;
    m_leer->setText(leer ? leerWorte(frage) : QString());
    m_liste->setCurrentWidget(leer ? m_leer : static_cast<QWidget *>(m_tabelle));
    QStringList ohneRang;
    if (!liste.ohneAngabe.isEmpty()) {
        ohneRang << zahlwort(liste.ohneAngabe.size(),
                             QT_TRANSLATE_NOOP("Mahlberg", "1 Lebensmittel ohne Angabe"),
                             QT_TRANSLATE_NOOP("Mahlberg", "%1 Lebensmittel ohne Angabe"));
    }
    if (!liste.ohnePortion.isEmpty()) {
        ohneRang << zahlwort(liste.ohnePortion.size(),
                             QT_TRANSLATE_NOOP("Mahlberg", "1 Lebensmittel ohne Portion"),
                             QT_TRANSLATE_NOOP("Mahlberg", "%1 Lebensmittel ohne Portion"));
    }
    const QString mitRang =
        zahlwort(liste.plaetze.size(), QT_TRANSLATE_NOOP("Mahlberg", "1 Lebensmittel mit Rang."),
                 QT_TRANSLATE_NOOP("Mahlberg", "%1 Lebensmittel mit Rang."));
    m_worte->setText(ohneRang.isEmpty()
                         ? mitRang
                         : localizedString(QStringLiteral("%1 Am Ende der Liste: %2."))
                               .arg(mitRang, ohneRang.join(QStringLiteral(", "))));
    m_worte->setVisible(!leer);
}

/// Why no food is left.
QString Ranglistenfenster::leerWorte(const Rangfrage &frage) const
{
    for (const Wertebereich &bereich : frage.bereiche) {
        if (bereich.von && bereich.bis && *bereich.von > *bereich.bis) {
            return localizedString(QStringLiteral("Kein Lebensmittel: Der Bereich für %1 hört auf, "
                                                  "bevor er anfängt."))
                .arg(nameVon(bereich.groesse));
        }
    }
    const bool keineEigenen = std::ranges::none_of(m_kandidaten, &Kandidat::eigen);
    if (frage.nurEigene && keineEigenen) {
        return localizedString(QStringLiteral("Es gibt noch keine eigenen Lebensmittel."));
    }
    if (frage.gruppe != nullptr && m_wissen.tabelle().isEmpty()) {
        return localizedString(
            QStringLiteral("Die Gruppen der Lebensmittel konnten nicht gelesen werden."));
    }
    return m_filter->zahl() == 0
               ? localizedString(QStringLiteral("Es gibt keine Lebensmittel."))
               : localizedString(QStringLiteral("Kein Lebensmittel erfüllt alles, was unter "
                                                "„Eingrenzen“ gewählt ist."));
}

void Ranglistenfenster::zeigeFilterzahl()
{
    const int zahl = m_filter->zahl();
    m_eingrenzen->setText(zahl == 0
                              ? localizedString(QStringLiteral("&Eingrenzen"))
                              : localizedString(QStringLiteral("&Eingrenzen (%1)")).arg(zahl));
    m_aufheben->setEnabled(zahl > 0);
}

void Ranglistenfenster::waehle(qsizetype stelle, bool ja)
{
    m_zuViele = ja && m_gewaehlte.size() >= meisteVerglichene;
    if (!ja) {
        m_gewaehlte.removeAll(stelle);
    } else if (!m_zuViele && !m_gewaehlte.contains(stelle)) {
        m_gewaehlte << stelle;
    }
    zeigeWahl();
}

void Ranglistenfenster::leereWahl()
{
    m_gewaehlte.clear();
    m_zuViele = false;
    zeigeWahl();
    m_tabelle->setFocus(); // the button goes off
}

void Ranglistenfenster::zeigeWahl()
{
    QList<Kandidat> gewaehlte;
    QList<std::optional<Mass>> portionen;
    QStringList namen;
    for (const qsizetype stelle : std::as_const(m_gewaehlte)) {
        gewaehlte << m_kandidaten[stelle];
        portionen << m_portionen[stelle];
        namen << m_kandidaten[stelle].schluessel;
    }
    m_tabelle->rangmodell().setzeGewaehlte({m_gewaehlte.begin(), m_gewaehlte.end()});
    m_vergleich->zeige(gewaehlte, portionen, m_wissen);
    const QString worte =
        namen.isEmpty()
            ? localizedString(QStringLiteral("Zum Vergleichen anhaken."))
            : localizedString(QStringLiteral("Zum Vergleich: %1")).arg(Einblickworte::namen(namen));
    m_wahl->setText(m_zuViele ? localizedString(QStringLiteral("Mehr als fünf passen nicht "
                                                               "nebeneinander. %1"))
                                    .arg(worte)
                              : worte);
    m_vergleichen->setEnabled(namen.size() >= wenigsteVerglichene);
    m_leeren->setEnabled(!namen.isEmpty());
    m_seiten->setTabText(
        1, namen.isEmpty() ? localizedString(QStringLiteral("&Vergleich"))
                           : localizedString(QStringLiteral("&Vergleich (%1)")).arg(namen.size()));
}

/// Side by side the figures are told per the same as in the ranks.
void Ranglistenfenster::vergleiche()
{
    m_vergleich->waehle(Rangworte::gewaehlterBezug(*m_bezug));
    m_seiten->setCurrentWidget(m_vergleich);
    m_vergleich->betrete();
}

void Ranglistenfenster::zeigeMenue(const QPoint &ort)
{
    const qsizetype stelle = m_tabelle->stelle();
    const bool gewaehlt = m_gewaehlte.contains(stelle);
    auto *menue = new QMenu(m_tabelle);
    menue->setObjectName(QStringLiteral("rangmenue"));
    menue->setAttribute(Qt::WA_DeleteOnClose);
    menue->addAction(mitTaste(localizedString(QStringLiteral("Im Hauptfenster &zeigen")), "Return"),
                     this, [this, stelle] { Q_EMIT lebensmittelGewuenscht(schluessel(stelle)); });
    menue->addAction(mitTaste(localizedString(QStringLiteral("In den Plan &geben")), "Ctrl+Return"),
                     this, [this, stelle] { Q_EMIT planGewuenscht(schluessel(stelle)); });
    menue->addAction(mitTaste(gewaehlt
                                  ? localizedString(QStringLiteral("Aus dem &Vergleich nehmen"))
                                  : localizedString(QStringLiteral("Zum &Vergleich nehmen")),
                              "Space"),
                     this, [this, stelle, gewaehlt] { waehle(stelle, !gewaehlt); });
    menue->addSeparator();
    menue->addAction(localizedString(QStringLiteral("Nach &Rang sortieren")), m_tabelle,
                     [this] { m_tabelle->sortiere(Rangmodell::Rang); });
    menue->addAction(localizedString(QStringLiteral("Nach &Namen sortieren")), m_tabelle,
                     [this] { m_tabelle->sortiere(Rangmodell::Name); });
    menue->popup(ort);
}
