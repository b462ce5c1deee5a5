#include "Spaltenumbruch.h"

#include <QBoxLayout>
#include <QEvent>
#include <QFrame>
#include <QScrollArea>
#include <QScrollBar>

namespace {

/// What the parts of a layout need beside one another, without `ohne`.
int breiteNebeneinander(const QBoxLayout &anordnung, const QLayout *ohne = nullptr)
{
    int breite = 0;
    for (int i = 0; i < anordnung.count(); ++i) {
        QLayoutItem *teil = anordnung.itemAt(i);
        if (!teil->isEmpty() && (ohne == nullptr || teil->layout() != ohne)) {
            breite += teil->minimumSize().width() + anordnung.spacing();
        }
    }
    return breite;
}

/// A column below another one is no wider than it needs: its figures stay near their captions.
void richteLayout(QBoxLayout &anordnung, bool nebeneinander)
{
    anordnung.setDirection(nebeneinander ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    for (int i = 0; i < anordnung.count(); ++i) {
        QLayoutItem *teil = anordnung.itemAt(i);
        if (auto *linie = qobject_cast<QFrame *>(teil->widget())) {
            linie->setFrameShape(nebeneinander ? QFrame::VLine : QFrame::HLine);
        } else if (teil->layout() != nullptr) {
            teil->setAlignment(nebeneinander ? Qt::Alignment() : Qt::AlignLeft);
        }
    }
}

} // namespace

Spaltenumbruch::Spaltenumbruch(QScrollArea &bereich, QBoxLayout &aussen, QBoxLayout &innen)
    : QObject(&bereich)
    , m_bereich(bereich)
    , m_seite(*bereich.widget())
    , m_aussen(aussen)
    , m_innen(innen)
{
    bereich.installEventFilter(this);
    m_seite.installEventFilter(this);
}

/// The bar that rolls up and down is reckoned with: were it not, its coming would turn the columns
/// and their turning would send it away again.
Spaltenumbruch::Form Spaltenumbruch::passende() const
{
    const int frei =
        m_bereich.maximumViewportSize().width() - m_bereich.verticalScrollBar()->sizeHint().width();
    const int rechts = breiteNebeneinander(m_innen) - m_innen.spacing();
    if (breiteNebeneinander(m_aussen, &m_innen) + rechts <= frei) {
        return Form::Nebeneinander;
    }
    return rechts <= frei ? Form::Geteilt : Form::Untereinander;
}

void Spaltenumbruch::richte(Form form)
{
    if (m_form != form) {
        m_form = form;
        richteLayout(m_aussen, form == Form::Nebeneinander);
        richteLayout(m_innen, form != Form::Untereinander);
    }
}

void Spaltenumbruch::ordne()
{
    richte(passende());
    m_bereich.setWidgetResizable(true);
}

void Spaltenumbruch::stelle(Form form)
{
    richte(form);
    m_bereich.setWidgetResizable(false);
    m_aussen.activate();
    m_seite.resize(m_aussen.totalMinimumSize());
    m_aussen.activate();
}

bool Spaltenumbruch::eventFilter(QObject *watched, QEvent *event)
{
    const bool neuerPlatz = watched == &m_bereich && event->type() == QEvent::Resize;
    const bool neueWorte = watched == &m_seite && event->type() == QEvent::LayoutRequest;
    if (neuerPlatz || neueWorte) {
        ordne();
    }
    if (watched == &m_seite && event->type() == QEvent::Show) {
        m_aussen.invalidate(); // layouts don't follow what comes and goes while all is hidden
    }
    return QObject::eventFilter(watched, event);
}
