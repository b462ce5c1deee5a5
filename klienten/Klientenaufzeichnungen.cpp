#include "Klientenaufzeichnungen.h"

#include <algorithm>
#include <utility>

namespace {

/// The record of this key; absent when there is none.
std::optional<Aufzeichnung> mitKennung(const QList<Aufzeichnung> &alle, const QString &kennung)
{
    const auto stelle = std::find_if(alle.begin(), alle.end(), [&](const Aufzeichnung &eine) {
        return eine.kennung == kennung;
    });
    return stelle != alle.end() ? std::optional(*stelle) : std::nullopt;
}

} // namespace

Klientenaufzeichnungen::Klientenaufzeichnungen(Kartei &kartei, QString person)
    : m_kartei(kartei)
    , m_person(std::move(person))
{
    liesNamen();
    connect(&m_kartei, &Kartei::akteGeaendert, this, [this](const QString &wessen) {
        if (wessen == m_person) {
            liesNamen();
            Q_EMIT geaendert();
        }
    });
}

void Klientenaufzeichnungen::liesNamen()
{
    const std::optional<Klientenakte> akte = m_kartei.akte(m_person);
    m_name = akte ? akte->person.name : m_name;
}

QList<Aufzeichnung> Klientenaufzeichnungen::alle()
{
    const std::optional<Klientenakte> akte = m_kartei.akte(m_person);
    return akte ? akte->aufzeichnungen : QList<Aufzeichnung>();
}

/// Where another desk was faster, the cabinet asks what shall count; until then it is theirs.
Aufzeichnung Klientenaufzeichnungen::sichere(const Aufzeichnung &neu)
{
    const std::optional<Aufzeichnung> bisher = mitKennung(alle(), neu.kennung);
    const QString kennung =
        m_kartei.sichere({m_person, neu, bisher ? std::optional<Satz>(*bisher) : std::nullopt});
    Aufzeichnung unveraendert = neu;
    unveraendert.kennung = kennung;
    return mitKennung(alle(), kennung).value_or(unveraendert);
}

bool Klientenaufzeichnungen::loesche(const Aufzeichnung &aufzeichnung)
{
    return m_kartei.loesche(m_person, aufzeichnung);
}
