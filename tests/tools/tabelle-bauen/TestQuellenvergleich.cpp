#include "Vergleichsprobe.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// The figures of the table are those of the source.
class TestQuellenvergleich : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSourceShipsWhole();
    void cellsAreReadAsPublished_data();
    void cellsAreReadAsPublished();
    void aBrokenSourceIsObjectedTo_data();
    void aBrokenSourceIsObjectedTo();
    void everyFigureIsCompared_data();
    void everyFigureIsCompared();
    void anUnknownIdIsObjectedTo();
};

namespace {

/// A source of one food, 7, that holds nothing but what is given here.
QByteArray quelldatei(const QString &spalte, const QString &zelle)
{
    QStringList felder(Quellenvergleich::spalten().size(), u"0"_s);
    felder[0] = u"7"_s;
    felder[Quellenvergleich::spalten().indexOf(spalte)] = zelle;
    return (Quellenvergleich::spalten().join(u';') + u'\n' + felder.join(u';') + u'\n').toUtf8();
}

} // namespace

void TestQuellenvergleich::theSourceShipsWhole()
{
    const auto [quelle, einwaende] =
        Quellenvergleich::lesen(Tabellenprobe::dateiinhalt(QUELLWERTE));
    QCOMPARE(einwaende.size(), 0);
    QCOMPARE(quelle.size(), 1190);
    const Quelleintrag mandel = quelle.value(u"273"_s);
    QCOMPARE(mandel.werte[stelle(Naehrwert::kal)], 624.0);
    QCOMPARE(mandel.werte[stelle(Naehrwert::vitc)], 0.0); // published as "<0.5"
    QCOMPARE(mandel.zucker, 6.6);
    QCOMPARE(mandel.gesaettigt, 4.3);
    QCOMPARE(mandel.wasser, std::optional(3.3));
    QVERIFY(!mandel.dichte);
}

void TestQuellenvergleich::cellsAreReadAsPublished_data()
{
    QTest::addColumn<QString>("zelle");
    QTest::addColumn<double>("wert");
    QTest::addColumn<bool>("bekannt");
    QTest::addColumn<bool>("bestimmt");
    QTest::newRow("a number") << u"4.5"_s << 4.5 << true << true;
    QTest::newRow("zero") << u"0"_s << 0.0 << true << true;
    QTest::newRow("a trace") << u"tr."_s << 0.0 << false << true;
    QTest::newRow("below a limit") << u"<0.5"_s << 0.0 << false << true;
    QTest::newRow("not determined") << u"n.d."_s << 0.0 << false << false;
    QTest::newRow("not given") << QString() << 0.0 << false << false;
}

void TestQuellenvergleich::cellsAreReadAsPublished()
{
    QFETCH(QString, zelle);
    QFETCH(double, wert);
    QFETCH(bool, bekannt);
    QFETCH(bool, bestimmt);
    const auto alsWert = Quellenvergleich::lesen(quelldatei(u"fe"_s, zelle));
    QVERIFY(alsWert.beanstandungen.isEmpty());
    QCOMPARE(alsWert.werte.value(u"7"_s).werte[stelle(Naehrwert::fe)], wert);
    const auto alsWasser = Quellenvergleich::lesen(quelldatei(u"water"_s, zelle));
    QCOMPARE(alsWasser.werte.value(u"7"_s).wasser.has_value(), bekannt);
    for (const QString &spalte : Quellenvergleich::spalten().mid(1)) {
        const auto gelesen = Quellenvergleich::lesen(quelldatei(spalte, zelle));
        QCOMPARE(gelesen.werte.value(u"7"_s).unbestimmt,
                 bestimmt ? QStringList() : QStringList{spalte});
    }
}

void TestQuellenvergleich::aBrokenSourceIsObjectedTo_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("zeile");
    QTest::newRow("a word") << quelldatei(u"fe"_s, u"much"_s) << 2;
    QTest::newRow("a decimal comma") << quelldatei(u"fe"_s, u"4,5"_s) << 2;
    QTest::newRow("less than a word") << quelldatei(u"fe"_s, u"<much"_s) << 2;
    QTest::newRow("a negative figure") << quelldatei(u"fe"_s, u"-1"_s) << 2;
    QTest::newRow("no finite figure") << quelldatei(u"water"_s, u"inf"_s) << 2;
    const QByteArray gut = quelldatei(u"fe"_s, u"1"_s);
    QTest::newRow("an id twice") << gut + gut.split('\n').at(1) << 3;
    QTest::newRow("a field too many") << gut + "8;1\n" << 3;
    QTest::newRow("nothing") << QByteArray() << 0;
}

void TestQuellenvergleich::aBrokenSourceIsObjectedTo()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, zeile);
    const Beanstandungen einwaende = Quellenvergleich::lesen(bytes).beanstandungen;
    QCOMPARE(einwaende.size(), 1);
    QCOMPARE(einwaende.first().zeile, zeile);
    QCOMPARE(einwaende.first().regel, u"format"_s);
}

void TestQuellenvergleich::everyFigureIsCompared_data()
{
    QTest::addColumn<QString>("spalte");
    for (const auto &wert : naehrwerte) {
        QTest::newRow(wert.kennung) << QString::fromLatin1(wert.kennung);
    }
    QTest::newRow("sugars") << u"sugars"_s;
    QTest::newRow("saturated") << u"saturated"_s;
    QTest::newRow("alcohol") << u"alcohol"_s;
}

void TestQuellenvergleich::everyFigureIsCompared()
{
    QFETCH(QString, spalte);
    const Quellwerte quelle = Vergleichsprobe::ausgeliefert().quelle;
    const QStringList ei = Tabellenprobe::felder(u"290"_s);
    const double wert = Tabellenprobe::feld(ei, spalte).toDouble();
    for (const double daneben : {0.0, 0.01, -0.01}) {
        const QString zelle = QString::number(wert + daneben, 'g', 10);
        const auto gelesen = Tabellendatei::lesen(
            Tabellenprobe::datei({Tabellenprobe::geaendert(ei, spalte, zelle)}));
        const Beanstandungen einwaende = Quellenvergleich::pruefen(gelesen.tabelle.first(), quelle);
        QCOMPARE(einwaende.size(), daneben == 0 ? 0 : 1);
        if (daneben != 0) {
            const QString meldung = u": %1 is %2, the source has %3"_s.arg(spalte, zelle).arg(wert);
            QVERIFY2(einwaende.first().meldung.endsWith(meldung),
                     qPrintable(einwaende.first().meldung));
            QCOMPARE(einwaende.first().zeile, 2);
        }
    }
}

void TestQuellenvergleich::anUnknownIdIsObjectedTo()
{
    const QStringList fremd =
        Tabellenprobe::geaendert(Tabellenprobe::felder(u"290"_s), u"source_id"_s, u"999999"_s);
    const Tabelle tabelle = Tabellendatei::lesen(Tabellenprobe::datei({fremd})).tabelle;
    const Beanstandungen einwaende =
        Quellenvergleich::pruefen(tabelle.first(), Vergleichsprobe::ausgeliefert().quelle);
    QCOMPARE(einwaende.size(), 1);
    QVERIFY(einwaende.first().meldung.endsWith(u"the source has no food \"999999\""));
}

QTEST_GUILESS_MAIN(TestQuellenvergleich)
#include "TestQuellenvergleich.moc"
