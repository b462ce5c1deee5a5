#include "Zutatenliste.h"

#include "Einblickworte.h"
#include "Mengenangabe.h"
#include "Rezeptworte.h"
#include "Zeichenkettentabelle.h"
#include "Zeilenhoehe.h"

#include <QAbstractItemDelegate>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

enum Spalte { Name, Menge, AnzahlSpalten };

constexpr int zeilenhoehe = 24;
constexpr int mindestzeilen = 4;
constexpr qsizetype meisteTreffer = 6;
/// What a new ingredient weighs until its amount is typed, which is at once.
constexpr double ersteMenge = 100;

/// The cell, which is made where there is none yet: one in which somebody types must stay.
QTableWidgetItem &zelle(QTableWidget &tabelle, int reihe, int spalte)
{
    if (tabelle.item(reihe, spalte) == nullptr) {
        const bool menge = spalte == Menge;
        auto *neu = new QTableWidgetItem;
        neu->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable |
                      (menge ? Qt::ItemIsEditable : Qt::NoItemFlags));
        neu->setTextAlignment((menge ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
        tabelle.setItem(reihe, spalte, neu);
    }
    return *tabelle.item(reihe, spalte);
}

} // namespace

Zutatenliste::Zutatenliste(Zutatentueren tueren, QWidget *parent)
    : QWidget(parent)
    , m_tueren(std::move(tueren))
    , m_tabelle(new QTableWidget(0, AnzahlSpalten))
    , m_heraus(new QPushButton)
    , m_feldwort(new QLabel)
    , m_feld(new QLineEdit)
    , m_treffer(new QListWidget)
    , m_worte(new QLabel)
{
    baue();
    folgeSprache();
    connect(m_tabelle, &QTableWidget::itemChanged, this,
            [this](const QTableWidgetItem *eine) { liesMenge(*eine); });
    connect(
        m_tabelle->itemDelegate(), &QAbstractItemDelegate::closeEditor, this,
        [this] {
            if (std::exchange(m_tipptNeue, false)) {
                gehZumFeld();
            }
        },
        Qt::QueuedConnection);
    connect(m_heraus, &QPushButton::clicked, this, &Zutatenliste::nimmHeraus);
    connect(m_feld, &QLineEdit::textEdited, this, &Zutatenliste::schlageVor);
    connect(m_treffer, &QListWidget::itemClicked, this, &Zutatenliste::nimmAuf);
}

void Zutatenliste::baue()
{
    m_tabelle->setObjectName(QStringLiteral("zutaten"));
    m_tabelle->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_tabelle->setSelectionMode(QAbstractItemView::SingleSelection);
    m_tabelle->setEditTriggers(
        QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked |
        QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed);
    m_tabelle->setTabKeyNavigation(false);
    m_tabelle->setAlternatingRowColors(true);
    m_tabelle->setShowGrid(false);
    m_tabelle->verticalHeader()->hide();
    m_tabelle->horizontalHeader()->setHighlightSections(false);
    m_tabelle->horizontalHeader()->setSectionResizeMode(Menge, QHeaderView::ResizeToContents);
    m_tabelle->horizontalHeader()->setSectionResizeMode(Name, QHeaderView::Stretch);
    m_tabelle->setMinimumHeight(mindestzeilen * zeilenhoeheFuer(*m_tabelle, zeilenhoehe));
    m_tabelle->installEventFilter(this);
    m_heraus->setObjectName(QStringLiteral("herausnehmen"));
    m_heraus->setAutoDefault(false);
    m_feld->setObjectName(QStringLiteral("neueZutat"));
    m_feld->installEventFilter(this);
    m_feldwort->setBuddy(m_feld);
    m_treffer->setObjectName(QStringLiteral("treffer"));
    m_treffer->setFocusPolicy(Qt::NoFocus); // the field keeps the keyboard
    m_treffer->hide();
    m_worte->setObjectName(QStringLiteral("zutatenworte"));
    m_worte->setTextFormat(Qt::PlainText);
    m_worte->setWordWrap(true);
    m_worte->hide();
    auto *anordnung = new QVBoxLayout(this);
    anordnung->setContentsMargins(0, 0, 0, 0);
    anordnung->addWidget(m_tabelle, 1);
    anordnung->addWidget(m_heraus, 0, Qt::AlignLeft);
    anordnung->addWidget(m_worte);
    anordnung->addWidget(m_feldwort);
    anordnung->addWidget(m_feld);
    anordnung->addWidget(m_treffer);
}

void Zutatenliste::folgeSprache()
{
    m_tabelle->setHorizontalHeaderLabels(
        {localizedString(QStringLiteral("Zutat")), localizedString(QStringLiteral("Menge"))});
    m_tabelle->setAccessibleName(localizedString(QStringLiteral("Zutaten des Gerichts")));
    m_tabelle->setAccessibleDescription(localizedString(QStringLiteral(
        "F2 ändert die Menge der gewählten Zutat, die Entfernen-Taste nimmt sie heraus.")));
    m_heraus->setText(localizedString(QStringLiteral("Zutat he&rausnehmen")));
    m_feldwort->setText(localizedString(QStringLiteral("Zutat &hinzufügen:")));
    m_feld->setPlaceholderText(localizedString(QStringLiteral("Name eines Lebensmittels")));
    m_treffer->setAccessibleName(localizedString(QStringLiteral("Passende Lebensmittel")));
    sage({});
    fuelle();
    schlageVor();
}

void Zutatenliste::zeige(const QList<Rezeptzutat> &zutaten)
{
    m_zutaten = zutaten;
    fuelle();
}

void Zutatenliste::beendeEingabe()
{
    if (QWidget *feld = m_tabelle->indexWidget(m_tabelle->currentIndex())) {
        m_tipptNeue = false; // the keyboard goes where the user wants it
        Q_EMIT m_tabelle->itemDelegate()->commitData(feld);
        Q_EMIT m_tabelle->itemDelegate()->closeEditor(feld);
    }
}

QString Zutatenliste::nimmAngefangenes()
{
    const QString text = m_feld->text().trimmed();
    return std::exchange(m_angefangen, text) == text ? QString() : text;
}

void Zutatenliste::gehZumFeld()
{
    m_feld->setFocus(Qt::TabFocusReason);
}

void Zutatenliste::fuelle()
{
    const QSignalBlocker still(m_tabelle);
    const int bisher = m_tabelle->currentRow();
    m_tabelle->setRowCount(static_cast<int>(m_zutaten.size()));
    for (int reihe = 0; reihe < m_tabelle->rowCount(); ++reihe) {
        const Rezeptzutat &eine = m_zutaten[reihe];
        const QString name = localizedString(eine.schluessel);
        zelle(*m_tabelle, reihe, Name).setText(name);
        zelle(*m_tabelle, reihe, Name).setToolTip(Einblickworte::hinweistext(name));
        zelle(*m_tabelle, reihe, Menge).setText(Rezeptworte::gramm(eine.gramm));
    }
    m_tabelle->verticalHeader()->setDefaultSectionSize(zeilenhoeheFuer(*m_tabelle, zeilenhoehe));
    m_tabelle->setCurrentCell(std::clamp(bisher, 0, std::max(0, m_tabelle->rowCount() - 1)), Menge);
    m_heraus->setEnabled(!m_zutaten.isEmpty());
}

void Zutatenliste::schlageVor()
{
    const QString text = m_feld->text().trimmed();
    m_vorschlaege = text.isEmpty() ? QList<Zutatenvorschlag>() : m_tueren.suche(text);
    m_vorschlaege = m_vorschlaege.first(std::min(meisteTreffer, m_vorschlaege.size()));
    m_treffer->clear();
    for (const Zutatenvorschlag &einer : std::as_const(m_vorschlaege)) {
        m_treffer->addItem(einer.anzeige);
    }
    m_treffer->setCurrentRow(0);
    const int hoehe = m_treffer->sizeHintForRow(0) * static_cast<int>(m_vorschlaege.size());
    m_treffer->setFixedHeight(std::max(0, hoehe) + 2 * m_treffer->frameWidth());
    m_treffer->setVisible(!m_vorschlaege.isEmpty());
    const bool nichts = !text.isEmpty() && m_vorschlaege.isEmpty();
    sage(nichts ? localizedString(QStringLiteral("Kein Lebensmittel heißt so.")) : QString());
}

/// Takes the chosen food up, and lets its amount be typed at once.
void Zutatenliste::nimmAuf()
{
    const int welcher = m_treffer->currentRow();
    if (welcher < 0) {
        return;
    }
    const Zutatenvorschlag &neue = m_vorschlaege[welcher];
    m_zutaten << Rezeptzutat{neue.schluessel, ersteMenge, neue.satz};
    m_feld->clear();
    schlageVor();
    fuelle();
    const int reihe = m_tabelle->rowCount() - 1;
    m_tabelle->setFocus(Qt::TabFocusReason);
    m_tabelle->setCurrentCell(reihe, Menge);
    m_tabelle->editItem(m_tabelle->item(reihe, Menge));
    m_tipptNeue = true;
    Q_EMIT geaendert();
}

void Zutatenliste::nimmHeraus()
{
    const int reihe = m_tabelle->currentRow();
    if (reihe < 0 || reihe >= m_zutaten.size()) {
        return;
    }
    m_zutaten.removeAt(reihe);
    sage({});
    fuelle();
    if (m_zutaten.isEmpty()) {
        gehZumFeld();
    }
    Q_EMIT geaendert();
}

/// What can't be understood leaves the amount as it was, with a word.
void Zutatenliste::liesMenge(const QTableWidgetItem &zelle)
{
    if (zelle.column() != Menge) {
        return;
    }
    Rezeptzutat &zutat = m_zutaten[zelle.row()];
    const Mengenergebnis ergebnis = leseMenge(zelle.text(), m_tueren.masse(zutat.schluessel));
    if (ergebnis.angabe) {
        zutat.gramm = Rezeptworte::grammVon(*ergebnis.angabe);
    }
    m_unverstanden = ergebnis.fehler.has_value();
    sage(ergebnis.fehler ? fehlertext(*ergebnis.fehler) : QString());
    fuelle();
    if (ergebnis.angabe) {
        Q_EMIT geaendert();
    }
}

void Zutatenliste::sage(const QString &worte)
{
    m_worte->setText(worte.isEmpty() ? QString() : QStringLiteral("⚠ ") + worte);
    m_worte->setVisible(!worte.isEmpty());
    m_feld->setAccessibleDescription(worte);
}

bool Zutatenliste::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const int taste = static_cast<QKeyEvent *>(event)->key();
        const bool genommen =
            watched == m_feld ? nimmTasteImFeld(taste) : nimmTasteInTabelle(taste);
        if (genommen) {
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

/// While somebody types in a cell the keys are that cell's.
bool Zutatenliste::nimmTasteInTabelle(int taste)
{
    if (!m_tabelle->hasFocus()) {
        return false;
    }
    if (taste == Qt::Key_Delete) {
        nimmHeraus();
        return true;
    }
    if (taste == Qt::Key_Return || taste == Qt::Key_Enter) {
        m_tabelle->editItem(m_tabelle->item(m_tabelle->currentRow(), Menge));
        return true;
    }
    return false;
}

/// The arrow keys choose among what fits, while the keyboard stays in the field. Return must not
/// reach the dialog, and Escape not before the field is empty.
bool Zutatenliste::nimmTasteImFeld(int taste)
{
    switch (taste) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        nimmAuf();
        return true;
    case Qt::Key_Down:
    case Qt::Key_Up: {
        const int ziel = m_treffer->currentRow() + (taste == Qt::Key_Down ? 1 : -1);
        m_treffer->setCurrentRow(std::clamp(ziel, 0, std::max(0, m_treffer->count() - 1)));
        return true;
    }
    case Qt::Key_Escape: {
        const bool voll = !m_feld->text().isEmpty();
        m_feld->clear();
        schlageVor();
        return voll;
    }
    default:
        return false;
    }
}
