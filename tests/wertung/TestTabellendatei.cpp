#include "Tabellenprobe.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestTabellendatei : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aLineIsReadFieldByField();
    void marksAreRead_data();
    void marksAreRead();
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
           "162;0.01;0.02;0.04;0.5;3.7;9;0.1;;;;;;"_s.split(u';');
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
    QVERIFY(!zeile.purin);
    QVERIFY(zeile.zuckerart == Zuckerart::Ueblich);
    QVERIFY(zeile.synonymVon.isEmpty() && zeile.ausnahmen.isEmpty() && zeile.notiz.isEmpty());
}

void TestTabellendatei::marksAreRead_data()
{
    QTest::addColumn<QString>("spalte");
    QTest::addColumn<QString>("feld");
    QTest::addColumn<bool>("richtig");
    QTest::newRow("purines, low") << u"purine"_s << u"low"_s << true;
    QTest::newRow("purines, moderate") << u"purine"_s << u"moderate"_s << true;
    QTest::newRow("purines, high") << u"purine"_s << u"high"_s << true;
    QTest::newRow("purines in another word") << u"purine"_s << u"High"_s << false;
    QTest::newRow("no fructose") << u"sugar_kind"_s << u"no fructose"_s << true;
    QTest::newRow("all carbohydrate") << u"sugar_kind"_s << u"all carbohydrate"_s << true;
    QTest::newRow("another sugar") << u"sugar_kind"_s << u"glucose"_s << false;
    QTest::newRow("ready to eat") << u"ready_g"_s << u"280"_s << true;
    QTest::newRow("ready to eat, a word") << u"ready_g"_s << u"double"_s << false;
}

void TestTabellendatei::marksAreRead()
{
    QFETCH(QString, spalte);
    QFETCH(QString, feld);
    QFETCH(bool, richtig);
    const QStringList zeile = Tabellenprobe::geaendert(kaffeesahne(), spalte, feld);
    const auto [tabelle, einwaende] = Tabellendatei::lesen(Tabellenprobe::datei({zeile}));
    QCOMPARE(tabelle.size(), richtig ? 1 : 0);
    QCOMPARE(einwaende.isEmpty(), richtig);
    if (feld == u"moderate") {
        QVERIFY(tabelle.first().purin == Purinklasse::Mittel);
    }
    if (feld == u"no fructose") {
        QVERIFY(tabelle.first().zuckerart == Zuckerart::OhneFruktose);
    }
    if (feld == u"280") {
        QCOMPARE(tabelle.first().verzehrfertig, 280.0);
    }
}

void TestTabellendatei::remarksAndLineEndsAreNoFoods()
{
    QByteArray bytes = "# a remark\n\n" + Tabellenprobe::datei({kaffeesahne()}) + "\n# the end";
    bytes.replace('\n', "\r\n");
    const auto [tabelle, einwaende] = Tabellendatei::lesen(bytes);
    QVERIFY(einwaende.isEmpty());
    QCOMPARE(tabelle.size(), 1);
    QCOMPARE(tabelle.first().zeile, 4);
    QVERIFY(tabelle.first().notiz.isEmpty());
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
}

QTEST_GUILESS_MAIN(TestTabellendatei)
#include "TestTabellendatei.moc"
