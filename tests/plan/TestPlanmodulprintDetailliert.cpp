#include "Druckplan.h"

#include <QTest>

#include <algorithm>

/// The detailed list as it comes out of a PDF: where each word stands, how large and in which
/// colour.
class TestPlanmodulprintDetailliert : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
    void theWordsOfThePlanWorkedOutByHand();
    void rowsStandAtTheirOffsets();
    void headsStandAtOffsetsOfTheirOwn();
    void totalsStandUnderTheHeads();
    void anAbsentRatingPrintsAsNothing();
    void anEmptyPlanPrintsHeadsAndTotals();
    void theRequirementIsNotNamed();
    void aLongNameIsNarrowedToItsPlace();
    void largeFiguresDoNotRunIntoEachOther();
    void itIsBlackAndBlueOnWhite();
};

using namespace Druckplan;

namespace {

constexpr double genau = 0.02;
constexpr double zeilenhoehe = 842 / 30.0;
constexpr double kopfraum = 25;
/// From a row's top to the line that its letters stand on, in sizes of the font.
constexpr double linie = 0.92;

QList<Druckwort> gedruckt(const Planmodulprint &plan)
{
    Druckprobe probe(a4);
    probe.drucke(auftrag([plan](const QPageLayout &) { return plan; }));
    return probe.worte();
}

/// The words of this size in a row of the list, from left to right, without the units behind the
/// numbers.
QList<Druckwort> zeile(QList<Druckwort> worte, int nummer, int groesse = 5)
{
    const double erwartet = kopfraum + nummer * zeilenhoehe + linie * groesse;
    erase_if(worte, [erwartet, groesse](const Druckwort &wort) {
        return qAbs(wort.grundlinie - erwartet) > genau || qAbs(wort.groesse - groesse) > genau ||
               wort.text == QLatin1String("gr") || wort.text == QLatin1String("kcal");
    });
    std::sort(worte.begin(), worte.end(),
              [](const Druckwort &a, const Druckwort &b) { return a.x < b.x; });
    return worte;
}

void vergleiche(const QList<Druckwort> &worte, const QStringList &texte,
                const QList<double> &stellen)
{
    QCOMPARE(worte.size(), texte.size());
    QCOMPARE(texte.size(), stellen.size());
    for (qsizetype i = 0; i < worte.size(); ++i) {
        QCOMPARE(worte[i].text, texte[i]);
        QVERIFY2(qAbs(worte[i].x - stellen[i]) < genau,
                 qPrintable(QStringLiteral("%1 at %2, not at %3")
                                .arg(worte[i].text)
                                .arg(worte[i].x)
                                .arg(stellen[i])));
    }
}

QStringList getrennt(const char *worte)
{
    return QString::fromUtf8(worte).split(u' ');
}

} // namespace

void TestPlanmodulprintDetailliert::theWordsOfThePlanWorkedOutByHand()
{
    Druckprobe probe(a4);
    probe.drucke(auftrag([](const QPageLayout &seite) { return detailliert(seite); }));
    QCOMPARE(probe.seiten(), 1);
    const QStringList zeilen = probe.zeilen(1);
    QCOMPARE(zeilen[0],
             QStringLiteral("Äpfel, roh 150 gr 78 kcal 0 gr 0 gr 17 gr 3 gr 0 gr 1 gr 179 gr 10 gr "
                            "16 gr 9 gr 0 gr 12 gr 0 gr 0 gr 0 gr 18 gr + + + +"));
    QCOMPARE(zeilen[1],
             QStringLiteral("Weißbrot 60 gr 155 kcal 4 gr 0 gr 29 gr 1 gr 0 gr 328 gr 80 gr 35 gr "
                            "54 gr 14 gr 0 gr 0 gr 0 gr 0 gr 0 gr 0 gr 0 - 0"));
    QCOMPARE(
        zeilen[2],
        QStringLiteral("Vollmilch 200 gr 130 kcal 6 gr 7 gr 9 gr 0 gr 24 gr 96 gr 314 gr 240 gr "
                       "184 gr 24 gr 0 gr 60 gr 0 gr 0 gr 0 gr 2 gr - + + 0"));
    QCOMPARE(zeilen[3],
             QStringLiteral("Lebensmittel Gramm Kcal Prot Fett KH BS Chol Na Ka Ca Ph Mg Fe VitA "
                            "VitB1 VitB2 VitB6 VitC Ueberg. Diabetes Gicht HKK"));
    QVERIFY(probe.schriften().first().endsWith(QLatin1String("NimbusSans-Regular")));
}

void TestPlanmodulprintDetailliert::rowsStandAtTheirOffsets()
{
    const QList<Druckwort> worte = gedruckt(detailliert());
    // Name at 12, amount 94 further, seventeen values 20 apart, the ratings 45, 30, 30, 30.
    vergleiche(zeile(worte, 2),
               getrennt("Vollmilch 200 130 6 7 9 0 24 96 314 240 184 24 0 60 0 0 0 2 - + + 0"),
               {12,  106, 126, 146, 166, 186, 206, 226, 246, 266, 286, 306,
                326, 346, 366, 386, 406, 426, 446, 491, 521, 551, 581});
    vergleiche(zeile(worte, 0).mid(2, 2), {QStringLiteral("150"), QStringLiteral("78")},
               {106, 126});
}

void TestPlanmodulprintDetailliert::headsStandAtOffsetsOfTheirOwn()
{
    vergleiche(zeile(gedruckt(detailliert()), 4),
               getrennt("Lebensmittel Gramm Kcal Prot Fett KH BS Chol Na Ka Ca Ph Mg Fe VitA VitB1 "
                        "VitB2 VitB6 VitC Ueberg. Diabetes Gicht HKK"),
               {12,  94,  114, 134, 154, 174, 194, 214, 234, 254, 274, 294,
                314, 334, 354, 374, 394, 414, 434, 469, 499, 534, 559});
}

void TestPlanmodulprintDetailliert::totalsStandUnderTheHeads()
{
    const QList<Druckwort> worte = gedruckt(detailliert());
    vergleiche(zeile(worte, 6, 7), {QStringLiteral("Gesamt")}, {12});
    vergleiche(
        zeile(worte, 6), getrennt("410 363 10 7 55 4 24 425 573 285 254 47 0 72 0 0 0 20"),
        {94, 114, 134, 154, 174, 194, 214, 234, 254, 274, 294, 314, 334, 354, 374, 394, 414, 434});
}

void TestPlanmodulprintDetailliert::anAbsentRatingPrintsAsNothing()
{
    const QList<Druckwort> brot = zeile(gedruckt(detailliert()), 1);
    vergleiche(brot.mid(19), {QStringLiteral("0"), QStringLiteral("-"), QStringLiteral("0")},
               {491, 521, 551});
}

void TestPlanmodulprintDetailliert::anEmptyPlanPrintsHeadsAndTotals()
{
    Druckprobe probe(a4);
    probe.drucke(auftrag([](const QPageLayout &seite) { return liste(1, 0, seite); }));
    QCOMPARE(probe.seiten(), 1);
    const QList<Druckwort> worte = probe.worte();
    QCOMPARE(zeile(worte, 1).size(), 23);
    QCOMPARE(zeile(worte, 3, 7).size(), 1);
    QCOMPARE(zeile(worte, 3).size(), 18);
    QCOMPARE(worte.size(), 23 + 1 + 18);
    for (const Druckwort &zahl : zeile(worte, 3)) {
        QCOMPARE(zahl.text, QStringLiteral("0"));
    }
}

void TestPlanmodulprintDetailliert::theRequirementIsNotNamed()
{
    const QList<Druckwort> worte = gedruckt(detailliert());
    QCOMPARE(finde(worte, QStringLiteral("Soll")).seite, 0);
    QCOMPARE(finde(worte, QStringLiteral("2000")).seite, 0);
}

void TestPlanmodulprintDetailliert::aLongNameIsNarrowedToItsPlace()
{
    Planmodulprint plan = detailliert();
    plan.lebensmittel[1] =
        QStringLiteral("Weißbrot mit Rosinen, Nüssen und Zuckerguss, selbst gebacken");
    const QList<Druckwort> brot = zeile(gedruckt(plan), 1);
    QCOMPARE(brot[7].text, QStringLiteral("gebacken"));
    QVERIFY(qAbs(brot[7].rechts - (106 - 0.2 * 5)) < genau); // a little gap stays free
    vergleiche(brot.mid(8, 2), {QStringLiteral("60"), QStringLiteral("155")}, {106, 126});
}

void TestPlanmodulprintDetailliert::largeFiguresDoNotRunIntoEachOther()
{
    Planmodulprint plan = detailliert();
    plan.na[1] = 1234567;
    plan.uebergew[1] = QStringLiteral("ungeeignet für Übergewichtige");
    const QList<Druckwort> worte = gedruckt(plan);
    const double y = kopfraum + zeilenhoehe + linie * 5;
    double bisher = 0;
    QList<Druckwort> brot = worte;
    erase_if(brot, [y](const Druckwort &wort) { return qAbs(wort.grundlinie - y) > genau; });
    std::sort(brot.begin(), brot.end(),
              [](const Druckwort &a, const Druckwort &b) { return a.x < b.x; });
    for (const Druckwort &wort : std::as_const(brot)) {
        QVERIFY2(wort.x > bisher, qPrintable(wort.text));
        bisher = wort.rechts;
    }
    QVERIFY(bisher < 595);
    QCOMPARE(finde(worte, QStringLiteral("1234567")).x, 246.0);
    QVERIFY(qAbs(finde(worte, QStringLiteral("ungeeignet")).x - 491) < genau);
}

void TestPlanmodulprintDetailliert::itIsBlackAndBlueOnWhite()
{
    Druckprobe probe(a4);
    probe.drucke(auftrag([](const QPageLayout &seite) { return detailliert(seite); }));
    constexpr int pixelJePunkt = 6; // small letters have hardly a full pixel otherwise
    const QImage bild = probe.bild(1, pixelJePunkt);
    const int grenze = qRound(pixelJePunkt * (kopfraum + 3.5 * zeilenhoehe));
    bool schwarz = false;
    bool blau = false;
    for (int y = 0; y < bild.height() / 2; ++y) {
        for (int x = 0; x < bild.width(); ++x) {
            const QColor farbe = bild.pixelColor(x, y);
            schwarz |= farbe == QColor(Qt::black);
            blau |= farbe == QColor(Qt::blue);
            QCOMPARE(farbe.red(), farbe.green());
            QCOMPARE(farbe.blue(), y < grenze ? farbe.red() : 255);
        }
    }
    QVERIFY(schwarz);
    QVERIFY(blau);
}

QTEST_MAIN(TestPlanmodulprintDetailliert)
#include "TestPlanmodulprintDetailliert.moc"
