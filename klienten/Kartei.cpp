#include "Kartei.h"

#include <QElapsedTimer>

#include <algorithm>
#include <type_traits>
#include <utility>

namespace {

/// A server that was started anew is there after some seconds. Asking one that does not answer
/// holds the windows up, so nine tenths of the time they are left in peace.
constexpr int wartezeit = 5000; // milliseconds
constexpr int ruhe = 9;

/// Whether the hindrance may be gone by itself the next time.
bool vergehtVielleicht(Hindernis hindernis)
{
    switch (hindernis) {
    case Hindernis::Verwehrt:
    case Hindernis::Gesperrt:
    case Hindernis::Getrennt:
    case Hindernis::Sonstiges:
        return true;
    default:
        return false;
    }
}

template <typename Art>
void lege(QList<Art> &saetze, const Art &satz)
{
    const auto stelle = std::find_if(saetze.begin(), saetze.end(), [&](const Art &einer) {
        return einer.kennung == satz.kennung;
    });
    if (stelle != saetze.end()) {
        *stelle = satz;
    } else {
        saetze << satz;
    }
    std::stable_sort(saetze.begin(), saetze.end(),
                     [](const Art &a, const Art &b) { return a.datum < b.datum; });
}

} // namespace

Kartei::Kartei(Speichermacher macher) : m_macher(std::move(macher))
{
    m_uhr.setInterval(wartezeit);
    connect(&m_uhr, &QTimer::timeout, this, &Kartei::versucheNochmals);
    beginneMit(m_macher());
}

/// What waited for this store when the program last ended waits on.
void Kartei::beginneMit(Ort ort)
{
    m_speicher = std::move(ort.speicher);
    m_datei = std::make_unique<Vormerkdatei>(std::move(ort.vormerkdatei));
    m_vorgemerkt = m_datei->lies(QDateTime::currentDateTime());
    m_festgehalten = true;
    if (!m_vorgemerkt.isEmpty()) {
        m_uhr.start();
    }
}

bool Kartei::beginneNeu()
{
    if (offene() > 0) {
        return false;
    }
    vergiss();
    m_gelesene.clear();
    beginneMit(m_macher());
    m_liste.setze(QList<Personenzeile>());
    lade();
    return true;
}

bool Kartei::beschreibbar() const
{
    return m_hindernis || vergehtVielleicht(m_hindernis.hindernis);
}

/// A store of a newer version can be read all the same, and what stands in the way is said.
void Kartei::lade()
{
    QList<Personenzeile> personen;
    const Ausgang geoeffnet = m_speicher->oeffne();
    const Ausgang gelesen = m_speicher->personen(personen);
    merkeHindernis(gelesen ? geoeffnet : gelesen);
    if (!gelesen) {
        return;
    }
    m_liste.setze(personen);
    for (const Schreibwunsch &wunsch : std::as_const(m_vorgemerkt)) {
        if (const auto *person = std::get_if<Person>(&wunsch.neu)) {
            zeigeInListe(*person);
        }
    }
    Q_EMIT listeGeaendert();
}

std::optional<Klientenakte> Kartei::akte(const QString &kennung)
{
    std::optional<Klientenakte> akte;
    const Ausgang gelesen = m_speicher->akte(kennung, akte);
    if (!gelesen) {
        merkeHindernis(gelesen);
        if (!vergehtVielleicht(gelesen.hindernis)) {
            return std::nullopt;
        }
        akte = zuletztGelesene(kennung);
    } else if (akte) {
        merkeGelesene(*akte);
    }
    if (!akte) {
        // A client who was only just entered, and waits to be written.
        akte = Klientenakte{};
        akte->person.kennung = kennung;
        ueberlagere(*akte);
        return akte->person.name.isEmpty() ? std::nullopt : akte;
    }
    ueberlagere(*akte);
    return akte;
}

/// As the client was when the store could still be read; absent when that was too long ago.
std::optional<Klientenakte> Kartei::zuletztGelesene(const QString &kennung) const
{
    const auto stelle =
        std::find_if(m_gelesene.begin(), m_gelesene.end(),
                     [&](const Klientenakte &eine) { return eine.person.kennung == kennung; });
    return stelle != m_gelesene.end() ? std::optional(*stelle) : std::nullopt;
}

/// Whoever is on display or at the desk stays there while the store is away.
void Kartei::merkeGelesene(const Klientenakte &akte)
{
    constexpr qsizetype meiste = 8;
    m_gelesene.removeIf(
        [&](const Klientenakte &eine) { return eine.person.kennung == akte.person.kennung; });
    m_gelesene.prepend(akte);
    m_gelesene.resize(std::min(m_gelesene.size(), meiste));
}

void Kartei::ueberlagere(Klientenakte &akte) const
{
    for (const Schreibwunsch &wunsch : m_vorgemerkt) {
        if (wunsch.person != akte.person.kennung) {
            continue;
        }
        if (const auto *person = std::get_if<Person>(&wunsch.neu)) {
            akte.person = *person;
        } else if (const auto *besuch = std::get_if<Besuch>(&wunsch.neu)) {
            lege(akte.besuche, *besuch);
        } else if (const auto *plan = std::get_if<Planablage>(&wunsch.neu)) {
            lege(akte.plaene, *plan);
        } else if (const auto *tage = std::get_if<Aufzeichnung>(&wunsch.neu)) {
            lege(akte.aufzeichnungen, *tage);
        }
    }
}

QString Kartei::sichere(Schreibwunsch wunsch)
{
    std::visit(
        [&](auto &satz) {
            if (satz.kennung.isNull()) {
                satz.kennung = neueKennung();
            }
        },
        wunsch.neu);
    QString schluessel = kennung(wunsch.neu);
    if (std::holds_alternative<Person>(wunsch.neu)) {
        wunsch.person = schluessel;
    }
    const auto wartender =
        std::find_if(m_vorgemerkt.begin(), m_vorgemerkt.end(),
                     [&](const Schreibwunsch &einer) { return kennung(einer.neu) == schluessel; });
    if (wartender != m_vorgemerkt.end()) {
        wunsch.alt = wartender->alt;
    }
    const Schreibausgang ausgang = schreibe(wunsch);
    entlasse(schluessel);
    folge(ausgang, wunsch);
    return schluessel;
}

Schreibausgang Kartei::schreibe(Schreibwunsch &wunsch)
{
    return std::visit(
        [&](auto &satz) {
            if constexpr (std::is_same_v<std::decay_t<decltype(satz)>, Person>) {
                return m_speicher->sichere(satz);
            } else {
                return m_speicher->sichere(wunsch.person, satz);
            }
        },
        wunsch.neu);
}

void Kartei::folge(const Schreibausgang &ausgang, const Schreibwunsch &wunsch)
{
    switch (ausgang.art) {
    case Schreibausgang::Art::Gelungen:
        halteFest();
        merkeHindernis({});
        if (const auto *person = std::get_if<Person>(&wunsch.neu)) {
            zeigeInListe(*person);
            Q_EMIT listeGeaendert();
        }
        Q_EMIT akteGeaendert(wunsch.person);
        break;
    case Schreibausgang::Art::Ueberholt: {
        const std::optional<Satz> anderes = std::visit(
            [&](const auto &satz) -> std::optional<Satz> {
                std::optional<std::decay_t<decltype(satz)>> jetziger;
                m_speicher->lies(satz.kennung, jetziger);
                return jetziger ? std::optional<Satz>(*jetziger) : std::nullopt;
            },
            wunsch.neu);
        if (anderes) {
            m_strittig << wunsch;
            halteFest();
            Q_EMIT kollidiert({wunsch, *anderes});
        } else {
            merkeVor(wunsch); // gone meanwhile, or not to be read: the next try will tell
        }
        break;
    }
    case Schreibausgang::Art::Verschwunden:
        m_strittig << wunsch;
        halteFest();
        Q_EMIT verschwunden(wunsch);
        break;
    case Schreibausgang::Art::Nichtgelungen:
        merkeVor(wunsch);
        merkeHindernis(ausgang.hindernis);
        Q_EMIT akteGeaendert(wunsch.person);
        break;
    }
}

void Kartei::merkeVor(const Schreibwunsch &wunsch)
{
    entlasse(kennung(wunsch.neu));
    m_vorgemerkt << wunsch;
    halteFest();
    if (const auto *person = std::get_if<Person>(&wunsch.neu)) {
        zeigeInListe(*person);
        Q_EMIT listeGeaendert();
    }
    m_uhr.start();
}

/// Nothing is wanted of this record any more, or something else.
void Kartei::entlasse(const QString &schluessel)
{
    const auto dieser = [&](const Schreibwunsch &einer) {
        return kennung(einer.neu) == schluessel;
    };
    m_vorgemerkt.removeIf(dieser);
    m_strittig.removeIf(dieser);
}

/// The file of this desk follows what waits. Where that fails, the next change tries it again.
void Kartei::halteFest()
{
    m_festgehalten = m_datei->schreibe(m_strittig + m_vorgemerkt);
}

/// Those of one client are written in the order in which they came: the client before the visits.
/// In the file they stay until they are written.
void Kartei::versucheNochmals()
{
    m_uhr.stop();
    QElapsedTimer dauer;
    dauer.start();
    const qsizetype wartende = m_vorgemerkt.size();
    for (qsizetype i = 0; i < wartende && !m_vorgemerkt.isEmpty(); ++i) {
        Schreibwunsch wunsch = m_vorgemerkt.constFirst();
        const Schreibausgang ausgang = schreibe(wunsch);
        if (ausgang.art == Schreibausgang::Art::Nichtgelungen) {
            halteFest(); // perhaps there is room on the disk again
            merkeHindernis(ausgang.hindernis);
            break; // one answer is enough
        }
        entlasse(kennung(wunsch.neu));
        folge(ausgang, wunsch);
    }
    if (wartende == 0 && !m_hindernis) {
        lade();
    }
    m_uhr.setInterval(std::max(wartezeit, ruhe * static_cast<int>(dauer.elapsed())));
}

void Kartei::entscheide(const Kollision &kollision, const Satz &entschieden)
{
    Schreibwunsch wunsch = {kollision.meines.person, entschieden, kollision.anderes};
    std::visit(
        [&](auto &satz) {
            satz.fassung = std::get<std::decay_t<decltype(satz)>>(kollision.anderes).fassung;
        },
        wunsch.neu);
    sichere(wunsch);
}

void Kartei::verzichte(const Schreibwunsch &wunsch)
{
    entlasse(kennung(wunsch.neu));
    halteFest();
    lade();
    Q_EMIT akteGeaendert(wunsch.person);
}

bool Kartei::loesche(const Klientenakte &akte)
{
    const QString schluessel = akte.person.kennung;
    const Schreibausgang ausgang = m_speicher->loesche(schluessel);
    merkeHindernis(ausgang.hindernis);
    if (!ausgang) {
        return false;
    }
    const auto davon = [&](const Schreibwunsch &einer) {
        return einer.person == schluessel;
    };
    m_vorgemerkt.removeIf(davon);
    m_strittig.removeIf(davon);
    halteFest();
    vergiss();
    m_geloescht = Geloeschtes{schluessel, akte};
    m_gelesene.removeIf(
        [&](const Klientenakte &eine) { return eine.person.kennung == schluessel; });
    m_liste.entferne(schluessel);
    Q_EMIT listeGeaendert();
    Q_EMIT akteGeaendert(schluessel);
    return true;
}

bool Kartei::loesche(const QString &person, const Satz &satz)
{
    const Schreibausgang ausgang = std::visit(
        [&](const auto &einer) {
            if constexpr (std::is_same_v<std::decay_t<decltype(einer)>, Person>) {
                return m_speicher->loesche(einer.kennung);
            } else {
                return m_speicher->loesche(einer);
            }
        },
        satz);
    merkeHindernis(ausgang.hindernis);
    if (ausgang) {
        entlasse(kennung(satz));
        halteFest();
        vergiss();
        m_geloescht = Geloeschtes{person, satz};
    }
    Q_EMIT akteGeaendert(person); // another desk may have changed it, which is seen then
    return static_cast<bool>(ausgang);
}

/// A record that comes back is new to the store, under its key.
bool Kartei::holeZurueck()
{
    if (!m_geloescht) {
        return false;
    }
    const Geloeschtes geloescht = *m_geloescht;
    Schreibausgang ausgang;
    if (const auto *akte = std::get_if<Klientenakte>(&geloescht.was)) {
        ausgang = nimmAuf(*akte);
    } else {
        Schreibwunsch wunsch = {geloescht.person, std::get<Satz>(geloescht.was)};
        std::visit([](auto &satz) { satz.fassung = 0; }, wunsch.neu);
        ausgang = schreibe(wunsch);
        merkeHindernis(ausgang.hindernis);
        Q_EMIT akteGeaendert(geloescht.person);
    }
    if (ausgang) {
        m_geloescht.reset();
    }
    return static_cast<bool>(ausgang);
}

void Kartei::vergiss()
{
    const std::optional<Geloeschtes> geloescht = std::exchange(m_geloescht, std::nullopt);
    if (geloescht && std::holds_alternative<Klientenakte>(geloescht->was)) {
        Q_EMIT klientVergessen(geloescht->person);
    }
}

Schreibausgang Kartei::nimmAuf(const Klientenakte &akte)
{
    Schreibausgang ausgang = m_speicher->nimmAuf(akte);
    merkeHindernis(ausgang.hindernis);
    if (ausgang) {
        entlasse(akte.person.kennung);
        halteFest();
        zeigeInListe(akte.person);
        Q_EMIT listeGeaendert();
        Q_EMIT akteGeaendert(akte.person.kennung);
    }
    return ausgang;
}

void Kartei::zeigeInListe(const Person &person)
{
    m_liste.setze(Personenzeile{person.kennung, person.name, person.nummer, person.geburt,
                                person.archiviert});
}

/// What waits is tried again as long as it may help.
void Kartei::merkeHindernis(const Ausgang &ausgang)
{
    const bool anderes = m_hindernis.hindernis != ausgang.hindernis;
    m_hindernis = ausgang;
    if (!ausgang && vergehtVielleicht(ausgang.hindernis)) {
        m_uhr.start();
    }
    if (anderes) {
        Q_EMIT hindernisGeaendert();
    }
}
