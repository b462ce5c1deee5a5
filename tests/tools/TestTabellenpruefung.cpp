#include "Tabellenprobe.h"
#include "Tabellenpruefung.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestTabellenpruefung : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theShippedTableIsSound();
    void whatIsBrokenOnPurposeIsFound_data();
    void whatIsBrokenOnPurposeIsFound();
    void energyHasSomeRoom_data();
    void energyHasSomeRoom();
    void anExceptionExcusesItsCheckOnly();
    void namesThatAreAlikeAreFound_data();
    void namesThatAreAlikeAreFound();
    void aSynonymIsTheSameFood_data();
    void aSynonymIsTheSameFood();
    void aSourceStandsOnceUnlessMarked();
};

namespace {

/// The checks that object, each once, to a table of these lines.
QStringList einwaende(const QList<QStringList> &zeilen)
{
    const auto [tabelle, formfehler] = Tabellendatei::lesen(Tabellenprobe::datei(zeilen));
    QStringList regeln;
    for (const Beanstandung &eine : formfehler + Tabellenpruefung::pruefen(tabelle)) {
        regeln.append(eine.regel);
    }
    regeln.removeDuplicates();
    return regeln;
}

/// Butter milk made up so that its energy is exactly what its nutrients give.
QStringList probe(const QString &kal, const QString &protein)
{
    QStringList zeile = Tabellenprobe::felder(u"Buttermilch"_s);
    const QList<std::pair<QString, QString>> werte = {
        {u"kal"_s, kal},   {u"protein"_s, protein}, {u"fett"_s, u"0"_s},     {u"kh"_s, u"0"_s},
        {u"bs"_s, u"0"_s}, {u"sugars"_s, u"0"_s},   {u"saturated"_s, u"0"_s}};
    for (const auto &[spalte, wert] : werte) {
        zeile = Tabellenprobe::geaendert(zeile, spalte, wert);
    }
    return zeile;
}

} // namespace

void TestTabellenpruefung::theShippedTableIsSound()
{
    const auto [tabelle, formfehler] =
        Tabellendatei::lesen(Tabellenprobe::dateiinhalt(LEBENSMITTELTABELLE));
    QVERIFY(formfehler.isEmpty());
    for (const Beanstandung &eine : Tabellenpruefung::pruefen(tabelle)) {
        QFAIL(qPrintable(u"line %1: %2"_s.arg(eine.zeile).arg(eine.meldung)));
    }
}

void TestTabellenpruefung::whatIsBrokenOnPurposeIsFound_data()
{
    QTest::addColumn<QString>("food");
    QTest::addColumn<QString>("spalte");
    QTest::addColumn<QString>("wert");
    QTest::addColumn<QString>("regel");

    const auto zeile = [](const char *name, const QString &food, const QString &spalte,
                          const QString &wert, const QString &regel) {
        QTest::newRow(name) << food << spalte << wert << regel;
    };
    const QString ei = u"Ei, roh"_s;
    const QString rapsoel = u"Rapsöl"_s;
    const QString apfel = u"Apfel, roh"_s;
    const QString bier = u"Bier, hell (Lager)"_s;
    zeile("nothing is broken", ei, u"kal"_s, u"140"_s, QString());
    zeile("energy in kJ", ei, u"kal"_s, u"586"_s, u"energy"_s);
    zeile("two digits of the energy swapped", ei, u"kal"_s, u"410"_s, u"energy"_s);
    zeile("a decimal point lost in protein", ei, u"protein"_s, u"126"_s, u"energy"_s);
    zeile("fat of the line above", ei, u"fett"_s, u"31.3"_s, u"energy"_s);
    zeile("carbohydrate left out", apfel, u"kh"_s, u"0"_s, u"energy"_s);
    zeile("alcohol left out", bier, u"alcohol"_s, u"0"_s, u"energy"_s);
    zeile("fibre counted as carbohydrate", u"Haferflocken"_s, u"kh"_s, u"70"_s, u"energy"_s);
    zeile("more than 100 g in 100 g", u"Zucker, weiß"_s, u"bs"_s, u"3"_s, u"sum"_s);
    zeile("salt in grams taken for sodium", u"Meersalz"_s, u"na"_s, u"97000"_s, u"sum"_s);
    zeile("more sugars than carbohydrate", apfel, u"sugars"_s, u"13"_s, u"value"_s);
    zeile("more saturated fat than fat", ei, u"saturated"_s, u"29"_s, u"value"_s);
    zeile("negative cholesterol", ei, u"chol"_s, u"-350"_s, u"value"_s);
    zeile("negative sugars", apfel, u"sugars"_s, u"-1"_s, u"value"_s);
    zeile("vitamin C in oil", rapsoel, u"vitc"_s, u"0.1"_s, u"vitc"_s);
    zeile("vitamin C of the next column in meat", u"Rinderfilet, roh"_s, u"vitc"_s, u"20"_s,
          u"vitc"_s);
    zeile("vitamin A in micrograms of carotene", apfel, u"vita"_s, u"600"_s, u"vita"_s);
    zeile("vitamin B1 in micrograms", apfel, u"b1"_s, u"20"_s, u"b1"_s);
    zeile("vitamin B2 in beer", bier, u"b2"_s, u"0.3"_s, u"b2"_s);
    zeile("vitamin B6 in sugar", u"Zucker, weiß"_s, u"b6"_s, u"0.5"_s, u"b6"_s);
    zeile("an offal moved to the beef", u"Rinderleber, roh"_s, u"group"_s,
          u"Rind- und Kalbfleisch"_s, u"vita"_s);
    zeile("a name of 49 characters", ei, u"name_de"_s, u"E"_s.repeated(49), u"name"_s);
    zeile("a name of 48 characters", ei, u"name_de"_s, u"E"_s.repeated(48), QString());
    zeile("an English name of 49 characters", ei, u"name_en"_s, u"E"_s.repeated(49), u"name"_s);
    zeile("no name", ei, u"name_de"_s, QString(), u"name"_s);
    zeile("no English name", ei, u"name_en"_s, QString(), u"name"_s);
    zeile("a small letter in front", ei, u"name_de"_s, u"ei, roh"_s, u"name"_s);
    zeile("a digit in front", ei, u"name_de"_s, u"1 Ei, roh"_s, u"name"_s);
    zeile("a blank behind", ei, u"name_de"_s, u"Ei, roh "_s, u"name"_s);
    zeile("two blanks between", ei, u"name_en"_s, u"Egg,  raw"_s, u"name"_s);
    zeile("a sign of a brand", ei, u"name_de"_s, u"Ei®"_s, u"name"_s);
    zeile("the name that shows nothing", ei, u"name_de"_s, u"Mettwurst"_s, u"name"_s);
    zeile("the name that shows nothing, in English", ei, u"name_en"_s, u"mettwurst"_s, u"name"_s);
    zeile("a sausage with more to its name", ei, u"name_de"_s, u"Mettwurst, fein"_s, QString());
    zeile("no source", ei, u"source_id"_s, QString(), u"mark"_s);
    zeile("a purine class without a reason", ei, u"purine"_s, u"high"_s, u"mark"_s);
    zeile("a kind of sugar without a reason", ei, u"sugar_kind"_s, u"no fructose"_s, u"mark"_s);
    zeile("cooked weight without a reason", ei, u"ready_g"_s, u"280"_s, u"mark"_s);
    zeile("less than it was", ei, u"ready_g"_s, u"80"_s, u"mark"_s);
    zeile("an exception without a reason", u"Essig"_s, u"note"_s, QString(), u"mark"_s);
    zeile("an exception that is needed is taken away", u"Essig"_s, u"exception"_s, QString(),
          u"energy"_s);
    zeile("an exception that nothing needs", ei, u"exception"_s, u"energy"_s, u"exception"_s);
}

void TestTabellenpruefung::whatIsBrokenOnPurposeIsFound()
{
    QFETCH(QString, food);
    QFETCH(QString, spalte);
    QFETCH(QString, wert);
    QFETCH(QString, regel);
    const QStringList heil = Tabellenprobe::felder(food);
    QVERIFY(!heil.isEmpty());
    QCOMPARE(einwaende({heil}), QStringList());
    const QStringList gefunden = einwaende({Tabellenprobe::geaendert(heil, spalte, wert)});
    if (regel.isEmpty()) {
        QCOMPARE(gefunden, QStringList());
    } else {
        QVERIFY2(gefunden.contains(regel), qPrintable(gefunden.join(u' ')));
    }
}

void TestTabellenpruefung::energyHasSomeRoom_data()
{
    QTest::addColumn<QString>("kal");
    QTest::addColumn<QString>("protein");
    QTest::addColumn<bool>("gut");
    QTest::newRow("no energy at all") << u"0"_s << u"0"_s << true;
    QTest::newRow("3 kcal of nothing") << u"0"_s << u"0.75"_s << true;
    QTest::newRow("more than 3 kcal of nothing") << u"0"_s << u"0.8"_s << false;
    QTest::newRow("6 kcal too much of 100") << u"100"_s << u"26.5"_s << true;
    QTest::newRow("more than 6 kcal too much of 100") << u"100"_s << u"26.6"_s << false;
    QTest::newRow("6 kcal too little of 100") << u"100"_s << u"23.5"_s << true;
    QTest::newRow("more than 6 kcal too little of 100") << u"100"_s << u"23.4"_s << false;
}

void TestTabellenpruefung::energyHasSomeRoom()
{
    QFETCH(QString, kal);
    QFETCH(QString, protein);
    QFETCH(bool, gut);
    QCOMPARE(einwaende({probe(kal, protein)}), gut ? QStringList() : QStringList{u"energy"_s});
}

void TestTabellenpruefung::anExceptionExcusesItsCheckOnly()
{
    const QStringList zeile = Tabellenprobe::felder(u"Landterrine (Terrine de campagne)"_s);
    QCOMPARE(einwaende({zeile}), QStringList());
    QCOMPARE(einwaende({Tabellenprobe::geaendert(zeile, u"exception"_s, u"vita"_s)}),
             QStringList{u"b2"_s});
}

void TestTabellenpruefung::namesThatAreAlikeAreFound_data()
{
    QTest::addColumn<QString>("spalte");
    QTest::addColumn<QString>("name");
    QTest::newRow("the same German name") << u"name_de"_s << u"Ei, roh"_s;
    QTest::newRow("upper case only") << u"name_de"_s << u"EI, ROH"_s;
    QTest::newRow("the same English name") << u"name_en"_s << u"Egg, raw"_s;
}

void TestTabellenpruefung::namesThatAreAlikeAreFound()
{
    QFETCH(QString, spalte);
    QFETCH(QString, name);
    const QStringList ei = Tabellenprobe::felder(u"Ei, roh"_s);
    const QStringList apfel = Tabellenprobe::felder(u"Apfel, roh"_s);
    QCOMPARE(einwaende({ei, apfel}), QStringList());
    QCOMPARE(einwaende({ei, Tabellenprobe::geaendert(apfel, spalte, name)}),
             QStringList{u"alike"_s});
}

void TestTabellenpruefung::aSynonymIsTheSameFood_data()
{
    QTest::addColumn<QString>("spalte");
    QTest::addColumn<QString>("wert");
    QTest::newRow("another source") << u"source_id"_s << u"1"_s;
    QTest::newRow("another group") << u"group"_s << u"Eier"_s;
    QTest::newRow("another value") << u"na"_s << u"241"_s;
    QTest::newRow("another figure for rating") << u"sugars"_s << u"1.4"_s;
    QTest::newRow("another purine class") << u"purine"_s << u"high"_s;
    QTest::newRow("a food that is not there") << u"synonym"_s << u"Eierkuchen"_s;
    QTest::newRow("a synonym of itself") << u"synonym"_s << u"Palatschinke, ungefüllt"_s;
}

void TestTabellenpruefung::aSynonymIsTheSameFood()
{
    QFETCH(QString, spalte);
    QFETCH(QString, wert);
    const QStringList eigen = Tabellenprobe::felder(u"Pfannkuchen, hausgemacht"_s);
    const QStringList anders = Tabellenprobe::felder(u"Palatschinke, ungefüllt"_s);
    QCOMPARE(einwaende({eigen, anders}), QStringList());
    QCOMPARE(einwaende({anders, eigen}), QStringList());
    QVERIFY(
        einwaende({eigen, Tabellenprobe::geaendert(anders, spalte, wert)}).contains(u"synonym"_s));
}

void TestTabellenpruefung::aSourceStandsOnceUnlessMarked()
{
    const QStringList eigen = Tabellenprobe::felder(u"Pfannkuchen, hausgemacht"_s);
    const QStringList anders = Tabellenprobe::felder(u"Palatschinke, ungefüllt"_s);
    QCOMPARE(einwaende({eigen, Tabellenprobe::geaendert(anders, u"synonym"_s, QString())}),
             QStringList{u"synonym"_s});
}

QTEST_GUILESS_MAIN(TestTabellenpruefung)
#include "TestTabellenpruefung.moc"
