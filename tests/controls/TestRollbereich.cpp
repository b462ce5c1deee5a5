#include "Auswahlfeld.h"
#include "Rollbereich.h"
#include "Rollseite.h"
#include "Schieber.h"

#include <QDoubleSpinBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSlider>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <memory>

/// A page of a slider, a chooser and much below them, in a window that is too small for it.
class TestRollbereich : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void whereThereIsRoomNothingRolls();
    void aTallPageRollsUpAndDown();
    void itIsNeverNarrowerThanThePage();
    void aPageThatBecomesWiderWidensIt();
    void theWheelRollsThePageAndChangesNothing_data();
    void theWheelRollsThePageAndChangesNothing();
    void aFieldWithTheFocusFollowsTheWheel();
    void theTabKeyBringsAFieldIntoSight();
    void aPageThatGivesWayStaysAsHighAsTheWindow();
    void aPageThatGivesWayRollsWhereItNeedsMore();
    void thePageMayGoFirst();

private:
    void zeige(int hoehe);
    /// Turns the wheel by a notch over a field, as the window system does.
    static void drehe(QWidget &feld);

    std::unique_ptr<QWidget> m_fenster;
    Rollbereich *m_bereich = nullptr;
    QPointer<QWidget> m_seite;
    Schieber *m_schieber = nullptr;
    Auswahlfeld *m_auswahl = nullptr;
    Schieber *m_unten = nullptr;
};

void TestRollbereich::init()
{
    m_seite = new QWidget;
    auto *anordnung = new QVBoxLayout(m_seite);
    m_schieber = new Schieber;
    m_schieber->setMaximumValue(100);
    m_schieber->setDoubleValue(50);
    m_auswahl = new Auswahlfeld;
    m_auswahl->addItems({QStringLiteral("eins"), QStringLiteral("zwei"), QStringLiteral("drei")});
    m_auswahl->setCurrentIndex(1);
    auto *viel = new QLabel;
    viel->setFixedSize(300, 600);
    m_unten = new Schieber;
    for (QWidget *teil : std::initializer_list<QWidget *>{m_schieber, m_auswahl, viel, m_unten}) {
        anordnung->addWidget(teil);
    }
    m_bereich = new Rollbereich(m_seite);
    m_fenster = std::make_unique<QWidget>();
    auto *rahmen = new QVBoxLayout(m_fenster.get());
    rahmen->setContentsMargins(0, 0, 0, 0);
    rahmen->addWidget(m_bereich);
}

void TestRollbereich::zeige(int hoehe)
{
    m_fenster->resize(m_fenster->minimumSizeHint().width(), hoehe);
    m_fenster->show();
    QVERIFY(QTest::qWaitForWindowActive(m_fenster.get()));
}

void TestRollbereich::drehe(QWidget &feld)
{
    const QPointF ort = feld.rect().center();
    QWheelEvent rad(ort, feld.mapToGlobal(ort), {}, QPoint(0, -120), Qt::NoButton, {},
                    Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&feld, &rad);
    QCoreApplication::processEvents();
}

void TestRollbereich::whereThereIsRoomNothingRolls()
{
    zeige(900);
    QVERIFY(!m_bereich->verticalScrollBar()->isVisible());
    QCOMPARE(m_seite->size(), m_bereich->size());
    QCOMPARE(m_bereich->sizeHint(), m_seite->sizeHint());
}

void TestRollbereich::aTallPageRollsUpAndDown()
{
    QCOMPARE(m_fenster->minimumSizeHint().height(), 240);
    zeige(300);
    QVERIFY(m_bereich->verticalScrollBar()->isVisible());
    QVERIFY(!m_bereich->horizontalScrollBar()->isVisible());
    QCOMPARE(m_seite->height(), m_seite->minimumSizeHint().height()); // nothing is squeezed
    m_bereich->verticalScrollBar()->setValue(m_bereich->verticalScrollBar()->maximum());
    QVERIFY(!m_unten->visibleRegion().isEmpty());
    QVERIFY(m_schieber->visibleRegion().isEmpty());
}

void TestRollbereich::itIsNeverNarrowerThanThePage()
{
    zeige(300);
    QVERIFY(m_bereich->viewport()->width() >= m_seite->minimumSizeHint().width());
    QVERIFY(m_seite->width() <= m_bereich->viewport()->width());
}

void TestRollbereich::aPageThatBecomesWiderWidensIt()
{
    zeige(300);
    m_seite->layout()->addWidget(new QLabel(QString(200, QLatin1Char('m'))));
    QTRY_VERIFY(m_fenster->minimumSizeHint().width() >= m_seite->minimumSizeHint().width());
    QTRY_VERIFY(m_bereich->viewport()->width() >= m_seite->minimumSizeHint().width());
}

void TestRollbereich::theWheelRollsThePageAndChangesNothing_data()
{
    QTest::addColumn<QString>("worueber");
    for (const char *feld : {"slider", "number", "chooser"}) {
        QTest::addRow("over a %s", feld) << QString::fromLatin1(feld);
    }
}

void TestRollbereich::theWheelRollsThePageAndChangesNothing()
{
    QFETCH(QString, worueber);
    zeige(300);
    m_unten->regler()->setFocus();
    m_bereich->verticalScrollBar()->setValue(0);
    QWidget *feld = worueber == QLatin1String("slider")   ? m_schieber->regler()
                    : worueber == QLatin1String("number") ? m_schieber->eingabe()
                                                          : static_cast<QWidget *>(m_auswahl);
    drehe(*feld);
    QCOMPARE(m_schieber->doubleValue(), 50.0);
    QCOMPARE(m_auswahl->currentIndex(), 1);
    QVERIFY(m_bereich->verticalScrollBar()->value() > 0);
    QVERIFY(m_unten->regler()->hasFocus());
}

void TestRollbereich::aFieldWithTheFocusFollowsTheWheel()
{
    zeige(300);
    m_schieber->regler()->setFocus();
    drehe(*m_schieber->regler());
    QVERIFY(m_schieber->doubleValue() < 50.0);
    m_auswahl->setFocus();
    drehe(*m_auswahl);
    QCOMPARE(m_auswahl->currentIndex(), 2);
    QCOMPARE(m_bereich->verticalScrollBar()->value(), 0);
}

void TestRollbereich::theTabKeyBringsAFieldIntoSight()
{
    zeige(300);
    m_auswahl->setFocus();
    QTest::keyClick(m_auswahl, Qt::Key_Tab);
    QVERIFY(m_unten->regler()->hasFocus());
    QVERIFY(!m_unten->visibleRegion().isEmpty());
}

namespace {

/// A page of a field for notes, which likes to be high, and a sentence of several lines below it.
struct Nachgiebige
{
    Nachgiebige()
    {
        auto *anordnung = new QVBoxLayout(seite);
        notiz->setMinimumHeight(60);
        worte->setWordWrap(true);
        anordnung->addWidget(notiz);
        anordnung->addWidget(worte);
        bereich.resize(200, 120);
        bereich.show();
    }

    Rollseite *seite = new Rollseite;
    QPlainTextEdit *notiz = new QPlainTextEdit;
    QLabel *worte = new QLabel;
    Rollbereich bereich{seite};
};

} // namespace

void TestRollbereich::aPageThatGivesWayStaysAsHighAsTheWindow()
{
    Nachgiebige nachgiebige;
    nachgiebige.worte->setText(QStringLiteral("kurz"));
    QCoreApplication::processEvents();
    QVERIFY(nachgiebige.notiz->sizeHint().height() > 120);
    QCOMPARE(nachgiebige.bereich.verticalScrollBar()->maximum(), 0);
    QCOMPARE(nachgiebige.seite->height(), 120);
}

void TestRollbereich::aPageThatGivesWayRollsWhereItNeedsMore()
{
    Nachgiebige nachgiebige;
    nachgiebige.worte->setText(QStringLiteral("lang ").repeated(100));
    QCoreApplication::processEvents();
    const int breite = nachgiebige.worte->width();
    QCOMPARE(nachgiebige.worte->height(), nachgiebige.worte->heightForWidth(breite));
    QVERIFY(nachgiebige.notiz->height() >= 60);
    QVERIFY(nachgiebige.bereich.verticalScrollBar()->maximum() > 0);
}

void TestRollbereich::thePageMayGoFirst()
{
    zeige(300);
    delete m_seite;
    m_fenster->resize(500, 500);
    QCoreApplication::processEvents();
    QVERIFY(m_bereich->sizeHint().isValid());
    QVERIFY(m_bereich->minimumSizeHint().isValid());
}

QTEST_MAIN(TestRollbereich)
#include "TestRollbereich.moc"
