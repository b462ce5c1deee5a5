// What may be an own measure of a food: it must be read as itself wherever an amount is typed.

#include "Masspruefung.h"
#include "Mengenangabe.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const Mass glas = {u"Glas"_s, u"Gläser"_s, u"glass"_s, u"glasses"_s, 200};

Massbefund geprueft(const QString &name, const QString &gramm = u"200"_s,
                    const QList<Mass> &andere = {})
{
    return pruefeMass({.eines = name, .gramm = gramm}, andere);
}

} // namespace

class TestMasspruefung : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale::German); }

    void whatIsLeftOpenIsCalledTheSame_data();
    void whatIsLeftOpenIsCalledTheSame();
    void blanksAroundAndBetweenDoNotCount();
    void gramsAreReadAsAnyAmount_data();
    void gramsAreReadAsAnyAmount();
    void whatIsNoMeasureIsTold_data();
    void whatIsNoMeasureIsTold();
    void everyNameIsLookedAt_data();
    void everyNameIsLookedAt();
    void namesThatAreNotReadAsSomethingElseAreTaken_data();
    void namesThatAreNotReadAsSomethingElseAreTaken();
    void twoMeasuresHaveNoNameInCommon_data();
    void twoMeasuresHaveNoNameInCommon();
    void whatIsTakenIsUnderstood();
    void onlyBlanksAreNothing();
    void aMeasureComesBackFromItsFields_data();
    void aMeasureComesBackFromItsFields();
    void theExampleShowsTwo_data();
    void theExampleShowsTwo();
};

void TestMasspruefung::whatIsLeftOpenIsCalledTheSame_data()
{
    QTest::addColumn<QStringList>("getippt"); // one, several, English one, English several
    QTest::addColumn<QStringList>("namen");
    QTest::newRow("all") << QStringList{u"Glas"_s, u"Gläser"_s, u"glass"_s, u"glasses"_s}
                         << QStringList{u"Glas"_s, u"Gläser"_s, u"glass"_s, u"glasses"_s};
    QTest::newRow("only one") << QStringList{u"EL"_s, {}, {}, {}}
                              << QStringList{u"EL"_s, u"EL"_s, u"EL"_s, u"EL"_s};
    QTest::newRow("no English") << QStringList{u"Glas"_s, u"Gläser"_s, {}, {}}
                                << QStringList{u"Glas"_s, u"Gläser"_s, u"Glas"_s, u"Gläser"_s};
    QTest::newRow("no English of several")
        << QStringList{u"Glas"_s, u"Gläser"_s, u"glass"_s, {}}
        << QStringList{u"Glas"_s, u"Gläser"_s, u"glass"_s, u"glass"_s};
    QTest::newRow("English only of several")
        << QStringList{u"Glas"_s, u"Gläser"_s, {}, u"glasses"_s}
        << QStringList{u"Glas"_s, u"Gläser"_s, u"Glas"_s, u"glasses"_s};
}

void TestMasspruefung::whatIsLeftOpenIsCalledTheSame()
{
    QFETCH(const QStringList, getippt);
    QFETCH(const QStringList, namen);
    const Massbefund befund =
        pruefeMass({getippt[0], getippt[1], getippt[2], getippt[3], u"200"_s}, {});
    QCOMPARE(befund.einwand, QString());
    QVERIFY(befund.mass.has_value());
    QCOMPARE(*befund.mass, (Mass{namen[0], namen[1], namen[2], namen[3], 200}));
}

void TestMasspruefung::blanksAroundAndBetweenDoNotCount()
{
    const Massbefund befund = geprueft(u"  großes \t Glas "_s, u" 200 "_s);
    QVERIFY(befund.mass.has_value());
    QCOMPARE(befund.mass->eines, u"großes Glas"_s);
}

void TestMasspruefung::gramsAreReadAsAnyAmount_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("gramm");
    QTest::newRow("digits") << u"200"_s << 200.0;
    QTest::newRow("a comma") << u"62,5"_s << 62.5;
    QTest::newRow("a point") << u"62.5"_s << 62.5;
    QTest::newRow("with the unit") << u"62,5 g"_s << 62.5;
    QTest::newRow("kilograms") << u"1,5 kg"_s << 1500.0;
    QTest::newRow("little") << u"0,01"_s << 0.01;
    QTest::newRow("most") << u"2000"_s << 2000.0;
}

void TestMasspruefung::gramsAreReadAsAnyAmount()
{
    QFETCH(const QString, text);
    QFETCH(const double, gramm);
    const Massbefund befund = geprueft(u"Glas"_s, text);
    QVERIFY2(befund.mass.has_value(), qPrintable(befund.einwand));
    QCOMPARE(befund.mass->gramm, gramm);
}

void TestMasspruefung::whatIsNoMeasureIsTold_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("gramm");
    QTest::addColumn<QString>("einwand");
    const QString schwer = u"Ein Maß wiegt mehr als 0 und höchstens 2000 g."_s;
    const QString keine = u"Das sind keine Gramm wie 62,5."_s;
    QTest::newRow("nothing") << QString() << QString() << u"Wie heißt das Maß?"_s;
    QTest::newRow("no name") << u" "_s << u"200"_s << u"Wie heißt das Maß?"_s;
    QTest::newRow("no grams") << u"Glas"_s << u" "_s << u"Wie viel Gramm wiegt eines?"_s;
    QTest::newRow("words for grams") << u"Glas"_s << u"viel"_s << keine;
    QTest::newRow("a number that is none") << u"Glas"_s << u"1,2,3"_s << keine;
    QTest::newRow("a fraction alone") << u"Glas"_s << u"½"_s << keine;
    QTest::newRow("milliliters for grams") << u"Glas"_s << u"200 ml"_s << keine;
    QTest::newRow("weightless") << u"Glas"_s << u"0"_s << schwer;
    QTest::newRow("less than weightless") << u"Glas"_s << u"-5"_s << schwer;
    QTest::newRow("too heavy") << u"Glas"_s << u"2000,1"_s << schwer;
    QTest::newRow("heavier than anybody eats") << u"Glas"_s << u"200 kg"_s << schwer;
    QTest::newRow("over nothing") << u"Glas"_s << u"1/0 g"_s << schwer;
    QTest::newRow("too long") << QString(41, u'a') << u"200"_s
                              << u"Ein Name hat höchstens 40 Zeichen."_s;
    QTest::newRow("a bell") << u"Gl\aas"_s << u"200"_s
                            << u"Ein Name hat keine unsichtbaren Zeichen."_s;
    QTest::newRow("the other direction")
        << u"Gl\u202Eas"_s << u"200"_s << u"Ein Name hat keine unsichtbaren Zeichen."_s;
    for (const char *name : {"g", "G", "kg", "Gramm", "kilo", "7", "1/2", "½", "0,5 l", "-Glas",
                             "halbe Tasse", "zwei", "Viertel", "ein Glas"}) {
        const QString text = QString::fromUtf8(name);
        QTest::addRow("read as something else: %s", name)
            << text << u"200"_s
            << u"„%1“ wird schon anders gelesen, als Zahl oder Einheit."_s.arg(text);
    }
}

void TestMasspruefung::whatIsNoMeasureIsTold()
{
    QFETCH(const QString, name);
    QFETCH(const QString, gramm);
    QFETCH(const QString, einwand);
    const Massbefund befund = geprueft(name, gramm);
    QCOMPARE(befund.einwand, einwand);
    QVERIFY(!befund.mass.has_value());
}

void TestMasspruefung::everyNameIsLookedAt_data()
{
    QTest::addColumn<Masseingabe>("eingabe");
    QTest::addColumn<bool>("gut");
    const auto mit = [](const QString &viele, const QString &einesEn, const QString &vieleEn) {
        return Masseingabe{u"Glas"_s, viele, einesEn, vieleEn, u"200"_s};
    };
    const QString lang(41, u'a');
    QTest::newRow("all well") << mit(u"Gläser"_s, u"glass"_s, u"glasses"_s) << true;
    QTest::newRow("several: a unit") << mit(u"kg"_s, {}, {}) << false;
    QTest::newRow("English: a unit") << mit({}, u"g"_s, {}) << false;
    QTest::newRow("English, several: a unit") << mit({}, {}, u"grams"_s) << false;
    QTest::newRow("several: half of one") << mit(u"halbes Glas"_s, {}, {}) << false;
    QTest::newRow("several: two of one") << mit(u"zwei Glas"_s, {}, {}) << false;
    QTest::newRow("several: too long") << mit(lang, {}, {}) << false;
    QTest::newRow("English: too long") << mit({}, lang, {}) << false;
    QTest::newRow("English, several: too long") << mit({}, {}, lang) << false;
}

void TestMasspruefung::everyNameIsLookedAt()
{
    QFETCH(const Masseingabe, eingabe);
    QFETCH(const bool, gut);
    const Massbefund befund = pruefeMass(eingabe, {});
    QCOMPARE(befund.mass.has_value(), gut);
    QCOMPARE(befund.einwand.isEmpty(), gut);
}

void TestMasspruefung::namesThatAreNotReadAsSomethingElseAreTaken_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name :
         {"EL", "Esslöffel", "Stk.", "ml", "l", "großes Glas", "Glas zu 0,3 l", "Omas \"Napf\"",
          "Becher (blau)", "x", "Gros", "Maß", "Zehntel", "<b>Glas</b>"}) {
        QTest::newRow(name) << QString::fromUtf8(name);
    }
    QTest::newRow("as long as may be") << QString(40, u'a');
}

void TestMasspruefung::namesThatAreNotReadAsSomethingElseAreTaken()
{
    QFETCH(const QString, name);
    const Massbefund befund = geprueft(name);
    QCOMPARE(befund.einwand, QString());
    QCOMPARE(befund.mass->eines, name);
}

void TestMasspruefung::twoMeasuresHaveNoNameInCommon_data()
{
    QTest::addColumn<Masseingabe>("eingabe");
    QTest::addColumn<bool>("gut");
    const QString gramm = u"100"_s;
    QTest::newRow("the same") << Masseingabe{u"Glas"_s, {}, {}, {}, gramm} << false;
    QTest::newRow("in other capitals") << Masseingabe{u"GLAS"_s, {}, {}, {}, gramm} << false;
    QTest::newRow("one as several of the other")
        << Masseingabe{u"Gläser"_s, {}, {}, {}, gramm} << false;
    QTest::newRow("one as the other's English")
        << Masseingabe{u"glass"_s, u"x"_s, u"x"_s, u"x"_s, gramm} << false;
    QTest::newRow("several in common")
        << Masseingabe{u"Kelch"_s, u"Gläser"_s, u"x"_s, u"x"_s, gramm} << false;
    QTest::newRow("English in common")
        << Masseingabe{u"Kelch"_s, u"Kelche"_s, u"glass"_s, u"x"_s, gramm} << false;
    QTest::newRow("English of several in common")
        << Masseingabe{u"Kelch"_s, u"Kelche"_s, u"goblet"_s, u"glasses"_s, gramm} << false;
    QTest::newRow("the beginning in common")
        << Masseingabe{u"Gl"_s, u"Gls"_s, u"gl"_s, u"gls"_s, gramm} << true;
    QTest::newRow("longer than the other")
        << Masseingabe{u"Glas zu 0,3 l"_s, {}, {}, {}, gramm} << true;
}

void TestMasspruefung::twoMeasuresHaveNoNameInCommon()
{
    QFETCH(const Masseingabe, eingabe);
    QFETCH(const bool, gut);
    const Mass andere = {u"Napf"_s, u"Näpfe"_s, u"mug"_s, u"mugs"_s, 100};
    const Massbefund befund = pruefeMass(eingabe, {andere, glas});
    QCOMPARE(befund.einwand,
             gut ? QString() : u"So heißt schon ein anderes Maß dieses Lebensmittels."_s);
    QCOMPARE(befund.mass.has_value(), gut);
}

void TestMasspruefung::whatIsTakenIsUnderstood()
{
    const Mass mass = *geprueft(u"Omas Napf"_s, u"62,5"_s).mass;
    const Mengenergebnis drei = leseMenge(u"drei omas napf"_s, {glas, mass});
    QVERIFY(drei.angabe.has_value());
    QCOMPARE(drei.angabe->gramm, 187.5F); // 3 x 62.5
}

void TestMasspruefung::onlyBlanksAreNothing()
{
    QVERIFY(Masseingabe().leer());
    QVERIFY((Masseingabe{u" "_s, {}, u"\t"_s, {}, u" "_s}).leer());
    QVERIFY(!(Masseingabe{u"x"_s, {}, {}, {}, {}}).leer());
    QVERIFY(!(Masseingabe{{}, u"x"_s, {}, {}, {}}).leer());
    QVERIFY(!(Masseingabe{{}, {}, u"x"_s, {}, {}}).leer());
    QVERIFY(!(Masseingabe{{}, {}, {}, u"x"_s, {}}).leer());
    QVERIFY(!(Masseingabe{{}, {}, {}, {}, u"5"_s}).leer());
}

void TestMasspruefung::aMeasureComesBackFromItsFields_data()
{
    QTest::addColumn<double>("gramm");
    QTest::addColumn<QString>("text");
    QTest::newRow("whole") << 200.0 << u"200"_s;
    QTest::newRow("most") << 2000.0 << u"2000"_s;
    QTest::newRow("with zeros at the end") << 1000.0 << u"1000"_s;
    QTest::newRow("with a comma") << 62.5 << u"62,5"_s;
    QTest::newRow("many digits") << 12.345678 << u"12,345678"_s;
    QTest::newRow("little") << 0.01 << u"0,01"_s;
}

void TestMasspruefung::aMeasureComesBackFromItsFields()
{
    QFETCH(const double, gramm);
    QFETCH(const QString, text);
    Mass mass = glas;
    mass.gramm = gramm;
    QCOMPARE(alsEingabe(mass).gramm, text);
    QCOMPARE(pruefeMass(alsEingabe(mass), {}), (Massbefund{mass, {}}));
}

void TestMasspruefung::theExampleShowsTwo_data()
{
    QTest::addColumn<Regelsprache>("sprache");
    QTest::addColumn<double>("gramm");
    QTest::addColumn<QString>("beispiel");
    QTest::newRow("German") << Regelsprache::Deutsch << 200.0 << u"2 Gläser = 400 g"_s;
    QTest::newRow("English") << Regelsprache::Englisch << 200.0 << u"2 glasses = 400 g"_s;
    QTest::newRow("a comma") << Regelsprache::Deutsch << 31.25 << u"2 Gläser = 62,5 g"_s;
    QTest::newRow("little") << Regelsprache::Deutsch << 0.01 << u"2 Gläser = 0,02 g"_s;
}

void TestMasspruefung::theExampleShowsTwo()
{
    QFETCH(const Regelsprache, sprache);
    QFETCH(const double, gramm);
    QFETCH(const QString, beispiel);
    Mass mass = glas;
    mass.gramm = gramm;
    QCOMPARE(massbeispiel(mass, sprache), beispiel);
}

QTEST_APPLESS_MAIN(TestMasspruefung)
#include "TestMasspruefung.moc"
