#include "Auswahlfeld.h"
#include "Textfarbe.h"
#include "Wertehalter.h"

#include <QColor>
#include <QLineEdit>
#include <QLocale>
#include <QPalette>
#include <QSignalSpy>
#include <QTest>

#include <cmath>
#include <limits>

namespace {

class Probe : public Wertehalter
{
public:
    int gezeigt = 0;

protected:
    void wertGesetzt() override { ++gezeigt; }
};

/// Contrast of two colours as the accessibility guidelines of the web define it (WCAG 2).
double kontrast(const QColor &a, const QColor &b)
{
    const auto helligkeit = [](const QColor &farbe) {
        const auto linear = [](double anteil) {
            return anteil <= 0.03928 ? anteil / 12.92 : std::pow((anteil + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(static_cast<double>(farbe.redF())) +
               0.7152 * linear(static_cast<double>(farbe.greenF())) +
               0.0722 * linear(static_cast<double>(farbe.blueF()));
    };
    const double heller = std::fmax(helligkeit(a), helligkeit(b));
    const double dunkler = std::fmin(helligkeit(a), helligkeit(b));
    return (heller + 0.05) / (dunkler + 0.05);
}

} // namespace

class TestWertehalter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
    void aTypedNumberIsReadByOneRule_data();
    void aTypedNumberIsReadByOneRule();
    void aMarkThatPartsThousandsGoesAway_data();
    void aMarkThatPartsThousandsGoesAway();
    void aValueThatCountsNeverShowsAsZero_data();
    void aValueThatCountsNeverShowsAsZero();
    void aNumberIsHeldExactly();
    void theWholeNumberIsTruncated_data();
    void theWholeNumberIsTruncated();
    void aNumberIsWrittenInTheUsersLocale();
    void everySettingIsShownOnce();
    void aChooserHoldsItsText();
    void aChooserHoldsATextThatItDoesNotOffer();
    void verdictColoursCanBeReadOnBothThemes_data();
    void verdictColoursCanBeReadOnBothThemes();
};

void TestWertehalter::aTypedNumberIsReadByOneRule_data()
{
    QTest::addColumn<QString>("sprache");
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("zahl");
    const auto zeile = [](const char *was, const QString &text, double zahl) {
        for (const char *sprache : {"de_DE", "en_GB", "de_CH"}) {
            QTest::addRow("%s, %s", was, sprache) << QString::fromLatin1(sprache) << text << zahl;
        }
    };
    zeile("a comma", QStringLiteral("12,5"), 12.5);
    zeile("a point", QStringLiteral("12.5"), 12.5);
    zeile("a comma before three digits", QStringLiteral("1,250"), 1.25);
    zeile("a point before three digits", QStringLiteral("1.500"), 1.5);
    zeile("a point parts thousands, a comma the decimals", QStringLiteral("1.250,5"), 1250.5);
    zeile("a comma parts thousands, a point the decimals", QStringLiteral("1,250.5"), 1250.5);
    zeile("points part millions", QStringLiteral("1.500.000"), 1500000.0);
    zeile("commas part millions", QStringLiteral("1,500,000"), 1500000.0);
    zeile("points part millions, a comma the decimals", QStringLiteral("1.500.000,25"), 1500000.25);
    zeile("what stands twice parts thousands only", QStringLiteral("1,2,3"), 123.0);
    zeile("a blank parts thousands", QStringLiteral("1 500"), 1500.0);
    zeile("a blank that does not break", QStringLiteral("1\u00A0500,5"), 1500.5);
    zeile("a narrow blank", QStringLiteral("1\u202F500.5"), 1500.5);
    zeile("a thin blank", QStringLiteral("1\u2009500"), 1500.0);
    zeile("a zero and a point", QStringLiteral("0.125"), 0.125);
    zeile("a point without a zero", QStringLiteral(".5"), 0.5);
    zeile("a comma without a zero", QStringLiteral(",5"), 0.5);
    zeile("a comma left open", QStringLiteral("12,"), 12.0);
    zeile("a point left open behind thousands", QStringLiteral("1.500."), 1500.0);
    zeile("a dash is 0", QStringLiteral("-"), 0.0);
    zeile("nothing is 0", QString(), 0.0);
    zeile("blanks are 0", QStringLiteral("   - "), 0.0);
    zeile("a word is 0", QStringLiteral("viel"), 0.0);
    zeile("inf is a word", QStringLiteral("inf"), 0.0);
    zeile("nan is a word", QStringLiteral("nan"), 0.0);
    constexpr double unendlich = std::numeric_limits<double>::infinity();
    zeile("more than a number can hold", QStringLiteral("1e999"), unendlich);
    zeile("just more than a number can hold", QStringLiteral("1e309"), unendlich);
    zeile("as much below 0", QStringLiteral("-1e999"), -unendlich);
    zeile("more digits than a number can hold", QString(400, u'9'), unendlich);
    zeile("less than a number can tell from 0", QStringLiteral("1e-999"), 0.0);
    zeile("negative", QStringLiteral("-3,5"), -3.5);
    zeile("plus sign", QStringLiteral("+3"), 3.0);
    zeile("blanks before", QStringLiteral("  7"), 7.0);
    zeile("a unit behind", QStringLiteral("150,5 kcal"), 150.5);
    zeile("a unit without a blank", QStringLiteral("30g"), 30.0);
    zeile("a unit behind a blank that does not break", QStringLiteral("30\u00A0g"), 30.0);
    zeile("exponent", QStringLiteral("1e3"), 1000.0);
    zeile("exponent as the program writes it", QStringLiteral("1E-09"), 1e-9);
}

void TestWertehalter::aTypedNumberIsReadByOneRule()
{
    QFETCH(QString, sprache);
    QFETCH(QString, text);
    QFETCH(double, zahl);
    QLocale::setDefault(QLocale(sprache));
    Probe probe;
    probe.setStringValue(text);
    QCOMPARE(probe.doubleValue(), zahl);
    QCOMPARE(probe.stringValue(), text);
    QVERIFY(!probe.haeltZahl());
}

void TestWertehalter::aMarkThatPartsThousandsGoesAway_data()
{
    QTest::addColumn<QString>("getippt");
    QTest::addColumn<bool>("richtig");
    QTest::addColumn<QString>("bleibt");
    QTest::newRow("a decimal comma stays") << "1,234" << true << "1,234";
    QTest::newRow("a decimal point stays") << "1.234" << true << "1.234";
    QTest::newRow("before a comma") << "1.234," << true << "1234,";
    QTest::newRow("before a point") << "1,234." << true << "1234.";
    QTest::newRow("the second of its kind") << "1.500." << true << "1500";
    QTest::newRow("millions") << "1.500.000,25" << true << "1500000,25";
    QTest::newRow("a blank") << "12 500,5" << true << "12500,5";
    QTest::newRow("a comma hit twice") << "1,," << false << "1,,";
    QTest::newRow("a comma within decimals") << "1,5," << false << "1,5,";
    QTest::newRow("no group of three") << "1.2," << false << "1.2,";
    QTest::newRow("four digits before the first mark") << "1234.567," << false << "1234.567,";
    QTest::newRow("a blank behind the number") << "5 " << false << "5 ";
    QTest::newRow("a letter") << "5g" << false << "5g";
}

void TestWertehalter::aMarkThatPartsThousandsGoesAway()
{
    QFETCH(QString, getippt);
    QFETCH(bool, richtig);
    QString ziffern = getippt;
    int stelle = static_cast<int>(ziffern.size());
    QCOMPARE(entferneTausender(ziffern, stelle), richtig);
    QTEST(ziffern, "bleibt");
    QCOMPARE(stelle, static_cast<int>(ziffern.size()));
}

void TestWertehalter::aValueThatCountsNeverShowsAsZero_data()
{
    QTest::addColumn<double>("zahl");
    QTest::addColumn<int>("stellen");
    QTest::addColumn<QString>("text");
    QTest::newRow("enough digits") << 12.34 << 1 << "12,3";
    QTest::newRow("rounded up") << 0.05 << 1 << "0,1";
    QTest::newRow("a trace of protein") << 0.03 << 1 << "0,03";
    QTest::newRow("in single precision") << static_cast<double>(0.01F) << 1 << "0,01";
    QTest::newRow("a trace of B1") << 0.0001 << 3 << "0,0001";
    QTest::newRow("a trace of energy") << 0.12 << 0 << "0,1";
    QTest::newRow("rounds to one digit") << 0.0096 << 1 << "0,01";
    QTest::newRow("keeps its first digit") << 0.0043 << 1 << "0,004";
    QTest::newRow("six places") << 0.000001 << 1 << "0,000001";
    QTest::newRow("less than six places show") << 1e-9 << 1 << "1E-09";
    QTest::newRow("below 0") << -0.04 << 1 << "-0,04";
    QTest::newRow("far below 0") << -12.34 << 1 << "-12,3";
    QTest::newRow("nothing") << 0.0 << 1 << "0,0";
    QTest::newRow("nothing, without places") << 0.0 << 0 << "0";
    QTest::newRow("nothing has no sign") << -0.0 << 1 << "0,0";
    QTest::newRow("thousands are not parted") << 1234567.5 << 1 << "1234567,5";
}

void TestWertehalter::aValueThatCountsNeverShowsAsZero()
{
    QFETCH(double, zahl);
    QFETCH(int, stellen);
    QTEST(wertText(zahl, stellen), "text");
    QCOMPARE(zahlAusText(wertText(zahl, stellen)) == 0, zahl == 0);
}

void TestWertehalter::aNumberIsHeldExactly()
{
    Probe probe;
    probe.setFloatValue(0.1F);
    QVERIFY(probe.floatValue() == 0.1F);
    QVERIFY(probe.doubleValue() == static_cast<double>(0.1F));
    probe.setDoubleValue(1.0 / 3.0);
    QVERIFY(probe.doubleValue() == 1.0 / 3.0);
    probe.setFloatValue(std::numeric_limits<float>::denorm_min());
    QVERIFY(probe.floatValue() == std::numeric_limits<float>::denorm_min());
}

void TestWertehalter::theWholeNumberIsTruncated_data()
{
    QTest::addColumn<double>("zahl");
    QTest::addColumn<int>("ganz");
    QTest::newRow("just below the next") << 99.999 << 99;
    QTest::newRow("negative goes toward zero") << -1.9 << -1;
    QTest::newRow("whole") << 30.0 << 30;
    QTest::newRow("beyond an int") << 1e12 << std::numeric_limits<int>::max();
    QTest::newRow("far below an int") << -1e12 << std::numeric_limits<int>::min();
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << 0;
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity()
                              << std::numeric_limits<int>::max();
}

void TestWertehalter::theWholeNumberIsTruncated()
{
    QFETCH(double, zahl);
    QFETCH(int, ganz);
    Probe probe;
    probe.setDoubleValue(zahl);
    QCOMPARE(probe.intValue(), ganz);
}

void TestWertehalter::aNumberIsWrittenInTheUsersLocale()
{
    Probe probe;
    probe.setDoubleValue(2.5);
    QCOMPARE(probe.stringValue(), QStringLiteral("2,5"));
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
    QCOMPARE(probe.stringValue(), QStringLiteral("2.5"));
    probe.setIntValue(1500);
    QCOMPARE(probe.stringValue(), QStringLiteral("1500"));
}

void TestWertehalter::everySettingIsShownOnce()
{
    Probe probe;
    probe.setIntValue(1);
    probe.setFloatValue(2);
    probe.setStringValue(QStringLiteral("-"));
    QCOMPARE(probe.gezeigt, 3);
}

void TestWertehalter::aChooserHoldsItsText()
{
    Auswahlfeld wahl;
    wahl.setEditable(true);
    wahl.setAuswahl(QStringLiteral("+|0|-"));
    QCOMPARE(wahl.count(), 3);
    QSignalSpy gemeldet(&wahl, &Auswahlfeld::betaetigt);
    wahl.setStringValue(QStringLiteral("0"));
    QCOMPARE(wahl.currentIndex(), 1);
    QCOMPARE(gemeldet.count(), 0);
    wahl.lineEdit()->clear();
    QTest::keyClicks(wahl.lineEdit(), QStringLiteral("-"));
    QCOMPARE(wahl.stringValue(), QStringLiteral("-"));
    QCOMPARE(wahl.intValue(), 0);
    QTest::keyClick(&wahl, Qt::Key_Return);
    QCOMPARE(gemeldet.count(), 1);
}

void TestWertehalter::aChooserHoldsATextThatItDoesNotOffer()
{
    Auswahlfeld getippt;
    getippt.setEditable(true);
    getippt.setAuswahl(QStringLiteral("+|0|-"));
    getippt.setStringValue(QStringLiteral("gut"));
    QCOMPARE(getippt.stringValue(), QStringLiteral("gut"));
    QCOMPARE(getippt.currentText(), QStringLiteral("gut"));

    Auswahlfeld gewaehlt;
    gewaehlt.setAuswahl(QStringLiteral("<|>|="));
    gewaehlt.setStringValue(QStringLiteral("ungefähr"));
    QCOMPARE(gewaehlt.currentIndex(), -1);
    QCOMPARE(gewaehlt.stringValue(), QStringLiteral("ungefähr"));
}

void TestWertehalter::verdictColoursCanBeReadOnBothThemes_data()
{
    QTest::addColumn<QColor>("fenster");
    QTest::addColumn<QColor>("schrift");
    QTest::newRow("light") << QColor(244, 244, 242) << QColor(30, 30, 30);
    QTest::newRow("white") << QColor(255, 255, 255) << QColor(30, 30, 30);
    QTest::newRow("dark") << QColor(38, 40, 43) << QColor(236, 236, 236);
}

void TestWertehalter::verdictColoursCanBeReadOnBothThemes()
{
    QFETCH(QColor, fenster);
    QFETCH(QColor, schrift);
    QPalette palette;
    palette.setColor(QPalette::Window, fenster);
    palette.setColor(QPalette::WindowText, schrift);
    for (const auto farbe : {Textfarbe::Rot, Textfarbe::Blau, Textfarbe::Gruen}) {
        QVERIFY(kontrast(farbeFuer(farbe, palette), fenster) >= 4.5);
    }
    QCOMPARE(farbeFuer(Textfarbe::Standard, palette), schrift);
    QCOMPARE(farbeFuer(Textfarbe::Schwarz, palette), schrift);
}

QTEST_MAIN(TestWertehalter)
#include "TestWertehalter.moc"
