// How reference values are said.

#include "Referenzprobe.h"
#include "Referenzworte.h"

#include <QTest>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(Referenzperson)
Q_DECLARE_METATYPE(Zielbereich)

namespace {

Referenzwert wert(Referenzsatz satz, const Referenzperson &person, Naehrwert welcher)
{
    return referenzwerte(Referenzprobe::tabelle(), satz, person).wert(welcher);
}

} // namespace

class TestReferenzworte : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aPersonStandsInOneLine_data();
    void aPersonStandsInOneLine();
    void theRangeIsSaid_data();
    void theRangeIsSaid();
    void theLimitIsSaid_data();
    void theLimitIsSaid();
    void everyLackHasItsWords();
    void aGeneralNeedIsSaid_data();
    void aGeneralNeedIsSaid();
    void allThatIsKnownIsTold_data();
    void allThatIsKnownIsTold();
    void aPublicationIsNamedOnce();
    void remarksFollowTheLanguage();
};

void TestReferenzworte::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
}

void TestReferenzworte::aPersonStandsInOneLine_data()
{
    QTest::addColumn<int>("satz");
    QTest::addColumn<Referenzperson>("person");
    QTest::addColumn<QString>("worte");
    constexpr int keiner = -1;
    constexpr int efsa = static_cast<int>(Referenzsatz::Efsa);
    constexpr int dach = static_cast<int>(Referenzsatz::Dach);
    const Referenzperson schwanger = Referenzprobe::schwangere();
    Referenzperson ohneTrimester = schwanger;
    ohneTrimester.trimester.reset();
    QTest::newRow("general needs") << keiner << schwanger << u"Allgemeiner Tagesbedarf"_s;
    QTest::newRow("pregnant")
        << dach << schwanger
        << u"D-A-CH · Frau, 28 Jahre, schwanger (2. Trimester), PAL 1,6, 64 kg"_s;
    QTest::newRow("pregnant, unknown since when")
        << dach << ohneTrimester << u"D-A-CH · Frau, 28 Jahre, schwanger, PAL 1,6, 64 kg"_s;
    QTest::newRow("man") << efsa << Referenzprobe::mann()
                         << u"EFSA · Mann, 67 Jahre, PAL 1,4, 95 kg"_s;
    QTest::newRow("nobody")
        << efsa << Referenzperson()
        << u"EFSA · Geschlecht unbekannt, Alter unbekannt, PAL unbekannt, Gewicht unbekannt"_s;
    QTest::newRow("a small child") << efsa
                                   << Referenzperson{.geschlecht = Referenzgeschlecht::Mann,
                                                     .alter = 1,
                                                     .pal = 2,
                                                     .gewicht = 9.5}
                                   << u"EFSA · Mann, 1 Jahr, PAL 2,0, 9,5 kg"_s;
    const auto stillende = [](std::optional<int> monat) {
        return Referenzperson{.geschlecht = Referenzgeschlecht::Frau,
                              .alter = 30,
                              .zustand = Referenzzustand::Stillend,
                              .stillmonat = monat,
                              .pal = 1.6,
                              .gewicht = 100};
    };
    QTest::newRow("lactating") << efsa << stillende({})
                               << u"EFSA · Frau, 30 Jahre, stillend, PAL 1,6, 100 kg"_s;
    QTest::newRow("the sixth month")
        << efsa << stillende(6)
        << u"EFSA · Frau, 30 Jahre, stillend (bis 6. Monat), PAL 1,6, 100 kg"_s;
    QTest::newRow("the seventh month")
        << efsa << stillende(7)
        << u"EFSA · Frau, 30 Jahre, stillend (ab 7. Monat), PAL 1,6, 100 kg"_s;
    Referenzperson aeltere = {
        .geschlecht = Referenzgeschlecht::Frau, .alter = 52, .pal = 1.6, .gewicht = 70};
    aeltere.nachMenopause = true;
    QTest::newRow("after menopause")
        << efsa << aeltere << u"EFSA · Frau, 52 Jahre, nach der Menopause, PAL 1,6, 70 kg"_s;
    aeltere.nachMenopause = false;
    QTest::newRow("before menopause")
        << efsa << aeltere << u"EFSA · Frau, 52 Jahre, vor der Menopause, PAL 1,6, 70 kg"_s;
}

void TestReferenzworte::aPersonStandsInOneLine()
{
    QFETCH(const int, satz);
    QFETCH(const Referenzperson, person);
    QFETCH(const QString, worte);
    const auto gewaehlter =
        satz < 0 ? std::nullopt : std::optional(static_cast<Referenzsatz>(satz));
    QCOMPARE(Referenzworte::kurzfassung(gewaehlter, person), worte);
}

void TestReferenzworte::theRangeIsSaid_data()
{
    QTest::addColumn<Referenzsatz>("satz");
    QTest::addColumn<Referenzperson>("person");
    QTest::addColumn<Naehrwert>("welcher");
    QTest::addColumn<QString>("worte");
    const Referenzperson mann = Referenzprobe::mann();
    Referenzperson ohnePal = mann;
    ohnePal.pal.reset();
    const auto e = Referenzsatz::Efsa;
    const auto d = Referenzsatz::Dach;
    QTest::newRow("recommended") << e << mann << Naehrwert::ca << u"mind. 950 mg"_s;
    QTest::newRow("adequate") << e << mann << Naehrwert::bs << u"mind. 25,0 g"_s;
    QTest::newRow("energy") << e << mann << Naehrwert::kal << u"etwa 2006 kcal"_s;
    QTest::newRow("sodium is no goal") << d << mann << Naehrwert::na << u"1500 mg"_s;
    QTest::newRow("a range of the energy")
        << e << mann << Naehrwert::fett << u"20–35 % der Energie = 44,6–78,0 g"_s;
    QTest::newRow("a point of the energy")
        << d << mann << Naehrwert::fett << u"30 % der Energie = etwa 70,0 g"_s;
    QTest::newRow("more than a share")
        << d << mann << Naehrwert::kh << u"über 50 % der Energie = über 262,5 g"_s;
    QTest::newRow("more than an amount") << d << mann << Naehrwert::bs << u"über 30,0 g"_s;
    QTest::newRow("a share of nobody knows what")
        << e << ohnePal << Naehrwert::fett << u"20–35 % der Energie"_s;
    QTest::newRow("by the kilogram") << d << mann << Naehrwert::protein << u"mind. 95,0 g"_s;
    QTest::newRow("none") << d << mann << Naehrwert::chol << QString();
    QTest::newRow("unknown") << e << ohnePal << Naehrwert::b1 << QString();
}

void TestReferenzworte::theRangeIsSaid()
{
    QFETCH(const Referenzsatz, satz);
    QFETCH(const Referenzperson, person);
    QFETCH(const Naehrwert, welcher);
    QFETCH(const QString, worte);
    QCOMPARE(Referenzworte::bereich(wert(satz, person, welcher)), worte);
}

void TestReferenzworte::theLimitIsSaid_data()
{
    QTest::addColumn<Naehrwert>("welcher");
    QTest::addColumn<QString>("worte");
    QTest::newRow("upper level") << Naehrwert::ca << u"höchstens 2500 mg"_s;
    QTest::newRow("only of retinol") << Naehrwert::vita << u"Retinol höchstens 3000 µg"_s;
    QTest::newRow("only of additions") << Naehrwert::ma << u"aus Zusätzen höchstens 250 mg"_s;
    QTest::newRow("safe level") << Naehrwert::fe << u"sicher bis 40,0 mg"_s;
    QTest::newRow("none is set") << Naehrwert::ph << QString();
    QTest::newRow("nothing is said") << Naehrwert::bs << QString();
}

void TestReferenzworte::theLimitIsSaid()
{
    QFETCH(const Naehrwert, welcher);
    QFETCH(const QString, worte);
    QCOMPARE(Referenzworte::grenze(wert(Referenzsatz::Efsa, Referenzprobe::mann(), welcher)),
             worte);
}

void TestReferenzworte::everyLackHasItsWords()
{
    QVERIFY(Referenzworte::mangel(Referenzmangel::Keiner).isEmpty());
    QSet<QString> worte;
    constexpr int letzter = static_cast<int>(Referenzmangel::EnergieFehlt);
    for (int i = 1; i <= letzter; ++i) {
        worte << Referenzworte::mangel(static_cast<Referenzmangel>(i));
    }
    QCOMPARE(worte.size(), letzter);
    QVERIFY(!worte.contains(QString()));
    QCOMPARE(Referenzworte::mangel(Referenzmangel::AlterFehlt), u"Das Alter fehlt"_s);
    QCOMPARE(Referenzworte::mangel(Referenzmangel::GewichtFehlt), u"Das Gewicht fehlt"_s);
    QCOMPARE(Referenzworte::mangel(Referenzmangel::EnergieFehlt),
             u"Er ist ein Anteil der Energie, und deren Wert fehlt"_s);
}

void TestReferenzworte::aGeneralNeedIsSaid_data()
{
    QTest::addColumn<Zielbereich>("ziel");
    QTest::addColumn<QString>("worte");
    const auto ca = Kenngroesse::ca;
    QTest::newRow("at least") << Zielbereich{ca, 1000, {}, {}} << u"mind. 1000 mg"_s;
    QTest::newRow("at most") << Zielbereich{ca, {}, 1500, {}} << u"höchstens 1500 mg"_s;
    QTest::newRow("between") << Zielbereich{ca, 1000, 1500, {}} << u"1000–1500 mg"_s;
    QTest::newRow("and a level") << Zielbereich{ca, 1000, {}, 2500}
                                 << u"mind. 1000 mg · höchstens 2500 mg"_s;
    QTest::newRow("nothing") << Zielbereich{ca, {}, {}, {}} << QString();
}

void TestReferenzworte::aGeneralNeedIsSaid()
{
    QFETCH(const Zielbereich, ziel);
    QFETCH(const QString, worte);
    QCOMPARE(Referenzworte::bereich(ziel), worte);
}

void TestReferenzworte::allThatIsKnownIsTold_data()
{
    QTest::addColumn<Referenzsatz>("satz");
    QTest::addColumn<Referenzperson>("person");
    QTest::addColumn<Naehrwert>("welcher");
    QTest::addColumn<QStringList>("zeilen");
    const auto e = Referenzsatz::Efsa;
    const auto d = Referenzsatz::Dach;
    const Referenzperson mann = Referenzprobe::mann();
    const Referenzperson frau = Referenzprobe::schwangere();
    Referenzperson eigene = mann;
    eigene.energiebedarf = 1800;
    Referenzperson leicht = mann;
    leicht.gewicht.reset();
    leicht.pal = 1.2;
    Referenzperson frueh = frau;
    frueh.trimester = 1;
    QTest::newRow("protein in pregnancy")
        << e << frau << Naehrwert::protein
        << QStringList{u"Empfehlung: mind. 62,1 g"_s, u"0,83 g je kg Körpergewicht bei 64 kg"_s,
                       u"Darin für Schwangerschaft oder Stillzeit: 9,0 g"_s,
                       u"Keine Obergrenze festgelegt; das heißt nicht, dass jede Menge "
                       "unbedenklich ist"_s,
                       u"Quelle: EFSA-PROT, EFSA-UL4"_s};
    QTest::newRow("energy in pregnancy")
        << d << frau << Naehrwert::kal
        << QStringList{u"Richtwert: etwa 2350 kcal"_s,
                       u"Darin für Schwangerschaft oder Stillzeit: 250 kcal"_s,
                       u"Der Zuschlag ist für PAL 1,4 angegeben"_s,
                       u"Bis zu 10 % daneben gelten hier als richtig"_s,
                       u"Quelle: DGE-TOOL, DGE-B1"_s};
    QTest::newRow("before the printed trimester")
        << d << frueh << Naehrwert::vita
        << QStringList{u"Empfehlung: mind. 700 µg"_s,
                       u"Wert ohne Schwangerschaft: Für sie ist erst ab einem späteren Monat "
                       "einer angegeben"_s,
                       u"In Retinolaktivitätsäquivalenten: 12 µg Betacarotin zählen 1, in der "
                       "Lebensmitteltabelle schon 6. Carotin aus Gemüse zählt in der Menge also "
                       "doppelt"_s,
                       u"Quelle: DGE-TOOL"_s};
    QTest::newRow("fat by the own energy")
        << e << eigene << Naehrwert::fett
        << QStringList{u"Richtwert: 20–35 % der Energie = 40,0–70,0 g"_s,
                       u"Gerechnet mit dem eigenen Bedarf: 1800 kcal"_s, u"Quelle: EFSA-DRV4"_s};
    QTest::newRow("thiamin by the energy of the set")
        << e << mann << Naehrwert::b1
        << QStringList{u"Empfehlung: mind. 0,84 mg"_s,
                       u"0,1 mg je MJ der Energie"_s,
                       u"Gerechnet mit der Energie dieser Referenzwerte: 2006 kcal"_s,
                       u"Keine Obergrenze festgelegt; das heißt nicht, dass jede Menge "
                       "unbedenklich ist"_s,
                       u"Gleich 0,42 mg je 1000 kcal"_s,
                       u"Quelle: EFSA-DRV4, EFSA-UL4"_s};
    QTest::newRow("protein without a weight")
        << d << leicht << Naehrwert::protein
        << QStringList{u"Schätzwert: mind. 67,0 g"_s,
                       u"Für das Referenzgewicht dieses Alters, weil das Gewicht fehlt"_s,
                       u"Quelle: DGE-PROT"_s};
    QTest::newRow("the nearest activity")
        << d << leicht << Naehrwert::kal
        << QStringList{u"Richtwert: etwa 2100 kcal"_s,
                       u"Angegeben für PAL 1,4, den nächsten zum gewählten"_s,
                       u"Bis zu 10 % daneben gelten hier als richtig"_s, u"Quelle: DGE-TOOL"_s};
    QTest::newRow("vitamin A")
        << e << mann << Naehrwert::vita
        << QStringList{u"Empfehlung: mind. 750 µg"_s, u"Obergrenze: 3000 µg"_s,
                       u"Sie gilt nur für Retinol, nicht für Carotin; die Menge wird daran nicht "
                       "gemessen"_s,
                       u"In Retinoläquivalenten, wie in der Lebensmitteltabelle: 6 µg Betacarotin "
                       "zählen 1"_s,
                       u"Quelle: EFSA-DRV4, EFSA-UL11, EFSA-ULA"_s};
    QTest::newRow("magnesium")
        << e << mann << Naehrwert::ma
        << QStringList{u"Schätzwert: mind. 350 mg"_s, u"Obergrenze: 250 mg"_s,
                       u"Sie gilt nur für Ergänzungsmittel und Zusätze; die Menge wird daran "
                       "nicht gemessen"_s,
                       u"Quelle: EFSA-DRV4, EFSA-UL11"_s};
    QTest::newRow("iron") << e << mann << Naehrwert::fe
                          << QStringList{u"Empfehlung: mind. 11,0 mg"_s,
                                         u"Sicher bis 40,0 mg; eine Obergrenze ist das nicht"_s,
                                         u"Quelle: EFSA-DRV4, EFSA-ULFE"_s};
    QTest::newRow("safe sodium")
        << e << mann << Naehrwert::na
        << QStringList{u"Schätzwert: 2000 mg"_s,
                       u"Keine Obergrenze festgelegt; das heißt nicht, dass jede Menge "
                       "unbedenklich ist"_s,
                       u"Weniger gilt hier nicht als Mangel, mehr als zu viel"_s,
                       u"Sichere und angemessene Zufuhr"_s, u"Quelle: EFSA-NA, EFSA-UL4"_s};
    QTest::newRow("sodium") << d << mann << Naehrwert::na
                            << QStringList{u"Schätzwert: 1500 mg"_s,
                                           u"Wird hier nicht als Ziel beurteilt"_s,
                                           u"Quelle: DGE-TOOL"_s};
    QTest::newRow("cholesterol") << e << mann << Naehrwert::chol
                                 << QStringList{u"Kein Wert: Es ist keiner festgelegt"_s,
                                                u"Quelle: EFSA-FAT"_s};
    QTest::newRow("no sodium in pregnancy")
        << d << frau << Naehrwert::na
        << QStringList{u"Kein Wert: Für Schwangerschaft oder Stillzeit ist in diesem Alter keiner "
                       "angegeben"_s};
    Referenzperson alt = mann;
    alt.alter = 85;
    QTest::newRow("a share without the energy")
        << e << alt << Naehrwert::kh
        << QStringList{u"Kein Wert: Er ist ein Anteil der Energie, und deren Wert fehlt"_s,
                       u"45–60 % der Energie"_s, u"Alle Kohlenhydrate zusammen"_s,
                       u"Quelle: EFSA-DRV4"_s};
}

void TestReferenzworte::allThatIsKnownIsTold()
{
    QFETCH(const Referenzsatz, satz);
    QFETCH(const Referenzperson, person);
    QFETCH(const Naehrwert, welcher);
    QFETCH(const QStringList, zeilen);
    QCOMPARE(Referenzworte::auskunft(wert(satz, person, welcher)), zeilen);
}

void TestReferenzworte::aPublicationIsNamedOnce()
{
    Referenzwert einer = wert(Referenzsatz::Efsa, Referenzprobe::mann(), Naehrwert::ca);
    einer.quellen = {u"A"_s, u"B"_s};
    einer.grenzquellen = {u"B"_s, u"C"_s};
    QCOMPARE(Referenzworte::auskunft(einer).last(), u"Quelle: A, B, C"_s);
}

void TestReferenzworte::remarksFollowTheLanguage()
{
    const Referenzwert na = wert(Referenzsatz::Efsa, Referenzprobe::mann(), Naehrwert::na);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
    const QStringList zeilen = Referenzworte::auskunft(na);
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    QVERIFY(zeilen.contains(u"Safe and adequate intake"_s));
    QVERIFY(!zeilen.contains(u"Sichere und angemessene Zufuhr"_s));
}

QTEST_APPLESS_MAIN(TestReferenzworte)
#include "TestReferenzworte.moc"
