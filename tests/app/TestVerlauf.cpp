#include "Archivdatei.h"
#include "Probefenster.h"

#include <QApplication>
#include <QDir>
#include <QDropEvent>
#include <QMimeData>
#include <QTest>

#include <functional>

using enum Naehrwert;

/// Taking back and repeating what was changed in own foods and plan, by the keys in both windows,
/// with the files following.
class TestVerlauf : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aChangeOfThePlan_data();
    void aChangeOfThePlan();
    void aNewFoodIsTakenBack();
    void aChangedFoodIsTakenBack();
    void aDeletedFoodComesBackWithItsRow();
    void changesAreTakenBackOneByOne();
    void anotherChangeEndsTheRepeating();
    void nothingIsLeftToTakeBack();
    void theSameAmountIsNoChange();
    void whatWasThereBeforeThePlanWasOpenedStays();
    void whatIsTypedGoesFirst();
    void theMenusSayWhatIsTakenBack();
    void theNoticeOffersTheWayBack();
    void theWayBackGoesWithTheNextChange();
    void anEarlierStateIsTakenBack();
    void aFileThatCannotBeWrittenKeepsNothingBack();

private:
    void oeffnePlan();
    void imPlan(Qt::KeyboardModifiers dazu = {}) const;
    void imHauptfenster(Qt::KeyboardModifiers dazu = {}) const;
    void sichere(const QString &name, const QString &energie) const;
    void wirfAb(const QString &name, int zeile) const;
    QStringList zeilen() const;
    QString plandatei() const
    {
        return QFileInfo(m_heim->eigeneDatei()).path() + QStringLiteral("/MahlbergPlanmod.daten");
    }
    QStringList planInDerDatei() const;
    QStringList eigeneInDerDatei() const;
    QString hinweis() const;
    AppController &controller() const { return m_fenster->controller(); }
    Planmodul &plan() const { return *controller().planmodul; }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

namespace {

const QString a = QStringLiteral("A");
const QString b = QStringLiteral("B");
const QString c = QStringLiteral("C");
const QString d = QStringLiteral("D");
const QString brei = QStringLiteral("brei");

} // namespace

void TestVerlauf::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(
        verzeichnis({lebensmittel(a, {{kal, 10}}), lebensmittel(b, {{kal, 20}}),
                     lebensmittel(c, {{kal, 30}}), lebensmittel(d, {{kal, 40}})}));
    m_heim->schreibeEigene(verzeichnis({lebensmittel(brei, {{kal, 70}})}));
    m_fenster = std::make_unique<Probefenster>(*m_heim);
}

void TestVerlauf::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

/// A, B and C with 100 g each, the plan's window in front.
void TestVerlauf::oeffnePlan()
{
    controller().Planmoduloeffnen();
    for (const QString &name : {a, b, c}) {
        plan().nameimportvontoolbar(name);
    }
    QVERIFY(QTest::qWaitForWindowActive(plan().window()));
    plan().PlanTabelle->setFocus();
}

void TestVerlauf::imPlan(Qt::KeyboardModifiers dazu) const
{
    plan().window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(plan().window()));
    QTest::keyClick(plan().PlanTabelle, Qt::Key_Z, Qt::ControlModifier | dazu);
}

void TestVerlauf::imHauptfenster(Qt::KeyboardModifiers dazu) const
{
    controller().Hauptfenster->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(controller().Hauptfenster));
    controller().Tabelle->setFocus();
    QTest::keyClick(controller().Tabelle, Qt::Key_Z, Qt::ControlModifier | dazu);
}

void TestVerlauf::sichere(const QString &name, const QString &energie) const
{
    controller().EingabeFensterfeldA->setStringValue(name);
    controller().eingabefelder()[0]->setStringValue(energie);
    controller().umschreibenDerEingabeFelder();
}

void TestVerlauf::wirfAb(const QString &name, int zeile) const
{
    Tabellenansicht &tabelle = *plan().PlanTabelle;
    QCoreApplication::processEvents();
    const int letzte = tabelle.model()->rowCount() - 1;
    const int y = zeile <= letzte ? tabelle.rowViewportPosition(zeile) + 1
                                  : tabelle.rowViewportPosition(letzte) + tabelle.rowHeight() - 1;
    QMimeData daten;
    daten.setText(name);
    const QPoint ort(30, y);
    QDragEnterEvent herein(ort, Qt::CopyAction, &daten, Qt::LeftButton, {});
    QApplication::sendEvent(tabelle.viewport(), &herein);
    QDragMoveEvent darueber(ort, Qt::CopyAction, &daten, Qt::LeftButton, {});
    QApplication::sendEvent(tabelle.viewport(), &darueber);
    QDropEvent fallen(ort, Qt::CopyAction, &daten, Qt::LeftButton, {});
    QApplication::sendEvent(tabelle.viewport(), &fallen);
}

/// What the plan holds: QStringLiteral("A 100").
QStringList TestVerlauf::zeilen() const
{
    QStringList alle;
    for (qsizetype i = 0; i < plan().PlanArray.size(); ++i) {
        alle << QStringLiteral("%1 %2").arg(plan().PlanArray[i]).arg(plan().mengenarray[i]);
    }
    return alle;
}

/// The same from the file, which knows no order.
QStringList TestVerlauf::planInDerDatei() const
{
    const auto datei = Archivdatei::lesen(plandatei()).archiv.verzeichnis;
    QStringList alle;
    for (auto zeile = datei.cbegin(); zeile != datei.cend(); ++zeile) {
        alle << QStringLiteral("%1 %2").arg(zeile.key()).arg(zeile->kal());
    }
    alle.sort();
    return alle;
}

QStringList TestVerlauf::eigeneInDerDatei() const
{
    const auto datei = Archivdatei::lesen(m_heim->eigeneDatei()).archiv.verzeichnis;
    QStringList alle;
    for (auto zeile = datei.cbegin(); zeile != datei.cend(); ++zeile) {
        alle << QStringLiteral("%1 %2").arg(zeile.key()).arg(zeile->kal());
    }
    alle.sort();
    return alle;
}

/// The newest notice of the window in front.
QString TestVerlauf::hinweis() const
{
    const Planmodul *einPlan = controller().planmodul;
    const bool vorn = einPlan != nullptr && plan().window()->isActiveWindow();
    const auto &alle = vorn ? einPlan->hinweise->hinweise() : controller().hinweise->hinweise();
    return alle.isEmpty() ? QString() : alle.constFirst().text;
}

void TestVerlauf::aChangeOfThePlan_data()
{
    using Tat = std::function<void(const TestVerlauf &)>;
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
    using Tat = std::function<void(const TestVerlauf &)>;
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

void TestVerlauf::theMenusSayWhatIsTakenBack()
{
    const auto worte = [this](const char *name) {
        return controller().Hauptfenster->findChild<QAction *>(QLatin1String(name))->text();
    };
    QCOMPARE(worte("aktionRueckgaengig"), QStringLiteral("&Rückgängig"));
    oeffnePlan();
    QCOMPARE(worte("aktionRueckgaengig"), QStringLiteral("&Rückgängig: „C“ in den Plan"));
    QCOMPARE(plan().aktionRueckgaengig->text(), worte("aktionRueckgaengig"));
    QCOMPARE(worte("aktionWiederholen"), QStringLiteral("&Wiederholen"));
    imPlan();
    QCOMPARE(worte("aktionRueckgaengig"), QStringLiteral("&Rückgängig: „B“ in den Plan"));
    QCOMPARE(worte("aktionWiederholen"), QStringLiteral("&Wiederholen: „C“ in den Plan"));
    QCOMPARE(plan().aktionWiederholen->text(), worte("aktionWiederholen"));
}

void TestVerlauf::theNoticeOffersTheWayBack()
{
    m_fenster->klicke(0, inEigen);
    m_heim->antworten = {1};
    controller().LoescheneigeneLM();
    const Hinweis einer = controller().hinweise->hinweise().constFirst();
    QCOMPARE(einer.text, QStringLiteral("„brei“ ist gelöscht."));
    QCOMPARE(einer.knopf, QStringLiteral("Zurücknehmen"));
    einer.aktion();
    QCOMPARE(controller().KundenArray, QStringList{brei});
    QCOMPARE(hinweis(), QStringLiteral("Zurückgenommen: „brei“ gelöscht."));
    QCOMPARE(controller().hinweise->hinweise().size(), 1); // the one about deleting is settled
    controller().hinweise->hinweise().constFirst().aktion();
    QVERIFY(controller().KundenArray.isEmpty());
}

void TestVerlauf::theWayBackGoesWithTheNextChange()
{
    m_fenster->klicke(0, inEigen);
    m_heim->antworten = {1};
    controller().LoescheneigeneLM();
    controller().Planmoduloeffnen();
    plan().nameimportvontoolbar(a);
    QVERIFY(controller().hinweise->hinweise().isEmpty());
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
