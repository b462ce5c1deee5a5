// Foods that take the place of others, and what suggestions do to each aim.

#include "Vorschlagsprobe.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace Vorschlagsprobe;
using enum Kenngroesse;

class TestVorschlagsersatz : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tooMuchIsMendedByAnotherOfItsKind();
    void onlyTheSameKindTakesAPlace_data();
    void onlyTheSameKindTakesAPlace();
    void withoutAnAimTheSumOfAllDecides();
    void aRowThatIsNoneIsLeftAlone();
    void whatIsWhollyUnknownIsNoAim();
    void whatCouldStandNowhereIsNotMissed();
    void unknownFiguresAreNoGain();
    void theSameFoodMayTakeSeveralPlaces();
    void anUnsuitableFoodIsNoWorseThanAnother();
    void theEffectIsShownForEachAim();
    void theEffectOfWhatIsUnknownIsUnknown();
};

void TestVorschlagsersatz::tooMuchIsMendedByAnotherOfItsKind()
{
    Lager lager;
    lager.nimm(u"salzig"_s, brot, {{Naehrwert::na, 1000}});
    lager.nimm(u"milder"_s, brot, {{Naehrwert::na, 600}}, 0); // it needs no portion
    lager.nimm(u"fad"_s, brot, {{Naehrwert::na, 100}});
    lager.nimm(u"Apfel"_s, obst, {});
    const Speisen speisen = {lager.speise(u"Apfel"_s, 150, 4), lager.speise(u"salzig"_s, 50, 7)};
    const Zielbereiche ziele = {{na, {}, 100, {}}};
    const Stoffwissen wissen = lager.wissen();
    const Vorschlagsliste liste = vorschlaege({speisen, ziele, wissen}, na, lager.kandidaten, {});
    QCOMPARE(namen(liste), (QStringList{u"fad"_s, u"milder"_s}));
    // 500 mg are eaten, 400 too much. 50 g of "milder" hold 300, which leaves 200 of these.
    const Vorschlag &zweiter = liste.vorschlaege[1];
    QCOMPARE(zweiter.speise.gramm, 50.0);
    QCOMPARE(zweiter.speise.ort, 7);
    QCOMPARE(zweiter.zeile, 1);
    QCOMPARE(zweiter.angabe, QString());
    QCOMPARE(zweiter.aenderung, -200.0);
    QCOMPARE(zweiter.geschlossen, 0.5);
    QCOMPARE(liste.vorschlaege[0].geschlossen, 1.0);
}

void TestVorschlagsersatz::onlyTheSameKindTakesAPlace_data()
{
    QTest::addColumn<QString>("zeile");
    QTest::addColumn<QByteArray>("zeilengruppe");
    QTest::addColumn<QString>("neu");
    QTest::addColumn<QByteArray>("neugruppe");
    QTest::addColumn<bool>("passt");

    const auto fall = [](const char *was, const char *zeile, const char *zeilengruppe,
                         const char *neu, const char *neugruppe, bool passt) {
        QTest::newRow(was) << QString::fromUtf8(zeile) << QByteArray(zeilengruppe)
                           << QString::fromUtf8(neu) << QByteArray(neugruppe) << passt;
    };
    fall("rice for potatoes", "Salzkartoffeln", "Kartoffeln", "Reis, gekocht",
         "Getreide, Reis und Nudeln", true);
    fall("an apple for potatoes", "Salzkartoffeln", "Kartoffeln", "Apfel", "Obst", false);
    fall("raw for roast meat", "Rind, gebraten", "Rind- und Kalbfleisch", "Rind mager, roh",
         "Rind- und Kalbfleisch", false);
    fall("raw for raw meat", "Rind, roh", "Rind- und Kalbfleisch", "Rind mager, roh",
         "Rind- und Kalbfleisch", true);
    fall("frozen for fried", "Stäbchen, gebraten", "Fisch", "Stäbchen mager, tiefgekühlt", "Fisch",
         false);
    fall("salt for nothing of its kind", "Zimt", "Kräuter, Gewürze und Zutaten", "Nelken",
         "Kräuter, Gewürze und Zutaten", false);
    fall("lemonade for water", "Leitungswasser", "Wasser, Kaffee und Tee", "Limonade",
         "Saft und Erfrischungsgetränke", false);
    fall("water for lemonade", "Limonade", "Saft und Erfrischungsgetränke", "Leitungswasser",
         "Wasser, Kaffee und Tee", true);
    fall("a food for itself", "Brot", "Brot und Brötchen", "Brot", "Brot und Brötchen", false);
}

void TestVorschlagsersatz::onlyTheSameKindTakesAPlace()
{
    QFETCH(const QString, zeile);
    QFETCH(const QByteArray, zeilengruppe);
    QFETCH(const QString, neu);
    QFETCH(const QByteArray, neugruppe);
    QFETCH(const bool, passt);
    Lager lager;
    lager.nimm(neu, neugruppe.constData(), {{Naehrwert::na, 10}});
    const Kandidaten kandidaten = lager.kandidaten;
    lager.kandidaten.clear();
    lager.nimm(zeile, zeilengruppe.constData(), {{Naehrwert::na, 1000}});
    const Speisen speisen = {lager.speise(zeile, 100)};
    const Zielbereiche ziele = {{na, {}, 100, {}}};
    const Stoffwissen wissen = lager.wissen();
    const Vorschlagsgrundlage grundlage = {speisen, ziele, wissen};
    QCOMPARE(vorschlaege(grundlage, na, kandidaten, {}).vorschlaege.size(), passt ? 1 : 0);
    QCOMPARE(stattZeile(grundlage, 0, na, kandidaten, {}).vorschlaege.size(), passt ? 1 : 0);
    QCOMPARE(stattZeile(grundlage, 0, {}, kandidaten, {}).vorschlaege.size(), passt ? 1 : 0);
}

/// Dry food swells: 100 g of it are no place for 100 g from the pot.
void TestVorschlagsersatz::withoutAnAimTheSumOfAllDecides()
{
    Lager lager;
    lager.nimm(u"weiß"_s, brot, {{Naehrwert::bs, 3}, {Naehrwert::na, 500}});
    lager.nimm(u"voll"_s, brot, {{Naehrwert::bs, 9}, {Naehrwert::na, 550}});
    lager.nimm(u"schlechter"_s, brot, {{Naehrwert::bs, 2}, {Naehrwert::na, 600}});
    lager.nimm(u"trocken"_s, brot, {{Naehrwert::bs, 30}, {Naehrwert::na, 0}});
    lager.zusatz(u"trocken"_s).verzehrfertig = 280;
    const Speisen speisen = {lager.speise(u"weiß"_s, 100)};
    const Zielbereiche ziele = {{bs, 30, {}, {}}, {na, {}, 500, {}}};
    const Stoffwissen wissen = lager.wissen();
    const Vorschlagsliste liste = stattZeile({speisen, ziele, wissen}, 0, {}, lager.kandidaten, {});
    QCOMPARE(namen(liste), (QStringList{u"voll"_s}));
    // Fibre is 6 of 30 better (0.2), sodium 50 of 500 worse (0.1).
    QVERIFY(qAbs(liste.vorschlaege[0].punkte - 0.1) < 1e-9);
    QCOMPARE(liste.vorschlaege[0].geschlossen, 0.0);
}

void TestVorschlagsersatz::aRowThatIsNoneIsLeftAlone()
{
    Lager lager;
    lager.nimm(u"weiß"_s, brot, {{Naehrwert::bs, 3}});
    lager.nimm(u"voll"_s, brot, {{Naehrwert::bs, 9}});
    lager.nimm(u"eigen"_s, nullptr, {{Naehrwert::bs, 1}});
    lager.nimm(u"eigen, besser"_s, nullptr, {{Naehrwert::bs, 20}});
    Speise fort = lager.speise(u"weiß"_s, 100);
    fort.lebensmittel.reset();
    const Speisen speisen = {lager.speise(u"weiß"_s, 100), lager.speise(u"weiß"_s, 0), fort,
                             lager.speise(u"eigen"_s, 100)};
    const Zielbereiche ziele = {{bs, 30, {}, {}}};
    const Stoffwissen wissen = lager.wissen();
    const auto anzahl = [&](int zeile, std::optional<Kenngroesse> ziel) {
        return stattZeile({speisen, ziele, wissen}, zeile, ziel, lager.kandidaten, {})
            .vorschlaege.size();
    };
    QCOMPARE(anzahl(0, bs), 1);
    QCOMPARE(anzahl(0, {}), 1);
    QCOMPARE(anzahl(0, fe), 0); // no such aim
    QCOMPARE(anzahl(1, bs), 0); // weighs nothing
    QCOMPARE(anzahl(2, bs), 0); // in no store
    QCOMPARE(anzahl(3, bs), 0); // an own food
    QCOMPARE(anzahl(-1, bs), 0);
    QCOMPARE(anzahl(4, bs), 0);
}

/// A food of which nobody knows the fibre is not worse than one with much, nor is its sodium less.
void TestVorschlagsersatz::whatIsWhollyUnknownIsNoAim()
{
    Lager lager;
    lager.nimm(u"Eigenes"_s, nullptr, {{Naehrwert::kal, 100}}); // its 0 mg of iron are unknown
    lager.nimm(u"Linsen"_s, obst, {{Naehrwert::kal, 100}, {Naehrwert::fe, 3}});
    lager.nimm(u"Reis"_s, obst, {{Naehrwert::kal, 100}, {Naehrwert::fe, 0.5}});
    const Zielbereiche ziele = {{fe, 15, {}, {}}, {kal, 2000, {}, {}}};
    const Stoffwissen wissen = lager.wissen();
    Speisen speisen = {lager.speise(u"Eigenes"_s, 300)};
    const auto fehlende = [&] {
        QList<Kenngroesse> alle;
        for (const Abweichung &eine : abweichungen({speisen, ziele, wissen})) {
            alle << eine.ziel.groesse;
        }
        return alle;
    };
    QCOMPARE(fehlende(), QList<Kenngroesse>{kal});
    // Iron that nobody knows is lacking is no reason to take the one rather than the other.
    const Vorschlagsliste liste = vorschlaege({speisen, ziele, wissen}, kal, lager.kandidaten, {});
    QCOMPARE(liste.vorschlaege[0].punkte, liste.vorschlaege[1].punkte);
    const QList<Wirkung> alle = wirkung({speisen, ziele, wissen}, liste.vorschlaege[0]);
    QCOMPARE(alle[0].vorherUnbekannt, 1.0);
    QCOMPARE(alle[0].richtung, Wirkung::Richtung::Gleich);
    QCOMPARE(alle[1].richtung, Wirkung::Richtung::Besser);
    speisen << lager.speise(u"Reis"_s, 100); // of a quarter it is known
    QCOMPARE(fehlende(), (QList<Kenngroesse>{fe, kal}));
    QCOMPARE(abweichungen({speisen, ziele, wissen})[0].unbekannt, 0.75);
    speisen.clear(); // nothing is eaten, which is known
    QCOMPARE(fehlende(), (QList<Kenngroesse>{fe, kal}));
}

void TestVorschlagsersatz::whatCouldStandNowhereIsNotMissed()
{
    Lager lager;
    lager.nimm(u"salzig"_s, brot, {{Naehrwert::na, 1000}});
    lager.nimm(u"Apfel"_s, obst, {{Naehrwert::na, 300}});
    for (const auto &[name, gruppe] : {std::pair(u"Semmel"_s, brot), std::pair(u"Birne"_s, obst),
                                       std::pair(u"Käse"_s, "Käse")}) {
        lager.nimm(name, gruppe, {});
        lager.zusatz(name).unbestimmt[stelle(Naehrwert::na)] = true;
    }
    lager.nimm(u"Eigenes"_s, nullptr, {}); // of which nobody knows what it is
    const Speisen speisen = {lager.speise(u"Apfel"_s, 100), lager.speise(u"salzig"_s, 50)};
    const Zielbereiche ziele = {{na, {}, 100, {}}};
    const Stoffwissen wissen = lager.wissen();
    const Vorschlagsgrundlage grundlage = {speisen, ziele, wissen};
    const Vorschlagsbedingungen ohneMilch = {.ohne = Weglassgruppe::Milch};
    QCOMPARE(stattZeile(grundlage, 1, na, lager.kandidaten, {}).ohneAngabe, 1);
    QCOMPARE(vorschlaege(grundlage, na, lager.kandidaten, {}).ohneAngabe, 2);
    QCOMPARE(stattZeile(grundlage, 1, na, lager.kandidaten, ohneMilch).unbeurteilt, 0);
}

void TestVorschlagsersatz::unknownFiguresAreNoGain()
{
    Lager lager;
    lager.nimm(u"salzig"_s, brot, {{Naehrwert::na, 1000}, {Naehrwert::bs, 5}});
    lager.nimm(u"unbestimmt"_s, brot, {{Naehrwert::bs, 15}});
    lager.zusatz(u"unbestimmt"_s).unbestimmt[stelle(Naehrwert::na)] = true;
    const Zielbereiche nurNatrium = {{na, {}, 100, {}}};
    const Zielbereiche beides = {{na, {}, 100, {}}, {bs, 10, {}, {}}};
    const Stoffwissen wissen = lager.wissen();
    const auto liste = [&](const QString &zeile, const Zielbereiche &ziele) {
        const Speisen speisen = {lager.speise(zeile, 100)};
        return stattZeile({speisen, ziele, wissen}, 0, {}, lager.kandidaten, {});
    };
    QCOMPARE(namen(liste(u"salzig"_s, nurNatrium)), QStringList());
    // Fibre is 5 of 10 better; the unknown sodium takes off half of a tenth.
    const Vorschlagsliste eine = liste(u"salzig"_s, beides);
    QCOMPARE(namen(eine), (QStringList{u"unbestimmt"_s}));
    QCOMPARE(eine.vorschlaege[0].punkte, 0.45);
    // The other way round the sodium would be 9 times too much, if it was 0 before.
    const Zielbereiche wenigBallaststoffe = {{na, {}, 100, {}}, {bs, {}, 10, {}}};
    QCOMPARE(namen(liste(u"unbestimmt"_s, wenigBallaststoffe)), (QStringList{u"salzig"_s}));
}

void TestVorschlagsersatz::theSameFoodMayTakeSeveralPlaces()
{
    Lager lager;
    lager.nimm(u"salzig"_s, brot, {{Naehrwert::na, 1000}});
    lager.nimm(u"fad"_s, brot, {{Naehrwert::na, 100}});
    const Speisen speisen = {lager.speise(u"salzig"_s, 50, 1), lager.speise(u"salzig"_s, 100, 2)};
    const Zielbereiche ziele = {{na, {}, 100, {}}};
    const Stoffwissen wissen = lager.wissen();
    const Vorschlagsliste liste = vorschlaege({speisen, ziele, wissen}, na, lager.kandidaten, {});
    QCOMPARE(namen(liste), (QStringList{u"fad"_s, u"fad"_s}));
    QCOMPARE(liste.vorschlaege[0].speise.ort, 2); // more of it
    QCOMPARE(liste.vorschlaege[1].speise.ort, 1);
}

/// Only a rating that gets worse counts against a swap.
void TestVorschlagsersatz::anUnsuitableFoodIsNoWorseThanAnother()
{
    Lager lager;
    lager.nimm(u"salzig"_s, brot, {{Naehrwert::na, 1000}});
    lager.nimm(u"fad"_s, brot, {{Naehrwert::na, 0}});
    lager.satz(u"fad"_s).sethkk(u"-"_s);
    const Zielbereiche ziele = {{na, {}, 100, {}}};
    const Stoffwissen wissen = lager.wissen();
    const auto punkte = [&] {
        const Speisen speisen = {lager.speise(u"salzig"_s, 100)};
        return vorschlaege({speisen, ziele, wissen}, na, lager.kandidaten, {})
            .vorschlaege[0]
            .punkte;
    };
    QCOMPARE(punkte(), 0.95);
    lager.satz(u"salzig"_s).sethkk(u"-"_s);
    QCOMPARE(punkte(), 1.0);
}

void TestVorschlagsersatz::theEffectIsShownForEachAim()
{
    Lager lager;
    lager.nimm(u"weiß"_s, brot, {{Naehrwert::bs, 3}, {Naehrwert::na, 500}, {Naehrwert::fe, 1}});
    lager.nimm(u"voll"_s, brot, {{Naehrwert::bs, 9}, {Naehrwert::na, 600}, {Naehrwert::fe, 1}});
    const Speisen speisen = {lager.speise(u"weiß"_s, 50, 3)};
    const Zielbereiche ziele = {{bs, 30, {}, {}}, {na, {}, 250, {}}, {fe, 15, {}, {}}};
    const Stoffwissen wissen = lager.wissen();
    const Vorschlagsgrundlage grundlage = {speisen, ziele, wissen};
    const Vorschlag dazu = {.speise = lager.speise(u"voll"_s, 100)};
    const QList<Wirkung> besonders = wirkung(grundlage, dazu);
    QCOMPARE(besonders.size(), 3);
    QCOMPARE(besonders[0].vorher, 1.5);
    QCOMPARE(besonders[0].nachher, 10.5);
    QCOMPARE(besonders[0].richtung, Wirkung::Richtung::Besser);
    QCOMPARE(besonders[1].nachher, 850.0);
    QCOMPARE(besonders[1].richtung, Wirkung::Richtung::Schlechter);
    const Vorschlag statt = {.speise = lager.speise(u"voll"_s, 50), .zeile = 0};
    const QList<Wirkung> getauscht = wirkung(grundlage, statt);
    QCOMPARE(getauscht[0].nachher, 4.5);
    QCOMPARE(getauscht[1].nachher, 300.0);
    QCOMPARE(getauscht[2].nachher, 0.5);
    QCOMPARE(getauscht[2].richtung, Wirkung::Richtung::Gleich);
    // 10 g of it give 0.9 g of fibre, 3 % of the end, and 0.1 mg of iron, 0.7 %; 5 g half of that.
    const QList<Wirkung> wenig = wirkung(grundlage, {.speise = lager.speise(u"voll"_s, 10)});
    QCOMPARE(wenig[2].richtung, Wirkung::Richtung::Besser);
    const QList<Wirkung> kaum = wirkung(grundlage, {.speise = lager.speise(u"voll"_s, 5)});
    QCOMPARE(kaum[0].richtung, Wirkung::Richtung::Besser);
    QCOMPARE(kaum[2].richtung, Wirkung::Richtung::Gleich);
}

void TestVorschlagsersatz::theEffectOfWhatIsUnknownIsUnknown()
{
    Lager lager;
    lager.nimm(u"weiß"_s, brot, {{Naehrwert::na, 500}});
    lager.nimm(u"unbestimmt"_s, brot, {});
    lager.zusatz(u"unbestimmt"_s).unbestimmt[stelle(Naehrwert::na)] = true;
    const Speisen speisen = {lager.speise(u"weiß"_s, 100), lager.speise(u"unbestimmt"_s, 100)};
    const Zielbereiche ziele = {{na, {}, 250, {}}};
    const Stoffwissen wissen = lager.wissen();
    const Vorschlagsgrundlage grundlage = {speisen, ziele, wissen};
    for (const Vorschlag &einer :
         {Vorschlag{.speise = lager.speise(u"unbestimmt"_s, 100)},
          Vorschlag{.speise = lager.speise(u"unbestimmt"_s, 100), .zeile = 0},
          Vorschlag{.speise = lager.speise(u"weiß"_s, 100), .zeile = 1}}) {
        const QList<Wirkung> alle = wirkung(grundlage, einer);
        QCOMPARE(alle[0].unbekannt, 1.0);
        QCOMPARE(alle[0].nachher, 500.0);
        QCOMPARE(alle[0].richtung, Wirkung::Richtung::Gleich);
    }
}

QTEST_APPLESS_MAIN(TestVorschlagsersatz)
#include "TestVorschlagsersatz.moc"
