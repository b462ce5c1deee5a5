#pragma once

#include "Klientenliste.h"
#include "Klientenspeicher.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>
#include <variant>

/// A record of any kind.
using Satz = std::variant<Person, Besuch, Planablage>;

/// The key of a record.
QString kennung(const Satz &satz);

/// A record as it is to be written, and what it was made from.
struct Schreibwunsch
{
    QString person;               ///< key of the person to whom it belongs, or who it is
    Satz neu;                     ///< as it is wanted
    std::optional<Satz> alt = {}; ///< as it was read; absent for a new one
};

/// Two desks have changed one record: what this one wants, and what the other one has written.
struct Kollision
{
    Schreibwunsch meines;
    Satz anderes;
};

/// The cabinet with the clients, for all windows of the program: it reads and writes the store and
/// tells what changed. What could not be written is kept and tried again until it is; nothing that
/// was typed gets lost on the way. Where another desk was faster, it asks what shall count.
class Kartei : public QObject
{
    Q_OBJECT

public:
    /// Makes the store that the settings name.
    using Speichermacher = std::function<std::unique_ptr<Klientenspeicher>()>;

    explicit Kartei(Speichermacher macher);

    /// Begins anew with the store that the settings name now. What is still to be written belongs
    /// to the one before, so this does nothing and answers false while there is such.
    bool beginneNeu();

    /// Reads the list, where that was not done yet or another desk may have changed it.
    void lade();

    const Klientenliste &liste() const { return m_liste; }

    /// What stood in the way last; none while all is well.
    const Ausgang &hindernis() const { return m_hindernis; }
    /// Whether this store may be written at all: it is the program's own, whole, and no newer.
    bool beschreibbar() const;
    /// How many records wait to be written.
    qsizetype vorgemerkt() const { return m_vorgemerkt.size(); }

    /// Everything that is kept of a client, with what waits to be written laid over it. Absent when
    /// there is none of this key, or when the store can't be read.
    std::optional<Klientenakte> akte(const QString &kennung);

    /// Writes a record. A new one gets its key at once. What fails for now waits and is tried
    /// again; what another desk has changed meanwhile is told by `kollidiert` or `verschwunden`.
    /// The key.
    QString sichere(Schreibwunsch wunsch);
    /// Tries again what waits.
    void versucheNochmals();
    /// What the user has decided about a collision: this is to be written over what the other desk
    /// has written.
    void entscheide(const Kollision &kollision, const Satz &entschieden);
    /// Nothing of this record is to be written any more: what the other desk made of it counts.
    void verzichte(const Schreibwunsch &wunsch);

    /// Takes a client away, or a visit or plan of theirs. It can be brought back until `vergiss`.
    /// False when that failed, and then nothing was taken away.
    bool loesche(const Klientenakte &akte);
    bool loesche(const QString &person, const Satz &satz);
    /// Whether there is something to bring back.
    bool kannZurueckholen() const { return m_geloescht.has_value(); }
    /// Brings back what was taken away last.
    bool holeZurueck();
    /// What was taken away last is gone for good.
    void vergiss();

    /// Takes in a client from another desk. A client of this key that is here already is left as it
    /// is, and the answer is `Ueberholt`.
    Schreibausgang nimmAuf(const Klientenakte &akte);

    Klientenspeicher &speicher() { return *m_speicher; }

Q_SIGNALS:
    /// Clients came, went, or are called otherwise.
    void listeGeaendert();
    /// Something of this client is kept otherwise than before, or waits to be.
    void akteGeaendert(const QString &kennung);
    /// Something else stands in the way now, or nothing any more.
    void hindernisGeaendert();
    /// Another desk has changed the record; nothing was written.
    void kollidiert(const Kollision &kollision);
    /// Another desk has deleted the record or the client; nothing was written.
    void verschwunden(const Schreibwunsch &wunsch);

private:
    struct Geloeschtes
    {
        QString person;
        std::variant<Klientenakte, Satz> was;
    };

    Schreibausgang schreibe(Schreibwunsch &wunsch);
    void folge(const Schreibausgang &ausgang, const Schreibwunsch &wunsch);
    void merkeVor(const Schreibwunsch &wunsch);
    void merkeHindernis(const Ausgang &ausgang);
    void ueberlagere(Klientenakte &akte) const;
    void zeigeInListe(const Person &person);

    Speichermacher m_macher;
    std::unique_ptr<Klientenspeicher> m_speicher;
    Klientenliste m_liste;
    Ausgang m_hindernis;
    QList<Schreibwunsch> m_vorgemerkt; ///< one for each record, the oldest first
    std::optional<Geloeschtes> m_geloescht;
    QTimer m_uhr; ///< tries again
};
