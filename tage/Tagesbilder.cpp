#include "Tagesbilder.h"

#include <QEvent>

namespace {

constexpr int abstand = 18; // between two things that are not read as one

} // namespace

Tagesbilder::Tagesbilder(QWidget *parent)
    : QWidget(parent)
    , mahlzeiten(new Mahlzeitenbild(this))
    , wertungszahlen(new Wertungszahlen(this))
{
    QSizePolicy platz(QSizePolicy::Preferred, QSizePolicy::Fixed);
    platz.setHeightForWidth(true);
    setSizePolicy(platz);
}

void Tagesbilder::zeige(const Aufzeichnung &aufzeichnung, int tag, const Tagesrechnung &rechnung,
                        const Tagesrechnung &mittel)
{
    mahlzeiten->zeige(mahlzeitenanteile(aufzeichnung, tag, rechnung, mittel));
    wertungszahlen->zeige(rechnung, mittel);
}

QSize Tagesbilder::bedarf(bool nebeneinander) const
{
    const QSize bild = mahlzeiten->minimumSizeHint();
    const QSize zahlen = wertungszahlen->minimumSizeHint();
    // Beside one another only where the names of the meals can be read.
    return nebeneinander ? QSize(mahlzeiten->sizeHint().width() + abstand + zahlen.width(),
                                 qMax(bild.height(), zahlen.height()))
                         : QSize(qMax(bild.width(), zahlen.width()),
                                 bild.height() + abstand + zahlen.height());
}

bool Tagesbilder::passtNebeneinander(int breite) const
{
    return breite >= bedarf(true).width();
}

int Tagesbilder::heightForWidth(int breite) const
{
    return bedarf(passtNebeneinander(breite)).height();
}

QSize Tagesbilder::sizeHint() const
{
    const int links = mahlzeiten->sizeHint().width();
    return {links + abstand + wertungszahlen->minimumSizeHint().width(), bedarf(true).height()};
}

QSize Tagesbilder::minimumSizeHint() const
{
    return {bedarf(false).width(), heightForWidth(width())};
}

/// A name or a figure may have become longer.
bool Tagesbilder::event(QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest) {
        ordne();
    }
    return QWidget::event(event);
}

void Tagesbilder::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    ordne();
}

/// The ratings take what they need, the bars the rest.
void Tagesbilder::ordne()
{
    const QSize zahlen = wertungszahlen->minimumSizeHint();
    const int bildhoehe = mahlzeiten->minimumSizeHint().height();
    if (passtNebeneinander(width())) {
        const int links = width() - zahlen.width();
        mahlzeiten->setGeometry(0, 0, links - abstand, bildhoehe);
        wertungszahlen->setGeometry(QRect(QPoint(links, 0), zahlen));
    } else {
        mahlzeiten->setGeometry(0, 0, width(), bildhoehe);
        wertungszahlen->setGeometry(QRect(QPoint(0, bildhoehe + abstand), zahlen));
    }
    updateGeometry();
}
