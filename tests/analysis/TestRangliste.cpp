// Who stands where, who falls out, and who is named apart because nobody knows.

#include "Rangliste.h"

#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;
using enum Kenngroesse;

class TestRangliste : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theLargestComesFirst();
    void theSmallestComesFirst();
    void equalFiguresShareARankInTheOrderOfTheList();
    void manyEqualFiguresStayInTheirOrder();
    void theUnknownIsNotNothing();
    void withoutAPortionThereIsNoRankByPortions();
    void byEnergyFoodsWithoutEnergyHaveNoRank();
    void dishesAreRankedByWhatIsKnown();
    void nothingHasNoRanks();
    void thePlaceholderStandsNowhere();
    void aGroupHoldsItsFoodsAlone();
    void ownFoodsAreAChoiceOfTheirOwn();
    void ratingsNarrow_data();
    void ratingsNarrow();
    void allFourRatingsAreKept_data();
    void allFourRatingsAreKept();
    void bothEndsBelongToARange_data();
    void bothEndsBelongToARange();
    void allRangesAreKept();
    void rangesHaveABasisOfTheirOwn();
    void theUnknownFallsOutOfRangesAndIsCounted();
    void whatIsOutAnywayIsNotCounted();
    void aRangeByPortionsAsksForPortions();
    void aDishIsInARangeOnlyIfItStaysThere_data();
    void aDishIsInARangeOnlyIfItStaysThere();
    void namesAreInTheOrderOfTheReader();
    void ofTwoWithOneNameTheOwnComesFirst();
    void capitalsDontCountInNames();
};

namespace {

Kandidat lebensmittel(const QString &name, float protein)
{
    Kandidat eines{.schluessel = name, .satz = {}};
    eines.satz.setkal(100);
    eines.satz.setprotein(protein);
    return eines;
}

/// Built-in foods of two groups; the iron of b is unknown.
Stoffwissen tabelle()
{
    Zusatzwerte obst;
    obst.gruppe = lebensmittelgruppe(u"Obst"_s);
    Zusatzwerte kaese;
    kaese.gruppe = lebensmittelgruppe(u"Käse"_s);
    Zusatzwerte unklar = obst;
    unklar.unbestimmt[stelle(Naehrwert::fe)] = true;
    return Stoffwissen({{u"a"_s, obst}, {u"b"_s, unklar}, {u"c"_s, kaese}});
}

QList<qsizetype> stellen(const Rangliste &liste)
{
    QList<qsizetype> alle;
    for (const Rangplatz &platz : liste.plaetze) {
        alle << platz.stelle;
    }
    return alle;
}

QList<int> raenge(const Rangliste &liste)
{
    QList<int> alle;
    for (const Rangplatz &platz : liste.plaetze) {
        alle << platz.rang;
    }
    return alle;
}

using Stellen = QList<qsizetype>;

/// Own foods with 2, 8 and 5 g of protein.
QList<Kandidat> dreierlei()
{
    return {lebensmittel(u"a"_s, 2), lebensmittel(u"b"_s, 8), lebensmittel(u"c"_s, 5)};
}

} // namespace

void TestRangliste::theLargestComesFirst()
{
    const Rangliste liste = rangliste(dreierlei(), {.groesse = protein}, Stoffwissen());
    QCOMPARE(liste.plaetze, (QList<Rangplatz>{{1, 1, {Bezugswert::Stand::Bekannt, 8}},
                                              {2, 2, {Bezugswert::Stand::Bekannt, 5}},
                                              {0, 3, {Bezugswert::Stand::Bekannt, 2}}}));
    QCOMPARE(liste.ohneAngabe, Stellen());
    QCOMPARE(liste.ohnePortion, Stellen());
}

void TestRangliste::theSmallestComesFirst()
{
    const Rangliste liste =
        rangliste(dreierlei(), {.groesse = protein, .absteigend = false}, Stoffwissen());
    QCOMPARE(stellen(liste), (Stellen{0, 2, 1}));
    QCOMPARE(raenge(liste), (QList<int>{1, 2, 3}));
}

void TestRangliste::equalFiguresShareARankInTheOrderOfTheList()
{
    const QList<Kandidat> alle = {lebensmittel(u"a"_s, 5), lebensmittel(u"b"_s, 8),
                                  lebensmittel(u"c"_s, 5), lebensmittel(u"d"_s, 8),
                                  lebensmittel(u"e"_s, 1)};
    const Rangliste abwaerts = rangliste(alle, {.groesse = protein}, Stoffwissen());
    QCOMPARE(stellen(abwaerts), (Stellen{1, 3, 0, 2, 4}));
    QCOMPARE(raenge(abwaerts), (QList<int>{1, 1, 3, 3, 5}));
    const Rangliste aufwaerts =
        rangliste(alle, {.groesse = protein, .absteigend = false}, Stoffwissen());
    QCOMPARE(stellen(aufwaerts), (Stellen{4, 0, 2, 1, 3}));
    QCOMPARE(raenge(aufwaerts), (QList<int>{1, 2, 2, 4, 4}));
}

void TestRangliste::manyEqualFiguresStayInTheirOrder()
{
    QList<Kandidat> alle;
    Stellen erwartet;
    for (int i = 0; i < 100; ++i) {
        alle << lebensmittel(QString::number(i), i == 50 ? 9 : 5);
        if (i != 50) {
            erwartet << i;
        }
    }
    erwartet.prepend(50);
    QCOMPARE(stellen(rangliste(alle, {.groesse = protein}, Stoffwissen())), erwartet);
}

/// c holds no iron, of b nobody knows.
void TestRangliste::theUnknownIsNotNothing()
{
    QList<Kandidat> alle = dreierlei();
    alle[0].satz.setfe(2);
    const Rangliste liste = rangliste(alle, {.groesse = fe, .absteigend = false}, tabelle());
    QCOMPARE(stellen(liste), (Stellen{2, 0}));
    QCOMPARE(liste.ohneAngabe, (Stellen{1}));
}

void TestRangliste::withoutAPortionThereIsNoRankByPortions()
{
    QList<Kandidat> alle = dreierlei();
    alle[0].portion = 500; // 10 g
    alle[1].portion = 50;  // 4 g
    const Rangliste liste =
        rangliste(alle, {.groesse = protein, .bezug = Bezug::JePortion}, Stoffwissen());
    QCOMPARE(stellen(liste), (Stellen{0, 1}));
    QCOMPARE(liste.ohnePortion, (Stellen{2}));
    QCOMPARE(liste.ohneAngabe, Stellen());
}

void TestRangliste::byEnergyFoodsWithoutEnergyHaveNoRank()
{
    QList<Kandidat> alle = dreierlei();
    alle[1].satz.setkal(800); // 1 g
    alle[2].satz.setkal(0);
    const Rangliste liste =
        rangliste(alle, {.groesse = protein, .bezug = Bezug::Je100kcal}, Stoffwissen());
    QCOMPARE(stellen(liste), (Stellen{0, 1}));
    QCOMPARE(liste.ohneAngabe, (Stellen{2}));
}

void TestRangliste::dishesAreRankedByWhatIsKnown()
{
    Stoffwissen wissen;
    Rezeptangaben angaben = {};
    angaben[stelle(protein)] = {5, 0.5};
    wissen.setzeRezepte({{u"c"_s, angaben}});
    const Rangliste liste = rangliste(dreierlei(), {.groesse = protein}, wissen);
    QCOMPARE(stellen(liste), (Stellen{1, 2, 0}));
    QCOMPARE(liste.plaetze[1].wert, (Bezugswert{Bezugswert::Stand::Mindestens, 5}));
}

void TestRangliste::nothingHasNoRanks()
{
    QCOMPARE(rangliste({}, {.groesse = protein}, Stoffwissen()), Rangliste());
}

void TestRangliste::thePlaceholderStandsNowhere()
{
    const QList<Kandidat> alle = {lebensmittel(u"-"_s, 0), lebensmittel(u"a"_s, 2)};
    QCOMPARE(stellen(rangliste(alle, {.groesse = protein}, Stoffwissen())), (Stellen{1}));
    QCOMPARE(rangliste(alle, {.groesse = fe}, Stoffwissen()).ohneAngabe, (Stellen{1}));
}

/// d is in no table, an own food has no group even if it is called as one that has.
void TestRangliste::aGroupHoldsItsFoodsAlone()
{
    QList<Kandidat> alle = dreierlei();
    alle << lebensmittel(u"d"_s, 3) << lebensmittel(u"a"_s, 4);
    alle[4].eigen = true;
    Rangfrage frage = {.groesse = protein, .gruppe = lebensmittelgruppe(u"Obst"_s)};
    QCOMPARE(stellen(rangliste(alle, frage, tabelle())), (Stellen{1, 0}));
    frage.gruppe = lebensmittelgruppe(u"Käse"_s);
    QCOMPARE(stellen(rangliste(alle, frage, tabelle())), (Stellen{2}));
    frage.gruppe = lebensmittelgruppe(u"Bier"_s);
    QCOMPARE(rangliste(alle, frage, tabelle()), Rangliste());
    frage.gruppe = nullptr;
    QCOMPARE(stellen(rangliste(alle, frage, tabelle())), (Stellen{1, 2, 4, 3, 0}));
}

void TestRangliste::ownFoodsAreAChoiceOfTheirOwn()
{
    QList<Kandidat> alle = dreierlei();
    alle[2].eigen = true;
    Rangfrage frage = {.groesse = protein, .nurEigene = true};
    QCOMPARE(stellen(rangliste(alle, frage, tabelle())), (Stellen{2}));
    frage.gruppe = lebensmittelgruppe(u"Obst"_s);
    QCOMPARE(stellen(rangliste(alle, frage, tabelle())), (Stellen{2}));
}

void TestRangliste::ratingsNarrow_data()
{
    QTest::addColumn<QString>("wertung");
    QTest::addColumn<bool>("plus");
    QTest::addColumn<bool>("keinMinus");

    QTest::newRow("suitable") << u"+"_s << true << true;
    QTest::newRow("neutral") << u"0"_s << false << true;
    QTest::newRow("unsuitable") << u"-"_s << false << false;
    QTest::newRow("none") << QString() << false << false;
    QTest::newRow("another text") << u"++"_s << false << false;
}

void TestRangliste::ratingsNarrow()
{
    QFETCH(const QString, wertung);
    QList<Kandidat> alle = {lebensmittel(u"a"_s, 1)};
    alle[0].satz.setgicht(wertung);
    const auto bleibt = [&alle](Wertungswunsch wunsch) {
        Rangfrage frage = {.groesse = protein};
        frage.wertungen[stelle(Wertung::gicht)] = wunsch;
        return rangliste(alle, frage, Stoffwissen()).plaetze.size() == 1;
    };
    QVERIFY(bleibt(Wertungswunsch::Egal));
    QTEST(bleibt(Wertungswunsch::Geeignet), "plus");
    QTEST(bleibt(Wertungswunsch::NichtUngeeignet), "keinMinus");
}

void TestRangliste::allFourRatingsAreKept_data()
{
    QTest::addColumn<Wertung>("schlechte");
    for (const Wertungsbeschreibung &eine : wertungen) {
        QTest::newRow(eine.kennung) << eine.wertung;
    }
}

void TestRangliste::allFourRatingsAreKept()
{
    QFETCH(const Wertung, schlechte);
    QList<Kandidat> alle = {lebensmittel(u"gut"_s, 1), lebensmittel(u"nicht ganz"_s, 2)};
    Rangfrage frage = {.groesse = protein};
    for (const Wertungsbeschreibung &eine : wertungen) {
        alle[0].satz.setWertung(eine.wertung, u"+"_s);
        alle[1].satz.setWertung(eine.wertung, eine.wertung == schlechte ? u"-"_s : u"+"_s);
        frage.wertungen[stelle(eine.wertung)] = Wertungswunsch::Geeignet;
    }
    QCOMPARE(stellen(rangliste(alle, frage, Stoffwissen())), (Stellen{0}));
}

void TestRangliste::bothEndsBelongToARange_data()
{
    QTest::addColumn<std::optional<double>>("von");
    QTest::addColumn<std::optional<double>>("bis");
    QTest::addColumn<Stellen>("drin");

    const std::optional<double> ohne;
    const std::optional<double> keineZahl = std::numeric_limits<double>::quiet_NaN();
    // The foods hold 0.1, 0.2 and 0.3 g, each a little more or less in single precision.
    QTest::newRow("all") << std::optional(0.1) << std::optional(0.3) << Stellen{2, 1, 0};
    QTest::newRow("one") << std::optional(0.2) << std::optional(0.2) << Stellen{1};
    QTest::newRow("above the first") << std::optional(0.101) << ohne << Stellen{2, 1};
    QTest::newRow("below the last") << ohne << std::optional(0.299) << Stellen{1, 0};
    QTest::newRow("from the last on") << std::optional(0.3) << ohne << Stellen{2};
    QTest::newRow("up to the first") << ohne << std::optional(0.1) << Stellen{0};
    QTest::newRow("between two") << std::optional(0.21) << std::optional(0.29) << Stellen{};
    QTest::newRow("the same to six digits")
        << std::optional(0.20000001) << std::optional(0.29999996) << Stellen{2, 1};
    QTest::newRow("the wrong way round") << std::optional(0.3) << std::optional(0.1) << Stellen{};
    QTest::newRow("without ends") << ohne << ohne << Stellen{2, 1, 0};
    QTest::newRow("no numbers") << keineZahl << keineZahl << Stellen{2, 1, 0};
}

void TestRangliste::bothEndsBelongToARange()
{
    QFETCH(const std::optional<double>, von);
    QFETCH(const std::optional<double>, bis);
    const QList<Kandidat> alle = {lebensmittel(u"a"_s, 0.1F), lebensmittel(u"b"_s, 0.2F),
                                  lebensmittel(u"c"_s, 0.3F)};
    const Rangfrage frage = {.groesse = protein,
                             .bereiche = {{.groesse = protein, .von = von, .bis = bis}}};
    const Rangliste liste = rangliste(alle, frage, Stoffwissen());
    QTEST(stellen(liste), "drin");
    QCOMPARE(liste.ohneAngabe, Stellen());
}

void TestRangliste::allRangesAreKept()
{
    QList<Kandidat> alle = dreierlei();
    alle[0].satz.setfett(1);
    alle[1].satz.setfett(2);
    alle[2].satz.setfett(3);
    const Rangfrage frage = {
        .groesse = kal, .bereiche = {{.groesse = protein, .von = 5}, {.groesse = fett, .bis = 2}}};
    QCOMPARE(stellen(rangliste(alle, frage, Stoffwissen())), (Stellen{1}));
}

/// a has 2 g of protein in 50 kcal, so 4 g in 100.
void TestRangliste::rangesHaveABasisOfTheirOwn()
{
    QList<Kandidat> alle = dreierlei();
    alle[0].satz.setkal(50);
    const Rangfrage frage = {
        .groesse = protein,
        .bereiche = {{.groesse = protein, .bezug = Bezug::Je100kcal, .von = 4, .bis = 5}}};
    const Rangliste liste = rangliste(alle, frage, Stoffwissen());
    QCOMPARE(stellen(liste), (Stellen{2, 0}));
    QCOMPARE(liste.plaetze[1].wert.wert, 2.0); // still that of 100 g
}

/// "At most 1 mg" says nothing about a food of which nobody knows; a range without ends asks for
/// nothing.
void TestRangliste::theUnknownFallsOutOfRangesAndIsCounted()
{
    Rangfrage frage = {.groesse = protein, .bereiche = {{.groesse = fe, .bis = 1}}};
    Rangliste liste = rangliste(dreierlei(), frage, tabelle());
    QCOMPARE(stellen(liste), (Stellen{2, 0}));
    QCOMPARE(liste.ohneAngabe, (Stellen{1}));
    frage.bereiche[0].bis.reset();
    liste = rangliste(dreierlei(), frage, tabelle());
    QCOMPARE(stellen(liste), (Stellen{1, 2, 0}));
    QCOMPARE(liste.ohneAngabe, Stellen());
}

/// Of b the iron is unknown, but by its protein it is out in any case, whichever is asked first.
void TestRangliste::whatIsOutAnywayIsNotCounted()
{
    const Wertebereich eisen = {.groesse = fe, .bis = 1};
    const Wertebereich eiweiss = {.groesse = protein, .bis = 7};
    for (const QList<Wertebereich> &bereiche :
         {QList<Wertebereich>{eisen, eiweiss}, QList<Wertebereich>{eiweiss, eisen}}) {
        const Rangliste liste =
            rangliste(dreierlei(), {.groesse = protein, .bereiche = bereiche}, tabelle());
        QCOMPARE(stellen(liste), (Stellen{2, 0}));
        QCOMPARE(liste.ohneAngabe, Stellen());
    }
    const Rangliste nachEisen =
        rangliste(dreierlei(), {.groesse = fe, .bereiche = {eiweiss}}, tabelle());
    QCOMPARE(nachEisen.ohneAngabe, Stellen());
}

/// Without a portion and without a figure, it is the figure that nobody can help with.
void TestRangliste::aRangeByPortionsAsksForPortions()
{
    QList<Kandidat> alle = dreierlei();
    alle[2].portion = 100;
    const Wertebereich jePortion = {.groesse = protein, .bezug = Bezug::JePortion, .bis = 10};
    const Rangfrage frage = {.groesse = fe, .bereiche = {jePortion}};
    const Rangliste liste = rangliste(alle, frage, tabelle());
    QCOMPARE(stellen(liste), (Stellen{2}));
    QCOMPARE(liste.ohnePortion, (Stellen{0}));
    QCOMPARE(liste.ohneAngabe, (Stellen{1}));
}

void TestRangliste::aDishIsInARangeOnlyIfItStaysThere_data()
{
    QTest::addColumn<std::optional<double>>("von");
    QTest::addColumn<std::optional<double>>("bis");
    QTest::addColumn<bool>("drin");
    QTest::addColumn<bool>("ungewiss");

    const std::optional<double> ohne;
    // It holds at least 5 g.
    QTest::newRow("from 5 on") << std::optional(5.0) << ohne << true << false;
    QTest::newRow("from 5.1 on") << std::optional(5.1) << ohne << false << true;
    QTest::newRow("up to 5") << ohne << std::optional(5.0) << false << true;
    QTest::newRow("up to 4.9") << ohne << std::optional(4.9) << false << false;
    QTest::newRow("between 1 and 9") << std::optional(1.0) << std::optional(9.0) << false << true;
}

void TestRangliste::aDishIsInARangeOnlyIfItStaysThere()
{
    QFETCH(const std::optional<double>, von);
    QFETCH(const std::optional<double>, bis);
    Stoffwissen wissen;
    Rezeptangaben angaben = {};
    angaben[stelle(protein)] = {5, 0.5};
    wissen.setzeRezepte({{u"c"_s, angaben}});
    const Rangfrage frage = {.groesse = kal,
                             .bereiche = {{.groesse = protein, .von = von, .bis = bis}}};
    const Rangliste liste = rangliste({lebensmittel(u"c"_s, 5)}, frage, wissen);
    QTEST(liste.plaetze.size() == 1, "drin");
    QTEST(liste.ohneAngabe.size() == 1, "ungewiss");
}

void TestRangliste::namesAreInTheOrderOfTheReader()
{
    const QList<Kandidat> alle = {lebensmittel(u"Zucker"_s, 1), lebensmittel(u"Äpfel"_s, 1),
                                  lebensmittel(u"Bier"_s, 1), lebensmittel(u"Apfelsaft"_s, 1)};
    const QList<Kandidat> sortiert = nachNamen(alle, QLocale(QLocale::German));
    QStringList namen;
    for (const Kandidat &einer : sortiert) {
        namen << einer.schluessel;
    }
    QCOMPARE(namen, (QStringList{u"Äpfel"_s, u"Apfelsaft"_s, u"Bier"_s, u"Zucker"_s}));
    QCOMPARE(stellen(rangliste(sortiert, {.groesse = protein}, Stoffwissen())),
             (Stellen{0, 1, 2, 3}));
}

void TestRangliste::ofTwoWithOneNameTheOwnComesFirst()
{
    QList<Kandidat> alle = {lebensmittel(u"b"_s, 1), lebensmittel(u"a"_s, 1),
                            lebensmittel(u"a"_s, 2)};
    alle[2].eigen = true;
    const QList<Kandidat> sortiert = nachNamen(alle, QLocale(QLocale::German));
    QCOMPARE(sortiert.size(), 3);
    QCOMPARE(sortiert[0].satz.protein(), 2.0F);
    QCOMPARE(sortiert[1].satz.protein(), 1.0F);
    QCOMPARE(sortiert[2].schluessel, u"b"_s);
}

void TestRangliste::capitalsDontCountInNames()
{
    const QList<Kandidat> eine = {lebensmittel(u"b"_s, 1), lebensmittel(u"B"_s, 1),
                                  lebensmittel(u"a"_s, 1)};
    const QList<Kandidat> sortiert = nachNamen(eine, QLocale(QLocale::German));
    QCOMPARE(sortiert[0].schluessel, u"a"_s);
    QCOMPARE(sortiert[1].schluessel, u"b"_s); // as they stood
    QCOMPARE(sortiert[2].schluessel, u"B"_s);
}

QTEST_APPLESS_MAIN(TestRangliste)
#include "TestRangliste.moc"
