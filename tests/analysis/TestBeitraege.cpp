#include "Beitraege.h"

#include <QTest>

class TestBeitraege : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thoseThatGiveMostStandFirst();
    void equalOnesKeepTheOrderOfTheRows();
    void theSameFoodInSeveralRowsIsOne();
    void aFoodThatHoldsNoneStandsLast();
    void theUnknownStandsApart();
    void aDishIsPartlyUnknown();
    void whereNothingIsKnownNothingHasAShare();
    void rowsWithoutGramsAreLeftOut();
    void foodsOnTheWrongSide_data();
    void foodsOnTheWrongSide();
    void ofTheWrongSideMostGramsStandFirst();
    void aFoodOfNoStoreIsOnNoSide();
};

namespace {

/// A food with so much iron in 100 g.
Speise speise(const char *name, double gramm, float eisen, int ort)
{
    Datenmodul satz;
    satz.setfe(eisen);
    return {QString::fromUtf8(name), satz, gramm, ort};
}

/// A food that is rated so for gout.
Speise bewertet(const char *name, double gramm, const char *gicht, int ort)
{
    Datenmodul satz;
    satz.setgicht(QString::fromUtf8(gicht));
    return {QString::fromUtf8(name), satz, gramm, ort};
}

QStringList namen(const QList<Beitrag> &liste)
{
    QStringList alle;
    for (const Beitrag &einer : liste) {
        alle << einer.schluessel;
    }
    return alle;
}

QStringList namen(const QList<Ungeeignetes> &liste)
{
    QStringList alle;
    for (const Ungeeignetes &eines : liste) {
        alle << eines.schluessel;
    }
    return alle;
}

Beitraege eisen(const Speisen &speisen, const Stoffwissen &wissen = Stoffwissen())
{
    return beitraege(speisen, Kenngroesse::fe, wissen);
}

} // namespace

void TestBeitraege::thoseThatGiveMostStandFirst()
{
    // 1 mg, 3 mg and 4 mg of 8 mg.
    const Beitraege alle =
        eisen({speise("a", 100, 1, 7), speise("b", 300, 1, 8), speise("c", 50, 8, 9)});
    QCOMPARE(alle.summe, (Stoffsumme{8, 0, {}}));
    QCOMPARE(alle.bekannte, (QList<Beitrag>{{QStringLiteral("c"), 50, {4, 0}, 0.5, {9}},
                                            {QStringLiteral("b"), 300, {3, 0}, 0.375, {8}},
                                            {QStringLiteral("a"), 100, {1, 0}, 0.125, {7}}}));
    QVERIFY(alle.unbekannte.isEmpty());
}

void TestBeitraege::equalOnesKeepTheOrderOfTheRows()
{
    const Beitraege alle =
        eisen({speise("z", 100, 1, 0), speise("a", 50, 2, 1), speise("m", 200, 0.5F, 2)});
    QCOMPARE(namen(alle.bekannte),
             (QStringList{QStringLiteral("z"), QStringLiteral("a"), QStringLiteral("m")}));
}

void TestBeitraege::theSameFoodInSeveralRowsIsOne()
{
    // Bread twice: 60 g of 2 mg and 40 g of 2 mg are 2 mg together.
    const Beitraege alle =
        eisen({speise("Brot", 60, 2, 0), speise("Ei", 100, 2, 1), speise("Brot", 40, 2, 5)});
    QCOMPARE(alle.bekannte, (QList<Beitrag>{{QStringLiteral("Brot"), 100, {2, 0}, 0.5, {0, 5}},
                                            {QStringLiteral("Ei"), 100, {2, 0}, 0.5, {1}}}));
}

void TestBeitraege::aFoodThatHoldsNoneStandsLast()
{
    Zusatztabelle tabelle;
    tabelle.insert(QStringLiteral("Zucker"), {.gruppe = &lebensmittelgruppen().front()});
    const Beitraege alle =
        eisen({speise("Zucker", 100, 0, 0), speise("a", 100, 1, 1)}, Stoffwissen(tabelle));
    QCOMPARE(namen(alle.bekannte), (QStringList{QStringLiteral("a"), QStringLiteral("Zucker")}));
    QCOMPARE(alle.bekannte[1].anteil, 0.0);
    QVERIFY(alle.unbekannte.isEmpty());
}

void TestBeitraege::theUnknownStandsApart()
{
    // An own food without iron: nobody knows. It is 100 g of 200 g.
    const Beitraege alle = eisen({speise("Suppe", 100, 0, 3), speise("a", 100, 1, 4)});
    QCOMPARE(alle.summe, (Stoffsumme{1, 0.5, {QStringLiteral("Suppe")}}));
    QCOMPARE(namen(alle.bekannte), QStringList{QStringLiteral("a")});
    QCOMPARE(alle.unbekannte, (QList<Beitrag>{{QStringLiteral("Suppe"), 100, {0, 1}, 0, {3}}}));
}

void TestBeitraege::aDishIsPartlyUnknown()
{
    Rezeptangaben angaben = {};
    angaben[stelle(Kenngroesse::fe)] = {.wert = 2, .unbekannt = 0.25};
    Stoffwissen wissen;
    wissen.setzeRezepte({{QStringLiteral("Suppe"), angaben}});
    // A quarter of each row, so a quarter of both.
    const Beitraege alle = eisen({speise("Suppe", 300, 2, 0), speise("Suppe", 100, 2, 1)}, wissen);
    QCOMPARE(alle.bekannte, (QList<Beitrag>{{QStringLiteral("Suppe"), 400, {8, 0.25}, 1, {0, 1}}}));
}

void TestBeitraege::whereNothingIsKnownNothingHasAShare()
{
    const Beitraege alle = eisen({speise("Suppe", 100, 0, 0)});
    QCOMPARE(alle.summe, (Stoffsumme{0, 1, {QStringLiteral("Suppe")}}));
    QVERIFY(alle.bekannte.isEmpty());
    QCOMPARE(alle.unbekannte[0].anteil, 0.0);
}

void TestBeitraege::rowsWithoutGramsAreLeftOut()
{
    const Beitraege alle = eisen({speise("a", 0, 5, 0), speise("b", -20, 5, 1)});
    QVERIFY(alle.bekannte.isEmpty());
    QVERIFY(alle.unbekannte.isEmpty());
    QCOMPARE(alle.summe, Stoffsumme());
}

void TestBeitraege::foodsOnTheWrongSide_data()
{
    QTest::addColumn<QString>("urteil");
    QTest::addColumn<bool>("falsch");

    QTest::newRow("unsuitable") << QStringLiteral("-") << true;
    QTest::newRow("neutral") << QStringLiteral("0") << false;
    QTest::newRow("suitable") << QStringLiteral("+") << false;
    QTest::newRow("any other text of an own food") << QStringLiteral("--") << false;
    QTest::newRow("none") << QString() << false;
}

void TestBeitraege::foodsOnTheWrongSide()
{
    QFETCH(const QString, urteil);
    QFETCH(const bool, falsch);
    const Speisen speisen = {bewertet("a", 100, urteil.toUtf8().constData(), 3)};
    QCOMPARE(ungeeignete(speisen, Wertung::gicht).size(), falsch ? 1 : 0);
    // It is about gout and nothing else.
    QVERIFY(ungeeignete(speisen, Wertung::diabetes).isEmpty());
}

void TestBeitraege::ofTheWrongSideMostGramsStandFirst()
{
    const Speisen speisen = {bewertet("Leber", 50, "-", 0), bewertet("Brot", 250, "0", 1),
                             bewertet("Hering", 75, "-", 2), bewertet("Leber", 125, "-", 3)};
    // 175 g and 75 g of 500 g.
    QCOMPARE(ungeeignete(speisen, Wertung::gicht),
             (QList<Ungeeignetes>{{QStringLiteral("Leber"), 175, 0.35, {0, 3}},
                                  {QStringLiteral("Hering"), 75, 0.15, {2}}}));
    QCOMPARE(namen(ungeeignete({}, Wertung::gicht)), QStringList());
}

void TestBeitraege::aFoodOfNoStoreIsOnNoSide()
{
    QVERIFY(ungeeignete({{QStringLiteral("fort"), {}, 100}}, Wertung::gicht).isEmpty());
}

QTEST_APPLESS_MAIN(TestBeitraege)
#include "TestBeitraege.moc"
