#include "Archivdatei.h"
#include "Tabellenprobe.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

/// The two programs of the food table, as the build and people call them.
class TestTabellenprogramme : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void anyGoodTableIsBuilt();
    void aBrokenLineStopsTheBuild();
    void theShippedTableIsChecked_data();
    void theShippedTableIsChecked();
    void wrongUsageIsTold_data();
    void wrongUsageIsTold();
    void aMissingTableIsTold();
    void aPlaceThatCantBeWrittenIsTold();
    void aFoodsRatingsAreExplained_data();
    void aFoodsRatingsAreExplained();
    void aPartOfANameListsFoods();
    void theRulesArePrinted();

private:
    QString pfad(const QString &name) const { return m_ordner->filePath(name); }
    QString ablegen(const QString &name, const QByteArray &bytes) const;

    std::unique_ptr<QTemporaryDir> m_ordner;
};

namespace {

struct Lauf
{
    int ausgang;
    QString ausgabe;
    QString fehler;
};

Lauf starten(const char *programm, const QStringList &argumente)
{
    QProcess prozess;
    prozess.start(QString::fromUtf8(programm), argumente);
    prozess.waitForFinished();
    return {prozess.exitStatus() == QProcess::NormalExit ? prozess.exitCode() : -1,
            QString::fromUtf8(prozess.readAllStandardOutput()),
            QString::fromUtf8(prozess.readAllStandardError())};
}

const QString tabelle = QStringLiteral(LEBENSMITTELTABELLE);
const QString einigkeit = QStringLiteral(EINIGKEIT);
const QString seite = QStringLiteral(WERTUNGSSEITE);

} // namespace

void TestTabellenprogramme::init()
{
    m_ordner = std::make_unique<QTemporaryDir>();
    QVERIFY(m_ordner->isValid());
}

QString TestTabellenprogramme::ablegen(const QString &name, const QByteArray &bytes) const
{
    QFile file(pfad(name));
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? pfad(name)
                                                                                : QString();
}

void TestTabellenprogramme::anyGoodTableIsBuilt()
{
    const QString klein =
        ablegen(u"klein.csv"_s, Tabellenprobe::datei({Tabellenprobe::felder(u"Rinderleber, roh"_s),
                                                      Tabellenprobe::felder(u"Apfel, roh"_s)}));
    const Lauf lauf = starten(BAUEN, {klein, pfad(u"k.daten"_s), pfad(u"k.ts"_s)});
    QCOMPARE(lauf.fehler, QString());
    QCOMPARE(lauf.ausgang, 0);
    const auto inhalt = Archivdatei::lesen(pfad(u"k.daten"_s));
    QCOMPARE(inhalt.archiv.verzeichnis.keys(),
             (QStringList{u"-"_s, u"Apfel, roh"_s, u"Rinderleber, roh"_s}));
    QCOMPARE(inhalt.archiv.verzeichnis.value(u"Rinderleber, roh"_s).gicht(), u"-"_s);
    QVERIFY(Tabellenprobe::dateiinhalt(qPrintable(pfad(u"k.ts"_s))).contains("Beef liver, raw"));
}

void TestTabellenprogramme::aBrokenLineStopsTheBuild()
{
    const QStringList ei = Tabellenprobe::felder(u"Ei, roh"_s);
    const QString kaputt = ablegen(
        u"kaputt.csv"_s, Tabellenprobe::datei({Tabellenprobe::felder(u"Apfel, roh"_s),
                                               Tabellenprobe::geaendert(ei, u"kal"_s, u"1400"_s)}));
    const Lauf lauf = starten(BAUEN, {kaputt, pfad(u"k.daten"_s), pfad(u"k.ts"_s)});
    QCOMPARE(lauf.ausgang, 1);
    QVERIFY2(lauf.fehler.startsWith(kaputt + u":3: error: Ei, roh: 1400 kcal are given"_s),
             qPrintable(lauf.fehler));
    QVERIFY(lauf.fehler.contains(u"[energy]"));
    QVERIFY(!QFile::exists(pfad(u"k.daten"_s)) && !QFile::exists(pfad(u"k.ts"_s)));
}

void TestTabellenprogramme::theShippedTableIsChecked_data()
{
    QTest::addColumn<QByteArray>("aus");
    QTest::addColumn<QByteArray>("wird");
    QTest::addColumn<QString>("regel");
    QTest::newRow("as it is") << QByteArray() << QByteArray() << QString();
    QTest::newRow("a German name that moves")
        << QByteArray("\nPalatschinke, unge") << QByteArray("\nEierkuchen, unge") << u"[rows]"_s;
    QTest::newRow("an English name that moves")
        << QByteArray(";Petits pois") << QByteArray(";Garden pea") << u"[rows]"_s;
    QTest::newRow("a food fewer") << QByteArray("\nZwieback;") << QByteArray("\n#Zwieback;")
                                  << u"[count]"_s;
    QTest::newRow("a value that turns a rating")
        << QByteArray("Walnuss;Walnut;Nüsse und Samen;271;709;15.7;67.3;6.9;6.7;0;0.2")
        << QByteArray("Walnuss;Walnut;Nüsse und Samen;271;709;15.7;67.3;6.9;6.7;0;2000")
        << u"[agreed]"_s;
    QTest::newRow("a food that dietitians agree upon, renamed")
        << QByteArray("\nGurke (Salatgurke), roh;") << QByteArray("\nGurke, roh;") << u"[agreed]"_s;
}

void TestTabellenprogramme::theShippedTableIsChecked()
{
    QFETCH(QByteArray, aus);
    QFETCH(QByteArray, wird);
    QFETCH(QString, regel);
    QByteArray bytes = Tabellenprobe::dateiinhalt(LEBENSMITTELTABELLE);
    QVERIFY(aus.isEmpty() || bytes.contains(aus));
    bytes.replace(aus, wird);
    const QString geaendert = ablegen(u"geaendert.csv"_s, bytes);
    const Lauf lauf = starten(BAUEN, {u"--shipped"_s, geaendert, einigkeit, seite});
    QCOMPARE(lauf.ausgang, regel.isEmpty() ? 0 : 1);
    QVERIFY2(lauf.fehler.contains(regel), qPrintable(lauf.fehler));
}

void TestTabellenprogramme::wrongUsageIsTold_data()
{
    QTest::addColumn<bool>("bauen");
    QTest::addColumn<QStringList>("argumente");
    QTest::newRow("tabelle-bauen, nothing") << true << QStringList();
    QTest::newRow("tabelle-bauen, a file too few") << true << QStringList{tabelle, u"a"_s};
    QTest::newRow("tabelle-bauen, a file too many")
        << true << QStringList{tabelle, u"a"_s, u"b"_s, u"c"_s};
    QTest::newRow("tabelle-bauen, the shipped table alone")
        << true << QStringList{u"--shipped"_s, tabelle};
    QTest::newRow("wertung-erklaeren, nothing") << false << QStringList();
    QTest::newRow("wertung-erklaeren, an empty name") << false << QStringList{QString()};
    QTest::newRow("wertung-erklaeren, two names") << false << QStringList{u"Ei"_s, u"Apfel"_s};
    QTest::newRow("wertung-erklaeren, no table") << false << QStringList{u"--table"_s};
}

void TestTabellenprogramme::wrongUsageIsTold()
{
    QFETCH(bool, bauen);
    QFETCH(QStringList, argumente);
    const Lauf lauf = starten(bauen ? BAUEN : ERKLAEREN, argumente);
    QCOMPARE(lauf.ausgang, 2);
    QVERIFY(lauf.fehler.startsWith(u"Usage: "));
    QVERIFY(lauf.ausgabe.isEmpty());
}

void TestTabellenprogramme::aMissingTableIsTold()
{
    const QString fehlt = pfad(u"fehlt.csv"_s);
    QCOMPARE(starten(BAUEN, {fehlt, pfad(u"a"_s), pfad(u"b"_s)}).ausgang, 1);
    QCOMPARE(starten(BAUEN, {u"--shipped"_s, tabelle, fehlt, seite}).ausgang, 1);
    const Lauf lauf = starten(ERKLAEREN, {u"--table"_s, fehlt, u"Ei"_s});
    QCOMPARE(lauf.ausgang, 1);
    QVERIFY(lauf.fehler.contains(fehlt));
}

void TestTabellenprogramme::aPlaceThatCantBeWrittenIsTold()
{
    const QString klein =
        ablegen(u"klein.csv"_s, Tabellenprobe::datei({Tabellenprobe::felder(u"Apfel, roh"_s)}));
    const QString unterEinerDatei = klein + u"/k.daten"_s;
    const Lauf lauf = starten(BAUEN, {klein, unterEinerDatei, pfad(u"k.ts"_s)});
    QCOMPARE(lauf.ausgang, 1);
    QVERIFY(lauf.fehler.contains(unterEinerDatei));
}

void TestTabellenprogramme::aFoodsRatingsAreExplained_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("German") << u"Rinderleber, roh"_s;
    QTest::newRow("English") << u"Beef liver, raw"_s;
    QTest::newRow("another case") << u"rinderleber, ROH"_s;
}

void TestTabellenprogramme::aFoodsRatingsAreExplained()
{
    QFETCH(QString, name);
    const Lauf lauf = starten(ERKLAEREN, {name});
    QCOMPARE(lauf.ausgang, 0);
    QVERIFY(
        lauf.ausgabe.startsWith(u"Rinderleber, roh (Beef liver, raw)\nFood group: Innereien\n"));
    QVERIFY(lauf.ausgabe.contains(u"\nÜbergewicht: \"0\" by rule U11."));
    QVERIFY(lauf.ausgabe.contains(u"\nDiabetes: \"+\" by rule D11."));
    QVERIFY(lauf.ausgabe.contains(u"\nGicht: \"-\" by rule G1. High in purines"));
    QVERIFY(lauf.ausgabe.contains(u"\n    [SFK-2016] Souci SW, Fachmann W, Kraut H."));
    QVERIFY(lauf.ausgabe.contains(u"\nHerz und Kreislauf: \"-\" by rule H2."));
    QVERIFY(lauf.ausgabe.contains(u"\n    cholesterol 354 mg (over 200)\n"));
}

void TestTabellenprogramme::aPartOfANameListsFoods()
{
    const Lauf lauf = starten(ERKLAEREN, {u"Rinderleb"_s});
    QCOMPARE(lauf.ausgang, 1);
    QVERIFY(lauf.fehler.contains(u"There is no food \"Rinderleb\"."));
    QVERIFY(lauf.fehler.contains(u"Rinderleber, roh"));
    QCOMPARE(starten(ERKLAEREN, {u"Einhorn"_s}).fehler, u"There is no food \"Einhorn\".\n"_s);
}

void TestTabellenprogramme::theRulesArePrinted()
{
    const Lauf lauf = starten(ERKLAEREN, {u"--rules"_s});
    QCOMPARE(lauf.ausgang, 0);
    QVERIFY(lauf.ausgabe.contains(u"| U1 | - | drink, energy over 20 kcal |"));
    QVERIFY(lauf.ausgabe.contains(u"| Innereien | high |"));
    QVERIFY(lauf.ausgabe.contains(u"- **ESC-2021**: Visseren"));
}

QTEST_GUILESS_MAIN(TestTabellenprogramme)
#include "TestTabellenprogramme.moc"
