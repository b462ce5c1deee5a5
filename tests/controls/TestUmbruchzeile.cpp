#include "Umbruchzeile.h"

#include <QLabel>
#include <QTest>
#include <QVBoxLayout>

/// Groups beside one another or below one another, as there is room.
class TestUmbruchzeile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theGroupsGoBelowOneAnother_data();
    void theGroupsGoBelowOneAnother();
    void lowerGroupsStandInTheMiddleOfTheLine();
    void aHiddenLineKeepsTheHeightThatItWillHave();
    void itAsksForOneLineAndManagesWithSeveral();
    void aLineTakesNoMoreHeightThanItNeeds();
    void aTextNeedsItsWidth();
    void aLongerTextBreaksTheLine();

private:
    static QWidget *gruppe(Umbruchzeile &zeile, int breite, int hoehe = 20);
};

/// A group that needs this width and height, in points.
QWidget *TestUmbruchzeile::gruppe(Umbruchzeile &zeile, int breite, int hoehe)
{
    auto *neue = new QWidget(&zeile);
    neue->setFixedSize(breite, hoehe);
    return neue;
}

void TestUmbruchzeile::theGroupsGoBelowOneAnother_data()
{
    QTest::addColumn<int>("breite");
    QTest::addColumn<int>("hoehe");
    QTest::addColumn<bool>("darunter");
    QTest::newRow("room for both and the gap") << 168 << 20 << false;
    QTest::newRow("a point less") << 167 << 44 << true;
    QTest::newRow("much room") << 900 << 20 << false;
}

/// Groups of 100 and 60 points with a gap of 8, or 4 below one another.
void TestUmbruchzeile::theGroupsGoBelowOneAnother()
{
    QFETCH(int, breite);
    QFETCH(bool, darunter);
    Umbruchzeile zeile;
    const QWidget *eins = gruppe(zeile, 100);
    const QWidget *zwei = gruppe(zeile, 60);
    zeile.show();
    zeile.resize(breite, 50);
    QTEST(zeile.heightForWidth(breite), "hoehe");
    QCOMPARE(zwei->geometry().top() > eins->geometry().bottom(), darunter);
    QCOMPARE(zeile.minimumSizeHint().width(), 100);
}

/// A word beside a button stands on one level with the button's own.
void TestUmbruchzeile::lowerGroupsStandInTheMiddleOfTheLine()
{
    Umbruchzeile zeile;
    const QWidget *knopf = gruppe(zeile, 100);
    QWidget *wort = gruppe(zeile, 60);
    wort->setFixedSize(60, 12);
    zeile.show();
    zeile.resize(200, 20);
    QTRY_COMPARE(wort->geometry(), QRect(108, 4, 60, 12));
    QCOMPARE(knopf->geometry(), QRect(0, 0, 100, 20));
    zeile.resize(120, 50);
    QCOMPARE(wort->geometry(), QRect(0, 24, 60, 12));
}

/// The higher of two groups gives the line its height.
void TestUmbruchzeile::itAsksForOneLineAndManagesWithSeveral()
{
    Umbruchzeile zeile;
    gruppe(zeile, 100, 30);
    gruppe(zeile, 60, 20);
    QCOMPARE(zeile.sizeHint(), QSize(168, 30));
    QCOMPARE(zeile.minimumSizeHint(), QSize(100, 54));
}

/// What lies above keeps the rest of the window.
void TestUmbruchzeile::aLineTakesNoMoreHeightThanItNeeds()
{
    QWidget fenster;
    auto *alles = new QVBoxLayout(&fenster);
    alles->setContentsMargins(0, 0, 0, 0);
    alles->setSpacing(0);
    auto *rest = new QWidget(&fenster);
    rest->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    auto *zeile = new Umbruchzeile(&fenster);
    QWidget *eins = gruppe(*zeile, 100);
    gruppe(*zeile, 60);
    alles->addWidget(rest);
    alles->addWidget(zeile);
    fenster.resize(200, 200);
    fenster.show();
    QTRY_COMPARE(rest->height(), 180);
    eins->setFixedSize(100, 35); // larger letters, for instance
    QTRY_COMPARE(rest->height(), 165);
    eins->setFixedSize(150, 35);
    QTRY_COMPARE(rest->height(), 200 - 35 - 4 - 20);
}

void TestUmbruchzeile::aTextNeedsItsWidth()
{
    Umbruchzeile zeile;
    const auto *text = new QLabel(QStringLiteral("Menge: rechts einstellen."), &zeile);
    gruppe(zeile, 60);
    QCOMPARE(zeile.sizeHint().width(), text->minimumSizeHint().width() + 8 + 60);
    QVERIFY(text->minimumSizeHint().width() > 60);
}

void TestUmbruchzeile::aHiddenLineKeepsTheHeightThatItWillHave()
{
    QWidget fenster;
    auto *alles = new QVBoxLayout(&fenster);
    alles->setContentsMargins(0, 0, 0, 0);
    auto *zeile = new Umbruchzeile(&fenster);
    gruppe(*zeile, 100);
    gruppe(*zeile, 60);
    auto *rest = new QWidget(&fenster);
    rest->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    alles->addWidget(rest);
    alles->addWidget(zeile);
    QSizePolicy platz = zeile->sizePolicy();
    platz.setRetainSizeWhenHidden(true);
    zeile->setSizePolicy(platz);
    zeile->hide();
    fenster.resize(150, 200);
    fenster.show();
    QVERIFY(QTest::qWaitForWindowExposed(&fenster));
    const int vorher = rest->height();
    zeile->show();
    QCoreApplication::processEvents();
    QCOMPARE(rest->height(), vorher);
    QCOMPARE(zeile->height(), 44);
}

void TestUmbruchzeile::aLongerTextBreaksTheLine()
{
    Umbruchzeile zeile;
    QWidget *eins = gruppe(zeile, 100);
    const QWidget *zwei = gruppe(zeile, 60);
    zeile.show();
    zeile.resize(200, 50);
    QVERIFY(zwei->geometry().left() > eins->geometry().right());
    eins->setFixedSize(150, 20);
    QTRY_VERIFY(zwei->geometry().top() > eins->geometry().bottom());
    eins->setFixedSize(100, 20);
    QTRY_VERIFY(zwei->geometry().left() > eins->geometry().right());
}

QTEST_MAIN(TestUmbruchzeile)
#include "TestUmbruchzeile.moc"
