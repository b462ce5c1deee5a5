#include "Rechnerprobe.h"

#include "Getraenke.h"

#include <QTest>

#include <tuple>

/// Drinks: grams, hours, and three colours.
class TestAnthroControllerAlkohol : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choosingADrink();
    void settingTheQuantity();
    void theFirstMoveUsesTheStartDrink();
    void onlyWholeHundredsCount_data();
    void onlyWholeHundredsCount();
    void theQuantitysColour();
    void theLimit_data();
    void theLimit();
    void theGenderColoursGreen();
    void redHasWordsBesideIt();
    void anUnknownDrinkKeepsThePreviousOne();
    void aNameWithoutEffectIsCalledUnknown();
    void aNameInForceIsNotCalledUnknown();
    void oneNameSpelledInTwoWays();
    void placeholders_data();
    void placeholders();
    void noWeight();
    void linesOfTheLog();
    void theCopyOfTheWeight();
    void nothingIsToldOrStored();
};

namespace {

void waehle(AnthroController &r, const char *getraenk)
{
    r.alkohol->setStringValue(QString::fromUtf8(getraenk));
    r.welcheralkohol();
}

/// A client whose quantity stands at so many ml.
std::unique_ptr<Rechnerprobe> mitMenge(int milliliter)
{
    auto probe = Rechnerprobe::mitKlient();
    (*probe)->zieher->setIntValue(milliliter);
    return probe;
}

} // namespace

void TestAnthroControllerAlkohol::choosingADrink()
{
    const auto probe = mitMenge(500);
    AnthroController &r = probe->rechner();
    waehle(r, "Pils");
    QCOMPARE(r.name, QStringLiteral("Pils"));
    QCOMPARE(r.alk, 4.0F);
    QCOMPARE(r.alkgramm->floatValue(), 20.0F);
    QCOMPARE(r.zwischenvariable, 8.0F);
    QCOMPARE(r.abbaudauer->floatValue(), 2.5F);
    QCOMPARE(Rechnerprobe::text(*r.alkgramm), QStringLiteral("20,0 g"));
    QCOMPARE(Rechnerprobe::text(*r.abbaudauer), QStringLiteral("2,5 h"));
    QCOMPARE(r.ml->intValue(), 0); // only the slider's action shows the quantity
}

void TestAnthroControllerAlkohol::settingTheQuantity()
{
    const auto probe = mitMenge(500);
    AnthroController &r = probe->rechner();
    waehle(r, "Pils");
    r.wievielalkohol(Sender(500.9));
    QCOMPARE(r.ml->intValue(), 500);
    QCOMPARE(Rechnerprobe::text(*r.ml), QStringLiteral("500 ml"));
    QCOMPARE(r.alkgramm->floatValue(), 20.0F);
    QCOMPARE(r.zwischenvariable, 4.0F);
    QCOMPARE(r.abbaudauer->floatValue(), 5.0F);
}

void TestAnthroControllerAlkohol::theFirstMoveUsesTheStartDrink()
{
    const auto probe = Rechnerprobe::mitKlient();
    AnthroController &r = probe->rechner();
    QCOMPARE(r.alk, 0.0F);
    r.wievielalkohol(Sender(300.0));
    QCOMPARE(r.alk, 4.0F);
    QCOMPARE(r.alkgramm->floatValue(), 12.0F);
}

void TestAnthroControllerAlkohol::onlyWholeHundredsCount_data()
{
    QTest::addColumn<int>("menge");
    QTest::addColumn<float>("gramm");
    QTest::newRow("99 ml") << 99 << 0.0F;
    QTest::newRow("100 ml") << 100 << 4.0F;
    QTest::newRow("330 ml") << 330 << 12.0F;
    QTest::newRow("399 ml") << 399 << 12.0F;
}

void TestAnthroControllerAlkohol::onlyWholeHundredsCount()
{
    QFETCH(int, menge);
    QFETCH(float, gramm);
    const auto probe = mitMenge(menge);
    AnthroController &r = probe->rechner();
    waehle(r, "Pils");
    QCOMPARE(r.alkgramm->floatValue(), gramm);
    QCOMPARE(r.abbaudauer->floatValue(), gramm / 8.0F);
    r.wievielalkohol(*r.zieher);
    QCOMPARE(r.alkgramm->floatValue(), gramm);
    QCOMPARE(r.abbaudauer->floatValue(), gramm / 4.0F);
}

void TestAnthroControllerAlkohol::theQuantitysColour()
{
    const auto probe = Rechnerprobe::mitKlient();
    AnthroController &r = probe->rechner();
    const std::pair<double, Textfarbe> folge[] = {
        {600, Textfarbe::Schwarz}, {601, Textfarbe::Rot},     {600, Textfarbe::Rot},
        {599, Textfarbe::Schwarz}, {600, Textfarbe::Schwarz},
    };
    for (const auto &[menge, farbe] : folge) {
        r.wievielalkohol(Sender(menge));
        QVERIFY(r.ml->textColor() == farbe);
    }
}

void TestAnthroControllerAlkohol::theLimit_data()
{
    QTest::addColumn<int>("geschlecht");
    QTest::addColumn<int>("menge"); // of Pils, 4 g in 100 ml, or Fruchtdessertwein, 10.7 g
    QTest::addColumn<QString>("getraenk");
    QTest::addColumn<int>("farbe");
    const QString pils = QStringLiteral("Pils");
    const auto blau = static_cast<int>(Textfarbe::Blau); // set before: the colour stays
    const auto schwarz = static_cast<int>(Textfarbe::Schwarz);
    const auto rot = static_cast<int>(Textfarbe::Rot);
    QTest::newRow("woman, 16 g") << 1 << 400 << pils << schwarz;
    QTest::newRow("woman, exactly 20 g") << 1 << 500 << pils << blau;
    QTest::newRow("woman, 24 g") << 1 << 600 << pils << rot;
    QTest::newRow("man, 28 g") << 0 << 700 << pils << schwarz;
    QTest::newRow("man, exactly 30 g") << 0 << 100 << QStringLiteral("Wodka") << blau;
    QTest::newRow("man, 32 g") << 0 << 800 << pils << rot;
}

void TestAnthroControllerAlkohol::theLimit()
{
    QFETCH(int, geschlecht);
    QFETCH(int, menge);
    QFETCH(QString, getraenk);
    QFETCH(int, farbe);
    const auto probe = mitMenge(menge);
    AnthroController &r = probe->rechner();
    r.geschlechtAktion(geschlecht);
    r.alkgramm->setTextColor(Textfarbe::Blau);
    waehle(r, getraenk.toUtf8().constData());
    QCOMPARE(static_cast<int>(r.alkgramm->textColor()), farbe);
    r.alkgramm->setTextColor(Textfarbe::Blau);
    r.wievielalkohol(*r.zieher);
    QCOMPARE(static_cast<int>(r.alkgramm->textColor()), farbe);
    QCOMPARE(r.geschlechtname, geschlecht == 1 ? QStringLiteral("Frau") : QStringLiteral("Mann"));
}

void TestAnthroControllerAlkohol::theGenderColoursGreen()
{
    const auto probe = mitMenge(500);
    AnthroController &r = probe->rechner();
    waehle(r, "Pils"); // 20 g
    QVERIFY(r.alkgramm->textColor() == Textfarbe::Schwarz);
    r.geschlechtAktion(1);
    QVERIFY(r.alkgramm->textColor() == Textfarbe::Schwarz); // exactly her limit
    r.geschlechtAktion(0);
    QVERIFY(r.alkgramm->textColor() == Textfarbe::Gruen);
    r.alkgramm->setFloatValue(25.0F);
    r.geschlechtAktion(1);
    QVERIFY(r.alkgramm->textColor() == Textfarbe::Rot);
    r.geschlechtAktion(0);
    QVERIFY(r.alkgramm->textColor() == Textfarbe::Gruen);
    r.alkgramm->setFloatValue(30.0F);
    r.geschlechtAktion(0);
    QVERIFY(r.alkgramm->textColor() == Textfarbe::Gruen); // exactly his
    r.alkgramm->setFloatValue(30.5F);
    r.geschlechtAktion(0);
    QVERIFY(r.alkgramm->textColor() == Textfarbe::Rot);
    r.alkgramm->setFloatValue(19.5F);
    r.geschlechtAktion(1);
    QVERIFY(r.alkgramm->textColor() == Textfarbe::Gruen);
}

void TestAnthroControllerAlkohol::redHasWordsBesideIt()
{
    const auto probe = Rechnerprobe::mitKlient();
    AnthroController &r = probe->rechner();
    r.geschlechtAktion(1);
    QVERIFY(r.alkoholworte->isHidden() && r.mengenworte->isHidden());
    waehle(r, "Pils");
    const std::tuple<double, bool, bool> folge[] = {
        {500, false, false},                    // exactly 20 g: as it was
        {600, true, false},                     // exactly 600 ml: as it was
        {700, true, true},   {600, true, true}, // as it was
        {500, true, false},                     // as it was
        {400, false, false},
    };
    for (const auto &[menge, alkohol, zuviel] : folge) {
        r.wievielalkohol(Sender(menge));
        QCOMPARE(!r.alkoholworte->isHidden(), alkohol);
        QCOMPARE(!r.mengenworte->isHidden(), zuviel);
    }
    r.wievielalkohol(Sender(600.0)); // 24 g
    r.geschlechtAktion(0);
    QVERIFY(r.alkoholworte->isHidden());
    r.geschlechtAktion(1);
    QVERIFY(!r.alkoholworte->isHidden());
}

void TestAnthroControllerAlkohol::anUnknownDrinkKeepsThePreviousOne()
{
    const auto probe = mitMenge(500);
    AnthroController &r = probe->rechner();
    waehle(r, "Pils");
    r.zieher->setIntValue(800);
    waehle(r, "pils");
    QCOMPARE(r.name, QStringLiteral("pils"));
    QCOMPARE(r.alk, 4.0F);
    QCOMPARE(r.alkgramm->floatValue(), 20.0F);  // as it stood
    QCOMPARE(r.abbaudauer->floatValue(), 4.0F); // 32 g at 8 g per hour
    r.wievielalkohol(Sender(1000.0));
    QCOMPARE(r.ml->intValue(), 1000);
    QCOMPARE(r.alkgramm->floatValue(), 20.0F);
    QCOMPARE(r.abbaudauer->floatValue(), 10.0F); // 40 g at 4 g per hour
}

void TestAnthroControllerAlkohol::aNameWithoutEffectIsCalledUnknown()
{
    const auto probe = mitMenge(100);
    AnthroController &r = probe->rechner();
    QVERIFY(r.getraenkworte->isHidden());
    QCOMPARE(r.getraenkworte->text(), QStringLiteral("unbekannt, zählt nicht"));
    const std::pair<const char *, bool> folge[] = {
        {"Met", true}, {"Pils", false}, {"Pils ", true}, {"vodka", false},   {"Limonade", true},
        {"-", false},  {"Wein", true},  {" ", false},    {"red wine", false}};
    for (const auto &[getraenk, unbekannt] : folge) {
        waehle(r, getraenk);
        QVERIFY2(r.getraenkworte->isHidden() != unbekannt, getraenk);
        QCOMPARE(r.alkohol->currentText(), QString::fromUtf8(getraenk)); // as it was typed
    }
    waehle(r, "red wine lightbodied"); // counts as soon as its quantity is set
    QVERIFY(!r.getraenkworte->isHidden());
    r.wievielalkohol(*r.zieher);
    QVERIFY(r.getraenkworte->isHidden());
    waehle(r, "red wine lightbodied"); // its alcohol is in force already
    QVERIFY(r.getraenkworte->isHidden());
}

void TestAnthroControllerAlkohol::aNameInForceIsNotCalledUnknown()
{
    const auto probe = mitMenge(100);
    AnthroController &r = probe->rechner();
    waehle(r, "red wine lightbodiedt");
    QVERIFY(r.getraenkworte->isHidden());
    r.wievielalkohol(Sender(300.0)); // has no entry of its own for the quantity
    QCOMPARE(r.alk, 7.9F);
    QVERIFY(r.getraenkworte->isHidden());
    waehle(r, "Met");
    QVERIFY(!r.getraenkworte->isHidden());
    r.wievielalkohol(Sender(200.0));
    QVERIFY(!r.getraenkworte->isHidden());
}

void TestAnthroControllerAlkohol::oneNameSpelledInTwoWays()
{
    const auto probe = mitMenge(100);
    AnthroController &r = probe->rechner();
    waehle(r, "red wine lightbodied");
    QCOMPARE(r.alk, 0.0F);
    QCOMPARE(r.alkgramm->floatValue(), 0.0F);
    r.wievielalkohol(*r.zieher);
    QCOMPARE(r.alk, 7.9F);
    QCOMPARE(r.alkgramm->floatValue(), 7.9F);

    waehle(r, "Pils");
    waehle(r, "red wine lightbodiedt");
    QCOMPARE(r.alk, 7.9F);
    r.wievielalkohol(Sender(300.0));
    QCOMPARE(r.alkgramm->floatValue(), 7.9F); // as it stood
}

void TestAnthroControllerAlkohol::placeholders_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("-") << QStringLiteral("-");
    QTest::newRow("blank") << QStringLiteral(" ");
}

void TestAnthroControllerAlkohol::placeholders()
{
    QFETCH(QString, name);
    const auto probe = mitMenge(500);
    AnthroController &r = probe->rechner();
    waehle(r, "Pils");
    waehle(r, name.toUtf8().constData());
    QCOMPARE(r.alkgramm->floatValue(), 0.0F);
    QCOMPARE(r.abbaudauer->floatValue(), 0.0F);
}

void TestAnthroControllerAlkohol::noWeight()
{
    Rechnerprobe probe; // never stored: 0 kg
    probe->zieher->setIntValue(500);
    waehle(probe.rechner(), "Pils");
    QCOMPARE(probe->alkgramm->floatValue(), 20.0F);
    QCOMPARE(probe->zwischenvariable, 0.0F);
    QCOMPARE(probe->abbaudauer->floatValue(), 0.0F);

    const auto kind = mitMenge(500);
    (*kind)->wiealt(Sender(9.0));
    waehle(kind->rechner(), "Pils"); // the weight reads "-"
    QCOMPARE((*kind)->alkgramm->floatValue(), 20.0F);
    QCOMPARE((*kind)->abbaudauer->floatValue(), 0.0F);
    QCOMPARE((*kind)->gewicht2->floatValue(), 0.0F);
}

void TestAnthroControllerAlkohol::linesOfTheLog()
{
    const auto probe = mitMenge(100);
    AnthroController &r = probe->rechner();
    for (const char *name :
         {"Malzbier", "malt liquor beer", "Kölsch", "Doppelbockbier", "Pils", "Unbekannt"}) {
        waehle(r, name);
        r.wievielalkohol(*r.zieher);
    }
    QStringList zeilen;
    for (const char *zeile : {"< 0,5  Alkohol", "< 0,5  Alkohol", "5  Alkohol", "6  Alkohol"}) {
        zeilen << QString::fromLatin1(zeile) << QString::fromLatin1(zeile);
    }
    QCOMPARE(probe->protokoll, zeilen);
}

void TestAnthroControllerAlkohol::theCopyOfTheWeight()
{
    const auto probe = mitMenge(100);
    AnthroController &r = probe->rechner();
    r.gewicht->setFloatValue(60.0F);
    waehle(r, "Pils");
    QCOMPARE(r.gewicht2->floatValue(), 60.0F);
    r.gewicht->setFloatValue(70.0F);
    r.wievielalkohol(*r.zieher);
    QCOMPARE(r.gewicht2->floatValue(), 70.0F);
}

void TestAnthroControllerAlkohol::nothingIsToldOrStored()
{
    const auto probe = mitMenge(700);
    const QStringList vorher = probe->einstellungen().allKeys();
    waehle(probe->rechner(), "Pils");
    (*probe)->wievielalkohol(Sender(300.0));
    QCOMPARE(probe->rufe(), QStringList());
    QCOMPARE(probe->einstellungen().allKeys(), vorher);
    QCOMPARE((*probe)->kal, 2112);
}

QTEST_MAIN(TestAnthroControllerAlkohol)
#include "TestAnthroControllerAlkohol.moc"
