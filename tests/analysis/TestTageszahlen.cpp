// The further figures of whole days, worked out by hand from the shipped tables, and what is not
// known of them.

#include "Archivdatei.h"
#include "Tageszahlprobe.h"
#include "Zusatzquelle.h"

#include <QTest>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;
using enum Tagesgroesse;
using enum Grenzurteil;
using Tageszahlprobe::urteile;
using Tageszahlprobe::zahl;

namespace {

/// What is expected of a figure.
struct Soll
{
    Tagesgroesse groesse;
    std::optional<double> wert; ///< to six digits that count, which is what the records hold
    QList<Grenzurteil> urteile;
};

bool gleich(std::optional<double> ist, std::optional<double> soll)
{
    return ist.has_value() == soll.has_value() &&
           (!ist || std::abs(*ist - *soll) <= 1e-6 * std::abs(*soll));
}

void vergleiche(const QList<Tageszahl> &zahlen, const QList<Soll> &soll)
{
    for (const Soll &eine : soll) {
        const Tageszahl &ist = zahl(zahlen, eine.groesse);
        QVERIFY2(gleich(ist.wert, eine.wert),
                 qPrintable(u"%1: %2"_s.arg(nameVon(eine.groesse)).arg(ist.wert.value_or(-1))));
        QVERIFY2(urteile(ist) == eine.urteile, beschreibung(eine.groesse).kennung);
    }
}

/// The bread units of the meals: their names and figures.
QList<std::pair<QString, double>> mahlzeiten(const QList<Tageszahl> &zahlen)
{
    QList<std::pair<QString, double>> liste;
    for (const Tageszahl &eine : zahlen) {
        if (!eine.mahlzeit.isNull()) {
            liste << std::pair(eine.mahlzeit, eine.wert.value_or(-1));
        }
    }
    return liste;
}

} // namespace

class TestTageszahlen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aPregnantWomansDay();
    void anOldMansDayWithGout();
    void aBoysDay();
    void everyFigureStandsInItsPlace();
    void nothingKnownIsNoFigure();
    void anOwnFoodIsNeitherDrinkNorFood();
    void aFoodWithoutARecordHasNoEnergyAndNoWeight();
    void aPartOfTheEnergyNeedsEnergy();
    void withSomeEnergyUnknownAPartIsOpen();
    void aDishThatIsKnownInPartCounts();
    void freeSugarsAreThoseBeyondTheGroupsOwn_data();
    void freeSugarsAreThoseBeyondTheGroupsOwn();
    void aPartOfADayIsNotMeasured();
    void noFoodsHaveNoFigures();
    void amountsThatAreNoneCountNothing();

private:
    Speise speise(const char *name, double gramm) const;
    QList<Tageszahl> zahlen(const Tagesangaben &angaben) const
    {
        return tageszahlen(angaben, m_quelle.wissen());
    }

    Zusatzquelle m_quelle{u":/Zusatzwerte.csv"_s};
    Lebensmittelverzeichnis m_lebensmittel;
};

void TestTageszahlen::initTestCase()
{
    m_lebensmittel = Archivdatei::lesen(u":/DatabaseIII.daten"_s).archiv.verzeichnis;
    QCOMPARE(m_lebensmittel.size(), 1016);
    QCOMPARE(m_quelle.hindernis(), QString());
}

Speise TestTageszahlen::speise(const char *name, double gramm) const
{
    const QString schluessel = QString::fromUtf8(name);
    if (!m_lebensmittel.contains(schluessel)) {
        qFatal("There is no food \"%s\"", name);
    }
    return {schluessel, m_lebensmittel.value(schluessel), gramm};
}

void TestTageszahlen::aPregnantWomansDay()
{
    const Speisen morgens = {
        speise("Haferflocken", 60), speise("Milch, 3,5 % Fett (Vollmilch, H-Milch)", 200),
        speise("Äpfel (Apfel), roh", 150), speise("Ahornsirup", 20), speise("Orangensaft", 200)};
    const Speisen mittags = {speise("Kartoffeln (Erdäpfel, Erdapfel), Salzkartoffeln", 200),
                             speise("Lachse (Zuchtlachs, Lachsfilet), gedämpft", 120),
                             speise("Brokkoli (Broccoli), gedämpft", 200),
                             speise("Leitungswasser (Trinkwasser)", 1200)};
    const Speisen abends = {speise("Weizenvollkornbrote", 100), speise("Butter", 10),
                            speise("Joghurt (Naturjoghurts), natur", 150)};
    const auto ist = zahlen(
        {.speisen = morgens + mittags + abends,
         .mahlzeiten = {{u"Morgens"_s, morgens}, {u"Mittags"_s, mittags}, {u"Abends"_s, abends}},
         .person = {.geschlecht = Referenzgeschlecht::Frau,
                    .alter = 28,
                    .zustand = Referenzzustand::Schwanger}});
    // In the order of the rows; what holds nothing is left out.
    vergleiche(
        ist,
        {// 60 + 21.75 + 9.4 + 36 + 256.8 + 150 + 45 + 6.15 mg; the syrup has no figure
         {Purine, 585.1, {Keines, Keines}},
         // 35.7 + 10 + 17.4 + 13.44 + 19.2 + 31.2 + 5.8 + 38.3 + 0.07 + 6.75 = 177.86 g, / 12
         {Broteinheiten, 14.82166667, {}},
         {AlkoholJeWoche, 0, {Gehalten}},
         // 5.22 + 175.6 + 128.1 + 6.42 + 176.4 + 160.4 + 80.88 + 180.8 + 1200 + 45.5 + 1.64 +
         // 128.4 ml: less than 2300
         {Wasser, 2289.36, {Verfehlt}},
         {WasserGetraenke, 1376.4, {}}, // 176.4 + 1200
         {WasserSpeisen, 912.96, {}},   // the rest
                                      // 11.4 + 76 + 2.25 + 2.2 + 9.6 + 1.8 + 73.2 + 19.6 + 12 + 580
                                      // + 73.5 = 861.55 mg of sodium, times 2.5
         {Salz, 2.153875, {Gehalten, Gehalten}},
         // 228.6 + 130 + 78 + 54.2 + 150 + 240 + 70 + 213 + 74.6 + 99 = 1337.4 kcal in 1210 g
         {Energiedichte, 110.5289256, {Gehalten}},
         // 0.54 + 4 + 0.15 + 0.2 + 2.4 + 0.2 + 0.2 + 4.94 + 3.3 = 15.93 g, times 9, in 1421.4 kcal
         {Gesaettigt, 10.08653440, {Verfehlt}},
         // 0.6 + 10 + 17.25 + 11.72 + 19.2 + 1.4 + 3.4 + 0.7 + 0.06 + 6.75 = 71.08 g, times 4
         {Zucker, 20.00281413, {}},
         // without fruit, vegetables and milk: 0.6 + 11.72 + 19.2 + 0.7 + 0.06 = 32.28 g
         {FreierZucker, 9.084001688, {Gehalten}}});
    const Tageszahl &purine = zahl(ist, Purine);
    // 20 g of 2610 g; a low class: up to 50 mg in 100 g, so up to 10 mg.
    QVERIFY(gleich(purine.unbekannt, 20.0 / 2610));
    QCOMPARE(purine.unbekannte, QStringList{u"Ahornsirup"_s});
    QVERIFY(gleich(purine.hoechstens, 595.1));
    const auto be = mahlzeiten(ist);
    QCOMPARE(be.size(), 3);
    // 35.7 + 10 + 17.4 + 13.44 + 19.2 = 95.74 g; 31.2 + 5.8 = 37 g; 38.3 + 0.07 + 6.75 = 45.12 g
    QCOMPARE(be[0].first, u"Morgens"_s);
    QVERIFY(gleich(be[0].second, 95.74 / 12));
    QVERIFY(gleich(be[1].second, 37.0 / 12));
    QVERIFY(gleich(be[2].second, 45.12 / 12));
}

void TestTageszahlen::anOldMansDayWithGout()
{
    const auto ist = zahlen(
        {.speisen = {speise("Brötchen (Semmeln, Schrippen, Wecken), weiß", 100),
                     speise("Leberwurst (Leberwürste)", 40), speise("Butter", 20),
                     speise("Kaffee, schwarz, ungezuckert", 300),
                     speise("Schweinebraten (Schweineschulter), durchgebraten", 200),
                     speise("Kartoffeln (Erdäpfel, Erdapfel), Salzkartoffeln", 250),
                     speise("Sauerkraut", 150), speise("Bier (helle Biere, Pils, Lager)", 1000),
                     speise("Bauernbrote (Mischbrot, Graubrot)", 100),
                     speise("Leitungswasser (Trinkwasser)", 500)},
         .person = {.geschlecht = Referenzgeschlecht::Mann, .alter = 67},
         .gicht = true});
    vergleiche(
        ist,
        {// 33 + 66.88 + 292 + 45 + 24 + 164 + 45 mg; the coffee has no figure
         {Purine, 669.88, {Verfehlt, Verfehlt}},
         // 48.5 + 0.2 + 0.14 + 0.9 + 39 + 2.55 + 31 + 44.3 = 166.59 g, / 12
         {Broteinheiten, 13.8825, {}},
         {AlkoholJeWoche,
          280,
          {Verfehlt}}, // 40 g, seven times
                       // 39.2 + 24.2 + 3.28 + 298.8 + 114.8 + 200.5 + 137.1 + 919 + 40.4 + 500 ml
         {Wasser, 2277.28, {Verfehlt}},
         {WasserGetraenke, 1717.8, {}}, // 298.8 + 919 + 500
         {WasserSpeisen, 559.48, {}},
         // 650 + 344 + 3.9 + 166 + 2.25 + 825 + 19 + 710 + 5 = 2725.15 mg of sodium, times 2.5
         {Salz, 6.812875, {Verfehlt, Verfehlt}},
         // 245 + 101.2 + 149.2 + 442 + 187.5 + 28.5 + 242 = 1395.4 kcal in 860 g
         {Energiedichte, 162.2558140, {Verfehlt}},
         // 0.2 + 2.88 + 9.88 + 4.2 + 0.15 + 0.7 = 18.01 g, times 9, in 1821.4 kcal
         {Gesaettigt, 8.899198419, {Gehalten}},
         // 0.4 + 0.12 + 0.12 + 1.75 + 22 + 2.4 = 26.79 g, times 4
         {Zucker, 5.883386406, {}},
         {FreierZucker, 5.499066652, {Gehalten}}}); // less the potatoes' 1.75 g
    QCOMPARE(zahl(ist, Purine).unbekannte, QStringList{u"Kaffee, schwarz, ungezuckert"_s});
    QVERIFY(gleich(zahl(ist, Purine).unbekannt, 300.0 / 2660));
    QVERIFY(mahlzeiten(ist).isEmpty());
}

void TestTageszahlen::aBoysDay()
{
    const auto ist = zahlen(
        {.speisen = {speise("Cornflakes (Maisflocken)", 60),
                     speise("Milch, 3,5 % Fett (Vollmilch, H-Milch)", 250),
                     speise("Bananen, roh", 120), speise("Toastbrote (Buttertoast), weiß", 60),
                     speise("Nuss-Nougat-Creme (Nussnougatcreme, Schokocreme)", 30),
                     speise("Nudeln (Pasta, Spaghetti), ohne Ei, gekocht", 250),
                     speise("Bolognesesoße (Hackfleischsoße)", 150),
                     speise("Cola (Colas), gezuckert", 500),
                     speise("Joghurt (Fruchtjoghurts u. a.), gezuckert", 150),
                     speise("Milchschokolade (Vollmilchschokoladen)", 50),
                     speise("Leitungswasser (Trinkwasser)", 500)},
         .person = {.geschlecht = Referenzgeschlecht::Mann, .alter = 12}});
    vergleiche(
        ist,
        {// 0.66 + 36.36 + 16.2 + 2.94 + 35 + 42.9 + 50 + 5.4 + 4.75 mg
         {Purine, 194.21, {Keines, Keines}},
         // 48.9 + 12.5 + 23.64 + 27.42 + 16.77 + 78 + 12.45 + 50 + 22.05 + 28.45 = 320.18 g, / 12
         {Broteinheiten, 26.68166667, {}},
         {AlkoholJeWoche, 0, {Gehalten}},
         // 3.18 + 219.5 + 90.96 + 20.1 + 0.84 + 151.25 + 121.35 + 445 + 116.55 + 0.65 + 500 ml
         {Wasser, 1669.38, {Verfehlt}},
         {WasserGetraenke, 945, {}}, // 445 + 500
         {WasserSpeisen, 724.38, {}},
         // 240 + 95 + 324 + 14.1 + 1050 + 330 + 45 + 64.5 + 95 + 5 = 2262.6 mg, times 2.5
         {Salz, 5.6565, {Verfehlt}},
         // 225.6 + 162.5 + 108 + 189.6 + 164.7 + 395 + 144 + 157.5 + 268.5 = 1815.4 kcal in 1120 g
         {Energiedichte, 162.0892857, {}},
         // 0.12 + 5 + 0.12 + 3.54 + 3.78 + 0.25 + 2.1 + 3 + 9.65 = 27.56 g, times 9, in 2015.4
         {Gesaettigt, 12.30723430, {Verfehlt}},
         // 3 + 12.5 + 18.72 + 1.62 + 16.35 + 0.5 + 3.9 + 50 + 20.7 + 27.6 = 154.89 g, times 4
         {Zucker, 30.74129205, {}},
         // no milk, no banana, the yoghurt less 9 g: 3 + 1.62 + 16.35 + 0.5 + 3.9 + 50 + 11.7
         // + 27.6
         {FreierZucker, 22.75875757, {Verfehlt}}});
    QCOMPARE(zahl(ist, Energiedichte).mangel, Grenzmangel::AlterAusserhalb);
    for (const Tageszahl &eine : ist) {
        QCOMPARE(eine.unbekannt, 0.0);
        QVERIFY(eine.unbekannte.isEmpty());
    }
}

void TestTageszahlen::everyFigureStandsInItsPlace()
{
    const Speisen brot = {speise("Weizenvollkornbrote", 100)};
    QList<Tagesgroesse> folge;
    for (const Tageszahl &eine : zahlen({.speisen = brot, .mahlzeiten = {{u"Abends"_s, brot}}})) {
        folge << eine.groesse;
    }
    QCOMPARE(folge, (QList<Tagesgroesse>{Purine, Broteinheiten, Broteinheiten, AlkoholJeWoche,
                                         Wasser, WasserGetraenke, WasserSpeisen, Salz,
                                         Energiedichte, Gesaettigt, Zucker, FreierZucker}));
    QCOMPARE(zahl(zahlen({.speisen = brot}), Broteinheiten).mangel,
             Grenzmangel::NichtVeroeffentlicht);
}

void TestTageszahlen::nothingKnownIsNoFigure()
{
    Datenmodul eigenes;
    eigenes.setkal(250);
    eigenes.setkh(24);
    const auto ist = zahlen({.speisen = {{u"Hausbrot"_s, eigenes, 50}},
                             .person = {.geschlecht = Referenzgeschlecht::Mann, .alter = 40},
                             .gicht = true});
    QCOMPARE(zahl(ist, Broteinheiten).wert, std::optional(1.0)); // 12 g
    for (const Tageszahl &eine : ist) {
        if (eine.groesse != Broteinheiten) {
            QVERIFY2(!eine.wert, beschreibung(eine.groesse).kennung);
            QCOMPARE(eine.unbekannt, 1.0);
            QCOMPARE(eine.unbekannte, QStringList{u"Hausbrot"_s});
            for (const Grenzvergleich &grenze : eine.grenzen) {
                QCOMPARE(grenze.urteil, Keines);
            }
        }
    }
}

void TestTageszahlen::anOwnFoodIsNeitherDrinkNorFood()
{
    Datenmodul eigenes;
    eigenes.setkal(250);
    const auto ist = zahlen({.speisen = {speise("Leitungswasser (Trinkwasser)", 200),
                                         speise("Weizenvollkornbrote", 100),
                                         {u"Hausbrot"_s, eigenes, 100}}});
    // Of 400 g, 100 g; bread of 213 kcal with 45.5 g of water.
    QCOMPARE(zahl(ist, WasserGetraenke).wert, std::optional(200.0));
    QCOMPARE(zahl(ist, WasserSpeisen).wert, std::optional(45.5));
    QVERIFY(gleich(zahl(ist, Energiedichte).wert, 213));
    for (const Tagesgroesse groesse : {WasserGetraenke, WasserSpeisen, Energiedichte}) {
        QCOMPARE(zahl(ist, groesse).unbekannt, 0.25);
        QCOMPARE(zahl(ist, groesse).unbekannte, QStringList{u"Hausbrot"_s});
    }
}

void TestTageszahlen::aFoodWithoutARecordHasNoEnergyAndNoWeight()
{
    const auto ist =
        zahlen({.speisen = {speise("Weizenvollkornbrote", 100), {u"Butter"_s, std::nullopt, 100}}});
    QVERIFY(gleich(zahl(ist, Energiedichte).wert, 213));
    QCOMPARE(zahl(ist, Energiedichte).unbekannt, 0.5);
}

void TestTageszahlen::aPartOfTheEnergyNeedsEnergy()
{
    const auto ist = zahlen({.speisen = {speise("Leitungswasser (Trinkwasser)", 200)}});
    for (const Tagesgroesse groesse : {Gesaettigt, Zucker, FreierZucker, Energiedichte}) {
        QVERIFY2(!zahl(ist, groesse).wert, beschreibung(groesse).kennung);
        QCOMPARE(zahl(ist, groesse).unbekannt, 0.0);
    }
}

void TestTageszahlen::withSomeEnergyUnknownAPartIsOpen()
{
    // 49.4 g in 746 kcal are 60 percent, but the other food may be all the energy.
    const auto ist = zahlen({.speisen = {speise("Butter", 100), {u"fort"_s, std::nullopt, 500}}});
    const Tageszahl &eine = zahl(ist, Gesaettigt);
    QVERIFY(gleich(eine.wert, 49.4 * 900 / 746));
    QCOMPARE(urteile(eine), QList<Grenzurteil>{Offen});
    QCOMPARE(eine.unbekannte, QStringList{u"fort"_s});
}

void TestTageszahlen::aDishThatIsKnownInPartCounts()
{
    Stoffwissen wissen;
    Rezeptangaben angaben;
    angaben.fill({.wert = 0, .unbekannt = 1});
    angaben[stelle(Kenngroesse::wasser)] = {.wert = 60, .unbekannt = 0.25};
    wissen.setzeRezepte({{u"Eintopf"_s, angaben}});
    const auto ist = tageszahlen({.speisen = {{u"Eintopf"_s, Datenmodul(), 400}}}, wissen);
    QCOMPARE(zahl(ist, Wasser).wert, std::optional(240.0));
    QCOMPARE(zahl(ist, Wasser).unbekannt, 0.25);
    QVERIFY(!zahl(ist, WasserSpeisen).wert);
}

void TestTageszahlen::freeSugarsAreThoseBeyondTheGroupsOwn_data()
{
    QTest::addColumn<QString>("gruppe");
    QTest::addColumn<double>("zucker");
    QTest::addColumn<double>("verzehrfertig");
    QTest::addColumn<double>("prozent");
    // 100 g with 400 kcal, so that a gram of sugars is one percent.
    QTest::newRow("all of a sweet") << u"Zucker und Süßwaren"_s << 12.0 << 100.0 << 12.0;
    QTest::newRow("none of fruit") << u"Obst"_s << 12.0 << 100.0 << 0.0;
    QTest::newRow("of milk what is over 5 g") << u"Milch und Sahne"_s << 12.0 << 100.0 << 7.0;
    QTest::newRow("of milk never less than none") << u"Milch und Sahne"_s << 4.0 << 100.0 << 0.0;
    QTest::newRow("of a powder for 200 g of milk what is over 10 g")
        << u"Milch und Sahne"_s << 12.0 << 200.0 << 2.0;
}

void TestTageszahlen::freeSugarsAreThoseBeyondTheGroupsOwn()
{
    QFETCH(const QString, gruppe);
    QFETCH(const double, zucker);
    QFETCH(const double, verzehrfertig);
    QFETCH(const double, prozent);
    Zusatzwerte werte;
    werte.gruppe = lebensmittelgruppe(gruppe);
    werte.zucker = zucker;
    werte.verzehrfertig = verzehrfertig;
    Datenmodul satz;
    satz.setkal(400);
    const auto ist =
        tageszahlen({.speisen = {{u"a"_s, satz, 100}}}, Stoffwissen({{u"a"_s, werte}}));
    QCOMPARE(zahl(ist, FreierZucker).wert, std::optional(prozent));
    QCOMPARE(zahl(ist, Zucker).wert, std::optional(zucker));
}

void TestTageszahlen::aPartOfADayIsNotMeasured()
{
    const auto ist = zahlen({.speisen = {speise("Bier (helle Biere, Pils, Lager)", 500)},
                             .ganzerTag = false,
                             .person = {.geschlecht = Referenzgeschlecht::Mann, .alter = 40},
                             .gicht = true});
    QVERIFY(gleich(zahl(ist, Alkohol).wert, 20));        // 4 g in 100 g
    QCOMPARE(zahl(ist, AlkoholJeWoche).groesse, Purine); // it is not there
    for (const Tageszahl &eine : ist) {
        for (const Grenzvergleich &grenze : eine.grenzen) {
            QCOMPARE(grenze.urteil, Keines);
        }
    }
    QCOMPARE(zahl(ist, Wasser).grenzen.size(), 1);
}

void TestTageszahlen::noFoodsHaveNoFigures()
{
    for (const Tageszahl &eine : zahlen({})) {
        const bool anteil = eine.groesse >= Energiedichte;
        QCOMPARE(eine.wert, anteil ? std::nullopt : std::optional(0.0));
        QCOMPARE(eine.unbekannt, 0.0);
    }
}

void TestTageszahlen::amountsThatAreNoneCountNothing()
{
    for (const double gramm : {0.0, -100.0, std::numeric_limits<double>::quiet_NaN()}) {
        const auto ist =
            zahlen({.speisen = {speise("Weizenvollkornbrote", 100), speise("Ahornsirup", gramm),
                                speise("Bier (helle Biere, Pils, Lager)", gramm)},
                    .gicht = true});
        QCOMPARE(zahl(ist, Purine).hoechstens, std::optional(45.0));
        QVERIFY(gleich(zahl(ist, Energiedichte).wert, 213));
        QCOMPARE(zahl(ist, AlkoholJeWoche).wert, std::optional(0.0));
    }
}

QTEST_APPLESS_MAIN(TestTageszahlen)
#include "TestTageszahlen.moc"
