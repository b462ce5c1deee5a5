// How the measures of a client follow each other, and where they should lie.

#include "Messreihe.h"

#include <QElapsedTimer>
#include <QLocale>
#include <QTest>

#include <limits>

namespace {

const QDate heute(2026, 11, 22);
constexpr double unendlich = std::numeric_limits<double>::infinity();
constexpr double undefiniert = std::numeric_limits<double>::quiet_NaN();

using Reihe = QList<Messpunkt>;

Besuch am(const QDate &tag, std::optional<double> gewicht = {}, std::optional<double> groesse = {},
          std::optional<double> taille = {})
{
    Besuch besuch;
    besuch.datum = tag;
    besuch.gewicht = gewicht;
    besuch.groesse = groesse;
    besuch.taille = taille;
    return besuch;
}

Person jemand(Personengeschlecht geschlecht, const QDate &geburt = {},
              Umstand umstand = Umstand::Keiner)
{
    Person person;
    person.geschlecht = geschlecht;
    person.geburt = geburt;
    person.umstand = umstand;
    return person;
}

const QList<Besuch> einszweiundsiebzig = {am(QDate(2026, 1, 1), {}, 1.72)};

} // namespace

Q_DECLARE_METATYPE(Messgroesse)
Q_DECLARE_METATYPE(Bandmangel)
Q_DECLARE_METATYPE(Zielband)

class TestMessreihe : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
    void pointsStandInTheOrderOfDays();
    void aVisitWithoutTheMeasureHasNoPoint();
    void bothMeasuresOfADayAreKept();
    void whatNobodyMeasuresHasNoPoint_data();
    void whatNobodyMeasuresHasNoPoint();
    void theBmiTakesTheHeightThatWasKnown_data();
    void theBmiTakesTheHeightThatWasKnown();
    void aHeightThatIsNoneIsPassedOver_data();
    void aHeightThatIsNoneIsPassedOver();
    void twentyThousandVisitsAreNoLongWait();
    void bandOfTheBmi();
    void bandOfTheWeightGoesByTheLatestHeight();
    void bandOfTheWaistGoesByTheGender();
    void whyThereIsNoBand_data();
    void whyThereIsNoBand();
    void theReasonIsSaid();
    void theBandHoldsFromTheNineteenthBirthday();
    void whereAMeasureLies_data();
    void whereAMeasureLies();
    void limitsInWords_data();
    void limitsInWords();
    void measuresInWords();
    void everyLimitHasASource();
};

void TestMessreihe::pointsStandInTheOrderOfDays()
{
    const QList<Besuch> besuche = {am(QDate(2026, 3, 1), 80.0), am(QDate(2024, 12, 31), 91.5),
                                   am(QDate(2025, 6, 15), 85.0)};
    QCOMPARE(messreihe(besuche, Messgroesse::Gewicht), (Reihe{{QDate(2024, 12, 31), 91.5},
                                                              {QDate(2025, 6, 15), 85.0},
                                                              {QDate(2026, 3, 1), 80.0}}));
    QCOMPARE(messreihe({}, Messgroesse::Gewicht), Reihe());
}

void TestMessreihe::aVisitWithoutTheMeasureHasNoPoint()
{
    const QList<Besuch> besuche = {am(QDate(2026, 1, 1), 80.0, {}, 90.0), am(QDate(2026, 2, 1)),
                                   am(QDate(2026, 3, 1), {}, {}, 88.0), am(QDate(), 70.0)};
    QCOMPARE(messreihe(besuche, Messgroesse::Gewicht), (Reihe{{QDate(2026, 1, 1), 80.0}}));
    QCOMPARE(messreihe(besuche, Messgroesse::Taille),
             (Reihe{{QDate(2026, 1, 1), 90.0}, {QDate(2026, 3, 1), 88.0}}));
    QCOMPARE(messreihe(besuche, Messgroesse::Bmi), Reihe());
}

void TestMessreihe::bothMeasuresOfADayAreKept()
{
    const QList<Besuch> besuche = {am(heute, 81.0), am(heute, 80.0), am(heute.addDays(-1), 82.0)};
    QCOMPARE(messreihe(besuche, Messgroesse::Gewicht),
             (Reihe{{heute.addDays(-1), 82.0}, {heute, 81.0}, {heute, 80.0}}));
}

void TestMessreihe::whatNobodyMeasuresHasNoPoint_data()
{
    QTest::addColumn<double>("wert");
    QTest::addColumn<bool>("gezeigt");
    QTest::newRow("nothing at all") << 0.0 << true;
    QTest::newRow("a million") << 1e6 << true;
    QTest::newRow("more than a million") << 1000000.1 << false;
    QTest::newRow("less than nothing") << -0.1 << false;
    QTest::newRow("infinite") << unendlich << false;
    QTest::newRow("infinitely little") << -unendlich << false;
    QTest::newRow("undefined") << undefiniert << false;
}

void TestMessreihe::whatNobodyMeasuresHasNoPoint()
{
    QFETCH(const double, wert);
    QFETCH(const bool, gezeigt);
    const QList<Besuch> besuche = {am(heute, wert, 1.0, wert), am(heute, 70.0, 1.0, 80.0)};
    for (const Messgroesse was : {Messgroesse::Gewicht, Messgroesse::Taille, Messgroesse::Bmi}) {
        const Reihe punkte = messreihe(besuche, was);
        QCOMPARE(punkte.size(), gezeigt ? 2 : 1);
        QCOMPARE(punkte.last().wert, was == Messgroesse::Taille ? 80.0 : 70.0);
    }
}

void TestMessreihe::theBmiTakesTheHeightThatWasKnown_data()
{
    QTest::addColumn<QList<Besuch>>("besuche");
    QTest::addColumn<double>("bmi"); // of 80 kg on the day; 0: none
    const Besuch gewogen = am(heute, 80.0);
    QTest::newRow("no height") << QList<Besuch>{gewogen} << 0.0;
    QTest::newRow("2 m at the same visit")
        << QList<Besuch>{am(heute, {}, 1.0), am(heute, 80.0, 2.0), am(heute, {}, 1.6)} << 20.0;
    QTest::newRow("2 m at another visit of the day")
        << QList<Besuch>{gewogen, am(heute, {}, 2.0)} << 20.0;
    QTest::newRow("2 m the day before, 1.6 m earlier")
        << QList<Besuch>{am(heute.addDays(-1), {}, 2.0), am(heute.addYears(-9), {}, 1.6), gewogen}
        << 20.0;
    QTest::newRow("2 m years before, 1.6 m the day after")
        << QList<Besuch>{am(heute.addYears(-9), {}, 2.0), am(heute.addDays(1), {}, 1.6), gewogen}
        << 20.0;
    QTest::newRow("the first of the later ones, 2 m")
        << QList<Besuch>{gewogen, am(heute.addDays(20), {}, 1.6), am(heute.addDays(2), {}, 2.0)}
        << 20.0;
    QTest::newRow("1.6 m") << QList<Besuch>{am(heute, 80.0, 1.6)} << 31.25;
}

void TestMessreihe::theBmiTakesTheHeightThatWasKnown()
{
    QFETCH(const QList<Besuch>, besuche);
    QFETCH(const double, bmi);
    const Reihe erwartet = bmi > 0 ? Reihe{{heute, bmi}} : Reihe();
    const Reihe punkte = messreihe(besuche, Messgroesse::Bmi);
    QCOMPARE(punkte.size(), erwartet.size());
    if (!erwartet.isEmpty()) {
        QCOMPARE(punkte.first().tag, heute);
        QCOMPARE(punkte.first().wert, bmi);
    }
}

void TestMessreihe::aHeightThatIsNoneIsPassedOver_data()
{
    QTest::addColumn<double>("groesse");
    QTest::newRow("0 m") << 0.0;
    QTest::newRow("below 0") << -1.7;
    QTest::newRow("infinite") << unendlich;
    QTest::newRow("undefined") << undefiniert;
}

void TestMessreihe::aHeightThatIsNoneIsPassedOver()
{
    QFETCH(const double, groesse);
    QCOMPARE(messreihe({am(heute, 80.0, groesse)}, Messgroesse::Bmi), Reihe());
    QCOMPARE(
        messreihe({am(heute.addDays(-1), {}, 2.0), am(heute, 80.0, groesse)}, Messgroesse::Bmi),
        (Reihe{{heute, 20.0}}));
    QCOMPARE(bandmangel(Messgroesse::Gewicht, jemand(Personengeschlecht::Frau),
                        {am(heute, 80.0, groesse)}, heute),
             Bandmangel::OhneGroesse);
    // So small that its square is nothing.
    QCOMPARE(messreihe({am(heute, 80.0, 1e-200)}, Messgroesse::Bmi), Reihe());
}

void TestMessreihe::twentyThousandVisitsAreNoLongWait()
{
    constexpr int viele = 20000;
    QList<Besuch> besuche;
    for (int i = 0; i < viele; ++i) {
        besuche << am(heute.addDays(-i), 80.0, i % 2 == 0 ? std::optional(2.0) : std::nullopt);
    }
    QElapsedTimer uhr;
    uhr.start();
    QCOMPARE(messreihe(besuche, Messgroesse::Bmi).size(), viele);
    // Each with each would be four hundred million steps.
    QVERIFY2(uhr.elapsed() < 1000, qPrintable(QString::number(uhr.elapsed())));
}

void TestMessreihe::bandOfTheBmi()
{
    const Zielband erwartet{.von = 18.5, .bis = 25.0, .unterBis = true};
    for (const auto geschlecht :
         {Personengeschlecht::Unbekannt, Personengeschlecht::Mann, Personengeschlecht::Frau}) {
        QCOMPARE(zielband(Messgroesse::Bmi, jemand(geschlecht), {}, heute), erwartet);
    }
}

void TestMessreihe::bandOfTheWeightGoesByTheLatestHeight()
{
    const Person person = jemand(Personengeschlecht::Unbekannt);
    // 2 m: 18.5 times 4 and 25 times 4.
    const Zielband beiZweiMetern{.von = 74.0, .bis = 100.0, .unterBis = true};
    const Besuch damals = am(heute.addDays(-30), {}, 1.6);
    const Besuch juengst = am(heute.addDays(-3), {}, 2.0);
    QCOMPARE(zielband(Messgroesse::Gewicht, person, {juengst, damals}, heute), beiZweiMetern);
    QCOMPARE(zielband(Messgroesse::Gewicht, person,
                      {damals, juengst, am(heute.addDays(1), {}, 1.5)}, heute),
             beiZweiMetern);
    QCOMPARE(zielband(Messgroesse::Gewicht, person, {am(heute.addDays(5), {}, 2.0)}, heute),
             beiZweiMetern);
}

void TestMessreihe::bandOfTheWaistGoesByTheGender()
{
    QCOMPARE(zielband(Messgroesse::Taille, jemand(Personengeschlecht::Mann), {}, heute),
             (Zielband{.von = {}, .bis = 94.0}));
    QCOMPARE(zielband(Messgroesse::Taille, jemand(Personengeschlecht::Frau), {}, heute),
             (Zielband{.von = {}, .bis = 80.0}));
}

void TestMessreihe::whyThereIsNoBand_data()
{
    using G = Personengeschlecht;
    QTest::addColumn<Messgroesse>("was");
    QTest::addColumn<Person>("person");
    QTest::addColumn<bool>("mitGroesse");
    QTest::addColumn<int>("mangel"); // −1: there is a band
    const int keiner = -1;
    const int jugend = static_cast<int>(Bandmangel::Jugend);
    const int schwanger = static_cast<int>(Bandmangel::Schwangerschaft);
    const int ohneGeschlecht = static_cast<int>(Bandmangel::OhneGeschlecht);
    const int ohneGroesse = static_cast<int>(Bandmangel::OhneGroesse);
    const QDate neunzehnHeute(2007, 11, 22);
    const Person werdend = jemand(G::Frau, {}, Umstand::Schwanger);
    const struct
    {
        const char *name;
        Messgroesse was;
        Person person;
        bool mitGroesse;
        int mangel;
    } zeilen[] = {
        {"19 years today", Messgroesse::Bmi, jemand(G::Frau, neunzehnHeute), true, keiner},
        {"19 years tomorrow", Messgroesse::Bmi, jemand(G::Frau, neunzehnHeute.addDays(1)), true,
         jugend},
        {"weight of a child", Messgroesse::Gewicht, jemand(G::Mann, QDate(2016, 1, 1)), true,
         jugend},
        {"waist of a child", Messgroesse::Taille, jemand(G::Mann, QDate(2016, 1, 1)), true, jugend},
        {"birth not known", Messgroesse::Bmi, jemand(G::Frau), true, keiner},
        {"BMI of a pregnant woman", Messgroesse::Bmi, werdend, true, schwanger},
        {"weight of a pregnant woman", Messgroesse::Gewicht, werdend, true, schwanger},
        {"waist of a pregnant woman", Messgroesse::Taille, werdend, true, schwanger},
        {"pregnant, gender not known", Messgroesse::Bmi,
         jemand(G::Unbekannt, {}, Umstand::Schwanger), true, schwanger},
        {"a man is not pregnant", Messgroesse::Bmi, jemand(G::Mann, {}, Umstand::Schwanger), true,
         keiner},
        {"breastfeeding", Messgroesse::Bmi, jemand(G::Frau, {}, Umstand::Stillend), true, keiner},
        {"waist, gender not known", Messgroesse::Taille, jemand(G::Unbekannt), true,
         ohneGeschlecht},
        {"weight, gender not known", Messgroesse::Gewicht, jemand(G::Unbekannt), true, keiner},
        {"weight, height not known", Messgroesse::Gewicht, jemand(G::Frau), false, ohneGroesse},
        {"BMI, height not known", Messgroesse::Bmi, jemand(G::Frau), false, keiner},
        {"waist, height not known", Messgroesse::Taille, jemand(G::Frau), false, keiner},
    };
    for (const auto &zeile : zeilen) {
        QTest::newRow(zeile.name) << zeile.was << zeile.person << zeile.mitGroesse << zeile.mangel;
    }
}

void TestMessreihe::whyThereIsNoBand()
{
    QFETCH(const Messgroesse, was);
    QFETCH(const Person, person);
    QFETCH(const bool, mitGroesse);
    QFETCH(const int, mangel);
    const QList<Besuch> besuche = mitGroesse ? einszweiundsiebzig : QList<Besuch>();
    const std::optional<Bandmangel> ist = bandmangel(was, person, besuche, heute);
    QCOMPARE(ist ? static_cast<int>(*ist) : -1, mangel);
    QCOMPARE(zielband(was, person, besuche, heute).has_value(), mangel < 0);
}

void TestMessreihe::theReasonIsSaid()
{
    QCOMPARE(ohneZielband(Bandmangel::Jugend),
             QStringLiteral("Unter 19 Jahren gilt der Zielbereich für Erwachsene nicht."));
    QCOMPARE(ohneZielband(Bandmangel::Schwangerschaft),
             QStringLiteral("In der Schwangerschaft gilt kein Zielbereich."));
    QCOMPARE(ohneZielband(Bandmangel::OhneGeschlecht),
             QStringLiteral("Ohne Angabe des Geschlechts gibt es keinen Zielbereich für die "
                            "Taille."));
    QCOMPARE(ohneZielband(Bandmangel::OhneGroesse),
             QStringLiteral("Ohne Angabe der Größe gibt es keinen Zielbereich für das Gewicht."));
}

void TestMessreihe::theBandHoldsFromTheNineteenthBirthday()
{
    QCOMPARE(zielbandAb(jemand(Personengeschlecht::Frau, QDate(2000, 5, 31))), QDate(2019, 5, 31));
    QVERIFY(zielbandAb(jemand(Personengeschlecht::Frau)).isNull());
}

void TestMessreihe::whereAMeasureLies_data()
{
    QTest::addColumn<Messgroesse>("was");
    QTest::addColumn<Zielband>("band");
    QTest::addColumn<double>("wert");
    QTest::addColumn<int>("lage"); // −1 below, 0 within, 1 above
    const Zielband bmi{.von = 18.5, .bis = 25.0, .unterBis = true};
    // 1.72 m: 54.73 and 73.96 kg, shown as 54.7 and 74.0.
    const Zielband gewicht{.von = 54.7304, .bis = 73.96, .unterBis = true};
    const Zielband taille{.von = {}, .bis = 94.0};
    const auto b = Messgroesse::Bmi;
    const auto g = Messgroesse::Gewicht;
    const auto t = Messgroesse::Taille;
    QTest::newRow("BMI 18.4") << b << bmi << 18.4 << -1;
    QTest::newRow("BMI that reads 18.4") << b << bmi << 18.449 << -1;
    QTest::newRow("BMI that reads 18.5") << b << bmi << 18.451 << 0;
    QTest::newRow("BMI 18.5") << b << bmi << 18.5 << 0;
    QTest::newRow("BMI 24.9") << b << bmi << 24.9 << 0;
    QTest::newRow("BMI that reads 24.9") << b << bmi << 24.949 << 0;
    QTest::newRow("BMI that reads 25.0") << b << bmi << 24.951 << 1;
    QTest::newRow("BMI 25") << b << bmi << 25.0 << 1;
    QTest::newRow("the lowest weight") << g << gewicht << 54.7 << 0;
    QTest::newRow("less than that") << g << gewicht << 54.6 << -1;
    QTest::newRow("the highest weight") << g << gewicht << 73.9 << 0;
    QTest::newRow("more than that") << g << gewicht << 74.0 << 1;
    QTest::newRow("no waist is too small") << t << taille << 0.0 << 0;
    QTest::newRow("waist of 94 cm") << t << taille << 94.0 << 0;
    QTest::newRow("waist that reads 94.0 cm") << t << taille << 94.04 << 0;
    QTest::newRow("waist of 94.1 cm") << t << taille << 94.1 << 1;
    QTest::newRow("from below only") << t << Zielband{.von = 60.0, .bis = {}} << 59.9 << -1;
    QTest::newRow("no limit above") << t << Zielband{.von = 60.0, .bis = {}} << 900.0 << 0;
}

void TestMessreihe::whereAMeasureLies()
{
    QFETCH(const Messgroesse, was);
    QFETCH(const Zielband, band);
    QFETCH(const double, wert);
    QFETCH(const int, lage);
    QCOMPARE(static_cast<int>(bandlage(was, wert, band)), lage + 1);
}

void TestMessreihe::limitsInWords_data()
{
    QTest::addColumn<Zielband>("band");
    QTest::addColumn<QString>("worte");
    QTest::newRow("no 0 behind the comma")
        << Zielband{.von = 18.5, .bis = 25.0} << QStringLiteral("18,5–25");
    QTest::newRow("one digit") << Zielband{.von = 54.7304, .bis = 73.96}
                               << QStringLiteral("54,7–74");
    QTest::newRow("from above only")
        << Zielband{.von = {}, .bis = 94.0} << QStringLiteral("bis 94");
    QTest::newRow("from below only")
        << Zielband{.von = 18.5, .bis = {}} << QStringLiteral("ab 18,5");
    QTest::newRow("no limit") << Zielband{} << QString();
    QTest::newRow("nothing between thousands")
        << Zielband{.von = 54730.4, .bis = 73960.0} << QStringLiteral("54730,4–73960");
}

void TestMessreihe::limitsInWords()
{
    QFETCH(const Zielband, band);
    QTEST(bandworte(Messgroesse::Gewicht, band), "worte");
}

void TestMessreihe::measuresInWords()
{
    QCOMPARE(messzahl(Messgroesse::Gewicht, 72.44), QStringLiteral("72,4"));
    QCOMPARE(messwert(Messgroesse::Gewicht, 72.0), QStringLiteral("72,0\u00a0kg"));
    QCOMPARE(messwert(Messgroesse::Bmi, 24.951), QStringLiteral("25,0\u00a0kg/m²"));
    QCOMPARE(messwert(Messgroesse::Taille, 94.0), QStringLiteral("94,0\u00a0cm"));
}

void TestMessreihe::everyLimitHasASource()
{
    QVERIFY(
        zielbandquelle(Messgroesse::Bmi).contains(QStringLiteral("Technical Report Series 894")));
    QVERIFY(zielbandquelle(Messgroesse::Bmi)
                .endsWith(QStringLiteral("World Health Organization, 2000.")));
    QCOMPARE(zielbandquelle(Messgroesse::Gewicht), zielbandquelle(Messgroesse::Bmi));
    QVERIFY(zielbandquelle(Messgroesse::Taille)
                .startsWith(QStringLiteral("Waist circumference and waist-hip ratio")));
}

QTEST_APPLESS_MAIN(TestMessreihe)
#include "TestMessreihe.moc"
