// A client goes from one desk to another in one file.

#include "Klientenuebergabe.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using Zustand = Uebergabe::Zustand;

namespace {

Klientenakte akte()
{
    Klientenakte akte;
    akte.person.kennung = QStringLiteral("p");
    akte.person.fassung = 3;
    akte.person.name = QStringLiteral("Änne \"x\" \\ 🫚");
    akte.person.geburt = QDate(1950, 12, 31);
    akte.person.leiden = {false, true, false, true};
    akte.person.notizen = QStringLiteral("a\nb");
    Besuch besuch;
    besuch.kennung = QStringLiteral("b");
    besuch.fassung = 1;
    besuch.datum = QDate(2026, 1, 2);
    besuch.gewicht = 0.1 + 0.2;
    besuch.reduktion = true;
    besuch.sport = QString::fromUtf8("");
    akte.besuche << besuch;
    Planablage plan;
    plan.kennung = QStringLiteral("l");
    plan.fassung = 2;
    plan.titel = QStringLiteral("Woche");
    plan.datum = QDate(2026, 1, 3);
    Datenmodul apfel;
    apfel.setName(QStringLiteral("Apfel"));
    apfel.setkal(0.1F);
    apfel.setdiabetes(QStringLiteral("+"));
    plan.posten = {{QStringLiteral("Apfel"), 150.5F, apfel}, {QStringLiteral("fort"), 1, {}}};
    akte.plaene << plan;
    Aufzeichnung tage = neueAufzeichnung(Aufzeichnungsart::Wochenplan, QDate(2026, 1, 5), 2);
    tage.kennung = QStringLiteral("t");
    tage.fassung = 4;
    tage.titel = QStringLiteral("Woche");
    tage.tage[1].mahlzeiten[0].zeilen << Mahlzeitzeile{.schluessel = QStringLiteral("Apfel"),
                                                       .angabe = QStringLiteral("2 Stück"),
                                                       .gramm = 300.5F,
                                                       .eintrag = apfel};
    akte.aufzeichnungen << tage;
    return akte;
}

} // namespace

class TestKlientenuebergabe : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aClientComesAsTheyWent();
    void otherProgramsCanReadIt();
    void aFileWithoutRecordsOfDaysIsTakenIn();
    void whatIsNoClientIsTold_data();
    void whatIsNoClientIsTold();
    void whatIsMissingIsAbsent();
};

void TestKlientenuebergabe::aClientComesAsTheyWent()
{
    const Uebergabe gelesen = leseAkte(akteAlsText(akte()));
    QCOMPARE(gelesen.zustand, Zustand::Gelesen);
    QCOMPARE(gelesen.akte, akte());
    QVERIFY(gelesen.akte.besuche.constFirst().sport.has_value());
    QVERIFY(!gelesen.akte.besuche.constFirst().groesse.has_value());
}

void TestKlientenuebergabe::otherProgramsCanReadIt()
{
    const QJsonObject alles = QJsonDocument::fromJson(akteAlsText(akte())).object();
    QCOMPARE(alles.value(QStringLiteral("format")).toString(), QStringLiteral("Mahlberg client"));
    QCOMPARE(alles.value(QStringLiteral("version")).toInt(), 2);
    const QJsonObject person = alles.value(QStringLiteral("person")).toObject();
    QCOMPARE(person.value(QStringLiteral("geburt")).toString(), QStringLiteral("1950-12-31"));
    QCOMPARE(person.value(QStringLiteral("diabetes")).toInt(), 1);
    const QJsonObject besuch = alles.value(QStringLiteral("besuche")).toArray().at(0).toObject();
    QVERIFY(besuch.value(QStringLiteral("groesse")).isNull());
    const QJsonObject plan = alles.value(QStringLiteral("plaene")).toArray().at(0).toObject();
    const QJsonObject posten = plan.value(QStringLiteral("posten")).toArray().at(0).toObject();
    QCOMPARE(posten.value(QStringLiteral("food")).toString(), QStringLiteral("Apfel"));
    QCOMPARE(posten.value(QStringLiteral("grams")).toDouble(), 150.5);
    QCOMPARE(posten.value(QStringLiteral("ratings")).toObject().value(QStringLiteral("diabetes")),
             QJsonValue(QStringLiteral("+")));
    const QJsonObject tage =
        alles.value(QStringLiteral("aufzeichnungen")).toArray().at(0).toObject();
    QCOMPARE(tage.value(QStringLiteral("datum")).toString(), QStringLiteral("2026-01-05"));
    QCOMPARE(tage.value(QStringLiteral("tage"))
                 .toObject()
                 .value(QStringLiteral("days"))
                 .toArray()
                 .size(),
             2);
}

/// Desks that knew no records of days have left some such files.
void TestKlientenuebergabe::aFileWithoutRecordsOfDaysIsTakenIn()
{
    QJsonObject alles = QJsonDocument::fromJson(akteAlsText(akte())).object();
    alles.insert(QStringLiteral("version"), 1);
    alles.remove(QStringLiteral("aufzeichnungen"));
    const Uebergabe gelesen = leseAkte(QJsonDocument(alles).toJson());
    QCOMPARE(gelesen.zustand, Zustand::Gelesen);
    Klientenakte ohne = akte();
    ohne.aufzeichnungen.clear();
    QCOMPARE(gelesen.akte, ohne);
}

void TestKlientenuebergabe::whatIsNoClientIsTold_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<Zustand>("zustand");
    QTest::addColumn<QString>("stelle");
    const QByteArray guter = QJsonDocument(QJsonDocument::fromJson(akteAlsText(akte())).object())
                                 .toJson(QJsonDocument::Compact);
    const auto mit = [&guter](const char *was, const char *womit) {
        QByteArray text = guter;
        if (!text.contains(was)) {
            qFatal("%s is not in the text", was);
        }
        return text.replace(was, womit);
    };
    QTest::newRow("nothing") << QByteArray() << Zustand::Fremd << QString();
    QTest::newRow("no JSON") << QByteArray("{") << Zustand::Fremd << QString();
    QTest::newRow("cut off") << guter.left(guter.size() / 2) << Zustand::Fremd << QString();
    QTest::newRow("a list") << QByteArray("[1, 2]") << Zustand::Fremd << QString();
    QTest::newRow("of another program")
        << mit("Mahlberg client", "Client") << Zustand::Fremd << QString();
    QTest::newRow("of a newer version")
        << mit(R"("version":2)", R"("version":3)") << Zustand::Neuer << QString();
    QTest::newRow("without a person") << mit(R"("person":)", R"("nobody":)") << Zustand::Beschaedigt
                                      << QStringLiteral("person.kennung");
    QTest::newRow("a birth that is no day")
        << mit("1950-12-31", "1950-12-32") << Zustand::Beschaedigt
        << QStringLiteral("person.geburt");
    QTest::newRow("a weight that is a word")
        << mit(R"("reduktion":1)", R"("reduktion":"x")") << Zustand::Beschaedigt
        << QStringLiteral("besuche[0].reduktion");
    QTest::newRow("an amount that is none")
        << mit("150.5", "[]") << Zustand::Beschaedigt << QStringLiteral("plaene[0].posten");
    QTest::newRow("a record never written")
        << mit(R"("fassung":2)", R"("fassung":0)") << Zustand::Beschaedigt
        << QStringLiteral("plaene[0].fassung");
    QTest::newRow("days that are none")
        << mit("Mahlberg days", "Mahlberg dogs") << Zustand::Beschaedigt
        << QStringLiteral("aufzeichnungen[0].tage");
    QTest::newRow("a kind of days that is none")
        << mit(R"("art":1)", R"("art":2)") << Zustand::Beschaedigt
        << QStringLiteral("aufzeichnungen[0].art");
}

void TestKlientenuebergabe::whatIsNoClientIsTold()
{
    QFETCH(const QByteArray, text);
    QFETCH(const Zustand, zustand);
    const Uebergabe gelesen = leseAkte(text);
    QCOMPARE(gelesen.zustand, zustand);
    QTEST(gelesen.stelle, "stelle");
    QCOMPARE(gelesen.akte, Klientenakte());
}

void TestKlientenuebergabe::whatIsMissingIsAbsent()
{
    QByteArray text = akteAlsText(akte());
    QVERIFY(text.contains("\"gewicht\""));
    text.replace("\"gewicht\"", "\"anderes\"");
    const Uebergabe gelesen = leseAkte(text);
    QCOMPARE(gelesen.zustand, Zustand::Gelesen);
    QVERIFY(!gelesen.akte.besuche.constFirst().gewicht.has_value());
}

QTEST_APPLESS_MAIN(TestKlientenuebergabe)
#include "TestKlientenuebergabe.moc"
