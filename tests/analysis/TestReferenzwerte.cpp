// What the published sets say of somebody, worked out by hand, and what is said where they say
// nothing.

#include "Referenzprobe.h"

class TestReferenzwerte : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void agesEndWithTheirLastYear_data();
    void agesEndWithTheirLastYear();
    void whatIsLackingSaysWhy_data();
    void whatIsLackingSaysWhy();
    void whatDoesNotHangOnTheSexNeedsNone();
    void aPregnantPersonIsAWoman();
    void theNearestPrintedActivityIsTakenAndSaid_data();
    void theNearestPrintedActivityIsTakenAndSaid();
    void anAdditionPrintedForAnotherActivitySaysSo();
    void untilTheFirstPrintedTrimesterAWomanIsAsBefore();
    void lactationHasItsMonths_data();
    void lactationHasItsMonths();
    void ironFollowsMenopause_data();
    void ironFollowsMenopause();
    void proteinWithoutAWeightIsThatOfTheReferenceWeight();
    void theOwnEnergyGoesBeforeThatOfTheSet();
    void theShareIsKnownWithoutTheEnergy();
    void aValueSaysWhereItComesFrom();
    void vitaminAKeepsItsEquivalents();
    void onlyWhatTheTableCountsIsMeasuredAgainstALevel();
    void withoutASetNothingIsAimedAt();
    void anEmptyTableLacksAll();
};

void TestReferenzwerte::agesEndWithTheirLastYear_data()
{
    QTest::addColumn<Referenzsatz>("satz");
    QTest::addColumn<Naehrwert>("wert");
    QTest::addColumn<int>("alter");
    QTest::addColumn<QString>("vorher");
    QTest::addColumn<QString>("ab");
    const auto grenze = [](const char *name, Referenzsatz satz, Naehrwert wert, int alter,
                           const QString &vorher, const QString &ab) {
        QTest::newRow(name) << satz << wert << alter << vorher << ab;
    };
    grenze("EFSA, 1", Referenzsatz::Efsa, Naehrwert::vitc, 1, u"- age"_s, u"PRI 20, no UL"_s);
    grenze("EFSA, 18", Referenzsatz::Efsa, Naehrwert::ca, 18, u"PRI 1150"_s,
           u"PRI 1000, UL 2500"_s);
    grenze("EFSA, 25", Referenzsatz::Efsa, Naehrwert::ca, 25, u"PRI 1000, UL 2500"_s,
           u"PRI 950, UL 2500"_s);
    grenze("EFSA, 80", Referenzsatz::Efsa, Naehrwert::kal, 80, u"AR 2269"_s, u"- age"_s);
    grenze("DACH, 1", Referenzsatz::Dach, Naehrwert::vitc, 1, u"- age"_s, u"PRI 20"_s);
    grenze("DACH, 19", Referenzsatz::Dach, Naehrwert::bs, 19, u"- age"_s, u"RI 30+"_s);
    grenze("DACH, 25", Referenzsatz::Dach, Naehrwert::b1, 25, u"PRI 1.3"_s, u"PRI 1.2"_s);
    // 0.8 and 1 g for each of 80 kg
    grenze("DACH, 65", Referenzsatz::Dach, Naehrwert::protein, 65, u"PRI 64"_s, u"AI 80"_s);
    grenze("DACH, vitamin A", Referenzsatz::Dach, Naehrwert::vita, 65, u"PRI 850"_s, u"PRI 800"_s);
}

void TestReferenzwerte::agesEndWithTheirLastYear()
{
    QFETCH(const Referenzsatz, satz);
    QFETCH(const Naehrwert, wert);
    QFETCH(const int, alter);
    QFETCH(const QString, vorher);
    QFETCH(const QString, ab);
    Referenzperson person = {.geschlecht = mann, .alter = alter - 1, .pal = 1.6, .gewicht = 80};
    QCOMPARE(text(nachgeschlagen(satz, person, wert)), vorher);
    person.alter = alter;
    QCOMPARE(text(nachgeschlagen(satz, person, wert)), ab);
}

void TestReferenzwerte::whatIsLackingSaysWhy_data()
{
    QTest::addColumn<Referenzsatz>("satz");
    QTest::addColumn<Referenzperson>("person");
    QTest::addColumn<Naehrwert>("wert");
    QTest::addColumn<QString>("mangel");
    using enum Naehrwert;
    const auto fall = [](const char *name, Referenzsatz satz, Referenzperson person,
                         const std::function<void(Referenzperson &)> &aendere, Naehrwert wert,
                         const QString &mangel) {
        aendere(person);
        QTest::newRow(name) << satz << person << wert << mangel;
    };
    const auto e = Referenzsatz::Efsa;
    const auto d = Referenzsatz::Dach;
    fall(
        "no age", e, junge(), [](auto &p) { p.alter.reset(); }, ca, u"- no age"_s);
    fall(
        "no value needs no age", e, junge(), [](auto &p) { p = {}; }, chol, u"- not set"_s);
    fall(
        "an infant", d, junge(), [](auto &p) { p.alter = 0; }, ca, u"- age"_s);
    fall(
        "below 0", d, junge(), [](auto &p) { p.alter = -1; }, ca, u"- age"_s);
    fall(
        "no sex", d, aeltererMann(), [](auto &p) { p.geschlecht.reset(); }, ma, u"- no sex"_s);
    fall(
        "no sex, energy", e, aeltererMann(), [](auto &p) { p.geschlecht.reset(); }, kal,
        u"- no sex"_s);
    // Girls have a remark that boys have not, at the same figure.
    fall(
        "no sex, another remark", d, junge(), [](auto &p) { p.geschlecht.reset(); }, fe,
        u"- no sex"_s);
    fall(
        "no activity", d, junge(), [](auto &p) { p.pal.reset(); }, kal, u"- no pal"_s);
    fall(
        "no sensible activity", d, junge(), [](auto &p) { p.pal = 0; }, kal, u"- no pal"_s);
    fall(
        "no activity, so no energy", d, junge(), [](auto &p) { p.pal.reset(); }, fett,
        u"- no energy"_s);
    fall(
        "no activity, so no MJ", e, junge(), [](auto &p) { p.pal.reset(); }, b1,
        u"- no energy, no UL"_s);
    fall(
        "too far above", d, junge(), [](auto &p) { p.pal = 2.1; }, kal, u"- pal"_s);
    fall(
        "too far below", d, junge(), [](auto &p) { p.pal = 1.1; }, kal, u"- pal"_s);
    fall(
        "no weight", e, junge(), [](auto &p) { p.gewicht.reset(); }, protein,
        u"- no weight, no UL"_s);
    fall(
        "weightless", e, junge(), [](auto &p) { p.gewicht = 0; }, protein, u"- no weight, no UL"_s);
    fall(
        "no trimester", d, schwangere(), [](auto &p) { p.trimester.reset(); }, b6,
        u"- no trimester"_s);
    fall(
        "no such trimester", d, schwangere(), [](auto &p) { p.trimester = 4; }, b6,
        u"- no trimester"_s);
    fall(
        "pregnant at 17", e, schwangere(), [](auto &p) { p.alter = 17; }, ca, u"- state"_s);
    // The upper level of girls who are not pregnant is not that of those who are.
    fall(
        "no level for pregnancy at 17", e, schwangere(), [](auto &p) { p.alter = 17; }, b6,
        u"- state"_s);
    fall(
        "pregnant at 18", d, schwangere(), [](auto &p) { p.alter = 18; }, ca, u"- state"_s);
    fall(
        "a pregnant man", d, schwangere(), [](auto &p) { p.geschlecht = mann; }, ca, u"- state"_s);
    fall(
        "no weight in pregnancy", e, schwangere(), [](auto &p) { p.gewicht.reset(); }, protein,
        u"- no weight, no UL"_s);
    fall(
        "no month", d, stillende(2), [](auto &p) { p.stillmonat.reset(); }, kal, u"- no month"_s);
    fall(
        "no such month", d, stillende(2), [](auto &p) { p.stillmonat = 0; }, kal, u"- no month"_s);
}

void TestReferenzwerte::whatIsLackingSaysWhy()
{
    QFETCH(const Referenzsatz, satz);
    QFETCH(const Referenzperson, person);
    QFETCH(const Naehrwert, wert);
    QFETCH(const QString, mangel);
    const Referenzwert gefunden = nachgeschlagen(satz, person, wert);
    QCOMPARE(text(gefunden), mangel);
    QVERIFY(!gefunden.unten);
    QVERIFY(!gefunden.oben);
}

void TestReferenzwerte::whatDoesNotHangOnTheSexNeedsNone()
{
    Referenzperson person = aeltererMann();
    person.geschlecht.reset();
    QCOMPARE(efsa(person, Naehrwert::ca), u"PRI 950, UL 2500"_s);
    QCOMPARE(efsa(person, Naehrwert::protein), u"PRI 78.85, no UL"_s);
    // The safe level is that of both, the recommendation is not.
    QCOMPARE(efsa(person, Naehrwert::fe), u"- no sex, SAFE 40"_s);
    // The share is that of both; the grams lack the energy, which lacks the sex.
    QCOMPARE(efsa(person, Naehrwert::fett), u"- no energy"_s);
}

void TestReferenzwerte::aPregnantPersonIsAWoman()
{
    Referenzperson person = schwangere();
    person.geschlecht.reset();
    QCOMPARE(dach(person, Naehrwert::fe), u"PRI 27"_s);
}

void TestReferenzwerte::theNearestPrintedActivityIsTakenAndSaid_data()
{
    QTest::addColumn<Referenzsatz>("satz");
    QTest::addColumn<int>("alter");
    QTest::addColumn<double>("pal");
    QTest::addColumn<QString>("energie");
    QTest::addColumn<double>("gedruckt");
    const auto e = Referenzsatz::Efsa;
    const auto d = Referenzsatz::Dach;
    QTest::newRow("as printed") << d << 30 << 1.8 << u"RI 3000"_s << 1.8;
    QTest::newRow("above all") << d << 30 << 2.0 << u"RI 3000"_s << 1.8;
    QTest::newRow("below all") << d << 30 << 1.2 << u"RI 2300"_s << 1.4;
    QTest::newRow("nearer to the lower one") << d << 30 << 1.69 << u"RI 2700"_s << 1.6;
    QTest::newRow("nearer to the upper one") << d << 30 << 1.71 << u"RI 3000"_s << 1.8;
    QTest::newRow("between two") << d << 30 << 1.7 << u"RI 2700"_s << 1.6;
    QTest::newRow("between two others") << d << 30 << 1.5 << u"RI 2300"_s << 1.4;
    QTest::newRow("a small child") << e << 2 << 1.6 << u"AR 1027"_s << 1.4;
    QTest::newRow("a boy") << e << 12 << 1.4 << u"AR 2173"_s << 1.6;
}

void TestReferenzwerte::theNearestPrintedActivityIsTakenAndSaid()
{
    QFETCH(const Referenzsatz, satz);
    QFETCH(const int, alter);
    QFETCH(const double, pal);
    QFETCH(const QString, energie);
    QFETCH(const double, gedruckt);
    const Referenzwert wert =
        nachgeschlagen(satz, {.geschlecht = mann, .alter = alter, .pal = pal}, Naehrwert::kal);
    QCOMPARE(text(wert), energie);
    QCOMPARE(wert.pal, std::optional(gedruckt));
    QCOMPARE(wert.palGenaehert, pal != gedruckt);
}

void TestReferenzwerte::anAdditionPrintedForAnotherActivitySaysSo()
{
    Referenzperson person = schwangere();
    const Referenzwert mittel = nachgeschlagen(Referenzsatz::Dach, person, Naehrwert::kal);
    QCOMPARE(mittel.zuschlag, std::optional(250.0));
    QCOMPARE(mittel.pal, std::optional(1.6));
    QVERIFY(!mittel.palGenaehert);
    QCOMPARE(mittel.zuschlagspal, std::optional(1.4));
    person.pal = 1.4;
    const Referenzwert leicht = nachgeschlagen(Referenzsatz::Dach, person, Naehrwert::kal);
    QCOMPARE(text(leicht), u"RI 2050"_s); // 1800 + 250
    QVERIFY(!leicht.zuschlagspal);
    // EFSA prints one for every activity.
    QVERIFY(!nachgeschlagen(Referenzsatz::Efsa, person, Naehrwert::kal).zuschlagspal);
}

void TestReferenzwerte::untilTheFirstPrintedTrimesterAWomanIsAsBefore()
{
    Referenzperson person = schwangere();
    person.trimester = 1;
    const Referenzwert energie = nachgeschlagen(Referenzsatz::Dach, person, Naehrwert::kal);
    QCOMPARE(text(energie), u"RI 2100"_s);
    QVERIFY(energie.wieNichtSchwanger);
    QVERIFY(!energie.zuschlag);
    QCOMPARE(dach(person, Naehrwert::vita), u"PRI 700"_s);
    QCOMPARE(dach(person, Naehrwert::vitc), u"PRI 95"_s);
    QCOMPARE(dach(person, Naehrwert::b1), u"PRI 1"_s);
    // What is printed for the first one, or for all, is that of pregnancy.
    const Referenzwert b6 = nachgeschlagen(Referenzsatz::Dach, person, Naehrwert::b6);
    QCOMPARE(text(b6), u"PRI 1.5"_s);
    QVERIFY(!b6.wieNichtSchwanger);
    QCOMPARE(dach(person, Naehrwert::fe), u"PRI 27"_s);
    QCOMPARE(efsa(person, Naehrwert::kal), u"AR 2218"_s); // 2149 + 69
    person.trimester = 3;
    QCOMPARE(efsa(person, Naehrwert::kal), u"AR 2651"_s); // 2149 + 502
    QCOMPARE(dach(person, Naehrwert::kal), u"RI 2600"_s); // 2100 + 500
    QCOMPARE(dach(person, Naehrwert::b1), u"PRI 1.3"_s);
    QCOMPARE(dach(person, Naehrwert::b6), u"PRI 1.8"_s);
    QCOMPARE(dach(person, Naehrwert::vita), u"PRI 800"_s);
}

void TestReferenzwerte::lactationHasItsMonths_data()
{
    QTest::addColumn<int>("monat");
    QTest::addColumn<QString>("energie");
    QTest::addColumn<QString>("protein");
    // 2078 + 502; 0.83 x 60 + 19 or + 13
    QTest::newRow("the first") << 1 << u"AR 2580"_s << u"PRI 68.8, no UL"_s;
    QTest::newRow("the sixth") << 6 << u"AR 2580"_s << u"PRI 68.8, no UL"_s;
    QTest::newRow("the seventh") << 7 << u"- month"_s << u"PRI 62.8, no UL"_s;
}

void TestReferenzwerte::lactationHasItsMonths()
{
    QFETCH(const int, monat);
    QFETCH(const QString, energie);
    QFETCH(const QString, protein);
    QCOMPARE(efsa(stillende(monat), Naehrwert::kal), energie);
    QCOMPARE(efsa(stillende(monat), Naehrwert::protein), protein);
    // 0.8 x 60 + 23 in every month
    QCOMPARE(dach(stillende(monat), Naehrwert::protein), u"PRI 71"_s);
    QCOMPARE(dach(stillende(monat), Naehrwert::vita), u"PRI 1300"_s);
}

void TestReferenzwerte::ironFollowsMenopause_data()
{
    QTest::addColumn<int>("alter");
    QTest::addColumn<int>("nach");
    QTest::addColumn<QString>("efsa");
    QTest::addColumn<QString>("dach");
    constexpr int unbekannt = -1;
    QTest::newRow("17") << 17 << unbekannt << u"PRI 13, SAFE 35"_s << u"PRI 16"_s;
    QTest::newRow("40, before") << 40 << 0 << u"PRI 16, SAFE 40"_s << u"PRI 16"_s;
    QTest::newRow("40, after") << 40 << 1 << u"PRI 11, SAFE 40"_s << u"PRI 14"_s;
    QTest::newRow("40, unknown") << 40 << unbekannt << u"- no menopause, SAFE 40"_s << u"PRI 16"_s;
    QTest::newRow("55, before") << 55 << 0 << u"PRI 16, SAFE 40"_s << u"PRI 16"_s;
    QTest::newRow("55, after") << 55 << 1 << u"PRI 11, SAFE 40"_s << u"PRI 14"_s;
    QTest::newRow("55, unknown") << 55 << unbekannt << u"- no menopause, SAFE 40"_s << u"PRI 14"_s;
    QTest::newRow("70, after") << 70 << 1 << u"PRI 11, SAFE 40"_s << u"PRI 14"_s;
}

void TestReferenzwerte::ironFollowsMenopause()
{
    QFETCH(const int, alter);
    QFETCH(const int, nach);
    QFETCH(const QString, efsa);
    QFETCH(const QString, dach);
    Referenzperson person = frauVon(alter);
    if (nach >= 0) {
        person.nachMenopause = nach == 1;
    }
    QCOMPARE(::efsa(person, Naehrwert::fe), efsa);
    QCOMPARE(::dach(person, Naehrwert::fe), dach);
}

void TestReferenzwerte::proteinWithoutAWeightIsThatOfTheReferenceWeight()
{
    Referenzperson person = aeltererMann();
    const Referenzwert gewogen = nachgeschlagen(Referenzsatz::Dach, person, Naehrwert::protein);
    QCOMPARE(gewogen.gewicht, std::optional(95.0));
    QCOMPARE(gewogen.gedrucktUnten, std::optional(1.0));
    QCOMPARE(gewogen.einheit, Referenzeinheit::JeKilogramm);
    QCOMPARE(gewogen.vorbehalt, Referenzvorbehalt::Keiner);
    person.gewicht.reset();
    const Referenzwert ohne = nachgeschlagen(Referenzsatz::Dach, person, Naehrwert::protein);
    QCOMPARE(text(ohne), u"AI 67"_s);
    QVERIFY(!ohne.gewicht);
    QCOMPARE(ohne.vorbehalt, Referenzvorbehalt::Referenzgewicht);
    Referenzperson ohneGewicht = schwangere();
    ohneGewicht.gewicht.reset();
    QCOMPARE(dach(ohneGewicht, Naehrwert::protein), u"PRI 55"_s); // 48 + 7
}

void TestReferenzwerte::theOwnEnergyGoesBeforeThatOfTheSet()
{
    Referenzperson person = aeltererMann();
    const Referenzwert vomSatz = nachgeschlagen(Referenzsatz::Efsa, person, Naehrwert::fett);
    QCOMPARE(vomSatz.energie, std::optional(2006.0));
    QVERIFY(!vomSatz.eigeneEnergie);
    person.energiebedarf = 1800;
    const Referenzwert fett = nachgeschlagen(Referenzsatz::Efsa, person, Naehrwert::fett);
    QCOMPARE(text(fett), u"RI 40..70"_s); // 360 and 630 kcal, by 9
    QCOMPARE(fett.energie, std::optional(1800.0));
    QVERIFY(fett.eigeneEnergie);
    // 180 / 238.83
    QCOMPARE(efsa(person, Naehrwert::b1), u"PRI 0.753674, no UL"_s);
    // What the set says about the energy stays what it says.
    QCOMPARE(efsa(person, Naehrwert::kal), u"AR 2006"_s);
    person.energiebedarf = 0; // no energy at all
    QCOMPARE(efsa(person, Naehrwert::fett), u"RI 44.5778..78.0111"_s);
    person.alter = 85; // the set has no energy for this age
    person.energiebedarf = 1800;
    QCOMPARE(efsa(person, Naehrwert::fett), u"RI 40..70"_s);
}

void TestReferenzwerte::theShareIsKnownWithoutTheEnergy()
{
    Referenzperson person = aeltererMann();
    person.pal.reset();
    const Referenzwert fett = nachgeschlagen(Referenzsatz::Efsa, person, Naehrwert::fett);
    QCOMPARE(fett.mangel, Referenzmangel::EnergieFehlt);
    QVERIFY(!fett.art);
    QCOMPARE(fett.einheit, Referenzeinheit::Energieanteil);
    QCOMPARE(fett.gedrucktUnten, std::optional(20.0));
    QCOMPARE(fett.gedrucktOben, std::optional(35.0));
    QVERIFY(!fett.energie);
}

void TestReferenzwerte::aValueSaysWhereItComesFrom()
{
    const Referenzwerte werte = referenzwerte(tabelle(), Referenzsatz::Efsa, schwangere());
    const Referenzwert &energie = werte.wert(Naehrwert::kal);
    QCOMPARE(energie.quellen, (QStringList{u"EFSA-DRV4"_s}));
    QCOMPARE(energie.notizenDe, (QStringList{u"Gedruckt als 9,0 MJ"_s, u"Gedruckt als +1,1 MJ"_s}));
    QCOMPARE(energie.notizenEn, (QStringList{u"Printed as 9.0 MJ"_s, u"Printed as +1.1 MJ"_s}));
    const Referenzwert &b6 = werte.wert(Naehrwert::b6);
    QCOMPARE(b6.quellen, (QStringList{u"EFSA-DRV4"_s}));
    QCOMPARE(b6.grenzquellen, (QStringList{u"EFSA-UL11"_s, u"EFSA-ULB6"_s}));
    QCOMPARE(werte.wert(Naehrwert::chol).quellen, (QStringList{u"EFSA-FAT"_s}));
    // The value of a woman and what comes on top stand in two publications.
    const Referenzwert protein =
        nachgeschlagen(Referenzsatz::Dach, schwangere(), Naehrwert::protein);
    QCOMPARE(protein.quellen, (QStringList{u"DGE-TOOL"_s, u"DGE-PROT"_s}));
    QCOMPARE(protein.zuschlag, std::optional(7.0));
    QVERIFY(protein.notizenDe.isEmpty());
}

void TestReferenzwerte::vitaminAKeepsItsEquivalents()
{
    QCOMPARE(nachgeschlagen(Referenzsatz::Efsa, junge(), Naehrwert::vita).einheit,
             Referenzeinheit::Retinol);
    QCOMPARE(nachgeschlagen(Referenzsatz::Dach, junge(), Naehrwert::vita).einheit,
             Referenzeinheit::Retinolwirkung);
}

void TestReferenzwerte::onlyWhatTheTableCountsIsMeasuredAgainstALevel()
{
    const Referenzwerte werte = referenzwerte(tabelle(), Referenzsatz::Efsa, aeltererMann());
    QVERIFY(werte.wert(Naehrwert::ca).grenzeGiltFuerTabelle());
    QVERIFY(werte.wert(Naehrwert::b6).grenzeGiltFuerTabelle());
    QVERIFY(!werte.wert(Naehrwert::vita).grenzeGiltFuerTabelle());
    QCOMPARE(werte.wert(Naehrwert::vita).grenzvorbehalt, Referenzvorbehalt::NurRetinol);
    QVERIFY(!werte.wert(Naehrwert::ma).grenzeGiltFuerTabelle());
    QCOMPARE(werte.wert(Naehrwert::ma).grenzvorbehalt, Referenzvorbehalt::NurZusaetze);
    QVERIFY(!werte.wert(Naehrwert::fe).grenzeGiltFuerTabelle()); // safe, but no upper level
    QVERIFY(!werte.wert(Naehrwert::ph).grenzeGiltFuerTabelle()); // none is set
    QVERIFY(!werte.wert(Naehrwert::bs).grenzeGiltFuerTabelle()); // nothing is said
}

void TestReferenzwerte::withoutASetNothingIsAimedAt()
{
    const Referenzwerte leer;
    QVERIFY(leer.istLeer());
    QVERIFY(zielbereiche(leer).isEmpty());
}

void TestReferenzwerte::anEmptyTableLacksAll()
{
    const Referenzwerte werte = referenzwerte({}, Referenzsatz::Efsa, aeltererMann());
    for (const Referenzwert &wert : werte.werte) {
        QVERIFY(!wert.art);
        QVERIFY(wert.mangel != Referenzmangel::Keiner);
        QVERIFY(!wert.grenzart);
    }
    QVERIFY(zielbereiche(werte).isEmpty());
}

QTEST_APPLESS_MAIN(TestReferenzwerte)
#include "TestReferenzwerte.moc"
