#include "Getraenke.h"

#include <QSet>
#include <QTest>

class TestGetraenke : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyNameHasItsAlcohol_data();
    void everyNameHasItsAlcohol();
    void oneNameIsSpelledInTwoWays_data();
    void oneNameIsSpelledInTwoWays();
    void bothOccasionsKnowTheSame150Names();
    void namesThatAreNoDrink_data();
    void namesThatAreNoDrink();
    void logLines_data();
    void logLines();
};

namespace {

struct Erwartet
{
    const char *name;
    float alkohol;
};

/// Every name but the two spellings of the light dry red wine, with its grams in 100 ml.
constexpr Erwartet namen[] = {
    {"Malzbier", 0.5F},
    {"malt liquor beer", 0.5F},
    {"Kölsch", 4.0F},
    {"Doppelbockbier", 6.3F},
    {"Alkoholarmes Bier", 0.5F},
    {"low alcohol beer", 0.5F},
    {"Leichtbier untergärig", 2.5F},
    {"light beer", 2.5F},
    {"Diät-Vollbier", 4.0F},
    {"diet beer", 4.0F},
    {"Altbier", 4.0F},
    {"Bockbier", 5.5F},
    {"Einfachbier", 1.2F},
    {"Exportbier", 4.0F},
    {"Lagerbier", 4.0F},
    {"lager beer", 4.0F},
    {"Nährbier", 1.3F},
    {"Pils", 4.0F},
    {"pilsner beer", 4.0F},
    {"Weizenbier", 4.0F},
    {"Apfelwein", 4.0F},
    {"cider", 4.0F},
    {"Dessertwein", 11.0F},
    {"dessert wine", 11.0F},
    {"Fruchtdessertwein", 10.7F},
    {"fruit dessert wine", 10.7F},
    {"Fruchtwein", 7.0F},
    {"fruit wine", 7.0F},
    {"Glühwein", 7.0F},
    {"Portwein", 15.4F},
    {"port", 15.4F},
    {"Madeira", 14.2F},
    {"madeira", 14.2F},
    {"Malaga", 9.5F},
    {"malaga", 9.5F},
    {"Marsala", 9.5F},
    {"Reiswein", 11.0F},
    {"rice wine", 11.0F},
    {"Rosewein", 7.9F},
    {"rose wine", 7.9F},
    {"Rotwein trocken leicht", 7.9F},
    {"Rotwein", 9.5F},
    {"red wine", 9.5F},
    {"Rotwein trocken schwer", 9.5F},
    {"red wine fullbodied", 9.5F},
    {"Sangria", 9.1F},
    {"Sherry trocken", 13.4F},
    {"Sherry dry", 13.4F},
    {"Sherry mild", 15.7F},
    {"Sherry medium", 15.7F},
    {"Tokayer", 14.2F},
    {"tokay", 14.2F},
    {"Valpolicella", 9.5F},
    {"Weißburgunder", 9.5F},
    {"pinot blanc", 9.5F},
    {"Weißwein trocken", 8.3F},
    {"white wine dry", 8.3F},
    {"Weißwein halbtrocken", 7.9F},
    {"white wine off-dry", 7.9F},
    {"Weißwein lieblich", 7.0F},
    {"white wine sweet", 7.0F},
    {"Asti spumante", 6.3F},
    {"Champagner", 9.5F},
    {"champagne", 9.5F},
    {"Sekt trocken", 8.7F},
    {"sparkling wine dry", 8.7F},
    {"Sekt lieblich", 9.0F},
    {"sparkling wine sweet", 9.0F},
    {"Diabetiker Sekt", 9.0F},
    {"sparkling wine diabetic", 9.0F},
    {"Eierlikör", 15.0F},
    {"egg nog", 15.0F},
    {"Anisette", 19.8F},
    {"Apfelkorn", 15.8F},
    {"Apfelschnaps", 16.6F},
    {"Brandy", 22.9F},
    {"Aquavit", 31.0F},
    {"Arrak", 30.0F},
    {"Bacardi", 35.6F},
    {"Birnenschnaps", 31.6F},
    {"pear brandy", 31.6F},
    {"Boonekamp", 31.6F},
    {"Bommerlunder", 30.0F},
    {"Branntwein", 27.0F},
    {"Calvados", 33.2F},
    {"Campari Bitter", 19.7F},
    {"Chantre", 28.4F},
    {"Cherry Brandy", 19.0F},
    {"Cocos Likör", 19.0F},
    {"coconut liquor", 19.0F},
    {"Cognac", 31.5F},
    {"Cointreau", 31.6F},
    {"Creme de Cassis", 12.6F},
    {"Curacao blue", 23.7F},
    {"Curacao triple sec", 30.8F},
    {"Doppelkorn", 30.0F},
    {"Doppelkorn (corn schnapps)", 30.0F},
    {"Dry Gin", 29.6F},
    {"Edelkirsch", 19.8F},
    {"Fruchtlikör", 23.7F},
    {"fruit liqueur", 23.7F},
    {"Gin", 35.6F},
    {"Grand Marnier", 31.6F},
    {"Grappa", 35.6F},
    {"Himbeergeist", 29.6F},
    {"Himbeergeist (raspberry spirits)", 29.6F},
    {"Honiglikör", 23.6F},
    {"honey liqueur", 23.6F},
    {"Kirschlikör", 16.5F},
    {"cherry liqueur", 16.5F},
    {"Kirschwasser", 31.6F},
    {"Kirschwasser (cherry brandy)", 31.6F},
    {"Korn", 25.3F},
    {"corn schnapps", 25.3F},
    {"Kräuterlikör", 32.0F},
    {"herbal liqueur", 32.0F},
    {"Maraschino", 23.7F},
    {"Obstler", 35.5F},
    {"Obstler (fruit brandy)", 35.5F},
    {"Orangenlikör", 19.0F},
    {"orange liqueur", 19.0F},
    {"Ouzo", 31.6F},
    {"Pfefferminzlikör", 23.7F},
    {"peppermint liqueur", 23.7F},
    {"Pfirsischlikör", 14.0F},
    {"peach liqueur", 14.0F},
    {"Rum braun", 35.0F},
    {"brown rum", 35.0F},
    {"Strohrum", 63.2F},
    {"Rum weiß", 29.6F},
    {"white rum", 29.6F},
    {"Samba", 16.3F},
    {"Sambucca", 31.6F},
    {"Tequilla", 30.0F},
    {"Underberg", 34.9F},
    {"Wacholder", 25.3F},
    {"Weinbrand", 30.0F},
    {"Weizenkorn", 25.3F},
    {"Weizenkorn (corn schnapps)", 25.3F},
    {"Williams Christ Birnenschnaps", 29.6F},
    {"Williams Christ (pear brandy)", 29.6F},
    {"Whisky Irish", 35.6F},
    {"Whisky Scotch", 34.0F},
    {"Wodka", 30.0F},
    {"vodka", 30.0F},
    {"Zwetschgenwasser", 31.6F},
    {"plum spirit", 31.6F},
    {"-", 0.0F},
    {" ", 0.0F},
};

float alkohol(const QString &name, Alkoholanlass anlass)
{
    const Getraenk *gefunden = getraenk(name, anlass);
    return gefunden != nullptr ? gefunden->alkohol : -1.0F;
}

} // namespace

void TestGetraenke::everyNameHasItsAlcohol_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<float>("erwartet");
    for (const Erwartet &zeile : namen) {
        QTest::addRow("\"%s\"", zeile.name) << QString::fromUtf8(zeile.name) << zeile.alkohol;
    }
}

void TestGetraenke::everyNameHasItsAlcohol()
{
    QFETCH(QString, name);
    QFETCH(float, erwartet);
    QCOMPARE_EQ(alkohol(name, Alkoholanlass::Wahl), erwartet);
    QCOMPARE_EQ(alkohol(name, Alkoholanlass::Menge), erwartet);
}

void TestGetraenke::oneNameIsSpelledInTwoWays_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<float>("beiWahl");
    QTest::addColumn<float>("beiMenge"); // -1: not known
    QTest::newRow("German name, known to both") << "Rotwein trocken leicht" << 7.9F << 7.9F;
    QTest::newRow("known when chosen") << "red wine lightbodiedt" << 7.9F << -1.0F;
    QTest::newRow("known when the quantity is set") << "red wine lightbodied" << -1.0F << 7.9F;
}

void TestGetraenke::oneNameIsSpelledInTwoWays()
{
    QFETCH(QString, name);
    QFETCH(float, beiWahl);
    QFETCH(float, beiMenge);
    QCOMPARE_EQ(alkohol(name, Alkoholanlass::Wahl), beiWahl);
    QCOMPARE_EQ(alkohol(name, Alkoholanlass::Menge), beiMenge);
}

void TestGetraenke::bothOccasionsKnowTheSame150Names()
{
    // 149 alike and one that each spells its own way.
    QCOMPARE(std::size(namen), std::size_t(149));
    for (const auto anlass : {Alkoholanlass::Wahl, Alkoholanlass::Menge}) {
        QSet<QString> bekannt;
        for (const Getraenk &zeile : getraenke) {
            for (const QStringView name : {zeile.deutsch, zeile.englisch, zeile.englischBeiMenge}) {
                if (!name.isNull() && getraenk(name, anlass) == &zeile) {
                    bekannt.insert(name.toString());
                }
            }
        }
        QCOMPARE(bekannt.size(), 150);
    }
}

void TestGetraenke::namesThatAreNoDrink_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("absent") << QString();
    QTest::newRow("empty") << "";
    QTest::newRow("in lower case") << "pils";
    QTest::newRow("in capitals") << "PILS";
    QTest::newRow("with a blank") << "Pils ";
    QTest::newRow("a part of a name") << "Rot";
    QTest::newRow("two blanks") << "  ";
    QTest::newRow("the usual spelling of Tequilla") << "Tequila";
    QTest::newRow("the usual spelling of Sambucca") << "Sambuca";
    QTest::newRow("the usual spelling of Pfirsischlikör") << "Pfirsichlikör";
    QTest::newRow("without umlaut") << "Kolsch";
}

void TestGetraenke::namesThatAreNoDrink()
{
    QFETCH(QString, name);
    QVERIFY(getraenk(name, Alkoholanlass::Wahl) == nullptr);
    QVERIFY(getraenk(name, Alkoholanlass::Menge) == nullptr);
}

void TestGetraenke::logLines_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("zeile");
    QTest::newRow("Malzbier") << "Malzbier"
                              << "< 0,5  Alkohol";
    QTest::newRow("malt liquor beer") << "malt liquor beer"
                                      << "< 0,5  Alkohol";
    QTest::newRow("Kölsch") << "Kölsch"
                            << "5  Alkohol";
    QTest::newRow("Doppelbockbier") << "Doppelbockbier"
                                    << "6  Alkohol";
    QTest::newRow("none for another") << "Pils" << QString();
}

void TestGetraenke::logLines()
{
    QFETCH(QString, name);
    QFETCH(QString, zeile);
    int mitZeile = 0;
    for (const Getraenk &drink : getraenke) {
        mitZeile += drink.protokollzeile.isNull() ? 0 : 1;
    }
    QCOMPARE(mitZeile, 3);
    for (const auto anlass : {Alkoholanlass::Wahl, Alkoholanlass::Menge}) {
        const Getraenk *gefunden = getraenk(name, anlass);
        QVERIFY(gefunden != nullptr);
        QCOMPARE(gefunden->protokollzeile.toString(), zeile);
    }
}

QTEST_GUILESS_MAIN(TestGetraenke)
#include "TestGetraenke.moc"
