// What people type for measures and days is read as they mean it, or not at all.

#include "Eingaben.h"

#include <QLocale>
#include <QTest>

class TestEingaben : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
    void aMeasureIsRead_data();
    void aMeasureIsRead();
    void aDayIsRead_data();
    void aDayIsRead();
    void whereTheMonthComesFirst_data();
    void whereTheMonthComesFirst();
};

void TestEingaben::aMeasureIsRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("einheit");
    QTest::addColumn<bool>("lesbar");
    QTest::addColumn<bool>("etwas");
    QTest::addColumn<double>("wert");
    const auto zeile = [](const char *name, const char *text, const char *einheit, bool lesbar,
                          bool etwas = false, double wert = 0) {
        QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(einheit) << lesbar
                            << etwas << wert;
    };
    zeile("nothing is no measure", "", "kg", true);
    zeile("blanks are nothing", "  \t", "kg", true);
    zeile("a whole number", "72", "kg", true, true, 72);
    zeile("a comma", "72,5", "kg", true, true, 72.5);
    zeile("a point", "72.5", "kg", true, true, 72.5);
    zeile("with its unit", "72,5 kg", "kg", true, true, 72.5);
    zeile("with its unit in capitals, close to it", "72,5KG", "kg", true, true, 72.5);
    zeile("blanks around it", "  72,5  ", "kg", true, true, 72.5);
    zeile("0 is a number", "0", "kg", true, true, 0);
    zeile("nothing before the comma", ",5", "h", true, true, 0.5);
    zeile("another unit is a slip", "180 cm", "m", false);
    zeile("the unit alone is a slip", "kg", "kg", false);
    zeile("letters are a slip", "achtzig", "kg", false);
    zeile("letters behind it are a slip", "72x", "kg", false);
    zeile("two commas are a slip", "7,2,5", "kg", false);
    zeile("a negative one is a slip", "-1", "kg", false);
    zeile("endless is a slip", "inf", "kg", false);
    zeile("no number is a slip", "nan", "kg", false);
    zeile("more than a number holds is a slip", "1e400", "kg", false);
}

void TestEingaben::aMeasureIsRead()
{
    QFETCH(QString, text);
    QFETCH(QString, einheit);
    const Eingelesenes<double> ergebnis = leseMass(text, einheit);
    QTEST(ergebnis.lesbar, "lesbar");
    QTEST(ergebnis.wert.has_value(), "etwas");
    QTEST(ergebnis.wert.value_or(0), "wert");
}

void TestEingaben::aDayIsRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("lesbar");
    QTest::addColumn<QDate>("tag");
    const auto zeile = [](const char *name, const char *text, bool lesbar, const QDate &tag = {}) {
        QTest::newRow(name) << QString::fromUtf8(text) << lesbar << tag;
    };
    zeile("nothing is no day", "", true);
    zeile("four digits of the year", "31.12.1980", true, {1980, 12, 31});
    zeile("without zeros", "1.2.1980", true, {1980, 2, 1});
    zeile("as machines write it", "1980-12-31", true, {1980, 12, 31});
    zeile("strokes", "31/12/1980", true, {1980, 12, 31});
    zeile("blanks between", " 31. 12. 1980 ", true, {1980, 12, 31});
    zeile("two digits are this century", "31.12.25", true, {2025, 12, 31});
    zeile("two digits, today", "23.11.26", true, {2026, 11, 23});
    zeile("two digits, tomorrow, is the century before", "24.11.26", true, {1926, 11, 24});
    zeile("two digits are the century before", "31.12.80", true, {1980, 12, 31});
    zeile("a leap day", "29.2.2024", true, {2024, 2, 29});
    zeile("a leap day of two digits", "29.2.24", true, {2024, 2, 29});
    zeile("the 29th in a common year", "29.2.2023", false);
    zeile("a month too many", "1.13.1980", false);
    zeile("three digits of the year", "1.1.980", false);
    zeile("a year before there were clients", "1.1.0999", false);
    zeile("a year alone", "1980", false);
    zeile("no year", "31.12.", false);
    zeile("letters", "gestern", false);
    zeile("something behind it", "31.12.1980x", false);
}

void TestEingaben::aDayIsRead()
{
    QFETCH(QString, text);
    const Eingelesenes<QDate> ergebnis = leseTag(text, QDate(2026, 11, 23));
    QTEST(ergebnis.lesbar, "lesbar");
    QTEST(ergebnis.wert.value_or(QDate()), "tag");
}

void TestEingaben::whereTheMonthComesFirst_data()
{
    QTest::addColumn<QLocale>("land");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QDate>("tag");
    const QLocale usa(QLocale::English, QLocale::UnitedStates);
    const QLocale england(QLocale::English, QLocale::UnitedKingdom);
    QTest::newRow("there, with strokes") << usa << QStringLiteral("2/1/1980") << QDate(1980, 2, 1);
    QTest::newRow("there, with points") << usa << QStringLiteral("2.1.1980") << QDate(1980, 1, 2);
    QTest::newRow("elsewhere") << england << QStringLiteral("2/1/1980") << QDate(1980, 1, 2);
}

void TestEingaben::whereTheMonthComesFirst()
{
    QFETCH(QLocale, land);
    QFETCH(QString, text);
    QLocale::setDefault(land);
    const Eingelesenes<QDate> ergebnis = leseTag(text, QDate(2026, 11, 23));
    QTEST(ergebnis.wert.value_or(QDate()), "tag");
}

QTEST_GUILESS_MAIN(TestEingaben)
#include "TestEingaben.moc"
