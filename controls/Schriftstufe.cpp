#include "Schriftstufe.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

struct Schriftstufe::Stufe
{
    const char *name;
    double faktor;
    QFont::Weight gewicht;
};

void Schriftstufe::kleide(QWidget &fenster)
{
    static constexpr Stufe stufen[] = {
        {"klein", 0.9, QFont::Normal},
        {"ueberschrift", 1.0, QFont::DemiBold},
        {"titel", 1.5, QFont::DemiBold},
    };
    for (QWidget *feld : fenster.findChildren<QWidget *>()) {
        const QByteArray name = feld->property("schriftstufe").toByteArray();
        for (const Stufe &stufe : stufen) {
            if (name == stufe.name) {
                new Schriftstufe(feld, stufe);
            }
        }
    }
}

Schriftstufe::Schriftstufe(QWidget *feld, const Stufe &stufe)
    : QObject(feld)
    , m_feld(feld)
    , m_stufe(stufe)
{
    feld->installEventFilter(this);
    setze();
}

bool Schriftstufe::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ApplicationFontChange) {
        setze();
    }
    return QObject::eventFilter(watched, event);
}

/// Family and all else come from the window, also when it is dressed for paper.
void Schriftstufe::setze()
{
    QFont schrift;
    schrift.setPointSizeF(QApplication::font(m_feld).pointSizeF() * m_stufe.faktor);
    schrift.setWeight(m_stufe.gewicht);
    m_feld->setFont(schrift);
}
