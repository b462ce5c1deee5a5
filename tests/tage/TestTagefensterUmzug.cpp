// Rows, meals and days that are copied, cut, pasted and moved in the window of the days: with the
// real clipboard and the keys.

#include "Umzugstest.h"

#include <QMenuBar>
#include <QPushButton>

using namespace Qt::StringLiterals;
using Aufzeichnungsprobe::zeile;
using Art = Tagesmodell::Art;
using Platz = Tagesmodell::Platz;

class TestTagefensterUmzug : public Umzugstest
{
    Q_OBJECT

private Q_SLOTS:
    void chosenRowsAreCopiedAndPasted();
    void aSpreadsheetReadsWhatIsCopied();
    void theNameOfAMealMeansTheMeal();
    void aNoteAloneMovesToo();
    void nothingChosenIsTold();
    void rowsAreCutInOneStep();
    void aMealIsCutWithItsNote();
    void whatIsLeftOfAChoiceCounts();
    void fieldsKeepTheirOwnClipboard();
    void pastedRowsComeBehindTheCursor_data();
    void pastedRowsComeBehindTheCursor();
    void pastedFoodsAreThoseOfToday();
    void textBecomesRows();
    void damageIsToldAndNothingChanges_data();
    void damageIsToldAndNothingChanges();
    void aDayIsCutAndPasted();
    void aDayIsCopiedOntoAnother();
    void rowsAreNoDay();
    void theWayBackGoesWithTheNextChange();
    void aReadOnlyRecordTakesNothing();
    void withoutARecordItIsTold();
    void keysMoveRows();
    void keysMoveSeveralRowsIntoTheNextMeal();
    void whatIsTypedMovesAlong();

private:
    void taste(Qt::Key taste) const { QTest::keyClick(&ansicht(), taste, Qt::ControlModifier); }
    static const QMimeData &ablage() { return *QGuiApplication::clipboard()->mimeData(); }
    static void legeText(const QString &text) { QGuiApplication::clipboard()->setText(text); }
    static void legeEigenes(const QByteArray &daten)
    {
        auto *alle = new QMimeData;
        alle->setData(QLatin1String(ablageformat), daten);
        QGuiApplication::clipboard()->setMimeData(alle);
    }
    QAction *eintrag(const QString &text) const
    {
        for (QAction *einer : m_probe->fenster->menuBar()->findChildren<QAction *>()) {
            if (einer->text().remove(u'&') == text) {
                return einer;
            }
        }
        return nullptr;
    }
    QPushButton *hinweisknopf() const
    {
        for (QPushButton *einer : m_probe->fenster->hinweise->findChildren<QPushButton *>()) {
            if (einer->text() == u"Rückgängig"_s) {
                return einer;
            }
        }
        return nullptr;
    }
};

void TestTagefensterUmzug::chosenRowsAreCopiedAndPasted()
{
    waehle({{Art::Speise, 0, 0}, {Art::Speise, 0, 1}, {Art::Speise, 0, 2}});
    taste(Qt::Key_C);
    QVERIFY(m_probe->hinweise().contains(u"Kopierte Zeilen: 3."_s));
    QCOMPARE(buch().schritte.index(), 0);
    zumPlatz({Art::Speise, 2, 0});
    taste(Qt::Key_V);
    QCOMPARE(mahlzeit(0), u"ApfelToast|Milch"_s);
    QCOMPARE(mahlzeit(2), u"WasserApfelToast|Milch"_s);
    QCOMPARE(m_probe->hinweise().first(), u"Eingefügte Zeilen: 3."_s);
    einSchritt(0);
    QCOMPARE(ansicht().gewaehlteZeilen().size(), 3);
    QVERIFY(ansicht().gewaehlteZeilen().constFirst() == (Platz{Art::Speise, 2, 1}));
    QVERIFY(hinweisknopf() != nullptr);
    QTest::mouseClick(hinweisknopf(), Qt::LeftButton);
    QCOMPARE(mahlzeit(2), u"Wasser"_s);
}

void TestTagefensterUmzug::aSpreadsheetReadsWhatIsCopied()
{
    Aufzeichnung eine = m_probe->jetzige();
    buch().aendere(u"x"_s, [](Aufzeichnung &was) {
        Mahlzeitzeile fremde;
        fremde.text = u"=1+1"_s;
        fremde.angabe = u"-3"_s;
        was.tage[0].mahlzeiten[0].zeilen = {zeile(u"Apfel"_s, 62.5F), fremde};
        return true;
    });
    waehle({{Art::Speise, 0, 0}, {Art::Speise, 0, 1}});
    taste(Qt::Key_C);
    // 62.5 g of 100 kcal in 100 g; what a spreadsheet would run as a formula has an apostrophe.
    QCOMPARE(ablage().text(), u"Mahlzeit\tLebensmittel\tMenge\tGramm\tkcal\n"
                              "Frühstück\tApfel\t62.5\t62,5\t62,5\n"
                              "Frühstück\t'=1+1\t'-3\t\t\n"_s);
    QVERIFY(ablage().hasHtml());
}

void TestTagefensterUmzug::theNameOfAMealMeansTheMeal()
{
    zumPlatz({Art::Mahlzeit, 2, 0});
    taste(Qt::Key_C);
    zumPlatz({Art::Mahlzeit, 0, 0});
    taste(Qt::Key_V);
    QCOMPARE(mahlzeit(0), u"ApfelToast|MilchWasser"_s);
    QCOMPARE(m_probe->jetzige().tage[0].mahlzeiten[0].notiz, u"im Büro"_s);
    einSchritt(0);
}

void TestTagefensterUmzug::aNoteAloneMovesToo()
{
    buch().aendere(u"x"_s, [](Aufzeichnung &was) {
        was.tage[0].mahlzeiten[2].zeilen.clear();
        return true;
    });
    zumPlatz({Art::Mahlzeit, 2, 0});
    taste(Qt::Key_C);
    zumPlatz({Art::Mahlzeit, 1, 0});
    taste(Qt::Key_V);
    QCOMPARE(m_probe->jetzige().tage[0].mahlzeiten[1].notiz, u"im Büro"_s);
    einSchritt(1);
}

void TestTagefensterUmzug::nothingChosenIsTold()
{
    legeText(u"bleibt"_s);
    for (const Platz &platz : {Platz{Art::Eingabe, 0, 3}, Platz{Art::Mahlzeit, 1, 0}}) {
        zumPlatz(platz);
        taste(Qt::Key_C);
        QCOMPARE(m_probe->hinweise().first(), u"Es ist keine Zeile ausgewählt."_s);
        taste(Qt::Key_X);
        QCOMPARE(ablage().text(), u"bleibt"_s);
    }
    QCOMPARE(buch().schritte.index(), 0);
}

void TestTagefensterUmzug::rowsAreCutInOneStep()
{
    waehle({{Art::Speise, 0, 0}, {Art::Speise, 2, 0}});
    taste(Qt::Key_X);
    QCOMPARE(mahlzeit(0), u"Toast|Milch"_s);
    QCOMPARE(mahlzeit(2), QString());
    QCOMPARE(m_probe->hinweise().first(), u"Ausgeschnittene Zeilen: 2."_s);
    einSchritt(0);
    buch().schritte.undo();
    QCOMPARE(mahlzeit(0), u"ApfelToast|Milch"_s);
    QCOMPARE(mahlzeit(2), u"Wasser"_s);
    // Rows of several meals each go to their own.
    buch().waehleTag(1);
    taste(Qt::Key_V);
    QCOMPARE(mahlzeit(0, 1), u"Apfel"_s);
    QCOMPARE(mahlzeit(2, 1), u"Wasser"_s);
}

void TestTagefensterUmzug::aMealIsCutWithItsNote()
{
    zumPlatz({Art::Mahlzeit, 2, 0});
    taste(Qt::Key_X);
    QVERIFY(m_probe->jetzige().tage[0].mahlzeiten[2] == Mahlzeit());
    QCOMPARE(m_probe->jetzige().mahlzeiten.size(), 6);
    einSchritt(0);
}

void TestTagefensterUmzug::whatIsLeftOfAChoiceCounts()
{
    waehle({{Art::Speise, 0, 1}});
    taste(Qt::Key_X);
    QCOMPARE(mahlzeit(0), u"ApfelMilch"_s);
}

/// While something is typed, cutting, copying and pasting is about that.
void TestTagefensterUmzug::fieldsKeepTheirOwnClipboard()
{
    QLineEdit &titel = *m_probe->fenster->titel;
    titel.setFocus();
    Fensterprobe::tippe(u"Woche"_s);
    titel.selectAll();
    QTest::keyClick(&titel, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(ablage().text(), u"Woche"_s);
    eintrag(u"Zeilen ausschneiden"_s)->trigger();
    QCOMPARE(titel.text(), QString());
    eintrag(u"Zeilen einfügen"_s)->trigger();
    eintrag(u"Zeilen einfügen"_s)->trigger();
    QCOMPARE(titel.text(), u"WocheWoche"_s);
    titel.setSelection(0, 2);
    eintrag(u"Zeilen kopieren"_s)->trigger();
    QCOMPARE(ablage().text(), u"Wo"_s);
    QCOMPARE(mahlzeit(0), u"ApfelToast|Milch"_s);

    m_probe->fenster->tagezahl->setFocus();
    m_probe->fenster->tagezahl->selectAll();
    eintrag(u"Zeilen kopieren"_s)->trigger();
    QCOMPARE(ablage().text(), u"2"_s);
    legeText(u"Wo"_s);

    ansicht().setFocus();
    zumPlatz({Art::Eingabe, 0, 3});
    Fensterprobe::tippe(u"Ap"_s);
    QTest::keyClick(ansicht().feld(), Qt::Key_V, Qt::ControlModifier);
    QVERIFY(ansicht().feld() != nullptr);
    QCOMPARE(ansicht().feld()->text(), u"ApWo"_s);
}

void TestTagefensterUmzug::pastedRowsComeBehindTheCursor_data()
{
    QTest::addColumn<int>("art");
    QTest::addColumn<int>("zeile");
    QTest::addColumn<QString>("danach");
    QTest::newRow("on a row") << static_cast<int>(Art::Speise) << 0 << u"ApfelWasserToast|Milch"_s;
    QTest::newRow("on a row with an alternative")
        << static_cast<int>(Art::Speise) << 1 << u"ApfelToast|MilchWasser"_s;
    QTest::newRow("where the next is typed")
        << static_cast<int>(Art::Eingabe) << 3 << u"ApfelToast|MilchWasser"_s;
    QTest::newRow("on the name") << static_cast<int>(Art::Mahlzeit) << 0
                                 << u"ApfelToast|MilchWasser"_s;
}

void TestTagefensterUmzug::pastedRowsComeBehindTheCursor()
{
    QFETCH(const int, art);
    QFETCH(const int, zeile);
    legeText(u"Wasser\t200 g"_s);
    zumPlatz({static_cast<Art>(art), 0, zeile});
    taste(Qt::Key_V);
    QTEST(mahlzeit(0), "danach");
}

void TestTagefensterUmzug::pastedFoodsAreThoseOfToday()
{
    waehle({{Art::Speise, 0, 0}});
    taste(Qt::Key_C);
    m_probe->speisen[u"Apfel"_s] = Aufzeichnungsprobe::speise(u"Apfel"_s, 52);
    zumPlatz({Art::Eingabe, 1, 0});
    taste(Qt::Key_V);
    QCOMPARE(m_probe->zeile(1, 0).eintrag->kal(), 52.0F);
    QCOMPARE(m_probe->zeile(0, 0).eintrag->kal(), 100.0F);
}

void TestTagefensterUmzug::textBecomesRows()
{
    legeText(u"2 Scheiben Toast\nMilch 1 EL\nOmas Kuchen\nApfel drei Bissen"_s);
    zumPlatz({Art::Eingabe, 1, 0});
    taste(Qt::Key_V);
    QCOMPARE(m_probe->hinweise().first(), u"Eingefügte Zeilen: 4. Davon zählen nicht: 2."_s);
    QCOMPARE(m_probe->zeile(1, 0).gramm, std::optional(40.0F)); // 2 slices of 20 g
    QCOMPARE(m_probe->zeile(1, 1).gramm, std::optional(10.0F)); // 1 spoon of 10 g
    QCOMPARE(m_probe->zeile(1, 2).text, u"Omas Kuchen"_s);
    QCOMPARE(m_probe->zeile(1, 3).angabe, u"drei Bissen"_s);
    QVERIFY(!m_probe->zeile(1, 3).gramm);
    einSchritt(0);
}

void TestTagefensterUmzug::damageIsToldAndNothingChanges_data()
{
    QTest::addColumn<QByteArray>("eigenes"); // null: there is text
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("hinweis");
    QTest::newRow("damaged") << QByteArray("{\"format\":") << QString()
                             << u"Was in der Zwischenablage steht, ist beschädigt. Es wurde nichts "
                                "eingefügt."_s;
    QTest::newRow("newer")
        << QByteArray(R"({"format":"Mahlberg days","version":9,"part":"rows"})") << QString()
        << u"Was in der Zwischenablage steht, kommt aus einer neueren Fassung des Programms. Es "
           "wurde nichts eingefügt."_s;
    QTest::newRow("too much") << QByteArray() << u"Apfel\t1\n"_s.repeated(1001)
                              << u"In der Zwischenablage stehen mehr als 1000 Zeilen. Es wurde "
                                 "nichts eingefügt."_s;
    QTest::newRow("nothing") << QByteArray() << QString()
                             << u"In der Zwischenablage steht nichts, was hierher passt."_s;
}

void TestTagefensterUmzug::damageIsToldAndNothingChanges()
{
    QFETCH(const QByteArray, eigenes);
    QFETCH(const QString, text);
    if (!eigenes.isNull()) {
        legeEigenes(eigenes);
    } else if (!text.isNull()) {
        legeText(text);
    }
    const Aufzeichnung vorher = m_probe->jetzige();
    zumPlatz({Art::Eingabe, 1, 0});
    taste(Qt::Key_V);
    QTEST(m_probe->hinweise().first(), "hinweis");
    QVERIFY(hinweisknopf() == nullptr);
    eintrag(u"Tag einfügen"_s)->trigger();
    QVERIFY(m_probe->jetzige() == vorher);
}

void TestTagefensterUmzug::aDayIsCutAndPasted()
{
    eintrag(u"Tag ausschneiden"_s)->trigger();
    QCOMPARE(mahlzeit(0), QString());
    QCOMPARE(m_probe->hinweise().first(), u"Tag 1 ist leer."_s);
    einSchritt(0);
    buch().waehleTag(1);
    eintrag(u"Tag einfügen"_s)->trigger();
    QCOMPARE(mahlzeit(0, 1), u"ApfelToast|Milch"_s);
    QCOMPARE(m_probe->jetzige().tage[1].mahlzeiten[2].notiz, u"im Büro"_s);
    buch().schritte.undo();
    buch().schritte.undo();
    QCOMPARE(mahlzeit(0), u"ApfelToast|Milch"_s);
}

void TestTagefensterUmzug::aDayIsCopiedOntoAnother()
{
    eintrag(u"Tag kopieren"_s)->trigger();
    QCOMPARE(m_probe->hinweise().first(), u"Kopiert: Tag 1 mit 4 Zeilen."_s);
    buch().waehleTag(1);
    buch().aendere(u"x"_s, [](Aufzeichnung &was) {
        was.tage[1].mahlzeiten[4].zeilen = {zeile(u"Apfel"_s, 1)};
        return true;
    });
    eintrag(u"Tag einfügen"_s)->trigger();
    QCOMPARE(m_probe->hinweise().first(),
             u"Tag 2 hat jetzt den kopierten Tag: 4 Zeilen. Ersetzte Zeilen: 1."_s);
    QCOMPARE(mahlzeit(0, 1), u"ApfelToast|Milch"_s);
    QCOMPARE(mahlzeit(4, 1), QString());
    QCOMPARE(m_probe->jetzige().tage[1].mahlzeiten[2].notiz, u"im Büro"_s);
    einSchritt(1);
    QTest::mouseClick(hinweisknopf(), Qt::LeftButton);
    QCOMPARE(mahlzeit(4, 1), u"Apfel"_s);
    buch().schritte.undo();
    eintrag(u"Tag einfügen"_s)->trigger();
    QCOMPARE(m_probe->hinweise().first(), u"Tag 2 hat jetzt den kopierten Tag: 4 Zeilen."_s);
    eintrag(u"Tag einfügen"_s)->trigger();
    QCOMPARE(buch().schritte.index(), 1); // it was there already
    QVERIFY(m_probe->fenster->hinweise->hinweise().first().knopf.isEmpty());
    // The keys for pasting know a day as well.
    buch().schritte.undo();
    taste(Qt::Key_V);
    QCOMPARE(mahlzeit(0, 1), u"ApfelToast|Milch"_s);
}

void TestTagefensterUmzug::rowsAreNoDay()
{
    waehle({{Art::Speise, 0, 0}});
    taste(Qt::Key_C);
    eintrag(u"Tag einfügen"_s)->trigger();
    QVERIFY(m_probe->hinweise().first().startsWith(u"In der Zwischenablage steht kein Tag."_s));
    QCOMPARE(mahlzeit(0), u"ApfelToast|Milch"_s);
}

void TestTagefensterUmzug::theWayBackGoesWithTheNextChange()
{
    waehle({{Art::Speise, 0, 0}});
    taste(Qt::Key_X);
    QVERIFY(hinweisknopf() != nullptr);
    QTest::keyClick(&ansicht(), Qt::Key_Delete);
    QVERIFY(!m_probe->fenster->hinweise->zeigt(u"umzug"_s));
}

void TestTagefensterUmzug::aReadOnlyRecordTakesNothing()
{
    waehle({{Art::Speise, 0, 0}});
    taste(Qt::Key_C);
    m_probe->ablage.laesstSchreiben = false;
    const Aufzeichnung vorher = m_probe->jetzige();
    for (const Qt::Key eine : {Qt::Key_V, Qt::Key_X}) {
        taste(eine);
        QCOMPARE(m_probe->hinweise().first(), u"Diese Aufzeichnung lässt sich nicht ändern."_s);
    }
    QVERIFY(m_probe->jetzige() == vorher);
}

void TestTagefensterUmzug::withoutARecordItIsTold()
{
    m_probe = std::make_unique<Fensterprobe>();
    legeText(u"Apfel"_s);
    m_probe->fenster->fuegeEin();
    QCOMPARE(m_probe->hinweise().first(), u"Es gibt noch keine Aufzeichnung."_s);
    m_probe->fenster->kopiere();
    m_probe->fenster->kopiereTag();
    QCOMPARE(ablage().text(), u"Apfel"_s);
}

void TestTagefensterUmzug::keysMoveRows()
{
    zumPlatz({Art::Speise, 0, 0});
    QTest::keyClick(&ansicht(), Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(mahlzeit(0), u"Toast|MilchApfel"_s);
    QVERIFY(*ansicht().platz() == (Platz{Art::Speise, 0, 2}));
    QTest::keyClick(&ansicht(), Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(mahlzeit(0), u"ApfelToast|Milch"_s);
    QVERIFY(*ansicht().platz() == (Platz{Art::Speise, 0, 0}));
    QCOMPARE(buch().schritte.index(), 2);
    QTest::keyClick(&ansicht(), Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(buch().schritte.index(), 2); // above the first there is nothing
}

void TestTagefensterUmzug::keysMoveSeveralRowsIntoTheNextMeal()
{
    waehle({{Art::Speise, 0, 0}, {Art::Speise, 0, 1}});
    QTest::keyClick(&ansicht(), Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(mahlzeit(0), QString());
    QCOMPARE(mahlzeit(1), u"ApfelToast|Milch"_s);
    QCOMPARE(ansicht().gewaehlteZeilen().size(), 3);
    QTest::keyClick(&ansicht(), Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(mahlzeit(2), u"ApfelToast|MilchWasser"_s);
}

void TestTagefensterUmzug::whatIsTypedMovesAlong()
{
    ansicht().geheZu({Art::Speise, 0, 0}, Tagesmodell::Angabe);
    Fensterprobe::tippe(u"70"_s);
    eintrag(u"Zeilen hinunter"_s)->trigger();
    QCOMPARE(mahlzeit(0), u"Toast|MilchApfel"_s);
    QCOMPARE(m_probe->zeile(0, 2).gramm, std::optional(70.0F));
}

QTEST_MAIN(TestTagefensterUmzug)
#include "TestTagefensterUmzug.moc"
