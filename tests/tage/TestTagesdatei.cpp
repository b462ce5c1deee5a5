// The records of nobody's days: kept in the file of the desk with each change.

#include "Aufzeichnungsprobe.h"
#include "Stoerung.h"
#include "Tagesdatei.h"

#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class TestTagesdatei : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_ordner = std::make_unique<QTemporaryDir>(); }

    void nothingIsMadeBeforeTheFirstRecord();
    void aNewRecordGetsAKeyAndIsKept();
    void aRecordIsKeptInItsPlace();
    void aRecordIsTakenAway();
    void whatCanNotBeWrittenStaysAndIsWrittenLater();
    void whatCanNotBeTakenAwayStays();
    void aFileThatCanNotBeReadIsNotWritten();

private:
    QString path() const { return m_ordner->filePath(u"Tage.json"_s); }
    static Aufzeichnung neue(const QString &titel)
    {
        Aufzeichnung eine = neueAufzeichnung(Aufzeichnungsart::Protokoll, {}, 1);
        eine.titel = titel;
        return eine;
    }
    QStringList titel() const
    {
        QStringList alle;
        for (const Aufzeichnung &eine : Tagesdatei(path()).alle()) {
            alle << eine.titel;
        }
        return alle;
    }

    std::unique_ptr<QTemporaryDir> m_ordner;
};

void TestTagesdatei::nothingIsMadeBeforeTheFirstRecord()
{
    Tagesdatei datei(path());
    QVERIFY(datei.alle().isEmpty());
    QVERIFY(datei.beschreibbar());
    QVERIFY(datei.wessen().isEmpty());
    QVERIFY(!QFileInfo::exists(path()));
}

void TestTagesdatei::aNewRecordGetsAKeyAndIsKept()
{
    Tagesdatei datei(path());
    const Aufzeichnung eine = datei.sichere(neue(u"A"_s));
    const Aufzeichnung andere = datei.sichere(neue(u"B"_s));
    QVERIFY(!eine.kennung.isEmpty());
    QVERIFY(eine.kennung != andere.kennung);
    QCOMPARE(datei.alle().size(), 2);
    QCOMPARE(titel(), QStringList({u"A"_s, u"B"_s}));
}

void TestTagesdatei::aRecordIsKeptInItsPlace()
{
    Tagesdatei datei(path());
    Aufzeichnung eine = datei.sichere(neue(u"A"_s));
    datei.sichere(neue(u"B"_s));
    eine.titel = u"C"_s;
    QCOMPARE(datei.sichere(eine).kennung, eine.kennung);
    QCOMPARE(titel(), QStringList({u"C"_s, u"B"_s}));
}

void TestTagesdatei::aRecordIsTakenAway()
{
    Tagesdatei datei(path());
    const Aufzeichnung eine = datei.sichere(neue(u"A"_s));
    datei.sichere(neue(u"B"_s));
    QVERIFY(datei.loesche(eine));
    QCOMPARE(titel(), QStringList(u"B"_s));
    QVERIFY(datei.loesche(datei.alle().constFirst()));
    QVERIFY(!QFileInfo::exists(path()));
}

void TestTagesdatei::whatCanNotBeWrittenStaysAndIsWrittenLater()
{
    Tagesdatei datei(path());
    datei.sichere(neue(u"A"_s));
    const QSignalSpy gesagt(&datei, &Tagesdatei::sicherungGewechselt);
    {
        const Stoerung stoerung(Stoerung::Schritt::Schreiben);
        datei.sichere(neue(u"B"_s));
        datei.sichere(neue(u"C"_s));
    }
    QVERIFY(!datei.istGesichert());
    QCOMPARE(gesagt.count(), 1);
    QCOMPARE(datei.alle().size(), 3);
    QCOMPARE(titel(), QStringList(u"A"_s));
    datei.sichere(neue(u"D"_s));
    QVERIFY(datei.istGesichert());
    QCOMPARE(gesagt.count(), 2);
    QCOMPARE(titel(), QStringList({u"A"_s, u"B"_s, u"C"_s, u"D"_s}));
}

void TestTagesdatei::whatCanNotBeTakenAwayStays()
{
    Tagesdatei datei(path());
    const Aufzeichnung eine = datei.sichere(neue(u"A"_s));
    datei.sichere(neue(u"B"_s));
    {
        const Stoerung stoerung(Stoerung::Schritt::Schreiben);
        QVERIFY(!datei.loesche(eine));
    }
    QCOMPARE(datei.alle().size(), 2);
    QVERIFY(datei.loesche(eine));
    QCOMPARE(titel(), QStringList(u"B"_s));
}

void TestTagesdatei::aFileThatCanNotBeReadIsNotWritten()
{
    Tagesdatei(path()).sichere(neue(u"A"_s));
    Tagesdatei datei(path());
    {
        const Stoerung stoerung(Stoerung::Schritt::Lesen);
        QVERIFY(datei.alle().isEmpty());
    }
    QVERIFY(!datei.beschreibbar());
    datei.sichere(neue(u"B"_s));
    QVERIFY(!datei.istGesichert());
    QCOMPARE(titel(), QStringList(u"A"_s));
}

QTEST_GUILESS_MAIN(TestTagesdatei)
#include "TestTagesdatei.moc"
