#include "Planprobe.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QScrollBar>
#include <QSettings>
#include <QTest>

using namespace Qt::StringLiterals;

/// The columns of the plan's table: names that stay in sight, widths that fit, and widths that are
/// remembered.
class TestPlanmodulSpalten : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theNamesStayWhileTheColumnsRoll();
    void aClickOnANameThatStaysChoosesItsRow();
    void aDropOnANameThatStaysGoesAboveIt();
    void theCursorComesOutFromBehindTheNames();
    void theNamesAreMadeWiderWhileTheyStay();
    void namesAsWideAsTheTableRollToo();
    void theMenuFitsAllColumns();
    void theContextMenuFitsTheColumns_data();
    void theContextMenuFitsTheColumns();
    void aWidthThatTheUserDragsIsRemembered();
    void fittedWidthsAreRemembered();
    void theSizeControlIsNotRemembered();
    void aWidthThatCanNotBeIsNotTaken();
    void onAWideScreenTheNamesAreReadWhole();
    void theNamesTakeNoMoreThanTheyNeed();
    void aNamesWidthThatIsChosenStays_data();
    void aNamesWidthThatIsChosenStays();
    void roomThatTheSizeControlLeavesGoesToTheNames();

private:
    void oeffne()
    {
        Plantueren tueren = m_heim->tueren();
        tueren.einstellungen = m_einstellungen.get();
        m_fenster.reset();
        m_fenster = std::make_unique<Planfenster>(tueren);
        plan().window()->resize(900, 780);
        QTRY_VERIFY(balken().maximum() > 300);
    }
    Planmodul &plan() const { return m_fenster->plan(); }
    Breittabelle &tabelle() const { return *plan().PlanTabelle; }
    QScrollBar &balken() const { return *tabelle().horizontalScrollBar(); }
    int spalte(const QString &kennung) const { return tabelle().modell()->spaltenstelle(kennung); }
    int breite(const QString &kennung) const { return tabelle().columnWidth(spalte(kennung)); }
    /// Pulls the right edge of a heading by so many pixels.
    static void ziehe(QHeaderView &kopf, int stelle, int um)
    {
        const int kante = kopf.sectionViewportPosition(stelle) + kopf.sectionSize(stelle) - 2;
        QTest::mousePress(kopf.viewport(), Qt::LeftButton, {}, QPoint(kante, 5));
        QTest::mouseMove(kopf.viewport(), QPoint(kante + um, 5));
        QTest::mouseRelease(kopf.viewport(), Qt::LeftButton, {}, QPoint(kante + um, 5));
    }

    std::unique_ptr<Planheim> m_heim;
    std::unique_ptr<QTemporaryDir> m_ordner;
    std::unique_ptr<QSettings> m_einstellungen;
    std::unique_ptr<Planfenster> m_fenster;
};

void TestPlanmodulSpalten::init()
{
    vergissKlient();
    m_fenster.reset();
    m_ordner = std::make_unique<QTemporaryDir>();
    m_einstellungen =
        std::make_unique<QSettings>(m_ordner->filePath(u"probe.conf"_s), QSettings::IniFormat);
    m_heim = std::make_unique<Planheim>();
    m_heim->schreibeTabelle({zaehlspeise(u"Brot"_s),
                             speise(u"Kartoffelauflauf mit Käse und reichlich Petersilie"_s),
                             speise(u"Milch"_s)});
    m_heim->schreibePlan({{u"Brot"_s, 100},
                          {u"Kartoffelauflauf mit Käse und reichlich Petersilie"_s, 200},
                          {u"Milch"_s, 12345678}});
    oeffne();
}

void TestPlanmodulSpalten::theNamesStayWhileTheColumnsRoll()
{
    const QRect namen(tabelle().viewport()->x(), 0, breite(u"name"_s) - 3, tabelle().height());
    const QImage vorher = tabelle().grab(namen).toImage();
    QCOMPARE(tabelle().festeBreite(), 0);
    balken().setValue(250);
    QCOMPARE(tabelle().festeBreite(), breite(u"name"_s));
    QCOMPARE(tabelle().grab(namen).toImage(), vorher);
    QCOMPARE(tabelle().visualRect(m_fenster->index(1, u"name"_s)).left(), 0);
    balken().setValue(0);
    QCOMPARE(tabelle().grab(namen).toImage(), vorher);
}

void TestPlanmodulSpalten::aClickOnANameThatStaysChoosesItsRow()
{
    balken().setValue(250);
    QTest::mouseClick(tabelle().viewport(), Qt::LeftButton, {}, m_fenster->mitte(2, u"name"_s));
    QCOMPARE(tabelle().selectedRow(), 2);
    QCOMPARE(tabelle().currentIndex(), m_fenster->index(2, u"name"_s));
    QCOMPARE(balken().value(), 250);
    QVERIFY(!tabelle().indexWidget(m_fenster->index(2, u"menge"_s))); // no amount is being typed
}

void TestPlanmodulSpalten::aDropOnANameThatStaysGoesAboveIt()
{
    balken().setValue(250);
    QVERIFY(m_fenster->wirfAbUeber(u"Ei"_s, 1)); // thirty pixels from the left edge
    QCOMPARE(plan().PlanArray.indexOf(u"Ei"_s), 1);
    QCOMPARE(balken().value(), 250);
}

void TestPlanmodulSpalten::theCursorComesOutFromBehindTheNames()
{
    tabelle().setFocus();
    tabelle().setCurrentIndex(m_fenster->index(0, u"hkk"_s));
    QVERIFY(tabelle().festeBreite() > 0);
    for (int i = spalte(u"hkk"_s); i > spalte(u"kal"_s); --i) {
        QTest::keyClick(&tabelle(), Qt::Key_Left);
        const QRect zelle = tabelle().visualRect(tabelle().currentIndex());
        QCOMPARE(tabelle().currentIndex().column(), i - 1);
        QVERIFY(zelle.left() >= tabelle().festeBreite());
        QVERIFY(zelle.right() < tabelle().viewport()->width());
    }
}

void TestPlanmodulSpalten::theNamesAreMadeWiderWhileTheyStay()
{
    balken().setValue(250);
    const int vorher = breite(u"name"_s);
    QHeaderView *davor = nullptr;
    for (QHeaderView *kopf : tabelle().findChildren<QHeaderView *>()) {
        if (kopf->isVisible() && kopf != tabelle().horizontalHeader()) {
            davor = kopf;
        }
    }
    QVERIFY(davor != nullptr);
    ziehe(*davor, 0, 40);
    QCOMPARE(breite(u"name"_s), vorher + 40);
    QCOMPARE(tabelle().festeBreite(), vorher + 40);
    QCOMPARE(plan().SummenTabelle->columnWidth(0), vorher + 40);
    QCOMPARE(davor->width(), vorher + 40);
}

void TestPlanmodulSpalten::namesAsWideAsTheTableRollToo()
{
    tabelle().setColumnWidth(0, tabelle().viewport()->width() - 20);
    balken().setValue(250);
    QCOMPARE(tabelle().festeBreite(), 0);
    QCOMPARE(tabelle().visualRect(m_fenster->index(0, u"name"_s)).left(), -250);
}

void TestPlanmodulSpalten::theMenuFitsAllColumns()
{
    const QFontMetrics schrift = tabelle().fontMetrics();
    plan().tabellengroesse->setIntValue(20);
    plan().tabgroesseaendern(*plan().tabellengroesse);
    QVERIFY(plan().menueAnsicht->actions().contains(plan().aktionSpalten));
    plan().aktionSpalten->trigger();
    for (int i = 0; i < tabelle().model()->columnCount(); ++i) {
        for (int zeile = 0; zeile < 3; ++zeile) {
            const QString text = tabelle().model()->index(zeile, i).data().toString();
            QVERIFY2(tabelle().columnWidth(i) >= schrift.horizontalAdvance(text) + 12,
                     qPrintable(text));
        }
        for (int zeile = 0; zeile < 2; ++zeile) {
            const QString text = plan().SummenTabelle->model()->index(zeile, i).data().toString();
            QVERIFY2(tabelle().columnWidth(i) >= schrift.horizontalAdvance(text) + 12,
                     qPrintable(text));
        }
    }
    QVERIFY(breite(u"gicht"_s) < 70); // no wider than it must be
    QCOMPARE(tabelle().rowHeight(), 20);
}

void TestPlanmodulSpalten::theContextMenuFitsTheColumns_data()
{
    QTest::addColumn<bool>("kopf");
    QTest::newRow("of the rows") << false;
    QTest::newRow("of the headings") << true;
}

void TestPlanmodulSpalten::theContextMenuFitsTheColumns()
{
    QFETCH(bool, kopf);
    QWidget *flaeche = kopf ? tabelle().horizontalHeader()->viewport() : tabelle().viewport();
    const QPoint ort(20, 5);
    QContextMenuEvent ereignis(QContextMenuEvent::Mouse, ort, flaeche->mapToGlobal(ort));
    QApplication::sendEvent(flaeche, &ereignis);
    auto *menue = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QVERIFY(menue != nullptr);
    const int vorher = breite(u"name"_s);
    QTest::mouseClick(menue, Qt::LeftButton, {},
                      menue->actionGeometry(plan().aktionSpalten).center());
    QVERIFY(breite(u"name"_s) > vorher); // the longest name is now seen whole
}

void TestPlanmodulSpalten::aWidthThatTheUserDragsIsRemembered()
{
    const int vorher = breite(u"protein"_s);
    const int andere = breite(u"fett"_s);
    ziehe(*tabelle().horizontalHeader(), spalte(u"protein"_s), 33);
    QCOMPARE(breite(u"protein"_s), vorher + 33);
    oeffne();
    QCOMPARE(breite(u"protein"_s), vorher + 33);
    QCOMPARE(breite(u"fett"_s), andere);
    QCOMPARE(plan().SummenTabelle->columnWidth(spalte(u"protein"_s)), vorher + 33);
}

void TestPlanmodulSpalten::fittedWidthsAreRemembered()
{
    plan().aktionSpalten->trigger();
    const int name = breite(u"name"_s);
    const int hkk = breite(u"hkk"_s);
    oeffne();
    QCOMPARE(breite(u"name"_s), name);
    QCOMPARE(breite(u"hkk"_s), hkk);
}

void TestPlanmodulSpalten::theSizeControlIsNotRemembered()
{
    const int vorher = breite(u"protein"_s);
    plan().tabellengroesse->setIntValue(90);
    plan().tabgroesseaendern(*plan().tabellengroesse);
    QCOMPARE(breite(u"protein"_s), 90);
    oeffne();
    QCOMPARE(breite(u"protein"_s), vorher);
}

void TestPlanmodulSpalten::aWidthThatCanNotBeIsNotTaken()
{
    const int vorher = breite(u"protein"_s);
    for (const QVariant &unsinn :
         {QVariant(0), QVariant(-50), QVariant(1000000), QVariant(u"breit"_s)}) {
        m_einstellungen->setValue(u"Planspalten/protein"_s, unsinn);
        oeffne();
        QCOMPARE(breite(u"protein"_s), vorher);
    }
}

/// What the other columns leave, to the point; and less again when the window is narrow again.
void TestPlanmodulSpalten::onAWideScreenTheNamesAreReadWhole()
{
    const int schmal = breite(u"name"_s);
    const int fehlt = balken().maximum();
    plan().window()->resize(1350, 780);
    QCoreApplication::processEvents();
    QCOMPARE(breite(u"name"_s), schmal);
    // A sixth of the table is theirs, though the last columns have to be rolled in then.
    plan().window()->resize(1700, 780);
    QTRY_COMPARE(breite(u"name"_s), tabelle().viewport()->width() / 6);
    QVERIFY(breite(u"name"_s) > schmal + 40);
    QVERIFY(balken().maximum() > 0);
    QCOMPARE(plan().SummenTabelle->columnWidth(0), breite(u"name"_s));
    // And what no other column needs.
    plan().window()->resize(900 + fehlt + 100, 780);
    QTRY_VERIFY(breite(u"name"_s) > tabelle().fontMetrics().horizontalAdvance(
                                        u"Kartoffelauflauf mit Käse und reichlich Petersilie"_s));
    QTRY_COMPARE(balken().maximum(), 0);
    plan().window()->resize(900, 780);
    QTRY_COMPARE(breite(u"name"_s), schmal);
    QVERIFY(m_einstellungen->allKeys().filter(u"Planspalten"_s).isEmpty());
}

void TestPlanmodulSpalten::theNamesTakeNoMoreThanTheyNeed()
{
    plan().window()->resize(4000, 780);
    const int laengster = tabelle().fontMetrics().horizontalAdvance(
        u"Kartoffelauflauf mit Käse und reichlich Petersilie"_s);
    QTRY_VERIFY(breite(u"name"_s) >= laengster);
    QVERIFY(breite(u"name"_s) < laengster + 40);
    tabelle().selectRow(1);
    plan().Lebensmittelentfernen();
    QTRY_VERIFY(breite(u"name"_s) < laengster);
}

void TestPlanmodulSpalten::aNamesWidthThatIsChosenStays_data()
{
    QTest::addColumn<bool>("sofort");
    QTest::newRow("while the window is open") << true;
    QTest::newRow("and in the next one") << false;
}

void TestPlanmodulSpalten::aNamesWidthThatIsChosenStays()
{
    QFETCH(bool, sofort);
    const int vorher = breite(u"name"_s);
    ziehe(*tabelle().horizontalHeader(), 0, 20);
    QCOMPARE(breite(u"name"_s), vorher + 20);
    if (!sofort) {
        oeffne();
    }
    plan().window()->resize(4000, 780);
    QTRY_COMPARE(balken().maximum(), 0);
    QCOMPARE(breite(u"name"_s), vorher + 20);
}

void TestPlanmodulSpalten::roomThatTheSizeControlLeavesGoesToTheNames()
{
    const int vorher = breite(u"name"_s);
    plan().tabellengroesse->setIntValue(20);
    plan().tabgroesseaendern(*plan().tabellengroesse);
    QVERIFY(breite(u"name"_s) > vorher);
    plan().tabellengroesse->setIntValue(90);
    plan().tabgroesseaendern(*plan().tabellengroesse);
    QCOMPARE(breite(u"name"_s), vorher);
}

QTEST_MAIN(TestPlanmodulSpalten)
#include "TestPlanmodulSpalten.moc"
