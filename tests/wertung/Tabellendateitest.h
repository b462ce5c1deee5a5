#pragma once

#include "Feldzeilen.h"

#include <QTest>

#include <utility>

/// A file with these lines below the names of its columns.
inline QByteArray tabelle(const QString &kopf, const QStringList &zeilen)
{
    return (kopf + u'\n' + zeilen.join(u'\n') + u'\n').toUtf8();
}

/// What the tests share of tables that people write: what is wrong with a file or with a line of it
/// is told with its place.
class Tabellendateitest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aBrokenFileGivesNothing_data()
    {
        using namespace Qt::StringLiterals;
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("ort");
        QTest::addColumn<QString>("meldung");
        const QByteArray zweiSpalten = m_kopf.section(u';', 0, 1).toUtf8();
        QTest::newRow("empty") << QByteArray() << 0 << u"The table is empty"_s;
        QTest::newRow("no UTF-8") << QByteArray("\xff\n") << 0 << u"The file is not in UTF-8"_s;
        QTest::newRow("other columns") << "# x\n" + zweiSpalten + '\n'
                                       << 2 << u"The columns must be "_s + m_kopf;
        QTest::newRow("cut off within a line")
            << (m_kopf + u'\n' + m_bruch.zeilen).toUtf8() << m_bruch.ort << m_bruch.meldung;
    }
    void aBrokenFileGivesNothing()
    {
        QFETCH(const QByteArray, bytes);
        QFETCH(const int, ort);
        QFETCH(const QString, meldung);
        const auto [leer, einwaende] = lies(bytes);
        QVERIFY(leer);
        QVERIFY(!einwaende.isEmpty());
        QCOMPARE(einwaende.first().zeile, ort);
        QCOMPARE(einwaende.first().meldung, meldung);
    }

protected:
    /// Lines of which the last one breaks off, and what is told of it.
    struct Bruch
    {
        QString zeilen;
        int ort;
        QString meldung;
    };
    /// What is read of a file.
    struct Gelesenes
    {
        bool leer; ///< no line was taken
        Beanstandungen einwaende;
    };

    Tabellendateitest(QString kopf, Bruch bruch)
        : m_kopf(std::move(kopf))
        , m_bruch(std::move(bruch))
    {
    }

    virtual Gelesenes lies(const QByteArray &bytes) const = 0;

    /// Rows that each have a broken line, and what is told of it.
    static void schlechteZeilen()
    {
        QTest::addColumn<QString>("zeile");
        QTest::addColumn<QString>("regel");
        QTest::addColumn<QString>("meldung");
    }
    static void schlecht(const char *name, const QString &zeile, const QString &regel,
                         const QString &meldung)
    {
        QTest::newRow(name) << zeile << regel << meldung;
    }
    /// That the line of the row is objected to at this place, and nothing else.
    static void istDerEinwand(const Beanstandungen &einwaende, int ort)
    {
        QFETCH(const QString, regel);
        QFETCH(const QString, meldung);
        QCOMPARE(einwaende.size(), 1);
        QCOMPARE(einwaende.first().zeile, ort);
        QCOMPARE(einwaende.first().regel, regel);
        QCOMPARE(einwaende.first().meldung, meldung);
    }

private:
    QString m_kopf; ///< the names of the columns
    Bruch m_bruch;
};
