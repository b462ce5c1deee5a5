#include "Vergleichsblatt.h"

#include "Rangworte.h"
#include "Satzfeld.h"
#include "Tabellenkopie.h"
#include "Wortkopf.h"
#include "Zeichenkettentabelle.h"
#include "Zeilenhoehe.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QStackedWidget>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int zeilenhoehe = 22;
constexpr int zellenrand = 6; // beside what a cell needs

/// A known figure goes out as a number, which can be computed with; its unit stands in a column.
Csv::Zelle zelle(const Vergleichszahl &eine, Kenngroesse groesse)
{
    return eine.wert.stand == Bezugswert::Stand::Bekannt
               ? Csv::Zelle(eine.wert.wert)
               : Csv::Zelle(Rangworte::wert(groesse, eine.wert));
}

} // namespace

Vergleichsblatt::Vergleichsblatt(QWidget *parent)
    : QWidget(parent)
    , m_frage(new QLabel)
    , m_bezug(new QComboBox)
    , m_kopieren(new QPushButton)
    , m_seiten(new QStackedWidget)
    , m_tabelle(new QTableView)
    , m_kopf(new Wortkopf(m_tabelle))
    , m_leer(neuesSatzfeld("vergleichleer"))
    , m_legende(neuesSatzfeld("vergleichlegende"))
{
    m_bezug->setObjectName(QStringLiteral("vergleichsbezug"));
    m_frage->setBuddy(m_bezug);
    m_kopieren->setObjectName(QStringLiteral("vergleichkopieren"));
    m_kopieren->setAutoDefault(false);
    m_tabelle->setObjectName(QStringLiteral("vergleich"));
    m_tabelle->setModel(&m_modell);
    m_tabelle->setHorizontalHeader(m_kopf);
    m_tabelle->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_tabelle->setSelectionMode(QAbstractItemView::SingleSelection);
    m_tabelle->setTabKeyNavigation(false);
    m_tabelle->setAlternatingRowColors(true);
    m_tabelle->setWordWrap(false);
    m_tabelle->verticalHeader()->setHighlightSections(false);
    baue();
    connect(m_bezug, &QComboBox::currentIndexChanged, this, &Vergleichsblatt::zeigeStand);
    connect(m_kopieren, &QPushButton::clicked, this, &Vergleichsblatt::kopiere);
    auto *taste = new QShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+C")), m_tabelle, nullptr,
                                nullptr, Qt::WidgetShortcut);
    connect(taste, &QShortcut::activated, this, &Vergleichsblatt::kopiere);
    folgeSprache();
}

void Vergleichsblatt::baue()
{
    m_seiten->addWidget(m_tabelle);
    m_seiten->addWidget(m_leer);
    m_leer->setAlignment(Qt::AlignCenter);
    auto *kopf = new QHBoxLayout;
    kopf->addWidget(m_frage);
    kopf->addWidget(m_bezug);
    kopf->addStretch(1);
    kopf->addWidget(m_kopieren);
    auto *anordnung = new QVBoxLayout(this);
    anordnung->addLayout(kopf);
    anordnung->addWidget(m_seiten, 1);
    anordnung->addWidget(m_legende);
}

void Vergleichsblatt::folgeSprache()
{
    m_frage->setText(localizedString(QStringLiteral("Be&zug:")));
    Rangworte::fuelleBezuege(*m_bezug);
    m_kopieren->setText(localizedString(QStringLiteral("Als &Tabelle kopieren")));
    m_tabelle->setAccessibleName(localizedString(QStringLiteral("Lebensmittel im Vergleich")));
    m_leer->setText(localizedString(QStringLiteral(
        "Haken Sie in der Rangliste zwei bis fünf Lebensmittel an, mit der Maus oder mit der "
        "Leertaste. Hier stehen sie dann nebeneinander.")));
    m_legende->setText(localizedString(QStringLiteral(
        "✓ besser nach dieser einen Angabe, für Erwachsene mit gesunden Nieren. Wo es darauf "
        "ankommt, wer es isst, ist nichts markiert. Unbekanntes wird nicht verglichen.")));
    m_modell.folgeSprache();
    zeigeStand();
}

void Vergleichsblatt::zeige(const QList<Kandidat> &kandidaten,
                            const QList<std::optional<Mass>> &portionen, const Stoffwissen &wissen)
{
    m_stand.kandidaten = kandidaten;
    m_stand.portionen = portionen;
    m_stand.wissen = wissen;
    zeigeStand();
}

void Vergleichsblatt::waehle(Bezug bezug)
{
    m_bezug->setCurrentIndex(static_cast<int>(bezug));
}

void Vergleichsblatt::betrete()
{
    if (!m_tabelle->currentIndex().isValid()) {
        m_tabelle->setCurrentIndex(m_modell.index(0, 0));
    }
    m_tabelle->setFocus();
}

void Vergleichsblatt::zeigeStand()
{
    const QModelIndex bisher = m_tabelle->currentIndex();
    const int reihe = bisher.row();
    const int spalte = bisher.column();
    m_stand.bezug = Rangworte::gewaehlterBezug(*m_bezug);
    m_modell.zeige(m_stand);
    const bool genug = m_stand.kandidaten.size() >= wenigsteVerglichene;
    m_seiten->setCurrentWidget(genug ? static_cast<QWidget *>(m_tabelle) : m_leer);
    m_kopieren->setEnabled(genug);
    m_legende->setVisible(genug);
    m_tabelle->setCurrentIndex(m_modell.index(reihe, spalte));
    stelleSpalten();
}

/// Each column is as wide as the widest needs to be, and what room there is they share.
void Vergleichsblatt::stelleSpalten()
{
    int breite = m_kopf->wortbreite();
    for (int spalte = 0; spalte < m_modell.columnCount(); ++spalte) {
        for (int reihe = 0; reihe < m_modell.rowCount(); ++reihe) {
            const QModelIndex zelle = m_modell.index(reihe, spalte);
            breite = std::max(breite, m_tabelle->sizeHintForIndex(zelle).width());
        }
    }
    m_kopf->setMinimumSectionSize(breite + zellenrand);
    m_kopf->setSectionResizeMode(QHeaderView::Stretch);
    m_tabelle->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_tabelle->verticalHeader()->setDefaultSectionSize(zeilenhoeheFuer(*m_tabelle, zeilenhoehe));
}

/// What stands there, with the better foods named: a spreadsheet knows no ticks.
void Vergleichsblatt::kopiere() const
{
    Csv::Tabelle tabelle;
    tabelle.spalten << Rangworte::bezug(m_stand.bezug)
                    << localizedString(QStringLiteral("Einheit"));
    for (const Kandidat &einer : m_stand.kandidaten) {
        tabelle.spalten << localizedString(einer.schluessel);
    }
    tabelle.spalten << localizedString(QStringLiteral("Besser"));
    for (const Vergleichsreihe &reihe : m_modell.reihen()) {
        QList<Csv::Zelle> zellen = {nameVon(reihe.groesse), einheitVon(reihe.groesse)};
        QStringList bessere;
        for (qsizetype i = 0; i < reihe.zahlen.size(); ++i) {
            zellen << zelle(reihe.zahlen[i], reihe.groesse);
            if (reihe.zahlen[i].besser) {
                bessere << localizedString(m_stand.kandidaten[i].schluessel);
            }
        }
        tabelle.zeilen << (zellen << bessere.join(QStringLiteral("; ")));
    }
    for (const Wertungsbeschreibung &eine : wertungen) {
        QList<Csv::Zelle> zellen = {localizedString(QString::fromUtf8(eine.bezeichnung)),
                                    QString()};
        for (const Kandidat &einer : m_stand.kandidaten) {
            zellen << einer.satz.wertung(eine.wertung);
        }
        tabelle.zeilen << (zellen << QString());
    }
    Tabellenkopie::kopiere(tabelle);
}
