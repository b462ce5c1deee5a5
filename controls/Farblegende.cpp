#include "Farblegende.h"

#include "Bildzugang.h"

#include <QCoreApplication>
#include <QPainter>

namespace {

constexpr int quadrat = 11;
constexpr int abstand = 6;
constexpr int luecke = 16;

} // namespace

Farblegende::Farblegende(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    QAccessible::installFactory(Bildzugang<Farblegende>::zugangZu); // Qt keeps one entry for it
}

void Farblegende::setEintraege(const QList<Eintrag> &eintraege)
{
    m_eintraege = eintraege;
    setAccessibleName(worte());
    updateGeometry();
    update();
}

QString Farblegende::worte() const
{
    QStringList worte;
    for (const Eintrag &eintrag : m_eintraege) {
        worte << eintrag.text;
    }
    return worte.join(QStringLiteral(", "));
}

QString Farblegende::beschreibung() const
{
    return QCoreApplication::translate("Mahlberg", "Bedeutung der Farben, von links: %1")
        .arg(worte());
}

int Farblegende::breite(const Eintrag &eintrag) const
{
    return quadrat + abstand + fontMetrics().horizontalAdvance(eintrag.text);
}

QSize Farblegende::sizeHint() const
{
    int gesamt = 0;
    for (const Eintrag &eintrag : m_eintraege) {
        gesamt += breite(eintrag) + luecke;
    }
    return {gesamt, fontMetrics().height() + 4};
}

QSize Farblegende::minimumSizeHint() const
{
    return sizeHint();
}

void Farblegende::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    int links = qMax(0, (width() - sizeHint().width() + luecke) / 2);
    for (const Eintrag &eintrag : m_eintraege) {
        const QRect feld(links, (height() - quadrat) / 2, quadrat, quadrat);
        painter.fillRect(feld, eintrag.farbe);
        painter.setPen(palette().color(QPalette::Mid));
        painter.drawRect(feld.adjusted(0, 0, -1, -1));
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(QRect(feld.right() + 1 + abstand, 0, width(), height()),
                         Qt::AlignLeft | Qt::AlignVCenter, eintrag.text);
        links += breite(eintrag) + luecke;
    }
}
