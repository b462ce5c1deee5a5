// Texts set side by side, line by line.

#include "Druckzeilen.h"

#include "Druckprobe.h"

#include <QGlyphRun>
#include <QPainter>
#include <QTest>
#include <QTextLayout>

using namespace Qt::StringLiterals;

class TestDruckzeilen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTextIsBrokenIntoLines();
    void itsOwnEndsOfLinesStay_data();
    void itsOwnEndsOfLinesStay();
    void aWordLongerThanALineGoesOn();
    void nothingIsMarkUp_data();
    void nothingIsMarkUp();
    void textsSideBySideShareTheirLines();
    void numbersStandAtTheRightEdge();
    void lettersHaveTheSizeThatWasAskedFor();
    void aWordOnPaperCanBeSearchedFor();
    void widthsAreThoseOnPaper();
    void aWidthIsThatOfTheWidestLineOrWord();
    void whatIsCutOffSaysSo();
    void twoStripsAreAsHighAsBoth();
    void furtherLinesMayHang();
    void whatIsSideBySideSharesItsPlaces();

private:
    static void drucke(Druckprobe &probe, const Druckstreifenfolge &folge);
    static QStringList zeilen(const QList<Druckzelle> &zellen);
};

namespace {

/// How many signs a font makes of a text.
qsizetype zeichen(const QString &text, const QFont &font)
{
    QTextLayout satz(text, font);
    satz.beginLayout();
    satz.createLine().setLineWidth(1e6);
    satz.endLayout();
    qsizetype anzahl = 0;
    for (const QGlyphRun &lauf : satz.glyphRuns()) {
        anzahl += lauf.glyphIndexes().size();
    }
    return anzahl;
}

Druckprobe a4()
{
    return Druckprobe(Druckprobe::papier(QPageSize::A4, QPageLayout::Portrait));
}

} // namespace

/// The strips one below the other, from 50 points below the paper's top and beside its edge.
void TestDruckzeilen::drucke(Druckprobe &probe, const Druckstreifenfolge &folge)
{
    probe.drucke({.titel = u"Probe"_s,
                  .seitenzahl = [](const QPageLayout &) { return 1; },
                  .male =
                      [folge](QPainter &maler, const QPageLayout &, int) {
                          maler.translate(50, 50);
                          for (const Druckstreifen &streifen : folge) {
                              maler.save();
                              streifen.male(maler);
                              maler.restore();
                              maler.translate(0, streifen.hoehe);
                          }
                      }});
}

QStringList TestDruckzeilen::zeilen(const QList<Druckzelle> &zellen)
{
    Druckprobe probe = a4();
    drucke(probe, gesetzt(zellen));
    return probe.zeilen(1);
}

void TestDruckzeilen::aTextIsBrokenIntoLines()
{
    const QString text = probeworte(60);
    Druckprobe probe = a4();
    const Druckstreifenfolge folge = gesetzt({{.text = text, .breite = 200}});
    drucke(probe, folge);
    QCOMPARE(probe.zeilen(1).join(u' '), text);
    QCOMPARE(probe.zeilen(1).size(), folge.size());
    QVERIFY(folge.size() > 10);
    for (const Druckwort &wort : probe.worte()) {
        QVERIFY2(wort.x >= 49.9 && wort.rechts <= 250.5, qPrintable(wort.text));
    }
}

void TestDruckzeilen::itsOwnEndsOfLinesStay_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("strips");
    QTest::newRow("as Linux has them") << u"eins\nzwei"_s << 2;
    QTest::newRow("as Windows has them") << u"eins\r\nzwei"_s << 2;
    QTest::newRow("as old ones had them") << u"eins\rzwei"_s << 2;
    QTest::newRow("an empty one") << u"eins\n\nzwei"_s << 3;
    QTest::newRow("of a paragraph") << u"eins\u2029zwei"_s << 2;
}

void TestDruckzeilen::itsOwnEndsOfLinesStay()
{
    QFETCH(const QString, text);
    QTEST(static_cast<int>(gesetzt({{.text = text, .breite = 200}}).size()), "strips");
    QCOMPARE(zeilen({{.text = text, .breite = 200}}), QStringList({u"eins"_s, u"zwei"_s}));
}

void TestDruckzeilen::aWordLongerThanALineGoesOn()
{
    const QString wort = QString(300, u'a') + QString(300, u'b');
    const QStringList gebrochen = zeilen({{.text = wort, .breite = 200}});
    QVERIFY(gebrochen.size() > 5);
    QCOMPARE(gebrochen.join(QString()), wort);
}

void TestDruckzeilen::nothingIsMarkUp_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("a tag") << u"<b>fett</b>"_s;
    QTest::newRow("an entity") << u"Brot &amp; Butter"_s;
    QTest::newRow("a caption's mark") << u"Brot && Butter & mehr"_s;
    QTest::newRow("a place for an argument") << u"%1 von 100"_s;
}

void TestDruckzeilen::nothingIsMarkUp()
{
    QFETCH(const QString, text);
    QCOMPARE(zeilen({{.text = text, .breite = 300}}), QStringList{text});
}

/// The second text has two lines, the first has one; what stands in larger letters beside it stands
/// on the same line.
void TestDruckzeilen::textsSideBySideShareTheirLines()
{
    Druckprobe probe = a4();
    drucke(probe, gesetzt({{.text = u"links"_s, .schrift = {18}, .breite = 90},
                           {.text = u"rechts\ndarunter"_s, .links = 100, .breite = 90}}));
    QCOMPARE(probe.zeilen(1), QStringList({u"links rechts"_s, u"darunter"_s}));
    QVERIFY(qAbs(finde(probe.worte(), u"links"_s).x - 50) < 2);
    QVERIFY(qAbs(finde(probe.worte(), u"rechts"_s).x - 150) < 1);
}

void TestDruckzeilen::numbersStandAtTheRightEdge()
{
    Druckprobe probe = a4();
    drucke(probe, gesetzt({{.text = u"1234,5"_s, .links = 20, .breite = 80, .amRechtenRand = true},
                           {.text = u"links"_s, .links = 110, .breite = 80}}));
    QVERIFY(qAbs(finde(probe.worte(), u"1234,5"_s).rechts - 150) < 0.6);
}

void TestDruckzeilen::lettersHaveTheSizeThatWasAskedFor()
{
    Druckprobe probe = a4();
    drucke(probe,
           gesetzt({{.text = u"klein"_s, .schrift = {8}, .breite = 90},
                    {.text = u"GROSS"_s, .schrift = {18, true}, .links = 100, .breite = 90}}));
    QVERIFY(qAbs(finde(probe.worte(), u"klein"_s).groesse - 8) < 0.2);
    QVERIFY(qAbs(finde(probe.worte(), u"GROSS"_s).groesse - 18) < 0.4);
    QCOMPARE(probe.schriften().filter(u"NimbusSans"_s).size(), 2);
    QCOMPARE(probe.schriften().filter(u"Bold"_s).size(), 1);
}

/// Letters that are joined to one sign are not found: whatever font stands for Helvetica, each is a
/// sign of its own.
void TestDruckzeilen::aWordOnPaperCanBeSearchedFor()
{
    const QString text = u"Farbstoffe fließen, Filet, Pfiff, Kaffee"_s;
    QCOMPARE(zeilen({{.text = text, .breite = 300}}), QStringList{text});
    QFont verbindende(u"DejaVu Sans"_s);
    QVERIFY(zeichen(text, verbindende) < text.size());
    QFont getrennte = druckfont({});
    getrennte.setFamilies(verbindende.families());
    QCOMPARE(zeichen(text, getrennte), text.size());
}

void TestDruckzeilen::widthsAreThoseOnPaper()
{
    const QString text = u"Weißbrot"_s;
    Druckprobe probe = a4();
    drucke(probe, gesetzt({{.text = text, .breite = 200}}));
    const Druckwort wort = finde(probe.worte(), text);
    QVERIFY(qAbs(wort.rechts - wort.x - textbreite(text, {})) < 0.5);
    QVERIFY(textbreite(text, {9, true}) > textbreite(text, {9}));
    QVERIFY(qAbs(textbreite(text, {18}) - 2 * textbreite(text, {9})) < 0.2);
}

void TestDruckzeilen::aWidthIsThatOfTheWidestLineOrWord()
{
    const QString text = u"kurz\neine lange Zeile\nkurz"_s;
    QCOMPARE(textbreite(text, {}), textbreite(u"eine lange Zeile"_s, {}));
    QCOMPARE(wortbreite(text, {}), textbreite(u"lange"_s, {}));
    QCOMPARE(textbreite(QString(), {}), 0.0);
    QCOMPARE(wortbreite(QString(), {}), 0.0);
}

void TestDruckzeilen::whatIsCutOffSaysSo()
{
    const QString kurzer = gekuerzt(probeworte(40), {}, 200);
    QVERIFY(kurzer.endsWith(u'…'));
    QVERIFY(kurzer.startsWith(u"wort0001 wort0002"_s));
    QVERIFY(textbreite(kurzer, {}) <= 200);
    QCOMPARE(gekuerzt(u"kurz\nund gut"_s, {}, 200), u"kurz und gut"_s);
}

void TestDruckzeilen::twoStripsAreAsHighAsBoth()
{
    const Druckstreifenfolge folge = gesetzt({{.text = u"eins\nzwei"_s, .breite = 90}});
    QCOMPARE(hoehe(folge), folge[0].hoehe + folge[1].hoehe);
    const Druckstreifen beide = verbunden(verbunden(folge[0], {30}), folge[1]);
    QCOMPARE(beide.hoehe, hoehe(folge) + 30);
    Druckprobe probe = a4();
    drucke(probe, {beide});
    const double abstand =
        finde(probe.worte(), u"zwei"_s).grundlinie - finde(probe.worte(), u"eins"_s).grundlinie;
    QVERIFY(qAbs(abstand - folge[0].hoehe - 30) < 0.1);
}

void TestDruckzeilen::furtherLinesMayHang()
{
    Druckprobe probe = a4();
    drucke(probe, gesetzt({{.text = probeworte(20), .links = 20, .breite = 200, .haengend = 15}}));
    const QList<Druckwort> worte = probe.worte();
    QCOMPARE(worte.size(), 20);
    const Druckwort erstes = finde(worte, u"wort0001"_s);
    double davor = erstes.grundlinie;
    int weitere = 0;
    for (const Druckwort &wort : worte) {
        QVERIFY(wort.rechts <= erstes.x + 200.5);
        if (wort.grundlinie > davor + 1) {
            QVERIFY(qAbs(wort.x - erstes.x - 15) < 0.2);
            davor = wort.grundlinie;
            ++weitere;
        }
    }
    QVERIFY(weitere >= 4);
}

void TestDruckzeilen::whatIsSideBySideSharesItsPlaces()
{
    const Druckstreifenfolge links = gesetzt({{.text = u"eins"_s, .breite = 90}});
    Druckstreifenfolge rechts =
        gesetzt({{.text = u"drei\nvier\nsechs"_s, .links = 100, .breite = 90}});
    rechts[0].hoehe += 10;
    const Druckstreifenfolge beide = nebeneinander(links, rechts);
    QCOMPARE(beide.size(), 3);
    QCOMPARE(hoehe(beide), hoehe(rechts)); // the higher one counts in each place
    QCOMPARE(hoehe(nebeneinander(rechts, links)), hoehe(rechts));
    QVERIFY(nebeneinander({}, {}).isEmpty());
    Druckprobe probe = a4();
    drucke(probe, beide);
    QCOMPARE(probe.zeilen(1), QStringList({u"eins drei"_s, u"vier"_s, u"sechs"_s}));
}

QTEST_MAIN(TestDruckzeilen)
#include "TestDruckzeilen.moc"
