// A dish is kept, or not, and nothing is lost or replaced without a question.

#include "Rezeptfenstertest.h"

class TestRezeptsicherung : public Rezeptfenstertest
{
    Q_OBJECT

private Q_SLOTS:
    void aBuiltInNameIsRefused();
    void aDishInItselfIsRefused();
    void anotherFoodOfTheNameIsReplacedOnlyOnAYes();
    void theDishItselfIsReplacedWithoutAQuestion();
    void aDishChangedByHandIsReplacedOnlyOnAYes();
    void whatCouldNotBeKeptStaysInTheWindow();
    void aPortionBecomesAMeasure_data();
    void aPortionBecomesAMeasure();
    void theFormerPortionIsNamed_data();
    void theFormerPortionIsNamed();
    void allThatWasEnteredIsKept();
    void aDishThatThereIsCanBeChanged();
    void closingAsksWhereSomethingWasChanged();
    void escapeEmptiesTheFieldFirst();
    void returnKeepsNothing();
};

void TestRezeptsicherung::aBuiltInNameIsRefused()
{
    oeffne(linsensuppe());
    tippe("rezeptname", u"Möhren"_s);
    QVERIFY(wort("rezeptworte").contains(u"eingebautes"_s));
    teil<QPushButton>("sichern").setFocus();
    druecke("sichern");
    QVERIFY(!m_rezept);
    QVERIFY(teil<QLineEdit>("rezeptname").hasFocus());
    tippe("rezeptname", u"Möhrensuppe"_s);
    QVERIFY(!teil<QLabel>("rezeptworte").isVisible());
}

void TestRezeptsicherung::aDishInItselfIsRefused()
{
    Rezept brot = linsensuppe(hausbrot);
    brot.zutaten[0].schluessel = u"Suppe"_s;
    Rezept rezept = linsensuppe();
    rezept.zutaten << Rezeptzutat{hausbrot, 100, lebensmittel()[hausbrot]};
    oeffne(rezept, {{hausbrot, brot}});
    tippe("rezeptname", u"Suppe"_s);
    QVERIFY(wort("rezeptworte").contains(u"eigene Zutat"_s));
    QCOMPARE(wert(Kenngroesse::kal), QString());
    druecke("sichern");
    QVERIFY(!m_rezept);
    tippe("rezeptname", u"Suppe 2"_s);
    druecke("sichern");
    QVERIFY(m_rezept);
}

void TestRezeptsicherung::anotherFoodOfTheNameIsReplacedOnlyOnAYes()
{
    m_eigene.insert(u"Suppe"_s, satz(u"Suppe"_s, 50, 5));
    oeffne(linsensuppe(u"Suppe"_s));
    druecke("sichern");
    QCOMPARE(m_fragen.size(), 1);
    QCOMPARE(m_fragen[0].gegenstand, u"Suppe"_s);
    QVERIFY(m_fragen[0].erklaerung.contains(u"dieses Namens"_s));
    QVERIFY(!m_rezept);
    QVERIFY(m_fenster->isVisible());
    m_antwort = 1;
    druecke("sichern");
    QVERIFY(m_rezept);
    QVERIFY(!m_fenster->isVisible());
}

void TestRezeptsicherung::theDishItselfIsReplacedWithoutAQuestion()
{
    Rezept rezept = linsensuppe(u"Suppe"_s);
    rezept.gegeben = satz(u"Suppe"_s, 50, 5);
    m_eigene.insert(u"Suppe"_s, rezept.gegeben);
    oeffne(rezept);
    druecke("sichern");
    QVERIFY(m_fragen.isEmpty());
    QVERIFY(m_rezept);
}

void TestRezeptsicherung::aDishChangedByHandIsReplacedOnlyOnAYes()
{
    Rezept rezept = linsensuppe(u"Suppe"_s);
    rezept.gegeben = satz(u"Suppe"_s, 50, 5);
    m_eigene.insert(u"Suppe"_s, satz(u"Suppe"_s, 51, 5));
    oeffne(rezept);
    druecke("sichern");
    QCOMPARE(m_fragen.size(), 1);
    QVERIFY(m_fragen[0].erklaerung.contains(u"von Hand"_s));
    QVERIFY(!m_rezept);
    // Under another name it is another food.
    tippe("rezeptname", u"Suppe 2"_s);
    druecke("sichern");
    QCOMPARE(m_fragen.size(), 1);
    QVERIFY(m_rezept);
}

void TestRezeptsicherung::whatCouldNotBeKeptStaysInTheWindow()
{
    m_sichert = false;
    Rezept rezept = linsensuppe(u"Suppe"_s);
    rezept.portionen = 2;
    oeffne(rezept);
    druecke("sichern");
    QVERIFY(wort("rezeptworte").contains(u"nicht sichern"_s));
    QVERIFY(teil<QLabel>("rezeptworte").isVisible());
    QVERIFY(m_fenster->isVisible());
    QVERIFY(!m_portion);
    m_sichert = true;
    druecke("sichern");
    QVERIFY(!m_fenster->isVisible());
    QVERIFY(m_portion);
}

void TestRezeptsicherung::aPortionBecomesAMeasure_data()
{
    QTest::addColumn<double>("gewicht");
    QTest::addColumn<QString>("portionen");
    QTest::addColumn<double>("gramm"); // 0: none
    QTest::addColumn<QString>("worte");
    QTest::newRow("a quarter") << 1000.0 << u"4"_s << 250.0 << u"= 250 g je Portion"_s;
    QTest::newRow("the heaviest") << 4000.0 << u"2"_s << 2000.0 << u"= 2000 g je Portion"_s;
    QTest::newRow("too heavy") << 4002.0 << u"2"_s << 0.0
                               << u"= 2001 g je Portion, zu viel für ein Maß"_s;
    QTest::newRow("not counted") << 1000.0 << QString() << 0.0 << QString();
}

void TestRezeptsicherung::aPortionBecomesAMeasure()
{
    QFETCH(const double, gewicht);
    QFETCH(const QString, portionen);
    QFETCH(const double, gramm);
    QFETCH(const QString, worte);
    Rezept rezept = linsensuppe(u"Suppe"_s);
    rezept.fertiggewicht = gewicht;
    oeffne(rezept);
    tippe("portionen", portionen);
    QCOMPARE(wort("jePortion"), worte);
    druecke("sichern");
    QVERIFY(m_rezept);
    QCOMPARE(m_portion.has_value(), gramm > 0);
    if (m_portion) {
        QCOMPARE(m_portion->first, u"Suppe"_s);
        QCOMPARE(m_portion->second, gramm);
    }
}

void TestRezeptsicherung::theFormerPortionIsNamed_data()
{
    QTest::addColumn<double>("gewicht");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("portionen");
    QTest::addColumn<double>("bisher"); // 0: none
    QTest::newRow("nobody counts them any more") << 1000.0 << u"Suppe"_s << QString() << 500.0;
    QTest::newRow("there are more") << 1000.0 << u"Suppe"_s << u"4"_s << 500.0;
    QTest::newRow("one was too heavy") << 4002.0 << u"Suppe"_s << u"4"_s << 0.0;
    QTest::newRow("another dish") << 1000.0 << u"Eintopf"_s << u"4"_s << 0.0;
}

void TestRezeptsicherung::theFormerPortionIsNamed()
{
    QFETCH(const double, gewicht);
    QFETCH(const QString, name);
    QFETCH(const QString, portionen);
    QFETCH(const double, bisher);
    Rezept rezept = linsensuppe(u"Suppe"_s);
    rezept.fertiggewicht = gewicht;
    rezept.portionen = 2;
    oeffne(rezept);
    tippe("rezeptname", name);
    tippe("portionen", portionen);
    druecke("sichern");
    QVERIFY(m_rezept);
    QCOMPARE(m_portion.has_value(), !portionen.isEmpty());
    QCOMPARE(m_portionBisher.value_or(0), bisher);
}

void TestRezeptsicherung::allThatWasEnteredIsKept()
{
    oeffne(linsensuppe());
    tippe("rezeptname", u" Omas \"Suppe\" "_s);
    tippe("fertiggewicht", u"612,5"_s);
    tippe("portionen", u"2,5"_s);
    teil<QCheckBox>("folgt").click();
    QTest::keyClicks(&teil<QPlainTextEdit>("zubereitung"), u"lange kochen"_s);
    druecke("sichern");
    QCOMPARE(m_rezept->schluessel, u"Omas \"Suppe\""_s);
    QCOMPARE(m_rezept->fertiggewicht, 612.5);
    QCOMPARE(m_rezept->portionen, 2.5);
    QVERIFY(!m_rezept->folgt);
    QCOMPARE(m_rezept->notiz, u"lange kochen"_s);
    QVERIFY(m_rezept->gruppe.isNull());
    QCOMPARE(m_portion->second, 245.0);
}

void TestRezeptsicherung::aDishThatThereIsCanBeChanged()
{
    Rezept rezept = linsensuppe(u"Suppe"_s);
    rezept.fertiggewicht = 612.5;
    rezept.portionen = 2.5;
    rezept.folgt = false;
    rezept.notiz = u"lange kochen"_s;
    rezept.wertungen[stelle(Wertung::hkk)] = u"vielleicht"_s;
    rezept.wertungen[stelle(Wertung::gicht)] = u"0"_s;
    rezept.gegeben = satz(u"Suppe"_s, 50, 5);
    oeffne(rezept);
    QCOMPARE(teil<QLineEdit>("rezeptname").text(), u"Suppe"_s);
    QCOMPARE(teil<QLineEdit>("fertiggewicht").text(), u"612,5 g"_s);
    QCOMPARE(teil<QLineEdit>("portionen").text(), u"2,5"_s);
    QVERIFY(!teil<QCheckBox>("folgt").isChecked());
    QCOMPARE(teil<QPlainTextEdit>("zubereitung").toPlainText(), u"lange kochen"_s);
    QCOMPARE(teil<QComboBox>("hkkwahl").currentText(), u"vielleicht"_s);
    QCOMPARE(teil<QComboBox>("gichtwahl").currentText(), u"0 neutral"_s);
    QCOMPARE(teil<QComboBox>("gichtwahl").count(), 4);
    QVERIFY(m_fenster->isVisible());
    druecke("sichern");
    Rezept gleich = rezept;
    gleich.gegeben = *m_satz;
    QVERIFY(*m_rezept == gleich);
}

void TestRezeptsicherung::closingAsksWhereSomethingWasChanged()
{
    oeffne(linsensuppe(u"Suppe"_s));
    druecke("abbrechen");
    QVERIFY(m_fragen.isEmpty());
    QVERIFY(!m_fenster->isVisible());

    oeffne(linsensuppe(u"Suppe"_s));
    tippe("portionen", u"3"_s);
    QTest::keyClick(m_fenster.get(), Qt::Key_Escape);
    QCOMPARE(m_fragen.size(), 1);
    QVERIFY(m_fenster->isVisible());
    m_antwort = 1;
    druecke("abbrechen");
    QCOMPARE(m_fragen.size(), 2);
    QVERIFY(!m_fenster->isVisible());
    QVERIFY(!m_rezept);
}

void TestRezeptsicherung::escapeEmptiesTheFieldFirst()
{
    oeffne(linsensuppe(u"Suppe"_s));
    auto &feld = teil<QLineEdit>("neueZutat");
    QTest::keyClicks(&feld, u"n"_s);
    QTest::keyClick(&feld, Qt::Key_Escape);
    QCOMPARE(feld.text(), QString());
    QVERIFY(!teil<QListWidget>("treffer").isVisible());
    QVERIFY(m_fenster->isVisible());
    QTest::keyClick(&feld, Qt::Key_Escape);
    QVERIFY(!m_fenster->isVisible());
}

void TestRezeptsicherung::returnKeepsNothing()
{
    oeffne(linsensuppe(u"Suppe"_s));
    for (const char *feld : {"rezeptname", "fertiggewicht", "portionen", "neueZutat"}) {
        teil<QLineEdit>(feld).setFocus();
        QTest::keyClick(&teil<QLineEdit>(feld), Qt::Key_Return);
    }
    QVERIFY(!m_rezept);
    QVERIFY(m_fenster->isVisible());
    QTest::keyClick(m_fenster.get(), Qt::Key_S, Qt::AltModifier);
    QTRY_VERIFY(m_rezept);
}

QTEST_MAIN(TestRezeptsicherung)
#include "TestRezeptsicherung.moc"
