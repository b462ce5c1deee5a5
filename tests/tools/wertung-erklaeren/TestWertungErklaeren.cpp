#include "Tabellenprobe.h"
#include "Werkzeugtest.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

/// The program that explains ratings, as people call it.
class TestWertungErklaeren : public Werkzeughilfetest
{
    Q_OBJECT

public:
    TestWertungErklaeren() : Werkzeughilfetest(ERKLAEREN) {}

private Q_SLOTS:
    void wrongUsageIsTold_data();
    void aMissingTableIsTold();
    void aFoodsRatingsAreExplained_data();
    void aFoodsRatingsAreExplained();
    void theShippedFoodsAreKnownAnywhere();
    void aPartOfANameListsFoods();
    void theRulesArePrinted();
};

void TestWertungErklaeren::wrongUsageIsTold_data()
{
    QTest::addColumn<QStringList>("argumente");
    QTest::newRow("nothing") << QStringList();
    QTest::newRow("an empty name") << QStringList{QString()};
    QTest::newRow("two names") << QStringList{u"Ei"_s, u"Apfel"_s};
    QTest::newRow("no table") << QStringList{u"--table"_s};
    QTest::newRow("an option that does not exist") << QStringList{u"--tables"_s};
    QTest::newRow("help and a name") << QStringList{u"--help"_s, u"Ei"_s};
}

void TestWertungErklaeren::aMissingTableIsTold()
{
    const QTemporaryDir ordner;
    const QString fehlt = ordner.filePath(u"fehlt.csv"_s);
    const Lauf lauf = starten(ERKLAEREN, {u"--table"_s, fehlt, u"Ei"_s});
    QCOMPARE(lauf.ausgang, 1);
    QVERIFY(lauf.fehler.contains(fehlt));
}

void TestWertungErklaeren::aFoodsRatingsAreExplained_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("German") << u"Rinderleber, roh"_s;
    QTest::newRow("English") << u"Beef liver, raw"_s;
    QTest::newRow("another case") << u"rinderleber, ROH"_s;
}

/// The beef liver of the source under names of this test.
void TestWertungErklaeren::aFoodsRatingsAreExplained()
{
    QFETCH(QString, name);
    QStringList leber = Tabellenprobe::felder(u"657"_s);
    leber[0] = u"Rinderleber, roh"_s;
    leber[1] = u"Beef liver, raw"_s;
    const QTemporaryDir ordner;
    QFile tabelle(ordner.filePath(u"klein.csv"_s));
    QVERIFY(tabelle.open(QIODevice::WriteOnly));
    QVERIFY(tabelle.write(Tabellenprobe::datei({leber})) > 0);
    tabelle.close();
    const Lauf lauf = starten(ERKLAEREN, {u"--table"_s, tabelle.fileName(), name});
    QCOMPARE(lauf.ausgang, 0);
    QVERIFY(
        lauf.ausgabe.startsWith(u"Rinderleber, roh (Beef liver, raw)\nFood group: Innereien\n"));
    QVERIFY(lauf.ausgabe.contains(u"\nPurines: 394.5 mg uric acid, from Rinderleber ["));
    QVERIFY(lauf.ausgabe.contains(u"\nOverweight: \"0\" (neutral), rule U12\n"));
    QVERIFY(lauf.ausgabe.contains(u"\nDiabetes: \"+\" (suitable), rule D11\n"));
    QVERIFY(lauf.ausgabe.contains(u"\nGout: \"-\" (unsuitable), rule G1\n    High in purines"));
    QVERIFY(lauf.ausgabe.contains(u"\n    [ACR-2020] FitzGerald JD et al."));
    QVERIFY(lauf.ausgabe.contains(u"\nHeart and circulation: \"-\" (unsuitable), rule H2\n"));
    QVERIFY(lauf.ausgabe.contains(u"\n    cholesterol 354 mg (over 200 mg)\n"));
}

/// Moved to another place, the program still has the foods that ship.
void TestWertungErklaeren::theShippedFoodsAreKnownAnywhere()
{
    const QTemporaryDir ordner;
    const QString verlegt = ordner.filePath(u"erklaeren"_s);
    QVERIFY(QFile::copy(QStringLiteral(ERKLAEREN), verlegt));
    const QString ei = Tabellenprobe::namen(u"290"_s).first();
    const Lauf lauf = starten(qPrintable(verlegt), {ei});
    QCOMPARE(lauf.ausgang, 0);
    QVERIFY2(lauf.ausgabe.startsWith(ei + u" ("_s), qPrintable(lauf.ausgabe));
    QCOMPARE(lauf.fehler, QString());
}

void TestWertungErklaeren::aPartOfANameListsFoods()
{
    const QString leber = Tabellenprobe::namen(u"657"_s).first();
    const QString anfang = leber.chopped(1);
    const Lauf lauf = starten(ERKLAEREN, {anfang});
    QCOMPARE(lauf.ausgang, 1);
    QVERIFY(lauf.fehler.contains(u"There is no food \"%1\"."_s.arg(anfang)));
    QVERIFY(lauf.fehler.contains(leber));
    QCOMPARE(starten(ERKLAEREN, {u"Einhorn"_s}).fehler, u"There is no food \"Einhorn\".\n"_s);
}

void TestWertungErklaeren::theRulesArePrinted()
{
    const Lauf lauf = starten(ERKLAEREN, {u"--rules"_s});
    QCOMPARE(lauf.ausgang, 0);
    QVERIFY(lauf.ausgabe.contains(u"| U1 | - | drink, energy over 20 kcal |"));
    QVERIFY(lauf.ausgabe.contains(u"| Hülsenfrüchte | all |"));
    QVERIFY(lauf.ausgabe.contains(u"- **WHO-2012**: WHO. Guideline: Sodium intake"));
}

QTEST_GUILESS_MAIN(TestWertungErklaeren)
#include "TestWertungErklaeren.moc"
