// Axes with round figures and with days, months or years.

#include "Verlaufsskala.h"

#include <QLocale>
#include <QTest>

#include <algorithm>

namespace {

/// As many marks as there is room for.
auto hoechstens(int anzahl)
{
    return [anzahl](const QList<Zeitstrich> &striche) {
        return striche.size() <= anzahl;
    };
}

QStringList texte(const QList<Zeitstrich> &striche)
{
    QStringList alle;
    for (const Zeitstrich &strich : striche) {
        alle << strich.text;
    }
    return alle;
}

} // namespace

class TestVerlaufsskala : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
    void valuesGetRoundSteps_data();
    void valuesGetRoundSteps();
    void anAxisHoldsItsValuesInFewSteps();
    void figuresOfAnAxis_data();
    void figuresOfAnAxis();
    void marksGoByTheSpan_data();
    void marksGoByTheSpan();
    void marksStandOnTheirDays();
    void theFinestMarksThatFitAreTaken();
    void marksThatNoAxisHasRoomForAreNotMade();
    void everySpanHasMarks_data();
    void everySpanHasMarks();
    void marksAreInTheLanguageOnScreen();
};

void TestVerlaufsskala::valuesGetRoundSteps_data()
{
    QTest::addColumn<double>("von");
    QTest::addColumn<double>("bis");
    QTest::addColumn<int>("schritte");
    QTest::addColumn<double>("unten");
    QTest::addColumn<double>("oben");
    QTest::addColumn<double>("schritt");
    QTest::newRow("70 to 90 in five") << 70.0 << 90.0 << 5 << 70.0 << 90.0 << 5.0;
    QTest::newRow("70 to 90 in three") << 70.0 << 90.0 << 3 << 70.0 << 90.0 << 10.0;
    QTest::newRow("90 to 98 in five") << 90.0 << 98.0 << 5 << 90.0 << 98.0 << 2.0;
    QTest::newRow("54.7 to 82.4 in five") << 54.7 << 82.4 << 5 << 50.0 << 90.0 << 10.0;
    QTest::newRow("54.7 to 82.4 in eight") << 54.7 << 82.4 << 8 << 50.0 << 85.0 << 5.0;
    QTest::newRow("55 to 350 in six") << 55.0 << 350.0 << 6 << 50.0 << 350.0 << 50.0;
    QTest::newRow("one value has 2 on both sides") << 80.0 << 80.0 << 4 << 78.0 << 82.0 << 1.0;
    QTest::newRow("half a kilogram is no great change") << 80.0 << 80.5 << 8 << 78.0 << 83.0 << 1.0;
    QTest::newRow("two steps are always allowed") << 0.0 << 100.0 << 0 << 0.0 << 100.0 << 50.0;
    QTest::newRow("nothing below 0") << 0.0 << 0.0 << 2 << 0.0 << 2.0 << 1.0;
    QTest::newRow("a million") << 10.0 << 1e6 << 4 << 0.0 << 1e6 << 500000.0;
}

void TestVerlaufsskala::valuesGetRoundSteps()
{
    QFETCH(const double, von);
    QFETCH(const double, bis);
    QFETCH(const int, schritte);
    const Werteskala skala = werteskala(von, bis, schritte);
    QTEST(skala.von, "unten");
    QTEST(skala.bis, "oben");
    QTEST(skala.schritt, "schritt");
}

void TestVerlaufsskala::anAxisHoldsItsValuesInFewSteps()
{
    for (double von = 0; von < 300; von += 7.3) {
        for (double bis = von; bis < 1000; bis += 13.7) {
            for (int schritte = 2; schritte <= 8; ++schritte) {
                const Werteskala skala = werteskala(von, bis, schritte);
                QVERIFY(skala.von <= von + 1e-6 && skala.bis >= bis - 1e-6);
                QVERIFY(skala.stufen().size() <= schritte + 1);
                QVERIFY(skala.stufen().size() >= 2);
            }
        }
    }
}

void TestVerlaufsskala::figuresOfAnAxis_data()
{
    QTest::addColumn<Werteskala>("skala");
    QTest::addColumn<QStringList>("erwartet");
    QTest::newRow("tens") << Werteskala{50, 80, 10}
                          << QStringList{QStringLiteral("50"), QStringLiteral("60"),
                                         QStringLiteral("70"), QStringLiteral("80")};
    QTest::newRow("halves") << Werteskala{79.5, 80.5, 0.5}
                            << QStringList{QStringLiteral("79,5"), QStringLiteral("80,0"),
                                           QStringLiteral("80,5")};
    QTest::newRow("tenths") << Werteskala{1, 1.2, 0.1}
                            << QStringList{QStringLiteral("1,0"), QStringLiteral("1,1"),
                                           QStringLiteral("1,2")};
    QTest::newRow("nothing between thousands")
        << Werteskala{5000, 10000, 5000}
        << QStringList{QStringLiteral("5000"), QStringLiteral("10000")};
}

void TestVerlaufsskala::figuresOfAnAxis()
{
    QFETCH(const Werteskala, skala);
    QStringList ist;
    for (const double stufe : skala.stufen()) {
        ist << skala.beschriftung(stufe);
    }
    QTEST(ist, "erwartet");
}

void TestVerlaufsskala::marksGoByTheSpan_data()
{
    QTest::addColumn<QDate>("von");
    QTest::addColumn<QDate>("bis");
    QTest::addColumn<QStringList>("erwartet"); // with room for four marks
    const auto s = [](const char *text) {
        return QString::fromUtf8(text);
    };
    QTest::newRow("one day") << QDate(2026, 11, 22) << QDate(2026, 11, 22)
                             << QStringList{s("22.11.26")};
    QTest::newRow("two days") << QDate(2026, 11, 22) << QDate(2026, 11, 23)
                              << QStringList{s("22.11.26"), s("23.11.26")};
    QTest::newRow("five days") << QDate(2026, 11, 22) << QDate(2026, 11, 26)
                               << QStringList{s("22.11.26"), s("24.11.26"), s("26.11.26")};
    QTest::newRow("three weeks") << QDate(2026, 11, 1) << QDate(2026, 11, 22)
                                 << QStringList{s("01.11.26"), s("08.11.26"), s("15.11.26"),
                                                s("22.11.26")};
    QTest::newRow("six weeks") << QDate(2026, 10, 10) << QDate(2026, 11, 22)
                               << QStringList{s("10.10.26"), s("24.10.26"), s("07.11.26"),
                                              s("21.11.26")};
    QTest::newRow("four months") << QDate(2026, 7, 2) << QDate(2026, 11, 22)
                                 << QStringList{s("Aug. 2026"), s("Sept. 2026"), s("Okt. 2026"),
                                                s("Nov. 2026")};
    QTest::newRow("quarters of a year")
        << QDate(2025, 12, 15) << QDate(2026, 11, 22)
        << QStringList{s("Jan. 2026"), s("Apr. 2026"), s("Juli 2026"), s("Okt. 2026")};
    QTest::newRow("a month that begins with the first visit")
        << QDate(2026, 1, 1) << QDate(2026, 4, 1)
        << QStringList{s("Jan. 2026"), s("Feb. 2026"), s("März 2026"), s("Apr. 2026")};
    QTest::newRow("years") << QDate(2022, 6, 1) << QDate(2026, 5, 1)
                           << QStringList{s("2023"), s("2024"), s("2025"), s("2026")};
    QTest::newRow("twelve years") << QDate(2014, 6, 1) << QDate(2026, 5, 1)
                                  << QStringList{s("2015"), s("2020"), s("2025")};
    QTest::newRow("ninety years") << QDate(1936, 6, 1) << QDate(2026, 5, 1)
                                  << QStringList{s("1950"), s("2000")};
}

void TestVerlaufsskala::marksGoByTheSpan()
{
    QFETCH(const QDate, von);
    QFETCH(const QDate, bis);
    QTEST(texte(zeitstriche(von, bis, hoechstens(4))), "erwartet");
}

void TestVerlaufsskala::marksStandOnTheirDays()
{
    const QList<Zeitstrich> striche =
        zeitstriche(QDate(2024, 12, 2), QDate(2026, 11, 22), hoechstens(4));
    QCOMPARE(striche, (QList<Zeitstrich>{{QDate(2025, 1, 1), QStringLiteral("Jan. 2025")},
                                         {QDate(2025, 7, 1), QStringLiteral("Juli 2025")},
                                         {QDate(2026, 1, 1), QStringLiteral("Jan. 2026")},
                                         {QDate(2026, 7, 1), QStringLiteral("Juli 2026")}}));
}

void TestVerlaufsskala::theFinestMarksThatFitAreTaken()
{
    const QDate von(2026, 11, 1);
    QCOMPARE(zeitstriche(von, von.addDays(9), hoechstens(10)).size(), 10);
    QCOMPARE(zeitstriche(von, von.addDays(9), hoechstens(9)).size(), 5);
    QCOMPARE(texte(zeitstriche(von, von.addDays(9), hoechstens(4))),
             (QStringList{QStringLiteral("01.11.26"), QStringLiteral("08.11.26")}));
    QCOMPARE(texte(zeitstriche(von, von.addDays(9), hoechstens(1))),
             QStringList{QStringLiteral("10.11.26")});
}

void TestVerlaufsskala::marksThatNoAxisHasRoomForAreNotMade()
{
    qsizetype meiste = 0;
    zeitstriche(QDate(1926, 1, 1), QDate(2026, 1, 1), [&meiste](const QList<Zeitstrich> &striche) {
        meiste = std::max(meiste, striche.size());
        return false;
    });
    QVERIFY2(meiste > 10 && meiste <= 51, qPrintable(QString::number(meiste)));
}

void TestVerlaufsskala::everySpanHasMarks_data()
{
    QTest::addColumn<QDate>("von");
    QTest::addColumn<QDate>("bis");
    QTest::newRow("the first and the last year") << QDate(1, 1, 1) << QDate(9999, 12, 31);
    QTest::newRow("before our era") << QDate(-50, 3, 1) << QDate(2026, 1, 1);
    QTest::newRow("between two firsts of January") << QDate(2026, 1, 2) << QDate(2026, 12, 31);
}

void TestVerlaufsskala::everySpanHasMarks()
{
    QFETCH(const QDate, von);
    QFETCH(const QDate, bis);
    const QList<Zeitstrich> striche = zeitstriche(von, bis, hoechstens(2));
    QCOMPARE(striche.size(), 2);
    QVERIFY(striche.first().tag >= von && striche.last().tag <= bis);
    QVERIFY(striche.first().tag < striche.last().tag);
}

void TestVerlaufsskala::marksAreInTheLanguageOnScreen()
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
    QCOMPARE(texte(zeitstriche(QDate(2026, 9, 2), QDate(2026, 11, 22), hoechstens(3))),
             (QStringList{QStringLiteral("Oct 2026"), QStringLiteral("Nov 2026")}));
    QCOMPARE(texte(zeitstriche(QDate(2026, 11, 22), QDate(2026, 11, 22), hoechstens(3))),
             QStringList{QStringLiteral("22/11/2026")});
    QCOMPARE((Werteskala{79.5, 80.5, 0.5}.beschriftung(79.5)), QStringLiteral("79.5"));
}

QTEST_APPLESS_MAIN(TestVerlaufsskala)
#include "TestVerlaufsskala.moc"
