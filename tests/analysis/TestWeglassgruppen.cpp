// Whoever must not eat something is never offered it: every food of the shipped table is looked at.

#include "Weglassgruppen.h"
#include "Zusatzquelle.h"

#include <QTest>

using namespace Qt::StringLiterals;
using enum Weglassgruppe;

class TestWeglassgruppen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void everyFoodGroupIsListed();
    void ownFoodsMayHoldAnything();
    void whatIsFreeOfAGroupSaysNothingOfIt_data();
    void whatIsFreeOfAGroupSaysNothingOfIt();
    void whatHoldsAlcoholInTheTableCountsAsHoldingIt();
    void porkIsMeat();
    void foodsAreJudgedOneByOne_data();
    void foodsAreJudgedOneByOne();
    void aGroupIsNotLeftOutAltogether_data();
    void aGroupIsNotLeftOutAltogether();
    void namesAreUnambiguous();

private:
    QStringList freieVon(Weglassgruppe gruppe) const;
    Weglassgruppen kann(const QString &name) const;

    Zusatzquelle m_quelle{u":/Zusatzwerte.csv"_s};
};

void TestWeglassgruppen::initTestCase()
{
    QCOMPARE(m_quelle.hindernis(), QString());
    QVERIFY(m_quelle.wissen().tabelle().size() > 1000);
}

/// The foods of the shipped table that are offered while the group is left out.
QStringList TestWeglassgruppen::freieVon(Weglassgruppe gruppe) const
{
    QStringList namen;
    const Zusatztabelle &tabelle = m_quelle.wissen().tabelle();
    for (auto food = tabelle.cbegin(); food != tabelle.cend(); ++food) {
        if (!(kannEnthalten(food->gruppe, food.key()) & gruppe)) {
            namen << food.key();
        }
    }
    namen.sort();
    return namen;
}

Weglassgruppen TestWeglassgruppen::kann(const QString &name) const
{
    const Zusatzwerte *zusatz = m_quelle.wissen().zusatz(name);
    return kannEnthalten(zusatz != nullptr ? zusatz->gruppe : nullptr, name);
}

/// A group without a line would hold everything; that is safe, but no group is meant so.
void TestWeglassgruppen::everyFoodGroupIsListed()
{
    for (const Lebensmittelgruppe &gruppe : lebensmittelgruppen()) {
        QVERIFY2(kannEnthalten(&gruppe, u"?"_s) != alleWeglassgruppen() ||
                     QByteArray(gruppe.name).startsWith("Gerichte mit") ||
                     QByteArray(gruppe.name).startsWith("Suppen"),
                 gruppe.name);
    }
}

void TestWeglassgruppen::ownFoodsMayHoldAnything()
{
    QCOMPARE(kannEnthalten(nullptr, u"Apfel"_s), alleWeglassgruppen());
    const Lebensmittelgruppe fremd = {"Anderes", {}, 0};
    QCOMPARE(kannEnthalten(&fremd, u"Apfel"_s), alleWeglassgruppen());
}

/// What gives a food away, and the foods that hold the word without being it.
void TestWeglassgruppen::whatIsFreeOfAGroupSaysNothingOfIt_data()
{
    QTest::addColumn<Weglassgruppe>("gruppe");
    QTest::addColumn<QString>("verdacht");
    QTest::addColumn<QString>("unschuldig");

    QTest::newRow("meat")
        << Fleisch
        << u"leisch|Schinken|schinken|Speck|speck|alami|wurst|Wurst|würst|Würst|Kalb|kalb|Rind|"
           u"rind|"
           u"Schwein|schwein|Lamm|lamm|Huhn|Hähnch|Hack|hack|Ragout|ragout|Gulasch|gulasch|Leber|"
           u"leber|Pute|Wild|Hirsch|Reh|Hase|Kaninchen|Pferd|schmalz|Terrine|Pastete|Bolognese|"
           u"brühe|"
           u"Cordon|Tatar|Gummi|Saltim|Vitello|Nasi|Bami|Geflügel|Laugen|Fertigrösti|Risotto|risotto"_s
        << u"Kokosfleisch|Krebsfleisch|Wildlachs|Palatschinken|Butterschmalz|Gemüsebrühe|vegan|"
           u"vegetarisch|Haselnuss|Haselnüsse|Flammkuchen-Teig"_s;
    QTest::newRow("pork") << Schwein
                          << u"Schwein|schwein|Schinken|schinken|Speck|speck|alami|wurst|Wurst|"
                             u"würst|Würst|Faschiert|schmalz|Gummi|Leberk|Mortad|Coppa|Kassel"_s
                          << u"Palatschinken|Butterschmalz|Rinderschinken|vegan"_s;
    QTest::newRow("milk")
        << Milch
        << u"Milch|milch|Käse|käse|Joghurt|joghurt|Sahne|sahne|Rahm|rahm|Obers "
           u"(|Obers)|Butter|butter|"
           u"Quark|Topfen|Molke|Crème|Creme|creme|okolade|Latte|Cappuc|Ricotta|Mozzar|Parmesan|"
           u"gratin|"
           u"Lasagne|Pizza (|Püree|püree|Eis (|Pudding|Kuchen|kuchen "
           u"(|Torte|torte|Waffeln|Croissant|"
           u"croissant|Tzatziki|Camembert|Brie|Feta|Emmentaler|Gouda|Greyerzer|Appenzeller|"
           u"Surimi|Fertigrösti|Cocktailsoße|Jägersoße|Remoulade|hollandaise|Rahmspinat|paniert"_s
        << u"Hafermilch|Mandelmilch|Reismilch|Sojamilch|Kokosmilch|-Alternative|Käsealternative|"
           u"Kakaobutter|Erdnussbutter|Avocadocreme"_s;
    QTest::newRow("fish")
        << Fisch
        << u"Fisch|fisch|Lachs|lachs|Thun|Sardell|Sardin|Hering|Forell|Garnel|Krabb|"
           u"Shrimp|Muschel|muschel|Krebs|Surimi|Kabeljau|Worcester|Scampi|"
           u"Calamar|Anchov|Remoul|Nudelsalat|Cocktailsoße|Nasi|Bami|"
           u"Tintenfisch"_s
        << u"Lammlachse|Schweinelachs"_s;
    QTest::newRow("gluten")
        << Gluten
        << u"Brot|brot|Nudel|nudel|Pasta|Weizen|weizen|Gerste|gerste|Graupen|Dinkel|Roggen|Hafer|"
           u"Grieß|grieß|Couscous|Bulgur|Bier|bier|Kuchen|kuchen|Kekse|kekse|Torte|torte|Semmel|"
           u"Malz|"
           u"malz|Seitan|Teig|teig|Pizza|Müsli|müsli|Spätzle|Toast|toast|Zwieback|Knäcke|paniert|"
           u"Cracker|Salzstangen|Waffel (|Lasagne|Sojasoße|Ravioli|Gnocchi|Burger|burger|Sandwich|"
           u"Croissant|Cornflakes|Strudel|Pommes|Surimi|Rahmspinat|Fertigrösti|Jägersoße|"
           u"Bechamel"_s
        << u"Buchweizen|Maisgrieß|chmalz|Limburger"_s;
    QTest::newRow("nuts")
        << Nuesse
        << u"Nuss|nuss|Nüss|nüss|Mandel|mandel|Marzipan|Nougat|nougat|Cashew|Pistaz|Pinien|Kokos|"
           u"kokos|Pesto|Müsli|müsli|Granola|Marone|Amarett|Lebkuchen|akrone|Florentiner|alami|Hotdog"_s
        << u"Nüsslisalat"_s;
    QTest::newRow("alcohol")
        << Alkohol
        << u"Bier|bier|Wein|wein|Rum,|Schnaps|Likör|likör|Sekt|Sherry|Wodka|Whisk|Cognac|"
           u"Kirschwasser|"
           u"Wermut|Cidre|Radler|Alkohol|alkohol|fondue|Kirschtorte|Tiramisu|isotto|Ragout|ragout|"
           u"sorbet|geschmort|Sauerkraut|Sojasoße|Senf|Essig (|Jägersoße"_s
        << u"Weintrauben|Schwein|schwein|Bierhefe"_s;
}

void TestWeglassgruppen::whatIsFreeOfAGroupSaysNothingOfIt()
{
    QFETCH(const Weglassgruppe, gruppe);
    QFETCH(const QString, verdacht);
    QFETCH(const QString, unschuldig);
    const QStringList stuecke = verdacht.split(u'|');
    const QStringList unschuldige = unschuldig.split(u'|');
    QStringList gefunden;
    const QStringList freie = freieVon(gruppe);
    for (const QString &name : freie) {
        const auto stehtIn = [&name](const QString &stueck) {
            return name.contains(stueck);
        };
        if (std::ranges::any_of(stuecke, stehtIn) && std::ranges::none_of(unschuldige, stehtIn)) {
            gefunden << name;
        }
    }
    QCOMPARE(gefunden.join(u" | "_s), QString());
}

void TestWeglassgruppen::whatHoldsAlcoholInTheTableCountsAsHoldingIt()
{
    QStringList gefunden;
    const QStringList freie = freieVon(Alkohol);
    for (const QString &name : freie) {
        if (m_quelle.wissen().zusatz(name)->alkohol.value_or(0) > 0) {
            gefunden << name;
        }
    }
    QCOMPARE(gefunden.join(u" | "_s), QString());
}

/// Who leaves out all meat is not offered pork.
void TestWeglassgruppen::porkIsMeat()
{
    const QStringList ohneFleisch = freieVon(Fleisch);
    for (const QString &name : ohneFleisch) {
        QVERIFY2(!(kann(name) & Schwein), qPrintable(name));
    }
}

void TestWeglassgruppen::foodsAreJudgedOneByOne_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<Weglassgruppen>("gruppen");

    const Weglassgruppen nichts;
    QTest::newRow("an apple") << u"Äpfel (Apfel), roh"_s << nichts;
    QTest::newRow("lentils") << u"Linsen, ganz (z. B. Tellerlinsen), gekocht"_s << nichts;
    QTest::newRow("butter") << u"Butter"_s << Weglassgruppen(Milch);
    QTest::newRow("cocoa butter") << u"Kakaobutter"_s << nichts;
    QTest::newRow("ghee") << u"Butterschmalz (Bratbutter, Ghee)"_s << Weglassgruppen(Milch);
    QTest::newRow("half-fat spread with gelatine")
        << u"Halbfettmargarine, 35-40 % Fett"_s << (Milch | Fleisch | Schwein);
    QTest::newRow("rye bread") << u"Roggenbrote (Schwarzbrote), Sauerteigbrot"_s
                               << Weglassgruppen(Gluten);
    QTest::newRow("rolls") << u"Brötchen (Semmeln, Schrippen, Wecken), weiß"_s << (Gluten | Milch);
    QTest::newRow("rice cakes") << u"Reiswaffeln, Vollkorn"_s << nichts;
    QTest::newRow("buckwheat") << u"Buchweizen, geschält, roh"_s << nichts;
    QTest::newRow("oat drink") << u"Haferdrink (Hafermilch), natur"_s << Weglassgruppen(Gluten);
    QTest::newRow("almond drink") << u"Mandeldrink (Mandelmilch), natur"_s
                                  << Weglassgruppen(Nuesse);
    QTest::newRow("corn flakes with malt")
        << u"Cornflakes (Maisflocken)"_s << Weglassgruppen(Gluten);
    QTest::newRow("soy sauce") << u"Sojasoße (Sojasauce)"_s << (Gluten | Alkohol);
    QTest::newRow("Worcester sauce")
        << u"Worcestersoße (Worcestersauce, Worcestershire)"_s << (Gluten | Fisch | Alkohol);
    QTest::newRow("fish fingers") << u"Fischstäbchen, tiefgekühlt"_s << (Fisch | Gluten | Milch);
    QTest::newRow("beef ham") << u"Bresaola (Rinderschinken)"_s << (Fleisch | Alkohol);
    QTest::newRow("plain yoghurt") << u"Joghurt (Naturjoghurts), natur"_s << Weglassgruppen(Milch);
    QTest::newRow("fruit yoghurt with gelatine") << u"Joghurt (Erdbeerjoghurt, Fruchtjoghurts)"_s
                                                 << (Milch | Fleisch | Schwein | Gluten | Nuesse);
    QTest::newRow("a dish of which nothing is known")
        << u"Capuns (gefüllte Mangoldwickel)"_s << alleWeglassgruppen();
    QTest::newRow("tuna pizza") << u"Pizza (Pizzen) mit Thunfisch, Tonno"_s
                                << (Fisch | Milch | Gluten | Nuesse | Alkohol);
    QTest::newRow("alcohol-free beer") << u"Bier (alkoholfreies Bier)"_s << (Gluten | Alkohol);
    QTest::newRow("sunflower seeds") << u"Sonnenblumenkerne"_s << nichts;
    QTest::newRow("milk rice") << u"Milchreis mit Vollmilch, ungezuckert"_s
                               << Weglassgruppen(Milch);
}

void TestWeglassgruppen::foodsAreJudgedOneByOne()
{
    QFETCH(const QString, name);
    QFETCH(const Weglassgruppen, gruppen);
    QVERIFY(m_quelle.wissen().zusatz(name) != nullptr);
    QCOMPARE(kann(name), gruppen);
}

/// Leaving out too much would help nobody either.
void TestWeglassgruppen::aGroupIsNotLeftOutAltogether_data()
{
    QTest::addColumn<Weglassgruppe>("gruppe");

    for (const Weglassgruppenbeschreibung &eine : weglassgruppen) {
        QTest::newRow(eine.kennung) << eine.gruppe;
    }
}

void TestWeglassgruppen::aGroupIsNotLeftOutAltogether()
{
    QFETCH(const Weglassgruppe, gruppe);
    const qsizetype freie = freieVon(gruppe).size();
    QVERIFY2(freie > 500 && freie < 1000, qPrintable(QString::number(freie)));
}

void TestWeglassgruppen::namesAreUnambiguous()
{
    QSet<QByteArray> kennungen;
    Weglassgruppen alle;
    for (const Weglassgruppenbeschreibung &eine : weglassgruppen) {
        kennungen << eine.kennung;
        alle |= eine.gruppe;
    }
    QCOMPARE(kennungen.size(), 7);
    QCOMPARE(alle, alleWeglassgruppen());
}

Q_DECLARE_METATYPE(Weglassgruppe)
QTEST_APPLESS_MAIN(TestWeglassgruppen)
#include "TestWeglassgruppen.moc"
