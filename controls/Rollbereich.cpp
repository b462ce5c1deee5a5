#include "Rollbereich.h"

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QLayout>
#include <QScrollBar>
#include <QVBoxLayout>

namespace {

/// So much of the page is always to be seen, in pixels.
constexpr int mindesthoehe = 240;

bool folgtDemRad(const QWidget &feld)
{
    return qobject_cast<const QAbstractSlider *>(&feld) != nullptr ||
           qobject_cast<const QAbstractSpinBox *>(&feld) != nullptr ||
           qobject_cast<const QComboBox *>(&feld) != nullptr;
}

/// A sentence that is broken into lines makes the page higher than its fields alone would.
void gibZeilenPlatz(QWidget &seite)
{
    const QLayout *anordnung = seite.layout();
    if (anordnung != nullptr && anordnung->hasHeightForWidth()) {
        seite.setMinimumHeight(anordnung->totalMinimumHeightForWidth(seite.width()));
    }
}

} // namespace

Rollbereich::Rollbereich(QWidget *seite, QWidget *parent) : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus); // the keys belong to the fields of the page
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidgetResizable(true);
    setWidget(seite);
    viewport()->setAutoFillBackground(false);
    seite->setAutoFillBackground(false);
    for (QWidget *feld : seite->findChildren<QWidget *>()) {
        if (folgtDemRad(*feld)) {
            feld->setFocusPolicy(Qt::StrongFocus); // else turning the wheel would give the focus
            feld->installEventFilter(this);
        }
    }
}

void Rollbereich::fuelle(QWidget &rahmen, QWidget *seite)
{
    auto *anordnung = new QVBoxLayout(&rahmen);
    anordnung->setContentsMargins(0, 0, 0, 0);
    anordnung->addWidget(new Rollbereich(seite, &rahmen));
}

void Rollbereich::fasse(QWidget &rahmen)
{
    auto *seite = new QWidget(&rahmen); // within the window, so that no field leaves its order
    seite->setLayout(rahmen.layout());
    fuelle(rahmen, seite);
}

QSize Rollbereich::sizeHint() const
{
    return widget() != nullptr ? widget()->sizeHint() : QScrollArea::sizeHint();
}

QSize Rollbereich::minimumSizeHint() const
{
    if (widget() == nullptr) { // the page's owner may take it away
        return QScrollArea::minimumSizeHint();
    }
    const QSize seite = widget()->minimumSizeHint();
    return {seite.width() + verticalScrollBar()->sizeHint().width(),
            qMin(mindesthoehe, seite.height())};
}

bool Rollbereich::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest) {
        updateGeometry(); // the page may have become wider
    }
    if (watched == widget() &&
        (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Resize)) {
        gibZeilenPlatz(*widget());
    }
    // The scroll bars and the page pass through here too.
    const auto *feld = qobject_cast<const QWidget *>(watched);
    if (event->type() == QEvent::Wheel && widget() != nullptr && widget()->isAncestorOf(feld) &&
        feld != widget() && !feld->hasFocus()) {
        QCoreApplication::sendEvent(verticalScrollBar(), event);
        return true;
    }
    return QScrollArea::eventFilter(watched, event);
}
