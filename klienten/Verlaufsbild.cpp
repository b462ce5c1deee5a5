#include "Verlaufsbild.h"

#include "Zeichenkettentabelle.h"

#include <QFontMetrics>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

Verlaufsbild::Verlaufsbild(QWidget *parent) : Zeichenansicht(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void Verlaufsbild::setze(const Person &person, const QList<Besuch> &besuche, Messgroesse was,
                         const QDate &heute)
{
    m_daten = verlaufsdaten(person, besuche, was, heute);
    setAccessibleName(messgroessenname(was));
    update();
}

void Verlaufsbild::zeichnen(QPainter &maler, const QRectF &bounds) const
{
    maler.save();
    maler.setFont(font());
    maleVerlauf(maler, bounds, m_daten, palette());
    maler.restore();
}

QString Verlaufsbild::beschreibung() const
{
    return verlaufInWorten(m_daten);
}

/// A tool tip that the view keeps would be read out in place of its description.
bool Verlaufsbild::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || !m_daten.band) {
        return Zeichenansicht::event(event);
    }
    QToolTip::showText(
        static_cast<QHelpEvent *>(event)->globalPos(),
        localizedString(QStringLiteral("Zielbereich nach: %1")).arg(zielbandquelle(m_daten.was)),
        this);
    return true;
}

QSize Verlaufsbild::groesse(int zeichen, int zeilen) const
{
    return {fontMetrics().averageCharWidth() * zeichen, fontMetrics().height() * zeilen};
}

QSize Verlaufsbild::sizeHint() const
{
    constexpr int zeichen = 64;
    constexpr int zeilen = 16;
    return groesse(zeichen, zeilen);
}

QSize Verlaufsbild::minimumSizeHint() const
{
    constexpr int zeichen = 36;
    constexpr int zeilen = 10;
    return groesse(zeichen, zeilen);
}
