#include "Planurteil.h"

#include "Ampel.h"

#include <QLocale>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

class TestPlanurteil : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
    void wordsOfAFace();
    void pointsAreCounted();
    void missingPointsAreNamed();
    void amountsStandBesideWhatIsNeeded_data();
    void amountsStandBesideWhatIsNeeded();
    void hundredPercentOfTheEnergy_data();
    void hundredPercentOfTheEnergy();

private:
    static QString mitLeerzeichen(QString text) { return text.replace(QChar(QChar::Nbsp), u' '); }
};

void TestPlanurteil::wordsOfAFace()
{
    Planauswertung auswertung;
    auswertung.gesicht = Gesichtscode::lachend;
    QCOMPARE(planurteil(auswertung, false), u"Ein guter Plan"_s);
    auswertung.gesicht = Gesichtscode::neutral;
    QCOMPARE(planurteil(auswertung, false), u"Ein Plan mit Lücken"_s);
    auswertung.gesicht = Gesichtscode::weinend;
    QCOMPARE(planurteil(auswertung, false), u"Ein unausgewogener Plan"_s);
    QCOMPARE(planurteil(auswertung, true), u"Der Plan ist leer"_s);
}

void TestPlanurteil::pointsAreCounted()
{
    Planauswertung auswertung;
    QCOMPARE(punkteworte(auswertung), u"0 von 21 Punkten"_s);
    auswertung.punkte = 21;
    QCOMPARE(punkteworte(auswertung), u"21 von 21 Punkten"_s);
}

void TestPlanurteil::missingPointsAreNamed()
{
    Planauswertung auswertung;
    for (Plannaehrwert &naehrwert : auswertung.naehrwerte) {
        naehrwert.punkt = true;
    }
    for (Planwertung &wertung : auswertung.wertungen) {
        wertung.punkt = true;
    }
    QVERIFY(fehlendePunkte(auswertung).isNull());
    auswertung.naehrwerte[stelle(Naehrwert::fett)] = {44.96, {}, 0, false};
    auswertung.naehrwerte[stelle(Naehrwert::vitc)] = {
        std::numeric_limits<double>::infinity(), {}, 0, false};
    auswertung.wertungen[stelle(Wertung::gicht)].punkt = false;
    QCOMPARE(mitLeerzeichen(fehlendePunkte(auswertung)),
             u"Es fehlen: Fett (45 %), Vitamin C (-), Gicht"_s);
}

void TestPlanurteil::amountsStandBesideWhatIsNeeded_data()
{
    QTest::addColumn<int>("wert");
    QTest::addColumn<int>("bedarf");
    QTest::addColumn<QString>("worte");
    const auto zeile = [](const char *name, Naehrwert wert, int bedarf, const QString &worte) {
        QTest::newRow(name) << static_cast<int>(wert) << bedarf << worte;
    };
    zeile("energy", Naehrwert::kal, 2000, u"60 kcal von 2000 kcal"_s);
    // A fifth of 2000 kcal, at 4 kcal a gram.
    zeile("a part of the energy", Naehrwert::protein, 2000, u"60,0 g von 100,0 g"_s);
    zeile("the need is not known", Naehrwert::protein, 0,
          u"60,0 g; der Energiebedarf ist noch nicht bekannt"_s);
    zeile("a need of its own", Naehrwert::chol, 0, u"60 mg von 200 mg"_s);
}

void TestPlanurteil::amountsStandBesideWhatIsNeeded()
{
    QFETCH(int, wert);
    QFETCH(int, bedarf);
    const Planregel &regel = planregeln[static_cast<std::size_t>(wert)];
    QTEST(mitLeerzeichen(mengenworte(regel, 60, bedarf)), "worte");
}

void TestPlanurteil::hundredPercentOfTheEnergy_data()
{
    QTest::addColumn<int>("bedarf");
    QTest::addColumn<int>("unbereinigt");
    QTest::addColumn<QString>("worte");
    QTest::newRow("not known")
        << 0 << 0 << u"100 % der Energie: noch nicht bekannt (unter „Körper und Energie“)"_s;
    QTest::newRow("as it is") << 2000 << 2000 << u"100 % der Energie = 2000 kcal am Tag"_s;
    QTest::newRow("made less") << 1999 << 2000
                               << u"100 % der Energie = 1999 kcal am Tag (zum Abnehmen)"_s;
}

void TestPlanurteil::hundredPercentOfTheEnergy()
{
    QFETCH(int, bedarf);
    QFETCH(int, unbereinigt);
    QTEST(mitLeerzeichen(energieworte(bedarf, unbereinigt)), "worte");
}

QTEST_GUILESS_MAIN(TestPlanurteil)
#include "TestPlanurteil.moc"
