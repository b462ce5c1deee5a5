#include "Probefenster.h"

#include <QScrollBar>
#include <QTest>

using enum Naehrwert;

/// What a search says about its results: how many there are, and where they begin.
class TestTrefferzahl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theNameSearchSaysHowManyItFound_data();
    void theNameSearchSaysHowManyItFound();
    void anEmptyBoxSaysNothing();
    void theProfileSearchSaysHowManyItFound_data();
    void theProfileSearchSaysHowManyItFound();
    void aNarrowColumnKeepsTheNumber();
    void theNumberIsWrittenAsTheUserWritesIt();
    void theResultsOfAProfileBeginAtTheTop_data();
    void theResultsOfAProfileBeginAtTheTop();

private:
    void suche(const QString &text) const;
    QString ueberschrift(int rolle = Qt::DisplayRole) const
    {
        return controller().Tabelle->model()->headerData(inSuch, Qt::Horizontal, rolle).toString();
    }
    AppController &controller() const { return m_fenster->controller(); }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

void TestTrefferzahl::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(zaehltabelle(1100));
    m_heim->schreibeEigene(verzeichnis({lebensmittel(QStringLiteral("Speise von Oma"))}));
    m_fenster = std::make_unique<Probefenster>(*m_heim);
}

void TestTrefferzahl::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

void TestTrefferzahl::suche(const QString &text) const
{
    controller().direkteuebernahme->setChecked(false);
    controller().suchfeld->setFocus();
    controller().suchfeld->selectAll();
    QTest::keyClick(controller().suchfeld, Qt::Key_Delete);
    QTest::keyClicks(controller().suchfeld, text);
    QTest::keyClick(controller().suchfeld, Qt::Key_Return);
}

void TestTrefferzahl::theNameSearchSaysHowManyItFound_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("titel");
    QTest::newRow("one") << QStringLiteral("0007") << QStringLiteral("Suche: 1 gefunden");
    QTest::newRow("ten") << QStringLiteral("e 001") << QStringLiteral("Suche: 10 gefunden");
    QTest::newRow("an own food counts")
        << QStringLiteral("oma") << QStringLiteral("Suche: 1 gefunden");
    QTest::newRow("none") << QStringLiteral("Kaviar") << QStringLiteral("Suche: nichts gefunden");
}

void TestTrefferzahl::theNameSearchSaysHowManyItFound()
{
    QFETCH(QString, text);
    QCOMPARE(ueberschrift(), QStringLiteral("Suche")); // nothing was looked for
    suche(text);
    QTEST(ueberschrift(), "titel");
}

void TestTrefferzahl::anEmptyBoxSaysNothing()
{
    suche(QStringLiteral("0007"));
    QTest::keyClick(controller().suchfeld, Qt::Key_Escape);
    QCOMPARE(ueberschrift(), QStringLiteral("Suche"));
    suche(QStringLiteral("Kaviar"));
    suche(QString());
    QCOMPARE(ueberschrift(), QStringLiteral("Suche"));
}

void TestTrefferzahl::theProfileSearchSaysHowManyItFound_data()
{
    QTest::addColumn<QString>("unter"); // kcal
    QTest::addColumn<QString>("titel");
    QTest::newRow("some") << QStringLiteral("13") << QStringLiteral("Suche: 13 gefunden");
    QTest::newRow("the own one alone")
        << QStringLiteral("1") << QStringLiteral("Suche: 1 gefunden");
    QTest::newRow("none") << QStringLiteral("0") << QStringLiteral("Suche: nichts gefunden");
}

/// The foods of the table have 1, 2, 3 ... kcal, the own one none.
void TestTrefferzahl::theProfileSearchSaysHowManyItFound()
{
    QFETCH(QString, unter);
    controller().profilaufzu->click();
    controller().suchprofileinaus->zelle(5)->click();
    controller().kaloriengroesserkleiner->setStringValue(QStringLiteral("<"));
    controller().kalorieneingabe->setFocus();
    controller().kalorieneingabe->selectAll();
    QTest::keyClicks(controller().kalorieneingabe, unter);
    QTest::mouseClick(controller().profilsuchen, Qt::LeftButton);
    QTEST(ueberschrift(), "titel");
}

void TestTrefferzahl::aNarrowColumnKeepsTheNumber()
{
    suche(QStringLiteral("e 001"));
    QCOMPARE(ueberschrift(Tabellenmodell::kurztitelrolle), QStringLiteral("10"));
    suche(QStringLiteral("Kaviar"));
    QCOMPARE(ueberschrift(Tabellenmodell::kurztitelrolle), QStringLiteral("0"));
}

void TestTrefferzahl::theNumberIsWrittenAsTheUserWritesIt()
{
    suche(QStringLiteral("speise"));
    QCOMPARE(ueberschrift(), QStringLiteral("Suche: 1101 gefunden"));
}

void TestTrefferzahl::theResultsOfAProfileBeginAtTheTop_data()
{
    QTest::addColumn<QString>("unter");
    QTest::newRow("some results") << QStringLiteral("5");
    QTest::newRow("none") << QStringLiteral("0");
}

/// The table was rolled down, to a food that stays on display.
void TestTrefferzahl::theResultsOfAProfileBeginAtTheTop()
{
    QFETCH(QString, unter);
    controller().profilaufzu->click();
    controller().suchprofileinaus->waehle(5);
    controller().proteinsuche();
    controller().kaloriengroesserkleiner->setStringValue(QStringLiteral("<"));
    controller().kalorieneingabe->setStringValue(unter);
    m_fenster->klicke(850, inName);
    QVERIFY(controller().Tabelle->verticalScrollBar()->value() > 0);
    QTest::mouseClick(controller().profilsuchen, Qt::LeftButton);
    QCOMPARE(controller().Tabelle->verticalScrollBar()->value(), 0);
    QCOMPARE(controller().Tabelle->selectedRow(), 850);
    QCOMPARE(controller().Tabelle->currentIndex().row(), 850);
    QCOMPARE(Probefenster::text(*controller().feldA), zaehlname(850));
    QCOMPARE(AppController::angeklickteSpalte, 0);
}

QTEST_MAIN(TestTrefferzahl)
#include "TestTrefferzahl.moc"
