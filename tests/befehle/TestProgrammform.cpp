#include "Programmform.h"

#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

class TestProgrammform : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void json();
    void csv();
    void numbers_data();
    void numbers();
    void verdicts();
    void names();
};

namespace {

QList<Programmform::Abschnitt> beispiel()
{
    return {{u"food"_s, {{u"name"_s, {{u"value"_s, u"=Äpfel, \"roh\""_s}}}}},
            {u"rows"_s,
             {{u"Ei"_s, {{u"grams"_s, 1.5}, {u"known"_s, true}}},
              {u"Brot"_s, {{u"grams"_s, QJsonValue()}, {u"known"_s, false}}}},
             u"food"_s}};
}

} // namespace

void TestProgrammform::json()
{
    QCOMPARE(QString::fromUtf8(Programmform::alsJson(beispiel())), uR"({
    "food": {
        "name": "=Äpfel, \"roh\""
    },
    "rows": [
        {
            "food": "Ei",
            "grams": 1.5,
            "known": true
        },
        {
            "food": "Brot",
            "grams": null,
            "known": false
        }
    ]
}
)"_s);
}

void TestProgrammform::csv()
{
    QCOMPARE(
        QString::fromUtf8(Programmform::alsCsv(beispiel(), {u"value"_s, u"grams"_s, u"known"_s})),
        u"section,item,value,grams,known\n"
        "food,name,\"'=Äpfel, \"\"roh\"\"\",,\n"
        "rows,Ei,,1.5,true\n"
        "rows,Brot,,,false\n"_s);
}

void TestProgrammform::numbers_data()
{
    QTest::addColumn<QJsonValue>("zahl");
    QTest::addColumn<QJsonValue>("erwartet");
    using Programmform::zahl;
    QTest::newRow("single precision is not spelled out") << zahl(0.3F) << QJsonValue(0.3);
    QTest::newRow("double precision") << zahl(0.3) << QJsonValue(0.3);
    QTest::newRow("more digits than single precision has")
        << zahl(0.1234567890123) << QJsonValue(0.1234567890123);
    QTest::newRow("a large one") << zahl(1e38F) << QJsonValue(static_cast<double>(1e38F));
    QTest::newRow("negative") << zahl(-2.5F) << QJsonValue(-2.5);
    QTest::newRow("infinite") << zahl(std::numeric_limits<float>::infinity()) << QJsonValue();
    QTest::newRow("infinite, double")
        << zahl(-std::numeric_limits<double>::infinity()) << QJsonValue();
    QTest::newRow("beyond single precision") << zahl(1e300) << QJsonValue(1e300);
    QTest::newRow("no number") << zahl(std::numeric_limits<double>::quiet_NaN()) << QJsonValue();
    QTest::newRow("no number, single")
        << zahl(std::numeric_limits<float>::quiet_NaN()) << QJsonValue();
}

void TestProgrammform::numbers()
{
    QFETCH(QJsonValue, zahl);
    QFETCH(QJsonValue, erwartet);
    QCOMPARE(zahl, erwartet);
}

void TestProgrammform::verdicts()
{
    using Programmform::urteil;
    QCOMPARE(urteil(3), QJsonValue(u"good"_s));
    QCOMPARE(urteil(2), QJsonValue(u"fair"_s));
    QCOMPARE(urteil(1), QJsonValue(u"poor"_s));
    QCOMPARE(urteil(0), QJsonValue());
    QCOMPARE(urteil(std::nullopt), QJsonValue());
    QCOMPARE(urteil(Ampel::Gruen), QJsonValue(u"good"_s));
    QCOMPARE(urteil(Ampel::Blau), QJsonValue(u"fair"_s));
    QCOMPARE(urteil(Ampel::Rot), QJsonValue(u"poor"_s));
    QCOMPARE(urteil(Ampel::Schwarz), QJsonValue());
    QCOMPARE(Programmform::text(QString()), QJsonValue());
    QCOMPARE(Programmform::text(u""_s), QJsonValue(u""_s));
}

/// Programs rely on these.
void TestProgrammform::names()
{
    QStringList namen;
    for (const auto &zeile : naehrwerte) {
        namen << Programmform::kennung(zeile.wert);
    }
    QCOMPARE(namen.join(u' '),
             u"energy protein fat carbohydrate fibre cholesterol sodium potassium calcium "
             "phosphate magnesium iron vitamin_a vitamin_b1 vitamin_b2 vitamin_b6 vitamin_c"_s);
    namen.clear();
    for (const auto &zeile : wertungen) {
        namen << Programmform::kennung(zeile.wertung);
    }
    QCOMPARE(namen.join(u' '), u"overweight diabetes gout cardiovascular"_s);
}

QTEST_GUILESS_MAIN(TestProgrammform)
#include "TestProgrammform.moc"
