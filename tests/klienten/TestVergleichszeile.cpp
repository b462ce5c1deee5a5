// How much one figure is more or less than another, in words.

#include "Vergleichszeile.h"

#include "Zahlenform.h"

#include <QLocale>
#include <QTest>

#include <limits>

class TestVergleichszeile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QStringLiteral("de_DE"))); }

    void differencesHaveASignAndAUnit_data();
    void differencesHaveASignAndAUnit();
    void whatReadsAsNothingHasNoSign();
    void whatIsNotKnownHasNoDifference_data();
    void whatIsNotKnownHasNoDifference();
};

namespace {

/// With one decimal, and with more where that would look like nothing.
QString kilogramm(double zahl)
{
    return wertText(zahl, 1) + QStringLiteral(" kg");
}

} // namespace

void TestVergleichszeile::differencesHaveASignAndAUnit_data()
{
    QTest::addColumn<double>("links");
    QTest::addColumn<double>("rechts");
    QTest::addColumn<QString>("worte");
    const auto zeile = [](const char *name, double links, double rechts, const char *worte) {
        QTest::newRow(name) << links << rechts << QString::fromUtf8(worte);
    };
    zeile("more", 80, 83.5, "+3,5 kg");
    zeile("less", 83.5, 80, "-3,5 kg");
    zeile("the same", 80, 80, "0,0 kg");
    zeile("nothing and something", 0, 2, "+2,0 kg");
    zeile("something and nothing", 2, 0, "-2,0 kg");
    zeile("nothing on both sides", 0, 0, "0,0 kg");
    zeile("a little", 80, 80.02, "+0,02 kg");
    zeile("what is left of single precision", 100, 100.0009, "0,0 kg");
    zeile("the same below zero", -100, -100.0009, "0,0 kg");
    zeile("a little more than that", 100, 100.0011, "+0,001 kg");
}

void TestVergleichszeile::differencesHaveASignAndAUnit()
{
    QFETCH(const double, links);
    QFETCH(const double, rechts);
    QTEST(unterschiedsworte(links, rechts, kilogramm), "worte");
}

void TestVergleichszeile::whatReadsAsNothingHasNoSign()
{
    const auto ganze = [](double zahl) {
        return QString::number(zahl, 'f', 0);
    };
    QCOMPARE(unterschiedsworte(80.0, 80.4, ganze), QStringLiteral("0"));
    QCOMPARE(unterschiedsworte(80.4, 80.0, ganze), QStringLiteral("0"));
    QCOMPARE(unterschiedsworte(80.0, 80.6, ganze), QStringLiteral("+1"));
}

void TestVergleichszeile::whatIsNotKnownHasNoDifference_data()
{
    QTest::addColumn<std::optional<double>>("links");
    QTest::addColumn<std::optional<double>>("rechts");
    const std::optional<double> bekannt = 80;
    const std::optional<double> unbekannt;
    const std::optional<double> unendlich = std::numeric_limits<double>::infinity();
    const std::optional<double> keineZahl = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("neither") << unbekannt << unbekannt;
    QTest::newRow("only the right one") << unbekannt << bekannt;
    QTest::newRow("only the left one") << bekannt << unbekannt;
    QTest::newRow("the left one ran over") << unendlich << bekannt;
    QTest::newRow("the right one is no number") << bekannt << keineZahl;
}

void TestVergleichszeile::whatIsNotKnownHasNoDifference()
{
    QFETCH(const std::optional<double>, links);
    QFETCH(const std::optional<double>, rechts);
    QVERIFY(unterschiedsworte(links, rechts, kilogramm).isNull());
}

QTEST_APPLESS_MAIN(TestVergleichszeile)
#include "TestVergleichszeile.moc"
