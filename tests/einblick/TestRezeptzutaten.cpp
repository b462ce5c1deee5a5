// What goes into a dish is named, weighed and taken out, with the keys and the mouse.

#include "Rezeptfenstertest.h"

class TestRezeptzutaten : public Rezeptfenstertest
{
    Q_OBJECT

private Q_SLOTS:
    void anIngredientIsAddedWithTheKeysAlone();
    void theArrowKeysChooseAmongWhatFits();
    void whatIsFoundCanBeClicked();
    void theBestSixAreListed();
    void whatIsNowhereIsTold();
    void anAmountIsChangedInItsCell();
    void anAmountMayBeAHouseholdMeasure();
    void anAmountThatIsNoneLeavesTheOldOne();
    void anAmountThatIsNoneIsSeenBeforeTheWindowCloses();
    void anAmountThatIsStillBeingTypedIsTaken();
    void anAmountThatIsStillBeingTypedIsAChange();
    void aNameThatWasNotTakenIsToldOnce();
    void anIngredientIsTakenOut();
};

void TestRezeptzutaten::anIngredientIsAddedWithTheKeysAlone()
{
    oeffne(linsensuppe(u"Suppe"_s));
    auto &feld = teil<QLineEdit>("neueZutat");
    QVERIFY(feld.hasFocus());
    QTest::keyClicks(&feld, u"haus"_s);
    QVERIFY(teil<QListWidget>("treffer").isVisible());
    QCOMPARE(teil<QListWidget>("treffer").item(0)->text(), u"Hausbrot (roh)"_s);
    QTest::keyClick(&feld, Qt::Key_Return);
    QCOMPARE(teil<QTableWidget>("zutaten").rowCount(), 3);
    QCOMPARE(menge(2), u"100 g"_s);
    QVERIFY(!teil<QListWidget>("treffer").isVisible());
    QCOMPARE(feld.text(), QString());
    // Its amount is typed at once, and then comes the next ingredient.
    QTest::keyClicks(&zelleneditor(), u"50"_s);
    QTest::keyClick(&zelleneditor(), Qt::Key_Return);
    QTRY_VERIFY(feld.hasFocus());
    QCOMPARE(menge(2), u"50 g"_s);
    QCOMPARE(wort("rohgewicht"), u"Gewicht der Zutaten: 350 g"_s);
    // 680 + 120 kcal in 350 g.
    QCOMPARE(wert(Kenngroesse::kal), u"229 kcal"_s);
    druecke("sichern");
    QCOMPARE(m_rezept->zutaten[2].schluessel, hausbrot);
    QCOMPARE(m_rezept->zutaten[2].gramm, 50.0);
    QCOMPARE(m_rezept->zutaten[2].satz.kal(), 240.0F);
}

void TestRezeptzutaten::theArrowKeysChooseAmongWhatFits()
{
    oeffne({});
    auto &feld = teil<QLineEdit>("neueZutat");
    feld.setFocus();
    QTest::keyClicks(&feld, u"n"_s); // lentils and carrots
    const auto &liste = teil<QListWidget>("treffer");
    QCOMPARE(liste.count(), 2);
    QCOMPARE(liste.currentRow(), 0);
    QTest::keyClick(&feld, Qt::Key_Up);
    QCOMPARE(liste.currentRow(), 0);
    QTest::keyClick(&feld, Qt::Key_Down);
    QTest::keyClick(&feld, Qt::Key_Down);
    QCOMPARE(liste.currentRow(), 1);
    QVERIFY(feld.hasFocus());
    QTest::keyClick(&feld, Qt::Key_Enter);
    QCOMPARE(teil<QTableWidget>("zutaten").item(0, 0)->text(), moehren);
}

void TestRezeptzutaten::whatIsFoundCanBeClicked()
{
    oeffne({});
    auto &feld = teil<QLineEdit>("neueZutat");
    feld.setFocus();
    QTest::keyClicks(&feld, u"n"_s);
    auto &liste = teil<QListWidget>("treffer");
    QTest::mouseClick(liste.viewport(), Qt::LeftButton, {},
                      liste.visualItemRect(liste.item(1)).center());
    QCOMPARE(teil<QTableWidget>("zutaten").item(0, 0)->text(), moehren);
}

void TestRezeptzutaten::theBestSixAreListed()
{
    Zutatenliste liste({.suche =
                            [](const QString &text) {
                                QList<Zutatenvorschlag> alle;
                                for (int i = 1; i <= 8; ++i) {
                                    alle << Zutatenvorschlag{text + QString::number(i), text, {}};
                                }
                                return alle;
                            },
                        .masse =
                            [](const QString & /*schluessel*/) {
                                return QList<Mass>();
                            }});
    liste.show();
    QTest::keyClicks(liste.findChild<QLineEdit *>(u"neueZutat"_s), u"a"_s);
    const auto *treffer = liste.findChild<QListWidget *>(u"treffer"_s);
    QCOMPARE(treffer->count(), 6);
    QCOMPARE(treffer->item(5)->text(), u"a6"_s);
}

void TestRezeptzutaten::whatIsNowhereIsTold()
{
    oeffne({});
    auto &feld = teil<QLineEdit>("neueZutat");
    feld.setFocus();
    QTest::keyClicks(&feld, u"xyz"_s);
    QCOMPARE(wort("zutatenworte"), u"⚠ Kein Lebensmittel heißt so."_s);
    QTest::keyClick(&feld, Qt::Key_Return);
    QCOMPARE(teil<QTableWidget>("zutaten").rowCount(), 0);
    QTest::keyClick(&feld, Qt::Key_Escape);
    QVERIFY(!teil<QLabel>("zutatenworte").isVisible());
}

void TestRezeptzutaten::anAmountIsChangedInItsCell()
{
    oeffne(linsensuppe(u"Suppe"_s));
    auto &tabelle = teil<QTableWidget>("zutaten");
    tabelle.setFocus();
    tabelle.setCurrentCell(1, 1);
    QTest::keyClick(&tabelle, Qt::Key_Return);
    QTest::keyClicks(&zelleneditor(), u"400"_s);
    QTest::keyClick(&zelleneditor(), Qt::Key_Return);
    QTRY_VERIFY(tabelle.hasFocus());
    QCOMPARE(menge(1), u"400 g"_s);
    // 640 + 160 kcal in 600 g.
    QCOMPARE(wert(Kenngroesse::kal), u"133 kcal"_s);
    QCOMPARE(tabelle.rowCount(), 2);
}

void TestRezeptzutaten::anAmountMayBeAHouseholdMeasure()
{
    oeffne(linsensuppe(u"Suppe"_s));
    auto &tabelle = teil<QTableWidget>("zutaten");
    tabelle.item(0, 1)->setText(u"1,5 Tassen"_s);
    QCOMPARE(menge(0), u"270 g"_s);
    tabelle.item(1, 1)->setText(u"1 Tasse"_s); // carrots have none
    QCOMPARE(menge(1), u"100 g"_s);
    tabelle.item(1, 1)->setText(u"0,3"_s);
    QCOMPARE(menge(1), u"0,3 g"_s);
    druecke("sichern");
    QCOMPARE(m_rezept->zutaten[0].gramm, 270.0);
    QCOMPARE(m_rezept->zutaten[1].gramm, 0.3);
}

void TestRezeptzutaten::anAmountThatIsNoneLeavesTheOldOne()
{
    oeffne(linsensuppe(u"Suppe"_s));
    auto &tabelle = teil<QTableWidget>("zutaten");
    for (const QString &keine : {u"viel"_s, u"0"_s, u"-5"_s, u""_s, u"200 kg"_s}) {
        tabelle.item(0, 1)->setText(keine);
        QCOMPARE(menge(0), u"200 g"_s);
        QVERIFY(teil<QLabel>("zutatenworte").isVisible());
        QVERIFY(wort("zutatenworte").startsWith(u"⚠ "_s));
    }
    tabelle.item(0, 1)->setText(u"201"_s);
    QVERIFY(!teil<QLabel>("zutatenworte").isVisible());
}

/// The key of the button leaves the keyboard in the cell.
void TestRezeptzutaten::anAmountThatIsStillBeingTypedIsTaken()
{
    oeffne(linsensuppe(u"Suppe"_s));
    auto &tabelle = teil<QTableWidget>("zutaten");
    tabelle.setFocus();
    tabelle.setCurrentCell(1, 1);
    QTest::keyClick(&tabelle, Qt::Key_Return);
    QTest::keyClicks(&zelleneditor(), u"400"_s);
    QTest::keyClick(&zelleneditor(), Qt::Key_S, Qt::AltModifier);
    QTRY_VERIFY(m_rezept);
    QCOMPARE(m_rezept->zutaten[1].gramm, 400.0);
}

void TestRezeptzutaten::anAmountThatIsStillBeingTypedIsAChange()
{
    oeffne(linsensuppe(u"Suppe"_s));
    auto &tabelle = teil<QTableWidget>("zutaten");
    tabelle.setFocus();
    tabelle.setCurrentCell(1, 1);
    QTest::keyClick(&tabelle, Qt::Key_Return);
    QTest::keyClicks(&zelleneditor(), u"400"_s);
    m_fenster->close();
    QCOMPARE(m_fragen.size(), 1);
    QVERIFY(m_fenster->isVisible());
    QCOMPARE(menge(1), u"400 g"_s);
}

void TestRezeptzutaten::anAmountThatIsNoneIsSeenBeforeTheWindowCloses()
{
    oeffne(linsensuppe(u"Suppe"_s));
    auto &tabelle = teil<QTableWidget>("zutaten");
    tabelle.setFocus();
    tabelle.setCurrentCell(1, 1);
    QTest::keyClick(&tabelle, Qt::Key_Return);
    QTest::keyClicks(&zelleneditor(), u"4oo"_s);
    druecke("sichern"); // which takes the keyboard from the cell
    QVERIFY(!m_rezept);
    QVERIFY(m_fenster->isVisible());
    QCOMPARE(menge(1), u"100 g"_s);
    QCOMPARE(wort("rezeptworte"),
             u"⚠ Eine Menge war nicht zu lesen und ist geblieben, wie sie war."_s);
    druecke("sichern"); // so be it
    QVERIFY(m_rezept);
    QCOMPARE(m_rezept->zutaten[1].gramm, 100.0);
}

void TestRezeptzutaten::aNameThatWasNotTakenIsToldOnce()
{
    oeffne(linsensuppe(u"Suppe"_s));
    QTest::keyClicks(&teil<QLineEdit>("neueZutat"), u"haus"_s);
    druecke("sichern");
    QVERIFY(!m_rezept);
    QVERIFY(m_fenster->isVisible());
    QCOMPARE(wort("rezeptworte"), u"⚠ „haus“ ist noch keine Zutat."_s);
    druecke("sichern"); // so be it
    QVERIFY(m_rezept);
    QCOMPARE(m_rezept->zutaten.size(), 2);
}

void TestRezeptzutaten::anIngredientIsTakenOut()
{
    oeffne(linsensuppe(u"Suppe"_s));
    auto &tabelle = teil<QTableWidget>("zutaten");
    tabelle.setFocus();
    tabelle.setCurrentCell(1, 1);
    QTest::keyClick(&tabelle, Qt::Key_Delete);
    QCOMPARE(tabelle.rowCount(), 1);
    QCOMPARE(tabelle.item(0, 0)->text(), linsen);
    QCOMPARE(wert(Kenngroesse::kal), u"320 kcal"_s);
    druecke("herausnehmen");
    QCOMPARE(tabelle.rowCount(), 0);
    QVERIFY(!teil<QPushButton>("herausnehmen").isEnabled());
    QVERIFY(teil<QLineEdit>("neueZutat").hasFocus());
    QVERIFY(wort("rezeptworte").contains(u"keine Zutaten"_s));
}

QTEST_MAIN(TestRezeptzutaten)
#include "TestRezeptzutaten.moc"
