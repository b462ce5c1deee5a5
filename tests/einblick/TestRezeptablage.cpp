// The recipes outlast the program and the foods that they are for, and what stands in the way is
// told.

#include "Merkdateitest.h"
#include "Rezeptablage.h"
#include "Rezeptprobe.h"
#include "Rezepttext.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using Rezeptprobe::brotsuppe;
using Rezeptprobe::volle;

namespace {

QByteArray datei(const QList<QJsonValue> &eintraege, int fassung = 1)
{
    QJsonArray liste;
    for (const QJsonValue &eintrag : eintraege) {
        liste.append(eintrag);
    }
    return QJsonDocument(QJsonObject{{u"format"_s, u"Mahlberg recipes"_s},
                                     {u"version"_s, fassung},
                                     {u"recipes"_s, liste},
                                     {u"more"_s, 1}})
        .toJson();
}

} // namespace

class TestRezeptablage : public Merkdateitest
{
    Q_OBJECT

public:
    TestRezeptablage() : Merkdateitest(u"MahlbergRezepte.json"_s) {}

private Q_SLOTS:
    void nothingIsMadeBeforeTheFirstRecipe();
    void recipesComeBackAsTheyWere();
    void severalAreKeptAtOnce();
    void aRecipeIsTakenOut();
    void everyChangeIsToldOnce();
    void theRecipeOfAFoodThatIsGoneWaitsForIt();
    void whatCanNotBeReckonedIsNotKept();
    void noCircleIsKept();
    void whatIsNotUnderstoodIsKeptBeside_data();
    void whatIsNotUnderstoodIsKeptBeside();
    void aNewerFileIsReadAndNotWritten();
    void whatCanNotBeReadIsNotWrittenOver_data();
    void whatCanNotBeReadIsNotWrittenOver();
    void whatCanNotBeWrittenHoldsAndIsWrittenLater_data();
    void whatCanNotBeWrittenHoldsAndIsWrittenLater();
    void whatCouldNotBeWrittenCanBeTriedAgain();
    void theLastStateOfAnEarlierDayIsKept();
    void withoutAChangeNothingIsWritten();
    void anIngredientIsFoundUnderItsNameOfToday();

private:
    bool merke() const override { return Rezeptablage(path()).setze(volle()); }
    QStringList namen() const { return Rezeptablage(path()).alle().keys(); }
};

void TestRezeptablage::nothingIsMadeBeforeTheFirstRecipe()
{
    Rezeptablage ablage(path());
    QVERIFY(ablage.alle().isEmpty());
    QVERIFY(!ablage.rezept({}));
    QVERIFY(ablage.nimmHeraus(u"A"_s));
    QVERIFY(ablage.setze(QList<Rezept>()));
    QVERIFY(ablage.sichere());
    QVERIFY(!ablage.istGesperrt());
    QVERIFY(ablage.istGesichert());
    QVERIFY(ablage.hindernis().isNull());
    QVERIFY(!QFileInfo::exists(path()));
}

void TestRezeptablage::recipesComeBackAsTheyWere()
{
    Rezeptablage ablage(path());
    QVERIFY(ablage.setze(volle()));
    QVERIFY(ablage.setze(brotsuppe(u"A"_s)));
    const Rezeptablage spaeter(path());
    QCOMPARE(spaeter.alle().size(), 2);
    QVERIFY(spaeter.rezept(volle().schluessel) == volle());
    QVERIFY(spaeter.rezept(u"A"_s) == brotsuppe(u"A"_s));
    QVERIFY(!spaeter.rezept(u"a"_s));
    QVERIFY(spaeter.hindernis().isNull());
}

void TestRezeptablage::severalAreKeptAtOnce()
{
    Rezeptablage ablage(path());
    QVERIFY(ablage.setze(brotsuppe(u"A"_s)));
    const QSignalSpy geaendert(&ablage, &Rezeptablage::geaendert);
    Rezept anders = brotsuppe(u"A"_s);
    anders.portionen = 3;
    QVERIFY(ablage.setze({anders, brotsuppe(u"B"_s)}));
    QCOMPARE(geaendert.count(), 1);
    QCOMPARE(namen(), QStringList({u"A"_s, u"B"_s}));
    QVERIFY(Rezeptablage(path()).rezept(u"A"_s) == anders);
}

void TestRezeptablage::aRecipeIsTakenOut()
{
    Rezeptablage ablage(path());
    QVERIFY(ablage.setze({brotsuppe(u"A"_s), brotsuppe(u"B"_s)}));
    QVERIFY(ablage.nimmHeraus(u"A"_s));
    QCOMPARE(namen(), QStringList(u"B"_s));
    QVERIFY(ablage.nimmHeraus(u"B"_s));
    QVERIFY(!QFileInfo::exists(path()));
}

void TestRezeptablage::everyChangeIsToldOnce()
{
    Rezeptablage ablage(path());
    const QSignalSpy geaendert(&ablage, &Rezeptablage::geaendert);
    QVERIFY(ablage.setze(volle()));
    QCOMPARE(geaendert.count(), 1);
    QVERIFY(ablage.setze(volle()));
    QCOMPARE(geaendert.count(), 1);
    QVERIFY(ablage.nimmHeraus(u"B"_s));
    QCOMPARE(geaendert.count(), 1);
    QVERIFY(ablage.nimmHeraus(volle().schluessel));
    QCOMPARE(geaendert.count(), 2);
}

void TestRezeptablage::theRecipeOfAFoodThatIsGoneWaitsForIt()
{
    Rezeptablage ablage(path());
    QVERIFY(ablage.setze({brotsuppe(u"A"_s), brotsuppe(u"B"_s)}));
    Lebensmittelverzeichnis eigene = {{u"A"_s, {}}, {u"B"_s, {}}, {u"C"_s, {}}};
    QCOMPARE(ablage.rezepteFuer(eigene).keys(), QStringList({u"A"_s, u"B"_s}));
    eigene.remove(u"A"_s);
    QCOMPARE(ablage.rezepteFuer(eigene).keys(), QStringList(u"B"_s));
    QVERIFY(ablage.setze(brotsuppe(u"C"_s)));
    QCOMPARE(namen(), QStringList({u"A"_s, u"B"_s, u"C"_s}));
    eigene.insert(u"A"_s, {});
    QVERIFY(ablage.rezepteFuer(eigene)[u"A"_s] == brotsuppe(u"A"_s));
}

void TestRezeptablage::whatCanNotBeReckonedIsNotKept()
{
    Rezeptablage ablage(path());
    Rezept leer = brotsuppe(u"A"_s);
    leer.zutaten.clear();
    const QSignalSpy geaendert(&ablage, &Rezeptablage::geaendert);
    QVERIFY(!ablage.setze({brotsuppe(u"B"_s), leer}));
    QVERIFY(ablage.alle().isEmpty());
    QCOMPARE(geaendert.count(), 0);
    QVERIFY(!QFileInfo::exists(path()));
}

void TestRezeptablage::noCircleIsKept()
{
    Rezeptablage ablage(path());
    QVERIFY(ablage.setze(brotsuppe(u"A"_s)));
    Rezept b = brotsuppe(u"B"_s);
    b.zutaten[0].schluessel = u"A"_s;
    QVERIFY(ablage.setze(b));
    Rezept a = brotsuppe(u"A"_s);
    a.zutaten[1].schluessel = u"B"_s;
    QVERIFY(!ablage.setze(a));
    QVERIFY(ablage.rezept(u"A"_s) == brotsuppe(u"A"_s));
    // Nor one of two that come together.
    Rezept c = brotsuppe(u"C"_s);
    c.zutaten[0].schluessel = u"D"_s;
    Rezept d = brotsuppe(u"D"_s);
    d.zutaten[0].schluessel = u"C"_s;
    QVERIFY(!ablage.setze({c, d}));
    QCOMPARE(namen(), QStringList({u"A"_s, u"B"_s}));
}

void TestRezeptablage::whatIsNotUnderstoodIsKeptBeside_data()
{
    QTest::addColumn<QByteArray>("inhalt");
    QTest::addColumn<QStringList>("gelesen");
    const QJsonObject a = alsJson(brotsuppe(u"A"_s));
    QJsonObject anderes = alsJson(brotsuppe(u"A"_s));
    anderes[u"portions"_s] = 7;
    QJsonObject schlecht = alsJson(brotsuppe(u"B"_s));
    schlecht.remove(u"given"_s);
    const QByteArray gutes = datei({a});
    const auto ersetzt = [&](const QByteArray &was, const QByteArray &womit) {
        return QByteArray(gutes).replace(was, womit);
    };
    QTest::newRow("nothing in it") << QByteArray("") << QStringList();
    QTest::newRow("a letter") << QByteArray("Liebe Frau Muster,\n") << QStringList();
    QTest::newRow("JSON of something else")
        << ersetzt("Mahlberg recipes", "Mahlberg diary") << QStringList();
    QTest::newRow("no version") << ersetzt("\"version\"", "\"Version\"") << QStringList();
    QTest::newRow("no list") << ersetzt("\"recipes\"", "\"Recipes\"") << QStringList();
    QTest::newRow("cut off") << gutes.left(gutes.size() / 2) << QStringList();
    QTest::newRow("a recipe that is none") << datei({7, a}) << QStringList(u"A"_s);
    QTest::newRow("a recipe that is broken") << datei({schlecht, a}) << QStringList(u"A"_s);
    QTest::newRow("a food twice") << datei({a, anderes}) << QStringList(u"A"_s);
}

void TestRezeptablage::whatIsNotUnderstoodIsKeptBeside()
{
    QFETCH(const QByteArray, inhalt);
    QFETCH(const QStringList, gelesen);
    lege(inhalt);
    Rezeptablage ablage(path());
    QCOMPARE(ablage.alle().keys(), gelesen);
    QVERIFY(gelesen.isEmpty() || ablage.rezept(u"A"_s) == brotsuppe(u"A"_s));
    QVERIFY(!ablage.istGesperrt());
    const QStringList kopien =
        QDir(m_ordner->path(u"."_s)).entryList({u"MahlbergRezepte *.json"_s}, QDir::Files);
    QCOMPARE(kopien.size(), 1);
    QVERIFY(ablage.hindernis().contains(m_ordner->path(kopien.constFirst())));
    QVERIFY(ablage.setze(brotsuppe(u"Z"_s)));
    QCOMPARE(namen(), gelesen + QStringList(u"Z"_s));
    QVERIFY(Rezeptablage(path()).hindernis().isNull());
    istKopie(m_ordner->path(kopien.constFirst()), inhalt);
}

void TestRezeptablage::aNewerFileIsReadAndNotWritten()
{
    lege(datei({alsJson(brotsuppe(u"A"_s))}, 2));
    const QByteArray vorher = bytes();
    Rezeptablage ablage(path());
    QCOMPARE(ablage.alle().keys(), QStringList(u"A"_s));
    QVERIFY(ablage.istGesperrt());
    QVERIFY(ablage.hindernis().contains(u"neueren"_s));
    const QSignalSpy geaendert(&ablage, &Rezeptablage::geaendert);
    QVERIFY(!ablage.setze(volle()));
    QVERIFY(!ablage.nimmHeraus(u"A"_s));
    QVERIFY(ablage.sichere()); // nothing waits
    QCOMPARE(ablage.alle().keys(), QStringList(u"A"_s));
    QCOMPARE(geaendert.count(), 0);
    QCOMPARE(bytes(), vorher);
}

void TestRezeptablage::whatCanNotBeReadIsNotWrittenOver_data()
{
    lesestoerungen();
}

void TestRezeptablage::whatCanNotBeReadIsNotWrittenOver()
{
    QFETCH(const Schritt, schritt);
    QVERIFY(Rezeptablage(path()).setze(volle()));
    const QByteArray vorher = bytes();
    Rezeptablage ablage(path());
    {
        const Stoerung stoerung(schritt);
        QVERIFY(ablage.istGesperrt());
        QVERIFY(stoerung.ausfaelle() > 0);
    }
    QVERIFY(ablage.alle().isEmpty());
    QVERIFY(!ablage.hindernis().isEmpty());
    QVERIFY(!ablage.setze(brotsuppe()));
    QCOMPARE(bytes(), vorher);
}

void TestRezeptablage::whatCanNotBeWrittenHoldsAndIsWrittenLater_data()
{
    schreibstoerungen();
}

void TestRezeptablage::whatCanNotBeWrittenHoldsAndIsWrittenLater()
{
    QFETCH(const Schritt, schritt);
    Rezeptablage ablage(path());
    QVERIFY(ablage.setze(brotsuppe(u"A"_s)));
    const QByteArray vorher = bytes();
    const QSignalSpy gesagt(&ablage, &Rezeptablage::sicherungGewechselt);
    const QSignalSpy geaendert(&ablage, &Rezeptablage::geaendert);
    {
        const Stoerung stoerung(schritt);
        QVERIFY(!ablage.setze(brotsuppe(u"B"_s)));
        QVERIFY(!ablage.nimmHeraus(u"A"_s));
        QVERIFY(stoerung.ausfaelle() > 0);
    }
    QCOMPARE(gesagt.count(), 1);
    QCOMPARE(geaendert.count(), 2);
    QVERIFY(!ablage.istGesichert());
    QVERIFY(ablage.hindernis().contains(u"nicht sichern"_s));
    QCOMPARE(ablage.alle().keys(), QStringList(u"B"_s));
    QCOMPARE(bytes(), vorher);
    QVERIFY(ablage.setze(brotsuppe(u"C"_s)));
    QCOMPARE(gesagt.count(), 2);
    QVERIFY(ablage.istGesichert());
    QVERIFY(ablage.hindernis().isNull());
    QCOMPARE(namen(), QStringList({u"B"_s, u"C"_s}));
}

void TestRezeptablage::whatCouldNotBeWrittenCanBeTriedAgain()
{
    Rezeptablage ablage(path());
    {
        const Stoerung stoerung(Schritt::Schreiben);
        QVERIFY(!ablage.setze(volle()));
        QVERIFY(!ablage.sichere());
        QVERIFY(!ablage.setze(volle()));
    }
    QVERIFY(ablage.setze(volle())); // as it was, and so there was only the writing to do
    QCOMPARE(namen().size(), 1);
    {
        const Stoerung stoerung(Schritt::Schreiben);
        QVERIFY(!ablage.setze(brotsuppe(u"B"_s)));
    }
    QVERIFY(ablage.sichere());
    QCOMPARE(namen().size(), 2);
}

void TestRezeptablage::theLastStateOfAnEarlierDayIsKept()
{
    QVERIFY(Rezeptablage(path()).setze(brotsuppe(u"A"_s)));
    const QByteArray vorher = bytes();
    datiere(QDateTime({2026, 3, 1}, {12, 0}));
    QVERIFY(Rezeptablage(path()).setze(brotsuppe(u"B"_s)));
    istKopie(m_ordner->path(u"Sicherungen/MahlbergRezepte 2026-03-01.json"_s), vorher);
}

void TestRezeptablage::withoutAChangeNothingIsWritten()
{
    lege(datei({alsJson(brotsuppe(u"A"_s))}));
    const QByteArray vorher = bytes();
    Rezeptablage ablage(path());
    QVERIFY(ablage.setze(brotsuppe(u"A"_s)));
    QVERIFY(ablage.nimmHeraus(u"B"_s));
    QVERIFY(ablage.sichere());
    QCOMPARE(bytes(), vorher);
}

void TestRezeptablage::anIngredientIsFoundUnderItsNameOfToday()
{
    QVERIFY(Rezeptablage(path()).setze(brotsuppe(u"A"_s)));
    const Rezeptablage ablage(path(), {{u"Brot"_s, u"Brote"_s}, {u"A"_s, u"B"_s}});
    const std::optional<Rezept> rezept = ablage.rezept(u"A"_s); // the own food keeps its name
    QVERIFY(rezept);
    QCOMPARE(rezept->zutaten[0].schluessel, u"Brote"_s);
    QCOMPARE(rezept->zutaten[1].schluessel, u"Milch"_s);
    QVERIFY(rezept->zutaten[0].satz.name() == u"Brot"_s);
}

QTEST_GUILESS_MAIN(TestRezeptablage)
#include "TestRezeptablage.moc"
