#include "Spaltenumbruch.h"

#include <QBoxLayout>
#include <QFrame>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

#include <memory>

using Form = Spaltenumbruch::Form;
Q_DECLARE_METATYPE(Form)

/// Columns of 300, 200 and 150 px with lines between them, in a page that rolls.
class TestSpaltenumbruch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_bereich.reset(); }
    void theColumnsGoBelowOneAnother_data();
    void theColumnsGoBelowOneAnother();
    void theLinesTurnWithThem();
    void aColumnBelowIsNoWiderThanItNeeds();
    void wordsThatNeedMoreRoomBreakTheRow();
    void nothingRollsSideways_data();
    void nothingRollsSideways();
    void forAPictureThePageIsAsSmallAsItCanBe();

private:
    QWidget *spalte(int breite);
    /// Gives the page so much room beside the bar that rolls it up and down.
    void setzeBreite(int frei);
    QFrame *linie(int stelle) const { return m_linien[stelle]; }

    std::unique_ptr<QScrollArea> m_bereich;
    QBoxLayout *m_aussen = nullptr;
    QBoxLayout *m_innen = nullptr;
    Spaltenumbruch *m_umbruch = nullptr;
    QList<QWidget *> m_spalten;
    QList<QFrame *> m_linien;
};

/// A column's contents, which can be no narrower and would rather be wider.
QWidget *TestSpaltenumbruch::spalte(int breite)
{
    auto *inhalt = new QWidget;
    inhalt->setMinimumSize(breite, 100);
    m_spalten << inhalt;
    return inhalt;
}

/// With lines of 2 px and gaps of 10: all beside one another need 694 px, the two on the right 372.
void TestSpaltenumbruch::init()
{
    m_spalten.clear();
    m_linien.clear();
    m_bereich = std::make_unique<QScrollArea>();
    auto *seite = new QWidget;
    m_aussen = new QHBoxLayout(seite);
    m_innen = new QHBoxLayout;
    for (QBoxLayout *anordnung : {m_aussen, m_innen}) {
        anordnung->setContentsMargins(0, 0, 0, 0);
        anordnung->setSpacing(10);
    }
    const auto neueLinie = [this] {
        auto *eine = new QFrame;
        eine->setFrameShape(QFrame::VLine);
        eine->setMinimumSize(2, 2);
        eine->setLineWidth(1);
        m_linien << eine;
        return eine;
    };
    const auto in = [this](QBoxLayout &anordnung, int breite) {
        auto *saeule = new QVBoxLayout;
        saeule->addWidget(spalte(breite));
        anordnung.addLayout(saeule);
    };
    in(*m_aussen, 300);
    m_aussen->addWidget(neueLinie());
    in(*m_innen, 200);
    m_innen->addWidget(neueLinie());
    in(*m_innen, 150);
    m_aussen->addLayout(m_innen);
    m_bereich->setFrameShape(QFrame::NoFrame);
    m_bereich->setWidgetResizable(true);
    m_bereich->setWidget(seite);
    m_umbruch = new Spaltenumbruch(*m_bereich, *m_aussen, *m_innen);
    m_bereich->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_bereich.get()));
}

void TestSpaltenumbruch::setzeBreite(int frei)
{
    m_bereich->resize(frei + m_bereich->verticalScrollBar()->sizeHint().width(), 150);
    QCoreApplication::processEvents();
}

void TestSpaltenumbruch::theColumnsGoBelowOneAnother_data()
{
    QTest::addColumn<int>("frei");
    QTest::addColumn<Form>("form");
    QTest::newRow("much room") << 1500 << Form::Nebeneinander;
    QTest::newRow("just enough") << 694 << Form::Nebeneinander;
    QTest::newRow("a point less") << 693 << Form::Geteilt;
    QTest::newRow("just enough for two") << 372 << Form::Geteilt;
    QTest::newRow("a point less for two") << 371 << Form::Untereinander;
}

void TestSpaltenumbruch::theColumnsGoBelowOneAnother()
{
    QFETCH(int, frei);
    QFETCH(Form, form);
    setzeBreite(frei);
    QCOMPARE(m_umbruch->form(), form);
    const auto ort = [this](int stelle) {
        return m_spalten[stelle]->mapTo(m_bereich->widget(), QPoint(0, 0));
    };
    const bool neben = form == Form::Nebeneinander;
    QCOMPARE(ort(1).y() == ort(0).y(), neben);
    QCOMPARE(ort(1).x() > ort(0).x(), neben);
    QCOMPARE(ort(2).y() == ort(1).y(), form != Form::Untereinander);
    setzeBreite(1500); // and back again
    QCOMPARE(m_umbruch->form(), Form::Nebeneinander);
    QCOMPARE(ort(2).y(), ort(0).y());
}

void TestSpaltenumbruch::theLinesTurnWithThem()
{
    setzeBreite(500);
    QCOMPARE(linie(0)->frameShape(), QFrame::HLine);
    QCOMPARE(linie(1)->frameShape(), QFrame::VLine);
    setzeBreite(360);
    QCOMPARE(linie(1)->frameShape(), QFrame::HLine);
    setzeBreite(900);
    QCOMPARE(linie(0)->frameShape(), QFrame::VLine);
    QCOMPARE(linie(1)->frameShape(), QFrame::VLine);
}

/// Figures stay near their captions.
void TestSpaltenumbruch::aColumnBelowIsNoWiderThanItNeeds()
{
    setzeBreite(360);
    QCOMPARE(m_spalten[0]->width(), 300);
    QCOMPARE(m_spalten[2]->width(), 150);
    setzeBreite(1500);
    QVERIFY(m_spalten[0]->width() > 300);
}

void TestSpaltenumbruch::wordsThatNeedMoreRoomBreakTheRow()
{
    setzeBreite(700);
    QCOMPARE(m_umbruch->form(), Form::Nebeneinander);
    m_spalten[2]->setMinimumWidth(170);
    QTRY_COMPARE(m_umbruch->form(), Form::Geteilt);
    m_spalten[2]->setMinimumWidth(150);
    QTRY_COMPARE(m_umbruch->form(), Form::Nebeneinander);
}

void TestSpaltenumbruch::nothingRollsSideways_data()
{
    QTest::addColumn<int>("frei");
    for (const int frei : {300, 371, 372, 500, 693, 694, 900}) {
        QTest::addRow("%d px", frei) << frei;
    }
}

void TestSpaltenumbruch::nothingRollsSideways()
{
    QFETCH(int, frei);
    setzeBreite(frei);
    QCOMPARE(m_bereich->horizontalScrollBar()->maximum(), 0);
}

/// Below one another: 100 px, a line of 2 and 100 px with gaps of 10.
void TestSpaltenumbruch::forAPictureThePageIsAsSmallAsItCanBe()
{
    setzeBreite(1500);
    const QSize vorher = m_bereich->widget()->size();
    m_umbruch->stelle(Form::Geteilt);
    QCOMPARE(m_bereich->widget()->size(), QSize(372, 222));
    m_umbruch->stelle(Form::Nebeneinander);
    QCOMPARE(m_bereich->widget()->size(), QSize(694, 100));
    m_umbruch->ordne();
    QCOMPARE(m_bereich->widget()->size(), vorher);
    QCOMPARE(m_umbruch->form(), Form::Nebeneinander);
}

QTEST_MAIN(TestSpaltenumbruch)
#include "TestSpaltenumbruch.moc"
