#include "Sicherungsfenster.h"

#include "Bestandsvergleich.h"
#include "Sperrgrund.h"
#include "Tabellenkopie.h"
#include "Wertehalter.h"
#include "Zeichenkettentabelle.h"
#include "Zeilenhoehe.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

constexpr QSize fenstergroesse(760, 480);
constexpr int breiteTage = 240;
constexpr int zeilenhoehe = 24;

enum Inhaltsspalte { spalteName, spalteWert, spalteHeute, anzahlSpalten };

QString nameFuerAnzeige(const QString &name)
{
    return name.isEmpty() ? localizedString(QStringLiteral("(ohne Namen)")) : localizedString(name);
}

QTableWidgetItem *zelle(const QString &text, Qt::Alignment ausrichtung = Qt::AlignLeft)
{
    auto *neu = new QTableWidgetItem(text);
    neu->setTextAlignment(ausrichtung | Qt::AlignVCenter);
    neu->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    return neu;
}

} // namespace

Sicherungsfenster::Sicherungsfenster(const QList<Sicherungsquelle> &quellen, const QString &path,
                                     QWidget *parent)
    : QDialog(parent)
    , m_quellen(quellen)
{
    setObjectName(QStringLiteral("sicherungen"));
    setWindowTitle(localizedString(QStringLiteral("Frühere Stände")));
    auto *aufbau = new QVBoxLayout(this);
    aufbau->addWidget(oberteil());
    aufbau->addWidget(mittelteil(), 1);
    aufbau->addWidget(unterteil());
    resize(fenstergroesse);
    for (int i = 0; i < m_quellen.size(); ++i) {
        if (m_quellen[i].path == path) {
            m_wahl->setCurrentIndex(i);
        }
    }
    zeigeQuelle();
    connect(m_wahl, &QComboBox::currentIndexChanged, this, &Sicherungsfenster::zeigeQuelle);
    connect(m_tage, &QListWidget::currentRowChanged, this, &Sicherungsfenster::zeigeStand);
}

QWidget *Sicherungsfenster::oberteil()
{
    auto *teil = new QWidget;
    auto *zeile = new QHBoxLayout(teil);
    zeile->setContentsMargins(0, 0, 0, 0);
    m_wahl = new QComboBox;
    m_wahl->setObjectName(QStringLiteral("quellenwahl"));
    for (const Sicherungsquelle &eine : std::as_const(m_quellen)) {
        m_wahl->addItem(eine.titel);
    }
    auto *beschriftung = new QLabel(localizedString(QStringLiteral("&Stände von")));
    beschriftung->setBuddy(m_wahl);
    zeile->addWidget(beschriftung);
    zeile->addWidget(m_wahl);
    zeile->addStretch();
    return teil;
}

QWidget *Sicherungsfenster::mittelteil()
{
    auto *teiler = new QSplitter;
    teiler->setChildrenCollapsible(false);
    m_tage = new QListWidget;
    m_tage->setObjectName(QStringLiteral("tage"));
    m_tage->setAccessibleName(localizedString(QStringLiteral("Stände, der jüngste zuerst")));
    m_inhalt = new QTableWidget(0, anzahlSpalten);
    m_inhalt->setObjectName(QStringLiteral("inhalt"));
    m_inhalt->setAccessibleName(localizedString(QStringLiteral("Inhalt des Standes")));
    m_inhalt->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_inhalt->setAlternatingRowColors(true);
    m_inhalt->setTabKeyNavigation(false);
    m_inhalt->verticalHeader()->hide();
    m_inhalt->verticalHeader()->setDefaultSectionSize(zeilenhoeheFuer(*m_inhalt, zeilenhoehe));
    m_inhalt->horizontalHeader()->setSectionResizeMode(spalteName, QHeaderView::Stretch);
    m_inhalt->horizontalHeader()->setSectionResizeMode(spalteWert, QHeaderView::ResizeToContents);
    m_inhalt->horizontalHeader()->setSectionResizeMode(spalteHeute, QHeaderView::ResizeToContents);
    Tabellenkopie::ermoegliche(*m_inhalt);
    teiler->addWidget(m_tage);
    teiler->addWidget(m_inhalt);
    teiler->setSizes({breiteTage, fenstergroesse.width() - breiteTage});
    teiler->setStretchFactor(1, 1);
    return teiler;
}

QWidget *Sicherungsfenster::unterteil()
{
    auto *teil = new QWidget;
    auto *zeilen = new QVBoxLayout(teil);
    zeilen->setContentsMargins(0, 0, 0, 0);
    m_worte = new QLabel;
    m_worte->setObjectName(QStringLiteral("worte"));
    m_worte->setTextFormat(Qt::PlainText); // a folder may be called anything
    m_worte->setWordWrap(true);
    zeilen->addWidget(m_worte);
    auto *knoepfe = new QDialogButtonBox(QDialogButtonBox::Close);
    m_zurueck = knoepfe->addButton(localizedString(QStringLiteral("&Zurückholen")),
                                   QDialogButtonBox::ActionRole);
    m_zurueck->setObjectName(QStringLiteral("zurueckholen"));
    new Sperrgrund(m_zurueck, localizedString(QStringLiteral(
                                  "Es gibt keinen Stand, der zurückgeholt werden kann.")));
    zeilen->addWidget(knoepfe);
    connect(m_zurueck, &QPushButton::clicked, this, &Sicherungsfenster::holeZurueck);
    connect(knoepfe, &QDialogButtonBox::rejected, this, &QDialog::reject);
    return teil;
}

const Sicherungsquelle &Sicherungsfenster::quelle() const
{
    return m_quellen[m_wahl->currentIndex()];
}

void Sicherungsfenster::zeigeQuelle()
{
    const QSignalBlocker einmal(m_tage); // filling the list chooses a state on the way
    m_sicherungen = Sicherungen::alle(quelle().path);
    m_tage->clear();
    for (const Sicherungen::Sicherung &eine : std::as_const(m_sicherungen)) {
        m_tage->addItem(eine.moment.isValid()
                            ? localizedString(QStringLiteral("beiseitegelegt am %1"))
                                  .arg(QLocale().toString(eine.moment, QLocale::ShortFormat))
                            : QLocale().toString(eine.tag, QLocale::LongFormat));
    }
    m_inhalt->setHorizontalHeaderLabels({localizedString(QStringLiteral("Lebensmittel")),
                                         quelle().groesse,
                                         localizedString(QStringLiteral("Heute"))});
    m_tage->setCurrentRow(0);
    zeigeStand();
}

void Sicherungsfenster::zeigeStand()
{
    const int stelle = m_tage->currentRow();
    m_stand.clear();
    m_inhalt->setRowCount(0);
    m_zurueck->setEnabled(false);
    if (stelle < 0) {
        m_worte->setText(localizedString(QStringLiteral(
            "Es gibt noch keine früheren Stände. An jedem Tag, an dem sich etwas ändert, wird der "
            "Stand davor aufgehoben; die letzten zehn bleiben.")));
        return;
    }
    const Archivdatei::Inhalt inhalt = Archivdatei::lesen(m_sicherungen[stelle].path);
    if (inhalt.zustand != Archivdatei::Zustand::Gelesen) {
        m_worte->setText(localizedString(QStringLiteral("Diese Datei lässt sich nicht lesen: %1"))
                             .arg(m_sicherungen[stelle].path));
        return;
    }
    m_stand = inhalt.archiv.verzeichnis;
    fuelle(m_stand, quelle().jetzt());
}

void Sicherungsfenster::fuelle(const Lebensmittelverzeichnis &stand,
                               const Lebensmittelverzeichnis &jetzt)
{
    const Bestandsunterschied unterschied = vergleiche(stand, jetzt);
    m_inhalt->setRowCount(static_cast<int>(stand.size()));
    int zeile = 0;
    for (auto eines = stand.cbegin(); eines != stand.cend(); ++eines, ++zeile) {
        const auto heutiges = jetzt.constFind(eines.key());
        const QString heute = heutiges == jetzt.cend() ? localizedString(QStringLiteral("fehlt"))
                              : gleich(*eines, *heutiges)
                                  ? localizedString(QStringLiteral("ebenso"))
                                  : localizedString(QStringLiteral("anders"));
        m_inhalt->setItem(zeile, spalteName, zelle(nameFuerAnzeige(eines.key())));
        m_inhalt->setItem(zeile, spalteWert,
                          zelle(zahlenform().toString(static_cast<double>(eines->kal()), 'g', 6),
                                Qt::AlignRight));
        m_inhalt->setItem(zeile, spalteHeute, zelle(heute));
    }
    m_worte->setText(localizedString(QStringLiteral("%1 Lebensmittel. Seitdem gelöscht: %2, "
                                                    "geändert: %3, neu: %4."))
                         .arg(stand.size())
                         .arg(unterschied.fehlend.size())
                         .arg(unterschied.anders.size())
                         .arg(unterschied.zusaetzlich.size()));
    m_zurueck->setEnabled(!unterschied.leer());
}

void Sicherungsfenster::holeZurueck()
{
    const auto zurueck = quelle().zurueck;
    const Lebensmittelverzeichnis stand = m_stand;
    accept();
    zurueck(stand);
}
