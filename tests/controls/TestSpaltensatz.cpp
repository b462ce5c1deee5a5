// Blocks are set into columns, and those into pages.

#include "Spaltensatz.h"

#include "Druckprobe.h"

#include <QPainter>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

class TestSpaltensatz : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsOnePage();
    void columnsShareTheWidth();
    void blocksFillOneColumnAfterTheOther();
    void wholeBlocksAreNotDivided();
    void aBlockThatIsTooLongGoesOnUnderItsName();
    void aPartIsNotDividedUnlessItIsLong();
    void aNameDoesNotStandAlone();
    void whatIsAboveMovesTheColumnsDown();
    void whatIsAboveMayTakePages();
    void columnsThatWouldBeTooShortBeginOnTheNextPage();
    void furtherPagesHaveTheirHead();
    void betweenBlocksThereIsRoomButNotAtTheTop();
    void aStripHigherThanAPageIsStillThere();

private:
    void drucke(const Spaltensatz &satz);
    Druckwort wort(const QString &text) const { return finde(m_worte, text); }
    /// Page, column and how far down a word stands: "1/2/30".
    QString ort(const QString &text) const;

    QList<Druckwort> m_worte;
};

namespace {

constexpr QPointF ecke(40, 40);
constexpr QSizeF seite(400, 200);
constexpr double zeilenhoehe = 20;

/// A line of 20 points.
Druckstreifen zeile(const QString &text)
{
    Druckstreifen eine = gesetzt({{.text = text, .breite = 150}}).constFirst();
    eine.hoehe = zeilenhoehe;
    return eine;
}

/// A name, and so many parts of so many lines: "a1.1", "a1.2", "a2.1".
Spaltenblock block(const QString &name, int teile, int zeilen = 1)
{
    Spaltenblock neuer = {{zeile(name)}, {zeile(name + u"+"_s)}, {}};
    for (int teil = 1; teil <= teile; ++teil) {
        neuer.teile.emplaceBack();
        for (int i = 1; i <= zeilen; ++i) {
            neuer.teile.last() << zeile(u"%1%2.%3"_s.arg(name).arg(teil).arg(i));
        }
    }
    return neuer;
}

Spaltensatz zweiSpalten(double blockabstand = 0)
{
    return {{seite, 2, 20, blockabstand}, {zeile(u"Kopf"_s)}};
}

} // namespace

void TestSpaltensatz::drucke(const Spaltensatz &satz)
{
    Druckprobe probe(Druckprobe::papier(QPageSize::A4, QPageLayout::Portrait));
    probe.drucke({.titel = u"Probe"_s,
                  .seitenzahl = [&satz](const QPageLayout &) { return satz.seiten(); },
                  .male =
                      [&satz](QPainter &maler, const QPageLayout &, int nummer) {
                          satz.male(maler, ecke, nummer);
                      }});
    m_worte = probe.worte();
}

QString TestSpaltensatz::ort(const QString &text) const
{
    const Druckwort eines = wort(text);
    const int zeile = static_cast<int>((eines.grundlinie - ecke.y()) / zeilenhoehe) + 1;
    return u"%1/%2/%3"_s.arg(eines.seite).arg(eines.x < 240 ? 1 : 2).arg(zeile);
}

void TestSpaltensatz::nothingIsOnePage()
{
    Spaltensatz satz = zweiSpalten();
    satz.oben({});
    satz.setze({}, true);
    QCOMPARE(satz.seiten(), 1);
    drucke(satz);
    QVERIFY(m_worte.isEmpty());
}

/// Three columns and two gaps of 20 points in 400 points: 360 / 3 = 120.
void TestSpaltensatz::columnsShareTheWidth()
{
    QCOMPARE(Spaltensatz::spaltenbreite({.seite = seite, .spalten = 1}), 400.0);
    QCOMPARE(Spaltensatz::spaltenbreite({.seite = seite, .spalten = 3}), 120.0);
    QCOMPARE(zweiSpalten().spaltenbreite(), 190.0);
}

/// Ten lines make a column.
void TestSpaltensatz::blocksFillOneColumnAfterTheOther()
{
    Spaltensatz satz = zweiSpalten();
    satz.setze({block(u"a"_s, 5), block(u"b"_s, 7), block(u"c"_s, 1)}, false);
    QCOMPARE(satz.seiten(), 1);
    drucke(satz);
    QCOMPARE(ort(u"a"_s), u"1/1/1"_s);
    QCOMPARE(ort(u"b"_s), u"1/1/7"_s);
    QCOMPARE(ort(u"b3.1"_s), u"1/1/10"_s);
    QCOMPARE(ort(u"b+"_s), u"1/2/1"_s);
    QCOMPARE(ort(u"b4.1"_s), u"1/2/2"_s);
    QCOMPARE(ort(u"c"_s), u"1/2/6"_s);
    QVERIFY(qAbs(wort(u"c"_s).x - ecke.x() - 210) < 1);
}

void TestSpaltensatz::wholeBlocksAreNotDivided()
{
    Spaltensatz satz = zweiSpalten();
    satz.setze({block(u"a"_s, 5), block(u"b"_s, 7), block(u"c"_s, 1), block(u"d"_s, 1)}, true);
    QCOMPARE(satz.seiten(), 2);
    drucke(satz);
    QCOMPARE(ort(u"b"_s), u"1/2/1"_s);
    QCOMPARE(ort(u"c"_s), u"1/2/9"_s); // just fits
    QCOMPARE(ort(u"d"_s), u"2/1/2"_s);
    QVERIFY(wort(u"b+"_s).seite == 0);
}

void TestSpaltensatz::aBlockThatIsTooLongGoesOnUnderItsName()
{
    for (const bool ganze : {true, false}) {
        Spaltensatz satz = zweiSpalten();
        satz.setze({block(u"a"_s, 30)}, ganze);
        // 9 and 9 parts on the first page, 8 and 4 below the head of the second.
        QCOMPARE(satz.seiten(), 2);
        drucke(satz);
        QCOMPARE(ort(u"a9.1"_s), u"1/1/10"_s);
        QCOMPARE(ort(u"a10.1"_s), u"1/2/2"_s);
        QCOMPARE(ort(u"a19.1"_s), u"2/1/3"_s);
        QCOMPARE(ort(u"a26.1"_s), u"2/1/10"_s);
        QCOMPARE(ort(u"a30.1"_s), u"2/2/6"_s);
    }
}

/// A quarter of the page is 50 points.
void TestSpaltensatz::aPartIsNotDividedUnlessItIsLong()
{
    Spaltensatz satz = zweiSpalten();
    satz.setze({block(u"a"_s, 5, 2)}, false);
    drucke(satz);
    QCOMPARE(ort(u"a4.2"_s), u"1/1/9"_s);
    QCOMPARE(ort(u"a5.1"_s), u"1/2/2"_s);
    satz = zweiSpalten();
    satz.setze({block(u"a"_s, 4, 3)}, false);
    drucke(satz);
    QCOMPARE(ort(u"a3.3"_s), u"1/1/10"_s);
    QCOMPARE(ort(u"a4.1"_s), u"1/2/2"_s);
    satz = zweiSpalten();
    satz.setze({block(u"a"_s, 3, 4)}, false);
    drucke(satz);
    QCOMPARE(ort(u"a3.1"_s), u"1/1/10"_s);
    QCOMPARE(ort(u"a3.2"_s), u"1/2/2"_s);
}

void TestSpaltensatz::aNameDoesNotStandAlone()
{
    Spaltensatz satz = zweiSpalten();
    satz.setze({block(u"a"_s, 8), block(u"b"_s, 1)}, false);
    drucke(satz);
    QCOMPARE(ort(u"b"_s), u"1/2/1"_s);
    satz = zweiSpalten();
    satz.setze({block(u"a"_s, 7), block(u"b"_s, 1)}, false);
    drucke(satz);
    QCOMPARE(ort(u"b"_s), u"1/1/9"_s);
    QCOMPARE(ort(u"b1.1"_s), u"1/1/10"_s);
}

void TestSpaltensatz::whatIsAboveMovesTheColumnsDown()
{
    Spaltensatz satz = zweiSpalten();
    satz.oben({zeile(u"oben"_s), freiraum(20)});
    satz.setze({block(u"a"_s, 30)}, false);
    drucke(satz);
    QCOMPARE(ort(u"oben"_s), u"1/1/1"_s);
    QCOMPARE(ort(u"a"_s), u"1/1/3"_s);
    QCOMPARE(ort(u"a+"_s), u"1/2/3"_s);
    QCOMPARE(ort(u"a8.1"_s), u"1/2/4"_s);
    QCOMPARE(ort(u"a15.1"_s), u"2/1/3"_s);
}

void TestSpaltensatz::whatIsAboveMayTakePages()
{
    Spaltensatz satz = zweiSpalten();
    Druckstreifenfolge folge;
    for (int i = 1; i <= 12; ++i) {
        folge << zeile(u"oben%1"_s.arg(i));
    }
    satz.oben(folge);
    satz.setze({block(u"a"_s, 1)}, true);
    drucke(satz);
    QCOMPARE(ort(u"oben10"_s), u"1/1/10"_s);
    QCOMPARE(ort(u"oben11"_s), u"2/1/2"_s);
    QCOMPARE(ort(u"a"_s), u"2/1/4"_s);
}

void TestSpaltensatz::columnsThatWouldBeTooShortBeginOnTheNextPage()
{
    for (const auto &[hoehe, erwartet] :
         {std::pair(150.0, u"1/1/8"_s), {151.0, u"2/1/2"_s}}) { // 50 points are a quarter
        Spaltensatz satz = zweiSpalten();
        satz.oben({freiraum(hoehe)});
        satz.setze({block(u"a"_s, 1)}, true);
        drucke(satz);
        QCOMPARE(ort(u"a"_s), erwartet);
    }
}

void TestSpaltensatz::furtherPagesHaveTheirHead()
{
    Spaltensatz satz = zweiSpalten();
    satz.setze({block(u"a"_s, 50)}, false);
    drucke(satz);
    QCOMPARE(satz.seiten(), 3);
    const auto koepfe = std::count_if(m_worte.begin(), m_worte.end(), [](const Druckwort &wort) {
        return wort.text == u"Kopf"_s && wort.seite > 1 && wort.grundlinie < ecke.y() + 20;
    });
    QCOMPARE(koepfe, 2);
}

void TestSpaltensatz::betweenBlocksThereIsRoomButNotAtTheTop()
{
    Spaltensatz satz = zweiSpalten(20);
    satz.setze({block(u"a"_s, 3), block(u"b"_s, 4), block(u"c"_s, 1)}, true);
    drucke(satz);
    QCOMPARE(ort(u"a"_s), u"1/1/1"_s);
    QCOMPARE(ort(u"b"_s), u"1/1/6"_s); // after one free line, and the column is full
    QCOMPARE(ort(u"c"_s), u"1/2/1"_s);
}

void TestSpaltensatz::aStripHigherThanAPageIsStillThere()
{
    Spaltensatz satz = zweiSpalten();
    Spaltenblock hoher = block(u"a"_s, 2);
    hoher.teile[1][0].hoehe = 500;
    satz.setze({hoher, block(u"b"_s, 1)}, false);
    drucke(satz);
    QCOMPARE(ort(u"a2.1"_s), u"1/2/2"_s);
    QCOMPARE(ort(u"b"_s), u"2/1/2"_s);
}

QTEST_MAIN(TestSpaltensatz)
#include "TestSpaltensatz.moc"
