#include "Vorschautabelle.h"

#include "Zahlenform.h"
#include "Zeichenkettentabelle.h"

#include <QComboBox>
#include <QEvent>
#include <QHeaderView>
#include <QStyle>

#include <algorithm>

using Art = Spaltensinn::Art;

namespace {

constexpr int gezeigteZeilen = 20;
constexpr int schmalsteSpalte = 150; ///< the choosers' words are longer, and seen when they open

/// Digits that a number of single precision keeps.
constexpr int bedeutsameStellen = 7;

QString ueberschriftFuer(const QStringList &ueberschriften, qsizetype spalte)
{
    const QString text = ueberschriften.value(spalte).simplified();
    return text.isEmpty() ? localizedString(QStringLiteral("Spalte %1")).arg(spalte + 1) : text;
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
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

QComboBox *Vorschautabelle::neueWahl(const QString &ueberschrift, const Spaltensinn &sinn)
{
    auto *wahl = new QComboBox;
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
    m_wahlen.clear();
    setRowCount(1);
    setColumnCount(static_cast<int>(spalten.size()));
    QStringList titel;
    for (int i = 0; i < spalten.size(); ++i) {
        titel << ueberschriftFuer(ueberschriften, i);
        m_wahlen << neueWahl(titel.last(), spalten[i]);
        setCellWidget(0, i, m_wahlen.last());
        setColumnWidth(i, schmalsteSpalte);
    }
    setHorizontalHeaderLabels(titel);
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
    if (sinn.art != Art::Wert || zeile == nullptr) {
        return neue;
    }
    neue->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    if (feld.trimmed().isEmpty()) {
        return neue;
    }
    const auto zahl = einfacheZahl(feld, einlesung.schriften.value(spalte));
    if (zahl && *zahl >= 0) {
        neue->setText(
            zahlenform().toString(static_cast<double>(zeile->lebensmittel.wert(sinn.wert)), 'g',
                                  bedeutsameStellen) +
            QChar(QChar::Nbsp) + einheitszeichen(beschreibung(sinn.wert).einheit));
    } else {
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
    setRowCount(1 + anzahl);
    QStringList nummern = {QString()};
    for (int i = 0; i < anzahl; ++i) {
        const Csv::Satz &satz = saetze[erste + i];
        nummern << QString::number(satz.zeile);
        const auto zeile =
            std::find_if(einlesung.zeilen.begin(), einlesung.zeilen.end(),
                         [&satz](const Lesezeile &eine) { return eine.zeile == satz.zeile; });
        for (int spalte = 0; spalte < columnCount(); ++spalte) {
            setItem(1 + i, spalte,
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
        const auto stelle = m_wahlen.indexOf(static_cast<QComboBox *>(watched));
        scrollTo(model()->index(0, static_cast<int>(stelle)));
    }
    return QTableWidget::eventFilter(watched, event);
}
