#include "Zahlenblatt.h"

#include "Satzfeld.h"
#include "Zahlenmaler.h"
#include "Zeichenkettentabelle.h"

#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QTableView>
#include <QTextEdit>
#include <QVBoxLayout>

#include <algorithm>

namespace {

/// So many lines of the details are to be seen at once; the rest rolls.
constexpr int einzelheitenzeilen = 6;

bool hatGicht(const Einblickstand &stand)
{
    return stand.leiden[stelle(Wertung::gicht)];
}

Tagesangaben angaben(const Einblickstand &stand)
{
    return {.speisen = stand.speisen,
            .mahlzeiten = stand.mahlzeiten,
            .ganzerTag = stand.gegenstand != Gegenstand::Lebensmittel,
            .person = stand.person,
            .gicht = hatGicht(stand)};
}

} // namespace

Zahlenblatt::Zahlenblatt(QWidget *parent)
    : Einblickblatt(parent)
    , m_tabelle(new QTableView)
    , m_anmerkung(neuesAbschreibfeld("anmerkung"))
    , m_leer(neuesAbschreibfeld("leer"))
    , m_einzelheiten(new QTextEdit)
{
    baueTabelle();
    m_einzelheiten->setObjectName(QStringLiteral("einzelheiten"));
    m_einzelheiten->setReadOnly(true);
    m_einzelheiten->setAcceptRichText(false);
    m_einzelheiten->setTextInteractionFlags(Qt::TextSelectableByMouse |
                                            Qt::TextSelectableByKeyboard);
    auto *anordnung = new QVBoxLayout(this);
    anordnung->addWidget(m_anmerkung);
    anordnung->addWidget(m_tabelle, 1);
    anordnung->addWidget(m_leer, 1, Qt::AlignTop);
    anordnung->addWidget(m_einzelheiten);
    folgeSprache();
}

void Zahlenblatt::baueTabelle()
{
    m_tabelle->setObjectName(QStringLiteral("zahlen"));
    m_tabelle->setModel(&m_modell);
    m_tabelle->setItemDelegate(new Zahlenmaler(m_tabelle));
    m_tabelle->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_tabelle->setSelectionMode(QAbstractItemView::SingleSelection);
    m_tabelle->setShowGrid(false);
    m_tabelle->setAlternatingRowColors(true);
    m_tabelle->setTabKeyNavigation(false);
    m_tabelle->setWordWrap(true);
    m_tabelle->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_tabelle->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_tabelle->verticalHeader()->hide();
    m_tabelle->horizontalHeader()->setHighlightSections(false);
    m_tabelle->horizontalHeader()->setSectionsClickable(false);
    m_tabelle->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    connect(m_tabelle->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &Zahlenblatt::zeigeEinzelheiten);
}

void Zahlenblatt::folgeSprache()
{
    m_tabelle->setAccessibleName(localizedString(QStringLiteral("Weitere Werte des Tages")));
    m_tabelle->setAccessibleDescription(localizedString(
        QStringLiteral("Einzelheiten zur gewählten Zeile stehen unter der Tabelle.")));
    m_einzelheiten->setAccessibleName(
        localizedString(QStringLiteral("Einzelheiten zur gewählten Zeile")));
    m_leer->setText(localizedString(QStringLiteral("Hier zählt noch kein Lebensmittel.")));
    m_modell.folgeSprache();
    zeigeStand();
}

void Zahlenblatt::zeige(const Einblickstand &stand)
{
    const QString gewaehlt =
        m_tabelle->currentIndex().siblingAtColumn(Zahlenmodell::Angabe).data().toString();
    m_stand = stand;
    m_modell.zeige(stand.speisen.isEmpty() ? QList<Tageszahl>()
                                           : tageszahlen(angaben(stand), stand.wissen),
                   stand.wissen);
    m_tabelle->selectRow(std::max(0, m_modell.zeileVon(gewaehlt)));
    zeigeStand();
}

void Zahlenblatt::zeigeStand()
{
    const bool leer = m_modell.rowCount() == 0;
    m_tabelle->setVisible(!leer);
    m_einzelheiten->setVisible(!leer);
    m_leer->setVisible(leer);
    m_anmerkung->setText(anmerkung());
    m_anmerkung->setVisible(!leer && !m_anmerkung->text().isEmpty());
    zeigeEinzelheiten();
    stelleSpalten();
}

/// What must be known to read the limits.
QString Zahlenblatt::anmerkung() const
{
    QStringList saetze;
    if (m_stand.gegenstand == Gegenstand::Lebensmittel) {
        saetze << localizedString(QStringLiteral(
            "Die Grenzen gelten für einen ganzen Tag; ein einzelnes Lebensmittel wird nicht daran "
            "gemessen."));
    } else {
        if (!m_stand.person.alter) {
            saetze << localizedString(
                QStringLiteral("Ohne Alter gelten die Grenzen für Erwachsene."));
        }
        if (!hatGicht(m_stand)) {
            saetze << localizedString(
                QStringLiteral("An den Grenzen für Purine wird nur bei Gicht gemessen."));
        }
    }
    return saetze.join(u' ');
}

void Zahlenblatt::zeigeEinzelheiten()
{
    m_einzelheiten->setPlainText(
        m_tabelle->currentIndex().data(Zahlenmodell::einzelheitenrolle).toString());
}

/// The widest word of the amounts, which can't be broken.
int Zahlenblatt::breitestesWort() const
{
    const QFontMetrics schrift = m_tabelle->fontMetrics();
    int breite = 0;
    for (int zeile = 0; zeile < m_modell.rowCount(); ++zeile) {
        const QString menge = m_modell.index(zeile, Zahlenmodell::Menge).data().toString();
        for (const QString &wort : menge.split(u' ')) {
            breite = std::max(breite, schrift.horizontalAdvance(wort));
        }
    }
    return breite;
}

/// The amounts get what they need in one line; where that is more than a third, they are broken
/// into lines, so that enough is left for what they are.
void Zahlenblatt::stelleSpalten()
{
    const int zeile = m_einzelheiten->fontMetrics().lineSpacing();
    m_einzelheiten->setFixedHeight(
        einzelheitenzeilen * zeile + 2 * m_einzelheiten->frameWidth() +
        static_cast<int>(2 * m_einzelheiten->document()->documentMargin()));
    const int breite = m_tabelle->viewport()->width();
    m_tabelle->resizeColumnToContents(Zahlenmodell::Menge);
    const int menge = std::min(m_tabelle->columnWidth(Zahlenmodell::Menge),
                               std::max(breite / 3, Zahlenmaler::breiteFuer(breitestesWort())));
    m_tabelle->setColumnWidth(Zahlenmodell::Menge, menge);
    m_tabelle->setColumnWidth(Zahlenmodell::Angabe, breite - menge);
    m_tabelle->resizeRowsToContents();
}

void Zahlenblatt::resizeEvent(QResizeEvent *event)
{
    Einblickblatt::resizeEvent(event);
    stelleSpalten();
}

void Zahlenblatt::showEvent(QShowEvent *event)
{
    Einblickblatt::showEvent(event);
    stelleSpalten();
}

/// Another size of type needs other heights.
void Zahlenblatt::changeEvent(QEvent *event)
{
    Einblickblatt::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        stelleSpalten();
    }
}
