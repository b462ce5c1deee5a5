#pragma once

#include "Kartei.h"
#include "Pruefserver.h"

#include <QSqlDatabase>
#include <QTemporaryDir>

#include <memory>

/// A person of whom nothing but the name is known.
Person namens(const QString &name);

/// Both kinds of stores for one suite of tests: each test function runs with the file and with the
/// server, on a store of its own in which nothing is yet.
class Pruefspeicher
{
public:
    /// Adds the column "art" with a row for each kind, for `initTestCase_data`.
    static void zeilen();

    /// Begins a test function, on the store of the global row.
    void beginne();

    /// A further desk on the same store.
    std::unique_ptr<Klientenspeicher> tisch();
    std::unique_ptr<Datenbank> datenbank();
    /// The same for a cabinet; all desks of one test function keep what waits in one file.
    Kartei::Ort ort();
    QString vormerkdatei() const { return m_ordner->filePath(QStringLiteral("Vorgemerkt.json")); }

    /// Until `gibZurueck` nothing can be written: the server is stopped, another program holds the
    /// file for itself.
    void nimmWeg();
    void gibZurueck();

    /// Speaks with the store past the program, as another program would.
    bool fuehre(const QString &anweisung);
    /// The first value of the first row; null for none.
    QVariant frage(const QString &anweisung);

    bool istServer() const;
    QString ordner() const { return m_ordner->path(); }
    QString datei() const { return m_ordner->filePath(QStringLiteral("MahlbergKlienten.sqlite")); }
    Pruefserver &server() { return *m_server; }
    QString datenbankname() const { return QStringLiteral("klienten%1").arg(m_nummer); }

private:
    std::unique_ptr<QTemporaryDir> m_ordner;
    std::unique_ptr<Pruefserver> m_server;
    QSqlDatabase m_halter; ///< the other program that holds the file
    int m_nummer = 0;
};
