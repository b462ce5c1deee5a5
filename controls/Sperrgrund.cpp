#include "Sperrgrund.h"

#include <QEvent>
#include <QWidget>

Sperrgrund::Sperrgrund(QWidget *feld, const QString &grund)
    : QObject(feld)
    , m_feld(feld)
    , m_grund(grund)
{
    feld->installEventFilter(this);
    folge();
}

void Sperrgrund::beschrifteNeu(const std::function<QString(const QString &)> &text)
{
    for (QString *eines : {&m_grund, &m_fahne, &m_beschreibung}) {
        *eines = text(*eines);
    }
}

bool Sperrgrund::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::EnabledChange) {
        folge();
    }
    return QObject::eventFilter(watched, event);
}

void Sperrgrund::folge()
{
    if (m_gesperrt == !m_feld->isEnabled()) {
        return;
    }
    m_gesperrt = !m_gesperrt;
    if (m_gesperrt) {
        m_fahne = m_feld->toolTip();
        m_beschreibung = m_feld->accessibleDescription();
    }
    m_feld->setToolTip(m_gesperrt ? m_grund : m_fahne);
    m_feld->setAccessibleDescription(m_gesperrt ? m_grund : m_beschreibung);
}
