#include "Tabellenansicht.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

#include <functional>
#include <memory>

namespace {

/// Three columns of letters with numbers; the third ends early.
class Probequelle : public Tabellenquelle
{
public:
    int zeilen = 20;
    int gefragt = 0;
    std::function<QString(const QString &)> beimZiehen = [](const QString &text) {
        return text;
    };
    QString langerName; ///< of row 1 in the first column, where it is given

    int numberOfRows() const override { return zeilen; }
    QString objectValue(const QString &spalte, int zeile) override
    {
        ++gefragt;
        if (!langerName.isEmpty() && spalte == QLatin1String("a") && zeile == 1) {
            return langerName;
        }
        const bool leer = zeile >= zeilen || (spalte == QLatin1String("c") && zeile >= 2);
        return leer ? QString() : spalte + QString::number(zeile);
    }
    QString writeRows(const QString &spalte, int zeile) override
    {
        const QString wert = objectValue(spalte, zeile);
        return wert.isNull() ? wert : beimZiehen(QStringLiteral("key ") + wert);
    }
};

} // namespace

class TestTabellenansicht : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_tabelle.reset(); }
    void theModelKeepsQtsRules();
    void theRowsAreThoseOfTheLastReload();
    void anEmptyCellIsEmpty();
    void aClickChoosesRowAndColumn_data();
    void aClickChoosesRowAndColumn();
    void outsideOfAnActionNoColumnIsClicked();
    void theArrowKeysChooseToo();
    void returnChoosesAgain();
    void aClickBesideTheRowsChoosesNone();
    void selectingByProgramRunsNoAction();
    void aRowThatDoesNotExistIsNotSelected();
    void aReloadKeepsTheSelection();
    void aDragCarriesTheColumnUnderTheMouse();
    void nothingIsDraggedFromAnEmptyCell();
    void aPullThatCarriesNothingChoosesWhereItEnds();
    void aDragBeginsWhereNothingIsSelected();
    void tabLeavesTheTable();
    void theSelectedRowStaysInSightWhenTheTableShrinks_data();
    void theSelectedRowStaysInSightWhenTheTableShrinks();
    void whatIsCutOffStandsInTheToolTip();

private:
    QPoint mitte(int zeile, int spalte) const
    {
        return m_tabelle->visualRect(m_tabelle->model()->index(zeile, spalte)).center();
    }
    /// Moves the mouse while its left button is down.
    void ziehe(const QPoint &ort)
    {
        QMouseEvent zug(QEvent::MouseMove, ort, m_tabelle->viewport()->mapToGlobal(ort),
                        Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(m_tabelle->viewport(), &zug);
    }
    void klicke(int zeile, int spalte)
    {
        QTest::mouseClick(m_tabelle->viewport(), Qt::LeftButton, {}, mitte(zeile, spalte));
    }

    Probequelle m_quelle;
    std::unique_ptr<Tabellenansicht> m_tabelle;
};

void TestTabellenansicht::init()
{
    m_quelle = Probequelle();
    m_tabelle = std::make_unique<Tabellenansicht>();
    m_tabelle->setQuelle(&m_quelle, {{QStringLiteral("a"), QStringLiteral("A")},
                                     {QStringLiteral("b"), QStringLiteral("B")},
                                     {QStringLiteral("c"), QStringLiteral("C")}});
    m_tabelle->setRowHeight(23);
    m_tabelle->resize(400, 700);
    m_tabelle->show();
    QVERIFY(QTest::qWaitForWindowActive(m_tabelle.get()));
}

void TestTabellenansicht::theModelKeepsQtsRules()
{
    QAbstractItemModelTester pruefer(m_tabelle->model(),
                                     QAbstractItemModelTester::FailureReportingMode::QtTest);
    for (const int zeilen : {25, 3, 0, 7, 7}) {
        m_quelle.zeilen = zeilen;
        m_tabelle->reloadData();
        QCOMPARE(m_tabelle->model()->rowCount(), zeilen);
    }
    QCOMPARE(m_tabelle->model()->headerData(1, Qt::Horizontal).toString(), QStringLiteral("B"));
}

void TestTabellenansicht::theRowsAreThoseOfTheLastReload()
{
    m_quelle.zeilen = 5;
    QCOMPARE(m_tabelle->model()->rowCount(), 20);
    QVERIFY(!m_tabelle->model()->index(12, 0).data().isValid());
    QVERIFY(!m_tabelle->grab().isNull()); // painting rows that are gone does no harm
    m_tabelle->reloadData();
    QCOMPARE(m_tabelle->model()->rowCount(), 5);
}

void TestTabellenansicht::anEmptyCellIsEmpty()
{
    QCOMPARE(m_tabelle->model()->index(1, 2).data().toString(), QStringLiteral("c1"));
    QVERIFY(!m_tabelle->model()->index(2, 2).data().isValid());
}

void TestTabellenansicht::aClickChoosesRowAndColumn_data()
{
    QTest::addColumn<int>("zeile");
    QTest::addColumn<int>("spalte");
    QTest::newRow("first column") << 3 << 0;
    QTest::newRow("second column") << 3 << 1;
    QTest::newRow("an empty cell of the third") << 7 << 2;
    QTest::newRow("row 0") << 0 << 0;
}

void TestTabellenansicht::aClickChoosesRowAndColumn()
{
    QFETCH(int, zeile);
    QFETCH(int, spalte);
    int gemeldet = 0;
    connect(m_tabelle.get(), &Tabellenansicht::betaetigt, this, [&] {
        ++gemeldet;
        QCOMPARE(m_tabelle->selectedRow(), zeile);
        QCOMPARE(m_tabelle->clickedColumn(), spalte);
    });
    klicke(zeile, spalte);
    QCOMPARE(gemeldet, 1);
}

void TestTabellenansicht::outsideOfAnActionNoColumnIsClicked()
{
    QCOMPARE(m_tabelle->clickedColumn(), -1);
    klicke(2, 1);
    QCOMPARE(m_tabelle->clickedColumn(), -1);
}

void TestTabellenansicht::theArrowKeysChooseToo()
{
    klicke(2, 1);
    int spalte = -2;
    connect(m_tabelle.get(), &Tabellenansicht::betaetigt, this,
            [&] { spalte = m_tabelle->clickedColumn(); });
    QTest::keyClick(m_tabelle.get(), Qt::Key_Down);
    QCOMPARE(m_tabelle->selectedRow(), 3);
    QCOMPARE(spalte, 1);
    QTest::keyClick(m_tabelle.get(), Qt::Key_Left);
    QCOMPARE(m_tabelle->selectedRow(), 3);
    QCOMPARE(spalte, 0);
}

void TestTabellenansicht::returnChoosesAgain()
{
    klicke(2, 0);
    QSignalSpy gemeldet(m_tabelle.get(), &Tabellenansicht::betaetigt);
    QTest::keyClick(m_tabelle.get(), Qt::Key_Return);
    QCOMPARE(gemeldet.count(), 1);
    QTest::keyClick(m_tabelle.get(), Qt::Key_F5);
    QCOMPARE(gemeldet.count(), 1);
}

void TestTabellenansicht::aClickBesideTheRowsChoosesNone()
{
    klicke(2, 0);
    int zeile = -2;
    connect(m_tabelle.get(), &Tabellenansicht::betaetigt, this,
            [&] { zeile = m_tabelle->selectedRow(); });
    QTest::mouseClick(m_tabelle->viewport(), Qt::LeftButton, {},
                      QPoint(20, m_tabelle->viewport()->height() - 5));
    QCOMPARE(zeile, -1);
}

void TestTabellenansicht::selectingByProgramRunsNoAction()
{
    QSignalSpy gemeldet(m_tabelle.get(), &Tabellenansicht::betaetigt);
    m_tabelle->selectRow(4);
    m_tabelle->scrollRowToVisible(4);
    QCOMPARE(m_tabelle->selectedRow(), 4);
    m_tabelle->selectRow(9);
    QCOMPARE(m_tabelle->selectedRow(), 9);
    QCOMPARE(gemeldet.count(), 0);
}

void TestTabellenansicht::aRowThatDoesNotExistIsNotSelected()
{
    m_tabelle->selectRow(4);
    m_tabelle->selectRow(20);
    m_tabelle->selectRow(-1);
    m_tabelle->scrollRowToVisible(99);
    QCOMPARE(m_tabelle->selectedRow(), 4);
    m_quelle.zeilen = 0;
    m_tabelle->reloadData();
    m_tabelle->selectRow(0);
    QCOMPARE(m_tabelle->selectedRow(), -1);
}

void TestTabellenansicht::aReloadKeepsTheSelection()
{
    klicke(4, 1);
    m_quelle.zeilen = 30;
    m_tabelle->reloadData();
    QCOMPARE(m_tabelle->selectedRow(), 4);
}

void TestTabellenansicht::aDragCarriesTheColumnUnderTheMouse()
{
    for (int spalte = 0; spalte < 3; ++spalte) {
        const std::unique_ptr<QMimeData> daten(m_tabelle->ziehdaten(1, mitte(5, spalte)));
        QVERIFY(daten != nullptr);
        QCOMPARE(daten->text(), QStringLiteral("key %1%2").arg(QLatin1Char("abc"[spalte])).arg(1));
        QCOMPARE(daten->formats(), QStringList{QStringLiteral("text/plain")});
    }
}

void TestTabellenansicht::nothingIsDraggedFromAnEmptyCell()
{
    QVERIFY(m_tabelle->ziehdaten(5, mitte(5, 2)) == nullptr);
    QVERIFY(m_tabelle->ziehdaten(-1, mitte(5, 0)) == nullptr);
    QVERIFY(m_tabelle->ziehdaten(99, mitte(5, 0)) == nullptr);
    QVERIFY(m_tabelle->ziehdaten(1, QPoint(5000, 5)) == nullptr);
}

/// From a filled cell over the edge into an empty one, and let go there.
void TestTabellenansicht::aPullThatCarriesNothingChoosesWhereItEnds()
{
    klicke(3, 0);
    int spalte = -2;
    connect(m_tabelle.get(), &Tabellenansicht::betaetigt, this,
            [&] { spalte = m_tabelle->clickedColumn(); });
    const QRect feld = m_tabelle->visualRect(m_tabelle->model()->index(5, 1));
    const QPoint start(feld.right() - 2, feld.center().y());
    const QPoint ende = start + QPoint(QApplication::startDragDistance() + 1, 0);
    QCOMPARE(m_tabelle->columnAt(ende.x()), 2);
    QTest::mousePress(m_tabelle->viewport(), Qt::LeftButton, {}, start);
    ziehe(start + QPoint(1, 0));
    ziehe(ende);
    QTest::mouseRelease(m_tabelle->viewport(), Qt::LeftButton, {}, ende);
    QCOMPARE(m_tabelle->selectedRow(), 5);
    QCOMPARE(spalte, 2);
}

/// A table in which nobody has chosen anything yet is dragged from like any other.
void TestTabellenansicht::aDragBeginsWhereNothingIsSelected()
{
    QCOMPARE(m_tabelle->selectedRow(), -1);
    QString gezogen;
    m_quelle.beimZiehen = [&](const QString &text) {
        gezogen = text;
        return QString(); // none begins, so that the test goes on
    };
    QTest::mousePress(m_tabelle->viewport(), Qt::LeftButton, {}, mitte(4, 1));
    ziehe(mitte(4, 1) + QPoint(0, 1));
    ziehe(mitte(4, 1) + QPoint(QApplication::startDragDistance() + 2, 0));
    QTest::mouseRelease(m_tabelle->viewport(), Qt::LeftButton, {}, mitte(4, 1));
    QCOMPARE(gezogen, QStringLiteral("key b4"));
}

void TestTabellenansicht::tabLeavesTheTable()
{
    QVERIFY(!m_tabelle->tabKeyNavigation());
}

void TestTabellenansicht::whatIsCutOffStandsInTheToolTip()
{
    const auto hinweis = [this](int zeile) {
        const QPoint stelle = mitte(zeile, 0);
        QHelpEvent event(QEvent::ToolTip, stelle, m_tabelle->viewport()->mapToGlobal(stelle));
        QCoreApplication::sendEvent(m_tabelle->viewport(), &event);
        return QToolTip::text();
    };
    m_tabelle->setColumnWidth(0, 200);
    QCOMPARE(hinweis(1), QString());
    m_quelle.langerName = QStringLiteral("Salz & <Pfeffer> ").repeated(20);
    QCOMPARE(hinweis(1), QStringLiteral("<qt>") +
                             QStringLiteral("Salz &amp; &lt;Pfeffer&gt; ").repeated(20) +
                             QStringLiteral("</qt>"));
    hinweis(2);
    QTRY_VERIFY(!QToolTip::isVisible());
}

void TestTabellenansicht::theSelectedRowStaysInSightWhenTheTableShrinks_data()
{
    QTest::addColumn<int>("zeile");
    QTest::addColumn<int>("oben"); // the first row in sight before the table shrinks
    QTest::addColumn<bool>("rollt");
    QTest::newRow("the last row in sight") << 8 << 0 << true;
    QTest::newRow("a row that stays in sight") << 2 << 0 << false;
    QTest::newRow("one that was below it already") << 15 << 0 << false;
    QTest::newRow("one that was above it already") << 1 << 5 << false;
}

/// Nine rows of 20 points are in sight, then five.
void TestTabellenansicht::theSelectedRowStaysInSightWhenTheTableShrinks()
{
    QFETCH(int, zeile);
    QFETCH(int, oben);
    QFETCH(bool, rollt);
    m_tabelle->setRowHeight(20);
    const int rest = m_tabelle->height() - m_tabelle->viewport()->height();
    m_tabelle->resize(m_tabelle->width(), rest + 180);
    m_tabelle->selectRow(zeile);
    m_tabelle->verticalScrollBar()->setValue(oben);
    m_tabelle->resize(m_tabelle->width(), rest + 100);
    QCOMPARE(m_tabelle->verticalScrollBar()->value() != oben, rollt);
    if (rollt) {
        QCOMPARE(m_tabelle->rowViewportPosition(zeile), 80);
    }
}

QTEST_MAIN(TestTabellenansicht)
#include "TestTabellenansicht.moc"
