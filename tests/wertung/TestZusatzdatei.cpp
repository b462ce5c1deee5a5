// What is known of the foods beside their records, as a file and in the program.

#include "Tabellendateitest.h"
#include "Zusatzdatei.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString kopf = u"name;group;sugars;saturated;alcohol;water;density;uric_acid;purine_class;"
                     "ready_g;marks;sugar_kind;unknown"_s;

Zusatzdatei::Ergebnis gelesen(const QStringList &zeilen)
{
    return Zusatzdatei::lesen(tabelle(kopf, zeilen));
}

/// What is read of a single good line.
Zusatzwerte werte(const QString &zeile)
{
    const auto [tabelle, einwaende] = gelesen({zeile});
    return einwaende.isEmpty() ? tabelle.value(zeile.section(u';', 0, 0)) : Zusatzwerte();
}

std::array<bool, anzahlNaehrwerte> unbestimmt(const QList<Naehrwert> &liste)
{
    std::array<bool, anzahlNaehrwerte> felder = {};
    for (const Naehrwert wert : liste) {
        felder[stelle(wert)] = true;
    }
    return felder;
}

} // namespace

class TestZusatzdatei : public Tabellendateitest
{
    Q_OBJECT

public:
    TestZusatzdatei() : Tabellendateitest(kopf, {u"Hefe;Hefe;1"_s, 2, u"3 fields instead of 13"_s})
    {
    }

private Q_SLOTS:
    void everyColumnIsRead();
    void anEmptyFieldIsNoZero();
    void everyPurineClassIsRead_data();
    void everyPurineClassIsRead();
    void everyMarkIsRead_data();
    void everyMarkIsRead();
    void aBrokenLineIsLeftOutAndObjectedTo_data();
    void aBrokenLineIsLeftOutAndObjectedTo();
    void figuresAtTheirLimitsAreTaken_data();
    void figuresAtTheirLimitsAreTaken();
    void theFirstOfTwoIsTaken();
    void allThatIsWrongWithALineIsSaid();
    void whatIsWrittenIsReadAgain();
    void aFileIsWrittenInTheOrderOfTheNames();
    void anEmptyTableIsAFileWithoutFoods();

private:
    Gelesenes lies(const QByteArray &bytes) const override
    {
        const auto [zeilen, einwaende] = Zusatzdatei::lesen(bytes);
        return {zeilen.isEmpty(), einwaende};
    }
};

void TestZusatzdatei::everyColumnIsRead()
{
    const Zusatzwerte gefunden =
        werte(u"Likör;Hefe;31.5;0.2;22;44.1;1.06;12.5;;280;caffeine;no fructose;chol vitc"_s);
    const Zusatzwerte soll = {.gruppe = lebensmittelgruppe(u"Hefe"_s),
                              .zucker = 31.5,
                              .gesaettigt = 0.2,
                              .alkohol = 22,
                              .wasser = 44.1,
                              .dichte = 1.06,
                              .harnsaeure = 12.5,
                              .purinklasse = std::nullopt,
                              .verzehrfertig = 280,
                              .merkmale = Merkmal::Koffein,
                              .zuckerart = Zuckerart::OhneFruktose,
                              .unbestimmt = unbestimmt({Naehrwert::chol, Naehrwert::vitc})};
    QVERIFY(soll.gruppe != nullptr);
    QVERIFY(gefunden == soll);
}

void TestZusatzdatei::anEmptyFieldIsNoZero()
{
    const Zusatzwerte leer = werte(u"Hefe;Hefe;;;;;;;low;;;;"_s);
    QVERIFY(leer.gruppe != nullptr);
    QVERIFY(!leer.zucker && !leer.gesaettigt && !leer.alkohol && !leer.wasser && !leer.dichte &&
            !leer.harnsaeure);
    QCOMPARE(leer.verzehrfertig, 100.0);
    QCOMPARE(leer.merkmale, Merkmale());
    QVERIFY(leer.zuckerart == Zuckerart::Ueblich);
    QVERIFY(leer.unbestimmt == unbestimmt({}));
    const Zusatzwerte nullen = werte(u"Hefe;Hefe;0;0;0;0;;0;;;;;"_s);
    for (const auto &eine :
         {nullen.zucker, nullen.gesaettigt, nullen.alkohol, nullen.wasser, nullen.harnsaeure}) {
        QCOMPARE(eine, std::optional(0.0));
    }
    QVERIFY(!nullen.purinklasse);
}

void TestZusatzdatei::everyPurineClassIsRead_data()
{
    QTest::addColumn<QString>("wort");
    QTest::addColumn<Purinklasse>("klasse");
    QTest::newRow("low") << u"low"_s << Purinklasse::Niedrig;
    QTest::newRow("moderate") << u"moderate"_s << Purinklasse::Mittel;
    QTest::newRow("high") << u"high"_s << Purinklasse::Hoch;
}

void TestZusatzdatei::everyPurineClassIsRead()
{
    QFETCH(const QString, wort);
    QFETCH(const Purinklasse, klasse);
    QVERIFY(werte(u"Hefe;Hefe;;;;;;;%1;;;;"_s.arg(wort)).purinklasse == klasse);
}

void TestZusatzdatei::everyMarkIsRead_data()
{
    QTest::addColumn<QString>("wort");
    QTest::addColumn<Merkmal>("merkmal");
    QTest::newRow("a recommended fat") << u"recommended fat"_s << Merkmal::Fettquelle;
    QTest::newRow("red meat") << u"red meat"_s << Merkmal::RotesFleisch;
    QTest::newRow("caffeine") << u"caffeine"_s << Merkmal::Koffein;
}

void TestZusatzdatei::everyMarkIsRead()
{
    QFETCH(const QString, wort);
    QFETCH(const Merkmal, merkmal);
    QCOMPARE(werte(u"Hefe;Hefe;;;;;;;low;;%1;;"_s.arg(wort)).merkmale, Merkmale(merkmal));
}

void TestZusatzdatei::aBrokenLineIsLeftOutAndObjectedTo_data()
{
    schlechteZeilen();
    const auto schlecht = [](const char *name, const QString &zeile, const QString &meldung) {
        Tabellendateitest::schlecht(name, zeile, u"format"_s, meldung);
    };
    schlecht("no name", u";Hefe;;;;;;1;;;;;"_s, u"The food has no name"_s);
    schlecht("an unknown group", u"a;Konfekt;;;;;;1;;;;;"_s,
             u"\"Konfekt\" is unknown (column group)"_s);
    schlecht("no group", u"a;;;;;;;1;;;;;"_s, u"\"\" is unknown (column group)"_s);
    const QStringList zahlen = {u"sugars"_s,  u"saturated"_s, u"alcohol"_s, u"water"_s,
                                u"density"_s, u"uric_acid"_s, u"ready_g"_s};
    for (const QString &spalte : zahlen) {
        QStringList felder(13);
        felder[0] = u"a"_s;
        felder[1] = u"Hefe"_s;
        const auto mit = [&](const QString &zelle) {
            felder[kopf.split(u';').indexOf(spalte)] = zelle;
            return felder.join(u';');
        };
        const QByteArray name = spalte.toLatin1();
        schlecht((name + ", a word").constData(), mit(u"much"_s),
                 u"\"much\" is no number (column %1)"_s.arg(spalte));
        schlecht((name + ", a comma").constData(), mit(u"1,5"_s),
                 u"\"1,5\" is no number (column %1)"_s.arg(spalte));
        schlecht((name + ", not finite").constData(), mit(u"inf"_s),
                 u"\"inf\" is no number (column %1)"_s.arg(spalte));
        schlecht((name + ", below 0").constData(), mit(u"-0.1"_s),
                 u"\"-0.1\" is too little (column %1)"_s.arg(spalte));
    }
    schlecht("no density at all", u"a;Hefe;;;;;0;1;;;;;"_s,
             u"\"0\" is too little (column density)"_s);
    schlecht("nothing ready to eat", u"a;Hefe;;;;;;1;;0;;;"_s,
             u"\"0\" is too little (column ready_g)"_s);
    schlecht("an unknown class", u"a;Hefe;;;;;;;Low;;;;"_s,
             u"\"Low\" is unknown (column purine_class)"_s);
    schlecht("a class beside a figure", u"a;Hefe;;;;;;0;low;;;;"_s,
             u"\"low\" stands beside a figure (column purine_class)"_s);
    schlecht("an unknown mark", u"a;Hefe;;;;;;1;;;tasty;;"_s,
             u"\"tasty\" is unknown (column marks)"_s);
    schlecht("an unknown kind of sugar", u"a;Hefe;;;;;;1;;;;sweet;"_s,
             u"\"sweet\" is unknown (column sugar_kind)"_s);
    schlecht("an unknown value", u"a;Hefe;;;;;;1;;;;;vitc vitd"_s,
             u"\"vitc vitd\" names what is no value (column unknown)"_s);
}

void TestZusatzdatei::aBrokenLineIsLeftOutAndObjectedTo()
{
    QFETCH(const QString, zeile);
    const auto [tabelle, einwaende] = gelesen({u"gut;Hefe;1;;;;;1;;;;;"_s, zeile});
    QCOMPARE(tabelle.keys(), QStringList{u"gut"_s});
    istDerEinwand(einwaende, 3);
}

void TestZusatzdatei::figuresAtTheirLimitsAreTaken_data()
{
    QTest::addColumn<QString>("zeile");
    QTest::newRow("nothing of anything") << u"a;Hefe;0;0;0;0;;0;;;;;"_s;
    QTest::newRow("light as can be") << u"a;Hefe;;;;;0.0001;1;;;;;"_s;
    QTest::newRow("little ready to eat") << u"a;Hefe;;;;;;1;;0.1;;;"_s;
}

void TestZusatzdatei::figuresAtTheirLimitsAreTaken()
{
    QFETCH(const QString, zeile);
    QVERIFY(gelesen({zeile}).beanstandungen.isEmpty());
}

void TestZusatzdatei::theFirstOfTwoIsTaken()
{
    const auto [tabelle, einwaende] = gelesen({u"a;Hefe;1;;;;;1;;;;;"_s, u"a;Hefe;2;;;;;1;;;;;"_s});
    QCOMPARE(tabelle.value(u"a"_s).zucker, std::optional(1.0));
    QCOMPARE(einwaende.size(), 1);
    QCOMPARE(einwaende.first().zeile, 3);
    QCOMPARE(einwaende.first().meldung, u"\"a\" stands twice"_s);
}

void TestZusatzdatei::allThatIsWrongWithALineIsSaid()
{
    const auto [tabelle, einwaende] = gelesen({u";Konfekt;viel;-1;;;;;;;;;"_s});
    QVERIFY(tabelle.isEmpty());
    QCOMPARE(einwaende.size(), 4);
}

void TestZusatzdatei::whatIsWrittenIsReadAgain()
{
    const Zusatztabelle vorher = {
        {u"Äpfel, roh"_s,
         {.gruppe = lebensmittelgruppe(u"Obst"_s),
          .zucker = 0.1 + 0.2, // no short number
          .gesaettigt = 0,
          .harnsaeure = 1e-3,
          .merkmale = Merkmal::Fettquelle,
          .zuckerart = Zuckerart::OhneFruktose}},
        {u"Zwieback"_s,
         {.gruppe = lebensmittelgruppe(u"Brot und Brötchen"_s),
          .alkohol = 12345.678,
          .wasser = 5,
          .dichte = 0.6,
          .purinklasse = Purinklasse::Hoch,
          .verzehrfertig = 5000,
          .unbestimmt = unbestimmt({Naehrwert::kal, Naehrwert::b1, Naehrwert::vitc})}}};
    const auto [nachher, einwaende] = Zusatzdatei::lesen(Zusatzdatei::text(vorher));
    QVERIFY(einwaende.isEmpty());
    QVERIFY(nachher == vorher);
}

void TestZusatzdatei::aFileIsWrittenInTheOrderOfTheNames()
{
    const Zusatzwerte werte = {.gruppe = lebensmittelgruppe(u"Hefe"_s)};
    const QString text =
        QString::fromUtf8(Zusatzdatei::text({{u"c"_s, werte}, {u"a"_s, werte}, {u"b"_s, werte}}));
    QVERIFY2(text.endsWith(kopf + u"\na;Hefe;;;;;;;;;;;\nb;Hefe;;;;;;;;;;;\nc;Hefe;;;;;;;;;;;\n"_s),
             qPrintable(text));
}

void TestZusatzdatei::anEmptyTableIsAFileWithoutFoods()
{
    const auto [tabelle, einwaende] = Zusatzdatei::lesen(Zusatzdatei::text({}));
    QVERIFY(tabelle.isEmpty());
    QVERIFY(einwaende.isEmpty());
}

QTEST_APPLESS_MAIN(TestZusatzdatei)
#include "TestZusatzdatei.moc"
