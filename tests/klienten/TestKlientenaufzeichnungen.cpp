// The records of days of one client, from the cabinet and back.

#include "Klientenaufzeichnungen.h"
#include "Pruefspeicher.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class TestKlientenaufzeichnungen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { Pruefspeicher::zeilen(); }
    void init();
    void cleanup();

    void aNewRecordIsTheClients();
    void itIsKeptInItsPlace();
    void whatAnotherDeskWroteCountsUntilItIsDecided();
    void whileTheStoreIsAwayItWaits();
    void itIsTakenAway();
    void onlyThisClientIsToldOf();

private:
    static Aufzeichnung neue(const QString &titel)
    {
        Aufzeichnung eine = neueAufzeichnung(Aufzeichnungsart::Protokoll, QDate(2026, 11, 23), 2);
        eine.titel = titel;
        return eine;
    }

    Pruefspeicher m_speicher;
    std::unique_ptr<Kartei> m_kartei;
    std::unique_ptr<Klientenaufzeichnungen> m_ihre;
    QString m_anna;
};

void TestKlientenaufzeichnungen::init()
{
    m_speicher.beginne();
    m_kartei = std::make_unique<Kartei>([this] { return m_speicher.ort(); });
    m_kartei->lade();
    m_anna = m_kartei->sichere({QString(), namens(u"Anna"_s), {}});
    m_ihre = std::make_unique<Klientenaufzeichnungen>(*m_kartei, m_anna);
}

void TestKlientenaufzeichnungen::cleanup()
{
    m_ihre.reset();
    m_kartei.reset();
}

void TestKlientenaufzeichnungen::aNewRecordIsTheClients()
{
    QCOMPARE(m_ihre->wessen(), u"Anna"_s);
    QVERIFY(m_ihre->beschreibbar());
    QVERIFY(m_ihre->alle().isEmpty());
    const Aufzeichnung eine = m_ihre->sichere(neue(u"Woche"_s));
    QVERIFY(!eine.kennung.isEmpty());
    QCOMPARE(eine.fassung, 1);
    QCOMPARE(m_kartei->akte(m_anna)->aufzeichnungen.constFirst().titel, u"Woche"_s);
    const QString zoe = m_kartei->sichere({QString(), namens(u"Zoe"_s), {}});
    QVERIFY(Klientenaufzeichnungen(*m_kartei, zoe).alle().isEmpty());
}

void TestKlientenaufzeichnungen::itIsKeptInItsPlace()
{
    Aufzeichnung eine = m_ihre->sichere(neue(u"Woche"_s));
    for (int i = 2; i < 5; ++i) {
        eine.tage[0].notiz = QString::number(i);
        const Aufzeichnung danach = m_ihre->sichere(eine);
        QCOMPARE(danach.fassung, i);
        QCOMPARE(danach.kennung, eine.kennung);
        eine = danach;
    }
    QCOMPARE(m_ihre->alle().size(), 1);
    QCOMPARE(m_ihre->alle().constFirst().tage[0].notiz, u"4"_s);
}

void TestKlientenaufzeichnungen::whatAnotherDeskWroteCountsUntilItIsDecided()
{
    Aufzeichnung eine = m_ihre->sichere(neue(u"Woche"_s));
    Aufzeichnung anderes = eine;
    anderes.titel = u"Anderer Platz"_s;
    QVERIFY(m_speicher.tisch()->sichere(m_anna, anderes));
    const QSignalSpy kollidiert(m_kartei.get(), &Kartei::kollidiert);
    eine.titel = u"Meine"_s;
    QCOMPARE(m_ihre->sichere(eine).titel, u"Anderer Platz"_s);
    QCOMPARE(kollidiert.count(), 1);
}

void TestKlientenaufzeichnungen::whileTheStoreIsAwayItWaits()
{
    Aufzeichnung eine = m_ihre->sichere(neue(u"Woche"_s));
    m_speicher.nimmWeg();
    eine.titel = u"Zweite Woche"_s;
    QCOMPARE(m_ihre->sichere(eine).titel, u"Zweite Woche"_s);
    QCOMPARE(m_kartei->vorgemerkt(), 1);
    m_speicher.gibZurueck();
    m_kartei->versucheNochmals();
    QCOMPARE(m_ihre->alle().constFirst().titel, u"Zweite Woche"_s);
    QCOMPARE(m_ihre->alle().constFirst().fassung, 2);
}

void TestKlientenaufzeichnungen::itIsTakenAway()
{
    const Aufzeichnung eine = m_ihre->sichere(neue(u"Woche"_s));
    QVERIFY(m_ihre->loesche(eine));
    QVERIFY(m_ihre->alle().isEmpty());
    QVERIFY(m_kartei->holeZurueck());
    QCOMPARE(m_ihre->alle().constFirst().titel, u"Woche"_s);
}

void TestKlientenaufzeichnungen::onlyThisClientIsToldOf()
{
    const QString zoe = m_kartei->sichere({QString(), namens(u"Zoe"_s), {}});
    const QSignalSpy gesagt(m_ihre.get(), &Aufzeichnungsablage::geaendert);
    Klientenaufzeichnungen(*m_kartei, zoe).sichere(neue(u"Zoes"_s));
    QCOMPARE(gesagt.count(), 0);
    Person anna = m_kartei->akte(m_anna)->person;
    const Person vorher = anna;
    anna.name = u"Anna Muster"_s;
    m_kartei->sichere({m_anna, anna, Satz(vorher)});
    QCOMPARE(gesagt.count(), 1);
    QCOMPARE(m_ihre->wessen(), u"Anna Muster"_s);
}

QTEST_GUILESS_MAIN(TestKlientenaufzeichnungen)
#include "TestKlientenaufzeichnungen.moc"
