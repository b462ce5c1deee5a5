// What waits for a store outlives the program: it comes back as it was, and a file that is not what
// it should be is neither lost nor written over.

#include "Hindernisse.h"
#include "Merkdateitest.h"
#include "Vormerkdatei.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

const QDateTime jetzt(QDate(2026, 11, 23), QTime(9, 30));

Person anna()
{
    Person person;
    person.kennung = u"p"_s;
    person.name = u"Änne \"x\""_s;
    person.geburt = QDate(1950, 12, 31);
    return person;
}

Besuch besuch(int fassung, double gewicht)
{
    Besuch einer;
    einer.kennung = u"b"_s;
    einer.fassung = fassung;
    einer.datum = QDate(2026, 11, 23);
    einer.gewicht = gewicht;
    return einer;
}

QList<Schreibwunsch> dreierlei()
{
    Planablage plan;
    plan.kennung = u"l"_s;
    plan.titel = u"Woche"_s;
    plan.datum = QDate(2026, 11, 20);
    plan.posten = {{u"Apfel"_s, 150.5F, {}}};
    Aufzeichnung tage = neueAufzeichnung(Aufzeichnungsart::Protokoll, QDate(2026, 11, 23), 2);
    tage.kennung = u"t"_s;
    tage.tage[1].mahlzeiten[0].zeilen = {{.text = u"Auflauf"_s, .angabe = u"1 Teller"_s}};
    return {{u"p"_s, anna()},
            {u"p"_s, besuch(2, 0.1 + 0.2), Satz(besuch(2, 80))},
            {u"p"_s, plan},
            {u"p"_s, tage}};
}

} // namespace

class TestVormerkdatei : public Merkdateitest
{
    Q_OBJECT

public:
    TestVormerkdatei() : Merkdateitest(u"Vorgemerkt.json"_s) {}

private Q_SLOTS:
    void whatWaitsComesBackAsItWas();
    void forNothingThereIsNoFile();
    void whatIsNotUnderstoodIsKeptBeside_data();
    void whatIsNotUnderstoodIsKeptBeside();
    void whatCanNotBeReadIsNotWrittenOver_data();
    void whatCanNotBeReadIsNotWrittenOver();
    void whatCanNotBeKeptBesideStays();
    void aFailingStepLeavesWhatStood_data();
    void aFailingStepLeavesWhatStood();
    void aFileThatCanNotGoIsToldOf();
    void whatAWriterLeftBehindGoes();

private:
    bool merke() const override { return Vormerkdatei(path()).schreibe(dreierlei()); }
};

void TestVormerkdatei::whatWaitsComesBackAsItWas()
{
    QVERIFY(Vormerkdatei(path()).schreibe(dreierlei()));
    Vormerkdatei datei(path());
    QCOMPARE(datei.lies(jetzt), dreierlei());
    QVERIFY(datei.beiseite().isNull());
    QVERIFY(!datei.istGesperrt());
}

void TestVormerkdatei::forNothingThereIsNoFile()
{
    Vormerkdatei datei(path());
    QVERIFY(datei.lies(jetzt).isEmpty());
    QVERIFY(datei.schreibe({}));
    QVERIFY(!QFileInfo::exists(path()));
    QVERIFY(datei.schreibe(dreierlei()));
    QVERIFY(QFileInfo::exists(path()));
    QVERIFY(datei.schreibe({}));
    QCOMPARE(m_ordner->dateien(), QStringList());
}

void TestVormerkdatei::whatIsNotUnderstoodIsKeptBeside_data()
{
    QTest::addColumn<QByteArray>("inhalt");
    QTest::addColumn<int>("gelesen");
    const QByteArray kopf = R"({"format":"Mahlberg waiting","version":1,"waiting":[)";
    const QByteArray guter =
        R"({"person":"p","kind":"visit","new":{"kennung":"b","fassung":0,"datum":"2026-11-23"}})";
    QTest::newRow("nothing in it") << QByteArray("") << 0;
    QTest::newRow("a letter") << QByteArray("Liebe Frau Muster,\n") << 0;
    QTest::newRow("JSON of something else") << QByteArray(R"({"format":"Mahlberg client"})") << 0;
    QTest::newRow("of a newer version")
        << QByteArray(R"({"format":"Mahlberg waiting","version":2,"waiting":[]})") << 0;
    QTest::newRow("cut off") << kopf + guter << 0;
    QTest::newRow("one of an unknown kind")
        << kopf + guter + R"(,{"person":"p","kind":"bill","new":{}}]})" << 1;
    QTest::newRow("one without a key")
        << kopf + guter + R"(,{"person":"p","kind":"visit","new":{"fassung":1}}]})" << 1;
    QTest::newRow("one of nobody")
        << kopf + R"({"kind":"visit","new":{"kennung":"b","fassung":0}},)" + guter + "]}" << 1;
    QTest::newRow("one with a day that is none")
        << kopf + guter +
               R"(,{"person":"p","kind":"visit","new":{"kennung":"c","fassung":0,"datum":"31.2."}}]})"
        << 1;
    QTest::newRow("one whose ground is none")
        << kopf + guter +
               R"(,{"person":"p","kind":"visit","new":{"kennung":"c","fassung":0},"old":3}]})"
        << 1;
}

void TestVormerkdatei::whatIsNotUnderstoodIsKeptBeside()
{
    QFETCH(QByteArray, inhalt);
    QFETCH(int, gelesen);
    lege(inhalt);
    Vormerkdatei datei(path());
    QCOMPARE(datei.lies(jetzt).size(), gelesen);
    QVERIFY(!datei.istGesperrt());
    QCOMPARE(datei.beiseite(), m_ordner->path(u"Vorgemerkt 2026-11-23 09.30.00.json"_s));
    QVERIFY(datei.schreibe(dreierlei()));
    QCOMPARE(Vormerkdatei(path()).lies(jetzt), dreierlei());
    istKopie(datei.beiseite(), inhalt);
}

void TestVormerkdatei::whatCanNotBeReadIsNotWrittenOver_data()
{
    lesestoerungen();
}

void TestVormerkdatei::whatCanNotBeReadIsNotWrittenOver()
{
    QFETCH(Schritt, schritt);
    QVERIFY(Vormerkdatei(path()).schreibe(dreierlei()));
    const QByteArray vorher = bytes();
    Vormerkdatei datei(path());
    {
        const Stoerung stoerung(schritt);
        QVERIFY(datei.lies(jetzt).isEmpty());
        QVERIFY(stoerung.ausfaelle() > 0);
    }
    QVERIFY(datei.istGesperrt());
    QVERIFY(!datei.schreibe({{u"p"_s, anna()}}));
    QVERIFY(datei.schreibe({})); // nothing waits, and nothing of it is touched
    QCOMPARE(bytes(), vorher);
    QCOMPARE(Vormerkdatei(path()).lies(jetzt), dreierlei());
}

void TestVormerkdatei::whatCanNotBeKeptBesideStays()
{
    lege("Liebe Frau Muster,\n");
    Vormerkdatei datei(path());
    {
        const Stoerung anlegen(Schritt::Anlegen);
        const Stoerung umbenennen(Schritt::Umbenennen);
        QVERIFY(datei.lies(jetzt).isEmpty());
    }
    QVERIFY(datei.istGesperrt());
    QVERIFY(!datei.schreibe(dreierlei()));
    QCOMPARE(bytes(), QByteArray("Liebe Frau Muster,\n"));
}

void TestVormerkdatei::aFailingStepLeavesWhatStood_data()
{
    schreibstoerungen();
}

void TestVormerkdatei::aFailingStepLeavesWhatStood()
{
    QFETCH(Schritt, schritt);
    Vormerkdatei datei(path());
    QVERIFY(datei.schreibe({{u"p"_s, anna()}}));
    const QByteArray vorher = bytes();
    {
        const Stoerung stoerung(schritt);
        QVERIFY(!datei.schreibe(dreierlei()));
        QVERIFY(stoerung.ausfaelle() > 0);
    }
    QCOMPARE(bytes(), vorher);
    QVERIFY(datei.schreibe(dreierlei()));
    QCOMPARE(Vormerkdatei(path()).lies(jetzt), dreierlei());
}

void TestVormerkdatei::aFileThatCanNotGoIsToldOf()
{
    Vormerkdatei datei(path());
    QVERIFY(datei.schreibe(dreierlei()));
    {
        const OhneRechte niemand;
        QVERIFY(!datei.schreibe({}));
    }
    QVERIFY(QFileInfo::exists(path()));
    QVERIFY(datei.schreibe({}));
    QVERIFY(!QFileInfo::exists(path()));
}

void TestVormerkdatei::whatAWriterLeftBehindGoes()
{
    const QString rest = u"Vorgemerkt.json.schreibe-aB3xYz"_s;
    m_ordner->lege("{", rest);
    m_ordner->datiere(QDateTime::currentDateTime().addDays(-1), rest);
    QVERIFY(QFileInfo::exists(m_ordner->path(rest)));
    Vormerkdatei(path()).lies(QDateTime::currentDateTime());
    QVERIFY(!QFileInfo::exists(m_ordner->path(rest)));
}

QTEST_GUILESS_MAIN(TestVormerkdatei)
#include "TestVormerkdatei.moc"
