#include "Tagesdatei.h"

#include <algorithm>

QList<Aufzeichnung> Tagesdatei::alle()
{
    if (!m_gelesen) {
        m_alle = m_datei.lies(QDateTime::currentDateTime());
        m_gelesen = true;
    }
    return m_alle;
}

/// What can't be written now stays here, and goes to the disk with the next change.
Aufzeichnung Tagesdatei::sichere(const Aufzeichnung &neu)
{
    QList<Aufzeichnung> neue = alle();
    Aufzeichnung eine = neu;
    if (eine.kennung.isNull()) {
        eine.kennung = neueKennung();
    }
    const auto bisher = std::find_if(neue.begin(), neue.end(), [&](const Aufzeichnung &andere) {
        return andere.kennung == eine.kennung;
    });
    if (bisher != neue.end()) {
        *bisher = eine;
    } else {
        neue << eine;
    }
    m_alle = neue;
    schreibe(neue);
    return eine;
}

bool Tagesdatei::loesche(const Aufzeichnung &aufzeichnung)
{
    QList<Aufzeichnung> neue = alle();
    neue.removeIf([&](const Aufzeichnung &eine) { return eine.kennung == aufzeichnung.kennung; });
    if (!schreibe(neue)) {
        return false;
    }
    m_alle = neue;
    return true;
}

bool Tagesdatei::schreibe(const QList<Aufzeichnung> &neue)
{
    const bool vorher = m_gesichert;
    m_gesichert = m_datei.schreibe(neue);
    if (m_gesichert != vorher) {
        Q_EMIT sicherungGewechselt();
    }
    return m_gesichert;
}
