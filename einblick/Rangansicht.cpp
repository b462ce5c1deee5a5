#include "Rangansicht.h"

#include "Balkenmaler.h"
#include "Zeilenhoehe.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>

#include <algorithm>

namespace {

constexpr int zeilenhoehe = 24;
constexpr int zellenrand = 16; // on both sides of a text
constexpr int balkenbreite = 120;

} // namespace

Rangansicht::Rangansicht(QWidget *parent) : QTableView(parent)
{
    setModel(&m_modell);
    setItemDelegateForColumn(Rangmodell::Anteil, new Balkenmaler(this));
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setAlternatingRowColors(true);
    setWordWrap(false);
    verticalHeader()->hide();
    horizontalHeader()->setHighlightSections(false);
    sortiere(Rangmodell::Rang);
    setSortingEnabled(true);
    connect(this, &QTableView::doubleClicked, this, [this](const QModelIndex &zelle) {
        Q_EMIT anzeigeGewuenscht(m_modell.stelle(zelle.row()));
    });
    stelleSpalten();
}

void Rangansicht::zeige(const Rangmodell::Stand &stand)
{
    const auto bisher = stand.frage == m_frage ? m_modell.wer(currentIndex().row()) : std::nullopt;
    m_frage = stand.frage;
    m_modell.zeige(stand);
    stelleSpalten();
    if (m_modell.rowCount() > 0) {
        const int reihe = bisher ? m_modell.reiheVon(*bisher) : 0;
        setCurrentIndex(m_modell.index(std::max(0, reihe), Rangmodell::Name));
    }
}

void Rangansicht::sortiere(Rangmodell::Spalte spalte)
{
    sortByColumn(spalte, Qt::AscendingOrder);
}

/// The names get what the figures leave. The widest figure that is usual decides, so that nothing
/// moves from one question to the next. Where names would be cut short, there are no bars, and then
/// no portions: the row tells of them when the mouse rests on it.
void Rangansicht::stelleSpalten()
{
    const auto textbreite = [this](const QString &text) {
        return fontMetrics().horizontalAdvance(text) + zellenrand;
    };
    QHeaderView &kopf = *horizontalHeader();
    kopf.setSectionResizeMode(Rangmodell::Name, QHeaderView::Stretch);
    int frei = viewport()->width();
    const auto gib = [&](Rangmodell::Spalte spalte, int breite, bool zeigen) {
        setColumnHidden(spalte, !zeigen);
        if (zeigen) {
            setColumnWidth(spalte, std::max(breite, kopf.sectionSizeHint(spalte)));
            frei -= columnWidth(spalte);
        }
    };
    gib(Rangmodell::Rang, textbreite(QStringLiteral("1000")), true);
    gib(Rangmodell::Wert, textbreite(QStringLiteral("mind. 1000 mg")), true);
    const int name = textbreite(QStringLiteral("Kartoffeln, gekocht"));
    const int portion = textbreite(QStringLiteral("1 Scheibe (100 g)"));
    gib(Rangmodell::Portion, portion, m_frage.bezug == Bezug::JePortion && frei - portion >= name);
    gib(Rangmodell::Anteil, balkenbreite, frei - balkenbreite >= name);
    verticalHeader()->setDefaultSectionSize(zeilenhoeheFuer(*this, zeilenhoehe));
}

/// Names are looked for in whichever column the cursor is.
void Rangansicht::keyboardSearch(const QString &text)
{
    const int reihe = std::max(0, currentIndex().row());
    selectionModel()->setCurrentIndex(m_modell.index(reihe, Rangmodell::Name),
                                      QItemSelectionModel::NoUpdate);
    m_getippt.start();
    QTableView::keyboardSearch(text);
}

/// Whether the next letter belongs to the name that is being typed.
bool Rangansicht::suchtNoch() const
{
    return m_getippt.isValid() && !m_getippt.hasExpired(QApplication::keyboardInputInterval());
}

void Rangansicht::wechsleHaken()
{
    const QModelIndex name = currentIndex().siblingAtColumn(Rangmodell::Name);
    if (name.isValid()) {
        const bool angehakt = name.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        m_modell.setData(name, angehakt ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
    }
}

void Rangansicht::keyPressEvent(QKeyEvent *event)
{
    const bool eingabe = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (eingabe && currentIndex().isValid()) {
        if (event->modifiers().testFlag(Qt::ControlModifier)) {
            Q_EMIT planGewuenscht(stelle());
        } else {
            Q_EMIT anzeigeGewuenscht(stelle());
        }
    } else if (event->key() == Qt::Key_Space && suchtNoch()) {
        keyboardSearch(event->text());
    } else if (event->key() == Qt::Key_Space) {
        wechsleHaken();
    } else if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier) {
        // Not every desktop turns this key into the wish for a menu, as all do the key made for it.
        wuenscheMenue();
    } else {
        QTableView::keyPressEvent(event);
    }
}

/// The menu is about the row under the mouse, which gets the cursor, or about the one that has it.
void Rangansicht::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() != QContextMenuEvent::Mouse) {
        wuenscheMenue();
    } else if (indexAt(event->pos()).isValid()) {
        setCurrentIndex(indexAt(event->pos()));
        Q_EMIT menueGewuenscht(event->globalPos());
    }
}

void Rangansicht::wuenscheMenue()
{
    const QRect zelle = visualRect(currentIndex()) & viewport()->rect();
    if (currentIndex().isValid()) {
        Q_EMIT menueGewuenscht(viewport()->mapToGlobal(zelle.center()));
    }
}

void Rangansicht::changeEvent(QEvent *event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::LanguageChange) {
        stelleSpalten();
    }
}

void Rangansicht::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    stelleSpalten();
}
