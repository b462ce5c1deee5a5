#include "Bmi.h"

#include <QTest>

class TestBmi : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void index_data();
    void index();
};

void TestBmi::index_data()
{
    QTest::addColumn<float>("gewicht");
    QTest::addColumn<float>("groesse");
    QTest::addColumn<float>("erwartet");
    // 1.8 x 1.8 = 3.24 (in single precision 3.2399998); 80 / 3.24 = 24.691358
    QTest::newRow("80 kg at 1.80 m") << 80.0F << 1.8F << 24.69136F;
    QTest::newRow("2 m") << 100.0F << 2.0F << 25.0F;
    QTest::newRow("1 m") << 18.0F << 1.0F << 18.0F;
    QTest::newRow("no height") << 80.0F << 0.0F << 0.0F;
    QTest::newRow("no weight") << 0.0F << 1.8F << 0.0F;
    QTest::newRow("a height whose square is 0") << 80.0F << 1e-30F << 0.0F;
    QTest::newRow("the sign of the height is lost in the square") << 100.0F << -2.0F << 25.0F;
}

void TestBmi::index()
{
    QFETCH(float, gewicht);
    QFETCH(float, groesse);
    QFETCH(float, erwartet);
    QCOMPARE_EQ(bmi(gewicht, groesse), erwartet);
}

QTEST_GUILESS_MAIN(TestBmi)
#include "TestBmi.moc"
