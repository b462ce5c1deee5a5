// What the published sets say about a day, worked out by hand for whole people.

#include "Referenzprobe.h"

class TestReferenztage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aWholeDayIsKnown_data();
    void aWholeDayIsKnown();
    void rangesOfADay_data();
    void rangesOfADay();
};

void TestReferenztage::aWholeDayIsKnown_data()
{
    QTest::addColumn<Referenzsatz>("satz");
    QTest::addColumn<Referenzperson>("person");
    QTest::addColumn<QStringList>("erwartet");
    const auto tag = [](const char *name, Referenzsatz satz, const Referenzperson &person,
                        const QStringList &erwartet) {
        QTest::newRow(name) << satz << person << erwartet;
    };
    tag("woman, EFSA", Referenzsatz::Efsa, schwangere(),
        {
            u"AR 2412"_s,            // 2149 + 263
            u"PRI 62.12, no UL"_s,   // 0.83 x 64 + 9
            u"RI 53.6..93.8"_s,      // 20 % are 482.4 kcal, 35 % 844.2; by 9
            u"- state"_s,            // carbohydrate and fibre: no line for pregnancy
            u"- state"_s,            //
            u"- not set"_s,          //
            u"AI 2000, no UL"_s,     //
            u"AI 3500, no UL"_s,     //
            u"PRI 950, UL 2500"_s,   // from 25 years on
            u"AI 550, no UL"_s,      //
            u"AI 300, UL 250"_s,     //
            u"PRI 16, SAFE 40"_s,    //
            u"PRI 700, UL 3000"_s,   //
            u"PRI 1.00992, no UL"_s, // 0.1 x 2412 / 238.83
            u"PRI 1.9, no UL"_s,     //
            u"PRI 1.8, UL 12"_s,     //
            u"PRI 105, no UL"_s,     //
        });
    tag("woman, DACH", Referenzsatz::Dach, schwangere(),
        {
            u"RI 2350"_s,   // 2100 + 250
            u"PRI 58.2"_s,  // 0.8 x 64 + 7
            u"- state"_s,   // fat, carbohydrate and fibre: no line for pregnancy
            u"- state"_s,   //
            u"- state"_s,   //
            u"- not set"_s, //
            u"- state"_s,   // sodium was not confirmed
            u"AI 4000"_s,   //
            u"PRI 1000"_s,  //
            u"AI 550"_s,    //
            u"AI 300"_s,    //
            u"PRI 27"_s,    //
            u"PRI 800"_s,   // from the fourth month on
            u"PRI 1.2"_s,   //
            u"- state"_s,   // riboflavin was not confirmed
            u"PRI 1.8"_s,   //
            u"PRI 105"_s,   //
        });
    tag("man, EFSA", Referenzsatz::Efsa, aeltererMann(),
        {
            u"AR 2006"_s,             //
            u"PRI 78.85, no UL"_s,    // 0.83 x 95
            u"RI 44.5778..78.0111"_s, // 20 % are 401.2 kcal, 35 % 702.1; by 9
            u"RI 225.675..300.9"_s,   // 45 % are 902.7 kcal, 60 % 1203.6; by 4
            u"AI 25"_s,               //
            u"- not set"_s,           //
            u"AI 2000, no UL"_s,      //
            u"AI 3500, no UL"_s,      //
            u"PRI 950, UL 2500"_s,    //
            u"AI 550, no UL"_s,       //
            u"AI 350, UL 250"_s,      //
            u"PRI 11, SAFE 40"_s,     //
            u"PRI 750, UL 3000"_s,    //
            u"PRI 0.839928, no UL"_s, // 0.1 x 2006 / 238.83
            u"PRI 1.6, no UL"_s,      //
            u"PRI 1.7, UL 12"_s,      //
            u"PRI 110, no UL"_s,      //
        });
    tag("man, DACH", Referenzsatz::Dach, aeltererMann(),
        {
            u"RI 2100"_s,   //
            u"AI 95"_s,     // 1 x 95
            u"RI 70"_s,     // 30 % are 630 kcal; by 9
            u"RI 262.5+"_s, // more than 50 %, 1050 kcal; by 4
            u"RI 30+"_s,    //
            u"- not set"_s, //
            u"AI 1500"_s,   //
            u"AI 4000"_s,   //
            u"PRI 1000"_s,  //
            u"AI 550"_s,    //
            u"AI 350"_s,    //
            u"PRI 11"_s,    //
            u"PRI 800"_s,   //
            u"PRI 1.1"_s,   //
            u"PRI 1.3"_s,   //
            u"PRI 1.6"_s,   //
            u"PRI 110"_s,   //
        });
    tag("boy, EFSA", Referenzsatz::Efsa, junge(),
        {
            u"AR 2173"_s,             //
            u"PRI 37.8, no UL"_s,     // 0.9 x 42
            u"RI 48.2889..84.5056"_s, // 20 % are 434.6 kcal, 35 % 760.55; by 9
            u"RI 244.463..325.95"_s,  // 45 % are 977.85 kcal, 60 % 1303.8; by 4
            u"AI 19"_s,               //
            u"- not set"_s,           //
            u"AI 2000, no UL"_s,      //
            u"AI 2700, no UL"_s,      //
            u"PRI 1150"_s,            // the upper level begins at 18
            u"AI 640, no UL"_s,       //
            u"AI 300, UL 250"_s,      //
            u"PRI 11"_s,              // the safe level of these ages was not seen
            u"PRI 600, UL 2000"_s,    //
            u"PRI 0.909852, no UL"_s, // 0.1 x 2173 / 238.83
            u"PRI 1.4, no UL"_s,      //
            u"PRI 1.4, UL 8.6"_s,     //
            u"PRI 70, no UL"_s,       //
        });
    tag("boy, DACH", Referenzsatz::Dach, junge(),
        {
            u"RI 2200"_s,             //
            u"PRI 37.8"_s,            // 0.9 x 42
            u"RI 73.3333..85.5556"_s, // 30 % are 660 kcal, 35 % 770; by 9
            u"RI 275+"_s,             // more than 50 %, 1100 kcal; by 4
            u"- age"_s,               // fibre is printed from 19 on
            u"- not set"_s,           //
            u"AI 1100"_s,             //
            u"AI 2900"_s,             //
            u"PRI 1100"_s,            //
            u"AI 610"_s,              //
            u"AI 260"_s,              //
            u"PRI 14"_s,              //
            u"PRI 600"_s,             //
            u"PRI 1"_s,               //
            u"PRI 1.1"_s,             //
            u"PRI 1.2"_s,             //
            u"PRI 65"_s,              //
        });
}

void TestReferenztage::aWholeDayIsKnown()
{
    QFETCH(const Referenzsatz, satz);
    QFETCH(const Referenzperson, person);
    QFETCH(const QStringList, erwartet);
    const Referenzwerte werte = referenzwerte(tabelle(), satz, person);
    QCOMPARE(werte.satz, std::optional(satz));
    QCOMPARE(werte.person, person);
    QVERIFY(!werte.istLeer());
    QStringList ist;
    for (const Naehrwertbeschreibung &eine : naehrwerte) {
        QCOMPARE(werte.wert(eine.wert).wert, eine.wert);
        ist << text(werte.wert(eine.wert));
    }
    QCOMPARE(ist, erwartet);
}

void TestReferenztage::rangesOfADay_data()
{
    QTest::addColumn<Referenzsatz>("satz");
    QTest::addColumn<Referenzperson>("person");
    QTest::addColumn<QStringList>("erwartet");
    QTest::newRow("man, EFSA") << Referenzsatz::Efsa << aeltererMann()
                               << QStringList{u"kal 1805.4..2206.6"_s, // 2006 less and more a tenth
                                              u"protein 78.85.."_s,
                                              u"fett 44.5778..78.0111"_s,
                                              u"kh 225.675..300.9"_s,
                                              u"bs 25.."_s,
                                              u"na ..2000"_s, // safe, but no goal
                                              u"ka 3500.."_s,
                                              u"ca 950.. !2500"_s,
                                              u"ph 550.."_s,
                                              u"ma 350.."_s,
                                              u"fe 11.."_s,
                                              u"vita 750.."_s,
                                              u"b1 0.839928.."_s,
                                              u"b2 1.6.."_s,
                                              u"b6 1.7.. !12"_s,
                                              u"vitc 110.."_s};
    QTest::newRow("man, DACH") << Referenzsatz::Dach << aeltererMann()
                               << QStringList{
                                      u"kal 1890..2310"_s, // 2100 less and more a tenth
                                      u"protein 95.."_s,
                                      u"fett 63..77"_s, // 70 less and more a tenth
                                      u"kh 262.5.."_s,     u"bs 30.."_s,    u"ka 4000.."_s,
                                      u"ca 1000.."_s,      u"ph 550.."_s,   u"ma 350.."_s,
                                      u"fe 11.."_s,        u"vita 800.."_s, u"b1 1.1.."_s,
                                      u"b2 1.3.."_s,       u"b6 1.6.."_s,   u"vitc 110.."_s};
    // What the set lacks for her has no range.
    QTest::newRow("woman, DACH") << Referenzsatz::Dach << schwangere()
                                 << QStringList{
                                        u"kal 2115..2585"_s, u"protein 58.2.."_s, u"ka 4000.."_s,
                                        u"ca 1000.."_s,      u"ph 550.."_s,       u"ma 300.."_s,
                                        u"fe 27.."_s,        u"vita 800.."_s,     u"b1 1.2.."_s,
                                        u"b6 1.8.."_s,       u"vitc 105.."_s};
    QTest::newRow("nobody") << Referenzsatz::Efsa << Referenzperson() << QStringList();
    // The upper level is that of both sexes: it holds without the value.
    QTest::newRow("an adult") << Referenzsatz::Efsa << Referenzperson{.alter = 40}
                              << QStringList{u"bs 25.."_s,        u"na ..2000"_s, u"ka 3500.."_s,
                                             u"ca 950.. !2500"_s, u"ph 550.."_s,  u"b2 1.6.."_s,
                                             u"b6 .. !12"_s};
}

void TestReferenztage::rangesOfADay()
{
    QFETCH(const Referenzsatz, satz);
    QFETCH(const Referenzperson, person);
    QFETCH(const QStringList, erwartet);
    QCOMPARE(ziele(satz, person), erwartet);
}

QTEST_APPLESS_MAIN(TestReferenztage)
#include "TestReferenztage.moc"
