#include "Dateifenster.h"

#include "Namensvergleich.h"
#include "Sperrgrund.h"
#include "Uebernahmetabelle.h"
#include "Zeichenkettentabelle.h"
#include "Zeilenhoehe.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QTableView>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

constexpr QSize fenstergroesse(900, 620);
constexpr int zeilenhoehe = 24;
constexpr int namensbreite = 220;

QLabel *wortzeile(const char *name)
{
    auto *zeile = new QLabel;
    zeile->setObjectName(QLatin1String(name));
    zeile->setTextFormat(Qt::PlainText); // files and foods may be called anything
    zeile->setWordWrap(true);
    return zeile;
}

void richteEin(QTableView &tabelle, const char *name)
{
    tabelle.setObjectName(QLatin1String(name));
    tabelle.setAccessibleName(localizedString(QStringLiteral("Was die Datei enthält")));
    tabelle.setSelectionBehavior(QAbstractItemView::SelectRows);
    tabelle.setSelectionMode(QAbstractItemView::SingleSelection);
    tabelle.setAlternatingRowColors(true);
    tabelle.setTabKeyNavigation(false);
    tabelle.verticalHeader()->hide();
    tabelle.verticalHeader()->setDefaultSectionSize(zeilenhoeheFuer(tabelle, zeilenhoehe));
}

/// What the file is, in a sentence.
QString inhaltssatz(const Lebensmitteldatei &datei)
{
    const QString satz =
        datei.istPlan ? localizedString(QStringLiteral("Ein Mahlzeitenplan mit %1 Lebensmitteln, "
                                                       "geschrieben auf %2."))
                      : localizedString(QStringLiteral("%1 Lebensmittel, geschrieben auf %2."));
    return satz.arg(datei.lebensmittel.size())
        .arg(
            datei.bigEndian
                ? localizedString(QStringLiteral("einem Rechner alter Bauart (Big-Endian)"))
                : localizedString(QStringLiteral("einem Rechner heutiger Bauart (Little-Endian)")));
}

/// What is odd about the file, in sentences; empty when nothing is.
QString auffaelliges(const Lebensmitteldatei &datei)
{
    QStringList saetze;
    if (datei.doppelte > 0) {
        saetze << localizedString(QStringLiteral("Doppelte Namen: %1. Es gilt jeweils der letzte "
                                                 "Eintrag."))
                      .arg(datei.doppelte);
    }
    if (datei.ohneNamen > 0) {
        saetze << localizedString(QStringLiteral("Ohne Namen: %1.")).arg(datei.ohneNamen);
    }
    if (!datei.andererName.isEmpty()) {
        saetze << localizedString(QStringLiteral("Innen anders benannt: %1. Es gilt der Name, der "
                                                 "hier steht."))
                      .arg(datei.andererName.size());
    }
    if (datei.rest > 0) {
        saetze << localizedString(QStringLiteral("Hinter dem Ende folgen %1 Bytes, die nichts "
                                                 "bedeuten."))
                      .arg(datei.rest);
    }
    return saetze.join(u' ');
}

QString herkunft(const QString &name, const Lebensmittelbestand &eigene,
                 const Lebensmittelverzeichnis &eingebaute)
{
    return eingebaute.contains(name)           ? localizedString(QStringLiteral("eingebaut"))
           : eigene.verzeichnis.contains(name) ? localizedString(QStringLiteral("eigenes"))
                                               : localizedString(QStringLiteral("unbekannt"));
}

} // namespace

Dateifenster::Dateifenster(const Lebensmitteldatei &datei, const Lebensmittelbestand &eigene,
                           const Lebensmittelverzeichnis &eingebaute, QWidget *parent)
    : QDialog(parent)
    , m_datei(datei)
{
    setObjectName(QStringLiteral("dateifenster"));
    setWindowTitle(QFileInfo(datei.path).fileName());
    setSizeGripEnabled(true);
    auto *aufbau = new QVBoxLayout(this);
    aufbau->addWidget(kopf());
    aufbau->addWidget(
        datei.istPlan ? plantafel(eigene, eingebaute) : lebensmitteltafel(eigene, eingebaute), 1);
    aufbau->addWidget(unterteil());
    resize(fenstergroesse);
    if (m_modell != nullptr) {
        connect(m_modell, &Uebernahmetabelle::umentschieden, this, &Dateifenster::zeigeErgebnis);
        connect(m_tabelle->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
                &Dateifenster::zeigeZeile);
        m_tabelle->setCurrentIndex(m_modell->index(qMax(0, m_modell->ersterVergebener()), 0));
        zeigeZeile();
        zeigeErgebnis();
        m_tabelle->setFocus();
        setTabOrder(m_nehmen, findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Cancel));
    }
}

QWidget *Dateifenster::kopf()
{
    auto *teil = new QWidget;
    auto *zeilen = new QVBoxLayout(teil);
    zeilen->setContentsMargins(0, 0, 0, 0);
    QLabel *ort = wortzeile("ort");
    ort->setText(QDir::toNativeSeparators(m_datei.path));
    QLabel *inhalt = wortzeile("inhalt");
    inhalt->setText(inhaltssatz(m_datei));
    zeilen->addWidget(ort);
    zeilen->addWidget(inhalt);
    const QString seltsames = auffaelliges(m_datei);
    if (!seltsames.isEmpty()) {
        QLabel *auffaellig = wortzeile("auffaellig");
        auffaellig->setText(QStringLiteral("⚠ ") + seltsames);
        zeilen->addWidget(auffaellig);
    }
    return teil;
}

QWidget *Dateifenster::plantafel(const Lebensmittelbestand &eigene,
                                 const Lebensmittelverzeichnis &eingebaute)
{
    auto *tabelle = new QTableWidget(static_cast<int>(m_datei.lebensmittel.size()), 3);
    richteEin(*tabelle, "planzeilen");
    tabelle->setHorizontalHeaderLabels({localizedString(QStringLiteral("Lebensmittel")),
                                        localizedString(QStringLiteral("Menge, g")),
                                        localizedString(QStringLiteral("Bekannt als"))});
    tabelle->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    tabelle->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    int zeile = 0;
    for (const Datenmodul &eines : std::as_const(m_datei.lebensmittel)) {
        const QString texte[] = {localizedString(eines.name()), zahlwort(eines.kal()),
                                 herkunft(eines.name(), eigene, eingebaute)};
        for (int spalte = 0; spalte < tabelle->columnCount(); ++spalte) {
            auto *zelle = new QTableWidgetItem(texte[spalte]);
            zelle->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
            zelle->setTextAlignment((spalte == 1 ? Qt::AlignRight : Qt::AlignLeft) |
                                    Qt::AlignVCenter);
            tabelle->setItem(zeile, spalte, zelle);
        }
        ++zeile;
    }
    return tabelle;
}

QWidget *Dateifenster::lebensmitteltafel(const Lebensmittelbestand &eigene,
                                         const Lebensmittelverzeichnis &eingebaute)
{
    m_modell = new Uebernahmetabelle(m_datei.lebensmittel, eigene, eingebaute, this);
    m_tabelle = new QTableView;
    m_tabelle->setModel(m_modell);
    richteEin(*m_tabelle, "lebensmittel");
    m_tabelle->horizontalHeader()->resizeSections(QHeaderView::ResizeToContents);
    m_tabelle->setColumnWidth(Uebernahmetabelle::spalteName, namensbreite);
    m_tabelle->setColumnWidth(Uebernahmetabelle::spalteLage, namensbreite);
    auto *oben = new QWidget;
    auto *zeilen = new QVBoxLayout(oben);
    zeilen->setContentsMargins(0, 0, 0, 0);
    m_erklaerung = wortzeile("erklaerung");
    if (!m_modell->erklaertEtwas()) { // else it stays, so that nothing moves from row to row
        m_erklaerung->hide();
    }
    zeilen->addWidget(wahlknoepfe());
    zeilen->addWidget(m_tabelle, 1);
    zeilen->addWidget(m_erklaerung);
    if (m_modell->ersterVergebener() < 0) {
        return oben;
    }
    auto *teiler = new QSplitter(Qt::Vertical);
    teiler->setChildrenCollapsible(false);
    m_vergleich = new Namensvergleich;
    teiler->addWidget(oben);
    teiler->addWidget(m_vergleich);
    connect(m_vergleich, &Namensvergleich::entschieden, this, [this](Namensgleich was) {
        m_modell->entscheide(m_tabelle->currentIndex().row(), was);
    });
    connect(m_vergleich, &Namensvergleich::fuerAlleEntschieden, m_modell,
            &Uebernahmetabelle::entscheideAlle);
    return teiler;
}

QWidget *Dateifenster::wahlknoepfe()
{
    auto *teil = new QWidget;
    auto *zeile = new QHBoxLayout(teil);
    zeile->setContentsMargins(0, 0, 0, 0);
    auto *alle = new QPushButton(localizedString(QStringLiteral("&Alle ankreuzen")));
    alle->setObjectName(QStringLiteral("alle"));
    auto *keines = new QPushButton(localizedString(QStringLiteral("&Keines ankreuzen")));
    keines->setObjectName(QStringLiteral("keines"));
    zeile->addWidget(alle);
    zeile->addWidget(keines);
    zeile->addStretch();
    connect(alle, &QPushButton::clicked, m_modell, [this] { m_modell->waehleAlle(true); });
    connect(keines, &QPushButton::clicked, m_modell, [this] { m_modell->waehleAlle(false); });
    return teil;
}

QWidget *Dateifenster::unterteil()
{
    auto *teil = new QWidget;
    auto *zeilen = new QVBoxLayout(teil);
    zeilen->setContentsMargins(0, 0, 0, 0);
    m_ergebnis = wortzeile("ergebnis");
    zeilen->addWidget(m_ergebnis);
    auto *knoepfe = new QDialogButtonBox(m_modell != nullptr ? QDialogButtonBox::Cancel
                                                             : QDialogButtonBox::Close);
    connect(knoepfe, &QDialogButtonBox::rejected, this, &QDialog::reject);
    zeilen->addWidget(knoepfe);
    if (m_modell == nullptr) {
        m_ergebnis->setText(localizedString(
            QStringLiteral("Ein Plan hält nur Namen und Mengen fest, keine Nährwerte. Davon lässt "
                           "sich nichts in die eigenen Lebensmittel übernehmen.")));
        return teil;
    }
    m_nehmen = knoepfe->addButton(localizedString(QStringLiteral("&Übernehmen")),
                                  QDialogButtonBox::AcceptRole);
    m_nehmen->setObjectName(QStringLiteral("uebernehmen"));
    new Sperrgrund(m_nehmen,
                   localizedString(QStringLiteral("So kommt nichts in die eigenen Lebensmittel.")));
    connect(m_nehmen, &QPushButton::clicked, this, &Dateifenster::uebernimmGewaehltes);
    return teil;
}

/// What is to be known about the chosen row, and its clash with an own food.
void Dateifenster::zeigeZeile()
{
    const QModelIndex hier = m_tabelle->currentIndex();
    m_erklaerung->setText(hier.isValid() ? m_modell->erklaerung(hier.row()) : QString());
    if (m_vergleich == nullptr) {
        return;
    }
    const int zeile = hier.row();
    if (hier.isValid() && m_modell->lage(zeile) == Uebernahmetabelle::Lage::Vergeben) {
        m_vergleich->zeige(*m_modell->eigenes(zeile), m_modell->lebensmittel(zeile),
                           m_modell->entscheidung(zeile));
    } else {
        m_vergleich->leere();
    }
}

void Dateifenster::zeigeErgebnis()
{
    const Uebernahme &ergebnis = m_modell->ergebnis();
    m_ergebnis->setText(
        localizedString(QStringLiteral("In die eigenen Lebensmittel kommen %1: neu %2, ersetzt %3, "
                                       "unter neuem Namen %4. Ihres bleibt bei %5."))
            .arg(ergebnis.anzahl())
            .arg(ergebnis.neu.size() - ergebnis.umbenannt.size())
            .arg(ergebnis.ersetzt.size())
            .arg(ergebnis.umbenannt.size())
            .arg(ergebnis.uebersprungen.size()));
    m_nehmen->setEnabled(ergebnis.anzahl() > 0);
}

void Dateifenster::uebernimmGewaehltes()
{
    const QList<Datenmodul> lebensmittel = m_modell->gewaehlte();
    const Namenswahl wahl = m_modell->wahl();
    accept();
    Q_EMIT uebernehmen(lebensmittel, wahl);
}
