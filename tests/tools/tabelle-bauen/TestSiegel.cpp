#include "Siegel.h"
#include "Vergleichsprobe.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// A line that was touched says so until somebody has looked at it.
class TestSiegel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSealIsThatOfTheFields();
    void everyFieldCounts();
    void linesOutOfTheirSealAreNamed();
    void sealingTouchesNothingElse_data();
    void sealingTouchesNothingElse();
    void whatIsSealedStaysAsItIs();
};

namespace {

QStringList ei()
{
    return Tabellenprobe::felder(u"290"_s);
}

} // namespace

void TestSiegel::theSealIsThatOfTheFields()
{
    // The first digits of the SHA-256 of "abc" and of "Öl;1", as any other program gives them.
    QCOMPARE(Siegel::pruefzeichen({u"abc"_s}), u"ba7816bf"_s);
    QCOMPARE(Siegel::pruefzeichen({u"Öl"_s, u"1"_s}), u"f628180a"_s);
}

void TestSiegel::everyFieldCounts()
{
    const QStringList heil = ei();
    for (qsizetype i = 0; i < heil.size(); ++i) {
        QStringList zeile = heil;
        zeile[i] += u'x';
        const Beanstandungen einwaende = Siegel::pruefen(Tabellenprobe::datei({zeile}));
        QCOMPARE(einwaende.size(), 1);
        QCOMPARE(einwaende.first().regel, u"seal"_s);
        QVERIFY(einwaende.first().meldung.endsWith(
            u": changed since it was sealed: check the line and run tabelle-bauen --seal"));
    }
}

void TestSiegel::linesOutOfTheirSealAreNamed()
{
    const QStringList heil = ei();
    const QStringList geaendert = Tabellenprobe::geaendert(heil, u"note"_s, u"From a hen"_s);
    const QStringList ohne = Tabellenprobe::geaendert(heil, u"check"_s, QString());
    const Beanstandungen einwaende =
        Siegel::pruefen("# a remark\n" + Tabellenprobe::datei({heil, geaendert, heil, ohne}));
    QCOMPARE(einwaende.size(), 2);
    QCOMPARE(einwaende.first().zeile, 4);
    QCOMPARE(einwaende.last().zeile, 6);
    QVERIFY(einwaende.first().meldung.startsWith(heil.first() + u": changed"_s));
}

void TestSiegel::sealingTouchesNothingElse_data()
{
    QTest::addColumn<QByteArray>("davor");
    QTest::addColumn<QByteArray>("danach");
    QTest::addColumn<QByteArray>("zeilenende");
    QTest::newRow("a table") << QByteArray() << QByteArray() << QByteArray("\n");
    QTest::newRow("remarks and empty lines")
        << QByteArray("# Foods; all\n\n") << QByteArray("\n#;the end") << QByteArray("\n");
    QTest::newRow("line ends of Windows")
        << QByteArray("# Foods\r\n\r\n") << QByteArray() << QByteArray("\r\n");
}

void TestSiegel::sealingTouchesNothingElse()
{
    QFETCH(QByteArray, davor);
    QFETCH(QByteArray, danach);
    QFETCH(QByteArray, zeilenende);
    const QStringList falsch = Tabellenprobe::geaendert(ei(), u"check"_s, u"00000000"_s);
    const QStringList ohne = Tabellenprobe::geaendert(ei(), u"check"_s, QString());
    const auto datei = [&](const QList<QStringList> &zeilen) {
        return davor + Tabellenprobe::datei(zeilen).replace("\n", zeilenende) + danach;
    };
    const QByteArray versiegelt = Siegel::versiegelt(datei({falsch, ohne}));
    QCOMPARE(versiegelt, datei({ei(), ei()}));
    QVERIFY(Siegel::pruefen(versiegelt).isEmpty());
}

void TestSiegel::whatIsSealedStaysAsItIs()
{
    const QByteArray tabelle = Tabellenprobe::dateiinhalt(LEBENSMITTELTABELLE);
    QVERIFY(tabelle.size() > 100000);
    QCOMPARE(Siegel::versiegelt(tabelle), tabelle);
}

QTEST_GUILESS_MAIN(TestSiegel)
#include "TestSiegel.moc"
