#include "Personenblatt.h"

#include "Angabenworte.h"
#include "Feldworte.h"

#include <array>

namespace {

/// The fields that the faults are about, in their order.
constexpr std::array<const char *, 3> mangelfelder = {"name", "geburt", "geburt"};

QVariantList zaehlung(qsizetype anzahl)
{
    QVariantList zahlen;
    for (int i = 0; i < anzahl; ++i) {
        zahlen << i;
    }
    return zahlen;
}

/// The page is laid out before the form looks for its fields.
QWidget &eingerichtet(Personenblatt &blatt)
{
    blatt.setupUi(&blatt);
    return blatt;
}

} // namespace

Personenblatt::Personenblatt(Kartei &kartei)
    : PersonenblattGestalt()
    , m_kartei(kartei)
    , m_formular(eingerichtet(*this))
{
    bieteAn();
    connect(&m_formular, &Satzformular::eingegeben, this, &Personenblatt::sichere);
}

void Personenblatt::bieteAn()
{
    m_formular.bieteAn(QStringLiteral("geschlecht"), geschlechtsworte(), zaehlung(3), false);
    m_formular.bieteAn(QStringLiteral("umstand"), umstandsworte(), zaehlung(3), false);
}

void Personenblatt::zeige(const Person &person)
{
    m_person = person;
    m_formular.zeige(person);
}

/// Says what is wrong with the person and takes it out again. False when there is something.
bool Personenblatt::verbessere(Person &person)
{
    const QList<Personenmangel> alle = maengel(person, QDate::currentDate());
    for (const Personenmangel mangel : alle) {
        m_formular.sageFehler(QLatin1String(mangelfelder.at(static_cast<std::size_t>(mangel))),
                              inWorten(mangel));
        if (mangel == Personenmangel::NameFehlt) {
            person.name = m_person.name;
        } else {
            person.geburt = m_person.geburt;
        }
    }
    return alle.isEmpty();
}

bool Personenblatt::sichere()
{
    Person neu = m_person;
    const bool lesbar = m_formular.lies(neu, QDate::currentDate());
    const bool gut = verbessere(neu) && lesbar;
    const bool neuer = m_person.kennung.isNull();
    if (neu == m_person || neu.name.isEmpty()) {
        return gut;
    }
    const QString kennung =
        m_kartei.sichere({neu.kennung, neu, neuer ? std::nullopt : std::optional<Satz>(m_person)});
    if (neuer) {
        m_person.kennung = kennung;
        Q_EMIT angelegt(kennung);
    }
    return gut;
}

bool Personenblatt::leer()
{
    Person neu = m_person;
    return m_person.kennung.isNull() && m_formular.lies(neu, QDate::currentDate()) &&
           neu == m_person;
}

void Personenblatt::folgeSprache()
{
    bieteAn();
    m_formular.zeige(m_person);
}

void Personenblatt::erlaube(bool aendern)
{
    setEnabled(aendern);
}
