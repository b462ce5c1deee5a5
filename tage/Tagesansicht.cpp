#include "Tagesansicht.h"

#include "Zeichenkettentabelle.h"

#include <QHeaderView>
#include <QKeyEvent>

#include <algorithm>
#include <utility>

Tagesansicht::Tagesansicht(QWidget *parent) : QTableView(parent)
{
    setModel(&m_modell);
    setEditTriggers(NoEditTriggers); // the field over the cell is this view's own
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setDragEnabled(true);
    setAcceptDrops(true);
    setDropIndicatorShown(false); // the table paints a line of its own
    setTabKeyNavigation(false);
    setShowGrid(false);
    setWordWrap(false);
    verticalHeader()->hide();
    horizontalHeader()->setHighlightSections(false);
}

void Tagesansicht::zeige(const Aufzeichnung &aufzeichnung, int tag, bool aenderbar)
{
    const std::optional<Tagesmodell::Platz> bisher = platz();
    const int spalte = std::max(0, currentIndex().column());
    verwirf();
    m_modell.zeige(aufzeichnung, tag, aenderbar);
    const int reihe = bisher ? m_modell.reihe(*bisher) : -1;
    const int letzte = m_modell.rowCount() - 1;
    if (letzte >= 0) {
        setCurrentIndex(m_modell.index(std::clamp(reihe, 0, letzte), spalte));
    }
}

void Tagesansicht::geheZu(const Tagesmodell::Platz &platz, int spalte)
{
    const int reihe = m_modell.reihe(platz);
    if (reihe >= 0) {
        setCurrentIndex(m_modell.index(reihe, spalte));
        scrollTo(currentIndex());
    }
}

QList<Tagesmodell::Platz> Tagesansicht::gewaehlteZeilen() const
{
    QList<int> reihen;
    for (const QModelIndex &eine : selectionModel()->selectedRows()) {
        reihen << eine.row();
    }
    std::sort(reihen.begin(), reihen.end());
    QList<Tagesmodell::Platz> plaetze;
    for (const int reihe : std::as_const(reihen)) {
        if (m_modell.zeile(reihe) != nullptr) {
            plaetze << *m_modell.platz(reihe);
        }
    }
    return plaetze;
}

void Tagesansicht::waehle(const QList<Tagesmodell::Platz> &zeilen)
{
    if (zeilen.isEmpty()) {
        return;
    }
    geheZu(zeilen.constFirst(), std::max(0, currentIndex().column()));
    QItemSelection auswahl;
    for (const Tagesmodell::Platz &eine : zeilen) {
        const QModelIndex zelle = m_modell.index(m_modell.reihe(eine), 0);
        auswahl.merge(QItemSelection(zelle, zelle), QItemSelectionModel::Select);
    }
    selectionModel()->select(auswahl,
                             QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void Tagesansicht::beginne(const QString &text)
{
    const int reihe = currentIndex().row();
    const int spalte = currentIndex().column();
    if (m_feld != nullptr || !m_modell.beschreibbar(reihe, spalte)) {
        return;
    }
    m_feldplatz = *m_modell.platz(reihe);
    m_feldspalte = spalte;
    scrollTo(currentIndex());
    m_feld = new Vorschlagsfeld(viewport(), window(), [this, reihe, spalte](const QString &bisher) {
        return m_vorschlaege ? m_vorschlaege(reihe, spalte, bisher)
                             : QList<Vorschlagsfeld::Vorschlag>();
    });
    m_feld->setAccessibleName(
        m_modell.headerData(spalte, Qt::Horizontal, Qt::DisplayRole).toString());
    m_feld->setText(m_modell.eingabetext(reihe, spalte));
    m_feld->selectAll();
    m_feld->installEventFilter(this);
    connect(m_feld, &Vorschlagsfeld::uebernommen, this, [this] { uebernimm(true); });
    connect(m_feld, &Vorschlagsfeld::verworfen, this, [this] {
        verwirf();
        setFocus();
    });
    connect(m_feld, &Vorschlagsfeld::weitergegangen, this, [this](bool zurueck) {
        uebernimm(false);
        setFocus();
        setCurrentIndex(moveCursor(zurueck ? MovePrevious : MoveNext, Qt::NoModifier));
    });
    stelleFeld();
    m_feld->show();
    m_feld->setFocus();
    if (!text.isNull()) {
        m_feld->insert(text);
        Q_EMIT m_feld->textEdited(m_feld->text());
    } else if (m_feld->text().isEmpty()) {
        m_feld->biete();
    }
}

void Tagesansicht::beende()
{
    if (m_feld != nullptr) {
        uebernimm(false);
    }
}

/// The field is gone before anybody hears of it: what they do may show another day.
void Tagesansicht::uebernimm(bool weiter)
{
    Vorschlagsfeld *feld = std::exchange(m_feld, nullptr);
    const QString text = feld->text().trimmed();
    // An offer is taken with Return; who leaves an empty field wants nothing.
    const QString schluessel =
        weiter || !text.isEmpty() ? feld->gewaehlter().schluessel : QString();
    const Tagesmodell::Platz platz = m_feldplatz;
    const int spalte = m_feldspalte;
    feld->removeEventFilter(this);
    feld->hide();
    feld->deleteLater();
    setFocus();
    Q_EMIT getippt(platz, spalte, text, schluessel, weiter);
}

void Tagesansicht::verwirf()
{
    if (Vorschlagsfeld *feld = std::exchange(m_feld, nullptr)) {
        feld->removeEventFilter(this);
        feld->hide();
        feld->deleteLater();
    }
}

void Tagesansicht::stelleFeld()
{
    if (m_feld != nullptr) {
        const int reihe = m_modell.reihe(m_feldplatz);
        m_feld->setGeometry(visualRect(m_modell.index(reihe, m_feldspalte)));
    }
}

/// A letter begins to type, as in a spreadsheet.
void Tagesansicht::keyPressEvent(QKeyEvent *event)
{
    const bool taste =
        event->modifiers() == Qt::NoModifier || event->modifiers() == Qt::ShiftModifier;
    const QString text = event->text();
    if (event->key() == Qt::Key_F2 || event->key() == Qt::Key_Return ||
        event->key() == Qt::Key_Enter) {
        beginne();
    } else if (event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace) {
        Q_EMIT loeschenGewuenscht();
    } else if (taste && !text.isEmpty() && text.at(0).isPrint() && !text.at(0).isSpace()) {
        beginne(text);
    } else {
        QTableView::keyPressEvent(event);
    }
}

void Tagesansicht::mouseDoubleClickEvent(QMouseEvent *event)
{
    QTableView::mouseDoubleClickEvent(event);
    beginne();
}

void Tagesansicht::scrollContentsBy(int dx, int dy)
{
    QTableView::scrollContentsBy(dx, dy);
    stelleFeld();
}

void Tagesansicht::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    stelleFeld();
}

/// Whoever goes elsewhere with the mouse has typed what stands there.
bool Tagesansicht::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_feld && event->type() == QEvent::FocusOut &&
        static_cast<QFocusEvent *>(event)->reason() != Qt::PopupFocusReason) {
        uebernimm(false);
        return false;
    }
    return QTableView::eventFilter(watched, event);
}
