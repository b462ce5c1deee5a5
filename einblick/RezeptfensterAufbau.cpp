// How the window of a recipe is built and what its parts are called.

#include "Rezeptfenster.h"
#include "Rollbereich.h"
#include "Satzfeld.h"
#include "Schriftstufe.h"
#include "Wertungswahl.h"
#include "Zahlenzeile.h"
#include "Zeichenkettentabelle.h"
#include "Zeilenhoehe.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>

#include <utility>

namespace {

constexpr QSize fenstergroesse(520, 640);
constexpr int zeilenhoehe = 24;
constexpr int wertspalten = 3; // name, per 100 g, of how much unknown

enum Seite { Zutaten, Werte, Wertungen, Zubereitung };

/// A line of its own, also while it says nothing: the fields must not move while one types.
void haltePlatz(QLabel &worte)
{
    QSizePolicy platz = worte.sizePolicy();
    platz.setRetainSizeWhenHidden(true);
    worte.setSizePolicy(platz);
    worte.setMinimumHeight(worte.fontMetrics().lineSpacing());
}

/// With the same margin around it as the fields of the other sheets.
QWidget *aufSeite(QWidget *inhalt)
{
    auto *seite = new QWidget;
    auto *anordnung = new QVBoxLayout(seite);
    anordnung->addWidget(inhalt);
    return seite;
}

} // namespace

Rezeptfenster::Rezeptfenster(Rezept rezept, Stoffwissen wissen, Rezepte andere, Rezepttueren tueren,
                             QWidget *parent)
    : QDialog(parent)
    , m_rezept(std::move(rezept))
    , m_wissen(std::move(wissen))
    , m_andere(std::move(andere))
    , m_tueren(std::move(tueren))
    , m_namenswort(new QLabel)
    , m_name(new QLineEdit)
    , m_seiten(new QTabWidget)
    , m_zutaten(new Zutatenliste(m_tueren.zutaten))
    , m_roh(neuesSatzfeld("rohgewicht"))
    , m_gewichtswort(new QLabel)
    , m_gewicht(new Zahlenzeile)
    , m_wasser(neuesSatzfeld("wasser"))
    , m_portionswort(new QLabel)
    , m_portionen(new Zahlenzeile)
    , m_jePortion(neuesSatzfeld("jePortion"))
    , m_werte(new QTableWidget(static_cast<int>(anzahlKenngroessen), wertspalten))
    , m_gruppenwort(new QLabel)
    , m_gruppe(new QComboBox)
    , m_notiz(new QPlainTextEdit)
    , m_folgt(new QCheckBox)
    , m_verluste(neuesSatzfeld("verluste"))
    , m_worte(neuesSatzfeld("rezeptworte"))
    , m_sichern(new QPushButton)
    , m_abbrechen(new QPushButton)
{
    baue();
    beschrifte();
    zeigeRezept();
    m_anfang = eingegebenes();
    verbinde();
    Schriftstufe::kleide(*this);
    resize(fenstergroesse);
    if (m_name->text().isEmpty()) {
        m_name->setFocus();
    } else {
        m_zutaten->gehZumFeld();
    }
}

void Rezeptfenster::baue()
{
    setObjectName(QStringLiteral("rezeptfenster"));
    m_name->setObjectName(QStringLiteral("rezeptname"));
    m_namenswort->setBuddy(m_name);
    m_seiten->setObjectName(QStringLiteral("rezeptseiten"));
    m_notiz->setObjectName(QStringLiteral("zubereitung"));
    m_notiz->setTabChangesFocus(true);
    m_folgt->setObjectName(QStringLiteral("folgt"));
    m_sichern->setObjectName(QStringLiteral("sichern"));
    m_abbrechen->setObjectName(QStringLiteral("abbrechen"));
    baueWerte();
    m_seiten->addTab(baueZutatenseite(), {});
    m_seiten->addTab(aufSeite(m_werte), {});
    m_seiten->addTab(baueWertungsseite(), {});
    m_seiten->addTab(aufSeite(m_notiz), {});
    auto *kopf = new QHBoxLayout;
    kopf->addWidget(m_namenswort);
    kopf->addWidget(m_name, 1);
    auto *knoepfe = new QHBoxLayout;
    knoepfe->addStretch(1);
    for (QPushButton *knopf : {m_sichern, m_abbrechen}) {
        knopf->setAutoDefault(false); // Return belongs to the fields
        knoepfe->addWidget(knopf);
    }
    auto *anordnung = new QVBoxLayout(this);
    anordnung->addLayout(kopf);
    anordnung->addWidget(m_seiten, 1);
    anordnung->addWidget(m_folgt);
    anordnung->addWidget(m_verluste);
    anordnung->addWidget(m_worte);
    haltePlatz(*m_worte);
    anordnung->addLayout(knoepfe);
}

QWidget *Rezeptfenster::baueZutatenseite()
{
    m_gewicht->setObjectName(QStringLiteral("fertiggewicht"));
    m_gewichtswort->setBuddy(m_gewicht);
    m_portionen->setObjectName(QStringLiteral("portionen"));
    m_portionswort->setBuddy(m_portionen);
    auto *angaben = new QGridLayout;
    angaben->addWidget(m_roh, 0, 0, 1, 3);
    angaben->addWidget(m_gewichtswort, 1, 0);
    angaben->addWidget(m_gewicht, 1, 1);
    angaben->addWidget(m_wasser, 1, 2);
    angaben->addWidget(m_portionswort, 2, 0);
    angaben->addWidget(m_portionen, 2, 1);
    angaben->addWidget(m_jePortion, 2, 2);
    angaben->setColumnStretch(1, 1);
    angaben->setColumnStretch(2, 1);
    auto *seite = new QWidget;
    auto *anordnung = new QVBoxLayout(seite);
    anordnung->addWidget(m_zutaten, 1);
    anordnung->addLayout(angaben);
    return new Rollbereich(seite);
}

void Rezeptfenster::baueWerte()
{
    m_werte->setObjectName(QStringLiteral("werte"));
    m_werte->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_werte->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_werte->setTabKeyNavigation(false);
    m_werte->setShowGrid(false);
    m_werte->setAlternatingRowColors(true);
    m_werte->verticalHeader()->hide();
    m_werte->verticalHeader()->setDefaultSectionSize(zeilenhoeheFuer(*m_werte, zeilenhoehe));
    m_werte->horizontalHeader()->setHighlightSections(false);
    m_werte->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_werte->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    for (int reihe = 0; reihe < m_werte->rowCount(); ++reihe) {
        for (int spalte = 0; spalte < wertspalten; ++spalte) {
            auto *zelle = new QTableWidgetItem;
            zelle->setTextAlignment((spalte == 0 ? Qt::AlignLeft : Qt::AlignRight) |
                                    Qt::AlignVCenter);
            m_werte->setItem(reihe, spalte, zelle);
        }
    }
}

QWidget *Rezeptfenster::baueWertungsseite()
{
    m_gruppe->setObjectName(QStringLiteral("gruppe"));
    m_gruppe->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_gruppenwort->setBuddy(m_gruppe);
    auto *seite = new QWidget;
    auto *anordnung = new QVBoxLayout(seite);
    anordnung->addWidget(m_gruppenwort);
    anordnung->addWidget(m_gruppe);
    for (const Wertungsbeschreibung &eine : wertungen) {
        m_wertungen[stelle(eine.wertung)] = new Wertungswahl(eine.wertung);
        anordnung->addWidget(m_wertungen[stelle(eine.wertung)]);
    }
    anordnung->addStretch(1);
    return new Rollbereich(seite);
}

void Rezeptfenster::verbinde()
{
    for (QLineEdit *feld : {m_name, m_gewicht, m_portionen}) {
        connect(feld, &QLineEdit::textChanged, this, &Rezeptfenster::rechne);
    }
    connect(m_zutaten, &Zutatenliste::geaendert, this, &Rezeptfenster::rechne);
    connect(m_gruppe, &QComboBox::currentIndexChanged, this, &Rezeptfenster::rechne);
    connect(m_sichern, &QPushButton::clicked, this, &Rezeptfenster::sichere);
    connect(m_abbrechen, &QPushButton::clicked, this, &Rezeptfenster::reject);
}

void Rezeptfenster::beschrifte()
{
    setWindowTitle(localizedString(QStringLiteral("Rezept")));
    m_namenswort->setText(localizedString(QStringLiteral("&Name:")));
    m_seiten->setTabText(Zutaten, localizedString(QStringLiteral("&Zutaten")));
    m_seiten->setTabText(Werte, localizedString(QStringLiteral("&Werte")));
    m_seiten->setTabText(Wertungen, localizedString(QStringLiteral("W&ertungen")));
    m_seiten->setTabText(Zubereitung, localizedString(QStringLiteral("Zu&bereitung")));
    m_gewichtswort->setText(localizedString(QStringLiteral("Gewicht nach dem &Garen (g):")));
    m_portionswort->setText(localizedString(QStringLiteral("&Portionen:")));
    m_werte->setHorizontalHeaderLabels({localizedString(QStringLiteral("Wert")),
                                        localizedString(QStringLiteral("je 100 g")),
                                        localizedString(QStringLiteral("unbekannt"))});
    m_werte->setAccessibleName(
        localizedString(QStringLiteral("Werte je 100 g des fertigen Gerichts")));
    m_gruppenwort->setText(
        localizedString(QStringLiteral("Gewertet wie die Lebensmittelgr&uppe:")));
    m_notiz->setAccessibleName(localizedString(QStringLiteral("Zubereitung und Notizen")));
    m_folgt->setText(localizedString(QStringLiteral("&Folgt den Zutaten")));
    const QString folge =
        localizedString(QStringLiteral("Ändert sich eine Zutat, wird das Gericht neu gerechnet."));
    m_folgt->setToolTip(folge);
    m_folgt->setAccessibleDescription(folge);
    m_verluste->setText(localizedString(
        QStringLiteral("Verluste beim Garen sind nicht eingerechnet: Vitamine, Mineralstoffe im "
                       "Kochwasser, abgegossenes Fett.")));
    m_sichern->setText(localizedString(QStringLiteral("&Sichern")));
    m_abbrechen->setText(localizedString(QStringLiteral("Abbrechen")));
}

void Rezeptfenster::folgeSprache()
{
    beschrifte();
    m_zutaten->folgeSprache();
    for (Wertungswahl *eine : m_wertungen) {
        eine->folgeSprache();
    }
    rechne();
}
