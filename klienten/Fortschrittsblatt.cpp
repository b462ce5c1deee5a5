#include "Fortschrittsblatt.h"

#include "Besuchsvergleich.h"
#include "Feldworte.h"
#include "Tabellenkopf.h"
#include "Tabellenkopie.h"
#include "Zeichenkettentabelle.h"
#include "Zeilenhoehe.h"

#include <QCoreApplication>
#include <QEvent>
#include <QSignalBlocker>
#include <QStyledItemDelegate>

namespace {

constexpr int zeilenhoehe = 24;

enum Spalte { spalteWas, spalteVon, spalteBis, spalteUnterschied, anzahlSpalten };

/// What is said while there is none, or only one, that could be compared.
struct Leerworte
{
    const char *keiner;
    const char *einer;
};

constexpr Leerworte ohneBesuche = {
    QT_TRANSLATE_NOOP("Mahlberg", "Noch kein Besuch. Sobald zwei da sind, stehen sie hier "
                                  "nebeneinander."),
    QT_TRANSLATE_NOOP("Mahlberg", "Erst ein Besuch. Mit dem zweiten steht hier, was sich geändert "
                                  "hat."),
};
constexpr Leerworte ohnePlaene = {
    QT_TRANSLATE_NOOP("Mahlberg", "Noch kein abgelegter Plan. Sobald zwei da sind, stehen sie hier "
                                  "nebeneinander."),
    QT_TRANSLATE_NOOP("Mahlberg", "Erst ein abgelegter Plan. Mit dem zweiten steht hier, worin sie "
                                  "sich unterscheiden."),
};

QString datumsworte(const QDate &tag)
{
    return tag.isValid() ? tagesworte(tag) : localizedString(QStringLiteral("ohne Datum"));
}

QString planworte(const Planablage &plan)
{
    const QString titel = plan.titel.simplified();
    return titel.isEmpty() ? datumsworte(plan.datum)
                           : QStringLiteral("%1, %2").arg(titel, datumsworte(plan.datum));
}

/// Rows of several lines keep a distance from each other.
class Zeilenluft : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        constexpr int luft = 8;
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, luft);
    }
};

QTableWidgetItem *zelle(const QString &text)
{
    auto *neu = new QTableWidgetItem(text);
    neu->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    return neu;
}

/// What was not told is a dash; it is read out in words.
QTableWidgetItem *angabenzelle(const QString &text)
{
    QTableWidgetItem *neu = zelle(text.isNull() ? QStringLiteral("–") : text);
    if (text.isNull()) {
        neu->setData(Qt::AccessibleTextRole, localizedString(QStringLiteral("keine Angabe")));
    }
    return neu;
}

QTableWidgetItem *ueberschrift(const QString &titel)
{
    QTableWidgetItem *neu = zelle(titel);
    QFont schrift;
    schrift.setWeight(QFont::DemiBold); // all else is as in the other rows
    neu->setFont(schrift);
    return neu;
}

/// Which plans lack points that they may well deserve, and where the requirement comes from.
QString bedarfsworte(const QStringList &ohneBedarf)
{
    return localizedString(QStringLiteral("Der Energiebedarf fehlt für: %1. Er kommt aus dem "
                                          "Geschlecht und aus Gewicht und Tätigkeit beim letzten "
                                          "Besuch bis zum Tag des Plans. Ohne ihn zählen Energie, "
                                          "Protein, Fett und Kohlenhydrate keine Punkte."))
        .arg(ohneBedarf.join(QStringLiteral("; ")));
}

} // namespace

Fortschrittsblatt::Fortschrittsblatt(QWidget *parent)
    : Rollseite(parent)
    , FortschrittsblattGestalt()
{
    setupUi(this);
    auto *kopf = new Tabellenkopf(vergleich);
    vergleich->setHorizontalHeader(kopf);
    kopf->setSectionsClickable(false);
    kopf->setSectionResizeMode(QHeaderView::Stretch);
    kopf->setSectionResizeMode(spalteWas, QHeaderView::Fixed);
    kopf->setSectionResizeMode(spalteUnterschied, QHeaderView::ResizeToContents);
    kopf->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    vergleich->verticalHeader()->setMinimumSectionSize(zeilenhoeheFuer(*vergleich, zeilenhoehe));
    vergleich->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    vergleich->setItemDelegate(new Zeilenluft(vergleich));
    setzeBreite();
    Tabellenkopie::ermoegliche(*vergleich);
    connect(planwahl, &QRadioButton::toggled, this, &Fortschrittsblatt::fuelle);
    connect(von, &QComboBox::currentIndexChanged, this,
            [this](int stelle) { waehle(wahl().von, stelle); });
    connect(bis, &QComboBox::currentIndexChanged, this,
            [this](int stelle) { waehle(wahl().bis, stelle); });
    fuelle();
}

void Fortschrittsblatt::setze(const Klientenakte &akte)
{
    if (akte.person.kennung != m_akte.person.kennung) {
        m_wahl = {};
    }
    m_akte = akte;
    fuelle();
}

void Fortschrittsblatt::folgeSprache()
{
    retranslateUi(this);
    fuelle();
}

void Fortschrittsblatt::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        setzeBreite();
    }
}

/// The captions have their room; a longer name of a food is broken into lines, and the figures
/// beside it are not.
void Fortschrittsblatt::setzeBreite()
{
    constexpr int buchstaben = 28;
    vergleich->horizontalHeader()->resizeSection(spalteWas,
                                                 buchstaben * fontMetrics().averageCharWidth());
}

QList<Fortschrittsblatt::Angebot> Fortschrittsblatt::angebote() const
{
    QList<Angebot> alle;
    if (zeigtPlaene()) {
        for (const Planablage &plan : m_akte.plaene) {
            alle.append({plan.kennung, planworte(plan)});
        }
    } else {
        for (const Besuch &besuch : m_akte.besuche) {
            alle.append({besuch.kennung, datumsworte(besuch.datum)});
        }
    }
    return alle;
}

void Fortschrittsblatt::fuelle()
{
    const QList<Angebot> alle = angebote();
    const auto stelleVon = [&alle](const QString &kennung, qsizetype sonst) {
        for (int stelle = 0; stelle < alle.size(); ++stelle) {
            if (!kennung.isNull() && alle[stelle].kennung == kennung) {
                return stelle;
            }
        }
        return static_cast<int>(sonst);
    };
    const QSignalBlocker vonStill(von); // nobody has chosen anything
    const QSignalBlocker bisStill(bis);
    for (QComboBox *liste : {von, bis}) {
        liste->clear();
        for (const Angebot &eines : alle) {
            liste->addItem(eines.worte);
        }
    }
    von->setCurrentIndex(stelleVon(wahl().von, 0));
    bis->setCurrentIndex(stelleVon(wahl().bis, alle.size() - 1));
    zeige();
}

/// A side that was not chosen follows the records: a new visit is the latest one from then on.
void Fortschrittsblatt::waehle(QString &kennung, int stelle)
{
    kennung = angebote().value(stelle).kennung;
    zeige();
}

void Fortschrittsblatt::zeige()
{
    const int anzahl = von->count();
    const bool genug = anzahl > 1;
    for (QWidget *teil : std::initializer_list<QWidget *>{auswahl, vergleich}) {
        teil->setVisible(genug);
    }
    const Leerworte &leer = zeigtPlaene() ? ohnePlaene : ohneBesuche;
    leerworte->setText(localizedString(QString::fromUtf8(anzahl == 0 ? leer.keiner : leer.einer)));
    leerworte->setVisible(!genug);
    erklaerung->clear();
    setzeKoepfe();
    setzeZeilen(!genug          ? QList<Vergleichsabschnitt>()
                : zeigtPlaene() ? planabschnitte()
                                : besuchsabschnitte());
    erklaerung->setVisible(!erklaerung->text().isEmpty());
}

/// A long title is cut, and stands whole in the tool tip.
void Fortschrittsblatt::setzeKoepfe()
{
    vergleich->setHorizontalHeaderLabels({QString(), von->currentText(), bis->currentText(),
                                          localizedString(QStringLiteral("Unterschied"))});
    for (const int spalte : {spalteVon, spalteBis}) {
        QTableWidgetItem *kopf = vergleich->horizontalHeaderItem(spalte);
        kopf->setToolTip(QStringLiteral("<qt>%1</qt>").arg(kopf->text().toHtmlEscaped()));
    }
}

QList<Vergleichsabschnitt> Fortschrittsblatt::besuchsabschnitte() const
{
    const Besuch &links = m_akte.besuche.at(von->currentIndex());
    const Besuch &rechts = m_akte.besuche.at(bis->currentIndex());
    return {{QString(), besucheVergleichen(m_akte, links, rechts)}};
}

/// Says as well whose requirement is missing.
QList<Vergleichsabschnitt> Fortschrittsblatt::planabschnitte()
{
    QList<Ablagenseite> seiten;
    QStringList ohneBedarf;
    for (const QComboBox *liste : {von, bis}) {
        const Planablage &plan = m_akte.plaene.at(liste->currentIndex());
        seiten.append({plan, energiebedarfAm(plan.datum, m_akte)});
        if (seiten.last().energiebedarf == 0) {
            ohneBedarf << liste->currentText();
        }
    }
    ohneBedarf.removeDuplicates();
    erklaerung->setText(ohneBedarf.isEmpty() ? QString() : bedarfsworte(ohneBedarf));
    return ablagenVergleichen(seiten[0], seiten[1]);
}

void Fortschrittsblatt::setzeZeilen(const QList<Vergleichsabschnitt> &abschnitte)
{
    vergleich->setRowCount(0); // the spans go with their rows
    for (const Vergleichsabschnitt &abschnitt : abschnitte) {
        if (!abschnitt.titel.isNull()) {
            haengeAn({ueberschrift(abschnitt.titel)});
            vergleich->setSpan(vergleich->rowCount() - 1, spalteWas, 1, anzahlSpalten);
        }
        for (const Vergleichszeile &zeile : abschnitt.zeilen) {
            haengeAn({zelle(zeile.beschriftung), angabenzelle(zeile.links),
                      angabenzelle(zeile.rechts), zelle(zeile.unterschied)});
        }
    }
}

void Fortschrittsblatt::haengeAn(const QList<QTableWidgetItem *> &zellen)
{
    const int zeile = vergleich->rowCount();
    vergleich->insertRow(zeile);
    for (int spalte = 0; spalte < zellen.size(); ++spalte) {
        vergleich->setItem(zeile, spalte, zellen[spalte]);
    }
}
