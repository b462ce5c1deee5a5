// What is said of a recipe: amounts to the last digit, what becomes of the water, the portions.

#include "Rezeptprobe.h"
#include "Rezeptworte.h"

#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

class TestRezeptworte : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale::German); }

    void amountsKeepTheirLastDigit();
    void amountsOfAMeasureAreWeighed();
    void waterThatGoesOrComesIsTold();
    void withoutADifferenceNothingIsSaidOfWater();
    void portionsAreWeighed();
    void ratingsHaveTheirWord();
};

void TestRezeptworte::amountsKeepTheirLastDigit()
{
    QCOMPARE(Rezeptworte::gramm(12.5), u"12,5 g"_s);
    QCOMPARE(Rezeptworte::gramm(1234.0625), u"1234,0625 g"_s);
    QCOMPARE(Rezeptworte::gramm(200), u"200 g"_s);
    QCOMPARE(Rezeptworte::anzahl(2.5), u"2,5"_s);
    QCOMPARE(Rezeptworte::gramm(1.2F), u"1,2 g"_s); // of the plan, in single precision
    QCOMPARE(Rezeptworte::gramm(100.0 / 3), u"33,3333 g"_s);
    QCOMPARE(Rezeptworte::gramm(0.00005), u"0,00005 g"_s);
}

void TestRezeptworte::amountsOfAMeasureAreWeighed()
{
    QCOMPARE(Rezeptworte::grammVon({.anzahl = 0.3}), 0.3);
    const Mass tasse = {u"Tasse"_s, u"Tassen"_s, u"cup"_s, u"cups"_s, 180.5};
    QCOMPARE(Rezeptworte::grammVon({.anzahl = 1.5, .mass = tasse}), 270.75);
}

void TestRezeptworte::waterThatGoesOrComesIsTold()
{
    Rezept rezept = Rezeptprobe::brotsuppe(); // 400 g
    rezept.fertiggewicht = 330;
    QCOMPARE(Rezeptworte::wasserworte(rezept), u"70 g Wasser verkocht"_s);
    rezept.fertiggewicht = 900;
    QCOMPARE(Rezeptworte::wasserworte(rezept), u"500 g Wasser aufgenommen"_s);
}

void TestRezeptworte::withoutADifferenceNothingIsSaidOfWater()
{
    Rezept rezept = Rezeptprobe::brotsuppe();
    QCOMPARE(Rezeptworte::wasserworte(rezept), QString());
    rezept.fertiggewicht = 400;
    QCOMPARE(Rezeptworte::wasserworte(rezept), QString());
    rezept.fertiggewicht = 400.0000001;
    QCOMPARE(Rezeptworte::wasserworte(rezept), QString());
    rezept.fertiggewicht = std::numeric_limits<double>::quiet_NaN();
    QCOMPARE(Rezeptworte::wasserworte(rezept), QString());
    rezept.fertiggewicht = 300;
    rezept.zutaten.clear();
    QCOMPARE(Rezeptworte::wasserworte(rezept), QString());
}

void TestRezeptworte::portionsAreWeighed()
{
    Rezept rezept = Rezeptprobe::brotsuppe();
    QCOMPARE(Rezeptworte::portionsworte(rezept), QString());
    rezept.portionen = 2;
    QCOMPARE(Rezeptworte::portionsworte(rezept), u"= 200 g je Portion"_s);
    rezept.fertiggewicht = 4002;
    QCOMPARE(Rezeptworte::portionsworte(rezept), u"= 2001 g je Portion, zu viel für ein Maß"_s);
}

void TestRezeptworte::ratingsHaveTheirWord()
{
    QCOMPARE(Rezeptworte::urteil(u"+"_s), u"+ geeignet"_s);
    QCOMPARE(Rezeptworte::urteil(u"-"_s), u"- ungeeignet"_s);
    QCOMPARE(Rezeptworte::urteil(u"vielleicht"_s), u"vielleicht"_s);
}

QTEST_MAIN(TestRezeptworte)
#include "TestRezeptworte.moc"
