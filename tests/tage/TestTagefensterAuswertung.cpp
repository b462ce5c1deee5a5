// What days come to, in the window in which they are typed: the pictures below the sums, and the
// evaluation that follows in a window of its own.

#include "Fensterprobe.h"
#include "Tagesauswertungsfenster.h"
#include "Tagesbilder.h"
#include "Textfeld.h"

#include <QHeaderView>
#include <QScrollArea>
#include <QScrollBar>

using namespace Qt::StringLiterals;

class TestTagefensterAuswertung : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
    void init();
    void cleanup() { m_probe.reset(); }

    void picturesFollowWhatIsTyped();
    void picturesFollowTheDay();
    void everythingIsInSightOnASmallScreen();
    void onATinyWindowTheSideRolls();
    void keysOpenTheEvaluation();
    void theEvaluationFollowsWhatIsTyped();
    void theEvaluationFollowsDayAndNeed();
    void theEvaluationGoesWithItsWindow();
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

    std::unique_ptr<Fensterprobe> m_probe;
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
