#include "Auskunftsprobe.h"
#include "Pruefprogrammtest.h"

using namespace Qt::StringLiterals;

namespace {

const QString lebensmittel = QStringLiteral(LEBENSMITTELTABELLE);
const QString portionen = QStringLiteral(PORTIONENTABELLE);
const QString seite = QStringLiteral(PORTIONENSEITE);

} // namespace

/// The program that lists household measures, as the build and people call it.
class TestPortionenAuflisten : public Pruefprogrammtest
{
    Q_OBJECT

public:
    TestPortionenAuflisten()
        : Pruefprogrammtest(AUFLISTEN, {u"--check"_s}, {lebensmittel, portionen, seite}, 1)
    {
    }

private Q_SLOTS:
    void wrongUsageIsTold_data();
    void aMissingFileIsTold_data();
    void whatIsWrongIsToldWithItsLine_data();
    void aFoodWithoutAMeasureIsToldAtItsLine();
    void everyFoodIsListedWithItsMeasures();
};

void TestPortionenAuflisten::wrongUsageIsTold_data()
{
    QTest::addColumn<QStringList>("argumente");
    QTest::newRow("nothing") << QStringList();
    QTest::newRow("one table") << QStringList{lebensmittel};
    QTest::newRow("a page to list") << QStringList{lebensmittel, portionen, seite};
    QTest::newRow("no page to check") << QStringList{u"--check"_s, lebensmittel, portionen};
    QTest::newRow("help and a table") << QStringList{u"--help"_s, lebensmittel, portionen};
}

void TestPortionenAuflisten::aMissingFileIsTold_data()
{
    QTest::addColumn<int>("stelle");
    QTest::newRow("foods") << 0;
    QTest::newRow("measures") << 1;
    QTest::newRow("page") << 2;
}

void TestPortionenAuflisten::whatIsWrongIsToldWithItsLine_data()
{
    QTest::addColumn<QString>("zeile");
    QTest::addColumn<QString>("meldung");
    QTest::newRow("grams") << u"Eier;;;a;b;c;d;0;SGE;"_s
                           << u"0 g is not above 0 and at most 2000 [grams]"_s;
    QTest::newRow("a number") << u"Eier;;;a;b;c;d;x;SGE;"_s
                              << u"\"x\" is no number (column grams) [format]"_s;
    QTest::newRow("a plural") << u"Eier;;;a;;c;d;5;SGE;"_s
                              << u"The measure has no name in the column de_many [name]"_s;
    QTest::newRow("no food") << u"Eier;Straußenei;;a;b;c;d;5;SGE;"_s
                             << u"No food has this measure [food]"_s;
    QTest::newRow("a key") << u"Eier;;;a;b;c;d;5;XYZ;"_s
                           << u"\"XYZ\" is no publication of the page [key]"_s;
}

void TestPortionenAuflisten::aFoodWithoutAMeasureIsToldAtItsLine()
{
    const QTemporaryDir ordner;
    QFile foods(ordner.filePath(u"L.csv"_s));
    QVERIFY(foods.open(QIODevice::WriteOnly));
    foods.write(Auskunftsprobe::datei(
        {Auskunftsprobe::zeile(u"Toast"_s, {}), Auskunftsprobe::zeile(u"Zopf"_s, {})}));
    foods.close();
    QFile masse(ordner.filePath(u"P.csv"_s));
    QVERIFY(masse.open(QIODevice::WriteOnly));
    masse.write("group;name;except;de;de_many;en;en_many;grams;keys;note\n"
                "Brot und Brötchen;Toast;;Scheibe;Scheiben;slice;slices;20;SGE;\n");
    masse.close();
    const Lauf lauf = starten(AUFLISTEN, {u"--check"_s, foods.fileName(), masse.fileName(), seite});
    QCOMPARE(lauf.ausgang, 1);
    QCOMPARE(lauf.fehler, foods.fileName() + u":3: error: Zopf has no measure [measure]\n"_s);
}

void TestPortionenAuflisten::everyFoodIsListedWithItsMeasures()
{
    const Lauf lauf = starten(AUFLISTEN, {lebensmittel, portionen});
    QCOMPARE(lauf.ausgang, 0);
    QVERIFY(lauf.ausgabe.contains(u"\nEier (Hühnereier), roh: Stück 50 g\n"_s));
    QVERIFY(lauf.ausgabe.contains(u"\nOlivenöl (Speiseöle): EL 10 g, TL 3 g, ml 0.9 g\n"_s));
}

QTEST_GUILESS_MAIN(TestPortionenAuflisten)
#include "TestPortionenAuflisten.moc"
