// What leads from the insight into the window of the days.

#include "Tagefenstertest.h"

using Aufzeichnungsaenderung::Stelle;
using Aufzeichnungsprobe::namen;
using Platz = Tagesmodell::Platz;

class TestTagefensterEinblick : public Tagefenstertest
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void theWayLeadsToTheRow();
    void theWayLeadsToAnotherDay();
    void thereIsNoWayToARowThatIsNotThere_data();
    void thereIsNoWayToARowThatIsNotThere();
    void aSuggestionComesToTheEndOfTheMeal();
    void aSuggestionTakesThePlaceOfARow();
    void anAlternativeStaysOne();
    void amountsThatAreNotUnderstoodAreGrams();
    void oneStepTakesItBack();
    void whatIsNotThereIsNotTaken();
    void whatIsBeingTypedStaysWhereItWasTyped_data();
    void whatIsBeingTypedStaysWhereItWasTyped();
    void aSuggestionComesIntoTheMealAndDayOnDisplay();
    void aRowOfAnotherDayIsReplacedThere();
    void theStepIsCalledByWhatItDoes();
    void theCursorStandsAtTheAmount();
};

void TestTagefensterEinblick::init()
{
    m_probe = std::make_unique<Fensterprobe>();
    QVERIFY(m_probe->aktiv);
    m_probe->neu();
    m_probe->gibEin(QStringLiteral("Apfel"), QStringLiteral("1 Stück"));
    m_probe->gibEin(QStringLiteral("Toast"), QStringLiteral("2 Scheiben"));
    QCOMPARE(namen(m_probe->jetzige(), 0, 0), QStringLiteral("ApfelToast"));
}

void TestTagefensterEinblick::theWayLeadsToTheRow()
{
    fenster().hide();
    fenster().zeigeZeile({0, 0, 1});
    QVERIFY(fenster().isVisible());
    QCOMPARE(fenster().ansicht->platz(), std::optional(Platz{Tagesmodell::Art::Speise, 0, 1}));
    fenster().zeigeZeile({0, 0, 0});
    QCOMPARE(fenster().ansicht->platz(), std::optional(Platz{Tagesmodell::Art::Speise, 0, 0}));
}

void TestTagefensterEinblick::theWayLeadsToAnotherDay()
{
    QVERIFY(fenster().buch.aendere(QStringLiteral("Tage"), [](Aufzeichnung &eine) {
        return Aufzeichnungsaenderung::setzeTagezahl(eine, 2);
    }));
    fenster().buch.waehleTag(1);
    fenster().zeigeZeile({0, 0, 1});
    QCOMPARE(fenster().buch.tag(), 0);
    QCOMPARE(fenster().ansicht->platz(), std::optional(Platz{Tagesmodell::Art::Speise, 0, 1}));
}

void TestTagefensterEinblick::thereIsNoWayToARowThatIsNotThere_data()
{
    QTest::addColumn<int>("tag");
    QTest::addColumn<int>("mahlzeit");
    QTest::addColumn<int>("zeile");

    QTest::newRow("a row too many") << 0 << 0 << 2;
    QTest::newRow("a row before the first") << 0 << 0 << -1;
    QTest::newRow("a meal too many") << 0 << 6 << 0;
    QTest::newRow("a meal before the first") << 0 << -1 << 0;
    QTest::newRow("a day too many") << 7 << 0 << 0;
    QTest::newRow("a day before the first") << -1 << 0 << 0;
}

void TestTagefensterEinblick::thereIsNoWayToARowThatIsNotThere()
{
    QFETCH(const int, tag);
    QFETCH(const int, mahlzeit);
    QFETCH(const int, zeile);
    const auto vorher = fenster().ansicht->platz();
    fenster().zeigeZeile({tag, mahlzeit, zeile});
    QCOMPARE(fenster().ansicht->platz(), vorher);
    QVERIFY(!fenster().nimmVorschlag(QStringLiteral("Milch"), 125, QStringLiteral("1 Tasse"),
                                     Stelle{tag, mahlzeit, zeile}));
    QCOMPARE(namen(m_probe->jetzige(), 0, 0), QStringLiteral("ApfelToast"));
}

void TestTagefensterEinblick::aSuggestionComesToTheEndOfTheMeal()
{
    fenster().zeigeZeile({0, 0, 0});
    QVERIFY(fenster().nimmVorschlag(QStringLiteral("Milch"), 125, QStringLiteral("1 Tasse"), {}));
    QCOMPARE(namen(m_probe->jetzige(), 0, 0), QStringLiteral("ApfelToastMilch"));
    QCOMPARE(m_probe->zeile(0, 2).angabe, QStringLiteral("1 Tasse"));
    QCOMPARE(m_probe->zeile(0, 2).gramm, std::optional(125.0F));
    QCOMPARE(fenster().ansicht->platz(), std::optional(Platz{Tagesmodell::Art::Speise, 0, 2}));
}

void TestTagefensterEinblick::aSuggestionTakesThePlaceOfARow()
{
    QVERIFY(fenster().nimmVorschlag(QStringLiteral("Milch"), 250, QStringLiteral("2 Tassen"),
                                    Stelle{0, 0, 0}));
    QCOMPARE(namen(m_probe->jetzige(), 0, 0), QStringLiteral("MilchToast"));
    QCOMPARE(m_probe->zeile(0, 0).gramm, std::optional(250.0F));
}

void TestTagefensterEinblick::anAlternativeStaysOne()
{
    QVERIFY(fenster().buch.aendere(QStringLiteral("oder"), [](Aufzeichnung &eine) {
        return Aufzeichnungsaenderung::setzeOder(eine, {0, 0, 1}, true);
    }));
    QVERIFY(fenster().nimmVorschlag(QStringLiteral("Milch"), 125, {}, Stelle{0, 0, 1}));
    QVERIFY(m_probe->zeile(0, 1).oder);
}

void TestTagefensterEinblick::amountsThatAreNotUnderstoodAreGrams()
{
    // A measure that is gone since, and none at all.
    for (const QString &angabe : {QStringLiteral("1 Humpen"), QString()}) {
        QVERIFY(fenster().nimmVorschlag(QStringLiteral("Milch"), 180.5, angabe, {}));
        const Mahlzeitzeile letzte = m_probe->jetzige().tage[0].mahlzeiten[0].zeilen.last();
        QCOMPARE(letzte.angabe, QStringLiteral("180,5 g"));
        QCOMPARE(letzte.gramm, std::optional(180.5F));
    }
}

void TestTagefensterEinblick::oneStepTakesItBack()
{
    QVERIFY(fenster().nimmVorschlag(QStringLiteral("Milch"), 125, QStringLiteral("1 Humpen"),
                                    Stelle{0, 0, 1}));
    fenster().buch.schritte.undo();
    QCOMPARE(namen(m_probe->jetzige(), 0, 0), QStringLiteral("ApfelToast"));
    QCOMPARE(m_probe->zeile(0, 1).angabe, QStringLiteral("2 Scheiben"));
}

void TestTagefensterEinblick::whatIsNotThereIsNotTaken()
{
    QVERIFY(!fenster().nimmVorschlag(QStringLiteral("Einhorn"), 100, {}, {}));
    QCOMPARE(namen(m_probe->jetzige(), 0, 0), QStringLiteral("ApfelToast"));
}

void TestTagefensterEinblick::whatIsBeingTypedStaysWhereItWasTyped_data()
{
    QTest::addColumn<bool>("vorschlag");
    QTest::addColumn<int>("tag");

    QTest::newRow("when the way leads to another row") << false << 0;
    QTest::newRow("when the way leads to another day") << false << 1;
    QTest::newRow("when a suggestion comes in") << true << 0;
}

void TestTagefensterEinblick::whatIsBeingTypedStaysWhereItWasTyped()
{
    QFETCH(const bool, vorschlag);
    QFETCH(const int, tag);
    Fensterprobe::taste(Qt::Key_Escape); // the field for another food
    QVERIFY(fenster().buch.aendere(QStringLiteral("Tage"), [](Aufzeichnung &eine) {
        return Aufzeichnungsaenderung::setzeTagezahl(eine, 2) &&
               Aufzeichnungsaenderung::fuegeEin(eine, {1, 0, 0}, eine.tage[0].mahlzeiten[0].zeilen);
    }));
    fenster().ansicht->geheZu({Tagesmodell::Art::Speise, 0, 1}, Tagesmodell::Angabe);
    fenster().ansicht->beginne(QStringLiteral("3 Scheiben"));
    QVERIFY(fenster().ansicht->feld() != nullptr);
    if (vorschlag) {
        QVERIFY(fenster().nimmVorschlag(QStringLiteral("Milch"), 125, {}, Stelle{tag, 0, 0}));
    } else {
        fenster().zeigeZeile({tag, 0, 0});
    }
    QVERIFY(fenster().ansicht->feld() == nullptr);
    QCOMPARE(m_probe->zeile(0, 1).angabe, QStringLiteral("3 Scheiben"));
    QCOMPARE(namen(m_probe->jetzige(), 0, 0),
             vorschlag ? QStringLiteral("MilchToast") : QStringLiteral("ApfelToast"));
}

void TestTagefensterEinblick::aSuggestionComesIntoTheMealAndDayOnDisplay()
{
    QVERIFY(fenster().buch.aendere(QStringLiteral("Tage"), [](Aufzeichnung &eine) {
        return Aufzeichnungsaenderung::setzeTagezahl(eine, 2);
    }));
    fenster().buch.waehleTag(1);
    fenster().ansicht->geheZu({Tagesmodell::Art::Mahlzeit, 2, 0}, Tagesmodell::Name);
    QVERIFY(fenster().nimmVorschlag(QStringLiteral("Milch"), 125, {}, {}));
    QCOMPARE(namen(m_probe->jetzige(), 1, 2), QStringLiteral("Milch"));
    fenster().ansicht->geheZu({Tagesmodell::Art::Mahlzeit, 0, 0}, Tagesmodell::Name);
    QVERIFY(fenster().nimmVorschlag(QStringLiteral("Wasser"), 200, {}, {}));
    // There nothing stands yet, while the first day has two rows in that meal.
    QCOMPARE(namen(m_probe->jetzige(), 1, 0), QStringLiteral("Wasser"));
    QCOMPARE(namen(m_probe->jetzige(), 0, 0), QStringLiteral("ApfelToast"));
}

void TestTagefensterEinblick::aRowOfAnotherDayIsReplacedThere()
{
    QVERIFY(fenster().buch.aendere(QStringLiteral("Tage"), [](Aufzeichnung &eine) {
        return Aufzeichnungsaenderung::setzeTagezahl(eine, 2) &&
               Aufzeichnungsaenderung::fuegeEin(eine, {1, 0, 0}, eine.tage[0].mahlzeiten[0].zeilen);
    }));
    fenster().buch.waehleTag(1);
    fenster().ansicht->geheZu({Tagesmodell::Art::Mahlzeit, 3, 0}, Tagesmodell::Name);
    QVERIFY(fenster().nimmVorschlag(QStringLiteral("Milch"), 125, {}, Stelle{0, 0, 1}));
    QCOMPARE(namen(m_probe->jetzige(), 0, 0), QStringLiteral("ApfelMilch"));
    QCOMPARE(namen(m_probe->jetzige(), 1, 0), QStringLiteral("ApfelToast"));
    // The day on display and the place in it are still the user's.
    QCOMPARE(fenster().buch.tag(), 1);
    QCOMPARE(fenster().ansicht->platz(), std::optional(Platz{Tagesmodell::Art::Mahlzeit, 3, 0}));
}

void TestTagefensterEinblick::theStepIsCalledByWhatItDoes()
{
    QVERIFY(fenster().nimmVorschlag(QStringLiteral("Milch"), 125, {}, {}));
    QCOMPARE(fenster().buch.schritte.undoText(), QStringLiteral("Lebensmittel eintragen"));
    QVERIFY(fenster().nimmVorschlag(QStringLiteral("Milch"), 125, {}, Stelle{0, 0, 0}));
    QCOMPARE(fenster().buch.schritte.undoText(), QStringLiteral("Lebensmittel ändern"));
}

void TestTagefensterEinblick::theCursorStandsAtTheAmount()
{
    fenster().ansicht->geheZu({Tagesmodell::Art::Speise, 0, 0}, Tagesmodell::Name);
    QVERIFY(fenster().nimmVorschlag(QStringLiteral("Milch"), 125, {}, Stelle{0, 0, 1}));
    QCOMPARE(fenster().ansicht->platz(), std::optional(Platz{Tagesmodell::Art::Speise, 0, 1}));
    QCOMPARE(fenster().ansicht->currentIndex().column(), static_cast<int>(Tagesmodell::Angabe));
}

QTEST_MAIN(TestTagefensterEinblick)
#include "TestTagefensterEinblick.moc"
