// The published reference values as people write them.

#include "Referenzdatei.h"
#include "Tabellendateitest.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString kopf =
    u"set;nutrient;sex;from;to;state;phase;pal;kind;unit;low;high;limit;keys;de;en"_s;
const QString gute = u"DACH;ca;m;1;3;none;;;PRI;mg;600;600;;DGE-TOOL;;"_s;

Referenzdatei::Ergebnis gelesen(const QStringList &zeilen)
{
    return Referenzdatei::lesen(tabelle(kopf, zeilen));
}

} // namespace

class TestReferenzdatei : public Tabellendateitest
{
    Q_OBJECT

public:
    TestReferenzdatei()
        : Tabellendateitest(kopf, {gute + u"\nDACH;ca;m;4"_s, 3, u"4 fields instead of 16"_s})
    {
    }

private Q_SLOTS:
    void aBrokenLineTakesTheWholeTableWithIt_data();
    void aBrokenLineTakesTheWholeTableWithIt();
    void everythingThatIsWrongIsTold();
    void everyColumnIsRead();
    void whatIsEmptyStaysAbsent();
    void unitsAreToldApart_data();
    void unitsAreToldApart();
    void partsOfAStateAreToldApart_data();
    void partsOfAStateAreToldApart();
    void kindsAreToldApart_data();
    void kindsAreToldApart();
    void aFileThatCannotBeReadSaysWhy();
    void aFileThatBreaksOffWhileItIsReadSaysWhy();
    void theShippedTableIsRead();

private:
    Gelesenes lies(const QByteArray &bytes) const override
    {
        const auto [zeilen, einwaende] = Referenzdatei::lesen(bytes);
        return {zeilen.isEmpty(), einwaende};
    }
};

void TestReferenzdatei::aBrokenLineTakesTheWholeTableWithIt_data()
{
    schlechteZeilen();
    schlecht("another set", u"USA;ca;m;1;3;none;;;PRI;mg;600;600;;K;;"_s, u"format"_s,
             u"\"USA\" is unknown (column set)"_s);
    schlecht("another nutrient", u"DACH;zink;m;1;3;none;;;PRI;mg;600;600;;K;;"_s, u"format"_s,
             u"\"zink\" is unknown (column nutrient)"_s);
    schlecht("no sex", u"DACH;ca;;1;3;none;;;PRI;mg;600;600;;K;;"_s, u"format"_s,
             u"\"\" is unknown (column sex)"_s);
    schlecht("another state", u"DACH;ca;f;1;3;ill;;;PRI;mg;600;600;;K;;"_s, u"format"_s,
             u"\"ill\" is unknown (column state)"_s);
    schlecht("another phase", u"DACH;ca;f;1;3;none;later;;PRI;mg;600;600;;K;;"_s, u"format"_s,
             u"\"later\" is unknown (column phase)"_s);
    schlecht("another kind", u"DACH;ca;m;1;3;none;;;RDA;mg;600;600;;K;;"_s, u"format"_s,
             u"\"RDA\" is unknown (column kind)"_s);
    schlecht("another limit", u"DACH;ca;m;1;3;none;;;UL;mg;600;600;food;K;;"_s, u"format"_s,
             u"\"food\" is unknown (column limit)"_s);
    schlecht("the unit of another nutrient", u"DACH;ca;m;1;3;none;;;PRI;g;600;600;;K;;"_s,
             u"format"_s, u"\"g\" is unknown (column unit)"_s);
    schlecht("vitamin A without its equivalents", u"DACH;vita;m;1;3;none;;;PRI;µg;600;600;;K;;"_s,
             u"format"_s, u"\"µg\" is unknown (column unit)"_s);
    schlecht("an age in words", u"DACH;ca;m;one;3;none;;;PRI;mg;600;600;;K;;"_s, u"format"_s,
             u"\"one\" is no age (column from)"_s);
    schlecht("an age below 0", u"DACH;ca;m;-1;3;none;;;PRI;mg;600;600;;K;;"_s, u"format"_s,
             u"\"-1\" is no age (column from)"_s);
    schlecht("no age", u"DACH;ca;m;;3;none;;;PRI;mg;600;600;;K;;"_s, u"ages"_s,
             u"There is no age to begin with"_s);
    schlecht("ages that end first", u"DACH;ca;m;4;3;none;;;PRI;mg;600;600;;K;;"_s, u"ages"_s,
             u"The ages end at 3, before 4"_s);
    schlecht("a comma", u"DACH;b1;m;1;3;none;;;PRI;mg;0,6;0.6;;K;;"_s, u"format"_s,
             u"\"0,6\" is no number above 0 (column low)"_s);
    schlecht("no amount at all", u"DACH;b1;m;1;3;none;;;PRI;mg;0.6;0;;K;;"_s, u"format"_s,
             u"\"0\" is no number above 0 (column high)"_s);
    schlecht("no finite activity", u"DACH;kal;m;1;3;none;;inf;RI;kcal;6;6;;K;;"_s, u"format"_s,
             u"\"inf\" is no number above 0 (column pal)"_s);
    schlecht("a range that ends first", u"DACH;fett;m;1;3;none;;;RI;% of energy;40;30;;K;;"_s,
             u"range"_s, u"The range ends at 30, before 40"_s);
    schlecht("a recommendation without its end", u"DACH;ca;m;1;3;none;;;PRI;mg;600;;;K;;"_s,
             u"range"_s, u"Only a guiding value (RI) may lack its end"_s);
    schlecht("no figure", u"DACH;ca;m;1;3;none;;;PRI;mg;;;;K;;"_s, u"range"_s,
             u"The figure or its unit is missing"_s);
    schlecht("no unit", u"DACH;ca;m;1;3;none;;;PRI;;600;600;;K;;"_s, u"range"_s,
             u"The figure or its unit is missing"_s);
    schlecht("a figure where none is set", u"DACH;chol;m;1;;none;;;no value;mg;300;300;;K;;"_s,
             u"range"_s, u"A line without a value has a figure or a unit"_s);
}

void TestReferenzdatei::aBrokenLineTakesTheWholeTableWithIt()
{
    QFETCH(const QString, zeile);
    const auto [zeilen, einwaende] = gelesen({u"# a remark"_s, gute, zeile});
    QVERIFY(zeilen.isEmpty());
    istDerEinwand(einwaende, 4);
}

void TestReferenzdatei::everythingThatIsWrongIsTold()
{
    const auto einwaende = gelesen({u"USA;ca;m;1;3;none;;;RDA;mg;600;600;;K;;"_s, gute,
                                    u"DACH;ca;m;4;3;none;;;PRI;mg;600;600;;K;;"_s})
                               .beanstandungen;
    QList<int> orte;
    for (const Beanstandung &eine : einwaende) {
        orte << eine.zeile;
    }
    QCOMPARE(orte, (QList<int>{2, 2, 4})); // the set and the kind, then the ages
}

void TestReferenzdatei::everyColumnIsRead()
{
    const auto [zeilen, einwaende] = gelesen(
        {u"EFSA;vita;f;18;24;lactating;after 6 months;1.6;RI;µg RE;2.5;7.25;retinol only;A-1 B2;"
         "Wort;word"_s});
    QVERIFY(einwaende.isEmpty());
    const Referenzzeile &eine = zeilen.first();
    QCOMPARE(eine.zeile, 2);
    QCOMPARE(eine.satz, Referenzsatz::Efsa);
    QCOMPARE(eine.wert, Naehrwert::vita);
    QCOMPARE(eine.geschlecht, Referenzgeschlecht::Frau);
    QCOMPARE(eine.von, 18);
    QCOMPARE(eine.bis, std::optional(24));
    QCOMPARE(eine.zustand, Referenzzustand::Stillend);
    QCOMPARE(eine.phase, Referenzphase::NachMonat6);
    QCOMPARE(eine.pal, std::optional(1.6));
    QCOMPARE(eine.art, Referenzart::Richtwert);
    QCOMPARE(eine.einheit, Referenzeinheit::Retinol);
    QCOMPARE(eine.unten, std::optional(2.5));
    QCOMPARE(eine.oben, std::optional(7.25));
    QCOMPARE(eine.vorbehalt, Referenzvorbehalt::NurRetinol);
    QCOMPARE(eine.quellen, (QStringList{u"A-1"_s, u"B2"_s}));
    QCOMPARE(eine.notizDe, u"Wort"_s);
    QCOMPARE(eine.notizEn, u"word"_s);
}

void TestReferenzdatei::whatIsEmptyStaysAbsent()
{
    const auto zeilen = gelesen({u"DACH;bs;m;65;;none;;;RI;g;30;;;DGE-TOOL;;"_s,
                                 u"DACH;chol;m;1;;none;;;no value;;;;;;;"_s})
                            .zeilen;
    QCOMPARE(zeilen.size(), 2);
    QVERIFY(!zeilen[0].bis);
    QVERIFY(!zeilen[0].pal);
    QCOMPARE(zeilen[0].unten, std::optional(30.0));
    QVERIFY(!zeilen[0].oben);
    QCOMPARE(zeilen[0].geschlecht, Referenzgeschlecht::Mann);
    QCOMPARE(zeilen[0].satz, Referenzsatz::Dach);
    QCOMPARE(zeilen[1].art, Referenzart::KeinWert);
    QCOMPARE(zeilen[1].einheit, Referenzeinheit::Keine);
    QVERIFY(!zeilen[1].unten);
    QVERIFY(zeilen[1].quellen.isEmpty());
}

void TestReferenzdatei::unitsAreToldApart_data()
{
    QTest::addColumn<QString>("wert");
    QTest::addColumn<QString>("wort");
    QTest::addColumn<Referenzeinheit>("einheit");
    QTest::newRow("kcal") << u"kal"_s << u"kcal"_s << Referenzeinheit::AmTag;
    QTest::newRow("g") << u"bs"_s << u"g"_s << Referenzeinheit::AmTag;
    QTest::newRow("mg") << u"fe"_s << u"mg"_s << Referenzeinheit::AmTag;
    QTest::newRow("RE") << u"vita"_s << u"µg RE"_s << Referenzeinheit::Retinol;
    QTest::newRow("RAE") << u"vita"_s << u"µg RAE"_s << Referenzeinheit::Retinolwirkung;
    QTest::newRow("g/kg") << u"protein"_s << u"g/kg"_s << Referenzeinheit::JeKilogramm;
    QTest::newRow("%") << u"fett"_s << u"% of energy"_s << Referenzeinheit::Energieanteil;
    QTest::newRow("mg/MJ") << u"b1"_s << u"mg/MJ"_s << Referenzeinheit::JeMegajoule;
    QTest::newRow("kcal on top") << u"kal"_s << u"kcal added"_s << Referenzeinheit::Zuschlag;
    QTest::newRow("g on top") << u"protein"_s << u"g added"_s << Referenzeinheit::Zuschlag;
}

void TestReferenzdatei::unitsAreToldApart()
{
    QFETCH(const QString, wert);
    QFETCH(const QString, wort);
    QFETCH(const Referenzeinheit, einheit);
    const auto [zeilen, einwaende] =
        gelesen({u"DACH;%1;m;1;3;none;;;PRI;%2;6;6;;K;;"_s.arg(wert, wort)});
    QVERIFY(einwaende.isEmpty());
    QCOMPARE(zeilen.first().einheit, einheit);
}

void TestReferenzdatei::partsOfAStateAreToldApart_data()
{
    QTest::addColumn<QString>("wort");
    QTest::addColumn<Referenzphase>("phase");
    QTest::newRow("all of it") << QString() << Referenzphase::Immer;
    QTest::newRow("first") << u"1st trimester"_s << Referenzphase::Trimester1;
    QTest::newRow("second") << u"2nd trimester"_s << Referenzphase::Trimester2;
    QTest::newRow("third") << u"3rd trimester"_s << Referenzphase::Trimester3;
    QTest::newRow("fourth month") << u"from the 4th month"_s << Referenzphase::AbTrimester2;
    QTest::newRow("six months") << u"first 6 months"_s << Referenzphase::BisMonat6;
    QTest::newRow("later") << u"after 6 months"_s << Referenzphase::NachMonat6;
    QTest::newRow("before") << u"before menopause"_s << Referenzphase::VorMenopause;
    QTest::newRow("after") << u"after menopause"_s << Referenzphase::NachMenopause;
}

void TestReferenzdatei::partsOfAStateAreToldApart()
{
    QFETCH(const QString, wort);
    QFETCH(const Referenzphase, phase);
    const auto zeilen = gelesen({u"DACH;fe;f;1;3;pregnant;%1;;PRI;mg;6;6;;K;;"_s.arg(wort)}).zeilen;
    QCOMPARE(zeilen.size(), 1);
    QCOMPARE(zeilen.first().phase, phase);
    QCOMPARE(zeilen.first().zustand, Referenzzustand::Schwanger);
}

void TestReferenzdatei::kindsAreToldApart_data()
{
    QTest::addColumn<QString>("wort");
    QTest::addColumn<Referenzart>("art");
    QTest::newRow("PRI") << u"PRI"_s << Referenzart::Empfehlung;
    QTest::newRow("AI") << u"AI"_s << Referenzart::Schaetzwert;
    QTest::newRow("AR") << u"AR"_s << Referenzart::Mittelwert;
    QTest::newRow("RI") << u"RI"_s << Referenzart::Richtwert;
    QTest::newRow("UL") << u"UL"_s << Referenzart::Obergrenze;
    QTest::newRow("SAFE") << u"SAFE"_s << Referenzart::SichereZufuhr;
}

void TestReferenzdatei::kindsAreToldApart()
{
    QFETCH(const QString, wort);
    QFETCH(const Referenzart, art);
    const auto zeilen = gelesen({u"DACH;fe;f;1;3;none;;;%1;mg;6;6;;K;;"_s.arg(wort)}).zeilen;
    QCOMPARE(zeilen.size(), 1);
    QCOMPARE(zeilen.first().art, art);
}

void TestReferenzdatei::aFileThatCannotBeReadSaysWhy()
{
    const QTemporaryDir ordner;
    for (const QString &pfad : {ordner.filePath(u"fehlt.csv"_s), ordner.path(), QString()}) {
        const auto [zeilen, einwaende] = Referenzdatei::ausDatei(pfad);
        QVERIFY(zeilen.isEmpty());
        QCOMPARE(einwaende.size(), 1);
        QCOMPARE(einwaende.first().zeile, 0);
        QVERIFY(!einwaende.first().meldung.isEmpty());
    }
}

/// A file that can be opened, but not read: the system's picture of this very process.
void TestReferenzdatei::aFileThatBreaksOffWhileItIsReadSaysWhy()
{
    const QString pfad = u"/proc/self/mem"_s;
    QVERIFY(QFile(pfad).open(QIODevice::ReadOnly));
    const auto [zeilen, einwaende] = Referenzdatei::ausDatei(pfad);
    QVERIFY(zeilen.isEmpty());
    QCOMPARE(einwaende.size(), 1);
    QVERIFY(einwaende.first().meldung != u"The table is empty"_s);
}

void TestReferenzdatei::theShippedTableIsRead()
{
    const auto [zeilen, einwaende] = Referenzdatei::ausDatei(QStringLiteral(REFERENZTABELLE));
    QVERIFY(einwaende.isEmpty());
    QCOMPARE(zeilen.size(), 780);
}

QTEST_APPLESS_MAIN(TestReferenzdatei)
#include "TestReferenzdatei.moc"
