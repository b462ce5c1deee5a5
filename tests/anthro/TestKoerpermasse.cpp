#include "Koerpermasse.h"

#include "Bmi.h"

#include <QTest>

#include <cmath>
#include <limits>

class TestKoerpermasse : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bmiFaces_data();
    void bmiFaces();
    void waistByHip_data();
    void waistByHip();
    void waistHipFaces_data();
    void waistHipFaces();
    void waistAndHipToFace_data();
    void waistAndHipToFace();
    void imperialMeasures_data();
    void imperialMeasures();
    void ages_data();
    void ages();
    void sameAsTheRules();
};

namespace {

constexpr int bleibt = 0; // no decision
constexpr float keineZahl = std::numeric_limits<float>::quiet_NaN();
constexpr float unendlich = std::numeric_limits<float>::infinity();

} // namespace

void TestKoerpermasse::bmiFaces_data()
{
    QTest::addColumn<float>("bmi");
    QTest::addColumn<int>("gesicht");
    QTest::newRow("0") << 0.0F << 3;
    QTest::newRow("just below 15") << 14.999999F << 3;
    QTest::newRow("exactly 15") << 15.0F << 2;
    QTest::newRow("just below 18") << 17.999998F << 2;
    QTest::newRow("exactly 18 leaves the face") << 18.0F << bleibt;
    QTest::newRow("just above 18") << 18.000002F << 1;
    QTest::newRow("80 kg at 1.80 m") << 24.69136F << 1;
    QTest::newRow("just below 25") << 24.999998F << 1;
    QTest::newRow("exactly 25 leaves the face") << 25.0F << bleibt;
    QTest::newRow("just above 25") << 25.000002F << 2;
    QTest::newRow("exactly 30") << 30.0F << 2;
    QTest::newRow("just above 30") << 30.000002F << 3;
    QTest::newRow("infinite") << unendlich << 3;
    QTest::newRow("negative") << -5.0F << 3;
    QTest::newRow("no number leaves the face") << keineZahl << bleibt;
}

void TestKoerpermasse::bmiFaces()
{
    QFETCH(float, bmi);
    QTEST(bmiGesicht(bmi).value_or(bleibt), "gesicht");
}

void TestKoerpermasse::waistByHip_data()
{
    QTest::addColumn<float>("taille");
    QTest::addColumn<float>("huefte");
    QTest::addColumn<float>("erwartet");
    QTest::newRow("71 by 86") << 71.0F << 86.0F << 0.8255814F;
    QTest::newRow("three quarters") << 75.0F << 100.0F << 0.75F;
    QTest::newRow("no hip") << 71.0F << 0.0F << 0.0F;
    QTest::newRow("no waist") << 0.0F << 86.0F << 0.0F;
    QTest::newRow("neither") << 0.0F << 0.0F << 0.0F;
}

void TestKoerpermasse::waistByHip()
{
    QFETCH(float, taille);
    QFETCH(float, huefte);
    QFETCH(float, erwartet);
    QCOMPARE_EQ(taillenHueftVerhaeltnis(taille, huefte), erwartet);
}

void TestKoerpermasse::waistHipFaces_data()
{
    QTest::addColumn<float>("verhaeltnis");
    QTest::addColumn<int>("gesicht");
    QTest::newRow("0") << 0.0F << 3;
    QTest::newRow("just below 0.75") << 0.74999994F << 3;
    QTest::newRow("exactly 0.75") << 0.75F << 2;
    QTest::newRow("single precision just below 0.8") << 0.79999995F << 2;
    QTest::newRow("single precision 0.8 lies above 0.8") << 0.8F << 1;
    QTest::newRow("71 by 86") << 0.8255814F << 1;
    QTest::newRow("single precision 0.88 lies below 0.88") << 0.88F << 1;
    QTest::newRow("single precision just above 0.88") << 0.8800001F << 2;
    QTest::newRow("single precision just below 0.93") << 0.92999995F << 2;
    QTest::newRow("single precision 0.93 lies above 0.93") << 0.93F << 3;
    QTest::newRow("1") << 1.0F << 3;
    QTest::newRow("infinite") << unendlich << 3;
    QTest::newRow("no number leaves the face") << keineZahl << bleibt;
}

void TestKoerpermasse::waistHipFaces()
{
    QFETCH(float, verhaeltnis);
    QTEST(verhaeltnisGesicht(verhaeltnis).value_or(bleibt), "gesicht");
}

void TestKoerpermasse::waistAndHipToFace_data()
{
    QTest::addColumn<float>("taille");
    QTest::addColumn<float>("huefte");
    QTest::addColumn<int>("gesicht");
    QTest::newRow("71 by 86") << 71.0F << 86.0F << 1;
    QTest::newRow("80 by 100") << 80.0F << 100.0F << 1;
    QTest::newRow("88 by 100") << 88.0F << 100.0F << 1;
    QTest::newRow("79 by 100") << 79.0F << 100.0F << 2;
    QTest::newRow("90 by 100") << 90.0F << 100.0F << 2;
    QTest::newRow("74 by 100") << 74.0F << 100.0F << 3;
    QTest::newRow("95 by 100") << 95.0F << 100.0F << 3;
    QTest::newRow("no hip") << 71.0F << 0.0F << 3;
}

void TestKoerpermasse::waistAndHipToFace()
{
    QFETCH(float, taille);
    QFETCH(float, huefte);
    QTEST(verhaeltnisGesicht(taillenHueftVerhaeltnis(taille, huefte)).value_or(bleibt), "gesicht");
}

void TestKoerpermasse::imperialMeasures_data()
{
    QTest::addColumn<float>("groesse");
    QTest::addColumn<float>("gewicht");
    QTest::addColumn<int>("fuss");
    QTest::addColumn<int>("zoll");
    QTest::addColumn<float>("pfund");
    QTest::newRow("1.80 m, 80 kg") << 1.8F << 80.0F << 5 << 10 << 176.0F;
    // 30.08 cm beyond four feet are 11.84 inches; 55.5 kg are 122.3775 pounds.
    QTest::newRow("1.52 m, 55.5 kg") << 1.52F << 55.5F << 4 << 11 << 122.0F;
    QTest::newRow("nothing") << 0.0F << 0.0F << 0 << 0 << 0.0F;
    // 2 m: 6.56 feet, 17.12 cm left, 6.74 inches; 100 kg: 220.5 pounds.
    QTest::newRow("2 m, 100 kg") << 2.0F << 100.0F << 6 << 6 << 220.0F;
    // In double precision 200 x 2.205 is 441 to the last digit.
    QTest::newRow("1 m, 200 kg") << 1.0F << 200.0F << 3 << 3 << 441.0F;
    // 30.4799995 cm are not yet a foot; the 11.9999998 inches round to 12 in single precision.
    QTest::newRow("a hair less than a foot shows 12 inches") << 0.3048F << 0.4F << 0 << 12 << 0.0F;
    // 127 cm are 4 feet and 2 inches; in double precision 1.27 m would fall just short of them.
    QTest::newRow("1.27 m: centimetres in single precision") << 1.27F << 0.0F << 4 << 2 << 0.0F;
    // 121.919998 cm are just short of 4 feet, which single precision would not tell apart.
    QTest::newRow("1.2192 m: feet in double precision") << 1.2192F << 0.0F << 3 << 11 << 0.0F;
    // 10.1599998 cm are left: 3.9999999 inches, 4 in single precision.
    QTest::newRow("0.4064 m: inches in single precision") << 0.4064F << 0.0F << 1 << 4 << 0.0F;
    QTest::newRow("0.58419997 m: divided in double precision")
        << 0.584199965F << 0.0F << 1 << 10 << 0.0F;
    QTest::newRow("no numbers") << keineZahl << keineZahl << 0 << 0 << 0.0F;
    QTest::newRow("more than any number shows") << 1.0F << unendlich << 3 << 3 << 2147483648.0F;
}

void TestKoerpermasse::imperialMeasures()
{
    QFETCH(float, groesse);
    QFETCH(float, gewicht);
    QFETCH(int, fuss);
    QFETCH(int, zoll);
    QFETCH(float, pfund);
    const ImperialeMasse masse = imperialeMasse(groesse, gewicht);
    QCOMPARE(masse.fuss, fuss);
    QCOMPARE(masse.zoll, zoll);
    QCOMPARE_EQ(masse.pfund, pfund);
}

void TestKoerpermasse::ages_data()
{
    QTest::addColumn<int>("alter");
    QTest::addColumn<QString>("erlaubt");
    QTest::newRow("0") << 0 << "no";
    QTest::newRow("9") << 9 << "no";
    QTest::newRow("exactly 10 leaves everything") << 10 << "stays";
    QTest::newRow("11") << 11 << "yes";
    QTest::newRow("25") << 25 << "yes";
}

void TestKoerpermasse::ages()
{
    QFETCH(int, alter);
    const std::optional<bool> erlaubt = rechnerErlaubt(alter);
    const char *antwort = "stays";
    if (erlaubt.has_value()) {
        antwort = *erlaubt ? "yes" : "no";
    }
    QTEST(QString::fromLatin1(antwort), "erlaubt");
}

namespace {

/// The rule of the faces once more: inside, outside, far outside.
int gesichtNachRegeln(double zahl, double ganzUnten, double unten, double oben, double ganzOben)
{
    int gesicht = bleibt;
    if (unten < zahl && zahl < oben) {
        gesicht = 1;
    }
    if (zahl < unten || zahl > oben) {
        gesicht = 2;
    }
    if (zahl < ganzUnten || zahl > ganzOben) {
        gesicht = 3;
    }
    return gesicht;
}

} // namespace

void TestKoerpermasse::sameAsTheRules()
{
    // 300 weights or waists x 350 heights or hips: about 100,000 combinations.
    for (int i = 0; i < 300; ++i) {
        for (int j = 0; j < 350; ++j) {
            const float gewicht = static_cast<float>(i);
            const float groesse = static_cast<float>(j) / 100.0F;
            const float quadrat = groesse * groesse;
            const float index = j == 0 ? 0.0F : gewicht / quadrat;
            const float verhaeltnis = j == 0 ? 0.0F : gewicht / static_cast<float>(j);
            const int indexGesicht = gesichtNachRegeln(static_cast<double>(index), 15, 18, 25, 30);
            const int verhaeltnisSoll =
                gesichtNachRegeln(static_cast<double>(verhaeltnis), 0.75, 0.8, 0.88, 0.93);
            const float ist = taillenHueftVerhaeltnis(gewicht, static_cast<float>(j));
            if (bmi(gewicht, groesse) != index ||
                bmiGesicht(index).value_or(bleibt) != indexGesicht || ist != verhaeltnis ||
                verhaeltnisGesicht(ist).value_or(bleibt) != verhaeltnisSoll) {
                QFAIL(qPrintable(QStringLiteral("%1 and %2").arg(i).arg(j)));
            }
        }
    }
}

QTEST_GUILESS_MAIN(TestKoerpermasse)
#include "TestKoerpermasse.moc"
