// What is written of a recipe is what is read again, and nothing else is read.

#include "Rezeptprobe.h"
#include "Rezepttext.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

#include <cmath>
#include <functional>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

using Aenderung = std::function<void(QJsonObject &)>;

std::optional<Rezept> hinUndHer(const Rezept &rezept)
{
    const QByteArray bytes = QJsonDocument(alsJson(rezept)).toJson();
    return rezeptAus(QJsonDocument::fromJson(bytes).object());
}

/// A change of the first ingredient.
Aenderung anZutat(const Aenderung &aendere)
{
    return [aendere](QJsonObject &alles) {
        QJsonArray zutaten = alles[u"ingredients"_s].toArray();
        QJsonObject eine = zutaten[0].toObject();
        aendere(eine);
        zutaten[0] = eine;
        alles[u"ingredients"_s] = zutaten;
    };
}

/// A change of the values of a record in `ort`.
Aenderung anWerten(const QString &ort, const Aenderung &aendere)
{
    return [ort, aendere](QJsonObject &alles) {
        QJsonObject satz = alles[ort].toObject();
        QJsonObject werte = satz[u"values"_s].toObject();
        aendere(werte);
        satz[u"values"_s] = werte;
        alles[ort] = satz;
    };
}

} // namespace
Q_DECLARE_METATYPE(Aenderung)

class TestRezepttext : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aRecipeComesBackAsItWas();
    void whatIsAbsentStaysAbsent();
    void valuesThatAreNoNumberComeBackAsSuch();
    void theFormIsKept();
    void whatIsNoRecipeIsNotRead_data();
    void whatIsNoRecipeIsNotRead();
};

void TestRezepttext::aRecipeComesBackAsItWas()
{
    const std::optional<Rezept> zurueck = hinUndHer(Rezeptprobe::volle());
    QVERIFY(zurueck);
    QVERIFY(*zurueck == Rezeptprobe::volle());
    QCOMPARE(zurueck->zutaten[0].satz.vitc(), 0.1F);
    QCOMPARE(zurueck->zutaten[0].gramm, 0.1 + 0.2);
    QCOMPARE(zurueck->gegeben.uebergewicht(), u"+"_s);
    QCOMPARE(zurueck->wertungen[stelle(Wertung::gicht)], u"-"_s);
}

void TestRezepttext::whatIsAbsentStaysAbsent()
{
    const std::optional<Rezept> zurueck = hinUndHer(Rezeptprobe::brotsuppe());
    QVERIFY(zurueck);
    QVERIFY(*zurueck == Rezeptprobe::brotsuppe());
    QVERIFY(!zurueck->fertiggewicht && !zurueck->portionen);
    QVERIFY(zurueck->folgt);
    QVERIFY(zurueck->wertungen[0].isNull() && zurueck->zutaten[0].satz.hkk().isNull());
    QVERIFY(zurueck->gegeben.name().isNull());
}

void TestRezepttext::valuesThatAreNoNumberComeBackAsSuch()
{
    Rezept rezept = Rezeptprobe::brotsuppe();
    rezept.zutaten[1].satz.setfe(std::numeric_limits<float>::quiet_NaN());
    rezept.gegeben.setfe(std::numeric_limits<float>::infinity());
    const std::optional<Rezept> zurueck = hinUndHer(rezept);
    QVERIFY(zurueck);
    QVERIFY(std::isnan(zurueck->zutaten[1].satz.fe()));
    QVERIFY(std::isnan(zurueck->gegeben.fe()));
}

/// Programs of later years read this.
void TestRezepttext::theFormIsKept()
{
    const QJsonObject alles = alsJson(Rezeptprobe::volle());
    QCOMPARE(alles.keys(),
             QStringList({u"finished"_s, u"follows"_s, u"food"_s, u"given"_s, u"group"_s,
                          u"ingredients"_s, u"note"_s, u"portions"_s, u"ratings"_s}));
    const QJsonObject zutat = alles[u"ingredients"_s].toArray()[1].toObject();
    QCOMPARE(zutat.keys(), QStringList({u"food"_s, u"grams"_s, u"record"_s}));
    QCOMPARE(zutat[u"grams"_s].toDouble(), 300.0);
    const QJsonObject satz = zutat[u"record"_s].toObject();
    QCOMPARE(satz.keys(), QStringList({u"name"_s, u"ratings"_s, u"values"_s}));
    QCOMPARE(satz[u"values"_s].toObject().size(), 17);
    QCOMPARE(satz[u"values"_s].toObject()[u"kal"_s].toDouble(), 66.0);
    QCOMPARE(alles[u"ratings"_s].toObject(), QJsonObject({{u"gicht"_s, u"-"_s}}));
    QCOMPARE(alsJson(Rezeptprobe::brotsuppe()).keys(),
             QStringList({u"follows"_s, u"food"_s, u"given"_s, u"ingredients"_s, u"ratings"_s}));
}

void TestRezepttext::whatIsNoRecipeIsNotRead_data()
{
    QTest::addColumn<Aenderung>("aendere");
    const auto zeile = [](const char *name, const Aenderung &aendere) {
        QTest::newRow(name) << aendere;
    };
    const auto ohne = [](const QString &feld) {
        return [feld](QJsonObject &o) {
            o.remove(feld);
        };
    };
    const auto setze = [](const QString &feld, const QJsonValue &wert) {
        return [feld, wert](QJsonObject &o) {
            o[feld] = wert;
        };
    };
    zeile("nothing", [](QJsonObject &o) { o = {}; });
    zeile("no name", ohne(u"food"_s));
    zeile("no ingredients", ohne(u"ingredients"_s));
    zeile("an empty list", setze(u"ingredients"_s, QJsonArray()));
    zeile("ingredients that are none", setze(u"ingredients"_s, QJsonArray({7})));
    zeile("no word whether it follows", ohne(u"follows"_s));
    zeile("a word that is none", setze(u"follows"_s, u"yes"_s));
    zeile("no record that it gave", ohne(u"given"_s));
    zeile("a weight in words", setze(u"finished"_s, u"viel"_s));
    zeile("a weight of null", setze(u"finished"_s, QJsonValue()));
    zeile("no weight", setze(u"finished"_s, 0));
    zeile("portions in words", setze(u"portions"_s, u"vier"_s));
    zeile("no portions", setze(u"portions"_s, 0));
    zeile("an ingredient without a name", anZutat(ohne(u"food"_s)));
    zeile("an ingredient without grams", anZutat(ohne(u"grams"_s)));
    zeile("an ingredient below 0 g", anZutat(setze(u"grams"_s, -1)));
    zeile("an ingredient without its record", anZutat(ohne(u"record"_s)));
    zeile("a record without a value", anZutat(anWerten(u"record"_s, ohne(u"vitc"_s))));
    zeile("a value in words", anZutat(anWerten(u"record"_s, setze(u"kal"_s, u"viel"_s))));
    zeile("what it gave without a value", anWerten(u"given"_s, ohne(u"kal"_s)));
    zeile("itself among the ingredients", anZutat(setze(u"food"_s, u"Omas \"Brotsuppe\""_s)));
}

void TestRezepttext::whatIsNoRecipeIsNotRead()
{
    QFETCH(const Aenderung, aendere);
    QJsonObject alles = alsJson(Rezeptprobe::volle());
    QVERIFY(rezeptAus(alles));
    aendere(alles);
    QVERIFY(!rezeptAus(alles));
}

QTEST_APPLESS_MAIN(TestRezepttext)
#include "TestRezepttext.moc"
