#include "Listenmodell.h"
#include "Planliste.h"

#include <QRandomGenerator>
#include <QTest>

/// The operations on the rows of a plan, with and without their ends reached.
class TestPlanliste : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aLoadedPlanIsSortedAndCutOff();
    void drops_data();
    void drops();
    void aDropBeyondTheListChangesNothing();
    void handOvers_data();
    void handOvers();
    void aChangedAmountIsWrittenIntoTheStore();
    void anAmountOfNoRowChangesNothing();
    void aRemovedRowLeavesTheStore();
    void noRowIsNotRemoved();
    void aCarrierHoldsNothingButNameAndGrams();
    void moves_data();
    void moves();
    void aRenamedFoodKeepsItsRowsAndGrams();
    void aRenamedFoodThatTheStoreLacksStaysOut();
    void theFirstRowOfAFoodIsFound();
    void tenThousandOperationsGoAsToldToAColleague();
};

namespace {

/// "A100 B50" is a plan of A with 100 g and B with 50 g; the store holds the same.
Planliste liste(const QString &text)
{
    Planliste neu;
    for (const QString &wort : text.split(u' ', Qt::SkipEmptyParts)) {
        neu.anhaengen(wort.left(1));
        neu.mengeAendern(neu.PlanArray.size() - 1, wort.mid(1).toFloat());
    }
    return neu;
}

QString inWorten(const QString &name, float gramm)
{
    return name + QString::number(static_cast<double>(gramm));
}

QString zeilen(const Planliste &plan)
{
    QStringList worte;
    for (qsizetype i = 0; i < plan.PlanArray.size(); ++i) {
        worte << inWorten(plan.PlanArray[i], plan.mengenarray[i]);
    }
    return worte.join(u' ');
}

QString lager(const Planliste &plan)
{
    QStringList worte;
    for (const Datenmodul &traeger : plan.plansavedictionary) {
        worte << inWorten(traeger.name(), traeger.kal());
    }
    return worte.join(u' ');
}

Lebensmittelverzeichnis gesichert(const QList<std::pair<QString, float>> &zeilen)
{
    Lebensmittelverzeichnis verzeichnis;
    for (const auto &[name, gramm] : zeilen) {
        Datenmodul traeger;
        traeger.setName(name);
        traeger.setkal(gramm);
        verzeichnis.insert(name, traeger);
    }
    return verzeichnis;
}

} // namespace

void TestPlanliste::aLoadedPlanIsSortedAndCutOff()
{
    Planliste plan;
    plan.laden(gesichert({{QStringLiteral("Zucker"), 150.7F},
                          {QStringLiteral("apfel"), -2.9F},
                          {QStringLiteral("Brot"), 30.0F},
                          {QStringLiteral("Ei"), 1e30F}}));
    QCOMPARE(plan.PlanArray, QStringList({QStringLiteral("apfel"), QStringLiteral("Brot"),
                                          QStringLiteral("Ei"), QStringLiteral("Zucker")}));
    QCOMPARE(plan.mengenarray, QList<float>({-2.0F, 30.0F, 2147483647.0F, 150.0F}));
    QCOMPARE(plan.plansavedictionary[QStringLiteral("Zucker")].kal(), 150.7F); // until it changes
    QCOMPARE(plan.Arrayrausgeben(), plan.PlanArray);
}

void TestPlanliste::drops_data()
{
    QTest::addColumn<QString>("vorher");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("zeile");
    QTest::addColumn<bool>("gelungen");
    QTest::addColumn<QString>("nachher");
    QTest::addColumn<QString>("imLager");

    QTest::newRow("a new food between two") << "A1 B2"
                                            << "X" << 1 << true << "A1 X100 B2"
                                            << "A1 B2 X100";
    QTest::newRow("a new food first") << "A1 B2"
                                      << "X" << 0 << true << "X100 A1 B2"
                                      << "A1 B2 X100";
    QTest::newRow("a new food last") << "A1 B2"
                                     << "X" << 2 << true << "A1 B2 X100"
                                     << "A1 B2 X100";
    QTest::newRow("the first food of all") << ""
                                           << "X" << 0 << true << "X100"
                                           << "X100";
    QTest::newRow("the last food moves up") << "A1 B2 C3"
                                            << "C" << 0 << true << "C100 A1 B2"
                                            << "A1 B2 C100";
    QTest::newRow("the last food moves up by one") << "A1 B2 C3"
                                                   << "C" << 1 << true << "A1 C100 B2"
                                                   << "A1 B2 C100";
    QTest::newRow("the last food above itself: the lower one goes")
        << "A1 B2 C3"
        << "C" << 2 << true << "A1 B2 C100"
        << "A1 B2 C100";
    // The first B goes at row 2; row 3 is then read, and there is none.
    QTest::newRow("a food from the middle moves up: its entry is lost")
        << "A1 B2 C3"
        << "B" << 0 << false << "B100 A1 C3"
        << "A1 C3";
    // A goes from row 0, C moves up into row 2 and loses its entry; then row 3 is read.
    QTest::newRow("the first food moves down: the entry of the one moved up is lost")
        << "A1 B2 C3"
        << "A" << 2 << false << "B2 A100 C3"
        << "A1 B2";
    // A goes from row 0, nothing moves up into row 3.
    QTest::newRow("the first food moves to the end: no entry is lost")
        << "A1 B2 C3"
        << "A" << 3 << false << "B2 C3 A100"
        << "A1 B2 C3";
    QTest::newRow("the only food above itself") << "A1"
                                                << "A" << 0 << true << "A100"
                                                << "A100";
    QTest::newRow("the only food below itself") << "A1"
                                                << "A" << 1 << false << "A100"
                                                << "A1";
}

void TestPlanliste::drops()
{
    QFETCH(QString, vorher);
    QFETCH(QString, name);
    QFETCH(int, zeile);
    Planliste plan = liste(vorher);
    QTEST(plan.einsetzen(name, zeile), "gelungen");
    QTEST(zeilen(plan), "nachher");
    QTEST(lager(plan), "imLager");
}

void TestPlanliste::aDropBeyondTheListChangesNothing()
{
    for (const int zeile : {-1, 3, 99}) {
        Planliste plan = liste(QStringLiteral("A1 B2"));
        QVERIFY(!plan.einsetzen(QStringLiteral("X"), zeile));
        QCOMPARE(zeilen(plan), QStringLiteral("A1 B2"));
        QCOMPARE(lager(plan), QStringLiteral("A1 B2"));
    }
}

void TestPlanliste::handOvers_data()
{
    QTest::addColumn<QString>("vorher");
    QTest::addColumn<QString>("nachher");
    QTest::newRow("into an empty plan") << ""
                                        << "X100";
    QTest::newRow("a new food comes last") << "A1 B2"
                                           << "A1 B2 X100";
    QTest::newRow("from the first row to the last") << "X1 A2 B3"
                                                    << "A2 B3 X100";
    QTest::newRow("from the middle") << "A1 X2 B3"
                                     << "A1 B3 X100";
    QTest::newRow("from the last row to the last") << "A1 X2"
                                                   << "A1 X100";
}

void TestPlanliste::handOvers()
{
    QFETCH(QString, vorher);
    QFETCH(QString, nachher);
    Planliste plan = liste(vorher);
    plan.anhaengen(QStringLiteral("X"));
    QCOMPARE(zeilen(plan), nachher);
    QStringList sortiert = nachher.split(u' ');
    sortiert.sort();
    QCOMPARE(lager(plan), sortiert.join(u' '));
}

void TestPlanliste::aChangedAmountIsWrittenIntoTheStore()
{
    Planliste plan = liste(QStringLiteral("A1 B2"));
    QVERIFY(plan.mengeAendern(1, -2.5F));
    QCOMPARE(zeilen(plan), QStringLiteral("A1 B-2.5"));
    QCOMPARE(lager(plan), QStringLiteral("A1 B-2.5"));
}

void TestPlanliste::anAmountOfNoRowChangesNothing()
{
    Planliste plan = liste(QStringLiteral("A1 B2"));
    QVERIFY(!plan.mengeAendern(2, 7));
    QVERIFY(!plan.mengeAendern(-1, 7));
    QCOMPARE(zeilen(plan), QStringLiteral("A1 B2"));
    QCOMPARE(lager(plan), QStringLiteral("A1 B2"));
}

void TestPlanliste::aRemovedRowLeavesTheStore()
{
    Planliste plan = liste(QStringLiteral("A1 B2 C3"));
    QVERIFY(plan.zeileEntfernen(1));
    QCOMPARE(zeilen(plan), QStringLiteral("A1 C3"));
    QCOMPARE(lager(plan), QStringLiteral("A1 C3"));
}

void TestPlanliste::noRowIsNotRemoved()
{
    Planliste plan = liste(QStringLiteral("A1 B2"));
    QVERIFY(!plan.zeileEntfernen(-1));
    QVERIFY(!plan.zeileEntfernen(2));
    QCOMPARE(zeilen(plan), QStringLiteral("A1 B2"));
    QCOMPARE(lager(plan), QStringLiteral("A1 B2"));
}

void TestPlanliste::aCarrierHoldsNothingButNameAndGrams()
{
    Planliste plan = liste(QStringLiteral("A250"));
    const Datenmodul traeger = plan.plansavedictionary.first();
    QCOMPARE(traeger.name(), QStringLiteral("A"));
    QCOMPARE(traeger.kal(), 250.0F);
    for (const auto &zeile : naehrwerte) {
        QVERIFY(zeile.wert == Naehrwert::kal || traeger.wert(zeile.wert) == 0.0F);
    }
    for (const auto &zeile : wertungen) {
        QVERIFY(traeger.wertung(zeile.wertung).isNull());
    }
}

void TestPlanliste::moves_data()
{
    QTest::addColumn<int>("von");
    QTest::addColumn<int>("nach");
    QTest::addColumn<QString>("danach"); // null: it did not run through
    QTest::newRow("up") << 1 << 0 << QStringLiteral("B20 A10 C30");
    QTest::newRow("down") << 1 << 2 << QStringLiteral("A10 C30 B20");
    QTest::newRow("from one end to the other") << 0 << 2 << QStringLiteral("B20 C30 A10");
    QTest::newRow("to where it is") << 1 << 1 << QStringLiteral("A10 B20 C30");
    QTest::newRow("above the first") << 0 << -1 << QString();
    QTest::newRow("below the last") << 2 << 3 << QString();
    QTest::newRow("no row") << -1 << 0 << QString();
}

void TestPlanliste::moves()
{
    QFETCH(int, von);
    QFETCH(int, nach);
    QFETCH(QString, danach);
    Planliste plan = liste(QStringLiteral("A10 B20 C30"));
    const QString vorher = zeilen(plan);
    QCOMPARE(plan.verschieben(von, nach), !danach.isNull());
    QCOMPARE(zeilen(plan), danach.isNull() ? vorher : danach);
    QCOMPARE(lager(plan), QStringLiteral("A10 B20 C30"));
}

void TestPlanliste::aRenamedFoodKeepsItsRowsAndGrams()
{
    Planliste plan = liste(QStringLiteral("A10 B20 C30"));
    plan.umbenennen(QStringLiteral("B"), QStringLiteral("X"));
    QCOMPARE(zeilen(plan), QStringLiteral("A10 X20 C30"));
    QCOMPARE(lager(plan), QStringLiteral("A10 C30 X20"));
}

void TestPlanliste::aRenamedFoodThatTheStoreLacksStaysOut()
{
    Planliste plan = liste(QStringLiteral("A10 B20"));
    plan.plansavedictionary.remove(QStringLiteral("B"));
    plan.umbenennen(QStringLiteral("B"), QStringLiteral("X"));
    QCOMPARE(zeilen(plan), QStringLiteral("A10 X20"));
    QCOMPARE(lager(plan), QStringLiteral("A10"));
}

void TestPlanliste::theFirstRowOfAFoodIsFound()
{
    Planliste plan = liste(QStringLiteral("A1 B2"));
    plan.PlanArray << QStringLiteral("B");
    plan.mengenarray << 3.0F;
    QCOMPARE(plan.zeileVon(QStringLiteral("B")), std::optional<qsizetype>(1));
    QVERIFY(!plan.zeileVon(QStringLiteral("X")).has_value());
}

void TestPlanliste::tenThousandOperationsGoAsToldToAColleague()
{
    QRandomGenerator zufall(20261120);
    Planliste plan;
    Listenmodell modell;
    int abgebrochen = 0;
    for (int schritt = 0; schritt < 10000; ++schritt) {
        const auto n = static_cast<int>(plan.PlanArray.size());
        const QString name(QChar(u'A' + zufall.bounded(7)));
        const int zeile = zufall.bounded(n + 2) - (zufall.bounded(8) == 0 ? 1 : 0);
        const auto stelle = static_cast<std::size_t>(zeile); // -1 lies far beyond every end
        const float gramm = static_cast<float>(zufall.bounded(900)) / 4.0F;
        bool soll = true;
        bool ist = true;
        try {
            switch (zufall.bounded(6)) {
            case 0:
            case 1:
            case 2:
                ist = plan.einsetzen(name, zeile);
                modell.abwurf(name, stelle);
                break;
            case 3:
                plan.anhaengen(name);
                modell.uebernahme(name);
                break;
            case 4:
                ist = plan.mengeAendern(zeile, gramm);
                modell.aendere(stelle, gramm);
                break;
            default:
                ist = plan.zeileEntfernen(zeile);
                modell.entferne(stelle);
            }
        } catch (const std::out_of_range &) {
            soll = false;
            ++abgebrochen;
        }
        QCOMPARE(ist, soll);
        QCOMPARE(plan.PlanArray, QStringList(modell.namen.begin(), modell.namen.end()));
        QCOMPARE(plan.mengenarray, QList<float>(modell.mengen.begin(), modell.mengen.end()));
        QCOMPARE(plan.plansavedictionary.size(), static_cast<qsizetype>(modell.lager.size()));
        for (const auto &[schluessel, menge] : modell.lager) {
            QCOMPARE(plan.plansavedictionary[schluessel].kal(), menge);
        }
    }
    QVERIFY(abgebrochen > 1000 && abgebrochen < 9000); // both ways were gone
}

QTEST_GUILESS_MAIN(TestPlanliste)
#include "TestPlanliste.moc"
