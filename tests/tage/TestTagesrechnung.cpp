// What days come to: rows, meals, days and their mean, against a reckoning by hand.

#include "Aufzeichnungsprobe.h"
#include "Tagesrechnung.h"

#include <QTest>

using namespace Qt::StringLiterals;
using Aufzeichnungsprobe::oder;
using Aufzeichnungsprobe::speise;
using Aufzeichnungsprobe::zeile;

class TestTagesrechnung : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void aRowIsItsPartOfHundredGrams();
    void aRowThatDoesNotCountHasNoValues();
    void mealsAndDayAddUpByHand();
    void theMeanIsTheDaysDividedByTheirNumber();
    void aDayLeftOutIsNotInTheMean();
    void aDayWithNothingOnItIsNotInTheMean();
    void whatIsNotUnderstoodIsCounted();
    void ofNoDayNothingComes_data();
    void ofNoDayNothingComes();
    void theRatingsOfAllRowsAreCounted();
    void theEvaluationIsThatOfThePlan();
    void theEnergyIsSharedOverTheMeals();

private:
    QList<Mahlzeitzeile> &zeilen(int tag, int mahlzeit)
    {
        return m_eine.tage[tag].mahlzeiten[mahlzeit].zeilen;
    }
    static float summe(const Plansummen &summen, Naehrwert wert)
    {
        return summen.summe[stelle(wert)];
    }

    Aufzeichnung m_eine;
};

void TestTagesrechnung::init()
{
    m_eine = neueAufzeichnung(Aufzeichnungsart::Protokoll, QDate(2026, 11, 23), 3);
}

void TestTagesrechnung::aRowIsItsPartOfHundredGrams()
{
    Mahlzeitzeile eine = zeile(u"Brot"_s, 50);
    eine.eintrag = speise(u"Brot"_s, 242, 9.2F, 2, 44.5F);
    const auto werte = zeilenwerte(eine);
    QVERIFY(werte.has_value());
    QCOMPARE((*werte)[stelle(Naehrwert::kal)], 121.0F);
    QCOMPARE((*werte)[stelle(Naehrwert::protein)], 4.6F);
    QCOMPARE((*werte)[stelle(Naehrwert::fett)], 1.0F);
    QCOMPARE((*werte)[stelle(Naehrwert::kh)], 22.25F);
    QCOMPARE((*werte)[stelle(Naehrwert::vitc)], 0.0F);
}

void TestTagesrechnung::aRowThatDoesNotCountHasNoValues()
{
    QVERIFY(!zeilenwerte(oder(zeile(u"Brot"_s, 50))).has_value());
    QVERIFY(!zeilenwerte({}).has_value());
}

void TestTagesrechnung::mealsAndDayAddUpByHand()
{
    zeilen(0, 0) = {zeile(u"Brot"_s, 50, 240), zeile(u"Butter"_s, 10, 740)};         // 120 + 74
    zeilen(0, 2) = {zeile(u"Reis"_s, 200, 130), oder(zeile(u"Nudeln"_s, 250, 150))}; // 260
    zeilen(0, 4) = {zeile(u"Brot"_s, 100, 240), zeile(u"Brot"_s, 25, 240)};          // 240 + 60
    const Tagesrechnung tag = rechneTag(m_eine, 0, {2000, 2500});
    QCOMPARE(tag.tage, 1);
    QCOMPARE(tag.mahlzeiten.size(), 6U);
    QCOMPARE(summe(tag.mahlzeiten[0], Naehrwert::kal), 194.0F);
    QCOMPARE(tag.mahlzeiten[0].menge, 60.0F);
    QCOMPARE(summe(tag.mahlzeiten[1], Naehrwert::kal), 0.0F);
    QCOMPARE(summe(tag.mahlzeiten[2], Naehrwert::kal), 260.0F);
    QCOMPARE(summe(tag.mahlzeiten[4], Naehrwert::kal), 300.0F);
    QCOMPARE(summe(tag.summen, Naehrwert::kal), 754.0F);
    QCOMPARE(tag.summen.menge, 385.0F);
    QCOMPARE(tag.summen.bedarf[stelle(Naehrwert::kal)].value(), 2000.0);
    QCOMPARE(tag.unverstanden, 0);
}

void TestTagesrechnung::theMeanIsTheDaysDividedByTheirNumber()
{
    zeilen(0, 0) = {zeile(u"Brot"_s, 100, 240)};                          // 240
    zeilen(1, 0) = {zeile(u"Brot"_s, 50, 240)};                           // 120
    zeilen(1, 5) = {zeile(u"Milch"_s, 300, 60)};                          // 180
    zeilen(2, 5) = {zeile(u"Milch"_s, 200, 60), zeile(u"Ei"_s, 60, 150)}; // 120 + 90
    const Tagesrechnung mittel = rechneMittel(m_eine, {});
    QCOMPARE(mittel.tage, 3);
    QCOMPARE(summe(mittel.summen, Naehrwert::kal), 250.0F); // 750 / 3
    QCOMPARE(summe(mittel.mahlzeiten[0], Naehrwert::kal), 120.0F);
    QCOMPARE(summe(mittel.mahlzeiten[5], Naehrwert::kal), 130.0F);
    QVERIFY(std::abs(mittel.summen.menge - 710.0F / 3) < 0.001F);
    QVERIFY(!mittel.summen.bedarf[stelle(Naehrwert::kal)].has_value());
}

void TestTagesrechnung::aDayLeftOutIsNotInTheMean()
{
    zeilen(0, 0) = {zeile(u"Brot"_s, 100, 240)};
    zeilen(1, 0) = {zeile(u"Brot"_s, 50, 240), {}};
    m_eine.tage[1].imMittel = false;
    const Tagesrechnung mittel = rechneMittel(m_eine, {});
    QCOMPARE(mittel.tage, 1);
    QCOMPARE(summe(mittel.summen, Naehrwert::kal), 240.0F);
    QCOMPARE(mittel.unverstanden, 0);
    QCOMPARE(rechneTag(m_eine, 1, {}).tage, 1); // the day itself is there all the same
}

void TestTagesrechnung::aDayWithNothingOnItIsNotInTheMean()
{
    zeilen(1, 0) = {zeile(u"Brot"_s, 100, 240)};
    zeilen(2, 0) = {oder(zeile(u"Brot"_s, 100, 240)), {}};
    const Tagesrechnung mittel = rechneMittel(m_eine, {});
    QCOMPARE(mittel.tage, 1);
    QCOMPARE(summe(mittel.summen, Naehrwert::kal), 240.0F);
}

void TestTagesrechnung::whatIsNotUnderstoodIsCounted()
{
    Mahlzeitzeile ohneMenge = zeile(u"Brot"_s, 100);
    ohneMenge.gramm.reset();
    Mahlzeitzeile ohneSpeise = zeile(u"Brot"_s, 100);
    ohneSpeise.eintrag.reset();
    zeilen(0, 0) = {ohneMenge, zeile(u"Brot"_s, 100, 240), oder(ohneSpeise)};
    zeilen(0, 3) = {ohneSpeise};
    const Tagesrechnung tag = rechneTag(m_eine, 0, {});
    QCOMPARE(tag.unverstanden, 2);
    QCOMPARE(summe(tag.summen, Naehrwert::kal), 240.0F);
    QCOMPARE(rechneMittel(m_eine, {}).unverstanden, 2);
    QCOMPARE(unverstandene(m_eine.tage[0].mahlzeiten[3]), 1);
    zeilen(0, 0).clear();
    QCOMPARE(rechneTag(m_eine, 0, {}).tage, 0);
    QCOMPARE(rechneTag(m_eine, 0, {}).unverstanden, 1);
}

void TestTagesrechnung::ofNoDayNothingComes_data()
{
    QTest::addColumn<int>("tag");
    QTest::newRow("an empty one") << 0;
    QTest::newRow("before the first") << -1;
    QTest::newRow("behind the last") << 3;
}

void TestTagesrechnung::ofNoDayNothingComes()
{
    QFETCH(int, tag);
    const Tagesrechnung rechnung = rechneTag(m_eine, tag, {2000, 2000});
    QCOMPARE(rechnung.tage, 0);
    QCOMPARE(rechnung.unverstanden, 0);
    QCOMPARE(rechnung.mahlzeiten.size(), 6U);
    QCOMPARE(summe(rechnung.summen, Naehrwert::kal), 0.0F);
    QVERIFY(!rechnung.auswertung.energie.has_value());
    QCOMPARE(energieanteile(rechnung), std::vector<double>(6, 0.0));
    QCOMPARE(rechneMittel(m_eine, {}).tage, 0);
}

void TestTagesrechnung::theRatingsOfAllRowsAreCounted()
{
    Mahlzeitzeile gut = zeile(u"Apfel"_s, 100);
    gut.eintrag->setdiabetes(u"+"_s);
    gut.eintrag->setgicht(u"-"_s);
    Mahlzeitzeile schlecht = zeile(u"Torte"_s, 100);
    schlecht.eintrag->setdiabetes(u"-"_s);
    zeilen(0, 0) = {gut, gut, oder(schlecht)};
    zeilen(1, 0) = {gut, schlecht};
    const auto tagesurteile = rechneTag(m_eine, 0, {}).auswertung.wertungen;
    const Planwertung &tag = tagesurteile[stelle(Wertung::diabetes)];
    QCOMPARE(tag.plus, 2);
    QCOMPARE(tag.minus, 0);
    const auto mittel = rechneMittel(m_eine, {}).auswertung.wertungen;
    QCOMPARE(mittel[stelle(Wertung::diabetes)].plus, 3);
    QCOMPARE(mittel[stelle(Wertung::diabetes)].minus, 1);
    QCOMPARE(mittel[stelle(Wertung::gicht)].minus, 3);
}

/// 100 g with 20 g of protein, 10 g of fat and 30 g of carbohydrate are 20 x 4 + 10 x 9 + 30 x 4 =
/// 290 kcal, whatever energy stands in the food.
void TestTagesrechnung::theEvaluationIsThatOfThePlan()
{
    Mahlzeitzeile eine = zeile(u"Eintopf"_s, 100);
    eine.eintrag = speise(u"Eintopf"_s, 999, 20, 10, 30);
    zeilen(0, 2) = {eine};
    const Planauswertung auswertung = rechneTag(m_eine, 0, {290, 400}).auswertung;
    QVERIFY(auswertung.energie.has_value());
    QCOMPARE(auswertung.energie->bedarf, 400);
    QCOMPARE(auswertung.energie->errechnet, 290);
    QVERIFY(std::abs(auswertung.naehrwerte[stelle(Naehrwert::kal)].prozent - 100) < 0.001);
}

void TestTagesrechnung::theEnergyIsSharedOverTheMeals()
{
    zeilen(0, 0) = {zeile(u"Brot"_s, 100, 300)};
    zeilen(0, 2) = {zeile(u"Reis"_s, 100, 500)};
    zeilen(0, 4) = {zeile(u"Suppe"_s, 100, 200)};
    QCOMPARE(energieanteile(rechneTag(m_eine, 0, {})), (std::vector<double>{30, 0, 50, 0, 20, 0}));
}

QTEST_GUILESS_MAIN(TestTagesrechnung)
#include "TestTagesrechnung.moc"
