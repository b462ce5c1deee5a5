#include "Tabellenprobe.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestTabellendatei : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aLineIsReadFieldByField();
    void wordsAndFiguresAreRead_data();
    void wordsAndFiguresAreRead();
    void purinesAreReadWithTheirOrigin();
    void marksAreRead_data();
    void marksAreRead();
    void allColumnsAreNamedInTheirOrder();
    void remarksAndLineEndsAreNoFoods();
    void whatCantBeReadIsObjectedTo_data();
    void whatCantBeReadIsObjectedTo();
    void wrongColumnsStopTheReading();
    void anEmptyFileIsObjectedTo();
    void bytesThatAreNoTextAreObjectedTo();
    void theRestIsReadBesideABadLine();
};

namespace {

QStringList kaffeesahne()
{
    return u"Kaffeesahne;Coffee cream;Milch und "
           u"Sahne;69;161;2.6;15;3.8;0;50;77;140;94;75;10.5;0.03;"
           "162;0.01;0.02;0.04;0.5;3.7;9;0.1;;;;;;;;;;;0123abcd"_s.split(u';');
}

} // namespace

void TestTabellendatei::aLineIsReadFieldByField()
{
    const auto [tabelle, einwaende] = Tabellendatei::lesen(Tabellenprobe::datei({kaffeesahne()}));
    QVERIFY(einwaende.isEmpty());
    QCOMPARE(tabelle.size(), 1);
    const Tabellenzeile &zeile = tabelle.first();
    QCOMPARE(zeile.zeile, 2);
    QCOMPARE(zeile.nameDe, u"Kaffeesahne"_s);
    QCOMPARE(zeile.nameEn, u"Coffee cream"_s);
    QCOMPARE(QString::fromUtf8(zeile.gruppe->name), u"Milch und Sahne"_s);
    QCOMPARE(zeile.quelle, u"69"_s);
    const std::array<double, anzahlNaehrwerte> werte = {
        161, 2.6, 15, 3.8, 0, 50, 77, 140, 94, 75, 10.5, 0.03, 162, 0.01, 0.02, 0.04, 0.5};
    for (const auto &wert : naehrwerte) {
        QCOMPARE(zeile.wert(wert.wert), werte[stelle(wert.wert)]);
    }
    QCOMPARE(zeile.zucker, 3.7);
    QCOMPARE(zeile.gesaettigt, 9.0);
    QCOMPARE(zeile.alkohol, 0.1);
    QCOMPARE(zeile.verzehrfertig, 100.0);
    QVERIFY(!zeile.harnsaeure);
    QVERIFY(zeile.purinquellen.isEmpty() && zeile.purinherkunft.isEmpty());
    QVERIFY(!zeile.purinklasse);
    QVERIFY(zeile.merkmale == Merkmale());
    QVERIFY(zeile.zuckerart == Zuckerart::Ueblich);
    QVERIFY(zeile.synonymVon.isEmpty() && zeile.ausnahmen.isEmpty() && zeile.notiz.isEmpty());
    QCOMPARE(zeile.pruefzeichen, u"0123abcd"_s);
}

void TestTabellendatei::wordsAndFiguresAreRead_data()
{
    QTest::addColumn<QString>("spalte");
    QTest::addColumn<QString>("feld");
    QTest::addColumn<bool>("richtig");
    QTest::newRow("purines, low") << u"purine_class"_s << u"low"_s << true;
    QTest::newRow("purines, moderate") << u"purine_class"_s << u"moderate"_s << true;
    QTest::newRow("purines, high") << u"purine_class"_s << u"high"_s << true;
    QTest::newRow("purines in another word") << u"purine_class"_s << u"High"_s << false;
    QTest::newRow("a class in milligrams") << u"purine_class"_s << u"150"_s << false;
    QTest::newRow("uric acid") << u"uric_acid"_s << u"141.5"_s << true;
    QTest::newRow("uric acid, a word") << u"uric_acid"_s << u"low"_s << false;
    QTest::newRow("uric acid, a decimal comma") << u"uric_acid"_s << u"141,5"_s << false;
    QTest::newRow("an unknown mark") << u"marks"_s << u"spicy"_s << false;
    QTest::newRow("two marks at once") << u"marks"_s << u"red meat, caffeine"_s << false;
    QTest::newRow("no fructose") << u"sugar_kind"_s << u"no fructose"_s << true;
    QTest::newRow("all carbohydrate") << u"sugar_kind"_s << u"all carbohydrate"_s << false;
    QTest::newRow("another sugar") << u"sugar_kind"_s << u"glucose"_s << false;
    QTest::newRow("ready to eat") << u"ready_g"_s << u"280"_s << true;
    QTest::newRow("ready to eat, a word") << u"ready_g"_s << u"double"_s << false;
}

void TestTabellendatei::wordsAndFiguresAreRead()
{
    QFETCH(QString, spalte);
    QFETCH(QString, feld);
    QFETCH(bool, richtig);
    const QStringList zeile = Tabellenprobe::geaendert(kaffeesahne(), spalte, feld);
    const auto [tabelle, einwaende] = Tabellendatei::lesen(Tabellenprobe::datei({zeile}));
    QCOMPARE(tabelle.size(), richtig ? 1 : 0);
    QCOMPARE(einwaende.isEmpty(), richtig);
    if (!richtig) {
        QVERIFY(einwaende.first().meldung.contains(u"\"%1\""_s.arg(feld)));
        QVERIFY(einwaende.first().meldung.endsWith(u"(column %1)"_s.arg(spalte)));
    }
    const std::pair<QString, Purinklasse> klassen[] = {{u"low"_s, Purinklasse::Niedrig},
                                                       {u"moderate"_s, Purinklasse::Mittel},
                                                       {u"high"_s, Purinklasse::Hoch}};
    for (const auto &[wort, klasse] : klassen) {
        if (richtig && feld == wort) {
            QVERIFY(tabelle.first().purinklasse == klasse);
        }
    }
    if (richtig && feld == u"no fructose") {
        QVERIFY(tabelle.first().zuckerart == Zuckerart::OhneFruktose);
    }
    if (richtig && feld == u"280") {
        QCOMPARE(tabelle.first().verzehrfertig, 280.0);
    }
}

void TestTabellendatei::purinesAreReadWithTheirOrigin()
{
    const QString herkunft = u"40 Linsen, getrocknet + 10 Zwiebel"_s;
    QStringList zeile = Tabellenprobe::geaendert(kaffeesahne(), u"uric_acid"_s, u"54.3"_s);
    zeile = Tabellenprobe::geaendert(zeile, u"purine_keys"_s, u"ACU KAN14"_s);
    zeile = Tabellenprobe::geaendert(zeile, u"purine_from"_s, herkunft);
    const auto [tabelle, einwaende] = Tabellendatei::lesen(Tabellenprobe::datei({zeile}));
    QVERIFY(einwaende.isEmpty());
    QCOMPARE(tabelle.first().harnsaeure.value_or(0), 54.3);
    QCOMPARE(tabelle.first().purinquellen, u"ACU KAN14"_s);
    QCOMPARE(tabelle.first().purinherkunft, herkunft);
    QVERIFY(!tabelle.first().purinklasse);

    // A food that gives none has a figure as well; only an empty field has none.
    const QStringList keine = Tabellenprobe::geaendert(kaffeesahne(), u"uric_acid"_s, u"0"_s);
    const Tabelle ohne = Tabellendatei::lesen(Tabellenprobe::datei({keine})).tabelle;
    QVERIFY(ohne.first().harnsaeure.has_value());
    QCOMPARE(*ohne.first().harnsaeure, 0.0);
}

void TestTabellendatei::marksAreRead_data()
{
    QTest::addColumn<QString>("feld");
    QTest::addColumn<unsigned>("merkmal");
    const auto zahl = [](Merkmal merkmal) {
        return static_cast<unsigned>(merkmal);
    };
    QTest::newRow("none") << QString() << 0U;
    QTest::newRow("recommended fat") << u"recommended fat"_s << zahl(Merkmal::Fettquelle);
    QTest::newRow("red meat") << u"red meat"_s << zahl(Merkmal::RotesFleisch);
    QTest::newRow("caffeine") << u"caffeine"_s << zahl(Merkmal::Koffein);
}

void TestTabellendatei::marksAreRead()
{
    QFETCH(QString, feld);
    QFETCH(unsigned, merkmal);
    const QStringList zeile = Tabellenprobe::geaendert(kaffeesahne(), u"marks"_s, feld);
    const auto [tabelle, einwaende] = Tabellendatei::lesen(Tabellenprobe::datei({zeile}));
    QVERIFY(einwaende.isEmpty());
    QVERIFY(tabelle.first().merkmale == Merkmale::fromInt(merkmal));
}

void TestTabellendatei::allColumnsAreNamedInTheirOrder()
{
    QCOMPARE(Tabellendatei::spalten().join(u';'),
             u"name_de;name_en;group;source_id;kal;protein;fett;kh;bs;chol;na;ka;ca;ph;ma;fe;vita;"
             "b1;b2;b6;vitc;sugars;saturated;alcohol;ready_g;uric_acid;purine_keys;purine_from;"
             "purine_class;marks;sugar_kind;synonym;exception;note;check"_s);
}

void TestTabellendatei::remarksAndLineEndsAreNoFoods()
{
    QByteArray bytes = "# a remark\n\n" + Tabellenprobe::datei({kaffeesahne()}) + "\n# the end";
    bytes.replace('\n', "\r\n");
    const auto [tabelle, einwaende] = Tabellendatei::lesen(bytes);
    QVERIFY(einwaende.isEmpty());
    QCOMPARE(tabelle.size(), 1);
    QCOMPARE(tabelle.first().zeile, 4);
    QCOMPARE(tabelle.first().pruefzeichen, u"0123abcd"_s);
}

void TestTabellendatei::whatCantBeReadIsObjectedTo_data()
{
    QTest::addColumn<QString>("spalte");
    QTest::addColumn<QString>("feld");
    QTest::newRow("a decimal comma") << u"fett"_s << u"2,5"_s;
    QTest::newRow("an empty value") << u"na"_s << QString();
    QTest::newRow("the source's sign for a trace") << u"vitc"_s << u"tr."_s;
    QTest::newRow("a value that is no number") << u"kal"_s << u"nan"_s;
    QTest::newRow("an endless value") << u"kal"_s << u"inf"_s;
    QTest::newRow("a group that is none") << u"group"_s << u"Konfekt"_s;
    QTest::newRow("a word for alcohol") << u"alcohol"_s << u"none"_s;
    QTest::newRow("an endless figure for uric acid") << u"uric_acid"_s << u"inf"_s;
    QTest::newRow("a field too many") << u"note"_s << u"a;b"_s;
}

void TestTabellendatei::whatCantBeReadIsObjectedTo()
{
    QFETCH(QString, spalte);
    QFETCH(QString, feld);
    const QStringList zeile = Tabellenprobe::geaendert(kaffeesahne(), spalte, feld);
    const auto [tabelle, einwaende] = Tabellendatei::lesen(Tabellenprobe::datei({zeile}));
    QVERIFY(tabelle.isEmpty());
    QCOMPARE(einwaende.size(), 1);
    QCOMPARE(einwaende.first().zeile, 2);
    QCOMPARE(einwaende.first().regel, u"format"_s);
}

void TestTabellendatei::wrongColumnsStopTheReading()
{
    QByteArray bytes = Tabellenprobe::datei({kaffeesahne()});
    bytes.replace("vita;b1", "b1;vita");
    const auto [tabelle, einwaende] = Tabellendatei::lesen(bytes);
    QVERIFY(tabelle.isEmpty());
    QCOMPARE(einwaende.size(), 1);
    QCOMPARE(einwaende.first().zeile, 1);
}

void TestTabellendatei::anEmptyFileIsObjectedTo()
{
    QCOMPARE(Tabellendatei::lesen(QByteArrayView()).beanstandungen.size(), 1);
    QCOMPARE(Tabellendatei::lesen(QByteArrayView("# only a remark\n")).beanstandungen.size(), 1);
}

void TestTabellendatei::bytesThatAreNoTextAreObjectedTo()
{
    QByteArray bytes = Tabellenprobe::datei({kaffeesahne()});
    bytes.replace("Kaffee", "Kaff\xe9");
    QCOMPARE(Tabellendatei::lesen(bytes).beanstandungen.size(), 1);
}

void TestTabellendatei::theRestIsReadBesideABadLine()
{
    const QStringList kaputt = Tabellenprobe::geaendert(kaffeesahne(), u"kal"_s, u"viel"_s);
    const auto [tabelle, einwaende] =
        Tabellendatei::lesen(Tabellenprobe::datei({kaputt, kaffeesahne()}));
    QCOMPARE(tabelle.size(), 1);
    QCOMPARE(tabelle.first().zeile, 3);
    QCOMPARE(einwaende.size(), 1);
    QCOMPARE(einwaende.first().zeile, 2);
}

QTEST_GUILESS_MAIN(TestTabellendatei)
#include "TestTabellendatei.moc"
