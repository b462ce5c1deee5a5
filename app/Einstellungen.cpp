#include "Einstellungen.h"

#include "Einstellungsdatei.h"
#include "EngeRechte.h"

#include <QEvent>
#include <QGuiApplication>
#include <QTimerEvent>

#include <utility>

namespace {

/// How long a change waits for others, in milliseconds.
constexpr int wartezeit = 500;

const QString &vorbereitet(const QString &datei, QSettings::Format format)
{
    Einstellungsdatei::bereiteVor(datei, format);
    return datei;
}

QSettings::Scope vorbereiteterBereich()
{
    Einstellungsdatei::bereiteVor(Einstellungsdatei::imSystem(), QSettings::NativeFormat);
    return QSettings::UserScope;
}

} // namespace

Einstellungen::Einstellungen() : QSettings(vorbereiteterBereich()) {}

Einstellungen::Einstellungen(const QString &datei, Format format)
    : QSettings(vorbereitet(datei, format), format)
{
}

Einstellungen::~Einstellungen()
{
    schreibe();
}

void Einstellungen::sync()
{
    const EngeRechte eng;
    Einstellungsdatei::schuetze(fileName());
    QSettings::sync();
}

/// Writes what was set since the last time. False when that failed.
bool Einstellungen::schreibe()
{
    sync();
    // An error sticks to the object that met it. Another one on the same file shares all but that.
    return status() == NoError || QSettings(fileName(), format()).status() == NoError;
}

void Einstellungen::schreibeUndMelde()
{
    const bool vorher = std::exchange(m_geschrieben, schreibe());
    if (vorher && !m_geschrieben) {
        Q_EMIT nichtGeschrieben(fileName());
    } else if (!vorher && m_geschrieben) {
        Q_EMIT wiederGeschrieben();
    }
}

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
            schreibeUndMelde();
        }
        return true;
    }
    return QSettings::event(event);
}
