// Texts are broken into pages.

#include "Drucksatztest.h"

#include <QPainter>

using namespace Qt::StringLiterals;

class TestDrucksatz : public Drucksatztest
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsOnePage();
    void aLongTextGoesOnOnTheNextPage();
    void noLineStandsAloneOnAPage_data();
    void noLineStandsAloneOnAPage();
    void aHeadingStaysWithWhatItHeads_data();
    void aHeadingStaysWithWhatItHeads();
    void theEndOfALongIntroductionStaysWithWhatFollows_data();
    void theEndOfALongIntroductionStaysWithWhatFollows();
    void aHeadingThatIsLongerThanAPageGoesOn();
    void atTheTopOfAPageNothingIsKeptApart();
    void aNameStandsBesideWhatThereIsToSay();
    void aPictureStaysWhole();
    void pagesButTheFirstSayWhatTheyAreOf();
};

void TestDrucksatz::nothingIsOnePage()
{
    const Drucksatz satz(seite, u"Kopf"_s);
    drucke(satz);
    QCOMPARE(satz.seiten(), 1);
    QVERIFY(zeilen(1).isEmpty());
}

void TestDrucksatz::aLongTextGoesOnOnTheNextPage()
{
    Drucksatz satz(seite, u"Kopf"_s);
    satz.absatz(probeworte(500));
    drucke(satz);
    QVERIFY(satz.seiten() >= 4);
    QStringList alle;
    for (int nummer = 1; nummer <= satz.seiten(); ++nummer) {
        alle += zeilen(nummer).mid(nummer == 1 ? 0 : 1);
    }
    QCOMPARE(alle.join(u' '), probeworte(500));
    // Pages are full before the next is begun: a line is less than 15 points high.
    QVERIFY(m_probe->zeilen(1).size() >= static_cast<qsizetype>(seite.height() / 15));
}

void TestDrucksatz::noLineStandsAloneOnAPage_data()
{
    QTest::addColumn<double>("frei");
    // Five lines and more, for each height that can be left of a page.
    for (int frei = 1; frei < 80; frei += 3) {
        QTest::addRow("%d points are left", frei) << static_cast<double>(frei);
    }
}

void TestDrucksatz::noLineStandsAloneOnAPage()
{
    QFETCH(const double, frei);
    Drucksatz satz = mitRest(frei);
    satz.absatz(u"eins\nzwei\ndrei\nvier\nfünf"_s);
    drucke(satz);
    const qsizetype vorn = zeilen(1).size();
    const qsizetype hinten = satz.seiten() > 1 ? zeilen(2).size() - 1 : 0;
    QCOMPARE(vorn + hinten, 5);
    QVERIFY2(vorn != 1 && hinten != 1, qPrintable(QString::number(vorn)));
}

void TestDrucksatz::aHeadingStaysWithWhatItHeads_data()
{
    reste();
}

/// Above a table it stays with the table's head and first row.
void TestDrucksatz::aHeadingStaysWithWhatItHeads()
{
    QFETCH(const double, frei);
    Drucksatz satz = mitRest(frei);
    satz.ueberschrift(u"Kapitel"_s, {13, true});
    satz.ueberschrift(u"Abschnitt"_s, {10, true});
    satz.vorspann(u"Vorspann"_s);
    satz.tabelle(reihen(3));
    drucke(satz);
    const int dort = wort(u"Kapitel"_s).seite;
    QVERIFY(dort > 0);
    QCOMPARE(wort(u"Abschnitt"_s).seite, dort);
    QCOMPARE(wort(u"Vorspann"_s).seite, dort);
    QCOMPARE(wort(u"Zahl"_s).seite, dort);
    QCOMPARE(wort(u"Zeile1"_s).seite, dort);
    const qsizetype koepfe =
        zeilen(1).count(u"Name Zahl"_s) + (satz.seiten() > 1 ? zeilen(2).count(u"Name Zahl"_s) : 0);
    QCOMPARE(koepfe, wort(u"Zeile3"_s).seite - dort + 1); // none stands without rows
}

void TestDrucksatz::theEndOfALongIntroductionStaysWithWhatFollows_data()
{
    QTest::addColumn<int>("anzahl");
    for (int anzahl = 5; anzahl < 18; ++anzahl) { // a page holds sixteen
        QTest::addRow("%d lines", anzahl) << anzahl;
    }
}

/// It begins where there is room, and is not kept for the next page as a whole.
void TestDrucksatz::theEndOfALongIntroductionStaysWithWhatFollows()
{
    QFETCH(const int, anzahl);
    QStringList text;
    for (int i = 1; i <= anzahl; ++i) {
        text << u"Satz%1"_s.arg(i);
    }
    Drucksatz satz(seite, u"Kopf"_s);
    satz.vorspann(text.join(u'\n'));
    satz.tabelle(reihen(1));
    drucke(satz);
    QCOMPARE(wort(text.first()).seite, 1);
    QVERIFY(wort(text.last()).seite > 0);
    QCOMPARE(wort(u"Zahl"_s).seite, wort(text.last()).seite);
    QCOMPARE(wort(u"Zeile1"_s).seite, wort(text.last()).seite);
}

void TestDrucksatz::aHeadingThatIsLongerThanAPageGoesOn()
{
    Drucksatz satz(seite, u"Kopf"_s);
    satz.absatz(u"davor"_s);
    satz.ueberschrift(probeworte(300), {13, true});
    satz.absatz(u"danach"_s);
    drucke(satz);
    QStringList alle;
    for (int nummer = 1; nummer <= satz.seiten(); ++nummer) {
        alle += zeilen(nummer).mid(nummer == 1 ? 0 : 1);
    }
    QCOMPARE(alle.join(u' '), u"davor "_s + probeworte(300) + u" danach"_s);
}

void TestDrucksatz::atTheTopOfAPageNothingIsKeptApart()
{
    Drucksatz dicht(seite, u"Kopf"_s);
    dicht.absatz(u"oben"_s);
    drucke(dicht);
    const double erste = wort(u"oben"_s).grundlinie;
    Drucksatz satz(seite, u"Kopf"_s);
    satz.abstand(50);
    satz.absatz(u"oben"_s);
    drucke(satz);
    QCOMPARE(wort(u"oben"_s).grundlinie, erste);
    Drucksatz unten(seite, u"Kopf"_s);
    unten.absatz(u"davor"_s);
    unten.abstand(50);
    unten.absatz(u"oben"_s);
    drucke(unten);
    QVERIFY(qAbs(wort(u"oben"_s).grundlinie - wort(u"davor"_s).grundlinie - 50) < 15);
}

void TestDrucksatz::aNameStandsBesideWhatThereIsToSay()
{
    Drucksatz satz(seite, QString());
    satz.angabe(u"Nummer"_s, u"17"_s);
    satz.angabe(u"Notizen"_s, probeworte(40));
    drucke(satz);
    QCOMPARE(zeilen(1).value(0), u"Nummer 17"_s);
    QVERIFY(zeilen(1).value(1).startsWith(u"Notizen wort0001"_s));
    QCOMPARE(zeilen(1).join(u' '), u"Nummer 17 Notizen "_s + probeworte(40));
    QVERIFY(qAbs(wort(u"17"_s).x - wort(u"wort0001"_s).x) < 1);
    QVERIFY(wort(u"wort0040"_s).x >= wort(u"wort0001"_s).x - 0.5); // not below the name
}

void TestDrucksatz::aPictureStaysWhole()
{
    QList<QPointF> orte;
    Drucksatz satz = mitRest(100);
    satz.bild({101, [&orte](QPainter &maler) {
                   orte << maler.transform().map(QPointF());
               }});
    satz.bild({40, [](QPainter &) {
               }});
    QCOMPARE(satz.seiten(), 2);
    QImage papier(500, 300, QImage::Format_RGB32);
    QPainter maler(&papier);
    satz.male(maler, ecke, 1);
    QVERIFY(orte.isEmpty());
    satz.male(maler, ecke, 2);
    QCOMPARE(orte.size(), 1);
    QVERIFY(orte[0].x() == ecke.x() && orte[0].y() > ecke.y());
    QVERIFY(maler.transform().isIdentity());
}

void TestDrucksatz::pagesButTheFirstSayWhatTheyAreOf()
{
    Drucksatz satz(seite, u"Anna\nMuster "_s + probeworte(100));
    satz.absatz(probeworte(300));
    drucke(satz);
    QCOMPARE(zeilen(1).value(0).section(u' ', 0, 0), u"wort0001"_s);
    for (int nummer = 2; nummer <= satz.seiten(); ++nummer) {
        QVERIFY(zeilen(nummer).value(0).startsWith(u"Anna Muster wort0001"_s));
        QVERIFY(zeilen(nummer).value(0).endsWith(u'…'));
    }
}

QTEST_MAIN(TestDrucksatz)
#include "TestDrucksatz.moc"
