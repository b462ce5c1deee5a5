#include "Zahlenzeile.h"

#include <QAbstractSpinBox>
#include <QCoreApplication>
#include <QFocusEvent>
#include <QMouseEvent>

void Zahlenzeile::markiereZahl()
{
    if (auto *zahlenfeld = qobject_cast<QAbstractSpinBox *>(parentWidget())) {
        zahlenfeld->selectAll();
    } else {
        selectAll();
    }
}

/// The Tab key takes the number by itself; a menu that was open over the line changes nothing.
void Zahlenzeile::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    switch (event->reason()) {
    case Qt::TabFocusReason:
    case Qt::BacktabFocusReason:
    case Qt::ShortcutFocusReason:
        m_betreten = false;
        if (nimmtZahl()) {
            markiereZahl();
        }
        break;
    case Qt::PopupFocusReason:
        break;
    default:
        m_betreten = true;
    }
}

void Zahlenzeile::mousePressEvent(QMouseEvent *event)
{
    QLineEdit::mousePressEvent(event);
    if (event->button() == Qt::LeftButton && nimmtZahl()) {
        m_gehalten = m_betreten;
        if (m_betreten) {
            markiereZahl();
        }
        m_betreten = false;
    }
}

/// A hand that shakes while it clicks would select a part of the number.
void Zahlenzeile::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_gehalten) {
        QLineEdit::mouseMoveEvent(event);
    }
}

void Zahlenzeile::mouseReleaseEvent(QMouseEvent *event)
{
    QLineEdit::mouseReleaseEvent(event);
    m_gehalten = false;
}

void Zahlenzeile::mouseDoubleClickEvent(QMouseEvent *event)
{
    QLineEdit::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && nimmtZahl()) {
        m_gehalten = true;
        markiereZahl();
    }
}

QString zahlenhinweis()
{
    return QCoreApplication::translate(
        "Mahlberg", "Komma und Punkt trennen beide die Nachkommastellen: 12,5 und 12.5 sind "
                    "dasselbe, 1.500 ist 1,5.");
}
