#include "Probefenster.h"

#include <QMenu>
#include <QTest>

using enum Naehrwert;

/// The foods that were chosen last, one key away.
class TestZuletzt : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theNewestComesFirst();
    void everyFoodStandsThereOnce();
    void tenAreKept();
    void onlyWhatTheUserChoseIsKept();
    void aSearchResultThatIsTakenOverIsKept();
    void choosingOneShowsItAsAClickDoes();
    void anOwnFoodIsShownFromItsColumn();
    void anOwnFoodThatIsGoneIsNotOffered();
    void foodsAreCalledAsInTheTable();
    void theMenuOpensBelowTheSearchBox();
    void atTheStartThereIsNone();

private:
    QMenu *oeffne() const;
    QStringList namen() const;
    AppController &controller() const { return m_fenster->controller(); }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

void TestZuletzt::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(zaehltabelle(30));
    m_heim->schreibeEigene(verzeichnis({lebensmittel(QStringLiteral("Salz & Brot"), {{kal, 7}})}));
    m_fenster = std::make_unique<Probefenster>(*m_heim);
}

void TestZuletzt::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

QMenu *TestZuletzt::oeffne() const
{
    const auto zu = [] {
        return QApplication::activePopupWidget() == nullptr;
    };
    controller().Hauptfenster->activateWindow();
    if (!QTest::qWaitFor(zu) || !QTest::qWaitForWindowActive(controller().Hauptfenster)) {
        return nullptr;
    }
    QTest::keyClick(controller().Hauptfenster, Qt::Key_L, Qt::ControlModifier);
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

/// What the menu offers, from its top, without the figures that call it up.
QStringList TestZuletzt::namen() const
{
    QMenu *menue = oeffne();
    QStringList texte;
    for (const QAction *aktion : menue->actions()) {
        texte << (aktion->isEnabled() ? aktion->text().mid(5) : QString());
    }
    menue->close();
    return texte;
}

void TestZuletzt::theNewestComesFirst()
{
    m_fenster->klicke(3, inName);
    m_fenster->klicke(5, inName);
    m_fenster->klicke(0, inEigen);
    QCOMPARE(namen(), QStringList({QStringLiteral("Salz && Brot"), zaehlname(5), zaehlname(3)}));
}

void TestZuletzt::everyFoodStandsThereOnce()
{
    m_fenster->klicke(3, inName);
    m_fenster->klicke(5, inName);
    m_fenster->klicke(3, inName);
    QCOMPARE(namen(), QStringList({zaehlname(3), zaehlname(5)}));
}

void TestZuletzt::tenAreKept()
{
    for (int zeile = 1; zeile <= 12; ++zeile) {
        m_fenster->klicke(zeile, inName);
    }
    QCOMPARE(namen().size(), 10);
    QCOMPARE(namen().constFirst(), zaehlname(12));
    QCOMPARE(namen().constLast(), zaehlname(3));
    QCOMPARE(oeffne()->actions().constLast()->text().left(2), QStringLiteral("&0"));
}

void TestZuletzt::onlyWhatTheUserChoseIsKept()
{
    m_fenster->klicke(3, inName);
    controller().suchfeld->setFocus();
    QTest::keyClicks(controller().suchfeld, QStringLiteral("0007"));
    QTest::keyClick(controller().suchfeld, Qt::Key_Return); // shows the first food many times
    m_fenster->tippeMenge(QStringLiteral("30"));
    QCOMPARE(namen(), QStringList{zaehlname(3)});
}

void TestZuletzt::aSearchResultThatIsTakenOverIsKept()
{
    controller().suchfeld->setFocus();
    QTest::keyClicks(controller().suchfeld, QStringLiteral("0007"));
    QTest::keyClick(controller().suchfeld, Qt::Key_Return);
    controller().direkteuebernahme->setChecked(false);
    m_fenster->klicke(1, inSuch);
    QVERIFY(oeffne()->actions().constFirst()->isEnabled() == false);
    QApplication::activePopupWidget()->close();
    controller().direkteuebernahme->setChecked(true);
    m_fenster->klicke(1, inSuch);
    QCOMPARE(namen(), QStringList{zaehlname(7)});
}

void TestZuletzt::choosingOneShowsItAsAClickDoes()
{
    m_fenster->klicke(3, inName);
    m_fenster->klicke(25, inName);
    QMenu *menue = oeffne();
    QTest::keyClick(menue, Qt::Key_Down);
    QTest::keyClick(menue, Qt::Key_Return);
    QCOMPARE(Probefenster::text(*controller().feldA), zaehlname(3));
    QCOMPARE(controller().Tabelle->selectedRow(), 3);
    QCOMPARE(AppController::angeklickteSpalte, inName);
    QCOMPARE(namen(), QStringList({zaehlname(3), zaehlname(25)}));
    QTest::keyClick(oeffne(), Qt::Key_2);
    QCOMPARE(controller().Tabelle->selectedRow(), 25);
}

void TestZuletzt::anOwnFoodIsShownFromItsColumn()
{
    m_fenster->klicke(0, inEigen);
    m_fenster->klicke(3, inName);
    QTest::keyClick(oeffne(), Qt::Key_2);
    QCOMPARE(AppController::angeklickteSpalte, inEigen);
    QCOMPARE(controller().unuebersetztername, QStringLiteral("Salz & Brot"));
    QVERIFY(controller().loeschenknopf->isEnabled());
}

void TestZuletzt::anOwnFoodThatIsGoneIsNotOffered()
{
    m_fenster->klicke(3, inName);
    m_fenster->klicke(0, inEigen);
    m_heim->antworten = {1};
    controller().LoescheneigeneLM();
    QCOMPARE(namen(), QStringList{zaehlname(3)});
}

void TestZuletzt::foodsAreCalledAsInTheTable()
{
    const Probeuebersetzer uebersetzer(
        {{zaehlname(3), QStringLiteral("Dill")}, {zaehlname(4), QString(70, u'n')}});
    m_fenster->klicke(3, inName);
    m_fenster->klicke(4, inName);
    QCOMPARE(namen(), QStringList({QString(59, u'n') + u'…', QStringLiteral("Dill")}));
}

void TestZuletzt::theMenuOpensBelowTheSearchBox()
{
    m_fenster->klicke(3, inName);
    const QWidget &feld = *controller().suchfeld;
    QCOMPARE(oeffne()->pos(), feld.mapToGlobal(QPoint(0, feld.height())));
}

void TestZuletzt::atTheStartThereIsNone()
{
    const QMenu *menue = oeffne();
    QCOMPARE(menue->actions().size(), 1);
    QCOMPARE(menue->actions().constFirst()->text(),
             QStringLiteral("Noch kein Lebensmittel gewählt"));
    QVERIFY(!menue->actions().constFirst()->isEnabled());
}

QTEST_MAIN(TestZuletzt)
#include "TestZuletzt.moc"
