#include "Vorschlagsprobe.h"

#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;
using namespace Vorschlagsprobe;
using enum Kenngroesse;

class TestVorschlaege : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void distanceIsAPartOfTheMissedEnd_data();
    void distanceIsAPartOfTheMissedEnd();
    void deviationsComeFarthestFirst();
    void aPortionClosesItsPartOfTheGap();
    void whatHarmsOtherAimsComesLater();
    void whatMendsOtherAimsComesFirst();
    void energyThatIsEnoughCountsAgainst();
    void whatOvershootsIsNoHelp_data();
    void whatOvershootsIsNoHelp();
    void noUpperLevelIsPassed_data();
    void noUpperLevelIsPassed();
    void aCrumbIsNoHelp_data();
    void aCrumbIsNoHelp();
    void aFoodWithoutAFigureIsNoCandidate();
    void theUnknownPartOfADishIsTold();
    void unknownFiguresOfOtherAimsCountALittle();
    void ratingsAreAskedFor_data();
    void ratingsAreAskedFor();
    void anUnsuitableFoodComesSecond();
    void crossedOutFoodsAreNotNamed();
    void groupsAreLeftOut();
    void foodsWithoutAPortionDontComeInBesides();
    void nothingHelpsWhereNothingIsWrong_data();
    void nothingHelpsWhereNothingIsWrong();
    void spinachIsNoSourceOfIron();
    void theOrderOfTheCandidatesDoesNotMatter();
    void aListHasRoomForOthers();
};

void TestVorschlaege::distanceIsAPartOfTheMissedEnd_data()
{
    QTest::addColumn<Zielbereich>("ziel");
    QTest::addColumn<double>("wert");
    QTest::addColumn<double>("erwartet");

    const Zielbereich bereich = {protein, 50, 80, 200};
    QTest::newRow("far below") << bereich << 0.0 << 1.0;
    QTest::newRow("below: 10 of 50 missing") << bereich << 40.0 << 0.2;
    QTest::newRow("at the lower end") << bereich << 50.0 << 0.0;
    QTest::newRow("at the upper end") << bereich << 80.0 << 0.0;
    QTest::newRow("above: 20 of 80 too much") << bereich << 100.0 << 0.25;
    QTest::newRow("no ends") << Zielbereich{protein, {}, {}, {}} << 100.0 << 0.0;
    QTest::newRow("at the upper level") << Zielbereich{fe, 10, {}, 40} << 40.0 << 0.0;
    QTest::newRow("above the upper level: 20 of 40") << Zielbereich{fe, 10, {}, 40} << 60.0 << 0.5;
    QTest::newRow("energy without an upper end") << Zielbereich{kal, 2000, {}, {}} << 2200.0 << 0.1;
    QTest::newRow("energy up to its upper end")
        << Zielbereich{kal, 2000, 2300, {}} << 2200.0 << 0.0;
    QTest::newRow("nobody is short of sodium") << Zielbereich{na, 1500, 2000, {}} << 0.0 << 0.0;
    QTest::newRow("nor of salt") << Zielbereich{salz, 4, 6, {}} << 0.0 << 0.0;
    QTest::newRow("but may have too much") << Zielbereich{na, 1500, 2000, {}} << 3000.0 << 0.5;
    QTest::newRow("an end at 0") << Zielbereich{alkohol, {}, 0, {}} << 3.0 << 3.0;
}

void TestVorschlaege::distanceIsAPartOfTheMissedEnd()
{
    QFETCH(const Zielbereich, ziel);
    QFETCH(const double, wert);
    QFETCH(const double, erwartet);
    QCOMPARE(abstand(ziel, wert), erwartet);
}

void TestVorschlaege::deviationsComeFarthestFirst()
{
    Lager lager;
    lager.nimm(u"a"_s, obst, {{Naehrwert::fe, 3}, {Naehrwert::ka, 500}, {Naehrwert::na, 400}});
    // Of 100 g: iron 3 of 10 (0.7 missing), potassium 500 of 1000 (0.5), sodium 400 of at most 200
    // (1.0 too much), upper level passed; vitamin C is unknown to nobody and 0 of 0.
    const Zielbereiche ziele = {
        {fe, 10, {}, {}}, {ka, 1000, {}, {}}, {na, {}, 200, 300}, {kh, {}, 10, {}}};
    const Speisen speisen = {lager.speise(u"a"_s, 100)};
    const Stoffwissen wissen = lager.wissen();
    const QList<Abweichung> alle = abweichungen({speisen, ziele, wissen});
    QCOMPARE(alle.size(), 3);
    QCOMPARE(alle[0], (Abweichung{ziele[2], 400, 0, Lage::Ueberhoeht, -200, 1}));
    QCOMPARE(alle[1], (Abweichung{ziele[0], 3, 0, Lage::ZuWenig, 7, 0.7}));
    QCOMPARE(alle[2], (Abweichung{ziele[1], 500, 0, Lage::ZuWenig, 500, 0.5}));
}

void TestVorschlaege::aPortionClosesItsPartOfTheGap()
{
    Lager lager;
    lager.nimm(u"gegessen"_s, obst, {{Naehrwert::fe, 10}});
    lager.nimm(u"viel"_s, obst, {{Naehrwert::fe, 4}}, 50);
    lager.nimm(u"wenig"_s, obst, {{Naehrwert::fe, 1}}, 100);
    lager.nimm(u"alles"_s, obst, {{Naehrwert::fe, 20}}, 40);
    const Zielbereiche ziele = {{fe, 15, {}, {}}};
    const Speisen speisen = {lager.speise(u"gegessen"_s, 100)};
    const Stoffwissen wissen = lager.wissen();
    lager.kandidaten.removeFirst();
    const Vorschlagsliste liste = vorschlaege({speisen, ziele, wissen}, fe, lager.kandidaten, {});
    // 5 mg are missing: 40 g of "alles" give 8, 50 g of "viel" 2, 100 g of "wenig" 1.
    QCOMPARE(namen(liste), (QStringList{u"alles"_s, u"viel"_s, u"wenig"_s}));
    const Vorschlag &zweiter = liste.vorschlaege[1];
    QCOMPARE(zweiter.speise.gramm, 50.0);
    QCOMPARE(zweiter.speise.ort, -1);
    QCOMPARE(zweiter.zeile, -1);
    QCOMPARE(zweiter.angabe, u"1 Portion"_s);
    QCOMPARE(zweiter.aenderung, 2.0);
    QCOMPARE(zweiter.geschlossen, 0.4);
    QCOMPARE(zweiter.unbekannt, 0.0);
    QCOMPARE(zweiter.punkte, 0.4);
    QCOMPARE(liste.vorschlaege[0].geschlossen, 1.0);
}

void TestVorschlaege::whatHarmsOtherAimsComesLater()
{
    Lager lager;
    lager.nimm(u"fett"_s, obst, {{Naehrwert::fe, 5}, {Naehrwert::fett, 30}});
    lager.nimm(u"mager"_s, obst, {{Naehrwert::fe, 4}, {Naehrwert::fett, 0}});
    // All of the iron, but 30 g of fat too much of at most 20.
    lager.nimm(u"zu fett"_s, obst, {{Naehrwert::fe, 5}, {Naehrwert::fett, 50}});
    const Zielbereiche ziele = {{fe, 5, {}, {}}, {fett, {}, 20, {}}};
    const Stoffwissen wissen = lager.wissen();
    const Vorschlagsliste liste = vorschlaege({{}, ziele, wissen}, fe, lager.kandidaten, {});
    // "fett" closes all but brings 10 g of at most 20 too much: 1 - 0.5; "mager" closes 0.8.
    QCOMPARE(namen(liste), (QStringList{u"mager"_s, u"fett"_s}));
    QCOMPARE(liste.vorschlaege[0].punkte, 0.8);
    QCOMPARE(liste.vorschlaege[1].punkte, 0.5);
}

void TestVorschlaege::whatMendsOtherAimsComesFirst()
{
    Lager lager;
    lager.nimm(u"a"_s, obst, {{Naehrwert::fe, 5}, {Naehrwert::bs, 0}});
    lager.nimm(u"b"_s, obst, {{Naehrwert::fe, 5}, {Naehrwert::bs, 15}});
    const Zielbereiche ziele = {{fe, 5, {}, {}}, {bs, 30, {}, {}}};
    const Stoffwissen wissen = lager.wissen();
    const Vorschlagsliste liste = vorschlaege({{}, ziele, wissen}, fe, lager.kandidaten, {});
    QCOMPARE(namen(liste), (QStringList{u"b"_s, u"a"_s}));
    // Half of the fibre besides, which counts a tenth.
    QCOMPARE(liste.vorschlaege[0].punkte, 1.05);
    QCOMPARE(liste.vorschlaege[1].punkte, 1.0);
}

void TestVorschlaege::energyThatIsEnoughCountsAgainst()
{
    Lager lager;
    lager.nimm(u"gegessen"_s, obst, {{Naehrwert::kal, 2000}});
    lager.nimm(u"satt"_s, obst, {{Naehrwert::fe, 5}, {Naehrwert::kal, 500}});
    lager.nimm(u"schlank"_s, obst, {{Naehrwert::fe, 4}, {Naehrwert::kal, 20}});
    const Speisen genug = {lager.speise(u"gegessen"_s, 100)};
    const Speisen hungrig = {lager.speise(u"gegessen"_s, 50)};
    const Zielbereiche ziele = {{fe, 5, {}, {}}, {kal, 2000, {}, {}}};
    const Stoffwissen wissen = lager.wissen();
    lager.kandidaten.removeFirst();
    QCOMPARE(namen(vorschlaege({genug, ziele, wissen}, fe, lager.kandidaten, {})),
             (QStringList{u"schlank"_s, u"satt"_s}));
    QCOMPARE(namen(vorschlaege({hungrig, ziele, wissen}, fe, lager.kandidaten, {})),
             (QStringList{u"satt"_s, u"schlank"_s}));
}

void TestVorschlaege::whatOvershootsIsNoHelp_data()
{
    QTest::addColumn<float>("protein");
    QTest::addColumn<bool>("hilft");

    // 45 g are eaten, 50 to 60 are right: 0.1 is missing.
    QTest::newRow("into the range") << 10.0F << true;
    QTest::newRow("to its upper end") << 15.0F << true;
    QTest::newRow("a little above: 63 is 0.05 too much") << 18.0F << true;
    QTest::newRow("as far above: 66 is 0.1 too much") << 21.0F << false;
    QTest::newRow("farther above") << 40.0F << false;
}

void TestVorschlaege::whatOvershootsIsNoHelp()
{
    QFETCH(const float, protein);
    QFETCH(const bool, hilft);
    Lager lager;
    lager.nimm(u"gegessen"_s, obst, {{Naehrwert::protein, 45}});
    lager.nimm(u"neu"_s, obst, {{Naehrwert::protein, protein}});
    const Speisen speisen = {lager.speise(u"gegessen"_s, 100)};
    const Zielbereiche ziele = {{Kenngroesse::protein, 50, 60, {}}};
    const Stoffwissen wissen = lager.wissen();
    lager.kandidaten.removeFirst();
    const Vorschlagsliste liste =
        vorschlaege({speisen, ziele, wissen}, Kenngroesse::protein, lager.kandidaten, {});
    QCOMPARE(liste.vorschlaege.size(), hilft ? 1 : 0);
}

void TestVorschlaege::noUpperLevelIsPassed_data()
{
    QTest::addColumn<double>("gegessen");
    QTest::addColumn<float>("eisen");
    QTest::addColumn<bool>("erlaubt");

    // The upper level of iron is 40 mg; magnesium is short.
    QTest::newRow("below it") << 30.0 << 9.0F << true;
    QTest::newRow("at it") << 30.0 << 10.0F << true;
    QTest::newRow("above it") << 30.0 << 10.5F << false;
    QTest::newRow("was above before") << 41.0 << 0.5F << true;
}

void TestVorschlaege::noUpperLevelIsPassed()
{
    QFETCH(const double, gegessen);
    QFETCH(const float, eisen);
    QFETCH(const bool, erlaubt);
    Lager lager;
    lager.nimm(u"gegessen"_s, obst, {{Naehrwert::fe, 100}});
    lager.nimm(u"neu"_s, obst, {{Naehrwert::fe, eisen}, {Naehrwert::ma, 300}});
    const Speisen speisen = {lager.speise(u"gegessen"_s, gegessen)};
    const Zielbereiche ziele = {{ma, 300, {}, {}}, {fe, 10, {}, 40}};
    const Stoffwissen wissen = lager.wissen();
    lager.kandidaten.removeFirst();
    QCOMPARE(vorschlaege({speisen, ziele, wissen}, ma, lager.kandidaten, {}).vorschlaege.size(),
             erlaubt ? 1 : 0);
}

void TestVorschlaege::aCrumbIsNoHelp_data()
{
    QTest::addColumn<float>("calcium");
    QTest::addColumn<qsizetype>("anzahl");

    // Of 1000 mg that are missing a twentieth is 50.
    QTest::newRow("nothing") << 0.0F << qsizetype(0);
    QTest::newRow("less than a twentieth") << 49.0F << qsizetype(0);
    QTest::newRow("a little more") << 51.0F << qsizetype(1);
}

void TestVorschlaege::aCrumbIsNoHelp()
{
    QFETCH(const float, calcium);
    QFETCH(const qsizetype, anzahl);
    Lager lager;
    lager.nimm(u"neu"_s, obst, {{Naehrwert::ca, calcium}});
    const Zielbereiche ziele = {{ca, 1000, {}, {}}};
    const Stoffwissen wissen = lager.wissen();
    QCOMPARE(vorschlaege({{}, ziele, wissen}, ca, lager.kandidaten, {}).vorschlaege.size(), anzahl);
}

void TestVorschlaege::aFoodWithoutAFigureIsNoCandidate()
{
    Lager lager;
    lager.nimm(u"bekannt"_s, obst, {{Naehrwert::fe, 5}});
    lager.nimm(u"unbestimmt"_s, obst, {});
    lager.zusatz(u"unbestimmt"_s).unbestimmt[stelle(Naehrwert::fe)] = true;
    lager.nimm(u"eigenes"_s, nullptr, {{Naehrwert::kal, 100}}); // the 0 of an own food is unknown
    const Zielbereiche ziele = {{fe, 5, {}, {}}};
    const Stoffwissen wissen = lager.wissen();
    const Vorschlagsliste liste = vorschlaege({{}, ziele, wissen}, fe, lager.kandidaten, {});
    QCOMPARE(namen(liste), (QStringList{u"bekannt"_s}));
    QCOMPARE(liste.ohneAngabe, 2);
}

void TestVorschlaege::theUnknownPartOfADishIsTold()
{
    Lager lager;
    lager.nimm(u"Eintopf"_s, nullptr, {{Naehrwert::fe, 5}});
    Stoffwissen wissen = lager.wissen();
    Rezeptangaben angaben;
    angaben[stelle(fe)] = {5, 0.3};
    wissen.setzeRezepte({{u"Eintopf"_s, angaben}});
    const Zielbereiche ziele = {{fe, 5, {}, {}}};
    const Vorschlagsliste liste = vorschlaege({{}, ziele, wissen}, fe, lager.kandidaten, {});
    QCOMPARE(liste.vorschlaege.size(), 1);
    QCOMPARE(liste.vorschlaege[0].unbekannt, 0.3);
}

void TestVorschlaege::unknownFiguresOfOtherAimsCountALittle()
{
    Lager lager;
    lager.nimm(u"a unbekannt"_s, obst, {{Naehrwert::fe, 5}});
    lager.nimm(u"b bekannt"_s, obst, {{Naehrwert::fe, 5}});
    lager.zusatz(u"a unbekannt"_s).unbestimmt[stelle(Naehrwert::ka)] = true;
    lager.satz(u"b bekannt"_s).setkh(1); // so that they are not the same food
    const Zielbereiche ziele = {{fe, 5, {}, {}}, {ka, {}, 4000, {}}};
    const Stoffwissen wissen = lager.wissen();
    const Vorschlagsliste liste = vorschlaege({{}, ziele, wissen}, fe, lager.kandidaten, {});
    QCOMPARE(namen(liste), (QStringList{u"b bekannt"_s, u"a unbekannt"_s}));
    QCOMPARE(liste.vorschlaege[0].punkte, 1.0);
    QCOMPARE(liste.vorschlaege[1].punkte, 0.95); // of two aims one is unknown: half of a tenth
}

void TestVorschlaege::ratingsAreAskedFor_data()
{
    QTest::addColumn<QString>("wertung");
    QTest::addColumn<Wertungswunsch>("wunsch");
    QTest::addColumn<bool>("erlaubt");

    using enum Wertungswunsch;
    QTest::newRow("any, suits") << u"+"_s << Egal << true;
    QTest::newRow("any, does not") << u"-"_s << Egal << true;
    QTest::newRow("any, not rated") << QString() << Egal << true;
    QTest::newRow("not -, suits") << u"+"_s << NichtUngeeignet << true;
    QTest::newRow("not -, neutral") << u"0"_s << NichtUngeeignet << true;
    QTest::newRow("not -, does not") << u"-"_s << NichtUngeeignet << false;
    QTest::newRow("not -, not rated") << QString() << NichtUngeeignet << false;
    QTest::newRow("not -, rated with a word") << u"gut"_s << NichtUngeeignet << false;
    QTest::newRow("+, suits") << u"+"_s << Geeignet << true;
    QTest::newRow("+, neutral") << u"0"_s << Geeignet << false;
    QTest::newRow("+, does not") << u"-"_s << Geeignet << false;
}

void TestVorschlaege::ratingsAreAskedFor()
{
    QFETCH(const QString, wertung);
    QFETCH(const Wertungswunsch, wunsch);
    QFETCH(const bool, erlaubt);
    for (const Wertungsbeschreibung &eine : wertungen) {
        Lager lager;
        lager.nimm(u"neu"_s, obst, {{Naehrwert::fe, 5}});
        lager.satz(u"neu"_s).setWertung(eine.wertung, wertung);
        const Zielbereiche ziele = {{fe, 5, {}, {}}};
        const Stoffwissen wissen = lager.wissen();
        Vorschlagsbedingungen bedingungen;
        bedingungen.wertungen[stelle(eine.wertung)] = wunsch;
        const Vorschlagsliste liste =
            vorschlaege({{}, ziele, wissen}, fe, lager.kandidaten, bedingungen);
        QCOMPARE(liste.vorschlaege.size(), erlaubt ? 1 : 0);
    }
}

void TestVorschlaege::anUnsuitableFoodComesSecond()
{
    Lager lager;
    lager.nimm(u"a ungeeignet"_s, obst, {{Naehrwert::fe, 5}});
    lager.nimm(u"b neutral"_s, obst, {{Naehrwert::fe, 5}, {Naehrwert::kh, 1}});
    lager.satz(u"a ungeeignet"_s).setgicht(u"-"_s);
    lager.satz(u"a ungeeignet"_s).sethkk(u"-"_s);
    const Zielbereiche ziele = {{fe, 5, {}, {}}};
    const Stoffwissen wissen = lager.wissen();
    const Vorschlagsliste liste = vorschlaege({{}, ziele, wissen}, fe, lager.kandidaten, {});
    QCOMPARE(namen(liste), (QStringList{u"b neutral"_s, u"a ungeeignet"_s}));
    QCOMPARE(liste.vorschlaege[1].punkte, 0.9); // a twentieth for each of the two
}

void TestVorschlaege::crossedOutFoodsAreNotNamed()
{
    Lager lager;
    lager.nimm(u"a"_s, obst, {{Naehrwert::fe, 5}});
    lager.nimm(u"b"_s, obst, {{Naehrwert::fe, 4}});
    const Zielbereiche ziele = {{fe, 5, {}, {}}};
    const Stoffwissen wissen = lager.wissen();
    const Vorschlagsbedingungen bedingungen = {.gestrichen = {u"a"_s}};
    QCOMPARE(namen(vorschlaege({{}, ziele, wissen}, fe, lager.kandidaten, bedingungen)),
             (QStringList{u"b"_s}));
}

void TestVorschlaege::groupsAreLeftOut()
{
    Lager lager;
    lager.nimm(u"Apfel"_s, obst, {{Naehrwert::ca, 500}});
    lager.nimm(u"Gouda"_s, "Käse", {{Naehrwert::ca, 800}});
    lager.nimm(u"Eigenes"_s, nullptr, {{Naehrwert::ca, 900}});
    const Zielbereiche ziele = {{ca, 1000, {}, {}}};
    const Stoffwissen wissen = lager.wissen();
    const auto liste = [&](Weglassgruppen ohne) {
        return vorschlaege({{}, ziele, wissen}, ca, lager.kandidaten, {.ohne = ohne});
    };
    QCOMPARE(namen(liste({})), (QStringList{u"Eigenes"_s, u"Gouda"_s, u"Apfel"_s}));
    QCOMPARE(liste({}).unbeurteilt, 0);
    QCOMPARE(namen(liste(Weglassgruppe::Milch)), (QStringList{u"Apfel"_s}));
    QCOMPARE(liste(Weglassgruppe::Milch).unbeurteilt, 1);
    QCOMPARE(namen(liste(Weglassgruppe::Fisch)), (QStringList{u"Gouda"_s, u"Apfel"_s}));
    QCOMPARE(namen(liste(Weglassgruppe::Fisch | Weglassgruppe::Milch)), (QStringList{u"Apfel"_s}));
}

void TestVorschlaege::foodsWithoutAPortionDontComeInBesides()
{
    Lager lager;
    lager.nimm(u"a"_s, obst, {{Naehrwert::fe, 5}}, 0);
    lager.nimm(u"b"_s, obst, {{Naehrwert::fe, 5}}, std::numeric_limits<double>::quiet_NaN());
    const Zielbereiche ziele = {{fe, 5, {}, {}}};
    const Stoffwissen wissen = lager.wissen();
    QCOMPARE(namen(vorschlaege({{}, ziele, wissen}, fe, lager.kandidaten, {})), QStringList());
}

void TestVorschlaege::nothingHelpsWhereNothingIsWrong_data()
{
    QTest::addColumn<Zielbereich>("ziel");
    QTest::addColumn<Kenngroesse>("gefragt");

    // 100 g of the food that is eaten hold 10 mg of iron and 100 mg of sodium.
    QTest::newRow("within the range") << Zielbereich{fe, 10, 20, {}} << fe;
    QTest::newRow("no range") << Zielbereich{fe, {}, {}, {}} << fe;
    QTest::newRow("another aim") << Zielbereich{fe, 50, {}, {}} << ca;
    QTest::newRow("little sodium") << Zielbereich{na, 1500, 2000, {}} << na;
}

void TestVorschlaege::nothingHelpsWhereNothingIsWrong()
{
    QFETCH(const Zielbereich, ziel);
    QFETCH(const Kenngroesse, gefragt);
    Lager lager;
    lager.nimm(u"gegessen"_s, obst, {{Naehrwert::fe, 10}, {Naehrwert::na, 100}});
    lager.nimm(u"neu"_s, obst, {{Naehrwert::fe, 5}, {Naehrwert::na, 500}, {Naehrwert::ca, 100}});
    const Speisen speisen = {lager.speise(u"gegessen"_s, 100)};
    const Zielbereiche ziele = {ziel};
    const Stoffwissen wissen = lager.wissen();
    const Vorschlagsliste liste =
        vorschlaege({speisen, ziele, wissen}, gefragt, lager.kandidaten, {});
    QCOMPARE(namen(liste), QStringList());
}

void TestVorschlaege::spinachIsNoSourceOfIron()
{
    Lager lager;
    lager.nimm(u"Spinat, gedämpft"_s, "Gemüse",
               {{Naehrwert::fe, 5}, {Naehrwert::ma, 100}, {Naehrwert::ca, 200}});
    const Zielbereiche ziele = {{fe, 15, {}, {}}, {ma, 300, {}, {}}, {ca, 1000, {}, {}}};
    const Stoffwissen wissen = lager.wissen();
    const auto anzahl = [&](Kenngroesse ziel) {
        return vorschlaege({{}, ziele, wissen}, ziel, lager.kandidaten, {}).vorschlaege.size();
    };
    QCOMPARE(anzahl(fe), 0);
    QCOMPARE(anzahl(ca), 0);
    QCOMPARE(anzahl(ma), 1);
}

void TestVorschlaege::theOrderOfTheCandidatesDoesNotMatter()
{
    Lager lager;
    const QStringList gruppen = {u"Obst"_s, u"Gemüse"_s, u"Hülsenfrüchte"_s};
    for (int i = 0; i < 9; ++i) {
        lager.nimm(u"%1 gekocht"_s.arg(QChar(u'a' + i)), gruppen[i / 3].toUtf8().constData(),
                   {{Naehrwert::fe, 5}, {Naehrwert::kh, static_cast<float>(i)}});
    }
    const Zielbereiche ziele = {{fe, 5, {}, {}}};
    const Stoffwissen wissen = lager.wissen();
    const QStringList vorher = namen(vorschlaege({{}, ziele, wissen}, fe, lager.kandidaten, {}));
    // All help alike: by their names.
    QCOMPARE(vorher.size(), 9);
    QVERIFY(std::ranges::is_sorted(vorher));
    std::ranges::reverse(lager.kandidaten);
    QCOMPARE(namen(vorschlaege({{}, ziele, wissen}, fe, lager.kandidaten, {})), vorher);
}

void TestVorschlaege::aListHasRoomForOthers()
{
    Lager lager;
    for (int i = 0; i < 5; ++i) {
        lager.nimm(u"Frucht %1"_s.arg(i), obst,
                   {{Naehrwert::fe, 5}, {Naehrwert::kh, static_cast<float>(i)}});
    }
    lager.nimm(u"Linsen, gekocht"_s, "Hülsenfrüchte", {{Naehrwert::fe, 4}});
    lager.nimm(u"Linsen, rot, gekocht"_s, "Hülsenfrüchte", {{Naehrwert::fe, 3}});
    lager.nimm(u"Zweitname"_s, "Gemüse", {{Naehrwert::fe, 4}}); // the same under another name
    const Zielbereiche ziele = {{fe, 5, {}, {}}};
    const Stoffwissen wissen = lager.wissen();
    QCOMPARE(namen(vorschlaege({{}, ziele, wissen}, fe, lager.kandidaten, {})),
             (QStringList{u"Frucht 0"_s, u"Frucht 1"_s, u"Frucht 2"_s, u"Linsen, gekocht"_s}));
    Lager eigene;
    for (int i = 0; i < 25; ++i) {
        eigene.nimm(u"Eigenes %1"_s.arg(i), nullptr,
                    {{Naehrwert::fe, 5}, {Naehrwert::kh, static_cast<float>(i)}});
    }
    QCOMPARE(vorschlaege({{}, ziele, wissen}, fe, eigene.kandidaten, {}).vorschlaege.size(),
             hoechstensVorschlaege);
}

Q_DECLARE_METATYPE(Zielbereich)
QTEST_APPLESS_MAIN(TestVorschlaege)
#include "TestVorschlaege.moc"
