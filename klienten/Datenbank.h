#pragma once

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QString>
#include <QVariant>

#include <functional>

/// What stands between the program and its store.
enum class Hindernis {
    Keines,
    Verwehrt,    ///< the user may not read or write there
    Gesperrt,    ///< another program holds the store for itself
    Getrennt,    ///< the server can't be reached now
    Fremd,       ///< what is there was made by another program
    Neuer,       ///< made by a newer version of this program: it can be read
    Beschaedigt, ///< what is there can't be understood any more
    Treiber,     ///< what speaks with such a store is not installed
    Sonstiges,   ///< the disk is full, the server refused, …
};

/// What came of something that was wanted of the store.
struct Ausgang
{
    Hindernis hindernis = Hindernis::Keines;
    QString grund = {}; ///< in the words of the system, for those who look after stores

    explicit operator bool() const { return hindernis == Hindernis::Keines; }
};

/// Speaks with the store within one transaction. After the first statement that fails no other is
/// sent.
class Gespraech
{
public:
    explicit Gespraech(const QSqlDatabase &verbindung) : m_abfrage(verbindung)
    {
        m_abfrage.setForwardOnly(true);
    }

    /// Runs a statement; its values stand for the question marks in it.
    bool fuehre(const QString &anweisung, const QVariantList &werte = {});
    /// Goes to the next row of the answer.
    bool naechste() { return m_abfrage.next(); }
    /// A value of the row, by its place in the statement.
    QVariant wert(int stelle) const { return m_abfrage.value(stelle); }
    /// How many rows the statement changed.
    int betroffene() const { return m_abfrage.numRowsAffected(); }

    /// What was found is nothing that the program writes.
    void bemaengle(const QString &grund);

    const QSqlError &fehler() const { return m_fehler; }
    bool bemaengelt() const { return m_bemaengelt; }

private:
    QSqlQuery m_abfrage;
    QSqlError m_fehler;
    bool m_bemaengelt = false;
};

/// What is done within one transaction: false takes everything back.
using Schritt = std::function<bool(Gespraech &)>;

/// The one connection to a store of clients: opens it, brings its tables to the form of this
/// version, and runs transactions. What is not the program's own, is damaged or newer is never
/// written. Two of them, of one program or of two, may speak with the same store.
class Datenbank
{
public:
    virtual ~Datenbank();
    Datenbank(const Datenbank &) = delete;
    Datenbank &operator=(const Datenbank &) = delete;

    /// Connects and looks at what is there. A store of an older form is brought to the present one
    /// before anything else. One of a newer form is a hindrance, but open: it can be read. Where
    /// nothing is yet, nothing is made.
    Ausgang oeffne();
    void schliesse();

    /// Reads. Where nothing is yet, the step is not run, and this is no hindrance.
    Ausgang lies(const Schritt &schritt);
    /// Writes, all or nothing; the store is made if there is none. Where the connection got lost,
    /// it is made anew and the step is run once more, so that it must bear being run twice.
    Ausgang schreibe(const Schritt &schritt);

    /// Wipes out what a deletion leaves behind, as far as the program can reach it.
    virtual Ausgang raeumeAuf() { return {}; }

protected:
    explicit Datenbank(const QString &treiber);

    /// Whether there is something to connect with.
    virtual bool vorhanden() const { return true; }
    /// Makes the connection `verbindung()`. What it is made with need not be there yet.
    virtual Ausgang verbinde() = 0;
    /// The tables are there, in the form of this version: the last thing before they are used.
    virtual Ausgang richteEin() { return {}; }
    /// Something is about to be written.
    virtual void vorSchreiben() {}
    /// A store is about to get another form: the last moment for a copy.
    virtual Ausgang vorUmbau() { return {}; }
    /// Whether what stands there is what was opened.
    virtual bool nochDasselbe() const { return true; }
    /// What begins a transaction that writes, before any other desk can.
    virtual QString schreibbeginn() const = 0;
    /// Keeps other desks from making or changing the tables until the transaction ends.
    virtual bool sperreUmbau(Gespraech &gespraech) = 0;
    /// Makes what is needed before the first table.
    virtual bool lege(Gespraech &gespraech) = 0;
    /// Asks for one row with a value other than 0 when there is a table of the store's forms.
    virtual QString fragtNachTabelle() const = 0;
    virtual Hindernis deute(const QSqlError &fehler) const = 0;

    QSqlDatabase verbindung() const { return QSqlDatabase::database(m_name, false); }
    Ausgang misslungen(const QSqlError &fehler) const;
    /// Runs statements that stand in no transaction.
    Ausgang fuehreEinzeln(const QStringList &anweisungen);

private:
    Ausgang laufe(const QString &beginn, const Schritt &schritt);
    Ausgang mitVerbindung(const std::function<Ausgang()> &aufgabe);
    Ausgang stelleVerbindungHer();
    bool liesFassung(Gespraech &gespraech);
    Ausgang pruefeFassung();
    Ausgang baueAuf();

    QString m_treiber;
    QString m_name; ///< of the connection, in the list that Qt keeps for the whole program
    bool m_offen = false;
    int m_fassung = 0; ///< form of the tables that are there; 0: none
};
