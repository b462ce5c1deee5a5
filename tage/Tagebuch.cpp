#include "Tagebuch.h"

#include <algorithm>
#include <utility>

/// One change of the record. Both states share all that was not changed.
class Tagebuch::Schritt : public QUndoCommand
{
public:
    Schritt(Tagebuch &buch, const QString &was, Aufzeichnung vorher, Aufzeichnung nachher,
            QString feld)
        : QUndoCommand(was)
        , m_buch(buch)
        , m_vorher(std::move(vorher))
        , m_nachher(std::move(nachher))
        , m_feld(std::move(feld))
    {
    }
    void undo() override { m_buch.stelleHer(m_vorher); }
    void redo() override { m_buch.stelleHer(m_nachher); }
    int id() const override { return m_feld.isNull() ? -1 : 0; }
    bool mergeWith(const QUndoCommand *spaeterer) override
    {
        const auto *anderer = static_cast<const Schritt *>(spaeterer);
        if (anderer->m_feld == m_feld) {
            m_nachher = anderer->m_nachher;
        }
        return anderer->m_feld == m_feld;
    }

private:
    Tagebuch &m_buch;
    Aufzeichnung m_vorher;
    Aufzeichnung m_nachher;
    QString m_feld; ///< what was typed into; null: the step stands by itself
};

Tagebuch::Tagebuch(Aufzeichnungsablage &ablage) : m_ablage(&ablage)
{
    m_pause.setSingleShot(true);
    connect(&m_pause, &QTimer::timeout, this, &Tagebuch::sichere);
    setzeAblage(ablage);
}

Tagebuch::~Tagebuch()
{
    sichere();
}

void Tagebuch::setzeAblage(Aufzeichnungsablage &ablage)
{
    sichere();
    disconnect(m_ablage, nullptr, this, nullptr);
    m_ablage = &ablage;
    connect(m_ablage, &Aufzeichnungsablage::geaendert, this, [this] {
        if (!m_sichert) {
            liesNeu();
        }
    });
    m_stelle = -1;
    liesNeu();
}

/// The record that was worked at stays the one, as long as it is there. Where it was changed
/// elsewhere, what was done here before can't be taken back without taking that along.
void Tagebuch::liesNeu()
{
    sichere();
    const std::optional<Aufzeichnung> bisher = jetzige();
    m_alle = m_ablage->alle();
    const auto dieselbe = std::find_if(m_alle.begin(), m_alle.end(), [&](const Aufzeichnung &eine) {
        return bisher && eine.kennung == bisher->kennung;
    });
    const bool da = dieselbe != m_alle.end();
    m_stelle = static_cast<int>(da ? dieselbe - m_alle.begin() : m_alle.size() - 1);
    if (!da || !(*dieselbe == *bisher)) {
        schritte.clear();
    }
    waehleTag(da ? m_tag : 0);
    Q_EMIT gewechselt();
}

std::optional<Aufzeichnung> Tagebuch::jetzige() const
{
    return m_stelle >= 0 && m_stelle < m_alle.size() ? std::optional(m_alle[m_stelle])
                                                     : std::nullopt;
}

void Tagebuch::waehle(int stelle)
{
    if (stelle == m_stelle || stelle < 0 || stelle >= m_alle.size()) {
        return;
    }
    sichere();
    m_stelle = stelle;
    m_tag = 0;
    schritte.clear();
    Q_EMIT gewechselt();
}

bool Tagebuch::aenderbar() const
{
    const std::optional<Aufzeichnung> eine = jetzige();
    return eine && eine->neuererText.isEmpty() && m_ablage->beschreibbar();
}

void Tagebuch::waehleTag(int tag)
{
    const std::optional<Aufzeichnung> eine = jetzige();
    const int letzter = eine ? static_cast<int>(eine->tage.size()) - 1 : 0;
    const int neuer = std::clamp(tag, 0, std::max(0, letzter));
    if (std::exchange(m_tag, neuer) != neuer) {
        Q_EMIT tagGewechselt();
    }
}

void Tagebuch::beginne(const Aufzeichnung &neue)
{
    sichere();
    m_sichert = true;
    const Aufzeichnung gesicherte = m_ablage->sichere(neue);
    m_sichert = false;
    m_alle << gesicherte;
    m_stelle = static_cast<int>(m_alle.size()) - 1;
    m_tag = 0;
    schritte.clear();
    Q_EMIT gewechselt();
}

bool Tagebuch::loesche()
{
    sichere();
    const std::optional<Aufzeichnung> eine = jetzige();
    if (!eine) {
        return false;
    }
    m_sichert = true;
    const bool geloescht = m_ablage->loesche(*eine);
    m_sichert = false;
    if (geloescht) {
        m_alle.removeAt(m_stelle);
        m_stelle = std::min(m_stelle, static_cast<int>(m_alle.size()) - 1);
        m_tag = 0;
        schritte.clear();
        Q_EMIT gewechselt();
    }
    return geloescht;
}

bool Tagebuch::aendere(const QString &was, const Tat &tat, const QString &feld)
{
    if (!aenderbar()) {
        return false;
    }
    const Aufzeichnung vorher = *jetzige();
    Aufzeichnung nachher = vorher;
    if (!tat(nachher) || nachher == vorher) {
        return false;
    }
    schritte.push(new Schritt(*this, was, vorher, nachher, feld));
    return true;
}

/// The key and the count of writes are those of today, whatever is taken back.
void Tagebuch::stelleHer(const Aufzeichnung &stand)
{
    Aufzeichnung neu = stand;
    neu.kennung = m_alle[m_stelle].kennung;
    neu.fassung = m_alle[m_stelle].fassung;
    m_alle[m_stelle] = neu;
    m_offen = true;
    m_pause.start(0);
    waehleTag(m_tag);
    Q_EMIT geaendert();
}

/// Where another desk was faster, the place tells what it has now.
void Tagebuch::sichere()
{
    m_pause.stop();
    if (!std::exchange(m_offen, false)) {
        return;
    }
    m_sichert = true;
    Aufzeichnung gesicherte = m_ablage->sichere(m_alle[m_stelle]);
    m_sichert = false;
    std::swap(m_alle[m_stelle], gesicherte);
    gesicherte.kennung = m_alle[m_stelle].kennung;
    gesicherte.fassung = m_alle[m_stelle].fassung;
    if (!(gesicherte == m_alle[m_stelle])) {
        waehleTag(m_tag);
        Q_EMIT geaendert();
    }
}
