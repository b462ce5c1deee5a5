#include "Probefenster.h"

#include <QImage>
#include <QTest>
#include <QWindow>

using enum Naehrwert;

/// The three columns of the main table: what they show, and the mark of the chosen cell.
class TestHaupttabelle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theColumnsShowTheThreeLists();
    void cellsBelowAListAreEmpty_data();
    void cellsBelowAListAreEmpty();
    void allThreeColumnsAreTranslated();
    void theMarkStandsInTheClickedColumn_data();
    void theMarkStandsInTheClickedColumn();
    void theMarkedCellShowsTheFoodOnDisplay();
    void aRowBelowItsListIsNotMarked_data();
    void aRowBelowItsListIsNotMarked();
    void withoutAClickTheBuiltInColumnIsMarked();
    void theChosenRowIsNotPaintedAsASelection();
    void theMarkCanBeSeen();
    void twoWindowsShareTheClickedColumn();
    void theArrowKeysChooseInTheirColumn();
    void aClickWithATremblingHandIsAClick();
    void aDoubleClickOnAResultIsOneChoice();
    void theRightButtonChoosesNothing();

private:
    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

void TestHaupttabelle::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(zaehltabelle(30));
    m_heim->schreibeEigene(verzeichnis({lebensmittel(QStringLiteral("Eigenes A"), {{kal, 11}}),
                                        lebensmittel(QStringLiteral("Eigenes B"), {{kal, 22}})}));
    m_fenster = std::make_unique<Probefenster>(*m_heim);
    // As a search leaves them: what is read, and in step with it the keys of the stores.
    (*m_fenster)->suchArray = {zaehlname(20), QStringLiteral("Eigenes B"), zaehlname(3)};
    (*m_fenster)->suchArray2 = {QStringLiteral("Schlüssel 0"), QStringLiteral("Schlüssel 1"),
                                QStringLiteral("Schlüssel 2")};
    (*m_fenster)->Tabelle->reloadData();
}

void TestHaupttabelle::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

void TestHaupttabelle::theColumnsShowTheThreeLists()
{
    const QAbstractItemModel &modell = *(*m_fenster)->Tabelle->model();
    QCOMPARE(modell.rowCount(), 30);
    QCOMPARE(modell.index(7, inName).data().toString(), QStringLiteral("Speise 0007"));
    QCOMPARE(modell.index(1, inEigen).data().toString(), QStringLiteral("Eigenes B"));
    QCOMPARE(modell.index(2, inSuch).data().toString(), QStringLiteral("Speise 0003"));
    QCOMPARE((*m_fenster)->Tabelle->modell()->kennung(inName), QStringLiteral("name"));
    QCOMPARE((*m_fenster)->Tabelle->modell()->kennung(inEigen), QStringLiteral("eigen"));
    QCOMPARE((*m_fenster)->Tabelle->modell()->kennung(inSuch), QStringLiteral("such"));
}

void TestHaupttabelle::cellsBelowAListAreEmpty_data()
{
    QTest::addColumn<int>("zeile");
    QTest::addColumn<int>("spalte");
    QTest::newRow("below the own foods") << 2 << inEigen;
    QTest::newRow("below the search results") << 3 << inSuch;
    QTest::newRow("at the end of the table") << 29 << inEigen;
}

void TestHaupttabelle::cellsBelowAListAreEmpty()
{
    QFETCH(int, zeile);
    QFETCH(int, spalte);
    QVERIFY(!(*m_fenster)->Tabelle->model()->index(zeile, spalte).data().isValid());
}

void TestHaupttabelle::allThreeColumnsAreTranslated()
{
    const Probeuebersetzer englisch({{zaehlname(4), QStringLiteral("Dish 4")},
                                     {zaehlname(3), QStringLiteral("Dish 3")},
                                     {QStringLiteral("Eigenes A"), QStringLiteral("Own A")}});
    const QAbstractItemModel &modell = *(*m_fenster)->Tabelle->model();
    QCOMPARE(modell.index(4, inName).data().toString(), QStringLiteral("Dish 4"));
    QCOMPARE(modell.index(0, inEigen).data().toString(), QStringLiteral("Own A"));
    QCOMPARE(modell.index(2, inSuch).data().toString(), QStringLiteral("Dish 3"));
    QCOMPARE(modell.index(5, inName).data().toString(), zaehlname(5)); // no word for it
}

void TestHaupttabelle::theMarkStandsInTheClickedColumn_data()
{
    QTest::addColumn<int>("zeile");
    QTest::addColumn<int>("spalte");
    QTest::addColumn<int>("markiert"); // the row that is marked in the end
    QTest::addColumn<Textfarbe>("anfang");
    QTest::addColumn<int>("punkte");
    QTest::newRow("built-in: green and large") << 9 << inName << 9 << Textfarbe::Gruen << 14;
    QTest::newRow("own: red") << 1 << inEigen << 1 << Textfarbe::Rot << 0;
    // The search result stands for the built-in food of row 3, outside of the list of results; the
    // one for the own food of row 1 lies within it.
    QTest::newRow("search: red") << 1 << inSuch << 1 << Textfarbe::Rot << 0;
}

void TestHaupttabelle::theMarkStandsInTheClickedColumn()
{
    QFETCH(int, zeile);
    QFETCH(int, spalte);
    QFETCH(int, markiert);
    QFETCH(Textfarbe, anfang);
    QFETCH(int, punkte);
    m_fenster->klicke(zeile, spalte);
    for (int z = 0; z < 30; ++z) {
        for (int s = inName; s <= inSuch; ++s) {
            const Zellenbild bild = m_fenster->zelle(z, s);
            const bool erwartet = z == markiert && s == spalte;
            QCOMPARE(bild.umrandet, erwartet);
            QCOMPARE(bild.anfang.has_value(), erwartet);
        }
    }
    const Zellenbild bild = m_fenster->zelle(markiert, spalte);
    QVERIFY(bild.anfang == anfang);
    QCOMPARE(bild.anfangspunkte, punkte);
    QCOMPARE(bild.text, (*m_fenster)->feldA->stringValue());
}

/// A result that is only shown, not taken over, leaves the old food on display, and its name goes
/// into the marked cell.
void TestHaupttabelle::theMarkedCellShowsTheFoodOnDisplay()
{
    m_fenster->klicke(9, inName);
    (*m_fenster)->direkteuebernahme->setChecked(false);
    m_fenster->klicke(1, inSuch);
    QCOMPARE(m_fenster->zelle(1, inSuch).text, zaehlname(9));
    QCOMPARE(m_fenster->zelle(0, inSuch).text, zaehlname(20));
    QCOMPARE(m_fenster->zelle(1, inEigen).text, QStringLiteral("Eigenes B"));
    QCOMPARE(m_fenster->zelle(9, inName).text, zaehlname(9));
    QVERIFY(!m_fenster->zelle(9, inName).umrandet);
}

void TestHaupttabelle::aRowBelowItsListIsNotMarked_data()
{
    QTest::addColumn<int>("zeile");
    QTest::addColumn<int>("spalte");
    QTest::newRow("an empty cell of the own foods") << 2 << inEigen;
    QTest::newRow("an empty cell of the results") << 3 << inSuch;
    QTest::newRow("a result that stands further down in the table") << 0 << inSuch;
}

void TestHaupttabelle::aRowBelowItsListIsNotMarked()
{
    QFETCH(int, zeile);
    QFETCH(int, spalte);
    m_fenster->klicke(zeile, spalte);
    for (int z = 0; z < 30; ++z) {
        for (int s = inName; s <= inSuch; ++s) {
            QVERIFY(!m_fenster->zelle(z, s).umrandet);
        }
    }
    const QString wert = (*m_fenster)->Tabelle->model()->index(zeile, spalte).data().toString();
    QCOMPARE(m_fenster->zelle(zeile, spalte).text, wert);
}

void TestHaupttabelle::withoutAClickTheBuiltInColumnIsMarked()
{
    QVERIFY(m_fenster->zelle(0, inName).umrandet); // as the start leaves it
    m_fenster->klicke(1, inEigen);
    (*m_fenster)->Tabelle->selectRow(6);
    (*m_fenster)->Laden();
    QVERIFY(m_fenster->zelle(6, inName).umrandet);
    QVERIFY(!m_fenster->zelle(6, inEigen).umrandet);
}

void TestHaupttabelle::theChosenRowIsNotPaintedAsASelection()
{
    m_fenster->klicke(4, inName);
    const Tabellenansicht &tabelle = *(*m_fenster)->Tabelle;
    const QImage bild = (*m_fenster)->Tabelle->viewport()->grab().toImage();
    const auto grund = [&](int zeile, int spalte) {
        const QRect zelle = tabelle.visualRect(tabelle.model()->index(zeile, spalte));
        return bild.pixelColor(QPoint(zelle.right() - 12, zelle.center().y()));
    };
    QVERIFY(tabelle.selectionModel()->isSelected(tabelle.model()->index(4, inName)));
    QCOMPARE(grund(4, inName), grund(6, inName));
    QCOMPARE(grund(4, inEigen), grund(6, inEigen));
    QVERIFY(grund(4, inName) != grund(5, inName)); // every second row has another ground
}

void TestHaupttabelle::theMarkCanBeSeen()
{
    m_fenster->klicke(4, inName);
    const Tabellenansicht &tabelle = *(*m_fenster)->Tabelle;
    const QImage bild = tabelle.viewport()->grab().toImage();
    const QColor rand = tabelle.palette().color(QPalette::Highlight);
    for (const int zeile : {3, 4, 5}) {
        const QRect zelle = tabelle.visualRect(tabelle.model()->index(zeile, inName));
        QCOMPARE(bild.pixelColor(zelle.left() + 1, zelle.center().y()) == rand, zeile == 4);
        int gruene = 0; // of the first letter
        for (int x = zelle.left() + 4; x < zelle.left() + 18; ++x) {
            for (int y = zelle.top() + 4; y < zelle.bottom() - 4; ++y) {
                const QColor farbe = bild.pixelColor(x, y);
                gruene += farbe.green() > farbe.red() + 40 && farbe.green() > farbe.blue() + 20;
            }
        }
        QCOMPARE(gruene > 5, zeile == 4);
    }
}

void TestHaupttabelle::twoWindowsShareTheClickedColumn()
{
    Probeheim anderesHeim;
    anderesHeim.schreibeTabelle(zaehltabelle(5));
    anderesHeim.schreibeEigene(
        verzeichnis({lebensmittel(QStringLiteral("Fremdes A"), {{kal, 33}}),
                     lebensmittel(QStringLiteral("Fremdes B"), {{kal, 44}})}));
    const Probefenster anderes(anderesHeim);
    anderes.klicke(1, inName);
    QVERIFY(anderes.zelle(1, inName).umrandet);
    m_fenster->klicke(0, inEigen);
    QCOMPARE(AppController::angeklickteSpalte, 1);
    QVERIFY(!anderes.zelle(1, inName).umrandet);
    QVERIFY(anderes.zelle(1, inEigen).umrandet);
    // The amount too is asked of the list in which the other window's food was chosen.
    Probefenster::tippeMenge(*anderes->lebensmittelmenge, QStringLiteral("200"));
    QCOMPARE(Probefenster::text(*anderes->feldA), QStringLiteral("Fremdes B"));
    QCOMPARE(Probefenster::text(*anderes->feldB), QStringLiteral("88 kcal"));
}

void TestHaupttabelle::theArrowKeysChooseInTheirColumn()
{
    m_fenster->klicke(0, inEigen);
    QTest::keyClick((*m_fenster)->Tabelle, Qt::Key_Down);
    QCOMPARE(AppController::angeklickteSpalte, 1);
    QCOMPARE(Probefenster::text(*(*m_fenster)->feldA), QStringLiteral("Eigenes B"));
    QCOMPARE((*m_fenster)->welcheTabelleAktiv, 2);
    QTest::keyClick((*m_fenster)->Tabelle, Qt::Key_Left);
    QCOMPARE(AppController::angeklickteSpalte, 0);
    QCOMPARE(Probefenster::text(*(*m_fenster)->feldA), zaehlname(1));
    // The last cell stands in the search column, where the keys only move the cursor.
    QTest::keyClick((*m_fenster)->Tabelle, Qt::Key_End, Qt::ControlModifier);
    QCOMPARE((*m_fenster)->Tabelle->currentIndex().row(), 29);
    QCOMPARE((*m_fenster)->Tabelle->selectedRow(), 1);
    QCOMPARE(AppController::angeklickteSpalte, 0);
}

/// A hand is never quite still: as long as no drag begins it is a click.
void TestHaupttabelle::aClickWithATremblingHandIsAClick()
{
    QWindow *fenster = (*m_fenster)->Hauptfenster->windowHandle();
    const QPoint ort = (*m_fenster)
                           ->Tabelle->viewport()
                           ->mapTo((*m_fenster)->Hauptfenster, m_fenster->mitte(7, inName));
    QTest::mousePress(fenster, Qt::LeftButton, {}, ort);
    QTest::mouseMove(fenster, ort + QPoint(2, 1));
    QTest::mouseRelease(fenster, Qt::LeftButton, {}, ort + QPoint(2, 1));
    QCOMPARE(Probefenster::text(*(*m_fenster)->feldA), zaehlname(7));
}

/// The first click has moved the selection to the food; the second is no choice of what happens to
/// be a result in that row.
void TestHaupttabelle::aDoubleClickOnAResultIsOneChoice()
{
    QWindow *fenster = (*m_fenster)->Hauptfenster->windowHandle();
    (*m_fenster)->suchArray = {zaehlname(2), zaehlname(8), zaehlname(9)};
    const QPoint ort = (*m_fenster)
                           ->Tabelle->viewport()
                           ->mapTo((*m_fenster)->Hauptfenster, m_fenster->mitte(0, inSuch));
    QTest::mouseDClick(fenster, Qt::LeftButton, {}, ort);
    QCOMPARE(Probefenster::text(*(*m_fenster)->feldA), zaehlname(2));
    QCOMPARE((*m_fenster)->Tabelle->selectedRow(), 2);
}

void TestHaupttabelle::theRightButtonChoosesNothing()
{
    m_fenster->klicke(3, inName);
    QTest::mouseClick((*m_fenster)->Tabelle->viewport(), Qt::RightButton, {},
                      m_fenster->mitte(8, inName));
    QCOMPARE((*m_fenster)->Tabelle->selectedRow(), 3);
    QCOMPARE(Probefenster::text(*(*m_fenster)->feldA), zaehlname(3));
}

QTEST_MAIN(TestHaupttabelle)
#include "TestHaupttabelle.moc"
