#include "Stoffwissen.h"

#include <QTest>

#include <limits>

class TestStoffwissen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyQuantityIsDescribedInItsPlace();
    void aZeroOfABuiltInFoodIsKnownWhereTheSourceGivesIt();
    void aZeroOfAnOwnFood_data();
    void aZeroOfAnOwnFood();
    void whatIsNotZeroIsKnown();
    void valuesThatAreNoAmountAreUnknown_data();
    void valuesThatAreNoAmountAreUnknown();
    void theFurtherTableIsAsked_data();
    void theFurtherTableIsAsked();
    void whatNobodyPublishedIsUnknown();
    void anOwnFoodHasNothingInTheFurtherTable();
    void anOwnFoodHasNothingButTheNameOfABuiltInOne();
    void aDishHasNothingButTheNameOfABuiltInFood();
    void saltFollowsSodium();
    void breadUnitsFollowCarbohydrate();
    void aDishIsAsUnknownAsItsIngredients();
    void aRecipeTellsOfTheDishThatItGave();
};

namespace {

const QString brot = QStringLiteral("Brot");
const QString eigenes = QStringLiteral("Hausbrot");

/// A bread whose vitamin A nobody determined, and of which everything else is published.
Zusatztabelle tabelle()
{
    Zusatzwerte eines;
    eines.gruppe = &lebensmittelgruppen().front();
    eines.zucker = 2.5;
    eines.gesaettigt = 0.0;
    eines.alkohol = 0.25;
    eines.wasser = 38.5;
    eines.harnsaeure = 45.0;
    eines.unbestimmt[stelle(Naehrwert::vita)] = true;
    return {{brot, eines}};
}

Datenmodul mit(Naehrwert wert, float zahl)
{
    Datenmodul eines;
    eines.setWert(wert, zahl);
    return eines;
}

} // namespace

void TestStoffwissen::everyQuantityIsDescribedInItsPlace()
{
    for (std::size_t i = 0; i < anzahlKenngroessen; ++i) {
        QCOMPARE(stelle(kenngroessen[i].groesse), i);
        QVERIFY(!nameVon(kenngroessen[i].groesse).isEmpty());
        QVERIFY(!einheitVon(kenngroessen[i].groesse).isEmpty());
    }
    for (const Naehrwertbeschreibung &eine : naehrwerte) {
        const Kenngroessenbeschreibung &dieselbe = beschreibung(kenngroesse(eine.wert));
        QCOMPARE(dieselbe.kennung, eine.kennung);
        QCOMPARE(dieselbe.bezeichnung, eine.bezeichnung);
        QCOMPARE(einheitVon(dieselbe.groesse), einheitszeichen(eine.einheit));
        QCOMPARE(naehrwert(dieselbe.groesse), std::optional(eine.wert));
    }
    QVERIFY(!naehrwert(Kenngroesse::zucker));
    QVERIFY(!naehrwert(Kenngroesse::broteinheiten));
}

void TestStoffwissen::aZeroOfABuiltInFoodIsKnownWhereTheSourceGivesIt()
{
    const Stoffwissen wissen(tabelle());
    QCOMPARE(wissen.je100g(brot, {}, Kenngroesse::vitc), (Stoffangabe{0, 0}));
    QCOMPARE(wissen.je100g(brot, {}, Kenngroesse::vita), (Stoffangabe{0, 1}));
    QVERIFY(wissen.je100g(brot, {}, Kenngroesse::vita).istUnbekannt());
}

void TestStoffwissen::aZeroOfAnOwnFood_data()
{
    QTest::addColumn<Kenngroesse>("groesse");
    QTest::addColumn<double>("unbekannt");

    QTest::newRow("energy is always entered") << Kenngroesse::kal << 0.0;
    QTest::newRow("protein is always entered") << Kenngroesse::protein << 0.0;
    QTest::newRow("fat is always entered") << Kenngroesse::fett << 0.0;
    QTest::newRow("carbohydrate is always entered") << Kenngroesse::kh << 0.0;
    QTest::newRow("fibre may have been left empty") << Kenngroesse::bs << 1.0;
    QTest::newRow("cholesterol may have been left empty") << Kenngroesse::chol << 1.0;
    QTest::newRow("sodium may have been left empty") << Kenngroesse::na << 1.0;
    QTest::newRow("so salt is as unknown") << Kenngroesse::salz << 1.0;
    QTest::newRow("vitamin C may have been left empty") << Kenngroesse::vitc << 1.0;
    QTest::newRow("bread units go by carbohydrate") << Kenngroesse::broteinheiten << 0.0;
}

void TestStoffwissen::aZeroOfAnOwnFood()
{
    QFETCH(const Kenngroesse, groesse);
    QFETCH(const double, unbekannt);
    const Stoffwissen wissen(tabelle());
    QCOMPARE(wissen.je100g(eigenes, {}, groesse), (Stoffangabe{0, unbekannt}));
}

void TestStoffwissen::whatIsNotZeroIsKnown()
{
    const Stoffwissen wissen(tabelle());
    // A bread that somebody has corrected since, and an own food: 12.5 has an exact single form.
    QCOMPARE(wissen.je100g(brot, mit(Naehrwert::vita, 12.5F), Kenngroesse::vita),
             (Stoffangabe{12.5, 0}));
    QCOMPARE(wissen.je100g(eigenes, mit(Naehrwert::fe, 12.5F), Kenngroesse::fe),
             (Stoffangabe{12.5, 0}));
}

void TestStoffwissen::valuesThatAreNoAmountAreUnknown_data()
{
    QTest::addColumn<float>("zahl");

    QTest::newRow("below 0") << -0.5F;
    QTest::newRow("no number") << std::numeric_limits<float>::quiet_NaN();
    QTest::newRow("without end") << std::numeric_limits<float>::infinity();
}

void TestStoffwissen::valuesThatAreNoAmountAreUnknown()
{
    QFETCH(const float, zahl);
    const Stoffwissen wissen(tabelle());
    QCOMPARE(wissen.je100g(brot, mit(Naehrwert::kal, zahl), Kenngroesse::kal), (Stoffangabe{0, 1}));
    QCOMPARE(wissen.je100g(eigenes, mit(Naehrwert::kh, zahl), Kenngroesse::broteinheiten),
             (Stoffangabe{0, 1}));
}

void TestStoffwissen::theFurtherTableIsAsked_data()
{
    QTest::addColumn<Kenngroesse>("groesse");
    QTest::addColumn<double>("wert");

    QTest::newRow("sugars") << Kenngroesse::zucker << 2.5;
    QTest::newRow("no saturated fat is a figure") << Kenngroesse::gesaettigt << 0.0;
    QTest::newRow("alcohol") << Kenngroesse::alkohol << 0.25;
    QTest::newRow("water") << Kenngroesse::wasser << 38.5;
    QTest::newRow("uric acid") << Kenngroesse::harnsaeure << 45.0;
}

void TestStoffwissen::theFurtherTableIsAsked()
{
    QFETCH(const Kenngroesse, groesse);
    QFETCH(const double, wert);
    QCOMPARE(Stoffwissen(tabelle()).je100g(brot, {}, groesse), (Stoffangabe{wert, 0}));
}

void TestStoffwissen::whatNobodyPublishedIsUnknown()
{
    Zusatztabelle ohne = tabelle();
    ohne[brot].harnsaeure.reset();
    QCOMPARE(Stoffwissen(ohne).je100g(brot, {}, Kenngroesse::harnsaeure), (Stoffangabe{0, 1}));
}

void TestStoffwissen::anOwnFoodHasNothingInTheFurtherTable()
{
    const Stoffwissen wissen(tabelle());
    QCOMPARE(wissen.je100g(eigenes, {}, Kenngroesse::zucker), (Stoffangabe{0, 1}));
    QVERIFY(wissen.zusatz(eigenes) == nullptr);
    QVERIFY(wissen.zusatz(brot) != nullptr);
}

void TestStoffwissen::anOwnFoodHasNothingButTheNameOfABuiltInOne()
{
    const Stoffwissen alle(tabelle());
    const Stoffwissen wissen = alle.mitEigenem(brot);
    QVERIFY(wissen.zusatz(brot) == nullptr);
    QCOMPARE(wissen.je100g(brot, {}, Kenngroesse::zucker), (Stoffangabe{0, 1}));
    // Nobody entered it, while of the built-in bread it is a published 0.
    QCOMPARE(wissen.je100g(brot, {}, Kenngroesse::vitc), (Stoffangabe{0, 1}));
    QCOMPARE(alle.je100g(brot, {}, Kenngroesse::zucker), (Stoffangabe{2.5, 0}));
}

void TestStoffwissen::aDishHasNothingButTheNameOfABuiltInFood()
{
    Rezeptangaben angaben = {};
    angaben[stelle(Kenngroesse::zucker)] = {.wert = 7, .unbekannt = 0.25};
    Stoffwissen alle(tabelle());
    alle.setzeRezepte({{brot, angaben}});
    QCOMPARE(alle.je100g(brot, {}, Kenngroesse::zucker), (Stoffangabe{2.5, 0}));
    QCOMPARE(alle.mitEigenem(brot).je100g(brot, {}, Kenngroesse::zucker), (Stoffangabe{7, 0.25}));
}

void TestStoffwissen::saltFollowsSodium()
{
    // 400 mg of sodium are 0.4 g, times 2.5 are 1 g of salt.
    QCOMPARE(Stoffwissen().je100g(eigenes, mit(Naehrwert::na, 400), Kenngroesse::salz),
             (Stoffangabe{1, 0}));
}

void TestStoffwissen::breadUnitsFollowCarbohydrate()
{
    // 30 g at 12 g each.
    QCOMPARE(Stoffwissen().je100g(eigenes, mit(Naehrwert::kh, 30), Kenngroesse::broteinheiten),
             (Stoffangabe{2.5, 0}));
}

void TestStoffwissen::aDishIsAsUnknownAsItsIngredients()
{
    Rezeptangaben angaben = {};
    angaben[stelle(Kenngroesse::zucker)] = {.wert = 3, .unbekannt = 0.5};
    angaben[stelle(Kenngroesse::na)] = {.wert = 200, .unbekannt = 0.25};
    Stoffwissen wissen(tabelle());
    wissen.setzeRezepte({{eigenes, angaben}});
    QCOMPARE(wissen.je100g(eigenes, {}, Kenngroesse::zucker), (Stoffangabe{3, 0.5}));
    // The record says how much, the recipe how well it is known; salt goes with sodium.
    const Datenmodul satz = mit(Naehrwert::na, 400);
    QCOMPARE(wissen.je100g(eigenes, satz, Kenngroesse::na), (Stoffangabe{400, 0.25}));
    QCOMPARE(wissen.je100g(eigenes, satz, Kenngroesse::salz), (Stoffangabe{1, 0.25}));
    // All of whose ingredients are known to hold none.
    QCOMPARE(wissen.je100g(eigenes, satz, Kenngroesse::vitc), (Stoffangabe{0, 0}));
}

/// A day keeps the dish as it was eaten, and today's recipe tells of another one.
void TestStoffwissen::aRecipeTellsOfTheDishThatItGave()
{
    Rezeptangaben angaben = {};
    angaben[stelle(Kenngroesse::zucker)] = {.wert = 3, .unbekannt = 0};
    Datenmodul heutiges = mit(Naehrwert::na, 400);
    Stoffwissen wissen(tabelle());
    wissen.setzeRezepte({{eigenes, angaben}}, {{eigenes, heutiges}});
    QCOMPARE(wissen.je100g(eigenes, heutiges, Kenngroesse::zucker), (Stoffangabe{3, 0}));
    QCOMPARE(wissen.je100g(eigenes, heutiges, Kenngroesse::vitc), (Stoffangabe{0, 0}));
    heutiges.setgicht(QStringLiteral("-")); // by hand, which is no other dish
    QCOMPARE(wissen.je100g(eigenes, heutiges, Kenngroesse::zucker), (Stoffangabe{3, 0}));
    const Datenmodul frueheres = mit(Naehrwert::na, 300);
    QCOMPARE(wissen.je100g(eigenes, frueheres, Kenngroesse::na), (Stoffangabe{300, 0}));
    QCOMPARE(wissen.je100g(eigenes, frueheres, Kenngroesse::zucker), (Stoffangabe{0, 1}));
    QCOMPARE(wissen.je100g(eigenes, frueheres, Kenngroesse::vitc), (Stoffangabe{0, 1}));
}

QTEST_APPLESS_MAIN(TestStoffwissen)
#include "TestStoffwissen.moc"
