#include "Planvorschlag.h"

#include <QTest>

class TestPlanvorschlag : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewFoodComesLast();
    void aFoodOfThePlanGetsMore();
    void aFoodTakesThePlaceOfAnother_data();
    void aFoodTakesThePlaceOfAnother();
    void aFoodOfThePlanSwallowsTheOther();
    void aFoodInItsOwnPlaceOnlyChangesItsAmount();
    void gramsAreWhole_data();
    void gramsAreWhole();
    void aRowThatIsNotThereChangesNothing();
};

namespace {

Planliste plan()
{
    Planliste eine;
    for (const char *name : {"Brot", "Käse", "Wurst"}) {
        eine.anhaengen(QString::fromUtf8(name));
    }
    eine.mengeAendern(1, 40);
    return eine;
}

QString inWorten(const Planliste &liste)
{
    QStringList worte;
    for (qsizetype i = 0; i < liste.PlanArray.size(); ++i) {
        worte << QStringLiteral("%1 %2").arg(liste.PlanArray[i]).arg(liste.mengenarray[i]);
    }
    return worte.join(QStringLiteral(", "));
}

Speisenaenderung dazu(const char *name, double gramm, int statt = -1)
{
    return {.ort = statt, .schluessel = QString::fromUtf8(name), .gramm = gramm};
}

} // namespace

void TestPlanvorschlag::aNewFoodComesLast()
{
    Planliste liste = plan();
    QVERIFY(nimmInPlan(liste, dazu("Linsen", 125)));
    QCOMPARE(inWorten(liste), QStringLiteral("Brot 100, Käse 40, Wurst 100, Linsen 125"));
    // What is written to the file is the same.
    QCOMPARE(liste.plansavedictionary.value(QStringLiteral("Linsen")).kal(), 125.0F);
}

void TestPlanvorschlag::aFoodOfThePlanGetsMore()
{
    Planliste liste = plan();
    QVERIFY(nimmInPlan(liste, dazu("Käse", 30)));
    QCOMPARE(inWorten(liste), QStringLiteral("Brot 100, Käse 70, Wurst 100"));
}

void TestPlanvorschlag::aFoodTakesThePlaceOfAnother_data()
{
    QTest::addColumn<int>("statt");
    QTest::addColumn<QString>("plan");

    QTest::newRow("the first") << 0 << QStringLiteral("Linsen 80, Käse 40, Wurst 100");
    QTest::newRow("one between") << 1 << QStringLiteral("Brot 100, Linsen 80, Wurst 100");
    QTest::newRow("the last") << 2 << QStringLiteral("Brot 100, Käse 40, Linsen 80");
}

void TestPlanvorschlag::aFoodTakesThePlaceOfAnother()
{
    QFETCH(const int, statt);
    QFETCH(const QString, plan);
    Planliste liste = ::plan();
    QVERIFY(nimmInPlan(liste, dazu("Linsen", 80, statt)));
    QCOMPARE(inWorten(liste), plan);
}

void TestPlanvorschlag::aFoodOfThePlanSwallowsTheOther()
{
    Planliste vorn = plan();
    QVERIFY(nimmInPlan(vorn, dazu("Brot", 50, 2)));
    QCOMPARE(inWorten(vorn), QStringLiteral("Brot 150, Käse 40"));
    Planliste hinten = plan();
    QVERIFY(nimmInPlan(hinten, dazu("Wurst", 50, 0)));
    QCOMPARE(inWorten(hinten), QStringLiteral("Käse 40, Wurst 150"));
}

void TestPlanvorschlag::aFoodInItsOwnPlaceOnlyChangesItsAmount()
{
    Planliste liste = plan();
    QVERIFY(nimmInPlan(liste, dazu("Käse", 25, 1)));
    QCOMPARE(inWorten(liste), QStringLiteral("Brot 100, Käse 25, Wurst 100"));
}

void TestPlanvorschlag::gramsAreWhole_data()
{
    QTest::addColumn<double>("gramm");
    QTest::addColumn<float>("ganz");

    QTest::newRow("below a half") << 12.4 << 12.0F;
    QTest::newRow("a half") << 12.5 << 13.0F;
    QTest::newRow("less than one") << 0.2 << 1.0F;
    QTest::newRow("none") << 0.0 << 1.0F;
}

void TestPlanvorschlag::gramsAreWhole()
{
    QFETCH(const double, gramm);
    QFETCH(const float, ganz);
    Planliste liste;
    QVERIFY(nimmInPlan(liste, dazu("Linsen", gramm)));
    QCOMPARE(liste.mengenarray, QList<float>{ganz});
}

void TestPlanvorschlag::aRowThatIsNotThereChangesNothing()
{
    Planliste liste = plan();
    QVERIFY(!nimmInPlan(liste, dazu("Linsen", 80, 3)));
    QVERIFY(!nimmInPlan(liste, dazu("Brot", 80, 3)));
    QCOMPARE(inWorten(liste), inWorten(plan()));
}

QTEST_APPLESS_MAIN(TestPlanvorschlag)
#include "TestPlanvorschlag.moc"
