#include "Platzgedaechtnis.h"

#include "Einstellungen.h"
#include "Fensterplatz.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QTimerEvent>
#include <QWidget>

namespace {

/// A window that has not moved for this long rests, in milliseconds.
constexpr int ruhezeit = 400;

} // namespace

Platzgedaechtnis::Platzgedaechtnis(QWidget &fenster, Einstellungen &einstellungen,
                                   const QString &name, Umfang umfang, QObject *parent)
    : QObject(parent)
    , m_fenster(fenster)
    , m_einstellungen(einstellungen)
    , m_umfang(umfang)
    , m_platz(name +
              (umfang == Umfang::Platz ? QStringLiteral("/Platz") : QStringLiteral("/Groesse")))
    , m_maximiert(name + QStringLiteral("/maximiert"))
    , m_bekannt(stand())
{
    fenster.installEventFilter(this);
}

Platzgedaechtnis::~Platzgedaechtnis()
{
    merke();
}

void Platzgedaechtnis::stelleWiederHer()
{
    const QVariant gemerkt = m_einstellungen.value(m_platz);
    if (m_umfang == Umfang::Groesse && gemerkt.toSize().isValid()) {
        m_fenster.resize(gemerkt.toSize()); // no larger than the screen once it is shown
    } else if (m_umfang == Umfang::Platz && gemerkt.toRect().isValid()) {
        const QList<QScreen *> schirme = QGuiApplication::screens();
        QList<QRect> frei;
        for (const QScreen *schirm : schirme) {
            frei << schirm->availableGeometry();
        }
        m_fenster.setGeometry(Fensterplatz::wiederImSchirm(frei, gemerkt.toRect()));
    }
    m_gross = m_umfang == Umfang::Platz && m_einstellungen.value(m_maximiert, false).toBool();
    if (m_gross) {
        m_fenster.setWindowState(m_fenster.windowState() | Qt::WindowMaximized);
    }
    m_bekannt = stand();
}

QVariant Platzgedaechtnis::stand() const
{
    return m_umfang == Umfang::Platz ? QVariant(m_fenster.geometry()) : QVariant(m_fenster.size());
}

/// A window that fills the screen or is folded away keeps the place that it had before.
void Platzgedaechtnis::merke()
{
    if (!m_ruhe.isActive()) {
        return;
    }
    m_ruhe.stop();
    if (m_fenster.isMinimized() || m_fenster.isFullScreen()) {
        return;
    }
    if (m_umfang == Umfang::Platz && m_fenster.isMaximized() != m_gross) {
        m_gross = m_fenster.isMaximized();
        m_einstellungen.setValue(m_maximiert, m_gross);
    }
    if (!m_fenster.isMaximized() && stand() != m_bekannt) {
        m_bekannt = stand();
        m_einstellungen.setValue(m_platz, m_bekannt);
    }
}

bool Platzgedaechtnis::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Show:
        if (!event->spontaneous() && !m_fenster.isMaximized()) {
            m_bekannt = stand(); // the program has made it fit
        }
        break;
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::WindowStateChange:
        if (m_fenster.isVisible()) {
            m_ruhe.start(ruhezeit, this);
        }
        break;
    case QEvent::Close:
    case QEvent::Hide:
        merke();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void Platzgedaechtnis::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_ruhe.timerId()) {
        merke();
    }
}
