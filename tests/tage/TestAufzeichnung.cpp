// A record of days: what a new one is like, how its days and meals are called, which rows count.

#include "Aufzeichnungsprobe.h"

#include <QLocale>
#include <QTest>
#include <QTranslator>

using namespace Qt::StringLiterals;
using Aufzeichnungsprobe::zeile;

class TestAufzeichnung : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewRecordHasTheUsualMealsOnEachDay();
    void theNumberOfDaysHasItsLimits_data();
    void theNumberOfDaysHasItsLimits();
    void onlyTheUsualMealsAreTranslated();
    void daysAreCalledByTheirDate();
    void aRowCountsWhenAllOfItIsKnown();
    void recordsAreComparedByTheirContent();
};

void TestAufzeichnung::aNewRecordHasTheUsualMealsOnEachDay()
{
    const Aufzeichnung neue =
        neueAufzeichnung(Aufzeichnungsart::Wochenplan, QDate(2026, 11, 23), 7);
    QCOMPARE(neue.art, Aufzeichnungsart::Wochenplan);
    QCOMPARE(neue.mahlzeiten, QStringList({u"Frühstück"_s, u"Vormittag"_s, u"Mittagessen"_s,
                                           u"Nachmittag"_s, u"Abendessen"_s, u"Spät"_s}));
    QCOMPARE(neue.tage.size(), 7);
    for (const Tag &tag : neue.tage) {
        QCOMPARE(tag.mahlzeiten.size(), 6);
        QVERIFY(tag.imMittel);
        for (const Mahlzeit &mahlzeit : tag.mahlzeiten) {
            QVERIFY(mahlzeit.zeilen.isEmpty());
        }
    }
    QVERIFY(neue.kennung.isNull());
    QCOMPARE(neue.fassung, 0);
}

void TestAufzeichnung::theNumberOfDaysHasItsLimits_data()
{
    QTest::addColumn<int>("gewuenscht");
    QTest::addColumn<int>("bekommen");
    QTest::newRow("less than none") << -3 << 1;
    QTest::newRow("none is one") << 0 << 1;
    QTest::newRow("one") << 1 << 1;
    QTest::newRow("two weeks") << 14 << 14;
    QTest::newRow("a day more is two weeks") << 15 << 14;
}

void TestAufzeichnung::theNumberOfDaysHasItsLimits()
{
    QFETCH(int, gewuenscht);
    QTEST(
        static_cast<int>(neueAufzeichnung(Aufzeichnungsart::Protokoll, {}, gewuenscht).tage.size()),
        "bekommen");
}

namespace {

/// Puts "en: " before every text.
class Sprecher : public QTranslator
{
public:
    QString translate(const char * /*context*/, const char *text, const char * /*genauer*/,
                      int /*anzahl*/) const override
    {
        return u"en: "_s + QString::fromUtf8(text);
    }
    bool isEmpty() const override { return false; }
};

} // namespace

void TestAufzeichnung::onlyTheUsualMealsAreTranslated()
{
    QCOMPARE(mahlzeitname(u"Frühstück"_s), u"Frühstück"_s);
    Sprecher sprecher;
    QVERIFY(QCoreApplication::installTranslator(&sprecher));
    QCOMPARE(mahlzeitname(u"Frühstück"_s), u"en: Frühstück"_s);
    QCOMPARE(mahlzeitname(u"Klienten"_s), u"Klienten"_s);
    QCOMPARE(mahlzeitname(u"Brotzeit"_s), u"Brotzeit"_s);
}

void TestAufzeichnung::daysAreCalledByTheirDate()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    Aufzeichnung eine = neueAufzeichnung(Aufzeichnungsart::Protokoll, QDate(2026, 12, 31), 2);
    QCOMPARE(datumVon(eine, 0), QDate(2026, 12, 31));
    QCOMPARE(datumVon(eine, 1), QDate(2027, 1, 1));
    QCOMPARE(tagesname(eine, 0), u"Do. 31.12.26"_s);
    QCOMPARE(tagesname(eine, 1), u"Fr. 01.01.27"_s);
    eine.datum = {};
    QVERIFY(datumVon(eine, 1).isNull());
    QCOMPARE(tagesname(eine, 1), u"Tag 2"_s);
}

void TestAufzeichnung::aRowCountsWhenAllOfItIsKnown()
{
    QVERIFY(zaehlt(zeile(u"Apfel"_s, 100)));
    QVERIFY(zaehlt(zeile(u"Apfel"_s, 0)));
    QVERIFY(!zaehlt(Aufzeichnungsprobe::oder(zeile(u"Apfel"_s, 100))));
    Mahlzeitzeile ohneMenge = zeile(u"Apfel"_s, 100);
    ohneMenge.gramm.reset();
    QVERIFY(!zaehlt(ohneMenge));
    Mahlzeitzeile ohneSpeise = zeile(u"Apfel"_s, 100);
    ohneSpeise.eintrag.reset();
    QVERIFY(!zaehlt(ohneSpeise));
    QVERIFY(!zaehlt({}));
}

void TestAufzeichnung::recordsAreComparedByTheirContent()
{
    Aufzeichnung eine = neueAufzeichnung(Aufzeichnungsart::Protokoll, {}, 1);
    eine.tage[0].mahlzeiten[2].zeilen << zeile(u"Apfel"_s, 100);
    Aufzeichnung andere = eine;
    QVERIFY(eine == andere);
    andere.tage[0].mahlzeiten[2].zeilen[0].eintrag->setkal(101);
    QVERIFY(!(eine == andere));
    andere = eine;
    andere.tage[0].mahlzeiten[2].zeilen[0].gramm.reset();
    QVERIFY(!(eine == andere));
    andere = eine;
    andere.tage[0].mahlzeiten[2].zeilen[0].eintrag.reset();
    QVERIFY(!(eine == andere));
    andere = eine;
    andere.tage[0].mahlzeiten[2].notiz = u"kalt"_s;
    QVERIFY(!(eine == andere));
}

QTEST_GUILESS_MAIN(TestAufzeichnung)
#include "TestAufzeichnung.moc"
