// A day as a plan, and a plan as rows of a meal.

#include "Aufzeichnungsprobe.h"
#include "Planumwandlung.h"

#include <QLocale>
#include <QTest>

using namespace Qt::StringLiterals;
using Aufzeichnungsprobe::oder;
using Aufzeichnungsprobe::speise;
using Aufzeichnungsprobe::zeile;

class TestPlanumwandlung : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void foodsComeInTheOrderOfTheDay();
    void amountsOfAFoodAreAddedUp();
    void sumsAreRoundedOnce();
    void whatCountsNothingIsLeftOut();
    void anEmptyDayIsAnEmptyPlan();
    void aPlanBecomesRows();
    void foodsComeAsTheyAreToday();
    void thereAndBackIsTheSame();

private:
    Tag m_tag;
    QMap<QString, Datenmodul> m_heute;
    Speisenachschlag m_nachschlag;
};

void TestPlanumwandlung::init()
{
    QLocale::setDefault(QLocale(QLocale::German));
    m_tag = {};
    m_tag.mahlzeiten.resize(3);
    m_heute = {{u"Brot"_s, speise(u"Brot"_s, 230)}, {u"Ei"_s, speise(u"Ei"_s, 155)}};
    m_nachschlag = [this](const QString &schluessel) -> const Datenmodul * {
        const auto gefunden = m_heute.constFind(schluessel);
        return gefunden == m_heute.constEnd() ? nullptr : &*gefunden;
    };
}

void TestPlanumwandlung::foodsComeInTheOrderOfTheDay()
{
    m_tag.mahlzeiten[0].zeilen = {zeile(u"Ei"_s, 60)};
    m_tag.mahlzeiten[2].zeilen = {zeile(u"Brot"_s, 50)};
    const Tagesplan plan = alsPlan(m_tag, m_nachschlag);
    QCOMPARE(plan.posten.size(), 2);
    QCOMPARE(plan.posten[0].schluessel, u"Ei"_s);
    QCOMPARE(plan.posten[0].gramm, 60.0F);
    QCOMPARE(plan.posten[1].schluessel, u"Brot"_s);
    QCOMPARE(plan.posten[1].gramm, 50.0F);
    QVERIFY(plan.zusammengezaehlt.isEmpty());
    QVERIFY(plan.ausgelassen.isEmpty());
}

void TestPlanumwandlung::amountsOfAFoodAreAddedUp()
{
    m_tag.mahlzeiten[0].zeilen = {zeile(u"Brot"_s, 50), zeile(u"Ei"_s, 60), zeile(u"Brot"_s, 25)};
    m_tag.mahlzeiten[2].zeilen = {zeile(u"Brot"_s, 100)};
    const Tagesplan plan = alsPlan(m_tag, m_nachschlag);
    QCOMPARE(plan.posten.size(), 2);
    QCOMPARE(plan.posten[0].gramm, 175.0F); // 50 + 25 + 100
    QCOMPARE(plan.posten[1].gramm, 60.0F);
    QCOMPARE(plan.zusammengezaehlt, QStringList{u"Brot"_s});
}

/// 16777216 g and twice 1 g: single precision alone would lose both.
void TestPlanumwandlung::sumsAreRoundedOnce()
{
    m_tag.mahlzeiten[0].zeilen = {zeile(u"Brot"_s, 16777216), zeile(u"Brot"_s, 1),
                                  zeile(u"Brot"_s, 1)};
    QVERIFY(alsPlan(m_tag, m_nachschlag).posten[0].gramm == 16777218.0F);
}

void TestPlanumwandlung::whatCountsNothingIsLeftOut()
{
    Mahlzeitzeile getippt;
    getippt.text = u"Kuchen"_s;
    getippt.gramm = 100;
    Mahlzeitzeile ohneGramm = zeile(u"Ei"_s, 60);
    ohneGramm.gramm.reset();
    m_tag.mahlzeiten[0].zeilen = {zeile(u"Brot"_s, 50), oder(zeile(u"Ei"_s, 60)), getippt,
                                  ohneGramm, zeile(u"Früher"_s, 10)};
    const Tagesplan plan = alsPlan(m_tag, m_nachschlag);
    QCOMPARE(plan.posten.size(), 1);
    QCOMPARE(plan.ausgelassen, (QStringList{u"Ei"_s, u"Kuchen"_s, u"Ei"_s, u"Früher"_s}));
    QVERIFY(plan.zusammengezaehlt.isEmpty());
}

void TestPlanumwandlung::anEmptyDayIsAnEmptyPlan()
{
    const Tagesplan plan = alsPlan(m_tag, m_nachschlag);
    QVERIFY(plan.posten.isEmpty() && plan.ausgelassen.isEmpty());
    QVERIFY(alsPlan({}, m_nachschlag).posten.isEmpty());
}

void TestPlanumwandlung::aPlanBecomesRows()
{
    const QList<Mahlzeitzeile> zeilen =
        alsZeilen({{u"Brot"_s, 50, {}}, {u"Ei"_s, 62.5F, {}}}, m_nachschlag);
    QCOMPARE(zeilen.size(), 2);
    QCOMPARE(zeilen[0].schluessel, u"Brot"_s);
    QCOMPARE(zeilen[0].angabe, u"50 g"_s);
    QCOMPARE(zeilen[0].gramm, std::optional(50.0F));
    QCOMPARE(zeilen[0].eintrag->kal(), 230.0F);
    QCOMPARE(zeilen[1].angabe, u"62,5 g"_s);
    QVERIFY(zaehlt(zeilen[1]));
}

void TestPlanumwandlung::foodsComeAsTheyAreToday()
{
    const QList<Mahlzeitzeile> zeilen = alsZeilen({{u"Brot"_s, 50, speise(u"Brot"_s, 999)},
                                                   {u"Früher"_s, 50, speise(u"Früher"_s, 77)},
                                                   {u"Nie"_s, 50, {}}},
                                                  m_nachschlag);
    QCOMPARE(zeilen[0].eintrag->kal(), 230.0F);
    QCOMPARE(zeilen[1].eintrag->kal(), 77.0F);
    QVERIFY(!zeilen[2].eintrag);
}

void TestPlanumwandlung::thereAndBackIsTheSame()
{
    m_tag.mahlzeiten[0].zeilen =
        alsZeilen({{u"Brot"_s, 33.3F, {}}, {u"Ei"_s, 60, {}}}, m_nachschlag);
    const Tagesplan plan = alsPlan(m_tag, m_nachschlag);
    QCOMPARE(plan.posten.size(), 2);
    QVERIFY(plan.posten[0].gramm == 33.3F);
    QVERIFY(plan.posten[1].gramm == 60.0F);
}

QTEST_APPLESS_MAIN(TestPlanumwandlung)
#include "TestPlanumwandlung.moc"
