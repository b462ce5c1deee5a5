// What the client takes home, on paper.

#include "Handzetteltest.h"

using namespace Qt::StringLiterals;
using Wochenprobe::zeile;

class TestHandzettel : public Handzetteltest
{
    Q_OBJECT

private Q_SLOTS:
    void aDayIsListedMealByMeal();
    void englishIsPrintedFromAGermanScreen();
    void germanIsPrintedFromAnEnglishScreen();
    void figuresStandThereOnlyWhenTheyAreWanted();
    void aDayThatCountsNothingHasNoFigures();
    void whatIsEmptyIsLeftOut();
    void nothingAtAllIsSaid();
    void onlyTheDayThatIsWanted_data();
    void onlyTheDayThatIsWanted();
    void whatWasNotUnderstoodStandsAsItWasTyped();
    void withoutMeasuresAmountsStandAsTheyWereTyped();
    void theLetterheadStandsAtTheTop();
    void withoutALetterheadTheTitleComesFirst();
    void aPrintWithoutAClientNamesNobody();
    void textsAreAsTheyWereTyped();
    void aPrintIsNamedAfterClientAndRecord();
};

namespace {

/// A day with one meal of these rows.
Aufzeichnung einTag(const QList<Mahlzeitzeile> &zeilen)
{
    Aufzeichnung eine = neueAufzeichnung(Aufzeichnungsart::Protokoll, {}, 1);
    eine.tage[0].mahlzeiten[0].zeilen = zeilen;
    return eine;
}

} // namespace

void TestHandzettel::aDayIsListedMealByMeal()
{
    Aufzeichnung eine = Wochenprobe::woche();
    eine.tage = {eine.tage[1]};
    drucke(eine);
    QCOMPARE(m_probe->seiten(), 1);
    QCOMPARE(
        zeilen(),
        QStringList({u"Wochenplan"_s, u"Für Anna Muster, Freitag, 20. November 2026"_s,
                     u"Montag, 23. November 2026"_s,
                     u"Frühstück Roggenbrote, Vollkorn – 2 Scheiben (100 g)"_s,
                     u"Butter – 1 EL (10 g)"_s, u"Kaffee – 1 Tasse (200 g)"_s,
                     u"Vormittag Äpfel (Apfel), roh – 1 Stück (150 g)"_s,
                     u"oder Birnen, roh – 150 g"_s,
                     u"Mittagessen Kartoffeln (Erdäpfel), Pellkartoffeln, neu – 200 g"_s,
                     u"Blumenkohl (Karfiol), gedämpft – 150 g"_s, u"Rapsöl – 1 EL (10 g)"_s,
                     u"Langsam essen"_s, u"Nachmittag Joghurt (Vanillejoghurt) – ½ Tasse (100 g)"_s,
                     u"Abendessen Roggenbrote, Vollkorn – 1 Scheibe (50 g)"_s,
                     u"Tomaten, roh – 1 Stück (150 g)"_s,
                     u"Leitungswasser (Trinkwasser) – 2 Tassen (400 g)"_s,
                     u"Spät Pfefferminztee – 1 Tasse (200 g)"_s, u"Schwimmen am Abend"_s}));
    // All foods begin at one place, an alternative further to the right.
    QCOMPARE(wort(u"Butter"_s).x, wort(u"Rapsöl"_s).x);
    QVERIFY(wort(u"oder"_s).x > wort(u"Butter"_s).x + 5);
    QVERIFY(wort(u"Wochenplan"_s).groesse > 1.5 * wort(u"Butter"_s).groesse);
}

void TestHandzettel::englishIsPrintedFromAGermanScreen()
{
    Aufzeichnung eine = Wochenprobe::woche();
    eine.tage = eine.tage.first(1);
    eine.tage[0].mahlzeiten[5].zeilen = {zeile("Äpfel (Apfel), roh", "62,5", 62.5F)};
    drucke(eine, {.sprache = Regelsprache::Englisch});
    const QString text = alles();
    for (const QString &teil :
         {u"Week plan\nFor Anna Muster, Friday, 20 November 2026\nMonday, 23 November 2026"_s,
          u"Breakfast "_s, u"– 2 slices (100 g)"_s, u"– 1 tbsp (10 g)"_s,
          u"Morning Apples, raw – 1 piece (150 g)\nor "_s,
          u"Lunch Potatoes (new potatoes), boiled, with skin – 200 g"_s, u"– ½ cup (100 g)"_s,
          u"Late Apples, raw – 62.5 g"_s}) {
        QVERIFY2(text.contains(teil), qPrintable(teil + u"\n\n"_s + text));
    }
    QCOMPARE(m_probe->zeilen(1).last(), u"Friday, 20 November 2026 Page 1 of 1 Mahlberg"_s);
    QCOMPARE(m_probe->name, u"Anna Muster, Week plan 2026-11-20 Handout"_s);
    // The windows go on in German.
    QCOMPARE(mahlzeitname(u"Spät"_s), u"Spät"_s);
    QCOMPARE(QLocale().toString(0.5), u"0,5"_s);
}

void TestHandzettel::germanIsPrintedFromAnEnglishScreen()
{
    m_sprache.reset();
    m_sprache = std::make_unique<Probesprache>(QLocale::English);
    Aufzeichnung eine =
        einTag({zeile("Äpfel (Apfel), roh", "62.5", 62.5F), zeile("Butter", "2 tbsp", 20)});
    drucke(eine, {.sprache = Regelsprache::Deutsch});
    QCOMPARE(
        zeilen(),
        QStringList({u"Protokoll"_s, u"Für Anna Muster, Freitag, 20. November 2026"_s, u"Tag 1"_s,
                     u"Frühstück Äpfel (Apfel), roh – 62,5 g"_s, u"Butter – 2 EL (20 g)"_s}));
    QCOMPARE(m_probe->zeilen(1).last(), u"Freitag, 20. November 2026 Seite 1 von 1 Mahlberg"_s);
    QCOMPARE(m_probe->name, u"Anna Muster, Protokoll 2026-11-20 Handzettel"_s);
}

/// The rows of a day weigh 100 + 10 + 200 + 150 + 200 + 150 + 10 + 100 + 50 + 150 + 400 + 200 =
/// 1720 g without the alternative; each 100 g have 200 kcal, 10 g of protein, 4 g of fat and 30 g
/// of carbohydrate, so it is 3440 kcal, 172 g, 68.8 g and 516 g.
void TestHandzettel::figuresStandThereOnlyWhenTheyAreWanted()
{
    Aufzeichnung eine = Wochenprobe::woche();
    eine.tage = eine.tage.first(1);
    const QString werte =
        u"Energie 3440 kcal, Protein 172 g, Fett 69 g, Kohlenhydrate 516 g, Ballaststoffe 0 g"_s;
    drucke(eine);
    QVERIFY(!alles().contains(u"kcal"_s));
    QVERIFY(!alles().contains(u"Protein"_s));
    drucke(eine, {.zahlen = true});
    QCOMPARE(zeilen().last(), werte);
    drucke(eine, {.zahlen = true, .sprache = Regelsprache::Englisch});
    QCOMPARE(zeilen().last(),
             u"Energy 3440 kcal, Protein 172 g, Fat 69 g, Carbohydrate 516 g, Fibre 0 g"_s);
}

void TestHandzettel::aDayThatCountsNothingHasNoFigures()
{
    drucke(einTag({{.text = u"Omas Auflauf"_s, .angabe = u"ein Teller"_s}}), {.zahlen = true});
    QCOMPARE(zeilen().last(), u"Frühstück Omas Auflauf – ein Teller"_s);
}

void TestHandzettel::whatIsEmptyIsLeftOut()
{
    Aufzeichnung eine = neueAufzeichnung(Aufzeichnungsart::Protokoll, {}, 4);
    eine.tage[1].mahlzeiten[2].zeilen = {zeile("Butter", "10", 10), {}, {.angabe = u" "_s}};
    eine.tage[1].mahlzeiten[3].notiz = u" \n "_s;
    eine.tage[2].notiz = u"  "_s;
    eine.tage[3].mahlzeiten[0].notiz = u"Nichts gegessen"_s;
    drucke(eine);
    QCOMPARE(zeilen().mid(2), QStringList({u"Tag 2"_s, u"Mittagessen Butter – 10 g"_s, u"Tag 4"_s,
                                           u"Frühstück Nichts gegessen"_s}));
    eine.tage[2].notiz = u"Krank"_s;
    drucke(eine);
    QVERIFY(alles().contains(u"Tag 3\nKrank\nTag 4"_s));
}

void TestHandzettel::nothingAtAllIsSaid()
{
    drucke(neueAufzeichnung(Aufzeichnungsart::Wochenplan, {}, 7));
    QCOMPARE(m_probe->seiten(), 1);
    QCOMPARE(zeilen().mid(2), QStringList({u"Noch nichts aufgezeichnet."_s}));
}

void TestHandzettel::onlyTheDayThatIsWanted_data()
{
    QTest::addColumn<int>("tag");
    QTest::addColumn<QString>("name");
    QTest::newRow("first") << 0 << u"Montag, 23. November 2026"_s;
    QTest::newRow("last") << 6 << u"Sonntag, 29. November 2026"_s;
    QTest::newRow("none such") << 7 << u"Noch nichts aufgezeichnet."_s;
    QTest::newRow("before the first") << -1 << u"Noch nichts aufgezeichnet."_s;
}

void TestHandzettel::onlyTheDayThatIsWanted()
{
    QFETCH(const int, tag);
    QFETCH(const QString, name);
    drucke(Wochenprobe::woche(), {.tag = tag});
    QCOMPARE(zeilen().value(2), name);
    QCOMPARE(alles().count(u"Pfefferminztee"_s), tag >= 0 && tag < 7 ? 1 : 0);
}

void TestHandzettel::whatWasNotUnderstoodStandsAsItWasTyped()
{
    Mahlzeitzeile ohneMenge = zeile("Butter", "ein Klecks", 10);
    ohneMenge.gramm.reset();
    Mahlzeitzeile wegesMass = zeile("Butter", "2 Kellen", 250);
    drucke(einTag({{.text = u"Omas Auflauf"_s, .angabe = u"ein Teller"_s},
                   ohneMenge,
                   wegesMass,
                   {.text = u"Etwas Brot"_s},
                   {.text = u"Keks"_s, .angabe = u"2"_s, .oder = true}}));
    QCOMPARE(zeilen().mid(3),
             QStringList({u"Frühstück Omas Auflauf – ein Teller"_s, u"Butter – ein Klecks"_s,
                          u"Butter – 2 Kellen (250 g)"_s, u"Etwas Brot"_s, u"oder Keks – 2"_s}));
}

void TestHandzettel::withoutMeasuresAmountsStandAsTheyWereTyped()
{
    m_angaben.masse = {};
    drucke(einTag({zeile("Butter", "1 EL", 10)}));
    QCOMPARE(zeilen().last(), u"Frühstück Butter – 1 EL (10 g)"_s);
}

void TestHandzettel::theLetterheadStandsAtTheTop()
{
    m_angaben.briefkopf.name = u"Praxis Musterfrau"_s;
    m_angaben.briefkopf.anschrift = QStringList({u"Hauptstraße 12"_s, u"12345 Musterstadt"_s});
    drucke(einTag({zeile("Butter", "10", 10)}));
    QCOMPARE(zeilen().first(4), QStringList({u"Praxis Musterfrau"_s, u"Hauptstraße 12"_s,
                                             u"12345 Musterstadt"_s, u"Protokoll"_s}));
    QCOMPARE(m_probe->bilder(), 0);
    m_angaben.briefkopf.logo = QImage(400, 200, QImage::Format_RGB32);
    m_angaben.briefkopf.logo.fill(Qt::red);
    drucke(einTag({zeile("Butter", "10", 10)}));
    QVERIFY(m_probe->bilder() >= 1);
    // 400 x 200 in 170 x 56 points is 112 x 56, at the right margin of 36 points: 447 to 559.
    const QImage bild = m_probe->bild(1, 1);
    QVERIFY(bild.pixelColor(450, 60).red() > 250 && bild.pixelColor(450, 60).green() < 5);
    QVERIFY(bild.pixelColor(556, 90).red() > 250 && bild.pixelColor(556, 90).green() < 5);
    QCOMPARE(bild.pixelColor(443, 60), QColor(Qt::white));
    QCOMPARE(bild.pixelColor(562, 60), QColor(Qt::white));
    // What comes below it begins below the picture, though the address is short.
    QVERIFY(wort(u"Protokoll"_s).grundlinie > 40 + 56 + 20);
}

void TestHandzettel::withoutALetterheadTheTitleComesFirst()
{
    m_angaben.briefkopf.logoFehlt = true;
    drucke(einTag({zeile("Butter", "10", 10)}));
    QCOMPARE(zeilen().first(), u"Protokoll"_s);
    QCOMPARE(m_probe->bilder(), 0);
}

void TestHandzettel::aPrintWithoutAClientNamesNobody()
{
    m_angaben.klient.clear();
    drucke(einTag({zeile("Butter", "10", 10)}));
    QCOMPARE(zeilen().first(2), QStringList({u"Protokoll"_s, u"Freitag, 20. November 2026"_s}));
    QCOMPARE(m_probe->name, u"Protokoll 2026-11-20 Handzettel"_s);
}

void TestHandzettel::textsAreAsTheyWereTyped()
{
    m_angaben.klient = u"<b>Anna</b> & %2"_s;
    Aufzeichnung eine = einTag({{.text = u"<i>Brot</i> %1 &amp;"_s, .angabe = u"%2 Teller"_s}});
    eine.titel = u"%1 <u>Plan</u>"_s;
    eine.mahlzeiten[0] = u"%1 & <b>"_s;
    eine.tage[0].mahlzeiten[0].notiz = u"eins\nzwei &lt;"_s;
    drucke(eine);
    QCOMPARE(zeilen(), QStringList({u"%1 <u>Plan</u>"_s,
                                    u"Für <b>Anna</b> & %2, Freitag, 20. November 2026"_s,
                                    u"Tag 1"_s, u"%1 & <b> <i>Brot</i> %1 &amp; – %2 Teller"_s,
                                    u"eins"_s, u"zwei &lt;"_s}));
}

void TestHandzettel::aPrintIsNamedAfterClientAndRecord()
{
    Aufzeichnung eine = einTag({zeile("Butter", "10", 10)});
    eine.titel = u"Erste Woche"_s;
    drucke(eine);
    QCOMPARE(m_probe->titel, u"Anna Muster, Erste Woche"_s);
    QCOMPARE(m_probe->name, u"Anna Muster, Erste Woche 2026-11-20 Handzettel"_s);
}

QTEST_MAIN(TestHandzettel)
#include "TestHandzettel.moc"
