#include "Probefenster.h"

#include <QTest>

#include <cmath>
#include <limits>

using enum Naehrwert;

/// What a selection works out from the values on display: the shares of energy, the kilojoules,
/// and the colours of the ratings.
class TestEnergieanzeige : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_heim = std::make_unique<Probeheim>(); }
    void cleanup();
    void theSharesComeFromTheDisplayedValues_data();
    void theSharesComeFromTheDisplayedValues();
    void sharesOfNothingAreThreeZeros();
    void aValueThatIsNoNumberCountsAsEnergy();
    void theSharesAreThoseOfTheChosenAmount();
    void theCircleGetsTheSharesAndNoGrams();
    void theKilojoulesAreWorkedOutInDouble_data();
    void theKilojoulesAreWorkedOutInDouble();
    void theRatingsAreColoured_data();
    void theRatingsAreColoured();
    void noColourComesOverFromTheLastFood();
    void theColourCanBeSeen();

private:
    /// Opens a window in which row 1 holds this food and row 0 another one, and chooses row 1.
    void zeige(const Datenmodul &speise);
    AppController &controller() const { return m_fenster->controller(); }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

void TestEnergieanzeige::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

void TestEnergieanzeige::zeige(const Datenmodul &speise)
{
    m_heim->schreibeTabelle(verzeichnis(
        {lebensmittel(QStringLiteral("Apfel"), {{kal, 52}, {kh, 12}, {fett, 1}}), speise}));
    m_fenster = std::make_unique<Probefenster>(*m_heim);
    m_fenster->klicke(1, inName);
    QCOMPARE(Probefenster::text(*controller().feldA), speise.name());
}

void TestEnergieanzeige::theSharesComeFromTheDisplayedValues_data()
{
    QTest::addColumn<float>("p");
    QTest::addColumn<float>("k");
    QTest::addColumn<float>("f");
    QTest::addColumn<float>("gesamt");
    QTest::addColumn<float>("vomProtein");
    QTest::addColumn<float>("vonKh");
    QTest::addColumn<float>("vomFett");
    QTest::newRow("protein alone") << 25.0F << 0.0F << 0.0F << 100.0F << 100.0F << 0.0F << 0.0F;
    QTest::newRow("fat alone") << 0.0F << 0.0F << 2.0F << 18.0F << 0.0F << 0.0F << 100.0F;
    QTest::newRow("fat has nine kilocalories")
        << 9.0F << 9.0F << 8.0F << 144.0F << 25.0F << 25.0F << 50.0F;
    QTest::newRow("fractions count")
        << 0.5F << 0.25F << 0.5F << 7.5F << 200.0F / 7.5F << 100.0F / 7.5F << 450.0F / 7.5F;
    QTest::newRow("a negative value") << -1.0F << 3.5F << 0.0F << 10.0F << -40.0F << 140.0F << 0.0F;
    QTest::newRow("values that cancel out")
        << 9.0F << 0.0F << -4.0F << 0.0F << 0.0F << 0.0F << 0.0F;
}

void TestEnergieanzeige::theSharesComeFromTheDisplayedValues()
{
    QFETCH(float, p);
    QFETCH(float, k);
    QFETCH(float, f);
    zeige(lebensmittel(QStringLiteral("Speise"), {{protein, p}, {kh, k}, {fett, f}}));
    QTEST(controller().gesamtkal, "gesamt");
    QTEST(controller().kalumrprot, "vomProtein");
    QTEST(controller().kalumrkh, "vonKh");
    QTEST(controller().kalumrfett, "vomFett");
}

void TestEnergieanzeige::sharesOfNothingAreThreeZeros()
{
    zeige(lebensmittel(QStringLiteral("Wasser")));
    QCOMPARE(controller().gesamtkal, 0.0F);
    QCOMPARE(controller().kalumrprot, 0.0F);
    QCOMPARE(controller().kalumrkh, 0.0F);
    QCOMPARE(controller().kalumrfett, 0.0F);
    QCOMPARE(controller().nahrview->b(), 0.0F);
}

void TestEnergieanzeige::aValueThatIsNoNumberCountsAsEnergy()
{
    zeige(lebensmittel(QStringLiteral("Unsinn"),
                       {{protein, std::numeric_limits<float>::quiet_NaN()}, {kh, 10}}));
    QVERIFY(std::isnan(controller().gesamtkal));
    QVERIFY(std::isnan(controller().kalumrprot));
    QVERIFY(std::isnan(controller().kalumrkh));
    QVERIFY(std::isnan(controller().nahrview->a()));
    QVERIFY(!controller().Hauptfenster->grab().isNull());
}

void TestEnergieanzeige::theSharesAreThoseOfTheChosenAmount()
{
    zeige(lebensmittel(QStringLiteral("Speise"), {{protein, 10}, {kh, 20}, {fett, 5}}));
    QCOMPARE(controller().gesamtkal, 165.0F);
    m_fenster->tippeMenge(QStringLiteral("200"));
    QCOMPARE(controller().gesamtkal, 165.0F); // only a selection works them out
    m_fenster->klicke(1, inName);
    QCOMPARE(controller().gesamtkal, 330.0F);
    QCOMPARE(controller().kalumrprot, 8000.0F / 330.0F);
    m_fenster->tippeMenge(QStringLiteral("0"));
    m_fenster->klicke(1, inName);
    QCOMPARE(controller().gesamtkal, 0.0F);
    QCOMPARE(controller().kalumrkh, 0.0F);
}

void TestEnergieanzeige::theCircleGetsTheSharesAndNoGrams()
{
    zeige(lebensmittel(QStringLiteral("Speise"), {{protein, 9}, {kh, 9}, {fett, 8}}));
    const NahrstoffraumView &kreis = *controller().nahrview;
    QCOMPARE(kreis.a(), 25.0F);
    QCOMPARE(kreis.b(), 25.0F);
    QCOMPARE(kreis.c(), 50.0F);
    QCOMPARE(kreis.istwerte().fett, 0.5F);
    QCOMPARE(kreis.aa(), 0);
    QCOMPARE(kreis.bb(), 0);
    QCOMPARE(kreis.cc(), 0);
}

void TestEnergieanzeige::theKilojoulesAreWorkedOutInDouble_data()
{
    QTest::addColumn<float>("kilokalorien");
    QTest::addColumn<float>("kilojoule");
    QTest::addColumn<QString>("text");
    QTest::newRow("100 kcal") << 100.0F << static_cast<float>(417.910447761194)
                              << QStringLiteral("418 kJ");
    QTest::newRow("67 kcal are 280 kJ") << 67.0F << 280.0F << QStringLiteral("280 kJ");
    QTest::newRow("1 kcal") << 1.0F << static_cast<float>(4.17910447761194)
                            << QStringLiteral("4 kJ");
    QTest::newRow("a negative value")
        << -100.0F << static_cast<float>(-417.910447761194) << QStringLiteral("-418 kJ");
}

void TestEnergieanzeige::theKilojoulesAreWorkedOutInDouble()
{
    QFETCH(float, kilokalorien);
    QFETCH(float, kilojoule);
    QFETCH(QString, text);
    zeige(lebensmittel(QStringLiteral("Speise"), {{kal, kilokalorien}}));
    QVERIFY(controller().joulefeld->floatValue() == kilojoule); // to the last digit
    QCOMPARE(Probefenster::text(*controller().joulefeld), text);
}

void TestEnergieanzeige::theRatingsAreColoured_data()
{
    using enum Textfarbe;
    QTest::addColumn<QStringList>("urteile");
    QTest::addColumn<QList<Textfarbe>>("farben");
    const auto zeile = [](const char *name, const QString &urteile,
                          const QList<Textfarbe> &farben) {
        QTest::newRow(name) << urteile.split(QLatin1Char('|')) << farben;
    };
    zeile("green, red and blue", QStringLiteral("+|-|0|+"), {Gruen, Rot, Blau, Gruen});
    zeile("all alike", QStringLiteral("-|-|-|-"), {Rot, Rot, Rot, Rot});
    zeile("another text takes the colour before it", QStringLiteral("-|?|0|?"),
          {Rot, Rot, Blau, Blau});
    zeile("over two fields", QStringLiteral("+|x|y|-"), {Gruen, Gruen, Gruen, Rot});
    zeile("the first has nothing before it", QStringLiteral("?|?|0|?"),
          {Standard, Standard, Blau, Blau});
    zeile("none is known", QStringLiteral("?|||?"), {Standard, Standard, Standard, Standard});
    zeile("an empty text is another text", QStringLiteral("+|||"), {Gruen, Gruen, Gruen, Gruen});
    zeile("blanks count", QStringLiteral("0| +|- |++"), {Blau, Blau, Blau, Blau});
}

void TestEnergieanzeige::theRatingsAreColoured()
{
    QFETCH(QStringList, urteile);
    QFETCH(QList<Textfarbe>, farben);
    zeige(lebensmittel(QStringLiteral("Speise"), {}, urteile));
    for (int i = 0; i < 4; ++i) {
        const Textfeld &feld = *controller().wertungsfelder()[static_cast<std::size_t>(i)];
        QCOMPARE(feld.stringValue(), urteile[i]);
        QVERIFY2(feld.textColor() == farben[i], qPrintable(QString::number(i)));
    }
}

void TestEnergieanzeige::noColourComesOverFromTheLastFood()
{
    zeige(lebensmittel(QStringLiteral("Speise"), {},
                       {QStringLiteral("?"), QStringLiteral("?"), {}, QStringLiteral("+")}));
    m_fenster->klicke(0, inName);
    QVERIFY(controller().hkkfeld->textColor() == Textfarbe::Gruen);
    m_fenster->klicke(1, inName);
    QVERIFY(controller().uebergewichtfeld->textColor() == Textfarbe::Standard);
    QVERIFY(controller().gichtfeld->textColor() == Textfarbe::Standard);
}

void TestEnergieanzeige::theColourCanBeSeen()
{
    zeige(lebensmittel(
        QStringLiteral("Speise"), {},
        {QStringLiteral("+"), QStringLiteral("-"), QStringLiteral("0"), QStringLiteral("?")}));
    QList<QColor> gesehen;
    for (const Textfeld *feld : controller().wertungsfelder()) {
        gesehen << feld->palette().color(QPalette::Text);
    }
    QVERIFY(gesehen[0].green() > gesehen[0].red() && gesehen[0].green() > gesehen[0].blue());
    QVERIFY(gesehen[1].red() > gesehen[1].green() && gesehen[1].red() > gesehen[1].blue());
    QVERIFY(gesehen[2].blue() > gesehen[2].red() && gesehen[2].blue() > gesehen[2].green());
    QCOMPARE(gesehen[3], gesehen[2]);
}

QTEST_MAIN(TestEnergieanzeige)
#include "TestEnergieanzeige.moc"
