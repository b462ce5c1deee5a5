#include "Dateiprobe.h"
#include "Sicherungen.h"

#include <memory>

using Sicherungen::Beiseitegelegtes;
using Wie = Beiseitegelegtes::Wie;

/// The copies that are kept of a file.
class TestSicherungen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aCopyIsTakenBack();
    void theOnlyCopyIsNotTakenBack_data();
    void theOnlyCopyIsNotTakenBack();
    void whatWasMovedComesBackToAFreePlaceOnly_data();
    void whatWasMovedComesBackToAFreePlaceOnly();

private:
    std::unique_ptr<Dateiprobe> m_probe;
};

namespace {

const QString kopiename = QStringLiteral("Eigene 2026-11-20 14.03.05.daten");
const QStringList nurDieDatei = {QStringLiteral("Eigene.daten")};

} // namespace

void TestSicherungen::init()
{
    m_probe = std::make_unique<Dateiprobe>();
}

void TestSicherungen::aCopyIsTakenBack()
{
    m_probe->lege(speisebytes(1));
    m_probe->lege(speisebytes(1), kopiename);
    Sicherungen::nimmZurueck(m_probe->path(), {Wie::Kopiert, m_probe->path(kopiename)});
    QCOMPARE(m_probe->dateien(), nurDieDatei);
}

void TestSicherungen::theOnlyCopyIsNotTakenBack_data()
{
    QTest::addColumn<QByteArray>("jetzt");
    QTest::newRow("another store of the same size is there") << speisebytes(2);
    QTest::newRow("a longer one is there") << speisebytes(1, 2);
    QTest::newRow("nothing is there") << QByteArray();
}

void TestSicherungen::theOnlyCopyIsNotTakenBack()
{
    QFETCH(QByteArray, jetzt);
    m_probe->lege(speisebytes(1), kopiename);
    if (!jetzt.isEmpty()) {
        m_probe->lege(jetzt);
    }
    Sicherungen::nimmZurueck(m_probe->path(), {Wie::Kopiert, m_probe->path(kopiename)});
    QCOMPARE(m_probe->bytes(kopiename), speisebytes(1));
    QCOMPARE(m_probe->bytes(), jetzt);
}

void TestSicherungen::whatWasMovedComesBackToAFreePlaceOnly_data()
{
    QTest::addColumn<bool>("frei");
    QTest::newRow("the place is free") << true;
    QTest::newRow("something is there") << false;
}

void TestSicherungen::whatWasMovedComesBackToAFreePlaceOnly()
{
    QFETCH(bool, frei);
    m_probe->lege("alt", kopiename);
    if (!frei) {
        m_probe->lege("neu");
    }
    Sicherungen::nimmZurueck(m_probe->path(), {Wie::Verschoben, m_probe->path(kopiename)});
    QCOMPARE(m_probe->bytes(), QByteArray(frei ? "alt" : "neu"));
    QCOMPARE(m_probe->bytes(kopiename), QByteArray(frei ? "" : "alt"));
}

QTEST_GUILESS_MAIN(TestSicherungen)
#include "TestSicherungen.moc"
