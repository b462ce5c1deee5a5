// What is unknown of a dish makes its ratings uncertain where it could change them, and is said.

#include "Rezeptwertungsprobe.h"

class TestRezeptungewissheit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsUnknownMayBeNoPlant();
    void moreFibreThanIsKnownMakesTheDishLessRefined();
    void whatIsUnknownIsCountedByGrams();
    void aRatingIsUncertainWhereTheUnknownCouldChangeIt_data();
    void aRatingIsUncertainWhereTheUnknownCouldChangeIt();
    void theUncertainIsToldLast();
};

void TestRezeptungewissheit::whatIsUnknownMayBeNoPlant()
{
    Rezept rezept = gericht({{u"Linsen"_s, 90}});
    rezept.zutaten << eigenes(10);
    const Wertungsvorschlag vorschlag =
        wertungsvorschlag(Wertung::gicht, gerichtsgroessen(rezept, wissen()));
    QCOMPARE(vorschlag.urteil, u"0"_s);
    QCOMPARE(vorschlag.ungewiss, QList<Groesse>{Groesse::Harnsaeure});
    // Where the group says that it is a plant, it is one.
    rezept.gruppe = u"Hülsenfrüchte"_s;
    QVERIFY(!wertungsvorschlag(Wertung::gicht, gerichtsgroessen(rezept, wissen())).istUnsicher());
}

void TestRezeptungewissheit::moreFibreThanIsKnownMakesTheDishLessRefined()
{
    // 71 g of carbohydrate and 4 g of fibre, and nobody knows that of the own food.
    Rezept rezept = gericht({{u"Grieß"_s, 100}}, 100);
    rezept.zutaten << eigenes(10);
    const Wertungsvorschlag vorschlag =
        wertungsvorschlag(Wertung::diabetes, gerichtsgroessen(rezept, wissen()));
    QCOMPARE(vorschlag.urteil, u"-"_s);
    QVERIFY(vorschlag.ungewiss.contains(Groesse::Ballaststoffe));
}

void TestRezeptungewissheit::whatIsUnknownIsCountedByGrams()
{
    Rezept rezept = gericht({{u"Möhren"_s, 150}}, 100);
    rezept.zutaten << eigenes(50);
    const Gerichtsgroessen befund = gerichtsgroessen(rezept, wissen());
    const auto unbekannt = [&](Groesse groesse) {
        return befund.unbekannt[static_cast<std::size_t>(groesse)];
    };
    for (const Groesse eine :
         {Groesse::FreierZucker, Groesse::Zucker, Groesse::Fruktosezucker, Groesse::Gesaettigt,
          Groesse::Natrium, Groesse::Cholesterin, Groesse::Ballaststoffe, Groesse::Alkohol,
          Groesse::Harnsaeure, Groesse::GesaettigtAnteil, Groesse::KohlenhydrateJeBallaststoff,
          Groesse::FreierZuckerAnteil}) {
        QCOMPARE(unbekannt(eine), 0.25);
    }
    for (const Groesse eine : {Groesse::Energie, Groesse::Fett, Groesse::Kohlenhydrate}) {
        QCOMPARE(unbekannt(eine), 0.0);
    }
}

void TestRezeptungewissheit::aRatingIsUncertainWhereTheUnknownCouldChangeIt_data()
{
    QTest::addColumn<Mengen>("mengen");
    QTest::addColumn<QList<Groesse>>("unbekannte");
    QTest::addColumn<Wertung>("wertung");
    QTest::addColumn<QString>("urteil");
    QTest::addColumn<QList<Groesse>>("ungewiss");
    using enum Groesse;
    const Mengen zuckermoehren = {{u"Zucker"_s, 30}, {u"Möhren"_s, 70}};
    const Mengen sahne = {{u"Sahne"_s, 50}, {u"Möhren"_s, 50}};

    QTest::newRow("nothing is unknown")
        << linsensuppe << QList<Groesse>() << Wertung::uebergewicht << u"0"_s << QList<Groesse>();
    QTest::newRow("few free sugars may be many")
        << Mengen{{u"Möhren"_s, 100}} << QList<Groesse>{FreierZucker} << Wertung::uebergewicht
        << u"+"_s << QList<Groesse>{FreierZucker};
    QTest::newRow("what the rating does not ask for matters not")
        << Mengen{{u"Möhren"_s, 100}} << QList<Groesse>{Natrium, Gesaettigt, Harnsaeure}
        << Wertung::uebergewicht << u"+"_s << QList<Groesse>();
    QTest::newRow("many free sugars stay many")
        << zuckermoehren << QList<Groesse>{FreierZucker, Ballaststoffe} << Wertung::uebergewicht
        << u"-"_s << QList<Groesse>();
    // Saturated: 10.55 of 17.7 g.
    QTest::newRow("much saturated fat is enough")
        << sahne << QList<Groesse>{Gesaettigt, Natrium, FreierZucker} << Wertung::hkk << u"-"_s
        << QList<Groesse>();
    QTest::newRow("unless there is more fat beside it")
        << sahne << QList<Groesse>{Fett} << Wertung::hkk << u"-"_s << QList<Groesse>{Fett};
    QTest::newRow("sodium below its limit may be above")
        << Mengen{{u"Möhren"_s, 100}} << QList<Groesse>{Natrium} << Wertung::hkk << u"+"_s
        << QList<Groesse>{Natrium};
    QTest::newRow("all that could change it is named")
        << Mengen{{u"Möhren"_s, 100}} << QList<Groesse>{Natrium, FreierZucker, Gesaettigt, Energie}
        << Wertung::hkk << u"+"_s << QList<Groesse>{Gesaettigt, FreierZucker, Natrium};
    QTest::newRow("few purines may be many")
        << Mengen{{u"Möhren"_s, 100}} << QList<Groesse>{Harnsaeure} << Wertung::gicht << u"+"_s
        << QList<Groesse>{Harnsaeure};
    QTest::newRow("moderate purines may be many")
        << Mengen{{u"Leber"_s, 20}, {u"Milch"_s, 80}} << QList<Groesse>{Harnsaeure}
        << Wertung::gicht << u"0"_s << QList<Groesse>{Harnsaeure};
    QTest::newRow("many stay many")
        << Mengen{{u"Leber"_s, 100}} << QList<Groesse>{Harnsaeure, Zucker, Alkohol}
        << Wertung::gicht << u"-"_s << QList<Groesse>();
    // 70 g of carbohydrate with 4 g of fibre are refined, but who knows whether there is more.
    QTest::newRow("little fibre may be more")
        << Mengen{{u"Grieß"_s, 100}} << QList<Groesse>{Ballaststoffe} << Wertung::diabetes << u"-"_s
        << QList<Groesse>{Ballaststoffe};
    QTest::newRow("enough fibre stays enough")
        << Mengen{{u"Linsen"_s, 100}} << QList<Groesse>{Ballaststoffe} << Wertung::diabetes
        << u"+"_s << QList<Groesse>();
    QTest::newRow("alcohol makes a difference where it is not drunk")
        << Mengen{{u"Möhren"_s, 100}} << QList<Groesse>{Alkohol} << Wertung::diabetes << u"+"_s
        << QList<Groesse>{Alkohol};
}

void TestRezeptungewissheit::aRatingIsUncertainWhereTheUnknownCouldChangeIt()
{
    QFETCH(const Mengen, mengen);
    QFETCH(const QList<Groesse>, unbekannte);
    QFETCH(const Wertung, wertung);
    QFETCH(const QString, urteil);
    QFETCH(const QList<Groesse>, ungewiss);
    const Wertungsvorschlag vorschlag = wertungsvorschlag(
        wertung, mitUnbekanntem(gerichtsgroessen(gericht(mengen), wissen()), unbekannte));
    QCOMPARE(vorschlag.urteil, urteil);
    QCOMPARE(vorschlag.ungewiss, ungewiss);
    QCOMPARE(vorschlag.istUnsicher(), !ungewiss.isEmpty());
}

void TestRezeptungewissheit::theUncertainIsToldLast()
{
    Rezept rezept = gericht({{u"Möhren"_s, 249}});
    rezept.zutaten << eigenes(1);
    Gerichtsgroessen befund = gerichtsgroessen(rezept, wissen());
    QCOMPARE(
        begruendung(Wertung::uebergewicht, befund, Regelsprache::Deutsch, QLocale::c()).constLast(),
        u"Unsicher, weil nicht von allen Zutaten bekannt: freier Zucker (von weniger als 1\u00a0%)"_s);
    rezept.zutaten[1].gramm = 249;
    befund = gerichtsgroessen(rezept, wissen());
    QCOMPARE(begruendung(Wertung::hkk, befund, Regelsprache::Englisch, QLocale::c()).constLast(),
             u"Uncertain, as not known of all ingredients: saturated fat (of 50\u00a0%), fibre (of "
             u"50\u00a0%), "
             "free sugars (of 50\u00a0%), cholesterol (of 50\u00a0%), sodium (of 50\u00a0%)"_s);
    rezept.zutaten[0].gramm = 0.5;
    befund = gerichtsgroessen(rezept, wissen());
    QVERIFY(begruendung(Wertung::gicht, befund, Regelsprache::Deutsch, QLocale::c())
                .constLast()
                .contains(u"Harnsäure aus Purinen (von 99\u00a0%)"_s));
    rezept.zutaten.removeFirst();
    befund = gerichtsgroessen(rezept, wissen());
    QVERIFY(begruendung(Wertung::gicht, befund, Regelsprache::Deutsch, QLocale::c())
                .constLast()
                .contains(u"Harnsäure aus Purinen (von 100\u00a0%)"_s));
}

QTEST_APPLESS_MAIN(TestRezeptungewissheit)
#include "TestRezeptungewissheit.moc"
