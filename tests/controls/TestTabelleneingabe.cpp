#include "Tabellenansicht.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QDragEnterEvent>
#include <QDragLeaveEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QMimeData>
#include <QMouseEvent>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// A list of words, each with a number that can be typed over, that takes words between its rows.
class Wortliste : public Tabellenquelle
{
public:
    QStringList worte = {u"null"_s, u"eins"_s, u"zwei"_s};
    QStringList zahlen = {u"10"_s, u"11"_s, u"12"_s};
    bool offen = true;

    int numberOfRows() const override { return static_cast<int>(worte.size()); }
    QString objectValue(const QString &spalte, int zeile) override
    {
        return spalte == u"zahl"_s ? zahlen.value(zeile) : worte.value(zeile);
    }
    Zellenbild willDisplayCell(const QString &spalte, int, const QString &wert) override
    {
        Zellenbild bild;
        bild.text = spalte == u"zahl"_s ? wert + u" g"_s : wert;
        return bild;
    }
    void setObjectValue(const QString &spalte, int zeile, const QString &text) override
    {
        QCOMPARE(spalte, u"zahl"_s);
        zahlen[zeile] = text;
    }
    std::optional<int> validateDrop(int zeile, bool auf) override
    {
        return offen ? std::optional(auf ? zeile + 1 : zeile) : std::nullopt;
    }
    void acceptDrop(int zeile, const QString &text) override
    {
        worte.insert(zeile, text);
        zahlen.insert(zeile, u"0"_s);
    }
};

} // namespace

/// Tables whose cells can be typed into and that take what is dropped.
class TestTabelleneingabe : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theModelKeepsQtsRules();
    void aCellShowsItsPictureAndEditsItsValue();
    void onlyEditableColumnsTakeATypedValue();
    void returnOpensTheEditor();
    void aHandThatShakesInADoubleClickTakesTheWholeNumber();
    void withoutEditTriggersReturnChooses();
    void aDropGoesWhereTheLineIs_data();
    void aDropGoesWhereTheLineIs();
    void theLineIsPaintedAndGoesAway();
    void whatTheControllerRefusesIsNotTaken();
    void onlyPlainTextIsTaken();
    void withoutAControllerNothingIsTaken();
    void wholeRowsAreSelected();
    void numbersStandOnTheRight();
    void aNarrowColumnHasItsShortTitle();
    void theHeadingExplainsItself();

private:
    QPoint mitte(int zeile, int spalte) const
    {
        return m_tabelle->visualRect(m_tabelle->model()->index(zeile, spalte)).center();
    }
    template <typename Ereignis>
    bool sende(const QPoint &ort, const QMimeData &daten)
    {
        Ereignis ereignis(ort, Qt::CopyAction | Qt::MoveAction, &daten, Qt::LeftButton, {});
        QApplication::sendEvent(m_tabelle->viewport(), &ereignis);
        return ereignis.isAccepted() && ereignis.dropAction() == Qt::CopyAction;
    }

    Wortliste m_quelle;
    std::unique_ptr<Tabellenansicht> m_tabelle;
};

void TestTabelleneingabe::init()
{
    m_quelle = Wortliste();
    m_tabelle = std::make_unique<Tabellenansicht>();
    m_tabelle->setAcceptDrops(true);
    m_tabelle->setDragDropMode(QAbstractItemView::DragDrop);
    m_tabelle->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_tabelle->setEditTriggers(QAbstractItemView::AnyKeyPressed);
    m_tabelle->setQuelle(&m_quelle, {{.kennung = u"wort"_s, .titel = u"Das Wort"_s},
                                     {.kennung = u"zahl"_s,
                                      .titel = u"Eine Zahl\ng"_s,
                                      .kurztitel = u"Z\ng"_s,
                                      .erklaerung = u"Eine Zahl in Gramm"_s,
                                      .ausrichtung = Qt::AlignRight | Qt::AlignVCenter,
                                      .bearbeitbar = true}});
    m_tabelle->setRowHeight(24);
    m_tabelle->resize(300, 200);
    m_tabelle->show();
    QVERIFY(QTest::qWaitForWindowActive(m_tabelle.get()));
}

void TestTabelleneingabe::theModelKeepsQtsRules()
{
    QAbstractItemModelTester pruefer(m_tabelle->model(),
                                     QAbstractItemModelTester::FailureReportingMode::QtTest);
    QVERIFY(m_tabelle->model()->setData(m_tabelle->model()->index(1, 1), u"7"_s));
    m_quelle.worte << u"drei"_s;
    m_quelle.zahlen << u"13"_s;
    m_tabelle->reloadData();
    QCOMPARE(m_tabelle->model()->rowCount(), 4);
}

void TestTabelleneingabe::aCellShowsItsPictureAndEditsItsValue()
{
    const QModelIndex zelle = m_tabelle->model()->index(2, 1);
    QCOMPARE(zelle.data().toString(), u"12 g"_s);
    QCOMPARE(zelle.data(Qt::EditRole).toString(), u"12"_s);
}

void TestTabelleneingabe::onlyEditableColumnsTakeATypedValue()
{
    QAbstractItemModel &modell = *m_tabelle->model();
    QVERIFY(!modell.setData(modell.index(0, 0), u"x"_s));
    QVERIFY(!modell.setData(modell.index(0, 1), u"x"_s, Qt::DisplayRole));
    QVERIFY(!modell.setData({}, u"x"_s));
    QVERIFY(modell.setData(modell.index(0, 1), u"x"_s));
    QCOMPARE(m_quelle.zahlen.first(), u"x"_s);
}

void TestTabelleneingabe::returnOpensTheEditor()
{
    m_tabelle->setzeSchreibmarke(1, u"zahl"_s);
    QTest::keyClick(m_tabelle.get(), Qt::Key_Return);
    auto *eingabe = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    QVERIFY(eingabe != nullptr);
    QCOMPARE(eingabe->text(), u"11"_s);
    QVERIFY(eingabe->alignment().testFlag(Qt::AlignRight));
    QCOMPARE(eingabe->accessibleName(), u"Eine Zahl\ng"_s);
    QTest::keyClicks(eingabe, u"99"_s);
    QTest::keyClick(eingabe, Qt::Key_Return);
    QTRY_COMPARE(m_quelle.zahlen[1], u"99"_s);
}

void TestTabelleneingabe::aHandThatShakesInADoubleClickTakesTheWholeNumber()
{
    m_quelle.zahlen[1] = u"12,5"_s;
    m_tabelle->setzeSchreibmarke(1, u"zahl"_s);
    QTest::keyClick(m_tabelle.get(), Qt::Key_Return);
    auto *eingabe = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    QVERIFY(eingabe != nullptr);
    const auto sende = [eingabe](QEvent::Type was, int x, Qt::MouseButtons gedrueckt) {
        const QPointF ort(x, eingabe->height() / 2.0);
        const Qt::MouseButton taste = was == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent ereignis(was, ort, eingabe->mapToGlobal(ort), taste, gedrueckt, Qt::NoModifier);
        QApplication::sendEvent(eingabe, &ereignis);
    };
    QVERIFY(!eingabe->grab().isNull()); // its text moves to the right when it is painted
    const int rechts = eingabe->width() - 8;
    sende(QEvent::MouseButtonDblClick, rechts, Qt::LeftButton);
    sende(QEvent::MouseMove, rechts - 10, Qt::LeftButton);
    QCOMPARE(eingabe->selectedText(), u"12,5"_s);
    sende(QEvent::MouseButtonRelease, rechts - 10, Qt::NoButton);
    QCOMPARE(eingabe->selectedText(), u"12,5"_s);
    // A drag of its own, too far away for a third click, selects as ever.
    sende(QEvent::MouseButtonPress, rechts - 30, Qt::LeftButton);
    sende(QEvent::MouseMove, rechts - 4, Qt::LeftButton);
    QVERIFY(eingabe->hasSelectedText());
    QVERIFY(eingabe->selectedText() != u"12,5"_s);
}

void TestTabelleneingabe::withoutEditTriggersReturnChooses()
{
    m_tabelle->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_tabelle->setzeSchreibmarke(1, u"zahl"_s);
    int gemeldet = 0;
    connect(m_tabelle.get(), &Tabellenansicht::betaetigt, this, [&gemeldet] { ++gemeldet; });
    QTest::keyClick(m_tabelle.get(), Qt::Key_Return);
    QCOMPARE(gemeldet, 1);
    QVERIFY(qobject_cast<QLineEdit *>(QApplication::focusWidget()) == nullptr);
}

void TestTabelleneingabe::aDropGoesWhereTheLineIs_data()
{
    QTest::addColumn<int>("y"); // rows are 24 high, their edges a quarter of that
    QTest::addColumn<int>("zeile");
    QTest::newRow("upper edge of the first row") << 0 << 0;
    QTest::newRow("last point of that edge") << 5 << 0;
    QTest::newRow("on the first row") << 6 << 1;
    QTest::newRow("middle of the first row") << 12 << 1;
    QTest::newRow("lower edge of the first row") << 18 << 1;
    QTest::newRow("upper edge of the second row") << 24 << 1;
    QTest::newRow("on the second row") << 36 << 2;
    QTest::newRow("on the last row") << 60 << 3;
    QTest::newRow("lower edge of the last row") << 71 << 3;
    QTest::newRow("below all rows") << 120 << 3;
}

void TestTabelleneingabe::aDropGoesWhereTheLineIs()
{
    QFETCH(int, y);
    QFETCH(int, zeile);
    QMimeData daten;
    daten.setText(u"neu"_s);
    const QPoint ort(40, y);
    QVERIFY(sende<QDragEnterEvent>(ort, daten));
    QVERIFY(sende<QDragMoveEvent>(ort, daten));
    QCOMPARE(m_tabelle->abwurfzeile(ort), std::optional(zeile));
    QVERIFY(sende<QDropEvent>(ort, daten));
    QCOMPARE(m_quelle.worte.indexOf(u"neu"_s), zeile);
}

void TestTabelleneingabe::theLineIsPaintedAndGoesAway()
{
    QMimeData daten;
    daten.setText(u"neu"_s);
    const QColor farbe = m_tabelle->palette().color(QPalette::Highlight);
    const auto strich = [this](int y) {
        return m_tabelle->viewport()->grab().toImage().pixelColor(200, y);
    };
    const QColor vorher = strich(24);
    QVERIFY(vorher != farbe);
    QVERIFY(sende<QDragEnterEvent>(QPoint(40, 12), daten));
    QCOMPARE(strich(24), farbe);
    QVERIFY(sende<QDragMoveEvent>(QPoint(40, 190), daten));
    QCOMPARE(strich(24), vorher);
    QCOMPARE(strich(72), farbe);
    QDragLeaveEvent weg;
    QApplication::sendEvent(m_tabelle->viewport(), &weg);
    QVERIFY(strich(72) != farbe);
    QCOMPARE(m_quelle.worte.size(), 3);
}

void TestTabelleneingabe::whatTheControllerRefusesIsNotTaken()
{
    m_quelle.offen = false;
    QMimeData daten;
    daten.setText(u"neu"_s);
    QVERIFY(!sende<QDragEnterEvent>(QPoint(40, 12), daten));
    QVERIFY(!sende<QDropEvent>(QPoint(40, 12), daten));
    QCOMPARE(m_quelle.worte.size(), 3);
}

void TestTabelleneingabe::onlyPlainTextIsTaken()
{
    QMimeData daten;
    daten.setHtml(u"<b>neu</b>"_s);
    QVERIFY(!sende<QDragEnterEvent>(QPoint(40, 12), daten));
    QVERIFY(!sende<QDropEvent>(QPoint(40, 12), daten));
    QCOMPARE(m_quelle.worte.size(), 3);
}

void TestTabelleneingabe::withoutAControllerNothingIsTaken()
{
    const Tabellenansicht leere;
    QVERIFY(!leere.abwurfzeile(QPoint(5, 5)).has_value());
}

void TestTabelleneingabe::wholeRowsAreSelected()
{
    const QColor farbe = m_tabelle->palette().color(QPalette::Highlight);
    m_tabelle->selectRow(1);
    QCOMPARE(m_tabelle->selectionModel()->selectedRows().size(), 1);
    const QImage bild = m_tabelle->viewport()->grab().toImage();
    QCOMPARE(bild.pixelColor(90, 28), farbe);
    QVERIFY(bild.pixelColor(90, 4) != farbe);
    // An amount stays readable as what it is: a field to type into.
    const QPoint feld = mitte(1, 1);
    QVERIFY(bild.pixelColor(feld.x() - 20, feld.y()) != farbe);
}

void TestTabelleneingabe::numbersStandOnTheRight()
{
    const auto linksterPunkt = [this](int spalte) {
        const QImage bild = m_tabelle->viewport()
                                ->grab(m_tabelle->visualRect(m_tabelle->model()->index(0, spalte)))
                                .toImage();
        const QColor grund = bild.pixelColor(8, 6);
        for (int x = 8; x < bild.width(); ++x) {
            for (int y = 5; y < bild.height() - 5; ++y) {
                if (bild.pixelColor(x, y) != grund) {
                    return x;
                }
            }
        }
        return bild.width();
    };
    QVERIFY(linksterPunkt(0) < 20);
    QVERIFY(linksterPunkt(1) > m_tabelle->columnWidth(1) / 2);
}

void TestTabelleneingabe::aNarrowColumnHasItsShortTitle()
{
    const auto kopfbild = [this](int breite) {
        m_tabelle->setColumnWidth(1, breite);
        return m_tabelle->horizontalHeader()
            ->viewport()
            ->grab(QRect(m_tabelle->columnViewportPosition(1), 0, breite,
                         m_tabelle->horizontalHeader()->height()))
            .toImage();
    };
    QImage schmal = kopfbild(30);
    m_tabelle->setQuelle(&m_quelle, {{.kennung = u"wort"_s, .titel = u"Das Wort"_s},
                                     {.kennung = u"zahl"_s, .titel = u"Z\ng"_s}});
    QCOMPARE(kopfbild(30), schmal);
}

void TestTabelleneingabe::theHeadingExplainsItself()
{
    const QAbstractItemModel &modell = *m_tabelle->model();
    QCOMPARE(modell.headerData(1, Qt::Horizontal, Qt::ToolTipRole).toString(),
             u"Eine Zahl in Gramm"_s);
    QVERIFY(!modell.headerData(0, Qt::Horizontal, Qt::ToolTipRole).isValid());
    QVERIFY(!modell.headerData(0, Qt::Horizontal, Tabellenmodell::kurztitelrolle).isValid());
    QVERIFY(!modell.headerData(7, Qt::Horizontal, Qt::DisplayRole).isValid());
    // Rows show no heading, but are read out by their number where they have no better name.
    QCOMPARE(modell.headerData(0, Qt::Vertical, Qt::DisplayRole).toString(), u"1"_s);
    QVERIFY(!modell.headerData(modell.rowCount(), Qt::Vertical, Qt::DisplayRole).isValid());
    QVERIFY(m_tabelle->verticalHeader()->isHidden());
}

QTEST_MAIN(TestTabelleneingabe)
#include "TestTabelleneingabe.moc"
