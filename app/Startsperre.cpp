#include "Startsperre.h"

Startsperre::Startsperre(const QString &ordner)
    : m_datei(ordner + QStringLiteral("/Mahlberg.lock"))
    , m_besetzt(false)
{
    m_datei.setStaleLockTime(0); // a day at work doesn't make the sign an old one
    m_besetzt = !m_datei.tryLock() && m_datei.error() == QLockFile::LockFailedError;
}
