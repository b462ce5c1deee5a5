#include "Wertungsprobe.h"

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QTabBar>
#include <QTest>
#include <QToolTip>

#include <algorithm>

using namespace Qt::StringLiterals;
using enum Naehrwert;

/// How the reason of a rating comes to the keyboard, the mouse and a screen reader, and goes again.
class TestWertungsfahne : public QObject, private Wertungsprobe
{
    Q_OBJECT

private Q_SLOTS:
    void init() { richteEin(); }
    void cleanup() { raeumeAuf(); }
    void theTabKeyGoesFromRatingToRating();
    void theKeyboardThatRestsSeesTheReason();
    void theFieldWithTheFocusIsFramed_data();
    void theFieldWithTheFocusIsFramed();
    void theTextGoes_data();
    void theTextGoes();
    void escapeIsLeftToOthersWhereThereIsNoText();
    void theKeyOpensTheHandbookWhereThereIsNoText();
    void theMousesTextGoesWithItsFood();
    void aLongTextIsWrapped();
    void whatTheUserWroteIsShownAsWritten();
    void aScreenReaderHearsTheReason();
};

void TestWertungsfahne::theTabKeyGoesFromRatingToRating()
{
    oeffne();
    m_fenster->klicke(1, inName);
    for (int i = 0; i < 20 && !feld()->hasFocus(); ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    for (const auto &zeile : wertungen) {
        QCOMPARE(QApplication::focusWidget(), feld(zeile.wertung));
        QVERIFY(!feld(zeile.wertung)->hasSelectedText()); // it would hide the colour
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(QApplication::focusWidget(), controller().DatenAnsicht->tabBar());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ShiftModifier);
    QCOMPARE(QApplication::focusWidget(), feld(Wertung::hkk));
    // While the name can be typed, the ratings follow it.
    controller().sichernaufzu->click();
    controller().feldA->setFocus();
    QTest::keyClick(controller().feldA, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), feld());
}

void TestWertungsfahne::theKeyboardThatRestsSeesTheReason()
{
    oeffne();
    m_fenster->klicke(1, inName);
    feld()->setFocus(Qt::TabFocusReason);
    QVERIFY(!fahne()->isVisible());
    QTRY_VERIFY(fahne()->isVisible());
    const QString text = lesbar(fahne()->text());
    QVERIFY2(text.startsWith(u"Übergewicht: „-“"_s), qPrintable(text));
    QVERIFY2(text.contains(u"301,5 kcal"_s), qPrintable(text));
    // Beside the field, whose value stays in sight.
    const QRect ort(feld()->mapToGlobal(QPoint(0, 0)), feld()->size());
    QVERIFY(!fahne()->geometry().intersects(ort));
    QVERIFY(fahne()->geometry().intersects(ort.adjusted(-20, -20, 20, 20)));
    ruheAn(*feld());
    QVERIFY(!QToolTip::isVisible()); // once is enough
}

void TestWertungsfahne::theFieldWithTheFocusIsFramed_data()
{
    QTest::addColumn<bool>("urteil");
    QTest::newRow("a rating") << true;
    QTest::newRow("another display") << false;
}

void TestWertungsfahne::theFieldWithTheFocusIsFramed()
{
    QFETCH(bool, urteil);
    oeffne();
    m_fenster->klicke(1, inName);
    Textfeld *anzeige = urteil ? feld() : controller().feldB;
    controller().Tabelle->setFocus();
    QCoreApplication::processEvents();
    const QImage ohne = anzeige->grab().toImage();
    anzeige->setFocus(Qt::TabFocusReason);
    QCoreApplication::processEvents();
    QCOMPARE(anzeige->grab().toImage() != ohne, urteil);
}

void TestWertungsfahne::theTextGoes_data()
{
    QTest::addColumn<std::function<void(TestWertungsfahne *)>>("anlass");
    using Anlass = std::function<void(TestWertungsfahne *)>;
    QTest::newRow("with Escape") << Anlass(
        [](TestWertungsfahne *t) { QTest::keyClick(t->feld(), Qt::Key_Escape); });
    QTest::newRow("with the focus")
        << Anlass([](TestWertungsfahne *t) { QTest::keyClick(t->feld(), Qt::Key_Tab); });
    QTest::newRow("when another food is shown")
        << Anlass([](TestWertungsfahne *t) { t->controller().rausholen(&t->m_eingebaut.first()); });
    QTest::newRow("when another amount is shown") << Anlass([](TestWertungsfahne *t) {
        t->controller().wieviellebensmittel(*t->controller().lebensmittelmenge);
    });
    QTest::newRow("with a click into it")
        << Anlass([](TestWertungsfahne *t) { QTest::mouseClick(t->fahne(), Qt::LeftButton); });
    QTest::newRow("when the window changes its size") << Anlass([](TestWertungsfahne *t) {
        t->controller().Hauptfenster->resize(t->controller().Hauptfenster->size() + QSize(20, 0));
    });
    QTest::newRow("with the window")
        << Anlass([](TestWertungsfahne *t) { t->controller().Hauptfenster->hide(); });
    QTest::newRow("when the ratings are hidden")
        << Anlass([](TestWertungsfahne *t) { t->feld()->hide(); });
}

void TestWertungsfahne::theTextGoes()
{
    QFETCH(std::function<void(TestWertungsfahne *)>, anlass);
    oeffne();
    m_fenster->klicke(1, inName);
    QVERIFY(!anTaste().isEmpty());
    QVERIFY(fahne()->isVisible());
    anlass(this);
    QTRY_VERIFY(!fahne()->isVisible());
}

void TestWertungsfahne::escapeIsLeftToOthersWhereThereIsNoText()
{
    oeffne();
    m_fenster->klicke(1, inName);
    feld()->setFocus(Qt::TabFocusReason);
    const auto angenommen = [this] {
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, {});
        escape.ignore();
        QCoreApplication::sendEvent(feld(), &escape);
        return !fahne()->isVisible() && escape.isAccepted();
    };
    QVERIFY(!angenommen());
}

void TestWertungsfahne::theKeyOpensTheHandbookWhereThereIsNoText()
{
    oeffne();
    const auto handbuchOffen = [] {
        const QWidgetList fenster = QApplication::topLevelWidgets();
        return std::any_of(fenster.begin(), fenster.end(), [](const QWidget *eines) {
            return eines->objectName() == u"handbuch"_s && eines->isVisible();
        });
    };
    m_fenster->klicke(1, inName);
    QVERIFY(!anTaste().isEmpty());
    QVERIFY(!handbuchOffen());
    m_fenster->klicke(0, inName); // no table explains it
    QVERIFY(anTaste().isEmpty());
    QVERIFY(handbuchOffen());
}

void TestWertungsfahne::theMousesTextGoesWithItsFood()
{
    oeffne();
    m_fenster->klicke(1, inName);
    QVERIFY(anMaus().contains(u"301,5 kcal"_s));
    QTest::keyClick(controller().Tabelle, Qt::Key_Down); // the mouse rests where it is
    QTRY_VERIFY(!QToolTip::isVisible());
    QVERIFY(anMaus().contains(u"302,5 kcal"_s));
}

void TestWertungsfahne::aLongTextIsWrapped()
{
    oeffne();
    m_fenster->klicke(0, inEigen);
    anTaste();
    QVERIFY(fahne()->width() <= 420);
    const int kurz = fahne()->height();
    feld()->setStringValue(u"ausgezeichnet "_s.repeated(12));
    anTaste();
    QVERIFY2(fahne()->width() <= 420, qPrintable(QString::number(fahne()->width())));
    QVERIFY(fahne()->height() > kurz);
    anMaus();
}

void TestWertungsfahne::whatTheUserWroteIsShownAsWritten()
{
    const QString geschrieben = u"<b>a</b> & b"_s;
    m_eigene.insert(u"Eigenes"_s,
                    lebensmittel(u"Eigenes"_s, {{kal, 10}},
                                 {geschrieben, geschrieben, geschrieben, geschrieben}));
    oeffne();
    m_fenster->klicke(0, inEigen);
    const QString erwartet = u"Übergewicht: „<b>a</b> & b“\n"_s + vonIhnen;
    QCOMPARE(anMaus(), erwartet);
    QCOMPARE(anTaste(), erwartet);
}

void TestWertungsfahne::aScreenReaderHearsTheReason()
{
    oeffne();
    m_fenster->klicke(1, inName);
    const auto gehoert = [this](Wertung wertung) {
        QCoreApplication::processEvents();
        return QAccessible::queryAccessibleInterface(feld(wertung))->text(QAccessible::Description);
    };
    QCOMPARE(gehoert(Wertung::hkk), QString()); // nobody listens yet
    QAccessible::setActive(true);
    QVERIFY2(gehoert(Wertung::hkk).contains(u"\nCholesterin 250 mg"_s),
             qPrintable(gehoert(Wertung::hkk)));
    QVERIFY(gehoert(Wertung::uebergewicht).startsWith(u"Übergewicht: „-“ (ungeeignet)"_s));
    m_fenster->klicke(2, inName);
    QVERIFY(gehoert(Wertung::uebergewicht).contains(u"302,5 kcal"_s));
    m_fenster->klicke(0, inEigen);
    QCOMPARE(gehoert(Wertung::uebergewicht), eigenes);
    controller().Fenster();
    QCOMPARE(gehoert(Wertung::uebergewicht), QString());
    controller().Fensterschliessen();
    QCOMPARE(gehoert(Wertung::uebergewicht), eigenes);
    m_fenster->klicke(0, inName);
    QCOMPARE(gehoert(Wertung::uebergewicht), QString());
    QCOMPARE(QAccessible::queryAccessibleInterface(feld())->text(QAccessible::Name),
             u"Übergewicht"_s);
    QAccessible::setActive(false);
}

QTEST_MAIN(TestWertungsfahne)
#include "TestWertungsfahne.moc"
