#include "Rechnerprobe.h"

#include <QAbstractButton>
#include <QLabel>
#include <QTest>

/// What the calculator shows, keeps and tells the plan when the program starts.
class TestAnthroControllerStart : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFirstStartShowsZeros();
    void aFirstStartStoresNothing();
    void thePlanGetsTheStartValueAloneThenAllFour();
    void storedSettingsAreShown();
    void storedNumbersReadAsStates_data();
    void storedNumbersReadAsStates();
    void whatIsNotANumberReadsAsZero_data();
    void whatIsNotANumberReadsAsZero();
    void sportIsStoredButNotReadBack();
    void valuesBeyondTheSlidersStayAsTheyAre();
    void theOtherStartValues();
    void aFaceInAGapKeepsTheStartsDecision_data();
    void aFaceInAGapKeepsTheStartsDecision();
    void eachFaceHasThePicturesInOrder();
    void aConnectedPlanIsUsed();
    void oneClientForAllPlans();
};

void TestAnthroControllerStart::aFirstStartShowsZeros()
{
    Rechnerprobe probe;
    for (const Wertehalter *feld : std::initializer_list<const Wertehalter *>{
             probe->gewicht, probe->gewichtn, probe->gewichtbmi, probe->gewicht2, probe->groesse,
             probe->groessen, probe->hueftumfang, probe->hueftn, probe->taillenumfang,
             probe->taillen, probe->resultatbmi, probe->resultatwh, probe->resultatkal, probe->feet,
             probe->inch, probe->lbs}) {
        QVERIFY(feld->haeltZahl());
        QCOMPARE(feld->doubleValue(), 0.0);
    }
    QCOMPARE(probe->kal, 0);
    QCOMPARE(probe->kalunbereinigt, 0);
    QCOMPARE(probe->bmifaceview->entscheidungszahl(), 3);
    QCOMPARE(probe->whfaceview->entscheidungszahl(), 3);
    QCOMPARE(probe->kalfaceview->entscheidungszahl(), 3);
    QVERIFY(!probe->metrikeinaus->isChecked());
    QVERIFY(probe->gewicht->isHidden());
    QVERIFY(!probe->lbs->isHidden());
    QVERIFY(!probe->gewichtredu->isChecked());
    QCOMPARE(probe->gewichtredu->text(), QStringLiteral("aus"));
    QCOMPARE(Rechnerprobe::text(*probe->gewicht), QStringLiteral("0,0 kg"));
}

void TestAnthroControllerStart::aFirstStartStoresNothing()
{
    Rechnerprobe probe;
    QCOMPARE(probe.einstellungen().allKeys(), QStringList());
}

void TestAnthroControllerStart::thePlanGetsTheStartValueAloneThenAllFour()
{
    Rechnerprobe erster;
    const QStringList amAnfang = {QStringLiteral("kal 2112"), QStringLiteral("kal 0"),
                                  QStringLiteral("unbereinigt 0"), QStringLiteral("gewicht 0"),
                                  QStringLiteral("groesse 0")};
    QCOMPARE(erster.rufe(), amAnfang);
    QCOMPARE(erster.eigenePlaene, 1);

    Rechnerprobe spaeter({{"Gewicht", 90.0}, {"Groesse", 1.75}, {"Gewichtredukt", 1.0}});
    // 90 * 20 * 1.1 * 1.2 = 2376, a fifth of that is 475
    const QStringList spaeterGesagt = {
        QStringLiteral("kal 2112"), QStringLiteral("kal 1901"), QStringLiteral("unbereinigt 2376"),
        QStringLiteral("gewicht 90"), QStringLiteral("groesse 1.75")};
    QCOMPARE(spaeter.rufe(), spaeterGesagt);
}

void TestAnthroControllerStart::storedSettingsAreShown()
{
    Rechnerprobe probe({{"Gewicht", 80.0},
                        {"Groesse", 1.8},
                        {"Huefte", 86.0},
                        {"Taille", 71.0},
                        {"metrik", 1.0},
                        {"Gewichtredukt", 1.0}});
    for (const Wertehalter *feld : std::initializer_list<const Wertehalter *>{
             probe->gewicht, probe->gewichtn, probe->gewichtbmi, probe->gewicht2}) {
        QCOMPARE(feld->floatValue(), 80.0F);
    }
    QCOMPARE(probe->groesse->floatValue(), 1.8F);
    QCOMPARE(probe->groessen->floatValue(), 1.8F);
    QCOMPARE(probe->hueftumfang->floatValue(), 86.0F);
    QCOMPARE(probe->hueftn->floatValue(), 86.0F);
    QCOMPARE(probe->taillenumfang->floatValue(), 71.0F);
    QCOMPARE(probe->taillen->floatValue(), 71.0F);
    QCOMPARE(probe->feet->intValue(), 5);
    QCOMPARE(probe->inch->intValue(), 10);
    QCOMPARE(probe->lbs->intValue(), 176);
    QVERIFY(probe->metrikeinaus->isChecked());
    QVERIFY(!probe->gewicht->isHidden());
    QVERIFY(probe->lbs->isHidden());
    QVERIFY(probe->gewichtredu->isChecked());
    QCOMPARE(probe->gewichtredu->text(), QStringLiteral("moderat ( -1/5 Kcal)"));
    QCOMPARE(probe->resultatkal->intValue(), 1690);
    QCOMPARE(probe->kalunbereinigt, 2112);
    QCOMPARE(Rechnerprobe::text(*probe->resultatbmi), QStringLiteral("24,69 kg/m²"));
    QCOMPARE(Rechnerprobe::text(*probe->resultatwh), QStringLiteral("0,83"));
    for (const FaceView *gesicht : {probe->bmifaceview, probe->whfaceview, probe->kalfaceview}) {
        QCOMPARE(gesicht->entscheidungszahl(), 1);
    }
}

void TestAnthroControllerStart::storedNumbersReadAsStates_data()
{
    QTest::addColumn<QVariant>("zahl");
    QTest::addColumn<bool>("ein");
    QTest::newRow("0") << QVariant(0.0) << false;
    QTest::newRow("1") << QVariant(1.0) << true;
    QTest::newRow("0.9 is cut off") << QVariant(0.9) << false;
    QTest::newRow("-0.9 is cut off") << QVariant(-0.9) << false;
    QTest::newRow("1.9 is cut off") << QVariant(1.9) << true;
    QTest::newRow("1 as another tool writes it") << QVariant(QStringLiteral("1")) << true;
    QTest::newRow("a word") << QVariant(QStringLiteral("ja")) << false;
}

void TestAnthroControllerStart::storedNumbersReadAsStates()
{
    QFETCH(QVariant, zahl);
    QFETCH(bool, ein);
    Rechnerprobe probe({{"metrik", zahl}, {"Gewichtredukt", zahl}});
    QCOMPARE(probe->metrikeinaus->isChecked(), ein);
    QCOMPARE(probe->gewicht->isHidden(), !ein);
    QCOMPARE(probe->gewichtredu->isChecked(), ein);
    QCOMPARE(probe->gewichtredu->text() == QLatin1String("aus"), !ein);
}

void TestAnthroControllerStart::whatIsNotANumberReadsAsZero_data()
{
    QTest::addColumn<QVariant>("gemerkt");
    QTest::newRow("a word") << QVariant(QStringLiteral("viel"));
    QTest::newRow("a list") << QVariant(QStringList{QStringLiteral("80"), QStringLiteral("90")});
    QTest::newRow("nothing") << QVariant(QString());
    QTest::newRow("not a number") << QVariant(QStringLiteral("nan"));
    QTest::newRow("infinite") << QVariant(QStringLiteral("inf"));
    QTest::newRow("beyond single precision") << QVariant(QStringLiteral("1e300"));
}

void TestAnthroControllerStart::whatIsNotANumberReadsAsZero()
{
    QFETCH(QVariant, gemerkt);
    Rechnerprobe probe({{"Gewicht", gemerkt},
                        {"Groesse", gemerkt},
                        {"Huefte", gemerkt},
                        {"Taille", gemerkt},
                        {"metrik", gemerkt},
                        {"Gewichtredukt", gemerkt}});
    for (const Wertehalter *feld : std::initializer_list<const Wertehalter *>{
             probe->gewicht, probe->groesse, probe->hueftumfang, probe->taillenumfang,
             probe->gewichtn, probe->groessen, probe->hueftn, probe->taillen, probe->resultatbmi,
             probe->resultatwh, probe->resultatkal}) {
        QCOMPARE(feld->doubleValue(), 0.0);
    }
    QVERIFY(!probe->metrikeinaus->isChecked());
    QVERIFY(!probe->gewichtredu->isChecked());
}

void TestAnthroControllerStart::sportIsStoredButNotReadBack()
{
    Rechnerprobe probe({{"Gewicht", 80.0}, {"Sport", 600.0}, {"Sportm", 2.0}});
    QCOMPARE(probe->resultatsportkal->intValue(), 0);
    QCOMPARE(probe->sportmenge->doubleValue(), 0.0);
    QCOMPARE(probe->sportkal, 0);
    QCOMPARE(probe->kal, 2112);
}

void TestAnthroControllerStart::valuesBeyondTheSlidersStayAsTheyAre()
{
    const Gemerktes gemerktes = {
        {"Gewicht", 300.25}, {"Groesse", 0.5}, {"Huefte", 250.0}, {"Taille", 12.5}};
    Rechnerprobe probe(gemerktes);
    probe->koerperseite->show();
    QVERIFY(QTest::qWaitForWindowExposed(probe->koerperseite));
    QCoreApplication::processEvents();
    QCOMPARE(probe->gewichtn->doubleValue(), 300.25);
    QCOMPARE(probe->groessen->doubleValue(), 0.5);
    QCOMPARE(probe->hueftn->doubleValue(), 250.0);
    QCOMPARE(probe->taillen->doubleValue(), 12.5);
    QCOMPARE(Rechnerprobe::text(*probe->taillenumfang), QStringLiteral("12,5 cm"));
    QCOMPARE(probe->resultatbmi->floatValue(), 300.25F / 0.25F);
    for (const auto &[schluessel, wert] : gemerktes) {
        QCOMPARE(probe.gemerkt(schluessel), wert);
    }
}

void TestAnthroControllerStart::theOtherStartValues()
{
    Rechnerprobe probe;
    QCOMPARE(probe->geschlechtauswahl, 1.2F);
    QCOMPARE(probe->arbeitauswahl, 1.1F);
    QCOMPARE(probe->geschlecht->stringValue(), QStringLiteral("Mann"));
    QVERIFY(probe->geschlechte->istEin(0));
    QVERIFY(probe->arbeit->istEin(0));
    QCOMPARE(probe->name, QStringLiteral("Kölsch"));
    QCOMPARE(probe->alkohol->stringValue(), QStringLiteral("Kölsch"));
    QCOMPARE(probe->alk, 0.0F);
    QVERIFY(probe->ml->textColor() == Textfarbe::Schwarz);
    QVERIFY(!probe->sportmenge->isEnabledTo(nullptr));
    QCOMPARE(probe->sportstunden->stringValue(), QStringLiteral("Zeit(h)"));
    QCOMPARE(probe->alteranzeige->intValue(), 25);
    QCOMPARE(probe->alter->intValue(), 25);
}

void TestAnthroControllerStart::aFaceInAGapKeepsTheStartsDecision_data()
{
    QTest::addColumn<double>("gewicht");
    QTest::addColumn<double>("groesse");
    QTest::addColumn<int>("bmi");
    QTest::addColumn<int>("kal");
    QTest::newRow("BMI 25, 2640 kcal") << 100.0 << 2.0 << 1 << 1;
    QTest::newRow("BMI 18, 1900 kcal") << 72.0 << 2.0 << 1 << 1;
    QTest::newRow("1400 kcal") << 53.05 << 1.0 << 3 << 1;
    QTest::newRow("2700 kcal") << 102.3 << 1.0 << 3 << 1;
    QTest::newRow("1399 kcal") << 53.0 << 1.0 << 3 << 2;
    QTest::newRow("2702 kcal") << 102.35 << 1.0 << 3 << 2;
}

void TestAnthroControllerStart::aFaceInAGapKeepsTheStartsDecision()
{
    QFETCH(double, gewicht);
    QFETCH(double, groesse);
    Rechnerprobe probe({{"Gewicht", gewicht}, {"Groesse", groesse}});
    QTEST(probe->bmifaceview->entscheidungszahl(), "bmi");
    QTEST(probe->kalfaceview->entscheidungszahl(), "kal");
}

void TestAnthroControllerStart::eachFaceHasThePicturesInOrder()
{
    Rechnerprobe probe;
    QVERIFY(!probe->bilda.isNull() && !probe->bildb.isNull() && !probe->bildc.isNull());
    QCOMPARE(probe->bilda, QImage(QStringLiteral(":/bilder/smile.png")));
    QCOMPARE(probe->bildb, QImage(QStringLiteral(":/bilder/nocrie-nosmile.png")));
    QCOMPARE(probe->bildc, QImage(QStringLiteral(":/bilder/crie.png")));
    for (const FaceView *gesicht : {probe->bmifaceview, probe->whfaceview, probe->kalfaceview}) {
        QCOMPARE(gesicht->bild(), probe->bilda);
        QCOMPARE(gesicht->bild2(), probe->bildb);
        QCOMPARE(gesicht->bild3(), probe->bildc);
    }
}

void TestAnthroControllerStart::aConnectedPlanIsUsed()
{
    const QTemporaryDir ordner;
    QSettings einstellungen(ordner.filePath(QStringLiteral("probe.ini")), QSettings::IniFormat);
    QStringList rufe;
    Planprobe plan(
        {.eingebauteTabelle = {}, .datenordner = Datenordner(ordner.path()), .melde = {}}, rufe);
    int gemacht = 0;
    {
        AnthroController rechner({
            .einstellungen = &einstellungen,
            .protokolliere = {},
            .neuerPlan =
                [&gemacht] {
                    ++gemacht;
                    return std::unique_ptr<Planmodul>();
                },
        });
        rechner.plan = &plan;
        rechner.awakeFromNib();
    }
    QCOMPARE(gemacht, 0);
    QCOMPARE(rufe.size(), 5);
    plan.anthrouebergabe(1); // it outlives the controller
}

void TestAnthroControllerStart::oneClientForAllPlans()
{
    Rechnerprobe probe({{"Gewicht", 90.0}, {"Groesse", 1.75}, {"Gewichtredukt", 1.0}});
    QCOMPARE(Planmodul::klient.bedarf, 1901);
    QCOMPARE(Planmodul::klient.unbereinigt, 2376);
    QCOMPARE(Planmodul::klient.gewicht, 90.0F);
    QCOMPARE(Planmodul::klient.groesse, 1.75F);
}

QTEST_MAIN(TestAnthroControllerStart)
#include "TestAnthroControllerStart.moc"
