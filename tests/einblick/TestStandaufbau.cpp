#include "Probesprache.h"
#include "Standaufbau.h"

#include <QTest>

using Aufzeichnungsaenderung::Stelle;

class TestStandaufbau : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFoodIsOneRow();
    void noFoodIsNone();
    void thePlanIsItsRows();
    void aKeptPlanHasItsOwnRecords();
    void aDayIsTheRowsThatCount();
    void mealsAreCalledAsOnScreen();
    void aDayThatIsNotThereIsEmpty();
    void theMeanTakesItsPartOfEachDay();
    void theMeanLeavesOutWhatIsNotInIt();
    void placesComeBack_data();
    void placesComeBack();
    void aRowTooFarDownStaysInItsMeal();
    void theGeneralRanges_data();
    void theGeneralRanges();
    void withoutAnEnergyNeedItsSharesAreMissing();
};

namespace {

Datenmodul satz(const char *name)
{
    Datenmodul eines;
    eines.setName(QString::fromUtf8(name));
    return eines;
}

Mahlzeitzeile zeile(const char *name, float gramm)
{
    return {.schluessel = QString::fromUtf8(name), .gramm = gramm, .eintrag = satz(name)};
}

/// Three days of two meals: the first with bread, egg, an alternative and a row that nobody
/// understood; the second with bread; the third with nothing.
Aufzeichnung woche()
{
    Aufzeichnung eine;
    eine.mahlzeiten = {QStringLiteral("Frühstück"), QStringLiteral("Abendessen")};
    Mahlzeitzeile oder = zeile("Müsli", 60);
    oder.oder = true;
    Mahlzeitzeile raetsel;
    raetsel.text = QStringLiteral("Dings");
    const Tag erster = {{{{zeile("Brot", 100), oder, raetsel}, {}}, {{zeile("Ei", 60)}, {}}}, {}};
    const Tag zweiter = {{{{}, {}}, {{zeile("Brot", 50)}, {}}}, {}};
    const Tag dritter = {{{{}, {}}, {{}, {}}}, {}};
    eine.tage = {erster, zweiter, dritter};
    return eine;
}

QStringList inWorten(const Speisen &speisen)
{
    QStringList worte;
    for (const Speise &eine : speisen) {
        worte << QStringLiteral("%1 %2").arg(eine.schluessel).arg(eine.gramm);
    }
    return worte;
}

} // namespace

void TestStandaufbau::aFoodIsOneRow()
{
    const Datenmodul brot = satz("Brot");
    const Einblickstand stand = Standaufbau::vomLebensmittel(QStringLiteral("Brot"), &brot, 80);
    QCOMPARE(stand.gegenstand, Gegenstand::Lebensmittel);
    QCOMPARE(inWorten(stand.speisen), QStringList{QStringLiteral("Brot 80")});
    QCOMPARE(stand.speisen[0].ort, -1);
    QVERIFY(stand.speisen[0].lebensmittel.has_value());
}

void TestStandaufbau::noFoodIsNone()
{
    QVERIFY(Standaufbau::vomLebensmittel(QStringLiteral("fort"), nullptr, 80).speisen.isEmpty());
}

void TestStandaufbau::thePlanIsItsRows()
{
    const Datenmodul brot = satz("Brot");
    const Einblickstand stand = Standaufbau::vomPlan(
        {{QStringLiteral("Brot"), 100, {}}, {QStringLiteral("fort"), 40, {}}},
        [&brot](const QString &name) { return name == QStringLiteral("Brot") ? &brot : nullptr; });
    QCOMPARE(stand.gegenstand, Gegenstand::Plan);
    QCOMPARE(inWorten(stand.speisen),
             (QStringList{QStringLiteral("Brot 100"), QStringLiteral("fort 40")}));
    QVERIFY(stand.speisen[0].lebensmittel.has_value());
    QVERIFY(!stand.speisen[1].lebensmittel.has_value());
    QCOMPARE(stand.speisen[1].ort, 1);
}

void TestStandaufbau::aKeptPlanHasItsOwnRecords()
{
    Datenmodul heute = satz("Brot");
    heute.setkal(250);
    Datenmodul damals = satz("Brot");
    damals.setkal(200);
    const Einblickstand stand = Standaufbau::vomPlan({{QStringLiteral("Brot"), 100, damals}},
                                                     [&heute](const QString &) { return &heute; });
    QCOMPARE(stand.speisen[0].lebensmittel->kal(), 200.0F);
}

void TestStandaufbau::aDayIsTheRowsThatCount()
{
    const Einblickstand stand = Standaufbau::vomTag(woche(), 0);
    QCOMPARE(stand.gegenstand, Gegenstand::Tag);
    QCOMPARE(inWorten(stand.speisen),
             (QStringList{QStringLiteral("Brot 100"), QStringLiteral("Ei 60")}));
    QCOMPARE(stand.ungezaehlt, 1);
    QCOMPARE(stand.tage, 1);
    QCOMPARE(stand.mahlzeiten.size(), 2);
    QCOMPARE(stand.mahlzeiten[1].name, QStringLiteral("Abendessen"));
    QCOMPARE(inWorten(stand.mahlzeiten[1].speisen), QStringList{QStringLiteral("Ei 60")});
    QCOMPARE(Standaufbau::stelleVon(stand.speisen[1].ort), (Stelle{0, 1, 0}));
}

void TestStandaufbau::mealsAreCalledAsOnScreen()
{
    Aufzeichnung eine = woche();
    eine.mahlzeiten[1] = QStringLiteral("Bei Oma");
    const Probesprache englisch(QLocale::English);
    const Einblickstand stand = Standaufbau::vomTag(eine, 0);
    QCOMPARE(stand.mahlzeiten[0].name, QStringLiteral("Breakfast"));
    QCOMPARE(stand.mahlzeiten[1].name, QStringLiteral("Bei Oma"));
}

void TestStandaufbau::aDayThatIsNotThereIsEmpty()
{
    for (const int tag : {-1, 3}) {
        const Einblickstand stand = Standaufbau::vomTag(woche(), tag);
        QVERIFY(stand.speisen.isEmpty());
        QCOMPARE(stand.tage, 0);
    }
    QVERIFY(Standaufbau::vomTag(Aufzeichnung(), 0).speisen.isEmpty());
}

void TestStandaufbau::theMeanTakesItsPartOfEachDay()
{
    // Of three days two are recorded, so half of each counts.
    const Einblickstand stand = Standaufbau::vomMittel(woche());
    QCOMPARE(stand.gegenstand, Gegenstand::Mittel);
    QCOMPARE(stand.tage, 2);
    QCOMPARE(stand.ungezaehlt, 1);
    QCOMPARE(inWorten(stand.mahlzeiten[0].speisen), QStringList{QStringLiteral("Brot 50")});
    QCOMPARE(inWorten(stand.mahlzeiten[1].speisen),
             (QStringList{QStringLiteral("Ei 30"), QStringLiteral("Brot 25")}));
    QCOMPARE(Standaufbau::stelleVon(stand.speisen[2].ort), (Stelle{1, 1, 0}));
}

void TestStandaufbau::theMeanLeavesOutWhatIsNotInIt()
{
    Aufzeichnung eine = woche();
    eine.tage[0].imMittel = false;
    const Einblickstand stand = Standaufbau::vomMittel(eine);
    QCOMPARE(stand.tage, 1);
    QCOMPARE(stand.ungezaehlt, 0);
    QCOMPARE(inWorten(stand.speisen), QStringList{QStringLiteral("Brot 50")});
    eine.tage[1].imMittel = false;
    QCOMPARE(Standaufbau::vomMittel(eine).tage, 0);
    QVERIFY(Standaufbau::vomMittel(eine).speisen.isEmpty());
}

void TestStandaufbau::placesComeBack_data()
{
    QTest::addColumn<int>("tag");
    QTest::addColumn<int>("mahlzeit");
    QTest::addColumn<int>("zeile");

    QTest::newRow("the first") << 0 << 0 << 0;
    QTest::newRow("the last of all meals and days") << meisteTage - 1 << meisteMahlzeiten - 1 << 0;
    QTest::newRow("a row far down") << 0 << 0 << 99999;
    QTest::newRow("somewhere") << 3 << 2 << 17;
}

void TestStandaufbau::placesComeBack()
{
    QFETCH(const int, tag);
    QFETCH(const int, mahlzeit);
    QFETCH(const int, zeile);
    const Stelle stelle{tag, mahlzeit, zeile};
    QCOMPARE(Standaufbau::stelleVon(Standaufbau::ortVon(stelle)), stelle);
}

void TestStandaufbau::aRowTooFarDownStaysInItsMeal()
{
    QCOMPARE(Standaufbau::stelleVon(Standaufbau::ortVon({2, 1, 100000})), (Stelle{2, 1, 99999}));
}

void TestStandaufbau::theGeneralRanges_data()
{
    QTest::addColumn<Kenngroesse>("groesse");
    QTest::addColumn<double>("unten");
    QTest::addColumn<double>("oben");

    // Of 2000 kcal: 70 % and 110 %; a fifth of them is protein, 400 kcal at 4 kcal: 100 g.
    QTest::newRow("energy") << Kenngroesse::kal << 1400.0 << 2200.0;
    QTest::newRow("protein") << Kenngroesse::protein << 70.0 << 110.0;
    // 600 kcal at 9 kcal are 66.67 g.
    QTest::newRow("fat") << Kenngroesse::fett << 420.0 / 9 << 660.0 / 9;
    QTest::newRow("fibre has no upper end") << Kenngroesse::bs << 21.0 << -1.0;
    QTest::newRow("of cholesterol only the upper end") << Kenngroesse::chol << -1.0 << 140.0;
    QTest::newRow("of sodium only the upper end") << Kenngroesse::na << -1.0 << 605.0;
    QTest::newRow("calcium") << Kenngroesse::ca << 700.0 << 1100.0;
    QTest::newRow("vitamin A ends at the need") << Kenngroesse::vita << 700.0 << 1000.0;
}

void TestStandaufbau::theGeneralRanges()
{
    QFETCH(const Kenngroesse, groesse);
    QFETCH(const double, unten);
    QFETCH(const double, oben);
    const Zielbereiche alle = Standaufbau::allgemeineZiele(2000);
    QCOMPARE(alle.size(), 17);
    const Zielbereich &ziel = alle[static_cast<qsizetype>(stelle(groesse))];
    QCOMPARE(ziel.groesse, groesse);
    QCOMPARE(ziel.unten.value_or(-1), unten);
    QCOMPARE(ziel.oben.value_or(-1), oben);
    QVERIFY(!ziel.obergrenze);
}

void TestStandaufbau::withoutAnEnergyNeedItsSharesAreMissing()
{
    const Zielbereiche alle = Standaufbau::allgemeineZiele(0);
    // Energy, protein, fat and carbohydrate are missing.
    QCOMPARE(alle.size(), 13);
    QCOMPARE(alle[0].groesse, Kenngroesse::bs);
}

QTEST_GUILESS_MAIN(TestStandaufbau)
#include "TestStandaufbau.moc"
