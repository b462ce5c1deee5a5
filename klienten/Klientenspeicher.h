#pragma once

#include "Datenbank.h"
#include "Klientendaten.h"

#include <memory>
#include <optional>

/// What the list shows of a person.
struct Personenzeile
{
    QString kennung;
    QString name;
    QString nummer;
    QDate geburt;
    bool archiviert = false;

    bool operator==(const Personenzeile &) const = default;
};

/// What came of writing a record.
struct Schreibausgang
{
    enum class Art {
        Gelungen,
        Ueberholt,     ///< another desk has written it since it was read; nothing was written
        Verschwunden,  ///< another desk has deleted it, or the person that it belongs to
        Nichtgelungen, ///< see `hindernis`
    };
    Art art = Art::Gelungen;
    Ausgang hindernis = {};

    explicit operator bool() const { return art == Art::Gelungen; }
};

/// Keeps the clients of a practice. A record comes back as it was put in. Each writing operation is
/// done whole or not at all; when it ends well, it is on the disk.
class Klientenspeicher
{
public:
    explicit Klientenspeicher(std::unique_ptr<Datenbank> datenbank);

    /// Looks at what is there, see `Datenbank::oeffne`.
    Ausgang oeffne();
    /// The connection is given up; the next operation makes a new one.
    void schliesse() { m_datenbank->schliesse(); }

    /// All persons, in no order. Empty as long as nothing was kept.
    Ausgang personen(QList<Personenzeile> &ergebnis);
    /// Everything that is kept of a person; absent when there is none of this key (any more).
    Ausgang akte(const QString &kennung, std::optional<Klientenakte> &ergebnis);
    /// One record as it stands now; absent when it is there no more.
    Ausgang lies(const QString &kennung, std::optional<Person> &ergebnis);
    Ausgang lies(const QString &kennung, std::optional<Besuch> &ergebnis);
    Ausgang lies(const QString &kennung, std::optional<Planablage> &ergebnis);
    Ausgang lies(const QString &kennung, std::optional<Aufzeichnung> &ergebnis);

    /// Writes a record. One that was never written is new, and gets a key unless it brings one; any
    /// other must be as it was read, by its count of writes, which goes up. What stands there
    /// already exactly as it is meant to be counts as written: a desk that lost its connection
    /// can't know whether it was.
    Schreibausgang sichere(Person &person);
    Schreibausgang sichere(const QString &person, Besuch &besuch);
    Schreibausgang sichere(const QString &person, Planablage &plan);
    Schreibausgang sichere(const QString &person, Aufzeichnung &aufzeichnung);

    /// Takes a record away, as it was read; one that is not there any more is gone as wanted.
    Schreibausgang loesche(const Besuch &besuch);
    Schreibausgang loesche(const Planablage &plan);
    Schreibausgang loesche(const Aufzeichnung &aufzeichnung);
    /// Takes a person away with all that belongs to them, whoever changed it, and wipes it out.
    Schreibausgang loesche(const QString &person);

    /// Brings a person with all that belongs to them: back as it was, or from another desk. Where
    /// there is one of this key, or a record of theirs, the answer is `Ueberholt` and nothing is
    /// written.
    Schreibausgang nimmAuf(const Klientenakte &akte);

    Datenbank &datenbank() { return *m_datenbank; }

private:
    std::unique_ptr<Datenbank> m_datenbank;
};
