#pragma once

#include "Klientenspeicher.h"
#include "Pruefserver.h"

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

    /// Speaks with the store past the program, as another program would.
    bool fuehre(const QString &anweisung);
    /// The first value of the first row; null for none.
    QVariant frage(const QString &anweisung);

    bool istServer() const;
    QString datei() const { return m_ordner->filePath(QStringLiteral("MahlbergKlienten.sqlite")); }
    Pruefserver &server() { return *m_server; }
    QString datenbankname() const { return QStringLiteral("klienten%1").arg(m_nummer); }

private:
    std::unique_ptr<QTemporaryDir> m_ordner;
    std::unique_ptr<Pruefserver> m_server;
    int m_nummer = 0;
};
