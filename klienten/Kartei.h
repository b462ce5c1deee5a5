#pragma once

#include "Klientenliste.h"
#include "Klientenspeicher.h"
#include "Vormerkdatei.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

/// Two desks have changed one record: what this one wants, and what the other one has written.
struct Kollision
{
    Schreibwunsch meines;
    Satz anderes;
};

/// The cabinet with the clients, for all windows of the program: it reads and writes the store and
/// tells what changed. What could not be written is kept, also in a file of this desk, and tried
/// again until it is; nothing that was typed gets lost on the way, not even with the end of the
/// program. Where another desk was faster, it asks what shall count.
class Kartei : public QObject
{
    Q_OBJECT

public:
    /// A store, and the path of the file in which this desk keeps what waits to be written to it.
    struct Ort
    {
        std::unique_ptr<Klientenspeicher> speicher;
        QString vormerkdatei;
    };
    /// Makes the store that the settings name.
    using Speichermacher = std::function<Ort()>;

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
    /// How many records are not written yet: those, and what the user has still to decide about.
    qsizetype offene() const { return m_vorgemerkt.size() + m_strittig.size(); }
    /// Whether they outlast the end of the program: they are kept in a file of this desk, too.
    bool istFestgehalten() const { return m_festgehalten; }
    /// That file, and what became of one that could not be read.
    const Vormerkdatei &vormerkdatei() const { return *m_datei; }

    /// Everything that is kept of a client, with what waits to be written laid over it; while the
    /// store is away, as they were read last. Absent when there is none of this key, or when the
    /// store can't be read.
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
    /// This is to be written as soon as the store lets it; until then it waits.
    void merkeVor(const Schreibwunsch &wunsch);
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
    /// This client was taken away and can't be brought back any more.
    void klientVergessen(const QString &kennung);
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
    void beginneMit(Ort ort);
    void entlasse(const QString &schluessel);
    void halteFest();
    void merkeHindernis(const Ausgang &ausgang);
    std::optional<Klientenakte> zuletztGelesene(const QString &kennung) const;
    void merkeGelesene(const Klientenakte &akte);
    void ueberlagere(Klientenakte &akte) const;
    void zeigeInListe(const Person &person);

    Speichermacher m_macher;
    std::unique_ptr<Klientenspeicher> m_speicher;
    std::unique_ptr<Vormerkdatei> m_datei;
    Klientenliste m_liste;
    Ausgang m_hindernis;
    QList<Schreibwunsch> m_vorgemerkt; ///< one for each record, the oldest first
    QList<Schreibwunsch> m_strittig;   ///< what the user was asked about and has not answered yet
    bool m_festgehalten = true;
    QList<Klientenakte> m_gelesene; ///< as they were read, the latest first
    std::optional<Geloeschtes> m_geloescht;
    QTimer m_uhr; ///< tries again
};
