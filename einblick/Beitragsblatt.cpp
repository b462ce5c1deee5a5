#include "Beitragsblatt.h"

#include "Balkenmaler.h"
#include "Einblickworte.h"
#include "Satzfeld.h"
#include "Zeichenkettentabelle.h"

#include <QComboBox>
#include <QEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace {

/// The ratings stand below the line, numbered from here on.
constexpr int ersteWertung = 1000;

/// Rows without grams give nothing.
bool zaehltEtwas(const Speisen &speisen)
{
    return std::ranges::any_of(speisen,
                               [](const Speise &eine) { return zaehlendeGramm(eine) > 0; });
}

} // namespace

Beitragsblatt::Beitragsblatt(QWidget *parent)
    : Einblickblatt(parent)
    , m_frage(new QLabel)
    , m_wovon(new QComboBox)
    , m_summe(neuesAbschreibfeld("summe"))
    , m_leer(neuesAbschreibfeld("leer"))
    , m_tabelle(new QTableView)
    , m_unbekannt(neuesAbschreibfeld("unbekannt"))
{
    m_wovon->setObjectName(QStringLiteral("wovon"));
    m_wovon->setMaxVisibleItems(30);
    m_frage->setBuddy(m_wovon);
    m_tabelle->setObjectName(QStringLiteral("beitraege"));
    m_tabelle->setModel(&m_modell);
    m_tabelle->setItemDelegateForColumn(Beitragsmodell::Anteil, new Balkenmaler(m_tabelle));
    m_tabelle->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_tabelle->setSelectionMode(QAbstractItemView::SingleSelection);
    m_tabelle->setShowGrid(false);
    m_tabelle->setAlternatingRowColors(true);
    m_tabelle->setTabKeyNavigation(false);
    m_tabelle->setWordWrap(false);
    m_tabelle->verticalHeader()->hide();
    m_tabelle->horizontalHeader()->setHighlightSections(false);
    m_tabelle->installEventFilter(this);
    auto *anordnung = new QVBoxLayout(this);
    auto *kopf = new QHBoxLayout;
    kopf->addWidget(m_frage);
    kopf->addWidget(m_wovon, 1);
    anordnung->addLayout(kopf);
    anordnung->addWidget(m_summe);
    anordnung->addWidget(m_tabelle, 1);
    anordnung->addWidget(m_leer, 1, Qt::AlignTop);
    anordnung->addWidget(m_unbekannt);
    connect(m_wovon, &QComboBox::currentIndexChanged, this, &Beitragsblatt::zeigeGewaehltes);
    connect(m_tabelle, &QTableView::doubleClicked, this, &Beitragsblatt::geheZuZeile);
    folgeSprache();
}

void Beitragsblatt::folgeSprache()
{
    m_frage->setText(localizedString(QStringLiteral("Woh&er kommt:")));
    m_tabelle->setAccessibleName(localizedString(QStringLiteral("Beiträge der Lebensmittel")));
    m_tabelle->setAccessibleDescription(
        localizedString(QStringLiteral("Die Eingabetaste führt zur Zeile des Lebensmittels.")));
    fuelleAuswahl();
    zeigeWieder();
}

/// What was chosen stays chosen under its other name.
void Beitragsblatt::fuelleAuswahl()
{
    const int bisher = m_wovon->currentIndex();
    const QSignalBlocker still(m_wovon);
    m_wovon->clear();
    for (const Kenngroessenbeschreibung &eine : kenngroessen) {
        m_wovon->addItem(nameVon(eine.groesse), static_cast<int>(stelle(eine.groesse)));
    }
    m_wovon->insertSeparator(m_wovon->count());
    for (const Wertungsbeschreibung &eine : wertungen) {
        m_wovon->addItem(localizedString(QStringLiteral("Ungeeignet: %1"))
                             .arg(localizedString(QString::fromUtf8(eine.bezeichnung))),
                         ersteWertung + static_cast<int>(stelle(eine.wertung)));
    }
    m_wovon->setCurrentIndex(std::max(0, bisher));
}

void Beitragsblatt::waehle(Kenngroesse groesse)
{
    m_wovon->setCurrentIndex(m_wovon->findData(static_cast<int>(stelle(groesse))));
}

void Beitragsblatt::waehle(Wertung wertung)
{
    m_wovon->setCurrentIndex(m_wovon->findData(ersteWertung + static_cast<int>(stelle(wertung))));
}

void Beitragsblatt::zeige(const Einblickstand &stand)
{
    m_stand = stand;
    zeigeWieder();
}

/// The answer to the same question: the food that was chosen in it stays chosen.
void Beitragsblatt::zeigeWieder()
{
    const QString bisher = m_modell.schluessel(m_tabelle->currentIndex().row());
    zeigeGewaehltes();
    m_tabelle->selectRow(m_modell.zeileVon(bisher));
}

void Beitragsblatt::zeigeGewaehltes()
{
    const int was = m_wovon->currentData().toInt();
    if (was >= ersteWertung) {
        zeigeUngeeignete(wertungen.at(static_cast<std::size_t>(was - ersteWertung)).wertung);
    } else {
        zeigeBeitraege(kenngroessen.at(static_cast<std::size_t>(was)).groesse);
    }
    const bool leer = m_modell.rowCount() == 0;
    m_summe->setVisible(!leer);
    m_tabelle->setVisible(!leer);
    m_leer->setText(leer ? leerWorte() : QString());
    m_leer->setVisible(leer);
    stelleSpalten();
}

void Beitragsblatt::zeigeBeitraege(Kenngroesse groesse)
{
    const Beitraege alle = beitraege(m_stand.speisen, groesse, m_stand.wissen);
    m_modell.zeige(alle, groesse);
    const bool etwas = !alle.bekannte.isEmpty();
    m_summe->setText(QStringLiteral("%1: %2").arg(
        nameVon(groesse), etwas ? Einblickworte::menge(groesse, alle.summe.wert)
                                : localizedString(QStringLiteral("unbekannt"))));
    const QString unbekanntes = Einblickworte::unbekanntes(alle.summe.unbekannt);
    m_unbekannt->setText(
        unbekanntes.isEmpty()
            ? QString()
            : QStringLiteral("%1, %2: %3")
                  .arg(nameVon(groesse), unbekanntes, Einblickworte::namen(alle.summe.unbekannte)));
    m_unbekannt->setVisible(!unbekanntes.isEmpty());
}

void Beitragsblatt::zeigeUngeeignete(Wertung wertung)
{
    const QList<Ungeeignetes> alle = ungeeignete(m_stand.speisen, wertung);
    m_modell.zeige(alle);
    double anteil = 0;
    for (const Ungeeignetes &eines : alle) {
        anteil += eines.anteil;
    }
    m_summe->setText(localizedString(QStringLiteral("Ungeeignete Lebensmittel: %1, %2 der Menge"))
                         .arg(QString::number(alle.size()), Einblickworte::anteil(anteil)));
    const Stoffsumme offen = unbewertete(m_stand.speisen, wertung);
    m_unbekannt->setText(
        offen.unbekannt > 0
            ? localizedString(QStringLiteral("Ohne Bewertung sind %1 der Menge: %2"))
                  .arg(Einblickworte::anteil(offen.unbekannt),
                       Einblickworte::namen(offen.unbekannte))
            : QString());
    m_unbekannt->setVisible(offen.unbekannt > 0);
}

QString Beitragsblatt::leerWorte() const
{
    if (!zaehltEtwas(m_stand.speisen)) {
        return localizedString(QStringLiteral("Hier zählt noch kein Lebensmittel."));
    }
    return m_unbekannt->text().isEmpty()
               ? localizedString(QStringLiteral("Kein Lebensmittel ist hierfür ungeeignet."))
               : localizedString(
                     QStringLiteral("Kein bewertetes Lebensmittel ist hierfür ungeeignet."));
}

/// The names get what the figures leave.
void Beitragsblatt::stelleSpalten()
{
    QHeaderView &kopf = *m_tabelle->horizontalHeader();
    kopf.setSectionResizeMode(QHeaderView::ResizeToContents);
    kopf.setSectionResizeMode(Beitragsmodell::Name, QHeaderView::Stretch);
    const bool mitMenge = m_wovon->currentData().toInt() < ersteWertung;
    m_tabelle->setColumnHidden(Beitragsmodell::Menge, !mitMenge);
}

void Beitragsblatt::geheZuZeile()
{
    const QList<int> orte = m_modell.orte(m_tabelle->currentIndex().row());
    if (!orte.isEmpty() && orte.first() >= 0) {
        Q_EMIT zeileGewuenscht(orte.first());
    }
}

bool Beitragsblatt::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_tabelle && event->type() == QEvent::KeyPress) {
        const auto *taste = static_cast<QKeyEvent *>(event);
        if (taste->key() == Qt::Key_Return || taste->key() == Qt::Key_Enter) {
            geheZuZeile();
            return true;
        }
    }
    return Einblickblatt::eventFilter(watched, event);
}
