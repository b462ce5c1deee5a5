#include "Teiler.h"

#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>
#include <QVBoxLayout>

#include <memory>

/// A window's two parts, and the line between them moved without the mouse.
class TestTeiler : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_fenster.reset(); }
    void theKeysMoveTheLine_data();
    void theKeysMoveTheLine();
    void aLineBelowAPartMovesUpAndDown();
    void returnGivesTheKeyboardBack_data();
    void returnGivesTheKeyboardBack();
    void itSaysHowItIsMoved();
    void whoIsOnTheLineIsSeen();
    void otherKeysAreLeftToTheWindow();
    void theTabKeyPassesTheLine();
    void twiceIsOnce();
    void thePartBelowGetsWhatItNeeds_data();
    void thePartBelowGetsWhatItNeeds();
    void whoHasMovedTheLineKeepsIt_data();
    void whoHasMovedTheLineKeepsIt();

private:
    /// A table, so to speak, and a page of this height below it.
    static std::unique_ptr<Teiler> mitRollendem(int hoehe);
    int links() const { return m_teiler->sizes().first(); }
    QWidget *griff() const { return m_teiler->handle(1); }

    std::unique_ptr<QWidget> m_fenster;
    Teiler *m_teiler = nullptr;
    QLineEdit *m_feld = nullptr;
};

/// Two parts of 200 px at the beginning, neither narrower than 60 px, and a line of 13 px.
void TestTeiler::init()
{
    m_fenster = std::make_unique<QWidget>();
    auto *alles = new QVBoxLayout(m_fenster.get());
    alles->setContentsMargins(0, 0, 0, 0);
    m_teiler = new Teiler(Qt::Horizontal);
    m_teiler->setHandleWidth(13);
    m_teiler->setChildrenCollapsible(false);
    m_feld = new QLineEdit;
    for (QWidget *teil : std::initializer_list<QWidget *>{m_feld, new QLineEdit}) {
        teil->setMinimumSize(60, 20);
        teil->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        m_teiler->addWidget(teil);
    }
    alles->addWidget(m_teiler);
    m_fenster->resize(413, 100);
    m_fenster->show();
    QVERIFY(QTest::qWaitForWindowActive(m_fenster.get()));
    m_teiler->setSizes({200, 200});
    m_feld->setFocus();
    QCOMPARE(links(), 200);
}

std::unique_ptr<Teiler> TestTeiler::mitRollendem(int hoehe)
{
    auto teiler = std::make_unique<Teiler>(Qt::Vertical);
    teiler->setHandleWidth(10);
    auto *oben = new QWidget;
    oben->setMinimumHeight(50);
    auto *unten = new QScrollArea;
    auto *seite = new QWidget;
    auto *anordnung = new QVBoxLayout(seite);
    anordnung->setContentsMargins(0, 0, 0, 0);
    auto *inhalt = new QWidget;
    inhalt->setFixedHeight(hoehe);
    anordnung->addWidget(inhalt);
    unten->setFrameShape(QFrame::NoFrame);
    unten->setWidgetResizable(true);
    unten->setWidget(seite);
    teiler->addWidget(oben);
    teiler->addWidget(unten);
    teiler->setStretchFactor(0, 1);
    teiler->goenneUnten(*unten);
    teiler->show();
    return teiler;
}

void TestTeiler::theKeysMoveTheLine_data()
{
    QTest::addColumn<QList<Qt::Key>>("tasten");
    QTest::addColumn<int>("breite");
    QTest::newRow("a step to the right") << QList{Qt::Key_Right} << 216;
    QTest::newRow("down does the same") << QList{Qt::Key_Down} << 216;
    QTest::newRow("a step to the left") << QList{Qt::Key_Left} << 184;
    QTest::newRow("up does the same") << QList{Qt::Key_Up} << 184;
    QTest::newRow("there and back") << QList{Qt::Key_Right, Qt::Key_Left} << 200;
    QTest::newRow("as far left as the first part allows") << QList{Qt::Key_Home} << 60;
    QTest::newRow("as far right as the second part allows") << QList{Qt::Key_End} << 340;
    QTest::newRow("and no further") << QList{Qt::Key_End, Qt::Key_Right} << 340;
}

void TestTeiler::theKeysMoveTheLine()
{
    QFETCH(QList<Qt::Key>, tasten);
    const QSignalSpy gemeldet(m_teiler, &QSplitter::splitterMoved);
    m_teiler->bewege();
    QVERIFY(griff()->hasFocus());
    for (const Qt::Key taste : tasten) {
        QTest::keyClick(griff(), taste);
    }
    QTEST(links(), "breite");
    QVERIFY(!gemeldet.isEmpty()); // so that it is remembered as if the mouse had drawn it
}

void TestTeiler::aLineBelowAPartMovesUpAndDown()
{
    m_teiler->setOrientation(Qt::Vertical);
    m_fenster->resize(200, 213);
    QCoreApplication::processEvents();
    m_teiler->setSizes({100, 100});
    m_teiler->bewege();
    QTest::keyClick(griff(), Qt::Key_Down);
    QCOMPARE(links(), 116);
    QTest::keyClick(griff(), Qt::Key_End);
    QCOMPARE(links(), 180);
}

void TestTeiler::returnGivesTheKeyboardBack_data()
{
    QTest::addColumn<Qt::Key>("taste");
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Enter") << Qt::Key_Enter;
    QTest::newRow("Esc") << Qt::Key_Escape;
}

void TestTeiler::returnGivesTheKeyboardBack()
{
    QFETCH(Qt::Key, taste);
    m_teiler->bewege();
    QTest::keyClick(griff(), Qt::Key_Right);
    QTest::keyClick(griff(), taste);
    QVERIFY(m_feld->hasFocus());
    QCOMPARE(links(), 216);
}

void TestTeiler::itSaysHowItIsMoved()
{
    m_teiler->bewege();
    QTRY_VERIFY(QToolTip::text().contains(QStringLiteral("Pfeiltasten")));
    QCOMPARE(griff()->accessibleName(), QStringLiteral("Trennlinie"));
    QCOMPARE(griff()->accessibleDescription(), QToolTip::text());
}

void TestTeiler::whoIsOnTheLineIsSeen()
{
    QPalette palette;
    palette.setColor(QPalette::Highlight, Qt::magenta);
    m_teiler->setPalette(palette);
    const auto rahmen = [this] {
        QCoreApplication::processEvents();
        return griff()->grab().toImage().pixelColor(1, griff()->height() / 2);
    };
    QVERIFY(rahmen() != QColor(Qt::magenta));
    m_teiler->bewege();
    QCOMPARE(rahmen(), QColor(Qt::magenta));
    QTest::keyClick(griff(), Qt::Key_Return);
    QVERIFY(rahmen() != QColor(Qt::magenta));
}

void TestTeiler::otherKeysAreLeftToTheWindow()
{
    m_teiler->bewege();
    QTest::keyClick(griff(), Qt::Key_A);
    QCOMPARE(links(), 200);
    QVERIFY(griff()->hasFocus());
}

void TestTeiler::theTabKeyPassesTheLine()
{
    QTest::keyClick(m_feld, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), m_teiler->widget(1));
}

/// The way back leads to where the keyboard was before the first time.
void TestTeiler::twiceIsOnce()
{
    m_teiler->bewege();
    m_teiler->bewege();
    QTest::keyClick(griff(), Qt::Key_Return);
    QVERIFY(m_feld->hasFocus());
}

void TestTeiler::thePartBelowGetsWhatItNeeds_data()
{
    QTest::addColumn<int>("hoehe");
    QTest::addColumn<int>("unten");
    // The line takes 10 px, the page below needs 300.
    QTest::newRow("half, where there is too little") << 410 << 200;
    QTest::newRow("just enough") << 610 << 300;
    QTest::newRow("no more than it needs") << 900 << 300;
}

void TestTeiler::thePartBelowGetsWhatItNeeds()
{
    QFETCH(int, hoehe);
    QFETCH(int, unten);
    const std::unique_ptr<Teiler> teiler = mitRollendem(300);
    for (const int vorher : {300, 1200}) { // whether the window has grown or shrunk
        teiler->resize(200, vorher);
        teiler->resize(200, hoehe);
        QCOMPARE(teiler->sizes(), (QList<int>{hoehe - 10 - unten, unten}));
    }
}

void TestTeiler::whoHasMovedTheLineKeepsIt_data()
{
    QTest::addColumn<bool>("frueher");
    QTest::newRow("just now") << false;
    QTest::newRow("at an earlier start") << true;
}

void TestTeiler::whoHasMovedTheLineKeepsIt()
{
    QFETCH(bool, frueher);
    const std::unique_ptr<Teiler> teiler = mitRollendem(300);
    teiler->resize(200, 610);
    if (frueher) {
        teiler->teileWieder(610, 120);
    } else {
        QTest::keyClick(teiler->handle(1), Qt::Key_End);
        QTest::keyClick(teiler->handle(1), Qt::Key_Up);
    }
    const int unten = teiler->sizes().last();
    QVERIFY(unten < 200);
    teiler->resize(200, 900);
    QCOMPARE(teiler->sizes().last(), unten);
}

QTEST_MAIN(TestTeiler)
#include "TestTeiler.moc"
