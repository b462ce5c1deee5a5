#include "Vorschautabelle.h"

#include "Zahlenform.h"
#include "Zeichenkettentabelle.h"

#include <QComboBox>
#include <QEvent>
#include <QHeaderView>
#include <QScrollBar>
#include <QStyle>

#include <algorithm>

using Art = Spaltensinn::Art;

namespace {

constexpr int gezeigteZeilen = 20;
constexpr int abstand = 2;
constexpr int schmalsteSpalte = 150; ///< the choosers' words are longer, and seen when they open

/// Digits that a number of single precision keeps.
constexpr int bedeutsameStellen = 7;

QString ueberschriftFuer(const QStringList &ueberschriften, qsizetype spalte)
{
    const QString text = ueberschriften.value(spalte).simplified();
    return text.isEmpty() ? localizedString(QStringLiteral("Spalte %1")).arg(spalte + 1) : text;
}

QString mitEinheit(double zahl, const QString &einheit)
{
    return zahlenform().toString(zahl, 'g', bedeutsameStellen) + QChar(QChar::Nbsp) + einheit;
}

/// A number as it counts for the food, with its unit; empty where there is none that can count.
QString gelesen(const QString &feld, const Spaltensinn &sinn, Zahlenschrift schrift,
                const Lesezeile &zeile)
{
    const auto zahl = doppelteZahl(feld, schrift);
    if (sinn.art == Art::Portion) {
        return zahl && *zahl > 0 ? mitEinheit(*zahl, einheitszeichen(Einheit::Gramm)) : QString();
    }
    return einfacheZahl(feld, schrift) && *zahl >= 0
               ? mitEinheit(static_cast<double>(zeile.lebensmittel.wert(sinn.wert)),
                            einheitszeichen(beschreibung(sinn.wert).einheit))
               : QString();
}

/// Whether this cell, which is no number that counts, is why its line can't be taken over.
bool istFalsch(const QString &feld, const Spaltensinn &sinn, const Leseauftrag &auftrag,
               const Lesezeile &zeile)
{
    switch (sinn.art) {
    case Art::Name:
        return feld.isEmpty();
    case Art::Wert:
        return !feld.trimmed().isEmpty();
    case Art::Wertung:
        return !feld.isEmpty() && zeile.lebensmittel.wertung(sinn.wertung).isEmpty();
    case Art::Portion:
        return auftrag.jePortion;
    case Art::Nichts:
        break;
    }
    return false;
}

} // namespace

Vorschautabelle::Vorschautabelle(QWidget *parent) : QTableWidget(parent)
{
    setObjectName(QStringLiteral("vorschau"));
    setAccessibleName(localizedString(QStringLiteral("Die ersten Zeilen, wie sie gelesen werden")));
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setHorizontalScrollMode(ScrollPerPixel);
    horizontalHeader()->setMinimumSectionSize(schmalsteSpalte);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignTop);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, &Vorschautabelle::stelleWahlen);
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, &Vorschautabelle::stelleWahlen);
}

QComboBox *Vorschautabelle::neueWahl(const QString &ueberschrift, const Spaltensinn &sinn)
{
    auto *wahl = new QComboBox(horizontalHeader()->viewport());
    wahl->setAccessibleName(
        localizedString(QStringLiteral("Bedeutung der Spalte „%1“")).arg(ueberschrift));
    for (const Spaltensinn &einer : alleSpaltensinne()) {
        wahl->addItem(inWorten(einer));
    }
    wahl->setCurrentIndex(static_cast<int>(alleSpaltensinne().indexOf(sinn)));
    wahl->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    wahl->setMinimumContentsLength(1);
    wahl->setFocusPolicy(Qt::StrongFocus); // the wheel rolls the table
    wahl->installEventFilter(this);
    connect(wahl, &QComboBox::currentIndexChanged, this, &Vorschautabelle::gewaehlt);
    return wahl;
}

void Vorschautabelle::setSpalten(const QStringList &ueberschriften,
                                 const QList<Spaltensinn> &spalten)
{
    clear();
    qDeleteAll(m_wahlen);
    m_wahlen.clear();
    setRowCount(0);
    setColumnCount(static_cast<int>(spalten.size()));
    QStringList titel;
    for (int i = 0; i < spalten.size(); ++i) {
        titel << ueberschriftFuer(ueberschriften, i);
        m_wahlen << neueWahl(titel.last(), spalten[i]);
        setColumnWidth(i, schmalsteSpalte);
    }
    setHorizontalHeaderLabels(titel);
    stelleWahlen();
}

/// Each chooser stands below the words of its heading.
void Vorschautabelle::stelleWahlen()
{
    QHeaderView *kopf = horizontalHeader();
    if (m_wahlen.isEmpty()) {
        return;
    }
    const int hoehe = m_wahlen.first()->sizeHint().height();
    kopf->setFixedHeight(kopf->fontMetrics().height() + hoehe + 2 * abstand);
    for (int i = 0; i < m_wahlen.size(); ++i) {
        m_wahlen[i]->setGeometry(kopf->sectionViewportPosition(i), kopf->height() - hoehe,
                                 kopf->sectionSize(i), hoehe);
        m_wahlen[i]->show();
    }
}

void Vorschautabelle::resizeEvent(QResizeEvent *event)
{
    QTableWidget::resizeEvent(event);
    stelleWahlen();
}

QList<Spaltensinn> Vorschautabelle::spalten() const
{
    QList<Spaltensinn> alle;
    for (const QComboBox *wahl : m_wahlen) {
        alle << alleSpaltensinne().at(wahl->currentIndex());
    }
    return alle;
}

QTableWidgetItem *Vorschautabelle::zelle(const QString &feld, int spalte,
                                         const Leseauftrag &auftrag, const Einlesung &einlesung,
                                         const Lesezeile *zeile) const
{
    const Spaltensinn sinn = auftrag.spalten.value(spalte);
    auto *neue = new QTableWidgetItem(feld.simplified());
    neue->setFlags(sinn.art == Art::Nichts || zeile == nullptr || zeile->ausgelassen
                       ? Qt::NoItemFlags
                       : Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    if (zeile == nullptr) {
        return neue;
    }
    QString zahl;
    if (sinn.art == Art::Wert || sinn.art == Art::Portion) {
        neue->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        zahl = gelesen(feld, sinn, einlesung.schriften.value(spalte), *zeile);
    }
    if (!zahl.isEmpty()) {
        neue->setText(zahl);
    } else if (istFalsch(feld, sinn, auftrag, *zeile)) {
        neue->setIcon(style()->standardIcon(QStyle::SP_MessageBoxWarning));
    }
    return neue;
}

void Vorschautabelle::zeige(const QList<Csv::Satz> &saetze, const Leseauftrag &auftrag,
                            const Einlesung &einlesung)
{
    const qsizetype erste = auftrag.ueberschriften ? 1 : 0;
    const auto anzahl =
        static_cast<int>(std::clamp<qsizetype>(saetze.size() - erste, 0, gezeigteZeilen));
    setRowCount(anzahl);
    QStringList nummern;
    for (int i = 0; i < anzahl; ++i) {
        const Csv::Satz &satz = saetze[erste + i];
        nummern << QString::number(satz.zeile);
        const auto zeile =
            std::find_if(einlesung.zeilen.begin(), einlesung.zeilen.end(),
                         [&satz](const Lesezeile &eine) { return eine.zeile == satz.zeile; });
        for (int spalte = 0; spalte < columnCount(); ++spalte) {
            setItem(i, spalte,
                    zelle(satz.felder.value(spalte), spalte, auftrag, einlesung,
                          zeile == einlesung.zeilen.end() ? nullptr : &*zeile));
        }
    }
    setVerticalHeaderLabels(nummern);
}

/// The keyboard may come to a chooser that is out of sight.
bool Vorschautabelle::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn) {
        const auto *wahl = static_cast<QWidget *>(watched);
        const QRect platz = horizontalHeader()->viewport()->rect();
        if (!platz.contains(wahl->geometry())) {
            horizontalScrollBar()->setValue(horizontalScrollBar()->value() + wahl->x());
        }
    }
    return QTableWidget::eventFilter(watched, event);
}
