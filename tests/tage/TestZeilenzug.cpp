// Rows that are moved about in a record: whatever is moved where, an alternative stays behind its
// row and nothing is lost.

#include "Aufzeichnungsprobe.h"
#include "Zeilenzug.h"

#include <QTest>

using namespace Qt::StringLiterals;
using Aufzeichnungsprobe::namen;
using Aufzeichnungsprobe::oder;
using Aufzeichnungsprobe::zeile;
using Zeilenzug::Stelle;

Q_DECLARE_METATYPE(QList<Stelle>)

class TestZeilenzug : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void rowsAreMoved_data();
    void rowsAreMoved();
    void whatIsNotThereIsNotMoved_data();
    void whatIsNotThereIsNotMoved();
    void copiesLeaveTheRowsWhereTheyAre();
    void rowsGoToAnotherDay();
    void rowsMoveUp_data();
    void rowsMoveUp();
    void rowsMoveDown_data();
    void rowsMoveDown();
    void alternativesMoveAmongThemselves();
    void belowTheLastMealThereIsNothing();
    void rowsAreTakenOut_data();
    void rowsAreTakenOut();
    void rowsOfOneMealComeToThePlace();
    void aMealBringsItsNote_data();
    void aMealBringsItsNote();
    void rowsOfSeveralMealsComeToTheirs();
    void aDayTakesThePlaceOfADay();
    void aMealThatIsMissingIsMade();
    void whereNoMoreMealsFitTheLastTakesAll();
    void mealsOfOneNameStayApart();
    void nothingComesWhereNothingIs();

private:
    QString mahlzeiten() const
    {
        return namen(m_eine, 0, 0) + u' ' + namen(m_eine, 0, 1) + u' ' + namen(m_eine, 0, 2);
    }

    Aufzeichnung m_eine; ///< "AB|CD EF " and nothing on its second day
};

void TestZeilenzug::init()
{
    m_eine = neueAufzeichnung(Aufzeichnungsart::Protokoll, {}, 2);
    m_eine.tage[0].mahlzeiten[0].zeilen = {zeile(u"A"_s, 1), zeile(u"B"_s, 2),
                                           oder(zeile(u"C"_s, 3)), zeile(u"D"_s, 4)};
    m_eine.tage[0].mahlzeiten[1].zeilen = {zeile(u"E"_s, 5), zeile(u"F"_s, 6)};
}

void TestZeilenzug::rowsAreMoved_data()
{
    QTest::addColumn<QList<Stelle>>("zeilen");
    QTest::addColumn<int>("mahlzeit");
    QTest::addColumn<int>("platz");
    QTest::addColumn<QString>("danach");
    QTest::addColumn<int>("erste");
    QTest::addColumn<int>("anzahl");
    using Liste = QList<Stelle>;
    QTest::newRow("to another meal") << Liste{{0, 0, 0}} << 1 << 1 << u"B|CD EAF "_s << 1 << 1;
    QTest::newRow("to an empty one") << Liste{{0, 0, 3}} << 2 << 0 << u"AB|C EF D"_s << 0 << 1;
    QTest::newRow("down in its meal") << Liste{{0, 0, 0}} << 0 << 4 << u"B|CDA EF "_s << 3 << 1;
    QTest::newRow("up in its meal") << Liste{{0, 0, 3}} << 0 << 0 << u"DAB|C EF "_s << 0 << 1;
    QTest::newRow("its alternatives go along")
        << Liste{{0, 0, 1}} << 1 << 2 << u"AD EFB|C "_s << 2 << 2;
    QTest::newRow("nothing comes between")
        << Liste{{0, 0, 0}} << 0 << 2 << u"B|CAD EF "_s << 2 << 1;
    QTest::newRow("an alternative to another row")
        << Liste{{0, 0, 2}} << 1 << 1 << u"ABD E|CF "_s << 1 << 1;
    QTest::newRow("an alternative to the front counts")
        << Liste{{0, 0, 2}} << 1 << 0 << u"ABD CEF "_s << 0 << 1;
    QTest::newRow("of two meals") << Liste{{0, 1, 1}, {0, 0, 0}} << 1 << 0 << u"B|CD AFE "_s << 0
                                  << 2;
    QTest::newRow("named twice") << Liste{{0, 0, 0}, {0, 0, 0}} << 1 << 0 << u"B|CD AEF "_s << 0
                                 << 1;
    QTest::newRow("with one that is not there")
        << Liste{{0, 0, 9}, {0, 0, 0}} << 1 << 0 << u"B|CD AEF "_s << 0 << 1;
}

void TestZeilenzug::rowsAreMoved()
{
    QFETCH(const QList<Stelle>, zeilen);
    QFETCH(const int, mahlzeit);
    QFETCH(const int, platz);
    QFETCH(const int, erste);
    QFETCH(const int, anzahl);
    const QList<Stelle> angekommen = Zeilenzug::ziehe(m_eine, zeilen, {0, mahlzeit, platz}, false);
    QTEST(mahlzeiten(), "danach");
    QCOMPARE(angekommen.size(), anzahl);
    for (int i = 0; i < anzahl; ++i) {
        QVERIFY(angekommen[i] == (Stelle{0, mahlzeit, erste + i}));
    }
}

void TestZeilenzug::whatIsNotThereIsNotMoved_data()
{
    QTest::addColumn<QList<Stelle>>("zeilen");
    QTest::addColumn<int>("tag");
    QTest::addColumn<int>("mahlzeit");
    QTest::addColumn<int>("platz");
    using Liste = QList<Stelle>;
    QTest::newRow("no row") << Liste{} << 0 << 0 << 0;
    QTest::newRow("no such row") << Liste{{0, 0, 4}} << 0 << 0 << 0;
    QTest::newRow("below zero") << Liste{{0, 0, -1}} << 0 << 0 << 0;
    QTest::newRow("of no such meal") << Liste{{0, 6, 0}} << 0 << 0 << 0;
    QTest::newRow("of no such day") << Liste{{2, 0, 0}} << 0 << 0 << 0;
    QTest::newRow("to no such day") << Liste{{0, 0, 0}} << 2 << 0 << 0;
    QTest::newRow("to a day below zero") << Liste{{0, 0, 0}} << -1 << 0 << 0;
    QTest::newRow("to no such meal") << Liste{{0, 0, 0}} << 0 << 6 << 0;
    QTest::newRow("beyond the end") << Liste{{0, 0, 0}} << 0 << 0 << 5;
    QTest::newRow("before the beginning") << Liste{{0, 0, 0}} << 0 << 0 << -1;
    QTest::newRow("where it stands") << Liste{{0, 0, 0}} << 0 << 0 << 0;
    QTest::newRow("behind itself") << Liste{{0, 0, 0}} << 0 << 0 << 1;
    QTest::newRow("between itself and its alternative") << Liste{{0, 0, 1}} << 0 << 0 << 2;
}

void TestZeilenzug::whatIsNotThereIsNotMoved()
{
    QFETCH(const QList<Stelle>, zeilen);
    QFETCH(const int, tag);
    QFETCH(const int, mahlzeit);
    QFETCH(const int, platz);
    const Aufzeichnung vorher = m_eine;
    QVERIFY(Zeilenzug::ziehe(m_eine, zeilen, {tag, mahlzeit, platz}, false).isEmpty());
    QVERIFY(m_eine == vorher);
}

void TestZeilenzug::copiesLeaveTheRowsWhereTheyAre()
{
    const QList<Stelle> angekommen = Zeilenzug::ziehe(m_eine, {{0, 0, 1}}, {0, 0, 4}, true);
    QCOMPARE(mahlzeiten(), u"AB|CDB|C EF "_s);
    QCOMPARE(angekommen, (QList<Stelle>{{0, 0, 4}, {0, 0, 5}}));
}

void TestZeilenzug::rowsGoToAnotherDay()
{
    const QList<Stelle> angekommen =
        Zeilenzug::ziehe(m_eine, {{0, 0, 0}, {0, 1, 1}}, {1, 0, 0}, false);
    QCOMPARE(mahlzeiten(), u"B|CD E "_s);
    QCOMPARE(namen(m_eine, 1, 0), u"AF"_s);
    QCOMPARE(angekommen, (QList<Stelle>{{1, 0, 0}, {1, 0, 1}}));
}

void TestZeilenzug::rowsMoveUp_data()
{
    QTest::addColumn<QList<Stelle>>("zeilen");
    QTest::addColumn<QString>("danach");
    using Liste = QList<Stelle>;
    QTest::newRow("the very first") << Liste{{0, 0, 0}} << u"AB|CD EF "_s;
    QTest::newRow("with its alternative") << Liste{{0, 0, 1}} << u"B|CAD EF "_s;
    QTest::newRow("over an alternative") << Liste{{0, 0, 3}} << u"ADB|C EF "_s;
    QTest::newRow("an alternative keeps to its row") << Liste{{0, 0, 2}} << u"AB|CD EF "_s;
    QTest::newRow("into the meal above") << Liste{{0, 1, 0}} << u"AB|CDE F "_s;
    QTest::newRow("two together") << Liste{{0, 1, 0}, {0, 1, 1}} << u"AB|CDEF  "_s;
    QTest::newRow("two apart come together") << Liste{{0, 0, 3}, {0, 1, 1}} << u"ADFB|C E "_s;
    QTest::newRow("none") << Liste{} << u"AB|CD EF "_s;
}

void TestZeilenzug::rowsMoveUp()
{
    QFETCH(const QList<Stelle>, zeilen);
    const QString vorher = mahlzeiten();
    const bool etwas = !Zeilenzug::rueckeHinauf(m_eine, zeilen).isEmpty();
    QTEST(mahlzeiten(), "danach");
    QCOMPARE(etwas, mahlzeiten() != vorher);
}

void TestZeilenzug::rowsMoveDown_data()
{
    QTest::addColumn<QList<Stelle>>("zeilen");
    QTest::addColumn<QString>("danach");
    using Liste = QList<Stelle>;
    QTest::newRow("over a row with alternatives") << Liste{{0, 0, 0}} << u"B|CAD EF "_s;
    QTest::newRow("with its alternative") << Liste{{0, 0, 1}} << u"ADB|C EF "_s;
    QTest::newRow("an alternative keeps to its row") << Liste{{0, 0, 2}} << u"AB|CD EF "_s;
    QTest::newRow("into the meal below") << Liste{{0, 0, 3}} << u"AB|C DEF "_s;
    QTest::newRow("into an empty one") << Liste{{0, 1, 1}} << u"AB|CD E F"_s;
    QTest::newRow("two together") << Liste{{0, 0, 0}, {0, 0, 1}} << u"DAB|C EF "_s;
    QTest::newRow("none") << Liste{} << u"AB|CD EF "_s;
}

void TestZeilenzug::rowsMoveDown()
{
    QFETCH(const QList<Stelle>, zeilen);
    const QString vorher = mahlzeiten();
    const bool etwas = !Zeilenzug::rueckeHinunter(m_eine, zeilen).isEmpty();
    QTEST(mahlzeiten(), "danach");
    QCOMPARE(etwas, mahlzeiten() != vorher);
}

/// Among themselves, alternatives can be put in another order.
void TestZeilenzug::alternativesMoveAmongThemselves()
{
    m_eine.tage[0].mahlzeiten[1].zeilen = {zeile(u"E"_s, 5), oder(zeile(u"F"_s, 6)),
                                           oder(zeile(u"G"_s, 7)), zeile(u"H"_s, 8)};
    QCOMPARE(Zeilenzug::rueckeHinauf(m_eine, {{0, 1, 2}}), (QList<Stelle>{{0, 1, 1}}));
    QCOMPARE(namen(m_eine, 0, 1), u"E|G|FH"_s);
    QVERIFY(Zeilenzug::rueckeHinauf(m_eine, {{0, 1, 1}}).isEmpty());
    QCOMPARE(Zeilenzug::rueckeHinunter(m_eine, {{0, 1, 1}}), (QList<Stelle>{{0, 1, 2}}));
    QCOMPARE(namen(m_eine, 0, 1), u"E|F|GH"_s);
    QVERIFY(Zeilenzug::rueckeHinunter(m_eine, {{0, 1, 2}}).isEmpty());
    QCOMPARE(Zeilenzug::ziehe(m_eine, {{0, 1, 2}}, {0, 1, 1}, false), (QList<Stelle>{{0, 1, 1}}));
    QCOMPARE(namen(m_eine, 0, 1), u"E|G|FH"_s);
    QVERIFY(Zeilenzug::nimmHeraus(m_eine, {{0, 1, 1}}));
    QCOMPARE(namen(m_eine, 0, 1), u"E|FH"_s);
}

void TestZeilenzug::belowTheLastMealThereIsNothing()
{
    m_eine.tage[0].mahlzeiten[5].zeilen = {zeile(u"Z"_s, 5), oder(zeile(u"Y"_s, 5))};
    QVERIFY(Zeilenzug::rueckeHinunter(m_eine, {{0, 5, 0}}).isEmpty());
    QVERIFY(Zeilenzug::rueckeHinunter(m_eine, {{0, 5, 1}}).isEmpty());
    QCOMPARE(namen(m_eine, 0, 5), u"Z|Y"_s);
}

void TestZeilenzug::rowsAreTakenOut_data()
{
    QTest::addColumn<QList<Stelle>>("zeilen");
    QTest::addColumn<QString>("danach");
    using Liste = QList<Stelle>;
    QTest::newRow("a row") << Liste{{0, 0, 0}} << u"B|CD EF "_s;
    QTest::newRow("what is left of a choice counts") << Liste{{0, 0, 1}} << u"ACD EF "_s;
    QTest::newRow("an alternative") << Liste{{0, 0, 2}} << u"ABD EF "_s;
    QTest::newRow("a choice as a whole") << Liste{{0, 0, 2}, {0, 0, 1}} << u"AD EF "_s;
    QTest::newRow("of two meals") << Liste{{0, 1, 1}, {0, 0, 0}, {0, 1, 1}} << u"B|CD E "_s;
    QTest::newRow("one that is not there") << Liste{{0, 2, 0}} << u"AB|CD EF "_s;
}

void TestZeilenzug::rowsAreTakenOut()
{
    QFETCH(const QList<Stelle>, zeilen);
    const QString vorher = mahlzeiten();
    const bool etwas = Zeilenzug::nimmHeraus(m_eine, zeilen);
    QTEST(mahlzeiten(), "danach");
    QCOMPARE(etwas, mahlzeiten() != vorher);
}

void TestZeilenzug::rowsOfOneMealComeToThePlace()
{
    const Zeilenablage ablage = ablageVon(m_eine, {{0, 1, 0}, {0, 1, 1}});
    // Behind B there is its alternative, so they come behind that.
    const QList<Stelle> angekommen = Zeilenzug::fuegeEin(m_eine, ablage, {0, 0, 2});
    QCOMPARE(mahlzeiten(), u"AB|CEFD EF "_s);
    QCOMPARE(angekommen, (QList<Stelle>{{0, 0, 3}, {0, 0, 4}}));
}

void TestZeilenzug::aMealBringsItsNote_data()
{
    QTest::addColumn<QString>("dort");
    QTest::addColumn<QString>("kommt");
    QTest::addColumn<QString>("danach");
    QTest::newRow("where none is") << u""_s << u"im Büro"_s << u"im Büro"_s;
    QTest::newRow("to another") << u"eilig"_s << u"im Büro"_s << u"eilig; im Büro"_s;
    QTest::newRow("to the same") << u"im Büro"_s << u"im Büro"_s << u"im Büro"_s;
    QTest::newRow("none") << u"eilig"_s << u""_s << u"eilig"_s;
}

void TestZeilenzug::aMealBringsItsNote()
{
    QFETCH(const QString, dort);
    QFETCH(const QString, kommt);
    m_eine.tage[0].mahlzeiten[1].notiz = kommt;
    m_eine.tage[1].mahlzeiten[3].notiz = dort;
    Zeilenzug::fuegeEin(m_eine, ablageDerMahlzeit(m_eine, 0, 1), {1, 3, 0});
    QCOMPARE(namen(m_eine, 1, 3), u"EF"_s);
    QTEST(m_eine.tage[1].mahlzeiten[3].notiz, "danach");
}

void TestZeilenzug::rowsOfSeveralMealsComeToTheirs()
{
    m_eine.tage[1].mahlzeiten[1].zeilen = {zeile(u"X"_s, 1)};
    const Zeilenablage ablage = ablageVon(m_eine, {{0, 0, 3}, {0, 1, 0}});
    const QList<Stelle> angekommen = Zeilenzug::fuegeEin(m_eine, ablage, {1, 5, 0});
    QCOMPARE(namen(m_eine, 1, 0), u"D"_s);
    QCOMPARE(namen(m_eine, 1, 1), u"XE"_s);
    QCOMPARE(namen(m_eine, 1, 5), QString());
    QCOMPARE(angekommen, (QList<Stelle>{{1, 0, 0}, {1, 1, 1}}));
}

void TestZeilenzug::aDayTakesThePlaceOfADay()
{
    m_eine.tage[0].notiz = u"Feiertag"_s;
    m_eine.tage[0].mahlzeiten[1].notiz = u"spät"_s;
    m_eine.tage[1].mahlzeiten[4].zeilen = {zeile(u"X"_s, 1)};
    m_eine.tage[1].notiz = u"alt"_s;
    m_eine.tage[1].imMittel = false;
    const QList<Stelle> angekommen =
        Zeilenzug::fuegeEin(m_eine, ablageDesTages(m_eine, 0), {1, 3, 0});
    QCOMPARE(angekommen.size(), 6);
    QVERIFY(m_eine.tage[1].mahlzeiten == m_eine.tage[0].mahlzeiten);
    QCOMPARE(m_eine.tage[1].notiz, u"Feiertag"_s);
    QVERIFY(!m_eine.tage[1].imMittel); // that is said of the day, and not of what is eaten
}

void TestZeilenzug::aMealThatIsMissingIsMade()
{
    Aufzeichnung andere = neueAufzeichnung(Aufzeichnungsart::Wochenplan, {}, 2);
    andere.mahlzeiten = {u"Brunch"_s, u"frühstück"_s};
    for (Tag &tag : andere.tage) {
        tag.mahlzeiten.resize(2);
    }
    const QList<Stelle> angekommen =
        Zeilenzug::fuegeEin(andere, ablageDesTages(m_eine, 0), {1, 0, 0});
    // Only "Frühstück" and "Vormittag" hold something; the latter was not there.
    QCOMPARE(andere.mahlzeiten, (QStringList{u"Brunch"_s, u"frühstück"_s, u"Vormittag"_s}));
    QCOMPARE(namen(andere, 1, 1), u"AB|CD"_s);
    QCOMPARE(namen(andere, 1, 2), u"EF"_s);
    QCOMPARE(andere.tage[0].mahlzeiten.size(), 3);
    QCOMPARE(angekommen.constLast(), (Stelle{1, 2, 1}));
}

void TestZeilenzug::whereNoMoreMealsFitTheLastTakesAll()
{
    Aufzeichnung volle = neueAufzeichnung(Aufzeichnungsart::Protokoll, {}, 1);
    volle.mahlzeiten.clear();
    for (int i = 0; i < meisteMahlzeiten; ++i) {
        volle.mahlzeiten << QString::number(i);
    }
    volle.tage[0].mahlzeiten.clear();
    volle.tage[0].mahlzeiten.resize(meisteMahlzeiten);
    const QList<Stelle> angekommen =
        Zeilenzug::fuegeEin(volle, ablageDesTages(m_eine, 0), {0, 0, 0});
    QCOMPARE(volle.mahlzeiten.size(), meisteMahlzeiten);
    QCOMPARE(namen(volle, 0, meisteMahlzeiten - 1), u"AB|CDEF"_s);
    QCOMPARE(angekommen.size(), 6);
}

void TestZeilenzug::mealsOfOneNameStayApart()
{
    m_eine.mahlzeiten[1] = m_eine.mahlzeiten[0];
    Zeilenzug::fuegeEin(m_eine, ablageDesTages(m_eine, 0), {1, 0, 0});
    QCOMPARE(namen(m_eine, 1, 0), u"AB|CD"_s);
    QCOMPARE(namen(m_eine, 1, 1), u"EF"_s);
}

void TestZeilenzug::nothingComesWhereNothingIs()
{
    const Aufzeichnung vorher = m_eine;
    const Zeilenablage ablage = ablageVon(m_eine, {{0, 1, 0}});
    for (const Stelle &stelle :
         {Stelle{2, 0, 0}, Stelle{0, 6, 0}, Stelle{0, 0, 5}, Stelle{0, 0, -1}, Stelle{-1, 0, 0}}) {
        QVERIFY(Zeilenzug::fuegeEin(m_eine, ablage, stelle).isEmpty());
    }
    QVERIFY(Zeilenzug::fuegeEin(m_eine, {}, {0, 0, 0}).isEmpty());
    QVERIFY(m_eine == vorher);
}

QTEST_APPLESS_MAIN(TestZeilenzug)
#include "TestZeilenzug.moc"
