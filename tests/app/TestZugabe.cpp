#include "Archivdatei.h"
#include "Probefenster.h"

#include <QApplication>
#include <QDoubleSpinBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QWindow>

using enum Naehrwert;

/// Foods go into the plan from the main window, which stays in front: by a double click and by a
/// key.
class TestZugabe : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aDoubleClickPutsTheFoodIn_data();
    void aDoubleClickPutsTheFoodIn();
    void theFirstOfTwoClicksIsMeant();
    void twoClicksOnNeighboursAreNoDoubleClick();
    void theKeyPutsInTheFoodWhereTheKeyboardIs();
    void theKeyTakesAResultThatIsNotChosenYet();
    void theKeyPutsInAnOwnFoodOfTheRow();
    void theKeyTakesTheResultOfTheSameRow();
    void withoutADisplayTheKeyTakesTheCell();
    void aTypedAmountCounts();
    void aFoodThatWasInThePlanMovesToTheEnd();
    void theWayBack();
    void theLastOneGetsAnotherAmount();
    void foodsAreCalledAsInTheTable();
    void theLineAboveTheResultsIsNoFoodOfAnyTable();
    void theWayBackGoesWithTheNextChange();
    void whatIsThereAlreadyCanNotBeTakenBack();
    void whatIsNoFoodSaysWhy_data();
    void whatIsNoFoodSaysWhy();
    void theWindowOfThePlanStaysAsItIs();
    void theToolbarDoesWhatItDid();

private:
    AppController &controller() const { return m_fenster->controller(); }
    Planmodul &plan() const { return *controller().planmodul; }
    void doppelklicke(int zeile, int spalte) const;
    void suche(const QString &text) const { m_fenster->suche(text); }
    void drueckeTaste(QWidget *feld) const;
    QString hinweis() const;
    void nimmZurueck() const;
    QMap<QString, float> plandatei() const;

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

namespace {

const QString leereZeile = QStringLiteral("-");
const QString kuchen = QStringLiteral("Omas Kuchen");
const QString torte = QStringLiteral("Omas Torte");

} // namespace

/// The table begins with a line without values, as the built-in one does: row 8 is food 7.
void TestZugabe::init()
{
    m_heim = std::make_unique<Probeheim>();
    Lebensmittelverzeichnis tabelle = zaehltabelle(900);
    tabelle.insert(leereZeile, lebensmittel(leereZeile));
    m_heim->schreibeTabelle(tabelle);
    m_heim->schreibeEigene(
        verzeichnis({lebensmittel(kuchen, {{kal, 400}}), lebensmittel(torte, {{kal, 500}})}));
    m_fenster = std::make_unique<Probefenster>(*m_heim);
    m_fenster->klicke(3, inName);
    m_fenster->tippeMenge(QStringLiteral("150"));
}

void TestZugabe::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

void TestZugabe::doppelklicke(int zeile, int spalte) const
{
    controller().Tabelle->scrollRowToVisible(zeile);
    QTest::mouseDClick(controller().Hauptfenster->windowHandle(), Qt::LeftButton, {},
                       controller().Tabelle->viewport()->mapTo(controller().Hauptfenster,
                                                               m_fenster->mitte(zeile, spalte)));
}

void TestZugabe::drueckeTaste(QWidget *feld) const
{
    feld->setFocus();
    QVERIFY(feld->hasFocus());
    QTest::keyClick(feld, Qt::Key_Return, Qt::ControlModifier);
}

/// What the notice about the plan says; empty when there is none.
QString TestZugabe::hinweis() const
{
    for (const Hinweis &einer : controller().hinweise->hinweise()) {
        if (einer.kennung == AppController::hinweisZugabe) {
            return einer.text;
        }
    }
    return {};
}

/// Presses the notice's button; notices of before are gone for good by then.
void TestZugabe::nimmZurueck() const
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    auto *knopf = controller().hinweise->findChild<QPushButton *>(QStringLiteral("hinweisknopf"));
    QCOMPARE(knopf->text(), QStringLiteral("Zurücknehmen"));
    QTest::mouseClick(knopf, Qt::LeftButton);
}

QMap<QString, float> TestZugabe::plandatei() const
{
    const QString path =
        Datenordner(m_heim->pfad(QString())).pathForDataFile(QStringLiteral("plandaten"));
    QMap<QString, float> gramm;
    for (const Datenmodul &eines : Archivdatei::lesen(path).archiv.verzeichnis) {
        gramm.insert(eines.name(), eines.kal());
    }
    return gramm;
}

void TestZugabe::aDoubleClickPutsTheFoodIn_data()
{
    QTest::addColumn<int>("zeile");
    QTest::addColumn<int>("spalte");
    QTest::addColumn<QString>("name");
    QTest::newRow("a built-in food") << 8 << inName << zaehlname(7);
    QTest::newRow("an own food") << 1 << inEigen << torte;
    QTest::newRow("a result") << 1 << inSuch << zaehlname(12);
}

void TestZugabe::aDoubleClickPutsTheFoodIn()
{
    QFETCH(int, zeile);
    QFETCH(int, spalte);
    QFETCH(QString, name);
    suche(QStringLiteral("0012"));
    doppelklicke(zeile, spalte);
    QCOMPARE(Probefenster::text(*controller().feldA), name); // the first click chose it
    QCOMPARE(AppController::angeklickteSpalte, spalte);
    QVERIFY(controller().planmodul != nullptr);
    QCOMPARE(plan().PlanArray, QStringList{name});
    QCOMPARE(plan().mengenarray, QList<float>{150.0F});
    QCOMPARE(plandatei(), (QMap<QString, float>{{name, 150.0F}}));
    QCOMPARE(hinweis(), QStringLiteral("„%1“ ist mit 150 g im Plan.").arg(name));
    QCOMPARE(controller().hinweise->hinweise().constFirst().dauer, 8000);
    QVERIFY(!plan().window()->isVisible());
    QVERIFY(controller().Hauptfenster->isActiveWindow());
}

/// It has rolled the table to the food of a result, and another result lies under the mouse.
void TestZugabe::theFirstOfTwoClicksIsMeant()
{
    suche(QStringLiteral("speise"));
    doppelklicke(20, inSuch);
    QCOMPARE(plan().PlanArray, QStringList{zaehlname(19)});
    suche(QStringLiteral("85")); // 85, 185 … 785, 850 … 859, 885
    const int zeile = static_cast<int>(controller().suchArray2.indexOf(zaehlname(857)));
    QVERIFY(zeile > 0 && zeile < 30);
    doppelklicke(zeile, inSuch);
    QVERIFY(controller().Tabelle->verticalScrollBar()->value() > 800);
    QCOMPARE(plan().PlanArray, QStringList({zaehlname(19), zaehlname(857)}));
}

/// The hand has moved between the clicks, and the second one chooses the neighbour.
void TestZugabe::twoClicksOnNeighboursAreNoDoubleClick()
{
    QWidget *flaeche = controller().Tabelle->viewport();
    const int grenze = controller().Tabelle->columnViewportPosition(inEigen);
    const QPoint ort(grenze - 3, m_fenster->mitte(1, inEigen).y());
    const QPoint daneben = ort + QPoint(4, 0);
    QTest::mouseClick(flaeche, Qt::LeftButton, {}, ort);
    QMouseEvent zweiter(QEvent::MouseButtonDblClick, daneben, flaeche->mapToGlobal(daneben),
                        Qt::LeftButton, Qt::LeftButton, {});
    QApplication::sendEvent(flaeche, &zweiter);
    QTest::mouseRelease(flaeche, Qt::LeftButton, {}, daneben);
    QCOMPARE(Probefenster::text(*controller().feldA), torte);
    QVERIFY(controller().planmodul == nullptr);
}

void TestZugabe::theKeyPutsInTheFoodWhereTheKeyboardIs()
{
    m_fenster->klicke(8, inName);
    drueckeTaste(controller().Tabelle);
    QCOMPARE(plan().PlanArray, QStringList{zaehlname(7)});
    QCOMPARE(plan().mengenarray, QList<float>{150.0F});
    m_fenster->klicke(0, inEigen);
    drueckeTaste(controller().suchfeld); // the food on display
    QCOMPARE(plan().PlanArray, QStringList({zaehlname(7), kuchen}));
    QCOMPARE(hinweis(), QStringLiteral("„%1“ ist mit 150 g im Plan.").arg(kuchen));
    QVERIFY(!plan().window()->isVisible());
}

void TestZugabe::theKeyTakesAResultThatIsNotChosenYet()
{
    suche(QStringLiteral("004"));
    QTest::keyClick(controller().suchfeld, Qt::Key_Down);
    QTest::keyClick(controller().Tabelle, Qt::Key_Down);
    QTest::keyClick(controller().Tabelle, Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(plan().PlanArray, QStringList{controller().suchArray2[2]});
}

/// The cell where the keyboard is belongs to a built-in food.
void TestZugabe::theKeyPutsInAnOwnFoodOfTheRow()
{
    m_fenster->klicke(1, inName);
    QTest::keyClick(controller().Tabelle, Qt::Key_E, Qt::ControlModifier);
    QCOMPARE(Probefenster::text(*controller().feldA), torte);
    drueckeTaste(controller().Tabelle);
    QCOMPARE(plan().PlanArray, QStringList{torte});
    QTest::keyClick(controller().Tabelle, Qt::Key_Down); // to another row, whose food is meant
    QTest::keyClick(controller().Tabelle, Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(plan().PlanArray, QStringList({torte, zaehlname(1)}));
}

/// The own food of the row was called up, and then the keyboard went on to a result beside it.
void TestZugabe::theKeyTakesTheResultOfTheSameRow()
{
    suche(QStringLiteral("0012"));
    m_fenster->klicke(1, inName);
    QTest::keyClick(controller().Tabelle, Qt::Key_E, Qt::ControlModifier);
    QCOMPARE(Probefenster::text(*controller().feldA), torte);
    controller().Tabelle->setFocus();
    QTest::keyClick(controller().Tabelle, Qt::Key_Right);
    QTest::keyClick(controller().Tabelle, Qt::Key_Right);
    QTest::keyClick(controller().Tabelle, Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(plan().PlanArray, QStringList{zaehlname(12)});
}

/// While no food is on display, that of the table's cell is meant wherever the keyboard is.
void TestZugabe::withoutADisplayTheKeyTakesTheCell()
{
    controller().DatenAnsicht->hide();
    controller().Tabelle->setzeSchreibmarke(8, QStringLiteral("name"));
    drueckeTaste(controller().suchfeld);
    QCOMPARE(plan().PlanArray, QStringList{zaehlname(7)});
}

void TestZugabe::aTypedAmountCounts()
{
    QDoubleSpinBox *eingabe = controller().lebensmittelmenge->eingabe();
    eingabe->setFocus();
    eingabe->selectAll();
    QTest::keyClicks(eingabe, QStringLiteral("80"));
    QTest::keyClick(eingabe, Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(plan().PlanArray, QStringList{zaehlname(2)});
    QCOMPARE(plan().mengenarray, QList<float>{80.0F});
}

void TestZugabe::aFoodThatWasInThePlanMovesToTheEnd()
{
    doppelklicke(8, inName);
    doppelklicke(9, inName);
    m_fenster->tippeMenge(QStringLiteral("80"));
    doppelklicke(8, inName);
    QCOMPARE(plan().PlanArray, QStringList({zaehlname(8), zaehlname(7)}));
    QCOMPARE(plan().mengenarray, QList<float>({150.0F, 80.0F}));
    QCOMPARE(plandatei(), (QMap<QString, float>{{zaehlname(7), 80.0F}, {zaehlname(8), 150.0F}}));
    QCOMPARE(hinweis(), QStringLiteral("„Speise 0007“ stand schon im Plan: Es steht jetzt am Ende "
                                       "und hat 80 g (vorher: 150 g)."));
}

void TestZugabe::theWayBack()
{
    doppelklicke(8, inName);
    doppelklicke(9, inName);
    m_fenster->tippeMenge(QStringLiteral("80"));
    doppelklicke(8, inName);
    nimmZurueck();
    QCOMPARE(plan().PlanArray, QStringList({zaehlname(7), zaehlname(8)}));
    QCOMPARE(plan().mengenarray, QList<float>({150.0F, 150.0F}));
    QCOMPARE(plandatei(), (QMap<QString, float>{{zaehlname(7), 150.0F}, {zaehlname(8), 150.0F}}));
    QCOMPARE(hinweis(), QString());
}

/// Its place stays, its amount does not.
void TestZugabe::theLastOneGetsAnotherAmount()
{
    doppelklicke(8, inName);
    m_fenster->tippeMenge(QStringLiteral("80"));
    doppelklicke(8, inName);
    QCOMPARE(hinweis(), QStringLiteral("„Speise 0007“ stand schon im Plan: Es steht jetzt am Ende "
                                       "und hat 80 g (vorher: 150 g)."));
    nimmZurueck();
    QCOMPARE(plandatei(), (QMap<QString, float>{{zaehlname(7), 150.0F}}));
}

void TestZugabe::foodsAreCalledAsInTheTable()
{
    const Probeuebersetzer uebersetzer({{zaehlname(7), QString(70, u'n')},
                                        {zaehlname(8), QStringLiteral("Dill")},
                                        {leereZeile, QStringLiteral("(leer)")}});
    doppelklicke(9, inName);
    QCOMPARE(hinweis(), QStringLiteral("„Dill“ ist mit 150 g im Plan."));
    doppelklicke(8, inName);
    QCOMPARE(hinweis(), QStringLiteral("„%1…“ ist mit 150 g im Plan.").arg(QString(59, u'n')));
    doppelklicke(0, inName);
    QCOMPARE(hinweis(), QStringLiteral("Die Zeile „(leer)“ steht für kein Lebensmittel und kommt "
                                       "nicht in den Plan."));
}

/// A table need not begin with a line without values, the results of a search always do.
void TestZugabe::theLineAboveTheResultsIsNoFoodOfAnyTable()
{
    m_fenster.reset();
    m_heim->schreibeTabelle(zaehltabelle(30));
    m_fenster = std::make_unique<Probefenster>(*m_heim);
    suche(QStringLiteral("0012"));
    doppelklicke(0, inSuch);
    QCOMPARE(hinweis(), QStringLiteral("Die Zeile „-“ steht für kein Lebensmittel und kommt nicht "
                                       "in den Plan."));
}

/// It is the way back of the last change alone.
void TestZugabe::theWayBackGoesWithTheNextChange()
{
    doppelklicke(8, inName);
    plan().nameimportvontoolbar(zaehlname(30));
    QCOMPARE(hinweis(), QString());
}

void TestZugabe::whatIsThereAlreadyCanNotBeTakenBack()
{
    doppelklicke(8, inName);
    doppelklicke(8, inName);
    QCOMPARE(hinweis(), QStringLiteral("„Speise 0007“ steht schon mit 150 g am Ende des Plans."));
    QCOMPARE(controller().hinweise->hinweise().constFirst().knopf, QString());
    QCOMPARE(plan().PlanArray, QStringList{zaehlname(7)});
}

void TestZugabe::whatIsNoFoodSaysWhy_data()
{
    QTest::addColumn<int>("zeile");
    QTest::addColumn<int>("spalte");
    QTest::addColumn<QString>("grund");
    const QString keines =
        QStringLiteral("Die Zeile „-“ steht für kein Lebensmittel und kommt nicht in den Plan.");
    const QString leer = QStringLiteral("Wählen Sie zuerst ein Lebensmittel in der Tabelle aus.");
    QTest::newRow("the line without values") << 0 << inName << keines;
    QTest::newRow("the line above the results") << 0 << inSuch << keines;
    QTest::newRow("an empty cell") << 7 << inEigen << leer;
    QTest::newRow("a result that was deleted since")
        << 2 << inSuch
        << QStringLiteral("„Omas Torte“ steht in keiner Liste mehr und kommt nicht in den Plan.");
}

void TestZugabe::whatIsNoFoodSaysWhy()
{
    QFETCH(int, zeile);
    QFETCH(int, spalte);
    suche(QStringLiteral("omas"));
    m_fenster->klicke(1, inEigen);
    m_heim->antworten = {1};
    controller().LoescheneigeneLM();
    QCOMPARE(controller().KundenArray, QStringList{kuchen});
    doppelklicke(zeile, spalte);
    QTEST(hinweis(), "grund");
    QCOMPARE(controller().hinweise->hinweise().constFirst().dauer, 8000);
    QVERIFY(controller().planmodul == nullptr);
    QVERIFY(plandatei().isEmpty());
}

void TestZugabe::theWindowOfThePlanStaysAsItIs()
{
    controller().Planmoduloeffnen();
    QVERIFY(QTest::qWaitForWindowActive(plan().window()));
    controller().Hauptfenster->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(controller().Hauptfenster));
    m_fenster->klicke(8, inName);
    drueckeTaste(controller().Tabelle);
    QCOMPARE(plan().PlanTabelle->model()->index(0, 0).data().toString(), zaehlname(7));
    QVERIFY(controller().Hauptfenster->isActiveWindow());
    plan().window()->close();
    m_fenster->klicke(9, inName);
    drueckeTaste(controller().Tabelle);
    QVERIFY(!plan().window()->isVisible());
    QCOMPARE(plan().PlanTabelle->model()->rowCount(), 2);
}

void TestZugabe::theToolbarDoesWhatItDid()
{
    m_fenster->klicke(8, inName);
    m_fenster->drueckeWerkzeug(QStringLiteral("export"));
    QCOMPARE(plan().PlanArray, QStringList{zaehlname(7)});
    QCOMPARE(plan().mengenarray, QList<float>{100.0F});
    QVERIFY(plan().window()->isVisible());
    QCOMPARE(hinweis(), QString());
}

QTEST_MAIN(TestZugabe)
#include "TestZugabe.moc"
