// The records of days that belong to no client: kept in a file of the desk, and not lost with it.

#include "Aufzeichnungsprobe.h"
#include "Merkdateitest.h"
#include "Tagebuchdatei.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

const QDateTime jetzt(QDate(2026, 11, 23), QTime(9, 30));

Aufzeichnung eine(const QString &kennung)
{
    Aufzeichnung aufzeichnung =
        neueAufzeichnung(Aufzeichnungsart::Protokoll, QDate(2026, 11, 23), 2);
    aufzeichnung.kennung = kennung;
    aufzeichnung.titel = u"Woche "_s + kennung;
    aufzeichnung.tage[1].mahlzeiten[0].zeilen << Aufzeichnungsprobe::zeile(u"Apfel"_s, 150);
    return aufzeichnung;
}

} // namespace

class TestTagebuchdatei : public Merkdateitest
{
    Q_OBJECT

public:
    TestTagebuchdatei() : Merkdateitest(u"Tage.json"_s) {}

private Q_SLOTS:
    void recordsComeBackInTheirOrder();
    void forNoneThereIsNoFile();
    void oneThatCanNotBeUnderstoodIsKeptBeside();
    void whatIsNoDiaryIsKeptBeside_data();
    void whatIsNoDiaryIsKeptBeside();
    void aNewerFileIsReadAndNotWritten();
    void aNewerRecordIsHandedOn();
    void whatCanNotBeReadStays_data();
    void whatCanNotBeReadStays();
    void aFailingStepLeavesWhatStood_data();
    void aFailingStepLeavesWhatStood();
    void theStateOfAnEarlierDayIsKept();

private:
    bool merke() const override { return Tagebuchdatei(path()).schreibe({eine(u"a"_s)}); }
};

void TestTagebuchdatei::recordsComeBackInTheirOrder()
{
    const QList<Aufzeichnung> drei = {eine(u"b"_s), eine(u"a"_s), eine(u"c"_s)};
    QVERIFY(Tagebuchdatei(path()).schreibe(drei));
    Tagebuchdatei datei(path());
    QVERIFY(datei.lies(jetzt) == drei);
    QVERIFY(datei.beiseite().isNull());
    QVERIFY(!datei.istGesperrt());
}

void TestTagebuchdatei::forNoneThereIsNoFile()
{
    Tagebuchdatei datei(path());
    QVERIFY(datei.lies(jetzt).isEmpty());
    QVERIFY(datei.schreibe({}));
    QVERIFY(!QFileInfo::exists(path()));
    QVERIFY(datei.schreibe({eine(u"a"_s)}));
    QVERIFY(datei.schreibe({}));
    QVERIFY(!QFileInfo::exists(path()));
}

void TestTagebuchdatei::oneThatCanNotBeUnderstoodIsKeptBeside()
{
    QVERIFY(Tagebuchdatei(path()).schreibe({eine(u"a"_s), eine(u"b"_s)}));
    QByteArray inhalt = bytes();
    const auto stelle = inhalt.indexOf("Mahlberg days");
    QVERIFY(stelle > 0);
    inhalt.replace(stelle, 13, "Mahlberg dogs");
    lege(inhalt);
    Tagebuchdatei datei(path());
    const QList<Aufzeichnung> gelesen = datei.lies(jetzt);
    QCOMPARE(gelesen.size(), 1);
    QCOMPARE(gelesen.constFirst().kennung, u"b"_s);
    QVERIFY(datei.schreibe(gelesen));
    istKopie(datei.beiseite(), inhalt);
}

void TestTagebuchdatei::whatIsNoDiaryIsKeptBeside_data()
{
    QTest::addColumn<QByteArray>("inhalt");
    QTest::newRow("a letter") << QByteArray("Liebe Frau Muster,\n");
    QTest::newRow("JSON of something else") << QByteArray(R"({"format":"Mahlberg client"})");
    QTest::newRow("without a version") << QByteArray(R"({"format":"Mahlberg diary"})");
    QTest::newRow("a record without a key")
        << QByteArray(R"({"format":"Mahlberg diary","version":1,"records":[{"record":)"
                      R"({"format":"Mahlberg days","version":1,"kind":"record","meals":["A"],)"
                      R"("days":[{"meals":[{}]}]}}]})");
}

void TestTagebuchdatei::whatIsNoDiaryIsKeptBeside()
{
    QFETCH(QByteArray, inhalt);
    lege(inhalt);
    Tagebuchdatei datei(path());
    QVERIFY(datei.lies(jetzt).isEmpty());
    QCOMPARE(datei.beiseite(), m_ordner->path(u"Tage 2026-11-23 09.30.00.json"_s));
    QVERIFY(datei.schreibe({eine(u"a"_s)}));
    istKopie(datei.beiseite(), inhalt);
}

void TestTagebuchdatei::aNewerFileIsReadAndNotWritten()
{
    QVERIFY(Tagebuchdatei(path()).schreibe({eine(u"a"_s)}));
    QByteArray inhalt = bytes();
    const qsizetype stelle = inhalt.lastIndexOf("\"version\": 1");
    QVERIFY(stelle > 0);
    inhalt.replace(stelle, 12, "\"version\": 2");
    lege(inhalt);
    Tagebuchdatei datei(path());
    QCOMPARE(datei.lies(jetzt).size(), 1);
    QVERIFY(datei.istGesperrt());
    QVERIFY(datei.beiseite().isNull());
    QVERIFY(!datei.schreibe({eine(u"b"_s)}));
    QCOMPARE(bytes(), inhalt);
}

void TestTagebuchdatei::aNewerRecordIsHandedOn()
{
    QVERIFY(Tagebuchdatei(path()).schreibe({eine(u"a"_s), eine(u"b"_s)}));
    QByteArray inhalt = bytes();
    const qsizetype stelle = inhalt.indexOf("\"version\": 1"); // of the first record
    QVERIFY(stelle > 0 && stelle < inhalt.lastIndexOf("\"version\": 1"));
    inhalt.replace(stelle, 12, "\"version\": 7");
    lege(inhalt);
    Tagebuchdatei datei(path());
    QList<Aufzeichnung> gelesen = datei.lies(jetzt);
    QCOMPARE(gelesen.size(), 2);
    QVERIFY(!datei.istGesperrt());
    QVERIFY(!gelesen[0].neuererText.isEmpty());
    gelesen[1].titel = u"Neu"_s;
    QVERIFY(datei.schreibe(gelesen));
    QVERIFY(bytes().contains("\"version\": 7"));
    QVERIFY(Tagebuchdatei(path()).lies(jetzt) == gelesen);
}

void TestTagebuchdatei::whatCanNotBeReadStays_data()
{
    lesestoerungen();
}

void TestTagebuchdatei::whatCanNotBeReadStays()
{
    QFETCH(Schritt, schritt);
    QVERIFY(Tagebuchdatei(path()).schreibe({eine(u"a"_s)}));
    const QByteArray vorher = bytes();
    Tagebuchdatei datei(path());
    {
        const Stoerung stoerung(schritt);
        QVERIFY(datei.lies(jetzt).isEmpty());
        QVERIFY(stoerung.ausfaelle() > 0);
    }
    QVERIFY(datei.istGesperrt());
    QVERIFY(!datei.schreibe({eine(u"b"_s)}));
    QCOMPARE(bytes(), vorher);
}

void TestTagebuchdatei::aFailingStepLeavesWhatStood_data()
{
    schreibstoerungen();
}

void TestTagebuchdatei::aFailingStepLeavesWhatStood()
{
    QFETCH(Schritt, schritt);
    Tagebuchdatei datei(path());
    QVERIFY(datei.schreibe({eine(u"a"_s)}));
    const QByteArray vorher = bytes();
    {
        const Stoerung stoerung(schritt);
        QVERIFY(!datei.schreibe({eine(u"b"_s)}));
        QVERIFY(stoerung.ausfaelle() > 0);
    }
    QCOMPARE(bytes(), vorher);
    QVERIFY(datei.schreibe({eine(u"b"_s)}));
    QCOMPARE(Tagebuchdatei(path()).lies(jetzt).constFirst().kennung, u"b"_s);
}

void TestTagebuchdatei::theStateOfAnEarlierDayIsKept()
{
    Tagebuchdatei datei(path());
    QVERIFY(datei.schreibe({eine(u"a"_s)}));
    QVERIFY(datei.schreibe({eine(u"b"_s)}));
    const QDir kopien(m_ordner->path(u"Sicherungen"_s));
    QVERIFY(!kopien.exists()); // two states of one day
    const QByteArray vorher = bytes();
    datiere(QDateTime(QDate(2026, 11, 20), QTime(18, 0)));
    QVERIFY(datei.schreibe({eine(u"c"_s)}));
    QCOMPARE(kopien.entryList(QDir::Files), QStringList(u"Tage 2026-11-20.json"_s));
    istKopie(kopien.filePath(u"Tage 2026-11-20.json"_s), vorher);
}

QTEST_GUILESS_MAIN(TestTagebuchdatei)
#include "TestTagebuchdatei.moc"
