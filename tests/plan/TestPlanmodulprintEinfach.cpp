#include "Druckplan.h"

#include <QTest>

/// The simple list as it comes out of a PDF: where each word stands, how large and in which colour.
class TestPlanmodulprintEinfach : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
    void theWordsOfThePlanWorkedOutByHand();
    void rowsStandAtTheirOffsets();
    void headingAndTotalsStandBelowTheRows();
    void theBlanksOfTheHeadingSetItsWords();
    void theBlanksOfTheTotalsSetTheirFigures();
    void gramsAreTruncatedRowByRow();
    void anEmptyPlanPrintsItsHeadingAndRequirement();
    void whatIsWiderThanItsPlaceIsNarrowed();
    void totalsThatAreTooWideStayOnThePaper();
    void lettersThatLikeToJoinCanBeFound();
    void itIsBlackAndBlueOnWhite();
};

using namespace Druckplan;

namespace {

constexpr double genau = 0.02;
constexpr double zeilenhoehe = 842 / 30.0;
/// From a row's top to the line that its letters stand on, in sizes of the font.
constexpr double linie = 0.92;
/// A blank and a figure of Helvetica at a size of 1.
constexpr double blank = 0.278;
constexpr double ziffer = 0.556;

QList<Druckwort> gedruckt(const Planmodulprint &plan)
{
    Druckprobe probe(a4);
    probe.drucke(auftrag([plan](const QPageLayout &) { return plan; }));
    return probe.worte();
}

void vergleiche(const Druckwort &wort, double x, int zeile, int groesse)
{
    QCOMPARE(wort.seite, 1);
    QVERIFY2(qAbs(wort.x - x) < genau, qPrintable(QString::number(wort.x)));
    QVERIFY2(qAbs(wort.groesse - groesse) < genau, qPrintable(QString::number(wort.groesse)));
    const double erwartet = zeile * zeilenhoehe + linie * groesse;
    QVERIFY2(qAbs(wort.grundlinie - erwartet) < genau,
             qPrintable(QString::number(wort.grundlinie)));
}

} // namespace

void TestPlanmodulprintEinfach::theWordsOfThePlanWorkedOutByHand()
{
    Druckprobe probe(a4);
    probe.drucke(auftrag([](const QPageLayout &seite) { return einfach(seite); }));
    QCOMPARE(probe.seiten(), 1);
    QCOMPARE(probe.seitengroesse(), QSizeF(595, 842));
    QCOMPARE(probe.zeilen(1), QStringList({
                                  QStringLiteral("Äpfel, roh 150 gr 78 kcal"),
                                  QStringLiteral("Weißbrot 60 gr 155 kcal"),
                                  QStringLiteral("Vollmilch 200 gr 130 kcal"),
                                  QStringLiteral("Lebensmittel Gramm Kalorien"),
                                  QStringLiteral("Gesamt 410 gr 363 kcal"),
                                  QStringLiteral("Soll 2000 kcal"),
                              }));
    QCOMPARE(probe.schriften().size(), 1);
    QVERIFY(probe.schriften().first().endsWith(QLatin1String("NimbusSans-Regular")));
}

void TestPlanmodulprintEinfach::rowsStandAtTheirOffsets()
{
    const QList<Druckwort> worte = gedruckt(einfach());
    vergleiche(finde(worte, QStringLiteral("Äpfel,")), 20, 0, 12);
    vergleiche(finde(worte, QStringLiteral("150")), 20 + 260, 0, 12);
    vergleiche(finde(worte, QStringLiteral("gr")), 280 + 12 * (3 * ziffer + blank), 0, 12);
    vergleiche(finde(worte, QStringLiteral("78")), 20 + 260 + 230, 0, 12);
    vergleiche(finde(worte, QStringLiteral("kcal")), 510 + 12 * (2 * ziffer + blank), 0, 12);
    vergleiche(finde(worte, QStringLiteral("Weißbrot")), 20, 1, 12);
    vergleiche(finde(worte, QStringLiteral("60")), 280, 1, 12);
    vergleiche(finde(worte, QStringLiteral("155")), 510, 1, 12);
    vergleiche(finde(worte, QStringLiteral("Vollmilch")), 20, 2, 12);
    vergleiche(finde(worte, QStringLiteral("200")), 280, 2, 12);
    vergleiche(finde(worte, QStringLiteral("130")), 510, 2, 12);
}

void TestPlanmodulprintEinfach::headingAndTotalsStandBelowTheRows()
{
    // Three foods: the heading in row 4, the totals in row 7, the requirement in row 8, all behind
    // five blanks.
    const QList<Druckwort> worte = gedruckt(einfach());
    const double x = 5 * 20 * blank;
    vergleiche(finde(worte, QStringLiteral("Lebensmittel")), x, 4, 20);
    vergleiche(finde(worte, QStringLiteral("Gesamt")), x, 7, 20);
    vergleiche(finde(worte, QStringLiteral("Soll")), x, 8, 20);
}

void TestPlanmodulprintEinfach::theBlanksOfTheHeadingSetItsWords()
{
    // Helvetica's letters, in thousandths: "Lebensmittel" 5669, "Gramm" 3333.
    const QList<Druckwort> worte = gedruckt(einfach());
    const double gramm = 20 * (5 * blank + 5.669 + 21 * blank);
    vergleiche(finde(worte, QStringLiteral("Gramm")), gramm, 4, 20);
    vergleiche(finde(worte, QStringLiteral("Kalorien")), gramm + 20 * (3.333 + 29 * blank), 4, 20);
}

void TestPlanmodulprintEinfach::theBlanksOfTheTotalsSetTheirFigures()
{
    // "Gesamt" 3501, "gr" 889, "Soll" 1667.
    const QList<Druckwort> worte = gedruckt(einfach());
    const double gramm = 20 * (5 * blank + 3.501 + 31 * blank);
    vergleiche(finde(worte, QStringLiteral("410")), gramm, 7, 20);
    const double kcal = gramm + 20 * (3 * ziffer + blank + 0.889 + 29 * blank);
    vergleiche(finde(worte, QStringLiteral("363")), kcal, 7, 20);
    vergleiche(finde(worte, QStringLiteral("2000")), 20 * (5 * blank + 1.667 + 79 * blank), 8, 20);
}

void TestPlanmodulprintEinfach::gramsAreTruncatedRowByRow()
{
    Druckprobe probe(a4);
    probe.drucke(auftrag([](const QPageLayout &seite) {
        return Planmodulprint::initWithPeople({QStringLiteral("Salz"), QStringLiteral("Pfeffer")},
                                              {0.9F, 1.9F}, {0, 3}, 0, seite);
    }));
    const QStringList zeilen = probe.zeilen(1);
    QCOMPARE(zeilen[0], QStringLiteral("Salz 0 gr 0 kcal"));
    QCOMPARE(zeilen[1], QStringLiteral("Pfeffer 1 gr 3 kcal"));
    QCOMPARE(zeilen[3], QStringLiteral("Gesamt 1 gr 3 kcal"));
}

void TestPlanmodulprintEinfach::anEmptyPlanPrintsItsHeadingAndRequirement()
{
    Druckprobe probe(a4);
    probe.drucke(auftrag([](const QPageLayout &seite) {
        return Planmodulprint::initWithPeople({}, {}, {}, 1800, seite);
    }));
    QCOMPARE(probe.seiten(), 1);
    QCOMPARE(probe.zeilen(1), QStringList({
                                  QStringLiteral("Lebensmittel Gramm Kalorien"),
                                  QStringLiteral("Gesamt 0 gr 0 kcal"),
                                  QStringLiteral("Soll 1800 kcal"),
                              }));
    vergleiche(finde(probe.worte(), QStringLiteral("Lebensmittel")), 100 * blank, 1, 20);
    vergleiche(finde(probe.worte(), QStringLiteral("Gesamt")), 100 * blank, 4, 20);
    vergleiche(finde(probe.worte(), QStringLiteral("Soll")), 100 * blank, 5, 20);
}

void TestPlanmodulprintEinfach::whatIsWiderThanItsPlaceIsNarrowed()
{
    const QString lang = QStringLiteral("Reis mit Milch, Zimt und Zucker, auf dem Herd gekocht");
    const QList<Druckwort> worte =
        gedruckt(Planmodulprint::initWithPeople({lang}, {100}, {120}, 0, a4));
    vergleiche(finde(worte, QStringLiteral("Reis")), 20, 0, 12);
    vergleiche(finde(worte, QStringLiteral("100")), 280, 0, 12);
    const Druckwort letztes = finde(worte, QStringLiteral("gekocht"));
    QVERIFY(qAbs(letztes.rechts - (280 - 0.2 * 12)) < genau); // a little gap stays free
    QVERIFY(qAbs(letztes.groesse - 12) < genau);
}

void TestPlanmodulprintEinfach::totalsThatAreTooWideStayOnThePaper()
{
    const QList<Druckwort> worte = gedruckt(
        Planmodulprint::initWithPeople({QStringLiteral("Vorrat")}, {50000}, {123456}, 100000, a4));
    QCOMPARE(worte.last().text, QStringLiteral("kcal"));
    for (const Druckwort &wort : worte) {
        QVERIFY2(wort.rechts < 595, qPrintable(wort.text));
    }
    QCOMPARE(finde(worte, QStringLiteral("50000")).seite, 1);
    QCOMPARE(finde(worte, QStringLiteral("123456")).seite, 1);
    QCOMPARE(finde(worte, QStringLiteral("100000")).seite, 1);
}

/// Fonts join ff, fi and fl to one sign, under which a search for the word finds nothing.
void TestPlanmodulprintEinfach::lettersThatLikeToJoinCanBeFound()
{
    const QString name = QStringLiteral("Kaffee, Fisch, Filet, Apfelflan, Pfiffling, Süßstoffe");
    Druckprobe probe(a4);
    probe.drucke(auftrag([&name](const QPageLayout &seite) {
        return Planmodulprint::initWithPeople({name}, {50}, {12}, 2000, seite);
    }));
    QCOMPARE(probe.zeilen(1).first(), name + QStringLiteral(" 50 gr 12 kcal"));
}

void TestPlanmodulprintEinfach::itIsBlackAndBlueOnWhite()
{
    Druckprobe probe(a4);
    probe.drucke(auftrag([](const QPageLayout &seite) { return einfach(seite); }));
    const QImage bild = probe.bild(1);
    QCOMPARE(bild.size(), QSize(1190, 1684));
    const int grenze = qRound(2 * 3.5 * zeilenhoehe); // between the foods and the heading
    bool schwarz = false;
    bool blau = false;
    for (int y = 0; y < bild.height(); ++y) {
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

QTEST_MAIN(TestPlanmodulprintEinfach)
#include "TestPlanmodulprintEinfach.moc"
