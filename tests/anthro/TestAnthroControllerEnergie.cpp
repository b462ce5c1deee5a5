#include "Rechnerprobe.h"

#include <QAbstractButton>
#include <QTest>

/// Activity, gender, losing weight and sport: what they make of the energy of a day.
class TestAnthroControllerEnergie : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyCombination_data();
    void everyCombination();
    void anUnknownTagLeavesTheChoice();
    void losingWeight();
    void theFace_data();
    void theFace();
    void theGendersWord();
    void theActivityIsNotStored();
    void choosingASport();
    void settingTheHours();
    void fractionsCountInOneOfTwo();
    void noSport();
    void anUnknownSportKeepsThePreviousOne_data();
    void anUnknownSportKeepsThePreviousOne();
    void aNameWithoutEffectIsCalledUnknown();
    void theHoursReadAsTheyWereSent();
};

void TestAnthroControllerEnergie::everyCombination_data()
{
    QTest::addColumn<int>("geschlecht");
    QTest::addColumn<int>("arbeit");
    QTest::addColumn<int>("kal");
    QTest::addColumn<int>("vermindert");
    QTest::newRow("man 1.1") << 0 << 0 << 2112 << 1690;
    QTest::newRow("man 1.3") << 0 << 1 << 2496 << 1997;
    QTest::newRow("man 1.5") << 0 << 2 << 2880 << 2304;
    QTest::newRow("woman 1.1") << 1 << 0 << 1760 << 1408;
    QTest::newRow("woman 1.3") << 1 << 1 << 2080 << 1664;
    QTest::newRow("woman 1.5") << 1 << 2 << 2400 << 1920;
}

void TestAnthroControllerEnergie::everyCombination()
{
    QFETCH(int, geschlecht);
    QFETCH(int, arbeit);
    QFETCH(int, kal);
    QFETCH(int, vermindert);
    const auto probe = Rechnerprobe::mitKlient();
    AnthroController &r = probe->rechner();
    const auto gesagt = [kal](int bedarf) {
        return QStringList{QStringLiteral("kal %1").arg(bedarf),
                           QStringLiteral("unbereinigt %1").arg(kal)};
    };
    r.geschlechtAktion(geschlecht);
    probe->rufe();
    r.arbeitAktion(arbeit);
    QCOMPARE(r.resultatkal->intValue(), kal);
    QCOMPARE(probe->rufe(), gesagt(kal));
    r.gewichtreduktion(1);
    QCOMPARE(r.resultatkal->intValue(), vermindert);
    QCOMPARE(probe->rufe(), gesagt(vermindert));
    r.arbeitAktion(arbeit);
    QCOMPARE(probe->rufe(), gesagt(vermindert));
    r.geschlechtAktion(geschlecht);
    QCOMPARE(probe->rufe(), gesagt(vermindert));
}

void TestAnthroControllerEnergie::anUnknownTagLeavesTheChoice()
{
    const auto probe = Rechnerprobe::mitKlient();
    AnthroController &r = probe->rechner();
    r.arbeitAktion(2);
    r.geschlechtAktion(1);
    for (const int tag : {-1, 3, 7}) {
        r.arbeitAktion(tag);
        r.geschlechtAktion(tag);
    }
    QCOMPARE(r.arbeitauswahl, 1.5F);
    QCOMPARE(r.geschlechtauswahl, 1.0F);
    QCOMPARE(r.geschlecht->stringValue(), QStringLiteral("Frau"));
    QCOMPARE(r.kal, 2400);
    QVERIFY(r.arbeit->istEin(2));
    QVERIFY(r.geschlechte->istEin(1));
}

void TestAnthroControllerEnergie::losingWeight()
{
    const auto probe = Rechnerprobe::mitKlient();
    AnthroController &r = probe->rechner();
    r.gewichtreduktion(1);
    QCOMPARE(r.gewichtredu->text(), QStringLiteral("moderat ( -1/5 Kcal)"));
    QCOMPARE(r.kal, 1690);
    QCOMPARE(r.kalunbereinigt, 2112);
    QCOMPARE(probe->gemerkt("Gewichtredukt"), QVariant(1.0));
    r.slidergewicht(Sender(50.0));
    QCOMPARE(r.kal, 1056); // 1320 - 264
    QCOMPARE(r.kalfaceview->entscheidungszahl(), 3);
    r.gewichtreduktion(0);
    QCOMPARE(r.gewichtredu->text(), QStringLiteral("aus"));
    QCOMPARE(r.kal, 1320);
    QCOMPARE(r.kalunbereinigt, 1320);
    QCOMPARE(r.kalfaceview->entscheidungszahl(), 2);
    QCOMPARE(probe->gemerkt("Gewichtredukt"), QVariant(0.0));
    QCOMPARE(Rechnerprobe::text(*r.resultatkal), QStringLiteral("1320 kcal"));
}

void TestAnthroControllerEnergie::theFace_data()
{
    QTest::addColumn<double>("gewicht"); // a woman at light work: 22 kcal for each kg
    QTest::addColumn<int>("kal");
    QTest::addColumn<int>("gesicht");
    QTest::newRow("1099 cries") << 49.98 << 1099 << 3;
    QTest::newRow("1100 is neutral") << 50.0 << 1100 << 2;
    QTest::newRow("1399 is neutral") << 63.6 << 1399 << 2;
    QTest::newRow("exactly 1400 keeps the face") << 63.65 << 1400 << 9;
    QTest::newRow("1401 laughs") << 63.7 << 1401 << 1;
    QTest::newRow("2699 laughs") << 122.7 << 2699 << 1;
    QTest::newRow("exactly 2700 keeps the face") << 122.75 << 2700 << 9;
    QTest::newRow("2701 is neutral") << 122.8 << 2701 << 2;
    QTest::newRow("3000 is neutral") << 136.4 << 3000 << 2;
    QTest::newRow("3001 cries") << 136.45 << 3001 << 3;
}

void TestAnthroControllerEnergie::theFace()
{
    QFETCH(double, gewicht);
    const auto probe = Rechnerprobe::mitKlient();
    AnthroController &r = probe->rechner();
    r.geschlechtAktion(1);
    r.kalfaceview->entscheidung(9);
    r.slidergewicht(Sender(gewicht));
    QTEST(r.kal, "kal");
    QTEST(r.kalfaceview->entscheidungszahl(), "gesicht");
    for (const auto &aktion : std::initializer_list<std::function<void()>>{
             [&r] { r.arbeitAktion(0); }, [&r] { r.geschlechtAktion(1); },
             [&r] { r.gewichtreduktion(0); }, [&r] { r.welchersport(Sender(QString())); },
             [&r] {
                 r.wievielsport(Sender(0.0));
             }}) {
        r.kalfaceview->entscheidung(9);
        aktion();
        QTEST(r.kalfaceview->entscheidungszahl(), "gesicht");
    }
}

void TestAnthroControllerEnergie::theGendersWord()
{
    const auto probe = Rechnerprobe::mitKlient();
    AnthroController &r = probe->rechner();
    r.geschlechtAktion(1);
    QCOMPARE(r.geschlecht->stringValue(), QStringLiteral("Frau"));
    QCOMPARE(r.geschlechtname, QStringLiteral("Frau"));
    r.geschlechtAktion(0);
    QCOMPARE(r.geschlecht->stringValue(), QStringLiteral("Mann"));
    QCOMPARE(r.geschlechtname, QStringLiteral("Mann"));
}

void TestAnthroControllerEnergie::theActivityIsNotStored()
{
    const auto probe = Rechnerprobe::mitKlient();
    const QStringList vorher = probe->einstellungen().allKeys();
    (*probe)->arbeitAktion(2);
    (*probe)->geschlechtAktion(1);
    (*probe)->wiealt(Sender(60.0));
    QCOMPARE(probe->einstellungen().allKeys(), vorher);
}

void TestAnthroControllerEnergie::choosingASport()
{
    const auto probe = Rechnerprobe::mitKlient();
    AnthroController &r = probe->rechner();
    r.welchersport(Sender(QStringLiteral("Karate")));
    QCOMPARE(r.sportname, QStringLiteral("Karate"));
    QCOMPARE(r.sportkal, 670);
    QVERIFY(r.sportmenge->isEnabledTo(nullptr));
    QCOMPARE(r.sportstunden->stringValue(), QStringLiteral("Zeit(h)"));
    QCOMPARE(r.resultatsportkal->intValue(), 0);
    QCOMPARE(probe->gemerkt("Sport"), QVariant(0.0));
    QVERIFY(!probe->gemerkt("Sportm").isValid());
    const QStringList gesagt = {QStringLiteral("kal 2112"), QStringLiteral("unbereinigt 2112")};
    QCOMPARE(probe->rufe(), gesagt);
}

void TestAnthroControllerEnergie::settingTheHours()
{
    const auto probe = Rechnerprobe::mitKlient();
    AnthroController &r = probe->rechner();
    r.gewichtreduktion(1);
    r.welchersport(Sender(QStringLiteral("bicycling")));
    probe->rufe();
    r.wievielsport(Sender(1.9));
    QCOMPARE(r.sportmenge->doubleValue(), 1.9);
    QCOMPARE(r.sportstunden->stringValue(), QStringLiteral("1,9 h"));
    QCOMPARE(r.resultatsportkal->intValue(), 570);
    QCOMPARE(Rechnerprobe::text(*r.resultatsportkal), QStringLiteral("570 kcal"));
    QCOMPARE(probe->gemerkt("Sportm"), QVariant(1.9));
    QCOMPARE(probe->gemerkt("Sport"), QVariant(570.0));
    QCOMPARE(r.kalunbereinigt, 2412); // only whole hours
    const QStringList gesagt = {QStringLiteral("kal 1930"), QStringLiteral("unbereinigt 2412")};
    QCOMPARE(probe->rufe(), gesagt);
}

void TestAnthroControllerEnergie::fractionsCountInOneOfTwo()
{
    const auto probe = Rechnerprobe::mitKlient();
    AnthroController &r = probe->rechner();
    r.sportmenge->setDoubleValue(2.5);
    r.welchersport(Sender(QStringLiteral("Karate")));
    QCOMPARE(r.resultatsportkal->intValue(), 1340);
    QCOMPARE(probe->gemerkt("Sport"), QVariant(1340.0));
    QCOMPARE(r.kal, 2112 + 1340);
    QCOMPARE(r.kalfaceview->entscheidungszahl(), 3);
    r.wievielsport(*r.sportmenge);
    QCOMPARE(r.resultatsportkal->intValue(), 1675);
    QCOMPARE(probe->gemerkt("Sport"), QVariant(1675.0));
    QCOMPARE(r.kal, 2112 + 1340);
}

void TestAnthroControllerEnergie::noSport()
{
    const auto probe = Rechnerprobe::mitKlient();
    AnthroController &r = probe->rechner();
    r.welchersport(Sender(QStringLiteral("Karate")));
    r.wievielsport(Sender(2.5));
    probe->rufe();
    r.welchersport(Sender(QString()));
    QCOMPARE(r.sportkal, 0);
    QCOMPARE(r.resultatsportkal->intValue(), 0);
    QVERIFY(!r.sportmenge->isEnabledTo(nullptr));
    QCOMPARE(r.sportmenge->doubleValue(), 0.0);
    QCOMPARE(r.sportstunden->stringValue(), QStringLiteral("0 h"));
    QCOMPARE(probe->gemerkt("Sport"), QVariant(0.0));
    QCOMPARE(probe->gemerkt("Sportm"), QVariant(2.5)); // as it was last set
    const QStringList gesagt = {QStringLiteral("kal 2112"), QStringLiteral("unbereinigt 2112")};
    QCOMPARE(probe->rufe(), gesagt);
}

void TestAnthroControllerEnergie::anUnknownSportKeepsThePreviousOne_data()
{
    QTest::addColumn<QString>("sport");
    for (const char *wort : {"Basketball", "karate", "Tennis ", "Schach", " "}) {
        QTest::addRow("'%s'", wort) << QString::fromLatin1(wort);
    }
}

void TestAnthroControllerEnergie::anUnknownSportKeepsThePreviousOne()
{
    QFETCH(QString, sport);
    const auto probe = Rechnerprobe::mitKlient();
    AnthroController &r = probe->rechner();
    r.welchersport(Sender(QStringLiteral("Karate")));
    r.wievielsport(Sender(1.5));
    r.kalfaceview->entscheidung(9);
    probe->rufe();
    r.welchersport(Sender(sport));
    QCOMPARE(r.sportname, sport);
    QCOMPARE(r.sportkal, 670);
    QCOMPARE(r.resultatsportkal->intValue(), 1005);
    QCOMPARE(r.sportmenge->doubleValue(), 1.5);
    QVERIFY(r.sportmenge->isEnabledTo(nullptr));
    // The rest of the action runs all the same.
    QCOMPARE(probe->gemerkt("Sport"), QVariant(1005.0));
    const QStringList gesagt = {QStringLiteral("kal 2782"), QStringLiteral("unbereinigt 2782")};
    QCOMPARE(probe->rufe(), gesagt);
    QCOMPARE(r.kalfaceview->entscheidungszahl(), 2);
}

void TestAnthroControllerEnergie::aNameWithoutEffectIsCalledUnknown()
{
    const auto probe = Rechnerprobe::mitKlient();
    AnthroController &r = probe->rechner();
    QVERIFY(r.sportworte->isHidden());
    QCOMPARE(r.sportworte->text(), QStringLiteral("unbekannt, zählt nicht"));
    const std::pair<const char *, bool> folge[] = {{"Schach", true},     {"Karate", false},
                                                   {"Basketball", true}, {"ice-hockey", false},
                                                   {"Tennis ", true},    {"", false}};
    for (const auto &[sport, unbekannt] : folge) {
        r.welchersport(Sender(QString::fromUtf8(sport)));
        QVERIFY2(r.sportworte->isHidden() != unbekannt, sport);
    }
}

void TestAnthroControllerEnergie::theHoursReadAsTheyWereSent()
{
    const auto probe = Rechnerprobe::mitKlient();
    AnthroController &r = probe->rechner();
    r.wievielsport(Sender(QStringLiteral("2,25 Stunden")));
    QCOMPARE(r.sportstunden->stringValue(), QStringLiteral("2,25 Stunden h"));
    QCOMPARE(r.sportmenge->doubleValue(), 2.25);
    r.sportmenge->setDoubleValue(0.7);
    r.wievielsport(*r.sportmenge);
    QCOMPARE(r.sportstunden->stringValue(), QStringLiteral("0,7 h"));
    QCOMPARE(probe->gemerkt("Sportm"), QVariant(0.7));
}

QTEST_MAIN(TestAnthroControllerEnergie)
#include "TestAnthroControllerEnergie.moc"
