#include "Plansummen.h"

#include <QTest>

/// The sums below the plan's table, and what they leave of a day's need.
class TestPlansummen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anEmptyPlanAddsUpToNothing();
    void rowsAreAddedUpByTheirAmounts();
    void theEnergyIsTheFoodsOwn();
    void aRowWithoutARecordCountsNowhere();
    void whatIsLeft_data();
    void whatIsLeft();
};

namespace {

Datenmodul speise(Naehrwert wert, float zahl)
{
    Datenmodul neu;
    neu.setWert(wert, zahl);
    return neu;
}

} // namespace

void TestPlansummen::anEmptyPlanAddsUpToNothing()
{
    const Plansummen summen = plansummen({}, 2000);
    QCOMPARE(summen.menge, 0.0F);
    QCOMPARE(summen.ohneWerte, 0);
    for (const float summe : summen.summe) {
        QCOMPARE(summe, 0.0F);
    }
    QCOMPARE(summen.rest(Naehrwert::ca), std::optional(1000.0));
}

void TestPlansummen::rowsAreAddedUpByTheirAmounts()
{
    const Datenmodul brot = speise(Naehrwert::bs, 8);
    const Datenmodul apfel = speise(Naehrwert::bs, 2);
    const Planzeile zeilen[] = {{&brot, 50}, {&apfel, 150}};
    const Plansummen summen = plansummen(zeilen, 2000);
    QCOMPARE(summen.menge, 200.0F);
    QCOMPARE(summen.summe[stelle(Naehrwert::bs)], 7.0F);
    QCOMPARE(summen.rest(Naehrwert::bs), std::optional(23.0));
}

void TestPlansummen::theEnergyIsTheFoodsOwn()
{
    Datenmodul schnaps = speise(Naehrwert::kal, 230); // none of it from the three nutrients
    schnaps.setprotein(1);
    const Planzeile zeilen[] = {{&schnaps, 50}};
    QCOMPARE(plansummen(zeilen, 2000).summe[stelle(Naehrwert::kal)], 115.0F);
}

void TestPlansummen::aRowWithoutARecordCountsNowhere()
{
    const Datenmodul brot = speise(Naehrwert::bs, 8);
    const Planzeile zeilen[] = {{nullptr, 70}, {&brot, 50}, {nullptr, 10}};
    const Plansummen summen = plansummen(zeilen, 2000);
    QCOMPARE(summen.menge, 50.0F);
    QCOMPARE(summen.summe[stelle(Naehrwert::bs)], 4.0F);
    QCOMPARE(summen.ohneWerte, 2);
}

void TestPlansummen::whatIsLeft_data()
{
    QTest::addColumn<float>("summe");
    QTest::addColumn<int>("energiebedarf");
    QTest::addColumn<Naehrwert>("wert");
    QTest::addColumn<double>("rest"); // -1000: nothing is known
    QTest::newRow("something") << 0.45F << 0 << Naehrwert::b1 << 0.75;
    QTest::newRow("too much") << 40.0F << 0 << Naehrwert::bs << -10.0;
    QTest::newRow("the need itself, not exact in single precision")
        << 1.2F << 0 << Naehrwert::b1 << 0.0;
    QTest::newRow("of an unknown requirement") << 40.0F << 0 << Naehrwert::kh << -1000.0;
    QTest::newRow("of a known one") << 40.0F << 2000 << Naehrwert::kh << 210.0;
}

void TestPlansummen::whatIsLeft()
{
    QFETCH(float, summe);
    QFETCH(int, energiebedarf);
    QFETCH(Naehrwert, wert);
    QFETCH(double, rest);
    const Datenmodul speise = ::speise(wert, summe);
    const Planzeile zeilen[] = {{&speise, 100}};
    const double bleibt = plansummen(zeilen, energiebedarf).rest(wert).value_or(-1000.0);
    QVERIFY2(qAbs(bleibt - rest) < 1e-6, qPrintable(QString::number(bleibt)));
}

QTEST_GUILESS_MAIN(TestPlansummen)
#include "TestPlansummen.moc"
