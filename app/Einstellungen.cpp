#include "Einstellungen.h"

#include <QEvent>
#include <QGuiApplication>
#include <QTimerEvent>

namespace {

/// How long a change waits for others, in milliseconds.
constexpr int wartezeit = 500;

} // namespace

bool Einstellungen::event(QEvent *event)
{
    if (event->type() == QEvent::UpdateRequest) {
        m_ruhe.start(wartezeit, this);
        return true;
    }
    if (event->type() == QEvent::Timer &&
        static_cast<QTimerEvent *>(event)->timerId() == m_ruhe.timerId()) {
        if (QGuiApplication::mouseButtons() == Qt::NoButton) { // else a slider may be on its way
            m_ruhe.stop();
            QEvent schreiben(QEvent::UpdateRequest);
            QSettings::event(&schreiben);
        }
        return true;
    }
    return QSettings::event(event);
}
