#include "Gruppengrenzen.h"
#include "Vergleichsprobe.h"

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
    void everyGroupHasItsLimits();
    void aLimitMayBeReached_data();
    void aLimitMayBeReached();
    void anExceptionExcusesItsCheckOnly();
    void namesThatAreAlikeAreFound_data();
    void namesThatAreAlikeAreFound();
    void aSynonymIsTheSameFood_data();
    void aSynonymIsTheSameFood();
    void aSourceStandsOnceUnlessMarked();
};

namespace {

/// The checks that object, each once, to a table of these lines, whatever the source says of them.
QStringList einwaende(const QList<QStringList> &zeilen)
{
    const auto [tabelle, formfehler] = Tabellendatei::lesen(Tabellenprobe::datei(zeilen));
    const auto vergleich = Vergleichsprobe::einigMit(tabelle);
    return Vergleichsprobe::regeln(formfehler + Tabellenpruefung::pruefen(tabelle, vergleich));
}

/// Butter milk made up so that its energy is exactly what its nutrients give.
QStringList probe(const QString &kal, const QString &protein)
{
    QStringList zeile = Tabellenprobe::felder(u"529"_s);
    const QList<std::pair<QString, QString>> werte = {
        {u"kal"_s, kal},   {u"protein"_s, protein}, {u"fett"_s, u"0"_s},     {u"kh"_s, u"0"_s},
        {u"bs"_s, u"0"_s}, {u"sugars"_s, u"0"_s},   {u"saturated"_s, u"0"_s}};
    for (const auto &[spalte, wert] : werte) {
        zeile = Tabellenprobe::geaendert(zeile, spalte, wert);
    }
    return zeile;
}

/// A line that names the pancake, source 1522, once more.
QStringList synonym()
{
    for (const QStringList &zeile : Tabellenprobe::ausgelieferteZeilen()) {
        if (Tabellenprobe::feld(zeile, u"source_id"_s) == u"1522" &&
            !Tabellenprobe::feld(zeile, u"synonym"_s).isEmpty()) {
            return zeile;
        }
    }
    return {};
}

} // namespace

void TestTabellenpruefung::theShippedTableIsSound()
{
    const auto [tabelle, formfehler] =
        Tabellendatei::lesen(Tabellenprobe::dateiinhalt(LEBENSMITTELTABELLE));
    QVERIFY(formfehler.isEmpty());
    for (const Beanstandung &eine :
         Tabellenpruefung::pruefen(tabelle, Vergleichsprobe::ausgeliefert())) {
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
    const QString ei = u"290"_s;
    const QString rapsoel = u"600"_s;
    const QString apfel = u"378"_s;
    const QString bier = u"816"_s;
    const QString zucker = u"470"_s;
    const QString essig = u"1693"_s;
    zeile("nothing is broken", ei, u"kal"_s, u"140"_s, QString());
    zeile("energy in kJ", ei, u"kal"_s, u"586"_s, u"energy"_s);
    zeile("two digits of the energy swapped", ei, u"kal"_s, u"410"_s, u"energy"_s);
    zeile("a decimal point lost in protein", ei, u"protein"_s, u"126"_s, u"energy"_s);
    zeile("fat of the line above", ei, u"fett"_s, u"31.3"_s, u"energy"_s);
    zeile("carbohydrate left out", apfel, u"kh"_s, u"0"_s, u"energy"_s);
    zeile("alcohol left out", bier, u"alcohol"_s, u"0"_s, u"energy"_s);
    zeile("fibre counted as carbohydrate", u"198"_s, u"kh"_s, u"70"_s, u"energy"_s);
    zeile("more than 100 g in 100 g", zucker, u"bs"_s, u"3"_s, u"sum"_s);
    zeile("salt in grams taken for sodium", u"14086"_s, u"na"_s, u"97000"_s, u"sum"_s);
    zeile("more sugars than carbohydrate", apfel, u"sugars"_s, u"13"_s, u"value"_s);
    zeile("more saturated fat than fat", ei, u"saturated"_s, u"29"_s, u"value"_s);
    zeile("negative cholesterol", ei, u"chol"_s, u"-350"_s, u"value"_s);
    zeile("negative sugars", apfel, u"sugars"_s, u"-1"_s, u"value"_s);
    zeile("vitamin C in oil", rapsoel, u"vitc"_s, u"0.1"_s, u"vitc"_s);
    zeile("vitamin C of the next column in meat", u"639"_s, u"vitc"_s, u"20"_s, u"vitc"_s);
    zeile("vitamin A in micrograms of carotene", apfel, u"vita"_s, u"600"_s, u"vita"_s);
    zeile("vitamin B1 in micrograms", apfel, u"b1"_s, u"20"_s, u"b1"_s);
    zeile("vitamin B2 in beer", bier, u"b2"_s, u"0.3"_s, u"b2"_s);
    zeile("vitamin B6 in sugar", zucker, u"b6"_s, u"0.5"_s, u"b6"_s);
    zeile("cholesterol in a plant", apfel, u"chol"_s, u"50"_s, u"chol"_s);
    zeile("sodium of a salted food in fruit", apfel, u"na"_s, u"300"_s, u"na"_s);
    zeile("a digit too many in potassium", apfel, u"ka"_s, u"1200"_s, u"ka"_s);
    zeile("calcium in another unit", apfel, u"ca"_s, u"5000"_s, u"ca"_s);
    zeile("phosphorus of cheese in fruit", apfel, u"ph"_s, u"600"_s, u"ph"_s);
    zeile("magnesium with its point lost", apfel, u"ma"_s, u"65"_s, u"ma"_s);
    zeile("the potassium in place of the iron", apfel, u"fe"_s, u"120"_s, u"fe"_s);
    zeile("alcohol in fruit", apfel, u"alcohol"_s, u"0.1"_s, u"alcohol"_s);
    zeile("salt, of which there can't be too much sodium", u"634"_s, u"na"_s, u"40100"_s,
          QString());
    zeile("an offal moved to the beef", u"657"_s, u"group"_s, u"Rind- und Kalbfleisch"_s,
          u"vita"_s);
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
    zeile("a purine class without a reason", ei, u"purine_class"_s, u"high"_s, u"mark"_s);
    zeile("a kind of sugar without a reason", ei, u"sugar_kind"_s, u"no fructose"_s, u"mark"_s);
    zeile("a mark without a reason", ei, u"marks"_s, u"caffeine"_s, u"mark"_s);
    zeile("cooked weight without a reason", ei, u"ready_g"_s, u"280"_s, u"mark"_s);
    zeile("less than it was", ei, u"ready_g"_s, u"80"_s, u"mark"_s);
    zeile("an exception without a reason", essig, u"note"_s, QString(), u"mark"_s);
    zeile("an exception that is needed is taken away", essig, u"exception"_s, QString(),
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

void TestTabellenpruefung::everyGroupHasItsLimits()
{
    for (const Lebensmittelgruppe &gruppe : lebensmittelgruppen()) {
        QCOMPARE(QByteArray(gruppengrenzen(gruppe).gruppe), QByteArray(gruppe.name));
    }
    // A group that nobody gave limits may hold nothing.
    const Gruppengrenzen &keine = gruppengrenzen({"Konfekt", {}, 0});
    QCOMPARE(keine.grenze(Naehrwert::na), 0.0);
    QCOMPARE(keine.alkohol, 0.0);
}

void TestTabellenpruefung::aLimitMayBeReached_data()
{
    QTest::addColumn<QString>("spalte");
    QTest::addColumn<QString>("wert");
    QTest::addColumn<bool>("gut");
    const QList<std::tuple<QString, QString, QString>> grenzen = {
        {u"chol"_s, u"1300"_s, u"1301"_s}, {u"na"_s, u"200"_s, u"201"_s},
        {u"ka"_s, u"150"_s, u"151"_s},     {u"ca"_s, u"150"_s, u"151"_s},
        {u"ph"_s, u"600"_s, u"601"_s},     {u"ma"_s, u"15"_s, u"15.1"_s},
        {u"fe"_s, u"5.5"_s, u"5.6"_s},     {u"vita"_s, u"500"_s, u"501"_s},
        {u"b1"_s, u"0.25"_s, u"0.26"_s},   {u"b2"_s, u"0.6"_s, u"0.61"_s},
        {u"b6"_s, u"0.4"_s, u"0.41"_s},    {u"vitc"_s, u"0"_s, u"0.1"_s},
        {u"alcohol"_s, u"0"_s, u"0.1"_s}};
    for (const auto &[spalte, erreicht, ueberschritten] : grenzen) {
        QTest::addRow("%s reached", qPrintable(spalte)) << spalte << erreicht << true;
        QTest::addRow("%s passed", qPrintable(spalte)) << spalte << ueberschritten << false;
    }
}

/// The limits of the eggs, each from both sides.
void TestTabellenpruefung::aLimitMayBeReached()
{
    QFETCH(QString, spalte);
    QFETCH(QString, wert);
    QFETCH(bool, gut);
    const QStringList ei = Tabellenprobe::felder(u"290"_s);
    QCOMPARE(einwaende({Tabellenprobe::geaendert(ei, spalte, wert)}),
             gut ? QStringList() : QStringList{spalte});
}

void TestTabellenpruefung::anExceptionExcusesItsCheckOnly()
{
    const QStringList zeile = Tabellenprobe::felder(u"774"_s);
    QCOMPARE(einwaende({zeile}), QStringList());
    QCOMPARE(einwaende({Tabellenprobe::geaendert(zeile, u"exception"_s, u"vita"_s)}),
             QStringList{u"b2"_s});
}

void TestTabellenpruefung::namesThatAreAlikeAreFound_data()
{
    QTest::addColumn<QString>("spalte");
    QTest::addColumn<QString>("name");
    const QStringList ei = Tabellenprobe::felder(u"290"_s);
    QTest::newRow("the same German name") << u"name_de"_s << ei.at(0);
    QTest::newRow("upper case only") << u"name_de"_s << ei.at(0).toUpper();
    QTest::newRow("the same English name") << u"name_en"_s << ei.at(1);
}

void TestTabellenpruefung::namesThatAreAlikeAreFound()
{
    QFETCH(QString, spalte);
    QFETCH(QString, name);
    const QStringList ei = Tabellenprobe::felder(u"290"_s);
    const QStringList apfel = Tabellenprobe::felder(u"378"_s);
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
    QTest::newRow("other purines") << u"purine_from"_s << u"Hühnerei"_s;
    QTest::newRow("a food that is not there") << u"synonym"_s << u"Eierkuchen"_s;
    QTest::newRow("a synonym of itself") << u"synonym"_s << synonym().first();
}

void TestTabellenpruefung::aSynonymIsTheSameFood()
{
    QFETCH(QString, spalte);
    QFETCH(QString, wert);
    const QStringList eigen = Tabellenprobe::felder(u"1522"_s);
    const QStringList anders = synonym();
    QCOMPARE(einwaende({eigen, anders}), QStringList());
    QCOMPARE(einwaende({anders, eigen}), QStringList());
    QVERIFY(
        einwaende({eigen, Tabellenprobe::geaendert(anders, spalte, wert)}).contains(u"synonym"_s));
}

void TestTabellenpruefung::aSourceStandsOnceUnlessMarked()
{
    const QStringList eigen = Tabellenprobe::felder(u"1522"_s);
    const QStringList anders = synonym();
    QCOMPARE(einwaende({eigen, Tabellenprobe::geaendert(anders, u"synonym"_s, QString())}),
             QStringList{u"synonym"_s});
}

QTEST_GUILESS_MAIN(TestTabellenpruefung)
#include "TestTabellenpruefung.moc"
