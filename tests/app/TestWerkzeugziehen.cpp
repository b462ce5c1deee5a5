#include "Probefenster.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

/// Arranging the toolbar with the mouse, and with the keyboard where there is no mouse.
class TestWerkzeugziehen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void thePaletteOffersEveryAllowedItem();
    void thePaletteOpensOnce();
    void aTileIsDraggedIntoTheBar_data();
    void aTileIsDraggedIntoTheBar();
    void anItemIsDraggedWithinTheBar_data();
    void anItemIsDraggedWithinTheBar();
    void anItemIsDraggedOutOfTheBar_data();
    void anItemIsDraggedOutOfTheBar();
    void aTileDroppedBesideTheBarChangesNothing();
    void theDefaultSetIsDraggedInAsOnePiece();
    void whatWasDroppedIsKeptAtOnce();
    void whileCustomisingTheActionsRest();
    void afterwardsNothingCanBeDragged();
    void theDeleteKeyTakesAnItemOut_data();
    void theDeleteKeyTakesAnItemOut();
    void returnPutsATileAtTheEnd();
    void thePaletteChangesTheStyle();
    void aFoodIsNoItem();

private:
    Werkzeugleiste &leiste() const { return *m_fenster->controller().toolbar; }
    QDialog *palette() const
    {
        return m_fenster->controller().Hauptfenster->findChild<QDialog *>(
            QStringLiteral("anpassungspalette"));
    }
    QToolButton *kachel(const QString &kennung) const
    {
        return palette()->findChild<QToolButton *>(QStringLiteral("kachel ") + kennung);
    }
    QPoint vor(int stelle) const;
    static QPoint mitte(const QWidget &widget) { return widget.rect().center(); }
    void ordne(const QStringList &kennungen);

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

namespace {

QStringList worte(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

} // namespace

void TestWerkzeugziehen::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(zaehltabelle(5));
    m_fenster = std::make_unique<Probefenster>(*m_heim);
    ordne(worte("plan1 drucken space neu customize"));
    QTest::mouseClick(leiste().werkzeugfeld(4), Qt::LeftButton);
    QVERIFY(palette() != nullptr);
    // Beside the window, where a user moves it too, so that it does not cover the bar.
    palette()->move(m_fenster->controller().Hauptfenster->geometry().right() + 50, 50);
    QVERIFY(QTest::qWaitForWindowExposed(palette()));
}

void TestWerkzeugziehen::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

/// Arranges the bar and lets it come to rest.
void TestWerkzeugziehen::ordne(const QStringList &kennungen)
{
    leiste().setKennungen(kennungen);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

/// A point of the bar just in front of the middle of the item at this place, or behind the last.
QPoint TestWerkzeugziehen::vor(int stelle) const
{
    const bool amEnde = stelle >= leiste().kennungen().size();
    const QRect feld = leiste().werkzeugfeld(amEnde ? stelle - 1 : stelle)->geometry();
    return amEnde ? QPoint(feld.right() - 1, feld.center().y())
                  : feld.center() - QPoint(feld.width() / 4, 0);
}

void TestWerkzeugziehen::thePaletteOffersEveryAllowedItem()
{
    QVERIFY(leiste().istAnpassbar());
    const QHash<QString, QString> texte = {
        {QStringLiteral("plan1"), QStringLiteral("Planmodul")},
        {QStringLiteral("space"), QStringLiteral("Leerraum")},
        {QStringLiteral("drucken"), QStringLiteral("Drucken")},
        {QStringLiteral("export"), QStringLiteral("Lebensmittel an Planmodul")},
        {QStringLiteral("bildschirm"), QStringLiteral("Ansicht")},
        {QStringLiteral("neu"), QStringLiteral("Neues LM")},
        {QStringLiteral("loeschen"), QStringLiteral("LM loeschen")},
        {QStringLiteral("flexibleSpace"), QStringLiteral("Flexibler Leerraum")},
        {QStringLiteral("customize"), QStringLiteral("Toolbar anpassen")},
    };
    for (const QString &kennung : leiste().quelle().toolbarAllowedItemIdentifiers()) {
        QVERIFY2(kachel(kennung) != nullptr, qPrintable(kennung));
        QCOMPARE(kachel(kennung)->text(), texte.value(kennung));
        QVERIFY(!kachel(kennung)->icon().pixmap(32).isNull()); // room has one here too
        QCOMPARE(kachel(kennung)->toolTip(), QString());
    }
    QVERIFY(kachel(QStringLiteral("sport")) == nullptr);
    QVERIFY(kachel(QString()) != nullptr); // the default set
    QVERIFY(!palette()->isModal());
}

void TestWerkzeugziehen::thePaletteOpensOnce()
{
    m_fenster->controller().Leisteanpassen();
    const auto alle = m_fenster->controller().Hauptfenster->findChildren<QDialog *>(
        QStringLiteral("anpassungspalette"));
    QCOMPARE(alle.size(), 1);
    palette()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(palette() == nullptr);
    m_fenster->controller().Leisteanpassen();
    QVERIFY(palette() != nullptr);
}

void TestWerkzeugziehen::aTileIsDraggedIntoTheBar_data()
{
    QTest::addColumn<QString>("kennung");
    QTest::addColumn<int>("stelle");
    QTest::addColumn<QStringList>("danach");
    QTest::newRow("to the front") << QStringLiteral("export") << 0
                                  << worte("export plan1 drucken space neu customize");
    QTest::newRow("between two") << QStringLiteral("export") << 2
                                 << worte("plan1 drucken export space neu customize");
    QTest::newRow("to the end") << QStringLiteral("export") << 5
                                << worte("plan1 drucken space neu customize export");
    QTest::newRow("one that is there moves")
        << QStringLiteral("plan1") << 4 << worte("drucken space neu plan1 customize");
    QTest::newRow("room comes again")
        << QStringLiteral("space") << 1 << worte("plan1 space drucken space neu customize");
    QTest::newRow("flexible room") << QStringLiteral("flexibleSpace") << 3
                                   << worte("plan1 drucken space flexibleSpace neu customize");
}

void TestWerkzeugziehen::aTileIsDraggedIntoTheBar()
{
    QFETCH(QString, kennung);
    QFETCH(int, stelle);
    ziehe(*kachel(kennung), mitte(*kachel(kennung)), leiste(), vor(stelle));
    QTEST(leiste().kennungen(), "danach");
}

void TestWerkzeugziehen::anItemIsDraggedWithinTheBar_data()
{
    QTest::addColumn<int>("von");
    QTest::addColumn<int>("vor");
    QTest::addColumn<QStringList>("danach");
    QTest::newRow("to the right") << 0 << 4 << worte("drucken space neu plan1 customize");
    QTest::newRow("to the end") << 0 << 5 << worte("drucken space neu customize plan1");
    QTest::newRow("to the left") << 4 << 0 << worte("customize plan1 drucken space neu");
    QTest::newRow("room moves too") << 2 << 1 << worte("plan1 space drucken neu customize");
    QTest::newRow("onto itself") << 1 << 1 << worte("plan1 drucken space neu customize");
    QTest::newRow("onto the one behind it") << 1 << 2 << worte("plan1 drucken space neu customize");
}

void TestWerkzeugziehen::anItemIsDraggedWithinTheBar()
{
    QFETCH(int, von);
    QFETCH(int, vor);
    const QWidget *feld = leiste().werkzeugfeld(von);
    ziehe(*feld, mitte(*feld), leiste(), this->vor(vor));
    QTEST(leiste().kennungen(), "danach");
}

void TestWerkzeugziehen::anItemIsDraggedOutOfTheBar_data()
{
    QTest::addColumn<int>("stelle");
    QTest::addColumn<QStringList>("danach");
    QTest::newRow("the first") << 0 << worte("drucken space neu customize");
    QTest::newRow("room") << 2 << worte("plan1 drucken neu customize");
    QTest::newRow("the last") << 4 << worte("plan1 drucken space neu");
}

void TestWerkzeugziehen::anItemIsDraggedOutOfTheBar()
{
    QFETCH(int, stelle);
    const QWidget *feld = leiste().werkzeugfeld(stelle);
    const QWidget &woanders = *m_fenster->controller().Tabelle;
    ziehe(*feld, mitte(*feld), woanders, mitte(woanders));
    QTEST(leiste().kennungen(), "danach");
    QCOMPARE(m_heim->aufDerPlatte(QStringLiteral("mainToolbar/kennungen")).toStringList(),
             leiste().kennungen());
}

void TestWerkzeugziehen::aTileDroppedBesideTheBarChangesNothing()
{
    const QWidget &woanders = *m_fenster->controller().Tabelle;
    const QToolButton &stein = *kachel(QStringLiteral("export"));
    ziehe(stein, mitte(stein), woanders, mitte(woanders));
    QCOMPARE(leiste().kennungen(), worte("plan1 drucken space neu customize"));
    QVERIFY(!stein.isDown());
}

void TestWerkzeugziehen::theDefaultSetIsDraggedInAsOnePiece()
{
    const QToolButton &satz = *kachel(QString());
    ziehe(satz, mitte(satz), leiste(), vor(1));
    QCOMPARE(leiste().kennungen(), leiste().quelle().toolbarDefaultItemIdentifiers());
}

void TestWerkzeugziehen::whatWasDroppedIsKeptAtOnce()
{
    const QToolButton &stein = *kachel(QStringLiteral("loeschen"));
    ziehe(stein, mitte(stein), leiste(), vor(0));
    const QStringList danach = worte("loeschen plan1 drucken space neu customize");
    QCOMPARE(m_heim->aufDerPlatte(QStringLiteral("mainToolbar/kennungen")).toStringList(), danach);
    m_fenster.reset();
    m_heim->liesEinstellungenNeu();
    m_fenster = std::make_unique<Probefenster>(*m_heim);
    QCOMPARE(leiste().kennungen(), danach);
    QVERIFY(!leiste().istAnpassbar());
}

void TestWerkzeugziehen::whileCustomisingTheActionsRest()
{
    QTest::mouseClick(leiste().werkzeugfeld(3), Qt::LeftButton);
    QTest::mouseDClick(leiste().werkzeugfeld(3), Qt::LeftButton);
    QVERIFY(m_fenster->controller().einfenster->isHidden());
    palette()->close();
    QTest::mouseClick(leiste().werkzeugfeld(3), Qt::LeftButton);
    QVERIFY(m_fenster->controller().einfenster->isVisible());
}

void TestWerkzeugziehen::afterwardsNothingCanBeDragged()
{
    QTest::mouseClick(palette()->findChild<QPushButton *>(), Qt::LeftButton);
    QVERIFY(!leiste().istAnpassbar());
    const QWidget *feld = leiste().werkzeugfeld(0);
    const QWidget &woanders = *m_fenster->controller().Tabelle;
    ziehe(*feld, mitte(*feld), woanders, mitte(woanders));
    QCOMPARE(leiste().kennungen(), worte("plan1 drucken space neu customize"));
}

void TestWerkzeugziehen::theDeleteKeyTakesAnItemOut_data()
{
    QTest::addColumn<Qt::Key>("taste");
    QTest::newRow("Delete") << Qt::Key_Delete;
    QTest::newRow("Backspace") << Qt::Key_Backspace;
}

void TestWerkzeugziehen::theDeleteKeyTakesAnItemOut()
{
    QFETCH(Qt::Key, taste);
    QTest::keyClick(leiste().werkzeugfeld(1), taste);
    QCOMPARE(leiste().kennungen(), worte("plan1 space neu customize"));
    palette()->close();
    QTest::keyClick(leiste().werkzeugfeld(0), taste);
    QCOMPARE(leiste().kennungen(), worte("plan1 space neu customize"));
}

void TestWerkzeugziehen::returnPutsATileAtTheEnd()
{
    QTest::keyClick(kachel(QStringLiteral("export")), Qt::Key_Space);
    QCOMPARE(leiste().kennungen(), worte("plan1 drucken space neu customize export"));
    kachel(QStringLiteral("plan1"))->setFocus();
    QTest::keyClick(kachel(QStringLiteral("plan1")), Qt::Key_Return);
    QVERIFY(palette() != nullptr && palette()->isVisible());
    QCOMPARE(leiste().kennungen(), worte("drucken space neu customize export plan1"));
}

void TestWerkzeugziehen::thePaletteChangesTheStyle()
{
    auto *stil = palette()->findChild<QComboBox *>();
    QCOMPARE(stil->currentText(), QStringLiteral("Symbol und Text"));
    stil->setFocus();
    QTest::keyClick(stil, Qt::Key_Down);
    QCOMPARE(leiste().toolButtonStyle(), Qt::ToolButtonIconOnly);
    QTest::keyClick(stil, Qt::Key_Down);
    QCOMPARE(leiste().toolButtonStyle(), Qt::ToolButtonTextOnly);
    QCOMPARE(m_heim->aufDerPlatte(QStringLiteral("mainToolbar/stil")).toInt(),
             static_cast<int>(Qt::ToolButtonTextOnly));
}

/// A name dragged out of the table means nothing to the bar.
void TestWerkzeugziehen::aFoodIsNoItem()
{
    ziehe(*m_fenster->controller().Tabelle->viewport(), m_fenster->mitte(2, inName), leiste(),
          vor(1));
    QCOMPARE(leiste().kennungen(), worte("plan1 drucken space neu customize"));
}

int main(int argc, char **argv)
{
    mitEchtemZiehen();
    QApplication app(argc, argv);
    TestWerkzeugziehen test;
    return QTest::qExec(&test, argc, argv);
}
#include "TestWerkzeugziehen.moc"
