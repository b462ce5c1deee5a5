#include "Tabellenansicht.h"

#include <QHeaderView>
#include <QImage>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// Names of very different lengths, the longest one far down; two columns of short words beside it.
class Namensquelle : public Tabellenquelle
{
public:
    int zeilen = 60;

    int numberOfRows() const override { return zeilen; }
    QString objectValue(const QString &spalte, int zeile) override
    {
        if (spalte != u"name"_s) {
            return spalte;
        }
        return zeile == 57 ? u"Apfelkuchen mit Guss und Zimt, aus der Form, noch warm"_s
                           : u"Apfel"_s;
    }
};

constexpr int name = 0;
constexpr int eigen = 1;
constexpr int such = 2;

} // namespace

/// How the columns of a table share its width, and when it rolls sideways.
class TestTabellenbreite : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_tabelle.reset(); }
    void theFirstColumnGrowsBeforeTheLast_data();
    void theFirstColumnGrowsBeforeTheLast();
    void theLongestEntryIsNotCutOff();
    void aNewLongestEntryIsGivenItsRoom();
    void aLargerFontNeedsMoreRoom();
    void aWidthThatTheUserSetStays();
    void aBarAppearsOnlyWhereTheColumnsDontFit();
    void noStripStaysAfterWidening();
    void sidewaysItRollsByPixel();
    void theProgramNeverRollsSideways();
    void aClickNeverRollsSideways();
    void theKeyboardsCursorRollsSideways();
    void keysSetAColumnsWidth_data();
    void keysSetAColumnsWidth();
    void keysLeaveTheLastColumnWhatRemains();
    void aWidthSetWithKeysStays();

private:
    int breite(int spalte) const { return m_tabelle->columnWidth(spalte); }
    int laengster() const
    {
        return m_tabelle->fontMetrics().horizontalAdvance(m_quelle.objectValue(u"name"_s, 57));
    }
    /// Makes the table so wide that its cells have this many pixels.
    void setzeInnenbreite(int pixel);
    QScrollBar *quer() const { return m_tabelle->horizontalScrollBar(); }

    mutable Namensquelle m_quelle;
    std::unique_ptr<Tabellenansicht> m_tabelle;
};

void TestTabellenbreite::init()
{
    m_quelle = Namensquelle();
    m_tabelle = std::make_unique<Tabellenansicht>();
    m_tabelle->setQuelle(
        &m_quelle, {{u"name"_s, u"Name"_s}, {u"eigen"_s, u"Eigen"_s}, {u"such"_s, u"Suche"_s}});
    m_tabelle->setSpaltenbreiten({200, 100, 150});
    m_tabelle->setRowHeight(23);
    m_tabelle->resize(600, 300);
    m_tabelle->show();
    QVERIFY(QTest::qWaitForWindowActive(m_tabelle.get()));
}

void TestTabellenbreite::setzeInnenbreite(int pixel)
{
    m_tabelle->resize(m_tabelle->width() + pixel - m_tabelle->viewport()->width(), 300);
    QCoreApplication::processEvents();
    QCOMPARE(m_tabelle->viewport()->width(), pixel);
}

void TestTabellenbreite::theFirstColumnGrowsBeforeTheLast_data()
{
    QTest::addColumn<int>("innen");
    QTest::addColumn<int>("erste");
    QTest::addColumn<int>("letzte");
    QTest::newRow("as at the beginning") << 450 << 200 << 150;
    QTest::newRow("one more point goes to the names") << 451 << 201 << 150;
    QTest::newRow("and a hundred more") << 550 << 300 << 150;
    QTest::newRow("where there is less they keep what they have") << 400 << 200 << 150;
}

void TestTabellenbreite::theFirstColumnGrowsBeforeTheLast()
{
    QFETCH(int, innen);
    QVERIFY(laengster() > 300);
    setzeInnenbreite(1200);
    setzeInnenbreite(innen);
    QTEST(breite(name), "erste");
    QCOMPARE(breite(eigen), 100);
    QTEST(breite(such), "letzte");
}

void TestTabellenbreite::theLongestEntryIsNotCutOff()
{
    setzeInnenbreite(1200);
    QVERIFY(breite(name) >= laengster() + 12);
    QVERIFY(breite(name) <= laengster() + 30); // and no more than that
    QCOMPARE(breite(such), 1200 - 100 - breite(name));
    const int erste = breite(name);
    setzeInnenbreite(1300); // from now on the last one grows
    QCOMPARE(breite(name), erste);
    QCOMPARE(breite(such), 1300 - 100 - erste);
}

void TestTabellenbreite::aNewLongestEntryIsGivenItsRoom()
{
    m_quelle.zeilen = 20;
    m_tabelle->reloadData();
    setzeInnenbreite(1000);
    QCOMPARE(breite(name), 200);
    m_quelle.zeilen = 60;
    m_tabelle->reloadData();
    QVERIFY(breite(name) >= laengster() + 12);
}

void TestTabellenbreite::aLargerFontNeedsMoreRoom()
{
    setzeInnenbreite(1600);
    QFont schrift = m_tabelle->font();
    schrift.setPointSize(schrift.pointSize() + 6);
    m_tabelle->setFont(schrift);
    QVERIFY(breite(name) >= laengster() + 12);
}

void TestTabellenbreite::aWidthThatTheUserSetStays()
{
    QWidget *kopf = m_tabelle->horizontalHeader()->viewport();
    const QPoint grenze(breite(name) - 1, kopf->height() / 2);
    QTest::mousePress(kopf, Qt::LeftButton, {}, grenze);
    QTest::mouseMove(kopf, grenze - QPoint(20, 0));
    QTest::mouseMove(kopf, grenze - QPoint(70, 0));
    QTest::mouseRelease(kopf, Qt::LeftButton, {}, grenze - QPoint(70, 0));
    const int gesetzt = breite(name);
    QVERIFY(gesetzt < grenze.x() - 50);
    for (const int innen : {900, 350, 620}) {
        setzeInnenbreite(innen);
        QCOMPARE(breite(name), gesetzt);
    }
    QCOMPARE(breite(such), 620 - 100 - gesetzt); // no strip stays white
}

void TestTabellenbreite::aBarAppearsOnlyWhereTheColumnsDontFit()
{
    for (int innen = 250; innen <= 700; innen += 5) {
        setzeInnenbreite(innen);
        const bool passt = m_tabelle->horizontalHeader()->length() <= innen;
        QCOMPARE(passt, innen >= 450); // 200, 100 and 150
        QCOMPARE(quer()->isVisible(), !passt);
    }
}

void TestTabellenbreite::noStripStaysAfterWidening()
{
    setzeInnenbreite(250);
    quer()->setValue(quer()->maximum());
    QCOMPARE(quer()->value(), 200);
    for (const int innen : {280, 330, 449, 500}) {
        setzeInnenbreite(innen);
        QCOMPARE(m_tabelle->columnViewportPosition(such) + breite(such), innen);
    }
    QCOMPARE(m_tabelle->columnViewportPosition(name), 0);
}

void TestTabellenbreite::sidewaysItRollsByPixel()
{
    setzeInnenbreite(250);
    quer()->setValue(7);
    QCOMPARE(m_tabelle->columnViewportPosition(name), -7);
}

/// Who has rolled to a column wants to stay there while the program goes to another row.
void TestTabellenbreite::theProgramNeverRollsSideways()
{
    setzeInnenbreite(250);
    m_tabelle->setzeSchreibmarke(1, u"such"_s);
    for (const int stand : {0, 33, 200}) {
        quer()->setValue(stand);
        for (const int zeile : {50, 3}) {
            m_tabelle->selectRow(zeile);
            m_tabelle->scrollRowToVisible(zeile);
            QCOMPARE(m_tabelle->selectedRow(), zeile);
            QVERIFY(m_tabelle->rowViewportPosition(zeile) >= 0);
            QVERIFY(m_tabelle->rowViewportPosition(zeile) < m_tabelle->viewport()->height());
            QCOMPARE(quer()->value(), stand);
        }
    }
}

/// A cell that is half out of sight both ways is clicked: it rolls up into view, and stays where
/// it is sideways.
void TestTabellenbreite::aClickNeverRollsSideways()
{
    setzeInnenbreite(250);
    quer()->setValue(20);
    const int ganze = m_tabelle->viewport()->height() / 23 * 23;
    m_tabelle->resize(m_tabelle->width(), 300 + ganze + 10 - m_tabelle->viewport()->height());
    QCoreApplication::processEvents();
    QCOMPARE(m_tabelle->viewport()->height(), ganze + 10); // the last row in sight is cut off
    const int unten = m_tabelle->rowAt(m_tabelle->viewport()->height() - 1);
    const QPoint ort(245, m_tabelle->rowViewportPosition(unten) + 2);
    QCOMPARE(m_tabelle->columnAt(ort.x()), int(eigen));
    const QSignalSpy gerollt(m_tabelle->verticalScrollBar(), &QScrollBar::valueChanged);
    QTest::mouseClick(m_tabelle->viewport(), Qt::LeftButton, {}, ort);
    QCOMPARE(m_tabelle->selectedRow(), unten);
    QCOMPARE(quer()->value(), 20);
    QTRY_VERIFY(!gerollt.isEmpty());
    QCOMPARE(quer()->value(), 20);
}

void TestTabellenbreite::theKeyboardsCursorRollsSideways()
{
    setzeInnenbreite(250);
    QTest::mouseClick(m_tabelle->viewport(), Qt::LeftButton, {}, QPoint(10, 10));
    QTest::keyClick(m_tabelle.get(), Qt::Key_Right);
    QTest::keyClick(m_tabelle.get(), Qt::Key_Right);
    QCOMPARE(m_tabelle->currentIndex().column(), int(such));
    QCOMPARE(quer()->value(), 200);
    QTest::keyClick(m_tabelle.get(), Qt::Key_Left);
    QTest::keyClick(m_tabelle.get(), Qt::Key_Left);
    QCOMPARE(quer()->value(), 0);
    m_tabelle->setzeSchreibmarke(1, u"such"_s);
    QCOMPARE(quer()->value(), 200);
}

void TestTabellenbreite::keysSetAColumnsWidth_data()
{
    QTest::addColumn<int>("spalte");
    QTest::addColumn<QList<Qt::Key>>("tasten");
    QTest::addColumn<int>("neu");
    QTest::newRow("wider") << eigen << QList{Qt::Key_Right} << 108;
    QTest::newRow("narrower") << eigen << QList{Qt::Key_Left} << 92;
    QTest::newRow("there and back") << eigen << QList{Qt::Key_Left, Qt::Key_Right} << 100;
    QTest::newRow("no narrower than the mouse makes it")
        << eigen << QList<Qt::Key>(20, Qt::Key_Left) << 40;
}

/// The cursor stays in its cell, and what is chosen there stays chosen.
void TestTabellenbreite::keysSetAColumnsWidth()
{
    QFETCH(int, spalte);
    QFETCH(QList<Qt::Key>, tasten);
    m_tabelle->horizontalHeader()->setMinimumSectionSize(40);
    m_tabelle->waehle(2, u"eigen"_s);
    const QSignalSpy gezogen(m_tabelle.get(), &Tabellenansicht::spalteGezogen);
    const QSignalSpy gewaehlt(m_tabelle.get(), &Tabellenansicht::betaetigt);
    for (const Qt::Key taste : tasten) {
        QTest::keyClick(m_tabelle.get(), taste, Qt::AltModifier);
    }
    QTEST(breite(spalte), "neu");
    QCOMPARE(gezogen.last()[0].toInt(), spalte);
    QCOMPARE(gezogen.last()[1].toInt(), breite(spalte));
    QVERIFY(gewaehlt.isEmpty());
    QCOMPARE(m_tabelle->currentIndex().column(), spalte);
    QCOMPARE(m_tabelle->selectedRow(), 2);
}

void TestTabellenbreite::keysLeaveTheLastColumnWhatRemains()
{
    m_tabelle->waehle(2, u"such"_s);
    const int vorher = breite(such);
    QTest::keyClick(m_tabelle.get(), Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(breite(such), vorher);
    QCOMPARE(m_tabelle->currentIndex().column(), int(such));
}

void TestTabellenbreite::aWidthSetWithKeysStays()
{
    setzeInnenbreite(450);
    m_tabelle->waehle(2, u"name"_s);
    QTest::keyClick(m_tabelle.get(), Qt::Key_Right, Qt::AltModifier);
    QCOMPARE(breite(name), 208);
    setzeInnenbreite(900);
    QCOMPARE(breite(name), 208);
}

QTEST_MAIN(TestTabellenbreite)
#include "TestTabellenbreite.moc"
