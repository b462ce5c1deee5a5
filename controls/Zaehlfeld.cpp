#include "Zaehlfeld.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPalette>

namespace {

const QEvent::Type auffrischen = static_cast<QEvent::Type>(QEvent::registerEventType());

} // namespace

Zaehlfeld::Zaehlfeld(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::RichText);
    setIntValue(0);
}

void Zaehlfeld::setAnfang(Textfarbe farbe, int punkte)
{
    if (farbe != m_farbe || punkte != m_punkte) {
        m_farbe = farbe;
        m_punkte = punkte;
        wertGesetzt();
    }
}

void Zaehlfeld::wertGesetzt()
{
    if (!m_veraltet) {
        m_veraltet = true;
        QCoreApplication::postEvent(this, new QEvent(auffrischen));
        update();
    }
}

void Zaehlfeld::zeigen()
{
    if (!m_veraltet) {
        return;
    }
    m_veraltet = false;
    const QString text = stringValue();
    if (m_punkte == 0) {
        setText(text.toHtmlEscaped());
        return;
    }
    setText(QStringLiteral("<span style='color:%1;font-size:%2pt'>%3</span>%4")
                .arg(farbeFuer(m_farbe, palette()).name(), QString::number(m_punkte),
                     text.left(1).toHtmlEscaped(), text.mid(1).toHtmlEscaped()));
}

bool Zaehlfeld::event(QEvent *event)
{
    if (event->type() == auffrischen) {
        zeigen();
        return true;
    }
    return QLabel::event(event);
}

void Zaehlfeld::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        wertGesetzt();
    }
}

void Zaehlfeld::paintEvent(QPaintEvent *event)
{
    zeigen();
    QLabel::paintEvent(event);
}
