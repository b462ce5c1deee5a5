// How the foods of a record stand to the stores of today.

#include "Aufzeichnungsprobe.h"
#include "Zeilenstand.h"

#include <QTest>

using namespace Qt::StringLiterals;
using Aufzeichnungsprobe::oder;
using Aufzeichnungsprobe::speise;
using Aufzeichnungsprobe::zeile;

class TestZeilenstand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void aRowStandsSoToToday_data();
    void aRowStandsSoToToday();
    void aRatingIsAChangeToo();
    void valuesOfTodayAreTaken();
    void whatIsUpToDateStays();

private:
    QMap<QString, Datenmodul> m_heute;
    Speisenachschlag m_nachschlag;
};

void TestZeilenstand::init()
{
    m_heute = {{u"Brot"_s, speise(u"Brot"_s, 230)}, {u"Ei"_s, speise(u"Ei"_s, 155)}};
    m_heute.insert({}, speise({}, 1)); // whatever a store answers, a row without a food has none
    m_nachschlag = [this](const QString &schluessel) -> const Datenmodul * {
        const auto gefunden = m_heute.constFind(schluessel);
        return gefunden == m_heute.constEnd() ? nullptr : &*gefunden;
    };
}

void TestZeilenstand::aRowStandsSoToToday_data()
{
    QTest::addColumn<QString>("schluessel");
    QTest::addColumn<float>("kal"); // below 0: it was in no store
    QTest::addColumn<int>("stand");
    const auto als = [](Zeilenstand stand) {
        return static_cast<int>(stand);
    };
    QTest::newRow("the same") << u"Brot"_s << 230.0F << als(Zeilenstand::WieHeute);
    QTest::newRow("other values") << u"Brot"_s << 229.0F << als(Zeilenstand::Veraendert);
    QTest::newRow("in no store then") << u"Brot"_s << -1.0F << als(Zeilenstand::Veraendert);
    QTest::newRow("gone") << u"Früher"_s << 100.0F << als(Zeilenstand::Fort);
    QTest::newRow("in no store, then and now") << u"Nie"_s << -1.0F << als(Zeilenstand::WieHeute);
    QTest::newRow("no food") << QString() << -1.0F << als(Zeilenstand::WieHeute);
}

void TestZeilenstand::aRowStandsSoToToday()
{
    QFETCH(const QString, schluessel);
    QFETCH(const float, kal);
    Mahlzeitzeile eine;
    eine.schluessel = schluessel;
    if (kal >= 0) {
        eine.eintrag = speise(schluessel, kal);
    }
    QTEST(static_cast<int>(zeilenstand(eine, m_nachschlag)), "stand");
}

void TestZeilenstand::aRatingIsAChangeToo()
{
    const Mahlzeitzeile eine = zeile(u"Brot"_s, 50, 230);
    QVERIFY(zeilenstand(eine, m_nachschlag) == Zeilenstand::WieHeute);
    m_heute[u"Brot"_s].setWertung(Wertung::gicht, u"+"_s);
    QVERIFY(zeilenstand(eine, m_nachschlag) == Zeilenstand::Veraendert);
}

void TestZeilenstand::valuesOfTodayAreTaken()
{
    Aufzeichnung eine = neueAufzeichnung(Aufzeichnungsart::Protokoll, {}, 2);
    eine.tage[0].mahlzeiten[0].zeilen = {zeile(u"Brot"_s, 50, 230), oder(zeile(u"Ei"_s, 60, 1))};
    eine.tage[1].mahlzeiten[2].zeilen = {zeile(u"Früher"_s, 10, 5), zeile(u"Brot"_s, 50, 2),
                                         zeile(u"Früher"_s, 20, 5)};
    const Werteabgleich abgleich = uebernimmHeutigeWerte(eine, m_nachschlag);
    QCOMPARE(abgleich.uebernommen, 2);
    QCOMPARE(abgleich.fort, QStringList{u"Früher"_s});
    const Mahlzeitzeile &ei = eine.tage[0].mahlzeiten[0].zeilen[1];
    QCOMPARE(ei.eintrag->kal(), 155.0F);
    QVERIFY(ei.oder);
    QCOMPARE(ei.gramm, std::optional(60.0F));
    QCOMPARE(eine.tage[1].mahlzeiten[2].zeilen[0].eintrag->kal(), 5.0F);
    QCOMPARE(eine.tage[1].mahlzeiten[2].zeilen[1].eintrag->kal(), 230.0F);
}

void TestZeilenstand::whatIsUpToDateStays()
{
    Aufzeichnung eine = neueAufzeichnung(Aufzeichnungsart::Protokoll, {}, 1);
    eine.tage[0].mahlzeiten[0].zeilen = {zeile(u"Brot"_s, 50, 230)};
    const Aufzeichnung vorher = eine;
    QCOMPARE(uebernimmHeutigeWerte(eine, m_nachschlag).uebernommen, 0);
    QVERIFY(eine == vorher);
}

QTEST_APPLESS_MAIN(TestZeilenstand)
#include "TestZeilenstand.moc"
