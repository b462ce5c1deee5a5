#include "Rechnerprobe.h"

#include <QRandomGenerator>
#include <QTest>

#include <array>
#include <cmath>
#include <tuple>
#include <utility>

/// The calculator worked long and in no order, beside its rules in a few lines: whatever was done
/// before, all it shows, keeps and tells the plan is the same.
class TestAnthroControllerLauf : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aHundredThousandActions();
};

namespace {

/// A product in single precision: that of two single-precision numbers is exact in double.
float mal(float a, float b)
{
    return static_cast<float>(static_cast<double>(a) * static_cast<double>(b));
}

/// A quotient in single precision; 0 where there is nothing to divide by.
float durch(float a, float b)
{
    return b == 0.0F ? 0.0F : static_cast<float>(static_cast<double>(a) / static_cast<double>(b));
}

/// Laughs between the inner limits, is neutral outside, cries beyond the outer ones. On an inner
/// limit it stays as it was.
int gesicht(double zahl, std::array<double, 4> grenzen, int bisher)
{
    if (zahl < grenzen[0] || zahl > grenzen[3]) {
        return 3;
    }
    if (zahl < grenzen[1] || zahl > grenzen[2]) {
        return 2;
    }
    return zahl > grenzen[1] && zahl < grenzen[2] ? 1 : bisher;
}

/// What a slider holds, and what stands in the field beside it: 0 for a child.
struct Mass
{
    float regler = 0;
    float feld = 0;

    void setze(float zahl) { regler = feld = zahl; }
};

/// The rules.
struct Regeln
{
    Mass gewicht, groesse, taille, huefte;
    bool frau = false;
    int arbeit = 0;
    bool vermindert = false;
    int sportkal = 0;
    float stunden = 0;
    float bmi = 0, verhaeltnis = 0;
    int voll = 0, kal = 0, sportenergie = 0;
    int bmiGesicht = 3, whGesicht = 3, kalGesicht = 3;
    int fuss = 0, zoll = 0, pfund = 0;

    void rechneBmi() { bmi = durch(gewicht.feld, mal(groesse.feld, groesse.feld)); }
    void rechneVerhaeltnis() { verhaeltnis = durch(taille.feld, huefte.feld); }
    void rateBmi() { bmiGesicht = gesicht(double(bmi), {15, 18, 25, 30}, bmiGesicht); }
    void rateEnergie() { kalGesicht = gesicht(kal, {1100, 1400, 2700, 3000}, kalGesicht); }
    void rateVerhaeltnis()
    {
        whGesicht = gesicht(double(verhaeltnis), {0.75, 0.8, 0.88, 0.93}, whGesicht);
    }
    void rechneEnergie()
    {
        const float stufe = arbeit == 0 ? 1.1F : arbeit == 1 ? 1.3F : 1.5F;
        const float grund = mal(mal(mal(gewicht.feld, 20), stufe), frau ? 1.0F : 1.2F);
        const int sport = sportkal * int(std::floor(stunden));
        voll = int(std::floor(float(double(grund) + sport)));
        kal = vermindert ? voll - voll / 5 : voll;
    }
    void rechneImperial()
    {
        const float cm = mal(groesse.feld, 100);
        fuss = int(std::floor(double(cm) / 30.48));
        const float rest = float(double(cm) - double(float(fuss * 30.48)));
        zoll = int(std::floor(float(double(rest) / 2.54)));
        pfund = int(std::floor(double(gewicht.feld) * 2.205));
    }
    void setzeAlter(int jahre)
    {
        for (Mass *mass : {&gewicht, &groesse, &taille, &huefte}) {
            mass->feld = jahre < 10 ? 0 : jahre > 10 ? mass->regler : mass->feld;
        }
        if (jahre < 10) {
            bmi = verhaeltnis = 0;
        }
        if (jahre > 10) {
            rechneBmi();
            rechneVerhaeltnis();
            rechneEnergie();
        }
    }
};

/// The calculator and the rules, always given the same.
class Lauf
{
public:
    /// One action out of ten, with whatever can be set there.
    void schritt()
    {
        static constexpr void (Lauf::*aktionen[])() = {
            &Lauf::setzeGewicht,    &Lauf::setzeGroesse, &Lauf::setzeTaille,    &Lauf::setzeHuefte,
            &Lauf::setzeGeschlecht, &Lauf::setzeArbeit,  &Lauf::setzeReduktion, &Lauf::waehleSport,
            &Lauf::setzeStunden,    &Lauf::setzeAlter,
        };
        (this->*aktionen[m_wuerfel.bounded(int(std::size(aktionen)))])();
    }

    /// What stands wrong; empty when nothing does.
    QString fehler() const
    {
        const auto &plan = Planmodul::klient;
        const std::tuple<const char *, float, float> zahlen[] = {
            {"BMI", r->resultatbmi->floatValue(), soll.bmi},
            {"waist by hip", r->resultatwh->floatValue(), soll.verhaeltnis},
            {"requirement", float(r->kal), float(soll.kal)},
            {"requirement shown", r->resultatkal->floatValue(), float(soll.kal)},
            {"requirement before reduction", float(r->kalunbereinigt), float(soll.voll)},
            {"sport", r->resultatsportkal->floatValue(), float(soll.sportenergie)},
            {"feet", r->feet->floatValue(), float(soll.fuss)},
            {"inches", r->inch->floatValue(), float(soll.zoll)},
            {"pounds", r->lbs->floatValue(), float(soll.pfund)},
            {"face of the BMI", float(r->bmifaceview->entscheidungszahl()), float(soll.bmiGesicht)},
            {"face of the waist", float(r->whfaceview->entscheidungszahl()), float(soll.whGesicht)},
            {"face of the energy", float(r->kalfaceview->entscheidungszahl()),
             float(soll.kalGesicht)},
            {"plan's requirement", float(plan.bedarf), float(soll.kal)},
            {"plan's other requirement", float(plan.unbereinigt), float(soll.voll)},
            {"plan's weight", plan.gewicht, soll.gewicht.regler},
            {"plan's height", plan.groesse, soll.groesse.regler},
        };
        for (const auto &[was, ist, richtig] : zahlen) {
            if (ist != richtig) {
                return QStringLiteral("%1: %2 instead of %3")
                    .arg(QString::fromLatin1(was))
                    .arg(double(ist))
                    .arg(double(richtig));
            }
        }
        return {};
    }

private:
    /// Some step of a slider.
    Sender wuerfle(double von, double bis, double weite)
    {
        const int schritte = static_cast<int>(std::lround((bis - von) / weite));
        return Sender(von + m_wuerfel.bounded(schritte + 1) * weite);
    }

    void setzeGewicht()
    {
        const Sender zahl = wuerfle(30, 250, 0.5);
        soll.gewicht.setze(zahl.floatValue());
        soll.rechneBmi();
        soll.rechneImperial();
        soll.rateBmi();
        soll.rechneEnergie();
        soll.rateEnergie();
        r->slidergewicht(zahl);
    }
    void setzeGroesse()
    {
        const Sender zahl = wuerfle(1, 2.3, 0.01);
        soll.groesse.setze(zahl.floatValue());
        soll.rechneBmi();
        soll.rechneImperial();
        soll.rateBmi();
        r->slidergroesse(zahl);
    }
    void setzeTaille()
    {
        const Sender zahl = wuerfle(70, 110, 0.5);
        soll.taille.setze(zahl.floatValue());
        soll.rechneVerhaeltnis();
        soll.rateVerhaeltnis();
        r->slidertaille(zahl);
    }
    void setzeHuefte()
    {
        const Sender zahl = wuerfle(80, 120, 0.5);
        soll.huefte.setze(zahl.floatValue());
        soll.rechneVerhaeltnis();
        soll.rateVerhaeltnis();
        r->sliderhuefte(zahl);
    }
    void setzeGeschlecht()
    {
        soll.frau = m_wuerfel.bounded(2) == 1;
        soll.rechneEnergie();
        soll.rateEnergie();
        r->geschlechtAktion(soll.frau ? 1 : 0);
    }
    void setzeArbeit()
    {
        soll.arbeit = m_wuerfel.bounded(3);
        soll.rechneEnergie();
        soll.rateEnergie();
        r->arbeitAktion(soll.arbeit);
    }
    void setzeReduktion()
    {
        soll.vermindert = m_wuerfel.bounded(2) == 1;
        soll.rechneEnergie();
        soll.rateEnergie();
        r->gewichtreduktion(soll.vermindert ? 1 : 0);
    }
    void waehleSport()
    {
        static constexpr std::pair<const char *, int> sportliche[] = {
            {"", 0},         {"Karate", 670}, {"bicycling", 300},  {"Ski alpin", 500},
            {"Tanzen", 200}, {"Squash", 510}, {"Volleyball", 170}, {"swimming", 270},
        };
        const auto &[name, kalorien] = sportliche[m_wuerfel.bounded(int(std::size(sportliche)))];
        soll.sportkal = kalorien;
        soll.stunden = kalorien == 0 ? 0 : soll.stunden;
        soll.sportenergie = kalorien * int(std::floor(soll.stunden));
        soll.rechneEnergie();
        soll.rateEnergie();
        r->welchersport(Sender(QString::fromLatin1(name)));
    }
    void setzeStunden()
    {
        const Sender zahl = wuerfle(0, 6, 0.1);
        soll.stunden = zahl.floatValue();
        soll.sportenergie = int(std::floor(mal(float(soll.sportkal), soll.stunden)));
        soll.rechneEnergie();
        soll.rateEnergie();
        r->wievielsport(zahl);
    }
    void setzeAlter()
    {
        const int jahre = m_wuerfel.bounded(8, 13);
        soll.setzeAlter(jahre);
        r->wiealt(Sender(double(jahre)));
    }

    Rechnerprobe r;
    Regeln soll;
    QRandomGenerator m_wuerfel = QRandomGenerator(20250711);
};

} // namespace

void TestAnthroControllerLauf::aHundredThousandActions()
{
    Lauf lauf;
    for (int i = 0; i < 100000; ++i) {
        lauf.schritt();
        const QString fehler = lauf.fehler();
        QVERIFY2(fehler.isEmpty(), qPrintable(fehler));
    }
}

QTEST_MAIN(TestAnthroControllerLauf)
#include "TestAnthroControllerLauf.moc"
