#include "Umbruchzeile.h"

#include <QEvent>

namespace {

constexpr int abstandDaneben = 8;
constexpr int abstandDarunter = 4;

QSize bedarf(const QWidget &gruppe)
{
    return gruppe.minimumSizeHint().expandedTo(gruppe.minimumSize());
}

} // namespace

Umbruchzeile::Umbruchzeile(QWidget *parent) : QWidget(parent)
{
    QSizePolicy platz(QSizePolicy::Preferred, QSizePolicy::Preferred);
    platz.setHeightForWidth(true);
    setSizePolicy(platz);
}

QList<QWidget *> Umbruchzeile::gruppen() const
{
    return findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
}

/// What the groups need in one line.
QSize Umbruchzeile::nebeneinander() const
{
    int breite = -abstandDaneben;
    int hoehe = 0;
    for (const QWidget *gruppe : gruppen()) {
        breite += abstandDaneben + bedarf(*gruppe).width();
        hoehe = qMax(hoehe, bedarf(*gruppe).height());
    }
    return {breite, hoehe};
}

/// What they need one below the other.
QSize Umbruchzeile::untereinander() const
{
    int breite = 0;
    int hoehe = -abstandDarunter;
    for (const QWidget *gruppe : gruppen()) {
        breite = qMax(breite, bedarf(*gruppe).width());
        hoehe += abstandDarunter + bedarf(*gruppe).height();
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
        updateGeometry();
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
    const bool darunter = width() < nebeneinander().width();
    const int zeilenhoehe = nebeneinander().height();
    QPoint ort(0, 0);
    for (QWidget *gruppe : gruppen()) {
        const QSize groesse = bedarf(*gruppe);
        const int tiefer = darunter ? 0 : (zeilenhoehe - groesse.height()) / 2;
        gruppe->setGeometry(QRect(ort + QPoint(0, tiefer), groesse));
        ort += darunter ? QPoint(0, groesse.height() + abstandDarunter)
                        : QPoint(groesse.width() + abstandDaneben, 0);
    }
}
