// The window of the ranks with the keys and the mouse of its user: what the list shows, what falls
// out of it, and what it asks the desk for.

#include "Rangprobe.h"

#include <QHeaderView>
#include <QPushButton>
#include <QTabWidget>
#include <QToolButton>
#include <QTranslator>

using namespace Qt::StringLiterals;

class TestRanglistenfenster : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_probe.reset(); }

    void fibreIsRankedAtFirst();
    void anotherFigureIsRankedByItsName();
    void theLowestCanComeFirst();
    void theUnknownStandsLastWithoutARank();
    void portionsAreShownWhereTheyCount();
    void byEnergyItIsAnotherRank();
    void typingGoesToTheName();
    void aBlankBelongsToTheNameThatIsTyped();
    void returnShowsTheFood();
    void controlReturnTakesItIntoThePlan();
    void aDoubleClickShowsTheFood();
    void theMenuDoesTheSame_data();
    void theMenuDoesTheSame();
    void theMouseOpensTheMenuOfItsRow();
    void theHeadingsSort();
    void theMenuSortsForTheKeyboard();
    void anotherQuestionIsReadFromTheTop();
    void theSameQuestionKeepsTheCursor();
    void aFigureIsAskedForFromOutside();
    void changedFoodsAreReadAnew();
    void hiddenItReadsNothing();
    void theOtherLanguageIsSpoken();
    void noWordIsCutInANarrowWindow();
    void theTabKeyGoesThroughTheWindow();

private:
    void oeffneMenue() const;

    std::unique_ptr<Rangprobe> m_probe;
};

namespace {

/// English for two words, and nothing else.
class Englisch : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char * /*kontext*/, const char *text, const char * /*unterscheidung*/,
                      int /*anzahl*/) const override
    {
        const QString wort = QString::fromUtf8(text);
        return wort == u"Ballaststoffe"_s ? u"Fibre"_s
               : wort == u"Äpfel"_s       ? u"Zypples"_s // the last of all names
                                          : QString();
    }
};

QMenu *menue(const Rangprobe &probe)
{
    return probe.fenster->findChild<QMenu *>(u"rangmenue"_s);
}

} // namespace

void TestRanglistenfenster::init()
{
    m_probe = std::make_unique<Rangprobe>();
    QVERIFY(m_probe->oeffne());
}

void TestRanglistenfenster::oeffneMenue() const
{
    m_probe->taste(Qt::Key_F10, Qt::ShiftModifier);
}

/// Of cheese and sugar 0 g are known; the placeholder is no food.
void TestRanglistenfenster::fibreIsRankedAtFirst()
{
    QCOMPARE(m_probe->zeilen(),
             (QStringList{u"1 Linsen: 17.0 g"_s, u"2 Brot: 5.0 g"_s, u"3 Äpfel: 2.0 g"_s,
                          u"4 Käse: 0.0 g"_s, u"4 Zucker: 0.0 g"_s}));
    QCOMPARE(m_probe->wort("rangworte"), u"5 Lebensmittel mit Rang."_s);
    QCOMPARE(m_probe->zelle(0, 4), u"100 %"_s);
    QCOMPARE(m_probe->zelle(1, 4), u"29 %"_s); // 5 of 17
}

void TestRanglistenfenster::anotherFigureIsRankedByItsName()
{
    m_probe->waehle("ranggroesse", u"Natrium"_s);
    QCOMPARE(m_probe->zeilen(),
             (QStringList{u"1 Käse: 700 mg"_s, u"2 Brot: 500 mg"_s, u"3 Linsen: 4 mg"_s,
                          u"4 Äpfel: 1 mg"_s, u"5 Zucker: 0 mg"_s}));
}

void TestRanglistenfenster::theLowestCanComeFirst()
{
    m_probe->waehle("rangfolge", u"Niedrigste zuerst"_s);
    QCOMPARE(m_probe->zeilen().first(), u"1 Käse: 0.0 g"_s);
    QCOMPARE(m_probe->zeilen().last(), u"5 Linsen: 17.0 g"_s);
}

void TestRanglistenfenster::theUnknownStandsLastWithoutARank()
{
    m_probe->waehle("ranggroesse", u"Eisen"_s);
    m_probe->waehle("rangfolge", u"Niedrigste zuerst"_s);
    QCOMPARE(m_probe->zeilen(),
             (QStringList{u"1 Zucker: 0.0 mg"_s, u"2 Äpfel: 0.5 mg"_s, u"3 Brot: 2.0 mg"_s,
                          u"4 Linsen: 8.0 mg"_s, u"– Käse: unbekannt"_s}));
    QCOMPARE(m_probe->wort("rangworte"),
             u"4 Lebensmittel mit Rang. Am Ende der Liste: 1 Lebensmittel ohne Angabe."_s);
    QCOMPARE(m_probe->zelle(4, 4), QString());
}

/// An apple of 150 g holds 3 g of fibre, a slice of 50 g 2.5 g.
void TestRanglistenfenster::portionsAreShownWhereTheyCount()
{
    QVERIFY(m_probe->tabelle().isColumnHidden(2));
    m_probe->waehle("rangbezug", u"je Portion"_s);
    QVERIFY(!m_probe->tabelle().isColumnHidden(2));
    QCOMPARE(m_probe->zelle(0, 2), u"1 Stück (150 g)"_s);
    QCOMPARE(m_probe->zeilen(),
             (QStringList{u"1 Äpfel: 3.0 g"_s, u"2 Brot: 2.5 g"_s, u"– Käse: ohne Portion"_s,
                          u"– Linsen: ohne Portion"_s, u"– Zucker: ohne Portion"_s}));
    QVERIFY(m_probe->wort("rangworte").contains(u"3 Lebensmittel ohne Portion"_s));
}

/// 17 g in 400 kcal are 4.25 g in 100.
void TestRanglistenfenster::byEnergyItIsAnotherRank()
{
    m_probe->speisen[0].satz.setkal(400);
    m_probe->fenster->frischeAuf();
    m_probe->waehle("rangbezug", u"je 100 kcal"_s);
    QCOMPARE(m_probe->zeilen().first(2), (QStringList{u"1 Brot: 5.0 g"_s, u"2 Linsen: 4.3 g"_s}));
}

void TestRanglistenfenster::typingGoesToTheName()
{
    QCOMPARE(m_probe->tabelle().currentIndex().row(), 0);
    m_probe->tabelle().setCurrentIndex(m_probe->tabelle().model()->index(0, 0)); // not in a name
    m_probe->taste(Qt::Key_Z);
    QCOMPARE(m_probe->name(m_probe->tabelle().currentIndex().row()), u"Zucker"_s);
}

void TestRanglistenfenster::aBlankBelongsToTheNameThatIsTyped()
{
    m_probe->gib("Rote Linsen", 1, 1, 1);
    m_probe->gib("Rotebete", 2, 1, 1);
    m_probe->fenster->frischeAuf();
    QTest::keyClicks(&m_probe->tabelle(), u"rote l"_s);
    QCOMPARE(m_probe->name(m_probe->tabelle().currentIndex().row()), u"Rote Linsen"_s);
    QCOMPARE(m_probe->wort("wahl"), u"Zum Vergleichen anhaken."_s);
}

void TestRanglistenfenster::returnShowsTheFood()
{
    m_probe->taste(Qt::Key_Down);
    m_probe->taste(Qt::Key_Return);
    QCOMPARE(m_probe->gezeigte, (QStringList{u"Brot"_s}));
    m_probe->taste(Qt::Key_Enter);
    QCOMPARE(m_probe->gezeigte, (QStringList{u"Brot"_s, u"Brot"_s}));
    QVERIFY(m_probe->fenster->isVisible());
    QCOMPARE(m_probe->geplante, QStringList());
}

void TestRanglistenfenster::controlReturnTakesItIntoThePlan()
{
    m_probe->taste(Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(m_probe->geplante, (QStringList{u"Linsen"_s}));
    QCOMPARE(m_probe->gezeigte, QStringList());
}

void TestRanglistenfenster::aDoubleClickShowsTheFood()
{
    const QPoint ort = m_probe->ort(2, 3);
    QTest::mouseClick(m_probe->tabelle().viewport(), Qt::LeftButton, {}, ort);
    QTest::mouseDClick(m_probe->tabelle().viewport(), Qt::LeftButton, {}, ort);
    QCOMPARE(m_probe->gezeigte, (QStringList{u"Äpfel"_s}));
}

void TestRanglistenfenster::theMenuDoesTheSame_data()
{
    QTest::addColumn<int>("eintrag");
    QTest::addColumn<QStringList>("gezeigt");
    QTest::addColumn<QStringList>("geplant");
    QTest::addColumn<QString>("wahl");

    QTest::newRow("show") << 0 << QStringList{u"Brot"_s} << QStringList()
                          << u"Zum Vergleichen anhaken."_s;
    QTest::newRow("plan") << 1 << QStringList() << QStringList{u"Brot"_s}
                          << u"Zum Vergleichen anhaken."_s;
    QTest::newRow("compare") << 2 << QStringList() << QStringList() << u"Zum Vergleich: Brot"_s;
}

void TestRanglistenfenster::theMenuDoesTheSame()
{
    QFETCH(const int, eintrag);
    m_probe->taste(Qt::Key_Down);
    oeffneMenue();
    QVERIFY(menue(*m_probe) != nullptr);
    for (int i = 0; i <= eintrag; ++i) {
        QTest::keyClick(menue(*m_probe), Qt::Key_Down);
    }
    QTest::keyClick(menue(*m_probe), Qt::Key_Return);
    QTEST(m_probe->gezeigte, "gezeigt");
    QTEST(m_probe->geplante, "geplant");
    QTEST(m_probe->wort("wahl"), "wahl");
}

/// The row gets the cursor; below the rows there is no menu.
void TestRanglistenfenster::theMouseOpensTheMenuOfItsRow()
{
    QWidget *flaeche = m_probe->tabelle().viewport();
    QContextMenuEvent daneben(QContextMenuEvent::Mouse, {20, flaeche->height() - 4},
                              flaeche->mapToGlobal(QPoint(20, flaeche->height() - 4)));
    QApplication::sendEvent(flaeche, &daneben);
    QVERIFY(menue(*m_probe) == nullptr);
    const QPoint ort = m_probe->ort(3, 1);
    QContextMenuEvent wunsch(QContextMenuEvent::Mouse, ort, flaeche->mapToGlobal(ort));
    QApplication::sendEvent(flaeche, &wunsch);
    QVERIFY(menue(*m_probe) != nullptr);
    QTest::keyClick(menue(*m_probe), Qt::Key_Down);
    QTest::keyClick(menue(*m_probe), Qt::Key_Return);
    QCOMPARE(m_probe->gezeigte, (QStringList{u"Käse"_s}));
}

/// What has no rank stays below, whichever way the rest is sorted; the cursor goes with its food.
void TestRanglistenfenster::theHeadingsSort()
{
    m_probe->waehle("ranggroesse", u"Eisen"_s);
    QHeaderView &kopf = *m_probe->tabelle().horizontalHeader();
    const auto klicke = [&kopf](int spalte) {
        const QPoint ort(kopf.sectionViewportPosition(spalte) + 10, kopf.height() / 2);
        QTest::mouseClick(kopf.viewport(), Qt::LeftButton, {}, ort);
    };
    klicke(1);
    QCOMPARE(m_probe->zeilen(),
             (QStringList{u"3 Äpfel: 0.5 mg"_s, u"2 Brot: 2.0 mg"_s, u"1 Linsen: 8.0 mg"_s,
                          u"4 Zucker: 0.0 mg"_s, u"– Käse: unbekannt"_s}));
    QCOMPARE(m_probe->tabelle().currentIndex().row(), 2); // still that of the lentils
    klicke(1);
    QCOMPARE(m_probe->zeilen().first(), u"4 Zucker: 0.0 mg"_s);
    QCOMPARE(m_probe->zeilen().last(), u"– Käse: unbekannt"_s);
    klicke(3);
    QCOMPARE(m_probe->zeilen().first(), u"4 Zucker: 0.0 mg"_s);
    QCOMPARE(m_probe->zeilen().at(1), u"3 Äpfel: 0.5 mg"_s);
    klicke(0);
    QCOMPARE(m_probe->zeilen().first(), u"1 Linsen: 8.0 mg"_s);
    klicke(0);
    QCOMPARE(m_probe->zeilen().first(), u"4 Zucker: 0.0 mg"_s);
    QCOMPARE(m_probe->zeilen().last(), u"– Käse: unbekannt"_s);
}

void TestRanglistenfenster::theMenuSortsForTheKeyboard()
{
    oeffneMenue();
    QTest::keyClick(menue(*m_probe), Qt::Key_N);
    QCOMPARE(m_probe->zeilen().first(), u"3 Äpfel: 2.0 g"_s);
    QTRY_VERIFY(menue(*m_probe) == nullptr);
    oeffneMenue();
    QTest::keyClick(menue(*m_probe), Qt::Key_R);
    QCOMPARE(m_probe->zeilen().first(), u"1 Linsen: 17.0 g"_s);
}

void TestRanglistenfenster::anotherQuestionIsReadFromTheTop()
{
    m_probe->tabelle().setCurrentIndex(m_probe->tabelle().model()->index(4, 1));
    m_probe->waehle("rangfolge", u"Niedrigste zuerst"_s);
    QCOMPARE(m_probe->tabelle().currentIndex().row(), 0);
}

/// Something sweet came in above the bread.
void TestRanglistenfenster::theSameQuestionKeepsTheCursor()
{
    m_probe->taste(Qt::Key_Down);
    m_probe->gib("Zwieback", 6, 1, 1);
    m_probe->fenster->frischeAuf();
    QCOMPARE(m_probe->zeilen().at(1), u"2 Zwieback: 6.0 g"_s);
    QCOMPARE(m_probe->name(m_probe->tabelle().currentIndex().row()), u"Brot"_s);
    m_probe->gib("Ananas", 1, 1, 1); // before all of them by its name
    m_probe->fenster->frischeAuf();
    QCOMPARE(m_probe->name(m_probe->tabelle().currentIndex().row()), u"Brot"_s);
}

void TestRanglistenfenster::aFigureIsAskedForFromOutside()
{
    m_probe->teil<QTabWidget>("rangseiten").setCurrentIndex(1);
    m_probe->fenster->zeige(Kenngroesse::na);
    QCOMPARE(m_probe->teil<QTabWidget>("rangseiten").currentIndex(), 0);
    QCOMPARE(m_probe->teil<QComboBox>("ranggroesse").currentText(), u"Natrium"_s);
    QCOMPARE(m_probe->zeilen().first(), u"1 Käse: 700 mg"_s);
    m_probe->fenster->zeige();
    QCOMPARE(m_probe->zeilen().first(), u"1 Käse: 700 mg"_s);
}

void TestRanglistenfenster::changedFoodsAreReadAnew()
{
    m_probe->speisen[0].satz.setbs(1);
    QCOMPARE(m_probe->zeilen().first(), u"1 Linsen: 17.0 g"_s);
    m_probe->fenster->frischeAuf();
    QCOMPARE(m_probe->zeilen().first(), u"1 Brot: 5.0 g"_s);
    m_probe->speisen.clear();
    m_probe->fenster->frischeAuf();
    QCOMPARE(m_probe->zeilen(), QStringList());
    QCOMPARE(m_probe->wort("rangleer"), u"Es gibt keine Lebensmittel."_s);
    QCOMPARE(m_probe->wort("rangworte"), QString());
}

void TestRanglistenfenster::hiddenItReadsNothing()
{
    QTest::keyClick(m_probe->fenster.get(), Qt::Key_Escape);
    QVERIFY(!m_probe->fenster->isVisible());
    m_probe->speisen[0].satz.setbs(1);
    m_probe->fenster->frischeAuf();
    QCOMPARE(m_probe->zeilen().first(), u"1 Linsen: 17.0 g"_s);
    QVERIFY(m_probe->oeffne());
    QCOMPARE(m_probe->zeilen().first(), u"1 Brot: 5.0 g"_s);
}

/// Names are in another order then, and what was chosen stays chosen.
void TestRanglistenfenster::theOtherLanguageIsSpoken()
{
    m_probe->waehle("rangfolge", u"Niedrigste zuerst"_s);
    m_probe->waehle("rangbezug", u"je 100 kcal"_s);
    oeffneMenue();
    QTest::keyClick(menue(*m_probe), Qt::Key_N);
    QCOMPARE(m_probe->name(0), u"Äpfel"_s);
    Englisch woerter;
    QVERIFY(QCoreApplication::installTranslator(&woerter));
    m_probe->fenster->folgeSprache();
    QCOMPARE(m_probe->teil<QComboBox>("ranggroesse").currentText(), u"Fibre"_s);
    QCOMPARE(m_probe->teil<QComboBox>("rangfolge").currentText(), u"Niedrigste zuerst"_s);
    QCOMPARE(m_probe->teil<QComboBox>("rangbezug").currentText(), u"je 100 kcal"_s);
    QCOMPARE(m_probe->name(4), u"Zypples"_s);
    QCoreApplication::removeTranslator(&woerter);
    m_probe->fenster->folgeSprache();
    QCOMPARE(m_probe->name(0), u"Äpfel"_s);
}

/// There the bars go first, then the portions; the row tells of them all the same.
void TestRanglistenfenster::noWordIsCutInANarrowWindow()
{
    m_probe->waehle("rangbezug", u"je Portion"_s);
    m_probe->fenster->resize(420, 600);
    QTRY_COMPARE(m_probe->fenster->width(), 420);
    QTRY_VERIFY(m_probe->tabelle().isColumnHidden(4));
    QVERIFY(m_probe->tabelle().isColumnHidden(2));
    QCOMPARE(m_probe->tabelle().model()->index(0, 1).data(Qt::AccessibleTextRole).toString(),
             u"Äpfel: Rang 1, 3.0 g, 1 Stück (150 g)"_s);
    for (const char *name : {"ranggroesse", "rangbezug", "rangfolge"}) {
        const auto &wahl = m_probe->teil<QComboBox>(name);
        QVERIFY2(wahl.width() >= wahl.sizeHint().width(), name);
        QVERIFY(m_probe->fenster->rect().contains(
            QRect(wahl.mapTo(m_probe->fenster.get(), QPoint()), wahl.size())));
    }
    m_probe->fenster->resize(640, 640);
    QTRY_VERIFY(!m_probe->tabelle().isColumnHidden(4));
    QVERIFY(!m_probe->tabelle().isColumnHidden(2));
}

void TestRanglistenfenster::theTabKeyGoesThroughTheWindow()
{
    QVERIFY(m_probe->teil<QComboBox>("ranggroesse").hasFocus());
    QStringList namen;
    for (int i = 0; i < 4; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        namen << QApplication::focusWidget()->objectName();
    }
    QCOMPARE(namen, (QStringList{u"rangbezug"_s, u"rangfolge"_s, u"eingrenzen"_s, u"rangliste"_s}));
}

QTEST_MAIN(TestRanglistenfenster)
#include "TestRanglistenfenster.moc"
