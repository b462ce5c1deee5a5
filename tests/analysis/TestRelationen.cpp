#include "Relationen.h"

#include <QTest>

#include <limits>

class TestRelationen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mineralRelations_data();
    void mineralRelations();
    void eachRelationReadsItsOwnValues();
    void breadUnits_data();
    void breadUnits();
    void carbohydrateUnits_data();
    void carbohydrateUnits();
};

namespace {

constexpr float keineZahl = std::numeric_limits<float>::quiet_NaN();
constexpr float unendlich = std::numeric_limits<float>::infinity();
constexpr int keinCode = -1;

void vergleiche(const Relation &relation)
{
    QFETCH(float, wert);
    QFETCH(int, code);
    QFETCH(int, laenge);
    QVERIFY(relation.wert == wert || (qIsNaN(relation.wert) && qIsNaN(wert)));
    QCOMPARE(relation.code.value_or(keinCode), code);
    QCOMPARE(relation.laenge, laenge);
}

Relationen nurKohlenhydrate(float kh)
{
    Naehrwertreihe anzeige = {};
    anzeige[stelle(Naehrwert::kh)] = kh;
    return relationenRechnen(anzeige);
}

} // namespace

void TestRelationen::mineralRelations_data()
{
    QTest::addColumn<float>("zaehler");
    QTest::addColumn<float>("nenner");
    QTest::addColumn<float>("wert");
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("laenge");
    QTest::addColumn<bool>("strich");
    QTest::newRow("below the limit is green") << 1.0F << 4.0F << 0.25F << 3 << 2 << false;
    QTest::newRow("exactly 0.5 keeps the colour")
        << 50.0F << 100.0F << 0.5F << keinCode << 5 << false;
    QTest::newRow("just below 0.5")
        << 8388607.0F << 16777216.0F << 8388607.0F / 16777216.0F << 3 << 4 << false;
    QTest::newRow("just above 0.5")
        << 8388609.0F << 16777216.0F << 8388609.0F / 16777216.0F << 1 << 5 << false;
    QTest::newRow("above the limit is red") << 300.0F << 400.0F << 0.75F << 1 << 7 << false;
    QTest::newRow("the bar is not clipped here") << 500.0F << 4.0F << 125.0F << 1 << 1250 << false;
    QTest::newRow("denominator 0: dash, green, empty bar")
        << 300.0F << 0.0F << 0.0F << 3 << 0 << true;
    QTest::newRow("denominator negative 0") << 300.0F << -0.0F << 0.0F << 3 << 0 << true;
    QTest::newRow("both 0") << 0.0F << 0.0F << 0.0F << 3 << 0 << true;
    QTest::newRow("numerator 0 is a relation") << 0.0F << 7.0F << 0.0F << 3 << 0 << false;
    QTest::newRow("negative is green") << -8.0F << 4.0F << -2.0F << 3 << -20 << false;
    QTest::newRow("too large for a bar")
        << 1e30F << 1e-12F << unendlich << 1 << 2147483647 << false;
    QTest::newRow("numerator no number")
        << keineZahl << 4.0F << keineZahl << keinCode << 0 << false;
    QTest::newRow("denominator no number")
        << 4.0F << keineZahl << keineZahl << keinCode << 0 << false;
}

void TestRelationen::mineralRelations()
{
    QFETCH(float, zaehler);
    QFETCH(float, nenner);
    QFETCH(bool, strich);
    Naehrwertreihe anzeige = {};
    anzeige[stelle(Naehrwert::na)] = zaehler;
    anzeige[stelle(Naehrwert::ka)] = nenner;
    anzeige[stelle(Naehrwert::ma)] = zaehler;
    anzeige[stelle(Naehrwert::ca)] = nenner;
    const Relationen relationen = relationenRechnen(anzeige);
    for (const Relation &relation : {relationen.natriumKalium, relationen.magnesiumCalcium}) {
        vergleiche(relation);
        QCOMPARE(relation.text, strich ? QStringLiteral("   - ") : QString());
        QCOMPARE(relation.text.isNull(), !strich);
    }
}

void TestRelationen::eachRelationReadsItsOwnValues()
{
    Naehrwertreihe anzeige = {};
    anzeige[stelle(Naehrwert::na)] = 3.0F;
    anzeige[stelle(Naehrwert::ka)] = 12.0F;
    anzeige[stelle(Naehrwert::ma)] = 30.0F;
    anzeige[stelle(Naehrwert::ca)] = 20.0F;
    anzeige[stelle(Naehrwert::kh)] = 6.0F;
    const Relationen relationen = relationenRechnen(anzeige);
    QCOMPARE_EQ(relationen.natriumKalium.wert, 0.25F);
    QCOMPARE_EQ(relationen.magnesiumCalcium.wert, 1.5F);
    QCOMPARE_EQ(relationen.broteinheiten.wert, 0.5F);
    QCOMPARE_EQ(relationen.kohlenhydrateinheiten, 0.6F);
}

void TestRelationen::breadUnits_data()
{
    QTest::addColumn<float>("kh");
    QTest::addColumn<float>("wert");
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("laenge");
    QTest::newRow("none") << 0.0F << 0.0F << 3 << 0;
    QTest::newRow("one") << 12.0F << 1.0F << 3 << 10;
    QTest::newRow("truncated bar") << 13.0F << 13.0F / 12.0F << 3 << 10;
    // The two single-precision neighbours of 5.4: 5.3999996 and 5.4000001.
    QTest::newRow("just below 5.4") << 64.799995F << 5.3999996F << 3 << 53;
    QTest::newRow("64.8 g: single precision lies above 5.4") << 64.8F << 5.4F << 1 << 54;
    QTest::newRow("above") << 66.0F << 5.5F << 1 << 55;
    QTest::newRow("a full bar and more") << 144.0F << 12.0F << 1 << 120;
    QTest::newRow("negative") << -12.0F << -1.0F << 3 << -10;
    QTest::newRow("no number") << keineZahl << keineZahl << keinCode << 0;
    QTest::newRow("infinite") << unendlich << unendlich << 1 << 2147483647;
}

void TestRelationen::breadUnits()
{
    QFETCH(float, kh);
    const Relation be = nurKohlenhydrate(kh).broteinheiten;
    vergleiche(be);
    QVERIFY(be.text.isNull());
}

void TestRelationen::carbohydrateUnits_data()
{
    QTest::addColumn<float>("kh");
    QTest::addColumn<float>("einheiten");
    QTest::newRow("none") << 0.0F << 0.0F;
    QTest::newRow("ten grams") << 10.0F << 1.0F;
    QTest::newRow("single precision") << 64.8F << 6.4800005F;
    QTest::newRow("negative") << -25.0F << -2.5F;
}

void TestRelationen::carbohydrateUnits()
{
    QFETCH(float, kh);
    QFETCH(float, einheiten);
    QCOMPARE_EQ(nurKohlenhydrate(kh).kohlenhydrateinheiten, einheiten);
}

QTEST_GUILESS_MAIN(TestRelationen)
#include "TestRelationen.moc"
