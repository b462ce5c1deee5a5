#include "Aufruf.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;

/// Files on the command line: what is taken for one, and how it is named.
class TestAufrufDateien : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatLooksLikeAFileIsOpened_data();
    void whatLooksLikeAFileIsOpened();
    void whatDoesNotIsNoCommand_data();
    void whatDoesNotIsNoCommand();
    void optionsOfTheWindowsGoWithFiles();
    void optionsOfCommandsDoNot();
    void theTourOpensNoFiles();
    void aCommandStaysACommand();
};

void TestAufrufDateien::whatLooksLikeAFileIsOpened_data()
{
    const QString hier = QDir::currentPath() + u'/';
    QTest::addColumn<QStringList>("worte");
    QTest::addColumn<QStringList>("dateien");
    QTest::newRow("a whole path") << QStringList{u"/a b/alt.daten"_s}
                                  << QStringList{u"/a b/alt.daten"_s};
    QTest::newRow("a path from here")
        << QStringList{u"alt.daten"_s} << QStringList{hier + u"alt.daten"_s};
    QTest::newRow("an ending in capitals")
        << QStringList{u"ALT.DATEN"_s} << QStringList{hier + u"ALT.DATEN"_s};
    QTest::newRow("another ending, in a folder")
        << QStringList{u"./liste.csv"_s} << QStringList{hier + u"liste.csv"_s};
    QTest::newRow("an address") << QStringList{u"file:///a%20b/%C3%A4.daten"_s}
                                << QStringList{u"/a b/ä.daten"_s};
    QTest::newRow("an address in capitals")
        << QStringList{u"FILE:///a.alt"_s} << QStringList{u"/a.alt"_s};
    QTest::newRow("several, the first of which looks like one")
        << QStringList{u"/a.daten"_s, u"liste"_s} << QStringList{u"/a.daten"_s, hier + u"liste"_s};
    QTest::newRow("one that begins like an option")
        << QStringList{u"--"_s, u"-a.daten"_s} << QStringList{hier + u"-a.daten"_s};
}

void TestAufrufDateien::whatLooksLikeAFileIsOpened()
{
    QFETCH(QStringList, worte);
    const Aufruf aufruf = leseAufruf(QStringList{u"mahlberg"_s} + worte);
    QVERIFY(!aufruf.fehler);
    QCOMPARE(aufruf.auftrag.befehl, Befehl::Fenster);
    QTEST(aufruf.auftrag.dateien, "dateien");
}

void TestAufrufDateien::whatDoesNotIsNoCommand_data()
{
    QTest::addColumn<QString>("wort");
    QTest::newRow("a word") << u"liste"_s;
    QTest::newRow("a mistyped command") << u"evalute"_s;
    QTest::newRow("another ending") << u"liste.csv"_s;
    QTest::newRow("the ending alone, without its point") << u"daten"_s;
    QTest::newRow("nothing") << QString(u""_s);
}

void TestAufrufDateien::whatDoesNotIsNoCommand()
{
    QFETCH(QString, wort);
    const Aufruf aufruf = leseAufruf({u"mahlberg"_s, wort, u"/a.daten"_s});
    QVERIFY(aufruf.fehler);
    QCOMPARE(aufruf.fehler->art, Fehlerart::BefehlUnbekannt);
    QCOMPARE(aufruf.fehler->wort, wort);
    QVERIFY(aufruf.auftrag.dateien.isEmpty());
}

void TestAufrufDateien::optionsOfTheWindowsGoWithFiles()
{
    const Aufruf aufruf = leseAufruf(
        {u"mahlberg"_s, u"/a.daten"_s, u"--language"_s, u"en"_s, u"--data-dir"_s, u"/Praxis"_s});
    QVERIFY(!aufruf.fehler);
    QCOMPARE(aufruf.auftrag.dateien, QStringList{u"/a.daten"_s});
    QCOMPARE(aufruf.auftrag.sprache, u"en"_s);
    QCOMPARE(aufruf.auftrag.datenordner, u"/Praxis"_s);
}

void TestAufrufDateien::optionsOfCommandsDoNot()
{
    const Aufruf aufruf = leseAufruf({u"mahlberg"_s, u"--format"_s, u"csv"_s, u"/a.daten"_s});
    QVERIFY(aufruf.fehler);
    QCOMPARE(aufruf.fehler->art, Fehlerart::OptionUnpassend);
}

void TestAufrufDateien::theTourOpensNoFiles()
{
    const Aufruf aufruf = leseAufruf({u"mahlberg"_s, u"--tour"_s, u"/tmp/x"_s, u"/a.daten"_s});
    QVERIFY(aufruf.fehler);
    QCOMPARE(aufruf.fehler->art, Fehlerart::ArgumentZuviel);
    QCOMPARE(aufruf.fehler->wort, u"/a.daten"_s);
}

void TestAufrufDateien::aCommandStaysACommand()
{
    const Aufruf aufruf = leseAufruf({u"mahlberg"_s, u"evaluate"_s, u"/plan.daten"_s});
    QVERIFY(!aufruf.fehler);
    QCOMPARE(aufruf.auftrag.befehl, Befehl::Auswerten);
    QVERIFY(aufruf.auftrag.dateien.isEmpty());
}

QTEST_GUILESS_MAIN(TestAufrufDateien)
#include "TestAufrufDateien.moc"
