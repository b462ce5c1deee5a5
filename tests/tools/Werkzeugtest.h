#pragma once

#include "Werkzeuglauf.h"

#include <QTest>

/// What the tests share of programs without windows. Which calls are wrong, each test says in its
/// rows.
class Werkzeugtest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wrongUsageIsTold()
    {
        QFETCH(const QStringList, argumente);
        const Lauf lauf = starten(m_programm, argumente);
        QCOMPARE(lauf.ausgang, 2);
        QVERIFY(lauf.fehler.startsWith(QStringLiteral("Usage: ")));
        QVERIFY(lauf.ausgabe.isEmpty());
    }

protected:
    explicit Werkzeugtest(const char *programm) : m_programm(programm) {}

    const char *m_programm; ///< where it stands
};

/// Of those among them that have a help to print.
class Werkzeughilfetest : public Werkzeugtest
{
    Q_OBJECT

private Q_SLOTS:
    void helpIsPrinted()
    {
        const Lauf lauf = starten(m_programm, {QStringLiteral("--help")});
        QCOMPARE(lauf.ausgang, 0);
        QVERIFY(lauf.ausgabe.startsWith(QStringLiteral("Usage: ")));
        QVERIFY(lauf.fehler.isEmpty());
    }

protected:
    using Werkzeugtest::Werkzeugtest;
};
