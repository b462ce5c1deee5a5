#include "Probefenster.h"

#include <QScrollBar>
#include <QTest>
#include <QWindow>

using enum Naehrwert;

/// The selection action in the column of the search results. The lists are filled as a search
/// leaves them.
class TestSuchspalte : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_heim = std::make_unique<Probeheim>(); }
    void cleanup();
    void aResultIsFoundAgain_data();
    void aResultIsFoundAgain();
    void aTranslatedResultIsFoundAgain_data();
    void aTranslatedResultIsFoundAgain();
    void withoutTakeOverOnlyTheSelectionMoves();
    void theSlidersRest_data();
    void theSlidersRest();
    void theListThatIsActiveStays();
    void aResultThatIsNowhereLeavesAllAsItIs();
    void theRowOfTheFoodDecidesWhatIsHidden_data();
    void theRowOfTheFoodDecidesWhatIsHidden();
    void rowsWithASecondNameReachIntoTheResults();
    void theFoodIsScrolledIntoView();
    void aDoubleClickStaysWithTheFirstChoice();
    void aChosenResultRollsNothingSideways_data();
    void aChosenResultRollsNothingSideways();
    void anOwnFoodBelowTheTableIsShownAllTheSame();
    void theEvaluationRunsOnWhatStands();

private:
    void oeffne(const Lebensmittelverzeichnis &eingebaut,
                const Lebensmittelverzeichnis &eigene = {});
    void suche(const QStringList &treffer);
    AppController &controller() const { return m_fenster->controller(); }
    QString gezeigt() const { return Probefenster::text(*controller().feldA); }

    std::unique_ptr<Probeheim> m_heim;
    std::unique_ptr<Probefenster> m_fenster;
};

void TestSuchspalte::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

void TestSuchspalte::oeffne(const Lebensmittelverzeichnis &eingebaut,
                            const Lebensmittelverzeichnis &eigene)
{
    m_heim->schreibeTabelle(eingebaut);
    m_heim->schreibeEigene(eigene);
    m_fenster = std::make_unique<Probefenster>(*m_heim);
}

void TestSuchspalte::suche(const QStringList &treffer)
{
    controller().suchArray = treffer;
    controller().suchArray2 = treffer;
    controller().Tabelle->reloadData();
}

void TestSuchspalte::aResultIsFoundAgain_data()
{
    QTest::addColumn<QString>("treffer");
    QTest::addColumn<int>("zeile"); // of the selection in the end
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("kilokalorien");
    QTest::newRow("a built-in food") << zaehlname(7) << 7 << zaehlname(7) << 8;
    QTest::newRow("the first built-in food") << zaehlname(0) << 0 << zaehlname(0) << 1;
    QTest::newRow("an own food") << QStringLiteral("Eigenes") << 0 << QStringLiteral("Eigenes")
                                 << 500;
    // Both lists are looked through to their ends, the own foods last.
    QTest::newRow("an own food of a built-in name wins")
        << zaehlname(5) << 1 << zaehlname(5) << 600;
    QTest::newRow("case counts") << zaehlname(7).toUpper() << 2 << zaehlname(3) << 4;
    QTest::newRow("a part is no match") << QStringLiteral("Speise") << 2 << zaehlname(3) << 4;
}

void TestSuchspalte::aResultIsFoundAgain()
{
    QFETCH(QString, treffer);
    QFETCH(int, zeile);
    QFETCH(QString, name);
    QFETCH(int, kilokalorien);
    oeffne(zaehltabelle(10), verzeichnis({lebensmittel(QStringLiteral("Eigenes"), {{kal, 500}}),
                                          lebensmittel(zaehlname(5), {{kal, 600}})}));
    suche({zaehlname(9), zaehlname(8), treffer});
    m_fenster->klicke(3, inName);
    m_fenster->klicke(2, inSuch);
    QCOMPARE(controller().Tabelle->selectedRow(), zeile);
    QCOMPARE(gezeigt(), name);
    QCOMPARE(controller().unuebersetztername, name);
    QCOMPARE(controller().feldB->intValue(), kilokalorien);
    QCOMPARE(AppController::angeklickteSpalte, 2);
}

void TestSuchspalte::aTranslatedResultIsFoundAgain_data()
{
    QTest::addColumn<QString>("treffer");
    QTest::addColumn<int>("zeile");
    QTest::addColumn<QString>("schluessel");
    QTest::newRow("by its translation") << QStringLiteral("Apple") << 0 << QStringLiteral("Apfel");
    QTest::newRow("by its key") << QStringLiteral("Apfel") << 0 << QStringLiteral("Apfel");
    QTest::newRow("of two that read alike the last one")
        << QStringLiteral("Bread") << 2 << QStringLiteral("Weißbrot");
    QTest::newRow("the first of the two by its key")
        << QStringLiteral("Graubrot") << 1 << QStringLiteral("Graubrot");
    QTest::newRow("own foods are not looked up by what they read")
        << QStringLiteral("Own dish") << 3 << QStringLiteral("Zucker");
}

void TestSuchspalte::aTranslatedResultIsFoundAgain()
{
    QFETCH(QString, treffer);
    QFETCH(int, zeile);
    QFETCH(QString, schluessel);
    const Probeuebersetzer englisch({{QStringLiteral("Apfel"), QStringLiteral("Apple")},
                                     {QStringLiteral("Graubrot"), QStringLiteral("Bread")},
                                     {QStringLiteral("Weißbrot"), QStringLiteral("Bread")},
                                     {QStringLiteral("Eigenes"), QStringLiteral("Own dish")}});
    oeffne(verzeichnis(
               {lebensmittel(QStringLiteral("Apfel")), lebensmittel(QStringLiteral("Graubrot")),
                lebensmittel(QStringLiteral("Weißbrot")), lebensmittel(QStringLiteral("Zucker"))}),
           verzeichnis({lebensmittel(QStringLiteral("Eigenes"))}));
    QCOMPARE(controller().Array.indexOf(QStringLiteral("Weißbrot")), 2);
    suche({QString(), QString(), QString(), treffer});
    m_fenster->klicke(3, inName);
    m_fenster->klicke(3, inSuch);
    QCOMPARE(controller().Tabelle->selectedRow(), zeile);
    QCOMPARE(controller().unuebersetztername, schluessel);
}

void TestSuchspalte::withoutTakeOverOnlyTheSelectionMoves()
{
    oeffne(zaehltabelle(10), verzeichnis({lebensmittel(QStringLiteral("Eigenes"), {{kal, 500}})}));
    suche({zaehlname(7), QStringLiteral("Eigenes")});
    m_fenster->klicke(3, inName);
    QTest::mouseClick(controller().direkteuebernahme, Qt::LeftButton);
    QVERIFY(!controller().direkteuebernahme->isChecked());
    m_fenster->klicke(0, inSuch);
    QCOMPARE(controller().Tabelle->selectedRow(), 7);
    QCOMPARE(gezeigt(), zaehlname(3));
    QCOMPARE(controller().unuebersetztername, zaehlname(3));
    QCOMPARE(controller().feldB->intValue(), 4);
    m_fenster->klicke(1, inSuch);
    QCOMPARE(controller().Tabelle->selectedRow(), 0);
    QCOMPARE(gezeigt(), zaehlname(3));
    QTest::mouseClick(controller().direkteuebernahme, Qt::LeftButton);
    m_fenster->klicke(0, inSuch);
    QCOMPARE(gezeigt(), zaehlname(7));
}

void TestSuchspalte::theSlidersRest_data()
{
    QTest::addColumn<int>("zeile");
    QTest::addColumn<bool>("balken");
    QTest::newRow("row 0 hides the share bars") << 0 << false;
    QTest::newRow("row 1 shows them") << 1 << true;
    QTest::newRow("an empty cell too") << 4 << true;
}

void TestSuchspalte::theSlidersRest()
{
    QFETCH(int, zeile);
    QFETCH(bool, balken);
    oeffne(zaehltabelle(10), zaehltabelle(1));
    suche({zaehlname(7), zaehlname(8)});
    m_fenster->klicke(balken ? 0 : 1, inName);
    m_fenster->klicke(zeile, inSuch);
    for (const QWidget *widget : std::initializer_list<QWidget *>{
             controller().lebensmittelmenge, controller().lebensmittelmenge2,
             controller().lebensmittelmenge3, controller().anzeigelebensmittelmenge,
             controller().anzeigelebensmittelmenge2, controller().anzeigelebensmittelmenge3}) {
        QVERIFY(!widget->isEnabled());
    }
    QCOMPARE(!controller().khanzeige->isHidden(), balken);
    m_fenster->tippeMenge(QStringLiteral("30"));
    QCOMPARE(controller().lebensmittelmenge->intValue(), 100);
    m_fenster->klicke(3, inName); // any other choice wakes them
    QVERIFY(controller().lebensmittelmenge3->isEnabled());
    QVERIFY(controller().anzeigelebensmittelmenge3->isEnabled());
}

void TestSuchspalte::theListThatIsActiveStays()
{
    oeffne(zaehltabelle(10), zaehltabelle(1));
    suche({zaehlname(7), zaehlname(0)});
    m_fenster->klicke(0, inSuch);
    QCOMPARE(controller().welcheTabelleAktiv, 0);
    m_fenster->klicke(0, inEigen);
    QVERIFY(controller().loeschenknopf->isEnabled());
    m_fenster->klicke(0, inSuch);
    QCOMPARE(controller().welcheTabelleAktiv, 2); // although a built-in food is shown
    QVERIFY(!controller().loeschenknopf->isEnabled());
    m_fenster->klicke(3, inName);
    m_fenster->klicke(1, inSuch);
    QCOMPARE(controller().welcheTabelleAktiv, 1); // although an own food is shown
}

void TestSuchspalte::aResultThatIsNowhereLeavesAllAsItIs()
{
    oeffne(zaehltabelle(10));
    suche({QStringLiteral("gestern gelöscht")});
    m_fenster->klicke(3, inName);
    m_fenster->klicke(0, inSuch);
    QCOMPARE(controller().Tabelle->selectedRow(), 0);
    QCOMPARE(gezeigt(), zaehlname(3));
    QVERIFY(m_heim->meldungen.isEmpty());
}

void TestSuchspalte::theRowOfTheFoodDecidesWhatIsHidden_data()
{
    QTest::addColumn<int>("geklickt");
    QTest::addColumn<int>("gefunden");
    QTest::addColumn<bool>("sichtbar");
    QTest::newRow("a food in row 1015 is shown") << 2 << 1015 << true;
    QTest::newRow("a food in row 1016 is not") << 2 << 1016 << false;
    QTest::newRow("a result in row 1017 of a food further up is shown") << 1017 << 4 << true;
}

void TestSuchspalte::theRowOfTheFoodDecidesWhatIsHidden()
{
    QFETCH(int, geklickt);
    QFETCH(int, gefunden);
    QFETCH(bool, sichtbar);
    oeffne(zaehltabelle(1020));
    QStringList treffer(1020, QStringLiteral("nichts"));
    treffer[geklickt] = zaehlname(gefunden);
    suche(treffer);
    m_fenster->klicke(geklickt, inSuch);
    QCOMPARE(controller().Tabelle->selectedRow(), gefunden);
    QCOMPARE(!controller().DatenAnsicht->isHidden(), sichtbar);
    QCOMPARE(!controller().gichtfeld->isHidden(), sichtbar);
    QCOMPARE(gezeigt(), zaehlname(sichtbar ? gefunden : 0));
}

void TestSuchspalte::rowsWithASecondNameReachIntoTheResults()
{
    oeffne(zaehltabelle(700));
    QStringList treffer;
    for (int i = 0; i < 610; ++i) {
        treffer << zaehlname(609 - i);
    }
    suche(treffer);
    for (const int zeile : {575, 576, 577, 604}) {
        m_fenster->klicke(0, inName);
        m_fenster->klicke(zeile, inSuch);
        QCOMPARE(gezeigt(), zaehlname(609 - 575));
    }
    m_fenster->klicke(578, inSuch);
    QCOMPARE(gezeigt(), zaehlname(609 - 578));
}

void TestSuchspalte::theFoodIsScrolledIntoView()
{
    oeffne(zaehltabelle(900));
    suche({zaehlname(850)});
    m_fenster->klicke(0, inSuch);
    QVERIFY(controller().Tabelle->viewport()->rect().contains(m_fenster->mitte(850, inName)));
}

/// The first click has rolled the table, and another result lies under the mouse.
void TestSuchspalte::aDoubleClickStaysWithTheFirstChoice()
{
    oeffne(zaehltabelle(900));
    QStringList treffer;
    for (int i = 0; i < 900; ++i) {
        treffer << zaehlname(899 - i);
    }
    suche(treffer);
    QWindow *fenster = controller().Hauptfenster->windowHandle();
    const QPoint ort = controller().Tabelle->viewport()->mapTo(controller().Hauptfenster,
                                                               m_fenster->mitte(5, inSuch));
    QTest::mouseDClick(fenster, Qt::LeftButton, {}, ort);
    QCOMPARE(gezeigt(), zaehlname(894));
    QCOMPARE(controller().Tabelle->selectedRow(), 894);
}

void TestSuchspalte::aChosenResultRollsNothingSideways_data()
{
    QTest::addColumn<bool>("maus");
    QTest::newRow("with the mouse") << true;
    QTest::newRow("with Return") << false;
}

/// The user has made the column of the names so wide that the results are only half in sight.
void TestSuchspalte::aChosenResultRollsNothingSideways()
{
    QFETCH(bool, maus);
    oeffne(zaehltabelle(900));
    suche({zaehlname(850), zaehlname(4)});
    Tabellenansicht *tabelle = controller().Tabelle;
    tabelle->setColumnWidth(inName, 600);
    QTRY_VERIFY(tabelle->horizontalScrollBar()->isVisible());
    tabelle->setFocus();
    tabelle->setzeSchreibmarke(0, QStringLiteral("such"));
    for (const int stand : {tabelle->horizontalScrollBar()->maximum() / 2, 170}) {
        tabelle->verticalScrollBar()->setValue(0);
        tabelle->horizontalScrollBar()->setValue(stand);
        if (maus) {
            const QPoint ort(tabelle->columnViewportPosition(inSuch) + 5, 5);
            QTest::mouseClick(tabelle->viewport(), Qt::LeftButton, {}, ort);
        } else {
            QTest::keyClick(tabelle, Qt::Key_Return);
        }
        QCOMPARE(gezeigt(), zaehlname(850));
        QVERIFY(tabelle->verticalScrollBar()->value() > 0);
        QCOMPARE(tabelle->horizontalScrollBar()->value(), stand);
    }
}

void TestSuchspalte::anOwnFoodBelowTheTableIsShownAllTheSame()
{
    Lebensmittelverzeichnis eigene = zaehltabelle(6);
    eigene[zaehlname(5)].setkal(333);
    oeffne(zaehltabelle(3), eigene);
    suche({zaehlname(5)});
    m_fenster->klicke(0, inSuch);
    QCOMPARE(gezeigt(), zaehlname(5));
    QCOMPARE(controller().feldB->intValue(), 333);
    QCOMPARE(controller().Tabelle->selectedRow(), 0); // there is no row 5
}

void TestSuchspalte::theEvaluationRunsOnWhatStands()
{
    oeffne(zaehltabelle(10));
    suche({zaehlname(7)});
    m_fenster->klicke(3, inName);
    controller().direkteuebernahme->setChecked(false);
    controller().khfeld->setFloatValue(20);
    controller().feldB->setFloatValue(67);
    controller().uebergewichtfeld->setStringValue(QStringLiteral("-"));
    controller().LManzahl->setStringValue(QString());
    m_fenster->klicke(0, inSuch);
    QCOMPARE(controller().gesamtkal, 120.0F);
    QCOMPARE(controller().joulefeld->floatValue(), 280.0F);
    QCOMPARE(controller().kaefeld->floatValue(), 2.0F);
    QVERIFY(controller().uebergewichtfeld->textColor() == Textfarbe::Rot);
    QCOMPARE(controller().LManzahl->intValue(), 10);
}

QTEST_MAIN(TestSuchspalte)
#include "TestSuchspalte.moc"
