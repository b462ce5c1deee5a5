#include "Startsperre.h"

namespace {

/// How long a sign that has become free may lie about, in milliseconds.
constexpr int abstand = 1000;

} // namespace

Startsperre::Startsperre(const QString &ordner)
    : m_zeichen(ordner + QStringLiteral("/Mahlberg.lock"))
    , m_besetzt(!m_zeichen.nimm())
{
    if (m_besetzt) {
        m_wieder.callOnTimeout(&m_wieder, [this] { sieNach(); });
        m_wieder.start(abstand);
    }
}

void Startsperre::sieNach()
{
    m_besetzt = !m_zeichen.nimm();
    if (!m_besetzt) {
        m_wieder.stop();
    }
}
