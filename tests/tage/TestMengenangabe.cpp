// What a dietitian types as an amount, and how it is said back.

#include "Mengenangabe.h"

#include <QTest>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;
using Fehler = Mengenangabe::Fehler;

namespace {

/// Bread in slices, flour by the spoon, milk by the cup: all that a food may have at once.
QList<Mass> beispielmasse()
{
    return {{u"Scheibe"_s, u"Scheiben"_s, u"slice"_s, u"slices"_s, 50},
            {u"EL"_s, u"EL"_s, u"tbsp"_s, u"tbsp"_s, 10},
            {u"gehäufter EL"_s, u"gehäufte EL"_s, u"heaped tbsp"_s, u"heaped tbsp"_s, 20},
            {u"TL"_s, u"TL"_s, u"tsp"_s, u"tsp"_s, 3},
            {u"Tasse"_s, u"Tassen"_s, u"cup"_s, u"cups"_s, 125},
            {u"Glas"_s, u"Gläser"_s, u"glass"_s, u"glasses"_s, 200},
            {u"großes Glas"_s, u"große Gläser"_s, u"large glass"_s, u"large glasses"_s, 250},
            {u"Stück"_s, u"Stück"_s, u"piece"_s, u"pieces"_s, 80},
            {u"Portion"_s, u"Portionen"_s, u"portion"_s, u"portions"_s, 150},
            {u"Prise"_s, u"Prisen"_s, u"pinch"_s, u"pinches"_s, 0.4}};
}

QList<Mass> fluessig(double grammJeMilliliter)
{
    return {{u"Glas"_s, u"Gläser"_s, u"glass"_s, u"glasses"_s, 200},
            {u"ml"_s, u"ml"_s, u"ml"_s, u"ml"_s, grammJeMilliliter}};
}

} // namespace

class TestMengenangabe : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsNoAmountSaysWhy_data();
    void whatIsNoAmountSaysWhy();
    void anAmountIsUnderstood_data();
    void anAmountIsUnderstood();
    void plainGramsNeedNoMeasure_data();
    void plainGramsNeedNoMeasure();
    void liquidsAreMeasuredByTheLitreToo_data();
    void liquidsAreMeasuredByTheLitreToo();
    void noLitresOfWhatIsNotLiquid_data();
    void noLitresOfWhatIsNotLiquid();
    void measuresOfTheSameNameAreNotChosenFrom();
    void anOwnMeasureMayBeCalledLikeALitre();
    void anOwnMeasureMayHaveItsLongName_data();
    void anOwnMeasureMayHaveItsLongName();
    void aMeasureWithoutAWeightIsNoAmount_data();
    void aMeasureWithoutAWeightIsNoAmount();
    void gramsAreRoundedOnce();
    void anAmountIsSaidInBothLanguages_data();
    void anAmountIsSaidInBothLanguages();
    void whatIsSaidIsUnderstoodAgain_data();
    void whatIsSaidIsUnderstoodAgain();
    void everyReasonHasItsOwnText();
    void cleanup() { QLocale::setDefault(QLocale::c()); }
};

void TestMengenangabe::whatIsNoAmountSaysWhy_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("fehler");
    const auto zeile = [](const char *name, const QString &text, Fehler fehler) {
        QTest::newRow(name) << text << static_cast<int>(fehler);
    };
    zeile("nothing", {}, Fehler::KeineZahl);
    zeile("blanks", u" \t\n"_s, Fehler::KeineZahl);
    zeile("two commas", u"1,2,3"_s, Fehler::KeineZahl);
    zeile("two commas and a measure", u"1,2,3 EL"_s, Fehler::KeineZahl);
    zeile("a comma at the end", u"12,"_s, Fehler::KeineZahl);
    zeile("a sign alone", u"-"_s, Fehler::KeineZahl);
    zeile("two signs", u"--1 EL"_s, Fehler::KeineZahl);
    zeile("two numbers", u"2 3 EL"_s, Fehler::KeineZahl);
    zeile("a span", u"2-3 EL"_s, Fehler::KeineZahl);
    zeile("a fraction of a fraction", u"1/2/3 Tasse"_s, Fehler::KeineZahl);
    zeile("a fraction of a decimal", u"1,5/2 Tasse"_s, Fehler::KeineZahl);
    zeile("a fraction without its lower part", u"1/ Tasse"_s, Fehler::KeineZahl);
    zeile("two fraction signs", u"½½ Tasse"_s, Fehler::KeineZahl);
    zeile("an unknown measure", u"2 Bund"_s, Fehler::MassUnbekannt);
    zeile("an unknown measure alone", u"Bund"_s, Fehler::MassUnbekannt);
    zeile("more than the measure", u"2 Scheiben Brot"_s, Fehler::MassUnbekannt);
    zeile("the end of a measure", u"2 heiben"_s, Fehler::MassUnbekannt);
    zeile("a word without a measure", u"zwei"_s, Fehler::MassUnbekannt);
    zeile("a fraction without a measure", u"1/2"_s, Fehler::MassUnbekannt);
    zeile("a fraction sign without a measure", u"½"_s, Fehler::MassUnbekannt);
    zeile("two words for numbers", u"zwei drei Tassen"_s, Fehler::MassUnbekannt);
    zeile("two halves", u"halbe halbe Tasse"_s, Fehler::MassUnbekannt);
    zeile("half of two", u"half two cups"_s, Fehler::MassUnbekannt);
    zeile("a word for a number in a word", u"einTasse"_s, Fehler::MassUnbekannt);
    zeile("a power of ten", u"1e3"_s, Fehler::MassUnbekannt);
    zeile("a beginning of several", u"2 T"_s, Fehler::MassMehrdeutig);
    zeile("a beginning of several in two languages", u"P"_s, Fehler::MassMehrdeutig);
    zeile("negative", u"-1 EL"_s, Fehler::Negativ);
    zeile("negative with the sign of a printer", u"−1 EL"_s, Fehler::Negativ);
    zeile("a negative fraction", u"-1 1/2 EL"_s, Fehler::Negativ);
    zeile("negative grams", u"-150"_s, Fehler::Negativ);
    zeile("zero", u"0 EL"_s, Fehler::Null);
    zeile("zero grams", u"0,00"_s, Fehler::Null);
    zeile("no halves", u"0/2 Tasse"_s, Fehler::Null);
    zeile("a weight of less than any number", u"0."_s + QString(60, u'0') + u"1 g"_s, Fehler::Null);
    zeile("a fraction over 0", u"1/0 Tasse"_s, Fehler::Unendlich);
    zeile("nothing over 0", u"0/0 Tasse"_s, Fehler::Unendlich);
    zeile("more digits than a number has", QString(400, u'9') + u" g"_s, Fehler::Unendlich);
    zeile("more than 100 kg", u"100000,1"_s, Fehler::ZuViel);
    zeile("more than 100 kg in kg", u"100,0001 kg"_s, Fehler::ZuViel);
    zeile("more than 100 kg in slices", u"2001 Scheiben"_s, Fehler::ZuViel);
}

void TestMengenangabe::whatIsNoAmountSaysWhy()
{
    QFETCH(const QString, text);
    QFETCH(const int, fehler);
    const Mengenergebnis ergebnis = leseMenge(text, beispielmasse());
    QVERIFY(!ergebnis.angabe);
    QVERIFY(ergebnis.fehler.has_value());
    QCOMPARE(static_cast<int>(*ergebnis.fehler), fehler);
}

void TestMengenangabe::anAmountIsUnderstood_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("anzahl");
    QTest::addColumn<QString>("mass");
    QTest::addColumn<float>("gramm");
    const auto zeile = [](const char *name, const QString &text, double anzahl, const QString &mass,
                          float gramm) {
        QTest::newRow(name) << text << anzahl << mass << gramm;
    };
    zeile("several", u"2 Scheiben"_s, 2, u"Scheibe"_s, 100);
    zeile("the singular of several", u"2 Scheibe"_s, 2, u"Scheibe"_s, 100);
    zeile("100 kg", u"2000 Scheiben"_s, 2000, u"Scheibe"_s, 100000);
    zeile("a fraction", u"1/2 Tasse"_s, 0.5, u"Tasse"_s, 62.5F);
    zeile("a fraction with blanks", u"1 / 2 Tasse"_s, 0.5, u"Tasse"_s, 62.5F);
    zeile("a fraction with its own stroke", u"1⁄2 Tasse"_s, 0.5, u"Tasse"_s, 62.5F);
    zeile("a fraction over 1", u"5/2 Tassen"_s, 2.5, u"Tasse"_s, 312.5F);
    zeile("a whole and a fraction", u"1 1/2 EL"_s, 1.5, u"EL"_s, 15);
    zeile("half", u"½ Tasse"_s, 0.5, u"Tasse"_s, 62.5F);
    zeile("a quarter", u"¼ Tasse"_s, 0.25, u"Tasse"_s, 31.25F);
    zeile("three quarters", u"¾ Tasse"_s, 0.75, u"Tasse"_s, 93.75F);
    zeile("a third", u"⅓ Portion"_s, 1.0 / 3, u"Portion"_s, 50);
    zeile("two thirds", u"⅔ Portion"_s, 2.0 / 3, u"Portion"_s, 100);
    zeile("a whole and a half", u"1½ EL"_s, 1.5, u"EL"_s, 15);
    zeile("a whole, a blank and a half", u"1 ½ EL"_s, 1.5, u"EL"_s, 15);
    zeile("a comma", u"1,5 EL"_s, 1.5, u"EL"_s, 15);
    zeile("a point", u"1.5 el"_s, 1.5, u"EL"_s, 15);
    zeile("a comma in front", u",5 EL"_s, 0.5, u"EL"_s, 5);
    zeile("a sign that says nothing", u"+2 EL"_s, 2, u"EL"_s, 20);
    zeile("the measure behind the number", u"2EL"_s, 2, u"EL"_s, 20);
    zeile("the measure behind the fraction", u"½Tasse"_s, 0.5, u"Tasse"_s, 62.5F);
    zeile("capitals and blanks", u"  2 \t SCHEIBEN "_s, 2, u"Scheibe"_s, 100);
    zeile("a narrow blank", u"2\u202FEL"_s, 2, u"EL"_s, 20);
    zeile("a blank that does not break", u"2\u00A0EL"_s, 2, u"EL"_s, 20);
    zeile("a measure alone", u"Tasse"_s, 1, u"Tasse"_s, 125);
    zeile("a", u"eine Scheibe"_s, 1, u"Scheibe"_s, 50);
    zeile("a, of a neuter", u"ein Glas"_s, 1, u"Glas"_s, 200);
    zeile("a, of a masculine", u"einen EL"_s, 1, u"EL"_s, 10);
    zeile("half, in a word", u"halbe Tasse"_s, 0.5, u"Tasse"_s, 62.5F);
    zeile("a half, in words", u"eine halbe Tasse"_s, 0.5, u"Tasse"_s, 62.5F);
    zeile("a half glass", u"ein halbes Glas"_s, 0.5, u"Glas"_s, 100);
    zeile("three quarters, in words", u"drei viertel Tassen"_s, 0.75, u"Tasse"_s, 93.75F);
    zeile("one and a half, in a word", u"anderthalb Tassen"_s, 1.5, u"Tasse"_s, 187.5F);
    zeile("two", u"zwei Scheiben"_s, 2, u"Scheibe"_s, 100);
    zeile("twelve", u"Zwölf Scheiben"_s, 12, u"Scheibe"_s, 600);
    zeile("an umlaut in two signs", u"zwo\u0308lf Scheiben"_s, 12, u"Scheibe"_s, 600);
    zeile("Essl.", u"2 Essl."_s, 2, u"EL"_s, 20);
    zeile("Esslöffel", u"2 Esslöffel"_s, 2, u"EL"_s, 20);
    zeile("heaped Esslöffel", u"2 gehäufte Esslöffel"_s, 2, u"gehäufter EL"_s, 40);
    zeile("TL", u"2 TL"_s, 2, u"TL"_s, 6);
    zeile("Teelöffel", u"1 Teelöffel"_s, 1, u"TL"_s, 3);
    zeile("a short form with its point", u"1 EL."_s, 1, u"EL"_s, 10);
    zeile("Gläser", u"2 Gläser"_s, 2, u"Glas"_s, 400);
    zeile("a large glass", u"1 großes Glas"_s, 1, u"großes Glas"_s, 250);
    zeile("a large glass in Switzerland", u"1 grosses Glas"_s, 1, u"großes Glas"_s, 250);
    zeile("Stk", u"3 Stk"_s, 3, u"Stück"_s, 240);
    zeile("Stück", u"3 Stück"_s, 3, u"Stück"_s, 240);
    zeile("Stücke", u"3 Stücke"_s, 3, u"Stück"_s, 240);
    zeile("Port.", u"1 Port."_s, 1, u"Portion"_s, 150);
    zeile("Prise", u"1 Prise"_s, 1, u"Prise"_s, 0.4F);
    zeile("tbsp", u"2 tbsp"_s, 2, u"EL"_s, 20);
    zeile("tablespoons", u"2 tablespoons"_s, 2, u"EL"_s, 20);
    zeile("tsp", u"1 tsp"_s, 1, u"TL"_s, 3);
    zeile("slice", u"a slice"_s, 1, u"Scheibe"_s, 50);
    zeile("two slices", u"two slices"_s, 2, u"Scheibe"_s, 100);
    zeile("half a cup", u"half a cup"_s, 0.5, u"Tasse"_s, 62.5F);
    zeile("a half cup", u"a half cup"_s, 0.5, u"Tasse"_s, 62.5F);
    zeile("half cup", u"half cup"_s, 0.5, u"Tasse"_s, 62.5F);
    zeile("pcs", u"2 pcs."_s, 2, u"Stück"_s, 160);
    zeile("a beginning", u"2 Sch"_s, 2, u"Scheibe"_s, 100);
    zeile("an English beginning", u"2 sl"_s, 2, u"Scheibe"_s, 100);
    zeile("a beginning of two names of one measure", u"2 gl"_s, 2, u"Glas"_s, 400);
    zeile("a name that others begin with as well", u"1 glass"_s, 1, u"Glas"_s, 200);
}

void TestMengenangabe::anAmountIsUnderstood()
{
    QFETCH(const QString, text);
    QFETCH(const double, anzahl);
    QFETCH(const QString, mass);
    QFETCH(const float, gramm);
    const Mengenergebnis ergebnis = leseMenge(text, beispielmasse());
    QVERIFY(!ergebnis.fehler);
    QVERIFY(ergebnis.angabe.has_value());
    QCOMPARE(ergebnis.angabe->anzahl, anzahl);
    QVERIFY(ergebnis.angabe->mass.has_value());
    QCOMPARE(ergebnis.angabe->mass->eines, mass);
    QCOMPARE(ergebnis.angabe->gramm, gramm);
}

void TestMengenangabe::plainGramsNeedNoMeasure_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<float>("gramm");
    QTest::newRow("a number") << u"150"_s << 150.0F;
    QTest::newRow("a decimal") << u"62,5"_s << 62.5F;
    QTest::newRow("grams") << u"150 g"_s << 150.0F;
    QTest::newRow("grams behind the number") << u"150g"_s << 150.0F;
    QTest::newRow("grams as a word") << u"150 Gramm"_s << 150.0F;
    QTest::newRow("half a gram") << u"½ g"_s << 0.5F;
    QTest::newRow("kilograms") << u"0,2 kg"_s << 200.0F;
    QTest::newRow("half a kilogram") << u"1/2 kg"_s << 500.0F;
    QTest::newRow("a kilogram") << u"ein Kilo"_s << 1000.0F;
    QTest::newRow("100 kg") << u"100 kg"_s << 100000.0F;
    QTest::newRow("100 kg in grams") << u"100000"_s << 100000.0F;
}

void TestMengenangabe::plainGramsNeedNoMeasure()
{
    QFETCH(const QString, text);
    QFETCH(const float, gramm);
    const Mengenergebnis ergebnis = leseMenge(text, {});
    const Mengenangabe erwartet = {static_cast<double>(gramm), {}, gramm};
    QCOMPARE(ergebnis, (Mengenergebnis{erwartet, {}}));
    QCOMPARE(leseMenge(text, beispielmasse()), ergebnis);
}

void TestMengenangabe::liquidsAreMeasuredByTheLitreToo_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("mass");
    QTest::addColumn<float>("wasser");
    QTest::addColumn<float>("oel");
    QTest::newRow("ml") << u"150 ml"_s << u"ml"_s << 150.0F << 135.0F;
    QTest::newRow("ml behind the number") << u"150ml"_s << u"ml"_s << 150.0F << 135.0F;
    QTest::newRow("cl") << u"4 cl"_s << u"cl"_s << 40.0F << 36.0F;
    QTest::newRow("dl") << u"2 dl"_s << u"dl"_s << 200.0F << 180.0F;
    QTest::newRow("l") << u"1,5 l"_s << u"l"_s << 1500.0F << 1350.0F;
    QTest::newRow("half a litre") << u"½ Liter"_s << u"l"_s << 500.0F << 450.0F;
}

void TestMengenangabe::liquidsAreMeasuredByTheLitreToo()
{
    QFETCH(const QString, text);
    QFETCH(const QString, mass);
    QFETCH(const float, wasser);
    QFETCH(const float, oel);
    const Mengenergebnis ergebnis = leseMenge(text, fluessig(1));
    QVERIFY(ergebnis.angabe.has_value());
    QCOMPARE(ergebnis.angabe->mass->eines, mass);
    QCOMPARE(ergebnis.angabe->gramm, wasser);
    QCOMPARE(leseMenge(text, fluessig(0.9)).angabe.value_or(Mengenangabe()).gramm, oel);
}

void TestMengenangabe::noLitresOfWhatIsNotLiquid_data()
{
    QTest::addColumn<QString>("text");
    for (const QString &text : {u"5 ml"_s, u"5 cl"_s, u"5 dl"_s, u"5 l"_s, u"5 Liter"_s}) {
        QTest::newRow(qPrintable(text)) << text;
    }
}

void TestMengenangabe::noLitresOfWhatIsNotLiquid()
{
    QFETCH(const QString, text);
    // A lettuce has leaves, which begin with the letter of the litre.
    const QList<Mass> salat = {{u"Blatt"_s, u"Blätter"_s, u"leaf"_s, u"leaves"_s, 8}};
    QCOMPARE(leseMenge(text, salat), (Mengenergebnis{{}, Fehler::MassUnbekannt}));
}

void TestMengenangabe::measuresOfTheSameNameAreNotChosenFrom()
{
    const QList<Mass> masse = {{u"Becher"_s, u"Becher"_s, u"pot"_s, u"pots"_s, 150},
                               {u"Becher"_s, u"Becher"_s, u"tub"_s, u"tubs"_s, 200}};
    QCOMPARE(leseMenge(u"1 Becher"_s, masse), (Mengenergebnis{{}, Fehler::MassMehrdeutig}));
    QCOMPARE(leseMenge(u"1 tub"_s, masse).angabe.value_or(Mengenangabe()).gramm, 200.0F);
}

void TestMengenangabe::anOwnMeasureMayBeCalledLikeALitre()
{
    const QList<Mass> masse = {{u"dl"_s, u"dl"_s, u"dl"_s, u"dl"_s, 103}};
    QCOMPARE(leseMenge(u"2 dl"_s, masse).angabe.value_or(Mengenangabe()).gramm, 206.0F);
}

void TestMengenangabe::anOwnMeasureMayHaveItsLongName_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<float>("gramm");
    QTest::newRow("its name") << u"2 Esslöffel"_s << 24.0F;
    QTest::newRow("its short form") << u"2 EL"_s << 24.0F;
    QTest::newRow("its short form with a point") << u"2 Essl."_s << 24.0F;
    QTest::newRow("its beginning") << u"2 Esslö"_s << 24.0F;
    QTest::newRow("several words") << u"1 gehäufter EL"_s << 30.0F;
    QTest::newRow("a short name with a point") << u"3 Stück"_s << 15.0F;
    QTest::newRow("millilitres") << u"2 cl"_s << 26.0F;
}

void TestMengenangabe::anOwnMeasureMayHaveItsLongName()
{
    QFETCH(const QString, text);
    QFETCH(const float, gramm);
    const QList<Mass> masse = {
        {u"Esslöffel"_s, u"Esslöffel"_s, u"tablespoon"_s, u"tablespoons"_s, 12},
        {u"gehäufter Esslöffel"_s, u"gehäufte Esslöffel"_s, u"heaped tablespoon"_s,
         u"heaped tablespoons"_s, 30},
        {u"Stk."_s, u"Stk."_s, u"pc."_s, u"pcs."_s, 5},
        {u"Milliliter"_s, u"Milliliter"_s, u"millilitre"_s, u"millilitres"_s, 1.3}};
    QCOMPARE(leseMenge(text, masse).angabe.value_or(Mengenangabe()).gramm, gramm);
}

void TestMengenangabe::aMeasureWithoutAWeightIsNoAmount_data()
{
    QTest::addColumn<double>("gramm");
    QTest::addColumn<int>("fehler");
    QTest::newRow("0") << 0.0 << static_cast<int>(Fehler::Null);
    QTest::newRow("negative") << -5.0 << static_cast<int>(Fehler::Null);
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity()
                              << static_cast<int>(Fehler::ZuViel);
    QTest::newRow("no number") << std::nan("") << static_cast<int>(Fehler::ZuViel);
}

void TestMengenangabe::aMeasureWithoutAWeightIsNoAmount()
{
    QFETCH(const double, gramm);
    QFETCH(const int, fehler);
    const QList<Mass> masse = {{u"Dose"_s, u"Dosen"_s, u"tin"_s, u"tins"_s, gramm}};
    const Mengenergebnis ergebnis = leseMenge(u"1 Dose"_s, masse);
    QVERIFY(!ergebnis.angabe);
    QCOMPARE(static_cast<int>(ergebnis.fehler.value()), fehler);
}

void TestMengenangabe::gramsAreRoundedOnce()
{
    // 2.2 in single precision, three times, is another number.
    const QList<Mass> masse = {{u"Stück"_s, u"Stück"_s, u"piece"_s, u"pieces"_s, 2.2}};
    const Mengenergebnis ergebnis = leseMenge(u"3 Stück"_s, masse);
    QVERIFY(ergebnis.angabe.has_value());
    QVERIFY(ergebnis.angabe->gramm == 6.6F);
    QVERIFY(3 * 2.2F != 6.6F);
}

void TestMengenangabe::anAmountIsSaidInBothLanguages_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("deutsch");
    QTest::addColumn<QString>("englisch");
    QTest::newRow("one") << u"1 Scheibe"_s << u"1 Scheibe (50 g)"_s << u"1 slice (50 g)"_s;
    QTest::newRow("several") << u"2 Scheiben"_s << u"2 Scheiben (100 g)"_s << u"2 slices (100 g)"_s;
    QTest::newRow("half") << u"0,5 Tasse"_s << u"½ Tasse (62,5 g)"_s << u"½ cup (62.5 g)"_s;
    QTest::newRow("a third") << u"1/3 Portion"_s << u"⅓ Portion (50 g)"_s << u"⅓ portion (50 g)"_s;
    QTest::newRow("one and a half")
        << u"1,5 Scheiben"_s << u"1½ Scheiben (75 g)"_s << u"1½ slices (75 g)"_s;
    QTest::newRow("two and two thirds")
        << u"2 2/3 Portionen"_s << u"2⅔ Portionen (400 g)"_s << u"2⅔ portions (400 g)"_s;
    QTest::newRow("no usual fraction")
        << u"1,2 Scheiben"_s << u"1,2 Scheiben (60 g)"_s << u"1.2 slices (60 g)"_s;
    QTest::newRow("two digits") << u"0,33 Tasse"_s << u"0,33 Tasse (41,3 g)"_s
                                << u"0.33 cup (41.3 g)"_s;
    QTest::newRow("a number that would look like 0")
        << u"0,001 EL"_s << u"0,001 EL (0,01 g)"_s << u"0.001 tbsp (0.01 g)"_s;
    QTest::newRow("a thousand") << u"1000 Scheiben"_s << u"1000 Scheiben (50000 g)"_s
                                << u"1000 slices (50000 g)"_s;
    QTest::newRow("grams") << u"150"_s << u"150 g"_s << u"150 g"_s;
    QTest::newRow("half a gram") << u"0,5 g"_s << u"0,5 g"_s << u"0.5 g"_s;
    QTest::newRow("kilograms") << u"0,2 kg"_s << u"200 g"_s << u"200 g"_s;
}

void TestMengenangabe::anAmountIsSaidInBothLanguages()
{
    QFETCH(const QString, text);
    QFETCH(const QString, deutsch);
    QFETCH(const QString, englisch);
    const Mengenergebnis ergebnis = leseMenge(text, beispielmasse());
    QVERIFY(ergebnis.angabe.has_value());
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    QCOMPARE(mengentextMitGramm(*ergebnis.angabe, Regelsprache::Deutsch), deutsch);
    QCOMPARE(mengentext(*ergebnis.angabe, Regelsprache::Deutsch), deutsch.section(u" ("_s, 0, 0));
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
    QCOMPARE(mengentextMitGramm(*ergebnis.angabe, Regelsprache::Englisch), englisch);
    QCOMPARE(mengentext(*ergebnis.angabe, Regelsprache::Englisch), englisch.section(u" ("_s, 0, 0));
}

void TestMengenangabe::whatIsSaidIsUnderstoodAgain_data()
{
    QTest::addColumn<QString>("text");
    for (const QString &text : {u"2 Scheiben"_s, u"½ Tasse"_s, u"1¾ gehäufte EL"_s, u"⅓ Portion"_s,
                                u"1,25 TL"_s, u"3 große Gläser"_s, u"150 g"_s}) {
        QTest::newRow(qPrintable(text)) << text;
    }
}

void TestMengenangabe::whatIsSaidIsUnderstoodAgain()
{
    QFETCH(const QString, text);
    const Mengenergebnis ergebnis = leseMenge(text, beispielmasse());
    QVERIFY(ergebnis.angabe.has_value());
    for (const Regelsprache sprache : {Regelsprache::Deutsch, Regelsprache::Englisch}) {
        QCOMPARE(leseMenge(mengentext(*ergebnis.angabe, sprache), beispielmasse()), ergebnis);
    }
}

void TestMengenangabe::everyReasonHasItsOwnText()
{
    QStringList texte;
    for (const Fehler fehler : {Fehler::KeineZahl, Fehler::MassUnbekannt, Fehler::MassMehrdeutig,
                                Fehler::Negativ, Fehler::Null, Fehler::Unendlich, Fehler::ZuViel}) {
        texte.append(fehlertext(fehler));
    }
    QCOMPARE(texte.first(), u"Das ist keine Mengenangabe."_s);
    QCOMPARE(texte.last(), u"Mehr als 100 kg sind nicht möglich."_s);
    QCOMPARE(texte.removeDuplicates(), 0);
}

QTEST_APPLESS_MAIN(TestMengenangabe)
#include "TestMengenangabe.moc"
