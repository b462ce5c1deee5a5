#include "Probefenster.h"

#include <QSlider>
#include <QTest>

#include <limits>

using enum Naehrwert;

/// The amount of the food on display: the three sliders, what they say, and what they show.
class TestMenge : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void anAmountIsSaidInThreeWays_data();
    void anAmountIsSaidInThreeWays();
    void eachSliderTakesTheOthersAlong_data();
    void eachSliderTakesTheOthersAlong();
    void theArrowKeysMoveTheAmount();
    void gramsAreNotTranslated();
    void aPartOfAGramIsDropped();
    void onlyAHundredGramsCanBeSaved_data();
    void onlyAHundredGramsCanBeSaved();
    void theValuesAreThoseOfTheAmount();
    void theyAreWorkedOutInSinglePrecision();
    void aTraceIsNotNothing();
    void theLevelsStayThoseOfAHundredGrams();
    void nothingHidesEveryValue();
    void aNewFoodIsShownForTheAmount();
    void kilojoulesAndEvaluationFollow();
    void anOwnFoodIsReadFromTheOwnList();
    void afterASearchTheRowOfTheTableIsRead();
    void theRowItselfIsReadAlsoWhereASelectionShowsAnother_data();
    void theRowItselfIsReadAlsoWhereASelectionShowsAnother();
    void withoutARowTheDisplayStays();
    void oddValuesLeaveAFieldAsItWas_data();
    void oddValuesLeaveAFieldAsItWas();

private:
    void oeffne(const Lebensmittelverzeichnis &eingebaut,
                const Lebensmittelverzeichnis &eigene = {});
    AppController &controller() const { return m_fenster->controller(); }
    QString gezeigt() const { return Probefenster::text(*controller().feldA); }
    QStringList anzeigen() const;
    QList<int> mengen() const;

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

void TestMenge::init()
{
    m_heim = std::make_unique<Probeheim>();
}

void TestMenge::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

void TestMenge::oeffne(const Lebensmittelverzeichnis &eingebaut,
                       const Lebensmittelverzeichnis &eigene)
{
    m_heim->schreibeTabelle(eingebaut);
    m_heim->schreibeEigene(eigene);
    m_fenster = std::make_unique<Probefenster>(*m_heim);
}

QStringList TestMenge::anzeigen() const
{
    return {Probefenster::text(*controller().anzeigelebensmittelmenge),
            Probefenster::text(*controller().anzeigelebensmittelmenge2),
            Probefenster::text(*controller().anzeigelebensmittelmenge3)};
}

QList<int> TestMenge::mengen() const
{
    return {controller().lebensmittelmenge->intValue(), controller().lebensmittelmenge2->intValue(),
            controller().lebensmittelmenge3->intValue()};
}

void TestMenge::anAmountIsSaidInThreeWays_data()
{
    QTest::addColumn<QString>("getippt");
    QTest::addColumn<QStringList>("texte");
    const auto drei = [](const char *gramm) {
        const QString menge = QLatin1String(gramm);
        return QStringList{QStringLiteral("Inhaltstoffe in %1 gramm").arg(menge),
                           QStringLiteral("% der Zufuhr in %1 gramm").arg(menge),
                           QStringLiteral("BE und Relationen in %1 gramm").arg(menge)};
    };
    QTest::newRow("30") << QStringLiteral("30") << drei("30");
    QTest::newRow("2") << QStringLiteral("2") << drei("2");
    QTest::newRow("0") << QStringLiteral("0") << drei("0");
    QTest::newRow("1000, without a point") << QStringLiteral("1000") << drei("1000");
    const QString eins = QStringLiteral("Inhaltstoffe in 1 gramm");
    QTest::newRow("1 says the same three times")
        << QStringLiteral("1") << QStringList{eins, eins, eins};
}

void TestMenge::anAmountIsSaidInThreeWays()
{
    QFETCH(QString, getippt);
    QFETCH(QStringList, texte);
    oeffne(zaehltabelle(3));
    m_fenster->tippeMenge(getippt);
    QCOMPARE(anzeigen(), texte);
    QCOMPARE(controller().lebensmittelmenge->intValue(), getippt.toInt());
}

void TestMenge::eachSliderTakesTheOthersAlong_data()
{
    QTest::addColumn<int>("reiter");
    QTest::newRow("the first") << 0;
    QTest::newRow("the second") << 1;
    QTest::newRow("the third") << 2;
}

void TestMenge::eachSliderTakesTheOthersAlong()
{
    QFETCH(int, reiter);
    oeffne(zaehltabelle(200));
    m_fenster->klicke(149, inName);
    controller().DatenAnsicht->setCurrentIndex(reiter);
    const QList<Schieber *> regler = {controller().lebensmittelmenge,
                                      controller().lebensmittelmenge2,
                                      controller().lebensmittelmenge3};
    Probefenster::tippeMenge(*regler[reiter], QStringLiteral("40"));
    QCOMPARE(mengen(), QList<int>({40, 40, 40}));
    QCOMPARE(anzeigen()[0], QStringLiteral("Inhaltstoffe in 40 gramm"));
    QCOMPARE(Probefenster::text(*controller().feldB), QStringLiteral("60 kcal"));
    for (const Schieber *einer : regler) {
        QTRY_COMPARE(einer->regler()->value(), 40);
    }
}

void TestMenge::theArrowKeysMoveTheAmount()
{
    oeffne(zaehltabelle(3));
    QCoreApplication::processEvents();
    QSlider *regler = controller().lebensmittelmenge->regler();
    QTest::keyClick(regler, Qt::Key_Right);
    QCOMPARE(mengen(), QList<int>({101, 101, 101}));
    QCOMPARE(anzeigen()[1], QStringLiteral("% der Zufuhr in 101 gramm"));
    QTest::keyClick(regler, Qt::Key_Home);
    QCOMPARE(mengen(), QList<int>({0, 0, 0}));
    QTest::keyClick(regler, Qt::Key_Up);
    QCOMPARE(anzeigen()[2], QStringLiteral("Inhaltstoffe in 1 gramm"));
}

void TestMenge::gramsAreNotTranslated()
{
    const Probeuebersetzer englisch(
        {{QStringLiteral("Inhaltstoffe in "), QStringLiteral("Contents of ")},
         {QStringLiteral("% der Zufuhr in "), QStringLiteral("% of intake in ")},
         {QStringLiteral("BE und Relationen in "), QStringLiteral("Relations in ")},
         {QStringLiteral(" gramm"), QStringLiteral(" grams")},
         {QStringLiteral("Inhaltstoffe in 1 gramm"), QStringLiteral("Contents of 1 gram")}});
    oeffne(zaehltabelle(3));
    m_fenster->tippeMenge(QStringLiteral("30"));
    QCOMPARE(anzeigen(), QStringList({QStringLiteral("Contents of 30 gramm"),
                                      QStringLiteral("% of intake in 30 gramm"),
                                      QStringLiteral("Relations in 30 gramm")}));
    m_fenster->tippeMenge(QStringLiteral("1"));
    QCOMPARE(anzeigen()[1], QStringLiteral("Contents of 1 gram"));
}

/// The amount is whole grams; the caption says what the sender says.
void TestMenge::aPartOfAGramIsDropped()
{
    oeffne(zaehltabelle(3));
    Textfeld sender;
    sender.setStringValue(QStringLiteral("30,7"));
    controller().wieviellebensmittel2(sender);
    QCOMPARE(mengen(), QList<int>({30, 30, 30}));
    QCOMPARE(anzeigen()[1], QStringLiteral("% der Zufuhr in 30,7 gramm"));
    sender.setStringValue(QStringLiteral("1,9"));
    controller().wieviellebensmittel3(sender);
    QCOMPARE(anzeigen()[2], QStringLiteral("Inhaltstoffe in 1 gramm"));
    sender.setStringValue(QStringLiteral("-"));
    controller().wieviellebensmittel(sender);
    QCOMPARE(mengen(), QList<int>({0, 0, 0}));
    QCOMPARE(anzeigen()[0], QStringLiteral("Inhaltstoffe in - gramm"));
}

void TestMenge::onlyAHundredGramsCanBeSaved_data()
{
    QTest::addColumn<QString>("getippt");
    QTest::addColumn<bool>("sicherbar");
    QTest::newRow("99") << QStringLiteral("99") << false;
    QTest::newRow("100") << QStringLiteral("100") << true;
    QTest::newRow("101") << QStringLiteral("101") << false;
    QTest::newRow("0") << QStringLiteral("0") << false;
    QTest::newRow("1") << QStringLiteral("1") << false;
    QTest::newRow("1000") << QStringLiteral("1000") << false;
}

void TestMenge::onlyAHundredGramsCanBeSaved()
{
    QFETCH(QString, getippt);
    QFETCH(bool, sicherbar);
    oeffne(zaehltabelle(3));
    m_fenster->tippeMenge(sicherbar ? QStringLiteral("50") : QStringLiteral("100"));
    m_fenster->tippeMenge(getippt);
    QCOMPARE(controller().sichernknopf->isEnabled(), sicherbar);
}

void TestMenge::theValuesAreThoseOfTheAmount()
{
    Datenmodul alles = lebensmittel(QStringLiteral("Bunter Teller"));
    for (std::size_t i = 0; i < anzahlNaehrwerte; ++i) {
        alles.setWert(static_cast<Naehrwert>(i), static_cast<float>(i + 1) * 4.0F);
    }
    oeffne(verzeichnis({alles}));
    m_fenster->tippeMenge(QStringLiteral("25"));
    for (std::size_t i = 0; i < anzahlNaehrwerte; ++i) {
        QCOMPARE(controller().wertfelder()[i]->floatValue(), static_cast<float>(i + 1));
    }
    m_fenster->tippeMenge(QStringLiteral("100")); // the stored values themselves
    for (std::size_t i = 0; i < anzahlNaehrwerte; ++i) {
        QVERIFY(controller().wertfelder()[i]->floatValue() == static_cast<float>(i + 1) * 4.0F);
    }
}

/// 11.3 times 33 by 100, every step rounded to single precision; in double, or with 33 by 100
/// first, it would be another number.
void TestMenge::theyAreWorkedOutInSinglePrecision()
{
    oeffne(verzeichnis({lebensmittel(QStringLiteral("Speise"), {{kh, 11.3F}})}));
    m_fenster->tippeMenge(QStringLiteral("33"));
    QVERIFY(controller().khfeld->floatValue() == 3.7289998531341553F);
    QCOMPARE(Probefenster::text(*controller().khfeld), QStringLiteral("3,7 g"));
}

void TestMenge::aTraceIsNotNothing()
{
    oeffne(verzeichnis(
        {lebensmittel(QStringLiteral("Gurke"), {{kal, 12}, {protein, 0.6F}, {b1, 0.02F}})}));
    m_fenster->klicke(0, inName);
    m_fenster->tippeMenge(QStringLiteral("1"));
    QCOMPARE(Probefenster::text(*controller().feldB), QStringLiteral("0,1 kcal"));
    QCOMPARE(Probefenster::text(*controller().proteinfeld), QStringLiteral("0,006 g"));
    QCOMPARE(Probefenster::text(*controller().b1feld), QStringLiteral("0,0002 mg"));
    m_fenster->tippeMenge(QStringLiteral("100"));
    QCOMPARE(Probefenster::text(*controller().proteinfeld), QStringLiteral("0,6 g"));
    QCOMPARE(Probefenster::text(*controller().b1feld), QStringLiteral("0,020 mg"));
}

void TestMenge::theLevelsStayThoseOfAHundredGrams()
{
    oeffne(verzeichnis(
        {lebensmittel(QStringLiteral("Speise"), {{protein, 12}, {fett, 30}, {kh, 50}})}));
    m_fenster->tippeMenge(QStringLiteral("20"));
    QCOMPARE(controller().proteinanzeige->doubleValue(), 12.0);
    QCOMPARE(controller().fettanzeige->doubleValue(), 30.0);
    QCOMPARE(controller().khanzeige->doubleValue(), 50.0);
}

void TestMenge::nothingHidesEveryValue()
{
    Datenmodul alles = lebensmittel(QStringLiteral("Bunter Teller"));
    for (std::size_t i = 0; i < anzahlNaehrwerte; ++i) {
        alles.setWert(static_cast<Naehrwert>(i), 5.0F);
    }
    oeffne(verzeichnis({alles}));
    m_fenster->tippeMenge(QStringLiteral("0"));
    const AppController &c = controller();
    for (const Textfeld *feld : c.wertfelder()) {
        QVERIFY(feld->isHidden());
        QCOMPARE(feld->floatValue(), 0.0F);
    }
    QVERIFY(c.feldBeinaus->isHidden() && c.proteineinaus->isHidden() &&
            c.vitcfeldeinaus->isHidden());
    QVERIFY(c.joulefeld->isHidden() && c.joulefeldeinaus->isHidden());
    QVERIFY(!c.feldA->isHidden() && !c.lebensmittelmenge->isHidden());
    m_fenster->tippeMenge(QStringLiteral("1"));
    for (const Textfeld *feld : c.wertfelder()) {
        QVERIFY(!feld->isHidden());
    }
    QVERIFY(!c.joulefeld->isHidden() && !c.joulefeldeinaus->isHidden());
}

void TestMenge::aNewFoodIsShownForTheAmount()
{
    oeffne(zaehltabelle(200));
    m_fenster->tippeMenge(QStringLiteral("50"));
    m_fenster->klicke(99, inName);
    QCOMPARE(Probefenster::text(*controller().feldB), QStringLiteral("50 kcal"));
    QCOMPARE(anzeigen()[0], QStringLiteral("Inhaltstoffe in 50 gramm"));
    QCOMPARE(mengen(), QList<int>({50, 50, 50}));
}

void TestMenge::kilojoulesAndEvaluationFollow()
{
    oeffne(verzeichnis({lebensmittel(QStringLiteral("Käse"),
                                     {{kal, 400}, {ca, 1000}, {kh, 48}, {na, 600}, {ka, 100}})}));
    m_fenster->tippeMenge(QStringLiteral("25"));
    QVERIFY(controller().joulefeld->floatValue() == static_cast<float>(417.910447761194));
    QCOMPARE(Probefenster::text(*controller().catagesbedarffeld), QStringLiteral("25 %"));
    QCOMPARE(Probefenster::text(*controller().befeld), QStringLiteral("1,0 BE"));
    QCOMPARE(controller().beview->value(), 10.0);
}

void TestMenge::anOwnFoodIsReadFromTheOwnList()
{
    oeffne(zaehltabelle(5), verzeichnis({lebensmittel(QStringLiteral("Eigenes A"), {{kal, 400}}),
                                         lebensmittel(QStringLiteral("Eigenes B"), {{kal, 600}})}));
    m_fenster->klicke(1, inEigen);
    m_fenster->tippeMenge(QStringLiteral("50"));
    QCOMPARE(gezeigt(), QStringLiteral("Eigenes B"));
    QCOMPARE(Probefenster::text(*controller().feldB), QStringLiteral("300 kcal"));
    QCOMPARE(controller().welcheTabelleAktiv, 2);
}

/// The result was an own food; its row in the table holds a built-in one, and that is read.
void TestMenge::afterASearchTheRowOfTheTableIsRead()
{
    oeffne(zaehltabelle(5), verzeichnis({lebensmittel(QStringLiteral("Eigenes A"), {{kal, 400}}),
                                         lebensmittel(QStringLiteral("Eigenes B"), {{kal, 600}})}));
    controller().suchArray = {QStringLiteral("Eigenes B")};
    m_fenster->klicke(0, inSuch);
    QCOMPARE(gezeigt(), QStringLiteral("Eigenes B"));
    // Showing the row's own food wakes the sliders, and leaves the clicked column.
    QTest::keyClick(controller().Hauptfenster, Qt::Key_E, Qt::ControlModifier);
    Probefenster::tippeMenge(*controller().lebensmittelmenge2, QStringLiteral("200"));
    QCOMPARE(gezeigt(), zaehlname(1));
    QCOMPARE(controller().unuebersetztername, zaehlname(1));
    QCOMPARE(Probefenster::text(*controller().feldB), QStringLiteral("4 kcal"));
}

void TestMenge::theRowItselfIsReadAlsoWhereASelectionShowsAnother_data()
{
    QTest::addColumn<int>("zeile");
    QTest::addColumn<int>("vorher");
    QTest::newRow("a second name") << 576 << 575;
    QTest::newRow("another second name") << 604 << 575;
    QTest::newRow("a row that is not shown") << 1016 << 0;
}

void TestMenge::theRowItselfIsReadAlsoWhereASelectionShowsAnother()
{
    QFETCH(int, zeile);
    QFETCH(int, vorher);
    oeffne(zaehltabelle(1020));
    m_fenster->klicke(zeile, inName);
    QCOMPARE(gezeigt(), zaehlname(vorher));
    Textfeld sender; // where the display is hidden, no slider can be reached
    sender.setIntValue(200);
    controller().wieviellebensmittel(sender);
    QCOMPARE(gezeigt(), zaehlname(zeile));
    QCOMPARE(controller().feldB->intValue(), 2 * (zeile + 1));
}

void TestMenge::withoutARowTheDisplayStays()
{
    oeffne(zaehltabelle(5), zaehltabelle(1));
    m_fenster->klicke(3, inName);
    m_fenster->klickeDaneben();
    m_fenster->tippeMenge(QStringLiteral("200"));
    QCOMPARE(gezeigt(), zaehlname(3));
    QCOMPARE(controller().feldB->intValue(), 4); // for the old amount
    QCOMPARE(anzeigen()[0], QStringLiteral("Inhaltstoffe in 200 gramm"));
    controller().feldB->setFloatValue(67); // what stands on display is worked with
    m_fenster->klicke(4, inEigen);         // an empty cell
    m_fenster->tippeMenge(QStringLiteral("300"));
    QCOMPARE(gezeigt(), zaehlname(3));
    QCOMPARE(controller().joulefeld->floatValue(), 280.0F);
}

void TestMenge::oddValuesLeaveAFieldAsItWas_data()
{
    QTest::addColumn<float>("wert");
    QTest::addColumn<bool>("vorherSichtbar");
    QTest::addColumn<bool>("sichtbar");
    QTest::addColumn<bool>("sichtbarBeiNull");
    const float keine = std::numeric_limits<float>::quiet_NaN();
    const float unendlich = std::numeric_limits<float>::infinity();
    QTest::newRow("negative after a value") << -3.0F << true << true << false;
    QTest::newRow("negative after nothing") << -3.0F << false << false << false;
    QTest::newRow("no number after a value") << keine << true << true << true;
    QTest::newRow("no number after nothing") << keine << false << false << false;
    QTest::newRow("endless after nothing") << unendlich << false << true << true;
    QTest::newRow("endlessly negative after a value") << -unendlich << true << true << true;
    QTest::newRow("negative zero is 0") << -0.0F << true << false << false;
    QTest::newRow("the smallest there is") << 1e-45F << false << true << false;
}

/// Such values come from a file. 0 g make a zero of a negative value, and no number of infinity.
void TestMenge::oddValuesLeaveAFieldAsItWas()
{
    QFETCH(float, wert);
    QFETCH(bool, vorherSichtbar);
    QFETCH(bool, sichtbar);
    QFETCH(bool, sichtbarBeiNull);
    const float vorher = vorherSichtbar ? 1.0F : 0.0F;
    oeffne(verzeichnis({lebensmittel(QStringLiteral("Apfel"), {{kal, vorher}, {b6, vorher}}),
                        lebensmittel(QStringLiteral("Unsinn"), {{kal, wert}, {b6, wert}})}));
    const auto zustand = [this](bool da) {
        const AppController &c = controller();
        const QList<QWidget *> alle = {c.feldB,           c.feldBeinaus, c.joulefeld,
                                       c.joulefeldeinaus, c.b6feld,      c.b6feldeinaus};
        return std::all_of(alle.begin(), alle.end(),
                           [da](const QWidget *w) { return w->isHidden() != da; });
    };
    QVERIFY(zustand(vorherSichtbar));
    m_fenster->klicke(1, inName);
    QCOMPARE(gezeigt(), QStringLiteral("Unsinn"));
    QVERIFY(zustand(sichtbar));
    QVERIFY(!controller().Hauptfenster->grab().isNull());
    m_fenster->tippeMenge(QStringLiteral("0"));
    QVERIFY(zustand(sichtbarBeiNull));
    QVERIFY(!controller().Hauptfenster->grab().isNull());
}

QTEST_MAIN(TestMenge)
#include "TestMenge.moc"
