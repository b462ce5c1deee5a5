// Two kept plans side by side: sums and shares, ratings, points, and which foods differ.

#include "Ablagenvergleich.h"

#include <QLocale>
#include <QTest>

#include <limits>

class TestAblagenvergleich : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QStringLiteral("de_DE"))); }

    void sumsAndSharesStandSideBySide();
    void theCopiesCountAndNotTheNames();
    void foodsWithoutValuesAreTold();
    void withoutARequirementItsSharesAreNotKnown();
    void pointsThatCantBeEarnedMakeNoDifference_data();
    void pointsThatCantBeEarnedMakeNoDifference();
    void sharesOfTheEnergy();
    void ratingsHaveSignWordAndCounts_data();
    void ratingsHaveSignWordAndCounts();
    void pointsAndJudgement();
    void foodsThatDiffer();
    void foodsOfSeveralRowsAreAddedUp();
    void likePlansDifferInNoFood();
    void whatRanOverIsNoNumber();
};

namespace {

constexpr std::int32_t bedarf = 2400; // kcal

/// Per 100 g: 40 kcal of protein, 200 of carbohydrate, and energy of its own that never counts.
Datenmodul brot()
{
    Datenmodul eines;
    eines.setName(QStringLiteral("Brot"));
    eines.setkal(999);
    eines.setprotein(10);
    eines.setkh(50);
    eines.setbs(8);
    eines.setuebergewicht(QStringLiteral("+"));
    return eines;
}

/// 80 % of what a day of 2400 kcal needs, with half the cholesterol that it allows.
Datenmodul tageskost()
{
    Datenmodul alles;
    alles.setprotein(96); // 384 of 480 kcal
    alles.setfett(64);    // 576 of 720 kcal
    alles.setkh(240);     // 960 of 1200 kcal
    alles.setbs(24);
    alles.setchol(100);
    alles.setna(440);
    alles.setka(1600);
    alles.setca(800);
    alles.setph(1120);
    alles.setma(280);
    alles.setfe(9.6F);
    alles.setvita(800);
    alles.setb1(0.96F);
    alles.setb2(1.28F);
    alles.setb6(1.36F);
    alles.setvitc(80);
    for (const auto &eine : wertungen) {
        alles.setWertung(eine.wertung, QStringLiteral("+"));
    }
    return alles;
}

Planposten posten(const char *schluessel, float gramm, const std::optional<Datenmodul> &eintrag)
{
    return {QString::fromUtf8(schluessel), gramm, eintrag};
}

Planablage ablage(const QList<Planposten> &alle)
{
    Planablage eine;
    eine.posten = alle;
    return eine;
}

Vergleichsabschnitt abschnitt(qsizetype stelle, const Ablagenseite &links,
                              const Ablagenseite &rechts)
{
    return ablagenVergleichen(links, rechts).at(stelle);
}

enum Stelle { summen, anteile, bewertungen, lebensmittel };

/// A row of a section, as "caption|left|right|difference" with ordinary blanks; empty when there is
/// none of this caption. What is absent reads "–".
QString zeile(const Vergleichsabschnitt &abschnitt, const char *beschriftung)
{
    for (const Vergleichszeile &eine : abschnitt.zeilen) {
        if (eine.beschriftung == QString::fromUtf8(beschriftung)) {
            QStringList teile;
            for (const QString &text : {eine.links, eine.rechts, eine.unterschied}) {
                teile << (text.isNull() ? QStringLiteral("–") : text);
            }
            return teile.join(u'|').replace(QChar(QChar::Nbsp), u' ');
        }
    }
    return {};
}

QStringList beschriftungen(const Vergleichsabschnitt &abschnitt)
{
    QStringList alle;
    for (const Vergleichszeile &eine : abschnitt.zeilen) {
        alle << eine.beschriftung;
    }
    return alle;
}

QString deutsch(const char *text)
{
    return QString::fromUtf8(text);
}

} // namespace

void TestAblagenvergleich::sumsAndSharesStandSideBySide()
{
    const Ablagenseite links = {ablage({posten("Brot", 200, brot())}), bedarf};
    const Ablagenseite rechts = {ablage({posten("Brot", 300, brot())}), bedarf};
    const Vergleichsabschnitt alle = abschnitt(summen, links, rechts);
    QCOMPARE(alle.titel, deutsch("Summen"));
    QCOMPARE(beschriftungen(alle),
             deutsch("Zahl der Lebensmittel,Menge,Energiebedarf am Tag,Energie,Protein,Fett,"
                     "Kohlenhydrate,Ballaststoffe,Cholesterin,Natrium,Kalium,Calcium,Phosphat,"
                     "Magnesium,Eisen,Vitamin A,Vitamin B1,Vitamin B2,Vitamin B6,Vitamin C")
                 .split(u','));
    QCOMPARE(zeile(alle, "Zahl der Lebensmittel"), deutsch("1|1|0"));
    QCOMPARE(zeile(alle, "Menge"), deutsch("200 g|300 g|+100 g"));
    QCOMPARE(zeile(alle, "Energiebedarf am Tag"), deutsch("2400 kcal|2400 kcal|0 kcal"));
    // 2 · 240 of 2400 kcal are 20 %, 3 · 240 are 30 %.
    QCOMPARE(zeile(alle, "Energie"),
             deutsch("480 kcal, 20,0 % ✗ verfehlt|720 kcal, 30,0 % ≈ knapp daneben|"
                     "+240 kcal, +10,0 %-Punkte"));
    // 80 of 480 kcal are 16 whole per cent, 120 are 25.
    QCOMPARE(zeile(alle, "Protein"), deutsch("20,0 g, 16,0 % ✗ verfehlt|30,0 g, 25,0 % ✗ verfehlt|"
                                             "+10,0 g, +9,0 %-Punkte"));
    // 16 of 30 g are 53.3 %, 24 are 80.
    QCOMPARE(zeile(alle, "Ballaststoffe"),
             deutsch("16,0 g, 53,3 % ≈ knapp daneben|24,0 g, 80,0 % ✓ im Ziel|"
                     "+8,0 g, +26,7 %-Punkte"));
    QCOMPARE(zeile(alle, "Vitamin C"),
             deutsch("0,0 mg, 0,0 % ✗ verfehlt|0,0 mg, 0,0 % ✗ verfehlt|0,0 mg, 0,0 %-Punkte"));
}

void TestAblagenvergleich::theCopiesCountAndNotTheNames()
{
    Datenmodul anderes = brot();
    anderes.setbs(2);
    const Ablagenseite links = {ablage({posten("Brot", 100, brot())}), bedarf};
    const Ablagenseite rechts = {ablage({posten("Brot", 100, anderes)}), bedarf};
    QCOMPARE(zeile(abschnitt(summen, links, rechts), "Ballaststoffe"),
             deutsch("8,0 g, 26,7 % ✗ verfehlt|2,0 g, 6,7 % ✗ verfehlt|-6,0 g, -20,0 %-Punkte"));
}

void TestAblagenvergleich::foodsWithoutValuesAreTold()
{
    const Ablagenseite links = {
        ablage({posten("Brot", 200, brot()), posten("Apfel", 100, {}), posten("Birne", 50, {})}),
        bedarf};
    const Ablagenseite rechts = {ablage({posten("Brot", 200, brot())}), bedarf};
    const Vergleichsabschnitt alle = abschnitt(summen, links, rechts);
    QCOMPARE(zeile(alle, "Zahl der Lebensmittel"), deutsch("3|1|-2"));
    QCOMPARE(zeile(alle, "Lebensmittel ohne Werte"), deutsch("2|0|-2"));
    QCOMPARE(zeile(alle, "Menge"), deutsch("200 g|200 g|0 g"));
    QCOMPARE(zeile(abschnitt(summen, rechts, links), "Lebensmittel ohne Werte"), deutsch("0|2|+2"));
    QCOMPARE(zeile(abschnitt(summen, rechts, rechts), "Lebensmittel ohne Werte"), QString());
}

void TestAblagenvergleich::withoutARequirementItsSharesAreNotKnown()
{
    const Planablage plan = ablage({posten("Brot", 200, brot())});
    const Vergleichsabschnitt alle = abschnitt(summen, {plan, 0}, {plan, bedarf});
    QCOMPARE(zeile(alle, "Energiebedarf am Tag"), deutsch("–|2400 kcal|–"));
    QCOMPARE(zeile(alle, "Energie"), deutsch("480 kcal, –|480 kcal, 20,0 % ✗ verfehlt|0 kcal"));
    QCOMPARE(zeile(alle, "Protein"), deutsch("20,0 g, –|20,0 g, 16,0 % ✗ verfehlt|0,0 g"));
    QCOMPARE(zeile(alle, "Fett"), deutsch("0,0 g, –|0,0 g, 0,0 % ✗ verfehlt|0,0 g"));
    // 400 of 1200 kcal.
    QCOMPARE(zeile(alle, "Kohlenhydrate"),
             deutsch("100,0 g, –|100,0 g, 33,0 % ≈ knapp daneben|0,0 g"));
    // What a day needs of all others does not depend on the client.
    QCOMPARE(zeile(alle, "Ballaststoffe"),
             deutsch("16,0 g, 53,3 % ≈ knapp daneben|16,0 g, 53,3 % ≈ knapp daneben|"
                     "0,0 g, 0,0 %-Punkte"));
}

void TestAblagenvergleich::pointsThatCantBeEarnedMakeNoDifference_data()
{
    QTest::addColumn<int>("links");
    QTest::addColumn<int>("rechts");
    QTest::addColumn<QString>("zeile");
    // One point for the rating, and one for carbohydrate: 400 kcal are 80 % of 500.
    QTest::newRow("both known") << 1000 << 2400
                                << deutsch("2 von 21 Punkten|1 von 21 Punkten|-1 Punkt");
    QTest::newRow("only the left one")
        << 1000 << 0 << deutsch("2 von 21 Punkten|1 von 21 Punkten|–");
    QTest::newRow("only the right one")
        << 0 << 1000 << deutsch("1 von 21 Punkten|2 von 21 Punkten|–");
    QTest::newRow("neither") << 0 << 0 << deutsch("1 von 21 Punkten|1 von 21 Punkten|0 Punkte");
}

void TestAblagenvergleich::pointsThatCantBeEarnedMakeNoDifference()
{
    QFETCH(const int, links);
    QFETCH(const int, rechts);
    const Planablage plan = ablage({posten("Brot", 200, brot())});
    QTEST(::zeile(abschnitt(bewertungen, {plan, links}, {plan, rechts}), "Punkte"), "zeile");
}

void TestAblagenvergleich::sharesOfTheEnergy()
{
    Datenmodul butter;
    butter.setfett(80);
    const Ablagenseite links = {ablage({posten("Brot", 100, brot())}), bedarf};
    // 240 kcal of the bread, and 9 · 26.67 = 240 of the butter.
    const Ablagenseite rechts = {
        ablage({posten("Brot", 100, brot()), posten("Butter", 33.3333F, butter)}), bedarf};
    const Vergleichsabschnitt alle = abschnitt(anteile, links, rechts);
    QCOMPARE(alle.titel, deutsch("Anteile an der Energie"));
    QCOMPARE(beschriftungen(alle), deutsch("Protein,Kohlenhydrate,Fett").split(u','));
    QCOMPARE(zeile(alle, "Protein"), deutsch("17 %|8 %|-9 %-Punkte"));
    QCOMPARE(zeile(alle, "Kohlenhydrate"), deutsch("83 %|42 %|-41 %-Punkte"));
    QCOMPARE(zeile(alle, "Fett"), deutsch("0 %|50 %|+50 %-Punkte"));
    const Ablagenseite leer = {ablage({}), bedarf};
    QCOMPARE(zeile(abschnitt(anteile, leer, links), "Protein"), deutsch("–|17 %|–"));
}

void TestAblagenvergleich::ratingsHaveSignWordAndCounts_data()
{
    QTest::addColumn<QStringList>("links");
    QTest::addColumn<QStringList>("rechts");
    QTest::addColumn<QString>("zeile");
    const auto zeichen = [](const char *texte) {
        return deutsch(texte).split(u' ', Qt::SkipEmptyParts);
    };
    QTest::newRow("suitable and unsuitable")
        << zeichen("+ + - 0") << zeichen("- 0 - -")
        << deutsch("+ geeignet (2 / 1 / 1)|- ungeeignet (0 / 1 / 3)|-2 / 0 / +2");
    QTest::newRow("neutral and the same")
        << zeichen("0") << zeichen("0")
        << deutsch("0 neutral (0 / 1 / 0)|0 neutral (0 / 1 / 0)|0 / 0 / 0");
    QTest::newRow("a tie leaves what led before")
        << zeichen("+ -") << zeichen("- +")
        << deutsch("+ geeignet (1 / 0 / 1)|- ungeeignet (1 / 0 / 1)|0 / 0 / 0");
    QTest::newRow("not rated") << zeichen("") << zeichen("+")
                               << deutsch("–|+ geeignet (1 / 0 / 0)|–");
    QTest::newRow("rated in words of the user's own")
        << zeichen("+") << zeichen("gut") << deutsch("+ geeignet (1 / 0 / 0)|–|–");
}

void TestAblagenvergleich::ratingsHaveSignWordAndCounts()
{
    QFETCH(const QStringList, links);
    QFETCH(const QStringList, rechts);
    const auto plan = [](const QStringList &zeichen) {
        QList<Planposten> alle;
        for (const QString &eines : zeichen) {
            Datenmodul speise;
            speise.setgicht(eines);
            alle << posten("Brot", 100, speise);
        }
        return ablage(alle);
    };
    const Vergleichsabschnitt alle =
        abschnitt(bewertungen, {plan(links), bedarf}, {plan(rechts), bedarf});
    QCOMPARE(alle.titel, deutsch("Bewertungen (geeignet / neutral / ungeeignet)"));
    QCOMPARE(
        beschriftungen(alle),
        deutsch("Übergewicht,Diabetes,Gicht,Herz und Kreislauf,Punkte,Beurteilung").split(u','));
    QTEST(::zeile(alle, "Gicht"), "zeile");
    QCOMPARE(::zeile(alle, "Diabetes"), deutsch("–|–|–"));
}

void TestAblagenvergleich::pointsAndJudgement()
{
    const Ablagenseite ganz = {ablage({posten("Tag", 100, tageskost())}), bedarf};
    const Ablagenseite halb = {ablage({posten("Tag", 50, tageskost())}), bedarf};
    const Ablagenseite leer = {ablage({}), bedarf};
    const Vergleichsabschnitt alle = abschnitt(bewertungen, ganz, halb);
    // 40 % of everything earn none but the points of the ratings.
    QCOMPARE(zeile(alle, "Punkte"), deutsch("21 von 21 Punkten|4 von 21 Punkten|-17 Punkte"));
    QCOMPARE(zeile(alle, "Beurteilung"), deutsch("Ein guter Plan|Ein unausgewogener Plan|–"));
    const Vergleichsabschnitt mitLeerem = abschnitt(bewertungen, leer, ganz);
    QCOMPARE(zeile(mitLeerem, "Punkte"), deutsch("0 von 21 Punkten|21 von 21 Punkten|+21 Punkte"));
    QCOMPARE(zeile(mitLeerem, "Beurteilung"), deutsch("Der Plan ist leer|Ein guter Plan|–"));
}

void TestAblagenvergleich::foodsThatDiffer()
{
    const Ablagenseite links = {ablage({posten("Käse", 30, {}), posten("Brot", 200, brot()),
                                        posten("Apfel", 150.1F, {}), posten("Birne", 80, {})}),
                                bedarf};
    const Ablagenseite rechts = {ablage({posten("Milch", 150, {}), posten("Apfel", 150.3F, {}),
                                         posten("Käse", 30, {}), posten("Brot", 120, brot())}),
                                 bedarf};
    const Vergleichsabschnitt alle = abschnitt(lebensmittel, links, rechts);
    QCOMPARE(alle.titel, deutsch("Andere Lebensmittel und Mengen"));
    QCOMPARE(beschriftungen(alle), deutsch("Brot,Apfel,Birne,Milch").split(u','));
    QCOMPARE(zeile(alle, "Brot"), deutsch("200 g|120 g|-80 g"));
    QCOMPARE(zeile(alle, "Apfel"), deutsch("150,1 g|150,3 g|+0,2 g"));
    QCOMPARE(zeile(alle, "Birne"), deutsch("80 g|nicht im Plan|-80 g"));
    QCOMPARE(zeile(alle, "Milch"), deutsch("nicht im Plan|150 g|+150 g"));
}

void TestAblagenvergleich::foodsOfSeveralRowsAreAddedUp()
{
    const Ablagenseite links = {
        ablage({posten("Brot", 60, brot()), posten("Käse", 30, {}), posten("Brot", 40, brot())}),
        bedarf};
    const Ablagenseite rechts = {ablage({posten("Brot", 100, brot()), posten("Käse", 0, {})}),
                                 bedarf};
    const Vergleichsabschnitt alle = abschnitt(lebensmittel, links, rechts);
    QCOMPARE(beschriftungen(alle), QStringList(deutsch("Käse")));
    QCOMPARE(zeile(alle, "Käse"), deutsch("30 g|0 g|-30 g"));
}

void TestAblagenvergleich::likePlansDifferInNoFood()
{
    const Ablagenseite links = {ablage({posten("Brot", 60, brot()), posten("Käse", 30, {})}), 0};
    const Ablagenseite rechts = {ablage({posten("Käse", 30, {}), posten("Brot", 60, {})}), bedarf};
    const Vergleichsabschnitt alle = abschnitt(lebensmittel, links, rechts);
    QCOMPARE(alle.titel, deutsch("Lebensmittel: in beiden Plänen dieselben Mengen"));
    QVERIFY(alle.zeilen.isEmpty());
}

void TestAblagenvergleich::whatRanOverIsNoNumber()
{
    Datenmodul zuViel;
    zuViel.setprotein(std::numeric_limits<float>::max());
    zuViel.setbs(std::numeric_limits<float>::max());
    const Ablagenseite links = {ablage({posten("Stroh", 1000, zuViel)}), bedarf};
    const Ablagenseite rechts = {ablage({posten("Brot", 200, brot())}), bedarf};
    const Vergleichsabschnitt alle = abschnitt(summen, links, rechts);
    QCOMPARE(zeile(alle, "Protein"), deutsch("- g, –|20,0 g, 16,0 % ✗ verfehlt|–"));
    QCOMPARE(zeile(alle, "Ballaststoffe"), deutsch("- g, –|16,0 g, 53,3 % ≈ knapp daneben|–"));
}

QTEST_APPLESS_MAIN(TestAblagenvergleich)
#include "TestAblagenvergleich.moc"
