#pragma once

#include "Werkzeugtest.h"

#include <QFile>
#include <QTemporaryDir>

#include <utility>

/// What the tests share of programs that check a table of those that ship. Which of the files may
/// be missing, and which lines are wrong, each test says in its rows.
class Pruefprogrammtest : public Werkzeughilfetest
{
    Q_OBJECT

private Q_SLOTS:
    void aMissingFileIsTold()
    {
        QFETCH(const int, stelle);
        const QTemporaryDir ordner;
        QStringList dateien = m_dateien;
        dateien[stelle] = ordner.filePath(QStringLiteral("fehlt.csv"));
        const Lauf lauf = starten(m_programm, m_schalter + dateien);
        QCOMPARE(lauf.ausgang, 1);
        QVERIFY(lauf.fehler.startsWith(dateien.at(stelle) + QStringLiteral(": ")));
    }
    void whatIsWrongIsToldWithItsLine()
    {
        QFETCH(const QString, zeile);
        QFETCH(const QString, meldung);
        QFile gute(m_dateien.at(m_tabelle));
        QVERIFY(gute.open(QIODevice::ReadOnly));
        const QByteArray bytes = gute.readAll();
        const QTemporaryDir ordner;
        QFile datei(ordner.filePath(QStringLiteral("T.csv")));
        QVERIFY(datei.open(QIODevice::WriteOnly));
        datei.write(bytes + zeile.toUtf8() + '\n');
        datei.close();
        QStringList dateien = m_dateien;
        dateien[m_tabelle] = datei.fileName();
        const Lauf lauf = starten(m_programm, m_schalter + dateien);
        QCOMPARE(lauf.ausgang, 1);
        QCOMPARE(lauf.fehler, QStringLiteral("%1:%2: error: %3\n")
                                  .arg(datei.fileName())
                                  .arg(bytes.count('\n') + 1)
                                  .arg(meldung));
    }
    void whatShipsPassesTheCheck()
    {
        const Lauf lauf = starten(m_programm, m_schalter + m_dateien);
        QCOMPARE(lauf.fehler, QString());
        QCOMPARE(lauf.ausgabe, QString());
        QCOMPARE(lauf.ausgang, 0);
    }

protected:
    /// The files that ship stand behind the switches. The wrong lines come into the one at
    /// `tabelle`.
    Pruefprogrammtest(const char *programm, QStringList schalter, QStringList dateien,
                      qsizetype tabelle)
        : Werkzeughilfetest(programm)
        , m_schalter(std::move(schalter))
        , m_dateien(std::move(dateien))
        , m_tabelle(tabelle)
    {
    }

private:
    QStringList m_schalter;
    QStringList m_dateien;
    qsizetype m_tabelle;
};
