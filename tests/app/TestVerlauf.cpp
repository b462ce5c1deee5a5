#include "Verlaufsprobe.h"

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QTest>

#include <functional>

using enum Naehrwert;

/// Taking back and repeating what was changed in own foods and plan, by the keys in both windows,
/// with the files following.
class TestVerlauf : public Verlaufsprobe
{
    Q_OBJECT

private Q_SLOTS:
    void aChangeOfThePlan_data();
    void aChangeOfThePlan();
    void aNewFoodIsTakenBack();
    void aChangedFoodIsTakenBack();
    void aDeletedFoodComesBackWithItsRow();
    void changesAreTakenBackOneByOne();
    void anotherChangeEndsTheRepeating();
    void anAmountThatIsBeingTypedIsGoneWithTheStep();
    void nothingIsLeftToTakeBack();
    void theSameAmountIsNoChange();
    void whatWasThereBeforeThePlanWasOpenedStays();
    void whatIsTypedGoesFirst();
    void anEarlierStateIsTakenBack();
    void aFileThatCannotBeWrittenKeepsNothingBack();
};

void TestVerlauf::aChangeOfThePlan_data()
{
    using Tat = std::function<void(const Verlaufsprobe &)>;
    QTest::addColumn<Tat>("tat");
    QTest::addColumn<QStringList>("danach");
    QTest::addColumn<QString>("worte");
    const auto in = QStringLiteral("„%1“ in den Plan");
    QTest::newRow("a food is dropped between two rows")
        << Tat([](const auto &t) { t.wirfAb(d, 1); })
        << QStringList{QStringLiteral("A 100"), QStringLiteral("D 100"), QStringLiteral("B 100"),
                       QStringLiteral("C 100")}
        << in.arg(d);
    QTest::newRow("a row is dropped at the end, which ends on its way")
        << Tat([](const auto &t) { t.wirfAb(a, 3); })
        << QStringList{QStringLiteral("B 100"), QStringLiteral("C 100"), QStringLiteral("A 100")}
        << in.arg(a);
    QTest::newRow("a food comes from the main window")
        << Tat([](const auto &t) { t.plan().nameimportvontoolbar(d); })
        << QStringList{QStringLiteral("A 100"), QStringLiteral("B 100"), QStringLiteral("C 100"),
                       QStringLiteral("D 100")}
        << in.arg(d);
    QTest::newRow("an amount is typed") << Tat([](const auto &t) {
        Tabellenmodell &modell = *t.plan().PlanTabelle->modell();
        modell.setData(modell.index(1, modell.spaltenstelle(QStringLiteral("menge"))),
                       QStringLiteral("12,5"), Qt::EditRole);
    }) << QStringList{QStringLiteral("A 100"), QStringLiteral("B 12.5"), QStringLiteral("C 100")}
                                        << QStringLiteral("Menge von „B“");
    QTest::newRow("a row is taken out") << Tat([](const auto &t) {
        t.plan().PlanTabelle->selectRow(1);
        QTest::keyClick(t.plan().PlanTabelle, Qt::Key_Delete);
    }) << QStringList{QStringLiteral("A 100"), QStringLiteral("C 100")}
                                        << QStringLiteral("„B“ aus dem Plan");
    QTest::newRow("a row is moved up") << Tat([](const auto &t) {
        t.plan().PlanTabelle->selectRow(2);
        QTest::keyClick(t.plan().PlanTabelle, Qt::Key_Up, Qt::AltModifier);
    }) << QStringList{QStringLiteral("A 100"), QStringLiteral("C 100"), QStringLiteral("B 100")}
                                       << QStringLiteral("Platz von „C“");
}

void TestVerlauf::aChangeOfThePlan()
{
    using Tat = std::function<void(const Verlaufsprobe &)>;
    QFETCH(const Tat, tat);
    QFETCH(const QStringList, danach);
    QFETCH(const QString, worte);
    const QStringList vorher = {QStringLiteral("A 100"), QStringLiteral("B 100"),
                                QStringLiteral("C 100")};
    oeffnePlan();
    QCOMPARE(zeilen(), vorher);
    tat(*this);
    QCOMPARE(zeilen(), danach);
    imPlan();
    QCOMPARE(zeilen(), vorher);
    QCOMPARE(planInDerDatei(), vorher);
    QCOMPARE(plan().PlanTabelle->model()->rowCount(), 3);
    QCOMPARE(hinweis(), QStringLiteral("Zurückgenommen: %1.").arg(worte));
    imPlan(Qt::ShiftModifier);
    QCOMPARE(zeilen(), danach);
    QStringList sortiert = danach;
    sortiert.sort();
    QCOMPARE(planInDerDatei(), sortiert);
    QCOMPARE(plan().PlanTabelle->model()->index(1, 0).data().toString(),
             danach[1].section(QLatin1Char(' '), 0, 0));
    QCOMPARE(hinweis(), QStringLiteral("Wiederholt: %1.").arg(worte));
    imHauptfenster(); // the same line of changes in the other window
    QCOMPARE(zeilen(), vorher);
}

void TestVerlauf::aNewFoodIsTakenBack()
{
    sichere(QStringLiteral("mus"), QStringLiteral("45"));
    QCOMPARE(eigeneInDerDatei(),
             (QStringList{QStringLiteral("brei 70"), QStringLiteral("mus 45")}));
    imHauptfenster();
    QCOMPARE(eigeneInDerDatei(), QStringList{QStringLiteral("brei 70")});
    QCOMPARE(controller().KundenArray, QStringList{brei});
    QCOMPARE(controller().KundenDictionary.size(), 1);
    QCOMPARE(hinweis(), QStringLiteral("Zurückgenommen: „mus“ gesichert."));
    imHauptfenster(Qt::ShiftModifier);
    QCOMPARE(eigeneInDerDatei(),
             (QStringList{QStringLiteral("brei 70"), QStringLiteral("mus 45")}));
    QCOMPARE(controller().KundenArray, (QStringList{brei, QStringLiteral("mus")}));
}

void TestVerlauf::aChangedFoodIsTakenBack()
{
    controller().Planmoduloeffnen();
    sichere(brei, QStringLiteral("90"));
    QCOMPARE(eigeneInDerDatei(), QStringList{QStringLiteral("brei 90")});
    QCOMPARE(Probefenster::text(*controller().feldB), QStringLiteral("90 kcal"));
    imHauptfenster();
    QCOMPARE(eigeneInDerDatei(), QStringList{QStringLiteral("brei 70")});
    QCOMPARE(plan().KundenDictionary[brei].kal(), 70.0F);
    QCOMPARE(Probefenster::text(*controller().feldB),
             QStringLiteral("70 kcal")); // it is on display
    imHauptfenster(Qt::ShiftModifier);
    QCOMPARE(controller().KundenDictionary[brei].kal(), 90.0F);
    QCOMPARE(plan().KundenDictionary[brei].kal(), 90.0F);
}

void TestVerlauf::aDeletedFoodComesBackWithItsRow()
{
    oeffnePlan();
    plan().nameimportvontoolbar(brei);
    m_fenster->klicke(0, inEigen);
    m_heim->antworten = {1};
    controller().LoescheneigeneLM();
    QCOMPARE(zeilen(), (QStringList{QStringLiteral("A 100"), QStringLiteral("B 100"),
                                    QStringLiteral("C 100")}));
    QVERIFY(eigeneInDerDatei().isEmpty());
    imHauptfenster();
    QCOMPARE(eigeneInDerDatei(), QStringList{QStringLiteral("brei 70")});
    QCOMPARE(controller().KundenArray, QStringList{brei});
    QCOMPARE(zeilen(), (QStringList{QStringLiteral("A 100"), QStringLiteral("B 100"),
                                    QStringLiteral("C 100"), QStringLiteral("brei 100")}));
    QCOMPARE(planInDerDatei(), (QStringList{QStringLiteral("A 100"), QStringLiteral("B 100"),
                                            QStringLiteral("C 100"), QStringLiteral("brei 100")}));
    imHauptfenster(Qt::ShiftModifier);
    QVERIFY(controller().KundenArray.isEmpty());
    QCOMPARE(planInDerDatei(), (QStringList{QStringLiteral("A 100"), QStringLiteral("B 100"),
                                            QStringLiteral("C 100")}));
}

void TestVerlauf::changesAreTakenBackOneByOne()
{
    oeffnePlan();
    imPlan();
    QCOMPARE(zeilen(), (QStringList{QStringLiteral("A 100"), QStringLiteral("B 100")}));
    imPlan();
    imPlan();
    QVERIFY(zeilen().isEmpty());
    QVERIFY(planInDerDatei().isEmpty());
    imPlan();
    QCOMPARE(hinweis(), QStringLiteral("Es gibt nichts zurückzunehmen."));
    for (int i = 0; i < 3; ++i) {
        imPlan(Qt::ShiftModifier);
    }
    QCOMPARE(planInDerDatei(), (QStringList{QStringLiteral("A 100"), QStringLiteral("B 100"),
                                            QStringLiteral("C 100")}));
    imPlan(Qt::ShiftModifier);
    QCOMPARE(hinweis(), QStringLiteral("Es gibt nichts zu wiederholen."));
}

void TestVerlauf::anotherChangeEndsTheRepeating()
{
    oeffnePlan();
    imPlan();
    plan().nameimportvontoolbar(d);
    imPlan(Qt::ShiftModifier);
    QCOMPARE(zeilen(), (QStringList{QStringLiteral("A 100"), QStringLiteral("B 100"),
                                    QStringLiteral("D 100")}));
    imPlan(); // D's coming, and C's stays taken back
    QCOMPARE(zeilen(), (QStringList{QStringLiteral("A 100"), QStringLiteral("B 100")}));
}

/// The menu is opened while an amount stands unfinished in its row.
void TestVerlauf::anAmountThatIsBeingTypedIsGoneWithTheStep()
{
    oeffnePlan();
    plan().PlanTabelle->selectRow(1);
    plan().aktionMenge->trigger();
    auto *feld = plan().PlanTabelle->viewport()->findChild<QLineEdit *>();
    QVERIFY(feld != nullptr);
    feld->setText(QStringLiteral("75"));
    plan().aktionRueckgaengig->trigger();
    const QStringList ohneC = {QStringLiteral("A 100"), QStringLiteral("B 100")};
    QCOMPARE(zeilen(), ohneC);
    QCOMPARE(planInDerDatei(), ohneC);
    QVERIFY(plan().aktionRueckgaengig->text().endsWith(QStringLiteral("„B“ in den Plan")));
    plan().aktionWiederholen->trigger();
    QCOMPARE(zeilen(), (QStringList{QStringLiteral("A 100"), QStringLiteral("B 100"),
                                    QStringLiteral("C 100")}));
    QCOMPARE(plan().aktionWiederholen->text(), QStringLiteral("&Wiederholen")); // no step more
}

void TestVerlauf::nothingIsLeftToTakeBack()
{
    imHauptfenster();
    QCOMPARE(hinweis(), QStringLiteral("Es gibt nichts zurückzunehmen."));
    QCOMPARE(eigeneInDerDatei(), QStringList{QStringLiteral("brei 70")});
}

void TestVerlauf::theSameAmountIsNoChange()
{
    oeffnePlan();
    Tabellenmodell &modell = *plan().PlanTabelle->modell();
    modell.setData(modell.index(2, modell.spaltenstelle(QStringLiteral("menge"))),
                   QStringLiteral("100"), Qt::EditRole);
    imPlan();
    QCOMPARE(zeilen(), (QStringList{QStringLiteral("A 100"),
                                    QStringLiteral("B 100")})); // C's coming is taken back
}

void TestVerlauf::whatWasThereBeforeThePlanWasOpenedStays()
{
    sichere(QStringLiteral("mus"), QStringLiteral("45"));
    oeffnePlan();
    for (int i = 0; i < 3; ++i) {
        imPlan();
    }
    imPlan(); // the own food
    QCOMPARE(eigeneInDerDatei(), QStringList{QStringLiteral("brei 70")});
    QVERIFY(zeilen().isEmpty());
}

void TestVerlauf::whatIsTypedGoesFirst()
{
    sichere(QStringLiteral("mus"), QStringLiteral("45"));
    controller().Hauptfenster->activateWindow();
    controller().suchfeld->setFocus();
    QTest::keyClicks(controller().suchfeld, QStringLiteral("ap"));
    QTest::keyClick(controller().suchfeld, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(controller().suchfeld->text(), QString());
    QCOMPARE(controller().KundenArray.size(), 2);
    QTest::keyClick(controller().suchfeld, Qt::Key_Z, Qt::ControlModifier); // nothing is typed
    QCOMPARE(controller().KundenArray.size(), 1);
}

void TestVerlauf::anEarlierStateIsTakenBack()
{
    oeffnePlan();
    Planliste frueher;
    frueher.laden(verzeichnis({lebensmittel(d, {{kal, 55}})}));
    plan().uebernimmPlan(frueher);
    QCOMPARE(zeilen(), QStringList{QStringLiteral("D 55")});
    imPlan();
    QCOMPARE(zeilen(), (QStringList{QStringLiteral("A 100"), QStringLiteral("B 100"),
                                    QStringLiteral("C 100")}));
    QCOMPARE(hinweis(), QStringLiteral("Zurückgenommen: früherer Stand des Plans."));
}

void TestVerlauf::aFileThatCannotBeWrittenKeepsNothingBack()
{
    oeffnePlan();
    const QString datei = plandatei();
    QVERIFY(QFile::rename(datei, datei + QStringLiteral(".weg")));
    QVERIFY(QDir().mkdir(datei)); // a folder stands where the file belongs
    imPlan();
    QCOMPARE(zeilen(), (QStringList{QStringLiteral("A 100"), QStringLiteral("B 100")}));
    QVERIFY(QDir().rmdir(datei));
    imPlan(Qt::ShiftModifier);
    QCOMPARE(zeilen(), (QStringList{QStringLiteral("A 100"), QStringLiteral("B 100"),
                                    QStringLiteral("C 100")}));
    QCOMPARE(planInDerDatei(), (QStringList{QStringLiteral("A 100"), QStringLiteral("B 100"),
                                            QStringLiteral("C 100")}));
}

QTEST_MAIN(TestVerlauf)
#include "TestVerlauf.moc"
