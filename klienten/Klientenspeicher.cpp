#include "Klientenspeicher.h"

#include "Satzspalten.h"

#include <algorithm>

namespace {

using Art = Schreibausgang::Art;

// The table of each kind of record, and the column that all but the persons have besides.

const char *tabelle(const Person *)
{
    return "person";
}
const char *tabelle(const Besuch *)
{
    return "besuch";
}
const char *tabelle(const Planablage *)
{
    return "plan";
}
const char *tabelle(const Aufzeichnung *)
{
    return "aufzeichnung";
}

template <typename Satz>
QString tabelle()
{
    return QLatin1String(tabelle(static_cast<const Satz *>(nullptr)));
}

template <typename Satz>
constexpr bool gehoertZuPerson = !std::is_same_v<Satz, Person>;

/// The names of all columns as they follow the key and the count of writes.
template <typename Satz>
QStringList spaltennamen()
{
    QStringList namen;
    for (const Satzspalte<Satz> &spalte : spalten<Satz>()) {
        namen << QLatin1String(spalte.name);
    }
    return namen;
}

template <typename Satz>
QVariantList werte(const Satz &satz)
{
    QVariantList alle;
    for (const Satzspalte<Satz> &spalte : spalten<Satz>()) {
        alle << spalte.lies(satz);
    }
    return alle;
}

template <typename Satz>
QString auswahl()
{
    return QStringLiteral("SELECT kennung, fassung, %1 FROM %2")
        .arg(spaltennamen<Satz>().join(QLatin1String(", ")), tabelle<Satz>());
}

/// The record of the row that was just reached; absent when there is something in it that the
/// program does not write.
template <typename Satz>
std::optional<Satz> satzDerZeile(Gespraech &gespraech)
{
    Satz satz;
    satz.kennung = gespraech.wert(0).toString();
    satz.fassung = gespraech.wert(1).toInt();
    int stelle = 2;
    for (const Satzspalte<Satz> &spalte : spalten<Satz>()) {
        if (!spalte.setze(satz, gespraech.wert(stelle++))) {
            gespraech.bemaengle(
                QStringLiteral("%1.%2 of %3 can not be read")
                    .arg(tabelle<Satz>(), QLatin1String(spalte.name), satz.kennung));
            return std::nullopt;
        }
    }
    return satz;
}

/// Reads the records to which a condition applies.
template <typename Satz>
bool liesAlle(Gespraech &gespraech, const QString &bedingung, const QVariant &wert,
              QList<Satz> &ergebnis)
{
    ergebnis.clear();
    if (!gespraech.fuehre(auswahl<Satz>() + bedingung, {wert})) {
        return false;
    }
    while (gespraech.naechste()) {
        const std::optional<Satz> satz = satzDerZeile<Satz>(gespraech);
        if (!satz) {
            return false;
        }
        ergebnis << *satz;
    }
    return true;
}

template <typename Satz>
bool liesEinen(Gespraech &gespraech, const QString &kennung, std::optional<Satz> &ergebnis)
{
    QList<Satz> alle;
    const bool gelesen = liesAlle(gespraech, QStringLiteral(" WHERE kennung = ?"), kennung, alle);
    ergebnis = alle.isEmpty() ? std::nullopt : std::optional(alle.constFirst());
    return gelesen;
}

template <typename Satz>
bool fuegeEin(Gespraech &gespraech, const QString &person, const Satz &satz)
{
    QStringList namen = {QStringLiteral("kennung"), QStringLiteral("fassung")};
    QVariantList inhalt = {satz.kennung, satz.fassung};
    if constexpr (gehoertZuPerson<Satz>) {
        namen << QStringLiteral("person");
        inhalt << person;
    }
    namen << spaltennamen<Satz>();
    inhalt << werte(satz);
    const QString zeichen =
        QStringList(namen.size(), QStringLiteral("?")).join(QLatin1String(", "));
    return gespraech.fuehre(QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                                .arg(tabelle<Satz>(), namen.join(QLatin1String(", ")), zeichen),
                            inhalt);
}

/// Writes over the record as it was read. Absent after an error; else whether it was found so.
template <typename Satz>
std::optional<bool> ueberschreibe(Gespraech &gespraech, const Satz &alt, const Satz &neu)
{
    QVariantList inhalt = {neu.fassung};
    inhalt << werte(neu) << alt.kennung << alt.fassung;
    const QString anweisung =
        QStringLiteral("UPDATE %1 SET fassung = ?, %2 = ? WHERE kennung = ? AND fassung = ?")
            .arg(tabelle<Satz>(), spaltennamen<Satz>().join(QLatin1String(" = ?, ")));
    if (!gespraech.fuehre(anweisung, inhalt)) {
        return std::nullopt;
    }
    return gespraech.betroffene() == 1;
}

bool gibtPerson(Gespraech &gespraech, const QString &kennung)
{
    return gespraech.fuehre(QStringLiteral("SELECT 1 FROM person WHERE kennung = ?"), {kennung}) &&
           gespraech.naechste();
}

Schreibausgang alsAusgang(const Ausgang &ausgang, Art art)
{
    return ausgang ? Schreibausgang{art} : Schreibausgang{Art::Nichtgelungen, ausgang};
}

/// What a record is to be after it was written.
template <typename Satz>
Satz geschrieben(const Satz &satz)
{
    Satz neu = satz;
    neu.kennung = satz.kennung.isNull() ? neueKennung() : satz.kennung;
    ++neu.fassung;
    return neu;
}

template <typename Satz>
Schreibausgang schreibeSatz(Datenbank &datenbank, const QString &person, Satz &satz)
{
    const Satz neu = geschrieben(satz);
    const bool neuer = satz.fassung == 0;
    Art art = Art::Gelungen;
    const Ausgang ausgang = datenbank.schreibe([&](Gespraech &gespraech) {
        art = Art::Gelungen;
        if (gehoertZuPerson<Satz> && !gibtPerson(gespraech, person)) {
            art = Art::Verschwunden;
            return false;
        }
        std::optional<Satz> jetziger;
        if (!liesEinen(gespraech, neu.kennung, jetziger)) {
            return false;
        }
        if (jetziger == neu) {
            return true;
        }
        if (!jetziger && neuer) {
            return fuegeEin(gespraech, person, neu);
        }
        const std::optional<bool> getroffen =
            jetziger ? ueberschreibe(gespraech, satz, neu) : std::optional(false);
        if (getroffen == false) {
            art = jetziger ? Art::Ueberholt : Art::Verschwunden;
        }
        return getroffen == true;
    });
    if (ausgang && art == Art::Gelungen) {
        satz = neu;
    }
    return alsAusgang(ausgang, art);
}

template <typename Satz>
Schreibausgang loescheSatz(Datenbank &datenbank, const Satz &satz)
{
    Art art = Art::Gelungen;
    const Ausgang ausgang = datenbank.schreibe([&](Gespraech &gespraech) {
        std::optional<Satz> jetziger;
        if (!liesEinen(gespraech, satz.kennung, jetziger)) {
            return false;
        }
        if (!jetziger) {
            art = Art::Gelungen;
            return true;
        }
        if (!gespraech.fuehre(QStringLiteral("DELETE FROM %1 WHERE kennung = ? AND fassung = ?")
                                  .arg(tabelle<Satz>()),
                              {satz.kennung, satz.fassung})) {
            return false;
        }
        art = gespraech.betroffene() == 1 ? Art::Gelungen : Art::Ueberholt;
        return art == Art::Gelungen;
    });
    if (ausgang && art == Art::Gelungen) {
        datenbank.raeumeAuf();
    }
    return alsAusgang(ausgang, art);
}

/// Whether a record of this key stands there.
template <typename Satz>
bool gibt(Gespraech &gespraech, const Satz &satz)
{
    return gespraech.fuehre(
               QStringLiteral("SELECT 1 FROM %1 WHERE kennung = ?").arg(tabelle<Satz>()),
               {satz.kennung}) &&
           gespraech.naechste();
}

template <typename Satz>
bool gibtEines(Gespraech &gespraech, const QList<Satz> &saetze)
{
    return std::any_of(saetze.begin(), saetze.end(),
                       [&](const Satz &satz) { return gibt(gespraech, satz); });
}

template <typename Satz>
bool fuegeAlleEin(Gespraech &gespraech, const QString &person, const QList<Satz> &saetze)
{
    return std::all_of(saetze.begin(), saetze.end(),
                       [&](const Satz &satz) { return fuegeEin(gespraech, person, satz); });
}

} // namespace

Klientenspeicher::Klientenspeicher(std::unique_ptr<Datenbank> datenbank)
    : m_datenbank(std::move(datenbank))
{
}

Ausgang Klientenspeicher::oeffne()
{
    return m_datenbank->oeffne();
}

Ausgang Klientenspeicher::personen(QList<Personenzeile> &ergebnis)
{
    ergebnis.clear();
    return m_datenbank->lies([&](Gespraech &gespraech) {
        ergebnis.clear();
        if (!gespraech.fuehre(
                QStringLiteral("SELECT kennung, name, nummer, geburt, archiviert FROM person"))) {
            return false;
        }
        while (gespraech.naechste()) {
            ergebnis.append({gespraech.wert(0).toString(), gespraech.wert(1).toString(),
                             gespraech.wert(2).toString(),
                             QDate::fromString(gespraech.wert(3).toString(), Qt::ISODate),
                             gespraech.wert(4).toInt() != 0});
        }
        return true;
    });
}

Ausgang Klientenspeicher::akte(const QString &kennung, std::optional<Klientenakte> &ergebnis)
{
    ergebnis.reset();
    return m_datenbank->lies([&](Gespraech &gespraech) {
        ergebnis.reset();
        std::optional<Person> person;
        Klientenakte akte;
        // Files and servers differ in where they put what has no date.
        const QString ihre =
            QStringLiteral(" WHERE person = ? ORDER BY datum IS NOT NULL, datum, kennung");
        if (!liesEinen(gespraech, kennung, person) ||
            !liesAlle(gespraech, ihre, kennung, akte.besuche) ||
            !liesAlle(gespraech, ihre, kennung, akte.plaene) ||
            !liesAlle(gespraech, ihre, kennung, akte.aufzeichnungen)) {
            return false;
        }
        if (person) {
            akte.person = *person;
            ergebnis = akte;
        }
        return true;
    });
}

Ausgang Klientenspeicher::lies(const QString &kennung, std::optional<Person> &ergebnis)
{
    return m_datenbank->lies(
        [&](Gespraech &gespraech) { return liesEinen(gespraech, kennung, ergebnis); });
}

Ausgang Klientenspeicher::lies(const QString &kennung, std::optional<Besuch> &ergebnis)
{
    return m_datenbank->lies(
        [&](Gespraech &gespraech) { return liesEinen(gespraech, kennung, ergebnis); });
}

Ausgang Klientenspeicher::lies(const QString &kennung, std::optional<Planablage> &ergebnis)
{
    return m_datenbank->lies(
        [&](Gespraech &gespraech) { return liesEinen(gespraech, kennung, ergebnis); });
}

Ausgang Klientenspeicher::lies(const QString &kennung, std::optional<Aufzeichnung> &ergebnis)
{
    return m_datenbank->lies(
        [&](Gespraech &gespraech) { return liesEinen(gespraech, kennung, ergebnis); });
}

Schreibausgang Klientenspeicher::sichere(Person &person)
{
    return schreibeSatz(*m_datenbank, QString(), person);
}

Schreibausgang Klientenspeicher::sichere(const QString &person, Besuch &besuch)
{
    return schreibeSatz(*m_datenbank, person, besuch);
}

Schreibausgang Klientenspeicher::sichere(const QString &person, Planablage &plan)
{
    return schreibeSatz(*m_datenbank, person, plan);
}

Schreibausgang Klientenspeicher::sichere(const QString &person, Aufzeichnung &aufzeichnung)
{
    return schreibeSatz(*m_datenbank, person, aufzeichnung);
}

Schreibausgang Klientenspeicher::loesche(const Besuch &besuch)
{
    return loescheSatz(*m_datenbank, besuch);
}

Schreibausgang Klientenspeicher::loesche(const Planablage &plan)
{
    return loescheSatz(*m_datenbank, plan);
}

Schreibausgang Klientenspeicher::loesche(const Aufzeichnung &aufzeichnung)
{
    return loescheSatz(*m_datenbank, aufzeichnung);
}

Schreibausgang Klientenspeicher::loesche(const QString &person)
{
    const Ausgang ausgang = m_datenbank->schreibe([&](Gespraech &gespraech) {
        return gespraech.fuehre(QStringLiteral("DELETE FROM person WHERE kennung = ?"), {person});
    });
    if (ausgang) {
        m_datenbank->raeumeAuf();
    }
    return alsAusgang(ausgang, Art::Gelungen);
}

Schreibausgang Klientenspeicher::nimmAuf(const Klientenakte &akte)
{
    Art art = Art::Gelungen;
    const Ausgang ausgang = m_datenbank->schreibe([&](Gespraech &gespraech) {
        art = gibt(gespraech, akte.person) || gibtEines(gespraech, akte.besuche) ||
                      gibtEines(gespraech, akte.plaene) || gibtEines(gespraech, akte.aufzeichnungen)
                  ? Art::Ueberholt
                  : Art::Gelungen;
        return art == Art::Gelungen && fuegeEin(gespraech, QString(), akte.person) &&
               fuegeAlleEin(gespraech, akte.person.kennung, akte.besuche) &&
               fuegeAlleEin(gespraech, akte.person.kennung, akte.plaene) &&
               fuegeAlleEin(gespraech, akte.person.kennung, akte.aufzeichnungen);
    });
    return alsAusgang(ausgang, art);
}
