#include "Vorschlagsfeld.h"

#include <QKeyEvent>
#include <QListWidget>
#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace {

/// More than these nobody reads; a letter more finds them.
constexpr qsizetype meisteVorschlaege = 50;
constexpr int sichtbareZeilen = 8;

} // namespace

Vorschlagsfeld::Vorschlagsfeld(QWidget *parent, QWidget *fenster, Quelle quelle)
    : QLineEdit(parent)
    , m_quelle(std::move(quelle))
    , m_liste(new QListWidget(fenster))
{
    setFrame(false);
    m_liste->setFocusPolicy(Qt::NoFocus);
    m_liste->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_liste->setUniformItemSizes(true);
    m_liste->hide();
    connect(this, &QLineEdit::textEdited, this, &Vorschlagsfeld::biete);
    connect(m_liste, &QListWidget::itemClicked, this, &Vorschlagsfeld::uebernommen);
}

Vorschlagsfeld::~Vorschlagsfeld()
{
    delete m_liste;
}

void Vorschlagsfeld::biete()
{
    m_getippt = true;
    schlageVor();
}

void Vorschlagsfeld::schlageVor()
{
    m_vorschlaege = m_quelle(text().trimmed());
    if (m_vorschlaege.size() > meisteVorschlaege) {
        m_vorschlaege.resize(meisteVorschlaege);
    }
    m_liste->clear();
    for (const Vorschlag &einer : std::as_const(m_vorschlaege)) {
        m_liste->addItem(einer.anzeige);
    }
    m_liste->setCurrentRow(m_vorschlaege.isEmpty() ? -1 : 0);
    m_liste->setVisible(!m_vorschlaege.isEmpty());
    if (m_vorschlaege.isEmpty()) {
        return;
    }
    const int zeilen = static_cast<int>(std::min<qsizetype>(m_vorschlaege.size(), sichtbareZeilen));
    const int hoehe = zeilen * m_liste->sizeHintForRow(0) + 2 * m_liste->frameWidth();
    const int breite =
        std::max(width(), m_liste->sizeHintForColumn(0) + m_liste->verticalScrollBar()->width());
    QWidget *fenster = m_liste->parentWidget();
    QPoint ort = mapTo(fenster, QPoint(0, height()));
    if (ort.y() + hoehe > fenster->height()) { // no room below
        ort.setY(mapTo(fenster, QPoint(0, 0)).y() - hoehe);
    }
    m_liste->setGeometry(ort.x(), ort.y(), std::min(breite, fenster->width() - ort.x()), hoehe);
    m_liste->raise();
}

Vorschlagsfeld::Vorschlag Vorschlagsfeld::gewaehlter() const
{
    const int stelle = m_liste->currentRow();
    return m_getippt && stelle >= 0 && stelle < m_vorschlaege.size() ? m_vorschlaege[stelle]
                                                                     : Vorschlag{};
}

void Vorschlagsfeld::bewege(int um)
{
    const auto letzte = static_cast<int>(m_vorschlaege.size()) - 1;
    m_liste->setCurrentRow(std::clamp(m_liste->currentRow() + um, 0, std::max(0, letzte)));
}

/// Tab belongs to the field here, and not to the window.
bool Vorschlagsfeld::event(QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const int taste = static_cast<QKeyEvent *>(event)->key();
        if (taste == Qt::Key_Tab || taste == Qt::Key_Backtab) {
            Q_EMIT weitergegangen(taste == Qt::Key_Backtab);
            return true;
        }
    }
    return QLineEdit::event(event);
}

void Vorschlagsfeld::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT uebernommen();
        break;
    case Qt::Key_Escape:
        Q_EMIT verworfen();
        break;
    case Qt::Key_Up:
        bewege(-1);
        break;
    case Qt::Key_Down:
        bewege(1);
        break;
    default:
        QLineEdit::keyPressEvent(event);
    }
}
