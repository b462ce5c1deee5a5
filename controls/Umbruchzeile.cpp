#include "Umbruchzeile.h"

#include <QBoxLayout>
#include <QEvent>

Umbruchzeile::Umbruchzeile(QWidget *parent) : QWidget(parent)
{
    QSizePolicy platz(QSizePolicy::Preferred, QSizePolicy::Preferred);
    platz.setHeightForWidth(true);
    setSizePolicy(platz);
}

QBoxLayout *Umbruchzeile::zeile() const
{
    return qobject_cast<QBoxLayout *>(layout());
}

/// What the groups need in one line.
QSize Umbruchzeile::nebeneinander() const
{
    int breite = 0;
    int hoehe = 0;
    for (int i = 0; i < zeile()->count(); ++i) {
        const QSize gruppe = zeile()->itemAt(i)->minimumSize();
        breite += gruppe.width() + (i > 0 ? zeile()->spacing() : 0);
        hoehe = qMax(hoehe, gruppe.height());
    }
    return {breite, hoehe};
}

/// What they need one below the other.
QSize Umbruchzeile::untereinander() const
{
    int breite = 0;
    int hoehe = 0;
    for (int i = 0; i < zeile()->count(); ++i) {
        const QSize gruppe = zeile()->itemAt(i)->minimumSize();
        breite = qMax(breite, gruppe.width());
        hoehe += gruppe.height() + (i > 0 ? zeile()->spacing() : 0);
    }
    return {breite, hoehe};
}

int Umbruchzeile::heightForWidth(int breite) const
{
    return breite >= nebeneinander().width() ? nebeneinander().height() : untereinander().height();
}

QSize Umbruchzeile::sizeHint() const
{
    return nebeneinander();
}

QSize Umbruchzeile::minimumSizeHint() const
{
    return untereinander();
}

/// A text in a group may have become longer.
bool Umbruchzeile::event(QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest) {
        ordne();
    }
    return QWidget::event(event);
}

void Umbruchzeile::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    ordne();
}

void Umbruchzeile::ordne()
{
    const auto richtung =
        width() >= nebeneinander().width() ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom;
    if (zeile()->direction() != richtung) {
        zeile()->setDirection(richtung);
        zeile()->activate();
    }
}
