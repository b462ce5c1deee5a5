#include "Probefenster.h"

#include <QTest>

#include <limits>

using enum Naehrwert;

/// The relations, bread units and carbohydrate units of the food on display.
class TestRelationsanzeige : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aRelationHasANumberAndABar_data();
    void aRelationHasANumberAndABar();
    void atExactlyAHalfTheBarKeepsItsColour_data();
    void atExactlyAHalfTheBarKeepsItsColour();
    void withNothingToCompareWithThereIsADash();
    void aNumberComesBackAfterTheDash();
    void valuesThatAreNoNumbersDoNoHarm();
    void breadUnitsAreTwelfths_data();
    void breadUnitsAreTwelfths();
    void carbohydrateUnitsAreTenths();
    void allFollowTheAmount();

private:
    void zeige(const Wertliste &werte);
    AppController &controller() const { return m_fenster->controller(); }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

namespace {

const QColor rot(255, 0, 0);
const QColor gruen(0, 255, 0);

} // namespace

void TestRelationsanzeige::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(verzeichnis(
        {lebensmittel(QStringLiteral("Apfel")), lebensmittel(QStringLiteral("Speise"))}));
    m_fenster = std::make_unique<Probefenster>(*m_heim);
}

void TestRelationsanzeige::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

/// Puts these values into the food of row 1 and chooses it.
void TestRelationsanzeige::zeige(const Wertliste &werte)
{
    const QString name = QStringLiteral("Speise");
    controller().Dictionary[name] = lebensmittel(name, werte);
    m_fenster->klicke(1, inName);
}

void TestRelationsanzeige::aRelationHasANumberAndABar_data()
{
    QTest::addColumn<float>("zaehler");
    QTest::addColumn<float>("nenner");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QColor>("farbe");
    QTest::addColumn<double>("laenge");
    QTest::newRow("a third; the bar is truncated")
        << 1.0F << 3.0F << QStringLiteral("0,33") << gruen << 3.0;
    QTest::newRow("just below a half")
        << 499.0F << 1000.0F << QStringLiteral("0,50") << gruen << 4.0;
    QTest::newRow("just above a half") << 501.0F << 1000.0F << QStringLiteral("0,50") << rot << 5.0;
    QTest::newRow("as much of both") << 7.0F << 7.0F << QStringLiteral("1,00") << rot << 10.0;
    QTest::newRow("almost ten") << 9.96F << 1.0F << QStringLiteral("9,96") << rot << 99.0;
    QTest::newRow("ten fills the bar") << 10.0F << 1.0F << QStringLiteral("10,00") << rot << 100.0;
    QTest::newRow("more is not longer") << 90.0F << 1.0F << QStringLiteral("90,00") << rot << 100.0;
    QTest::newRow("nothing above") << 0.0F << 5.0F << QStringLiteral("0,00") << gruen << 0.0;
    QTest::newRow("negative") << -1.0F << 5.0F << QStringLiteral("-0,20") << gruen << -2.0;
}

/// Sodium to potassium and magnesium to calcium go by the same rule.
void TestRelationsanzeige::aRelationHasANumberAndABar()
{
    QFETCH(float, zaehler);
    QFETCH(float, nenner);
    QFETCH(QString, text);
    QFETCH(QColor, farbe);
    QFETCH(double, laenge);
    zeige({{na, farbe == rot ? 0.0F : 9.0F}, {ka, 1}, {ma, farbe == rot ? 0.0F : 9.0F}, {ca, 1}});
    zeige({{na, zaehler}, {ka, nenner}, {ma, 3}, {ca, 1}});
    QCOMPARE(Probefenster::text(*controller().kanafeld), text);
    QCOMPARE(controller().kanaview->color(), farbe);
    QCOMPARE(controller().kanaview->value(), laenge);
    QCOMPARE(Probefenster::text(*controller().macafeld), QStringLiteral("3,00"));
    zeige({{na, 3}, {ka, 1}, {ma, zaehler}, {ca, nenner}});
    QCOMPARE(Probefenster::text(*controller().macafeld), text);
    QCOMPARE(controller().macaview->color(), farbe);
    QCOMPARE(controller().macaview->value(), laenge);
    QCOMPARE(Probefenster::text(*controller().kanafeld), QStringLiteral("3,00"));
}

void TestRelationsanzeige::atExactlyAHalfTheBarKeepsItsColour_data()
{
    QTest::addColumn<float>("vorher");
    QTest::addColumn<QColor>("farbe");
    QTest::newRow("red stays") << 3.0F << rot;
    QTest::newRow("green stays") << 0.1F << gruen;
}

void TestRelationsanzeige::atExactlyAHalfTheBarKeepsItsColour()
{
    QFETCH(float, vorher);
    QFETCH(QColor, farbe);
    zeige({{na, vorher}, {ka, 1}, {ma, vorher}, {ca, 1}});
    zeige({{na, 50}, {ka, 100}, {ma, 7}, {ca, 14}});
    QCOMPARE(controller().kanaview->color(), farbe);
    QCOMPARE(controller().kanaview->value(), 5.0);
    QCOMPARE(controller().macaview->color(), farbe);
    QCOMPARE(controller().macaview->value(), 5.0);
}

void TestRelationsanzeige::withNothingToCompareWithThereIsADash()
{
    zeige({{na, 3}, {ka, 1}, {ma, 3}, {ca, 1}});
    zeige({{na, 800}, {ma, 40}});
    QCOMPARE(controller().kanafeld->stringValue(), QStringLiteral("   - "));
    QCOMPARE(Probefenster::text(*controller().kanafeld), QStringLiteral("   - "));
    QCOMPARE(controller().kanafeld->floatValue(), 0.0F);
    QCOMPARE(controller().kanaview->color(), gruen);
    QCOMPARE(controller().kanaview->value(), 0.0);
    QCOMPARE(Probefenster::text(*controller().macafeld), QStringLiteral("   - "));
    QCOMPARE(controller().macaview->color(), gruen);
    QCOMPARE(controller().macaview->value(), 0.0);
}

void TestRelationsanzeige::aNumberComesBackAfterTheDash()
{
    zeige({});
    QCOMPARE(Probefenster::text(*controller().kanafeld), QStringLiteral("   - "));
    zeige({{na, 1}, {ka, 4}});
    QCOMPARE(Probefenster::text(*controller().kanafeld), QStringLiteral("0,25"));
    QCOMPARE(Probefenster::text(*controller().macafeld), QStringLiteral("   - "));
}

void TestRelationsanzeige::valuesThatAreNoNumbersDoNoHarm()
{
    const float keine = std::numeric_limits<float>::quiet_NaN();
    const float unendlich = std::numeric_limits<float>::infinity();
    zeige({{na, 3}, {ka, 1}, {ma, 3}, {ca, 1}, {kh, 100}});
    zeige({{na, keine}, {ka, 1}, {ma, unendlich}, {ca, 1}, {kh, keine}});
    QCOMPARE(controller().kanaview->color(), rot); // neither above nor below a half
    QCOMPARE(controller().kanaview->value(), 0.0);
    QCOMPARE(controller().macaview->color(), rot);
    QCOMPARE(controller().macaview->value(), 100.0);
    QCOMPARE(controller().beview->value(), 0.0);
    QVERIFY(!controller().Hauptfenster->grab().isNull());
}

void TestRelationsanzeige::breadUnitsAreTwelfths_data()
{
    QTest::addColumn<float>("kohlenhydrate");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QColor>("farbe");
    QTest::addColumn<double>("laenge");
    QTest::newRow("12 g are one") << 12.0F << QStringLiteral("1,0 BE") << gruen << 10.0;
    QTest::newRow("none") << 0.0F << QStringLiteral("0,0 BE") << gruen << 0.0;
    QTest::newRow("64.7 g") << 64.7F << QStringLiteral("5,4 BE") << gruen << 53.0;
    // 64.8 by 12 in single precision is 5.4000001 when it is held against the 5.4 of double.
    QTest::newRow("64.8 g") << 64.8F << QStringLiteral("5,4 BE") << rot << 54.0;
    QTest::newRow("64.9 g") << 64.9F << QStringLiteral("5,4 BE") << rot << 54.0;
    QTest::newRow("120 g fill the bar") << 120.0F << QStringLiteral("10,0 BE") << rot << 100.0;
    QTest::newRow("more is not longer") << 300.0F << QStringLiteral("25,0 BE") << rot << 100.0;
}

void TestRelationsanzeige::breadUnitsAreTwelfths()
{
    QFETCH(float, kohlenhydrate);
    QFETCH(QString, text);
    QFETCH(QColor, farbe);
    QFETCH(double, laenge);
    zeige({{kh, farbe == rot ? 1.0F : 100.0F}});
    zeige({{kh, kohlenhydrate}});
    QVERIFY(controller().befeld->floatValue() == kohlenhydrate / 12.0F);
    QCOMPARE(Probefenster::text(*controller().befeld), text);
    QCOMPARE(controller().beview->color(), farbe);
    QCOMPARE(controller().beview->value(), laenge);
}

void TestRelationsanzeige::carbohydrateUnitsAreTenths()
{
    zeige({{kh, 73}});
    QVERIFY(controller().kaefeld->floatValue() == 7.3F);
    QCOMPARE(Probefenster::text(*controller().kaefeld), QStringLiteral("7,3 KE"));
}

/// A relation does not depend on the amount, the units do.
void TestRelationsanzeige::allFollowTheAmount()
{
    zeige({{na, 1}, {ka, 4}, {ma, 3}, {ca, 1}, {kh, 24}});
    m_fenster->tippeMenge(QStringLiteral("300"));
    QCOMPARE(Probefenster::text(*controller().kanafeld), QStringLiteral("0,25"));
    QCOMPARE(Probefenster::text(*controller().befeld), QStringLiteral("6,0 BE"));
    QCOMPARE(controller().beview->color(), rot);
    QCOMPARE(Probefenster::text(*controller().kaefeld), QStringLiteral("7,2 KE"));
    m_fenster->tippeMenge(QStringLiteral("0"));
    QCOMPARE(Probefenster::text(*controller().kanafeld), QStringLiteral("   - "));
    QCOMPARE(Probefenster::text(*controller().befeld), QStringLiteral("0,0 BE"));
    QCOMPARE(controller().beview->color(), gruen);
}

QTEST_MAIN(TestRelationsanzeige)
#include "TestRelationsanzeige.moc"
