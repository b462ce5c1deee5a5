// What is advised, and what takes the place of what.

#include "Speiseart.h"
#include "Zusatzquelle.h"

#include <QTest>

using namespace Qt::StringLiterals;
using enum Eignung;

class TestSpeiseart : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QCOMPARE(m_quelle.hindernis(), QString()); }

    void everyFoodOfTheTableIsJudged();
    void foodsAreJudgedOneByOne_data();
    void foodsAreJudgedOneByOne();
    void nothingOddIsAdvised();
    void ownFoodsComeInBesides();
    void oxalicAcidIsKnown();

private:
    Zusatzquelle m_quelle{u":/Zusatzwerte.csv"_s};
};

/// Each group has a line for all of its foods: none falls through to the foods of unknown groups.
void TestSpeiseart::everyFoodOfTheTableIsJudged()
{
    const Lebensmittelgruppe fremd = {"Anderes", {}, 0};
    QCOMPARE(speiseart(&fremd, u"Apfel"_s), Speiseart());
    for (const Lebensmittelgruppe &gruppe : lebensmittelgruppen()) {
        const Speiseart art = speiseart(&gruppe, u"?"_s);
        QVERIFY2(!art.art.empty() || art.eignung == Nie, gruppe.name);
    }
}

void TestSpeiseart::foodsAreJudgedOneByOne_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("art");
    QTest::addColumn<Eignung>("eignung");

    const auto zeile = [](const char *was, const QString &name, const char *art, Eignung eignung) {
        QTest::newRow(was) << name << QByteArray(art) << eignung;
    };
    zeile("cooked rice", u"Reis (weißer Reis), gekocht"_s, "Beilage", Zugabe);
    zeile("dry rice", u"Reis (weißer Reis), roh"_s, "Beilage", Ersatz);
    zeile("millet, which is only dry", u"Hirse, geschält, roh"_s, "Beilage", Zugabe);
    zeile("potatoes", u"Kartoffeln (Erdäpfel, Erdapfel), Salzkartoffeln"_s, "Beilage", Zugabe);
    zeile("chips", u"Pommes frites, frittiert, ungesalzen"_s, "Beilage", Nie);
    zeile("peas, dried and cooked", u"Erbsen (Schälerbsen), getrocknet, gekocht"_s, "Beilage",
          Zugabe);
    zeile("an average", u"Brot (Brote), Durchschnitt"_s, "Brot", Nie);
    zeile("raw beans", u"Bohnen (grüne Bohnen, Fisolen), roh"_s, "Kochgemüse", Ersatz);
    zeile("steamed beans", u"Bohnen (grüne Bohnen, Fisolen), gedämpft"_s, "Gemüse", Zugabe);
    zeile("baker's yeast", u"Hefe (Backhefe, Frischhefe, Germ), frisch"_s, "", Nie);
    zeile("cinnamon", u"Zimt"_s, "", Nie);
    zeile("liver", u"Leber, Durchschnitt, gebraten"_s, "Innereien", Nie);
    zeile("raw liver", u"Kalbsleber, roh"_s, "Innereien", Ersatz);
    zeile("cream", u"Sahne (Rahm, Obers), 28 % Fett"_s, "Sahne", Ersatz);
    zeile("milk", u"Milch, 1,5 % Fett (fettarme Milch, H-Milch)"_s, "Milch", Zugabe);
    zeile("soy drink", u"Sojadrink (Sojamilch), natur"_s, "Milch", Zugabe);
    zeile("whisky", u"Whisky (Whiskys, Whiskey, Kornbrand), 42,5 % vol"_s, "", Nie);
    zeile("beer", u"Bier (helle Biere, Pils, Lager)"_s, "Bier", Nie);
    zeile("lemonade", u"Limonaden, gezuckert"_s, "Getränk", Nie);
    zeile("water", u"Leitungswasser (Trinkwasser)"_s, "Getränk", Zugabe);
    zeile("salted peanuts", u"Erdnüsse (Erdnuss), geröstet, gesalzen"_s, "Nüsse", Ersatz);
    zeile("unsalted peanuts", u"Erdnüsse (Erdnuss), geröstet, ungesalzen"_s, "Nüsse", Zugabe);
    zeile("cocoa drink, powder", u"Kakaogetränk (Trinkschokolade), Pulver"_s, "Kakaopulver",
          Ersatz);
}

void TestSpeiseart::foodsAreJudgedOneByOne()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, art);
    QFETCH(const Eignung, eignung);
    const Zusatzwerte *zusatz = m_quelle.wissen().zusatz(name);
    QVERIFY(zusatz != nullptr);
    const Speiseart eine = speiseart(zusatz->gruppe, name);
    QCOMPARE(QByteArray(eine.art.data(), static_cast<qsizetype>(eine.art.size())), art);
    QCOMPARE(eine.eignung, eignung);
}

/// What a dietitian would not advise for any nutrient.
void TestSpeiseart::nothingOddIsAdvised()
{
    static const QStringList stuecke =
        u"efe,|Hefe (|Tomatenmark|Knoblauch|Salz "
        u"(|Meersalz|Himalayasalz|pulver|Pulver|Algen|Agar|Zimt|% "
        u"vol|Bier|Leber|leber|Niere|Durchschnitt|"
        u"Mehl|mehl|stärke|Pommes|Bonbon|okolade|Kuchen|kuchen|Cola|Energy|Limonade|Sirup|sirup|"
        u"Eier (Hühnereier), roh|Hackfleisch (Faschiertes, Gehacktes), roh|brühe|soße|Schmalz|schmalz"_s
            .split(u'|');
    QStringList gefunden;
    const Zusatztabelle &tabelle = m_quelle.wissen().tabelle();
    for (auto food = tabelle.cbegin(); food != tabelle.cend(); ++food) {
        const auto stehtIn = [&food](const QString &stueck) {
            return food.key().contains(stueck);
        };
        if (speiseart(food->gruppe, food.key()).eignung == Zugabe &&
            std::ranges::any_of(stuecke, stehtIn)) {
            gefunden << food.key();
        }
    }
    gefunden.sort();
    QCOMPARE(gefunden.join(u" | "_s), u"Sardinen, Konserve, in Tomatensoße"_s);
}

void TestSpeiseart::ownFoodsComeInBesides()
{
    QCOMPARE(speiseart(nullptr, u"Eintopf"_s), (Speiseart{{}, Zugabe}));
}

void TestSpeiseart::oxalicAcidIsKnown()
{
    const auto kennt = [this](const QString &name) {
        return speiseart(m_quelle.wissen().zusatz(name)->gruppe, name).oxalsaeure;
    };
    QVERIFY(kennt(u"Spinat, gedämpft"_s));
    QVERIFY(kennt(u"Rahmspinat (Spinat mit Sahne), gekocht"_s));
    QVERIFY(kennt(u"Mangold, roh"_s));
    QVERIFY(!kennt(u"Grünkohl (Federkohl), gedünstet"_s));
}

Q_DECLARE_METATYPE(Eignung)
QTEST_APPLESS_MAIN(TestSpeiseart)
#include "TestSpeiseart.moc"
