#include "Einblickperson.h"

#include <QTest>

class TestEinblickperson : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutAClientTheCalculatorCounts();
    void theClientCounts();
    void theWeightIsThatOfABalance_data();
    void theWeightIsThatOfABalance();
    void whatIsNotKnownOfAClientStaysSo();
    void aStateIsThatOfAWoman_data();
    void aStateIsThatOfAWoman();
    void theEnergyOfTheCalculator_data();
    void theEnergyOfTheCalculator();
    void stepsOfActivity_data();
    void stepsOfActivity();
    void theConditionsAreTheClients();
    void whatWasTypedStaysBesideNewMeasures();
    void whateverIsNewComesIn_data();
    void whateverIsNewComesIn();
};

namespace {

const QDate heute(2026, 11, 23);

Rechnerangaben rechner()
{
    return {.frau = true,
            .alter = 40,
            .aktivitaet = Aktivitaet::Mittel,
            .gewicht = 70,
            .energiebedarf = 2100};
}

Klientenakte akte(Personengeschlecht geschlecht, const QDate &geburt)
{
    Klientenakte eine;
    eine.person.geschlecht = geschlecht;
    eine.person.geburt = geburt;
    return eine;
}

} // namespace

void TestEinblickperson::withoutAClientTheCalculatorCounts()
{
    Referenzperson erwartet;
    erwartet.geschlecht = Referenzgeschlecht::Frau;
    erwartet.alter = 40;
    erwartet.pal = 1.6;
    erwartet.gewicht = 70;
    erwartet.energiebedarf = 2100;
    QCOMPARE(referenzperson({}, rechner(), heute), erwartet);

    Rechnerangaben mann = rechner();
    mann.frau = false;
    QCOMPARE(referenzperson({}, mann, heute).geschlecht, std::optional(Referenzgeschlecht::Mann));
}

void TestEinblickperson::theClientCounts()
{
    // Born on the 24th, so 67 tomorrow.
    const Referenzperson person =
        referenzperson(akte(Personengeschlecht::Mann, QDate(1959, 11, 24)), rechner(), heute);
    QCOMPARE(person.geschlecht, std::optional(Referenzgeschlecht::Mann));
    QCOMPARE(person.alter, std::optional(66));
    QCOMPARE(person.gewicht, std::optional(70.0));
    QCOMPARE(person.energiebedarf, std::optional(2100.0));
}

void TestEinblickperson::theWeightIsThatOfABalance_data()
{
    QTest::addColumn<double>("gerechnet");
    QTest::addColumn<double>("waage");

    QTest::newRow("single precision, a little too much")
        << static_cast<double>(84.9F) << 84.9; // 84.90000152588
    QTest::newRow("single precision, a little too few")
        << static_cast<double>(70.1F) << 70.1; // 70.09999847412
    QTest::newRow("up to the next tenth") << 69.96 << 70.0;
    QTest::newRow("born too early") << 0.8 << 0.8;
}

void TestEinblickperson::theWeightIsThatOfABalance()
{
    QFETCH(const double, gerechnet);
    QFETCH(const double, waage);
    Rechnerangaben angaben = rechner();
    angaben.gewicht = gerechnet;
    QCOMPARE(referenzperson({}, angaben, heute).gewicht, std::optional(waage));
}

void TestEinblickperson::whatIsNotKnownOfAClientStaysSo()
{
    Rechnerangaben leer = rechner();
    leer.gewicht = 0;
    const Referenzperson person =
        referenzperson(akte(Personengeschlecht::Unbekannt, {}), leer, heute);
    QVERIFY(!person.geschlecht);
    QVERIFY(!person.alter);
    QVERIFY(!person.gewicht);
    // The calculator took an age of its own for it.
    QVERIFY(!person.energiebedarf);
}

void TestEinblickperson::aStateIsThatOfAWoman_data()
{
    QTest::addColumn<Personengeschlecht>("geschlecht");
    QTest::addColumn<Umstand>("umstand");
    QTest::addColumn<Referenzzustand>("zustand");

    QTest::newRow("pregnant") << Personengeschlecht::Frau << Umstand::Schwanger
                              << Referenzzustand::Schwanger;
    QTest::newRow("nursing") << Personengeschlecht::Frau << Umstand::Stillend
                             << Referenzzustand::Stillend;
    QTest::newRow("neither") << Personengeschlecht::Frau << Umstand::Keiner
                             << Referenzzustand::Keiner;
    QTest::newRow("a man who was a woman in the file")
        << Personengeschlecht::Mann << Umstand::Schwanger << Referenzzustand::Keiner;
    QTest::newRow("nobody knows") << Personengeschlecht::Unbekannt << Umstand::Stillend
                                  << Referenzzustand::Keiner;
}

void TestEinblickperson::aStateIsThatOfAWoman()
{
    QFETCH(const Personengeschlecht, geschlecht);
    QFETCH(const Umstand, umstand);
    QFETCH(const Referenzzustand, zustand);
    Klientenakte eine = akte(geschlecht, QDate(1998, 1, 1));
    eine.person.umstand = umstand;
    const Referenzperson person = referenzperson(eine, rechner(), heute);
    QCOMPARE(person.zustand, zustand);
    const bool rechnet = zustand == Referenzzustand::Keiner &&
                         geschlecht != Personengeschlecht::Unbekannt; // else as a man
    QCOMPARE(person.energiebedarf.has_value(), rechnet);
}

void TestEinblickperson::theEnergyOfTheCalculator_data()
{
    QTest::addColumn<QDate>("geburt");
    QTest::addColumn<bool>("zaehlt");

    QTest::newRow("nine years") << QDate(2017, 6, 1) << false;
    QTest::newRow("exactly ten years, of which it says nothing") << QDate(2016, 11, 23) << false;
    QTest::newRow("still ten years") << QDate(2015, 11, 24) << false;
    QTest::newRow("eleven years today") << QDate(2015, 11, 23) << true;
}

void TestEinblickperson::theEnergyOfTheCalculator()
{
    QFETCH(const QDate, geburt);
    QFETCH(const bool, zaehlt);
    const Referenzperson person =
        referenzperson(akte(Personengeschlecht::Mann, geburt), rechner(), heute);
    QCOMPARE(person.energiebedarf.has_value(), zaehlt);
}

void TestEinblickperson::stepsOfActivity_data()
{
    QTest::addColumn<Aktivitaet>("aktivitaet");
    QTest::addColumn<double>("pal");

    QTest::newRow("light") << Aktivitaet::Leicht << 1.4;
    QTest::newRow("medium") << Aktivitaet::Mittel << 1.6;
    QTest::newRow("heavy") << Aktivitaet::Schwer << 1.8;
}

void TestEinblickperson::stepsOfActivity()
{
    QFETCH(const Aktivitaet, aktivitaet);
    QFETCH(const double, pal);
    QCOMPARE(palFuer(aktivitaet), pal);
}

void TestEinblickperson::theConditionsAreTheClients()
{
    Klientenakte eine = akte(Personengeschlecht::Mann, QDate(1959, 1, 1));
    eine.person.leiden[stelle(Wertung::gicht)] = true;
    QCOMPARE(leidenVon(eine), (std::array{false, false, true, false}));
    QCOMPARE(leidenVon({}), (std::array{false, false, false, false}));
}

void TestEinblickperson::whatWasTypedStaysBesideNewMeasures()
{
    const Referenzperson bisher = referenzperson({}, rechner(), heute);
    Rechnerangaben schwerer = rechner();
    schwerer.gewicht = 72;
    schwerer.aktivitaet = Aktivitaet::Schwer;
    const Referenzperson neu = referenzperson({}, schwerer, heute);
    Referenzperson getippt = bisher;
    getippt.zustand = Referenzzustand::Schwanger;
    getippt.trimester = 2;
    getippt.alter = 28;
    getippt.energiebedarf.reset(); // as the fields have it

    Referenzperson erwartet = getippt;
    erwartet.gewicht = 72;
    erwartet.pal = 1.8;
    QCOMPARE(mitNeuem(getippt, bisher, neu), erwartet);
    QCOMPARE(mitNeuem(getippt, bisher, bisher), getippt);
    // A state that is another one takes its month along.
    Referenzperson stillend = neu;
    stillend.zustand = Referenzzustand::Stillend;
    const Referenzperson dann = mitNeuem(getippt, bisher, stillend);
    QCOMPARE(dann.zustand, Referenzzustand::Stillend);
    QVERIFY(!dann.trimester);
    // Where nothing was typed, all is as it is known now, with the energy.
    QCOMPARE(mitNeuem(bisher, bisher, neu), neu);
    QVERIFY(neu.energiebedarf);
}

void TestEinblickperson::whateverIsNewComesIn_data()
{
    QTest::addColumn<Referenzperson>("neu");

    Referenzperson eine;
    eine.geschlecht = Referenzgeschlecht::Frau;
    QTest::newRow("the sex") << eine;
    eine = {};
    eine.alter = 28;
    QTest::newRow("the age") << eine;
    eine = {};
    eine.zustand = Referenzzustand::Stillend;
    QTest::newRow("the state") << eine;
    eine = {};
    eine.pal = 1.8;
    QTest::newRow("the activity") << eine;
    eine = {};
    eine.gewicht = 72;
    QTest::newRow("the weight") << eine;
    eine = {};
    eine.energiebedarf = 2100;
    QTest::newRow("the energy") << eine;
}

void TestEinblickperson::whateverIsNewComesIn()
{
    QFETCH(const Referenzperson, neu);
    QCOMPARE(mitNeuem({}, {}, neu), neu);
    // And goes again, when it is not known any more.
    QCOMPARE(mitNeuem(neu, neu, {}), Referenzperson());
}

QTEST_APPLESS_MAIN(TestEinblickperson)
#include "TestEinblickperson.moc"
