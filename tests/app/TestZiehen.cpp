#include "Probefenster.h"

#include <QApplication>
#include <QDrag>
#include <QImage>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTest>

using enum Naehrwert;

/// Foods dragged out of the main table, as plain text for whoever takes it.
class TestZiehen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aDragCarriesTheStoreKey_data();
    void aDragCarriesTheStoreKey();
    void aDragTakesTheColumnUnderTheMouse_data();
    void aDragTakesTheColumnUnderTheMouse();
    void aDragTakesTheRowThatWasPressed_data();
    void aDragTakesTheRowThatWasPressed();
    void aDragCarriesAPictureWithTheName();
    void aDragCarriesPlainTextAlone();
    void aDragMovesNothing_data();
    void aDragMovesNothing();
    void aDragBringsTheOpenPlanToTheFront_data();
    void aDragBringsTheOpenPlanToTheFront();
    void aPressAloneMovesNothing();
    void aDragLeavesTheDisplayAlone();
    void aDragBackIntoTheTableChoosesNothing();
    void nothingIsDraggedFromAnEmptyCell_data();
    void nothingIsDraggedFromAnEmptyCell();
    void afterADragAClickChoosesAgain();
    void pullingWhereNothingCanBeDraggedChooses_data();
    void pullingWhereNothingCanBeDraggedChooses();

private:
    QString abgelegt(int zeile, int spalte) const
    {
        return abgelegt(m_fenster->mitte(zeile, spalte));
    }
    QString abgelegt(const QPoint &start, const QPoint &richtung = QPoint(0, 1)) const;
    QRect zelle(int zeile, int spalte) const
    {
        const Tabellenansicht &tabelle = *controller().Tabelle;
        return tabelle.visualRect(tabelle.model()->index(zeile, spalte));
    }
    AppController &controller() const { return m_fenster->controller(); }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
    std::function<void()> m_beimZiehen; ///< runs when the drag has reached its target
};

namespace {

/// Runs when something is dragged into a widget.
class Zoellner : public QObject
{
public:
    Zoellner(QWidget *ziel, std::function<void()> aufruf) : m_aufruf(std::move(aufruf))
    {
        ziel->installEventFilter(this);
    }
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::DragEnter) {
            m_aufruf();
        }
        return false;
    }

private:
    std::function<void()> m_aufruf;
};

} // namespace

void TestZiehen::init()
{
    m_beimZiehen = [] {
    };
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(zaehltabelle(80));
    m_heim->schreibeEigene(verzeichnis({lebensmittel(QStringLiteral("Eigenes A"), {{kal, 11}}),
                                        lebensmittel(QStringLiteral("Eigenes B"), {{kal, 22}})}));
    m_fenster = std::make_unique<Probefenster>(*m_heim);
    controller().suchArray = {QStringLiteral("Dish 20"), QStringLiteral("Own B"),
                              QStringLiteral("Dish 3")};
    controller().suchArray2 = {zaehlname(20), QStringLiteral("Eigenes B"), zaehlname(3)};
    controller().Tabelle->reloadData();
}

void TestZiehen::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

/// What arrives in an editor beside the window when the mouse pulls from a place of the table, at
/// first in this direction.
QString TestZiehen::abgelegt(const QPoint &start, const QPoint &richtung) const
{
    QPlainTextEdit ziel;
    ziel.setGeometry(controller().Hauptfenster->geometry().right() + 50, 0, 300, 200);
    ziel.setAttribute(Qt::WA_ShowWithoutActivating); // the table keeps the keyboard
    ziel.show();
    if (!QTest::qWaitForWindowExposed(&ziel)) {
        return QStringLiteral("no editor");
    }
    const Zoellner zoellner(ziel.viewport(), m_beimZiehen);
    ziehe(*controller().Tabelle->viewport(), start, *ziel.viewport(),
          ziel.viewport()->rect().center(), richtung);
    return ziel.toPlainText();
}

void TestZiehen::aDragCarriesTheStoreKey_data()
{
    QTest::addColumn<int>("zeile");
    QTest::addColumn<int>("spalte");
    QTest::addColumn<QString>("text");
    QTest::newRow("built-in") << 7 << inName << zaehlname(7);
    QTest::newRow("the first row") << 0 << inName << zaehlname(0);
    QTest::newRow("own") << 1 << inEigen << QStringLiteral("Eigenes B");
    QTest::newRow("a search result gives its key") << 2 << inSuch << zaehlname(3);
}

void TestZiehen::aDragCarriesTheStoreKey()
{
    QFETCH(int, zeile);
    QFETCH(int, spalte);
    QFETCH(QString, text);
    // What is read is not what is given away.
    const Probeuebersetzer englisch({{zaehlname(7), QStringLiteral("Dish 7")},
                                     {QStringLiteral("Eigenes B"), QStringLiteral("Own B")}});
    QCOMPARE(abgelegt(zeile, spalte), text);
}

void TestZiehen::aDragTakesTheColumnUnderTheMouse_data()
{
    QTest::addColumn<int>("zeile");
    QTest::addColumn<int>("spalte");
    QTest::addColumn<bool>("nachRechts");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("gewaehlt"); // the row that is selected in the end
    QTest::newRow("pressed in the names, pulled to the own foods")
        << 1 << inName << true << QStringLiteral("Eigenes B") << 9;
    QTest::newRow("pressed in the own foods, pulled to the names")
        << 1 << inEigen << false << zaehlname(1) << 9;
    QTest::newRow("pressed in the own foods, pulled to the results")
        << 0 << inEigen << true << zaehlname(20) << 9;
    QTest::newRow("pressed in an empty cell, pulled to the names")
        << 7 << inEigen << false << zaehlname(7) << 9;
    QTest::newRow("pressed in the names, pulled to an empty cell and out of the table: no choice")
        << 7 << inName << true << QString() << -1;
}

void TestZiehen::aDragTakesTheColumnUnderTheMouse()
{
    QFETCH(int, zeile);
    QFETCH(int, spalte);
    QFETCH(bool, nachRechts);
    const QRect feld = zelle(zeile, spalte);
    const QPoint start(nachRechts ? feld.right() - 3 : feld.left() + 3, feld.center().y());
    m_fenster->klicke(9, inName);
    QTEST(abgelegt(start, QPoint(nachRechts ? 1 : -1, 0)), "text");
    QTEST(controller().Tabelle->selectedRow(), "gewaehlt");
}

void TestZiehen::aDragTakesTheRowThatWasPressed_data()
{
    QTest::addColumn<bool>("nachUnten");
    QTest::newRow("pulled down into the next row") << true;
    QTest::newRow("pulled up into the one before") << false;
}

void TestZiehen::aDragTakesTheRowThatWasPressed()
{
    QFETCH(bool, nachUnten);
    const QRect feld = zelle(4, inName);
    const QPoint start(feld.center().x(), nachUnten ? feld.bottom() - 1 : feld.top() + 1);
    QCOMPARE(abgelegt(start, QPoint(0, nachUnten ? 1 : -1)), zaehlname(4));
}

void TestZiehen::aDragCarriesAPictureWithTheName()
{
    const Tabellenansicht *tabelle = controller().Tabelle;
    QImage bild;
    m_beimZiehen = [tabelle, &bild] {
        bild = tabelle->findChild<QDrag *>()->pixmap().toImage();
    };
    QCOMPARE(abgelegt(2, inSuch), zaehlname(3));
    QVERIFY(!bild.isNull());
    QCOMPARE(bild, tabelle->ziehbild(zaehlname(3)).toImage());
}

void TestZiehen::aDragMovesNothing_data()
{
    QTest::addColumn<int>("gewaehlt");
    QTest::addColumn<int>("spalte");
    QTest::newRow("the food on display is above") << 2 << inName;
    QTest::newRow("it is in sight") << 25 << inName;
    QTest::newRow("it is below") << 70 << inName;
    QTest::newRow("it is an own food") << 1 << inEigen;
    QTest::newRow("it was found") << 0 << inSuch;
}

/// The table was rolled on from the food on display. What the user sees stays as it is, while the
/// drag is under way and after it, so that the next drag takes what it seems to take.
void TestZiehen::aDragMovesNothing()
{
    QFETCH(int, gewaehlt);
    QFETCH(int, spalte);
    Tabellenansicht *tabelle = controller().Tabelle;
    m_fenster->klicke(gewaehlt, spalte);
    const int zeile = tabelle->selectedRow();
    QCoreApplication::processEvents(); // the window has come to rest
    tabelle->verticalScrollBar()->setValue(20);
    const QPersistentModelIndex schreibmarke = tabelle->currentIndex();
    const QImage anblick = tabelle->viewport()->grab().toImage();
    tabelle->clearFocus();
    const QImage ohneTastatur = tabelle->viewport()->grab().toImage();
    tabelle->setFocus();
    const auto unbewegt = [&] {
        QCOMPARE(tabelle->verticalScrollBar()->value(), 20);
        QCOMPARE(tabelle->horizontalScrollBar()->value(), 0);
        QCOMPARE(tabelle->selectedRow(), zeile);
        QVERIFY(tabelle->currentIndex() == schreibmarke);
    };
    const QPoint ort = m_fenster->mitte(28, inName);
    int erreicht = 0;
    m_beimZiehen = [&] {
        ++erreicht;
        unbewegt();
        QCOMPARE(tabelle->viewport()->grab().toImage(),
                 tabelle->hasFocus() ? anblick : ohneTastatur);
    };
    QCOMPARE(abgelegt(ort), zaehlname(28));
    QCOMPARE(abgelegt(ort), zaehlname(28));
    QCOMPARE(erreicht, 2);
    unbewegt();
    controller().Hauptfenster->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(controller().Hauptfenster));
    QCOMPARE(tabelle->viewport()->grab().toImage(), anblick);
}

void TestZiehen::aDragBringsTheOpenPlanToTheFront_data()
{
    QTest::addColumn<bool>("offen");
    QTest::addColumn<bool>("geschlossen");
    QTest::addColumn<int>("wieOft");
    QTest::newRow("an open plan") << true << false << 1;
    QTest::newRow("a plan that was closed stays closed") << true << true << 0;
    QTest::newRow("a plan that was never opened") << false << false << 0;
}

/// The main window covers it on a small screen as soon as one presses there.
void TestZiehen::aDragBringsTheOpenPlanToTheFront()
{
    QFETCH(bool, offen);
    QFETCH(bool, geschlossen);
    QFETCH(int, wieOft);
    if (offen) {
        controller().Planmoduloeffnen();
        QVERIFY(QTest::qWaitForWindowExposed(controller().planmodul->window()));
        controller().planmodul->window()->setVisible(!geschlossen);
    }
    static int vorne; // this platform has no order of windows, and says so whenever one is raised
    vorne = 0;
    const QtMessageHandler vorher =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &worte) {
            vorne += worte.contains(QLatin1String("raise()")) ? 1 : 0;
        });
    const QString name = abgelegt(7, inName);
    qInstallMessageHandler(vorher);
    QCOMPARE(name, zaehlname(7));
    QCOMPARE(vorne, wieOft);
    QCOMPARE(controller().planmodul != nullptr, offen);
}

/// The mark does not jump ahead with the name of another food: only letting go chooses.
void TestZiehen::aPressAloneMovesNothing()
{
    m_fenster->klicke(9, inName);
    QWidget *flaeche = controller().Tabelle->viewport();
    const QImage anblick = flaeche->grab().toImage();
    QTest::mousePress(flaeche, Qt::LeftButton, {}, m_fenster->mitte(4, inName));
    QCOMPARE(controller().Tabelle->selectedRow(), 9);
    QCOMPARE(flaeche->grab().toImage(), anblick);
    QTest::mouseRelease(flaeche, Qt::LeftButton, {}, m_fenster->mitte(4, inName));
    QCOMPARE(controller().Tabelle->selectedRow(), 4);
    QCOMPARE(Probefenster::text(*controller().feldA), zaehlname(4));
}

void TestZiehen::aDragCarriesPlainTextAlone()
{
    const std::unique_ptr<QMimeData> daten(
        controller().Tabelle->ziehdaten(2, m_fenster->mitte(2, inSuch)));
    QVERIFY(daten != nullptr);
    QCOMPARE(daten->formats(), QStringList{QStringLiteral("text/plain")});
    QCOMPARE(daten->text(), zaehlname(3));
}

void TestZiehen::aDragLeavesTheDisplayAlone()
{
    m_fenster->klicke(9, inName);
    QCOMPARE(abgelegt(4, inName), zaehlname(4));
    QCOMPARE(Probefenster::text(*controller().feldA), zaehlname(9));
    QCOMPARE(controller().unuebersetztername, zaehlname(9));
    QCOMPARE(controller().welcheTabelleAktiv, 1);
    // The food on display stays the chosen one: it has the mark, and its amount can be changed.
    QCOMPARE(controller().Tabelle->selectedRow(), 9);
    QVERIFY(m_fenster->zelle(9, inName).umrandet);
    QCOMPARE(m_fenster->zelle(4, inName).text, zaehlname(4));
    m_fenster->tippeMenge(QStringLiteral("200"));
    QCOMPARE(Probefenster::text(*controller().feldA), zaehlname(9));
}

void TestZiehen::aDragBackIntoTheTableChoosesNothing()
{
    m_fenster->klicke(9, inName);
    QWidget *flaeche = controller().Tabelle->viewport();
    ziehe(*flaeche, m_fenster->mitte(4, inName), *flaeche, m_fenster->mitte(4, inName));
    QCOMPARE(controller().Tabelle->selectedRow(), 9);
    ziehe(*flaeche, m_fenster->mitte(4, inName), *flaeche, m_fenster->mitte(1, inEigen));
    QCOMPARE(controller().Tabelle->selectedRow(), 9);
    QCOMPARE(AppController::angeklickteSpalte, 0);
    QCOMPARE(Probefenster::text(*controller().feldA), zaehlname(9));
}

void TestZiehen::nothingIsDraggedFromAnEmptyCell_data()
{
    QTest::addColumn<int>("spalte");
    QTest::newRow("below the own foods") << inEigen;
    QTest::newRow("below the search results") << inSuch;
}

void TestZiehen::nothingIsDraggedFromAnEmptyCell()
{
    QFETCH(int, spalte);
    QCOMPARE(abgelegt(5, spalte), QString());
}

void TestZiehen::afterADragAClickChoosesAgain()
{
    QCOMPARE(abgelegt(4, inName), zaehlname(4));
    m_fenster->klicke(6, inName);
    QCOMPARE(Probefenster::text(*controller().feldA), zaehlname(6));
}

void TestZiehen::pullingWhereNothingCanBeDraggedChooses_data()
{
    QTest::addColumn<int>("zeile");
    QTest::addColumn<int>("spalte");
    QTest::addColumn<QString>("name");
    QTest::newRow("from an empty cell to a food") << 9 << inName << zaehlname(9);
    QTest::newRow("to an own food") << 1 << inEigen << QStringLiteral("Eigenes B");
    QTest::newRow("to another empty cell") << 12 << inSuch << zaehlname(3);
}

/// Where nothing can be dragged away, pulling the mouse moves the choice, and what it ends on is
/// on display.
void TestZiehen::pullingWhereNothingCanBeDraggedChooses()
{
    QFETCH(int, zeile);
    QFETCH(int, spalte);
    QFETCH(QString, name);
    QWidget *flaeche = controller().Tabelle->viewport();
    m_fenster->klicke(3, inName);
    ziehe(*flaeche, m_fenster->mitte(5, inEigen), *flaeche, m_fenster->mitte(zeile, spalte));
    QCOMPARE(controller().Tabelle->selectedRow(), zeile);
    QCOMPARE(AppController::angeklickteSpalte, spalte);
    QCOMPARE(Probefenster::text(*controller().feldA), name);
}

int main(int argc, char **argv)
{
    mitEchtemZiehen();
    QApplication app(argc, argv);
    TestZiehen test;
    return QTest::qExec(&test, argc, argv);
}
#include "TestZiehen.moc"
