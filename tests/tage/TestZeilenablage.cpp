// Rows on the clipboard: they come back as they were, and a spreadsheet can read them.

#include "Aufzeichnungsprobe.h"
#include "Aufzeichnungstext.h"
#include "Zeilenablage.h"

#include <QLocale>
#include <QTest>

using namespace Qt::StringLiterals;
using Aufzeichnungsprobe::oder;
using Aufzeichnungsprobe::zeile;
using Zustand = Ablagelesung::Zustand;

class TestZeilenablage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void chosenRowsComeInTheirOrder();
    void rowsOfSeveralDaysComeTogether();
    void anAlternativeAloneCounts();
    void aMealComesWithItsNote();
    void aDayComesWhole();
    void whatIsNotThereIsNothing();
    void rowsAreCounted();
    void nothingIsLost_data();
    void nothingIsLost();
    void damagedTextIsTold_data();
    void damagedTextIsTold();
    void tooManyRowsAreRefused();
    void aSpreadsheetGetsColumns();
    void whereRowsCameFromIsReadBack();
    void otherTextIsNoOrigin_data();
    void otherTextIsNoOrigin();

private:
    Aufzeichnung m_eine;
};

void TestZeilenablage::init()
{
    m_eine = neueAufzeichnung(Aufzeichnungsart::Protokoll, {}, 2);
    m_eine.tage[0].mahlzeiten[0].zeilen = {zeile(u"Brot"_s, 50, 230), zeile(u"Butter"_s, 10, 741),
                                           oder(zeile(u"Quark"_s, 30, 70))};
    Mahlzeitzeile fremde;
    fremde.text = u"=Omas Kuchen"_s;
    fremde.angabe = u"ein Stück"_s;
    m_eine.tage[0].mahlzeiten[3].zeilen = {fremde};
    m_eine.tage[0].mahlzeiten[3].notiz = u"bei Oma"_s;
    m_eine.tage[0].notiz = u"Sonntag"_s;
    m_eine.tage[1].mahlzeiten[0].zeilen = {zeile(u"Ei"_s, 60, 155)};
}

void TestZeilenablage::chosenRowsComeInTheirOrder()
{
    const Zeilenablage ablage = ablageVon(m_eine, {{0, 3, 0}, {0, 0, 1}, {0, 0, 0}, {0, 0, 9}});
    QCOMPARE(ablage.mahlzeiten, (QStringList{u"Frühstück"_s, u"Nachmittag"_s}));
    QCOMPARE(ablage.inhalt.mahlzeiten[0].zeilen.size(), 2);
    QCOMPARE(ablage.inhalt.mahlzeiten[0].zeilen[0].schluessel, u"Brot"_s);
    QCOMPARE(ablage.inhalt.mahlzeiten[1].zeilen[0].text, u"=Omas Kuchen"_s);
    QCOMPARE(ablage.inhalt.mahlzeiten[1].notiz, QString()); // only a whole meal brings it
}

void TestZeilenablage::rowsOfSeveralDaysComeTogether()
{
    const Zeilenablage ablage = ablageVon(m_eine, {{1, 0, 0}, {0, 0, 0}});
    QCOMPARE(ablage.mahlzeiten, QStringList{u"Frühstück"_s});
    QCOMPARE(ablage.inhalt.mahlzeiten[0].zeilen[1].schluessel, u"Ei"_s);
}

void TestZeilenablage::anAlternativeAloneCounts()
{
    QVERIFY(!ablageVon(m_eine, {{0, 0, 2}}).inhalt.mahlzeiten[0].zeilen[0].oder);
    QVERIFY(ablageVon(m_eine, {{0, 0, 1}, {0, 0, 2}}).inhalt.mahlzeiten[0].zeilen[1].oder);
}

void TestZeilenablage::aMealComesWithItsNote()
{
    const Zeilenablage ablage = ablageDerMahlzeit(m_eine, 0, 3);
    QVERIFY(ablage.art == Zeilenablage::Art::Mahlzeit);
    QCOMPARE(ablage.mahlzeiten, QStringList{u"Nachmittag"_s});
    QVERIFY(ablage.inhalt.mahlzeiten == QList{m_eine.tage[0].mahlzeiten[3]});
}

void TestZeilenablage::aDayComesWhole()
{
    const Zeilenablage ablage = ablageDesTages(m_eine, 0);
    QVERIFY(ablage.art == Zeilenablage::Art::Tag);
    QCOMPARE(ablage.mahlzeiten, m_eine.mahlzeiten);
    QVERIFY(ablage.inhalt == m_eine.tage[0]);
}

void TestZeilenablage::whatIsNotThereIsNothing()
{
    QVERIFY(ablageVon(m_eine, {{0, 0, 3}, {2, 0, 0}, {0, -1, 0}}).mahlzeiten.isEmpty());
    QVERIFY(ablageDerMahlzeit(m_eine, 2, 0).mahlzeiten.isEmpty());
    QVERIFY(ablageDerMahlzeit(m_eine, 0, 6).mahlzeiten.isEmpty());
    QVERIFY(ablageDerMahlzeit(m_eine, 0, -1).mahlzeiten.isEmpty());
    QVERIFY(ablageDesTages(m_eine, 2).mahlzeiten.isEmpty());
    QVERIFY(ablageDesTages(m_eine, -1).mahlzeiten.isEmpty());
}

void TestZeilenablage::rowsAreCounted()
{
    const Zeilenablage ablage = ablageDesTages(m_eine, 0);
    QCOMPARE(zeilenzahl(ablage), 4);    // three for breakfast, one in the afternoon
    QCOMPARE(unverstandene(ablage), 1); // Grandma's cake
    QCOMPARE(zeilenzahl({}), 0);
}

void TestZeilenablage::nothingIsLost_data()
{
    QTest::addColumn<int>("art");
    QTest::newRow("rows") << 0;
    QTest::newRow("a meal") << 1;
    QTest::newRow("a day") << 2;
}

void TestZeilenablage::nothingIsLost()
{
    QFETCH(const int, art);
    m_eine.tage[0].mahlzeiten[0].zeilen[0].gramm = 33.333332F;
    const Zeilenablage ablage = art == 0   ? ablageVon(m_eine, {{0, 0, 0}, {0, 3, 0}})
                                : art == 1 ? ablageDerMahlzeit(m_eine, 0, 3)
                                           : ablageDesTages(m_eine, 0);
    const Ablagelesung gelesen = leseAblage(alsText(ablage));
    QVERIFY(gelesen.zustand == Zustand::Gelesen);
    QVERIFY(gelesen.ablage == ablage);
}

void TestZeilenablage::damagedTextIsTold_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("neuer");
    const QByteArray gut = alsText(ablageVon(
        [] {
            Aufzeichnung eine = neueAufzeichnung(Aufzeichnungsart::Protokoll, {}, 1);
            eine.tage[0].mahlzeiten[0].zeilen = {zeile(u"Brot"_s, 50)};
            return eine;
        }(),
        {{0, 0, 0}}));
    const auto mit = [&](const char *was, const char *womit) {
        QByteArray text = gut;
        const bool gefunden = text.contains(was);
        return gefunden ? text.replace(was, womit) : QByteArray("the test looks for nothing");
    };
    QTest::newRow("nothing") << QByteArray() << false;
    QTest::newRow("cut off") << gut.chopped(5) << false;
    QTest::newRow("something else") << QByteArray("{\"a\":1}") << false;
    QTest::newRow("no part") << mit("\"part\":\"rows\"", "\"x\":1") << false;
    QTest::newRow("another part") << mit("\"rows\",", "\"week\",") << false;
    QTest::newRow("no grams") << mit("\"grams\":50", "\"grams\":\"x\"") << false;
    QTest::newRow("two days")
        << alsText(neueAufzeichnung(Aufzeichnungsart::Protokoll, {}, 2)).chopped(1) +
               R"(,"part":"day"})"
        << false;
    QTest::newRow("newer") << mit("\"version\":1", "\"version\":2") << true;
}

void TestZeilenablage::damagedTextIsTold()
{
    QFETCH(const QByteArray, text);
    QFETCH(const bool, neuer);
    QVERIFY(!text.startsWith("the test"));
    const Ablagelesung gelesen = leseAblage(text);
    QVERIFY(gelesen.zustand == (neuer ? Zustand::Neuer : Zustand::Beschaedigt));
    QVERIFY(gelesen.ablage.mahlzeiten.isEmpty());
}

void TestZeilenablage::tooManyRowsAreRefused()
{
    QList<Mahlzeitzeile> &zeilen = m_eine.tage[1].mahlzeiten[0].zeilen;
    zeilen.fill(zeile(u"Brot"_s, 50), meisteAblagezeilen);
    QVERIFY(leseAblage(alsText(ablageDesTages(m_eine, 1))).zustand == Zustand::Gelesen);
    zeilen << zeile(u"Brot"_s, 50);
    const Ablagelesung gelesen = leseAblage(alsText(ablageDesTages(m_eine, 1)));
    QVERIFY(gelesen.zustand == Zustand::ZuViel);
    QVERIFY(gelesen.ablage.mahlzeiten.isEmpty());
}

void TestZeilenablage::aSpreadsheetGetsColumns()
{
    const Csv::Tabelle tabelle = alsTabelle(ablageDesTages(m_eine, 0));
    QCOMPARE(tabelle.spalten,
             (QStringList{u"Mahlzeit"_s, u"Lebensmittel"_s, u"Menge"_s, u"Gramm"_s, u"kcal"_s}));
    QCOMPARE(tabelle.zeilen.size(), 4);
    // 50 g of 230 kcal in 100 g are 115 kcal; an alternative adds nothing.
    QVERIFY(tabelle.zeilen[0] ==
            (QList<Csv::Zelle>{u"Frühstück"_s, u"Brot"_s, u"50"_s, 50.0F, 115.0F}));
    QVERIFY(tabelle.zeilen[2] ==
            (QList<Csv::Zelle>{u"Frühstück"_s, u"oder Quark"_s, u"30"_s, 30.0F, Csv::Zelle()}));
    QVERIFY(tabelle.zeilen[3] == (QList<Csv::Zelle>{u"Nachmittag"_s, u"=Omas Kuchen"_s,
                                                    u"ein Stück"_s, Csv::Zelle(), Csv::Zelle()}));
}

void TestZeilenablage::whereRowsCameFromIsReadBack()
{
    const Zeilenherkunft herkunft{u"abc"_s, {{1, 2, 3}, {0, 0, 0}}};
    const auto gelesen = leseHerkunft(alsText(herkunft));
    QVERIFY(gelesen);
    QVERIFY(*gelesen == herkunft);
}

void TestZeilenablage::otherTextIsNoOrigin_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("no object") << QByteArray("[1,2]");
    QTest::newRow("no record") << QByteArray(R"({"rows":[[0,0,0]]})");
    QTest::newRow("no rows") << QByteArray(R"({"record":"a","rows":[]})");
}

void TestZeilenablage::otherTextIsNoOrigin()
{
    QFETCH(const QByteArray, text);
    QVERIFY(!leseHerkunft(text));
}

QTEST_GUILESS_MAIN(TestZeilenablage)
#include "TestZeilenablage.moc"
