#pragma once

#include <QProcess>
#include <QSet>
#include <QString>
#include <QTemporaryDir>

/// A server of PostgreSQL's for the time of a test, in a folder of its own: nobody but this machine
/// can reach it, and with the object it is gone.
class Pruefserver
{
public:
    Pruefserver();
    ~Pruefserver();

    /// Why there is none; empty when it runs.
    const QString &grund() const { return m_grund; }

    /// How a program finds a database of this server; it is made if there is none.
    QString angabe(const QString &datenbank);

    /// Ends the server at once, as a power cut would, or lets it begin again.
    void halteAn();
    void starte();

    /// Runs a statement in a database and returns what it printed.
    QString frage(const QString &datenbank, const QString &anweisung);

private:
    QString rufe(const QString &programm, const QStringList &worte);

    QTemporaryDir m_ordner;
    QString m_programme; ///< folder of the server's programs
    QString m_nutzer;    ///< whom the server runs as; empty: whoever runs the test
    QString m_grund;
    QSet<QString> m_datenbanken; ///< that were made
};
