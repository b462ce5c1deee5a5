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
    void aTypedNumberIsReadInTheUsersLocale_data();
    void aTypedNumberIsReadInTheUsersLocale();
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

void TestWertehalter::aTypedNumberIsReadInTheUsersLocale_data()
{
    QTest::addColumn<QString>("sprache");
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("zahl");
    const QString de = QStringLiteral("de_DE");
    const QString en = QStringLiteral("en_GB");
    QTest::newRow("German decimal comma") << de << QStringLiteral("12,5") << 12.5;
    QTest::newRow("German with a point") << de << QStringLiteral("12.5") << 12.5;
    QTest::newRow("German thousands") << de << QStringLiteral("1.250") << 1250.0;
    QTest::newRow("German thousands and comma") << de << QStringLiteral("1.250,5") << 1250.5;
    QTest::newRow("zero point is never thousands") << de << QStringLiteral("0.125") << 0.125;
    QTest::newRow("point without a zero") << de << QStringLiteral(".5") << 0.5;
    QTest::newRow("comma without a zero") << de << QStringLiteral(",5") << 0.5;
    QTest::newRow("English decimal point") << en << QStringLiteral("12.5") << 12.5;
    QTest::newRow("English with a comma") << en << QStringLiteral("12,5") << 12.5;
    QTest::newRow("English thousands") << en << QStringLiteral("1,250") << 1250.0;
    QTest::newRow("a dash is 0") << de << QStringLiteral("-") << 0.0;
    QTest::newRow("nothing is 0") << de << QString() << 0.0;
    QTest::newRow("blanks are 0") << de << QStringLiteral("   - ") << 0.0;
    QTest::newRow("a word is 0") << de << QStringLiteral("viel") << 0.0;
    QTest::newRow("inf is a word") << de << QStringLiteral("inf") << 0.0;
    QTest::newRow("nan is a word") << de << QStringLiteral("nan") << 0.0;
    QTest::newRow("negative") << de << QStringLiteral("-3,5") << -3.5;
    QTest::newRow("plus sign") << de << QStringLiteral("+3") << 3.0;
    QTest::newRow("blanks before") << de << QStringLiteral("  7") << 7.0;
    QTest::newRow("a unit behind") << de << QStringLiteral("150,5 kcal") << 150.5;
    QTest::newRow("a unit without a blank") << de << QStringLiteral("30g") << 30.0;
    QTest::newRow("a comma left open") << de << QStringLiteral("12,") << 12.0;
    QTest::newRow("two commas make no German number") << de << QStringLiteral("1,2,3") << 0.0;
    QTest::newRow("exponent") << de << QStringLiteral("1e3") << 1000.0;
}

void TestWertehalter::aTypedNumberIsReadInTheUsersLocale()
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
