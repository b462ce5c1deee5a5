// What days come to, in the window in which they are typed: the pictures below the sums, and the
// evaluation that follows in a window of its own.

#include "Tagefenstertest.h"
#include "Tagesauswertungsfenster.h"
#include "Tagesbilder.h"
#include "Textfeld.h"
#include "Woerterbuch.h"

#include <QHeaderView>
#include <QScrollArea>
#include <QScrollBar>

using namespace Qt::StringLiterals;

class TestTagefensterAuswertung : public Tagefenstertest
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void picturesFollowWhatIsTyped();
    void picturesFollowTheDay();
    void everythingIsInSightOnASmallScreen();
    void onATinyWindowTheSideRolls();
    void keysOpenTheEvaluation();
    void theEvaluationFollowsWhatIsTyped();
    void theEvaluationFollowsDayAndNeed();
    void theEvaluationGoesWithItsWindow();
    void theEvaluationFollowsTheLanguage();
    void withoutARecordTheEvaluationSaysSo();

private:
    Tagesauswertungsfenster &auswertung() const { return m_probe->fenster->auswertungsfenster(); }
    Tagesbilder &bilder() const { return *m_probe->fenster->bilder; }
    QString energie() const
    {
        return auswertung()
            .bedarfsgitter->prozent(Naehrwert::kal)
            .textAufPapier()
            .replace(QChar(QChar::Nbsp), u' ');
    }
    void oeffne() const { QTest::keyClick(m_probe->fenster.get(), Qt::Key_E, Qt::ControlModifier); }
};

/// 100 g of any food are 100 kcal, of which all come from 25 g of carbohydrate.
void TestTagefensterAuswertung::init()
{
    m_probe = std::make_unique<Fensterprobe>();
    for (Datenmodul &speise : m_probe->speisen) {
        speise.setkh(25);
        speise.setdiabetes(u"+"_s);
    }
    m_probe->bedarf = {2000, 2200};
    m_probe->neu();
}

void TestTagefensterAuswertung::picturesFollowWhatIsTyped()
{
    QVERIFY(!bilder().mahlzeiten->anteile()[0].energie);
    Fensterprobe::gibEin(u"Milch"_s, u"150"_s);
    QCOMPARE(bilder().mahlzeiten->anteile()[0].energie, 150.0);
    QCOMPARE(bilder().mahlzeiten->anteile()[0].prozent, 100.0);
    Fensterprobe::gibEin(u"Kuchen von Oma"_s, u"1 Stück"_s);
    QCOMPARE(bilder().mahlzeiten->anteile()[0].unverstanden, 1);
    QCOMPARE(bilder().wertungszahlen->worte(Wertung::diabetes, false),
             u"Diabetes, Tag: 1 geeignet, 0 neutral, 0 ungeeignet"_s);
    QTest::keyClick(m_probe->fenster.get(), Qt::Key_Escape);
    m_probe->fenster->buch.schritte.setIndex(0); // all of it taken back
    QVERIFY(!bilder().mahlzeiten->anteile()[0].energie);
    QVERIFY(bilder().wertungszahlen->worte(Wertung::diabetes, false).isNull());
}

void TestTagefensterAuswertung::picturesFollowTheDay()
{
    Fensterprobe::gibEin(u"Milch"_s, u"150"_s);
    m_probe->fenster->naechsterTag();
    QVERIFY(!bilder().mahlzeiten->anteile()[0].energie);
    QCOMPARE(bilder().mahlzeiten->anteile()[0].mittel, 150.0);
    m_probe->fenster->vorigerTag();
    QCOMPARE(bilder().mahlzeiten->anteile()[0].energie, 150.0);
}

/// A screen of 1366 by 768 points, less title bar and panel.
void TestTagefensterAuswertung::everythingIsInSightOnASmallScreen()
{
    Fensterprobe::gibEin(u"Milch"_s, u"150"_s);
    Fensterprobe::gibEin(u"Kuchen von Oma"_s, u"1 Stück"_s);
    Tagefenster &fenster = *m_probe->fenster;
    fenster.resize(1358, 700);
    QCoreApplication::processEvents();
    QCOMPARE(fenster.size(), QSize(1358, 700));
    const QTableView &summen = *fenster.summen;
    QCOMPARE(summen.model()->rowCount(), 17);
    QVERIFY(summen.viewport()->height() >= summen.verticalHeader()->length());
    QVERIFY(!summen.verticalScrollBar()->isVisible());
    for (const QWidget *teil : std::initializer_list<QWidget *>{
             fenster.summen, fenster.mittelworte, bilder().mahlzeiten, bilder().wertungszahlen}) {
        QCOMPARE(teil->visibleRegion().boundingRect(), teil->rect());
        QVERIFY(teil->height() >= teil->minimumSizeHint().height());
    }
    // The names of the meals can be read.
    QVERIFY(bilder().mahlzeiten->width() >= bilder().mahlzeiten->sizeHint().width());
}

void TestTagefensterAuswertung::onATinyWindowTheSideRolls()
{
    Tagefenster &fenster = *m_probe->fenster;
    fenster.resize(1000, 420);
    QCoreApplication::processEvents();
    QVERIFY(fenster.height() <= 480);
    auto *bereich = fenster.rechteSeite->findChild<QScrollArea *>();
    QVERIFY(bereich->verticalScrollBar()->maximum() > 0);
    bereich->verticalScrollBar()->setValue(bereich->verticalScrollBar()->maximum());
    QVERIFY(!bilder().wertungszahlen->visibleRegion().isEmpty());
    QCOMPARE(bilder().mahlzeiten->height(), bilder().mahlzeiten->minimumSizeHint().height());
}

void TestTagefensterAuswertung::keysOpenTheEvaluation()
{
    oeffne();
    QVERIFY(auswertung().isVisible());
    QVERIFY(auswertung().isWindow());
    QVERIFY(!auswertung().isModal());
    QTest::keyClick(&auswertung(), Qt::Key_Escape);
    QVERIFY(!auswertung().isVisible());
    oeffne();
    QVERIFY(auswertung().isVisible());
}

void TestTagefensterAuswertung::theEvaluationFollowsWhatIsTyped()
{
    Fensterprobe::gibEin(u"Milch"_s, u"200"_s);
    oeffne();
    QCOMPARE(energie(), u"10,0 %"_s); // 50 g of carbohydrate are 200 of 2000 kcal
    m_probe->fenster->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_probe->fenster.get()));
    m_probe->fenster->ansicht->setFocus();
    m_probe->fenster->ansicht->geheZu({Tagesmodell::Art::Eingabe, 0, 1}, Tagesmodell::Name);
    Fensterprobe::gibEin(u"Wasser"_s, u"300"_s);
    QCOMPARE(energie(), u"25,0 %"_s);
    QVERIFY(!auswertung().unverstandenworte->isVisible());
    Fensterprobe::gibEin(u"Kuchen von Oma"_s, u"1 Stück"_s);
    QVERIFY(auswertung().unverstandenworte->isVisible());
}

void TestTagefensterAuswertung::theEvaluationFollowsDayAndNeed()
{
    Fensterprobe::gibEin(u"Milch"_s, u"200"_s);
    oeffne();
    QCOMPARE(auswertung().gegenstandsworte->text(), tagesname(m_probe->jetzige(), 0));
    m_probe->bedarf = {1000, 1000};
    m_probe->fenster->frischeAuf();
    QCOMPARE(energie(), u"20,0 %"_s);
    m_probe->bedarf = {};
    m_probe->fenster->frischeAuf();
    QVERIFY(auswertung().bedarfsworte->text().startsWith(u"Der Rechner kennt den Bedarf noch"_s));
    m_probe->fenster->naechsterTag();
    QCOMPARE(auswertung().gegenstandsworte->text(), tagesname(m_probe->jetzige(), 1));
    QCOMPARE(auswertung().leerworte->text(), u"An diesem Tag zählt noch nichts."_s);
    QVERIFY(auswertung().leerworte->isVisible());
    auswertung().mittelknopf->click();
    QVERIFY(!auswertung().leerworte->isVisible());
    QCOMPARE(auswertung().gegenstandsworte->text(), u"Tage im Mittel: 1."_s);
}

void TestTagefensterAuswertung::theEvaluationGoesWithItsWindow()
{
    oeffne();
    QVERIFY(auswertung().isVisible());
    m_probe->fenster->close();
    QVERIFY(!auswertung().isVisible());
    m_probe->fenster->zeige();
    QVERIFY(!auswertung().isVisible());
}

void TestTagefensterAuswertung::theEvaluationFollowsTheLanguage()
{
    oeffne();
    Woerterbuch englisch;
    QCoreApplication::installTranslator(&englisch);
    m_probe->fenster->folgeSprache();
    QCoreApplication::removeTranslator(&englisch);
    QStringList gezeigt;
    for (const QWidget *fenster :
         {static_cast<QWidget *>(&auswertung()), static_cast<QWidget *>(bilder().wertungszahlen)}) {
        for (const QLabel *feld : fenster->findChildren<QLabel *>()) {
            gezeigt << feld->text();
        }
    }
    QCOMPARE(gezeigt.count(u"Gout"_s), 2);
    QCOMPARE(gezeigt.count(u"Gicht"_s), 0);
}

void TestTagefensterAuswertung::withoutARecordTheEvaluationSaysSo()
{
    Probeablage leere;
    oeffne();
    m_probe->fenster->setzeAblage(leere);
    QCOMPARE(auswertung().leerworte->text(), u"Keine Aufzeichnung ist geöffnet."_s);
    QVERIFY(auswertung().leerworte->isVisible());
    QVERIFY(bilder().mahlzeiten->anteile().isEmpty());
    m_probe->fenster->setzeAblage(m_probe->ablage);
    QCOMPARE(auswertung().leerworte->text(), u"An diesem Tag zählt noch nichts."_s);
}

QTEST_MAIN(TestTagefensterAuswertung)
#include "TestTagefensterAuswertung.moc"
