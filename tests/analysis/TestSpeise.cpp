#include "Speise.h"

#include <QTest>

#include <limits>

class TestSpeise : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aRowHoldsItsPartOfAHundredGrams();
    void foodsAddUp();
    void theUnknownIsCountedByGrams();
    void unknownFoodsAreNamedOnce();
    void aFoodOfNoStoreIsUnknown();
    void amountsThatAreNoneCountNothing_data();
    void amountsThatAreNoneCountNothing();
    void nothingIsNothing();
};

namespace {

Speise speise(const char *name, double gramm, float eisen)
{
    Datenmodul satz;
    satz.setfe(eisen);
    return {QString::fromUtf8(name), satz, gramm};
}

} // namespace

void TestSpeise::aRowHoldsItsPartOfAHundredGrams()
{
    // 2.5 mg in 100 g, so 40 g hold 1 mg.
    QCOMPARE(stoffangabe(speise("a", 40, 2.5F), Kenngroesse::fe, Stoffwissen()),
             (Stoffangabe{1, 0}));
}

void TestSpeise::foodsAddUp()
{
    const Speisen alle = {speise("a", 40, 2.5F), speise("b", 200, 0.5F)};
    QCOMPARE(summiere(alle, Kenngroesse::fe, Stoffwissen()), (Stoffsumme{2, 0, {}}));
}

void TestSpeise::theUnknownIsCountedByGrams()
{
    // Of 200 g, 50 g have no figure.
    const Speisen alle = {speise("a", 150, 2), speise("b", 50, 0)};
    QCOMPARE(summiere(alle, Kenngroesse::fe, Stoffwissen()),
             (Stoffsumme{3, 0.25, {QStringLiteral("b")}}));
}

void TestSpeise::unknownFoodsAreNamedOnce()
{
    const Speisen alle = {speise("b", 50, 0), speise("a", 50, 0), speise("b", 50, 0)};
    QCOMPARE(summiere(alle, Kenngroesse::fe, Stoffwissen()).unbekannte,
             (QStringList{QStringLiteral("b"), QStringLiteral("a")}));
}

void TestSpeise::aFoodOfNoStoreIsUnknown()
{
    const Speisen alle = {speise("a", 100, 2), {QStringLiteral("fort"), {}, 100}};
    QCOMPARE(summiere(alle, Kenngroesse::fe, Stoffwissen()),
             (Stoffsumme{2, 0.5, {QStringLiteral("fort")}}));
}

void TestSpeise::amountsThatAreNoneCountNothing_data()
{
    QTest::addColumn<double>("gramm");

    QTest::newRow("none") << 0.0;
    QTest::newRow("below 0") << -100.0;
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("without end") << std::numeric_limits<double>::infinity();
}

void TestSpeise::amountsThatAreNoneCountNothing()
{
    QFETCH(const double, gramm);
    const Speisen alle = {speise("a", 100, 2), speise("b", gramm, 0), speise("c", gramm, 5)};
    QCOMPARE(summiere(alle, Kenngroesse::fe, Stoffwissen()), (Stoffsumme{2, 0, {}}));
}

void TestSpeise::nothingIsNothing()
{
    QCOMPARE(summiere({}, Kenngroesse::fe, Stoffwissen()), (Stoffsumme{0, 0, {}}));
}

QTEST_APPLESS_MAIN(TestSpeise)
#include "TestSpeise.moc"
