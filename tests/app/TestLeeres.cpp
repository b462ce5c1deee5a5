#include "Probefenster.h"
#include "Spaltenhinweis.h"

#include <QDoubleSpinBox>
#include <QScrollBar>
#include <QSlider>
#include <QTest>

/// What is told where nothing is yet: at the first start, in empty lists, after searches without a
/// result, and at controls that can't be used.
class TestLeeres : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theFirstStartShowsTheSteps();
    void theStepsDoNotComeBack();
    void aFoodThatTheProgramShowsIsNotChosen();
    void theStepsMakeRoomForValues();
    void theMouseGoesThroughTheWords();
    void theEmptyOwnListSaysHowItIsFilled();
    void theFirstOwnFoodTakesTheWordsAway();
    void aFoodThatIsNotFoundIsAnsweredWithAHint();
    void theHintGoesWhenSomethingIsFound();
    void theHintGoesWithTheSearch();
    void aProfileThatNothingMeetsIsAnsweredWithAHint();
    void whatIsFoundStandsAtTheTop();
    void theWordsStayInTheirColumn();
    void aNarrowTableShowsTheWordsAllTheSame();
    void withoutFoodsNoStepsAreShown();
    void theAmountSaysWhyItIsShut();
    void aButtonSaysWhyItIsShut();
    void aCriterionSaysWhyItIsShut();

private:
    void oeffne();
    void oeffneMitLeererZeile();
    QString worte(int spalte) const;
    void suche(const QString &text) const;
    AppController &controller() const { return m_fenster->controller(); }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

namespace {

const QString leereZeile = QStringLiteral("-");

} // namespace

void TestLeeres::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(zaehltabelle(50));
    oeffne();
}

void TestLeeres::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

void TestLeeres::oeffne()
{
    m_fenster = std::make_unique<Probefenster>(*m_heim);
}

/// The table begins with a line without values, as the built-in one does.
void TestLeeres::oeffneMitLeererZeile()
{
    m_fenster.reset();
    Lebensmittelverzeichnis tabelle = zaehltabelle(50);
    tabelle.insert(leereZeile, lebensmittel(leereZeile, {}));
    m_heim->schreibeTabelle(tabelle);
    oeffne();
}

/// What stands over a column, empty when nothing does.
QString TestLeeres::worte(int spalte) const
{
    const auto alle = controller().Tabelle->findChildren<Spaltenhinweis *>();
    for (const Spaltenhinweis *eines : alle) {
        if (eines->isVisible() &&
            controller().Tabelle->columnAt(eines->geometry().center().x()) == spalte) {
            return eines->text();
        }
    }
    return {};
}

void TestLeeres::suche(const QString &text) const
{
    controller().suchfeld->setFocus();
    controller().suchfeld->selectAll();
    QTest::keyClick(controller().suchfeld, Qt::Key_Delete);
    QTest::keyClicks(controller().suchfeld, text);
    QTest::keyClick(controller().suchfeld, Qt::Key_Return);
}

void TestLeeres::theFirstStartShowsTheSteps()
{
    oeffneMitLeererZeile();
    QCOMPARE(Probefenster::text(*controller().feldA), leereZeile); // as ever
    QVERIFY(controller().ersteSchritte->isVisible());
    const QStringList zeilen = controller().ersteSchritte->text().split(u'\n');
    QCOMPARE(zeilen.size(), 5);
    QVERIFY(zeilen[1].contains(QStringLiteral("suchen")));
    QVERIFY(zeilen[2].contains(QStringLiteral("anklicken")));
    QVERIFY(zeilen[3].contains(QStringLiteral("Menge")));
    QVERIFY(zeilen[4].contains(QStringLiteral("Mahlzeitenplan")));
}

void TestLeeres::theStepsDoNotComeBack()
{
    oeffneMitLeererZeile();
    m_fenster->klicke(3, inName);
    QVERIFY(controller().ersteSchritte->isHidden());
    m_fenster->klicke(0, inName); // the line without values
    QVERIFY(controller().feldB->isHidden());
    QVERIFY(controller().ersteSchritte->isHidden());
    m_fenster.reset();
    m_heim->einstellungen().sync();
    m_heim->liesEinstellungenNeu();
    oeffne();
    QVERIFY(controller().feldB->isHidden());
    QVERIFY(controller().ersteSchritte->isHidden());
}

void TestLeeres::aFoodThatTheProgramShowsIsNotChosen()
{
    oeffneMitLeererZeile();
    suche(QStringLiteral("0007")); // runs the selection for each food that does not match
    suche(QString());
    m_fenster.reset();
    oeffne();
    QVERIFY(controller().ersteSchritte->isVisible());
}

void TestLeeres::theStepsMakeRoomForValues()
{
    QVERIFY(controller().feldB->isVisible()); // this table begins with a food
    QVERIFY(controller().ersteSchritte->isHidden());
}

void TestLeeres::theMouseGoesThroughTheWords()
{
    const auto *hinweis = controller().Tabelle->findChild<Spaltenhinweis *>();
    QVERIFY(hinweis->testAttribute(Qt::WA_TransparentForMouseEvents));
}

void TestLeeres::theEmptyOwnListSaysHowItIsFilled()
{
    QCOMPARE(worte(inEigen), QStringLiteral("Noch keine.\nNeu: Ctrl+N"));
    m_fenster->klicke(3, inName);
    QCOMPARE(worte(inEigen), QStringLiteral("Noch keine.\nNeu: Ctrl+N"));
}

void TestLeeres::theFirstOwnFoodTakesTheWordsAway()
{
    controller().EingabeFensterfeldA->insert(QStringLiteral("Apfelmus"));
    controller().umschreibenDerEingabeFelder();
    QCOMPARE(worte(inEigen), QString());
    m_fenster->klicke(0, inEigen);
    m_heim->antworten = {1};
    controller().LoescheneigeneLM();
    QVERIFY(!worte(inEigen).isEmpty());
}

void TestLeeres::aFoodThatIsNotFoundIsAnsweredWithAHint()
{
    suche(QStringLiteral("<b>Kaviar"));
    QCOMPARE(worte(inSuch),
             QStringLiteral("Zu „<b>Kaviar“ wurde nichts gefunden. Versuchen Sie ein kürzeres "
                            "Wort, die Einzahl oder eine andere Schreibweise."));
    QCOMPARE(controller().suchArray, QStringList{QStringLiteral("-")}); // the column is as ever
    QCOMPARE(m_fenster->zelle(0, inSuch).text, QStringLiteral("-"));
    for (const auto *eines : controller().Tabelle->findChildren<Spaltenhinweis *>()) {
        QCOMPARE(eines->textFormat(), Qt::PlainText);
        if (eines->text() == worte(inSuch)) {
            QVERIFY(eines->y() >= controller().Tabelle->rowViewportPosition(1));
        }
    }
}

void TestLeeres::theHintGoesWhenSomethingIsFound()
{
    suche(QStringLiteral("Kaviar"));
    suche(QStringLiteral("0007"));
    QCOMPARE(worte(inSuch), QString());
    m_fenster->klicke(3, inName);
    QCOMPARE(worte(inSuch), QString());
}

void TestLeeres::theHintGoesWithTheSearch()
{
    m_fenster->klicke(3, inName);
    suche(QStringLiteral("Kaviar"));
    QVERIFY(!worte(inSuch).isEmpty());
    QTest::keyClick(controller().suchfeld, Qt::Key_Escape);
    QCOMPARE(worte(inSuch), QString());
}

void TestLeeres::aProfileThatNothingMeetsIsAnsweredWithAHint()
{
    controller().profilaufzu->click();
    controller().suchprofileinaus->zelle(5)->click();
    controller().kaloriengroesserkleiner->setStringValue(QStringLiteral("<"));
    controller().kalorieneingabe->setStringValue(QStringLiteral("1"));
    QTest::mouseClick(controller().profilsuchen, Qt::LeftButton);
    QVERIFY(worte(inSuch).startsWith(QStringLiteral("Kein Lebensmittel erfüllt alle Kriterien.")));
    QVERIFY(controller().suchArray.isEmpty());
    controller().kalorieneingabe->setStringValue(QStringLiteral("5"));
    QTest::mouseClick(controller().profilsuchen, Qt::LeftButton);
    QCOMPARE(worte(inSuch), QString());
}

void TestLeeres::whatIsFoundStandsAtTheTop()
{
    m_fenster->klicke(45, inName);
    QVERIFY(controller().Tabelle->verticalScrollBar()->value() > 0);
    suche(QStringLiteral("0007"));
    QCOMPARE(controller().Tabelle->verticalScrollBar()->value(), 0);
}

void TestLeeres::theWordsStayInTheirColumn()
{
    controller().Hauptfenster->resize(1280, 800);
    QCoreApplication::processEvents();
    const Tabellenansicht &tabelle = *controller().Tabelle;
    suche(QStringLiteral("Kaviar"));
    const auto alle = tabelle.findChildren<Spaltenhinweis *>();
    QCOMPARE(alle.size(), 2);
    const auto passt = [&](const Spaltenhinweis *eines) {
        const int spalte = tabelle.columnAt(eines->x());
        return eines->x() == tabelle.columnViewportPosition(spalte) &&
               eines->width() < tabelle.columnWidth(spalte) &&
               eines->height() == eines->heightForWidth(eines->width()) && eines->y() > 0;
    };
    for (const Spaltenhinweis *eines : alle) {
        QVERIFY(passt(eines));
    }
    controller().Tabelle->setColumnWidth(inName, tabelle.columnWidth(inName) + 40);
    controller().Tabelle->verticalScrollBar()->setValue(9);
    QCoreApplication::processEvents();
    for (const Spaltenhinweis *eines : alle) {
        QVERIFY(passt(eines));
    }
}

void TestLeeres::aNarrowTableShowsTheWordsAllTheSame()
{
    suche(QStringLiteral("Kaviar"));
    controller().teiler->setSizes({300, 900});
    QCoreApplication::processEvents();
    const Tabellenansicht &tabelle = *controller().Tabelle;
    QVERIFY(tabelle.columnViewportPosition(inSuch) + 160 > tabelle.viewport()->width());
    for (const auto *eines : tabelle.findChildren<Spaltenhinweis *>()) {
        QVERIFY(tabelle.viewport()->rect().contains(eines->geometry()));
        QCOMPARE(eines->height(), eines->heightForWidth(eines->width()));
    }
}

void TestLeeres::withoutFoodsNoStepsAreShown()
{
    m_fenster.reset();
    m_heim->schreibeTabelle({});
    oeffne();
    QVERIFY(controller().ersteSchritte->isHidden());
    QCOMPARE(worte(inEigen), QString());
}

void TestLeeres::theAmountSaysWhyItIsShut()
{
    const QDoubleSpinBox *eingabe = controller().lebensmittelmenge->eingabe();
    const QString sonst = eingabe->toolTip();
    suche(QStringLiteral("0007"));
    m_fenster->klicke(1, inSuch);
    QVERIFY(!eingabe->isEnabled());
    for (const QWidget *teil : std::initializer_list<const QWidget *>{
             eingabe, controller().lebensmittelmenge->regler()}) {
        QVERIFY(teil->toolTip().contains(QStringLiteral("angeklickt")));
        QCOMPARE(teil->accessibleDescription(), teil->toolTip());
    }
    m_fenster->klicke(7, inName);
    QVERIFY(eingabe->isEnabled());
    QCOMPARE(eingabe->toolTip(), sonst);
    QCOMPARE(eingabe->accessibleDescription().simplified(), QStringLiteral("100 g"));
}

void TestLeeres::aButtonSaysWhyItIsShut()
{
    m_fenster->klicke(3, inName);
    QTest::mouseClick(controller().sichernaufzu, Qt::LeftButton);
    QVERIFY(!controller().loeschenknopf->isEnabled());
    QCOMPARE(controller().loeschenknopf->toolTip(),
             QStringLiteral("Wählen Sie zuerst ein Lebensmittel in der Spalte „Eigene“."));
    QCOMPARE(controller().sichernknopf->toolTip(), QString());
    m_fenster->tippeMenge(QStringLiteral("30"));
    QCOMPARE(controller().sichernknopf->toolTip(),
             QStringLiteral("Gesichert werden Werte für 100 g: Stellen Sie zuerst die Menge auf "
                            "100 g."));
    QCOMPARE(controller().sichernknopf->accessibleDescription(),
             controller().sichernknopf->toolTip());
    m_fenster->tippeMenge(QStringLiteral("100"));
    QCOMPARE(controller().sichernknopf->toolTip(), QString());
}

void TestLeeres::aCriterionSaysWhyItIsShut()
{
    const QString grund =
        QStringLiteral("Schalten Sie das Kriterium davor ein, um es einzustellen.");
    controller().profilaufzu->click();
    QCOMPARE(controller().proteingroesserkleiner->toolTip(), grund);
    QCOMPARE(controller().proteineingabe->toolTip(), grund);
    controller().suchprofileinaus->zelle(0)->click();
    QCOMPARE(controller().proteingroesserkleiner->toolTip(), QString());
    QVERIFY(controller().proteineingabe->toolTip() != grund);
    QCOMPARE(controller().gichtprofil->toolTip(), grund);
}

QTEST_MAIN(TestLeeres)
#include "TestLeeres.moc"
