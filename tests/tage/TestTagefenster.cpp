// The window of the days under the hands of its user: foods and amounts from the keyboard, what is
// told, what can be taken back, and whose records they are.

#include "Tagefenstertest.h"

#include <QLabel>
#include <QMenuBar>
#include <QToolButton>

using namespace Qt::StringLiterals;
using Aufzeichnungsprobe::namen;
using Art = Tagesmodell::Art;
using Platz = Tagesmodell::Platz;

class TestTagefenster : public Tagefenstertest
{
    Q_OBJECT

private Q_SLOTS:
    void withoutARecordThereAreWords();
    void aRecordBeginsWithItsFirstRow();
    void foodAndAmountLeadToTheNextRow();
    void theFirstMeasureIsTakenWithReturn();
    void anAmountIsUnderstoodAsOneSaysIt_data();
    void anAmountIsUnderstoodAsOneSaysIt();
    void whatIsNotUnderstoodIsMarkedAndTold_data();
    void whatIsNotUnderstoodIsMarkedAndTold();
    void anUnknownFoodStaysAsTyped();
    void aFoodThatIsCalledExactlySoComesFirst();
    void anotherFoodReadsTheAmountAgain();
    void emptyRowsLeadOnToTheNextDay();
    void escapeLeavesNothingBehind();
    void everyDeedIsTakenBack();
    void lettersOfATitleAreOneStep();
    void notesAreKeptLetterByLetter();
    void aNoteIsOfItsMealAndDay();
    void fewerDaysAreToldWithTheWayBack();
    void emptyDaysGoWithoutAWord();
    void anEmptiedDayIsToldWithTheWayBack();
    void mealsComeGoAndMove();
    void theLastMealStays();
    void alternativesComeAndGo();
    void whatIsTakenOutLeavesItsAlternative();
    void aFoodFromElsewhereGetsItsUsualAmount();
    void withoutARecordNothingComesFromElsewhere();
    void otherRecordsTakeTheirPlace();
    void aNewerRecordIsReadOnly();
    void whereNothingCanBeKeptNothingBegins();
    void deletingAsks_data();
    void deletingAsks();

private:
    QString zeilen(int mahlzeit = 0, int tag = 0) const
    {
        return namen(m_probe->jetzige(), tag, mahlzeit);
    }
    void zurueck() const
    {
        QTest::keyClick(m_probe->fenster.get(), Qt::Key_Z, Qt::ControlModifier);
    }
};

void TestTagefenster::withoutARecordThereAreWords()
{
    QVERIFY(m_probe->fenster->leerworte->isVisible());
    QVERIFY(!m_probe->fenster->ansicht->isVisible());
    Fensterprobe::tippe(u"Apfel"_s);
    QVERIFY(m_probe->ablage.gesichert.isEmpty());
}

void TestTagefenster::aRecordBeginsWithItsFirstRow()
{
    m_probe->neu();
    QCOMPARE(m_probe->jetzige().art, Aufzeichnungsart::Protokoll);
    QCOMPARE(m_probe->jetzige().datum, QDate(2026, 11, 23));
    QCOMPARE(m_probe->jetzige().tage.size(), 3);
    QCOMPARE(m_probe->jetzige().mahlzeiten.size(), 6);
    QVERIFY(m_probe->fenster->ansicht->hasFocus());
    QCOMPARE(m_probe->fenster->ansicht->platz(), (Platz{Art::Eingabe, 0, 0}));
    QCOMPARE(m_probe->fenster->tage->tabText(1), u"Di. 24.11.26"_s);
}

void TestTagefenster::foodAndAmountLeadToTheNextRow()
{
    m_probe->neu();
    Fensterprobe::gibEin(u"apf"_s, u"120"_s);
    Fensterprobe::gibEin(u"toa"_s, u"2 Scheiben"_s);
    QCOMPARE(zeilen(), u"ApfelToast"_s);
    QCOMPARE(m_probe->zeile(0, 0).gramm, 120.F);
    QCOMPARE(m_probe->zeile(0, 1).gramm, 40.F); // 2 x 20 g
    QCOMPARE(m_probe->zelle({Art::Speise, 0, 1}, Tagesmodell::Angabe), u"2 Scheiben"_s);
    QCOMPARE(m_probe->zelle({Art::Speise, 0, 1}, Tagesmodell::Gramm), u"40"_s);
    QVERIFY(m_probe->fenster->ansicht->feld() != nullptr);
    QCOMPARE(m_probe->fenster->ansicht->platz(), (Platz{Art::Eingabe, 0, 2}));
    QCoreApplication::processEvents();
    QCOMPARE(m_probe->ablage.gesichert.constLast().tage[0].mahlzeiten[0].zeilen.size(), 2);
}

void TestTagefenster::theFirstMeasureIsTakenWithReturn()
{
    m_probe->neu();
    Fensterprobe::gibEin(u"milch"_s, u""_s);
    QCOMPARE(m_probe->zeile(0, 0).angabe, u"1 Tasse"_s);
    QCOMPARE(m_probe->zeile(0, 0).gramm, 125.F);
    Fensterprobe::gibEin(u"wasser"_s, u""_s); // which has no measure
    QCOMPARE(m_probe->zeile(0, 1).angabe, u""_s);
    QVERIFY(!m_probe->zeile(0, 1).gramm);
}

void TestTagefenster::anAmountIsUnderstoodAsOneSaysIt_data()
{
    QTest::addColumn<QString>("getippt");
    QTest::addColumn<QString>("behalten");
    QTest::addColumn<float>("gramm");
    QTest::newRow("digits are grams") << u"150"_s << u"150 g"_s << 150.F;
    QTest::newRow("half a cup") << u"1/2 Tasse"_s << u"½ Tasse"_s << 62.5F;
    QTest::newRow("with a comma") << u"1,5 EL"_s << u"1½ EL"_s << 15.F;
    QTest::newRow("in words") << u"zwei Tassen"_s << u"2 Tassen"_s << 250.F;
    QTest::newRow("a beginning takes what is offered") << u"3 ta"_s << u"3 Tassen"_s << 375.F;
    QTest::newRow("100 kg are the most") << u"100 kg"_s << u"100000 g"_s << 100000.F;
}

void TestTagefenster::anAmountIsUnderstoodAsOneSaysIt()
{
    QFETCH(QString, getippt);
    m_probe->neu();
    Fensterprobe::gibEin(u"Milch"_s, getippt);
    QTEST(m_probe->zeile(0, 0).angabe, "behalten");
    QTEST(m_probe->zeile(0, 0).gramm.value_or(-1), "gramm");
    QVERIFY(m_probe->hinweise().isEmpty());
}

void TestTagefenster::whatIsNotUnderstoodIsMarkedAndTold_data()
{
    QTest::addColumn<QString>("getippt");
    QTest::addColumn<QString>("satz");
    QTest::newRow("a measure that the food lacks")
        << u"3 Fuder"_s
        << u"„3 Fuder“: Dieses Lebensmittel hat kein solches Maß. Die Zeile zählt nicht."_s;
    QTest::newRow("no number") << u"1,2,3"_s
                               << u"„1,2,3“: Das ist keine Mengenangabe. Die Zeile zählt nicht."_s;
    QTest::newRow("nothing of it")
        << u"0 EL"_s << u"„0 EL“: Die Menge muss mehr als null sein. Die Zeile zählt nicht."_s;
    QTest::newRow("more than anybody eats")
        << u"101 kg"_s << u"„101 kg“: Mehr als 100 kg sind nicht möglich. Die Zeile zählt nicht."_s;
}

void TestTagefenster::whatIsNotUnderstoodIsMarkedAndTold()
{
    QFETCH(QString, getippt);
    m_probe->neu();
    Fensterprobe::gibEin(u"Milch"_s, getippt);
    QCOMPARE(m_probe->zeile(0, 0).angabe, getippt);
    QVERIFY(!m_probe->zeile(0, 0).gramm);
    QCOMPARE(m_probe->zelle({Art::Speise, 0, 0}, Tagesmodell::Angabe), u"? "_s + getippt);
    QTEST(m_probe->hinweise().value(0), "satz");
    QVERIFY(m_probe->fenster->mittelworte->text().contains(
        u"Zeilen dieses Tages, die nicht zählen: 1."_s));
    Fensterprobe::gibEin(u"Apfel"_s, u"1"_s);
    QVERIFY(m_probe->hinweise().isEmpty());
}

void TestTagefenster::anUnknownFoodStaysAsTyped()
{
    m_probe->neu();
    Fensterprobe::gibEin(u"Quark"_s, u"200"_s);
    QCOMPARE(m_probe->zeile(0, 0).text, u"Quark"_s);
    QVERIFY(m_probe->zeile(0, 0).schluessel.isNull());
    QVERIFY(!m_probe->zeile(0, 0).eintrag);
    QCOMPARE(m_probe->zelle({Art::Speise, 0, 0}, Tagesmodell::Name), u"? Quark"_s);
    QCOMPARE(m_probe->hinweise(),
             QStringList{u"Ein Lebensmittel „Quark“ gibt es nicht. Die Zeile zählt nicht."_s});
}

void TestTagefenster::aFoodThatIsCalledExactlySoComesFirst()
{
    m_probe->namen = QStringList{u"Apfelkuchen"_s, u"Apfel"_s};
    m_probe->neu();
    Fensterprobe::gibEin(u"apfel"_s, u"10"_s);
    Fensterprobe::gibEin(u"apfe"_s, u"20"_s); // the order of the search
    QCOMPARE(zeilen(), u"ApfelApfelkuchen"_s);
}

void TestTagefenster::anotherFoodReadsTheAmountAgain()
{
    m_probe->neu();
    Fensterprobe::gibEin(u"Milch"_s, u"2 Tassen"_s);
    Fensterprobe::taste(Qt::Key_Escape);
    m_probe->fenster->ansicht->geheZu({Art::Speise, 0, 0}, Tagesmodell::Name);
    Fensterprobe::tippe(u"Toast"_s);
    Fensterprobe::taste(Qt::Key_Return);
    QCOMPARE(m_probe->zeile(0, 0).schluessel, u"Toast"_s);
    QCOMPARE(m_probe->zeile(0, 0).angabe, u"2 Tassen"_s);
    QVERIFY(!m_probe->zeile(0, 0).gramm); // there are no cups of toast
    QCOMPARE(m_probe->hinweise().size(), 1);
}

void TestTagefenster::emptyRowsLeadOnToTheNextDay()
{
    m_probe->neu();
    for (int mahlzeit = 0; mahlzeit < 6; ++mahlzeit) {
        QCOMPARE(m_probe->fenster->ansicht->platz(), (Platz{Art::Eingabe, mahlzeit, 0}));
        QCOMPARE(m_probe->fenster->buch.tag(), 0);
        Fensterprobe::taste(Qt::Key_Return); // begins to type
        Fensterprobe::taste(Qt::Key_Return); // and types nothing
    }
    QCOMPARE(m_probe->fenster->buch.tag(), 1);
    QCOMPARE(m_probe->fenster->ansicht->platz(), (Platz{Art::Eingabe, 0, 0}));
    m_probe->fenster->buch.waehleTag(2);
    m_probe->fenster->ansicht->geheZu({Art::Eingabe, 5, 0}, Tagesmodell::Name);
    Fensterprobe::taste(Qt::Key_Return);
    Fensterprobe::taste(Qt::Key_Return);
    QCOMPARE(m_probe->fenster->buch.tag(), 2); // there is no other
    QCOMPARE(m_probe->fenster->ansicht->platz(), (Platz{Art::Eingabe, 5, 0}));
}

void TestTagefenster::escapeLeavesNothingBehind()
{
    m_probe->neu();
    const qsizetype gesichert = m_probe->ablage.gesichert.size();
    Fensterprobe::tippe(u"Apfel"_s);
    Fensterprobe::taste(Qt::Key_Escape);
    QCoreApplication::processEvents();
    QCOMPARE(zeilen(), u""_s);
    QCOMPARE(m_probe->ablage.gesichert.size(), gesichert);
}

void TestTagefenster::everyDeedIsTakenBack()
{
    m_probe->neu();
    Fensterprobe::gibEin(u"Apfel"_s, u"1 Stück"_s);
    Fensterprobe::taste(Qt::Key_Escape);
    zurueck();
    QVERIFY(m_probe->zeile(0, 0).angabe.isEmpty());
    zurueck();
    QCOMPARE(zeilen(), u""_s);
    QTest::keyClick(m_probe->fenster.get(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QTest::keyClick(m_probe->fenster.get(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(m_probe->zeile(0, 0).gramm, 150.F);
    QCoreApplication::processEvents();
    QCOMPARE(m_probe->ablage.gesichert.constLast().tage[0].mahlzeiten[0].zeilen.size(), 1);
}

void TestTagefenster::lettersOfATitleAreOneStep()
{
    m_probe->neu();
    m_probe->fenster->titel->setFocus();
    Fensterprobe::tippe(u"Woche"_s);
    QCoreApplication::processEvents();
    QCOMPARE(m_probe->ablage.gesichert.constLast().titel, u"Woche"_s);
    QCOMPARE(m_probe->fenster->auswahl->currentText(), u"Woche, 23.11.26"_s);
    QCOMPARE(m_probe->fenster->buch.schritte.count(), 1);
    m_probe->fenster->buch.schritte.undo();
    QCOMPARE(m_probe->fenster->titel->text(), u""_s);
}

void TestTagefenster::notesAreKeptLetterByLetter()
{
    m_probe->neu();
    m_probe->fenster->mahlzeitnotiz->setFocus();
    Fensterprobe::tippe(u"eilg"_s);
    m_probe->fenster->mahlzeitnotiz->cursorBackward(false);
    Fensterprobe::tippe(u"i"_s);
    QCOMPARE(m_probe->fenster->mahlzeitnotiz->text(), u"eilig"_s);
    // Another day without leaving the field
    QTest::keyClick(m_probe->fenster.get(), Qt::Key_PageDown, Qt::ControlModifier);
    QCOMPARE(m_probe->fenster->buch.tag(), 1);
    QCOMPARE(m_probe->jetzige().tage[0].mahlzeiten[0].notiz, u"eilig"_s);
    QCOMPARE(m_probe->fenster->mahlzeitnotiz->text(), u""_s);
}

void TestTagefenster::aNoteIsOfItsMealAndDay()
{
    m_probe->neu();
    m_probe->fenster->ansicht->geheZu({Art::Mahlzeit, 2, 0}, Tagesmodell::Name);
    m_probe->fenster->mahlzeitnotiz->setFocus();
    Fensterprobe::tippe(u"a"_s);
    m_probe->fenster->ansicht->geheZu({Art::Mahlzeit, 3, 0}, Tagesmodell::Name);
    Fensterprobe::tippe(u"b"_s);
    m_probe->fenster->tagesnotiz->setFocus();
    Fensterprobe::tippe(u"c"_s);
    const Tag tag = m_probe->jetzige().tage[0];
    QCOMPARE(tag.mahlzeiten[2].notiz, u"a"_s);
    QCOMPARE(tag.mahlzeiten[3].notiz, u"b"_s);
    QCOMPARE(tag.notiz, u"c"_s);
    QCOMPARE(m_probe->fenster->buch.schritte.count(), 3); // not one of them all
}

void TestTagefenster::fewerDaysAreToldWithTheWayBack()
{
    m_probe->neu();
    m_probe->fenster->buch.waehleTag(2);
    m_probe->fenster->ansicht->setFocus();
    m_probe->fenster->ansicht->geheZu({Art::Eingabe, 0, 0}, Tagesmodell::Name);
    Fensterprobe::gibEin(u"Apfel"_s, u"10"_s);
    Fensterprobe::taste(Qt::Key_Escape);
    m_probe->fenster->tagezahl->setValue(1);
    QCOMPARE(m_probe->jetzige().tage.size(), 1);
    QCOMPARE(m_probe->fenster->buch.tag(), 0);
    QCOMPARE(m_probe->hinweise(),
             QStringList{u"Weggenommen mit dem, was dort stand: Mi. 25.11.26."_s});
    m_probe->fenster->hinweise->hinweise().constFirst().aktion();
    QCOMPARE(zeilen(0, 2), u"Apfel"_s);
    QCOMPARE(m_probe->fenster->tagezahl->value(), 3);
    QVERIFY(m_probe->hinweise().isEmpty());
}

void TestTagefenster::emptyDaysGoWithoutAWord()
{
    m_probe->neu();
    m_probe->fenster->tagezahl->setValue(1);
    QVERIFY(m_probe->hinweise().isEmpty());
    m_probe->fenster->tagezahl->setValue(14);
    QCOMPARE(m_probe->fenster->tage->count(), 14);
}

void TestTagefenster::anEmptiedDayIsToldWithTheWayBack()
{
    m_probe->neu();
    Fensterprobe::gibEin(u"Apfel"_s, u"10"_s);
    Fensterprobe::taste(Qt::Key_Escape);
    eintrag(u"Tag leeren"_s)->trigger();
    QCOMPARE(zeilen(), u""_s);
    QCOMPARE(m_probe->hinweise(), QStringList{u"Mo. 23.11.26 ist leer."_s});
    m_probe->fenster->hinweise->hinweise().constFirst().aktion();
    QCOMPARE(zeilen(), u"Apfel"_s);
}

void TestTagefenster::mealsComeGoAndMove()
{
    m_probe->neu();
    eintrag(u"Neue Mahlzeit darunter"_s)->trigger();
    Fensterprobe::tippe(u"Sport"_s);
    Fensterprobe::taste(Qt::Key_Return);
    QCOMPARE(m_probe->jetzige().mahlzeiten.size(), 7);
    QCOMPARE(m_probe->jetzige().mahlzeiten[1], u"Sport"_s);
    eintrag(u"Mahlzeit hinauf"_s)->trigger();
    QCOMPARE(m_probe->jetzige().mahlzeiten[0], u"Sport"_s);
    eintrag(u"Mahlzeit hinauf"_s)->trigger(); // it is the first
    QCOMPARE(m_probe->jetzige().mahlzeiten[0], u"Sport"_s);
    eintrag(u"Mahlzeit herausnehmen"_s)->trigger();
    QCOMPARE(m_probe->jetzige().mahlzeiten.size(), 6);
    QCOMPARE(m_probe->hinweise(), QStringList{u"„Sport“ ist an allen Tagen herausgenommen."_s});
}

void TestTagefenster::theLastMealStays()
{
    m_probe->neu();
    for (int mal = 0; mal < 8; ++mal) {
        m_probe->fenster->ansicht->geheZu({Art::Mahlzeit, 0, 0}, Tagesmodell::Name);
        eintrag(u"Mahlzeit herausnehmen"_s)->trigger();
    }
    QCOMPARE(m_probe->jetzige().mahlzeiten, QStringList{u"Spät"_s});
}

void TestTagefenster::alternativesComeAndGo()
{
    m_probe->neu();
    Fensterprobe::gibEin(u"Apfel"_s, u"10"_s);
    Fensterprobe::gibEin(u"Milch"_s, u"10"_s);
    Fensterprobe::taste(Qt::Key_Escape);
    QAction *wahl = eintrag(u"Als Wahl zur Zeile davor („oder“)"_s);
    m_probe->fenster->ansicht->geheZu({Art::Speise, 0, 1}, Tagesmodell::Name);
    wahl->trigger();
    QCOMPARE(zeilen(), u"Apfel|Milch"_s);
    QCOMPARE(m_probe->zelle({Art::Speise, 0, 1}, Tagesmodell::Name), u"oder Milch"_s);
    wahl->trigger();
    QCOMPARE(zeilen(), u"ApfelMilch"_s);
    m_probe->fenster->ansicht->geheZu({Art::Speise, 0, 0}, Tagesmodell::Name);
    wahl->trigger(); // there is nothing before it
    QCOMPARE(zeilen(), u"ApfelMilch"_s);
}

/// "Apple, milk or water" without the milk is apple and water.
void TestTagefenster::whatIsTakenOutLeavesItsAlternative()
{
    m_probe->neu();
    for (const QString &name : {u"Apfel"_s, u"Milch"_s, u"Wasser"_s}) {
        Fensterprobe::gibEin(name, u"10"_s);
    }
    Fensterprobe::taste(Qt::Key_Escape);
    m_probe->fenster->ansicht->geheZu({Art::Speise, 0, 2}, Tagesmodell::Name);
    eintrag(u"Als Wahl zur Zeile davor („oder“)"_s)->trigger();
    QCOMPARE(zeilen(), u"ApfelMilch|Wasser"_s);
    m_probe->fenster->ansicht->geheZu({Art::Speise, 0, 1}, Tagesmodell::Name);
    Fensterprobe::taste(Qt::Key_Delete);
    QCOMPARE(zeilen(), u"ApfelWasser"_s);
}

void TestTagefenster::aFoodFromElsewhereGetsItsUsualAmount()
{
    m_probe->neu();
    m_probe->fenster->ansicht->geheZu({Art::Mahlzeit, 2, 0}, Tagesmodell::Name);
    QCOMPARE(m_probe->fenster->gibHinein(u"Toast"_s), u"Mo. 23.11.26, Mittagessen, 1 Scheibe"_s);
    QCOMPARE(m_probe->fenster->gibHinein(u"Wasser"_s), u"Mo. 23.11.26, Mittagessen, 100 g"_s);
    QCOMPARE(zeilen(2), u"ToastWasser"_s);
    QCOMPARE(m_probe->zeile(2, 0).gramm, 20.F);
    QCOMPARE(m_probe->zeile(2, 1).gramm, 100.F);
    QVERIFY(m_probe->fenster->gibHinein(u"Quark"_s).isNull()); // which nobody knows
    QCOMPARE(zeilen(2), u"ToastWasser"_s);
}

void TestTagefenster::withoutARecordNothingComesFromElsewhere()
{
    QVERIFY(m_probe->fenster->gibHinein(u"Toast"_s).isNull());
}

/// What is being typed when the client changes belongs to the one before.
void TestTagefenster::otherRecordsTakeTheirPlace()
{
    m_probe->neu();
    Fensterprobe::tippe(u"Apfel"_s);
    Probeablage andere;
    Aufzeichnung eine = neueAufzeichnung(Aufzeichnungsart::Wochenplan, {}, 7);
    eine.kennung = u"w"_s;
    eine.titel = u"Leicht"_s;
    andere.aufzeichnungen = {eine};
    m_probe->fenster->setzeAblage(andere);
    QCOMPARE(namen(m_probe->ablage.aufzeichnungen.constFirst(), 0, 0), u"Apfel"_s);
    QCOMPARE(m_probe->jetzige().titel, u"Leicht"_s);
    QCOMPARE(m_probe->fenster->tage->count(), 7);
    QCOMPARE(m_probe->fenster->tage->tabText(6), u"Tag 7"_s);
    zurueck(); // not what was done before
    QVERIFY(andere.gesichert.isEmpty());
    m_probe->fenster->setzeAblage(m_probe->ablage);
}

void TestTagefenster::aNewerRecordIsReadOnly()
{
    m_probe->neu();
    Fensterprobe::gibEin(u"Apfel"_s, u"10"_s);
    Fensterprobe::taste(Qt::Key_Escape);
    m_probe->fenster->sichere();
    Aufzeichnung neuere = m_probe->jetzige();
    neuere.neuererText = "{}";
    m_probe->ablage.aufzeichnungen = {neuere};
    Q_EMIT m_probe->ablage.geaendert();
    const qsizetype gesichert = m_probe->ablage.gesichert.size();
    QVERIFY(!m_probe->fenster->titel->isEnabled());
    QVERIFY(!m_probe->fenster->tagezahl->isEnabled());
    m_probe->fenster->ansicht->setFocus();
    Fensterprobe::tippe(u"Milch"_s);
    Fensterprobe::taste(Qt::Key_Delete);
    QVERIFY(m_probe->fenster->gibHinein(u"Toast"_s).isNull());
    QCoreApplication::processEvents();
    QCOMPARE(zeilen(), u"Apfel"_s);
    QCOMPARE(m_probe->ablage.gesichert.size(), gesichert);
    QVERIFY(m_probe->hinweise().contains(
        u"Diese Aufzeichnung ist von einer neueren Version; sie ist hier nur zu lesen."_s));
}

void TestTagefenster::whereNothingCanBeKeptNothingBegins()
{
    m_probe->ablage.laesstSchreiben = false;
    Q_EMIT m_probe->ablage.geaendert();
    QVERIFY(!m_probe->fenster->neuknopf->isEnabled());
    m_probe->neu();
    QVERIFY(m_probe->ablage.gesichert.isEmpty());
    QVERIFY(m_probe->fenster->leerworte->isVisible());
}

void TestTagefenster::deletingAsks_data()
{
    QTest::addColumn<int>("antwort");
    QTest::addColumn<int>("bleiben");
    QTest::newRow("kept") << 0 << 1;
    QTest::newRow("deleted") << 1 << 0;
}

void TestTagefenster::deletingAsks()
{
    QFETCH(int, antwort);
    QFETCH(int, bleiben);
    m_probe->neu();
    m_probe->antwort = antwort;
    eintrag(u"Aufzeichnung löschen …"_s)->trigger();
    QCOMPARE(m_probe->gefragt, QStringList{u"Die Aufzeichnung „Protokoll, 23.11.26“ löschen?"_s});
    QCOMPARE(m_probe->ablage.aufzeichnungen.size(), bleiben);
}

QTEST_MAIN(TestTagefenster)
#include "TestTagefenster.moc"
