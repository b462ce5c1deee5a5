// Rows, meals and days that are moved about in the window of the days: with the real clipboard, the
// keys, and what the mouse carries.

#include "Fensterprobe.h"

#include <QClipboard>
#include <QDragEnterEvent>
#include <QGuiApplication>
#include <QImage>
#include <QMenuBar>
#include <QPushButton>
#include <QTabBar>

using namespace Qt::StringLiterals;
using Aufzeichnungsprobe::namen;
using Aufzeichnungsprobe::oder;
using Aufzeichnungsprobe::zeile;
using Art = Tagesmodell::Art;
using Platz = Tagesmodell::Platz;

class TestTagefensterUmzug : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
    void init();
    void cleanup() { m_probe.reset(); }

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
    void aFoodIsDroppedBetweenRows();
    void aFoodIsDroppedOntoAMeal_data();
    void aFoodIsDroppedOntoAMeal();
    void aLineShowsWhereItGoes();
    void whatIsForeignIsRefused_data();
    void whatIsForeignIsRefused();
    void aReadOnlyTableRefusesDrops();
    void draggedRowsMove();
    void draggedRowsAreCopiedWithTheKey();
    void rowsAreCarriedToAnotherDay();
    void rowsOfAnotherStateAreCopied();
    void rowsOfAnotherRecordAreCopied();
    void damagedRowsAreDroppedInVain();
    void rowsOfFoodsCanBeDragged();
    void aDragCarriesWhatOthersTake();

private:
    Tagesansicht &ansicht() const { return *m_probe->fenster->ansicht; }
    Tagebuch &buch() const { return m_probe->fenster->buch; }
    QString mahlzeit(int welche, int tag = 0) const
    {
        return namen(m_probe->jetzige(), tag, welche);
    }
    void zumPlatz(const Platz &platz) const { ansicht().geheZu(platz, Tagesmodell::Name); }
    void waehle(const QList<Platz> &plaetze) const { ansicht().waehle(plaetze); }
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
    /// A place in the table: a part of the height of this row, from its top.
    QPoint ort(const Platz &platz, double teil) const
    {
        const QRect zelle = ansicht().visualRect(
            ansicht().tagesmodell().index(ansicht().tagesmodell().reihe(platz), 0));
        return {zelle.left() + 20, zelle.top() + static_cast<int>(teil * zelle.height())};
    }
    bool halte(const QPoint &wo, const QMimeData &daten, Qt::KeyboardModifiers dazu = {}) const
    {
        QDragEnterEvent ereignis(wo, Qt::CopyAction | Qt::MoveAction, &daten, Qt::LeftButton, dazu);
        QApplication::sendEvent(ansicht().viewport(), &ereignis);
        return ereignis.isAccepted();
    }
    void wirf(const QPoint &wo, const QMimeData &daten, Qt::KeyboardModifiers dazu = {}) const
    {
        halte(wo, daten, dazu);
        QDropEvent ereignis(wo, Qt::CopyAction | Qt::MoveAction, &daten, Qt::LeftButton, dazu);
        QApplication::sendEvent(ansicht().viewport(), &ereignis);
    }
    /// What a drag of these rows carries.
    std::unique_ptr<QMimeData> gezogene(const QList<Platz> &plaetze) const
    {
        waehle(plaetze);
        return std::unique_ptr<QMimeData>(m_probe->fenster->ziehdaten());
    }
    void einSchritt(int vorher) const { QCOMPARE(buch().schritte.index(), vorher + 1); }

    std::unique_ptr<Fensterprobe> m_probe;
};

/// A record of two days: for breakfast an apple, toast or milk; for lunch water.
void TestTagefensterUmzug::init()
{
    QGuiApplication::clipboard()->clear();
    m_probe = std::make_unique<Fensterprobe>();
    Aufzeichnung eine = neueAufzeichnung(Aufzeichnungsart::Protokoll, {}, 2);
    eine.tage[0].mahlzeiten[0].zeilen = {zeile(u"Apfel"_s, 150), zeile(u"Toast"_s, 40),
                                         oder(zeile(u"Milch"_s, 125))};
    eine.tage[0].mahlzeiten[2].zeilen = {zeile(u"Wasser"_s, 200)};
    eine.tage[0].mahlzeiten[2].notiz = u"im Büro"_s;
    buch().beginne(eine);
    QVERIFY(m_probe->aktiv);
    ansicht().setFocus();
}

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

void TestTagefensterUmzug::aFoodIsDroppedBetweenRows()
{
    QMimeData daten;
    daten.setText(u"Toast"_s);
    QVERIFY(halte(ort({Art::Speise, 0, 0}, 0.2), daten));
    wirf(ort({Art::Speise, 0, 0}, 0.2), daten);
    QCOMPARE(mahlzeit(0), u"ToastApfelToast|Milch"_s);
    QCOMPARE(m_probe->zeile(0, 0).angabe, u"1 Scheibe"_s);
    QCOMPARE(m_probe->zeile(0, 0).gramm, std::optional(20.0F));
    QVERIFY(*ansicht().platz() == (Platz{Art::Speise, 0, 0}));
    QVERIFY(ansicht().feld() == nullptr);
    wirf(ort({Art::Speise, 0, 1}, 0.8), daten);
    QCOMPARE(mahlzeit(0), u"ToastApfelToastToast|Milch"_s);
    QCOMPARE(buch().schritte.index(), 2);
}

void TestTagefensterUmzug::aFoodIsDroppedOntoAMeal_data()
{
    QTest::addColumn<int>("art");
    QTest::addColumn<int>("zeile");
    QTest::addColumn<double>("teil");
    QTest::newRow("on its name") << static_cast<int>(Art::Mahlzeit) << 0 << 0.5;
    QTest::newRow("on its last row") << static_cast<int>(Art::Eingabe) << 3 << 0.1;
    QTest::newRow("between a row and its alternative") << static_cast<int>(Art::Speise) << 1 << 0.9;
    QTest::newRow("on the upper edge of an alternative")
        << static_cast<int>(Art::Speise) << 2 << 0.1;
}

void TestTagefensterUmzug::aFoodIsDroppedOntoAMeal()
{
    QFETCH(const int, art);
    QFETCH(const int, zeile);
    QFETCH(const double, teil);
    QMimeData daten;
    daten.setText(u"Wasser"_s);
    wirf(ort({static_cast<Art>(art), 0, zeile}, teil), daten);
    QCOMPARE(mahlzeit(0), u"ApfelToast|MilchWasser"_s);
    QCOMPARE(m_probe->zeile(0, 3).angabe, u"100 g"_s); // no measure is known of it
}

void TestTagefensterUmzug::aLineShowsWhereItGoes()
{
    QMimeData daten;
    daten.setText(u"Toast"_s);
    const auto bild = [this] {
        return ansicht().viewport()->grab().toImage();
    };
    const QImage vorher = bild();
    QVERIFY(halte(ort({Art::Speise, 0, 0}, 0.9), daten));
    QVERIFY(ansicht().abwurfplatz() == (Platz{Art::Speise, 0, 1}));
    const QRgb strich = ansicht().palette().color(QPalette::Highlight).rgb();
    QCOMPARE(bild().pixelColor(ort({Art::Speise, 0, 1}, 0) + QPoint(300, 0)).rgb(), strich);
    QVERIFY(halte(ort({Art::Mahlzeit, 0, 0}, 0.5), daten)); // at the end of the meal
    QCOMPARE(bild().pixelColor(ort({Art::Eingabe, 0, 3}, 0) + QPoint(300, 0)).rgb(), strich);
    QDragLeaveEvent fort;
    QApplication::sendEvent(ansicht().viewport(), &fort);
    QVERIFY(!ansicht().abwurfplatz());
    QCOMPARE(bild(), vorher);
}

void TestTagefensterUmzug::whatIsForeignIsRefused_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QByteArray>("inhalt");
    QTest::newRow("a text") << u"text/plain"_s << QByteArray("Apfelmus");
    QTest::newRow("an empty text") << u"text/plain"_s << QByteArray("");
    QTest::newRow("a picture") << u"image/png"_s << QByteArray("x");
    QTest::newRow("a file") << u"text/uri-list"_s << QByteArray("file:///Apfel");
    QTest::newRow("an origin alone") << QString::fromUtf8(herkunftsformat) << QByteArray("{}");
}

void TestTagefensterUmzug::whatIsForeignIsRefused()
{
    QFETCH(const QString, format);
    QFETCH(const QByteArray, inhalt);
    QMimeData daten;
    daten.setData(format, inhalt);
    QVERIFY(!halte(ort({Art::Speise, 0, 0}, 0.5), daten));
    wirf(ort({Art::Speise, 0, 0}, 0.5), daten);
    QCOMPARE(mahlzeit(0), u"ApfelToast|Milch"_s);
    QVERIFY(!ansicht().abwurfplatz());
}

void TestTagefensterUmzug::aReadOnlyTableRefusesDrops()
{
    m_probe->ablage.laesstSchreiben = false;
    ansicht().zeige(m_probe->jetzige(), 0, buch().aenderbar());
    QMimeData daten;
    daten.setText(u"Toast"_s);
    QVERIFY(!halte(ort({Art::Speise, 0, 0}, 0.5), daten));
}

void TestTagefensterUmzug::draggedRowsMove()
{
    wirf(ort({Art::Mahlzeit, 2, 0}, 0.5), *gezogene({{Art::Speise, 0, 0}}));
    QCOMPARE(mahlzeit(0), u"Toast|Milch"_s);
    QCOMPARE(mahlzeit(2), u"WasserApfel"_s);
    QVERIFY(*ansicht().platz() == (Platz{Art::Speise, 2, 1}));
    einSchritt(0);
}

void TestTagefensterUmzug::draggedRowsAreCopiedWithTheKey()
{
    wirf(ort({Art::Mahlzeit, 2, 0}, 0.5), *gezogene({{Art::Speise, 0, 0}}), Qt::ControlModifier);
    QCOMPARE(mahlzeit(0), u"ApfelToast|Milch"_s);
    QCOMPARE(mahlzeit(2), u"WasserApfel"_s);
    einSchritt(0);
}

/// Held over a tab, the rows open its day; there they are dropped.
void TestTagefensterUmzug::rowsAreCarriedToAnotherDay()
{
    const auto daten = gezogene({{Art::Speise, 0, 0}});
    QTabBar &tage = *m_probe->fenster->tage;
    const QPoint reiter = tage.tabRect(1).center();
    QDragEnterEvent hinein(reiter, Qt::MoveAction, daten.get(), Qt::LeftButton, {});
    QApplication::sendEvent(&tage, &hinein);
    QVERIFY(hinein.isAccepted());
    QDragMoveEvent ueber(reiter, Qt::MoveAction, daten.get(), Qt::LeftButton, {});
    QApplication::sendEvent(&tage, &ueber);
    QTRY_COMPARE(buch().tag(), 1);
    wirf(ort({Art::Mahlzeit, 1, 0}, 0.5), *daten);
    QCOMPARE(mahlzeit(0), u"Toast|Milch"_s);
    QCOMPARE(mahlzeit(1, 1), u"Apfel"_s);
}

/// Where the record has changed since, nobody knows whether the rows are still there.
void TestTagefensterUmzug::rowsOfAnotherStateAreCopied()
{
    const auto daten = gezogene({{Art::Speise, 0, 0}});
    buch().aendere(u"x"_s, [](Aufzeichnung &was) {
        was.tage[0].mahlzeiten[0].zeilen.removeFirst();
        return true;
    });
    buch().sichere();
    wirf(ort({Art::Mahlzeit, 2, 0}, 0.5), *daten);
    QCOMPARE(mahlzeit(0), u"Toast|Milch"_s);
    QCOMPARE(mahlzeit(2), u"WasserApfel"_s);
}

void TestTagefensterUmzug::rowsOfAnotherRecordAreCopied()
{
    const auto daten = gezogene({{Art::Speise, 0, 0}});
    Aufzeichnung andere = m_probe->jetzige();
    andere.kennung = QString();
    buch().beginne(andere);
    wirf(ort({Art::Mahlzeit, 2, 0}, 0.5), *daten);
    QCOMPARE(mahlzeit(0), u"ApfelToast|Milch"_s);
    QCOMPARE(mahlzeit(2), u"WasserApfel"_s);
}

void TestTagefensterUmzug::damagedRowsAreDroppedInVain()
{
    QMimeData daten;
    daten.setData(QLatin1String(ablageformat), "{}");
    wirf(ort({Art::Mahlzeit, 2, 0}, 0.5), daten);
    QCOMPARE(mahlzeit(2), u"Wasser"_s);
    QVERIFY(m_probe->hinweise().first().contains(u"beschädigt"_s));
}

void TestTagefensterUmzug::rowsOfFoodsCanBeDragged()
{
    const Qt::ItemFlags speise = ansicht().tagesmodell().flags(ansicht().tagesmodell().index(1, 0));
    const Qt::ItemFlags kopf = ansicht().tagesmodell().flags(ansicht().tagesmodell().index(0, 0));
    QVERIFY(speise.testFlag(Qt::ItemIsDragEnabled));
    QVERIFY(!kopf.testFlag(Qt::ItemIsDragEnabled));
}

/// The plan's table takes a food by its key, and only one.
void TestTagefensterUmzug::aDragCarriesWhatOthersTake()
{
    QCOMPARE(gezogene({{Art::Speise, 0, 0}})->text(), u"Apfel"_s);
    QVERIFY(!gezogene({{Art::Speise, 0, 0}, {Art::Speise, 2, 0}})->hasText());
    ansicht().clearSelection();
    QVERIFY(m_probe->fenster->ziehdaten() == nullptr);
    m_probe = std::make_unique<Fensterprobe>();
    QVERIFY(m_probe->fenster->ziehdaten() == nullptr);
}

QTEST_MAIN(TestTagefensterUmzug)
#include "TestTagefensterUmzug.moc"
