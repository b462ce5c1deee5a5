#include "Druckplan.h"

#include <QTest>

#include <algorithm>

/// Both lists on the papers of the world and of every length: nothing of a row may get lost at the
/// edge of a page.
class TestPlanmodulprintSeiten : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyRowStandsOnItsPageAndNoLetterAtAnEdge_data();
    void everyRowStandsOnItsPageAndNoLetterAtAnEdge();
    void theThirtiethRowIsDividedWherePagesBeginHigher_data();
    void theThirtiethRowIsDividedWherePagesBeginHigher();
    void marginsShrinkThePage_data();
    void marginsShrinkThePage();
    void aTallHeadingStaysInItsRow();
};

using namespace Druckplan;

namespace {

constexpr double genau = 0.05;

/// How far letters reach above and below their line, in sizes.
constexpr double hinauf = 0.92;
constexpr double hinab = 0.23;

QPageLayout papier(int groesse, int lage, double rand = 0)
{
    return Druckprobe::papier(static_cast<QPageSize::PageSizeId>(groesse),
                              static_cast<QPageLayout::Orientation>(lage),
                              {rand, rand, rand, rand});
}

Druckprobe &gedruckt(Druckprobe &probe, int form, int zeilen)
{
    probe.drucke(
        auftrag([form, zeilen](const QPageLayout &seite) { return liste(form, zeilen, seite); }));
    return probe;
}

/// The numbers behind the word "Speise", with the page that they stand on.
QList<Druckwort> nummern(const QList<Druckwort> &worte)
{
    QList<Druckwort> ergebnis;
    for (qsizetype i = 0; i + 1 < worte.size(); ++i) {
        if (worte[i].text == QLatin1String("Speise")) {
            ergebnis << worte[i + 1];
        }
    }
    return ergebnis;
}

bool istWeiss(const QImage &bild, const QRect &feld)
{
    for (int y = feld.top(); y <= feld.bottom(); ++y) {
        for (int x = feld.left(); x <= feld.right(); ++x) {
            if (bild.pixelColor(x, y) != QColor(Qt::white)) {
                return false;
            }
        }
    }
    return true;
}

/// A ring of white around every page. Where two pages share a row, it stands at their edges.
void pruefeRaender(const Druckprobe &probe, int zeilen, bool geteilt)
{
    for (int seite = 1; seite <= qMin(probe.seiten(), 3); ++seite) {
        const QImage bild = probe.bild(seite, 1);
        const int unten = bild.height() - 1;
        const int rechts = bild.width() - 1;
        QVERIFY(istWeiss(bild, QRect(0, 0, 2, unten)));
        QVERIFY(istWeiss(bild, QRect(rechts - 1, 0, 2, unten)));
        if (!geteilt || seite == 1) {
            QVERIFY(istWeiss(bild, QRect(0, 0, rechts, 1)));
        }
        if (!geteilt || seite * 30 > zeilen) {
            QVERIFY(istWeiss(bild, QRect(0, unten, rechts, 1)));
        }
    }
}

} // namespace

void TestPlanmodulprintSeiten::everyRowStandsOnItsPageAndNoLetterAtAnEdge_data()
{
    QTest::addColumn<int>("form");
    QTest::addColumn<int>("groesse");
    QTest::addColumn<int>("lage");
    QTest::addColumn<QSizeF>("punkte");
    QTest::addColumn<int>("zeilen");
    const struct
    {
        const char *name;
        int groesse;
        int lage;
        QSizeF punkte;
    } papiere[] = {
        {"A4 upright", QPageSize::A4, QPageLayout::Portrait, {595, 842}},
        {"A4 across", QPageSize::A4, QPageLayout::Landscape, {842, 595}},
        {"Letter upright", QPageSize::Letter, QPageLayout::Portrait, {612, 792}},
        {"Letter across", QPageSize::Letter, QPageLayout::Landscape, {792, 612}},
    };
    for (const auto &papier : papiere) {
        for (const int zeilen : {0, 1, 21, 22, 30, 51, 500}) {
            QTest::addRow("simple, %s, %d foods", papier.name, zeilen)
                << 2 << papier.groesse << papier.lage << papier.punkte << zeilen;
            QTest::addRow("detailed, %s, %d foods", papier.name, zeilen)
                << 1 << papier.groesse << papier.lage << papier.punkte << zeilen;
        }
    }
}

void TestPlanmodulprintSeiten::everyRowStandsOnItsPageAndNoLetterAtAnEdge()
{
    QFETCH(int, form);
    QFETCH(int, groesse);
    QFETCH(int, lage);
    QFETCH(QSizeF, punkte);
    QFETCH(int, zeilen);
    Druckprobe probe(papier(groesse, lage));
    gedruckt(probe, form, zeilen);
    QCOMPARE(probe.seitengroesse(), punkte);
    QCOMPARE(probe.seiten(), liste(form, zeilen).pages);

    const double hoehe = punkte.height();
    const double verschiebung = form == 1 ? 25 : 0;
    const double schrift = form == 1 ? 5 : 12;
    const QList<Druckwort> worte = probe.worte();
    QList<int> gefunden;
    for (const Druckwort &wort : nummern(worte)) {
        const int zeile = wort.text.toInt() - 1;
        gefunden << zeile + 1;
        const double erwartet = zeile * hoehe / 30 + hinauf * schrift + verschiebung;
        QVERIFY2(qAbs(wort.grundlinie + (wort.seite - 1) * hoehe - erwartet) < genau,
                 qPrintable(QStringLiteral("row %1 at %2 of page %3")
                                .arg(zeile)
                                .arg(wort.grundlinie)
                                .arg(wort.seite)));
    }
    for (const Druckwort &wort : worte) {
        QVERIFY2(wort.x >= 0 && wort.rechts <= punkte.width() + genau, qPrintable(wort.text));
    }
    QCOMPARE(gefunden.size(), zeilen);
    QVERIFY(std::is_sorted(gefunden.begin(), gefunden.end()));
    QVERIFY(std::adjacent_find(gefunden.begin(), gefunden.end()) == gefunden.end());
    pruefeRaender(probe, zeilen, form == 1 && lage == QPageLayout::Portrait);
}

void TestPlanmodulprintSeiten::theThirtiethRowIsDividedWherePagesBeginHigher_data()
{
    QTest::addColumn<int>("groesse");
    QTest::addColumn<double>("zeilenhoehe");
    // The page ends 25 points above the end of its thirtieth row.
    QTest::newRow("A4: three points of it on the first page") << int(QPageSize::A4) << 842 / 30.0;
    QTest::newRow("Letter: one and a half") << int(QPageSize::Letter) << 792 / 30.0;
}

void TestPlanmodulprintSeiten::theThirtiethRowIsDividedWherePagesBeginHigher()
{
    QFETCH(int, groesse);
    QFETCH(double, zeilenhoehe);
    Druckprobe probe(papier(groesse, QPageLayout::Portrait));
    gedruckt(probe, 1, 31);
    // Its line lies on the second page, where the text can be found; the first has the top of it.
    const Druckwort dreissig = finde(nummern(probe.worte()), QStringLiteral("30"));
    QCOMPARE(dreissig.seite, 2);
    QVERIFY(qAbs(dreissig.grundlinie - (25 - zeilenhoehe + hinauf * 5)) < genau);
    // What is missing at the end of the first page stands at the beginning of the second.
    constexpr int fein = 4;
    const QImage erste = probe.bild(1, fein);
    const QImage zweite = probe.bild(2, fein);
    const double obererTeil = zeilenhoehe - 25;
    const auto links = int(12 * fein);
    const auto breit = int(80 * fein);
    QVERIFY(!istWeiss(erste, QRect(links, qRound(erste.height() - obererTeil * fein), breit,
                                   qRound(obererTeil * fein))));
    QVERIFY(!istWeiss(zweite, QRect(links, 0, breit, int((5.75 - obererTeil) * fein))));
}

void TestPlanmodulprintSeiten::marginsShrinkThePage_data()
{
    QTest::addColumn<int>("form");
    QTest::newRow("simple") << 2;
    QTest::newRow("detailed") << 1;
}

/// A4 with margins of 59.5 points: 476 of 595 points remain in width, so everything is 0.8 as
/// large.
void TestPlanmodulprintSeiten::marginsShrinkThePage()
{
    QFETCH(int, form);
    Druckprobe probe(papier(QPageSize::A4, QPageLayout::Portrait, 59.5));
    gedruckt(probe, form, 30);
    QCOMPARE(probe.seiten(), 2);
    const Druckwort erstes = finde(probe.worte(), QStringLiteral("Speise"));
    const double x = form == 2 ? 20 : 12;
    const double schrift = form == 2 ? 12 : 5;
    const double oben = form == 2 ? 0 : 25;
    QVERIFY(qAbs(erstes.x - (59.5 + 0.8 * x)) < genau);
    QVERIFY(qAbs(erstes.groesse - 0.8 * schrift) < genau);
    QVERIFY(qAbs(erstes.grundlinie - (59.5 + 0.8 * (oben + hinauf * schrift))) < genau);
    for (int seite = 1; seite <= 2; ++seite) {
        const QImage bild = probe.bild(seite, 1);
        QVERIFY(istWeiss(bild, QRect(0, 0, 59, 842)));
        QVERIFY(istWeiss(bild, QRect(536, 0, 59, 842)));
        QVERIFY(istWeiss(bild, QRect(0, 0, 595, 59)));
        QVERIFY(istWeiss(bild, QRect(0, 734, 595, 108))); // 59.5 + 0.8 * 842 = 733.1
    }
}

/// 28 foods put the heading into the last row of the first page; its letters are as high as the
/// row when the paper lies across.
void TestPlanmodulprintSeiten::aTallHeadingStaysInItsRow()
{
    Druckprobe probe(papier(QPageSize::A4, QPageLayout::Landscape));
    gedruckt(probe, 2, 28);
    const Druckwort kopf = finde(probe.worte(), QStringLiteral("Lebensmittel"));
    QCOMPARE(kopf.seite, 1);
    QVERIFY(kopf.grundlinie + hinab * 20 <= 595 + genau);
    QVERIFY(kopf.grundlinie - 0.73 * 20 >= 29 * 595 / 30.0);
}

QTEST_MAIN(TestPlanmodulprintSeiten)
#include "TestPlanmodulprintSeiten.moc"
