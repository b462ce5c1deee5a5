// A record of days as a text: it comes back as it was, and what is no such text is told.

#include "Aufzeichnungsprobe.h"
#include "Aufzeichnungstext.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <functional>
#include <limits>

using namespace Qt::StringLiterals;
using Aufzeichnungsprobe::oder;
using Aufzeichnungsprobe::zeile;
using Zustand = Aufzeichnungslesung::Zustand;

using Eingriff = std::function<void(QJsonObject &)>;
Q_DECLARE_METATYPE(Eingriff)
Q_DECLARE_METATYPE(Zustand)

namespace {

Aufzeichnung woche()
{
    Aufzeichnung eine = neueAufzeichnung(Aufzeichnungsart::Wochenplan, QDate(2026, 11, 23), 2);
    eine.titel = u"Änne \"x\" \\ 🫚"_s;
    eine.mahlzeiten[1] = u"Brotzeit"_s;
    Mahlzeitzeile brot = zeile(u"Brot"_s, 0.1F, 242.7F);
    brot.angabe = u"2 Scheiben"_s;
    brot.eintrag->setdiabetes(u"+"_s);
    brot.eintrag->setvitc(std::numeric_limits<float>::infinity());
    Mahlzeitzeile neuesBrot = brot;
    neuesBrot.eintrag->setkal(250);
    Mahlzeitzeile unbekannte;
    unbekannte.text = u"Omas Auflauf"_s;
    unbekannte.angabe = u"1 Teller"_s;
    Mahlzeitzeile fort;
    fort.schluessel = u"fort"_s;
    fort.angabe = u"viel"_s;
    eine.tage[0].mahlzeiten[0].zeilen = {brot, oder(neuesBrot), unbekannte, fort, brot};
    eine.tage[0].mahlzeiten[0].notiz = u"a\nb"_s;
    eine.tage[1].notiz = u"Geburtstag"_s;
    eine.tage[1].imMittel = false;
    return eine;
}

} // namespace

class TestAufzeichnungstext : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aRecordComesAsItWent();
    void withoutADateItComesWithoutOne();
    void aFoodStandsThereOnceForEachContent();
    void whatIsNoRecordIsTold_data();
    void whatIsNoRecordIsTold();
    void aNewerOneIsReadAsFarAsItIsUnderstood();
    void whatIsMissingIsHarmless();
};

void TestAufzeichnungstext::aRecordComesAsItWent()
{
    const Aufzeichnungslesung gelesen = leseAufzeichnung(alsText(woche()));
    QCOMPARE(gelesen.zustand, Zustand::Gelesen);
    QVERIFY(gelesen.stelle.isEmpty());
    QVERIFY(gelesen.aufzeichnung == woche());
    QCOMPARE(alsText(gelesen.aufzeichnung), alsText(woche()));
}

void TestAufzeichnungstext::withoutADateItComesWithoutOne()
{
    Aufzeichnung eine = woche();
    eine.datum = {};
    eine.art = Aufzeichnungsart::Protokoll;
    const Aufzeichnungslesung gelesen = leseAufzeichnung(alsText(eine));
    QCOMPARE(gelesen.zustand, Zustand::Gelesen);
    QVERIFY(gelesen.aufzeichnung == eine);
}

void TestAufzeichnungstext::aFoodStandsThereOnceForEachContent()
{
    const QJsonObject alles = QJsonDocument::fromJson(alsText(woche())).object();
    const QJsonArray speisen = alles.value(u"foods"_s).toArray();
    QCOMPARE(speisen.size(), 3); // bread, the bread that was changed, and the one that is gone
    QCOMPARE(speisen[0].toObject().value(u"name"_s).toString(), u"Brot"_s);
    QCOMPARE(speisen[1].toObject().value(u"name"_s).toString(), u"Brot"_s);
    QVERIFY(!speisen[2].toObject().contains(u"per100g"_s));
    const QJsonObject erste = alles.value(u"days"_s)[0]
                                  .toObject()
                                  .value(u"meals"_s)[0]
                                  .toObject()
                                  .value(u"rows"_s)[0]
                                  .toObject();
    QCOMPARE(erste.value(u"food"_s).toInt(-1), 0);
    QCOMPARE(erste.value(u"amount"_s).toString(), u"2 Scheiben"_s);
    QVERIFY(!erste.contains(u"or"_s));
}

void TestAufzeichnungstext::whatIsNoRecordIsTold_data()
{
    QTest::addColumn<Eingriff>("eingriff");
    QTest::addColumn<Zustand>("zustand");
    QTest::addColumn<QString>("stelle");
    const auto setze = [](const QString &feld, const QJsonValue &wert) {
        return Eingriff([=](QJsonObject &alles) { alles.insert(feld, wert); });
    };
    // The first row of the first meal of the first day.
    const auto zeilenfeld = [](const QString &feld, const QJsonValue &wert) {
        return Eingriff([=](QJsonObject &alles) {
            QJsonArray tage = alles.value(u"days"_s).toArray();
            QJsonObject tag = tage[0].toObject();
            QJsonArray mahlzeiten = tag.value(u"meals"_s).toArray();
            QJsonObject mahlzeit = mahlzeiten[0].toObject();
            QJsonArray zeilen = mahlzeit.value(u"rows"_s).toArray();
            QJsonObject erste = zeilen[0].toObject();
            erste.insert(feld, wert);
            zeilen[0] = erste;
            mahlzeit.insert(u"rows"_s, zeilen);
            mahlzeiten[0] = mahlzeit;
            tag.insert(u"meals"_s, mahlzeiten);
            tage[0] = tag;
            alles.insert(u"days"_s, tage);
        });
    };
    const QString zeile = u"days[0].meals[0].rows[0]."_s;
    const auto schaden = [](const char *name, const Eingriff &eingriff, const QString &stelle) {
        QTest::newRow(name) << eingriff << Zustand::Beschaedigt << stelle;
    };
    QTest::newRow("of something else")
        << setze(u"format"_s, u"Mahlberg client"_s) << Zustand::Fremd << QString();
    schaden("without a version", setze(u"version"_s, {}), u"version"_s);
    schaden("of version 0", setze(u"version"_s, 0), u"version"_s);
    schaden("of no kind", setze(u"kind"_s, u"diary"_s), u"kind"_s);
    schaden("beginning on no day", setze(u"start"_s, u"2026-02-30"_s), u"start"_s);
    schaden("without meals", setze(u"meals"_s, QJsonArray()), u"meals"_s);
    schaden("a meal without a name", setze(u"meals"_s, QJsonArray{u"A"_s, u""_s}), u"meals"_s);
    schaden("fewer names than meals", setze(u"meals"_s, QJsonArray{u"A"_s}), u"days[0].meals"_s);
    schaden("without days", setze(u"days"_s, QJsonArray()), u"days"_s);
    schaden("a food without a name", setze(u"foods"_s, QJsonArray{QJsonObject{}}), u"foods[0]"_s);
    schaden("a food without a value",
            setze(u"foods"_s,
                  QJsonArray{QJsonObject{{u"name"_s, u"Brot"_s}, {u"per100g"_s, QJsonObject{}}}}),
            u"foods[0]"_s);
    schaden("a row of no food", zeilenfeld(u"food"_s, 3), zeile + u"food"_s);
    schaden("a row of a food before the first", zeilenfeld(u"food"_s, -1), zeile + u"food"_s);
    schaden("grams that are none", zeilenfeld(u"grams"_s, u"viel"_s), zeile + u"grams"_s);
    schaden("grams below nothing", zeilenfeld(u"grams"_s, -0.5), zeile + u"grams"_s);
    schaden("grams without end", zeilenfeld(u"grams"_s, u"inf"_s), zeile + u"grams"_s);
    schaden("an alternative to nothing", zeilenfeld(u"or"_s, true), zeile + u"or"_s);
    QJsonArray fuenfzehn;
    for (int i = 0; i < 15; ++i) {
        fuenfzehn.append(QJsonObject());
    }
    schaden("more days than there are", setze(u"days"_s, fuenfzehn), u"days"_s);
}

void TestAufzeichnungstext::whatIsNoRecordIsTold()
{
    QFETCH(Eingriff, eingriff);
    QJsonObject alles = QJsonDocument::fromJson(alsText(woche())).object();
    eingriff(alles);
    const Aufzeichnungslesung gelesen = leseAufzeichnung(QJsonDocument(alles).toJson());
    QTEST(gelesen.zustand, "zustand");
    QTEST(gelesen.stelle, "stelle");
    QVERIFY(gelesen.aufzeichnung.tage.isEmpty());
    const QByteArray halbes = alsText(woche()).chopped(10);
    QCOMPARE(leseAufzeichnung(halbes).zustand, Zustand::Fremd);
    QCOMPARE(leseAufzeichnung({}).zustand, Zustand::Fremd);
}

void TestAufzeichnungstext::aNewerOneIsReadAsFarAsItIsUnderstood()
{
    QJsonObject alles = QJsonDocument::fromJson(alsText(woche())).object();
    alles.insert(u"version"_s, 2);
    alles.insert(u"mood"_s, u"fine"_s);
    const Aufzeichnungslesung gelesen = leseAufzeichnung(QJsonDocument(alles).toJson());
    QCOMPARE(gelesen.zustand, Zustand::Neuer);
    QCOMPARE(gelesen.aufzeichnung.neuererText, QJsonDocument(alles).toJson());
    QCOMPARE(alsText(gelesen.aufzeichnung), QJsonDocument(alles).toJson());
    Aufzeichnung bekanntes = gelesen.aufzeichnung;
    bekanntes.neuererText.clear();
    QVERIFY(bekanntes == woche());
    alles.insert(u"kind"_s, u"diary"_s);
    const Aufzeichnungslesung fremder = leseAufzeichnung(QJsonDocument(alles).toJson());
    QCOMPARE(fremder.zustand, Zustand::Neuer);
    QVERIFY(fremder.aufzeichnung.tage.isEmpty());
    QCOMPARE(alsText(fremder.aufzeichnung), QJsonDocument(alles).toJson());
}

void TestAufzeichnungstext::whatIsMissingIsHarmless()
{
    const QByteArray kurz = R"({"format":"Mahlberg days","version":1,"kind":"record",)"
                            R"("meals":["A"],"days":[{"meals":[{}]},{"meals":[{"rows":[{}]}]}]})";
    const Aufzeichnungslesung gelesen = leseAufzeichnung(kurz);
    QCOMPARE(gelesen.zustand, Zustand::Gelesen);
    QCOMPARE(gelesen.aufzeichnung.tage.size(), 2);
    QVERIFY(gelesen.aufzeichnung.tage[0].imMittel);
    QVERIFY(gelesen.aufzeichnung.datum.isNull());
    QVERIFY(!gelesen.aufzeichnung.tage[1].mahlzeiten[0].zeilen[0].gramm.has_value());
}

QTEST_GUILESS_MAIN(TestAufzeichnungstext)
#include "TestAufzeichnungstext.moc"
