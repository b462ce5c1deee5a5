#include "Breittabelle.h"

#include "Tabellenkopf.h"

#include <QPainter>
#include <QResizeEvent>
#include <QScrollBar>

#include <algorithm>

/// The first column in front of the others. It only shows: the mouse reaches the table below.
class Breittabelle::Festspalte : public QWidget
{
public:
    explicit Festspalte(Breittabelle *tabelle) : QWidget(tabelle), m_tabelle(tabelle)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        hide();
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter painter(this);
        m_tabelle->maleFestspalte(painter);
    }

private:
    Breittabelle *m_tabelle;
};

Breittabelle::Breittabelle(QWidget *parent)
    : Tabellenansicht(parent)
    , m_kopf(new Tabellenkopf(this))
    , m_spalte(new Festspalte(this))
{
    m_kopf->setModel(model());
    m_kopf->hide();
    connect(m_kopf, &QHeaderView::sectionResized, this, [this](int spalte, int, int breite) {
        if (spalte == 0) {
            setColumnWidth(0, breite);
        }
    });
    connect(m_kopf, &QHeaderView::sectionHandleDoubleClicked, this,
            &QTableView::resizeColumnToContents);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this,
            &Breittabelle::stelleFestspalte);
    const auto male = [this] {
        m_spalte->update();
    };
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, male);
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this, male);
}

void Breittabelle::folge(Breittabelle &obere)
{
    m_folgt = true;
    obere.m_untere = this;
    horizontalHeader()->hide();
    // Bars that came and went would move the rows under the mouse, and part the columns of the two.
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    obere.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    horizontalHeader()->setMinimumSectionSize(1);
    connect(obere.horizontalHeader(), &QHeaderView::sectionResized, this,
            [this](int spalte, int, int breite) { setColumnWidth(spalte, breite); });
    connect(obere.horizontalScrollBar(), &QScrollBar::valueChanged, horizontalScrollBar(),
            &QScrollBar::setValue);
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, obere.horizontalScrollBar(),
            &QScrollBar::setValue);
    updateGeometry(); // it is as high as its rows from now on
}

QSize Breittabelle::sizeHint() const
{
    if (!m_folgt) {
        return Tabellenansicht::sizeHint();
    }
    const int balken = horizontalScrollBar()->sizeHint().height();
    return {Tabellenansicht::sizeHint().width(),
            modell()->rowCount() * rowHeight() + balken + 2 * frameWidth()};
}

QSize Breittabelle::minimumSizeHint() const
{
    const QSize mindestens = Tabellenansicht::minimumSizeHint();
    return m_folgt ? QSize(mindestens.width(), sizeHint().height()) : mindestens;
}

int Breittabelle::spaltenbedarf(int spalte) const
{
    const QHeaderView &kopf = *horizontalHeader();
    const int rand = 2 * style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, &kopf) + 2;
    const QVariant kurz =
        model()->headerData(spalte, Qt::Horizontal, Tabellenmodell::kurztitelrolle);
    const QString titel =
        kurz.isValid() ? kurz.toString() : model()->headerData(spalte, Qt::Horizontal).toString();
    return std::max(sizeHintForColumn(spalte), kopf.fontMetrics().size(0, titel).width() + rand);
}

void Breittabelle::passeSpaltenAn()
{
    for (int spalte = 0; spalte < model()->columnCount(); ++spalte) {
        const int unten = m_untere != nullptr ? m_untere->sizeHintForColumn(spalte) : 0;
        setColumnWidth(spalte, std::max(spaltenbedarf(spalte), unten));
    }
}

int Breittabelle::festeBreite() const
{
    const int breite = columnWidth(0);
    const bool rollt = horizontalScrollBar()->value() > 0;
    return rollt && breite <= viewport()->width() * 2 / 3 ? breite : 0;
}

QModelIndex Breittabelle::indexAt(const QPoint &ort) const
{
    return ort.x() < festeBreite() && ort.x() >= 0 ? model()->index(rowAt(ort.y()), 0)
                                                   : Tabellenansicht::indexAt(ort);
}

QRect Breittabelle::visualRect(const QModelIndex &index) const
{
    QRect zelle = Tabellenansicht::visualRect(index);
    if (index.column() == 0 && festeBreite() > 0) {
        zelle.moveLeft(0);
    }
    return zelle;
}

/// A cell that would come to stand behind the first column is not in sight yet.
void Breittabelle::scrollTo(const QModelIndex &index, ScrollHint hint)
{
    QScrollBar &balken = *horizontalScrollBar();
    const int vorher = balken.value();
    const bool fest = festeBreite() > 0;
    Tabellenansicht::scrollTo(index, hint);
    if (index.column() == 0 && fest) {
        balken.setValue(vorher);
    } else if (index.column() > 0 && !rolltNurSenkrecht()) {
        const int verdeckt = festeBreite() - columnViewportPosition(index.column());
        balken.setValue(balken.value() - std::max(0, verdeckt));
    }
}

void Breittabelle::resizeEvent(QResizeEvent *event)
{
    Tabellenansicht::resizeEvent(event);
    if (event->size().width() != event->oldSize().width()) {
        Q_EMIT breiteGeaendert();
    }
}

void Breittabelle::scrollContentsBy(int dx, int dy)
{
    Tabellenansicht::scrollContentsBy(dx, dy);
    stelleFestspalte();
}

void Breittabelle::updateGeometries()
{
    Tabellenansicht::updateGeometries();
    stelleFestspalte();
}

/// Puts the first column in front of the others, or takes it away when it stands there anyway.
void Breittabelle::stelleFestspalte()
{
    const int breite = festeBreite();
    m_kopf->setVisible(breite > 0 && !horizontalHeader()->isHidden());
    m_spalte->setVisible(breite > 0);
    if (breite == 0) {
        return;
    }
    m_kopf->setMinimumSectionSize(horizontalHeader()->minimumSectionSize());
    m_kopf->resizeSection(0, breite);
    QRect kopf = horizontalHeader()->geometry();
    kopf.setWidth(breite);
    m_kopf->setGeometry(kopf);
    QRect zellen = viewport()->geometry();
    zellen.setWidth(breite);
    m_spalte->setGeometry(zellen);
    m_spalte->update();
}

void Breittabelle::maleFestspalte(QPainter &painter) const
{
    const int breite = m_spalte->width();
    painter.fillRect(m_spalte->rect(), palette().base());
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    const QStyle::State grund = option.state & ~(QStyle::State_HasFocus | QStyle::State_Selected);
    for (int zeile = rowAt(0); zeile >= 0 && zeile < model()->rowCount() &&
                               rowViewportPosition(zeile) < m_spalte->height();
         ++zeile) {
        const QModelIndex zelle = model()->index(zeile, 0);
        option.rect = QRect(0, rowViewportPosition(zeile), breite, rowHeight());
        option.state = grund;
        option.state.setFlag(QStyle::State_Selected, selectionModel()->isSelected(zelle));
        option.state.setFlag(QStyle::State_HasFocus, hasFocus() && zelle == currentIndex());
        option.features.setFlag(QStyleOptionViewItem::Alternate,
                                alternatingRowColors() && zeile % 2 == 1);
        itemDelegate()->paint(&painter, option, zelle);
    }
    painter.setPen(palette().color(QPalette::Dark));
    painter.drawLine(breite - 1, 0, breite - 1, m_spalte->height());
    maleAbwurfstrich(painter);
}
