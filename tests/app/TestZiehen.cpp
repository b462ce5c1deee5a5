#include "Probefenster.h"

#include <QApplication>
#include <QMimeData>
#include <QPlainTextEdit>
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
    void aDragCarriesPlainTextAlone();
    void aDragLeavesTheDisplayAlone();
    void aDragBackIntoTheTableChoosesNothing();
    void nothingIsDraggedFromAnEmptyCell_data();
    void nothingIsDraggedFromAnEmptyCell();
    void afterADragAClickChoosesAgain();
    void pullingWhereNothingCanBeDraggedChooses_data();
    void pullingWhereNothingCanBeDraggedChooses();

private:
    QString abgelegt(int zeile, int spalte) const;
    AppController &controller() const { return m_fenster->controller(); }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

void TestZiehen::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(zaehltabelle(30));
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

/// What arrives in an editor beside the window when a cell is dragged there.
QString TestZiehen::abgelegt(int zeile, int spalte) const
{
    QPlainTextEdit ziel;
    ziel.setGeometry(controller().Hauptfenster->geometry().right() + 50, 0, 300, 200);
    ziel.show();
    if (!QTest::qWaitForWindowExposed(&ziel)) {
        return QStringLiteral("no editor");
    }
    ziehe(*controller().Tabelle->viewport(), m_fenster->mitte(zeile, spalte), *ziel.viewport(),
          ziel.viewport()->rect().center());
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
