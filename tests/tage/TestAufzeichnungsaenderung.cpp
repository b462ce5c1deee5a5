// What is done to a record of days leaves it whole, and what can't be done changes nothing.

#include "Aufzeichnungsaenderung.h"
#include "Aufzeichnungsprobe.h"

#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;
using namespace Aufzeichnungsaenderung;
using Aufzeichnungsprobe::namen;
using Aufzeichnungsprobe::oder;
using Aufzeichnungsprobe::zeile;

using Tat = std::function<bool(Aufzeichnung &)>;
Q_DECLARE_METATYPE(Tat)

class TestAufzeichnungsaenderung : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void rowsComeInWhereTheyAreWanted_data();
    void rowsComeInWhereTheyAreWanted();
    void theFirstRowIsNoAlternative();
    void aRowIsReplaced();
    void alternativesAreMadeAndUnmade();
    void aMealComesIntoEveryDay();
    void aMealGoesOutOfEveryDay();
    void aMealMovesInEveryDay();
    void aMealIsNamed();
    void theNumberOfMealsHasItsLimits();
    void daysComeAndGoAtTheEnd();
    void aDayIsFilledIntoOthers();
    void aDayIsEmptied();
    void whatIsNotThereChangesNothing_data();
    void whatIsNotThereChangesNothing();

private:
    Aufzeichnung m_eine; ///< day 0, meal 2: A, B, or C, D
};

void TestAufzeichnungsaenderung::init()
{
    m_eine = neueAufzeichnung(Aufzeichnungsart::Wochenplan, QDate(2026, 11, 23), 2);
    m_eine.tage[0].mahlzeiten[2].zeilen = {zeile(u"A"_s, 1), zeile(u"B"_s, 2),
                                           oder(zeile(u"C"_s, 3)), zeile(u"D"_s, 4)};
}

void TestAufzeichnungsaenderung::rowsComeInWhereTheyAreWanted_data()
{
    QTest::addColumn<int>("stelle");
    QTest::addColumn<QString>("danach");
    QTest::newRow("before the first") << 0 << u"XYAB|CD"_s;
    QTest::newRow("between") << 2 << u"ABXY|CD"_s;
    QTest::newRow("behind the last") << 4 << u"AB|CDXY"_s;
}

void TestAufzeichnungsaenderung::rowsComeInWhereTheyAreWanted()
{
    QFETCH(int, stelle);
    QVERIFY(fuegeEin(m_eine, {0, 2, stelle}, {zeile(u"X"_s, 1), zeile(u"Y"_s, 1)}));
    QTEST(namen(m_eine, 0, 2), "danach");
    QCOMPARE(namen(m_eine, 1, 2), QString());
}

void TestAufzeichnungsaenderung::theFirstRowIsNoAlternative()
{
    QVERIFY(fuegeEin(m_eine, {1, 0, 0}, {oder(zeile(u"X"_s, 1)), oder(zeile(u"Y"_s, 1))}));
    QCOMPARE(namen(m_eine, 1, 0), u"X|Y"_s);
    QVERIFY(ersetze(m_eine, {1, 0, 0}, oder(zeile(u"Z"_s, 1))));
    QCOMPARE(namen(m_eine, 1, 0), u"Z|Y"_s);
}

void TestAufzeichnungsaenderung::aRowIsReplaced()
{
    QVERIFY(ersetze(m_eine, {0, 2, 3}, zeile(u"X"_s, 7)));
    QCOMPARE(namen(m_eine, 0, 2), u"AB|CX"_s);
    QCOMPARE(m_eine.tage[0].mahlzeiten[2].zeilen[3].gramm, 7.0F);
}

void TestAufzeichnungsaenderung::alternativesAreMadeAndUnmade()
{
    QVERIFY(setzeOder(m_eine, {0, 2, 3}, true));
    QCOMPARE(namen(m_eine, 0, 2), u"AB|C|D"_s);
    QVERIFY(setzeOder(m_eine, {0, 2, 2}, false));
    QCOMPARE(namen(m_eine, 0, 2), u"ABC|D"_s);
    QVERIFY(!setzeOder(m_eine, {0, 2, 0}, true));
    QVERIFY(setzeOder(m_eine, {0, 2, 0}, false));
}

void TestAufzeichnungsaenderung::aMealComesIntoEveryDay()
{
    QVERIFY(fuegeMahlzeitEin(m_eine, 2, u" Brotzeit "_s));
    QCOMPARE(m_eine.mahlzeiten[2], u"Brotzeit"_s);
    QCOMPARE(m_eine.mahlzeiten.size(), 7);
    QCOMPARE(m_eine.tage[1].mahlzeiten.size(), 7);
    QCOMPARE(namen(m_eine, 0, 2), QString());
    QCOMPARE(namen(m_eine, 0, 3), u"AB|CD"_s);
}

void TestAufzeichnungsaenderung::aMealGoesOutOfEveryDay()
{
    QVERIFY(nimmMahlzeitHeraus(m_eine, 0));
    QCOMPARE(m_eine.mahlzeiten[0], u"Vormittag"_s);
    QCOMPARE(m_eine.tage[1].mahlzeiten.size(), 5);
    QCOMPARE(namen(m_eine, 0, 1), u"AB|CD"_s);
}

void TestAufzeichnungsaenderung::aMealMovesInEveryDay()
{
    QVERIFY(verschiebeMahlzeit(m_eine, 2, 5));
    QCOMPARE(m_eine.mahlzeiten[5], u"Mittagessen"_s);
    QCOMPARE(namen(m_eine, 0, 5), u"AB|CD"_s);
    QVERIFY(verschiebeMahlzeit(m_eine, 5, 0));
    QCOMPARE(namen(m_eine, 0, 0), u"AB|CD"_s);
}

void TestAufzeichnungsaenderung::aMealIsNamed()
{
    QVERIFY(benenneMahlzeit(m_eine, 5, u"  Vor dem Schlafen "_s));
    QCOMPARE(m_eine.mahlzeiten[5], u"Vor dem Schlafen"_s);
}

void TestAufzeichnungsaenderung::theNumberOfMealsHasItsLimits()
{
    for (int i = 6; i < meisteMahlzeiten; ++i) {
        QVERIFY(fuegeMahlzeitEin(m_eine, 0, u"M"_s));
    }
    QVERIFY(!fuegeMahlzeitEin(m_eine, 0, u"M"_s));
    for (int i = 1; i < meisteMahlzeiten; ++i) {
        QVERIFY(nimmMahlzeitHeraus(m_eine, 0));
    }
    QVERIFY(!nimmMahlzeitHeraus(m_eine, 0));
    QCOMPARE(m_eine.tage[0].mahlzeiten.size(), 1);
}

void TestAufzeichnungsaenderung::daysComeAndGoAtTheEnd()
{
    m_eine.tage[1].notiz = u"weg"_s;
    QVERIFY(setzeTagezahl(m_eine, 14));
    QCOMPARE(m_eine.tage.size(), 14);
    QCOMPARE(m_eine.tage[13].mahlzeiten.size(), 6);
    QCOMPARE(m_eine.tage[1].notiz, u"weg"_s);
    QVERIFY(m_eine.tage[2].notiz.isEmpty());
    QVERIFY(setzeTagezahl(m_eine, 1));
    QCOMPARE(m_eine.tage.size(), 1);
    QCOMPARE(namen(m_eine, 0, 2), u"AB|CD"_s);
}

void TestAufzeichnungsaenderung::aDayIsFilledIntoOthers()
{
    QVERIFY(setzeTagezahl(m_eine, 4));
    m_eine.tage[0].notiz = u"Montag"_s;
    m_eine.tage[0].imMittel = false;
    m_eine.tage[2].mahlzeiten[0].zeilen << zeile(u"X"_s, 1);
    QVERIFY(fuelle(m_eine, 0, {2, 3, 0}));
    QCOMPARE(namen(m_eine, 2, 0), QString());
    QCOMPARE(namen(m_eine, 2, 2), u"AB|CD"_s);
    QCOMPARE(namen(m_eine, 3, 2), u"AB|CD"_s);
    QCOMPARE(namen(m_eine, 1, 2), QString());
    QCOMPARE(namen(m_eine, 0, 2), u"AB|CD"_s);
    QCOMPARE(m_eine.tage[3].notiz, u"Montag"_s);
    QVERIFY(m_eine.tage[3].imMittel); // whether it counts is a matter of each day
}

void TestAufzeichnungsaenderung::aDayIsEmptied()
{
    m_eine.tage[0].notiz = u"Montag"_s;
    m_eine.tage[0].mahlzeiten[1].notiz = u"im Gehen"_s;
    QVERIFY(leere(m_eine, 0));
    QCOMPARE(m_eine.tage[0].mahlzeiten.size(), 6);
    QCOMPARE(namen(m_eine, 0, 2), QString());
    QVERIFY(m_eine.tage[0].notiz.isEmpty());
    QVERIFY(m_eine.tage[0].mahlzeiten[1].notiz.isEmpty());
}

void TestAufzeichnungsaenderung::whatIsNotThereChangesNothing_data()
{
    QTest::addColumn<Tat>("tat");
    const auto zeileX = zeile(u"X"_s, 1);
    const std::pair<const char *, Tat> taten[] = {
        {"a row on no day",
         [=](auto &a) {
             return fuegeEin(a, {2, 0, 0}, {zeileX});
         }},
        {"a row before all days",
         [=](auto &a) {
             return fuegeEin(a, {-1, 0, 0}, {zeileX});
         }},
        {"a row in no meal",
         [=](auto &a) {
             return fuegeEin(a, {0, 6, 0}, {zeileX});
         }},
        {"a row behind the end",
         [=](auto &a) {
             return fuegeEin(a, {0, 2, 5}, {zeileX});
         }},
        {"a row before the first place",
         [=](auto &a) {
             return fuegeEin(a, {0, 2, -1}, {zeileX});
         }},
        {"no such row is replaced",
         [=](auto &a) {
             return ersetze(a, {0, 2, 4}, zeileX);
         }},
        {"no such alternative",
         [](auto &a) {
             return setzeOder(a, {0, 2, 4}, true);
         }},
        {"a meal without a name",
         [](auto &a) {
             return fuegeMahlzeitEin(a, 0, u"  "_s);
         }},
        {"a meal behind the end",
         [](auto &a) {
             return fuegeMahlzeitEin(a, 7, u"M"_s);
         }},
        {"no such meal goes",
         [](auto &a) {
             return nimmMahlzeitHeraus(a, 6);
         }},
        {"no such meal moves",
         [](auto &a) {
             return verschiebeMahlzeit(a, 6, 0);
         }},
        {"a meal moves nowhere",
         [](auto &a) {
             return verschiebeMahlzeit(a, 0, 6);
         }},
        {"a meal stays",
         [](auto &a) {
             return verschiebeMahlzeit(a, 1, 1);
         }},
        {"a meal loses its name",
         [](auto &a) {
             return benenneMahlzeit(a, 0, u" "_s);
         }},
        {"no such meal is named",
         [](auto &a) {
             return benenneMahlzeit(a, -1, u"M"_s);
         }},
        {"no days",
         [](auto &a) {
             return setzeTagezahl(a, 0);
         }},
        {"too many days",
         [](auto &a) {
             return setzeTagezahl(a, 15);
         }},
        {"filled from no day",
         [](auto &a) {
             return fuelle(a, 2, {0});
         }},
        {"filled into no day",
         [](auto &a) {
             return fuelle(a, 0, {});
         }},
        {"filled into one that is not there",
         [](auto &a) {
             return fuelle(a, 0, {1, 2});
         }},
        {"no such day is emptied",
         [](auto &a) {
             return leere(a, 2);
         }},
    };
    for (const auto &[name, tat] : taten) {
        QTest::newRow(name) << tat;
    }
}

void TestAufzeichnungsaenderung::whatIsNotThereChangesNothing()
{
    QFETCH(Tat, tat);
    const Aufzeichnung vorher = m_eine;
    QVERIFY(!tat(m_eine));
    QVERIFY(m_eine == vorher);
}

QTEST_GUILESS_MAIN(TestAufzeichnungsaenderung)
#include "TestAufzeichnungsaenderung.moc"
