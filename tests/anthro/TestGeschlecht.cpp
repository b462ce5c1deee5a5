#include "Geschlecht.h"

#include <QTest>

class TestGeschlecht : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void factors();
    void words_data();
    void words();
};

void TestGeschlecht::factors()
{
    QCOMPARE_EQ(geschlechtsfaktor(0).value_or(0.0F), 1.2F);
    QCOMPARE_EQ(geschlechtsfaktor(1).value_or(0.0F), 1.0F);
    QVERIFY(!geschlechtsfaktor(2).has_value());
    QVERIFY(!geschlechtsfaktor(-1).has_value());
}

void TestGeschlecht::words_data()
{
    QTest::addColumn<float>("faktor");
    QTest::addColumn<QString>("wort");
    QTest::newRow("man") << 1.2F << "Mann";
    QTest::newRow("just above") << 1.0000001F << "Mann";
    QTest::newRow("woman") << 1.0F << "Frau";
    QTest::newRow("below, the word stays") << 0.9999999F << QString();
}

void TestGeschlecht::words()
{
    QFETCH(float, faktor);
    QFETCH(QString, wort);
    QCOMPARE(geschlechtswort(faktor), wort);
    QCOMPARE(geschlechtswort(faktor).isNull(), wort.isNull());
}

QTEST_GUILESS_MAIN(TestGeschlecht)
#include "TestGeschlecht.moc"
