// The household measures as people write them, and which of them are for a food.

#include "Portionendatei.h"
#include "Tabellendateitest.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString brot = u"Brot und Brötchen"_s;
const QString kopf = u"group;name;except;de;de_many;en;en_many;grams;keys;note"_s;

Portionendatei::Ergebnis gelesen(const QStringList &zeilen)
{
    return Portionendatei::lesen(tabelle(kopf, zeilen));
}

/// A line for bread; the measure's English is of no matter.
QString zeile(const QString &name, const QString &ausser, const QString &mass, int gramm)
{
    return u"%1;%2;%3;%4;%4n;x;xs;%5;SGE;"_s.arg(brot, name, ausser, mass).arg(gramm);
}

/// The measures of a bread with their grams: "Scheibe 50, Stück 10".
QString masse(const QStringList &zeilen, const QString &name)
{
    QStringList liste;
    for (const Portionszeile &eine :
         Portionendatei::zeilenFuer(gelesen(zeilen).zeilen, brot, name)) {
        liste.append(u"%1 %2"_s.arg(eine.mass.eines).arg(eine.mass.gramm));
    }
    return liste.join(u", "_s);
}

} // namespace

class TestPortionendatei : public Tabellendateitest
{
    Q_OBJECT

public:
    TestPortionendatei()
        : Tabellendateitest(kopf, {brot + u";;;Schei"_s, 2, u"4 fields instead of 10"_s})
    {
    }

private Q_SLOTS:
    void aBrokenLineIsLeftOutAndObjectedTo_data();
    void aBrokenLineIsLeftOutAndObjectedTo();
    void gramsAtTheirLimitsAreTaken_data();
    void gramsAtTheirLimitsAreTaken();
    void everyColumnIsRead();
    void aLineIsForTheFoodsThatItNames_data();
    void aLineIsForTheFoodsThatItNames();
    void aFoodOfAnotherGroupHasNoneOfIt();
    void whatIsForAFoodGoesBeforeWhatIsForItsGroup();

private:
    Gelesenes lies(const QByteArray &bytes) const override
    {
        const auto [zeilen, einwaende] = Portionendatei::lesen(bytes);
        return {zeilen.isEmpty(), einwaende};
    }
};

void TestPortionendatei::aBrokenLineIsLeftOutAndObjectedTo_data()
{
    schlechteZeilen();
    schlecht("an unknown group", u"Brote;;;a;b;c;d;5;SGE;"_s, u"format"_s,
             u"\"Brote\" is unknown (column group)"_s);
    schlecht("an unknown second group", brot + u"|Brote;;;a;b;c;d;5;SGE;"_s, u"format"_s,
             u"\"Brote\" is unknown (column group)"_s);
    schlecht("no name", brot + u";;; ;b;c;d;5;SGE;"_s, u"name"_s,
             u"The measure has no name in the column de"_s);
    schlecht("no plural", brot + u";;;a;;c;d;5;SGE;"_s, u"name"_s,
             u"The measure has no name in the column de_many"_s);
    schlecht("no English", brot + u";;;a;b;;d;5;SGE;"_s, u"name"_s,
             u"The measure has no name in the column en"_s);
    schlecht("no English plural", brot + u";;;a;b;c;;5;SGE;"_s, u"name"_s,
             u"The measure has no name in the column en_many"_s);
    schlecht("no grams", brot + u";;;a;b;c;d;;SGE;"_s, u"format"_s,
             u"\"\" is no number (column grams)"_s);
    schlecht("grams with a comma", brot + u";;;a;b;c;d;7,5;SGE;"_s, u"format"_s,
             u"\"7,5\" is no number (column grams)"_s);
    schlecht("no finite grams", brot + u";;;a;b;c;d;inf;SGE;"_s, u"format"_s,
             u"\"inf\" is no number (column grams)"_s);
    schlecht("weightless", brot + u";;;a;b;c;d;0;SGE;"_s, u"grams"_s,
             u"0 g is not above 0 and at most 2000"_s);
    schlecht("less than weightless", brot + u";;;a;b;c;d;-1;SGE;"_s, u"grams"_s,
             u"-1 g is not above 0 and at most 2000"_s);
    schlecht("too heavy", brot + u";;;a;b;c;d;2000.1;SGE;"_s, u"grams"_s,
             u"2000.1 g is not above 0 and at most 2000"_s);
}

void TestPortionendatei::aBrokenLineIsLeftOutAndObjectedTo()
{
    QFETCH(const QString, zeile);
    const auto [zeilen, einwaende] =
        gelesen({u"# a remark"_s, zeile, ::zeile({}, {}, u"Scheibe"_s, 50)});
    QCOMPARE(zeilen.size(), 1);
    QCOMPARE(zeilen.first().zeile, 4);
    istDerEinwand(einwaende, 3);
}

void TestPortionendatei::gramsAtTheirLimitsAreTaken_data()
{
    QTest::addColumn<QString>("feld");
    QTest::addColumn<double>("gramm");
    QTest::newRow("little") << u"0.01"_s << 0.01;
    QTest::newRow("most") << u"2000"_s << 2000.0;
}

void TestPortionendatei::gramsAtTheirLimitsAreTaken()
{
    QFETCH(const QString, feld);
    QFETCH(const double, gramm);
    const auto [zeilen, einwaende] = gelesen({brot + u";;;a;b;c;d;"_s + feld + u";SGE;"_s});
    QVERIFY(einwaende.isEmpty());
    QCOMPARE(zeilen.first().mass.gramm, gramm);
}

void TestPortionendatei::everyColumnIsRead()
{
    const auto [zeilen, einwaende] = gelesen(
        {u"Eier|Hefe;roh + mit|weich;hart|alt;Stück;Stücke;piece;pieces;7.5;SGE DGP;Nearest: x"_s});
    QVERIFY(einwaende.isEmpty());
    const Portionszeile &eine = zeilen.first();
    QCOMPARE(eine.zeile, 2);
    QCOMPARE(eine.gruppen, (QStringList{u"Eier"_s, u"Hefe"_s}));
    QCOMPARE(eine.namen, (QList<QStringList>{{u"roh"_s, u"mit"_s}, {u"weich"_s}}));
    QCOMPARE(eine.ausser, (QStringList{u"hart"_s, u"alt"_s}));
    QCOMPARE(eine.mass,
             (Mass{u"Stück"_s, u"Stücke"_s, u"piece"_s, u"pieces"_s, 7.5, {u"SGE"_s, u"DGP"_s}}));
    QCOMPARE(eine.notiz, u"Nearest: x"_s);
    QVERIFY(!eine.fuerGruppe());
}

void TestPortionendatei::aLineIsForTheFoodsThatItNames_data()
{
    QTest::addColumn<QString>("muster");
    QTest::addColumn<QString>("ausser");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("passt");
    const auto fall = [](const char *zeilenname, const QString &muster, const QString &ausser,
                         const QString &name, bool passt) {
        QTest::newRow(zeilenname) << muster << ausser << name << passt;
    };
    fall("the whole group", {}, {}, u"Toast"_s, true);
    fall("a piece of the name", u"oas"_s, {}, u"Toast"_s, true);
    fall("another name", u"Zopf"_s, {}, u"Toast"_s, false);
    fall("in other capitals", u"toast"_s, {}, u"Toast"_s, false);
    fall("one of two", u"Zopf|Toast"_s, {}, u"Toast"_s, true);
    fall("both of two", u"Toast + hell"_s, {}, u"Toast, hell"_s, true);
    fall("both of two the other way", u"hell + Toast"_s, {}, u"Toast, hell"_s, true);
    fall("only one of both", u"Toast + hell"_s, {}, u"Toast, dunkel"_s, false);
    fall("left out", u"Toast"_s, u"dunkel"_s, u"Toast, dunkel"_s, false);
    fall("left out of the group", {}, u"Zopf|Toast"_s, u"Toast"_s, false);
    fall("something else left out", {}, u"Zopf"_s, u"Toast"_s, true);
}

void TestPortionendatei::aLineIsForTheFoodsThatItNames()
{
    QFETCH(const QString, muster);
    QFETCH(const QString, ausser);
    QFETCH(const QString, name);
    QFETCH(const bool, passt);
    QCOMPARE(masse({zeile(muster, ausser, u"Scheibe"_s, 50)}, name),
             passt ? u"Scheibe 50"_s : QString());
}

void TestPortionendatei::aFoodOfAnotherGroupHasNoneOfIt()
{
    const auto zeilen = gelesen({zeile({}, {}, u"Scheibe"_s, 50)}).zeilen;
    QVERIFY(Portionendatei::zeilenFuer(zeilen, u"Eier"_s, u"Toast"_s).isEmpty());
    QVERIFY(Portionendatei::zeilenFuer(zeilen, {}, u"Toast"_s).isEmpty());
}

void TestPortionendatei::whatIsForAFoodGoesBeforeWhatIsForItsGroup()
{
    const QStringList zeilen = {zeile({}, {}, u"Scheibe"_s, 50), zeile({}, {}, u"Portion"_s, 60),
                                zeile(u"Toast"_s, {}, u"Stück"_s, 10),
                                zeile(u"Toast"_s, {}, u"Scheibe"_s, 20)};
    QCOMPARE(masse(zeilen, u"Toast"_s), u"Stück 10, Scheibe 20, Portion 60"_s);
    QCOMPARE(masse(zeilen, u"Zopf"_s), u"Scheibe 50, Portion 60"_s);
}

QTEST_APPLESS_MAIN(TestPortionendatei)
#include "TestPortionendatei.moc"
