#include "Energiebedarf.h"
#include "Koerpermasse.h"
#include "Rechnerprobe.h"

#include <QAbstractButton>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QSlider>
#include <QTest>

/// The four measures, the two systems of measures, the gender, and the age.
class TestAnthroControllerMasse : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWeightGoesEverywhere();
    void theHeightLeavesTheEnergyAlone();
    void waistAndHip();
    void aFaceThatRestsOnNothingSaysWhatIsMissing();
    void theWordsAreThoseOfTheFace();
    void theRangesAreThoseOfTheSmilingFace();
    void noNumberStandsThereTwice();
    void noHeightAndNoHip();
    void bmiFaces_data();
    void bmiFaces();
    void ratioFaces_data();
    void ratioFaces();
    void imperialMeasures_data();
    void imperialMeasures();
    void switchingTheMeasures();
    void storedNumbersAreShort();
    void belowTenTheCalculatorRefuses();
    void atTenNothingHappens();
    void whatIsShutBelowElevenSaysWhy();
    void belowElevenTheFacesSayThatTheyDoNotHold();
    void aboveTenItResumes();
    void aMeasureSetBelowTen();
};

void TestAnthroControllerMasse::theWeightGoesEverywhere()
{
    const auto probe = Rechnerprobe::mitKlient();
    AnthroController &r = probe->rechner();
    r.slidergewicht(Sender(100.5));
    for (const Wertehalter *feld : std::initializer_list<const Wertehalter *>{
             r.gewicht, r.gewichtn, r.gewichtbmi, r.gewicht2}) {
        QCOMPARE(feld->floatValue(), 100.5F);
    }
    QCOMPARE(probe->gemerkt("Gewicht"), QVariant(100.5));
    QCOMPARE(r.resultatbmi->floatValue(), 100.5F / (1.8F * 1.8F)); // 31.02
    QCOMPARE(r.bmifaceview->entscheidungszahl(), 3);
    QCOMPARE(r.lbs->intValue(), 221); // 221.6
    QCOMPARE(r.kal, 2653);            // 2653.2
    QCOMPARE(r.resultatkal->intValue(), 2653);
    QCOMPARE(r.kalfaceview->entscheidungszahl(), 1);
    const QStringList gesagt = {QStringLiteral("kal 2653"), QStringLiteral("unbereinigt 2653"),
                                QStringLiteral("gewicht 100.5")};
    QCOMPARE(probe->rufe(), gesagt);
    r.slidergewicht(Sender(120.0));
    QCOMPARE(r.kal, 3168);
    QCOMPARE(r.kalfaceview->entscheidungszahl(), 3);
    QCOMPARE(r.kalworte->text(), QStringLiteral("weit außerhalb des günstigen Bereichs"));
}

void TestAnthroControllerMasse::theHeightLeavesTheEnergyAlone()
{
    const auto probe = Rechnerprobe::mitKlient();
    AnthroController &r = probe->rechner();
    r.gewichtbmi->setFloatValue(1.0F); // would show if the energy were computed anew
    r.slidergroesse(Sender(1.52));
    QCOMPARE(r.groesse->floatValue(), 1.52F);
    QCOMPARE(r.groessen->floatValue(), 1.52F);
    QCOMPARE(probe->gemerkt("Groesse"), QVariant(1.52));
    QCOMPARE(r.resultatbmi->floatValue(), 80.0F / (1.52F * 1.52F)); // 34.6
    QCOMPARE(r.bmifaceview->entscheidungszahl(), 3);
    QCOMPARE(r.feet->intValue(), 4);
    QCOMPARE(r.inch->intValue(), 11);
    QCOMPARE(r.kal, 2112);
    QCOMPARE(r.kalfaceview->entscheidungszahl(), 1);
    QCOMPARE(probe->rufe(), QStringList(QStringLiteral("groesse 1.52")));
}

void TestAnthroControllerMasse::waistAndHip()
{
    const auto probe = Rechnerprobe::mitKlient();
    AnthroController &r = probe->rechner();
    QCOMPARE(r.resultatwh->floatValue(), 71.0F / 86.0F);
    r.sliderhuefte(Sender(100.0)); // 0.71
    QCOMPARE(r.hueftumfang->floatValue(), 100.0F);
    QCOMPARE(r.hueftn->floatValue(), 100.0F);
    QCOMPARE(probe->gemerkt("Huefte"), QVariant(100.0));
    QCOMPARE(r.resultatwh->floatValue(), 0.71F);
    QCOMPARE(r.whfaceview->entscheidungszahl(), 3);
    r.slidertaille(Sender(78.5)); // 0.785
    QCOMPARE(r.taillenumfang->floatValue(), 78.5F);
    QCOMPARE(r.taillen->floatValue(), 78.5F);
    QCOMPARE(probe->gemerkt("Taille"), QVariant(78.5));
    QCOMPARE(r.whfaceview->entscheidungszahl(), 2);
    QCOMPARE(r.whworte->text(), QStringLiteral("außerhalb des günstigen Bereichs"));
    QCOMPARE(probe->rufe(), QStringList());
}

/// At the first start no measure is set, and three faces cry about nothing.
void TestAnthroControllerMasse::aFaceThatRestsOnNothingSaysWhatIsMissing()
{
    Rechnerprobe probe;
    AnthroController &r = probe.rechner();
    QCOMPARE(r.bmifaceview->entscheidungszahl(), 3);
    QCOMPARE(r.bmiworte->text(), QStringLiteral("noch nicht eingestellt: Gewicht, Größe"));
    QCOMPARE(r.whworte->text(), QStringLiteral("noch nicht eingestellt: Taille, Hüfte"));
    QCOMPARE(r.kalworte->text(), QStringLiteral("noch nicht eingestellt: Gewicht"));
    r.slidergewicht(Sender(80.0));
    QCOMPARE(r.kalworte->text(), QStringLiteral("im günstigen Bereich")); // 2112 kcal
    QCOMPARE(r.bmiworte->text(), QStringLiteral("noch nicht eingestellt: Größe"));
    r.slidergroesse(Sender(1.8));
    QCOMPARE(r.bmiworte->text(), QStringLiteral("im günstigen Bereich"));
    r.slidertaille(Sender(71.0));
    QCOMPARE(r.whworte->text(), QStringLiteral("noch nicht eingestellt: Hüfte"));
    r.sliderhuefte(Sender(100.0)); // 0.71
    QCOMPARE(r.whworte->text(), QStringLiteral("weit außerhalb des günstigen Bereichs"));
}

/// A body-mass index of exactly 25 chooses no face: the words are then those of the one that stays.
void TestAnthroControllerMasse::theWordsAreThoseOfTheFace()
{
    Rechnerprobe probe;
    AnthroController &r = probe.rechner();
    r.slidergroesse(Sender(2.0));
    QCOMPARE(r.bmiworte->text(), QStringLiteral("noch nicht eingestellt: Gewicht"));
    r.slidergewicht(Sender(100.0));
    QCOMPARE(r.bmifaceview->entscheidungszahl(), 3);
    QCOMPARE(r.bmiworte->text(), QStringLiteral("weit außerhalb des günstigen Bereichs"));
}

/// The ranges that stand beside the faces are those of the smiling one.
void TestAnthroControllerMasse::theRangesAreThoseOfTheSmilingFace()
{
    const auto probe = Rechnerprobe::mitKlient();
    AnthroController &r = probe->rechner();
    QCOMPARE(r.bmigrenzen->text(), QStringLiteral("18–25 kg/m²"));
    QCOMPARE(bmiGesicht(18.01F), std::optional<int>(1));
    QVERIFY(bmiGesicht(17.99F) != std::optional<int>(1));
    QCOMPARE(bmiGesicht(24.99F), std::optional<int>(1));
    QVERIFY(bmiGesicht(25.01F) != std::optional<int>(1));
    QCOMPARE(r.whgrenzen->text(), QStringLiteral("0,80–0,88"));
    QCOMPARE(verhaeltnisGesicht(0.801F), std::optional<int>(1));
    QVERIFY(verhaeltnisGesicht(0.799F) != std::optional<int>(1));
    QCOMPARE(verhaeltnisGesicht(0.879F), std::optional<int>(1));
    QVERIFY(verhaeltnisGesicht(0.881F) != std::optional<int>(1));
    QCOMPARE(r.kalgrenzen->text(), QStringLiteral("1400–2700 kcal"));
    QCOMPARE(energieGesicht(1401), std::optional<int>(1));
    QVERIFY(energieGesicht(1399) != std::optional<int>(1));
    QCOMPARE(energieGesicht(2699), std::optional<int>(1));
    QVERIFY(energieGesicht(2701) != std::optional<int>(1));
}

/// A number that stands beside its slider is not shown once more, but a missing one is.
void TestAnthroControllerMasse::noNumberStandsThereTwice()
{
    const auto probe = Rechnerprobe::mitKlient();
    AnthroController &r = probe->rechner();
    QVERIFY(r.taillenumfang->isHidden() && r.hueftumfang->isHidden());
    QVERIFY(r.alteranzeige->isHidden() && r.ml->isHidden());
    r.wiealt(Sender(9.0));
    QVERIFY(!r.taillenumfang->isHidden() && !r.hueftumfang->isHidden());
    QCOMPARE(r.taillenumfang->stringValue(), QStringLiteral("-"));
    r.wiealt(Sender(30.0));
    QVERIFY(r.taillenumfang->isHidden() && r.hueftumfang->isHidden());
    r.wievielalkohol(Sender(601.0));
    QVERIFY(!r.ml->isHidden()); // red, and the words beside it say why
    r.wievielalkohol(Sender(599.0));
    QVERIFY(r.ml->isHidden());
}

void TestAnthroControllerMasse::noHeightAndNoHip()
{
    const auto probe = Rechnerprobe::mitKlient();
    AnthroController &r = probe->rechner();
    r.slidergroesse(Sender(0.0));
    QCOMPARE(r.resultatbmi->floatValue(), 0.0F);
    QCOMPARE(r.bmifaceview->entscheidungszahl(), 3);
    r.sliderhuefte(Sender(0.0));
    QCOMPARE(r.resultatwh->floatValue(), 0.0F);
    QCOMPARE(r.whfaceview->entscheidungszahl(), 3);
}

void TestAnthroControllerMasse::bmiFaces_data()
{
    QTest::addColumn<double>("gewicht"); // at a height of 2 m, so that the BMI is a fourth
    QTest::addColumn<int>("gesicht");
    QTest::newRow("14.875 cries") << 59.5 << 3;
    QTest::newRow("15 is neutral") << 60.0 << 2;
    QTest::newRow("17.875 is neutral") << 71.5 << 2;
    QTest::newRow("exactly 18 keeps the face") << 72.0 << 9;
    QTest::newRow("18.125 laughs") << 72.5 << 1;
    QTest::newRow("24.875 laughs") << 99.5 << 1;
    QTest::newRow("exactly 25 keeps the face") << 100.0 << 9;
    QTest::newRow("25.125 is neutral") << 100.5 << 2;
    QTest::newRow("30 is neutral") << 120.0 << 2;
    QTest::newRow("30.125 cries") << 120.5 << 3;
}

void TestAnthroControllerMasse::bmiFaces()
{
    QFETCH(double, gewicht);
    const auto probe = Rechnerprobe::mitKlient();
    (*probe)->slidergroesse(Sender(2.0));
    (*probe)->bmifaceview->entscheidung(9);
    (*probe)->slidergewicht(Sender(gewicht));
    QTEST((*probe)->bmifaceview->entscheidungszahl(), "gesicht");
}

void TestAnthroControllerMasse::ratioFaces_data()
{
    QTest::addColumn<double>("taille"); // at a hip of 100 cm
    QTest::addColumn<int>("gesicht");
    QTest::newRow("0.745 cries") << 74.5 << 3;
    QTest::newRow("0.75 is neutral") << 75.0 << 2;
    QTest::newRow("0.795 is neutral") << 79.5 << 2;
    QTest::newRow("80 by 100 lies above 0.8 and laughs") << 80.0 << 1;
    QTest::newRow("88 by 100 lies below 0.88 and laughs") << 88.0 << 1;
    QTest::newRow("0.885 is neutral") << 88.5 << 2;
    QTest::newRow("0.925 is neutral") << 92.5 << 2;
    QTest::newRow("93 by 100 lies above 0.93 and cries") << 93.0 << 3;
}

void TestAnthroControllerMasse::ratioFaces()
{
    QFETCH(double, taille);
    const auto probe = Rechnerprobe::mitKlient();
    (*probe)->sliderhuefte(Sender(100.0));
    for (const int tag : {0, 1}) { // the same for men and women
        (*probe)->geschlechtAktion(tag);
        (*probe)->whfaceview->entscheidung(9);
        (*probe)->slidertaille(Sender(taille));
        QTEST((*probe)->whfaceview->entscheidungszahl(), "gesicht");
    }
}

void TestAnthroControllerMasse::imperialMeasures_data()
{
    QTest::addColumn<double>("groesse");
    QTest::addColumn<double>("gewicht");
    QTest::addColumn<QString>("feet");
    QTest::addColumn<QString>("inch");
    QTest::addColumn<QString>("lbs");
    const auto zeile = [](double groesse, double gewicht, const char *feet, const char *inch,
                          const char *lbs) {
        QTest::addRow("%g m, %g kg", groesse, gewicht)
            << groesse << gewicht << QString::fromLatin1(feet) << QString::fromLatin1(inch)
            << QString::fromLatin1(lbs);
    };
    zeile(1.8, 80, "5 ft", "10 in", "176 lb");
    zeile(1.52, 60, "4 ft", "11 in", "132 lb");
    zeile(2.3, 250, "7 ft", "6 in", "551 lb");
    zeile(0, 0, "0 ft", "0 in", "0 lb");
}

void TestAnthroControllerMasse::imperialMeasures()
{
    QFETCH(double, groesse);
    QFETCH(double, gewicht);
    const auto probe = Rechnerprobe::mitKlient();
    (*probe)->slidergroesse(Sender(groesse));
    (*probe)->slidergewicht(Sender(gewicht));
    QTEST(Rechnerprobe::text(*(*probe)->feet), "feet");
    QTEST(Rechnerprobe::text(*(*probe)->inch), "inch");
    QTEST(Rechnerprobe::text(*(*probe)->lbs), "lbs");
}

void TestAnthroControllerMasse::switchingTheMeasures()
{
    const auto probe = Rechnerprobe::mitKlient();
    AnthroController &r = probe->rechner();
    const QList<QWidget *> metrisch = {r.groessedeutscheinaus, r.gewichtdeutscheinaus, r.gewicht,
                                       r.groesse};
    const QList<QWidget *> imperial = {r.feeteinaus, r.lbseinaus, r.feet, r.inch, r.lbs};
    const auto verborgen = [](const QList<QWidget *> &felder, bool erwartet) {
        return std::all_of(felder.begin(), felder.end(), [erwartet](const QWidget *feld) {
            return feld->isHidden() == erwartet;
        });
    };
    r.metrik(0);
    QVERIFY(verborgen(metrisch, true) && verborgen(imperial, false));
    QCOMPARE(probe->gemerkt("metrik"), QVariant(0.0));
    r.metrik(1);
    QVERIFY(verborgen(metrisch, false) && verborgen(imperial, true));
    QCOMPARE(probe->gemerkt("metrik"), QVariant(1.0));
    QVERIFY(!r.gewichtn->isHidden() && !r.groessen->isHidden());
    QCOMPARE(probe->rufe(), QStringList());
}

/// Another tool that looks into the settings finds the number that was set.
void TestAnthroControllerMasse::storedNumbersAreShort()
{
    const auto probe = Rechnerprobe::mitKlient();
    (*probe)->slidergroesse(Sender(1.79));
    probe->einstellungen().sync();
    QFile datei(probe->einstellungen().fileName());
    QVERIFY(datei.open(QIODevice::ReadOnly));
    const QByteArray inhalt = datei.readAll();
    QVERIFY2(inhalt.contains("Groesse=1.79\n"), inhalt.constData());
    QCOMPARE(probe->gemerkt("Groesse").toFloat(), 1.79F);
}

void TestAnthroControllerMasse::belowTenTheCalculatorRefuses()
{
    const auto probe = Rechnerprobe::mitKlient();
    AnthroController &r = probe->rechner();
    r.wiealt(Sender(9.9));
    QCOMPARE(r.alteranzeige->intValue(), 9);
    QCOMPARE(r.alter->intValue(), 9);
    for (const QWidget *feld :
         std::initializer_list<const QWidget *>{r.arbeit, r.geschlechte, r.alkohol, r.zieher,
                                                r.groessen, r.gewichtn, r.taillen, r.hueftn}) {
        QVERIFY(!feld->isEnabledTo(nullptr));
    }
    for (const Textfeld *feld : {r.gewicht, r.gewichtbmi, r.groesse, r.hueftumfang, r.resultatbmi,
                                 r.resultatwh, r.taillenumfang}) {
        QCOMPARE(feld->stringValue(), QStringLiteral("-"));
        QCOMPARE(feld->floatValue(), 0.0F);
    }
    // Nothing is computed anew by the age itself.
    QCOMPARE(r.kal, 2112);
    QCOMPARE(r.resultatkal->intValue(), 2112);
    QCOMPARE(r.bmifaceview->entscheidungszahl(), 1);
    QCOMPARE(r.gewichtn->floatValue(), 80.0F);
    QCOMPARE(r.gewicht2->floatValue(), 80.0F);
    QVERIFY(r.gewichtredu->isEnabledTo(nullptr));
    QVERIFY(r.sport->isEnabledTo(nullptr));
    QCOMPARE(probe->rufe(), QStringList());
    // What is computed later reads "-" as 0.
    r.welchersport(Sender(QStringLiteral("Karate")));
    QCOMPARE(r.kal, 0);
    r.wievielsport(Sender(2.0));
    QCOMPARE(r.kal, 1340);
    QCOMPARE(r.kalfaceview->entscheidungszahl(), 2);
}

void TestAnthroControllerMasse::atTenNothingHappens()
{
    const auto probe = Rechnerprobe::mitKlient();
    AnthroController &r = probe->rechner();
    r.wiealt(Sender(10.0)); // from above: all stays enabled
    QVERIFY(r.altersworte->isHidden());
    QCOMPARE(r.alteranzeige->intValue(), 10);
    QVERIFY(r.gewichtn->isEnabledTo(nullptr));
    QCOMPARE(r.gewicht->floatValue(), 80.0F);
    r.wiealt(Sender(9.0));
    r.wiealt(Sender(10.0)); // from below: all stays disabled, and says why
    QVERIFY(!r.altersworte->isHidden());
    QVERIFY(!r.gewichtn->isEnabledTo(nullptr));
    QVERIFY(!r.alkohol->isEnabledTo(nullptr));
    QCOMPARE(r.gewicht->stringValue(), QStringLiteral("-"));
    QCOMPARE(probe->rufe(), QStringList());
    r.wiealt(Sender(11.0));
    QVERIFY(r.altersworte->isHidden());
    QVERIFY(r.gewichtn->isEnabledTo(nullptr));
    QVERIFY(r.alkohol->isEnabledTo(nullptr));
}

void TestAnthroControllerMasse::whatIsShutBelowElevenSaysWhy()
{
    const auto probe = Rechnerprobe::mitKlient();
    AnthroController &r = probe->rechner();
    const QString grund = QStringLiteral("Hier wird erst ab 11 Jahren gerechnet.");
    const QString sonst = r.gewichtn->regler()->toolTip();
    r.wiealt(Sender(9.0));
    for (const QWidget *teil : std::initializer_list<const QWidget *>{
             r.gewichtn->regler(), r.gewichtn->eingabe(), r.zieher->regler(), r.alkohol,
             r.arbeit->zelle(0), r.geschlechte->zelle(1)}) {
        QVERIFY(!teil->isEnabledTo(nullptr));
        QCOMPARE(teil->toolTip(), grund);
        QCOMPARE(teil->accessibleDescription(), grund);
    }
    r.wiealt(Sender(11.0));
    QCOMPARE(r.gewichtn->regler()->toolTip(), sonst);
    QVERIFY(r.alkohol->toolTip() != grund);
}

/// A face that stays from an older client is no verdict about the child.
void TestAnthroControllerMasse::belowElevenTheFacesSayThatTheyDoNotHold()
{
    const auto probe = Rechnerprobe::mitKlient();
    AnthroController &r = probe->rechner();
    const auto worte = [&r] {
        return QStringList{r.bmiworte->text(), r.whworte->text(), r.kalworte->text()};
    };
    const QStringList vorher = worte();
    const int gesicht = r.bmifaceview->entscheidungszahl();
    const QString erst = QStringLiteral("gilt erst ab 11 Jahren");
    QVERIFY(!vorher.contains(erst));
    r.wiealt(Sender(9.0));
    QCOMPARE(worte(), QStringList(3, erst));
    QCOMPARE(r.bmifaceview->entscheidungszahl(), gesicht);
    r.welchersport(Sender(QStringLiteral("Karate"))); // computes on, for whoever goes on
    QCOMPARE(worte(), QStringList(3, erst));
    r.welchersport(Sender(QString()));
    r.wiealt(Sender(11.0));
    QCOMPARE(worte().first(2), vorher.first(2));
    QVERIFY(r.kalworte->text() != erst);
}

void TestAnthroControllerMasse::aboveTenItResumes()
{
    const auto probe = Rechnerprobe::mitKlient();
    AnthroController &r = probe->rechner();
    r.wiealt(Sender(9.0));
    r.gewichtredu->setChecked(true);
    r.taillen->setDoubleValue(95.0);
    r.hueftn->setDoubleValue(100.0);
    r.groessen->setDoubleValue(1.6);
    r.wiealt(Sender(11.0));
    QCOMPARE(r.gewicht->floatValue(), 80.0F);
    QCOMPARE(r.gewichtbmi->floatValue(), 80.0F);
    QCOMPARE(r.groesse->floatValue(), 1.6F);
    QCOMPARE(r.taillenumfang->floatValue(), 95.0F);
    QCOMPARE(r.hueftumfang->floatValue(), 100.0F);
    QCOMPARE(r.resultatbmi->floatValue(), 80.0F / (1.6F * 1.6F)); // 31.2
    QCOMPARE(r.resultatwh->floatValue(), 0.95F);
    QCOMPARE(r.kal, 1690);
    const QStringList gesagt = {QStringLiteral("kal 1690"), QStringLiteral("unbereinigt 2112")};
    QCOMPARE(probe->rufe(), gesagt);
    QCOMPARE(r.bmifaceview->entscheidungszahl(), 1); // the faces wait
    QCOMPARE(r.whfaceview->entscheidungszahl(), 1);
    r.wiealt(Sender(50.0)); // and so at every age above
    QCOMPARE(probe->rufe(), gesagt);
}

/// Actions work the same when a control happens to be disabled.
void TestAnthroControllerMasse::aMeasureSetBelowTen()
{
    const auto probe = Rechnerprobe::mitKlient();
    AnthroController &r = probe->rechner();
    r.wiealt(Sender(9.0));
    r.slidergewicht(Sender(50.0));
    QCOMPARE(r.gewicht->floatValue(), 50.0F);
    QCOMPARE(r.resultatbmi->floatValue(), 0.0F); // the height reads 0
    QCOMPARE(r.kal, 1320);
    const QStringList gesagt = {QStringLiteral("kal 1320"), QStringLiteral("unbereinigt 1320"),
                                QStringLiteral("gewicht 50")};
    QCOMPARE(probe->rufe(), gesagt);
}

QTEST_MAIN(TestAnthroControllerMasse)
#include "TestAnthroControllerMasse.moc"
