#include "Handbuch.h"
#include "Probefenster.h"
#include "Sprache.h"

#include <QApplication>
#include <QDoubleSpinBox>
#include <QMenuBar>
#include <QPrintPreviewDialog>
#include <QTabBar>
#include <QTest>
#include <QTextBrowser>

using namespace Qt::StringLiterals;

/// F1: it opens the handbook at the page that fits, wherever the user is.
class TestHilfe : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theKeyOpensThePageOfThePlace_data();
    void theKeyOpensThePageOfThePlace();
    void theKeyOpensThePageOfThePlansPart_data();
    void theKeyOpensThePageOfThePlansPart();
    void theKeyOpensThePageOfTheEarlierStates();
    void theKeyOpensThePageOfTheDays();
    void theKeyOpensThePageOfThePreview();
    void theMenusOpenIt();
    void withoutAFoodItBeginsAtTheFirstPage();
    void inTheHandbookTheKeyLeadsToTheFirstPage();
    void oneWindowIsEnough();
    void aMenuThatIsOpenKeepsTheKey();
    void otherKeysWithF1DoNotOpenIt();
    void whoHasAUseForTheKeyGetsIt();
    void theOpenPageFollowsTheLanguage();

private:
    AppController &c() const { return m_fenster->controller(); }
    static Handbuch *handbuch();
    static QString offeneSeite();

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Sprache> m_sprache;
    std::unique_ptr<Probefenster> m_fenster;
};

using Gang = std::function<QWidget *(AppController &)>;

namespace {

/// Shows a view and puts the keyboard there.
QWidget *inDerAnsicht(AppController &c, const QString &ansicht, QWidget *feld)
{
    c.zeigeAnsicht(ansicht);
    feld->setFocus();
    return feld;
}

} // namespace

void TestHilfe::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(zaehltabelle(5));
    m_sprache = std::make_unique<Sprache>(u"de"_s);
    m_heim->sprich = [this](const QString &kuerzel) {
        m_sprache->sprich(kuerzel);
    };
    m_fenster = std::make_unique<Probefenster>(*m_heim);
    m_fenster->klicke(1, inName);
}

void TestHilfe::cleanup()
{
    m_fenster.reset();
    m_sprache.reset();
    m_heim.reset();
}

/// Null while it is not open.
Handbuch *TestHilfe::handbuch()
{
    for (QWidget *fenster : QApplication::topLevelWidgets()) {
        if (auto *gefunden = qobject_cast<Handbuch *>(fenster);
            gefunden != nullptr && gefunden->isVisible()) {
            return gefunden;
        }
    }
    return nullptr;
}

QString TestHilfe::offeneSeite()
{
    return handbuch() != nullptr ? handbuch()->seite() : QString();
}

void TestHilfe::theKeyOpensThePageOfThePlace_data()
{
    QTest::addColumn<Gang>("gang");
    QTest::addColumn<QString>("seite");
    QTest::newRow("the table, beside the nutrients")
        << Gang([](AppController &c) { return inDerAnsicht(c, u"eins"_s, c.Tabelle); })
        << u"food"_s;
    QTest::newRow("the table, beside the body measures")
        << Gang([](AppController &c) { return inDerAnsicht(c, u"vier"_s, c.Tabelle); })
        << u"body"_s;
    QTest::newRow("the search box, beside the body measures")
        << Gang([](AppController &c) { return inDerAnsicht(c, u"vier"_s, c.suchfeld); })
        << u"search"_s;
    QTest::newRow("the profile search") << Gang([](AppController &c) {
        c.profilaufzu->setChecked(true);
        return inDerAnsicht(c, u"eins"_s, c.proteinschalter);
    }) << u"search"_s;
    QTest::newRow("the amount") << Gang([](AppController &c) {
        return inDerAnsicht(c, u"eins"_s, c.lebensmittelmenge->eingabe());
    }) << u"food"_s;
    QTest::newRow("the daily needs") << Gang([](AppController &c) {
        return inDerAnsicht(c, u"zwei"_s, c.lebensmittelmenge2->eingabe());
    }) << u"food"_s;
    QTest::newRow("the relations") << Gang([](AppController &c) {
        return inDerAnsicht(c, u"drei"_s, c.DatenAnsicht->tabBar());
    }) << u"food"_s;
    QTest::newRow("the name, beside the body measures")
        << Gang([](AppController &c) { return inDerAnsicht(c, u"vier"_s, c.feldA); }) << u"food"_s;
    QTest::newRow("the body measures") << Gang([](AppController &c) {
        return inDerAnsicht(c, u"vier"_s, c.tabVier->findChild<Schieber *>(u"gewichtn"_s));
    }) << u"body"_s;
    QTest::newRow("alcohol and sport") << Gang([](AppController &c) {
        return inDerAnsicht(c, u"fünf"_s, c.DatenAnsicht->tabBar());
    }) << u"lifestyle"_s;
    QTest::newRow("the save box") << Gang([](AppController &c) {
        c.SichernFensterAuf();
        return inDerAnsicht(c, u"eins"_s, c.sichernknopf);
    }) << u"own-foods"_s;
    QTest::newRow("the sheet") << Gang([](AppController &c) -> QWidget * {
        c.Fenster();
        return c.EingabeFensterfeldA;
    }) << u"own-foods"_s;
    QTest::newRow("the arranging of the toolbar") << Gang([](AppController &c) {
        c.Leisteanpassen();
        return c.Hauptfenster->findChild<QWidget *>(u"anpassungspalette"_s);
    }) << u"settings"_s;
    QTest::newRow("a notice") << Gang([](AppController &c) -> QWidget * {
        c.hinweise->zeige({.kennung = u"probe"_s, .text = u"Probe"_s});
        auto *kreuz = c.hinweise->findChild<QWidget *>(u"hinweiskreuz"_s);
        kreuz->setFocusPolicy(Qt::StrongFocus);
        kreuz->setFocus();
        return kreuz;
    }) << u"when-something-fails"_s;
}

void TestHilfe::theKeyOpensThePageOfThePlace()
{
    QFETCH(Gang, gang);
    QWidget *wo = gang(c());
    wo->window()->activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), wo->window());
    QTest::keyClick(wo, Qt::Key_F1);
    QTEST(offeneSeite(), "seite");
}

void TestHilfe::theKeyOpensThePageOfThePlansPart_data()
{
    QTest::addColumn<QString>("teil");
    QTest::addColumn<QString>("seite");
    QTest::newRow("the table") << u"PlanTabelle"_s << u"plan"_s;
    QTest::newRow("the buttons") << u"druckknopf"_s << u"plan"_s;
    QTest::newRow("the evaluation") << u"wunschverlust"_s << u"evaluation"_s;
}

void TestHilfe::theKeyOpensThePageOfThePlansPart()
{
    QFETCH(QString, teil);
    c().Planmoduloeffnen();
    QVERIFY(QTest::qWaitForWindowActive(c().planmodul->window()));
    auto *feld = c().planmodul->window()->findChild<QWidget *>(teil);
    feld->setFocus();
    QTest::keyClick(feld, Qt::Key_F1);
    QTEST(offeneSeite(), "seite");
}

void TestHilfe::theKeyOpensThePageOfTheEarlierStates()
{
    m_fenster->oberflaeche().ansage.zeigeFruehereStaende();
    auto *fenster = c().Hauptfenster->findChild<QDialog *>(u"sicherungen"_s);
    QVERIFY(QTest::qWaitForWindowActive(fenster));
    for (const char *teil : {"tage", "inhalt", "quellenwahl"}) {
        auto *feld = fenster->findChild<QWidget *>(QLatin1String(teil));
        feld->setFocus();
        QTest::keyClick(feld, Qt::Key_F1);
        QCOMPARE(offeneSeite(), u"when-something-fails"_s);
        handbuch()->close();
    }
}

/// In their window, in those that it opens, and from its menu; with the measures from wherever they
/// are shown.
void TestHilfe::theKeyOpensThePageOfTheDays()
{
    Tageanschluss &anschluss = m_fenster->oberflaeche().tage;
    Tagefenster &tage = anschluss.fenster();
    tage.zeige();
    tage.neuesProtokoll();
    tage.handzettelDrucken();
    anschluss.zeigeMasse(c().Hauptfenster, zaehlname(1));
    for (QWidget *fenster :
         std::initializer_list<QWidget *>{c().Hauptfenster->findChild<QDialog *>(u"Massfenster"_s),
                                          tage.findChild<QDialog *>(u"handzettel"_s), &tage}) {
        fenster->activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), fenster);
        QTest::keyClick(fenster, Qt::Key_F1);
        QCOMPARE(offeneSeite(), u"days"_s);
        handbuch()->close();
        if (fenster != &tage) {
            fenster->close();
        }
    }
    Q_EMIT tage.hilfeGewuenscht();
    QCOMPARE(offeneSeite(), u"days"_s);
}

void TestHilfe::theKeyOpensThePageOfThePreview()
{
    m_fenster.reset();
    m_heim->drucke =
        systemdrucktuer(m_heim->einstellungen(), [](QWidget *, const Meldung &) { return 0; });
    m_fenster = std::make_unique<Probefenster>(*m_heim);
    m_fenster->klicke(1, inName);
    c().drucken();
    auto *vorschau = c().Hauptfenster->findChild<QPrintPreviewDialog *>();
    QVERIFY(QTest::qWaitForWindowActive(vorschau));
    QTest::keyClick(vorschau->windowHandle(), Qt::Key_F1);
    QCOMPARE(offeneSeite(), u"printing"_s);
    // It waits for nobody to close it, and can be read beside it.
    QTest::keyClick(handbuch()->windowHandle(), Qt::Key_Escape);
    QVERIFY(handbuch() == nullptr);
    QVERIFY(vorschau->isVisible());
    vorschau->reject();
}

void TestHilfe::theMenusOpenIt()
{
    const QList<QAction *> hilfe = c().Hauptfenster->menuBar()->actions().last()->menu()->actions();
    QCOMPARE(hilfe.first()->text(), u"&Handbuch"_s);
    QCOMPARE(hilfe.first()->shortcut(), QKeySequence(Qt::Key_F1));
    c().suchfeld->setFocus();
    hilfe.first()->trigger();
    QCOMPARE(offeneSeite(), u"search"_s);
    handbuch()->close();
    c().Planmoduloeffnen();
    const QList<QAction *> imPlan = c().planmodul->menueHilfe->actions();
    QCOMPARE(imPlan.first()->text(), u"&Handbuch"_s);
    imPlan.first()->trigger();
    QCOMPARE(offeneSeite(), u"plan"_s);
}

void TestHilfe::withoutAFoodItBeginsAtTheFirstPage()
{
    c().DatenAnsicht->hide();
    c().Tabelle->setFocus();
    QTest::keyClick(c().Tabelle, Qt::Key_F1);
    QCOMPARE(offeneSeite(), u"index"_s);
}

void TestHilfe::inTheHandbookTheKeyLeadsToTheFirstPage()
{
    c().suchfeld->setFocus();
    QTest::keyClick(c().suchfeld, Qt::Key_F1);
    QVERIFY(QTest::qWaitForWindowActive(handbuch()));
    QTest::keyClick(handbuch()->findChild<QTextBrowser *>(), Qt::Key_F1);
    QCOMPARE(offeneSeite(), u"index"_s);
}

void TestHilfe::oneWindowIsEnough()
{
    c().suchfeld->setFocus();
    QTest::keyClick(c().suchfeld, Qt::Key_F1);
    const Handbuch *erstes = handbuch();
    c().Fenster();
    QVERIFY(QTest::qWaitForWindowActive(c().einfenster));
    QTest::keyClick(c().EingabeFensterfeldA, Qt::Key_F1);
    QCOMPARE(handbuch(), erstes);
    QCOMPARE(offeneSeite(), u"own-foods"_s);
    QVERIFY(c().einfenster->isVisible()); // the sheet goes on beside it
    c().EingabeFensterfeldA->setFocus();
    QTest::keyClick(c().einfenster->windowHandle(), Qt::Key_S);
    QCOMPARE(c().EingabeFensterfeldA->text(), u"s"_s);
}

void TestHilfe::aMenuThatIsOpenKeepsTheKey()
{
    QMenu menue;
    menue.addAction(u"Probe"_s);
    menue.popup(c().Hauptfenster->geometry().center());
    QVERIFY(QTest::qWaitForWindowExposed(&menue));
    QTest::keyClick(&menue, Qt::Key_F1);
    QVERIFY(handbuch() == nullptr);
}

void TestHilfe::otherKeysWithF1DoNotOpenIt()
{
    c().suchfeld->setFocus();
    for (const Qt::KeyboardModifier dazu : {Qt::ShiftModifier, Qt::ControlModifier}) {
        QTest::keyClick(c().suchfeld, Qt::Key_F1, dazu);
        QVERIFY(handbuch() == nullptr);
    }
}

namespace {

/// A part of a window that has a use for F1 itself.
class Verbraucher : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    void keyPressEvent(QKeyEvent *event) override { event->accept(); }
};

} // namespace

void TestHilfe::whoHasAUseForTheKeyGetsIt()
{
    QDialog dialog(c().Hauptfenster);
    Verbraucher teil(&dialog);
    teil.setFocusPolicy(Qt::StrongFocus);
    dialog.open();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    teil.setFocus();
    QTest::keyClick(&teil, Qt::Key_F1);
    QVERIFY(handbuch() == nullptr);
    QTest::keyClick(&dialog, Qt::Key_F1);
    QVERIFY(handbuch() != nullptr);
}

void TestHilfe::theOpenPageFollowsTheLanguage()
{
    c().suchfeld->setFocus();
    QTest::keyClick(c().suchfeld, Qt::Key_F1);
    const auto text = [] {
        return handbuch()->findChild<QTextBrowser *>()->toPlainText();
    };
    QVERIFY(text().startsWith(u"Suchen"_s));
    Q_EMIT c().spracheGewaehlt(u"en"_s);
    QCOMPARE(offeneSeite(), u"search"_s);
    QVERIFY(text().startsWith(u"Searching"_s));
    QCOMPARE(handbuch()->windowTitle(), u"Handbook"_s);
    Q_EMIT c().spracheGewaehlt(u"de"_s);
    QVERIFY(text().startsWith(u"Suchen"_s));
}

QTEST_MAIN(TestHilfe)
#include "TestHilfe.moc"
